#ifndef INERTIALSETTINGSDLG_H
#define INERTIALSETTINGSDLG_H

#include <QDialog>

class AddInertialSensorDlg;
class IneritalMessageReceiver;
class IOManager;
struct BackendVersions;
class Ui_InertialSettingsDlg;

class InertialSettingsDlg : public QDialog
{
    Q_OBJECT

public:
    InertialSettingsDlg(IOManager* io, QWidget* parent, BackendVersions* versions);
    ~InertialSettingsDlg() override;

    void about_to_exit();
    // Rebuilds the sensor table from the controller; the add sensor dialog
    // asks for it after adding sensors.
    void update_table();

public slots:
    void update_and_exec();
    void onReceiveReopen();

private:
    Ui_InertialSettingsDlg* ui;
    IOManager* io;
    BackendVersions* backend_versions;
    QWidget* parent_widget;
    AddInertialSensorDlg* add_sensor_dlg;
    IneritalMessageReceiver* message_receiver;
};

#endif // INERTIALSETTINGSDLG_H
