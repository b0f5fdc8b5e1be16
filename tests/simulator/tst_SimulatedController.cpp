#include <QtTest>

#include <algorithm>

#include "simulator/ManualClock.h"
#include "simulator/SimulatedController.h"

// The simulated controller, on a clock the test moves, talked to in scripts
// of steps separated by '|':
//   PATH = VALUE      "norvane get PATH" is answered "norvane set PATH VALUE"
//   LINE -> REPLY     "norvane LINE" is answered REPLY ("ok", "set ..." and
//                     "err ..." start with "norvane ", "err N" alone stands for
//                     any text); a delay, silence or hang-up follows as
//                     " (after N ms)", " (no answer)", " (hangs up)"
//   +SECONDS          time passes
//   load SCENARIO     an example file (NAME.json) or JSON; "load X -> TEXT"
//                     fails with TEXT in the error; "with KEYS" loads the
//                     default scenario with these keys changed
// $S1..$S5 and $T1, $T2 are the default scenario's sensors and transceivers:
// S1 on body 1 (hybrid), S2 on body 2, S3 asleep in tap mode, S4 on no body
// with a low battery, S5 on cable; T1 on channel 35 (measured), T2 on 55.
class tst_SimulatedController : public QObject
{
    Q_OBJECT

private slots:
    void language_data();
    void language() { run(); }
    void model_data();
    void model() { run(); }
    void calibrations_data();
    void calibrations() { run(); }
    void faults_data();
    void faults() { run(); }
    void scenarios_data();
    void scenarios() { run(); }
    void channel_scan_suggests_the_quietest();

private:
    static void run()
    {
        QFETCH(QByteArray, script);
        const QString problem = tst_SimulatedController().play(script);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
    }
    // "" when every step went as written, else the first one that did not.
    QString play(const QByteArray& script);
    QByteArray ask(const QByteArray& line) { return controller.handle(expand(line)).line; }
    static QByteArray expand(QByteArray text)
    {
        for (const char* device : {"S1 NRV IMU3 '10231'", "S2 NRV IMU3 '10232'", "S3 NRV IMU3 '10233'",
                                   "S4 NRV IMU3 '10234'", "S5 NRV IMU3C '10235'", "T1 NRV RD2 '70011'",
                                   "T2 NRV RD2 '70012'"})
            text.replace('$' + QByteArray(device, 2), QByteArray(device + 3));
        return text;
    }
    // A _data table of scripts from "name: script" lines; indented lines go on.
    static void rows(const char* table)
    {
        QTest::addColumn<QByteArray>("script");
        for (const QByteArray& row : QByteArray(table).replace("\n ", " ").split('\n')) {
            const int colon = row.indexOf(": ");
            if (colon > 0)
                QTest::newRow(row.left(colon).constData()) << row.mid(colon + 2).simplified();
        }
    }

    // Some time after the clock's zero, so that nothing can pass for measured
    // from the start of the scenario when it is measured from zero.
    ManualClock clock{3600 * 1000};
    SimulatedController controller{&clock};
};

