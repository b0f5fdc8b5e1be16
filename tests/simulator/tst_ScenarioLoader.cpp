#include <QtTest>

#include <QTemporaryDir>

#include <algorithm>

#include "simulator/ManualClock.h"
#include "simulator/ScenarioLoader.h"
#include "simulator/SimulatedController.h"

// Scenarios: the built-in one and the examples load as described, a
// scenario extends another key by key, and every mistake in a file is named
// with its place instead of half loading it.
class tst_ScenarioLoader : public QObject
{
    Q_OBJECT

private slots:
    void default_scenario();
    void examples_data();
    void examples();
    void extending_merges_objects_and_replaces_lists();
    void extending_a_file_beside_it();
    void errors_data();
    void errors();
    void failed_load_keeps_the_state();
    void file_errors();
};

namespace {

bool load(const QByteArray& json, SimModel* model, QList<SimFault>* faults, QString* error,
          const QString& dir = QString())
{
    ScenarioLoader loader(QStringLiteral("test"), dir.isEmpty() ? QDir::currentPath() : dir);
    const bool loaded = loader.load(json, 0, model, faults);
    *error = loader.error();
    return loaded;
}

int count_if(const QList<SimModel::Sensor>& sensors, bool (*test)(const SimModel::Sensor&))
{
    return int(std::count_if(sensors.cbegin(), sensors.cend(), test));
}

} // namespace

void tst_ScenarioLoader::default_scenario()
{
    // What every dialog needs to have something real to show.
    SimModel m;
    QList<SimFault> faults;
    QString error;
    QVERIFY2(load(ScenarioLoader::default_scenario(), &m, &faults, &error), qPrintable(error));
    QCOMPARE(m.version.text(), QByteArray("1.21.2"));
    QCOMPARE(m.transceivers.size(), 2);
    QCOMPARE(m.sensors.size(), 5);
    QCOMPARE(count_if(m.sensors, [](const SimModel::Sensor& s) { return s.cable; }), 1);
    QCOMPARE(count_if(m.sensors, [](const SimModel::Sensor& s) { return s.asleep && s.wakeup_mode == "'wm_tap'"; }), 1);
    QVERIFY(!m.waiting.isEmpty());
    QCOMPARE(m.body_count, 6);
    int calibrated = 0;
    int hybrid = 0;
    for (int i = 0; i < m.body_count; ++i) {
        const SimModel::Body& b = m.bodies.at(i);
        calibrated += b.calibrated;
        const SimModel::Sensor* s = m.sensor(b.sensor);
        hybrid += b.calibrated && s && s->handeye == SimModel::body_id("standard", i + 1);
    }
    QVERIFY(calibrated > 1 && calibrated < 6);
    QCOMPARE(hybrid, 1);
    QVERIFY(faults.isEmpty());
}

void tst_ScenarioLoader::examples_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<int>("transceivers");
    QTest::addColumn<int>("sensors");
    QTest::addColumn<bool>("changeable");
    QTest::addColumn<int>("faults");

    QTest::newRow("default") << "default.json" << QByteArray("1.21.2") << 2 << 5 << true << 0;
    QTest::newRow("old controller") << "old_controller.json" << QByteArray("1.15.3") << 2 << 5 << true << 0;
    QTest::newRow("pre-hybrid controller") << "pre_hybrid_controller.json" << QByteArray("1.11.4") << 2 << 5 << true
                                           << 0;
    QTest::newRow("locked configuration") << "locked_configuration.json" << QByteArray("1.21.2") << 2 << 5 << false
                                          << 0;
    QTest::newRow("no transceiver") << "no_transceiver.json" << QByteArray("1.21.2") << 0 << 2 << true << 0;
    QTest::newRow("forty sensors") << "forty_sensors.json" << QByteArray("1.21.2") << 2 << 40 << true << 0;
    QTest::newRow("faulty link") << "faulty_link.json" << QByteArray("1.21.2") << 2 << 5 << true << 4;
}

