#include <QtTest>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "ModalDialogHelper.h"
#include "RecordingModule.h"
#include "ScriptedLink.h"
#include "host/LogView.h"
#include "host/MainWindow.h"

// The window against modules that record what the host does with them.
class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void configuresBeforeBuilding();
    void menuPlacement_data();
    void menuPlacement();
    void entryOrderWithinMenu();
    void quitStaysLastInFile();
    void emptyMenusAreDisabled();
    void brokenElementsAreSkipped_data();
    void brokenElementsAreSkipped();
    void statusWidgetsStayVisible();
    void quitStopsAllThenDestroysAll();
    void userMessages();
    void undeliverableMessageIsLogged();
    void versionsShown();
    void versionsReadAgainOnReconnect();
    void trafficIsLogged();

private:
    std::unique_ptr<ScriptedLink> link;
    std::unique_ptr<MainWindow> window;
};

namespace {

QStringList titles(const QList<QAction*>& actions)
{
    QStringList result;
    for (const QAction* action : actions)
        if (!action->isSeparator())
            result << action->text();
    return result;
}

void answer_versions(ScriptedLink& link)
{
    link.reply("norvane get system version", "norvane set system version 1.12.-1");
    link.reply("norvane get system type", "norvane set system type PORTAFRAME");
    link.reply("norvane get system firmware_version", "norvane set system firmware_version 3.0.7");
}

} // namespace

void tst_MainWindow::init()
{
    link = std::make_unique<ScriptedLink>();
    window = std::make_unique<MainWindow>(link.get());
}

void tst_MainWindow::cleanup()
{
    window.reset();
    link.reset();
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_MainWindow::configuresBeforeBuilding()
{
    RecordingModule module;
    window->add_module(&module, QStringLiteral("test"));
    QCOMPARE(module.calls(), QStringList({"set_param CommandManager", "set_param ModuleParent",
                                          "set_param BackendVersions", "set_param ObserverMode",
                                          "get_gui_elements"}));
    QCOMPARE(module.param("CommandManager").value<IOManager*>(), static_cast<IOManager*>(link.get()));
    QCOMPARE(module.param("ModuleParent").value<QWidget*>(), window.get());
    QCOMPARE(module.param("BackendVersions").value<BackendVersions*>(), window->backend_versions());
    QCOMPARE(module.param("ObserverMode").userType(), int(QMetaType::Bool));
    QCOMPARE(module.param("ObserverMode").toBool(), false);
    QCOMPARE(window->modules(), QList<ModuleInterface*>{&module});
    window->shutdown_modules();
}

void tst_MainWindow::menuPlacement_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<int>("position");
    QTest::addColumn<QStringList>("bar");

    QTest::newRow("host's own menu") << "&Settings" << 200
                                     << QStringList({"&File", "&Settings", "&Calibration", "&Help"});
    QTest::newRow("own menu, other position")
        << "&Calibration" << 999 << QStringList({"&File", "&Settings", "&Calibration", "&Help"});
    QTest::newRow("new menu between") << "&Tools" << 250
                                      << QStringList({"&File", "&Settings", "&Tools", "&Calibration", "&Help"});
    QTest::newRow("new menu first") << "&Early" << 50
                                    << QStringList({"&Early", "&File", "&Settings", "&Calibration", "&Help"});
    QTest::newRow("new menu after help")
        << "&Extras" << 20000 << QStringList({"&File", "&Settings", "&Calibration", "&Help", "&Extras"});
}

void tst_MainWindow::menuPlacement()
{
    QFETCH(QString, menu);
    QFETCH(int, position);
    QFETCH(QStringList, bar);
    RecordingModule module;
    QAction* entry = module.add_entry(menu, position, QStringLiteral("&Probe"), 10);
    window->add_module(&module, QStringLiteral("test"));
    QCOMPARE(titles(window->menuBar()->actions()), bar);
    QCOMPARE(window->menu_of(entry)->title(), menu);
    QCOMPARE(window->module_action(QStringLiteral("&Probe")), entry);
    window->shutdown_modules();
}

