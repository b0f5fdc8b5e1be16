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
        // Qt reads no further ahead than one line; the rest waits in the
        // kernel, and the client's sending stalls.
        socket->setReadBufferSize(MaxLineLength + 1);
        // One short line each way: send it now rather than batch it.
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        clients.append(client);
        const auto serve_socket = [this, socket] {
            if (Client* c = find(socket))
                serve(c);
        };
        connect(socket, &QTcpSocket::readyRead, this, serve_socket);
        connect(socket, &QTcpSocket::bytesWritten, this, serve_socket);
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
    serve_lines(client);
    // Out now, not from a later pass of the event loop: a client that shut
    // its sending side after its request is closed by Qt as soon as the end
    // of its data is read, and what was not yet written would be lost.
    if (!client->closing)
        client->socket->flush();
}

void SimServer::serve_lines(Client* client)
{
    int budget = RequestsPerPass;
    while (!client->waiting && !client->closing && client->socket->bytesToWrite() <= MaxUnreadReplyBytes) {
        const qint64 room = MaxLineLength + 1 - client->pending.size();
        if (room > 0)
            client->pending += client->socket->read(room);
        const int end = client->pending.indexOf('\n');
        if (client->discarding) {
            client->pending.remove(0, end < 0 ? client->pending.size() : end + 1);
            client->discarding = end < 0;
            if (end < 0 && client->socket->bytesAvailable() == 0)
                return;
            continue;
        }
        if (end < 0 && client->pending.size() <= MaxLineLength)
            return;   // the rest of the line is still to come
        if (budget-- == 0) {
            queue_pass(client);
            return;
        }
        if (end < 0) {
            // One refusal per line, however it arrives; what follows its
            // line end is a fresh start.
            client->pending.clear();
            client->discarding = true;
            SimReply refusal;
            refusal.line = "norvane err 2 \"line too long\"";
            send(client, refusal);
            continue;
        }
        const QByteArray line = client->pending.left(end);
        client->pending.remove(0, end + 1);
        answer(client, line, false);
    }
}

void SimServer::answer(Client* client, const QByteArray& line, bool at_once)
{
    const SimReply reply = controller->handle(line);
    emit answered(client->id, line, reply);
    if (reply.silent)
        return;
    if (reply.delay_ms <= 0 || at_once) {
        send(client, reply);
        return;
    }
    // Later lines of this client wait their turn: replies keep the order
    // of the requests.
    client->waiting = true;
    client->late = reply;
    QPointer<QTcpSocket> socket = client->socket;
    QTimer::singleShot(reply.delay_ms, this, [this, socket] {
        Client* c = socket ? find(socket) : nullptr;
        if (!c || !c->waiting)
            return;
        c->waiting = false;
        send(c, c->late);
        serve(c);
    });
}

void SimServer::queue_pass(Client* client)
{
    if (client->pass_queued)
        return;
    client->pass_queued = true;
    QPointer<QTcpSocket> socket = client->socket;
    QTimer::singleShot(0, this, [this, socket] {
        if (Client* c = socket ? find(socket) : nullptr) {
            c->pass_queued = false;
            serve(c);
        }
    });
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
