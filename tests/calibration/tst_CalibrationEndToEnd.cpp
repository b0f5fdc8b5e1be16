#include <QtTest>

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "simulator/ManualClock.h"
#include "simulator/SimModel.h"
#include "simulator/SimulatedController.h"

// The gyroscope calibration of the loaded plug-in, opened from the host's
// menu, on the simulator's default scenario: of the active bodies, "left
// hand" (sensor 10231) has a hybrid calibration, "right hand" (10232) not.
class tst_CalibrationEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void acceptedResidualBecomesTheSensorsCalibration();
};

void tst_CalibrationEndToEnd::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_CalibrationEndToEnd::acceptedResidualBecomesTheSensorsCalibration()
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    HostHarness host(options);
    QVERIFY2(host.ok(), qPrintable(host.error()));
    const int start_messages = host.messages().size();
    QString residual;
    QStringList listed;
    // The plug-in's own class, not the one this test links: found by name.
    ModalDialogHelper::when_active("InertialCalibrationDlg", [&](QWidget* dialog) {
        auto* table = dialog->findChild<QTableWidget*>("tableWidget");
        auto* calibrate = dialog->findChild<QPushButton*>("pushButton_calibrate");
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(table->item(0, 3)->text() + ", " + table->item(1, 3)->text(), QString("left hand, right hand"));
        QVERIFY(dialog->findChild<QLabel*>("label_error")->text().contains("warmed up"));   // cold sensors
        calibrate->click();
        for (int seconds = 0; seconds < 30 && !calibrate->isEnabled(); ++seconds) {
            host.clock()->advance(1000);
            QMetaObject::invokeMethod(dialog, "do_measure");
        }
        residual = table->item(0, 4)->text();
        QCOMPARE(table->item(0, 6)->checkState(), Qt::Checked);
        QCOMPARE(table->item(1, 4)->text(), QString());
        ModalDialogHelper::when_active("InertialCalibrationResultDlg", [&](QWidget* result) {
            auto* accepted = result->findChild<QTableWidget*>();
            for (int row = 0; row < accepted->rowCount(); ++row)
                listed << accepted->item(row, 0)->text() + ' ' + accepted->item(row, 3)->text();
            result->close();
        });
        dialog->findChild<QPushButton*>("pushButton_apply")->click();
        dialog->findChild<QPushButton*>("pushButton_exit")->click();
    });
    host.action("In&ertial Sensor Calibration")->trigger();

    QCOMPARE(listed, QStringList({"10231 left hand"}));
    const SimModel& model = host.simulator()->model();
    QCOMPARE(QString::number(model.sensors.at(0).gyro_residual, 'f', 4), residual);
    QVERIFY(!model.sensors.at(0).gyro_marked && !model.sensors.at(0).has_new_gyro);
    QCOMPARE(host.simulator()->handle("norvane get status active").line, QByteArray("norvane set status active none"));
    QCOMPARE(host.messages().mid(start_messages), QStringList());
}

QTEST_MAIN(tst_CalibrationEndToEnd)
#include "tst_CalibrationEndToEnd.moc"
