#include "FilterHelp.h"

#include "ui_FilterHelp.h"

FilterHelp::FilterHelp(QWidget* parent)
    : QDialog(parent),
      ui(new Ui_FilterHelpClass)
{
    ui->setupUi(this);
}

FilterHelp::~FilterHelp()
{
    delete ui;
}

void FilterHelp::on_pushButton_exit_clicked()
{
    accept();
}
