#include <QtTest>

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

#include <algorithm>
#include <functional>

#include "DialogFixture.h"
#include "calibration/InertialCalibrationDlg.h"

using Lines = QList<QByteArray>;

namespace {

const QByteArray S1 = "nv imu '101'", S2 = "nv imu '102'", S3 = "nv imu '103'";

QByteArray marked(const QByteArray& sensor, const char* yes_no) { return "inertial sensor_gyro_calibrate " + sensor + ' ' + yes_no; }

} // namespace

// Three active bodies carry a sensor: left and right can be calibrated, the
// third's sensor is away; a fourth body is inactive.
class tst_InertialCalibrationDlg : public QObject, DialogFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { finish(); }
    void reasons_data();
    void reasons();
    void run_to_residuals();
    void run_endings_data();
    void run_endings();
    void apply_data();
    void apply();
    void warmup();
    void reopenedIdle();

private:
    template <class T = QPushButton>
    T* w(const char* name = "progressBar") const { return dlg->findChild<T*>(name); }
    QTableWidgetItem* cell(int row, int column) const { return w<QTableWidget>("tableWidget")->item(row, column); }
    void open(const std::function<void()>& inside);
    // The dialog's own timers drive it, as they do when it runs.
    void tick() { QMetaObject::invokeMethod(timer(200), "timeout"); }
    // The 200 ms measure timer or the 1000 ms warm-up timer.
    QTimer* timer(int ms) const
    {
        const QList<QTimer*> timers = dlg->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
        return *std::find_if(timers.begin(), timers.end(), [ms](QTimer* t) { return t->interval() == ms; });
    }
    void calibrate(const QList<QByteArray>& statuses);

    InertialCalibrationDlg* dlg = nullptr;
    QList<int> bars;   // after each tick of calibrate()
};

void tst_InertialCalibrationDlg::init()
{
    start();
    fake->set_stateful(true);
    bars.clear();
    dlg = new InertialCalibrationDlg(fake, owner, &versions);
    for (const auto& [line, answer] : QList<QPair<QByteArray, QByteArray>>{
             {"config is_changeable", "yes"}, {"inertial available", "yes"}, {"inertial number_of_sensors", "2"},
             {"inertial sensor d01", S3}, {"inertial sensor d02", S1}, {"inertial body_of_sensor " + S3, "none"},
             {"inertial body_of_sensor " + S1, "standard b01"}, {"cal available inertial_gyro", "yes"},
             {"standard number_of_bodies", "4"}, {"body active standard b04", "no"},
             {"body desc standard b01", "\"left\""}, {"body desc standard b02", "\"right\""},
             {"body desc standard b03", "\"\""}, {"inertial sensor_vendor_desc nv", "\"Norvane\""},
             {"inertial sensor_model_desc nv imu", "\"IMU\""}, {"inertial warmup", "no"},
             {"inertial warmup_status", "1.0"}, {"norvane cal inertial_gyro start", "norvane ok"},
             {"norvane cal inertial_gyro stop", "norvane ok"},
             {"inertial new_sensor_gyro_residual " + S1, "0.0"}, {"inertial new_sensor_gyro_residual " + S2, "0.43"}}) {
        fake->reply(line, answer);
    }
    for (const QByteArray& s : {S1, S2, S3}) {
        const QByteArray body = "standard b0" + s.right(2).left(1);
        fake->reply("body active " + body, "yes");
        fake->reply("body inertial_sensor " + body, s);
        fake->reply("inertial sensor_gyro_calibrate " + s, "no");
        fake->reply("inertial sensor_present " + s, s == S3 ? "no" : "yes");
        fake->reply("inertial sensor_handeye " + s, "standard b01");
        fake->reply("norvane inertial accept_new_sensor_gyro " + s, "norvane ok");
    }
}

