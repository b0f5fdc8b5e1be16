#ifndef WAKEUPMODES_H
#define WAKEUPMODES_H

#include <QCoreApplication>
#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>
#include "InertialSettingsDlg.h"

class IOManager;
class QComboBox;
class QTableWidgetItem;
class SensorIdentity;
class Ui_InertialSettingsDlg;

// Wake-up modes and the output frequency of the "Settings" page: the modes
// every sensor offers and runs, the page-level choice for all sensors at
// once, and the frequency with its limits.
class WakeupModes
{
    // Its texts are the dialog's: they keep their translations.
    Q_DECLARE_TR_FUNCTIONS(InertialSettingsDlg)

public:
    WakeupModes(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io);

    void get_all_wakeup_modes();
    void get_available_wakeup_modes_of_sensor(QString identity, QComboBox* combo);
    QString get_wakeup_modeID_of_sensor(QString identity);
    void update_available_wakeup_modes();
    void update_wakeup_combo(int row, QString identity, bool present);
    void select_wakeup_entry(QComboBox* combo, const QString& identity, const QString& mode);
    void set_all_sensorWakeupModes_ComboBoxes();
    void set_comboBox_available_modes();
    void select_page_mode();
    // `combo` is the sensor's own, on which the user chose `text`.
    void wakeup_mode_chosen(QComboBox* combo, const QString& text);
    void page_mode_chosen(const QString& text);
    // 0 on success, -1 when the mode was not set, -2 when the sleep time-out
    // that the mode needs was not set.
    int set_sensor_wakeup_mode(const QString& identity, QString mode);
    void update_wakeup_and_frequency();
    void set_frequency_limit();
    void set_frequency_range(double minimum, double maximum);
    void frequency_chosen(double value);
    void update_frequency(int row, QString identity, bool present);
    // True when the last update_wakeup_and_frequency() took the limits
    // from the controller; set_frequency_limit() would only ask again.
    bool limits_read = false;

    int number_of_wakeup_modes = 0;
    QMap<QString, QString> all_wakeup_modes;           // mode id -> description
    QMap<QString, QString> wakeup_mode_of_sensor;      // identity -> active mode id
    QMap<QString, QStringList> sensors_of_wakeup_mode; // mode id -> identities that offer it
    double frequency_minimum = 1.0;
    double frequency_maximum = 1000.0;
    bool frequency_react = false;

private:
    void report(const QString& text) const;
    // Asks "inertial sensor_wakeup_mode IDENTITY" or, with a mode,
    // "inertial sensor_wakeup_mode_available IDENTITY MODE", unless the
    // controller answered it during this action: rebuilding the table asks
    // every sensor which modes it offers and runs, and the page's mode combo
    // needs the same moments later. Answers are forgotten once control is
    // back in the event loop, and whenever a mode is set.
    int recalled(QString* answer, const QString& identity, const QString& mode = QString());

    QHash<QString, QString> answers;

    InertialSettingsDlg* d;
    Ui_InertialSettingsDlg* ui;
    IOManager* io;
};

#endif // WAKEUPMODES_H
