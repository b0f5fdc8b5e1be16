#include "WallClock.h"

#include <cmath>

WallClock::WallClock(double speed)
    // A speed of zero or below would stop or reverse time; NaN would poison
    // every computation that depends on it.
    : factor(std::isfinite(speed) && speed > 0.0 ? speed : 1.0)
{
    elapsed.start();
}

qint64 WallClock::now_ms() const
{
    return qint64(std::floor(double(elapsed.elapsed()) * factor));
}

double WallClock::speed() const
{
    return factor;
}