void tst_InertialCalibrationDlg::open(const std::function<void()>& inside)
{
    ModalDialogHelper::when_active("InertialCalibrationDlg", [=](QWidget*) {
        inside();
        if (dlg->isVisible())
            ModalDialogHelper::close(dlg);
    });
    dlg->update_and_exec();
}

void tst_InertialCalibrationDlg::calibrate(const QList<QByteArray>& statuses)
{
    fake->replies("status active", statuses);
    fake->replies("status progress", {"0.6", "0.5", "1.0"});
    fake->replies("inertial sensor_gyro_progress " + S1, {"1.0"});
    fake->replies("inertial sensor_gyro_progress " + S2, {"0.5", "1.0"});
    w("pushButton_calibrate")->click();
    for (int i = 0; i < statuses.size() && w("pushButton_cancel")->isEnabled(); ++i) {
        tick();
        bars << w<QProgressBar>()->value();
    }
}

void tst_InertialCalibrationDlg::reasons_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("answer");   // "-": the line fails
    QTest::addColumn<QString>("reason");
    QTest::addColumn<bool>("usable");
    QTest::addColumn<QStringList>("messages");   // reported, or shown in a box
    QTest::addColumn<bool>("locked");            // the lock for an icon

    const QString cold = "Not all sensors have been warmed up, to get a valid calibration please start the warmup!";
    const auto row = [](const char* name, const QByteArray& line, const QByteArray& answer, const QString& reason,
                        bool usable, const QStringList& messages = {}, int minor = 21, bool locked = false) {
        QTest::newRow(name) << minor << line << answer << reason << usable << messages << locked;
    };
    const QString old = "This controller does not support hybrid sensors - please update your controller";
    row("1.12, the first with inertial sensors", {}, {}, "", true, {}, 12);
    row("older than 1.12", {}, {}, old, false, {}, 11);
    row("1.9 locked: the lock alone", "config is_changeable", "no", "", false, {}, 9, true);
    row("1.8 cannot lock", "config is_changeable", "no", old, false, {}, 8);
    row("inertial tracking off", "inertial available", "no", "Hybrid tracking is not available", false);
    row("no sensor on a body", "inertial body_of_sensor " + S1, "none", "No hybrid body is available", false);
    row("a sensor unknown: the next one decides", "inertial sensor d01", "-", "", true,
        {"Information: Could not get informations of sensor 1"});
    row("no room calibration", "cal available inertial_gyro", "no", "No valid room calibration", false);
    row("room calibration unknown: tried", "cal available inertial_gyro", "-", "", true,
        {"Could not get calibration information"});
    row("no body calibratable", "standard number_of_bodies", "0", "No active body with hybrid calibration found", false);
    row("cold sensors, a warning", "inertial warmup_status", "0.9", cold, true);
    row("warmth unknown: a warning", "inertial warmup_status", "-", cold, true, {"Could not get warmup status"});
    row("warm-up unknown: none shown", "inertial warmup", "-", "", true, {"Could not get warmup status"});
    row("a body's sensor unreadable", "body inertial_sensor standard b02", "x", "", true,
        {"Could not get sensor of body: standard b02"});
    row("a body's activity unknown", "body active standard b02", "-", "", true,
        {"Could not get information body standard b02 is active"});
    row("a body's name unknown", "body desc standard b02", "-", "", true, {"Could not get description of body: standard b02"});
    row("a sensor's presence unknown", "inertial sensor_present " + S2, "-", "", true,
        {"Error ln751: Unable to get informations of sensor"});
    row("a sensor's place unknown", "inertial sensor_handeye " + S1, "-", "", true,
        {"Could not get hybrid calibration of sensor: " + S1});
}

