#include "Stopwatch.h"

#include <ctime>

#include "module/IOManager.h"

namespace {

qint64 read_clock(clockid_t id)
{
    timespec now{};
    clock_gettime(id, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

} // namespace

qint64 Stopwatch::wall_now_ns()
{
    return read_clock(CLOCK_MONOTONIC);
}

qint64 Stopwatch::thread_cpu_now_ns()
{
    return read_clock(CLOCK_THREAD_CPUTIME_ID);
}

void Stopwatch::start()
{
    trips_at_start = io ? io->round_trips() : 0;
    cpu_at_start = thread_cpu_now_ns();
    wall_at_start = wall_now_ns();
}

Sample Stopwatch::elapsed() const
{
    Sample sample;
    sample.wall_ns = wall_now_ns() - wall_at_start;
    sample.cpu_ns = thread_cpu_now_ns() - cpu_at_start;
    sample.round_trips = io ? io->round_trips() - trips_at_start : 0;
    return sample;
}
