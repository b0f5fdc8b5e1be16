#include <QtTest>

#include <QElapsedTimer>

#include "ModalDialogHelper.h"
#include "ScriptedTcpController.h"
#include "host/TcpLink.h"

namespace {

constexpr char Canary = char(0x5A);
// How much later than its time-out a failure may come on a busy machine.
constexpr int SlackMs = 1500;

} // namespace

// The link against a controller on loopback that answers from a script.
class tst_TcpLink : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void parseAddress_data();
    void parseAddress();
    void queryOverOneConnection();
    void replyLongerThanCapacity();
    void endlessReplyWithoutLineEnd();
    void closesMidReply();
    void neverAnswers();
    void lateReplyIsNotTakenForTheNext();
    void clearFailureWhileGone();
    void recoversWhenControllerReturns();
    void asynchronousCommand();
    void connectionStateIsReported();

private:
    std::unique_ptr<ScriptedTcpController> server;
    std::unique_ptr<TcpLink> link;
};

void tst_TcpLink::init()
{
    server = std::make_unique<ScriptedTcpController>();
    QVERIFY(server->start());
    link = std::make_unique<TcpLink>(QStringLiteral("127.0.0.1"), server->port());
    link->set_retry_interval(0);
    server->reply("norvane get inertial available", "norvane set inertial available yes");
}

void tst_TcpLink::cleanup()
{
    link.reset();
    server.reset();
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_TcpLink::parseAddress_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");

    QTest::newRow("name and port") << "localhost:4000" << true << "localhost" << 4000;
    QTest::newRow("address and port") << "127.0.0.1:65535" << true << "127.0.0.1" << 65535;
    QTest::newRow("bracketed IPv6") << "[::1]:4000" << true << "::1" << 4000;
    QTest::newRow("bare IPv6") << "::1:4000" << false << "" << 0;
    QTest::newRow("no port") << "localhost" << false << "" << 0;
    QTest::newRow("empty port") << "localhost:" << false << "" << 0;
    QTest::newRow("port zero") << "localhost:0" << false << "" << 0;
    QTest::newRow("port too large") << "localhost:65536" << false << "" << 0;
    QTest::newRow("port not a number") << "localhost:http" << false << "" << 0;
    QTest::newRow("no host") << ":4000" << false << "" << 0;
}

void tst_TcpLink::parseAddress()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(QString, host);
    QFETCH(int, port);
    QString parsed_host;
    quint16 parsed_port = 0;
    QCOMPARE(TcpLink::parse_address(text, &parsed_host, &parsed_port), ok);
    if (ok) {
        QCOMPARE(parsed_host, host);
        QCOMPARE(int(parsed_port), port);
    }
}

void tst_TcpLink::queryOverOneConnection()
{
    server->reply("norvane set inertial warmup yes", "norvane ok");
    char reply[IOManager::ReplyCapacity];
    QCOMPARE(link->get_string(reply, "inertial available"), 0);
    QCOMPARE(QByteArray(reply), QByteArray("yes"));
    QCOMPARE(link->set_value("inertial warmup %s", "yes"), 0);
    QCOMPARE(link->get_string(reply, "inertial available"), 0);
    QCOMPARE(server->received(),
             QList<QByteArray>({"norvane get inertial available", "norvane set inertial warmup yes",
                                "norvane get inertial available"}));
    QCOMPARE(server->connections(), 1);
    QCOMPARE(link->round_trips(), 3L);
}

void tst_TcpLink::replyLongerThanCapacity()
{
    const QByteArray value(600, 'x');
    server->reply("norvane get body desc standard b01", "norvane set body desc standard b01 " + value);
    char buffer[IOManager::ReplyCapacity + 64];
    std::fill(std::begin(buffer), std::end(buffer), Canary);
    QCOMPARE(link->get_string(buffer, "body desc standard b%02d", 1), int(ControllerLink::ReplyTooLong));
    QVERIFY(std::all_of(std::begin(buffer), std::end(buffer), [](char c) { return c == Canary; }));
    QVERIFY(QByteArray(link->last_error()).contains("does not fit"));

    // The whole line was read: the next request is answered in step, on the
    // same connection.
    char reply[IOManager::ReplyCapacity];
    QCOMPARE(link->get_string(reply, "inertial available"), 0);
    QCOMPARE(QByteArray(reply), QByteArray("yes"));
    QCOMPARE(server->connections(), 1);
}

