#ifndef HYBRIDBODYRESULTCALIBRATIONDLG_H
#define HYBRIDBODYRESULTCALIBRATIONDLG_H

#include <QByteArray>
#include <QDialog>
#include <QStringList>

class IOManager;
class Ui_hybridBodyResultCalibrationDialog;

// The outcome of a hybrid body calibration: how well the sensor's rotation
// against its body was found (residual, sensor delay) and, on demand, the
// rotation itself. OK has the controller adopt it, Cancel leaves the old one.
class HybridBodyResultCalibrationDlg : public QDialog
{
    Q_OBJECT

public:
    // `sensor` is vendor, model and serial of the calibrated sensor.
    HybridBodyResultCalibrationDlg(IOManager* io, QWidget* parent, QStringList sensor, const QString& name,
                                   const QString& vendor, const QString& model, double residual, double delay);
    ~HybridBodyResultCalibrationDlg() override;

    // 1 when the controller adopted the calibration, -1 when it refused,
    // 0 when the user discarded it.
    int update_and_execute();

private slots:
    void on_pushButton_ok_clicked();
    void on_pushButton_cancel_clicked();
    void on_pushButton_showDetails_clicked();

private:
    void setup_table();
    void update_table();
    void show_details(bool shown);

    Ui_hybridBodyResultCalibrationDialog* ui;
    IOManager* io;
    QStringList sensor;
    // The sensor's words as its queries carry them, the serial unquoted.
    QByteArray vendor_word;
    QByteArray model_word;
    QByteArray serial_word;
};

#endif // HYBRIDBODYRESULTCALIBRATIONDLG_H
