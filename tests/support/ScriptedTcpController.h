#ifndef SCRIPTEDTCPCONTROLLER_H
#define SCRIPTEDTCPCONTROLLER_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QThread>

class QTcpServer;
class QTcpSocket;

// A controller on 127.0.0.1 that answers from a script, from a thread of its
// own, for links that block the test's thread while they wait:
//
//   controller.reply("norvane get x", "norvane set x 12");
//   controller.script("norvane get y", "norvane set y", 0, true);   // cut short, then gone
//   controller.script("norvane get z", "");                         // never answers
//
// Requests the script does not know get "norvane err 99 ...".
class ScriptedTcpController : public QObject
{
    Q_OBJECT

public:
    ScriptedTcpController();
    ~ScriptedTcpController() override;

    // Listens on 127.0.0.1 (any free port with 0); false if that fails.
    bool start(quint16 port = 0);
    // Closes the listener and every connection: the controller is gone.
    void stop();
    quint16 port() const { return listening_port; }

    // Sends these bytes as they stand after delay_ms (a reply line needs its
    // '\n'; nothing at all is silence), then hangs up if asked to.
    void script(const QByteArray& request, const QByteArray& bytes, int delay_ms = 0, bool hang_up = false);
    void reply(const QByteArray& request, const QByteArray& line) { script(request, line + '\n'); }

    QList<QByteArray> received() const;
    int connections() const;

private:
    struct Step
    {
        QByteArray bytes;
        int delay_ms;
        bool hang_up;
    };

    // On the controller's thread.
    void listen(quint16 port, bool* ok);
    void shut();
    void serve(QTcpSocket* client);

    QThread thread;
    QTcpServer* server = nullptr;
    QList<QTcpSocket*> clients;
    quint16 listening_port = 0;

    mutable QMutex mutex;
    QHash<QByteArray, Step> steps;
    QList<QByteArray> requests;
    int accepted = 0;
};

#endif // SCRIPTEDTCPCONTROLLER_H
