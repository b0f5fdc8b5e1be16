#ifndef CONTROLLERPROBE_H
#define CONTROLLERPROBE_H

#include <QByteArray>
#include <QString>

#include "simulator/ManualClock.h"
#include "simulator/SimulatedController.h"

// The devices of the default scenario, by the identities the controller
// gives them.
namespace DefaultDevices {
extern const QByteArray S1;   // on body 1, hand-eye calibrated: the hybrid body
extern const QByteArray S2;   // on body 2
extern const QByteArray S3;   // asleep, in tap mode
extern const QByteArray S4;   // on no body, low battery, no storage, at most 100 Hz
extern const QByteArray S5;   // on cable, on body 4
extern const QByteArray T1;   // channel 35, channels measured
extern const QByteArray T2;   // channel 55, not measured yet
}

// A simulated controller on a clock the test moves, asked the way the
// plug-in asks: a query's value comes back without the repeated path.
class ControllerProbe
{
public:
    explicit ControllerProbe(qint64 start_ms = 0);

    // The whole reply line.
    QByteArray ask(const QByteArray& line);
    // The value of "norvane get PATH", or the unexpected reply in <>.
    QByteArray value(const QByteArray& path);
    // The first number of that value; -999 when there is none.
    double number(const QByteArray& path);
    // Loads a scenario, reporting why not.
    bool load(const QByteArray& json);
    bool load_file(const QString& path);

    ManualClock clock;
    SimulatedController controller;
};

#endif // CONTROLLERPROBE_H
