#include <QtTest>

#include <QLCDNumber>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

#include <functional>

#include "DialogFixture.h"
#include "calibration/CalibrationProgressDlg.h"

using Lines = QList<QByteArray>;

class tst_CalibrationProgressDlg : public QObject, DialogFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { finish(); }
    void runs_data();
    void runs();
    void two_steps_without_pause_mode();
    void two_steps_with_pause_mode();

private:
    QString text(const char* name) const { return dlg->findChild<QLabel*>(name)->text(); }
    int bar(const char* name) const { return dlg->findChild<QProgressBar*>(name)->value(); }
    void make(bool pause_mode, int steps, const QByteArray& pause);
    // Runs a calibration; `inside` runs in its modal loop, which is then
    // ended. Without `inside` the dialog must not show.
    int run(const std::function<void()>& inside, const QString& type = "align");
    void tick() { QMetaObject::invokeMethod(dlg->findChild<QTimer*>(), "timeout"); }   // the poll, by its timer
    // Notes what the next countdown shows and presses `button`, or lets it run out.
    void on_countdown(const char* button = "pushButton_2");

    CalibrationProgressDlg* dlg = nullptr;
    QList<int> countdowns;
};

void tst_CalibrationProgressDlg::init()
{
    start();
    countdowns.clear();
}

void tst_CalibrationProgressDlg::make(bool pause_mode, int steps, const QByteArray& pause)
{
    dlg = new CalibrationProgressDlg(fake, owner, &versions, pause_mode);
    for (const QByteArray type : {"align", "reflex_scan"}) {
        fake->reply("cal type_desc " + type, "\"Sensor " + type + "\"");
        fake->reply("cal number_of_steps " + type, QByteArray::number(steps));
        fake->reply("cal step_pause " + type + " s01", pause);
        fake->reply("norvane cal " + type + " start", "norvane ok");
        fake->reply("norvane cal " + type + " stop", "norvane ok");
    }
    fake->reply("cal step_desc align s01", "\"Keep \"still\"\"");
    fake->reply("cal step_desc align s02", "\"Turn\"");
    fake->reply("cal step_duration align s01", "10.0");
    fake->reply("status active", "none");
    fake->reply("status progress", "0.4");
}

int tst_CalibrationProgressDlg::run(const std::function<void()>& inside, const QString& type)
{
    if (inside)
        ModalDialogHelper::when_active("CalibrationProgressDlg", [this, inside](QWidget*) {
            inside();
            if (dlg->isVisible())
                ModalDialogHelper::close(dlg);
        });
    return dlg->update_and_execute(type);
}

void tst_CalibrationProgressDlg::on_countdown(const char* button)
{
    ModalDialogHelper::when_active("CountdownDlg", [=](QWidget* c) {
        QCOMPARE(c->findChild<QTimer*>()->interval(), 1000);
        auto* lcd = c->findChild<QLCDNumber*>();
        countdowns << lcd->intValue();
        if (*button)
            return c->findChild<QPushButton*>(button)->click();
        while (c->isVisible())
            QMetaObject::invokeMethod(c, "updateCountdown");
        countdowns << lcd->intValue();
    });
}

void tst_CalibrationProgressDlg::runs_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("activity");   // before the start
    QTest::addColumn<QByteArray>("ending");     // status, Escape pressed, the start refused or its countdown declined
    QTest::addColumn<Lines>("lines");
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("messages");

    const QByteArray start = "norvane cal align start", status = "status active";
    QTest::newRow("idle, finishes") << "align" << QByteArray("none") << QByteArray("none")
                                    << Lines{status, start, status} << 1 << QStringList();
    QTest::newRow("tracking stopped, fails") << "align" << QByteArray("tracking") << QByteArray("err")
                                             << Lines{status, "norvane tracking stop", start, status,
                                                      "norvane get status err"}
                                             << 0 << QStringList{"Calibration Error: Lost contact to 'S1'"};
    QTest::newRow("Escape stops") << "align" << QByteArray("err") << QByteArray("escape")
                                  << Lines{status, start, "norvane cal align stop"} << 0 << QStringList();
    QTest::newRow("reflex scan ignores Escape") << "reflex_scan" << QByteArray("none") << QByteArray("escape")
                                                << Lines{status, "norvane cal reflex_scan start"} << 0 << QStringList();
    QTest::newRow("waiting for sync") << "align" << QByteArray("wait") << QByteArray() << Lines{status} << 0
                                      << QStringList{"cannot start calibration, waiting for sync signal"};
    QTest::newRow("start refused") << "align" << QByteArray("none") << QByteArray("refused") << Lines{status, start} << 0
                                   << QStringList();
    QTest::newRow("countdown declined, asks nothing more") << "align" << QByteArray("none") << QByteArray("declined")
                                                           << Lines{} << 0 << QStringList();
}

