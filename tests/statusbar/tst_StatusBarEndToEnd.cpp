#include <QtTest>

#include <QProgressBar>
#include <QToolButton>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "simulator/ManualClock.h"
#include "simulator/SimModel.h"
#include "simulator/SimulatedController.h"

// The status widget of the loaded plug-in in norvane-host, on the simulator:
// a warm-up started from its button runs on the controller, the bar follows
// it, and the widget notices by itself when the controller ends it.
class tst_StatusBarEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList()); }
    void warmupRisesAndEndsOnItsOwn();
};

void tst_StatusBarEndToEnd::warmupRisesAndEndsOnItsOwn()
{
    // The default controller, told to end the warm-up once every sensor is
    // warm, as the field firmware does.
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    options.scenario_json = R"({"extends": "default", "inertial": {"warmup_auto_stop": true}})";
    HostHarness host(options);
    QVERIFY2(host.ok(), qPrintable(host.error()));
    QWidget* status = host.status_widget();
    auto* button = status->findChild<QToolButton*>("pushButton_startWarmup");
    auto* bar = status->findChild<QProgressBar*>("progressBar_warmup");
    QVERIFY(button->isEnabled());

    button->click();
    QVERIFY(host.simulator()->model().warmup);
    QCOMPARE(button->text(), QString("Warmup stop"));
    // The widget's two polls, driven as its timers would a simulated ten
    // seconds apart, until the controller has ended the warm-up.
    QList<int> seen;
    auto* poll = status->findChild<QTimer*>("statusTimer");
    auto* progress = status->findChild<QTimer*>("progressTimer");
    for (int step = 0; step < 200 && progress->isActive(); ++step) {
        host.clock()->advance(10000);
        QMetaObject::invokeMethod(progress, "timeout");
        seen << bar->value();
        QMetaObject::invokeMethod(poll, "timeout");
    }
    QVERIFY(!host.simulator()->model().warmup);
    QVERIFY2(seen.size() >= 3 && seen.last() >= 95, qPrintable(QString::number(seen.size())));
    QVERIFY(std::is_sorted(seen.cbegin(), seen.cend()));
    QCOMPARE(button->text() + ' ' + QString::number(bar->value()), QString("Warmup start 0"));
    QCOMPARE(host.messages().filter("warmup", Qt::CaseInsensitive), QStringList());
}

QTEST_MAIN(tst_StatusBarEndToEnd)
#include "tst_StatusBarEndToEnd.moc"
