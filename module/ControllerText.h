#ifndef CONTROLLERTEXT_H
#define CONTROLLERTEXT_H

#include <QByteArray>
#include <QString>

class IOManager;

// The few ways every dialog turns controller replies into what it shows and
// turns its own texts into what it reports, kept in one place so that no
// dialog reads a reply buffer or marks an error differently from another.
class ControllerText
{
public:
    // A reply the host wrote into one of our IOManager::ReplyCapacity
    // buffers; never read past it, even if a host forgot the terminator.
    static QString reply(const char* buffer);

    // Descriptions come quoted ("\"Left hand\""), serials in single quotes;
    // the user sees neither.
    static QString withoutDoubleQuotes(QString text);
    static QString withoutSingleQuotes(QString text);
    // What stands between the first two double quotes, such as the message
    // of an error report; empty when there is no quote, the rest after a
    // lone one.
    static QString quoted(const QString& text);

    // A fraction the controller reports (progress, warm-up) as the whole
    // percent a bar shows: rounded down, pinned to 0..100, nonsense as 0.
    static int percent(double fraction);

    // How a dialog shows a problem in its own message line.
    static QString red(const QString& text);

    // The controller's language is ASCII; what cannot be said in Latin-1
    // goes out as '?', never as a multi-byte sequence it would misread.
    static QByteArray latin(const QString& text);

    // A failure the user must see, on the host's message display.
    static void report(IOManager* io, const QString& text);
};

// The controller's words that every dialog compares replies with.
namespace ControllerWords {
inline const QString None = QStringLiteral("none");
inline const QString Yes = QStringLiteral("yes");
inline const QString No = QStringLiteral("no");
inline const QString Err = QStringLiteral("err");
inline const QString CommandDone = QStringLiteral("norvane ok");
} // namespace ControllerWords

#endif // CONTROLLERTEXT_H
