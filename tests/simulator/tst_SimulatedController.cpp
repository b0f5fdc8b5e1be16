#include <QtTest>

#include "ControllerProbe.h"

// The controller's language against the default scenario: every family of
// parameters answers in the form the plug-in reads, settings show in later
// answers, and what the model refuses comes back as an error reply.
class tst_SimulatedController : public QObject
{
    Q_OBJECT

private slots:
    void queries_data();
    void queries();
    void settings_data();
    void settings();
    void rejected_data();
    void rejected();
    void version_gates_data();
    void version_gates();
    void locked_configuration_data();
    void locked_configuration();
    void faults_data();
    void faults();
    void fault_counting();
    void long_command_delay_follows_clock_speed();
    void sensor_lifecycle();
};

using namespace DefaultDevices;

namespace {

// A clock whose speed a test chooses, to see delays shrink with it.
class FastClock : public SimClock
{
public:
    explicit FastClock(double speed) : factor(speed) {}
    qint64 now_ms() const override { return 0; }
    double speed() const override { return factor; }

private:
    double factor;
};

} // namespace

void tst_SimulatedController::queries_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("value");

    // system, config, tracking, synccard
    QTest::newRow("system version") << QByteArray("system version") << QByteArray("1.21.2");
    QTest::newRow("system type") << QByteArray("system type") << QByteArray("NORVANE-DUO");
    QTest::newRow("system firmware") << QByteArray("system firmware_version") << QByteArray("4.2.1");
    QTest::newRow("config changeable") << QByteArray("config is_changeable") << QByteArray("yes");
    QTest::newRow("tracking available") << QByteArray("tracking available") << QByteArray("yes");
    QTest::newRow("tracking pulse") << QByteArray("tracking pulse") << QByteArray("synchronous_cameras");
    QTest::newRow("synccard frequency") << QByteArray("synccard output_frequency") << QByteArray("60.0");

    // inertial: sensors
    QTest::newRow("inertial available") << QByteArray("inertial available") << QByteArray("yes");
    QTest::newRow("sensor count") << QByteArray("inertial number_of_sensors") << QByteArray("5");
    QTest::newRow("sensor d01") << QByteArray("inertial sensor d01") << S1;
    QTest::newRow("sensor d05 is on cable") << QByteArray("inertial sensor d05") << S5;
    QTest::newRow("present") << "inertial sensor_present " + S1 << QByteArray("yes");
    QTest::newRow("asleep is not present") << "inertial sensor_present " + S3 << QByteArray("no");
    QTest::newRow("body of sensor") << "inertial body_of_sensor " + S1 << QByteArray("standard b01");
    QTest::newRow("sensor on no body") << "inertial body_of_sensor " + S4 << QByteArray("none");
    QTest::newRow("vendor desc") << QByteArray("inertial sensor_vendor_desc NRV") << QByteArray("\"Norvane\"");
    QTest::newRow("model desc") << QByteArray("inertial sensor_model_desc NRV IMU3")
                                << QByteArray("\"IMU3 inertial sensor\"");
    QTest::newRow("firmware in single quotes") << "inertial sensor_version " + S3 << QByteArray("'2.2.7'");
    QTest::newRow("battery fraction") << "inertial sensor_battery " + S4 << QByteArray("0.15");
    QTest::newRow("temperature and operating temperature")
        << "inertial sensor_temperature " + S1 << QByteArray("27.0 36.0");
    QTest::newRow("output frequency capped by sensor")
        << "inertial sensor_output_frequency " + S4 << QByteArray("100.0");
    QTest::newRow("output frequency of system") << "inertial sensor_output_frequency " + S1 << QByteArray("200.0");
    QTest::newRow("radio channel") << "inertial sensor_radio_channel " + S1 << QByteArray("35");
    QTest::newRow("cable channel is usb") << "inertial sensor_radio_channel " + S5 << QByteArray("usb");
    QTest::newRow("wake-up mode") << "inertial sensor_wakeup_mode " + S3 << QByteArray("'wm_tap'");
    QTest::newRow("mode supported") << "inertial sensor_wakeup_mode_available " + S1 + " 'wm_tap'"
                                    << QByteArray("yes");
    QTest::newRow("cable sensor has no radio wake-up")
        << "inertial sensor_wakeup_mode_available " + S5 + " 'wm_radio'" << QByteArray("no");
    QTest::newRow("storage") << "inertial sensor_has_storage " + S4 << QByteArray("no");
    QTest::newRow("hand-eye of hybrid sensor") << "inertial sensor_handeye " + S1 << QByteArray("standard b01");
    QTest::newRow("no hand-eye") << "inertial sensor_handeye " + S2 << QByteArray("none");
    QTest::newRow("not marked for gyro") << "inertial sensor_gyro_calibrate " + S1 << QByteArray("no");
    QTest::newRow("no gyro progress") << "inertial sensor_gyro_progress " + S1 << QByteArray("0.0");

    // inertial: wake-up modes, frequency, warm-up
    QTest::newRow("wake-up modes") << QByteArray("inertial number_of_wakeup_modes") << QByteArray("4");
    QTest::newRow("wake-up mode t01") << QByteArray("inertial wakeup_mode t01") << QByteArray("'wm_usb'");
    QTest::newRow("wake-up mode t04") << QByteArray("inertial wakeup_mode t04") << QByteArray("none");
    QTest::newRow("wake-up description") << QByteArray("inertial wakeup_mode_desc 'wm_radio'")
                                         << QByteArray("'wake by radio'");
    QTest::newRow("frequency") << QByteArray("inertial frequency") << QByteArray("200.0");
    QTest::newRow("frequency limits") << QByteArray("inertial limit frequency") << QByteArray("50.0 500.0");
    QTest::newRow("warm-up off") << QByteArray("inertial warmup") << QByteArray("no");

    // inertial: transceivers
    QTest::newRow("transceiver count") << QByteArray("inertial number_of_transceivers") << QByteArray("2");
    QTest::newRow("transceiver d02") << QByteArray("inertial transceiver d02") << T2;
    QTest::newRow("transceiver present") << "inertial transceiver_present " + T1 << QByteArray("yes");
    QTest::newRow("dongle model text") << QByteArray("inertial transceiver_model_desc NRV RD2")
                                       << QByteArray("\"RD2 Radio Dongle (USB)\"");
    QTest::newRow("transceiver firmware in double quotes")
        << "inertial transceiver_version " + T2 << QByteArray("\"1.4.0\"");
    QTest::newRow("transceiver of sensor") << "inertial transceiver_of_sensor " + S3 << T2;
    QTest::newRow("cable sensor has no transceiver") << "inertial transceiver_of_sensor " + S5 << QByteArray("none");
    QTest::newRow("transceiver channel") << "inertial transceiver_radio_channel " + T2 << QByteArray("55");
    QTest::newRow("available channels") << "inertial number_of_transceiver_available_radio_channels " + T1
                                        << QByteArray("80");
    QTest::newRow("first available channel") << "inertial transceiver_available_radio_channel " + T1 + " t01"
                                             << QByteArray("2");
    QTest::newRow("last available channel") << "inertial transceiver_available_radio_channel " + T1 + " t80"
                                            << QByteArray("81");
    QTest::newRow("unscanned: no suggestion") << "inertial transceiver_suggested_radio_channel " + T2
                                              << QByteArray("0");
    QTest::newRow("unscanned: activity unknown")
        << "inertial transceiver_radio_channel_activity " + T2 + " 20" << QByteArray("-1.0");
    QTest::newRow("scanned: busy channel") << "inertial transceiver_radio_channel_activity " + T1 + " 12"
                                           << QByteArray("1.0");
    QTest::newRow("scanned: channel of the other transceiver")
        << "inertial transceiver_radio_channel_activity " + T1 + " 55" << QByteArray("1.0");
    QTest::newRow("channel outside the band") << "inertial transceiver_radio_channel_activity " + T1 + " 1"
                                              << QByteArray("-1.0");
    QTest::newRow("no scan yet") << QByteArray("inertial number_of_scanned_sensors") << QByteArray("0");

    // bodies, wands, filter
    QTest::newRow("body count") << QByteArray("body number_of_bodies standard") << QByteArray("6");
    QTest::newRow("body count with a body id") << QByteArray("body number_of_bodies standard b03")
                                               << QByteArray("6");
    QTest::newRow("wand count") << QByteArray("body number_of_bodies wand") << QByteArray("1");
    QTest::newRow("standard count") << QByteArray("standard number_of_bodies") << QByteArray("6");
    QTest::newRow("maximum") << QByteArray("standard max_number_of_bodies") << QByteArray("20");
    QTest::newRow("wand devices") << QByteArray("wand number_of_devices") << QByteArray("1");
    QTest::newRow("sensor of body") << QByteArray("body inertial_sensor standard b01") << S1;
    QTest::newRow("body without sensor") << QByteArray("body inertial_sensor standard b03") << QByteArray("none");
    QTest::newRow("body beyond the count") << QByteArray("body calibrated standard b07") << QByteArray("no");
    QTest::newRow("calibrated") << QByteArray("body calibrated standard b02") << QByteArray("yes");
    QTest::newRow("wand calibrated") << QByteArray("body calibrated wand b01") << QByteArray("yes");
    QTest::newRow("active") << QByteArray("body active standard b05") << QByteArray("no");
    QTest::newRow("description") << QByteArray("body desc standard b03") << QByteArray("\"head\"");
    QTest::newRow("empty description") << QByteArray("body desc standard b05") << QByteArray("\"\"");
    QTest::newRow("filter on") << QByteArray("body filter6d_enabled standard b01") << QByteArray("yes");
    QTest::newRow("filter preset") << QByteArray("body filter6d_preset standard b02")
                                   << QByteArray("preset6d_custom");
    QTest::newRow("filter mode") << QByteArray("body filter6d_mode standard b02") << QByteArray("mode6d_smooth");
    QTest::newRow("filter strength") << QByteArray("body filter6d_strength standard b02") << QByteArray("0.35");
    QTest::newRow("filter prediction") << QByteArray("body filter6d_prediction standard b02")
                                       << QByteArray("0.015");
    QTest::newRow("hybrid preset for a hybrid body")
        << QByteArray("body filter6d_preset_available standard b01 preset6d_hybrid_custom") << QByteArray("yes");
    QTest::newRow("no hybrid preset without sensor")
        << QByteArray("body filter6d_preset_available standard b03 preset6d_hybrid") << QByteArray("no");
    QTest::newRow("hybrid mode without sensor")
        << QByteArray("body filter6d_mode_available standard b03 mode6d_hybrid") << QByteArray("no");
    QTest::newRow("filter for standard bodies") << QByteArray("filter6d available standard") << QByteArray("yes");
    QTest::newRow("filter for wands") << QByteArray("filter6d available wand") << QByteArray("yes");
    QTest::newRow("filter modes") << QByteArray("filter6d number_of_modes") << QByteArray("3");
    QTest::newRow("filter presets") << QByteArray("filter6d number_of_presets") << QByteArray("5");
    QTest::newRow("preset id") << QByteArray("filter6d preset_id t02") << QByteArray("preset6d_med_pred");
    QTest::newRow("mode id") << QByteArray("filter6d mode_id t03") << QByteArray("mode6d_hybrid");
    QTest::newRow("preset description") << QByteArray("filter6d preset_desc preset6d_hybrid_custom")
                                        << QByteArray("\"hybrid custom\"");
    QTest::newRow("mode description") << QByteArray("filter6d mode_desc mode6d_smooth") << QByteArray("\"smooth\"");
    QTest::newRow("strength minimum") << QByteArray("filter6d limit strength_min") << QByteArray("0.01");
    QTest::newRow("prediction maximum") << QByteArray("filter6d limit prediction_max") << QByteArray("0.2");

    // calibrations and status
    QTest::newRow("gyro available") << QByteArray("cal available inertial_gyro") << QByteArray("yes");
    QTest::newRow("unknown type not available") << QByteArray("cal available flux") << QByteArray("no");
    QTest::newRow("steps") << QByteArray("cal number_of_steps inertial_alignment") << QByteArray("2");
    QTest::newRow("type description") << QByteArray("cal type_desc inertial_handeye")
                                      << QByteArray("\"Hybrid body calibration\"");
    QTest::newRow("step description") << QByteArray("cal step_desc inertial_gyro s01")
                                      << QByteArray("\"Keep the sensors still\"");
    QTest::newRow("step duration") << QByteArray("cal step_duration inertial_alignment s02") << QByteArray("15.0");
    QTest::newRow("step pause") << QByteArray("cal step_pause inertial_alignment s02") << QByteArray("yes 5");
    QTest::newRow("no step pause") << QByteArray("cal step_pause inertial_gyro s01") << QByteArray("no 0");
    QTest::newRow("tracking runs") << QByteArray("status active") << QByteArray("tracking");
    QTest::newRow("no step active") << QByteArray("status step_active") << QByteArray("none");
    QTest::newRow("no error") << QByteArray("status err") << QByteArray("0 \"\"");
}

