#ifndef ADDINERTIALSENSORDLG_H
#define ADDINERTIALSENSORDLG_H

#include <QDialog>

class IOManager;
struct BackendVersions;
class Ui_AddSenorDialog;

class AddInertialSensorDlg : public QDialog
{
    Q_OBJECT

public:
    AddInertialSensorDlg(IOManager* io, QWidget* parent, BackendVersions* versions);
    ~AddInertialSensorDlg() override;

    void about_to_exit();

public slots:
    void update_and_exec();

private:
    Ui_AddSenorDialog* ui;
    IOManager* io;
    BackendVersions* backend_versions;
};

#endif // ADDINERTIALSENSORDLG_H
