#include <QtTest>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include <functional>

#include "DialogFixture.h"
#include "hybridbody/HybridBodyCalibrationDlg.h"
#include "module/InertialTrackingModule.h"

using B = QByteArray;
using Lines = QList<QByteArray>;

// Bodies 1 (ready, "left hand"), 2 (calibrated, inactive), 3 (its sensor
// absent), 4 (uncalibrated, "torso") and 5 (no sensor).
class tst_HybridBodyCalibrationDlg : public QObject, DialogFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { InertialTrackingModule::init_resources(); }
    void init();
    void cleanup();
    void request_data();
    void request();
    void calibration_data();
    void calibration();
    void animation();

private:
    template <class T> static T* in(QWidget* w, const char* name) { return w->findChild<T*>(name); }
    static QString text(QWidget* w, const char* name) { return in<QLabel>(w, name)->text(); }
    void open(const std::function<void()>& inside);
    // Calibrates body `index` by F3: a run that finishes unless `button` is
    // empty, its result ended by `button` ("none": no result). Gives the
    // lines sent, and what the result showed in *shown.
    Lines calibrate(int index, const B& button, QString* shown);

    HybridBodyCalibrationDlg* dlg = nullptr;
};

void tst_HybridBodyCalibrationDlg::init()
{
    start();
    dlg = new HybridBodyCalibrationDlg(fake, owner, &versions);
    const QList<std::pair<B, B>> script = {
        {"config is_changeable", "yes"}, {"inertial available", "yes"}, {"inertial number_of_sensors", "1"},
        {"inertial sensor d01", "NRV IMU3 '10231'"}, {"inertial body_of_sensor NRV IMU3 '10231'", "standard b01"},
        {"tracking available", "yes"}, {"cal available inertial_handeye", "yes"}, {"standard number_of_bodies", "5"},
        {"inertial sensor_vendor_desc NRV", "\"Norvane\""}, {"inertial sensor_model_desc NRV IMU3", "\"IMU 3\""},
        {"status active", "none"}, {"norvane tracking start", "norvane ok"}, {"norvane tracking stop", "norvane ok"},
        {"cal type_desc inertial_handeye", "\"Hybrid\""}, {"cal number_of_steps inertial_handeye", "1"},
        {"cal step_pause inertial_handeye s01", "no 0"}, {"norvane cal inertial_handeye start", "norvane ok"}};
    for (const auto& line : script)
        fake->reply(line.first, line.second);
    const QList<B> bodies[] = {{"10231", "yes", "yes", "yes", "left hand"}, {"10232", "yes", "no", "yes", ""},
                               {"10233", "no"}, {"10234", "yes", "no", "no", "torso"}, {"none"}};
    for (int i = 0; i < 5; ++i) {
        const B body = "standard b0" + B::number(i + 1), sensor = "NRV IMU3 '" + bodies[i].at(0) + "'";
        fake->reply("body inertial_sensor " + body, i == 4 ? "none" : sensor);
        fake->reply("inertial sensor_present " + sensor, bodies[i].value(1));
        fake->reply("body active " + body, bodies[i].value(2));
        fake->reply("body calibrated " + body, bodies[i].value(3));
        fake->reply("body desc " + body, '"' + bodies[i].value(4) + '"');
        fake->reply("inertial new_sensor_handeye_residual " + sensor, "0.456");
        fake->reply("inertial new_sensor_delay " + sensor, "12.3");
        fake->reply("inertial new_sensor_handeye " + sensor, "9 9 9 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.91236");
        fake->reply("norvane inertial accept_new_sensor_handeye " + sensor, "norvane ok");
        fake->reply("inertial sensor_handeye_calibrate " + sensor, "no");
    }
    fake->set_stateful(true);   // the sensor's and body's flags
}

void tst_HybridBodyCalibrationDlg::cleanup()
{
    QCOMPARE(fake->unexpected(), Lines());
    finish();
}

void tst_HybridBodyCalibrationDlg::open(const std::function<void()>& inside)
{
    ModalDialogHelper::when_active("HybridBodyCalibrationDlg", [=](QWidget*) {
        inside();
        ModalDialogHelper::close(dlg);
    });
    dlg->update_and_exec();
}

