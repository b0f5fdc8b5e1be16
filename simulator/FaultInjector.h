#ifndef FAULTINJECTOR_H
#define FAULTINJECTOR_H

#include <QByteArray>
#include <QList>

#include "SimFault.h"
#include "SimReply.h"

// Decides which scenario fault, if any, strikes a request line, and what it
// does to the reply.
class FaultInjector
{
public:
    void set_faults(const QList<SimFault>& faults);
    const QList<SimFault>& faults() const { return list; }

    // The fault that strikes this line now (null: none). Each call counts
    // as one sighting of the line, so call it once per request.
    const SimFault* strike(const QByteArray& line, qint64 now_ms);
    // The reply as the fault leaves it.
    static void apply(const SimFault& fault, SimReply* reply);

private:
    static bool matches(const SimFault& fault, const QByteArray& line);

    QList<SimFault> list;
};

#endif // FAULTINJECTOR_H
