#include <QtTest>

#include <QAction>
#include <QLibraryInfo>
#include <QMenuBar>
#include <QStatusBar>

#include "HostHarness.h"
#include "host/MessageHub.h"
#include "module/BackendVersions.h"

// norvane-host with the plug-in from the build on the simulator: what a user
// sees from start-up to quitting, and on the tour.
class tst_HostWithPlugin : public QObject
{
    Q_OBJECT

private slots:
    void from_a_plugin_folder_to_quitting();
    void tour_from_the_command_line();
};

void tst_HostWithPlugin::from_a_plugin_folder_to_quitting()
{
    QTemporaryDir dir;
    // Beside the plug-in: one of another host (it loads, but offers another
    // interface), a file that is no library at all, and one not even tried.
    QVERIFY(QFile::copy(QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platforms/libqminimal.so",
                        dir.filePath("libforeign.so")));
    QVERIFY(QFile::copy(QStringLiteral(PLUGIN_FILE), dir.filePath("libinertial.so")));
    for (const char* name : {"libgarbage.so", "readme.txt"}) {
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("not a library") > 0);
    }
    HostHarness host(HostHarness::Options{});
    QCOMPARE(host.error(), QStringLiteral("no plug-in file given"));
    MainWindow* window = host.window();
    QCOMPARE(window->load_modules_from(dir.filePath("nowhere")), 0);
    QCOMPARE(window->load_modules_from(dir.path()), 1);
    QVERIFY(window->load_module_file(dir.filePath("libinertial.so")));   // loaded once only
    QCOMPARE(window->modules().size(), 1);
    const QStringList problems = window->module_problems();
    QCOMPARE(problems.size(), 3);
    QVERIFY2(problems.at(1).startsWith("libforeign.so is not a module of this host: it offers \"org.qt-project.Qt.QPA.")
                 && problems.at(1).endsWith("\", not \"" ModuleInterface_iid "\""),
             qPrintable(problems.at(1)));
    QVERIFY2(problems.at(2).startsWith("libgarbage.so cannot be loaded: ") && problems.at(2).size() > 40,
             qPrintable(problems.at(2)));
    const QStringList log = host.messages();
    QCOMPARE(log.mid(log.size() - 5),
             QStringList({"The plug-in folder " + dir.filePath("nowhere") + " does not exist.",
                          "No module found in " + dir.filePath("nowhere") + '.', problems.at(1), problems.at(2),
                          "Loaded GUI Inertial Tracking v1.3.1 from libinertial.so."}));

    QStringList entries;
    for (QAction* action : window->module_actions())
        entries << host.menu_of(action->text())->title() + ' ' + action->text() + ": " + action->statusTip();
    QCOMPARE(entries, QStringList({"&Settings In&ertial Sensor: Change the Inertial Sensor settings",
                                   "&Calibration In&ertial Sensor Calibration: Calibrate a inertial sensor",
                                   "&Calibration &Hybrid Body: Calibrate a Hybrid Body"}));
    QCOMPARE(HostHarness::texts(window->menuBar()->actions()),
             QStringList({"&File", "&Settings", "&Calibration", "&Help"}));
    QPointer<QWidget> status = host.status_widget();
    QCOMPARE(host.status_widgets().size(), 1);
    QCOMPARE(status->metaObject()->className(), "InertialStatusBar");
    QCOMPARE(status->parentWidget(), window->statusBar());
    QVERIFY(window->message_hub()->receiver_names().contains("InertialModule"));
    QCOMPARE(window->backend_versions()->minor, 21);   // the newest controller: every gate open
    // Three for the version record, the rest while the module builds its widgets.
    QVERIFY2(host.round_trips() >= 3 && host.round_trips() <= 12, qPrintable(QString::number(host.round_trips())));

    QPointer<QObject> module = dynamic_cast<QObject*>(window->modules().first());
    window->close();
    QVERIFY(!status && !module);
    QVERIFY(window->message_hub()->receiver_names().isEmpty() && window->module_actions().isEmpty());
    QCOMPARE(HostHarness::texts(window->menuBar()->actions()),
             QStringList({"&File", "&Settings (off)", "&Calibration (off)", "&Help"}));
    QVERIFY2(host.messages().filter("Still registered").isEmpty(), qPrintable(host.messages().join('\n')));
}

void tst_HostWithPlugin::tour_from_the_command_line()
{
    QTemporaryDir dir;
    QProcess norvane_host;
    norvane_host.setWorkingDirectory(dir.path());
    norvane_host.start(QStringLiteral(HOST_FILE), {"--tour", "pictures", "--trace", "trace.txt", "--speed", "50"});
    QVERIFY(norvane_host.waitForFinished(60000));
    QCOMPARE(norvane_host.exitCode(), 0);
    // The nested dialogs too: those that open from buttons, and the results of real runs.
    const QStringList pictures = QDir(dir.filePath("pictures")).entryList(QDir::Files);
    QCOMPARE(norvane_host.readAllStandardOutput(),
             QStringLiteral("Saved %1 pictures into %2\n").arg(pictures.size()).arg(dir.filePath("pictures")).toUtf8());
    for (const char* name : {"inertial-sensor.png", "add-sensor.png", "delete-sensor-question.png",
                             "inertial-sensor-calibration-result.png", "hybrid-body-help.png", "hybrid-body-result.png",
                             "main-window.png"})
        QVERIFY2(pictures.contains(name), name);
    QFile trace(dir.filePath("trace.txt"));
    QVERIFY(trace.open(QIODevice::ReadOnly));
    QVERIFY(trace.readLine().endsWith("ms  norvane get system version  ->  norvane set system version 1.21.2\n"));

    norvane_host.start(norvane_host.program(), {"--speed", "0"});
    QVERIFY(norvane_host.waitForFinished(60000));
    QCOMPARE(norvane_host.exitCode(), 2);
    QVERIFY(norvane_host.readAllStandardError().endsWith(
        "norvane-host: --speed wants a factor above 0 and up to 10000, not \"0\"\nnorvane-host: see norvane-host --help\n"));
}

QTEST_MAIN(tst_HostWithPlugin)
#include "tst_HostWithPlugin.moc"