void tst_HybridBodyCalibrationDlg::request_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<B>("sender");
    QTest::addColumn<B>("text");
    QTest::addColumn<int>("result");
    QTest::addColumn<B>("tracking");
    QTest::addColumn<QString>("selected");   // body, device, error, Calibrate; empty: the dialog does not open
    const QString red = "|<b><font color=red>%1</font></b>|0";
    QTest::newRow("calibrated but inactive body") << 1 << B("BodyCalModule") << B("OpenHybridBodyCalibration standard b02")
        << 0 << B("yes") << "standard body 02|10232" + red.arg("Body is not optical calibrated");
    QTest::newRow("settings page's form, uncalibrated") << 1 << B("InertialSettingsDlg")
        << B("OpenHybridBodyCalibration standard|4|full") << 0 << B("yes") << "standard body 04 (torso)|10234" + red.arg("");
    QTest::newRow("no tracking: not selected, refused") << 1 << B("BodyCalModule") << B("OpenHybridBodyCalibration standard 4")
        << 0 << B("no") << "standard body 01 (left hand)|10231" + red.arg("Tracking is not available");
    QTest::newRow("no sender") << 1 << B() << B("OpenHybridBodyCalibration standard 4") << 1 << B("yes") << "";
    QTest::newRow("type 0") << 0 << B("BodyCalModule") << B("OpenHybridBodyCalibration standard 4") << 0 << B("yes") << "";
}

void tst_HybridBodyCalibrationDlg::request()
{
    QFETCH(int, type);
    QFETCH(B, sender);
    QFETCH(B, text);
    QFETCH(int, result);
    QFETCH(B, tracking);
    QFETCH(QString, selected);

    fake->reply("tracking available", tracking);
    fake->reply("status active", "tracking");
    QString shown;
    const auto exit = [&](QWidget*) {
        shown = QStringList{in<QComboBox>(dlg, "comboBox_body")->currentText(), this->text(dlg, "label_deviceId"),
                            this->text(dlg, "label_error"),
                            QString::number(in<QPushButton>(dlg, "pushButton_calibrate")->isEnabled())}.join('|');
        in<QPushButton>(dlg, "pushButton_exit")->click();
    };
    if (!selected.isEmpty())
        ModalDialogHelper::when_active("HybridBodyCalibrationDlg", exit);
    QCOMPARE(fake->deliver("HybridBodyCalibration", type, sender.isNull() ? nullptr : sender.constData(), text), result);
    QVERIFY(!dlg->isVisible());   // opened later, on the event path
    QCoreApplication::processEvents();
    QCOMPARE(shown, selected);
    // Opened from the menu later: the requester is not told again.
    ModalDialogHelper::when_active("HybridBodyCalibrationDlg", exit);
    dlg->update_and_exec();
    QStringList told;
    for (const FakeController::Message& m : fake->messages())
        told << QString("%1 %2 %3 %4").arg(m.target, m.source).arg(m.type).arg(m.text);
    QCOMPARE(told, selected.isEmpty() ? QStringList() : QStringList{sender + " HybridBodyCalibration 1 reopen"});
    QCOMPARE(fake->count("norvane tracking stop"), selected.isEmpty() ? 1 : 2);   // on every closing
}

Lines tst_HybridBodyCalibrationDlg::calibrate(int index, const B& button, QString* shown)
{
    Lines sent;
    open([=, &sent] {
        in<QComboBox>(dlg, "comboBox_body")->setCurrentIndex(index);
        QMetaObject::invokeMethod(dlg, "on_comboBox_body_activated", Q_ARG(int, index));
        if (index == 2)   // never offered for an uncalibrated body: forced to reach what follows
            in<QPushButton>(dlg, "pushButton_calibrate")->setEnabled(true);
        const int opening = fake->lines().size();
        if (!button.isEmpty())
            ModalDialogHelper::when_active("CalibrationProgressDlg", [](QWidget* w) {
                QMetaObject::invokeMethod(w, "update_cal_status");
            });
        if (!button.isEmpty() && button != "none")
            ModalDialogHelper::when_active("HybridBodyResultCalibrationDlg", [=](QWidget* w) {
                for (const char* label : {"label_name", "label_deviceId", "label_vendor", "label_model",
                                          "label_residual", "label_sensorDelay"})
                    *shown += text(w, label) + '|';
                auto* table = in<QTableWidget>(w, "tableWidget");
                *shown += in<QPushButton>(w, "pushButton_showDetails")->text() + QString::number(table->isVisible());
                in<QPushButton>(w, "pushButton_showDetails")->click();
                *shown += in<QPushButton>(w, "pushButton_showDetails")->text() + QString::number(table->isVisible());
                for (int i = 0; i < 9; ++i)   // row by row
                    *shown += ' ' + table->item(i / 3, i % 3)->text();
                in<QPushButton>(w, button.constData())->click();
            });
        QTest::keyClick(dlg, Qt::Key_F3);   // Calibrate's key
        sent = fake->lines().mid(opening);
    });
    return sent;
}

