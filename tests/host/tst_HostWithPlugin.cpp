#include <QtTest>

#include <QAction>
#include <QDialog>
#include <QLibraryInfo>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "HostHarness.h"
#include "RecordingModule.h"
#include "host/MainWindow.h"
#include "host/MessageHub.h"
#include "host/TourRunner.h"
#include "module/BackendVersions.h"

// norvane-host with the real plug-in from the build on the simulator: what a
// user sees after start-up, on the tour and after quitting.
class tst_HostWithPlugin : public QObject
{
    Q_OBJECT

private slots:
    void start_up_and_quit();
    void modules_from_a_folder();
    void tour_of_odd_entries();
    void tour_from_the_command_line();
};

namespace {

QStringList titles(const QList<QAction*>& actions)
{
    QStringList result;
    for (const QAction* action : actions)
        result << action->text() + (action->isEnabled() ? "" : " (off)");
    return result;
}

HostHarness::Options with_plugin(bool shown = false)
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    options.show_window = shown;
    return options;
}

// Ignores whatever it is told to finish: only hiding ends its modal loop.
struct StubbornDialog : QDialog
{
    using QDialog::QDialog;
    void done(int) override {}
};

} // namespace

void tst_HostWithPlugin::start_up_and_quit()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    MainWindow* window = host.window();
    QStringList entries;
    for (QAction* action : window->module_actions())
        entries << host.menu_of(action->text())->title() + ' ' + action->text() + ": " + action->statusTip();
    QCOMPARE(entries, QStringList({"&Settings In&ertial Sensor: Change the Inertial Sensor settings",
                                   "&Calibration In&ertial Sensor Calibration: Calibrate a inertial sensor",
                                   "&Calibration &Hybrid Body: Calibrate a Hybrid Body"}));
    QCOMPARE(titles(window->menuBar()->actions()), QStringList({"&File", "&Settings", "&Calibration", "&Help"}));
    QCOMPARE(host.status_widgets().size(), 1);
    QPointer<QWidget> status = host.status_widget();
    QCOMPARE(status->metaObject()->className(), "InertialStatusBar");
    QCOMPARE(status->parentWidget(), window->statusBar());
    QVERIFY(!status->isHidden());
    // The default controller is the newest: every gate open.
    QCOMPARE(window->backend_versions()->minor, 21);
    QCOMPARE(window->backend_versions()->system_type, QStringLiteral("NORVANE-DUO"));
    QVERIFY(window->message_hub()->receiver_names().contains("InertialModule"));
    // Three for the version record, the rest while the module builds its widgets.
    QVERIFY2(host.round_trips() >= 3 && host.round_trips() <= 12, qPrintable(QString::number(host.round_trips())));

    QList<QPointer<QWidget>> windows;
    for (QWidget* widget : window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (widget->isWindow())
            windows << widget;
    QVERIFY(!windows.isEmpty());
    window->close();
    QVERIFY(!status);
    for (const QPointer<QWidget>& dialog : windows)
        QVERIFY(!dialog);
    QVERIFY(window->message_hub()->receiver_names().isEmpty());
    QVERIFY(window->module_actions().isEmpty() && window->modules().isEmpty());
    QCOMPARE(titles(window->menuBar()->actions()),
             QStringList({"&File", "&Settings (off)", "&Calibration (off)", "&Help"}));
    QVERIFY2(host.messages().filter("Still registered").isEmpty(), qPrintable(host.messages().join('\n')));
}