void tst_TcpLink::endlessReplyWithoutLineEnd()
{
    server->raw("norvane get body desc standard b01", QByteArray(ControllerLink::MaxLineLength + 10, 'g'));
    link->set_timeout(false, 5000, false);
    char reply[IOManager::ReplyCapacity];
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(link->get_string(reply, "body desc standard b01"), int(ControllerLink::ReplyTooLong));
    QVERIFY2(clock.elapsed() < 5000, "must not wait for a line end that never comes");
    QVERIFY(!link->is_connected());
}

void tst_TcpLink::closesMidReply()
{
    server->close_after("norvane get inertial number_of_sensors", "norvane set inertial numb");
    link->set_timeout(false, 2000, false);
    int count = -1;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(link->get_int(&count, "inertial number_of_sensors"), int(ControllerLink::TransportFailure));
    QVERIFY(clock.elapsed() < 2000 + SlackMs);
    QCOMPARE(count, -1);
    QVERIFY2(QByteArray(link->last_error()).contains("middle of a reply"), link->last_error());
    QVERIFY(!link->is_connected());
}

void tst_TcpLink::neverAnswers()
{
    server->silent("norvane get inertial warmup_status");
    link->set_timeout(false, 300, false);
    double value = -1;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(link->get_double(&value, "inertial warmup_status"), int(ControllerLink::TimedOut));
    const qint64 elapsed = clock.elapsed();
    QVERIFY2(elapsed >= 290 && elapsed < 300 + SlackMs, qPrintable(QString::number(elapsed)));
    QCOMPARE(value, -1.0);
    QVERIFY(QByteArray(link->last_error()).contains("no reply within 300 ms"));
}

void tst_TcpLink::lateReplyIsNotTakenForTheNext()
{
    server->late("norvane get inertial number_of_sensors", "norvane set inertial number_of_sensors 5", 400);
    server->reply("norvane get inertial number_of_transceivers", "norvane set inertial number_of_transceivers 2");
    link->set_timeout(false, 150, false);
    int count = -1;
    QCOMPARE(link->get_int(&count, "inertial number_of_sensors"), int(ControllerLink::TimedOut));
    QTest::qWait(500);   // the late reply is on its way meanwhile
    QCoreApplication::processEvents();
    QCOMPARE(link->get_int(&count, "inertial number_of_transceivers"), 0);
    QCOMPARE(count, 2);
    QCOMPARE(server->connections(), 2);
}

void tst_TcpLink::clearFailureWhileGone()
{
    char reply[IOManager::ReplyCapacity];
    QCOMPARE(link->get_string(reply, "inertial available"), 0);
    server->stop();
    QTRY_VERIFY(!link->is_connected());

    link->set_retry_interval(60000);
    QCOMPARE(link->get_string(reply, "inertial available"), int(ControllerLink::TransportFailure));
    QVERIFY2(QByteArray(link->last_error()).contains("cannot connect to the controller at 127.0.0.1:"),
             link->last_error());
    // While the controller stays gone, further requests fail at once.
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(link->get_string(reply, "inertial available"), int(ControllerLink::TransportFailure));
    QVERIFY(clock.elapsed() < 100);
    QVERIFY2(QByteArray(link->last_error()).contains("no connection to the controller"), link->last_error());
}

void tst_TcpLink::recoversWhenControllerReturns()
{
    const quint16 port = server->port();
    char reply[IOManager::ReplyCapacity];
    QCOMPARE(link->get_string(reply, "inertial available"), 0);
    server->stop();
    QTRY_VERIFY(!link->is_connected());
    QVERIFY(link->get_string(reply, "inertial available") != 0);

    QVERIFY(server->start(port));
    QCOMPARE(link->get_string(reply, "inertial available"), 0);
    QCOMPARE(QByteArray(reply), QByteArray("yes"));
    QVERIFY(link->is_connected());
}

void tst_TcpLink::asynchronousCommand()
{
    server->late("norvane inertial scan_sensors", "norvane ok", 100);
    char reply[IOManager::ReplyCapacity] = "";
    link->set_timeout(true, 20000, true);
    QCOMPARE(link->send_command(reply, "norvane inertial scan_sensors"), int(ControllerLink::Pending));
    QTRY_COMPARE(server->received(), QList<QByteArray>{"norvane inertial scan_sensors"});
    int status = 0;
    QCOMPARE(link->wait_for_completion(&status), 0);
    QCOMPARE(QByteArray(reply), QByteArray("norvane ok"));
}

void tst_TcpLink::connectionStateIsReported()
{
    QSignalSpy spy(link.get(), &ControllerLink::connection_changed);
    QString error;
    QVERIFY2(link->connect_now(&error), qPrintable(error));
    server->stop();
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(spy.at(1).at(0).toBool(), false);
}

QTEST_MAIN(tst_TcpLink)
#include "tst_TcpLink.moc"
