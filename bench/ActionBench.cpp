#include "ActionBench.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <map>

#include "BenchReport.h"
#include "BenchScenario.h"
#include "PingPong.h"
#include "SimDaemon.h"
#include "host/InProcessLink.h"
#include "host/LogView.h"
#include "host/MainWindow.h"
#include "host/ModalDialogHelper.h"
#include "host/TcpLink.h"
#include "simulator/SimulatedController.h"
#include "simulator/WallClock.h"

namespace {

// Polls (status bar, dialogs) run at least this often; faster timers only
// animate and never ask the controller anything.
constexpr int SlowestAnimationMs = 100;
constexpr int ScanPatienceMs = 120000;
constexpr int ScanPollMs = 10;
constexpr int NewChannel = 36;
const QByteArray ExchangeLine = "norvane get system version";

} // namespace

ActionBench::ActionBench(const Setup& bench_setup, BenchReport* bench_report)
    : setup(bench_setup), report(bench_report)
{
}

ActionBench::~ActionBench()
{
    if (window)
        window->shutdown_modules();
    window.reset();
    link.reset();
    daemon.reset();
}

QString ActionBench::link_name() const
{
    return setup.tcp ? QStringLiteral("tcp") : QStringLiteral("inproc");
}

void ActionBench::drain()
{
    // Posted work only (queued calls, repaints, layouts), twice for what the
    // first pass posts: it belongs to the action. Timers that happen to be
    // due stay for the event loop, or a slow run would count them in.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

void ActionBench::begin()
{
    drain();
    watch = Stopwatch(link.get());
    watch.start();
}

void ActionBench::record(const QString& action)
{
    drain();
    report->add_action(link_name(), setup.sensors, action, watch.elapsed());
}

void ActionBench::fail(const QString& why)
{
    if (problem.isEmpty())
        problem = why;
}

bool ActionBench::start_link(QString* error)
{
    const QByteArray scenario = BenchScenario::json(setup.sensors);
    if (!setup.tcp) {
        auto in_process = std::make_unique<InProcessLink>(std::make_unique<WallClock>(setup.speed));
        if (!in_process->simulator()->load_scenario(scenario, error))
            return false;
        link = std::move(in_process);
        return true;
    }
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("bench.json")));
    if (!folder.isValid() || !file.open(QIODevice::WriteOnly) || file.write(scenario) != scenario.size()) {
        *error = QStringLiteral("cannot write the scenario for norvane-simd");
        return false;
    }
    file.close();
    daemon = std::make_unique<SimDaemon>();
    if (!daemon->start(setup.simd_file, file.fileName(), setup.speed, error))
        return false;
    // Not connected yet: the host's start connects, as it does for a user.
    link = std::make_unique<TcpLink>(QStringLiteral("127.0.0.1"), daemon->port());
    return true;
}

bool ActionBench::start_host(QString* error)
{
    begin();
    window = std::make_unique<MainWindow>(link.get());
    window->connect_controller();
    if (!window->load_module_file(setup.plugin_file)) {
        *error = window->module_problems().join(QLatin1Char('\n'));
        return false;
    }
    window->show();
    record(QStringLiteral("host start"));
    return true;
}

bool ActionBench::run(QString* error)
{
    if (!start_link(error) || !start_host(error))
        return false;

    QWidget* status = window->status_widgets().value(0);
    if (!status) {
        *error = QStringLiteral("the plug-in placed no status widget");
        return false;
    }
    tick_timers(QStringLiteral("status bar"), status);

    char reply[IOManager::ReplyCapacity] = {};
    if (link->get_string(reply, "inertial transceiver d01") == 0)
        transceiver = QString::fromLatin1(reply);

    QAction* settings = window->module_action(QStringLiteral("In&ertial Sensor"));
    if (!settings) {
        *error = QStringLiteral("no menu entry \"Inertial Sensor\"");
        return false;
    }
    ModalDialogHelper::when_active("InertialSettingsDlg", [this](QWidget* dialog) {
        record(QStringLiteral("settings open"));
        in_settings(dialog);
        ModalDialogHelper::close(dialog);
    });
    begin();
    settings->trigger();

    open_calibration(QStringLiteral("In&ertial Sensor Calibration"), QStringLiteral("inertial calibration"));
    open_calibration(QStringLiteral("&Hybrid Body"), QStringLiteral("hybrid body"));

    if (ModalDialogHelper::pending() > 0) {
        ModalDialogHelper::clear_pending();
        fail(QStringLiteral("a dialog the bench waited for never opened"));
    }
    if (problem.isEmpty())
        time_exchanges(&problem);
    *error = problem;
    return problem.isEmpty();
}

