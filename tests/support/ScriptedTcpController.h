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

// A controller on 127.0.0.1 that answers from a script, for tests of links
// that block the test's thread: it serves from a thread of its own.
//
//   server.reply("norvane get inertial available", "norvane set inertial available yes");
//   server.close_after("norvane get x", "norvane set x 12");   // cut short, then gone
//   server.silent("norvane get y");                            // never answers
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

    void reply(const QByteArray& request, const QByteArray& reply);
    void raw(const QByteArray& request, const QByteArray& bytes);   // sent as they are
    void close_after(const QByteArray& request, const QByteArray& partial);
    void silent(const QByteArray& request);
    void late(const QByteArray& request, const QByteArray& reply, int delay_ms);

    QList<QByteArray> received() const;
    int connections() const;

private:
    enum class Kind { Reply, Raw, CloseAfter, Silent, Late };
    struct Step
    {
        Kind kind;
        QByteArray bytes;
        int delay_ms;
    };

    void script(const QByteArray& request, const Step& step);
    // Run on the server's thread.
    void listen(quint16 port, bool* ok, quint16* bound);
    void shut();
    void accept();
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
