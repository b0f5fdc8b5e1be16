#ifndef INERTIALCALIBRATIONHELPDLG_H
#define INERTIALCALIBRATIONHELPDLG_H

#include <QDialog>

class Ui_InertialCalibrationHelpDlgClass;

// How to prepare the sensors for a gyroscope calibration.
class InertialCalibrationHelpDlg : public QDialog
{
    Q_OBJECT

public:
    InertialCalibrationHelpDlg();
    ~InertialCalibrationHelpDlg() override;

private slots:
    void on_pushButton_exit_clicked();

private:
    Ui_InertialCalibrationHelpDlgClass* ui;
};

#endif // INERTIALCALIBRATIONHELPDLG_H
