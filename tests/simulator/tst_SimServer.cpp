#include <QtTest>

#include <QProcess>
#include <QTcpSocket>

#include "host/TcpLink.h"
#include "simulator/ManualClock.h"
#include "simulator/SimServer.h"
#include "simulator/SimulatedController.h"

// The simulated controller behind TCP: SimServer in this process, and the
// norvane-simd daemon as the host's TCP link meets it.
class tst_SimServer : public QObject
{
    Q_OBJECT

private slots:
    void lines_and_clients();
    void daemon();
};

void tst_SimServer::lines_and_clients()
{
    ManualClock clock;
    SimulatedController controller(&clock);
    QString error;
    QVERIFY2(controller.load_scenario(R"({"extends": "default", "faults": [
        {"line": "norvane get inertial warmup_status", "kind": "late", "delay_ms": 300},
        {"line": "norvane inertial scan_transceiver_radio_channels", "kind": "silent"},
        {"line": "norvane get system version", "kind": "hang_up"}]})", &error), qPrintable(error));
    SimServer server(&controller);
    QVERIFY2(server.listen(QHostAddress::LocalHost, 0, &error), qPrintable(error));
    QTcpSocket clients[3];
    for (QTcpSocket& client : clients)
        client.connectToHost(QHostAddress::LocalHost, server.port());
    QTRY_COMPARE(server.client_count(), 3);
    // The server runs in this thread: waiting drives the event loop.
    const auto line = [](QTcpSocket& socket, int count = 1) {
        QByteArray got;
        while (count-- > 0)
            got += QTest::qWaitFor([&socket] { return socket.canReadLine(); }, 3000) ? socket.readLine() : "(none)";
        return got;
    };
    QTcpSocket& first = clients[0];
    first.write("norvane get system type\r\nnorvane set body desc standard b02 \"bat\"\nnorvane tracking stop\n");
    QCOMPARE(line(first, 3),
             "norvane set system type NORVANE-DUO\nnorvane ok\nnorvane ok\n");
    first.write(QByteArray(SimServer::MaxLineLength + 1, 'a'));
    QCOMPARE(line(first), "norvane err 2 \"line too long\"\n");
    // What follows the dropped bytes is a fresh start; the longest line is a request.
    first.write("aaa\nnorvane get " + QByteArray(SimServer::MaxLineLength - 12, 'b') + '\n');
    QCOMPARE(line(first, 2).left(60), "norvane err 2 \"not a request\"\nnorvane err 2 \"incomplete path");

    // One controller for all; a late reply holds up its own client's later
    // replies, nobody else's.
    QTcpSocket& second = clients[1];
    QElapsedTimer timer;
    timer.start();
    first.write("norvane get inertial warmup_status\nnorvane get inertial warmup\n");
    second.write("norvane get body desc standard b02\n");
    QCOMPARE(line(second), "norvane set body desc standard b02 \"bat\"\n");
    QVERIFY(timer.elapsed() < 290);
    QCOMPARE(line(first, 2), "norvane set inertial warmup_status 0.197917\nnorvane set inertial warmup no\n");
    QVERIFY(timer.elapsed() >= 290);
    // A silent request is done all the same, and the next is answered.
    second.write("norvane inertial scan_transceiver_radio_channels\n"
                 "norvane get inertial transceiver_suggested_radio_channel NRV RD2 '70012'\n");
    QVERIFY(!line(second).endsWith(" 0\n"));
    // A hang-up sends half the reply and closes only that connection.
    QSignalSpy gone(&server, &SimServer::client_disconnected);
    second.write("norvane get system version\nnorvane get system type\n");
    QVERIFY(QTest::qWaitFor([&second] { return second.state() == QAbstractSocket::UnconnectedState; }, 3000));
    QCOMPARE(second.readAll(), "norvane set syst");
    QTRY_COMPARE(gone.count(), 1);
    QCOMPARE(server.client_count(), 2);
    clients[2].write("norvane get system type\n");
    QCOMPARE(line(clients[2]), "norvane set system type NORVANE-DUO\n");
}

void tst_SimServer::daemon()
{
    QProcess simd;
    simd.start(QStringLiteral(SIMD_FILE), {"--port", "65536"});
    QVERIFY(simd.waitForFinished(5000));
    QCOMPARE(simd.exitCode(), 2);
    QCOMPARE(simd.readAllStandardError(), "norvane-simd: --port must be 0 to 65535, not 65536\n");
    simd.start(QStringLiteral(SIMD_FILE), {"--scenario", "/nonexistent.json"});
    QVERIFY(simd.waitForFinished(5000));
    QCOMPARE(simd.exitCode(), 1);
    QCOMPARE(simd.readAllStandardError(), "norvane-simd: /nonexistent.json: No such file or directory\n");

    simd.start(QStringLiteral(SIMD_FILE), {"--port", "0", "--speed", "10", "--log"});
    QVERIFY(simd.waitForReadyRead(10000));
    const QRegularExpressionMatch banner = QRegularExpression(
        "^norvane-simd: listening on 127\\.0\\.0\\.1:(\\d+) \\(controller 1\\.21\\.2 NORVANE-DUO, 2 transceivers, 5 "
        "sensors, scenario default, speed 10\\)\n$").match(QString::fromLatin1(simd.readLine()));
    QVERIFY(banner.hasMatch());
    TcpLink link(QStringLiteral("127.0.0.1"), quint16(banner.captured(1).toUInt()));
    int bodies = 0;
    QCOMPARE(link.set_value("standard number_of_bodies %d", 4), 0);
    QCOMPARE(link.get_int(&bodies, "standard number_of_bodies"), 0);
    QCOMPARE(bodies, 4);
    // A long command is answered later, its delay divided by the speed.
    char reply[IOManager::ReplyCapacity] = "";
    QCOMPARE(link.set_value("inertial number_of_scan_channels 1"), 0);
    QCOMPARE(link.set_value("inertial scan_transceiver_channel t01 usb"), 0);
    link.set_timeout(true, 20000, true);
    QCOMPARE(link.send_command(reply, "norvane inertial scan_sensors"), int(ControllerLink::Pending));
    QCOMPARE(link.wait_for_completion(nullptr), 0);
    QCOMPARE(reply, "norvane ok");
    QByteArray log;
    while (!log.contains("scan_sensors ->") && simd.waitForReadyRead(5000))
        log += simd.readAll();
    QVERIFY2(QRegularExpression("^\\[1\\] connected from 127.0.0.1:\\d+\n"
                                "\\[1\\] norvane set standard number_of_bodies 4 -> norvane ok\n.*"
                                "\\[1\\] norvane inertial scan_sensors -> norvane ok \\(after 40 ms\\)\n$",
                                QRegularExpression::DotMatchesEverythingOption)
                 .match(QString::fromLatin1(log))
                 .hasMatch(),
             log.constData());
    simd.kill();
    simd.waitForFinished(5000);
}

QTEST_GUILESS_MAIN(tst_SimServer)
#include "tst_SimServer.moc"
