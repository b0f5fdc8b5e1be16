#include "ScriptedTcpController.h"

#include <QHostAddress>
#include <QMutexLocker>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

ScriptedTcpController::ScriptedTcpController()
{
    thread.setObjectName(QStringLiteral("ScriptedTcpController"));
    moveToThread(&thread);
    thread.start();
}

ScriptedTcpController::~ScriptedTcpController()
{
    stop();
    QMetaObject::invokeMethod(this, [this] { moveToThread(thread.thread()); },
                              Qt::BlockingQueuedConnection);
    thread.quit();
    thread.wait();
}

bool ScriptedTcpController::start(quint16 port)
{
    bool ok = false;
    quint16 bound = 0;
    QMetaObject::invokeMethod(this, [&] { listen(port, &ok, &bound); }, Qt::BlockingQueuedConnection);
    listening_port = ok ? bound : 0;
    return ok;
}

void ScriptedTcpController::stop()
{
    if (thread.isRunning())
        QMetaObject::invokeMethod(this, [this] { shut(); }, Qt::BlockingQueuedConnection);
}

void ScriptedTcpController::listen(quint16 port, bool* ok, quint16* bound)
{
    shut();
    server = new QTcpServer(this);
    connect(server, &QTcpServer::newConnection, this, &ScriptedTcpController::accept);
    *ok = server->listen(QHostAddress::LocalHost, port);
    *bound = server->serverPort();
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

void ScriptedTcpController::accept()
{
    while (QTcpSocket* client = server->nextPendingConnection()) {
        {
            QMutexLocker lock(&mutex);
            ++accepted;
        }
        clients << client;
        connect(client, &QTcpSocket::readyRead, this, [this, client] { serve(client); });
        connect(client, &QTcpSocket::disconnected, this, [this, client] {
            clients.removeOne(client);
            client->deleteLater();
        });
    }
}

void ScriptedTcpController::serve(QTcpSocket* client)
{
    while (client->canReadLine()) {
        QByteArray line = client->readLine();
        line.chop(1);
        Step step{Kind::Raw, QByteArray("norvane err 99 \"unknown request\"\n"), 0};
        {
            QMutexLocker lock(&mutex);
            requests << line;
            auto it = steps.constFind(line);
            if (it != steps.constEnd())
                step = it.value();
        }
        switch (step.kind) {
        case Kind::Reply:
            client->write(step.bytes + '\n');
            break;
        case Kind::Raw:
            client->write(step.bytes);
            break;
        case Kind::CloseAfter:
            client->write(step.bytes);
            client->flush();
            client->disconnectFromHost();
            return;
        case Kind::Silent:
            break;
        case Kind::Late: {
            QPointer<QTcpSocket> target(client);
            const QByteArray bytes = step.bytes + '\n';
            QTimer::singleShot(step.delay_ms, this, [target, bytes] {
                if (target)
                    target->write(bytes);
            });
            break;
        }
        }
        client->flush();
    }
}

void ScriptedTcpController::script(const QByteArray& request, const Step& step)
{
    QMutexLocker lock(&mutex);
    steps.insert(request, step);
}

void ScriptedTcpController::reply(const QByteArray& request, const QByteArray& answer)
{
    script(request, Step{Kind::Reply, answer, 0});
}

void ScriptedTcpController::raw(const QByteArray& request, const QByteArray& bytes)
{
    script(request, Step{Kind::Raw, bytes, 0});
}

void ScriptedTcpController::close_after(const QByteArray& request, const QByteArray& partial)
{
    script(request, Step{Kind::CloseAfter, partial, 0});
}

void ScriptedTcpController::silent(const QByteArray& request)
{
    script(request, Step{Kind::Silent, QByteArray(), 0});
}

void ScriptedTcpController::late(const QByteArray& request, const QByteArray& answer, int delay_ms)
{
    script(request, Step{Kind::Late, answer, delay_ms});
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
