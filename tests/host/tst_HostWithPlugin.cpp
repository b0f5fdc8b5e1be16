#include <QtTest>

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "host/InProcessLink.h"
#include "host/MainWindow.h"
#include "host/MessageHub.h"
#include "module/ModuleInterface.h"

// norvane-host with the real plug-in from the build, on the in-process
// simulator: what a user sees after start-up and after quitting.
class tst_HostWithPlugin : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void entriesUnderTheirMenus_data();
    void entriesUnderTheirMenus();
    void calibrationEntriesInOrder();
    void menuBarOrder();
    void statusWidgetInStatusBar();
    void versionsReachTheModule();
    void startUpRoundTrips();
    void loadsFromPluginFolder();
    void quitStopsAndDestroys();
};

namespace {

HostHarness::Options with_plugin()
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    return options;
}

QStringList menu_titles(const QMenuBar* bar)
{
    QStringList titles;
    for (const QAction* action : bar->actions())
        titles << action->text();
    return titles;
}

} // namespace

void tst_HostWithPlugin::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_HostWithPlugin::entriesUnderTheirMenus_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("tip");

    QTest::newRow("settings") << "In&ertial Sensor" << "&Settings" << "Change the Inertial Sensor settings";
    QTest::newRow("hybrid body") << "&Hybrid Body" << "&Calibration" << "Calibrate a Hybrid Body";
    QTest::newRow("sensor calibration") << "In&ertial Sensor Calibration" << "&Calibration"
                                        << "Calibrate a inertial sensor";
}

void tst_HostWithPlugin::entriesUnderTheirMenus()
{
    QFETCH(QString, entry);
    QFETCH(QString, menu);
    QFETCH(QString, tip);
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    QAction* action = host.action(entry);
    QVERIFY2(action, qPrintable(entry));
    QMenu* holder = host.menu_of(entry);
    QVERIFY(holder);
    QCOMPARE(holder->title(), menu);
    QCOMPARE(action->statusTip(), tip);
    QVERIFY(holder->menuAction()->isEnabled());
    // The module's menu joins the host's own rather than making a second.
    int same_title = 0;
    for (const QAction* top : host.window()->menuBar()->actions())
        same_title += top->text() == menu ? 1 : 0;
    QCOMPARE(same_title, 1);
}

void tst_HostWithPlugin::calibrationEntriesInOrder()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    QStringList texts;
    for (const QAction* action : host.menu_of("&Hybrid Body")->actions())
        texts << action->text();
    QCOMPARE(texts, QStringList({"In&ertial Sensor Calibration", "&Hybrid Body"}));
    QCOMPARE(host.window()->module_actions().size(), 3);
}

void tst_HostWithPlugin::menuBarOrder()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    QCOMPARE(menu_titles(host.window()->menuBar()),
             QStringList({"&File", "&Settings", "&Calibration", "&Help"}));
}

void tst_HostWithPlugin::statusWidgetInStatusBar()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    QCOMPARE(host.status_widgets().size(), 1);
    QWidget* widget = host.status_widget();
    QCOMPARE(widget->metaObject()->className(), "InertialStatusBar");
    QCOMPARE(widget->parentWidget(), host.window()->statusBar());
    QVERIFY(!widget->isHidden());
}

void tst_HostWithPlugin::versionsReachTheModule()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    const BackendVersions* versions = host.window()->backend_versions();
    // The default scenario's controller is the newest: every gate open.
    QVERIFY(versions->major > 1 || (versions->major == 1 && versions->minor >= 21));
    QVERIFY(!versions->system_type.isEmpty());
    QVERIFY(host.window()->message_hub()->receiver(QStringLiteral("InertialModule")));
}

void tst_HostWithPlugin::startUpRoundTrips()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    // Three for the version record; the rest is what the module asks while
    // building its widgets, and building must stay cheap.
    const long trips = host.round_trips();
    qInfo("round trips to open the main window: %ld", trips);
    QVERIFY2(trips >= 3 && trips <= 12, qPrintable(QString::number(trips)));
}

void tst_HostWithPlugin::loadsFromPluginFolder()
{
    HostHarness host(HostHarness::Options{});   // no plug-in file
    QVERIFY(!host.ok());
    QCOMPARE(host.window()->module_actions().size(), 0);
    QVERIFY(!host.window()->menuBar()->actions().at(1)->isEnabled());   // empty Settings

    const QString folder = QFileInfo(QStringLiteral(PLUGIN_FILE)).absolutePath();
    QCOMPARE(host.window()->load_modules_from(folder), 1);
    QCOMPARE(host.window()->module_actions().size(), 3);
    QCOMPARE(host.status_widgets().size(), 1);
    QVERIFY(host.window()->menuBar()->actions().at(1)->isEnabled());
    QVERIFY2(host.messages().filter("Loaded GUI Inertial Tracking v1.3.1").size() == 1,
             qPrintable(host.messages().join('\n')));
}

void tst_HostWithPlugin::quitStopsAndDestroys()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    QPointer<QWidget> status = host.status_widget();
    QList<QPointer<QWidget>> dialogs;
    for (QObject* child : host.window()->children())
        if (auto* widget = qobject_cast<QWidget*>(child); widget && widget->isWindow())
            dialogs << widget;
    QVERIFY(!dialogs.isEmpty());

    host.window()->close();
    QVERIFY(!status);
    for (const QPointer<QWidget>& dialog : dialogs)
        QVERIFY(!dialog);
    QVERIFY(host.window()->message_hub()->receiver_names().isEmpty());
    QVERIFY(host.window()->module_actions().isEmpty());
    QVERIFY(host.window()->modules().isEmpty());
    QVERIFY(!host.window()->menuBar()->actions().at(2)->isEnabled());   // Calibration empty again
    // Nothing still registered was left for the host to clear up.
    QVERIFY2(host.messages().filter("Still registered").isEmpty(), qPrintable(host.messages().join('\n')));
}

QTEST_MAIN(tst_HostWithPlugin)
#include "tst_HostWithPlugin.moc"
