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
    // As a transport reports a connection made or lost.
    void simulate_connection(bool connected) { set_connected(connected); }
    // Requests that went out, in order.
    QList<QByteArray> written() const { return lines; }

    QString description() const override { return QStringLiteral("scripted controller"); }

protected:
    bool write_request(const QByteArray& line, QDeadlineTimer deadline, QString* error) override;
    Result read_reply(QByteArray* reply, QDeadlineTimer deadline, QString* error) override;

private:
    QHash<QByteArray, QByteArray> script;
    QList<QByteArray> lines;
    bool refusing = false;
};

#endif // SCRIPTEDLINK_H
