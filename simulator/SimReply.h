#ifndef SIMREPLY_H
#define SIMREPLY_H

#include <QByteArray>

// The simulated controller's answer to one request line, with what an
// injected fault makes of it.
struct SimReply
{
    QByteArray line;      // the reply line, without the line feed
    int delay_ms = 0;     // answer this late (a long command, or a fault)
    bool silent = false;  // never answer at all (a fault)
    bool hang_up = false; // send the first half of the line, then drop the link (a fault)
};

#endif // SIMREPLY_H