void tst_MainWindow::entryOrderWithinMenu()
{
    RecordingModule first(QStringLiteral("First"));
    first.add_entry("&Calibration", 300, "&Hybrid Body", 720);
    first.add_entry("&Calibration", 300, "In&ertial Sensor Calibration", 420);
    first.add_entry("&Calibration", 300, "&Same A", 500);
    RecordingModule second(QStringLiteral("Second"));
    second.add_entry("&Calibration", 300, "&Body", 600);
    second.add_entry("&Calibration", 300, "&Same B", 500);
    window->add_module(&first, QStringLiteral("first"));
    window->add_module(&second, QStringLiteral("second"));

    QAction* any = window->module_action(QStringLiteral("&Body"));
    QCOMPARE(titles(window->menu_of(any)->actions()),
             QStringList({"In&ertial Sensor Calibration", "&Same A", "&Same B", "&Body", "&Hybrid Body"}));
    QCOMPARE(titles(window->module_actions()),
             QStringList({"In&ertial Sensor Calibration", "&Same A", "&Same B", "&Body", "&Hybrid Body"}));
    window->shutdown_modules();
}

void tst_MainWindow::quitStaysLastInFile()
{
    RecordingModule module;
    QAction* entry = module.add_entry("&File", 100, "&Export", 5000);
    window->add_module(&module, QStringLiteral("test"));
    QCOMPARE(titles(window->menu_of(entry)->actions()), QStringList({"&Export", "&Quit"}));
    window->shutdown_modules();
}

void tst_MainWindow::emptyMenusAreDisabled()
{
    const QList<QAction*> bar = window->menuBar()->actions();
    QVERIFY(bar.at(0)->isEnabled());    // File: Quit
    QVERIFY(!bar.at(1)->isEnabled());   // Settings: nothing yet
    QVERIFY(!bar.at(2)->isEnabled());
    QVERIFY(bar.at(3)->isEnabled());    // Help

    RecordingModule module;
    module.add_entry("&Settings", 200, "In&ertial Sensor", 522);
    window->add_module(&module, QStringLiteral("test"));
    QVERIFY(bar.at(1)->isEnabled());
    QVERIFY(!bar.at(2)->isEnabled());
    window->shutdown_modules();
    QVERIFY(!bar.at(1)->isEnabled());
}

void tst_MainWindow::brokenElementsAreSkipped_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("withAction");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<bool>("withWidget");
    QTest::addColumn<QString>("note");

    QTest::newRow("entry without action") << 0 << false << "&Settings" << false << "without action or menu";
    QTest::newRow("entry without menu") << 0 << true << "" << false << "without action or menu";
    QTest::newRow("status without widget") << 1 << false << "" << false << "status element without widget";
    QTest::newRow("unknown type") << 7 << true << "&Settings" << true << "unknown type 7";
}

void tst_MainWindow::brokenElementsAreSkipped()
{
    QFETCH(int, type);
    QFETCH(bool, withAction);
    QFETCH(QString, menu);
    QFETCH(bool, withWidget);
    QFETCH(QString, note);
    RecordingModule module(QStringLiteral("Broken"));
    QAction action(QStringLiteral("&Orphan"));
    QLabel widget;
    module.add_raw(_GuiElement{withAction ? &action : nullptr, 1, menu, 200, withWidget ? &widget : nullptr, type});
    module.add_entry("&Settings", 200, "&Fine", 2);
    window->add_module(&module, QStringLiteral("test"));

    QCOMPARE(titles(window->module_actions()), QStringList{"&Fine"});
    QVERIFY(window->status_widgets().isEmpty());
    const QStringList log = window->message_log()->texts();
    QVERIFY2(!log.filter("Broken handed out").filter(note).isEmpty(), qPrintable(log.join('\n')));
    window->shutdown_modules();
}

void tst_MainWindow::statusWidgetsStayVisible()
{
    window->show();
    RecordingModule first(QStringLiteral("First"));
    QWidget* one = first.add_status_widget();
    RecordingModule second(QStringLiteral("Second"));
    QWidget* two = second.add_status_widget();
    window->add_module(&first, QStringLiteral("first"));
    window->add_module(&second, QStringLiteral("second"));

    QCOMPARE(window->status_widgets(), QList<QWidget*>({one, two}));
    QCOMPARE(one->parentWidget(), window->statusBar());
    window->statusBar()->showMessage(QStringLiteral("passing message"));
    QVERIFY(one->isVisible());
    QVERIFY(two->isVisible());
    // Left of the host's connection state, in the order they came.
    QVERIFY(one->x() < two->x());
    const QList<QLabel*> labels = window->statusBar()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel* label : labels)
        if (label != one && label != two)
            QVERIFY(two->x() < label->x());
    window->shutdown_modules();
    QVERIFY(window->status_widgets().isEmpty());
}

