#ifndef INERTIALCALIBRATIONDLG_H
#define INERTIALCALIBRATIONDLG_H

#include <QDialog>
#include <QIcon>
#include <QTimer>

class IOManager;
struct BackendVersions;
class QTableWidgetItem;
class Ui_InertialCalibrationDialog;

// What the result dialog lists of an accepted sensor: the texts of its row.
struct CalibrationResult
{
    QString device_id;
    QString vendor;
    QString model;
    QString name;
};

// Gyroscope calibration of the sensors on active bodies: the user picks the
// sensors, the controller calibrates them and reports a residual per
// sensor, and the user keeps the new calibration of the sensors they choose.
class InertialCalibrationDlg : public QDialog
{
    Q_OBJECT

public:
    InertialCalibrationDlg(IOManager* io, QWidget* parent, BackendVersions* versions);
    ~InertialCalibrationDlg() override;

    void about_to_exit();

    bool is_config_locked();
    bool is_inertial_available();
    bool is_hybrid_body_available();
    bool is_warmup_active();
    double get_warmup_status();
    bool isSensorPresent(const QString& identity) const;
    QString get_sensorVendorID_from_row(int row) const;
    QString getBodyDesc(const QString& body_id) const;

public slots:
    int update_and_exec();

private slots:
    void on_pushButton_calibrate_clicked();
    void on_pushButton_cancel_clicked();
    void on_pushButton_apply_clicked();
    void on_pushButton_help_clicked();
    void on_pushButton_exit_clicked();
    void on_checkBox_calibrateAll_stateChanged(int state);
    void on_checkBox_acceptAll_stateChanged(int state);
    void on_tableWidget_itemChanged(QTableWidgetItem* item);
    void do_measure();
    void warmup_update();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Everything update_and_exec() decides before the dialog runs; the
    // end of a warm-up refreshes the open dialog with it.
    void refresh();
    void setup_table();
    void update_table();
    void enableDialog(bool enable, const QString& message);
    void set_residual(int row, double residual);
    void setAcceptDefaultStatus();
    void resetBackgroundTableWidgets();
    void set_calibrate_button_enabled_if_possible();
    void set_apply_button_enabled_if_possible();
    void set_all_sensor_to_no_gyro();
    void end_run(bool finished);
    bool mark(int row, bool calibrate);
    QTableWidgetItem* cell(int row, int column) const;
    bool checked(int row, int column) const;
    bool running() const;
    void report(const QString& text) const;

    Ui_InertialCalibrationDialog* ui;
    IOManager* io;
    QWidget* parent_widget;
    BackendVersions* versions;
    bool config_locked;
    bool inertial_available;
    bool hybrid_available;
    QIcon lock_icon;
    QIcon sensor_enabled_icon;
    QIcon sensor_disabled_icon;
    QTimer measure_timer;
    QTimer warmup_timer;
    bool calibrating;
    double max_progress;
    int selected_count;
    bool calibrate_all_guard;
    bool accept_all_guard;
    bool has_calibratable_body;
};

#endif // INERTIALCALIBRATIONDLG_H