void tst_InertialCalibrationDlg::reasons()
{
    QFETCH(int, minor);
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, answer);
    QFETCH(QString, reason);
    QFETCH(bool, usable);
    QFETCH(QStringList, messages);
    QFETCH(bool, locked);

    versions.minor = minor;
    answer == "-" ? fake->fail(line) : fake->reply(line, answer);
    QStringList shown;
    if (line == "inertial sensor d01")
        ModalDialogHelper::when_active("QMessageBox", [&](QWidget* box) {
            shown << box->windowTitle() + ": " + qobject_cast<QMessageBox*>(box)->text();
            ModalDialogHelper::close(box);
        });
    open([&] {
        QCOMPARE(w<QLabel>("label_error")->text(),
                 reason.isEmpty() ? QString() : "<b><font color=red>" + reason + "</font></b>");
        QCOMPARE(w<QLabel>("label_error")->isVisible(), !reason.isEmpty());
        QCOMPARE(w("pushButton_calibrate")->isEnabled(), usable);
        QCOMPARE(w<QTableWidget>("tableWidget")->isEnabled(), usable);
        QCOMPARE(dlg->windowIcon().cacheKey() != owner->windowIcon().cacheKey(), locked);
        QCOMPARE(w<QProgressBar>("progressBar_warmup")->isVisible(), false);
        QTest::keyClick(dlg, Qt::Key_Escape);   // no run: leaves
        QVERIFY(!dlg->isVisible());
    });
    QCOMPARE(shown + fake->message_texts(), messages);
}

void tst_InertialCalibrationDlg::run_to_residuals()
{
    open([&] {
        QTableWidget* table = w<QTableWidget>("tableWidget");
        QStringList rows;
        for (int r = 0; r < table->rowCount(); ++r)
            rows << QStringList({cell(r, 0)->text(), cell(r, 1)->text(), cell(r, 3)->text(),
                                 cell(r, 5)->data(Qt::CheckStateRole).toString(), cell(r, 6)->data(Qt::CheckStateRole).toString(),
                                 QString::number(cell(r, 5)->flags()), QString::number(table->rowHeight(r))}).join(' ');
        QCOMPARE(rows, QStringList({"101 Norvane left 2 0 48 20", "102 Norvane right 2 0 48 20",
                                    "103 Norvane standard body 03 0 0 0 20"}));
        QVERIFY(table->isColumnHidden(1));
        fake->clear_log();
        calibrate({"cal", "cal", "none"});
        QCOMPARE(bars, QList<int>({60, 60, 100}));   // 0.5 after 0.6 does not move it back
        QStringList residuals;
        for (int r = 0; r < 2; ++r)
            residuals << cell(r, 4)->text() + (cell(r, 6)->checkState() ? " accept" : "");
        QCOMPARE(residuals, QStringList({"0.0000", "0.4300 accept"}));
        QVERIFY(w("pushButton_apply")->isEnabled() && w("pushButton_calibrate")->isEnabled());
        cell(1, 6)->setCheckState(Qt::Unchecked);   // the user's own click
        QVERIFY(!w("pushButton_apply")->isEnabled());
        w<QCheckBox>("checkBox_acceptAll")->setChecked(true);
        QVERIFY(cell(0, 6)->checkState() && cell(1, 6)->checkState() && w("pushButton_apply")->isEnabled());
    });
    const Lines poll1{"inertial sensor_gyro_calibrate " + S1, "inertial sensor_gyro_progress " + S1};
    const Lines poll2{"inertial sensor_gyro_calibrate " + S2, "inertial sensor_gyro_progress " + S2};
    const Lines next{"status progress", "status active"};   // one tick's end, the next one's start
    const Lines expected = Lines{marked(S1, "yes"), marked(S2, "yes"), marked(S3, "no"),
                                 "norvane cal inertial_gyro start", "status active"}
                           + poll1 + Lines{"inertial new_sensor_gyro_residual " + S1} + poll2 + next + poll1 + poll2
                           + Lines{"inertial new_sensor_gyro_residual " + S2} + next + poll1 + poll2 + Lines{"status progress"};
    QCOMPARE(fake->lines(), expected);
}

