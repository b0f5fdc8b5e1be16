#include "CountdownDlg.h"

#include "ui_CountdownDialog.h"

namespace {

constexpr int TickMs = 1000;

} // namespace

CountdownDlg::CountdownDlg(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      ui(new Ui_CountdownDialog),
      timer(this),
      remaining(0)
{
    ui->setupUi(this);
    timer.setInterval(TickMs);
    connect(&timer, &QTimer::timeout, this, &CountdownDlg::updateCountdown);
}

CountdownDlg::~CountdownDlg()
{
    delete ui;
}

void CountdownDlg::setMessage(QString text, int seconds)
{
    ui->msg->setText(text);
    remaining = seconds;
    ui->lcdNumber->display(remaining);
    timer.start();
}

void CountdownDlg::updateCountdown()
{
    --remaining;
    ui->lcdNumber->display(remaining);
    if (remaining < 1) {
        timer.stop();
        accept();
    }
}