void tst_SimulatedController::queries()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, value);
    ControllerProbe probe;
    QCOMPARE(probe.ask("norvane get " + path), "norvane set " + path + ' ' + value);
}

void tst_SimulatedController::settings_data()
{
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("value");

    QTest::newRow("frequency") << QByteArray("inertial frequency 100.000000") << QByteArray("inertial frequency")
                               << QByteArray("100.0");
    QTest::newRow("frequency reaches the sensors")
        << QByteArray("inertial frequency 80.000000") << "inertial sensor_output_frequency " + S4 << QByteArray("80.0");
    QTest::newRow("warm-up") << QByteArray("inertial warmup yes") << QByteArray("inertial warmup") << QByteArray("yes");
    QTest::newRow("wake-up mode") << "inertial sensor_wakeup_mode " + S1 + " 'wm_tap'"
                                  << "inertial sensor_wakeup_mode " + S1 << QByteArray("'wm_tap'");
    QTest::newRow("sleep timeout") << "inertial sensor_sleep_timeout " + S1 + " 10"
                                   << "inertial sensor_sleep_timeout " + S1 << QByteArray("10");
    QTest::newRow("sensor channel") << "inertial sensor_radio_channel " + S2 + " 40"
                                    << "inertial sensor_radio_channel " + S2 << QByteArray("40");
    QTest::newRow("sensor off its transceiver's channel is out of reach")
        << "inertial sensor_radio_channel " + S2 + " 40" << "inertial sensor_present " + S2 << QByteArray("no");
    QTest::newRow("sensor moved to the other transceiver")
        << "inertial sensor_radio_channel " + S1 + " 55" << "inertial transceiver_of_sensor " + S1 << T2;
    QTest::newRow("transceiver channel") << "inertial transceiver_radio_channel " + T2 + " 20"
                                         << "inertial transceiver_radio_channel " + T2 << QByteArray("20");
    QTest::newRow("transceiver leaves its sensors behind")
        << "inertial transceiver_radio_channel " + T1 + " 20" << "inertial sensor_present " + S1 << QByteArray("no");
    QTest::newRow("gyro mark") << "inertial sensor_gyro_calibrate " + S2 + " yes"
                               << "inertial sensor_gyro_calibrate " + S2 << QByteArray("yes");
    QTest::newRow("hand-eye mark") << "inertial sensor_handeye_calibrate " + S2 + " yes"
                                   << "inertial sensor_handeye_calibrate " + S2 << QByteArray("yes");
    QTest::newRow("scan channels") << QByteArray("inertial number_of_scan_channels 1")
                                   << QByteArray("inertial number_of_scan_channels") << QByteArray("1");
    QTest::newRow("number of bodies") << QByteArray("standard number_of_bodies 8")
                                      << QByteArray("body number_of_bodies standard") << QByteArray("8");
    QTest::newRow("description with blanks") << QByteArray("body desc standard b05 \"left foot\"")
                                             << QByteArray("body desc standard b05") << QByteArray("\"left foot\"");
    QTest::newRow("description with quotes inside") << QByteArray("body desc standard b05 \"the \"big\" one\"")
                                                    << QByteArray("body desc standard b05")
                                                    << QByteArray("\"the \"big\" one\"");
    QTest::newRow("active") << QByteArray("body active standard b01 no") << QByteArray("body active standard b01")
                            << QByteArray("no");
    QTest::newRow("assign") << "body inertial_sensor standard b03 " + S4
                            << QByteArray("body inertial_sensor standard b03") << S4;
    QTest::newRow("assignment shows at the sensor") << "body inertial_sensor standard b03 " + S4
                                                    << "inertial body_of_sensor " + S4 << QByteArray("standard b03");
    QTest::newRow("unassign") << QByteArray("body inertial_sensor standard b01 none")
                              << "inertial body_of_sensor " + S1 << QByteArray("none");
    QTest::newRow("unassign drops the hand-eye calibration") << QByteArray("body inertial_sensor standard b01 none")
                                                             << "inertial sensor_handeye " + S1 << QByteArray("none");
    QTest::newRow("filter off") << QByteArray("body filter6d_enabled standard b01 no")
                                << QByteArray("body filter6d_enabled standard b01") << QByteArray("no");
    QTest::newRow("preset") << QByteArray("body filter6d_preset standard b03 preset6d_default")
                            << QByteArray("body filter6d_preset standard b03") << QByteArray("preset6d_default");
    QTest::newRow("preset brings its prediction") << QByteArray("body filter6d_preset standard b02 preset6d_med_pred")
                                                  << QByteArray("body filter6d_prediction standard b02")
                                                  << QByteArray("0.03");
    QTest::newRow("custom preset keeps the values") << QByteArray("body filter6d_preset standard b03 preset6d_custom")
                                                    << QByteArray("body filter6d_prediction standard b03")
                                                    << QByteArray("0.03");
    QTest::newRow("strength") << QByteArray("body filter6d_strength standard b02 0.700000")
                              << QByteArray("body filter6d_strength standard b02") << QByteArray("0.7");
    QTest::newRow("prediction") << QByteArray("body filter6d_prediction standard b02 0.040000")
                                << QByteArray("body filter6d_prediction standard b02") << QByteArray("0.04");
    QTest::newRow("mode") << QByteArray("body filter6d_mode standard b02 mode6d_standard")
                          << QByteArray("body filter6d_mode standard b02") << QByteArray("mode6d_standard");
    QTest::newRow("wand filter") << QByteArray("body filter6d_enabled wand b01 yes")
                                 << QByteArray("body filter6d_enabled wand b01") << QByteArray("yes");
    QTest::newRow("pulse by frequency") << QByteArray("tracking pulse frequency 120.000000")
                                        << QByteArray("tracking pulse") << QByteArray("frequency 120.0");
    QTest::newRow("pulse by sensor") << "tracking pulse inertial_sensor " + S2 << QByteArray("tracking pulse")
                                     << "inertial_sensor " + S2;
    QTest::newRow("pulse by cameras") << QByteArray("tracking pulse synchronous_cameras")
                                      << QByteArray("tracking pulse") << QByteArray("synchronous_cameras");
}

