#include "HostOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include "TcpLink.h"

bool HostOptions::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Desktop front end of the Norvane tracking controller. Without --controller it "
                    "runs a simulated controller in its own process."));
    const QCommandLineOption help_option = parser.addHelpOption();
    const QCommandLineOption version_option = parser.addVersionOption();
    const QCommandLineOption controller_option(
        QStringLiteral("controller"), tr("Use the controller at <host:port> over TCP."),
        tr("host:port"));
    const QCommandLineOption scenario_option(
        QStringLiteral("scenario"), tr("Start the embedded simulator on the scenario <file> (JSON)."),
        tr("file"));
    const QCommandLineOption speed_option(
        QStringLiteral("speed"), tr("Run the embedded simulator's clock <factor> times as fast."),
        tr("factor"), QStringLiteral("1"));
    const QCommandLineOption plugin_option(
        QStringLiteral("plugin-dir"),
        tr("Load modules from <folder> (default: next to the program and its installed plug-in folder)."),
        tr("folder"));
    const QCommandLineOption trace_option(
        QStringLiteral("trace"), tr("Append every exchange with the controller to <file>."),
        tr("file"));
    const QCommandLineOption tour_option(
        QStringLiteral("tour"),
        tr("Open every module menu entry in turn, save a picture of each dialog and of the "
                    "window into <folder>, and quit. Runs offscreen when there is no display."),
        tr("folder"));
    parser.addOptions({controller_option, scenario_option, speed_option, plugin_option, trace_option,
                       tour_option});
    help = parser.helpText();

    if (!parser.parse(arguments)) {
        problem = parser.errorText();
        return false;
    }
    wants_help = parser.isSet(help_option);
    wants_version = parser.isSet(version_option);
    if (!parser.positionalArguments().isEmpty()) {
        problem = tr("Unexpected argument: %1").arg(parser.positionalArguments().first());
        return false;
    }

    if (parser.isSet(controller_option)) {
        const QString address = parser.value(controller_option);
        if (!TcpLink::parse_address(address, &controller_host, &controller_port)) {
            problem = tr("--controller wants host:port (for example 127.0.0.1:4000), not \"%1\"")
                          .arg(address);
            return false;
        }
        if (parser.isSet(scenario_option) || parser.isSet(speed_option)) {
            problem = tr("--scenario and --speed are for the embedded simulator; a controller "
                                  "reached with --controller has its own");
            return false;
        }
    }
    bool ok = false;
    speed = parser.value(speed_option).toDouble(&ok);
    if (!ok || !(speed > 0.0) || speed > MaximumSpeed) {
        problem = tr("--speed wants a factor above 0 and up to %1, not \"%2\"")
                      .arg(MaximumSpeed)
                      .arg(parser.value(speed_option));
        return false;
    }
    scenario = parser.value(scenario_option);
    plugin_dir = parser.value(plugin_option);
    trace = parser.value(trace_option);
    tour_dir = parser.value(tour_option);
    for (const QCommandLineOption* option : {&scenario_option, &plugin_option, &trace_option, &tour_option}) {
        if (parser.isSet(*option) && parser.value(*option).isEmpty()) {
            problem = tr("--%1 wants a value").arg(option->names().first());
            return false;
        }
    }
    return true;
}
