#ifndef INERTIALCALIBRATIONDLG_H
#define INERTIALCALIBRATIONDLG_H

#include <QDialog>

class IOManager;
struct BackendVersions;
class Ui_InertialCalibrationDialog;

class InertialCalibrationDlg : public QDialog
{
    Q_OBJECT

public:
    InertialCalibrationDlg(IOManager* io, QWidget* parent, BackendVersions* versions);
    ~InertialCalibrationDlg() override;

    void about_to_exit();

public slots:
    void update_and_exec();

private:
    Ui_InertialCalibrationDialog* ui;
    IOManager* io;
    BackendVersions* backend_versions;
};

#endif // INERTIALCALIBRATIONDLG_H
