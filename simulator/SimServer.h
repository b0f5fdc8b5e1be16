#ifndef SIMSERVER_H
#define SIMSERVER_H

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QString>

#include "SimReply.h"

class QTcpServer;
class QTcpSocket;
class SimulatedController;

// Serves one simulated controller over TCP: each connection sends request
// lines ending in LF and gets one reply line per request, in order. Several
// clients share the controller, as several front ends share a real one, and
// take turns: a pass serves at most RequestsPerPass lines of one client
// before the others get theirs. What a client sends is read only as fast as
// it is answered, so neither its requests nor its unread replies pile up
// beyond a bound.
class SimServer : public QObject
{
    Q_OBJECT

public:
    // Longest request line accepted; a longer one is answered with an error
    // and dropped, so a client cannot make the server hoard memory.
    static constexpr int MaxLineLength = 64 * 1024;
    static constexpr int RequestsPerPass = 16;
    // Replies a client has not read yet, beyond which it is not served.
    static constexpr int MaxUnreadReplyBytes = 1024 * 1024;

    // The controller is not owned and must outlive the server.
    explicit SimServer(SimulatedController* controller, QObject* parent = nullptr);
    ~SimServer() override;

    bool listen(const QHostAddress& address, quint16 port, QString* error);
    quint16 port() const;
    int client_count() const { return clients.size(); }

signals:
    // After each request: what was asked and what the controller made of it.
    void answered(int client, const QByteArray& request, const SimReply& reply);
    void client_connected(int client, const QString& peer);
    void client_disconnected(int client);

private slots:
    void accept_clients();

private:
    // A QObject so that it can go with deleteLater(): a socket may report
    // its disconnection while the client is being served.
    struct Client : QObject
    {
        int id = 0;
        QTcpSocket* socket = nullptr;
        QByteArray pending;     // received, not yet answered
        bool waiting = false;   // a late answer is on its way
        SimReply late;          // ... this one
        bool closing = false;   // hung up on purpose
        bool discarding = false;   // inside a line too long, up to its line end
        bool pass_queued = false;
    };

    void serve(Client* client);
    void serve_lines(Client* client);
    void answer(Client* client, const QByteArray& line, bool at_once);
    void queue_pass(Client* client);
    void send(Client* client, const SimReply& reply);
    void drop(Client* client);
    Client* find(QTcpSocket* socket);

    SimulatedController* controller;
    QTcpServer* server;
    QList<Client*> clients;
    int next_id = 1;
};

#endif // SIMSERVER_H
