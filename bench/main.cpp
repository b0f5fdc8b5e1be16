// norvane-bench: what the host's actions cost with the real plug-in, on the
// simulated controller in-process and over TCP, for several installation
// sizes. Reports round trips, wall time and GUI-thread CPU time per action,
// and the cost of one exchange against its floor.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <cstdio>

#include "ActionBench.h"
#include "BenchReport.h"
#include "BenchScenario.h"

namespace {

void say(const QString& text)
{
    std::fprintf(stderr, "norvane-bench: %s\n", qPrintable(text));
}

bool parse_sizes(const QString& text, QList<int>* sizes)
{
    for (const QString& word : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool ok = false;
        const int n = word.trimmed().toInt(&ok);
        if (!ok || n < 1 || n > BenchScenario::MaxSensors)
            return false;
        *sizes << n;
    }
    return !sizes->isEmpty();
}

bool parse_links(const QString& text, QList<bool>* tcp)
{
    for (const QString& word : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (word.trimmed() == QLatin1String("inproc"))
            *tcp << false;
        else if (word.trimmed() == QLatin1String("tcp"))
            *tcp << true;
        else
            return false;
    }
    return !tcp->isEmpty();
}

} // namespace

int main(int argc, char** argv)
{
    // Dialogs are driven, never looked at.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("norvane-bench"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Times the host's actions with the inertial plug-in against the simulated controller."));
    parser.addHelpOption();
    const QCommandLineOption sensors_option(QStringLiteral("sensors"),
                                            QStringLiteral("Numbers of paired sensors, comma-separated."),
                                            QStringLiteral("N,..."), QStringLiteral("1,8,40,100"));
    const QCommandLineOption link_option(QStringLiteral("link"), QStringLiteral("Links: inproc, tcp or both."),
                                         QStringLiteral("LINKS"), QStringLiteral("inproc,tcp"));
    const QCommandLineOption repeat_option(QStringLiteral("repeat"),
                                           QStringLiteral("Passes per link and size; medians are reported."),
                                           QStringLiteral("N"), QStringLiteral("5"));
    const QCommandLineOption json_option(QStringLiteral("json"), QStringLiteral("Also write the results as JSON."),
                                         QStringLiteral("FILE"));
    const QCommandLineOption speed_option(QStringLiteral("speed"),
                                          QStringLiteral("Simulator clock speed (shortens the scan's waits)."),
                                          QStringLiteral("X"), QStringLiteral("20"));
    const QCommandLineOption plugin_option(QStringLiteral("plugin"), QStringLiteral("The plug-in to load."),
                                           QStringLiteral("FILE"),
                                           QDir(QCoreApplication::applicationDirPath())
                                               .filePath(QStringLiteral(NORVANE_PLUGIN_FILE_NAME)));
    const QCommandLineOption simd_option(QStringLiteral("simd"), QStringLiteral("The norvane-simd to run."),
                                         QStringLiteral("FILE"),
                                         QDir(QCoreApplication::applicationDirPath())
                                             .filePath(QStringLiteral("norvane-simd")));
    parser.addOptions({sensors_option, link_option, repeat_option, json_option, speed_option, plugin_option,
                       simd_option});
    parser.process(app);

    QList<int> sizes;
    QList<bool> links;
    bool ok = false;
    const int repeats = parser.value(repeat_option).toInt(&ok);
    const double speed = parser.value(speed_option).toDouble(&ok);
    if (!parse_sizes(parser.value(sensors_option), &sizes)) {
        say(QStringLiteral("--sensors takes numbers from 1 to %1, comma-separated").arg(BenchScenario::MaxSensors));
        return 2;
    }
    if (!parse_links(parser.value(link_option), &links)) {
        say(QStringLiteral("--link takes inproc, tcp or inproc,tcp"));
        return 2;
    }
    if (repeats < 1 || repeats > 1000) {
        say(QStringLiteral("--repeat takes 1 to 1000"));
        return 2;
    }
    if (!ok || !(speed > 0.0 && speed <= 1000.0)) {
        say(QStringLiteral("--speed takes a number above 0, at most 1000"));
        return 2;
    }
    // The plug-in's reports of failed exchanges would only slow the runs.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));

    BenchReport report;
    for (const bool tcp : qAsConst(links)) {
        for (const int n : qAsConst(sizes)) {
            for (int pass = 0; pass < repeats; ++pass) {
                ActionBench::Setup setup;
                setup.plugin_file = parser.value(plugin_option);
                setup.simd_file = parser.value(simd_option);
                setup.sensors = n;
                setup.tcp = tcp;
                setup.speed = speed;
                ActionBench bench(setup, &report);
                QString error;
                if (!bench.run(&error)) {
                    say(QStringLiteral("%1, %2 sensors: %3").arg(bench.link_name()).arg(n).arg(error));
                    return 1;
                }
            }
            std::fprintf(stderr, "norvane-bench: %s, %d sensors done\n", tcp ? "tcp" : "inproc", n);
        }
    }

    std::printf("%s", qPrintable(report.table()));
    if (parser.isSet(json_option)) {
        QFile file(parser.value(json_option));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(report.json().toJson()) < 0) {
            say(QStringLiteral("cannot write %1: %2").arg(file.fileName(), file.errorString()));
            return 1;
        }
    }
    return 0;
}
