#ifndef SIMRESULT_H
#define SIMRESULT_H

#include <QByteArray>

// What the model makes of one request before it becomes a reply line: a
// value (queries), a plain acknowledgement (settings and commands) or an
// error with the controller's code and text.
struct SimResult
{
    // Error codes of the reply "norvane err N \"TEXT\"" (docs/protocol.md).
    enum Code {
        UnknownPath = 1,   // no such parameter or command (or too new for this controller)
        Malformed = 2,     // missing, surplus or unreadable argument
        OutOfRange = 3,    // a number outside its limits
        Locked = 4,        // the configuration may not be changed
        NoSuchItem = 5,    // unknown sensor, transceiver, body, type or index
        Unreachable = 6,   // the device is asleep, unplugged or on another channel
        WrongState = 7,    // not now: nothing to accept, a calibration runs, ...
        NotAvailable = 8,  // the feature is switched off on this controller
        Injected = 9,      // a fault of the scenario
    };

    bool ok = true;
    QByteArray value;     // the value of a query
    int code = 0;
    QByteArray text;      // the error text
    int delay_ms = 0;     // real time the answer takes (long commands)

    static SimResult answer(const QByteArray& value)
    {
        SimResult result;
        result.value = value;
        return result;
    }
    static SimResult done() { return SimResult(); }
    static SimResult error(int code, const QByteArray& text)
    {
        SimResult result;
        result.ok = false;
        result.code = code;
        result.text = text;
        return result;
    }
};

#endif // SIMRESULT_H
