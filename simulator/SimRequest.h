#ifndef SIMREQUEST_H
#define SIMREQUEST_H

#include <QByteArray>
#include <QList>

// One request line taken apart: "norvane get P" is a query of P,
// "norvane set P V" a setting, anything else after "norvane" a command.
struct SimRequest
{
    enum Kind { Invalid, Query, Setting, Command };

    Kind kind = Invalid;
    // What follows "norvane get " / "norvane set " / "norvane ": the path a
    // query reply repeats, byte for byte.
    QByteArray body;
    // The body split at blanks; a double quote starts free text that runs to
    // the end of the line and stays one word, quotes included.
    QList<QByteArray> words;

    static SimRequest parse(const QByteArray& line);
    static QList<QByteArray> split(const QByteArray& text);
};

#endif // SIMREQUEST_H