void tst_SimulatedController::settings()
{
    QFETCH(QByteArray, setting);
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, value);
    ControllerProbe probe;
    QCOMPARE(probe.ask("norvane set " + setting), QByteArray("norvane ok"));
    QCOMPARE(probe.value(path), value);
}

void tst_SimulatedController::rejected_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("path");    // a query whose answer must not change
    QTest::addColumn<QByteArray>("value");

    QTest::newRow("not a request") << QByteArray("hello") << 2 << QByteArray("inertial frequency")
                                   << QByteArray("200.0");
    QTest::newRow("unknown parameter") << QByteArray("norvane get inertial bogus") << 1
                                       << QByteArray("inertial frequency") << QByteArray("200.0");
    QTest::newRow("unknown command") << QByteArray("norvane inertial reboot") << 1
                                     << QByteArray("inertial number_of_sensors") << QByteArray("5");
    QTest::newRow("read-only parameter") << QByteArray("norvane set inertial number_of_sensors 3") << 7
                                         << QByteArray("inertial number_of_sensors") << QByteArray("5");
    QTest::newRow("setting without value") << QByteArray("norvane set inertial frequency") << 2
                                           << QByteArray("inertial frequency") << QByteArray("200.0");
    QTest::newRow("value not a number") << QByteArray("norvane set inertial frequency fast") << 2
                                        << QByteArray("inertial frequency") << QByteArray("200.0");
    QTest::newRow("frequency above limit") << QByteArray("norvane set inertial frequency 1000.000000") << 3
                                           << QByteArray("inertial frequency") << QByteArray("200.0");
    QTest::newRow("surplus word") << QByteArray("norvane get inertial frequency now") << 2
                                  << QByteArray("inertial frequency") << QByteArray("200.0");
    QTest::newRow("sensor index too high") << QByteArray("norvane get inertial sensor d06") << 5
                                           << QByteArray("inertial number_of_sensors") << QByteArray("5");
    QTest::newRow("index without prefix") << QByteArray("norvane get inertial sensor 1") << 2
                                          << QByteArray("inertial number_of_sensors") << QByteArray("5");
    QTest::newRow("serial without its quotes") << QByteArray("norvane get inertial sensor_present NRV IMU3 10231")
                                               << 5 << QByteArray("inertial number_of_sensors") << QByteArray("5");
    QTest::newRow("asleep sensor cannot change mode")
        << "norvane set inertial sensor_wakeup_mode " + S3 + " 'wm_radio'" << 6 << "inertial sensor_wakeup_mode " + S3
        << QByteArray("'wm_tap'");
    QTest::newRow("asleep sensor has no battery reading")
        << "norvane get inertial sensor_battery " + S3 << 6 << "inertial sensor_present " + S3 << QByteArray("no");
    QTest::newRow("mode the sensor lacks") << "norvane set inertial sensor_wakeup_mode " + S5 + " 'wm_radio'" << 3
                                           << "inertial sensor_wakeup_mode " + S5 << QByteArray("'wm_usb'");
    QTest::newRow("unknown mode") << "norvane set inertial sensor_wakeup_mode " + S1 + " 'wm_shake'" << 5
                                  << "inertial sensor_wakeup_mode " + S1 << QByteArray("'wm_radio'");
    QTest::newRow("channel outside the band") << "norvane set inertial transceiver_radio_channel " + T1 + " 90" << 3
                                              << "inertial transceiver_radio_channel " + T1 << QByteArray("35");
    QTest::newRow("cable sensor has no channel") << "norvane set inertial sensor_radio_channel " + S5 + " 40" << 7
                                                 << "inertial sensor_radio_channel " + S5 << QByteArray("usb");
    QTest::newRow("too many bodies") << QByteArray("norvane set standard number_of_bodies 21") << 3
                                     << QByteArray("standard number_of_bodies") << QByteArray("6");
    QTest::newRow("body beyond the maximum") << QByteArray("norvane get body desc standard b21") << 5
                                             << QByteArray("standard number_of_bodies") << QByteArray("6");
    QTest::newRow("uncalibrated body cannot be active") << QByteArray("norvane set body active standard b04 yes")
                                                        << 7 << QByteArray("body active standard b04")
                                                        << QByteArray("no");
    QTest::newRow("sensor on another body") << "norvane set body inertial_sensor standard b03 " + S1 << 7
                                            << QByteArray("body inertial_sensor standard b03") << QByteArray("none");
    QTest::newRow("wand takes no sensor") << "norvane set body inertial_sensor wand b01 " + S4 << 7
                                          << "inertial body_of_sensor " + S4 << QByteArray("none");
    QTest::newRow("strength of a standard preset") << QByteArray("norvane set body filter6d_strength standard b03 0.2")
                                                   << 7 << QByteArray("body filter6d_strength standard b03")
                                                   << QByteArray("0.5");
    QTest::newRow("strength out of range") << QByteArray("norvane set body filter6d_strength standard b02 1.5") << 3
                                           << QByteArray("body filter6d_strength standard b02") << QByteArray("0.35");
    QTest::newRow("hybrid preset without sensor")
        << QByteArray("norvane set body filter6d_preset standard b03 preset6d_hybrid") << 3
        << QByteArray("body filter6d_preset standard b03") << QByteArray("preset6d_med_pred");
    QTest::newRow("unknown preset") << QByteArray("norvane set body filter6d_preset standard b03 preset6d_magic") << 5
                                    << QByteArray("body filter6d_preset standard b03") << QByteArray("preset6d_med_pred");
    QTest::newRow("pulse above the limit") << QByteArray("norvane set tracking pulse frequency 2000.000000") << 3
                                           << QByteArray("tracking pulse") << QByteArray("synchronous_cameras");
    QTest::newRow("pulse by a sensor on no body") << "norvane set tracking pulse inertial_sensor " + S4 << 7
                                                  << QByteArray("tracking pulse") << QByteArray("synchronous_cameras");
    QTest::newRow("scan channel not set up") << "norvane set inertial scan_transceiver_channel t01 " + T1 + " 35" << 7
                                             << QByteArray("inertial number_of_scan_channels") << QByteArray("0");
    QTest::newRow("scan without channels") << QByteArray("norvane inertial scan_sensors") << 7
                                           << QByteArray("inertial number_of_scanned_sensors") << QByteArray("0");
    QTest::newRow("add a paired sensor") << "norvane inertial add_sensor " + S4 + " 55" << 7
                                         << QByteArray("inertial number_of_sensors") << QByteArray("5");
    QTest::newRow("add a sensor nobody has seen") << QByteArray("norvane inertial add_sensor NRV IMU3 '99999' 35") << 5
                                                  << QByteArray("inertial number_of_sensors") << QByteArray("5");
    QTest::newRow("delete an unknown sensor") << QByteArray("norvane inertial delete_sensor NRV IMU3 '99999'") << 5
                                              << QByteArray("inertial number_of_sensors") << QByteArray("5");
    QTest::newRow("accept without a result") << "norvane inertial accept_new_sensor_gyro " + S1 << 7
                                             << "inertial sensor_handeye " + S1 << QByteArray("standard b01");
    QTest::newRow("no new result to read") << "norvane get inertial new_sensor_handeye " + S1 << 7
                                           << "inertial sensor_handeye " + S1 << QByteArray("standard b01");
    QTest::newRow("unknown calibration") << QByteArray("norvane cal flux start") << 5 << QByteArray("status active")
                                         << QByteArray("tracking");
    QTest::newRow("gyro run without sensors") << QByteArray("norvane cal inertial_gyro start") << 7
                                              << QByteArray("status active") << QByteArray("tracking");
}

