#include <QtTest>

#include <QAction>
#include <QTimer>
#include <QToolButton>

#include <memory>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "module/BackendVersions.h"
#include "statusbar/InertialStatusBar.h"
#include "statusbar/TemperatureBar.h"

// The status bar against the scripted controller: its own availability
// rule, the three states the polls move it between, and the warm-up button.
// Timer slots are called directly; only timersDrivePolls runs the timers.
class tst_InertialStatusBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void frame();
    void availability_data();
    void availability();
    void construction_data();
    void construction();
    void pollFollowsController();
    void progress_data();
    void progress();
    void losingAvailability();
    void blockedChangesNothing_data();
    void blockedChangesNothing();
    void button_data();
    void button();
    void aboutToExit_data();
    void aboutToExit();
    void timersDrivePolls();

private:
    // "<fail>" makes the line fail; a null answer leaves it unscripted.
    void script(const QByteArray& line, const QByteArray& answer);
    void script_controller(const QByteArray& available, const QByteArray& count,
                           const QByteArray& warmup, const QByteArray& status = "0");
    std::unique_ptr<InertialStatusBar> make();

    static QToolButton* button(InertialStatusBar& status);
    static TemperatureBar* bar(InertialStatusBar& status);
    static QAction* barAction(InertialStatusBar& status);
    static QTimer* timer(InertialStatusBar& status, const char* name);

    FakeController* fake = nullptr;
    BackendVersions versions;
    QWidget* host_window = nullptr;
};

namespace {

const QByteArray Available = "inertial available";
const QByteArray Count = "inertial number_of_sensors";
const QByteArray Warmup = "inertial warmup";
const QByteArray WarmupStatus = "inertial warmup_status";
const QString Running = QStringLiteral("Warmup is running %p%...");

} // namespace

void tst_InertialStatusBar::init()
{
    fake = new FakeController;
    versions = BackendVersions();
    versions.major = 1;
    versions.minor = 21;
    host_window = new QWidget;
}

void tst_InertialStatusBar::cleanup()
{
    delete host_window;
    host_window = nullptr;
    delete fake;
    fake = nullptr;
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
    QCOMPARE(ModalDialogHelper::pending(), 0);
}

void tst_InertialStatusBar::script(const QByteArray& line, const QByteArray& answer)
{
    if (answer == "<fail>")
        fake->fail(line);
    else if (!answer.isNull())
        fake->reply(line, answer);
}

void tst_InertialStatusBar::script_controller(const QByteArray& available, const QByteArray& count,
                                              const QByteArray& warmup, const QByteArray& status)
{
    script(Available, available);
    script(Count, count);
    script(Warmup, warmup);
    script(WarmupStatus, status);
}

std::unique_ptr<InertialStatusBar> tst_InertialStatusBar::make()
{
    return std::make_unique<InertialStatusBar>(fake, host_window, &versions);
}

QToolButton* tst_InertialStatusBar::button(InertialStatusBar& status)
{
    return status.findChild<QToolButton*>(QStringLiteral("pushButton_startWarmup"));
}

TemperatureBar* tst_InertialStatusBar::bar(InertialStatusBar& status)
{
    return status.findChild<TemperatureBar*>();
}

QAction* tst_InertialStatusBar::barAction(InertialStatusBar& status)
{
    for (QAction* action : status.actions())
        if (status.widgetForAction(action) == bar(status))
            return action;
    return nullptr;
}

QTimer* tst_InertialStatusBar::timer(InertialStatusBar& status, const char* name)
{
    return status.findChild<QTimer*>(QLatin1String(name));
}

