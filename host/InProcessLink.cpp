#include "InProcessLink.h"

#include <QFileInfo>
#include <QThread>

#include "simulator/SimClock.h"
#include "simulator/SimulatedController.h"

InProcessLink::InProcessLink(std::unique_ptr<SimClock> clock, QObject* parent)
    : ControllerLink(parent),
      sim_clock(std::move(clock)),
      controller(std::make_unique<SimulatedController>(sim_clock.get()))
{
    set_connected(true);
}

InProcessLink::~InProcessLink() = default;

bool InProcessLink::load_scenario_file(const QString& path, QString* error)
{
    if (!controller->load_scenario_file(path, error))
        return false;
    scenario = QFileInfo(path).fileName();
    return true;
}

QString InProcessLink::description() const
{
    return scenario.isEmpty() ? tr("simulated controller (default scenario)")
                              : tr("simulated controller (%1)").arg(scenario);
}

bool InProcessLink::write_request(const QByteArray& line, QDeadlineTimer, QString*)
{
    answer = controller->handle(line);
    answered = true;
    // A hang-up dropped the "connection"; this request made a new one.
    set_connected(true);
    return true;
}

void InProcessLink::wait(qint64 ms) const
{
    if (real_delays && ms > 0)
        QThread::msleep(static_cast<unsigned long>(ms));
}

ControllerLink::Result InProcessLink::read_reply(QByteArray* reply, QDeadlineTimer deadline, QString* error)
{
    if (!answered) {
        *error = tr("no request awaits a reply");
        return TransportFailure;
    }
    answered = false;
    // Already in real milliseconds: the simulator shortened long commands
    // by its clock's speed.
    const qint64 delay = qMax(0, answer.delay_ms);
    const qint64 left = qMax<qint64>(0, deadline.remainingTime());
    if (answer.silent || delay > left) {
        wait(left);
        *error = answer.silent ? tr("no reply within the time-out")
                               : tr("reply %1 ms late, beyond the time-out").arg(delay);
        return TimedOut;
    }
    wait(delay);
    if (answer.hang_up) {
        set_connected(false);
        *error = tr("the controller closed the connection in the middle of a reply");
        return TransportFailure;
    }
    // A reply is one line, as it would be on the wire.
    const int end = answer.line.indexOf('\n');
    *reply = end >= 0 ? answer.line.left(end) : answer.line;
    if (reply->endsWith('\r'))
        reply->chop(1);
    if (reply->size() > MaxLineLength) {
        *error = tr("reply longer than %1 bytes").arg(int(MaxLineLength));
        reply->clear();
        return ReplyTooLong;
    }
    return Success;
}

void InProcessLink::probe()
{
    // Asked and answered at once: a reply that would come too late, or not
    // at all, is simply no answer yet.
    const SimReply reply = controller->handle(ProbeLine);
    const bool answered = !reply.silent && !reply.hang_up && reply.delay_ms <= default_timeout()
                          && reply.line.startsWith("norvane ");
    if (answered)
        set_connected(true);
    probe_finished(answered, answered ? QString() : tr("no answer to \"%1\"").arg(QString::fromLatin1(ProbeLine)));
}
