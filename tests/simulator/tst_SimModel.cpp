#include <QtTest>

#include "simulator/SimModel.h"
#include "ControllerProbe.h"

// The controller's state as time passes and devices move: warm-up,
// batteries, sensors that wake up or appear, reach over radio channels, and
// the two scans. Time is moved by hand.
class tst_SimModel : public QObject
{
    Q_OBJECT

private slots:
    void warmup_data();
    void warmup();
    void warmup_stops_itself_when_asked_to();
    void cooling_after_warmup();
    void batteries();
    void sleeper_wakes_up();
    void sensor_switched_on_later();
    void reach_over_channels();
    void channel_scan();
    void sensor_scan_data();
    void sensor_scan();
    void adding_on_a_channel_without_transceiver();
    void maximum_of_sensors();
};

using namespace DefaultDevices;

void tst_SimModel::warmup_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<double>("temperature");    // of a sensor starting at 24 °C
    QTest::addColumn<double>("status");         // of that one sensor

    // 180 s from 24 °C to 36 °C: 1/15 °C per second.
    QTest::newRow("at the start") << 0 << 24.0 << 0.0;
    QTest::newRow("after 45 s") << 45 << 27.0 << 0.25;
    QTest::newRow("half way") << 90 << 30.0 << 0.5;
    QTest::newRow("at 171 s, 95 %") << 171 << 35.4 << 0.95;
    QTest::newRow("done") << 180 << 36.0 << 1.0;
    QTest::newRow("long after, still warm") << 3600 << 36.5 << 1.0;
}

void tst_SimModel::warmup()
{
    QFETCH(int, seconds);
    QFETCH(double, temperature);
    QFETCH(double, status);
    ControllerProbe probe;
    QVERIFY(probe.load(R"({"extends": "default", "sensors": [
        {"serial": "10231", "transceiver": "70011", "temperature": 24.0}], "bodies": {"standard": []}})"));
    QCOMPARE(probe.ask("norvane set inertial warmup yes"), QByteArray("norvane ok"));
    probe.clock.advance(qint64(seconds) * 1000);
    QCOMPARE(probe.number("inertial sensor_temperature " + S1), temperature);
    QCOMPARE(probe.number("inertial warmup_status"), status);
    QCOMPARE(probe.value("inertial warmup"), QByteArray("yes"));
}

void tst_SimModel::warmup_stops_itself_when_asked_to()
{
    ControllerProbe probe;
    QVERIFY(probe.load(R"({"extends": "default", "inertial": {"warmup_auto_stop": true}})"));
    QCOMPARE(probe.ask("norvane set inertial warmup yes"), QByteArray("norvane ok"));
    // The coldest present sensor starts at 25 °C: warm after 165 s.
    probe.clock.advance(164 * 1000);
    QCOMPARE(probe.value("inertial warmup"), QByteArray("yes"));
    probe.clock.advance(2 * 1000);
    QCOMPARE(probe.value("inertial warmup"), QByteArray("no"));
    QVERIFY(probe.number("inertial warmup_status") > 0.98);
}

void tst_SimModel::cooling_after_warmup()
{
    ControllerProbe probe;
    probe.ask("norvane set inertial warmup yes");
    probe.clock.advance(300 * 1000);
    const double warm = probe.number("inertial sensor_temperature " + S1);
    QCOMPARE(probe.ask("norvane set inertial warmup no"), QByteArray("norvane ok"));
    probe.clock.advance(60 * 1000);
    const double cooler = probe.number("inertial sensor_temperature " + S1);
    QVERIFY2(cooler < warm, qPrintable(QStringLiteral("%1 after %2").arg(cooler).arg(warm)));
    // An awake sensor settles a little above the room.
    probe.clock.advance(3600 * 1000);
    QCOMPARE(probe.number("inertial sensor_temperature " + S1), 27.0);
}

void tst_SimModel::batteries()
{
    ControllerProbe probe;
    const double radio = probe.number("inertial sensor_battery " + S2);
    QCOMPARE(probe.ask("norvane set body inertial_sensor standard b03 " + S4), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane set inertial warmup yes"), QByteArray("norvane ok"));
    probe.clock.advance(2 * 3600 * 1000);
    QVERIFY(probe.number("inertial sensor_battery " + S2) < radio);
    QCOMPARE(probe.number("inertial sensor_battery " + S4), 0.15 - 2 * 0.06);
    // Warming drains 6 % an hour: the low one is empty within three hours,
    // and an empty sensor is gone.
    probe.clock.advance(2 * 3600 * 1000);
    QCOMPARE(probe.value("inertial sensor_present " + S4), QByteArray("no"));
    QVERIFY(probe.ask("norvane get inertial sensor_battery " + S4).startsWith("norvane err 6 "));
    // On cable a sensor charges.
    QVERIFY(probe.load(R"({"extends": "default", "sensors": [
        {"model": "IMU3C", "serial": "10235", "cable": true, "battery": 0.5}], "bodies": {"standard": []}})"));
    probe.clock.advance(3600 * 1000);
    QCOMPARE(probe.number("inertial sensor_battery " + S5), 0.8);
}

