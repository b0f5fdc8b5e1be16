#include <QtTest>

#include <cmath>

#include "ControllerProbe.h"

// Calibrations as the progress dialogs poll them: through "status active",
// "status progress", "status step_active" and "status step_progress", to
// success or to "err" with the controller's text.
class tst_SimCalibration : public QObject
{
    Q_OBJECT

private slots:
    void gyro_run();
    void gyro_residual_of_a_cold_sensor();
    void gyro_losing_a_sensor();
    void handeye_run();
    void two_steps_with_pauses_data();
    void two_steps_with_pauses();
    void injected_failure();
    void stopping_data();
    void stopping();
    void refused_starts_data();
    void refused_starts();
};

using namespace DefaultDevices;

namespace {

// What the progress dialog sees in one poll.
QByteArray status(ControllerProbe& probe)
{
    return probe.value("status active") + " | " + probe.value("status step_active") + " | "
           + probe.value("status step_progress");
}

} // namespace

void tst_SimCalibration::gyro_run()
{
    ControllerProbe probe;
    QCOMPARE(probe.ask("norvane set inertial sensor_gyro_calibrate " + S1 + " yes"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane set inertial sensor_gyro_calibrate " + S2 + " yes"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane set inertial sensor_gyro_calibrate " + S4 + " no"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane cal inertial_gyro start"), QByteArray("norvane ok"));
    QCOMPARE(status(probe), QByteArray("cal | cal 1 | 1 0.0"));
    QVERIFY(probe.ask("norvane get inertial new_sensor_gyro_residual " + S1).startsWith("norvane err 7 "));
    // Marks are fixed while the run lasts.
    QVERIFY(probe.ask("norvane set inertial sensor_gyro_calibrate " + S1 + " no").startsWith("norvane err 7 "));

    probe.clock.advance(7500);
    QCOMPARE(probe.number("status progress"), 0.5);
    QCOMPARE(status(probe), QByteArray("cal | cal 1 | 1 0.5"));
    const double p1 = probe.number("inertial sensor_gyro_progress " + S1);
    QVERIFY(p1 > 0.5 && p1 <= 0.625);
    QCOMPARE(probe.number("inertial sensor_gyro_progress " + S4), 0.0);

    // Each sensor finishes on its own, before the run does.
    QStringList order;
    for (int t = 0; t < 15; ++t) {
        probe.clock.advance(500);
        for (const QByteArray& s : {S1, S2})
            if (!order.contains(QString::fromLatin1(s))
                && !probe.ask("norvane get inertial new_sensor_gyro_residual " + s).startsWith("norvane err"))
                order << QString::fromLatin1(s);
    }
    QCOMPARE(order.size(), 2);
    QCOMPARE(status(probe), QByteArray("none | none | 1 1.0"));
    QCOMPARE(probe.number("status progress"), 1.0);
    QCOMPARE(probe.number("inertial sensor_gyro_progress " + S1), 1.0);
    QCOMPARE(probe.value("status err"), QByteArray("0 \"\""));
    const double residual = probe.number("inertial new_sensor_gyro_residual " + S2);
    QVERIFY(residual > 0.0 && residual < 1.0);
    QVERIFY(probe.ask("norvane get inertial new_sensor_gyro_residual " + S4).startsWith("norvane err 7 "));

    QCOMPARE(probe.ask("norvane inertial accept_new_sensor_gyro " + S2), QByteArray("norvane ok"));
    QVERIFY(probe.ask("norvane inertial accept_new_sensor_gyro " + S2).startsWith("norvane err 7 "));
    QCOMPARE(probe.ask("norvane set inertial sensor_gyro_calibrate " + S2 + " no"), QByteArray("norvane ok"));
    // The run stopped tracking; starting it again is up to the front end.
    QCOMPARE(probe.ask("norvane tracking start"), QByteArray("norvane ok"));
    QCOMPARE(probe.value("status active"), QByteArray("tracking"));
}

void tst_SimCalibration::gyro_residual_of_a_cold_sensor()
{
    const auto residual = [](bool warm_up) {
        ControllerProbe probe;
        if (warm_up) {
            probe.ask("norvane set inertial warmup yes");
            probe.clock.advance(400 * 1000);
        }
        probe.ask("norvane set inertial sensor_gyro_calibrate " + S1 + " yes");
        probe.ask("norvane cal inertial_gyro start");
        probe.clock.advance(20 * 1000);
        return probe.number("inertial new_sensor_gyro_residual " + S1);
    };
    const double warm = residual(true);
    const double cold = residual(false);
    QVERIFY(warm > 0.0);
    QVERIFY2(cold > 2.0 * warm, qPrintable(QStringLiteral("cold %1, warm %2").arg(cold).arg(warm)));
}

void tst_SimCalibration::gyro_losing_a_sensor()
{
    ControllerProbe probe;
    probe.ask("norvane set inertial sensor_gyro_calibrate " + S2 + " yes");
    QCOMPARE(probe.ask("norvane cal inertial_gyro start"), QByteArray("norvane ok"));
    probe.clock.advance(3000);
    // The sensor is sent to a channel its transceiver does not hear.
    QCOMPARE(probe.ask("norvane set inertial sensor_radio_channel " + S2 + " 70"), QByteArray("norvane ok"));
    probe.clock.advance(500);
    // The progress stays where the run broke off.
    QCOMPARE(status(probe), QByteArray("err | err | 1 0.233333"));
    QCOMPARE(probe.ask("norvane get status err"),
             "norvane set status err 31 \"Lost contact to sensor " + S2 + "\"");
    // The failure stays the controller's state until tracking starts again.
    probe.clock.advance(60 * 1000);
    QCOMPARE(probe.value("status active"), QByteArray("err"));
    QCOMPARE(probe.ask("norvane tracking start"), QByteArray("norvane ok"));
    QCOMPARE(probe.value("status active"), QByteArray("tracking"));
    QCOMPARE(probe.value("status step_active"), QByteArray("none"));
    QCOMPARE(probe.value("status err"), "31 \"Lost contact to sensor " + S2 + "\"");
}

void tst_SimCalibration::handeye_run()
{
    // What the hybrid body dialog sends, in its order.
    ControllerProbe probe;
    QCOMPARE(probe.ask("norvane tracking stop"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane set inertial sensor_handeye_calibrate " + S2 + " yes"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane set body active standard b02 yes"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane tracking start"), QByteArray("norvane ok"));
    QCOMPARE(probe.value("status active"), QByteArray("tracking"));
    QCOMPARE(probe.ask("norvane tracking stop"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane cal inertial_handeye start"), QByteArray("norvane ok"));
    probe.clock.advance(10 * 1000);
    QCOMPARE(status(probe), QByteArray("cal | cal 1 | 1 0.5"));
    QCOMPARE(probe.number("cal step_duration inertial_handeye s01"), 20.0);
    probe.clock.advance(10 * 1000);
    QCOMPARE(probe.value("status active"), QByteArray("none"));

    const double residual = probe.number("inertial new_sensor_handeye_residual " + S2);
    const double delay = probe.number("inertial new_sensor_delay " + S2);
    QVERIFY(residual > 0.0 && residual < 5.0);
    QVERIFY(delay >= 6.0 && delay <= 20.0);
    const QList<QByteArray> words = probe.value("inertial new_sensor_handeye " + S2).split(' ');
    QCOMPARE(words.size(), 12);
    double m[12];
    for (int i = 0; i < 12; ++i) {
        bool ok = false;
        m[i] = words.at(i).toDouble(&ok);
        QVERIFY(ok);
    }
    // Numbers 4 to 12 are a rotation, column by column: orthonormal, det 1.
    for (int a = 0; a < 3; ++a)
        for (int b = 0; b < 3; ++b) {
            double dot = 0.0;
            for (int r = 0; r < 3; ++r)
                dot += m[3 + a * 3 + r] * m[3 + b * 3 + r];
            QVERIFY(std::fabs(dot - (a == b ? 1.0 : 0.0)) < 1e-4);
        }
    const double* c = m + 3;
    const double det = c[0] * (c[4] * c[8] - c[7] * c[5]) - c[3] * (c[1] * c[8] - c[7] * c[2])
                       + c[6] * (c[1] * c[5] - c[4] * c[2]);
    QVERIFY(std::fabs(det - 1.0) < 1e-4);

    QCOMPARE(probe.value("inertial sensor_handeye " + S2), QByteArray("none"));
    QCOMPARE(probe.ask("norvane inertial accept_new_sensor_handeye " + S2), QByteArray("norvane ok"));
    QCOMPARE(probe.value("inertial sensor_handeye " + S2), QByteArray("standard b02"));
    QCOMPARE(probe.ask("norvane set inertial sensor_handeye_calibrate " + S2 + " no"), QByteArray("norvane ok"));
}

void tst_SimCalibration::two_steps_with_pauses_data()
{
    QTest::addColumn<bool>("operator_starts_step_two");
    QTest::newRow("step two on request") << true;
    QTest::newRow("step two after its pause") << false;
}

void tst_SimCalibration::two_steps_with_pauses()
{
    QFETCH(bool, operator_starts_step_two);
    ControllerProbe probe;
    // What the progress dialog reads before it starts.
    QCOMPARE(probe.ask("norvane get cal step_pause inertial_alignment s01"),
             QByteArray("norvane set cal step_pause inertial_alignment s01 yes 3"));
    QCOMPARE(probe.ask("norvane get cal step_pause inertial_alignment s02"),
             QByteArray("norvane set cal step_pause inertial_alignment s02 yes 5"));
    QCOMPARE(probe.ask("norvane cal inertial_alignment start"), QByteArray("norvane ok"));
    QCOMPARE(status(probe), QByteArray("cal | pause 1 | 1 0.0"));
    probe.clock.advance(3000);
    QCOMPARE(status(probe), QByteArray("cal | cal 1 | 1 0.0"));
    probe.clock.advance(5000);
    QCOMPARE(status(probe), QByteArray("cal | cal 1 | 1 0.5"));
    QCOMPARE(probe.number("status progress"), 0.2);
    // Step two cannot come before step one is over.
    QVERIFY(probe.ask("norvane cal inertial_alignment start_step s02").startsWith("norvane err 7 "));
    probe.clock.advance(5000);
    QCOMPARE(status(probe), QByteArray("cal | pause 2 | 2 0.0"));
    QCOMPARE(probe.number("status progress"), 0.4);
    if (operator_starts_step_two) {
        probe.clock.advance(1000);
        QCOMPARE(probe.ask("norvane cal inertial_alignment start_step s02"), QByteArray("norvane ok"));
    } else {
        probe.clock.advance(5000);
    }
    QCOMPARE(status(probe), QByteArray("cal | cal 2 | 2 0.0"));
    // Asking again once it runs does no harm.
    QCOMPARE(probe.ask("norvane cal inertial_alignment start_step s02"), QByteArray("norvane ok"));
    probe.clock.advance(7500);
    QCOMPARE(status(probe), QByteArray("cal | cal 2 | 2 0.5"));
    QCOMPARE(probe.number("status progress"), 0.7);
    probe.clock.advance(7500);
    QCOMPARE(status(probe), QByteArray("none | none | 2 1.0"));
}

void tst_SimCalibration::injected_failure()
{
    ControllerProbe probe;
    QVERIFY(probe.load(R"({"extends": "default", "calibrations": {"inertial_alignment":
        {"fail": {"at": 0.5, "code": 24, "text": "The body moved during step one"}}}})"));
    // The rest of the type is kept.
    QCOMPARE(probe.value("cal number_of_steps inertial_alignment"), QByteArray("2"));
    QCOMPARE(probe.ask("norvane cal inertial_alignment start"), QByteArray("norvane ok"));
    probe.clock.advance(3000 + 10000 + 5000);
    QCOMPARE(probe.value("status step_active"), QByteArray("cal 2"));
    probe.clock.advance(2000);
    QCOMPARE(probe.value("status step_active"), QByteArray("cal 2"));
    probe.clock.advance(1500);
    QCOMPARE(probe.value("status active"), QByteArray("err"));
    QCOMPARE(probe.value("status step_active"), QByteArray("err"));
    const QByteArray reply = probe.ask("norvane get status err");
    QCOMPARE(reply, QByteArray("norvane set status err 24 \"The body moved during step one\""));
    // A new run clears the failure.
    QCOMPARE(probe.ask("norvane cal reflex_scan start"), QByteArray("norvane ok"));
    QCOMPARE(probe.value("status err"), QByteArray("0 \"\""));
}

void tst_SimCalibration::stopping_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("stop");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QByteArray>("active");

    QTest::newRow("gyro stops") << QByteArray("inertial_gyro") << QByteArray("norvane cal inertial_gyro stop")
                                << QByteArray("norvane ok") << QByteArray("none");
    QTest::newRow("reflex scan cannot be interrupted")
        << QByteArray("reflex_scan") << QByteArray("norvane cal reflex_scan stop")
        << QByteArray("norvane err 7 \"calibration reflex_scan cannot be interrupted\"") << QByteArray("cal");
    QTest::newRow("stopping another type") << QByteArray("inertial_gyro") << QByteArray("norvane cal reflex_scan stop")
                                           << QByteArray("norvane err 7 \"calibration inertial_gyro is running\"")
                                           << QByteArray("cal");
    QTest::newRow("tracking cannot start meanwhile") << QByteArray("inertial_gyro")
                                                     << QByteArray("norvane tracking start")
                                                     << QByteArray("norvane err 7 \"a calibration is running\"")
                                                     << QByteArray("cal");
    QTest::newRow("no second run") << QByteArray("inertial_gyro") << QByteArray("norvane cal reflex_scan start")
                                   << QByteArray("norvane err 7 \"calibration inertial_gyro is running\"")
                                   << QByteArray("cal");
}

void tst_SimCalibration::stopping()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, stop);
    QFETCH(QByteArray, reply);
    QFETCH(QByteArray, active);
    ControllerProbe probe;
    probe.ask("norvane set inertial sensor_gyro_calibrate " + S1 + " yes");
    QCOMPARE(probe.ask("norvane cal " + type + " start"), QByteArray("norvane ok"));
    probe.clock.advance(2000);
    QCOMPARE(probe.ask(stop), reply);
    QCOMPARE(probe.value("status active"), active);
    if (active == "none") {
        QVERIFY(probe.ask("norvane get inertial new_sensor_gyro_residual " + S1).startsWith("norvane err 7 "));
        QVERIFY(probe.number("inertial sensor_gyro_progress " + S1) < 0.2);
    }
}

void tst_SimCalibration::refused_starts_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QList<QByteArray>>("before");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<int>("code");

    const QList<QByteArray> none;
    QTest::newRow("gyro without a marked sensor") << QByteArray() << none
                                                  << QByteArray("norvane cal inertial_gyro start") << 7;
    QTest::newRow("hand-eye without a marked sensor") << QByteArray() << none
                                                      << QByteArray("norvane cal inertial_handeye start") << 7;
    QTest::newRow("no room calibration")
        << QByteArray(R"("system": {"room_calibrated": false})")
        << QList<QByteArray>{"norvane set inertial sensor_gyro_calibrate " + S1 + " yes"}
        << QByteArray("norvane cal inertial_gyro start") << 8;
    QTest::newRow("hand-eye without cameras")
        << QByteArray(R"("system": {"tracking_available": false})")
        << QList<QByteArray>{"norvane set inertial sensor_handeye_calibrate " + S1 + " yes"}
        << QByteArray("norvane cal inertial_handeye start") << 8;
    QTest::newRow("marked sensor fell out of reach")
        << QByteArray() << QList<QByteArray>{"norvane set inertial sensor_gyro_calibrate " + S1 + " yes",
                                             "norvane set inertial transceiver_radio_channel " + T1 + " 40"}
        << QByteArray("norvane cal inertial_gyro start") << 6;
    QTest::newRow("hand-eye of a sensor taken off its body")
        << QByteArray() << QList<QByteArray>{"norvane set inertial sensor_handeye_calibrate " + S2 + " yes",
                                             "norvane set body inertial_sensor standard b02 none"}
        << QByteArray("norvane cal inertial_handeye start") << 7;
    QTest::newRow("unknown step") << QByteArray() << QList<QByteArray>{"norvane cal inertial_alignment start"}
                                  << QByteArray("norvane cal inertial_alignment start_step s03") << 5;
}

void tst_SimCalibration::refused_starts()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QList<QByteArray>, before);
    QFETCH(QByteArray, start);
    QFETCH(int, code);
    ControllerProbe probe;
    if (!scenario.isEmpty())
        QVERIFY(probe.load("{\"extends\": \"default\", " + scenario + '}'));
    for (const QByteArray& line : before)
        QCOMPARE(probe.ask(line), QByteArray("norvane ok"));
    const QByteArray reply = probe.ask(start);
    QVERIFY2(reply.startsWith("norvane err " + QByteArray::number(code) + ' '), reply.constData());
}

QTEST_APPLESS_MAIN(tst_SimCalibration)
#include "tst_SimCalibration.moc"
