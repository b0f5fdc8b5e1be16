#ifndef SCRIPTEDLINK_H
#define SCRIPTEDLINK_H

#include <QHash>
#include <QList>

#include "host/ControllerLink.h"

// A ControllerLink whose transport answers from a script, in the test's own
// thread: for what the link does with lines and replies, not how they
// travel. Requests the script does not know are never answered (time-out).
class ScriptedLink : public ControllerLink
{
    Q_OBJECT

public:
    using ControllerLink::ControllerLink;

    void reply(const QByteArray& request, const QByteArray& reply) { script.insert(request, reply); }
    void refuse_writes(bool refuse) { refusing = refuse; }
    // Whether the controller answers the link's probe after an outage.
    void answer_probes(bool answer) { probes_answered = answer; }
    // As a transport reports a connection made or lost.
    void simulate_connection(bool connected) { set_connected(connected); }
    // Requests that went out, in order.
    QList<QByteArray> written() const { return lines; }
    int probe_count() const { return probes; }

    QString description() const override { return QStringLiteral("scripted controller"); }

protected:
    bool write_request(const QByteArray& line, QDeadlineTimer deadline, QString* error) override;
    Result read_reply(QByteArray* reply, QDeadlineTimer deadline, QString* error) override;
    void probe() override
    {
        ++probes;
        probe_finished(probes_answered, QStringLiteral("no answer"));
    }

private:
    QHash<QByteArray, QByteArray> script;
    QList<QByteArray> lines;
    bool refusing = false;
    bool probes_answered = true;
    int probes = 0;
};

#endif // SCRIPTEDLINK_H
