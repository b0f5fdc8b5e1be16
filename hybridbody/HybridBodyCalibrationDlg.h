#ifndef HYBRIDBODYCALIBRATIONDLG_H
#define HYBRIDBODYCALIBRATIONDLG_H

#include <QDialog>
#include <QIcon>
#include <QList>
#include <QString>

#include "module/MessageReceiver.h"

class IOManager;
class QKeyEvent;
struct BackendVersions;
class Ui_HybridBodyDialog;

// Calibrates a hybrid body: finds the rotation between an optical body and
// the inertial sensor mounted on it while the user moves the body. The
// controller runs the calibration; this dialog picks the body, prepares
// tracking and the sensor's and body's flags, shows the result for the user
// to accept, and puts the controller back.
//
// Other modules open it by a message to "HybridBodyCalibration" naming a
// body ("OpenHybridBodyCalibration standard 2"), and get "reopen" back when
// the user is done.
class HybridBodyCalibrationDlg : public QDialog, public MessageReceiver
{
    Q_OBJECT

public:
    // One body of the combo box and the sensor on it.
    struct SensorInfo
    {
        QString body_id;        // "standard b02"
        QString vendor;
        QString vendor_desc;
        QString model;
        QString model_desc;
        QString serial;         // without quotes
        bool active = false;
        bool calibrated = false;

        // The sensor as the controller names it.
        QString vendorModelSerial() const;
    };

    HybridBodyCalibrationDlg(IOManager* io, QWidget* parent, BackendVersions* versions);
    ~HybridBodyCalibrationDlg() override;

    // Before the host goes away: stops the animation and the messages.
    void about_to_exit();
    int transmit_message(int type, const char* sender, const char* text) override;

    bool is_config_locked();
    bool is_inertial_available();
    bool is_tracking_available();
    bool is_hybrid_body_available();
    // Milliseconds; 0 where the controller cannot tell.
    double getSensorDelay(const QString& identity);

public slots:
    int update_and_exec();
    // Opens the dialog for `requester` with `body` selected. The body is its
    // kind and number, apart by blanks or '|' ("standard 2",
    // "standard b02", "standard|2|full").
    void onReceiveOpenHybridBodyCalibrationDialog(QString requester, QString body);
    void reject() override;

signals:
    void openHybridBodyCalibrationDialog(QString requester, QString body);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void on_comboBox_body_activated(int index);
    void on_pushButton_calibrate_clicked();
    void on_pushButton_help_clicked();

private:
    void update_comboBox(bool fill);
    void enableDialog(bool enable, const QString& message);
    bool is_room_calibrated();
    void select_requested_body();
    void try_start_tracking();
    void try_stop_tracking();
    void report(const QString& text);

    Ui_HybridBodyDialog* ui;
    IOManager* io;
    BackendVersions* versions;
    bool receiver_registered;
    bool config_locked;
    // Usable for calibrating: neither refused nor locked at the last opening.
    bool dialog_enabled;
    QString requester;
    QString requested_body;
    QIcon lock_icon;
    QIcon sensor_enabled_icon;
    QList<SensorInfo> sensors;
};

#endif // HYBRIDBODYCALIBRATIONDLG_H