void tst_HybridBodyCalibrationDlg::calibration_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QList<B>>("activity");   // answers of "status active", in turn
    QTest::addColumn<B>("failing");   // lines apart by '|', or the version
    QTest::addColumn<B>("button");
    QTest::addColumn<Lines>("lines");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("messages");

    const B active = "status active", s = "NRV IMU3 '10231'", s4 = "NRV IMU3 '10234'";
    // Body 1 (calibrated) or body 4 through the run to the residual.
    const auto run = [&](const B& s, bool calibrated) {
        return Lines{active, "norvane tracking stop", "inertial sensor_handeye_calibrate " + s + " yes"}
               + (calibrated ? Lines{"body active standard b01 yes"} : Lines())
               + Lines{active, "norvane tracking start", active, "cal type_desc inertial_handeye",
                       "cal number_of_steps inertial_handeye", "cal step_pause inertial_handeye s01", active,
                       "norvane tracking stop", "norvane cal inertial_handeye start", active,
                       "inertial new_sensor_handeye_residual " + s};
    };
    const auto result = [&](const B& s, const Lines& then) {
        return Lines{"inertial new_sensor_delay " + s, "inertial new_sensor_handeye " + s} + then
               + Lines{"inertial sensor_handeye_calibrate " + s + " no", active, "norvane tracking start"};
    };
    const Lines accepted = result(s, {"norvane inertial accept_new_sensor_handeye " + s}), ran = run(s, true) + accepted;
    const QList<B> usual = {"tracking", "none", "tracking", "tracking", "none"};
    const QString shown = "standard body 0%1|Norvane|IMU 3|0.46|%2|Show &details0Hide &details1%3";
    const QString matrix = " 0.1000 0.4000 0.7000 0.2000 0.5000 0.8000 0.3000 0.6000 0.9124", b1 = "1 (left hand)|10231";
    const QString full = shown.arg(b1, "12.30", matrix);
    QTest::newRow("accepted, matrix by columns") << 0 << usual << B() << B("pushButton_ok") << ran << full << QStringList();
    QTest::newRow("1.12: the first with the dialog, no sensor delay yet") << 0 << usual << B("1.12") << B("pushButton_ok")
        << run(s, true) + accepted.mid(1) << shown.arg(b1, "0.00", matrix) << QStringList();
    QTest::newRow("no result: empty matrix") << 0 << usual << "inertial new_sensor_handeye " + s
        << B("pushButton_ok") << ran << shown.arg(b1, "12.30", QString(9, ' '))
        << QStringList{"Error: Unable to get sensor hybrid calibration result"};
    QTest::newRow("flags refused: told, the run goes on") << 0 << usual << "inertial sensor_handeye_calibrate " + s
        + " yes|body active standard b01 yes|inertial sensor_handeye_calibrate " + s + " no" << B("pushButton_ok") << ran
        << full << QStringList{"Could not set hybrid calibration of sensor: " + s, "Could not set body settings: standard b01",
                               "Could not reset hybrid calibration status of sensor: " + s};
    QTest::newRow("tracking refused: told, the run goes on") << 0 << usual << B("norvane tracking stop|norvane tracking "
        "start") << B("pushButton_ok") << ran << full
        << QStringList{"Could not stop tracking", "Could not start tracking", "Could not start tracking"};
    QTest::newRow("unreadable bodies left out, the rest offered") << 0 << usual << B("cal available inertial_handeye|"
        "inertial sensor_present NRV IMU3 '10233'|body inertial_sensor standard b05") << B("pushButton_ok") << ran << full
        << QStringList{"Could not get calibration information", "Error: Unable to info inertial sensor is present",
                       "Could not get information of sensor: standard b05"};
    QTest::newRow("no bodies known: nothing to calibrate") << 0 << usual << B("standard number_of_bodies") << B()
        << Lines() << "" << QStringList{"Error: Unable to get number of bodies"};
    QTest::newRow("uncalibrated, unreadable body discarded: inactive again") << 2 << usual
        << B("body active standard b04|body calibrated standard b04|body desc standard b04|body active standard b04 no")
        << B("pushButton_cancel") << run(s4, false) + result(s4, {"body active standard b04 no"})
        << shown.arg("4|10234", "12.30", matrix) << QStringList{"Could not get active status of body: standard b04",
        "Could not get calibration status of body: standard b04", "Could not get description of sensor: standard b04",
        "Could not restore body settings: standard b04"};
    QTest::newRow("accept refused: left alone") << 2 << usual << "norvane inertial accept_new_sensor_handeye " + s4
        << B("pushButton_ok") << run(s4, false) + result(s4, {"norvane inertial accept_new_sensor_handeye " + s4})
        << shown.arg("4 (torso)|10234", "12.30", matrix) << QStringList();
    QTest::newRow("residual unknown: dialog hidden") << 0 << usual << "inertial new_sensor_handeye_residual " + s
        << B("none") << run(s, true) << "" << QStringList{"Error: Cannot activate hybrid calibration"};
    QTest::newRow("controller in error") << 0 << QList<B>{"err"} << B() << B()
        << Lines{active, "inertial sensor_handeye_calibrate " + s + " yes", "body active standard b01 yes", active,
                 "norvane tracking start", active} << "" << QStringList{"Error: Cannot start hybrid calibration"};
    QTest::newRow("waiting for the cameras") << 0 << QList<B>{"tracking", "none", "wait"} << B() << B()
        << Lines{active, "norvane tracking stop", "inertial sensor_handeye_calibrate " + s + " yes",
                 "body active standard b01 yes", active, "norvane tracking start", active} << ""
        << QStringList{"Error: Cannot start hybrid calibration. Maybe camera is disconnected"};
    QTest::newRow("F3 on an inactive body") << 1 << usual << B() << B() << Lines() << "" << QStringList();
}

