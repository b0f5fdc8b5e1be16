#include <QtTest>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "simulator/ManualClock.h"
#include "simulator/SimulatedController.h"

// "&Hybrid Body" of the loaded plug-in on the simulator's default scenario,
// whose body 2 ("right hand") carries sensor 10232 without a hand-eye
// calibration.
class tst_HybridBodyEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void calibratedAndAccepted();
};

void tst_HybridBodyEndToEnd::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_HybridBodyEndToEnd::calibratedAndAccepted()
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    HostHarness host(options);
    QVERIFY2(host.ok(), qPrintable(host.error()));
    const auto ask = [&](const QByteArray& path) { return host.simulator()->handle("norvane get " + path).line; };
    const QByteArray handeye = "inertial sensor_handeye NRV IMU3 '10232'";
    QCOMPARE(ask(handeye), "norvane set " + handeye + " none");
    const QStringList startup = host.messages();

    QStringList cells, expected;
    ModalDialogHelper::when_active("HybridBodyCalibrationDlg", [&](QWidget* dialog) {
        auto* combo = dialog->findChild<QComboBox*>("comboBox_body");
        QTest::keyClick(combo, Qt::Key_Down);   // from body 1, as a user steps onto the next
        QCOMPARE(combo->currentText(), QString("standard body 02 (right hand)"));
        ModalDialogHelper::when_active("CalibrationProgressDlg", [&](QWidget* progress) {
            host.clock()->advance(21000);   // the whole run
            QMetaObject::invokeMethod(progress->findChild<QTimer*>(), "timeout");
        });
        ModalDialogHelper::when_active("HybridBodyResultCalibrationDlg", [&](QWidget* result) {
            // "norvane set inertial new_sensor_handeye NRV IMU3 '10232'", an offset, the rotation by columns
            const QList<QByteArray> words = ask("inertial new_sensor_handeye NRV IMU3 '10232'").split(' ');
            for (int i = 0; i < 9; ++i)   // row by row
                expected << QString::number(words.value(10 + i % 3 * 3 + i / 3).toDouble(), 'f', 4);
            auto* table = result->findChild<QTableWidget*>("tableWidget");
            for (int i = 0; i < 9; ++i)
                cells << table->item(i / 3, i % 3)->text();
            QCOMPARE(result->findChild<QLabel*>("label_deviceId")->text(), QString("10232"));
            result->findChild<QPushButton*>("pushButton_ok")->click();
        });
        dialog->findChild<QPushButton*>("pushButton_calibrate")->click();
        dialog->findChild<QPushButton*>("pushButton_exit")->click();
    });
    host.action("&Hybrid Body")->trigger();

    QCOMPARE(cells, expected);
    QCOMPARE(ask(handeye), "norvane set " + handeye + " standard b02");
    QCOMPARE(host.messages(), startup);
}

QTEST_MAIN(tst_HybridBodyEndToEnd)
#include "tst_HybridBodyEndToEnd.moc"