void ActionBench::in_settings(QWidget* dialog)
{
    tick_timers(QStringLiteral("settings"), dialog);
    change_channel(dialog);
    add_sensors(dialog);
    // A warm-up locks the sensor controls and brings the temperature and
    // battery refresh: last, and on for the calibration dialogs after.
    auto* warmup = dialog->findChild<QPushButton*>(QStringLiteral("pushButton_warmup"));
    if (!warmup || !warmup->isEnabled()) {
        fail(QStringLiteral("the settings dialog offers no warm-up"));
        return;
    }
    begin();
    warmup->click();
    record(QStringLiteral("settings warm-up start"));
    tick_timers(QStringLiteral("settings warm-up"), dialog);
}

void ActionBench::change_channel(QWidget* dialog)
{
    auto* table = dialog->findChild<QTableWidget*>(QStringLiteral("tableWidget"));
    QComboBox* combo = nullptr;
    if (table)
        for (QComboBox* candidate : table->findChildren<QComboBox*>())
            if (candidate->inherits("ChannelComboBox") && !combo)
                combo = candidate;
    if (!combo || transceiver.isEmpty()) {
        fail(QStringLiteral("no transceiver channel to change in the settings dialog"));
        return;
    }
    // What choosing a channel in the transceiver's combo reports; every
    // run starts on a fresh controller, with the first transceiver on 35.
    begin();
    QMetaObject::invokeMethod(combo, "transceiverChannelChosen", Q_ARG(QString, transceiver),
                              Q_ARG(int, NewChannel));
    record(QStringLiteral("settings channel change"));
}

void ActionBench::add_sensors(QWidget* dialog)
{
    auto* add = dialog->findChild<QPushButton*>(QStringLiteral("pushButton_addSensor"));
    if (!add || !add->isEnabled()) {
        fail(QStringLiteral("the settings dialog offers no \"Add sensor\""));
        return;
    }
    ModalDialogHelper::when_active("AddInertialSensorDlg", [this](QWidget* add_dialog) {
        record(QStringLiteral("add sensor open"));
        in_add_sensor(add_dialog);
        ModalDialogHelper::close(add_dialog);
    });
    begin();
    add->click();
}

void ActionBench::in_add_sensor(QWidget* dialog)
{
    auto* scan = dialog->findChild<QPushButton*>(QStringLiteral("pushButton_scan"));
    auto* accept_all = dialog->findChild<QCheckBox*>(QStringLiteral("checkBox_acceptAll"));
    auto* apply = dialog->findChild<QPushButton*>(QStringLiteral("pushButton_apply"));
    if (!scan || !accept_all || !apply || !scan->isEnabled()) {
        fail(QStringLiteral("the add sensor dialog cannot scan"));
        return;
    }
    // The scan runs on the dialog's own timer; it is over when Scan is
    // offered again.
    begin();
    scan->click();
    QEventLoop loop;
    QTimer poll;
    QElapsedTimer patience;
    patience.start();
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (scan->isEnabled() || patience.hasExpired(ScanPatienceMs))
            loop.quit();
    });
    poll.start(ScanPollMs);
    loop.exec();
    record(QStringLiteral("add sensor scan (default channels)"));
    if (!scan->isEnabled()) {
        fail(QStringLiteral("the sensor scan did not end"));
        return;
    }

    accept_all->setChecked(true);
    if (!apply->isEnabled()) {
        fail(QStringLiteral("the scan found no sensor to add"));
        return;
    }
    begin();
    apply->click();
    record(QStringLiteral("add sensor apply"));
}

