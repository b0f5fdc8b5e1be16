#include <QtTest>

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include "ModalDialogHelper.h"
#include "host/TcpLink.h"

namespace {

constexpr char Canary = char(0x5A);
constexpr int SlackMs = 1500;

// The faults the daemon injects, on lines the host would never send for real.
const char Scenario[] = R"({
    "extends": "default",
    "faults": [
        { "line": "norvane get body desc standard b02", "kind": "garbage", "length": 600 },
        { "line": "norvane get inertial warmup_status", "kind": "hang_up" },
        { "line": "norvane get inertial frequency", "kind": "silent" }
    ]
})";

} // namespace

// The TCP link against the real simulated controller daemon on loopback.
class tst_TcpLinkWithDaemon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void settingReflectedInQuery();
    void replyLongerThanCapacity();
    void closesMidReply();
    void neverAnswers();
    void asynchronousScan();
    void recoversWhenDaemonReturns();

private:
    bool start_daemon(quint16 port);
    void stop_daemon();

    QTemporaryDir dir;
    QString scenario_file;
    std::unique_ptr<QProcess> daemon;
    quint16 port = 0;
    std::unique_ptr<TcpLink> link;
};

void tst_TcpLinkWithDaemon::initTestCase()
{
    QVERIFY(dir.isValid());
    scenario_file = dir.filePath("faults.json");
    QFile file(scenario_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(Scenario);
}

bool tst_TcpLinkWithDaemon::start_daemon(quint16 wanted)
{
    daemon = std::make_unique<QProcess>();
    daemon->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    daemon->start(QStringLiteral(SIMD_FILE), {"--port", QString::number(wanted), "--scenario", scenario_file});
    if (!daemon->waitForStarted(10000))
        return false;
    // "norvane-simd: listening on 127.0.0.1:PORT (...)"
    QElapsedTimer clock;
    clock.start();
    while (!daemon->canReadLine() && !clock.hasExpired(10000))
        daemon->waitForReadyRead(200);
    const QByteArray banner = daemon->readLine();
    const QRegularExpressionMatch match =
        QRegularExpression("listening on 127\\.0\\.0\\.1:(\\d+)").match(QString::fromLatin1(banner));
    if (!match.hasMatch()) {
        qWarning("unexpected banner: %s", banner.constData());
        return false;
    }
    port = quint16(match.captured(1).toUInt());
    return true;
}

void tst_TcpLinkWithDaemon::stop_daemon()
{
    if (!daemon)
        return;
    daemon->kill();
    daemon->waitForFinished(5000);
    daemon.reset();
}

void tst_TcpLinkWithDaemon::init()
{
    QVERIFY(start_daemon(0));
    link = std::make_unique<TcpLink>(QStringLiteral("127.0.0.1"), port);
    link->set_retry_interval(0);
}

void tst_TcpLinkWithDaemon::cleanup()
{
    link.reset();
    stop_daemon();
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_TcpLinkWithDaemon::settingReflectedInQuery()
{
    char version[IOManager::ReplyCapacity];
    QCOMPARE(link->get_string(version, "system version"), 0);
    QVERIFY(QByteArray(version).startsWith("1."));
    QCOMPARE(link->set_value("standard number_of_bodies %d", 4), 0);
    int bodies = 0;
    QCOMPARE(link->get_int(&bodies, "standard number_of_bodies"), 0);
    QCOMPARE(bodies, 4);
    QVERIFY(link->set_value("standard number_of_bodies %d", 100000) != 0);
    QVERIFY2(QByteArray(link->last_error()).contains("error 3"), link->last_error());
}

void tst_TcpLinkWithDaemon::replyLongerThanCapacity()
{
    const QByteArray description(400, 'd');
    QCOMPARE(link->set_value("body desc standard b01 \"%s\"", description.constData()), 0);
    char buffer[IOManager::ReplyCapacity + 64];
    std::fill(std::begin(buffer), std::end(buffer), Canary);
    QCOMPARE(link->get_string(buffer, "body desc standard b01"), int(ControllerLink::ReplyTooLong));
    QVERIFY(std::all_of(std::begin(buffer), std::end(buffer), [](char c) { return c == Canary; }));
    // Junk of the same length is no value either, and writes nothing.
    QCOMPARE(link->get_string(buffer, "body desc standard b02"), int(ControllerLink::MalformedReply));
    QVERIFY(std::all_of(std::begin(buffer), std::end(buffer), [](char c) { return c == Canary; }));
    // Both lines were read whole: the next request is answered in step.
    char version[IOManager::ReplyCapacity];
    QCOMPARE(link->get_string(version, "system version"), 0);
    QVERIFY(QByteArray(version).startsWith("1."));
}

void tst_TcpLinkWithDaemon::closesMidReply()
{
    link->set_timeout(false, 2000, false);
    double value = -1;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(link->get_double(&value, "inertial warmup_status"), int(ControllerLink::TransportFailure));
    QVERIFY(clock.elapsed() < 2000 + SlackMs);
    QCOMPARE(value, -1.0);
    // The next call connects again.
    char version[IOManager::ReplyCapacity];
    QCOMPARE(link->get_string(version, "system version"), 0);
}

void tst_TcpLinkWithDaemon::neverAnswers()
{
    link->set_timeout(false, 400, false);
    double value = -1;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(link->get_double(&value, "inertial frequency"), int(ControllerLink::TimedOut));
    QVERIFY(clock.elapsed() >= 390 && clock.elapsed() < 400 + SlackMs);
}

void tst_TcpLinkWithDaemon::asynchronousScan()
{
    QCOMPARE(link->set_value("inertial number_of_scan_channels %d", 1), 0);
    QCOMPARE(link->set_value("inertial scan_transceiver_channel t01 usb"), 0);
    char reply[IOManager::ReplyCapacity] = "";
    link->set_timeout(true, 20000, true);
    QCOMPARE(link->send_command(reply, "norvane inertial scan_sensors"), int(ControllerLink::Pending));
    int status = 0;
    QCOMPARE(link->wait_for_completion(&status), 0);
    QCOMPARE(QByteArray(reply), QByteArray("norvane ok"));
}

void tst_TcpLinkWithDaemon::recoversWhenDaemonReturns()
{
    char version[IOManager::ReplyCapacity];
    QCOMPARE(link->get_string(version, "system version"), 0);
    const quint16 used = port;
    stop_daemon();
    QTRY_VERIFY(!link->is_connected());
    QCOMPARE(link->get_string(version, "system version"), int(ControllerLink::TransportFailure));
    QVERIFY(QByteArray(link->last_error()).contains("cannot connect"));

    QVERIFY(start_daemon(used));
    QCOMPARE(link->get_string(version, "system version"), 0);
    QVERIFY(link->is_connected());
}

QTEST_MAIN(tst_TcpLinkWithDaemon)
#include "tst_TcpLinkWithDaemon.moc"