void tst_ScenarioLoader::examples()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, version);
    QFETCH(int, transceivers);
    QFETCH(int, sensors);
    QFETCH(bool, changeable);
    QFETCH(int, faults);
    const QString path = QStringLiteral(SCENARIO_DIR "/") + file;
    QFile f(path);
    QVERIFY(f.open(QIODevice::ReadOnly));
    SimModel m;
    QList<SimFault> injected;
    QString error;
    QVERIFY2(load(f.readAll(), &m, &injected, &error, QStringLiteral(SCENARIO_DIR)), qPrintable(error));
    QCOMPARE(m.version.text(), version);
    QCOMPARE(m.transceivers.size(), transceivers);
    QCOMPARE(m.sensors.size(), sensors);
    QCOMPARE(m.config_changeable, changeable);
    QCOMPARE(injected.size(), faults);
    // Every example says what it shows.
    ManualClock clock;
    SimulatedController controller(&clock);
    QVERIFY2(controller.load_scenario_file(path, &error), qPrintable(error));
    QVERIFY(!controller.scenario_description().isEmpty());
}

void tst_ScenarioLoader::extending_merges_objects_and_replaces_lists()
{
    SimModel m;
    QList<SimFault> faults;
    QString error;
    QVERIFY2(load(R"({"extends": "default",
                      "system": {"type": "PORTAFRAME"},
                      "bodies": {"count": 2},
                      "waiting_sensors": [{"serial": "10999", "channel": 20}]})",
                  &m, &faults, &error),
             qPrintable(error));
    QCOMPARE(m.system_type, QByteArray("PORTAFRAME"));
    QCOMPARE(m.version.text(), QByteArray("1.21.2"));    // the sibling key stays
    QCOMPARE(m.body_count, 2);
    QCOMPARE(m.bodies.at(0).desc, QByteArray("left hand"));
    QCOMPARE(m.waiting.size(), 1);
    QCOMPARE(m.waiting.first().identity(), QByteArray("NRV IMU3 '10999'"));
    QCOMPARE(m.sensors.size(), 5);
}

void tst_ScenarioLoader::extending_a_file_beside_it()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QFile base(dir.filePath(QStringLiteral("base.json")));
    QVERIFY(base.open(QIODevice::WriteOnly));
    base.write(R"({"extends": "default", "inertial": {"frequency": 120.0}})");
    base.close();
    SimModel m;
    QList<SimFault> faults;
    QString error;
    QVERIFY2(load(R"({"extends": "base.json", "system": {"tracking": false}})", &m, &faults, &error, dir.path()),
             qPrintable(error));
    QCOMPARE(m.frequency, 120.0);
    QCOMPARE(m.tracking, false);
    QCOMPARE(m.sensors.size(), 5);

    // A scenario that extends itself is stopped, not followed forever.
    QFile loop(dir.filePath(QStringLiteral("loop.json")));
    QVERIFY(loop.open(QIODevice::WriteOnly));
    loop.write(R"({"extends": "loop.json"})");
    loop.close();
    QVERIFY(!load(R"({"extends": "loop.json"})", &m, &faults, &error, dir.path()));
    QVERIFY2(error.contains(QLatin1String("more than 4 deep")), qPrintable(error));
}

