#include <QtTest>

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "HostHarness.h"
#include "RecordingModule.h"
#include "ScriptedLink.h"
#include "host/HostOptions.h"
#include "host/LogView.h"
#include "host/MainWindow.h"
#include "host/MessageHub.h"
#include "host/TourRunner.h"
#include "module/MessageReceiver.h"

// The window with modules that record what the host does with them, on a
// scripted controller; and the command line it is started with.
class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void menu_placement_data();
    void menu_placement();
    void modules_from_start_to_quit();
    void versions_read_again_on_reconnect();
    void messages_and_traffic();
    void tour_of_odd_entries();
    void options_data();
    void options();

private:
    RecordingModule* module(const QString& name)
    {
        modules.push_back(std::make_unique<RecordingModule>(name, &journal));
        return modules.back().get();
    }
    // After the posted updates: the round-trip count is drawn once per pass.
    QString label(const char* name) const
    {
        QCoreApplication::sendPostedEvents();
        return window->findChild<QLabel*>(name)->text();
    }
    QStringList menu_bar() const { return HostHarness::texts(window->menuBar()->actions()); }

    QStringList journal;
    std::vector<std::unique_ptr<RecordingModule>> modules;   // outlive the window
    std::unique_ptr<ScriptedLink> link;
    std::unique_ptr<MainWindow> window;
};

void tst_MainWindow::init()
{
    window.reset();
    modules.clear();
    journal.clear();
    link = std::make_unique<ScriptedLink>();
    window = std::make_unique<MainWindow>(link.get());
}

void tst_MainWindow::menu_placement_data()
{
    QTest::addColumn<QStringList>("entries");   // "module|menu|position|entry|position"
    QTest::addColumn<QStringList>("bar");
    QTest::addColumn<QStringList>("menu");      // the first entry's

    const QStringList host = {"&File", "&Settings", "&Calibration", "&Help"};
    const QStringList tools = {"&File", "&Settings", "&Tools", "&Calibration", "&Help"};
    QTest::newRow("own menu named at another position") << QStringList{"A|&Calibration|999|&Probe|10"} << host
                                                        << QStringList{"&Probe"};
    QTest::newRow("new menu between") << QStringList{"A|&Tools|250|&Probe|10", "B|&Tools|7|&Other|5"} << tools
                                      << QStringList{"&Other", "&Probe"};
    QTest::newRow("new menu at a host menu's position") << QStringList{"A|&Tools|200|&Probe|10"} << tools
                                                        << QStringList{"&Probe"};
    QTest::newRow("new menu first") << QStringList{"A|&Early|99|&Probe|10"}
                                    << QStringList{"&Early", "&File", "&Settings", "&Calibration", "&Help"}
                                    << QStringList{"&Probe"};
    QTest::newRow("new menu after help") << QStringList{"A|&Extras|20000|&Probe|10"}
                                         << QStringList{"&File", "&Settings", "&Calibration", "&Help", "&Extras"}
                                         << QStringList{"&Probe"};
    QTest::newRow("entries by position across modules")
        << QStringList{"A|&Calibration|300|&Hybrid Body|720", "A|&Calibration|300|In&ertial|420",
                       "A|&Calibration|300|&Same A|500", "B|&Calibration|300|&Body|600", "B|&Calibration|300|&Same B|500"}
        << host << QStringList{"In&ertial", "&Same A", "&Same B", "&Body", "&Hybrid Body"};
    QTest::newRow("quit stays last in File") << QStringList{"A|&File|100|&Export|5000"} << host
                                             << QStringList{"&Export", "&Quit"};
}

