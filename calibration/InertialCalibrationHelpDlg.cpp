#include "InertialCalibrationHelpDlg.h"

#include "ui_InertialCalibrationHelpDlgClass.h"

InertialCalibrationHelpDlg::InertialCalibrationHelpDlg()
    : QDialog(nullptr), ui(new Ui_InertialCalibrationHelpDlgClass)
{
    ui->setupUi(this);
}

InertialCalibrationHelpDlg::~InertialCalibrationHelpDlg()
{
    delete ui;
}

void InertialCalibrationHelpDlg::on_pushButton_exit_clicked()
{
    close();
}