void tst_SimModel::sleeper_wakes_up()
{
    ControllerProbe probe(5000);
    QVERIFY(probe.load(R"({"extends": "default", "sensors": [
        {"serial": "10233", "transceiver": "70012", "wakeup_mode": "wm_tap", "asleep": true,
         "wake_after_s": 30}], "bodies": {"standard": []}})"));
    probe.clock.advance(29 * 1000);
    QCOMPARE(probe.value("inertial sensor_present " + S3), QByteArray("no"));
    QCOMPARE(probe.number("inertial warmup_status"), 0.0);
    probe.clock.advance(1000);
    QCOMPARE(probe.value("inertial sensor_present " + S3), QByteArray("yes"));
    QCOMPARE(probe.ask("norvane set inertial sensor_wakeup_mode " + S3 + " 'wm_radio'"),
             QByteArray("norvane ok"));
}

void tst_SimModel::sensor_switched_on_later()
{
    ControllerProbe probe;
    QVERIFY(probe.load(R"({"extends": "default", "waiting_sensors": [
        {"serial": "10250", "channel": 35, "appears_after_s": 10}]})"));
    const QList<QByteArray> scan = {"norvane set inertial number_of_scan_channels 1",
                                    "norvane set inertial scan_transceiver_channel t01 " + T1 + " 35",
                                    "norvane inertial scan_sensors"};
    for (const QByteArray& line : scan)
        QCOMPARE(probe.ask(line), QByteArray("norvane ok"));
    QVERIFY(probe.ask("norvane inertial add_sensor NRV IMU3 '10250' 35").startsWith("norvane err 5 "));
    probe.clock.advance(10 * 1000);
    for (const QByteArray& line : scan)
        QCOMPARE(probe.ask(line), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane inertial add_sensor NRV IMU3 '10250' 35"), QByteArray("norvane ok"));
}

void tst_SimModel::reach_over_channels()
{
    // Moving a transceiver's sensors first and the transceiver last keeps
    // every sensor in reach at the end, as the settings dialog does it.
    ControllerProbe probe;
    QCOMPARE(probe.ask("norvane set inertial sensor_radio_channel " + S1 + " 20"), QByteArray("norvane ok"));
    QCOMPARE(probe.value("inertial sensor_present " + S1), QByteArray("no"));
    // Out of reach, it takes no further orders.
    QVERIFY(probe.ask("norvane set inertial sensor_radio_channel " + S1 + " 35").startsWith("norvane err 6 "));
    QCOMPARE(probe.ask("norvane set inertial sensor_radio_channel " + S2 + " 20"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane set inertial transceiver_radio_channel " + T1 + " 20"),
             QByteArray("norvane ok"));
    QCOMPARE(probe.value("inertial sensor_present " + S1), QByteArray("yes"));
    QCOMPARE(probe.value("inertial sensor_present " + S2), QByteArray("yes"));
    QCOMPARE(probe.value("inertial transceiver_of_sensor " + S1), T1);

    // An unplugged transceiver leaves its sensors unreachable.
    QVERIFY(probe.load(R"({"extends": "default", "transceivers": [
        {"serial": "70011", "channel": 35, "present": false},
        {"serial": "70012", "channel": 55}]})"));
    QCOMPARE(probe.value("inertial transceiver_present " + T1), QByteArray("no"));
    QCOMPARE(probe.value("inertial sensor_present " + S1), QByteArray("no"));
    QVERIFY(probe.ask("norvane set inertial transceiver_radio_channel " + T1 + " 40").startsWith("norvane err 6 "));
    QCOMPARE(probe.value("inertial sensor_present " + S5), QByteArray("yes"));
}

void tst_SimModel::channel_scan()
{
    ControllerProbe probe;
    QCOMPARE(probe.value("inertial transceiver_suggested_radio_channel " + T2), QByteArray("0"));
    const SimReply reply = probe.controller.handle("norvane inertial scan_transceiver_radio_channels");
    QCOMPARE(reply.line, QByteArray("norvane ok"));
    QVERIFY(reply.delay_ms > 0 && reply.delay_ms < 2000);

    int suggested = probe.value("inertial transceiver_suggested_radio_channel " + T2).toInt();
    QVERIFY(suggested >= 2 && suggested <= 81);
    double quietest = 2.0;
    for (int channel = 2; channel <= 81; ++channel) {
        const double activity = probe.number("inertial transceiver_radio_channel_activity " + T2 + ' '
                                                          + QByteArray::number(channel));
        QVERIFY(activity >= 0.0 && activity <= 1.0);
        quietest = qMin(quietest, activity);
    }
    QCOMPARE(probe.number("inertial transceiver_radio_channel_activity " + T2 + ' '
                                       + QByteArray::number(suggested)),
             quietest);
    QCOMPARE(probe.number("inertial transceiver_radio_channel_activity " + T2 + " 13"), 1.0);
    // The other transceiver's channel counts as busy.
    QCOMPARE(probe.number("inertial transceiver_radio_channel_activity " + T2 + " 35"), 1.0);
    QVERIFY(suggested != 35 && suggested != 13);
}

