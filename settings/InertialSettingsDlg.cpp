#include "InertialSettingsDlg.h"

#include "addsensor/AddInertialSensorDlg.h"
#include "module/IOManager.h"
#include "module/IneritalMessageReceiver.h"
#include "ui_InertialSettingsDlg.h"

InertialSettingsDlg::InertialSettingsDlg(IOManager* io, QWidget* parent, BackendVersions* versions)
    : QDialog(parent),
      ui(new Ui_InertialSettingsDlg),
      io(io),
      backend_versions(versions),
      parent_widget(parent),
      add_sensor_dlg(nullptr),
      message_receiver(nullptr)
{
    ui->setupUi(this);
    add_sensor_dlg = new AddInertialSensorDlg(io, this, versions);

    message_receiver = new IneritalMessageReceiver(this);
    // Queued: the host may deliver while another dialog is still closing.
    connect(message_receiver, SIGNAL(dialogReopen()), this, SLOT(onReceiveReopen()),
            Qt::QueuedConnection);
    if (io)
        io->register_receiver("InertialModule", message_receiver);
}

InertialSettingsDlg::~InertialSettingsDlg()
{
    delete ui;
}

void InertialSettingsDlg::about_to_exit()
{
    if (io)
        io->unregister_receiver("InertialModule", message_receiver);
}

void InertialSettingsDlg::update_and_exec()
{
    exec();
}

void InertialSettingsDlg::onReceiveReopen()
{
    update_and_exec();
}

void InertialSettingsDlg::update_table()
{
}
