#include "SimServer.h"

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "SimulatedController.h"

SimServer::SimServer(SimulatedController* controller, QObject* parent)
    : QObject(parent)
    , controller(controller)
    , server(new QTcpServer(this))
{
    connect(server, &QTcpServer::newConnection, this, &SimServer::accept_clients);
}

SimServer::~SimServer()
{
    // Sockets and clients are children and go with the server; only their
    // last words must not reach a server that is half gone.
    for (Client* client : qAsConst(clients))
        client->socket->disconnect(this);
}

bool SimServer::listen(const QHostAddress& address, quint16 port, QString* error)
{
    if (server->listen(address, port))
        return true;
    if (error)
        *error = server->errorString();
    return false;
}

quint16 SimServer::port() const
{
    return server->serverPort();
}

void SimServer::accept_clients()
{
    while (QTcpSocket* socket = server->nextPendingConnection()) {
        auto* client = new Client;
        client->setParent(this);
        client->id = next_id++;
        client->socket = socket;
        socket->setParent(this);
        // One short line each way: send it now rather than batch it.
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        clients.append(client);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            if (Client* c = find(socket))
                serve(c);
        });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            if (Client* c = find(socket))
                drop(c);
        });
        emit client_connected(client->id, socket->peerAddress().toString() + ':'
                                              + QString::number(socket->peerPort()));
    }
}

void SimServer::serve(Client* client)
{
    client->pending += client->socket->readAll();
    while (!client->waiting && !client->closing) {
        const int end = client->pending.indexOf('\n');
        if (end < 0) {
            if (client->pending.size() > MaxLineLength) {
                client->pending.clear();
                SimReply refusal;
                refusal.line = "norvane err 2 \"line too long\"";
                send(client, refusal);
            }
            return;
        }
        const QByteArray line = client->pending.left(end);
        client->pending.remove(0, end + 1);
        const SimReply reply = controller->handle(line);
        emit answered(client->id, line, reply);
        if (reply.silent)
            continue;
        if (reply.delay_ms <= 0) {
            send(client, reply);
            continue;
        }
        // Later lines of this client wait their turn: replies keep the order
        // of the requests.
        client->waiting = true;
        QPointer<QTcpSocket> socket = client->socket;
        QTimer::singleShot(reply.delay_ms, this, [this, socket, reply] {
            Client* c = socket ? find(socket) : nullptr;
            if (!c)
                return;
            c->waiting = false;
            send(c, reply);
            serve(c);
        });
    }
}

void SimServer::send(Client* client, const SimReply& reply)
{
    if (reply.hang_up) {
        client->closing = true;
        client->socket->write(reply.line.left(reply.line.size() / 2));
        client->socket->flush();
        client->socket->disconnectFromHost();
        return;
    }
    client->socket->write(reply.line + '\n');
    // Out now, not on the event loop's next pass: the client is waiting.
    client->socket->flush();
}

void SimServer::drop(Client* client)
{
    clients.removeOne(client);
    client->closing = true;
    emit client_disconnected(client->id);
    client->socket->deleteLater();
    client->deleteLater();
}

SimServer::Client* SimServer::find(QTcpSocket* socket)
{
    for (Client* client : qAsConst(clients))
        if (client->socket == socket)
            return client;
    return nullptr;
}
