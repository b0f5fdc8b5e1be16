#ifndef SIMFAULT_H
#define SIMFAULT_H

#include <QByteArray>

// A fault a scenario injects into the answers of some request lines.
struct SimFault
{
    enum Kind {
        Fail,       // answer with an error, and do nothing
        Late,       // do it, answer after delay_ms
        Garbage,    // do it, answer with a garbled line
        Silent,     // do it, never answer
        HangUp,     // do it, send part of the answer and drop the connection
    };
    enum Match { Exact, Prefix, Contains };

    QByteArray pattern;         // compared with the whole request line
    Match match = Exact;
    Kind kind = Fail;
    int delay_ms = 3000;        // Late
    int code = 9;               // Fail
    QByteArray text = "injected fault";
    QByteArray reply;           // Garbage: this line instead of the default junk
    int length = 0;             // Garbage: a junk line this long instead
    int skip = 0;               // matching lines that pass untouched first
    int times = -1;             // how often it strikes; -1: always
    qint64 after_ms = 0;        // armed from this simulated time on

    // Run-time count of the lines it matched so far.
    int seen = 0;
};

#endif // SIMFAULT_H