void tst_ScenarioLoader::errors_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");

    QTest::newRow("not JSON") << QByteArray("{\n  \"system\": {\n    \"version\": 1.2.3\n  }\n}")
                              << "test: line 3, column";
    QTest::newRow("not an object") << QByteArray("[1, 2]") << "test: a scenario must be a JSON object";
    QTest::newRow("misspelt key") << QByteArray(R"({"sytem": {}})") << "test: sytem: unknown key";
    QTest::newRow("misspelt nested key") << QByteArray(R"({"extends": "default", "system": {"verison": "1.2.3"}})")
                                         << "test: system.verison: unknown key";
    QTest::newRow("wrong type") << QByteArray(R"({"system": {"tracking": "yes"}})")
                                << "test: system.tracking: must be true or false";
    QTest::newRow("bad version") << QByteArray(R"({"system": {"version": "1.21"}})")
                                 << "test: system.version: must be major.minor.patch";
    QTest::newRow("blank in a word") << QByteArray(R"({"system": {"type": "NORVANE DUO"}})")
                                     << "test: system.type: must be one word";
    QTest::newRow("not ASCII") << QByteArray("{\"bodies\": {\"standard\": [{\"desc\": \"caf\xc3\xa9\"}]}}")
                               << "test: bodies.standard[0].desc: must be printable ASCII";
    QTest::newRow("frequency outside limits") << QByteArray(R"({"inertial": {"frequency": 5000}})")
                                              << "test: inertial.frequency: must be a number from 50 to 500";
    QTest::newRow("limits that leave the frequency out") << QByteArray(R"({"inertial": {"frequency_limits": [10, 100]}})")
                                                         << "test: inertial.frequency: must lie within frequency_limits";
    QTest::newRow("battery over full") << QByteArray(R"({"extends": "default", "sensors": [
        {"serial": "1", "transceiver": "70011", "battery": 1.5}]})")
                                       << "test: sensors[0].battery: must be a number from 0 to 1";
    QTest::newRow("serial used twice") << QByteArray(R"({"extends": "default", "waiting_sensors": [
        {"serial": "10231", "channel": 35}]})")
                                       << "test: waiting_sensors[0]: serial 10231 is used twice";
    QTest::newRow("serial with quotes") << QByteArray(R"({"extends": "default", "sensors": [
        {"serial": "'1'", "transceiver": "70011"}]})")
                                        << "test: sensors[0]: vendor, model and serial are written without quotes";
    QTest::newRow("unknown transceiver") << QByteArray(R"({"extends": "default", "sensors": [
        {"serial": "1", "transceiver": "79999"}]})")
                                         << "test: sensors[0].transceiver: no transceiver 79999";
    QTest::newRow("radio sensor without transceiver") << QByteArray(R"({"sensors": [{"serial": "1"}]})")
                                                      << "test: sensors[0]: a radio sensor needs a transceiver";
    QTest::newRow("waiting radio sensor without channel") << QByteArray(R"({"waiting_sensors": [{"serial": "1"}]})")
                                                          << "test: waiting_sensors[0].channel: a sensor waiting";
    QTest::newRow("channel outside the transceiver's band")
        << QByteArray(R"({"transceivers": [{"serial": "1", "channel": 90}]})")
        << "test: transceivers[0].channel: channel 90 is not among its channels";
    QTest::newRow("mode the sensor lacks") << QByteArray(R"({"sensors": [
        {"serial": "1", "cable": true, "wakeup_mode": "wm_radio"}]})")
                                           << "test: sensors[0].wakeup_mode: the sensor does not support 'wm_radio'";
    QTest::newRow("sensor on two bodies") << QByteArray(R"({"extends": "default", "bodies": {"standard": [
        {"sensor": "10231"}, {"sensor": "10231"}]}})")
                                          << "test: bodies.standard[1].sensor: the sensor is on standard b01 already";
    QTest::newRow("body sensor unknown") << QByteArray(R"({"bodies": {"standard": [{"sensor": "5"}]}})")
                                         << "test: bodies.standard[0].sensor: no paired sensor 5";
    QTest::newRow("active but not calibrated") << QByteArray(R"({"bodies": {"standard": [{"active": true}]}})")
                                               << "test: bodies.standard[0].active: a body that is not calibrated";
    QTest::newRow("more bodies than the maximum") << QByteArray(R"({"bodies": {"max": 1, "standard": [{}, {}]}})")
                                                  << "test: bodies.standard: more bodies than max (1)";
    QTest::newRow("count over the maximum") << QByteArray(R"({"bodies": {"max": 3, "count": 4}})")
                                            << "test: bodies.count: must be a whole number from 0 to 3";
    QTest::newRow("unknown preset") << QByteArray(R"({"bodies": {"standard": [{"filter": {"preset": "p"}}]}})")
                                    << "test: bodies.standard[0].filter.preset: unknown preset p";
    QTest::newRow("hand-eye without body") << QByteArray(R"({"extends": "default", "bodies": {"standard": []}})")
                                           << "test: sensors[0].handeye: the sensor is on no body";
    QTest::newRow("pulse by a sensor on no body") << QByteArray(R"({"extends": "default", "tracking_pulse":
        {"source": "inertial_sensor", "sensor": "10234"}})")
                                                  << "test: tracking_pulse.sensor: must name a paired sensor on a body";
    QTest::newRow("calibration without steps") << QByteArray(R"({"calibrations": {"x": {"steps": []}}})")
                                               << "test: calibrations.x.steps: must hold 1 to 9 steps";
    QTest::newRow("new calibration type needs steps") << QByteArray(R"({"calibrations": {"x": {"desc": "X"}}})")
                                                      << "test: calibrations.x: needs steps";
    QTest::newRow("fault of unknown kind") << QByteArray(R"({"faults": [{"line": "x", "kind": "explode"}]})")
                                           << "test: faults[0].kind: must be fail, late, garbage, silent or hang_up";
    QTest::newRow("fault without line") << QByteArray(R"({"faults": [{"kind": "fail"}]})")
                                        << "test: faults[0].line: is missing";
    QTest::newRow("fault text with a quote") << QByteArray(R"({"faults": [{"line": "x", "kind": "fail", "text": "a\"b"}]})")
                                             << "test: faults[0].text: must not contain a double quote";
    QTest::newRow("extends nothing") << QByteArray(R"({"extends": ""})") << "test: extends: must name a scenario";
    QTest::newRow("extends a missing file") << QByteArray(R"({"extends": "no_such_scenario.json"})")
                                            << "test: extends: cannot read";
    QTest::newRow("too many sensors") << QByteArray(R"({"inertial": {"max_sensors": 1}, "sensors": [
        {"serial": "1", "cable": true}, {"serial": "2", "cable": true}]})")
                                      << "test: sensors: more than max_sensors (1) sensors";
}