void tst_InertialCalibrationDlg::run_endings_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QByteArray>("stop");       // the reply to stopping; "-": not sent
    QTest::addColumn<int>("stops");
    QTest::addColumn<bool>("running");
    QTest::addColumn<int>("bar");
    QTest::addColumn<QStringList>("messages");

    const QByteArray ok = "norvane ok";
    QTest::newRow("err ends it") << "err" << ok << 0 << false << 0 << QStringList{"Could not get progress of calibration "
        "of sensor: " + S2, "Could not get progress of calibration"};
    QTest::newRow("Cancel stops") << "cancel" << ok << 1 << false << 0 << QStringList();
    QTest::newRow("Escape acts as Cancel") << "escape" << ok << 1 << false << 0 << QStringList();
    QTest::newRow("stop refused") << "cancel" << QByteArray("norvane err 7") << 1 << true << 60 << QStringList();
    QTest::newRow("stop not sent") << "cancel" << QByteArray("-") << 1 << true << 60
                                   << QStringList{"Could not stop calibration"};
    QTest::newRow("closing stops nothing") << "close" << ok << 0 << true << 60 << QStringList();
}

void tst_InertialCalibrationDlg::run_endings()
{
    QFETCH(QString, action);
    QFETCH(QByteArray, stop);
    QFETCH(int, stops);
    QFETCH(bool, running);
    QFETCH(int, bar);
    QFETCH(QStringList, messages);

    stop == "-" ? fake->fail("norvane cal inertial_gyro stop") : fake->reply("norvane cal inertial_gyro stop", stop);
    open([&] {
        calibrate({"cal"});
        fake->clear_log();
        fake->reply("status active", action.toLatin1());
        if (action == "err") {
            fake->fail("inertial sensor_gyro_progress " + S2);
            fake->fail("status progress");
            tick();
        } else if (action == "cancel") {
            w("pushButton_cancel")->click();
        } else {
            action == "close" ? (void)dlg->close() : QTest::keyClick(dlg, Qt::Key_Escape);
        }
        QCOMPARE(dlg->isVisible(), action != "close");
        QCOMPARE(w("pushButton_cancel")->isEnabled(), running);
        QCOMPARE(w("pushButton_exit")->isEnabled(), !running);
        QCOMPARE(w<QProgressBar>()->value(), bar);
        if (!running)
            QCOMPARE(cell(0, 0)->background(), QBrush(Qt::transparent));
    });
    QCOMPARE(fake->count("norvane cal inertial_gyro stop"), stops);
    QCOMPARE(fake->message_texts(), messages);
    QCOMPARE(fake->count(marked(S1, "no")), 0);
}

void tst_InertialCalibrationDlg::apply_data()
{
    QTest::addColumn<QByteArray>("residual");   // of S1; 0.0 is not offered for keeping
    QTest::addColumn<bool>("unmark_fails");
    QTest::addColumn<Lines>("lines");
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<QStringList>("messages");

    const QByteArray accept = "norvane inertial accept_new_sensor_gyro ";
    const QString unread = "Could not set get new residual of sensor: " + S1;
    const QString refused = "Could not accept new calirabtion of sensor: " + S2;
    const Lines first{accept + S1, marked(S1, "no")}, second{accept + S2, marked(S2, "no")};
    QTest::newRow("one kept, one refused") << QByteArray("0.2") << false << first + second
                                           << QStringList{"101 Norvane IMU left"} << QStringList{refused};
    QTest::newRow("unticked, not kept") << QByteArray("0.0") << false << second << QStringList() << QStringList{refused};
    QTest::newRow("residual unknown: not offered") << QByteArray("-") << false << second << QStringList()
        << QStringList{unread, unread, unread, refused};   // the residual asked again at each tick
    QTest::newRow("failed unmark stops") << QByteArray("0.2") << true << first << QStringList()
                                         << QStringList{"Could not set calibration of sensor: " + S1};
}