QString tst_SimulatedController::play(const QByteArray& script)
{
    for (QByteArray step : expand(script).split('|')) {
        step = step.trimmed();
        const int arrow = step.indexOf(" -> ");
        const int equals = step.indexOf(" = ");
        QByteArray expected = step.mid(arrow + 4);
        QByteArray got;
        if (step.startsWith('+')) {
            clock.advance(qint64(step.mid(1).toDouble() * 1000));
            continue;
        }
        if (step.startsWith("load ") || step.startsWith("with ")) {
            QString error;
            QByteArray scenario = arrow > 0 ? step.mid(5, arrow - 5) : step.mid(5);
            if (step.startsWith("with "))
                scenario = "{\"extends\": \"default\", " + scenario + '}';
            const bool loaded =
                scenario.endsWith(".json")
                    ? controller.load_scenario_file(QString::fromLatin1(SCENARIO_DIR "/" + scenario), &error)
                    : controller.load_scenario(scenario, &error);
            if (arrow < 0 ? loaded : !loaded && error.contains(QString::fromUtf8(expected)))
                continue;
            got = loaded ? "loaded" : error.toUtf8();
        } else if (arrow < 0 && equals < 0) {
            return QStringLiteral("cannot read the step \"%1\"").arg(QString::fromLatin1(step));
        } else {
            QByteArray request = "norvane " + step.left(arrow);
            if (arrow < 0) {
                request = "norvane get " + step.left(equals);
                expected = "norvane set " + step.left(equals) + ' ' + step.mid(equals + 3);
            } else if (QRegularExpression("^(ok\\b|set |err )").match(QString::fromLatin1(expected)).hasMatch()) {
                expected.prepend("norvane ");
            }
            const SimReply reply = controller.handle(request);
            got = reply.line + (reply.delay_ms ? " (after " + QByteArray::number(reply.delay_ms) + " ms)" : "")
                  + (reply.silent ? " (no answer)" : "") + (reply.hang_up ? " (hangs up)" : "");
            QString pattern = QRegularExpression::escape(QString::fromLatin1(expected));
            if (QRegularExpression("^norvane err \\d+$").match(QString::fromLatin1(expected)).hasMatch())
                pattern += " \"[^\"]*\"";   // any text
            if (QRegularExpression('^' + pattern + '$').match(QString::fromLatin1(got)).hasMatch())
                continue;
        }
        return QStringLiteral("%1\n   got: %2").arg(QString::fromLatin1(step), QString::fromLatin1(got));
    }
    return QString();
}

