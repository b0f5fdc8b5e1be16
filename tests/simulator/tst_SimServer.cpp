#include <QtTest>

#include <QProcess>
#include <QTcpSocket>

#include <memory>

#include "simulator/ManualClock.h"
#include "simulator/SimServer.h"
#include "simulator/SimulatedController.h"

// The simulated controller behind TCP, as the host's TCP link and the
// norvane-simd daemon meet it on loopback.
class tst_SimServer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void answers_requests();
    void clients_share_one_controller();
    void late_reply_keeps_order();
    void silent_request_gets_no_reply();
    void hang_up_mid_reply();
    void overlong_line_is_refused();
    void daemon();
    void daemon_refuses_bad_arguments_data();
    void daemon_refuses_bad_arguments();

private:
    bool start(const QByteArray& scenario = QByteArray());
    std::unique_ptr<QTcpSocket> connect_client();

    ManualClock clock;
    std::unique_ptr<SimulatedController> controller;
    std::unique_ptr<SimServer> server;
};

namespace {

// Drives the event loop until a whole line is there; the server runs in
// this thread, so blocking waits would starve it.
bool wait_for_line(QTcpSocket& socket, int timeout_ms = 3000)
{
    QElapsedTimer timer;
    timer.start();
    while (!socket.canReadLine() && timer.elapsed() < timeout_ms)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    return socket.canReadLine();
}

QByteArray read_line(QTcpSocket& socket)
{
    if (!wait_for_line(socket))
        return "<no reply>";
    return socket.readLine().chopped(1);
}

QByteArray exchange(QTcpSocket& socket, const QByteArray& line)
{
    socket.write(line + '\n');
    return read_line(socket);
}

} // namespace

void tst_SimServer::init()
{
    controller.reset(new SimulatedController(&clock));
}

void tst_SimServer::cleanup()
{
    server.reset();
    controller.reset();
}

bool tst_SimServer::start(const QByteArray& scenario)
{
    if (!scenario.isEmpty()) {
        QString error;
        if (!controller->load_scenario(scenario, &error)) {
            qWarning("%s", qPrintable(error));
            return false;
        }
    }
    server.reset(new SimServer(controller.get()));
    QString error;
    if (!server->listen(QHostAddress::LocalHost, 0, &error)) {
        qWarning("%s", qPrintable(error));
        return false;
    }
    return true;
}

std::unique_ptr<QTcpSocket> tst_SimServer::connect_client()
{
    std::unique_ptr<QTcpSocket> socket(new QTcpSocket);
    socket->connectToHost(QHostAddress::LocalHost, server->port());
    QElapsedTimer timer;
    timer.start();
    while (socket->state() != QAbstractSocket::ConnectedState && timer.elapsed() < 3000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    return socket;
}

void tst_SimServer::answers_requests()
{
    QVERIFY(start());
    auto socket = connect_client();
    QCOMPARE(socket->state(), QAbstractSocket::ConnectedState);
    QCOMPARE(exchange(*socket, "norvane get system version"), QByteArray("norvane set system version 1.21.2"));
    QCOMPARE(exchange(*socket, "norvane get inertial number_of_sensors\r"),
             QByteArray("norvane set inertial number_of_sensors 5"));
    QCOMPARE(exchange(*socket, "norvane set inertial frequency 1.0"),
             QByteArray("norvane err 3 \"frequency must be 50.0 to 500.0 Hz\""));
    // Two requests in one packet: two replies, in order.
    socket->write("norvane get system type\nnorvane tracking stop\n");
    QCOMPARE(read_line(*socket), QByteArray("norvane set system type NORVANE-DUO"));
    QCOMPARE(read_line(*socket), QByteArray("norvane ok"));
    QCOMPARE(server->client_count(), 1);
}

void tst_SimServer::clients_share_one_controller()
{
    QVERIFY(start());
    auto first = connect_client();
    auto second = connect_client();
    auto third = connect_client();
    QCOMPARE(exchange(*first, "norvane set body desc standard b02 \"bat\""), QByteArray("norvane ok"));
    QCOMPARE(exchange(*second, "norvane get body desc standard b02"),
             QByteArray("norvane set body desc standard b02 \"bat\""));
    QCOMPARE(exchange(*third, "norvane get system version"), QByteArray("norvane set system version 1.21.2"));
    QCOMPARE(server->client_count(), 3);
    QSignalSpy gone(server.get(), &SimServer::client_disconnected);
    second->disconnectFromHost();
    QVERIFY(gone.wait(3000));
    QCOMPARE(server->client_count(), 2);
    QCOMPARE(exchange(*first, "norvane get system type"), QByteArray("norvane set system type NORVANE-DUO"));
}

void tst_SimServer::late_reply_keeps_order()
{
    QVERIFY(start(R"({"extends": "default", "faults": [
        {"line": "norvane get inertial warmup_status", "kind": "late", "delay_ms": 300}]})"));
    auto slow = connect_client();
    auto other = connect_client();
    QElapsedTimer timer;
    timer.start();
    slow->write("norvane get inertial warmup_status\nnorvane get inertial warmup\n");
    // Another client is not held up by it.
    QCOMPARE(exchange(*other, "norvane get inertial warmup"), QByteArray("norvane set inertial warmup no"));
    QVERIFY(timer.elapsed() < 300);
    QVERIFY(read_line(*slow).startsWith("norvane set inertial warmup_status "));
    QVERIFY(timer.elapsed() >= 290);
    QCOMPARE(read_line(*slow), QByteArray("norvane set inertial warmup no"));
}

