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

    // Rebuilds the sensor table from the controller.
    void update_table();

    bool is_config_locked();
    bool is_inertial_available();
    bool is_warmup_active();
    bool isTransceiverPresent();
    bool isSensorPresent(const QString& identity);

    void wait_cursor_active(bool active);

    // Rows of the sensor table.
    int getRowOfDummyDongle() const;
    int get_row_of_dongle(QString identity) const;
    QStringList get_sensorList_of_dongle(QString identity) const;
    QStringList get_onlyPresent_sensorList_of_dongle(QString identity);
    QStringList get_onlyNotPresent_sensorList_of_dongle(QString identity);
    QString getSensorSerial(int row) const;
    QString getSensorModel(int row) const;
    QString getSensorVendorModelSerial(int row) const;

    // 1: the sensor carries its hand-eye calibration, 0: it does not,
    // -1: the controller could not tell.
    int getSensorCalibrationStatus(const char* identity);
    bool checkBodyTypeIdExists(QString body_id);

    // 0 on success, -1 when the mode was not set, -2 when the sleep time-out
    // that the mode needs was not set.
    int set_sensor_wakeup_mode(const QString& identity, QString mode);

    // Radio channels. Moves every sensor of the transceiver, then the
    // transceiver itself; sensors left behind are offered for retry.
    void change_channel_of_dongle(QString transceiver, int channel);
    // The current channel of every transceiver row, as decimal text.
    void getChannelsOfDongles(QStringList& out) const;
    // What a sensor's channel combo offers: the transceivers' channels.
    void get_channels(QStringList& out, const QString& sensor) const;
    int getSensorChannel(const QString& sensor);
    // Reads the radio activity of every transceiver's channels into the
    // busy-channel map.
    void update_scan_status();
    void scan_transciever_radio_channel_activity(QString transceiver);
    void set_progressBar_scanAvailableChannels();
    // Busy channels of a transceiver as the last scan found them.
    QList<int> busy_channels(const QString& transceiver) const { return marked_channels.value(transceiver); }

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
    void on_tableWidget_cellClicked(int row, int column);
    void on_tableWidget_itemChanged(QTableWidgetItem* item);
    void on_pushButton_scanAvailableChannels_clicked();
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
    // The reply of a query that returned `result`, or `fallback` after
    // reporting `message` when it failed.
    QString checked_text(int result, const char* reply, const QString& fallback, const QString& message);
    // The length of a controller list, bounded to what two-digit indices
    // reach; false, with 0, when the query failed and `failure` was reported.
    bool read_count(int* count, const char* path, const QString& failure);
    // The identity listed at `index` ("... d%.2d"); false when the query
    // failed and `failure` was reported. A short reply gives an invalid one.
    bool read_list_item(SensorIdentity* identity, const char* format, int index, const QString& failure);

    // Sensor table.
    void setup_table();
    bool add_dongles();
    void add_dummyDongleEntry();
    bool add_sensors();
    void delete_dummyDongleEntry_ifNotNeeded();
    // Fills a transceiver's row; false when the transceiver is absent.
    bool fill_dongle_row(int row, const QString& identity);
    bool fill_dongle_channel(int row, const QString& identity);
    // The channels a transceiver (1-based `number`) can use, read once per
    // opening; `failure` is reported when their count cannot be read.
    QList<int> available_channels_of(int number, const QString& identity, const QString& failure);
    // Reads one transceiver's channel activity into the busy-channel map.
    void measure_activity(const QString& transceiver, const QList<int>& channels);
    // Moves one sensor; false when it is asleep or did not follow.
    bool move_sensor(const QString& sensor, int channel);
    QString unreachable_text(const QStringList& sensors);
    bool ask_retry(const QString& text);
    int row_for_sensor(const QString& transceiver, const QString& identity);
    void fill_sensor_row(int row, const SensorIdentity& id, const QString& body, int index);
    QString sensor_identity_of_row(int row) const;
    QTableWidgetItem* ensure_item(int row, int column);
    void remove_cell_widget(int row, int column);
    void refresh_all_sensor_rows();
    bool set_present_status_of_sensor(int row, QString identity);
    void update_four_columns(int row, QString identity, bool present);
    void update_firmware(int row, QString identity, bool present);
    void update_sensor_channel(int row, QString identity, bool present);
    void update_battery(int row, QString identity, bool present);
    void update_temperature(int row, QString identity, bool present);
    void update_sensor_calibration(int row, QString identity, bool present);
    QStringList sensors_of_dongle_by_presence(const QString& identity, bool present);

    // Wake-up modes and frequency.
    void get_all_wakeup_modes();
    void get_available_wakeup_modes_of_sensor(QString identity, QComboBox* combo);
    QString get_wakeup_modeID_of_sensor(QString identity);
    void update_available_wakeup_modes();
    void update_wakeup_combo(int row, QString identity, bool present);
    void select_wakeup_entry(QComboBox* combo, const QString& identity, const QString& mode);
    void set_all_sensorWakeupModes_ComboBoxes();
    void set_comboBox_available_modes();
    void select_page_mode();
    void update_wakeup_and_frequency();
    void set_frequency_limit();
    void set_frequency_range(double minimum, double maximum);
    void update_frequency(int row, QString identity, bool present);

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
    double frequency_minimum;
    double frequency_maximum;
    bool frequency_react;
    IneritalMessageReceiver* message_receiver;
    BodyAssignmentPage* bodies;
    TrackingPulsePage* pulse;
    bool receiver_registered;

    QStringList transceiver_identities;
    QList<sensor> sensor_list;
    bool dummyDongleNeeded;
    QMap<QString, QList<int>> marked_channels;         // transceiver -> busy channels
    QMap<QString, QList<int>> known_available_channels; // transceiver -> usable channels
    bool scanNeeded;
    bool scan_allowed;
    bool rebuilding;
    bool name_editing;
    bool suggestion_missing;
    QMessageBox* retry_box;

    int number_of_wakeup_modes;
    QMap<QString, QString> all_wakeup_modes;          // mode id -> description
    QMap<QString, QString> wakeup_mode_of_sensor;     // identity -> active mode id
    QMap<QString, QStringList> sensors_of_wakeup_mode; // mode id -> identities that offer it
};

#endif // INERTIALSETTINGSDLG_H
