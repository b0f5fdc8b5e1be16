#ifndef SIMREPLY_H
#define SIMREPLY_H

#include <QByteArray>

// The simulated controller's answer to one request line, with what an
// injected fault makes of it.
struct SimReply
{
    QByteArray line;      // the reply line, without the line feed
    int delay_ms = 0;     // answer this late (a fault)
    bool silent = false;  // never answer at all (a fault)
};

#endif // SIMREPLY_H