void tst_MainWindow::menu_placement()
{
    QFETCH(QStringList, entries);
    QFETCH(QStringList, bar);
    QFETCH(QStringList, menu);
    RecordingModule* owners[2] = {module(QStringLiteral("A")), module(QStringLiteral("B"))};
    QList<QAction*> added;
    for (const QString& entry : entries) {
        const QStringList f = entry.split('|');
        added << owners[f[0] == "B"]->add_entry(f[1], f[2].toInt(), f[3], f[4].toInt());
    }
    window->add_module(owners[0], QStringLiteral("a"));
    window->add_module(owners[1], QStringLiteral("b"));
    QCOMPARE(menu_bar().replaceInStrings(" (off)", ""), bar);
    QCOMPARE(HostHarness::texts(window->menu_of(added.first())->actions()), menu);
    QCOMPARE(window->module_action(entries.first().section('|', 3, 3)), added.first());
    QCOMPARE(window->module_actions().size(), entries.size());
}

void tst_MainWindow::modules_from_start_to_quit()
{
    QCOMPARE(menu_bar(), QStringList({"&File", "&Settings (off)", "&Calibration (off)", "&Help"}));
    window->show();
    RecordingModule& first = *module(QStringLiteral("First"));
    RecordingModule& second = *module(QStringLiteral("Second"));
    first.add_entry("&Settings", 200, "&One", 1);
    QPointer<QWidget> one = first.add_status_widget();
    QPointer<QWidget> two = second.add_status_widget();
    // Broken records are skipped with a note.
    QLabel widget;
    auto* orphan = new QAction(QStringLiteral("&Orphan"), &second);
    second.add_raw(_GuiElement{nullptr, 1, "&Settings", 200, &widget, 0});
    second.add_raw(_GuiElement{orphan, 1, "", 200, nullptr, 0});
    second.add_raw(_GuiElement{orphan, 1, "&Settings", 200, nullptr, 1});
    second.add_raw(_GuiElement{orphan, 1, "&Settings", 200, &widget, 7});
    window->add_module(&first, QStringLiteral("/lib/first.so"));
    window->add_module(&second, QStringLiteral("second"));
    window->add_module(&first, QStringLiteral("/lib/first.so"));   // once only
    QCOMPARE(journal, QStringList({"First set_param CommandManager", "First set_param ModuleParent",
                                   "First set_param BackendVersions", "First set_param ObserverMode",
                                   "First get_gui_elements", "Second set_param CommandManager",
                                   "Second set_param ModuleParent", "Second set_param BackendVersions",
                                   "Second set_param ObserverMode", "Second get_gui_elements"}));
    QCOMPARE(first.param("CommandManager").value<IOManager*>(), static_cast<IOManager*>(link.get()));
    QCOMPARE(first.param("ModuleParent").value<QWidget*>(), window.get());
    QCOMPARE(first.param("BackendVersions").value<BackendVersions*>(), window->backend_versions());
    QCOMPARE(first.param("ObserverMode"), QVariant(false));
    QCOMPARE(window->modules(), QList<ModuleInterface*>({&first, &second}));
    QCOMPARE(HostHarness::texts(window->module_actions()), QStringList{"&One"});
    QCOMPARE(menu_bar(), QStringList({"&File", "&Settings", "&Calibration (off)", "&Help"}));
    QCOMPARE(window->message_log()->texts(),
             QStringList({"Loaded First v0.0.1 from first.so.",
                          "Second handed out a menu entry without action or menu; skipped.",
                          "Second handed out a status element without widget; skipped.",
                          "Second handed out an element of unknown type 7; skipped.", "Loaded Second v0.0.1 from second."}));

    // Status widgets stay, in the order they came, left of the connection state.
    QCOMPARE(window->status_widgets(), QList<QWidget*>({one, two}));
    window->statusBar()->showMessage(QStringLiteral("passing message"));
    QVERIFY(one->isVisible() && two->isVisible());
    QVERIFY(one->x() < two->x());
    for (QLabel* label : window->statusBar()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
        QVERIFY(label == one || label == two || two->x() < label->x());

    // Quitting: every module stops, then every module goes.
    struct : MessageReceiver
    {
        int transmit_message(int, const char*, const char*) override { return 0; }
    } receiver;
    link->register_receiver("FirstModule", &receiver);
    journal.clear();
    window->close();
    QCOMPARE(journal, QStringList({"First about_to_exit_module", "Second about_to_exit_module", "First exit_module",
                                   "Second exit_module"}));
    QVERIFY(!one && !two);
    QVERIFY(window->modules().isEmpty() && window->module_actions().isEmpty() && window->status_widgets().isEmpty());
    QVERIFY(window->message_hub()->receiver_names().isEmpty());
    QCOMPARE(window->message_log()->texts().last(), QStringLiteral("Still registered at shutdown: FirstModule"));
    window->shutdown_modules();
    window->add_module(&first, QStringLiteral("late"));
    QCOMPARE(journal.size(), 4);
}

void tst_MainWindow::versions_read_again_on_reconnect()
{
    link->reply("norvane get system version", "norvane set system version one point two");
    link->reply("norvane get system type", "norvane err 4 \"not available\"");
    link->reply("norvane get system firmware_version", "norvane set system firmware_version 3.0");
    QVERIFY(!window->connect_controller());
    const BackendVersions* versions = window->backend_versions();
    QCOMPARE(versions->major, 0);
    QCOMPARE(label("label_version") + ' ' + label("label_systemType"), QStringLiteral("unknown unknown"));
    QCOMPARE(window->message_log()->texts(),
             QStringList({"The controller's software version \"one point two\" is not of the form 1.21.0",
                          "Could not read the controller's system type: the controller refused the request "
                          "(error 4: not available)",
                          "Features that need a newer controller stay off until its version is known."}));

    link->reply("norvane get system version", "norvane set system version 1.12.-1");
    link->reply("norvane get system type", "norvane set system type PORTAFRAME");
    link->simulate_connection(true);
    QTRY_COMPARE(versions->minor, 12);
    QCOMPARE(QStringList({label("label_version"), label("label_systemType"), label("label_firmware"),
                          label("label_state"), label("label_roundTrips")}),
             QStringList({"1.12.-1", "PORTAFRAME", "3.0.0", "connected", "6"}));
    QCOMPARE(window->message_log()->texts().last(),
             QStringLiteral("Connected to the scripted controller: software 1.12.-1, system type PORTAFRAME, "
                            "firmware 3.0.0."));
    // Known now: a later reconnect asks nothing. The window tells of the
    // outage, once, until the controller answers again.
    link->simulate_connection(false);
    const QString down = "The scripted controller is not answering since " + QTime::currentTime().toString("HH:mm:ss");
    QCOMPARE(label("label_state"), down.mid(27));
    QCOMPARE(window->statusBar()->currentMessage(), down + " (the controller closed the connection).");
    link->simulate_connection(true);
    QTRY_COMPARE(label("label_state"), QStringLiteral("connected"));
    QCOMPARE(window->message_log()->texts().mid(4), QStringList({down + " (the controller closed the connection).",
                                                                 "The scripted controller is answering again."}));
    QCOMPARE(link->round_trips(), 6L);
}

void tst_MainWindow::messages_and_traffic()
{
    // A poll failing every second takes one line, with a count.
    for (const char* text : {"Could not get warmup status", "Could not get warmup status",
                             "Could not get warmup status", "Something else", "Could not get warmup status"})
        link->show_message("standard", "Norvane", 1, text);
    link->show_message("standard", "", 0, "plain");
    link->show_message("BodyCalModule", "InertialModule", 1, "OpenBodyCalDialog standard b02");
    QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("plain"));
    const QString first = window->message_log()->entries().first();
    QVERIFY2(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d  Norvane: Could not get warmup status  \\(3 times\\)$")
                 .match(first)
                 .hasMatch(),
             qPrintable(first));
    QCOMPARE(window->message_log()->texts(),
             QStringList({"Norvane: Could not get warmup status", "Norvane: Something else",
                          "Norvane: Could not get warmup status", "plain",
                          "No receiver \"BodyCalModule\" for the message from InertialModule: "
                          "OpenBodyCalDialog standard b02"}));

    link->reply("norvane get a", "norvane set a 1");
    char reply[IOManager::ReplyCapacity];
    link->get_string(reply, "a");
    link->get_string(reply, "b");
    QCOMPARE(window->traffic_log()->texts().replaceInStrings(QRegularExpression("^[^n]+ ms  "), ""),
             QStringList({"norvane get a  ->  norvane set a 1", "norvane get b  ->  (no reply)  [no reply]"}));
    QCOMPARE(label("label_roundTrips"), QStringLiteral("2"));
}