void tst_SimServer::silent_request_gets_no_reply()
{
    QVERIFY(start(R"({"extends": "default", "faults": [
        {"line": "norvane inertial scan_transceiver_radio_channels", "kind": "silent"}]})"));
    auto socket = connect_client();
    socket->write("norvane inertial scan_transceiver_radio_channels\nnorvane get system type\n");
    QCOMPARE(read_line(*socket), QByteArray("norvane set system type NORVANE-DUO"));
    QVERIFY(!socket->canReadLine());
    // It was done all the same.
    const QByteArray suggested =
        exchange(*socket, "norvane get inertial transceiver_suggested_radio_channel NRV RD2 '70012'");
    QVERIFY2(suggested.startsWith("norvane set ") && !suggested.endsWith(" 0"), suggested.constData());
}

void tst_SimServer::hang_up_mid_reply()
{
    QVERIFY(start(R"({"extends": "default", "faults": [
        {"line": "norvane get system version", "kind": "hang_up"}]})"));
    auto socket = connect_client();
    QSignalSpy closed(socket.get(), &QTcpSocket::disconnected);
    socket->write("norvane get system version\nnorvane get system type\n");
    QVERIFY(closed.wait(3000));
    const QByteArray received = socket->readAll();
    const QByteArray whole = "norvane set system version 1.21.2";
    QCOMPARE(received, whole.left(whole.size() / 2));
    // The controller itself carries on for the next client.
    auto next = connect_client();
    QCOMPARE(exchange(*next, "norvane get system type"), QByteArray("norvane set system type NORVANE-DUO"));
}

void tst_SimServer::overlong_line_is_refused()
{
    QVERIFY(start());
    auto socket = connect_client();
    socket->write(QByteArray(SimServer::MaxLineLength + 10, 'a'));
    QCOMPARE(read_line(*socket), QByteArray("norvane err 2 \"line too long\""));
    // What follows the refused bytes is a fresh start.
    socket->write("aaa\nnorvane get system type\n");
    QCOMPARE(read_line(*socket), QByteArray("norvane err 2 \"not a request\""));
    QCOMPARE(read_line(*socket), QByteArray("norvane set system type NORVANE-DUO"));
}

void tst_SimServer::daemon()
{
    QProcess simd;
    simd.setProgram(QStringLiteral(SIMD_FILE));
    simd.setArguments({QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--speed"), QStringLiteral("10"),
                       QStringLiteral("--log"), QStringLiteral("--scenario"),
                       QStringLiteral(SCENARIO_DIR "/locked_configuration.json")});
    simd.start();
    QVERIFY(simd.waitForStarted(5000));
    QVERIFY(simd.waitForReadyRead(5000));
    const QByteArray banner = simd.readLine();
    const QRegularExpression listening(QStringLiteral("listening on 127\\.0\\.0\\.1:(\\d+) "));
    const QRegularExpressionMatch match = listening.match(QString::fromLatin1(banner));
    QVERIFY2(match.hasMatch(), banner.constData());

    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, quint16(match.captured(1).toUInt()));
    QVERIFY(socket.waitForConnected(5000));
    socket.write("norvane get config is_changeable\n");
    QVERIFY(socket.waitForReadyRead(5000));
    QCOMPARE(socket.readLine(), QByteArray("norvane set config is_changeable no\n"));

    QByteArray log;
    while (!log.contains("is_changeable no\n") && simd.waitForReadyRead(5000))
        log += simd.readAll();
    QVERIFY2(log.contains("] norvane get config is_changeable -> norvane set config is_changeable no\n"),
             log.constData());
    simd.kill();
    QVERIFY(simd.waitForFinished(5000));
}

void tst_SimServer::daemon_refuses_bad_arguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exit_code");
    QTest::addColumn<QString>("message");

    QTest::newRow("speed zero") << QStringList{"--speed", "0"} << 2 << "--speed must be a number above 0";
    QTest::newRow("port too high") << QStringList{"--port", "70000"} << 2 << "--port must be 0 to 65535";
    QTest::newRow("not an address") << QStringList{"--listen", "localhost.example"} << 2
                                    << "--listen needs an IP address";
    QTest::newRow("missing scenario") << QStringList{"--scenario", "/nonexistent.json"} << 1 << "/nonexistent.json";
}

void tst_SimServer::daemon_refuses_bad_arguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exit_code);
    QFETCH(QString, message);
    QProcess simd;
    simd.start(QStringLiteral(SIMD_FILE), arguments);
    QVERIFY(simd.waitForFinished(5000));
    QCOMPARE(simd.exitCode(), exit_code);
    const QString error = QString::fromLocal8Bit(simd.readAllStandardError());
    QVERIFY2(error.contains(message), qPrintable(error));
}

QTEST_GUILESS_MAIN(tst_SimServer)
#include "tst_SimServer.moc"
