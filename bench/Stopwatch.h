#ifndef STOPWATCH_H
#define STOPWATCH_H

#include <QtGlobal>

class IOManager;

// What one action cost: the requests it sent, the time it took and the CPU
// time the calling (GUI) thread spent on it. Thread CPU time is what a
// loaded machine disturbs least.
struct Sample
{
    long round_trips = 0;
    qint64 wall_ns = 0;
    qint64 cpu_ns = 0;
};

class Stopwatch
{
public:
    // Round trips are read from `io` when given.
    explicit Stopwatch(const IOManager* io = nullptr) : io(io) {}

    void start();
    Sample elapsed() const;

    static qint64 wall_now_ns();
    static qint64 thread_cpu_now_ns();

private:
    const IOManager* io;
    long trips_at_start = 0;
    qint64 wall_at_start = 0;
    qint64 cpu_at_start = 0;
};

#endif // STOPWATCH_H
