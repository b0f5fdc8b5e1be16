#ifndef SENSORTABLE_H
#define SENSORTABLE_H

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include "InertialSettingsDlg.h"

class IOManager;
class QComboBox;
class QTableWidgetItem;
class SensorIdentity;
class Ui_InertialSettingsDlg;

// The sensor table of the "Settings" page: transceivers in the controller's
// order, each followed by its sensors, then the sensors on cable; rebuilt
// from the controller and refreshed column by column.
class SensorTable
{
    // Its texts are the dialog's: they keep their translations.
    Q_DECLARE_TR_FUNCTIONS(InertialSettingsDlg)

public:
    SensorTable(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io);

    // The reply of a query that returned `result`, or `fallback` after
    // reporting `message` when it failed.
    QString checked_text(int result, const char* reply, const QString& fallback, const QString& message);
    // The length of a controller list, bounded to ListLimits; false, with 0, when the query failed and `failure` was reported.
    bool read_count(int* count, const char* path, const QString& failure);
    // The identity listed at `index` ("... d%.2d"); false when the query
    // failed and `failure` was reported. A short reply gives an invalid one.
    bool read_list_item(SensorIdentity* identity, const char* format, int index, const QString& failure);
    void refresh_all_sensor_rows();
    void setup_table();
    // Rebuilds the table from the controller.
    void update_table();
    bool add_dongles();
    // Fills a transceiver's row; false when the transceiver is absent.
    bool fill_dongle_row(int row, const QString& identity);
    void add_dummyDongleEntry();
    void delete_dummyDongleEntry_ifNotNeeded();
    bool add_sensors();
    int row_for_sensor(const QString& transceiver, const QString& identity);
    void fill_sensor_row(int row, const SensorIdentity& id, const QString& body, int index);
    QTableWidgetItem* ensure_item(int row, int column);
    // The row's bar in `column`, made on first use.
    template <class Bar>
    Bar* bar_in(int row, int column);
    // Writes to a cell only what differs from what it shows: every write
    // makes the view measure and paint again, and the periodic refresh
    // mostly finds nothing new.
    void write_text(QTableWidgetItem* item, const QString& text);
    void write_flags(QTableWidgetItem* item, Qt::ItemFlags flags);
    void write_icon(QTableWidgetItem* item, const QIcon& icon);
    // A cell widget put into `column` may need a wider column.
    void widened(int column);
    // Fits the content-sized columns that a refresh changed to their
    // contents again, once per refresh rather than once per cell.
    void fit_changed_columns();
    void remove_cell_widget(int row, int column);
    QString sensor_identity_of_row(int row) const;
    bool set_present_status_of_sensor(int row, QString identity);
    void update_four_columns(int row, QString identity, bool present);
    void update_firmware(int row, QString identity, bool present);
    void update_battery(int row, QString identity, bool present);
    void update_temperature(int row, QString identity, bool present);
    void update_sensor_calibration(int row, QString identity, bool );
    // 1: the sensor carries its hand-eye calibration, 0: it does not,
    // -1: the controller could not tell.
    int getSensorCalibrationStatus(const char* identity);
    bool checkBodyTypeIdExists(QString body_id);
    int getRowOfDummyDongle() const;
    int get_row_of_dongle(QString identity) const;
    QStringList get_sensorList_of_dongle(QString identity) const;
    QStringList get_onlyPresent_sensorList_of_dongle(QString identity);
    QStringList get_onlyNotPresent_sensorList_of_dongle(QString identity);
    QStringList sensors_of_dongle_by_presence(const QString& identity, bool present);
    QString getSensorSerial(int row) const;
    QString getSensorModel(int row) const;
    QString getSensorVendorModelSerial(int row) const;

    QStringList transceiver_identities;
    // What the last rebuild read as the number of transceivers; -1 unread.
    int transceiver_count = -1;
    QList<InertialSettingsDlg::sensor> sensor_list;
    bool dummyDongleNeeded = false;
    bool rebuilding = false;
    bool suggestion_missing = false;

private:
    void report(const QString& text) const;

    InertialSettingsDlg* d;
    Ui_InertialSettingsDlg* ui;
    IOManager* io;
    // Bit per column whose contents changed since the last fit.
    unsigned changed_columns = 0;
};

#endif // SENSORTABLE_H