void tst_MainWindow::tour_of_odd_entries()
{
    // An entry that opens nothing, and one whose dialog ignores being
    // finished: only hiding it ends its modal loop.
    RecordingModule* odd = module(QStringLiteral("Odd"));
    odd->add_entry("&Tools", 400, "&...", 1);
    connect(odd->add_entry("&Tools", 400, "&Filter (6DOF)...", 2), &QAction::triggered, window.get(), [this] {
        struct : QDialog
        {
            void done(int) override {}
        } stubborn;
        stubborn.setParent(window.get(), Qt::Dialog);
        stubborn.exec();
    });
    window->add_module(odd, QStringLiteral("odd"));
    window->show();
    QTemporaryDir dir;
    QFile blocker(dir.filePath("file"));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    TourRunner unwritable(window.get(), dir.filePath("file/pictures"));
    QVERIFY(!unwritable.run());
    QCOMPARE(unwritable.problems(), QStringList{"Cannot create the folder " + dir.filePath("file/pictures") + '.'});
    TourRunner tour(window.get(), dir.path());
    tour.set_settle_time(20);
    tour.set_patience(200);
    bool complete = true;
    QTimer::singleShot(0, window.get(), [&] { complete = tour.run(); });
    QTRY_VERIFY(tour.saved_files().join(' ').endsWith("main-window.png"));
    QVERIFY(!complete);
    QCOMPARE(tour.problems(), QStringList{"\"...\" opened no window."});
    QCOMPARE(tour.saved_files().join(' ').remove(dir.path() + '/'), QStringLiteral("filter-6dof.png main-window.png"));
}