void ActionBench::open_calibration(const QString& action_text, const QString& name)
{
    QAction* action = window->module_action(action_text);
    if (!action) {
        fail(QStringLiteral("no menu entry \"%1\"").arg(action_text));
        return;
    }
    // Whatever opens, the dialog or a message box in its place, is what the
    // user gets for the click.
    ModalDialogHelper::when_active([this, name](QWidget* modal) {
        const bool refused = modal->inherits("QMessageBox");
        record(name + (refused ? QStringLiteral(" open (refused)") : QStringLiteral(" open")));
        if (!refused)
            tick_timers(name, modal);
        ModalDialogHelper::close(modal);
    });
    begin();
    action->trigger();
}

void ActionBench::tick_timers(const QString& prefix, QObject* owner)
{
    QList<QPointer<QTimer>> timers;
    std::map<int, int> per_interval;
    for (QTimer* timer : owner->findChildren<QTimer*>()) {
        if (timer->isActive() && timer->interval() >= SlowestAnimationMs) {
            timers << timer;
            ++per_interval[timer->interval()];
        }
    }
    std::map<int, int> numbered;
    for (const QPointer<QTimer>& timer : qAsConst(timers)) {
        if (!timer)
            continue;
        const int interval = timer->interval();
        QString action = QStringLiteral("%1 tick %2 ms").arg(prefix).arg(interval);
        if (!timer->objectName().isEmpty())
            action += QStringLiteral(" (%1)").arg(timer->objectName());
        else if (per_interval[interval] > 1)
            action += QStringLiteral(" #%1").arg(++numbered[interval]);
        begin();
        QMetaObject::invokeMethod(timer, "timeout");
        record(action);
    }
}

bool ActionBench::time_exchanges(QString* error)
{
    if (!time_exchange_batches(QString(), error))
        return false;
    // The traffic tab in front: the log is drawn as the exchanges come.
    QWidget* log = window->traffic_log();
    for (QWidget* page = log; page; page = page->parentWidget()) {
        auto* tabs = page->parentWidget() ? qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget()) : nullptr;
        if (tabs && tabs->indexOf(page) >= 0) {
            tabs->setCurrentWidget(page);
            break;
        }
    }
    if (!log->isVisible()) {
        *error = QStringLiteral("cannot bring the traffic log to the front");
        return false;
    }
    return time_exchange_batches(QStringLiteral(", traffic shown"), error);
}

bool ActionBench::time_exchange_batches(const QString& suffix, QString* error)
{
    std::unique_ptr<PingPong> raw;
    if (setup.tcp) {
        raw = std::make_unique<PingPong>();
        if (!raw->connect_to(daemon->port(), error))
            return false;
    }
    const QByteArray path = ExchangeLine.mid(int(sizeof "norvane get ") - 1);
    const int n = qMax(1, setup.exchanges_per_batch);
    auto per_exchange = [n](Sample s) {
        s.wall_ns /= n;
        s.cpu_ns /= n;
        s.round_trips = 1;
        return s;
    };
    for (int batch = 0; batch < setup.batches; ++batch) {
        begin();
        char reply[IOManager::ReplyCapacity] = {};
        for (int i = 0; i < n; ++i) {
            if (link->get_string(reply, "%s", path.constData()) != 0) {
                *error = QStringLiteral("exchange failed: %1").arg(QString::fromLocal8Bit(link->last_error()));
                return false;
            }
        }
        drain();
        const Sample through_link = per_exchange(watch.elapsed());
        report->add_exchange(link_name(), setup.sensors, BenchReport::LinkExchange + suffix, through_link);

        Stopwatch floor;
        floor.start();
        if (raw) {
            if (!raw->exchange(ExchangeLine, n, error))
                return false;
        } else {
            auto* controller = static_cast<InProcessLink*>(link.get())->simulator();
            for (int i = 0; i < n; ++i)
                controller->handle(ExchangeLine);
        }
        const Sample bare = per_exchange(floor.elapsed());
        report->add_exchange(link_name(), setup.sensors,
                             (raw ? BenchReport::RawPingPong : QStringLiteral("simulator alone")) + suffix, bare);
        if (!raw) {
            Sample host_work;
            host_work.round_trips = 1;
            host_work.wall_ns = through_link.wall_ns - bare.wall_ns;
            host_work.cpu_ns = through_link.cpu_ns - bare.cpu_ns;
            report->add_exchange(link_name(), setup.sensors,
                                 QStringLiteral("host work (link - simulator)") + suffix, host_work);
        }
    }
    return true;
}
