#include "ScriptedLink.h"

bool ScriptedLink::write_request(const QByteArray& line, QDeadlineTimer, QString* error)
{
    if (refusing) {
        *error = QStringLiteral("transport refused");
        return false;
    }
    lines << line;
    return true;
}

ControllerLink::Result ScriptedLink::read_reply(QByteArray* reply, QDeadlineTimer, QString* error)
{
    auto it = script.constFind(lines.last());
    if (it == script.constEnd()) {
        *error = QStringLiteral("no reply");
        return TimedOut;
    }
    *reply = it.value();
    return Success;
}
