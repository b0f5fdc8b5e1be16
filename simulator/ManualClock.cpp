#include "ManualClock.h"

ManualClock::ManualClock(qint64 start_ms)
    : current_ms(start_ms < 0 ? 0 : start_ms)
{
}

qint64 ManualClock::now_ms() const
{
    return current_ms;
}

void ManualClock::advance(qint64 ms)
{
    if (ms > 0)
        current_ms += ms;
}

void ManualClock::set(qint64 ms)
{
    if (ms > current_ms)
        current_ms = ms;
}
