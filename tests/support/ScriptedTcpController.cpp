#include "ScriptedTcpController.h"

#include <QMutexLocker>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

ScriptedTcpController::ScriptedTcpController()
{
    moveToThread(&thread);
    thread.start();
}

ScriptedTcpController::~ScriptedTcpController()
{
    stop();
    QMetaObject::invokeMethod(this, [this] { moveToThread(thread.thread()); }, Qt::BlockingQueuedConnection);
    thread.quit();
    thread.wait();
}

bool ScriptedTcpController::start(quint16 port)
{
    bool ok = false;
    QMetaObject::invokeMethod(this, [&] { listen(port, &ok); }, Qt::BlockingQueuedConnection);
    return ok;
}

void ScriptedTcpController::stop()
{
    QMetaObject::invokeMethod(this, [this] { shut(); }, Qt::BlockingQueuedConnection);
}

void ScriptedTcpController::listen(quint16 port, bool* ok)
{
    shut();
    server = new QTcpServer(this);
    connect(server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* client = server->nextPendingConnection()) {
            QMutexLocker lock(&mutex);
            ++accepted;
            clients << client;
            connect(client, &QTcpSocket::readyRead, this, [this, client] { serve(client); });
            connect(client, &QTcpSocket::disconnected, this, [this, client] {
                clients.removeOne(client);
                client->deleteLater();
            });
        }
    });
    *ok = server->listen(QHostAddress::LocalHost, port);
    listening_port = server->serverPort();
}

void ScriptedTcpController::shut()
{
    for (QTcpSocket* client : qAsConst(clients)) {
        client->abort();
        client->deleteLater();
    }
    clients.clear();
    delete server;
    server = nullptr;
}

void ScriptedTcpController::serve(QTcpSocket* client)
{
    while (client->canReadLine()) {
        const QByteArray line = client->readLine().chopped(1);
        QMutexLocker lock(&mutex);
        requests << line;
        const Step step = steps.value(line, Step{"norvane err 99 \"unknown request\"\n", 0, false});
        QPointer<QTcpSocket> target(client);
        QTimer::singleShot(step.delay_ms, this, [target, step] {
            if (!target)
                return;
            target->write(step.bytes);
            target->flush();
            if (step.hang_up)
                target->disconnectFromHost();
        });
    }
}

void ScriptedTcpController::script(const QByteArray& request, const QByteArray& bytes, int delay_ms, bool hang_up)
{
    QMutexLocker lock(&mutex);
    steps.insert(request, Step{bytes, delay_ms, hang_up});
}

QList<QByteArray> ScriptedTcpController::received() const
{
    QMutexLocker lock(&mutex);
    return requests;
}

int ScriptedTcpController::connections() const
{
    QMutexLocker lock(&mutex);
    return accepted;
}