void tst_InertialCalibrationDlg::apply()
{
    QFETCH(QByteArray, residual);
    QFETCH(bool, unmark_fails);
    QFETCH(Lines, lines);
    QFETCH(QStringList, listed);
    QFETCH(QStringList, messages);

    fake->reply("norvane inertial accept_new_sensor_gyro " + S2, "norvane err 7", 4);
    if (unmark_fails)
        fake->fail(marked(S1, "no"));
    residual == "-" ? fake->fail("inertial new_sensor_gyro_residual " + S1)
                    : fake->reply("inertial new_sensor_gyro_residual " + S1, residual);
    QStringList seen;
    open([&] {
        calibrate({"cal", "cal", "none"});
        const int mark = fake->lines().size();
        if (!listed.isEmpty())
            ModalDialogHelper::when_active("InertialCalibrationResultDlg", [&](QWidget* result) {
                QVERIFY(dlg->cursor().shape() == Qt::WaitCursor);
                auto* table = result->findChild<QTableWidget*>();
                for (int r = 0; r < table->rowCount(); ++r)
                    seen << table->item(r, 0)->text() + ' ' + table->item(r, 1)->text() + ' ' + table->item(r, 2)->text()
                                + ' ' + table->item(r, 3)->text();
                QVERIFY(table->isColumnHidden(1));
                result->findChild<QPushButton*>("pushButton_exit")->click();
            });
        w("pushButton_apply")->click();
        QCOMPARE(dlg->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(fake->lines().mid(mark), lines);
        QCOMPARE(fake->message_texts(), messages);
        fake->clear_log();
        QMetaObject::invokeMethod(dlg, "on_pushButton_apply_clicked");
        QCOMPARE(fake->lines(), unmark_fails ? lines : Lines());
    });
    QCOMPARE(seen, listed);
}

void tst_InertialCalibrationDlg::warmup()
{
    fake->reply("inertial warmup", "yes");
    fake->reply("inertial warmup_status", "0.42");
    auto* bar = w<QProgressBar>("progressBar_warmup");
    auto* warning = w<QLabel>("label_error");
    open([&] {
        QVERIFY(bar->isVisible() && bar->value() == 42 && timer(1000)->isActive() && warning->isVisible());
        fake->reply("inertial warmup", "no");
        fake->reply("inertial warmup_status", "1.0");
        fake->clear_log();
        QMetaObject::invokeMethod(timer(1000), "timeout");
        QVERIFY(!bar->isVisible() && !timer(1000)->isActive() && !warning->isVisible());
        QCOMPARE(fake->count("standard number_of_bodies"), 1);   // rebuilt
    });
}

void tst_InertialCalibrationDlg::reopenedIdle()
{
    // Left while the controller still calibrates, with the user's choices
    // changed: the next opening shows a fresh table and no run.
    const auto state = [this] {
        QString s = QString("%1%, %2%3%4%5%6 ").arg(w<QProgressBar>()->value()).arg(w("pushButton_calibrate")->isEnabled())
            .arg(w("pushButton_cancel")->isEnabled()).arg(w("pushButton_apply")->isEnabled())
            .arg(w("pushButton_exit")->isEnabled()).arg(timer(200)->isActive());
        for (int r = 0; r < w<QTableWidget>("tableWidget")->rowCount(); ++r)
            s += '|' + cell(r, 4)->text() + (cell(r, 5)->checkState() ? "x" : "");
        return s;
    };
    QStringList seen;
    open([&] {
        calibrate({"cal", "cal"});
        w<QCheckBox>("checkBox_calibrateAll")->setChecked(false);
        seen << state();
        QVERIFY(dlg->close());
    });
    open([&] { seen << state(); });
    QCOMPARE(seen, QStringList({"60%, 01001 |0.0000|0.4300|", "0%, 10010 |x|x|"}));
}

QTEST_MAIN(tst_InertialCalibrationDlg)
#include "tst_InertialCalibrationDlg.moc"
