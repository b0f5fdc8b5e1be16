#include <QtTest>

#include <QAction>
#include <QTimer>
#include <QToolButton>

#include <memory>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "module/BackendVersions.h"
#include "statusbar/BatteryBar.h"
#include "statusbar/InertialStatusBar.h"
#include "statusbar/TemperatureBar.h"

namespace {

const QByteArray Available = "inertial available";
const QByteArray Count = "inertial number_of_sensors";
const QByteArray Warmup = "inertial warmup";
const QByteArray Progress = "inertial warmup_status";

// A bar as the user sees it: value, text colour, border colour and chunk.
QString look(const QProgressBar& bar)
{
    const QString sheet = bar.styleSheet();
    const QRegularExpression colours("color: (\\w+);.*border-top: 2px solid (\\w+);.*::chunk \\{ (.*) \\}$");
    const QRegularExpressionMatch m = colours.match(sheet);
    return QString("%1 %2/%3 %4").arg(bar.value()).arg(m.captured(1), m.captured(2), m.captured(3));
}

} // namespace

// The status widget against the scripted controller: its own availability
// rule, the three states its polls move it between, the warm-up button,
// and the two bars' colours.
class tst_InertialStatusBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void bars_data();
    void bars();
    void availability_data();
    void availability();
    void polls_data();
    void polls();
    void button_data();
    void button();
    void blockedChangesNothing();
    void aboutToExit();

private:
    // "<fail>" makes a line fail.
    void script(const QByteArray& available, const QByteArray& count, const QByteArray& warmup,
                const QByteArray& progress = "0.4");
    void make();
    // Button text and enabled, bar shown, value and format, progress poll running.
    QString state() const;

    FakeController* fake = nullptr;
    BackendVersions versions;
    QWidget* window = nullptr;
    std::unique_ptr<InertialStatusBar> status;
};

void tst_InertialStatusBar::init()
{
    fake = new FakeController;
    versions = BackendVersions();
    versions.major = 1;
    versions.minor = 21;
    window = new QWidget;
}

void tst_InertialStatusBar::cleanup()
{
    status.reset();
    delete window;
    delete fake;
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_InertialStatusBar::script(const QByteArray& available, const QByteArray& count, const QByteArray& warmup,
                                   const QByteArray& progress)
{
    const QList<QPair<QByteArray, QByteArray>> lines{{Available, available}, {Count, count}, {Warmup, warmup},
                                                     {Progress, progress}};
    for (const auto& line : lines)
        line.second == "<fail>" ? fake->fail(line.first) : fake->reply(line.first, line.second);
}

void tst_InertialStatusBar::make()
{
    status = std::make_unique<InertialStatusBar>(fake, window, &versions);
}

QString tst_InertialStatusBar::state() const
{
    auto* button = status->findChild<QToolButton*>("pushButton_startWarmup");
    auto* bar = status->findChild<TemperatureBar*>("progressBar_warmup");
    QAction* action = nullptr;
    for (QAction* a : status->actions())
        action = status->widgetForAction(a) == bar ? a : action;
    return QString("%1%2 %3 %4 %5 %6").arg(button->text(), button->isEnabled() ? "" : " (off)")
        .arg(action->isVisible() ? "shown" : "hidden").arg(bar->value()).arg(bar->text())
        .arg(status->findChild<QTimer*>("progressTimer")->isActive() ? "polling" : "idle");
}

void tst_InertialStatusBar::bars_data()
{
    QTest::addColumn<bool>("battery");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("look");

    // Battery: a fraction, green from 20; temperature: as it stands, green from 95.
    QTest::newRow("battery 0.195 is 19, red") << true << 0.195 << "19 black/red background-color: #FF0000;";
    QTest::newRow("battery 0.2 is 20, green") << true << 0.2 << "20 black/black background-color: #4CFF00;";
    QTest::newRow("battery 0.999 is 99") << true << 0.999 << "99 black/black background-color: #4CFF00;";
    QTest::newRow("battery 1.5 is full, rounded")
        << true << 1.5 << "100 black/black background-color: #4CFF00; border-radius: 2px;";
    QTest::newRow("battery negative is unknown")
        << true << -0.01 << "0 white/white background-color: #FFFFFF; border-radius: 2px;";
    QTest::newRow("battery not a number is unknown")
        << true << qQNaN() << "0 white/white background-color: #FFFFFF; border-radius: 2px;";
    QTest::newRow("temperature 94.9 is 94, red") << false << 94.9 << "94 black/black background-color: #FF0000;";
    QTest::newRow("temperature 95 is green") << false << 95.0 << "95 black/black background-color: #4CFF00;";
    QTest::newRow("temperature 100 rounded")
        << false << 100.0 << "100 black/black background-color: #4CFF00; border-radius: 2px;";
    QTest::newRow("temperature -1 is unknown") << false << -1.0 << "0 white/white background-color: #FF0000;";
    QTest::newRow("temperature -0.5 truncates to 0") << false << -0.5 << "0 black/black background-color: #FF0000;";
    QTest::newRow("temperature not a number") << false << qQNaN() << "0 white/white background-color: #FF0000;";
}

void tst_InertialStatusBar::bars()
{
    QFETCH(bool, battery);
    QFETCH(double, value);
    QFETCH(QString, look);

    BatteryBar charge;
    TemperatureBar warmth;
    QProgressBar& bar = battery ? static_cast<QProgressBar&>(charge) : warmth;
    QCOMPARE(QString("%1 %2 %3").arg(bar.minimum()).arg(bar.maximum()).arg(bar.value()), QString("0 100 0"));
    battery ? charge.setValue(value) : warmth.setValue(value);
    QCOMPARE(::look(bar), look);
    QVERIFY(bar.styleSheet().startsWith(battery ? "BatteryBar { " : "TemperatureBar { "));
    QVERIFY(bar.styleSheet().contains(battery ? "BatteryBar::chunk" : "QProgressBar::chunk"));
    // The temperature's text is its own; the value stays.
    warmth.setTemperature(23.46);
    QCOMPARE(warmth.text(), QString("23.5\u00b0C"));
}

void tst_InertialStatusBar::availability_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QByteArray>("available");
    QTest::addColumn<QByteArray>("count");
    QTest::addColumn<QString>("state");   // after construction
    QTest::addColumn<QList<QByteArray>>("asked");

    const QString off = "Warmup start (off) hidden 0  idle";
    const QString idle = "Warmup start shown 0  idle";
    const QList<QByteArray> both{Available, Count};
    QTest::newRow("1.11: nothing asked") << 11 << QByteArray("yes") << QByteArray("2") << off << QList<QByteArray>{};
    QTest::newRow("available") << 21 << QByteArray("yes") << QByteArray("2") << idle << both;
    QTest::newRow("said no") << 21 << QByteArray("no") << QByteArray("2") << off << QList<QByteArray>{Available};
    QTest::newRow("compared whole") << 21 << QByteArray("yes please") << QByteArray("2") << off
                                    << QList<QByteArray>{Available};
    QTest::newRow("unanswered counts as yes") << 21 << QByteArray("<fail>") << QByteArray("1") << idle << both;
    QTest::newRow("no sensors, nothing to warm") << 21 << QByteArray("yes") << QByteArray("0") << off << both;
    QTest::newRow("count unanswered") << 21 << QByteArray("yes") << QByteArray("<fail>") << off << both;
}