void tst_HybridBodyCalibrationDlg::calibration()
{
    QFETCH(int, index);
    QFETCH(QList<B>, activity);
    QFETCH(B, failing);
    QFETCH(B, button);
    QFETCH(Lines, lines);
    QFETCH(QString, shown);
    QFETCH(QStringList, messages);

    fake->replies("status active", activity);
    if (failing == "1.12")
        versions.minor = 12;
    else if (!failing.isEmpty())
        for (const B& line : failing.split('|'))
            fake->fail(line);
    QString seen;
    QCOMPARE(calibrate(index, button, &seen), lines);
    QCOMPARE(seen, shown);
    QCOMPARE(fake->message_texts(), messages);
}

void tst_HybridBodyCalibrationDlg::animation()
{
    QList<int> frames, expected;
    const auto watch = [&](QWidget* w) {
        auto* picture = in<QLabel>(w, "label_graphic");
        auto* timer = picture->findChild<QTimer*>();
        QVERIFY(timer->isActive() && timer->interval() == 200);
        for (int tick = 0; tick <= 26; ++tick, QMetaObject::invokeMethod(timer, "timeout"))
            for (int n = 1; n <= 26; ++n)   // loaded pixmaps are cached by file: one key per file
                if (picture->pixmap(Qt::ReturnByValue).cacheKey()
                    == QPixmap(QString(":/handeye_frame_%1.png").arg(n, 4, 10, QChar('0'))).cacheKey())
                    frames << n;
    };
    open([&] {
        watch(dlg);
        ModalDialogHelper::when_active("HybridBodyCalibrationHelpDlg", [&](QWidget* help) {
            watch(help);
            in<QPushButton>(help, "exitButton")->click();
        });
        in<QPushButton>(dlg, "pushButton_help")->click();
    });
    for (int n = 1; n <= 26; ++n)
        expected << n;
    expected << 1;
    QCOMPARE(frames, expected + expected);   // the dialog's, then the help's
    QVERIFY(!dlg->findChild<QTimer*>()->isActive());
}

QTEST_MAIN(tst_HybridBodyCalibrationDlg)
#include "tst_HybridBodyCalibrationDlg.moc"
