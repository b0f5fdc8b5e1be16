#include <QtTest>

#include <QElapsedTimer>

#include "ModalDialogHelper.h"
#include "host/InProcessLink.h"
#include "simulator/ManualClock.h"
#include "simulator/SimulatedController.h"
#include "simulator/WallClock.h"

// The in-process link: the same requests and failures as over TCP, with the
// simulator's faults standing in for a misbehaving wire.
class tst_InProcessLink : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void settingReflectedInQuery();
    void asynchronousScan();
    void faults_data();
    void faults();
    void hangUpThenRecover();
    void lateAnswersWithoutRealDelays();
    void scenarioFile();

private:
    static std::unique_ptr<InProcessLink> make_link(bool real_delays);
    static QByteArray faulty(const QByteArray& fault);
};

void tst_InProcessLink::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

std::unique_ptr<InProcessLink> tst_InProcessLink::make_link(bool real_delays)
{
    auto link = std::make_unique<InProcessLink>(std::make_unique<ManualClock>());
    link->set_real_delays(real_delays);
    return link;
}

QByteArray tst_InProcessLink::faulty(const QByteArray& fault)
{
    return R"({ "extends": "default", "faults": [ )" + fault + " ] }";
}

void tst_InProcessLink::settingReflectedInQuery()
{
    auto link = make_link(false);
    QCOMPARE(link->set_value("inertial frequency %f", 120.0), 0);
    double frequency = 0;
    QCOMPARE(link->get_double(&frequency, "inertial frequency"), 0);
    QCOMPARE(frequency, 120.0);
    // Refused by the model: the controller's reason reaches last_error().
    QVERIFY(link->set_value("inertial frequency %f", 1e7) != 0);
    QVERIFY2(QByteArray(link->last_error()).contains("refused"), link->last_error());
    QCOMPARE(link->round_trips(), 3L);
}

void tst_InProcessLink::asynchronousScan()
{
    auto link = make_link(true);
    QCOMPARE(link->set_value("inertial number_of_scan_channels %d", 1), 0);
    QCOMPARE(link->set_value("inertial scan_transceiver_channel t01 usb"), 0);
    char reply[IOManager::ReplyCapacity] = "";
    link->set_timeout(true, 20000, true);
    QCOMPARE(link->send_command(reply, "norvane inertial scan_sensors"), int(ControllerLink::Pending));
    QVERIFY(link->is_blocked());
    int status = 0;
    QCOMPARE(link->wait_for_completion(&status), 0);
    QCOMPARE(QByteArray(reply), QByteArray("norvane ok"));
}

void tst_InProcessLink::faults_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<int>("timeout");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("minimumMs");
    QTest::addColumn<QString>("error");

    QTest::newRow("late within time-out")
        << QByteArray(R"({ "line": "norvane get inertial warmup_status", "kind": "late", "delay_ms": 200 })")
        << 2000 << 0 << 190 << "";
    QTest::newRow("late beyond time-out")
        << QByteArray(R"({ "line": "norvane get inertial warmup_status", "kind": "late", "delay_ms": 5000 })")
        << 300 << int(ControllerLink::TimedOut) << 290 << "beyond the time-out";
    QTest::newRow("silent")
        << QByteArray(R"({ "line": "norvane get inertial warmup_status", "kind": "silent" })")
        << 300 << int(ControllerLink::TimedOut) << 290 << "no reply";
    QTest::newRow("garbage")
        << QByteArray(R"({ "line": "norvane get inertial warmup_status", "kind": "garbage" })")
        << 2000 << int(ControllerLink::MalformedReply) << 0 << "";
    QTest::newRow("refused")
        << QByteArray(R"({ "line": "norvane get inertial warmup_status", "kind": "fail", "code": 42, "text": "sync card busy" })")
        << 2000 << int(ControllerLink::ControllerError) << 0 << "error 42: sync card busy";
}

void tst_InProcessLink::faults()
{
    QFETCH(QByteArray, fault);
    QFETCH(int, timeout);
    QFETCH(int, result);
    QFETCH(int, minimumMs);
    QFETCH(QString, error);
    auto link = make_link(true);
    QString problem;
    QVERIFY2(link->simulator()->load_scenario(faulty(fault), &problem), qPrintable(problem));
    link->set_timeout(false, timeout, false);
    double value = -1;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(link->get_double(&value, "inertial warmup_status"), result);
    const qint64 elapsed = clock.elapsed();
    QVERIFY2(elapsed >= minimumMs && elapsed < timeout + 1000, qPrintable(QString::number(elapsed)));
    QCOMPARE(value >= 0, result == 0);
    QVERIFY2(QString::fromLocal8Bit(link->last_error()).contains(error), link->last_error());
}

void tst_InProcessLink::hangUpThenRecover()
{
    auto link = make_link(false);
    QString problem;
    QVERIFY(link->simulator()->load_scenario(
        faulty(R"({ "line": "norvane get inertial number_of_sensors", "kind": "hang_up", "times": 1 })"), &problem));
    QSignalSpy changes(link.get(), &ControllerLink::connection_changed);
    int count = -1;
    QCOMPARE(link->get_int(&count, "inertial number_of_sensors"), int(ControllerLink::TransportFailure));
    QVERIFY(QByteArray(link->last_error()).contains("middle of a reply"));
    QCOMPARE(count, -1);
    QCOMPARE(link->get_int(&count, "inertial number_of_sensors"), 0);
    QVERIFY(count > 0);
    QCOMPARE(changes.count(), 2);
    QVERIFY(link->is_connected());
}

void tst_InProcessLink::lateAnswersWithoutRealDelays()
{
    auto link = make_link(false);
    QString problem;
    QVERIFY(link->simulator()->load_scenario(
        faulty(R"({ "line": "norvane get inertial warmup_status", "kind": "late", "delay_ms": 100000 })"), &problem));
    double value = -1;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(link->get_double(&value, "inertial warmup_status"), int(ControllerLink::TimedOut));
    QVERIFY(clock.elapsed() < 500);
}

void tst_InProcessLink::scenarioFile()
{
    auto link = make_link(false);
    QVERIFY(link->description().contains("default scenario"));
    QString error;
    QVERIFY(!link->load_scenario_file(QStringLiteral("/nowhere/missing.json"), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(link->description().contains("default scenario"));
    QVERIFY2(link->load_scenario_file(QStringLiteral(SCENARIO_DIR "/old_controller.json"), &error),
             qPrintable(error));
    QCOMPARE(link->description(), QStringLiteral("simulated controller (old_controller.json)"));
    char version[IOManager::ReplyCapacity];
    QCOMPARE(link->get_string(version, "system version"), 0);
    QVERIFY(QByteArray(version) < QByteArray("1.21"));
}

QTEST_MAIN(tst_InProcessLink)
#include "tst_InProcessLink.moc"
