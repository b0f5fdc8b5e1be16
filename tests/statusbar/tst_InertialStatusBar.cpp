#include <QtTest>

#include <QAction>
#include <QTimer>
#include <QToolButton>

#include <memory>

#include "DialogFixture.h"
#include "statusbar/BatteryBar.h"
#include "statusbar/InertialStatusBar.h"
#include "statusbar/TemperatureBar.h"

// The status widget against the scripted controller: its own availability
// rule, the three states its two polls move it between, the warm-up button,
// and the two bars' colours.
class tst_InertialStatusBar : public QObject, DialogFixture
{
    Q_OBJECT

private slots:
    void init() { start(); }
    void cleanup() { status.reset(); finish(); }
    void bars_data();
    void bars();
    void polls_data();
    void polls();
    void button_data();
    void button();
    void blockedChangesNothing();

private:
    // The controller's answers to "inertial available", "inertial
    // number_of_sensors", "inertial warmup" and "inertial warmup_status";
    // "-" makes one fail.
    void answer(const QList<QByteArray>& answers);
    // The button, the bar and whether the progress poll runs.
    QString state() const;
    QTimer* timer(const char* name) const { return status->findChild<QTimer*>(name); }

    std::unique_ptr<InertialStatusBar> status;
};

void tst_InertialStatusBar::answer(const QList<QByteArray>& answers)
{
    const QList<QByteArray> lines{"inertial available", "inertial number_of_sensors", "inertial warmup",
                                  "inertial warmup_status"};
    for (int i = 0; i < lines.size(); ++i)
        answers.at(i) == "-" ? fake->fail(lines.at(i)) : fake->reply(lines.at(i), answers.at(i));
}

QString tst_InertialStatusBar::state() const
{
    auto* button = status->findChild<QToolButton*>("pushButton_startWarmup");
    auto* bar = status->findChild<TemperatureBar*>("progressBar_warmup");
    QAction* action = status->actions().value(1);
    return QString("%1%2, bar %3 %4 \"%5\", %6").arg(button->text(), button->isEnabled() ? "" : " (off)")
        .arg(status->widgetForAction(action) == bar && action->isVisible() ? "shown" : "hidden").arg(bar->value())
        .arg(bar->text()).arg(timer("progressTimer")->isActive() ? "polling" : "idle");
}

void tst_InertialStatusBar::bars_data()
{
    QTest::addColumn<bool>("battery");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("look");   // value, text and border colour, chunk

    // A battery takes a fraction and is green from 20; a temperature is taken as it stands, green from 95.
    QTest::newRow("battery 0.195 is 19, red") << true << 0.195 << "19 black/red background-color: #FF0000;";
    QTest::newRow("battery 0 is red") << true << 0.0 << "0 black/red background-color: #FF0000;";
    QTest::newRow("battery 0.2 is 20, green") << true << 0.2 << "20 black/black background-color: #4CFF00;";
    QTest::newRow("battery 0.999 is 99") << true << 0.999 << "99 black/black background-color: #4CFF00;";
    QTest::newRow("battery 1.5 is full, rounded") << true << 1.5 << "100 black/black background-color: #4CFF00; "
                                                                   "border-radius: 2px;";
    QTest::newRow("battery negative: unknown") << true << -0.01 << "0 white/white background-color: #FFFFFF; "
                                                                  "border-radius: 2px;";
    QTest::newRow("battery not a number: unknown") << true << qQNaN() << "0 white/white background-color: #FFFFFF; "
                                                                         "border-radius: 2px;";
    QTest::newRow("temperature 94.9 is 94, red") << false << 94.9 << "94 black/black background-color: #FF0000;";
    QTest::newRow("temperature 95 is green") << false << 95.0 << "95 black/black background-color: #4CFF00;";
    QTest::newRow("temperature 100 rounded") << false << 100.0 << "100 black/black background-color: #4CFF00; "
                                                                  "border-radius: 2px;";
    QTest::newRow("temperature -1: unknown") << false << -1.0 << "0 white/white background-color: #FF0000;";
    QTest::newRow("temperature -0.5 is 0") << false << -0.5 << "0 black/black background-color: #FF0000;";
    QTest::newRow("temperature not a number: unknown") << false << qQNaN() << "0 white/white background-color: #FF0000;";
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
    const QRegularExpression parts("^(\\w+) \\{ color: (\\w+);.*border-top: 2px solid (\\w+);.* (\\S+) \\{ (.*) \\}$");
    const QRegularExpressionMatch m = parts.match(bar.styleSheet());
    QCOMPARE(QString("%1 %2/%3 %4").arg(bar.value()).arg(m.captured(2), m.captured(3), m.captured(5)), look);
    QCOMPARE(m.captured(1) + ' ' + m.captured(4), battery ? "BatteryBar BatteryBar::chunk"
                                                          : "TemperatureBar QProgressBar::chunk");
    // The temperature's text is its own; the value stays.
    warmth.setTemperature(23.46);
    QCOMPARE(warmth.text(), QString("23.5\u00b0C"));
}