void tst_SimModel::sensor_scan_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QList<QByteArray>>("found");

    QTest::newRow("channel 35: a waiting sensor and two paired ones")
        << "t01 " + T1 + " 35" << QList<QByteArray>{"NRV IMU3 '10240' 35", S1 + " 35", S2 + " 35"};
    QTest::newRow("channel 40: only a waiting one") << "t01 " + T1 + " 40"
                                                    << QList<QByteArray>{"NRV IMU3 '10242' 40"};
    QTest::newRow("channel 70: nobody") << "t01 " + T2 + " 70" << QList<QByteArray>{};
    QTest::newRow("USB") << QByteArray("t01 usb") << QList<QByteArray>{"NRV IMU3C '10243' 0", S5 + " 0"};
}

void tst_SimModel::sensor_scan()
{
    QFETCH(QByteArray, slot);
    QFETCH(QList<QByteArray>, found);
    ControllerProbe probe;
    QCOMPARE(probe.ask("norvane set inertial number_of_scan_channels 1"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane set inertial scan_transceiver_channel " + slot), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane inertial scan_sensors"), QByteArray("norvane ok"));
    // The last moments of the scan: two polls see it unfinished.
    QCOMPARE(probe.value("inertial number_of_scanned_sensors"), QByteArray("-1"));
    QVERIFY(probe.ask("norvane get inertial scanned_sensor d01").startsWith("norvane err 5 "));
    QCOMPARE(probe.value("inertial number_of_scanned_sensors"), QByteArray("-1"));
    QCOMPARE(probe.value("inertial number_of_scanned_sensors"), QByteArray::number(found.size()));
    QList<QByteArray> lines;
    for (int i = 1; i <= found.size(); ++i)
        lines << probe.value("inertial scanned_sensor d" + QByteArray::number(i).rightJustified(2, '0'));
    QCOMPARE(lines, found);
    // Leaving the scan mode drops the results.
    QCOMPARE(probe.ask("norvane set inertial number_of_scan_channels 0"), QByteArray("norvane ok"));
    QCOMPARE(probe.value("inertial number_of_scanned_sensors"), QByteArray("0"));
}

void tst_SimModel::adding_on_a_channel_without_transceiver()
{
    ControllerProbe probe;
    const QByteArray sensor = "NRV IMU3 '10242'";
    QCOMPARE(probe.ask("norvane inertial add_sensor " + sensor + " 40"), QByteArray("norvane ok"));
    // The controller moves it over to a transceiver it has.
    QCOMPARE(probe.value("inertial sensor_radio_channel " + sensor), QByteArray("35"));
    QCOMPARE(probe.value("inertial transceiver_of_sensor " + sensor), T1);
    QCOMPARE(probe.value("inertial sensor_present " + sensor), QByteArray("yes"));
    QCOMPARE(probe.value("inertial sensor_has_storage " + sensor), QByteArray("no"));
    // On the wrong channel, or on USB, it is not found.
    QVERIFY(probe.ask("norvane inertial add_sensor NRV IMU3 '10240' 55").startsWith("norvane err 5 "));
    QVERIFY(probe.ask("norvane inertial add_sensor NRV IMU3 '10240' 0").startsWith("norvane err 5 "));
    QCOMPARE(probe.ask("norvane inertial add_sensor NRV IMU3C '10243' 0"), QByteArray("norvane ok"));
    QCOMPARE(probe.value("inertial sensor_radio_channel NRV IMU3C '10243'"), QByteArray("usb"));
}

void tst_SimModel::maximum_of_sensors()
{
    ControllerProbe probe;
    QVERIFY(probe.load_file(QStringLiteral(SCENARIO_DIR "/forty_sensors.json")));
    QCOMPARE(probe.value("inertial number_of_sensors"), QByteArray("40"));
    QVERIFY(probe.ask("norvane inertial add_sensor NRV IMU3 '10400' 35").startsWith("norvane err 3 "));
    QCOMPARE(probe.ask("norvane inertial delete_sensor NRV IMU3 '10339'"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane inertial add_sensor NRV IMU3 '10400' 35"), QByteArray("norvane ok"));
    QCOMPARE(probe.controller.model().sensors.size(), 40);
}

QTEST_APPLESS_MAIN(tst_SimModel)
#include "tst_SimModel.moc"