// Every root's queries in the forms the plug-in reads, settings seen in
// later answers, and each refusal leaving the model as it was.
void tst_SimulatedController::language_data()
{
    rows(R"script(
system, cameras, sync card: system type = NORVANE-DUO | system firmware_version = 4.2.1 | tracking available = yes
 | synccard output_frequency = 60.0
inertial sensors: inertial sensor d05 = $S5 | get inertial sensor d06 -> err 5 | get inertial sensor 1 -> err 2 "bad sensor index 1"
 | inertial body_of_sensor $S4 = none | inertial sensor_version $S3 = '2.2.7' | inertial sensor_output_frequency $S4 = 100.0
 | inertial sensor_output_frequency $S1 = 200.0 | inertial sensor_radio_channel $S5 = usb
 | inertial sensor_model_desc NRV IMU3 = "IMU3 inertial sensor" | inertial wakeup_mode t04 = none
 | inertial wakeup_mode_desc 'wm_radio' = 'wake by radio' | inertial sensor_wakeup_mode_available $S5 'wm_radio' = no
inertial transceivers: inertial transceiver d02 = $T2 | inertial transceiver_of_sensor $S5 = none
 | inertial transceiver_model_desc NRV RD2 = "RD2 Radio Dongle (USB)" | inertial transceiver_version $T2 = "1.4.0"
 | inertial transceiver_available_radio_channel $T1 t80 = 81 | get inertial transceiver_available_radio_channel $T1 t81 -> err 5
 | inertial transceiver_suggested_radio_channel $T2 = 0 | inertial transceiver_radio_channel_activity $T2 20 = -1.0
 | inertial transceiver_radio_channel_activity $T1 55 = 1.0 | inertial transceiver_radio_channel_activity $T1 1 = -1.0
 | inertial limit frequency = 50.0 500.0
bodies and filters: body number_of_bodies standard b03 = 6 | body number_of_bodies wand = 1 | wand number_of_devices = 1
 | standard max_number_of_bodies = 20 | body calibrated standard b07 = no | body desc standard b05 = ""
 | get body desc standard b21 -> err 5 | filter6d available wand = yes
 | body filter6d_preset_available standard b03 preset6d_hybrid = no | body filter6d_mode_available standard b01 mode6d_hybrid = yes
 | filter6d preset_desc preset6d_hybrid_custom = "hybrid custom" | filter6d limit prediction_max = 0.2
calibrations: cal available flux = no | cal type_desc inertial_handeye = "Hybrid body calibration"
 | cal step_desc inertial_gyro s01 = "Keep the sensors still" | cal step_duration inertial_alignment s02 = 15.0
 | cal step_pause inertial_alignment s02 = yes 5 | cal step_pause inertial_gyro s01 = no 0
 | get cal step_pause inertial_gyro s02 -> err 5
sensor settings: set inertial frequency 80.000000 -> ok | inertial sensor_output_frequency $S4 = 80.0
 | set inertial sensor_wakeup_mode $S1 'wm_tap' -> ok | inertial sensor_wakeup_mode $S1 = 'wm_tap'
 | set inertial sensor_sleep_timeout $S1 240 -> ok | inertial sensor_sleep_timeout $S1 = 240
 | set inertial sensor_gyro_calibrate $S2 yes -> ok | inertial sensor_gyro_calibrate $S2 = yes
 | set inertial sensor_handeye_calibrate $S2 yes -> ok | inertial sensor_handeye_calibrate $S2 = yes
radio channels: set inertial sensor_radio_channel $S1 55 -> ok | inertial transceiver_of_sensor $S1 = $T2
 | set inertial sensor_radio_channel $S2 20 -> ok | inertial sensor_present $S2 = no
 | set inertial sensor_radio_channel $S2 35 -> err 6 | set inertial transceiver_radio_channel $T1 20 -> ok
 | inertial transceiver_radio_channel $T1 = 20 | inertial sensor_present $S2 = yes
 | set inertial transceiver_radio_channel $T2 40 -> ok | inertial sensor_present $S1 = no
bodies: set standard number_of_bodies 8 -> ok | body number_of_bodies standard = 8
 | set body desc standard b05 "the "big" one" -> ok | body desc standard b05 = "the "big" one"
 | set body active standard b01 no -> ok | body active standard b01 = no | set body inertial_sensor standard b03 $S4 -> ok
 | inertial body_of_sensor $S4 = standard b03 | set body inertial_sensor standard b01 none -> ok
 | body inertial_sensor standard b01 = none | inertial sensor_handeye $S1 = none
filters: set body filter6d_enabled wand b01 yes -> ok | body filter6d_enabled wand b01 = yes
 | set body filter6d_strength standard b02 0.700000 -> ok | body filter6d_strength standard b02 = 0.7
 | set body filter6d_mode standard b02 mode6d_standard -> ok | body filter6d_mode standard b02 = mode6d_standard
 | set body filter6d_prediction standard b02 0.040000 -> ok | set body filter6d_preset standard b02 preset6d_med_pred -> ok
 | body filter6d_prediction standard b02 = 0.03 | set body filter6d_preset standard b03 preset6d_custom -> ok
 | body filter6d_preset standard b03 = preset6d_custom | body filter6d_prediction standard b03 = 0.03
tracking pulse: set tracking pulse frequency 120.000000 -> ok | tracking pulse = frequency 120.0
 | set tracking pulse inertial_sensor $S2 -> ok | tracking pulse = inertial_sensor $S2
 | set tracking pulse synchronous_cameras -> ok | tracking pulse = synchronous_cameras
 | with "system": {"type": "PORTAFRAME"} | set tracking pulse frequency 401.000000 -> err 3
 | set tracking pulse frequency 400.000000 -> ok
unknown: get inertial bogus -> err 1 "unknown parameter inertial bogus" | inertial reboot -> err 1 "unknown command inertial reboot"
 | set inertial number_of_sensors 3 -> err 7 "parameter inertial number_of_sensors is read-only"
malformed: set inertial frequency -> err 2 | set inertial frequency fast -> err 2 | get inertial frequency now -> err 2
 | get inertial -> err 2 | inertial frequency = 200.0
out of range: set inertial frequency 500.100000 -> err 3 "frequency must be 50.0 to 500.0 Hz"
 | set inertial frequency 49.900000 -> err 3 | set standard number_of_bodies 21 -> err 3
 | set inertial transceiver_radio_channel $T1 90 -> err 3 | set body filter6d_strength standard b02 1.5 -> err 3
 | set body filter6d_preset standard b03 preset6d_hybrid -> err 3 | set inertial sensor_wakeup_mode $S5 'wm_radio' -> err 3
 | set inertial sensor_sleep_timeout $S1 241 -> err 3 | inertial frequency = 200.0 | standard number_of_bodies = 6
 | body filter6d_preset standard b03 = preset6d_med_pred | inertial sensor_wakeup_mode $S5 = 'wm_usb'
no such item: set inertial sensor_wakeup_mode $S1 'wm_shake' -> err 5 | get inertial sensor_present NRV IMU3 10231 -> err 5
 | set body filter6d_preset standard b03 preset6d_magic -> err 5 | inertial add_sensor NRV IMU3 '99999' 35 -> err 5
 | inertial delete_sensor NRV IMU3 '99999' -> err 5 | cal flux start -> err 5 | inertial number_of_sensors = 5
unreachable: set inertial sensor_wakeup_mode $S3 'wm_radio' -> err 6 | inertial sensor_wakeup_mode $S3 = 'wm_tap'
not now: set body active standard b04 yes -> err 7 | set body inertial_sensor standard b03 $S1 -> err 7
 | set body inertial_sensor wand b01 $S4 -> err 7 | set body filter6d_strength standard b03 0.2 -> err 7
 | set inertial sensor_radio_channel $S5 40 -> err 7 | set tracking pulse inertial_sensor $S4 -> err 7
 | set inertial scan_transceiver_channel t01 $T1 35 -> err 7 | inertial scan_sensors -> err 7
 | inertial add_sensor $S4 55 -> err 7 | inertial accept_new_sensor_gyro $S1 -> err 7 | cal inertial_gyro start -> err 7
 | body active standard b04 = no | body inertial_sensor standard b03 = none | tracking pulse = synchronous_cameras
locked: load locked_configuration.json | config is_changeable = no | set inertial warmup yes -> ok
 | set inertial frequency 100.000000 -> err 4 "configuration is locked" | set body desc standard b01 "x" -> err 4
 | inertial add_sensor NRV IMU3 '10240' 35 -> err 4 | cal reflex_scan start -> err 4 | cal reflex_scan stop -> ok
 | tracking stop -> ok | inertial frequency = 200.0
inertial tracking off: with "inertial": {"available": false} | inertial available = no
 | set inertial warmup yes -> err 8 "inertial tracking is not available" | inertial scan_sensors -> err 8
 | set body inertial_sensor standard b03 $S4 -> err 8 | set body desc standard b03 "x" -> ok
older controllers know less, by root and by name: with "system": {"version": "1.11.4"} | get inertial available -> err 1
 | inertial scan_sensors -> err 1 | get body inertial_sensor standard b01 -> err 1 | body desc standard b01 = "left hand"
 | with "system": {"version": "1.12.0"} | inertial available = yes | body inertial_sensor standard b01 = $S1
 | with "system": {"version": "1.20.7"} | set tracking pulse synchronous_cameras -> err 1 | get filter6d preset_id t01 -> err 1
 | with "system": {"version": "2.0.0"} | filter6d preset_id t01 = preset6d_default | tracking pulse = synchronous_cameras
)script");
}

