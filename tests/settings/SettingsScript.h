#ifndef SETTINGSSCRIPT_H
#define SETTINGSSCRIPT_H

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>

#include <functional>

class FakeController;
class InertialSettingsDlg;

// A controller as the settings dialog sees it, scripted into a
// FakeController: transceivers, sensors and wake-up modes described once,
// every line an opening of the dialog sends answered from that description.
// Tests change the description (or script failures afterwards) to make the
// case they need.
class SettingsScript
{
public:
    struct Transceiver
    {
        QByteArray identity;        // "NRV Dongle 'T1001'"
        QByteArray present = "yes";
        QByteArray channel = "12";
        QList<int> available = {10, 12, 14, 16, 20};  // channels it can use
        QByteArray suggested = "14";                   // "0" before any scan
        QByteArray activity = "0.1";                   // of every channel unless listed below
        QMap<int, QByteArray> activities;
    };

    struct Sensor
    {
        QByteArray identity;               // "NRV IMU9 'S0001'"
        QByteArray transceiver = "none";   // its transceiver's identity, or "none" on cable
        QByteArray body = "none";          // "standard b01", or "none"
        QByteArray present = "yes";
        QByteArray mode = "'wm_radio'";
        QList<QByteArray> modes = {"'wm_tap'", "'wm_radio'"};
        QByteArray channel = "12";         // "usb" on cable
        QByteArray temperature = "18.0 36.0";   // now and when warm
        QByteArray battery = "0.8";
        QByteArray frequency = "100.0";
        QByteArray handeye = "none";
        QByteArray version = "'2.4.1'";
    };

    // Two transceivers on channels 12 and 20 and five sensors: two on the
    // first (one on body 1), two on the second (one on body 2, one asleep
    // in tap mode) and one on cable.
    static SettingsScript typical();

    QByteArray config_changeable = "yes";
    QByteArray available = "yes";
    QByteArray warmup = "no";
    QByteArray frequency_limits = "1.0 500.0";
    QByteArray frequency = "100.0";
    int bodies = 6;
    QList<QPair<QByteArray, QByteArray>> wakeup_modes = {
        {"'wm_usb'", "'Wake on USB'"}, {"'wm_tap'", "'Wake on tap'"}, {"'wm_radio'", "'Wake by radio'"}};
    QList<Transceiver> transceivers;
    QList<Sensor> sensors;

    // Scripts every line; later scripting of the same line overrides it.
    void install(FakeController& fake) const;

    // Runs `inside` while the dialog is open, then leaves by the exit button.
    static void open(InertialSettingsDlg& dialog, const std::function<void()>& inside = {});
};

#endif // SETTINGSSCRIPT_H