void tst_SimulatedController::rejected()
{
    QFETCH(QByteArray, line);
    QFETCH(int, code);
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, value);
    ControllerProbe probe;
    const QByteArray reply = probe.ask(line);
    QVERIFY2(reply.startsWith("norvane err " + QByteArray::number(code) + " \""), reply.constData());
    QVERIFY2(reply.endsWith('"') && reply.count('"') >= 2, reply.constData());
    QCOMPARE(probe.value(path), value);
}

void tst_SimulatedController::version_gates_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("known");

    QTest::newRow("1.11 knows no inertial sensors") << QByteArray("1.11.4")
                                                    << QByteArray("norvane get inertial available") << false;
    QTest::newRow("1.11 has no body sensors") << QByteArray("1.11.4")
                                              << QByteArray("norvane get body inertial_sensor standard b01") << false;
    QTest::newRow("1.11 has bodies") << QByteArray("1.11.4") << QByteArray("norvane get body desc standard b01")
                                     << true;
    QTest::newRow("1.8 has no lock") << QByteArray("1.8.0") << QByteArray("norvane get config is_changeable") << false;
    QTest::newRow("1.9 has the lock") << QByteArray("1.9.0") << QByteArray("norvane get config is_changeable") << true;
    QTest::newRow("1.3 has no step durations") << QByteArray("1.3.9")
                                               << QByteArray("norvane get cal step_duration inertial_gyro s01") << false;
    QTest::newRow("1.12 has inertial sensors") << QByteArray("1.12.0") << QByteArray("norvane get inertial available")
                                               << true;
    QTest::newRow("1.20 has no tracking pulse") << QByteArray("1.20.7") << QByteArray("norvane get tracking pulse")
                                                << false;
    QTest::newRow("1.20 cannot set the pulse") << QByteArray("1.20.7")
                                               << QByteArray("norvane set tracking pulse synchronous_cameras") << false;
    QTest::newRow("1.20 has no filter presets") << QByteArray("1.20.7")
                                                << QByteArray("norvane get filter6d number_of_presets") << false;
    QTest::newRow("1.20 has the filter switch") << QByteArray("1.20.7")
                                                << QByteArray("norvane get body filter6d_enabled standard b01") << true;
    QTest::newRow("1.20 has no sensor delay")
        << QByteArray("1.20.7") << "norvane get inertial new_sensor_delay " + S1 << false;
    QTest::newRow("1.21 has the tracking pulse") << QByteArray("1.21.0") << QByteArray("norvane get tracking pulse")
                                                 << true;
    QTest::newRow("2.0 has everything") << QByteArray("2.0.0") << QByteArray("norvane get filter6d preset_id t01")
                                        << true;
}

