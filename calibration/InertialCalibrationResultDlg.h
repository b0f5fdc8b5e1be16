#ifndef INERTIALCALIBRATIONRESULTDLG_H
#define INERTIALCALIBRATIONRESULTDLG_H

#include <QDialog>

class Ui_InertialCalibrationResultDlgClass;

// Lists the sensors whose new gyroscope calibration the controller kept.
class InertialCalibrationResultDlg : public QDialog
{
    Q_OBJECT

public:
    explicit InertialCalibrationResultDlg(QWidget* parent);
    ~InertialCalibrationResultDlg() override;

    void appendSensor(const QString& device_id, const QString& vendor, const QString& model,
                      const QString& name);

private slots:
    void on_pushButton_exit_clicked();

private:
    void setupTable();

    Ui_InertialCalibrationResultDlgClass* ui;
};

#endif // INERTIALCALIBRATIONRESULTDLG_H
