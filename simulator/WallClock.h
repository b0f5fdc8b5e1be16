#ifndef WALLCLOCK_H
#define WALLCLOCK_H

#include <QElapsedTimer>

#include "SimClock.h"

// Real time since construction, multiplied by a speed factor: at 60 a
// three-minute warm-up is over in three seconds.
class WallClock : public SimClock
{
public:
    explicit WallClock(double speed = 1.0);

    qint64 now_ms() const override;
    double speed() const override;

private:
    QElapsedTimer elapsed;
    double factor;
};

#endif // WALLCLOCK_H