// The model as time passes and devices move.
void tst_SimulatedController::model_data()
{
    rows(R"script(
warm-up heats in 180 s: with "bodies": {"standard": []}, "sensors": [{"serial": "10231", "transceiver": "70011",
 "temperature": 24.0}] | set inertial warmup yes -> ok | inertial warmup_status = 0.0 | +45
 | inertial sensor_temperature $S1 = 27.0 36.0 | inertial warmup_status = 0.25 | +126
 | inertial sensor_temperature $S1 = 35.4 36.0 | inertial warmup_status = 0.95 | +9 | inertial warmup_status = 1.0
 | +3420 | inertial sensor_temperature $S1 = 36.5 36.0 | inertial warmup = yes
warm-up stops itself when asked to: with "inertial": {"warmup_auto_stop": true} | set inertial warmup yes -> ok
 | +164 | inertial warmup = yes | +2 | inertial warmup = no
cooling down to the room: set inertial warmup yes -> ok | +300 | inertial sensor_temperature $S1 = 36.5 36.0
 | set inertial warmup no -> ok | +60 | inertial sensor_temperature $S1 = 34.5 36.0 | +3600
 | inertial sensor_temperature $S1 = 27.0 36.0
batteries drain, faster while warming: set body inertial_sensor standard b03 $S4 -> ok | set inertial warmup yes -> ok
 | +7200 | inertial sensor_battery $S4 = 0.03 | inertial sensor_battery $S2 = 0.52 | +3600
 | inertial sensor_present $S4 = no | get inertial sensor_battery $S4 -> err 6
on cable a sensor charges: with "bodies": {"standard": []}, "sensors": [{"model": "IMU3C", "serial": "10235",
 "cable": true, "battery": 0.5}] | +3600 | inertial sensor_battery $S5 = 0.8 | +3600 | inertial sensor_battery $S5 = 1.0
a sleeper wakes up when tapped: with "bodies": {"standard": []}, "sensors": [{"serial": "10233", "transceiver": "70012",
 "wakeup_mode": "wm_tap", "asleep": true, "wake_after_s": 30}] | +29 | inertial sensor_present $S3 = no
 | inertial warmup_status = 0.0 | +1 | inertial sensor_present $S3 = yes | set inertial sensor_wakeup_mode $S3 'wm_radio' -> ok
scan on two slots: set inertial number_of_scan_channels 2 -> ok | set inertial scan_transceiver_channel t01 $T1 35 -> ok
 | set inertial scan_transceiver_channel t02 usb -> ok | set inertial scan_transceiver_channel t03 usb -> err 7
 | inertial scan_sensors -> ok (after 400 ms) | +1 | inertial number_of_scanned_sensors = -1
 | get inertial scanned_sensor d01 -> err 5 | inertial number_of_scanned_sensors = -1
 | inertial number_of_scanned_sensors = 5 | inertial scanned_sensor d01 = NRV IMU3 '10240' 35
 | inertial scanned_sensor d02 = $S1 35 | inertial scanned_sensor d03 = $S2 35 | inertial scanned_sensor d05 = $S5 0
 | set inertial number_of_scan_channels 0 -> ok | inertial number_of_scanned_sensors = 0
a sensor switched on later: with "waiting_sensors": [{"serial": "10250", "channel": 70, "appears_after_s": 10}]
 | inertial add_sensor NRV IMU3 '10250' 70 -> err 5 | +10 | inertial add_sensor NRV IMU3 '10250' 70 -> ok
a sensor's life: inertial add_sensor NRV IMU3 '10241' 55 -> ok | inertial number_of_sensors = 6
 | inertial sensor d06 = NRV IMU3 '10241' | inertial transceiver_of_sensor NRV IMU3 '10241' = $T2
 | inertial sensor_present NRV IMU3 '10241' = yes | set body inertial_sensor standard b06 NRV IMU3 '10241' -> ok
 | set tracking pulse inertial_sensor NRV IMU3 '10241' -> ok | inertial delete_sensor NRV IMU3 '10241' -> ok
 | inertial number_of_sensors = 5 | body inertial_sensor standard b06 = none | tracking pulse = synchronous_cameras
 | get inertial sensor_present NRV IMU3 '10241' -> err 5 | inertial add_sensor NRV IMU3 '10241' 55 -> ok
added where no transceiver listens: inertial add_sensor NRV IMU3 '10242' 40 -> ok
 | inertial sensor_radio_channel NRV IMU3 '10242' = 35 | inertial transceiver_of_sensor NRV IMU3 '10242' = $T1
 | inertial sensor_has_storage NRV IMU3 '10242' = no | inertial add_sensor NRV IMU3 '10240' 55 -> err 5
 | inertial add_sensor NRV IMU3 '10240' 0 -> err 5 | inertial add_sensor NRV IMU3C '10243' 0 -> ok
 | inertial sensor_radio_channel NRV IMU3C '10243' = usb
an unplugged transceiver: with "transceivers": [{"serial": "70011", "channel": 35, "present": false},
 {"serial": "70012", "channel": 55}] | inertial transceiver_present $T1 = no | inertial sensor_present $S1 = no
 | set inertial transceiver_radio_channel $T1 40 -> err 6 | inertial sensor_present $S5 = yes
forty sensors at most: load forty_sensors.json | inertial number_of_sensors = 40
 | inertial add_sensor NRV IMU3 '10400' 35 -> err 3 | inertial delete_sensor NRV IMU3 '10339' -> ok
 | inertial add_sensor NRV IMU3 '10400' 35 -> ok | inertial number_of_sensors = 40
)script");
}