void tst_InertialStatusBar::frame()
{
    versions.minor = 11;
    auto status = make();
    QCOMPARE(status->objectName(), QStringLiteral("InertialStatusBar"));
    QCOMPARE(status->windowTitle(), QStringLiteral("VEK InertialSensor Status"));
    QCOMPARE(status->whatsThis(),
             QStringLiteral("Displays whether VEK InertialSensor is available and the warming up status"));
    QCOMPARE(status->parentWidget(), host_window);
    QVERIFY(status->isVisibleTo(host_window));

    // The button first, then the bar, each in its own action.
    const QList<QAction*> actions = status->actions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(status->widgetForAction(actions.at(0)), static_cast<QWidget*>(button(*status)));
    QCOMPARE(status->widgetForAction(actions.at(1)), static_cast<QWidget*>(bar(*status)));
    QCOMPARE(button(*status)->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(button(*status)->maximumHeight(), 22);
    QCOMPARE(bar(*status)->maximumSize(), QSize(200, 22));
    QCOMPARE(bar(*status)->format(), QString());

    QCOMPARE(timer(*status, "statusTimer")->interval(), 1000);
    QVERIFY(timer(*status, "statusTimer")->isActive());
    QCOMPARE(timer(*status, "progressTimer")->interval(), 5000);
    QVERIFY(!timer(*status, "progressTimer")->isActive());
}

void tst_InertialStatusBar::availability_data()
{
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("patch");
    QTest::addColumn<QByteArray>("available");
    QTest::addColumn<QByteArray>("count");
    QTest::addColumn<bool>("expected");
    QTest::addColumn<QByteArrayList>("lines");

    const QByteArrayList both{Available, Count};
    QTest::newRow("below 1.12.0 nothing is asked")
        << 1 << 11 << 99 << QByteArray("yes") << QByteArray("2") << false << QByteArrayList();
    QTest::newRow("1.12.-1 passes the gate")
        << 1 << 12 << -1 << QByteArray("yes") << QByteArray("2") << true << both;
    QTest::newRow("2.0.0 passes the gate")
        << 2 << 0 << 0 << QByteArray("yes") << QByteArray("1") << true << both;
    QTest::newRow("available no")
        << 1 << 21 << 0 << QByteArray("no") << QByteArray("2") << false
        << QByteArrayList{Available};
    QTest::newRow("available is compared whole")
        << 1 << 21 << 0 << QByteArray("yes please") << QByteArray("2") << false
        << QByteArrayList{Available};
    QTest::newRow("failed available query counts as yes")
        << 1 << 21 << 0 << QByteArray("<fail>") << QByteArray("2") << true << both;
    QTest::newRow("no sensors is unavailable")
        << 1 << 21 << 0 << QByteArray("yes") << QByteArray("0") << false << both;
    QTest::newRow("failed count is unavailable")
        << 1 << 21 << 0 << QByteArray("yes") << QByteArray("<fail>") << false << both;
    QTest::newRow("both queries fail")
        << 1 << 21 << 0 << QByteArray("<fail>") << QByteArray("<fail>") << false << both;
    QTest::newRow("absurd count is still sensors")
        << 1 << 21 << 0 << QByteArray("yes") << QByteArray("2000000000") << true << both;
}

void tst_InertialStatusBar::availability()
{
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(int, patch);
    QFETCH(QByteArray, available);
    QFETCH(QByteArray, count);
    QFETCH(bool, expected);
    QFETCH(QByteArrayList, lines);

    versions.major = major;
    versions.minor = minor;
    versions.patch = patch;
    script_controller(available, count, "no");
    auto status = make();
    QCOMPARE(button(*status)->isEnabled(), expected);
    QCOMPARE(barAction(*status)->isVisible(), expected);

    fake->clear_log();
    QCOMPARE(status->is_inertial_available(), expected);
    QCOMPARE(fake->lines(), lines);
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialStatusBar::construction_data()
{
    QTest::addColumn<QByteArray>("available");
    QTest::addColumn<QByteArrayList>("counts");
    QTest::addColumn<QByteArray>("warmup");
    QTest::addColumn<QByteArray>("warmupStatus");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArrayList>("lines");

    const QByteArrayList idle{Available, Count, Count, Warmup};
    QTest::newRow("unavailable")
        << QByteArray("no") << QByteArrayList{"2"} << QByteArray("no") << QByteArray("0")
        << QStringList() << false << "Warmup start" << 0 << QByteArrayList{Available};
    QTest::newRow("idle")
        << QByteArray("yes") << QByteArrayList{"2"} << QByteArray("no") << QByteArray("0")
        << QStringList() << true << "Warmup start" << 0 << idle;
    QTest::newRow("already warming")
        << QByteArray("yes") << QByteArrayList{"2"} << QByteArray("yes") << QByteArray("0.42")
        << QStringList() << true << "Warmup stop" << 42
        << idle + QByteArrayList{Available, Count, WarmupStatus};
    QTest::newRow("count unreadable as a number")
        << QByteArray("yes") << QByteArrayList{"2", "two"} << QByteArray("no") << QByteArray("0")
        << QStringList{"Could not get number of sensors"} << true << "Warmup start" << 0 << idle;
    QTest::newRow("warm-up state unknown")
        << QByteArray("yes") << QByteArrayList{"2"} << QByteArray("<fail>") << QByteArray("0")
        << QStringList{"Could not get warmup status"} << true << "Warmup start" << 0 << idle;
}

void tst_InertialStatusBar::construction()
{
    QFETCH(QByteArray, available);
    QFETCH(QByteArrayList, counts);
    QFETCH(QByteArray, warmup);
    QFETCH(QByteArray, warmupStatus);
    QFETCH(QStringList, messages);
    QFETCH(bool, enabled);
    QFETCH(QString, text);
    QFETCH(int, value);
    QFETCH(QByteArrayList, lines);

    script_controller(available, QByteArray(), warmup, warmupStatus);
    fake->replies(Count, counts);
    auto status = make();

    QCOMPARE(fake->lines(), lines);
    QCOMPARE(fake->message_texts(), messages);
    QCOMPARE(button(*status)->isEnabled(), enabled);
    QCOMPARE(barAction(*status)->isVisible(), enabled);
    QCOMPARE(button(*status)->text(), text);
    QCOMPARE(timer(*status, "progressTimer")->isActive(), text == "Warmup stop");
    QCOMPARE(bar(*status)->value(), value);
    QVERIFY(timer(*status, "statusTimer")->isActive());
}

void tst_InertialStatusBar::pollFollowsController()
{
    script_controller("yes", "2", "no", "0");
    auto status = make();
    QTimer* progress = timer(*status, "progressTimer");

    // Idle: the poll asks three things and changes nothing.
    fake->clear_log();
    status->update_status();
    QCOMPARE(fake->lines(), (QByteArrayList{Available, Count, Warmup}));
    QCOMPARE(button(*status)->text(), QStringLiteral("Warmup start"));
    QVERIFY(!progress->isActive());

    // A warm-up started elsewhere shows at the next poll, with its progress.
    fake->reply(Warmup, "yes");
    fake->reply(WarmupStatus, "0.25");
    fake->clear_log();
    status->update_status();
    QCOMPARE(fake->lines(),
             (QByteArrayList{Available, Count, Warmup, Available, Count, WarmupStatus}));
    QCOMPARE(button(*status)->text(), QStringLiteral("Warmup stop"));
    QVERIFY(progress->isActive());
    QCOMPARE(bar(*status)->value(), 25);
    QCOMPARE(bar(*status)->format(), Running);
    QCOMPARE(bar(*status)->text(), QStringLiteral("Warmup is running 25%..."));

    // While warming the status poll leaves the progress to its own timer.
    fake->reply(WarmupStatus, "0.5");
    fake->clear_log();
    status->update_status();
    QCOMPARE(fake->lines(), (QByteArrayList{Available, Count, Warmup}));
    QCOMPARE(bar(*status)->value(), 25);
    status->update_progress();
    QCOMPARE(bar(*status)->value(), 50);

    // The warm-up ends on the controller: back to idle, bar emptied.
    fake->reply(Warmup, "no");
    status->update_status();
    QCOMPARE(button(*status)->text(), QStringLiteral("Warmup start"));
    QVERIFY(!progress->isActive());
    QCOMPARE(bar(*status)->value(), 0);
    QCOMPARE(bar(*status)->format(), QString());
    QVERIFY(button(*status)->isEnabled());
    QCOMPARE(fake->message_texts(), QStringList());
    QCOMPARE(fake->unexpected(), QByteArrayList());
}

void tst_InertialStatusBar::progress_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QStringList failed{"Error: Unable to get warmup status"};
    QTest::newRow("0.999 floors to 99") << QByteArray("0.999") << 99 << none;
    QTest::newRow("0.5 is 50") << QByteArray("0.5") << 50 << none;
    QTest::newRow("0 is empty") << QByteArray("0") << 0 << none;
    QTest::newRow("1 is full") << QByteArray("1") << 100 << none;
    QTest::newRow("above 1 stays full") << QByteArray("2e9") << 100 << none;
    QTest::newRow("below 0 stays empty") << QByteArray("-0.3") << 0 << none;
    QTest::newRow("failed query keeps the bar") << QByteArray("<fail>") << 40 << failed;
    QTest::newRow("not a number keeps the bar") << QByteArray("soon") << 40 << failed;
    QTest::newRow("nan keeps the bar") << QByteArray("nan") << 40 << failed;
}

void tst_InertialStatusBar::progress()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, value);
    QFETCH(QStringList, messages);

    script_controller("yes", "3", "yes", "0.4");
    auto status = make();
    QCOMPARE(bar(*status)->value(), 40);

    fake->forget(WarmupStatus);
    script(WarmupStatus, reply);
    fake->clear_log();
    status->update_progress();
    QCOMPARE(fake->lines(), (QByteArrayList{Available, Count, WarmupStatus}));
    QCOMPARE(bar(*status)->value(), value);
    QCOMPARE(fake->message_texts(), messages);
    QVERIFY(timer(*status, "progressTimer")->isActive());
}

