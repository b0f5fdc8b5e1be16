#ifndef INPROCESSLINK_H
#define INPROCESSLINK_H

#include <memory>

#include "ControllerLink.h"
#include "simulator/SimReply.h"

class SimClock;
class SimulatedController;

// The simulated controller inside the host's own process: the default when
// no controller address is given. Lines go through exactly the same
// ControllerLink as over TCP, so the plug-in sees the same formatting,
// capacity rule and failures. A late answer takes that long unless real
// delays are switched off; one later than the time-out, or none at all, is a
// time-out; a hang-up fails like a connection lost in the middle of a reply.
class InProcessLink : public ControllerLink
{
    Q_OBJECT

public:
    // Takes the clock; the controller starts on the default scenario.
    explicit InProcessLink(std::unique_ptr<SimClock> clock, QObject* parent = nullptr);
    ~InProcessLink() override;

    SimulatedController* simulator() const { return controller.get(); }
    SimClock* clock() const { return sim_clock.get(); }
    // Replaces the simulator's state by a scenario file; names it in
    // description().
    bool load_scenario_file(const QString& path, QString* error);
    // Tests on a manual clock switch waiting off: late answers then come at
    // once, and ones beyond the time-out fail without waiting for it.
    void set_real_delays(bool on) { real_delays = on; }

    QString description() const override;

protected:
    bool write_request(const QByteArray& line, QDeadlineTimer deadline, QString* error) override;
    Result read_reply(QByteArray* reply, QDeadlineTimer deadline, QString* error) override;
    void probe() override;

private:
    void wait(qint64 ms) const;

    std::unique_ptr<SimClock> sim_clock;
    std::unique_ptr<SimulatedController> controller;
    SimReply answer;
    bool answered = false;
    bool real_delays = true;
    QString scenario;
};

#endif // INPROCESSLINK_H