void tst_MainWindow::options_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("parsed");   // or why not

    const QString speed = "--speed wants a factor above 0 and up to 10000, not \"%1\"";
    const QString tcp_only = "--scenario and --speed are for the embedded simulator; a controller reached with "
                             "--controller has its own";
    QTest::newRow("tcp") << QStringList{"--controller=[::1]:5000", "--trace", "t"} << "::1:5000 x1 ||t|";
    QTest::newRow("simulator") << QStringList{"--speed", "0.5", "--scenario", "s", "--plugin-dir", "m", "--tour", "p"}
                               << ":0 x0.5 s|m||p";
    QTest::newRow("fastest") << QStringList{"--speed", "10000", "--help", "--version"} << ":0 x10000 ||| help version";
    QTest::newRow("bad address") << QStringList{"--controller", "localhost"}
                                 << "--controller wants host:port (for example 127.0.0.1:4000), not \"localhost\"";
    QTest::newRow("scenario with tcp") << QStringList{"--controller", "h:1", "--scenario", "a.json"} << tcp_only;
    QTest::newRow("zero speed") << QStringList{"--speed", "0"} << speed.arg("0");
    QTest::newRow("too fast") << QStringList{"--speed", "10001"} << speed.arg("10001");
    QTest::newRow("empty folder") << QStringList{"--plugin-dir="} << "--plugin-dir wants a value";
    QTest::newRow("stray argument") << QStringList{"extra"} << "Unexpected argument: extra";
}

void tst_MainWindow::options()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, parsed);
    HostOptions o;
    const bool ok = o.parse(QStringList{"norvane-host"} + arguments);
    QCOMPARE(ok ? QStringLiteral("%1:%2 x%3 %4|%5|%6|%7")
                          .arg(o.controller_host)
                          .arg(o.controller_port)
                          .arg(o.speed)
                          .arg(o.scenario, o.plugin_dir, o.trace, o.tour_dir)
                      + (o.help_requested() ? " help" : "") + (o.version_requested() ? " version" : "")
                : o.error(),
             parsed);
}

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
