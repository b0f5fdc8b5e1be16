#include <QtTest>

#include <QDoubleSpinBox>
#include <QPushButton>
#include <QTemporaryDir>

#include <clocale>
#include <cstdio>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "host/TourRunner.h"
#include "simulator/SimModel.h"
#include "simulator/SimulatedController.h"

// The host with the plug-in against a controller that stops answering,
// answers too late, hangs up in the middle of a reply, or sends replies too
// long, binary or absurd: every dialog of the tour and the settings
// dialog's channel scan, with a watchdog on the GUI thread. Nothing may
// freeze the window longer than one time-out, and the user is told why.
// Under a comma-decimal locale (LC_ALL=de_DE.UTF-8, set by CTest), and the
// frequency still goes out as "120.000000".
class tst_HostileController : public QObject
{
    Q_OBJECT

private slots:
    void tour_and_scan_data();
    void tour_and_scan();
    void frequency_under_a_german_locale();
};

namespace {

// The longest time the GUI thread did not get to its event loop.
class Watchdog : public QObject
{
public:
    Watchdog()
    {
        since.start();
        connect(&timer, &QTimer::timeout, this, [this] { longest = qMax(longest, since.restart()); });
        timer.start(10);
    }
    qint64 longest = 0;

private:
    QTimer timer;
    QElapsedTimer since;
};

QByteArray scenario(const QByteArray& faults)
{
    return R"({"extends": "default", "faults": [)" + faults + "]}";
}

QByteArray count(const QByteArray& path, const QByteArray& value)
{
    return R"({"line": "norvane get )" + path + R"(", "kind": "garbage", "reply": "norvane set )" + path + ' '
           + value + R"("},)";
}

} // namespace

void tst_HostileController::tour_and_scan_data()
{
    QTest::addColumn<QByteArray>("faults");
    QTest::addColumn<QString>("told");
    const QByteArray every_query = R"({"line": "norvane get ", "match": "prefix", )";
    const QString down = QStringLiteral("The simulated controller (default scenario) is not answering since ");
    QTest::newRow("silence") << every_query + R"("kind": "silent"})" << down;
    QTest::newRow("replies after the time-out") << every_query + R"("kind": "late", "delay_ms": 3300})" << down;
    QTest::newRow("replies closed mid-line") << every_query + R"("kind": "hang_up"})" << down;
    QTest::newRow("replies too long") << every_query + R"("kind": "garbage", "length": 70000})"
                                      << "The controller sent a reply that does not fit: reply longer than 65536 bytes.";
    QTest::newRow("binary replies") << every_query + R"("kind": "garbage", "reply": "norvane set \u0000\u001b[2J\u00ff"})"
                                    << "The controller sent something that is not its language: reply holds the "
                                       "byte 0x00 at 12, which is not printable ASCII.";
    QTest::newRow("absurd counts")
        << count("inertial number_of_sensors", "2147483647") + count("inertial number_of_transceivers", "99999")
               + count("inertial number_of_wakeup_modes", "99999") + count("body number_of_bodies standard", "99999")
               + count("standard number_of_bodies", "99999") + count("standard max_number_of_bodies", "99999")
               + count("inertial number_of_transceiver_available_radio_channels NRV RD2 '70011'", "99999")
               + count("inertial number_of_scanned_sensors", "-7").chopped(1)
        << "The controller sent something that is not its language: a count of ";
}

void tst_HostileController::tour_and_scan()
{
    QFETCH(QByteArray, faults);
    QFETCH(QString, told);
    HostHarness host(HostHarness::Options{PLUGIN_FILE, {}, {}, false});
    QVERIFY2(host.ok(), qPrintable(host.error()));
    QString error;
    const long healthy_trips = host.round_trips();
    Watchdog watchdog;

    // Every dialog of the tour against the controller gone bad.
    QVERIFY2(host.simulator()->load_scenario(scenario(faults), &error), qPrintable(error));
    QTemporaryDir dir;
    TourRunner tour(host.window(), dir.path());
    tour.set_settle_time(200);
    bool toured = false;
    QTimer::singleShot(0, host.window(), [&] {
        tour.run();
        toured = true;
    });
    QTRY_VERIFY_WITH_TIMEOUT(toured, 60000);
    QCOMPARE(tour.saved_files().size(), 4);

    // The channel scan, on a controller that answers the scan and then goes
    // bad for the rebuild after it: the scan's long time-out is its own.
    QVERIFY2(host.simulator()->load_scenario(scenario(""), &error), qPrintable(error));
    QTRY_VERIFY_WITH_TIMEOUT(host.link()->is_answering(), 10000);
    bool scanned = false;
    ModalDialogHelper::when_active("InertialSettingsDlg", [&](QWidget* dialog) {
        QVERIFY(host.simulator()->load_scenario(scenario(faults), &error));
        auto* scan = dialog->findChild<QPushButton*>("pushButton_scanAvailableChannels");
        scanned = scan && scan->isEnabled();
        if (scanned)
            scan->click();
        ModalDialogHelper::close(dialog);
    });
    host.action("In&ertial Sensor")->trigger();
    QVERIFY(scanned);
    QCOMPARE(ModalDialogHelper::pending(), 0);

    qInfo("longest GUI stall %lld ms, %ld round trips", watchdog.longest, host.round_trips() - healthy_trips);
    QVERIFY2(watchdog.longest <= 3500, qPrintable(QStringLiteral("the GUI stalled for %1 ms").arg(watchdog.longest)));
    // Refused, not believed: no question per item that does not exist.
    QVERIFY2(host.round_trips() - healthy_trips < 1500, qPrintable(QString::number(host.round_trips())));
    const QStringList messages = host.messages();
    QVERIFY2(!messages.filter(told).isEmpty(), qPrintable(messages.join('\n')));
    QVERIFY2(messages.filter(told).size() <= 2, qPrintable(messages.join('\n')));   // once per outage
}

void tst_HostileController::frequency_under_a_german_locale()
{
    std::setlocale(LC_ALL, "");   // as QApplication does; an earlier window made numbers C
    char german[8];
    std::snprintf(german, sizeof german, "%.1f", 1.5);
    if (QByteArray(german) != "1,5")
        QSKIP("the locale de_DE.UTF-8 is not installed here (locale-gen de_DE.UTF-8)");
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    HostHarness host(options);
    QVERIFY2(host.ok(), qPrintable(host.error()));
    // Modules read replies with sscanf: the host keeps numbers in C.
    QCOMPARE(std::setlocale(LC_NUMERIC, nullptr), "C");
    // Lines are C whatever a module or library makes of the process locale.
    std::setlocale(LC_ALL, "");
    ModalDialogHelper::when_active("InertialSettingsDlg", [](QWidget* dialog) {
        dialog->findChild<QDoubleSpinBox*>("doubleSpinBox_frequency")->setValue(120.0);
        ModalDialogHelper::close(dialog);
    });
    host.action("In&ertial Sensor")->trigger();
    std::setlocale(LC_NUMERIC, "C");
    QCOMPARE(host.simulator()->model().frequency, 120.0);
    QVERIFY2(!host.window()->traffic_log()->texts().filter("norvane set inertial frequency 120.000000  ->  norvane ok").isEmpty(),
             qPrintable(host.window()->traffic_log()->texts().join('\n')));
}

QTEST_MAIN(tst_HostileController)
#include "tst_HostileController.moc"