void tst_InertialStatusBar::losingAvailability()
{
    script_controller("yes", "2", "yes", "0.6");
    auto status = make();
    status->update_status();
    QCOMPARE(bar(*status)->format(), Running);

    // The last sensor goes: the status poll hides the bar and disables the
    // button; the progress poll then ends the warm-up display.
    fake->reply(Count, "0");
    fake->clear_log();
    status->update_status();
    QCOMPARE(fake->lines(), (QByteArrayList{Available, Count}));
    QVERIFY(!button(*status)->isEnabled());
    QVERIFY(!barAction(*status)->isVisible());
    QCOMPARE(bar(*status)->format(), QString());

    fake->clear_log();
    status->update_progress();
    QCOMPARE(fake->lines(), (QByteArrayList{Available, Count}));
    QVERIFY(!timer(*status, "progressTimer")->isActive());
    QCOMPARE(button(*status)->text(), QStringLiteral("Warmup start"));
    QCOMPARE(bar(*status)->value(), 0);
    QVERIFY(!button(*status)->isEnabled());

    // A sensor comes back: the bar reappears, idle.
    fake->reply(Warmup, "no");
    fake->reply(Count, "1");
    status->update_status();
    QVERIFY(button(*status)->isEnabled());
    QVERIFY(barAction(*status)->isVisible());
    QCOMPARE(button(*status)->text(), QStringLiteral("Warmup start"));
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialStatusBar::blockedChangesNothing_data()
{
    QTest::addColumn<QByteArray>("warmup");
    QTest::addColumn<QString>("text");

    QTest::newRow("idle") << QByteArray("no") << "Warmup start";
    QTest::newRow("warming") << QByteArray("yes") << "Warmup stop";
}

void tst_InertialStatusBar::blockedChangesNothing()
{
    QFETCH(QByteArray, warmup);
    QFETCH(QString, text);

    script_controller("yes", "2", warmup, "0.4");
    fake->accept("inertial warmup yes");
    fake->accept("inertial warmup no");
    auto status = make();
    status->update_status();
    const QString format = bar(*status)->format();
    const int value = bar(*status)->value();
    const bool warming = timer(*status, "progressTimer")->isActive();

    // Whatever the controller would now say, nothing is asked or shown.
    fake->set_blocked(true);
    fake->reply(Available, "no");
    fake->reply(Warmup, warmup == "yes" ? "no" : "yes");
    fake->clear_log();
    status->update_status();
    status->update_progress();
    button(*status)->click();
    QCOMPARE(fake->calls().size(), 0);
    QCOMPARE(fake->message_texts(), QStringList());
    QVERIFY(button(*status)->isEnabled());
    QVERIFY(barAction(*status)->isVisible());
    QCOMPARE(button(*status)->text(), text);
    QCOMPARE(bar(*status)->format(), format);
    QCOMPARE(bar(*status)->value(), value);
    QCOMPARE(timer(*status, "progressTimer")->isActive(), warming);

    fake->set_blocked(false);
    status->update_status();
    QVERIFY(!button(*status)->isEnabled());
}

void tst_InertialStatusBar::button_data()
{
    QTest::addColumn<bool>("warming");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QByteArrayList>("lines");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");

    const QByteArray yes = "inertial warmup yes";
    const QByteArray no = "inertial warmup no";
    QTest::newRow("start accepted") << false << true
                                    << QByteArrayList{yes, Available, Count, WarmupStatus}
                                    << QStringList() << "Warmup stop" << 10;
    QTest::newRow("start refused") << false << false << QByteArrayList{yes}
                                   << QStringList{"Could not start warmup of sensors"}
                                   << "Warmup start" << 0;
    QTest::newRow("stop accepted") << true << true << QByteArrayList{no} << QStringList()
                                   << "Warmup start" << 0;
    QTest::newRow("stop refused") << true << false << QByteArrayList{no}
                                  << QStringList{"Could not stop warmup of sensors"}
                                  << "Warmup stop" << 40;
}

void tst_InertialStatusBar::button()
{
    QFETCH(bool, warming);
    QFETCH(bool, accepted);
    QFETCH(QByteArrayList, lines);
    QFETCH(QStringList, messages);
    QFETCH(QString, text);
    QFETCH(int, value);

    script_controller("yes", "2", warming ? "yes" : "no", "0.4");
    auto status = make();
    const QByteArray setting = lines.first();
    if (accepted)
        fake->accept(setting);
    else
        fake->fail(setting);
    fake->reply(WarmupStatus, "0.1");
    fake->clear_log();

    QTest::mouseClick(button(*status), Qt::LeftButton);

    QCOMPARE(fake->lines(), lines);
    // The switch goes out under the long time-out it needs.
    const QList<FakeController::Call>& calls = fake->calls();
    QCOMPARE(calls.first().operation, FakeController::SetTimeout);
    const FakeController::Call& set = calls.at(1);
    QCOMPARE(set.operation, FakeController::SetValue);
    QCOMPARE(set.wait_separately, false);
    QCOMPARE(set.timeout_ms, 10000);
    QCOMPARE(set.timeout_flag, true);

    QCOMPARE(fake->message_texts(), messages);
    for (const FakeController::Message& message : fake->messages()) {
        QCOMPARE(message.target, QStringLiteral("standard"));
        QCOMPARE(message.source, QStringLiteral("Norvane"));
        QCOMPARE(message.type, 1);
    }
    QCOMPARE(button(*status)->text(), text);
    QCOMPARE(timer(*status, "progressTimer")->isActive(), text == "Warmup stop");
    QCOMPARE(bar(*status)->value(), value);
}

void tst_InertialStatusBar::aboutToExit_data()
{
    QTest::addColumn<QByteArray>("count");
    QTest::addColumn<bool>("statusRuns");

    QTest::newRow("available stops both") << QByteArray("2") << false;
    QTest::newRow("unavailable keeps polling status") << QByteArray("0") << true;
}

void tst_InertialStatusBar::aboutToExit()
{
    QFETCH(QByteArray, count);
    QFETCH(bool, statusRuns);

    script_controller("yes", "2", "yes", "0.3");
    auto status = make();
    QVERIFY(timer(*status, "progressTimer")->isActive());

    fake->reply(Count, count);
    status->about_to_exit();
    QVERIFY(!timer(*status, "progressTimer")->isActive());
    QCOMPARE(timer(*status, "statusTimer")->isActive(), statusRuns);
}

void tst_InertialStatusBar::timersDrivePolls()
{
    script_controller("yes", "2", "no", "0.7");
    auto status = make();
    QTimer* poll = timer(*status, "statusTimer");
    QTimer* progress = timer(*status, "progressTimer");
    poll->setInterval(0);

    fake->reply(Warmup, "yes");
    QTRY_COMPARE(button(*status)->text(), QStringLiteral("Warmup stop"));
    QCOMPARE(bar(*status)->value(), 70);
    poll->stop();

    progress->setInterval(0);
    fake->reply(WarmupStatus, "0.8");
    QTRY_COMPARE(bar(*status)->value(), 80);
}

QTEST_MAIN(tst_InertialStatusBar)
#include "tst_InertialStatusBar.moc"
