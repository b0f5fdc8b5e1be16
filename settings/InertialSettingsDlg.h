#ifndef INERTIALSETTINGSDLG_H
#define INERTIALSETTINGSDLG_H

#include <QDialog>
#include <QIcon>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class AddInertialSensorDlg;
class BodyAssignmentPage;
class QModelIndex;
class TrackingPulsePage;
class ChannelComboBox;
class IneritalMessageReceiver;
class IOManager;
class QComboBox;
class QMessageBox;
class QTableWidgetItem;
class RadioChannels;
class SensorTable;
class WakeupModes;
class QTimer;
class SensorIdentity;
struct BackendVersions;
class Ui_InertialSettingsDlg;

// The module's main dialog: transceivers and sensors, their wake-up modes
// and the output frequency on the "Settings" page, body assignment and the
// tracking pulse on the two further pages. Everything it shows is read from
// the controller when it opens and refreshed by its timers while it is open.
class InertialSettingsDlg : public QDialog
{
    Q_OBJECT

public:
    // Columns of the sensor table.
    enum Column {
        ColDeviceId,
        ColVendor,
        ColModel,
        ColName,
        ColVersion,
        ColChannel,
        ColWakeupMode,
        ColBattery,
        ColTemperature,
        ColFrequency,
        ColCalibration,
        ColDelete,
        ColumnCount
    };

    // Item data by which rows of the sensor table are recognised; other
    // pages and dialogs find rows through them, so they must not move.
    enum Role {
        DongleSensorsRole = Qt::UserRole,       // dongle, column 0: identities of its sensors
        SensorIdentityRole = Qt::UserRole + 1,  // sensor, column 0: vendor, model, serial
        DongleKeyRole = Qt::UserRole + 2,       // dongle, column 0: "d01", "d02", ...
        BodyIdRole = Qt::UserRole,              // sensor, column 3: body id or "none"
        DongleIdentityRole = Qt::UserRole,      // dongle, column 2: vendor, model, serial
        WakeupModeRole = Qt::UserRole           // wake-up combo entry: identity, blank, mode id
    };

    // One sensor as the last rebuild of the table read it.
    struct sensor
    {
        QString key;     // "d01": the index the controller listed it under
        QString vendor;
        QString model;
        QString serial;
    };

    InertialSettingsDlg(IOManager* io, QWidget* parent, BackendVersions* versions);
    ~InertialSettingsDlg() override;

    void about_to_exit();
    void stop_all_timers();

    bool is_config_locked();
    bool is_inertial_available();
    bool is_warmup_active();
    bool isTransceiverPresent();
    bool isSensorPresent(const QString& identity);

    void wait_cursor_active(bool active);

    // Two parts of the "Settings" page, for whoever drives the dialog; the
    // add sensor dialog and the channel combos need only the two calls below.
    SensorTable* table() const { return sensor_table; }
    RadioChannels* channels() const { return radio_channels; }

    // Rebuilds the sensor table from the controller.
    void update_table();
    // The current channel of every transceiver row, as decimal text.
    void getChannelsOfDongles(QStringList& out) const;

    // Warm-up and deletion.
    int start_warmup(bool on);
    void delete_sensor(int row);
    void deleteAssignmentIfSensorIsAlreadyAssigned(const char* identity);

    // The sensor table must be read again before the "Settings" page shows.
    void mark_table_stale() { table_stale = true; }
    // Vendor, model and serial of the sensor chosen on the "Settings" page.
    QStringList sensor_fields_of_settings_row() const;

public slots:
    int update_and_exec();
    void onReceiveReopen();

    // Timer slots.
    void update_buttons();
    void update_sensors_not_present();
    void set_temperature_and_battery_of_all_sensor();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void on_pushButton_exit_clicked();
    void on_pushButton_addSensor_clicked();
    void on_toolBox_currentChanged(int index);
    void on_comboBox_mode_activated(const QString& text);
    void on_doubleSpinBox_frequency_valueChanged(double value);
    void on_pushButton_scanAvailableChannels_clicked();
    void on_tableWidget_cellClicked(int row, int column);
    void on_tableWidget_itemChanged(QTableWidgetItem* item);
    void on_pushButton_warmup_clicked();
    void transceiver_channel_chosen(const QString& transceiver, int channel);
    void wakeup_mode_active(const QString& text);
    void editor_closed();

    // "Hybrid Bodies" page.
    void on_pushButton_select_clicked();
    void on_pushButton_deselect_clicked();
    void on_spinBox_numBodies_valueChanged(int value);
    void on_tableWidget_bodies_itemChanged(QTableWidgetItem* item);
    void on_tableWidget_bodies_cellClicked(int row, int column);
    void on_tableWidget_bodies_clicked(const QModelIndex& index);
    void on_tableWidget_sensors_itemSelectionChanged();
    void on_pushButton_filter_clicked();
    void on_pushButton_calibration_clicked();
    void on_pushButton_hybridBodyCalibration_clicked();
    void on_pushButton_inertialSensorCalibration_clicked();

    // "Tracking Frequency" page.
    void on_radioButton_cameraSynchronous_toggled(bool checked);
    void on_radioButton_inertialSensor_toggled(bool checked);
    void on_radioButton_frequency_toggled(bool checked);
    void on_comboBox_inertialSensor_currentIndexChanged(int index);
    void on_doubleSpinBox_frequency_2_valueChanged(double value);

private:
    // Frame.
    void initMessageReceiver();
    int run_modal();
    int run_without_body_pages();
    void disable_sensor_controls();
    void disable_body_page();
    void enableInertialControls();
    void set_warmup_lock(bool locked);
    void end_warmup_display();
    void show_error(const QString& text);
    void report(const QString& text);

    // The page's parts work on the dialog's form and state as the dialog does.
    friend class RadioChannels;
    friend class SensorTable;
    friend class WakeupModes;

    Ui_InertialSettingsDlg* ui;
    IOManager* io;
    BackendVersions* backend_versions;
    QWidget* parent_widget;
    QIcon own_window_icon;
    bool config_locked;

    QIcon icon_delete;
    QIcon icon_lock;
    QIcon icon_warning;
    QIcon icon_inertial_en;
    QIcon icon_inertial_dis;
    QIcon icon_green;
    QIcon icon_yellow;
    QIcon icon_red;

    AddInertialSensorDlg* add_sensor_dlg;
    QTimer* sensor_data_timer;
    QTimer* not_present_timer;
    QTimer* button_timer;
    QTimer* first_refresh_timer;

    bool transceiver_present;
    bool inertial_available;
    bool table_stale;
    bool cell_editing;
    IneritalMessageReceiver* message_receiver;
    BodyAssignmentPage* bodies;
    TrackingPulsePage* pulse;
    bool receiver_registered;

    bool scan_allowed;
    bool name_editing;
    QMessageBox* retry_box;

    SensorTable* sensor_table;
    RadioChannels* radio_channels;
    WakeupModes* wakeup_modes;
};

#endif // INERTIALSETTINGSDLG_H