void tst_HostWithPlugin::modules_from_a_folder()
{
    QTemporaryDir dir;
    // A plug-in of another host: it loads, but offers another interface.
    QVERIFY(QFile::copy(QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platforms/libqminimal.so",
                        dir.filePath("libforeign.so")));
    QVERIFY(QFile::copy(QStringLiteral(PLUGIN_FILE), dir.filePath("libinertial.so")));
    QFile garbage(dir.filePath("libgarbage.so"));
    QVERIFY(garbage.open(QIODevice::WriteOnly) && garbage.write("not a library") > 0);
    garbage.close();
    QVERIFY(QFile::copy(dir.filePath("libgarbage.so"), dir.filePath("readme.txt")));

    HostHarness host(HostHarness::Options{});
    QCOMPARE(host.error(), QStringLiteral("no plug-in file given"));
    MainWindow* window = host.window();
    QCOMPARE(window->load_modules_from(dir.filePath("nowhere")), 0);
    QCOMPARE(window->load_modules_from(dir.path()), 1);
    QCOMPARE(window->module_actions().size(), 3);
    QCOMPARE(host.status_widgets().size(), 1);
    QVERIFY(window->load_module_file(dir.filePath("libinertial.so")));   // loaded once only
    QCOMPARE(window->modules().size(), 1);
    const QStringList problems = window->module_problems();
    QCOMPARE(problems.size(), 3);
    QCOMPARE(problems.at(0), QStringLiteral("The plug-in folder %1 does not exist.").arg(dir.filePath("nowhere")));
    QVERIFY2(problems.at(1).startsWith("libforeign.so is not a module of this host: it offers \"org.qt-project.Qt.QPA."),
             qPrintable(problems.at(1)));
    QVERIFY(problems.at(1).endsWith("\", not \"" ModuleInterface_iid "\""));
    QVERIFY2(problems.at(2).startsWith("libgarbage.so cannot be loaded: ") && problems.at(2).size() > 40,
             qPrintable(problems.at(2)));
    QStringList log = host.messages();
    QCOMPARE(log.mid(log.size() - 5), QStringList({problems.at(0), "No module found in " + dir.filePath("nowhere") + '.',
                                                   problems.at(1), problems.at(2),
                                                   "Loaded GUI Inertial Tracking v1.3.1 from libinertial.so."}));
    QPointer<QObject> instance = dynamic_cast<QObject*>(window->modules().first());
    window->shutdown_modules();
    QVERIFY(!instance);
}

void tst_HostWithPlugin::tour_of_odd_entries()
{
    QStringList journal;
    RecordingModule extras(QStringLiteral("Extras"), &journal);
    QAction* stubborn = extras.add_entry("&Tools", 400, "&Filter (6DOF)...", 1);
    extras.add_entry("&Tools", 400, "&...", 2);
    QTemporaryDir dir;
    QFile blocker(dir.filePath("file"));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    HostHarness host(with_plugin(true));
    connect(stubborn, &QAction::triggered, host.window(), [&host] {
        StubbornDialog dialog(host.window());
        dialog.exec();
    });
    host.window()->add_module(&extras, QStringLiteral("extras"));

    TourRunner unwritable(host.window(), dir.filePath("file/pictures"));
    QVERIFY(!unwritable.run());
    QCOMPARE(unwritable.problems(), QStringList{"Cannot create the folder " + dir.filePath("file/pictures") + '.'});
    TourRunner tour(host.window(), dir.filePath("pictures"));
    tour.set_settle_time(50);
    tour.set_patience(500);
    bool complete = true;
    QTimer::singleShot(0, host.window(), [&] { complete = tour.run(); });
    QTRY_VERIFY_WITH_TIMEOUT(tour.saved_files().join(' ').endsWith("main-window.png"), 30000);
    QCOMPARE(tour.problems(), QStringList{"\"...\" opened no window."});
    QVERIFY(!complete);
    QStringList names;
    for (const QString& path : tour.saved_files())
        names << QFileInfo(path).fileName();
    QCOMPARE(names, QStringList({"inertial-sensor.png", "inertial-sensor-calibration.png", "hybrid-body.png",
                                 "filter-6dof.png", "main-window.png"}));
    QVERIFY(!QApplication::activeModalWidget());
    host.shutdown();
}

void tst_HostWithPlugin::tour_from_the_command_line()
{
    QTemporaryDir dir;
    QProcess norvane_host;
    norvane_host.setWorkingDirectory(dir.path());
    norvane_host.start(QStringLiteral(HOST_FILE),
                       {"--tour", "pictures", "--trace", "trace.txt", "--speed", "50"});
    QVERIFY(norvane_host.waitForFinished(60000));
    QCOMPARE(norvane_host.exitCode(), 0);
    QCOMPARE(norvane_host.readAllStandardOutput(), "Saved 4 pictures into " + dir.filePath("pictures").toUtf8() + '\n');
    QCOMPARE(QDir(dir.filePath("pictures")).entryList(QDir::Files),
             QStringList({"hybrid-body.png", "inertial-sensor-calibration.png", "inertial-sensor.png", "main-window.png"}));
    QFile trace(dir.filePath("trace.txt"));
    QVERIFY(trace.open(QIODevice::ReadOnly));
    QVERIFY(trace.readLine().endsWith("ms  norvane get system version  ->  norvane set system version 1.21.2\n"));

    norvane_host.start(norvane_host.program(), {"--speed", "0"});
    QVERIFY(norvane_host.waitForFinished(60000));
    QCOMPARE(norvane_host.exitCode(), 2);
    QVERIFY(norvane_host.readAllStandardError().endsWith("norvane-host: --speed wants a factor above 0 and up to "
                                                         "10000, not \"0\"\nnorvane-host: see norvane-host --help\n"));
}

QTEST_MAIN(tst_HostWithPlugin)
#include "tst_HostWithPlugin.moc"
