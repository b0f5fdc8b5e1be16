#include <QtTest>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProgressBar>
#include <QToolButton>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "simulator/ManualClock.h"
#include "simulator/SimModel.h"
#include "simulator/SimulatedController.h"

// Outside any namespace, as Q_INIT_RESOURCE requires.
static QByteArray default_scenario()
{
    Q_INIT_RESOURCE(simulator);
    QFile file(QStringLiteral(":/simulator/scenarios/default.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The status widget of the loaded plug-in in norvane-host, on the simulator:
// a warm-up started from its button runs on the controller, the bar follows
// it, and the widget notices by itself when the controller ends it.
class tst_StatusBarEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void warmupRisesAndEndsOnItsOwn();
};

void tst_StatusBarEndToEnd::cleanup()
{
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_StatusBarEndToEnd::warmupRisesAndEndsOnItsOwn()
{
    // The default controller, told to end the warm-up once every sensor is
    // warm, as the field firmware does.
    QJsonObject root = QJsonDocument::fromJson(default_scenario()).object();
    QVERIFY(!root.isEmpty());
    QJsonObject inertial = root.value("inertial").toObject();
    inertial.insert("warmup_auto_stop", true);
    root.insert("inertial", inertial);

    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    options.scenario_json = QJsonDocument(root).toJson();
    HostHarness host(options);
    QVERIFY2(host.ok(), qPrintable(host.error()));

    QWidget* status = host.status_widget();
    QVERIFY(status);
    auto* button = status->findChild<QToolButton*>("pushButton_startWarmup");
    auto* bar = status->findChild<QProgressBar*>("progressBar_warmup");
    QVERIFY(button && bar);
    QVERIFY(button->isEnabled());
    QCOMPARE(button->text(), QString("Warmup start"));

    button->click();
    QVERIFY(host.simulator()->model().warmup);
    QCOMPARE(button->text(), QString("Warmup stop"));

    // Drive the widget's two polls as its timers would, a simulated ten
    // seconds apart, until the controller has ended the warm-up.
    QList<int> seen;
    for (int step = 0; step < 200 && host.simulator()->model().warmup; ++step) {
        host.clock()->advance(10000);
        QVERIFY(QMetaObject::invokeMethod(status, "update_progress"));
        seen << bar->value();
        QVERIFY(QMetaObject::invokeMethod(status, "update_status"));
    }
    QVERIFY2(!host.simulator()->model().warmup, "the simulated warm-up never ended");
    QVERIFY2(seen.size() >= 3, qPrintable(QString::number(seen.size())));
    for (int i = 1; i < seen.size(); ++i)
        QVERIFY2(seen.at(i) >= seen.at(i - 1), "warm-up progress went backwards");
    QVERIFY(seen.last() > seen.first());
    QVERIFY(seen.last() >= 95);

    // The status poll has seen the end: back to idle with an empty bar.
    QCOMPARE(button->text(), QString("Warmup start"));
    QCOMPARE(bar->value(), 0);
    QVERIFY(host.messages().filter("warmup", Qt::CaseInsensitive).isEmpty());
}

QTEST_MAIN(tst_StatusBarEndToEnd)
#include "tst_StatusBarEndToEnd.moc"