void tst_SimulatedController::version_gates()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, line);
    QFETCH(bool, known);
    ControllerProbe probe;
    QVERIFY(probe.load("{\"extends\": \"default\", \"system\": {\"version\": \"" + version + "\"}}"));
    const QByteArray reply = probe.ask(line);
    QVERIFY2(reply.startsWith("norvane err 1 ") != known, reply.constData());
}

void tst_SimulatedController::locked_configuration_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("allowed");

    QTest::newRow("warm-up") << QByteArray("norvane set inertial warmup yes") << true;
    QTest::newRow("frequency") << QByteArray("norvane set inertial frequency 100.000000") << false;
    QTest::newRow("body name") << QByteArray("norvane set body desc standard b01 \"x\"") << false;
    QTest::newRow("filter") << QByteArray("norvane set body filter6d_enabled standard b01 no") << false;
    QTest::newRow("adding a sensor") << QByteArray("norvane inertial add_sensor NRV IMU3 '10240' 35") << false;
    QTest::newRow("deleting a sensor") << "norvane inertial delete_sensor " + S4 << false;
    QTest::newRow("starting a calibration") << QByteArray("norvane cal reflex_scan start") << false;
    QTest::newRow("stopping a calibration") << QByteArray("norvane cal reflex_scan stop") << true;
    QTest::newRow("tracking") << QByteArray("norvane tracking stop") << true;
    QTest::newRow("reading") << QByteArray("norvane get body desc standard b01") << true;
}