void tst_InertialStatusBar::availability()
{
    QFETCH(int, minor);
    QFETCH(QByteArray, available);
    QFETCH(QByteArray, count);
    QFETCH(QString, state);
    QFETCH(QList<QByteArray>, asked);

    versions.minor = minor;
    script(available, count, "no");
    make();
    QCOMPARE(this->state(), state);
    fake->clear_log();
    QCOMPARE(status->is_inertial_available(), state.contains("shown"));
    QCOMPARE(fake->lines(), asked);
    QCOMPARE(fake->message_texts(), QStringList());
    QCOMPARE(status->findChild<QTimer*>("statusTimer")->isActive(), true);
    QCOMPARE(status->parentWidget(), window);
}

void tst_InertialStatusBar::polls_data()
{
    QTest::addColumn<QByteArray>("warmup");     // at construction
    QTest::addColumn<QList<QByteArray>>("then");  // warm-up, count, progress answers for the polls
    QTest::addColumn<QString>("state");         // after the status poll, then after the progress poll
    QTest::addColumn<QStringList>("messages");

    const QString warming = "Warmup stop shown 40 Warmup is running 40%... polling";
    QTest::newRow("idle stays idle") << QByteArray("no") << QList<QByteArray>{"no", "2", "0.4"}
        << "Warmup start shown 0  idle\nWarmup start shown 0  idle" << QStringList();
    QTest::newRow("started elsewhere shows") << QByteArray("no") << QList<QByteArray>{"yes", "2", "0.25"}
        << "Warmup stop shown 25 Warmup is running 25%... polling\n"
           "Warmup stop shown 25 Warmup is running 25%... polling" << QStringList();
    QTest::newRow("progress floors 0.999 to 99") << QByteArray("yes") << QList<QByteArray>{"yes", "2", "0.999"}
        << warming + "\nWarmup stop shown 99 Warmup is running 99%... polling" << QStringList();
    QTest::newRow("progress beyond 1 is full") << QByteArray("yes") << QList<QByteArray>{"yes", "2", "2e9"}
        << warming + "\nWarmup stop shown 100 Warmup is running 100%... polling" << QStringList();
    QTest::newRow("progress below 0 is empty") << QByteArray("yes") << QList<QByteArray>{"yes", "2", "-0.3"}
        << warming + "\nWarmup stop shown 0 Warmup is running 0%... polling" << QStringList();
    QTest::newRow("progress unknown keeps the bar") << QByteArray("yes") << QList<QByteArray>{"yes", "2", "<fail>"}
        << warming + '\n' + warming << QStringList{"Error: Unable to get warmup status"};
    QTest::newRow("progress not finite keeps the bar") << QByteArray("yes") << QList<QByteArray>{"yes", "2", "nan"}
        << warming + '\n' + warming << QStringList{"Error: Unable to get warmup status"};
    QTest::newRow("ended by the controller") << QByteArray("yes") << QList<QByteArray>{"no", "2", "0.4"}
        << "Warmup start shown 0  idle\nWarmup start shown 0  idle" << QStringList();
    QTest::newRow("warm-up state unknown") << QByteArray("yes") << QList<QByteArray>{"<fail>", "2", "0.4"}
        << "Warmup start shown 0  idle\nWarmup start shown 0  idle" << QStringList{"Could not get warmup status"};
    QTest::newRow("last sensor gone") << QByteArray("yes") << QList<QByteArray>{"yes", "0", "0.4"}
        << "Warmup stop (off) hidden 40  polling\nWarmup start (off) hidden 0  idle"
        << QStringList();
}

