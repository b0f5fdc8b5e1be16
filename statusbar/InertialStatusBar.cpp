#include "InertialStatusBar.h"

#include <QAction>
#include <QTimer>
#include <QToolButton>

#include <cmath>

#include "TemperatureBar.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/VersionGate.h"

namespace {

constexpr int ProgressIntervalMs = 5000;
constexpr int StatusIntervalMs = 1000;
constexpr int MaximumHeight = 22;
constexpr int BarMaximumWidth = 200;

} // namespace

InertialStatusBar::InertialStatusBar(IOManager* io, QWidget* parent, BackendVersions* versions)
    : QToolBar(parent),
      io(io),
      backend_versions(versions),
      progress_timer(new QTimer(this)),
      status_timer(new QTimer(this)),
      enabled_icon(QStringLiteral(":/images/icons/inertial_en.png")),
      disabled_icon(QStringLiteral(":/images/icons/inertial_dis.png")),
      warmup_button(new QToolButton(this)),
      warmup_bar(new TemperatureBar(this)),
      bar_action(nullptr),
      number_of_sensors(0)
{
    setWindowTitle(tr("VEK InertialSensor Status"));
    setObjectName(QStringLiteral("InertialStatusBar"));
    setWhatsThis(tr("Displays whether VEK InertialSensor is available and the warming up status"));

    warmup_button->setObjectName(QStringLiteral("pushButton_startWarmup"));
    warmup_button->setEnabled(false);
    warmup_button->setText(tr("Warmup start"));
    warmup_button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    warmup_button->setMaximumHeight(MaximumHeight);
    warmup_button->setIcon(disabled_icon);

    warmup_bar->setObjectName(QStringLiteral("progressBar_warmup"));
    warmup_bar->setValue(0);
    warmup_bar->setRange(0, 100);
    warmup_bar->setMaximumHeight(MaximumHeight);
    warmup_bar->setMaximumWidth(BarMaximumWidth);
    warmup_bar->setFormat(QString());

    addWidget(warmup_button);
    warmup_button->setIcon(enabled_icon);
    bar_action = addWidget(warmup_bar);
    bar_action->setVisible(false);
    show();

    progress_timer->setObjectName(QStringLiteral("progressTimer"));
    progress_timer->setInterval(ProgressIntervalMs);
    connect(progress_timer, &QTimer::timeout, this, &InertialStatusBar::update_progress);
    connect(warmup_button, &QToolButton::clicked, this,
            &InertialStatusBar::on_pushButton_startWarmup_clicked);
    status_timer->setObjectName(QStringLiteral("statusTimer"));
    status_timer->setInterval(StatusIntervalMs);
    connect(status_timer, &QTimer::timeout, this, &InertialStatusBar::update_status);
    status_timer->start();

    if (is_inertial_available()) {
        if (io->get_int(&number_of_sensors, "inertial number_of_sensors") != 0) {
            report(QT_TR_NOOP("Could not get number of sensors"));
            number_of_sensors = 0;
        }
        bar_action->setVisible(true);
        warmup_button->setEnabled(true);
        if (is_warmup_active())
            enter_warming();
    }
}

bool InertialStatusBar::is_inertial_available()
{
    if (!io || !VersionGate::available(backend_versions, 1, 12))
        return false;
    char reply[IOManager::ReplyCapacity];
    reply[0] = '\0';
    // A controller that does not answer "inertial available" may still have
    // sensors; the count below decides.
    if (io->get_string(reply, "inertial available") == 0 && qstrcmp(reply, "yes") != 0)
        return false;
    reply[0] = '\0';
    if (io->get_string(reply, "inertial number_of_sensors") != 0)
        return false;
    return qstrcmp(reply, "0") != 0;
}

bool InertialStatusBar::is_warmup_active()
{
    char reply[IOManager::ReplyCapacity];
    reply[0] = '\0';
    if (io->get_string(reply, "inertial warmup") != 0) {
        report(QT_TR_NOOP("Could not get warmup status"));
        return false;
    }
    return qstrcmp(reply, "yes") == 0;
}

void InertialStatusBar::update_status()
{
    // While the host holds the link for something else, the screen keeps
    // showing the last known state.
    if (!io || io->is_blocked())
        return;

    if (!is_inertial_available()) {
        show_unavailable();
        return;
    }
    bar_action->setVisible(true);
    setVisible(true);
    warmup_button->setEnabled(true);
    if (is_warmup_active()) {
        warmup_bar->setFormat(tr("Warmup is running %p%..."));
        if (!progress_timer->isActive())
            enter_warming();
    } else {
        warmup_bar->setFormat(QString());
        // Only a warm-up this bar was showing needs undoing.
        if (progress_timer->isActive())
            enter_idle();
    }
}

void InertialStatusBar::update_progress()
{
    if (!io || io->is_blocked())
        return;

    if (!is_inertial_available()) {
        enter_idle();
        show_unavailable();
        return;
    }
    double fraction = 0.0;
    if (io->get_double(&fraction, "inertial warmup_status") != 0 || !std::isfinite(fraction)) {
        // The bar keeps the last progress it had.
        report(QT_TR_NOOP("Error: Unable to get warmup status"));
        return;
    }
    // The controller reports a fraction of 1; anything outside is pinned so
    // that an absurd reply shows as empty or full rather than as nothing.
    const double percent = qBound(0.0, std::floor(fraction * 100.0), 100.0);
    warmup_bar->setValue(int(percent));
}

void InertialStatusBar::on_pushButton_startWarmup_clicked()
{
    if (!io || io->is_blocked())
        return;

    // Switching the sensors' warm-up reaches every sensor by radio: allow
    // for it.
    io->set_timeout(false, 10000, true);
    if (!progress_timer->isActive()) {
        if (io->set_value("inertial warmup yes") == 0)
            enter_warming();
        else
            report(QT_TR_NOOP("Could not start warmup of sensors"));
    } else {
        if (io->set_value("inertial warmup no") == 0)
            enter_idle();
        else
            report(QT_TR_NOOP("Could not stop warmup of sensors"));
    }
}

void InertialStatusBar::about_to_exit()
{
    progress_timer->stop();
    if (is_inertial_available())
        status_timer->stop();
}

void InertialStatusBar::enter_warming()
{
    update_progress();
    progress_timer->start();
    warmup_button->setText(tr("Warmup stop"));
}

void InertialStatusBar::enter_idle()
{
    progress_timer->stop();
    warmup_button->setText(tr("Warmup start"));
    warmup_bar->setValue(0);
}

void InertialStatusBar::show_unavailable()
{
    warmup_button->setEnabled(false);
    bar_action->setVisible(false);
    warmup_bar->setFormat(QString());
}

void InertialStatusBar::report(const char* text)
{
    ControllerText::report(io, tr(text));
}