void tst_SimulatedController::locked_configuration()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, allowed);
    ControllerProbe probe;
    QVERIFY(probe.load_file(QStringLiteral(SCENARIO_DIR "/locked_configuration.json")));
    QCOMPARE(probe.value("config is_changeable"), QByteArray("no"));
    const QByteArray reply = probe.ask(line);
    if (allowed)
        QVERIFY2(!reply.startsWith("norvane err"), reply.constData());
    else
        QCOMPARE(reply, QByteArray("norvane err 4 \"configuration is locked\""));
}

void tst_SimulatedController::faults_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("delay_ms");
    QTest::addColumn<bool>("silent");
    QTest::addColumn<bool>("hang_up");
    QTest::addColumn<QByteArray>("warmup");    // the warm-up state afterwards

    const QByteArray on = "norvane set inertial warmup yes";
    QTest::newRow("fail: refused and not done")
        << QByteArray(R"({"line": "norvane set inertial warmup yes", "kind": "fail", "code": 12, "text": "no radio"})")
        << on << QByteArray("norvane err 12 \"no radio\"") << 0 << false << false << QByteArray("no");
    QTest::newRow("late: done, answered late")
        << QByteArray(R"({"line": "norvane set inertial warmup yes", "kind": "late", "delay_ms": 2500})") << on
        << QByteArray("norvane ok") << 2500 << false << false << QByteArray("yes");
    QTest::newRow("garbage: done, answer garbled")
        << QByteArray(R"({"line": "norvane set inertial warmup", "match": "prefix", "kind": "garbage", "reply": "norvane okay"})")
        << on << QByteArray("norvane okay") << 0 << false << false << QByteArray("yes");
    QTest::newRow("garbage: an overlong answer")
        << QByteArray(R"({"line": "warmup yes", "match": "contains", "kind": "garbage", "length": 1000})") << on
        << QByteArray(1000, 'x') << 0 << false << false << QByteArray("yes");
    QTest::newRow("silent: done, never answered")
        << QByteArray(R"({"line": "norvane set inertial warmup yes", "kind": "silent"})") << on
        << QByteArray("norvane ok") << 0 << true << false << QByteArray("yes");
    QTest::newRow("hang-up: done, link dropped")
        << QByteArray(R"({"line": "norvane set inertial warmup yes", "kind": "hang_up"})") << on
        << QByteArray("norvane ok") << 0 << false << true << QByteArray("yes");
    QTest::newRow("other lines pass")
        << QByteArray(R"({"line": "norvane set inertial warmup no", "kind": "fail"})") << on
        << QByteArray("norvane ok") << 0 << false << false << QByteArray("yes");
    QTest::newRow("armed later")
        << QByteArray(R"({"line": "norvane set inertial warmup yes", "kind": "fail", "after_s": 60})") << on
        << QByteArray("norvane ok") << 0 << false << false << QByteArray("yes");
}

