#ifndef TYPICALSYSTEM_H
#define TYPICALSYSTEM_H

#include <QByteArray>
#include <QList>
#include <QPair>

class FakeController;

// The controller that dialog tests start from, described once and scripted
// into a FakeController by install(): every query a dialog makes of it is
// answered. Two transceivers on channels 12 and 20; five sensors: S0002 and
// S0001 (on body 1) on the first, S0003 (on body 2, tap mode) and S0005
// (asleep, tap mode) on the second, C0004 on cable; six bodies of which 3, 5
// and 6 are neither calibrated nor carry a sensor; unlocked, inertial
// tracking available, no warm-up, frequency 100 Hz within 1 to 500; every
// body active without a filter, the tracking pulse from the cameras at 60 Hz. A test
// changes the description before install() or scripts single lines after it.
class TypicalSystem
{
public:
    struct Transceiver
    {
        QByteArray identity;
        QByteArray present = "yes";
        QByteArray channel = "12";
        QList<int> channels = {10, 12, 14, 16, 20};   // the ones it can use; each with activity 0.1
        QByteArray suggested = "14";                  // "0" before any scan
    };

    struct Sensor
    {
        QByteArray identity;
        QByteArray transceiver = "none";   // its transceiver's identity; "none" on cable
        QByteArray body = "none";
        QByteArray present = "yes";
        QByteArray mode = "'wm_radio'";
        QList<QByteArray> modes = {"'wm_tap'", "'wm_radio'"};
        QByteArray channel = "12";         // "usb" on cable
        QByteArray handeye = "none";       // battery 0.8, temperature 18 of 36 degrees
    };

    TypicalSystem();

    QList<QPair<QByteArray, QByteArray>> wakeup_modes = {
        {"'wm_usb'", "'Wake on USB'"}, {"'wm_tap'", "'Wake on tap'"}, {"'wm_radio'", "'Wake by radio'"}};
    QList<Transceiver> transceivers;
    QList<Sensor> sensors;
    QList<QByteArray> calibrated = {"yes", "yes", "no", "yes", "no", "no"};   // one per body
    int max_bodies = 8;

    // Scripts every line; scripting the same line later overrides it.
    void install(FakeController& fake) const;
};

#endif // TYPICALSYSTEM_H
