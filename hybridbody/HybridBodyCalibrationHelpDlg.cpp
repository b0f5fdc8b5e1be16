#include "HybridBodyCalibrationHelpDlg.h"

#include "ui_HybridBodyHelpDialog.h"

HybridBodyCalibrationHelpDlg::HybridBodyCalibrationHelpDlg(QWidget* parent)
    : QDialog(parent), ui(new Ui_HybridBodyHelpDialog)
{
    ui->setupUi(this);
}

HybridBodyCalibrationHelpDlg::~HybridBodyCalibrationHelpDlg()
{
    delete ui;
}

void HybridBodyCalibrationHelpDlg::startTimer()
{
    ui->label_graphic->start();
}

void HybridBodyCalibrationHelpDlg::stopTimer()
{
    ui->label_graphic->stop();
}