// Calibrations as the progress dialogs poll them, to success or to "err".
void tst_SimulatedController::calibrations_data()
{
    rows(R"script(
gyroscopes: set inertial sensor_gyro_calibrate $S1 yes -> ok | set inertial sensor_gyro_calibrate $S2 yes -> ok
 | cal inertial_gyro start -> ok | status active = cal | status step_active = cal 1 | status step_progress = 1 0.0
 | get inertial new_sensor_gyro_residual $S1 -> err 7 | set inertial sensor_gyro_calibrate $S1 no -> err 7 | +7.5
 | status progress = 0.5 | status step_progress = 1 0.5 | inertial sensor_gyro_progress $S4 = 0.0 | +7
 | inertial sensor_gyro_progress $S1 = 1.0 | status active = cal | +0.5 | status active = none
 | status step_active = none | status step_progress = 1 1.0 | status progress = 1.0
 | get inertial new_sensor_gyro_residual $S4 -> err 7 | inertial accept_new_sensor_gyro $S2 -> ok
 | inertial accept_new_sensor_gyro $S2 -> err 7 | tracking start -> ok | status active = tracking
a gyroscope lost on the way: set inertial sensor_gyro_calibrate $S2 yes -> ok | cal inertial_gyro start -> ok | +3
 | set inertial sensor_radio_channel $S2 70 -> ok | +0.5 | status active = err | status step_active = err
 | status step_progress = 1 0.233333 | get status err -> set status err 31 "Lost contact to sensor $S2" | +60
 | status active = err | tracking start -> ok | status active = tracking | status step_active = none
 | status err = 31 "Lost contact to sensor $S2"
hand-eye: tracking stop -> ok | set inertial sensor_handeye_calibrate $S2 yes -> ok | cal inertial_handeye start -> ok
 | +10 | status step_progress = 1 0.5 | +10 | status active = none | inertial sensor_handeye $S2 = none
 | inertial accept_new_sensor_handeye $S2 -> ok | inertial sensor_handeye $S2 = standard b02
two steps, step two on request: cal inertial_alignment start -> ok | status step_active = pause 1 | +3
 | status step_active = cal 1 | +5 | status step_progress = 1 0.5 | status progress = 0.2
 | cal inertial_alignment start_step s02 -> err 7 | +5 | status step_active = pause 2 | status progress = 0.4 | +1
 | cal inertial_alignment start_step s02 -> ok | status step_active = cal 2 | status step_progress = 2 0.0
 | cal inertial_alignment start_step s02 -> ok | +7.5 | status progress = 0.7 | +7.5 | status active = none
two steps, step two after its pause: cal inertial_alignment start -> ok | +17.9 | status step_active = pause 2
 | +0.1 | status step_active = cal 2 | status step_progress = 2 0.0
failing half way: with "calibrations": {"inertial_alignment": {"fail": {"at": 0.5, "code": 24, "text": "The body moved"}}}
 | cal number_of_steps inertial_alignment = 2 | cal inertial_alignment start -> ok | +20 | status active = cal | +1.5
 | status active = err | get status err -> set status err 24 "The body moved" | cal reflex_scan start -> ok
 | status err = 0 ""
what a run refuses, and stopping: set inertial sensor_gyro_calibrate $S1 yes -> ok | cal inertial_gyro start -> ok
 | cal reflex_scan stop -> err 7 "calibration inertial_gyro is running" | cal reflex_scan start -> err 7
 | tracking start -> err 7 "a calibration is running" | status active = cal | +2 | cal inertial_gyro stop -> ok
 | status active = none | get inertial new_sensor_gyro_residual $S1 -> err 7 | cal inertial_gyro stop -> ok
 | cal reflex_scan start -> ok | +2 | cal reflex_scan stop -> err 7 "calibration reflex_scan cannot be interrupted"
 | status active = cal
refused starts: cal inertial_handeye start -> err 7 | set inertial sensor_handeye_calibrate $S2 yes -> ok
 | set body inertial_sensor standard b02 none -> ok | cal inertial_handeye start -> err 7
 | set inertial sensor_gyro_calibrate $S1 yes -> ok | set inertial transceiver_radio_channel $T1 40 -> ok
 | cal inertial_gyro start -> err 6 | cal inertial_alignment start -> ok | cal inertial_alignment start_step s03 -> err 5
without room calibration or cameras: with "system": {"room_calibrated": false} | cal available inertial_gyro = no
 | cal available reflex_scan = yes | set inertial sensor_gyro_calibrate $S1 yes -> ok | cal inertial_gyro start -> err 8
 | with "system": {"tracking_available": false} | set inertial sensor_handeye_calibrate $S1 yes -> ok
 | cal inertial_handeye start -> err 8 | tracking start -> err 8
)script");
}