void tst_MainWindow::quitStopsAllThenDestroysAll()
{
    QStringList journal;
    RecordingModule first(QStringLiteral("First"));
    RecordingModule second(QStringLiteral("Second"));
    first.set_journal(&journal);
    second.set_journal(&journal);
    first.add_entry("&Settings", 200, "&One", 1);
    QPointer<QWidget> status = second.add_status_widget();
    window->add_module(&first, QStringLiteral("first"));
    window->add_module(&second, QStringLiteral("second"));
    journal.clear();

    window->close();
    QCOMPARE(journal, QStringList({"First about_to_exit_module", "Second about_to_exit_module",
                                   "First exit_module", "Second exit_module"}));
    QVERIFY(!status);
    QVERIFY(window->modules().isEmpty());
    window->shutdown_modules();   // again: nothing more
    QCOMPARE(journal.size(), 4);
}

void tst_MainWindow::userMessages()
{
    link->show_message("standard", "Norvane", 1, "Could not get warmup status");
    QCOMPARE(window->message_log()->texts(), QStringList{"Norvane: Could not get warmup status"});
    QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("Could not get warmup status"));

    // A poll failing every second takes one line, with a count.
    link->show_message("standard", "Norvane", 1, "Could not get warmup status");
    link->show_message("standard", "Norvane", 1, "Could not get warmup status");
    QCOMPARE(window->message_log()->texts().size(), 1);
    QVERIFY(window->message_log()->entries().first().endsWith("(3 times)"));

    link->show_message("standard", "Other", 0, "Something else");
    QCOMPARE(window->message_log()->texts(),
             QStringList({"Norvane: Could not get warmup status", "Other: Something else"}));
}

void tst_MainWindow::undeliverableMessageIsLogged()
{
    link->show_message("BodyCalModule", "InertialModule", 1, "OpenBodyCalDialog standard b02");
    const QStringList log = window->message_log()->texts();
    QCOMPARE(log.size(), 1);
    QVERIFY2(log.first().contains("No receiver \"BodyCalModule\""), qPrintable(log.first()));
    QVERIFY(log.first().contains("OpenBodyCalDialog standard b02"));
}

void tst_MainWindow::versionsShown()
{
    answer_versions(*link);
    QVERIFY(window->connect_controller());
    const BackendVersions* versions = window->backend_versions();
    QCOMPARE(versions->major, 1);
    QCOMPARE(versions->minor, 12);
    QCOMPARE(versions->patch, -1);
    QCOMPARE(versions->system_type, QStringLiteral("PORTAFRAME"));
    QCOMPARE(versions->firmware_major, 3);
    QCOMPARE(versions->firmware_patch, 7);
    QCOMPARE(window->findChild<QLabel*>("label_version")->text(), QStringLiteral("1.12.-1"));
    QCOMPARE(window->findChild<QLabel*>("label_systemType")->text(), QStringLiteral("PORTAFRAME"));
    QCOMPARE(window->findChild<QLabel*>("label_roundTrips")->text(), QStringLiteral("3"));
}

void tst_MainWindow::versionsReadAgainOnReconnect()
{
    QVERIFY(!window->connect_controller());
    QCOMPARE(window->backend_versions()->major, 0);
    QCOMPARE(window->findChild<QLabel*>("label_version")->text(), QStringLiteral("unknown"));
    QVERIFY(!window->message_log()->texts().filter("Could not read the controller's software version").isEmpty());

    answer_versions(*link);
    link->simulate_connection(true);
    QTRY_COMPARE(window->backend_versions()->minor, 12);
    QCOMPARE(window->findChild<QLabel*>("label_version")->text(), QStringLiteral("1.12.-1"));
    QCOMPARE(window->findChild<QLabel*>("label_state")->text(), QStringLiteral("connected"));

    // Known now: a later reconnect asks nothing.
    const long trips = link->round_trips();
    link->simulate_connection(false);
    link->simulate_connection(true);
    QCoreApplication::processEvents();
    QCOMPARE(link->round_trips(), trips);
}

void tst_MainWindow::trafficIsLogged()
{
    answer_versions(*link);
    window->connect_controller();
    char reply[IOManager::ReplyCapacity];
    link->get_string(reply, "inertial available");
    const QStringList traffic = window->traffic_log()->texts();
    QCOMPARE(traffic.size(), 4);
    QVERIFY(traffic.at(0).contains("norvane get system version  ->  norvane set system version 1.12.-1"));
    QVERIFY(traffic.at(3).contains("norvane get inertial available  ->  (no reply)"));
}

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
