#ifndef MANUALCLOCK_H
#define MANUALCLOCK_H

#include "SimClock.h"

// A clock that only moves when told to, so that tests can step a warm-up or
// a calibration through exactly the moments they want to look at.
class ManualClock : public SimClock
{
public:
    explicit ManualClock(qint64 start_ms = 0);

    qint64 now_ms() const override;

    // Moves the clock on; a negative step is ignored, time never runs back.
    void advance(qint64 ms);
    // Jumps to an absolute time; a time before the current one is ignored.
    void set(qint64 ms);

private:
    qint64 current_ms;
};

#endif // MANUALCLOCK_H