void tst_SimulatedController::faults()
{
    QFETCH(QByteArray, fault);
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, reply);
    QFETCH(int, delay_ms);
    QFETCH(bool, silent);
    QFETCH(bool, hang_up);
    QFETCH(QByteArray, warmup);
    ControllerProbe probe;
    QVERIFY(probe.load("{\"extends\": \"default\", \"faults\": [" + fault + "]}"));
    const SimReply answer = probe.controller.handle(line);
    QCOMPARE(answer.line, reply);
    QCOMPARE(answer.delay_ms, delay_ms);
    QCOMPARE(answer.silent, silent);
    QCOMPARE(answer.hang_up, hang_up);
    QCOMPARE(probe.value("inertial warmup"), warmup);
}

void tst_SimulatedController::fault_counting()
{
    ControllerProbe probe;
    QVERIFY(probe.load(R"({"extends": "default", "faults": [
        {"line": "norvane get inertial frequency", "kind": "fail", "skip": 2, "times": 2}]})"));
    QList<bool> failed;
    for (int i = 0; i < 6; ++i)
        failed << probe.ask("norvane get inertial frequency").startsWith("norvane err");
    QCOMPARE(failed, (QList<bool>{false, false, true, true, false, false}));
}

void tst_SimulatedController::long_command_delay_follows_clock_speed()
{
    FastClock normal(1.0);
    FastClock fast(10.0);
    SimulatedController at_normal_speed(&normal);
    SimulatedController at_ten_times(&fast);
    const QList<QByteArray> scan = {"norvane set inertial number_of_scan_channels 1",
                                    "norvane set inertial scan_transceiver_channel t01 " + T1 + " 35",
                                    "norvane inertial scan_sensors"};
    SimReply slow;
    SimReply quick;
    for (const QByteArray& line : scan) {
        slow = at_normal_speed.handle(line);
        quick = at_ten_times.handle(line);
    }
    QCOMPARE(slow.line, QByteArray("norvane ok"));
    // Long enough to be seen by an asynchronous host, short of any time-out.
    QVERIFY(slow.delay_ms >= 200 && slow.delay_ms < 2000);
    QCOMPARE(quick.delay_ms, slow.delay_ms / 10);
    QCOMPARE(at_normal_speed.handle("norvane get system version").delay_ms, 0);
}