void tst_InertialStatusBar::polls_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QList<QByteArray>>("before");   // the answers at construction
    QTest::addColumn<QList<QByteArray>>("after");    // the answers to the polls
    QTest::addColumn<QString>("states");             // built (lines asked), after the status poll, after the progress poll
    QTest::addColumn<QString>("messages");

    const QList<QByteArray> idle{"yes", "2", "no", "0.4"};
    const QList<QByteArray> warming{"yes", "2", "yes", "0.4"};
    const QString off = "Warmup start (off), bar hidden 0 \"\", idle";
    const QString ready = "Warmup start, bar shown 0 \"\", idle";
    const QString running = "Warmup stop, bar shown 40 \"Warmup is running 40%...\", polling";
    const QString started = "Warmup stop, bar shown 40 \"\", polling [7]\n" + running + '\n';   // no text before a status poll
    auto row = [&](const char* name, int minor, const QList<QByteArray>& before, const QList<QByteArray>& after,
                   const QString& states, const QString& messages = {}) {
        QTest::newRow(name) << minor << before << after << states << messages;
    };
    row("1.11: nothing asked", 11, idle, idle, off + " [0]\n" + off + '\n' + off);
    row("1.12: the first with inertial sensors", 12, idle, idle, ready + " [4]\n" + ready + '\n' + ready);
    row("said no", 21, {"no", "2", "no", "0"}, idle, off + " [1]\n" + ready + '\n' + ready);
    row("compared whole", 21, {"yes please", "2", "no", "0"}, {"yes please", "2", "no", "0"}, off + " [1]\n" + off + '\n'
        + off);
    row("unanswered counts as yes", 21, {"-", "1", "no", "0"}, idle, ready + " [4]\n" + ready + '\n' + ready);
    row("no sensors, nothing to warm", 21, {"yes", "0", "no", "0"}, idle, off + " [2]\n" + ready + '\n' + ready);
    row("count unanswered", 21, {"yes", "-", "no", "0"}, idle, off + " [2]\n" + ready + '\n' + ready);
    row("count unreadable", 21, {"yes", "two", "no", "0"}, idle, ready + " [4]\n" + ready + '\n' + ready,
        "Could not get number of sensors");
    row("warming already", 21, warming, warming, started + running);
    row("started elsewhere", 21, idle, {"yes", "2", "yes", "0.25"}, ready + " [4]\nWarmup stop, bar shown 25 \"Warmup is "
        "running 25%...\", polling\nWarmup stop, bar shown 25 \"Warmup is running 25%...\", polling");
    row("0.999 floors to 99", 21, warming, {"yes", "2", "yes", "0.999"}, started + QString(running).replace("40", "99"));
    row("beyond 1 is full", 21, warming, {"yes", "2", "yes", "2e9"}, started + QString(running).replace("40", "100"));
    row("below 0 is empty", 21, warming, {"yes", "2", "yes", "-0.3"}, started + QString(running).replace("40", "0"));
    row("progress unknown: the bar kept", 21, warming, {"yes", "2", "yes", "-"}, started + running,
        "Error: Unable to get warmup status");
    row("progress not finite: the bar kept", 21, warming, {"yes", "2", "yes", "nan"}, started + running,
        "Error: Unable to get warmup status");
    row("ended by the controller", 21, warming, idle, started.section('\n', 0, 0) + '\n' + ready + '\n' + ready);
    row("warm-up state unknown", 21, idle, {"yes", "2", "-", "0.4"}, ready + " [4]\n" + ready + '\n' + ready,
        "Could not get warmup status");
    row("the last sensor gone", 21, warming, {"yes", "0", "yes", "0.4"}, started.section('\n', 0, 0) + "\nWarmup stop "
        "(off), bar hidden 40 \"\", polling\n" + off);
}