void tst_CalibrationProgressDlg::runs()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, activity);
    QFETCH(QByteArray, ending);
    QFETCH(Lines, lines);
    QFETCH(int, result);
    QFETCH(QStringList, messages);

    make(false, 1, ending == "declined" ? "yes 2.9" : "no 0");
    if (ending == "declined")
        on_countdown("pushButton");
    const QByteArray t = type.toLatin1();
    fake->reply("status active", activity);
    if (ending == "refused")
        fake->reply("norvane cal " + t + " start", "norvane ok ");
    fake->accept("norvane tracking stop");
    fake->reply("norvane get status err", "norvane set status err 31 \"Lost contact to 'S1'\" \"x\"");
    const bool reflex = type == "reflex_scan";
    QStringList seen;
    const bool shows = !ending.isEmpty() && ending != "refused" && ending != "declined";
    QCOMPARE(run(!shows ? std::function<void()>() : [&] {
                 QCOMPARE(dlg->findChild<QPushButton*>("pb_cancel")->isVisible(), !reflex);
                 QCOMPARE(bool(dlg->windowFlags() & Qt::WindowCloseButtonHint), !reflex);
                 seen << text("label_desc");
                 fake->reply("status active", ending);
                 if (ending == "err")
                     ModalDialogHelper::when_active("QMessageBox", [&](QWidget* box) {
                         seen << box->windowTitle() + ": " + static_cast<QMessageBox*>(box)->text();
                         ModalDialogHelper::press(box, QMessageBox::Ok);
                     });
                 ending == "escape" ? QTest::keyClick(dlg, Qt::Key_Escape) : tick();
                 QCOMPARE(dlg->isVisible(), reflex);
             }, type),
             result);
    QCOMPARE(fake->lines(),
             Lines({"cal type_desc " + t, "cal number_of_steps " + t, "cal step_pause " + t + " s01"}) + lines);
    QCOMPARE(countdowns, ending == "declined" ? QList<int>{2} : QList<int>());   // 2.9 s count from 2
    for (const FakeController::Call& call : fake->calls())
        if (call.line.endsWith(" start"))
            QVERIFY(!call.wait_separately && call.timeout_ms == 5000 && !call.timeout_flag);
    QCOMPARE(fake->message_texts() + seen.mid(1), messages);
    if (reflex)
        QCOMPARE(seen.first(), QString("Sensor reflex_scan\nCurrently this calibration cannot be interrupted!"));
}

void tst_CalibrationProgressDlg::two_steps_without_pause_mode()
{
    versions.minor = 3;   // no step durations before 1.4
    make(false, 2, "no 0");
    fake->reply("status active", "cal");
    fake->replies("status progress", {"0.4", "1.0", "0.2"});
    fake->replies("status step_progress", {"1 0.55", "1 x", "2 0.0"});
    QSignalSpy changes(dlg, &CalibrationProgressDlg::progress_changed);
    QStringList seen;
    run([&] {
        const QTimer* poll = dlg->findChild<QTimer*>();
        QVERIFY(poll->isActive() && poll->interval() == 200);
        seen << text("label_desc") << text("label_step_desc");
        fake->clear_log();
        tick();
        const auto shown = [&] {
            seen << QString("%1 %2 %3").arg(bar("progressBar_overall")).arg(bar("progressBar_step")).arg(text("label_info"));
        };
        shown();
        tick();
        dlg->show_custom_message("later");
        shown();
        on_countdown("pushButton");
        tick();
        seen << text("label_step_desc") << text("label_remaining_time");
        QVERIFY(dlg->isVisible() && !poll->isActive());
    });
    QCOMPARE(seen, QStringList({"Sensor align is a 2 step calibration.", "Keep still", "40 55 ", "100 55 calculating...",
                                "Turn", ""}));
    QCOMPARE(countdowns, QList<int>({5}));
    QCOMPARE(changes, QList<QVariantList>({{0.4, 0.55}, {1.0, 0.55}, {0.2, 0.0}}));
    const Lines poll = {"status active", "status progress", "status step_progress"};
    QCOMPARE(fake->lines(), poll + poll + poll + Lines{"cal step_desc align s02"});
}

void tst_CalibrationProgressDlg::two_steps_with_pause_mode()
{
    versions.minor = 4;   // the first with step durations
    make(true, 2, "no 0");
    fake->reply("norvane get cal step_pause align s01", "norvane set cal step_pause align s01 yes 2");
    fake->reply("norvane get cal step_pause align s02", "norvane set cal step_pause align s02 yes 0");
    fake->reply("norvane cal align start_step s02", "norvane ok");
    fake->replies("status step_active", {"pause 1", "cal 1", "pause 2", "pause 2", "err"});
    fake->reply("norvane get status err", "norvane set status err 32 \"Body lost\"");
    fake->accept("norvane tracking start");
    fake->accept("norvane tracking stop");
    fake->reply("status step_progress", "1 0.75");
    on_countdown();
    const int result = run([&] {
        fake->clear_log();
        on_countdown("");
        tick();                // pause 1: the countdown runs out
        tick();                // cal 1
        QCOMPARE(text("label_remaining_time"), QString("remaining time: 2 seconds"));
        on_countdown("pushButton");
        tick();                // pause 2: declined, yet step 2 starts
        QVERIFY(!dlg->isVisible());
        tick();                // pause 2 once more: no second countdown
        ModalDialogHelper::when_active("QMessageBox", [](QWidget* box) {
            QCOMPARE(static_cast<QMessageBox*>(box)->text(), QString("Body lost"));
            ModalDialogHelper::press(box, QMessageBox::Ok);
        });
        tick();                // err: tracking started and stopped again
    });
    QCOMPARE(result, 0);
    QCOMPARE(countdowns, QList<int>({2, 2, 0, 5}));
    QCOMPARE(fake->lines(), Lines({"status step_active", "status step_active", "status progress",
                                   "status step_progress", "cal step_duration align s01", "status step_active",
                                   "cal step_desc align s02", "norvane cal align start_step s02",
                                   "status step_active", "cal step_desc align s02", "status step_active",
                                   "norvane get status err", "norvane tracking start", "norvane tracking stop"}));
}

QTEST_MAIN(tst_CalibrationProgressDlg)
#include "tst_CalibrationProgressDlg.moc"