void tst_SimulatedController::sensor_lifecycle()
{
    // Found by a scan, added, put on a body, deleted: every answer on the
    // way agrees with the others.
    ControllerProbe probe;
    const QByteArray added = "NRV IMU3 '10241'";
    QCOMPARE(probe.ask("norvane set inertial number_of_scan_channels 1"), QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane set inertial scan_transceiver_channel t01 " + T1 + " 55"),
             QByteArray("norvane ok"));
    QCOMPARE(probe.ask("norvane inertial scan_sensors"), QByteArray("norvane ok"));
    QByteArray count;
    for (int poll = 0; poll < 100 && (count.isEmpty() || count == "-1"); ++poll)
        count = probe.value("inertial number_of_scanned_sensors");
    // The waiting sensor and the paired one that is awake; not the sleeper.
    QCOMPARE(count, QByteArray("2"));
    QCOMPARE(probe.value("inertial scanned_sensor d01"), added + " 55");
    QCOMPARE(probe.value("inertial scanned_sensor d02"), S4 + " 55");
    QCOMPARE(probe.ask("norvane set inertial number_of_scan_channels 0"), QByteArray("norvane ok"));

    QCOMPARE(probe.ask("norvane inertial add_sensor " + added + " 55"), QByteArray("norvane ok"));
    QCOMPARE(probe.value("inertial number_of_sensors"), QByteArray("6"));
    QCOMPARE(probe.value("inertial sensor d06"), added);
    QCOMPARE(probe.value("inertial transceiver_of_sensor " + added), T2);
    QCOMPARE(probe.value("inertial sensor_present " + added), QByteArray("yes"));
    QCOMPARE(probe.value("inertial sensor_has_storage " + added), QByteArray("yes"));
    QCOMPARE(probe.ask("norvane set body inertial_sensor standard b06 " + added), QByteArray("norvane ok"));
    QCOMPARE(probe.value("inertial body_of_sensor " + added), QByteArray("standard b06"));
    QCOMPARE(probe.ask("norvane set tracking pulse inertial_sensor " + added), QByteArray("norvane ok"));

    QCOMPARE(probe.ask("norvane inertial delete_sensor " + added), QByteArray("norvane ok"));
    QCOMPARE(probe.value("inertial number_of_sensors"), QByteArray("5"));
    QCOMPARE(probe.value("body inertial_sensor standard b06"), QByteArray("none"));
    QCOMPARE(probe.value("tracking pulse"), QByteArray("synchronous_cameras"));
    QVERIFY(probe.ask("norvane get inertial sensor_present " + added).startsWith("norvane err 5 "));
    // Still out there: it can be added again.
    QCOMPARE(probe.ask("norvane inertial add_sensor " + added + " 55"), QByteArray("norvane ok"));
}

QTEST_APPLESS_MAIN(tst_SimulatedController)
#include "tst_SimulatedController.moc"
