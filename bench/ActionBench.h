#ifndef ACTIONBENCH_H
#define ACTIONBENCH_H

#include <QString>

#include <memory>

#include "Stopwatch.h"

class BenchReport;
class ControllerLink;
class MainWindow;
class QObject;
class QWidget;
class SimDaemon;

// One pass over what a user does, on a fresh controller: starts the host
// with the real plug-in, polls the status bar, opens the settings dialog,
// ticks each of its timers, moves a transceiver to another channel, scans
// for sensors in the add-sensor dialog and adds them, starts the warm-up
// and ticks the timers that brings, opens both
// calibration dialogs and ticks their polls, and finally times single
// exchanges. Every action is followed by the event loop's deferred work
// (repaints, queued calls), which belongs to its cost.
class ActionBench
{
public:
    struct Setup
    {
        QString plugin_file;
        QString simd_file;
        int sensors = 1;
        bool tcp = false;
        double speed = 20.0;
        int exchanges_per_batch = 200;
        int batches = 5;
    };

    ActionBench(const Setup& setup, BenchReport* report);
    ~ActionBench();

    // False and *error when an action could not be carried out.
    bool run(QString* error);

    QString link_name() const;

private:
    bool start_link(QString* error);
    bool start_host(QString* error);
    void in_settings(QWidget* dialog);
    void change_channel(QWidget* dialog);
    void add_sensors(QWidget* dialog);
    void in_add_sensor(QWidget* dialog);
    void open_calibration(const QString& action_text, const QString& name);
    void tick_timers(const QString& prefix, QObject* owner);
    // With the traffic log out of sight, as the window starts, and in front.
    bool time_exchanges(QString* error);
    bool time_exchange_batches(const QString& suffix, QString* error);

    void begin();
    void record(const QString& action);
    void fail(const QString& why);
    static void drain();

    Setup setup;
    BenchReport* report;
    std::unique_ptr<SimDaemon> daemon;
    std::unique_ptr<ControllerLink> link;
    std::unique_ptr<MainWindow> window;
    Stopwatch watch;
    QString transceiver;
    QString problem;
};

#endif // ACTIONBENCH_H
