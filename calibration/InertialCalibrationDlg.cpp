#include "InertialCalibrationDlg.h"

#include "ui_InertialCalibrationDialog.h"

InertialCalibrationDlg::InertialCalibrationDlg(IOManager* io, QWidget* parent, BackendVersions* versions)
    : QDialog(parent), ui(new Ui_InertialCalibrationDialog), io(io), backend_versions(versions)
{
    ui->setupUi(this);
}

InertialCalibrationDlg::~InertialCalibrationDlg()
{
    delete ui;
}

void InertialCalibrationDlg::about_to_exit()
{
}

void InertialCalibrationDlg::update_and_exec()
{
    exec();
}
