#ifndef HYBRIDBODYCALIBRATIONDLG_H
#define HYBRIDBODYCALIBRATIONDLG_H

#include <QDialog>

#include "module/MessageReceiver.h"

class IOManager;
struct BackendVersions;
class Ui_HybridBodyDialog;

class HybridBodyCalibrationDlg : public QDialog, public MessageReceiver
{
    Q_OBJECT

public:
    HybridBodyCalibrationDlg(IOManager* io, QWidget* parent, BackendVersions* versions);
    ~HybridBodyCalibrationDlg() override;

    void about_to_exit();
    int transmit_message(int type, const char* sender, const char* text) override;

public slots:
    void update_and_exec();

private:
    Ui_HybridBodyDialog* ui;
    IOManager* io;
    BackendVersions* backend_versions;
};

#endif // HYBRIDBODYCALIBRATIONDLG_H
