#ifndef SIMCLOCK_H
#define SIMCLOCK_H

#include <QtGlobal>

// Where the simulated controller's time comes from. Tests advance a manual
// clock by hand; the daemon and the host run on the wall clock, optionally
// sped up, so a warm-up of minutes can be watched in seconds.
class SimClock
{
public:
    virtual ~SimClock() = default;
    // Milliseconds of simulated time since the clock was made.
    virtual qint64 now_ms() const = 0;
    // How many simulated milliseconds pass per real one; the controller
    // shortens its real answer delays by it.
    virtual double speed() const { return 1.0; }
};

#endif // SIMCLOCK_H