void tst_ScenarioLoader::errors()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    SimModel m;
    QList<SimFault> faults;
    QString error;
    QVERIFY(!load(json, &m, &faults, &error));
    QVERIFY2(error.startsWith(message), qPrintable(error));
}

void tst_ScenarioLoader::failed_load_keeps_the_state()
{
    ManualClock clock;
    SimulatedController controller(&clock);
    QCOMPARE(controller.handle("norvane set standard number_of_bodies 9").line, QByteArray("norvane ok"));
    QString error;
    QVERIFY(!controller.load_scenario(R"({"extends": "default", "system": {"version": "x"}})", &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(controller.handle("norvane get standard number_of_bodies").line,
             QByteArray("norvane set standard number_of_bodies 9"));
    controller.load_default_scenario();
    QCOMPARE(controller.handle("norvane get standard number_of_bodies").line,
             QByteArray("norvane set standard number_of_bodies 6"));
}

void tst_ScenarioLoader::file_errors()
{
    ManualClock clock;
    SimulatedController controller(&clock);
    QString error;
    QVERIFY(!controller.load_scenario_file(QStringLiteral("/nonexistent/scenario.json"), &error));
    QVERIFY2(error.startsWith(QLatin1String("/nonexistent/scenario.json: ")), qPrintable(error));
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("broken.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"system\": {\"tracking\": \"on\"}}");
    file.close();
    QVERIFY(!controller.load_scenario_file(path, &error));
    QCOMPARE(error, path + QStringLiteral(": system.tracking: must be true or false"));
}

QTEST_APPLESS_MAIN(tst_ScenarioLoader)
#include "tst_ScenarioLoader.moc"
