#include <QtTest>

#include <QProcess>
#include <QTcpSocket>

#include <sys/socket.h>

#include "host/TcpLink.h"

// norvane-simd as its clients meet it: lines over TCP from several clients,
// the faults of its scenario on the wire, and the host's TCP link: one
// connection while all goes well, an outage after a reply that came late,
// cut short or without end, and a probe that finds the controller again.
class tst_SimServer : public QObject
{
    Q_OBJECT

private slots:
    void daemon();
};

void tst_SimServer::daemon()
{
    QProcess simd;
    const auto refused = [&simd](const QStringList& arguments) {
        simd.start(QStringLiteral(SIMD_FILE), arguments);
        return simd.waitForFinished(5000) ? QString::number(simd.exitCode()) + ' ' + simd.readAllStandardError() : "running";
    };
    QCOMPARE(refused({"--port", "65536"}), "2 norvane-simd: --port must be 0 to 65535, not 65536\n");
    QCOMPARE(refused({"--scenario", "/nonexistent.json"}), "1 norvane-simd: /nonexistent.json: No such file or directory\n");

    QTemporaryDir dir;
    QFile scenario(dir.filePath("faults.json"));
    QVERIFY(scenario.open(QIODevice::WriteOnly) && scenario.write(R"({"extends": "default", "faults": [
        {"line": "norvane get inertial warmup_status", "kind": "late", "delay_ms": 800},
        {"line": "norvane inertial scan_transceiver_radio_channels", "kind": "silent"},
        {"line": "norvane get body desc standard b04", "kind": "garbage", "length": 70000},
        {"line": "norvane get body desc standard b05", "kind": "garbage", "reply": "norvane set body desc standard b05 )"
                                                    + QByteArray(600, 'x') + R"("},
        {"line": "norvane get system firmware_version", "kind": "hang_up"}]})") > 0);
    scenario.close();
    // Its log goes to a file: a pipe nobody reads while the test waits on a
    // socket would stall the daemon.
    QFile log_file(dir.filePath("log"));
    simd.setStandardOutputFile(log_file.fileName());
    simd.start(QStringLiteral(SIMD_FILE), {"--port", "0", "--speed", "10", "--log", "--scenario", scenario.fileName()});
    QVERIFY(log_file.open(QIODevice::ReadOnly));
    QTRY_VERIFY(log_file.peek(1 << 16).contains('\n'));
    const QRegularExpressionMatch banner = QRegularExpression(
        "^norvane-simd: listening on 127\\.0\\.0\\.1:(\\d+) \\(controller 1\\.21\\.2 NORVANE-DUO, 2 transceivers, 5 "
        "sensors, scenario .*faults.json, speed 10\\)\n$").match(QString::fromLatin1(log_file.readLine()));
    QVERIFY(banner.hasMatch());
    const quint16 port = quint16(banner.captured(1).toUInt());
    const auto connected = [port](QTcpSocket& client) {
        client.abort();
        client.connectToHost(QHostAddress::LocalHost, port);
        return client.waitForConnected(5000);
    };
    QTcpSocket clients[2];
    QVERIFY(connected(clients[0]) && connected(clients[1]));
    const auto lines = [](QTcpSocket& socket, int count) {
        QByteArray got;
        while (count-- > 0) {
            while (!socket.canReadLine() && socket.waitForReadyRead(3000)) {
            }
            got += socket.canReadLine() ? socket.readLine() : "(none)\n";
        }
        return got;
    };
    QTcpSocket& first = clients[0];
    QTcpSocket& second = clients[1];
    first.write("norvane get system type\r\nnorvane set body desc standard b02 \"bat\"\nnorvane tracking stop\n");
    QCOMPARE(lines(first, 3), "norvane set system type NORVANE-DUO\nnorvane ok\nnorvane ok\n");
    // One refusal per line too long, however it arrives; what follows its
    // line end is a fresh start. Error texts quote a request's words only
    // in part.
    first.write(QByteArray(65536 + 1, 'a'));
    first.write("aaa\n" + QByteArray(1 << 20, 'b') + "\nnorvane get " + QByteArray(1000, 'c') + "\n");
    QCOMPARE(lines(first, 3), "norvane err 2 \"line too long\"\nnorvane err 2 \"line too long\"\nnorvane err 2 \"incomplete "
                              "path " + QByteArray(80, 'c') + "...\"\n");
    // Turns: a client pipelining many requests, and reading none of the
    // replies, keeps nobody else waiting.
    QByteArray many;
    for (int i = 0; i < 100000; ++i)
        many += "norvane get system type\n";
    first.write(many);
    first.flush();
    QElapsedTimer turn;
    turn.start();
    second.write("norvane get inertial warmup\n");
    QCOMPARE(lines(second, 1), "norvane set inertial warmup no\n");
    QVERIFY2(turn.elapsed() < 1000, qPrintable(QString::number(turn.elapsed())));
    QVERIFY(connected(first));

    // One controller for all; a late reply holds up its own client's later
    // replies, nobody else's.
    QElapsedTimer timer;
    timer.start();
    first.write("norvane get inertial warmup_status\nnorvane get inertial warmup\n");
    second.write("norvane get body desc standard b02\n");
    QCOMPARE(lines(second, 1), "norvane set body desc standard b02 \"bat\"\n");
    QVERIFY(timer.elapsed() < 700);
    QVERIFY(lines(first, 2).endsWith("\nnorvane set inertial warmup no\n"));
    QVERIFY(timer.elapsed() >= 790);
    // A silent request is done all the same, and the next is answered.
    second.write("norvane inertial scan_transceiver_radio_channels\n"
                 "norvane get inertial transceiver_suggested_radio_channel NRV RD2 '70012'\n");
    QVERIFY(!lines(second, 1).endsWith(" 0\n"));
    // A hang-up sends half the reply and closes only that connection.
    second.write("norvane get system firmware_version\nnorvane get system type\n");
    QVERIFY(second.waitForDisconnected(5000));
    QCOMPARE(second.readAll(), "norvane set system f");

    // The host's link. A reply too long for the buffer was still read whole:
    // the next is in step. Whatever leaves the stream out of step takes the
    // connection with it, and the link fails at once until a probe from the
    // event loop finds the controller again.
    TcpLink link(QStringLiteral("127.0.0.1"), port);
    link.set_default_timeout(300);
    char reply[IOManager::ReplyCapacity] = "";
    const auto ask = [&link, &reply](const char* path) {
        const int result = link.get_string(reply, "%s", path);
        return QStringLiteral("%1 %2").arg(result).arg(result ? link.last_error() : reply);
    };
    QCOMPARE(ask("body desc standard b05"), "6 reply of 600 characters does not fit the 256-byte buffer");
    QCOMPARE(ask("system type"), "0 NORVANE-DUO");
    QCOMPARE(ask("inertial warmup_status"), "3 no reply within 300 ms");
    QCOMPARE(ask("system type"), "2 the controller is not answering since " + QTime::currentTime().toString("HH:mm:ss"));
    for (const char* path : {"body desc standard b04", "system firmware_version"}) {
        QTRY_VERIFY(link.is_answering());
        link.set_timeout(false, 2000, false);   // this request only
        const QString got = ask(path);
        QVERIFY2(got.startsWith(path[0] == 'b' ? "6 reply longer than 65536 bytes"
                                                    : "2 the controller closed the connection in the middle of a reply"),
                 qPrintable(got));
    }
    QTRY_VERIFY(link.is_answering());
    QCOMPARE(ask("system type"), "0 NORVANE-DUO");
    // A long command answered later, its delay divided by the speed.
    QCOMPARE(link.set_value("inertial number_of_scan_channels 1"), 0);
    QCOMPARE(link.set_value("inertial scan_transceiver_channel t01 usb"), 0);
    link.set_timeout(true, 20000, true);
    QCOMPARE(link.send_command(reply, "norvane inertial scan_sensors"), int(ControllerLink::Pending));
    QCOMPARE(link.wait_for_completion(nullptr), 0);
    QCOMPARE(reply, "norvane ok");
    QByteArray log;
    QTRY_VERIFY((log += log_file.readAll()).contains("scan_sensors ->"));
    QVERIFY2(QRegularExpression("^\\[1\\] connected from 127.0.0.1:\\d+\n\\[2\\] connected from 127.0.0.1:\\d+\n"
                                "\\[1\\] norvane get system type\\\\xd -> norvane set system type NORVANE-DUO\n.*"
                                "\\[2\\] norvane inertial scan_transceiver_radio_channels -> \\(no answer\\)\n.*"
                                "\\[2\\] norvane get system firmware_version -> norvane set system firmware_version 4.2.1 "
                                "\\(hangs up\\)\n.*\\[2\\] disconnected\n.*"
                                "\\[\\d+\\] norvane inertial scan_sensors -> norvane ok \\(after 40 ms\\)\n$",
                                QRegularExpression::DotMatchesEverythingOption)
                 .match(QString::fromLatin1(log))
                 .hasMatch(),
             log.constData());
    // A client that shut its sending side right after its request.
    QTcpSocket& half = clients[0];
    QVERIFY(connected(half));
    half.write("norvane get system type\n");
    QVERIFY(half.waitForBytesWritten(5000));
    QCOMPARE(::shutdown(int(half.socketDescriptor()), SHUT_WR), 0);
    QCOMPARE(lines(half, 1), "norvane set system type NORVANE-DUO\n");

    // The controller gone and back on its address.
    simd.kill();
    QVERIFY(simd.waitForFinished(5000));
    QTRY_VERIFY(!link.is_answering());
    QVERIFY(ask("system type").startsWith("2 the controller is not answering since "));
    simd.start(QStringLiteral(SIMD_FILE), {"--port", QString::number(port)});
    QTRY_VERIFY_WITH_TIMEOUT(link.is_answering(), 10000);
    QCOMPARE(ask("system type"), "0 NORVANE-DUO");
    TcpLink nowhere(QStringLiteral("127.0.0.1"), 1);
    QCOMPARE(nowhere.get_string(reply, "a"), int(ControllerLink::TransportFailure));
    QVERIFY(QByteArray(nowhere.last_error()).startsWith("cannot connect to the controller at 127.0.0.1:1: "));
    simd.kill();
    simd.waitForFinished(5000);
}

QTEST_GUILESS_MAIN(tst_SimServer)
#include "tst_SimServer.moc"