// Injected faults: what they make of the reply, and whether the request was done.
void tst_SimulatedController::faults_data()
{
    rows(R"script(
fail, not done: with "faults": [{"line": "norvane set inertial warmup yes", "kind": "fail", "code": 12, "text": "no radio"}]
 | set inertial warmup yes -> err 12 "no radio" | inertial warmup = no
late, done: with "faults": [{"line": "norvane set inertial warmup yes", "kind": "late", "delay_ms": 2500}]
 | set inertial warmup yes -> ok (after 2500 ms) | inertial warmup = yes
garbage by prefix, done: with "faults": [{"line": "norvane set inertial warmup", "match": "prefix", "kind": "garbage",
 "reply": "okay"}] | set inertial warmup yes -> okay | inertial warmup = yes
garbage of a length, by content: with "faults": [{"line": "warmup yes", "match": "contains", "kind": "garbage",
 "length": 5}] | set inertial warmup yes -> xxxxx | set inertial warmup no -> ok
silent and hang-up, done: with "faults": [{"line": "norvane set inertial warmup yes", "kind": "silent"},
 {"line": "norvane tracking stop", "kind": "hang_up"}] | set inertial warmup yes -> ok (no answer)
 | tracking stop -> ok (hangs up) | inertial warmup = yes | status active = none
armed a minute after the start: with "faults": [{"line": "norvane get inertial warmup", "kind": "fail", "after_s": 60}]
 | inertial warmup = no | +59.9 | inertial warmup = no | +0.1 | get inertial warmup -> err 9
skipped twice, then twice: with "faults": [{"line": "norvane get inertial frequency", "kind": "fail", "skip": 2,
 "times": 2}] | inertial frequency = 200.0 | inertial frequency = 200.0 | get inertial frequency -> err 9
 | get inertial frequency -> err 9 | inertial frequency = 200.0
faulty link example: load faulty_link.json | inertial warmup_status = 0.197917 (after 1500 ms)
 | set inertial frequency 100.000000 -> err 42 "frequency locked by the sync card"
)script");
}

