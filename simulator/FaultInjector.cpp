#include "FaultInjector.h"

void FaultInjector::set_faults(const QList<SimFault>& faults)
{
    list = faults;
}

const SimFault* FaultInjector::strike(const QByteArray& line, qint64 now_ms)
{
    for (SimFault& fault : list) {
        if (now_ms < fault.after_ms || !matches(fault, line))
            continue;
        const int sighting = fault.seen++;
        if (sighting < fault.skip)
            continue;
        if (fault.times >= 0 && sighting - fault.skip >= fault.times)
            continue;
        return &fault;
    }
    return nullptr;
}

void FaultInjector::apply(const SimFault& fault, SimReply* reply)
{
    switch (fault.kind) {
    case SimFault::Fail:
        reply->line = "norvane err " + QByteArray::number(fault.code) + " \"" + fault.text + '"';
        break;
    case SimFault::Late:
        reply->delay_ms = qMax(0, fault.delay_ms);
        break;
    case SimFault::Garbage:
        if (fault.length > 0)
            reply->line = QByteArray(fault.length, 'x');
        else if (!fault.reply.isEmpty())
            reply->line = fault.reply;
        else
            reply->line = "n#rv@ne s%t ~~ \x7f\x01 ?";
        break;
    case SimFault::Silent:
        reply->silent = true;
        break;
    case SimFault::HangUp:
        reply->hang_up = true;
        break;
    }
}

bool FaultInjector::matches(const SimFault& fault, const QByteArray& line)
{
    switch (fault.match) {
    case SimFault::Exact:
        return line == fault.pattern;
    case SimFault::Prefix:
        return line.startsWith(fault.pattern);
    case SimFault::Contains:
        return line.contains(fault.pattern);
    }
    return false;
}
