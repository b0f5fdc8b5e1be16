#include "HostHarness.h"

#include <QAction>

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

QStringList HostHarness::texts(const QList<QAction*>& actions)
{
    QStringList result;
    for (const QAction* action : actions)
        if (!action->isSeparator())
            result << action->text() + (action->isEnabled() ? "" : " (off)");
    return result;
}