void tst_InertialStatusBar::polls()
{
    QFETCH(int, minor);
    QFETCH(QList<QByteArray>, before);
    QFETCH(QList<QByteArray>, after);
    QFETCH(QString, states);
    QFETCH(QString, messages);

    versions.minor = minor;
    answer(before);
    status = std::make_unique<InertialStatusBar>(fake, owner, &versions);
    QStringList seen{state() + QString(" [%1]").arg(fake->lines().size())};
    answer(after);
    // The button's text tells start from stop: it is shown, beside the icon.
    QCOMPARE(status->findChild<QToolButton*>("pushButton_startWarmup")->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    // The bar's own timers drive the polls, as they do in the host.
    QCOMPARE(timer("statusTimer")->interval() + timer("progressTimer")->interval(), 6000);
    status->hide();   // a status poll that finds sensors shows the bar again
    QMetaObject::invokeMethod(timer("statusTimer"), "timeout");
    seen << state();
    QCOMPARE(status->isHidden(), seen.last().contains("(off)"));
    if (timer("progressTimer")->isActive())
        QMetaObject::invokeMethod(timer("progressTimer"), "timeout");
    seen << state();
    QCOMPARE(seen.join('\n'), states);
    QCOMPARE(fake->message_texts().join('\n'), messages);
    QVERIFY(timer("statusTimer")->isActive());
    // Leaving stops the progress poll, the status poll only while there is something to warm.
    status->about_to_exit();
    QCOMPARE(timer("progressTimer")->isActive() + timer("statusTimer")->isActive(), states.endsWith("(off), bar hidden 0 "
                                                                                                    "\"\", idle"));
}

void tst_InertialStatusBar::button_data()
{
    QTest::addColumn<QByteArray>("warmup");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("state");   // and the messages

    QTest::newRow("start: the progress read at once") << QByteArray("no") << true << "Warmup stop, bar shown 10 \"\", "
                                                                                     "polling";
    QTest::newRow("start refused") << QByteArray("no") << false << "Warmup start, bar shown 0 \"\", idle\nCould not start "
                                                                   "warmup of sensors";
    QTest::newRow("stop") << QByteArray("yes") << true << "Warmup start, bar shown 0 \"Warmup is running 0%...\", idle";
    QTest::newRow("stop refused") << QByteArray("yes") << false << "Warmup stop, bar shown 40 \"Warmup is running 40%...\", "
                                                                   "polling\nCould not stop warmup of sensors";
}

void tst_InertialStatusBar::button()
{
    QFETCH(QByteArray, warmup);
    QFETCH(bool, accepted);
    QFETCH(QString, state);

    answer({"yes", "2", warmup, "0.4"});
    status = std::make_unique<InertialStatusBar>(fake, owner, &versions);
    status->update_status();
    const QByteArray setting = warmup == "yes" ? "inertial warmup no" : "inertial warmup yes";
    accepted ? fake->accept(setting) : fake->fail(setting);
    fake->reply("inertial warmup_status", "0.1");
    fake->clear_log();
    QTest::mouseClick(status->findChild<QToolButton*>("pushButton_startWarmup"), Qt::LeftButton);
    QCOMPARE(fake->lines().value(0), setting);
    // The switch reaches every sensor by radio: it goes out under a long time-out.
    const FakeController::Call& call = fake->calls().value(1);
    QVERIFY(!call.wait_separately && call.timeout_ms == 10000 && call.timeout_flag);
    QCOMPARE(QStringList(this->state()) + fake->message_texts(), state.split('\n'));
    for (const FakeController::Message& message : fake->messages())
        QCOMPARE(message.target + message.source + QString::number(message.type), QString("standardNorvane1"));
}

void tst_InertialStatusBar::blockedChangesNothing()
{
    answer({"yes", "2", "yes", "0.4"});
    status = std::make_unique<InertialStatusBar>(fake, owner, &versions);
    status->update_status();
    const QString before = state();
    // Whatever the controller would say now, nothing is asked or shown.
    fake->set_blocked(true);
    answer({"no", "0", "no", "0.9"});
    fake->clear_log();
    status->update_status();
    status->update_progress();
    status->findChild<QToolButton*>("pushButton_startWarmup")->click();
    QCOMPARE(fake->calls().size(), 0);
    QCOMPARE(state(), before);
    fake->set_blocked(false);
    status->update_status();
    QCOMPARE(state(), QString("Warmup stop (off), bar hidden 40 \"\", polling"));
}

QTEST_MAIN(tst_InertialStatusBar)
#include "tst_InertialStatusBar.moc"
