#include "AddInertialSensorDlg.h"

#include "ui_AddSenorDialog.h"

AddInertialSensorDlg::AddInertialSensorDlg(IOManager* io, QWidget* parent, BackendVersions* versions)
    : QDialog(parent), ui(new Ui_AddSenorDialog), io(io), backend_versions(versions)
{
    ui->setupUi(this);
}

AddInertialSensorDlg::~AddInertialSensorDlg()
{
    delete ui;
}

void AddInertialSensorDlg::about_to_exit()
{
}

void AddInertialSensorDlg::update_and_exec()
{
    exec();
}
