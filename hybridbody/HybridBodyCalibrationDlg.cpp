#include "HybridBodyCalibrationDlg.h"

#include "module/IOManager.h"
#include "ui_HybridBodyDialog.h"

HybridBodyCalibrationDlg::HybridBodyCalibrationDlg(IOManager* io, QWidget* parent,
                                                   BackendVersions* versions)
    : QDialog(parent), ui(new Ui_HybridBodyDialog), io(io), backend_versions(versions)
{
    ui->setupUi(this);
    if (io)
        io->register_receiver("HybridBodyCalibration", this);
}

HybridBodyCalibrationDlg::~HybridBodyCalibrationDlg()
{
    delete ui;
}

void HybridBodyCalibrationDlg::about_to_exit()
{
    if (io)
        io->unregister_receiver("HybridBodyCalibration", this);
}

int HybridBodyCalibrationDlg::transmit_message(int /*type*/, const char* sender, const char* /*text*/)
{
    if (!sender)
        return 1;
    return 0;
}

void HybridBodyCalibrationDlg::update_and_exec()
{
    exec();
}