// Scenarios: merged with what they extend, and every mistake named with its
// place, nothing of it kept.
void tst_SimulatedController::scenarios_data()
{
    rows(R"script(
objects merged, lists replaced: with "system": {"type": "PORTAFRAME"}, "bodies": {"count": 2},
 "waiting_sensors": [{"serial": "10999", "channel": 20}] | system type = PORTAFRAME | system version = 1.21.2
 | standard number_of_bodies = 2 | body desc standard b01 = "left hand" | inertial number_of_sensors = 5
 | inertial add_sensor NRV IMU3 '10240' 35 -> err 5 | inertial add_sensor NRV IMU3 '10999' 20 -> ok
examples: load old_controller.json | system version = 1.15.3 | load pre_hybrid_controller.json
 | system version = 1.11.4 | load no_transceiver.json | inertial number_of_transceivers = 0
 | inertial number_of_sensors = 2
a failed load keeps the state: set standard number_of_bodies 9 -> ok
 | with "system": {"version": "x"} -> scenario: system.version: must be major.minor.patch
 | load no_such.json -> no_such.json: | standard number_of_bodies = 9
not JSON: load {"system": {"version": 1.2.3}} -> scenario: line 1, column
not an object: load [1, 2] -> scenario: a scenario must be a JSON object
misspelt key: load {"system": {"verison": "1"}} -> system.verison: unknown key
wrong type: load {"system": {"tracking": "yes"}} -> system.tracking: must be true or false
blank in a word: load {"system": {"type": "NORVANE DUO"}} -> system.type: must be one word
not ASCII: load {"bodies": {"standard": [{"desc": "café"}]}} -> bodies.standard[0].desc: must be printable ASCII
frequency outside limits: load {"inertial": {"frequency": 5000}} -> inertial.frequency: must be a number from 50 to 500
limits leaving the frequency out: load {"inertial": {"frequency_limits": [10, 100]}}
 -> inertial.frequency: must lie within frequency_limits
serial used twice: with "waiting_sensors": [{"serial": "10231", "channel": 35}] -> waiting_sensors[0]: serial 10231 is used twice
serial with quotes: with "sensors": [{"serial": "'1'", "cable": true}]
 -> sensors[0]: vendor, model and serial are written without quotes
unknown transceiver: with "sensors": [{"serial": "1", "transceiver": "79999"}] -> sensors[0].transceiver: no transceiver 79999
waiting radio sensor without channel: load {"waiting_sensors": [{"serial": "1"}]} -> waiting_sensors[0].channel: a sensor waiting
radio sensor without transceiver: load {"sensors": [{"serial": "1"}]} -> sensors[0]: a radio sensor needs a transceiver
channel outside the band: load {"transceivers": [{"serial": "1", "channel": 90}]}
 -> transceivers[0].channel: channel 90 is not among its channels
mode the sensor lacks: load {"sensors": [{"serial": "1", "cable": true, "wakeup_mode": "wm_radio"}]}
 -> sensors[0].wakeup_mode: the sensor does not support 'wm_radio'
sensor on two bodies: with "bodies": {"standard": [{"sensor": "10231"}, {"sensor": "10231"}]}
 -> bodies.standard[1].sensor: the sensor is on standard b01 already
active but not calibrated: load {"bodies": {"standard": [{"active": true}]}} -> bodies.standard[0].active: a body that is not
more bodies than the maximum: load {"bodies": {"max": 1, "standard": [{}, {}]}} -> bodies.standard: more bodies than max (1)
unknown preset: load {"bodies": {"standard": [{"filter": {"preset": "p"}}]}} -> filter.preset: unknown preset p
hand-eye without body: with "bodies": {"standard": []} -> sensors[0].handeye: the sensor is on no body
pulse by a sensor on no body: with "tracking_pulse": {"source": "inertial_sensor", "sensor": "10234"}
 -> tracking_pulse.sensor: must name a paired sensor on a body
calibration without steps: load {"calibrations": {"x": {"steps": []}}} -> calibrations.x.steps: must hold 1 to 9 steps
fault of unknown kind: load {"faults": [{"line": "x", "kind": "explode"}]}
 -> faults[0].kind: must be fail, late, garbage, silent or hang_up
garbage beyond a mebibyte: load {"faults": [{"line": "x", "kind": "garbage", "length": 1048577}]} -> faults[0].length: must be a whole number from 0 to 1048576
fault text with a quote: load {"faults": [{"line": "x", "kind": "fail", "text": "a\"b"}]}
 -> faults[0].text: must not contain a double quote
extends a missing file: load {"extends": "no_such_scenario.json"} -> extends: cannot read
too many sensors: load {"inertial": {"max_sensors": 1}, "sensors": [{"serial": "1", "cable": true},
 {"serial": "2", "cable": true}]} -> sensors: more than max_sensors (1) sensors
)script");
}

void tst_SimulatedController::channel_scan_suggests_the_quietest()
{
    QCOMPARE(play("inertial scan_transceiver_radio_channels -> ok (after 300 ms)"), QString());
    const auto value = [this](const QByteArray& path) { return ask("norvane get " + path).split(' ').last().toDouble(); };
    QMap<int, double> activity;
    for (int channel = 2; channel <= 81; ++channel) {
        activity[channel] = value("inertial transceiver_radio_channel_activity $T2 " + QByteArray::number(channel));
        QVERIFY(activity[channel] >= 0.0 && activity[channel] <= 1.0);
    }
    const int suggested = int(value("inertial transceiver_suggested_radio_channel $T2"));
    QCOMPARE(activity.value(suggested, -1.0), *std::min_element(activity.cbegin(), activity.cend()));
    // Busy channels, and the other transceiver's, count as taken.
    QCOMPARE(activity[13], 1.0);
    QCOMPARE(activity[35], 1.0);
}

QTEST_APPLESS_MAIN(tst_SimulatedController)
#include "tst_SimulatedController.moc"
