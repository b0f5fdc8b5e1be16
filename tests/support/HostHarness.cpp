#include "HostHarness.h"

#include <QAction>

#include "host/InProcessLink.h"
#include "host/LogView.h"
#include "host/MainWindow.h"
#include "simulator/ManualClock.h"
#include "simulator/SimulatedController.h"
#include "simulator/WallClock.h"

HostHarness::HostHarness(const Options& options)
{
    std::unique_ptr<SimClock> sim_clock;
    if (options.manual_clock) {
        auto clock = std::make_unique<ManualClock>();
        manual = clock.get();
        sim_clock = std::move(clock);
    } else {
        sim_clock = std::make_unique<WallClock>(options.speed);
    }
    controller_link = std::make_unique<InProcessLink>(std::move(sim_clock));
    controller_link->set_real_delays(!options.manual_clock);

    QString error;
    if (!options.scenario_file.isEmpty() && !controller_link->load_scenario_file(options.scenario_file, &error))
        problem = QStringLiteral("scenario %1: %2").arg(options.scenario_file, error);
    else if (!options.scenario_json.isEmpty() && !simulator()->load_scenario(options.scenario_json, &error))
        problem = QStringLiteral("scenario: %1").arg(error);

    main_window = std::make_unique<MainWindow>(controller_link.get());
    main_window->connect_controller();
    if (options.plugin_file.isEmpty()) {
        if (problem.isEmpty())
            problem = QStringLiteral("no plug-in file given");
    } else if (!main_window->load_module_file(options.plugin_file) && problem.isEmpty()) {
        problem = main_window->module_problems().join(QLatin1Char('\n'));
    }
    if (options.show_window)
        main_window->show();
}

HostHarness::~HostHarness()
{
    main_window.reset();
    controller_link.reset();
}

SimulatedController* HostHarness::simulator() const
{
    return controller_link->simulator();
}

long HostHarness::round_trips() const
{
    return controller_link->round_trips();
}

QAction* HostHarness::action(const QString& text) const
{
    return main_window->module_action(text);
}

QMenu* HostHarness::menu_of(const QString& action_text) const
{
    QAction* entry = action(action_text);
    return entry ? main_window->menu_of(entry) : nullptr;
}

QList<QWidget*> HostHarness::status_widgets() const
{
    return main_window->status_widgets();
}

QWidget* HostHarness::status_widget() const
{
    const QList<QWidget*> widgets = status_widgets();
    return widgets.isEmpty() ? nullptr : widgets.first();
}

QStringList HostHarness::messages() const
{
    return main_window->message_log()->texts();
}

void HostHarness::shutdown()
{
    main_window->shutdown_modules();
}