void tst_InertialStatusBar::polls()
{
    QFETCH(QByteArray, warmup);
    QFETCH(QList<QByteArray>, then);
    QFETCH(QString, state);
    QFETCH(QStringList, messages);

    script("yes", "2", warmup);
    make();
    QCOMPARE(fake->message_texts(), QStringList());
    script("yes", then.at(1), then.at(0), then.at(2));
    // The bar's own timers drive the polls, as they do in the host.
    auto* poll = status->findChild<QTimer*>("statusTimer");
    auto* progress = status->findChild<QTimer*>("progressTimer");
    QCOMPARE(poll->interval(), 1000);
    QCOMPARE(progress->interval(), 5000);
    QMetaObject::invokeMethod(poll, "timeout");
    QString seen = this->state();
    if (progress->isActive())
        QMetaObject::invokeMethod(progress, "timeout");
    seen += '\n' + this->state();
    QCOMPARE(seen, state);
    QCOMPARE(fake->message_texts(), messages);
}

void tst_InertialStatusBar::button_data()
{
    QTest::addColumn<QByteArray>("warmup");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QStringList>("messages");

    QTest::newRow("start") << QByteArray("no") << true << "Warmup stop shown 10  polling"
                           << QStringList();
    QTest::newRow("start refused") << QByteArray("no") << false << "Warmup start shown 0  idle"
                                   << QStringList{"Could not start warmup of sensors"};
    QTest::newRow("stop") << QByteArray("yes") << true << "Warmup start shown 0 Warmup is running 0%... idle"
                          << QStringList();
    QTest::newRow("stop refused") << QByteArray("yes") << false
                                  << "Warmup stop shown 40 Warmup is running 40%... polling"
                                  << QStringList{"Could not stop warmup of sensors"};
}

void tst_InertialStatusBar::button()
{
    QFETCH(QByteArray, warmup);
    QFETCH(bool, accepted);
    QFETCH(QString, state);
    QFETCH(QStringList, messages);

    script("yes", "2", warmup);
    make();
    status->update_status();
    const QByteArray setting = warmup == "yes" ? "inertial warmup no" : "inertial warmup yes";
    accepted ? fake->accept(setting) : fake->fail(setting);
    fake->reply(Progress, "0.1");
    fake->clear_log();
    QTest::mouseClick(status->findChild<QToolButton*>("pushButton_startWarmup"), Qt::LeftButton);
    QCOMPARE(fake->lines().value(0), setting);
    QCOMPARE(fake->lines().size(), accepted && warmup == "no" ? 4 : 1);   // a start reads the progress at once
    // The switch reaches every sensor by radio: it goes out under a long time-out.
    const FakeController::Call& call = fake->calls().value(1);
    QVERIFY(!call.wait_separately && call.timeout_ms == 10000 && call.timeout_flag);
    QCOMPARE(this->state(), state);
    QCOMPARE(fake->message_texts(), messages);
    for (const FakeController::Message& message : fake->messages())
        QCOMPARE(message.target + message.source + QString::number(message.type), QString("standardNorvane1"));
}

void tst_InertialStatusBar::blockedChangesNothing()
{
    script("yes", "2", "yes");
    make();
    status->update_status();
    const QString before = state();
    // Whatever the controller would say now, nothing is asked or shown.
    fake->set_blocked(true);
    script("no", "0", "no", "0.9");
    fake->clear_log();
    status->update_status();
    status->update_progress();
    status->findChild<QToolButton*>("pushButton_startWarmup")->click();
    QCOMPARE(fake->calls().size(), 0);
    QCOMPARE(state(), before);
    fake->set_blocked(false);
    status->update_status();
    QCOMPARE(state(), QString("Warmup stop (off) hidden 40  polling"));
}

void tst_InertialStatusBar::aboutToExit()
{
    // The status poll stops only while inertial tracking is available.
    for (const QByteArray count : {"2", "0"}) {
        script("yes", "2", "yes");
        make();
        fake->reply(Count, count);
        status->about_to_exit();
        QVERIFY(!status->findChild<QTimer*>("progressTimer")->isActive());
        QCOMPARE(status->findChild<QTimer*>("statusTimer")->isActive(), count == "0");
    }
}

QTEST_MAIN(tst_InertialStatusBar)
#include "tst_InertialStatusBar.moc"
