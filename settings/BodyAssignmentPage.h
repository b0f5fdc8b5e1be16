#ifndef BODYASSIGNMENTPAGE_H
#define BODYASSIGNMENTPAGE_H

#include <QCoreApplication>
#include <QIcon>
#include <QMap>
#include <QString>

class InertialSettingsDlg;
class IOManager;
class QTableWidgetItem;
class Ui_InertialSettingsDlg;
struct BackendVersions;

// The "Hybrid Bodies" page: which inertial sensor sits on which standard
// body, how many bodies there are and what they are called, and the doors to
// the filter and the calibrations of a body. Body r + 1 is row r; the
// controller calls it "standard b%02d".
class BodyAssignmentPage
{
    Q_DECLARE_TR_FUNCTIONS(BodyAssignmentPage)

public:
    // Columns of the body table; the last two are hidden and only read back.
    enum BodyColumn { BodyId, BodyName, BodyModel, BodyDeviceId, BodyCal, BodyFilter, BodySensor, BodyActive,
                      BodyColumnCount };
    // Columns of the sensor table.
    enum SensorColumn { SensorDeviceId, SensorVendor, SensorModel, SensorUsed, SensorIdentityColumn,
                        SensorColumnCount };
    // Calibration states of a body, kept as the user data of its "Cal." cell.
    enum CalibrationState { Calibrated, SensorUncalibrated, BodyUncalibrated };

    BodyAssignmentPage(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io,
                       BackendVersions* versions);

    void setup_tableWidget_bodies();
    void setup_tableWidget_sensors();
    void update_tableWidget_bodies();
    void update_tableWidget_sensors();
    void update_map_body_sensor();
    void storeMaxNumberOfBodies();
    void update_spinBox_numBodies();

    // Opening: everything on the page usable and read afresh.
    void open(bool inertial_available);
    // Everything off, for a controller that cannot assign sensors.
    void disable();
    // After another dialog was used: what it may have changed.
    void refresh_after_other_dialog();

    QString getBodyActive(int row) const;
    bool isSensorAssignedToBody(const QString& identity) const;
    QString getCurrentFilterPreset(int row);
    int getCalibrationStatus(const char* kind, int body);

    void activate_pushButton_select();
    void activate_pushButton_deselect();
    void activate_pushButton_filter();
    void activate_pushButton_hybridBodyCalibration();
    void activate_pushButton_inertialSensorCalibration();
    void activate_all_buttons();

    // The dialog's by-name slots end here.
    void on_pushButton_select_clicked();
    void on_pushButton_deselect_clicked();
    void on_spinBox_numBodies_valueChanged(int value);
    void on_tableWidget_bodies_itemChanged(QTableWidgetItem* item);
    void on_tableWidget_bodies_cellClicked(int row, int column);
    void on_pushButton_filter_clicked();
    void on_pushButton_calibration_clicked();
    void on_pushButton_hybridBodyCalibration_clicked();
    void on_pushButton_inertialSensorCalibration_clicked();

private:
    void report(const QString& text) const;
    // "standard b07" for row 6.
    static QByteArray body_id(int row);
    QString cell(int row, int column) const;
    int current_body_row() const;
    bool read_bool(const char* format, int body, const QString& failure, bool* value) const;
    QString read_text(const QString& failure, const char* format, int body) const;
    void open_filter(int row);
    // The sensor on body `id`, "none" for none; false when it was not told.
    bool read_assignment(const QByteArray& id, QString* sensor) const;
    // Both tables and the buttons again, with `body` kept current.
    void reread_after_assignment(int body);
    // The body row of the sensor chosen on the "Settings" page; -1 without.
    int body_row_of_settings_sensor() const;

    InertialSettingsDlg* dialog;
    Ui_InertialSettingsDlg* ui;
    IOManager* io;
    BackendVersions* versions;
    QMap<QString, QString> body_sensor;    // "b01" -> sensor line
    int max_bodies;
    int selected_row;
    bool inertial_available;
    bool filling;
    QIcon icon_used;
    QIcon icon_state[3];
};

#endif // BODYASSIGNMENTPAGE_H
