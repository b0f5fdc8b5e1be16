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
    QStringList seen;
    // The plug-in's own class, not the one this test links: found by name.
    ModalDialogHelper::when_active("InertialCalibrationDlg", [&](QWidget* dialog) {
        auto* table = dialog->findChild<QTableWidget*>("tableWidget");
        auto* calibrate = dialog->findChild<QPushButton*>("pushButton_calibrate");
        QVERIFY(dialog->findChild<QLabel*>("label_error")->text().contains("warmed up"));   // cold sensors
        calibrate->click();
        for (int seconds = 0; seconds < 30 && !calibrate->isEnabled(); ++seconds) {
            host.clock()->advance(1000);
            QMetaObject::invokeMethod(dialog, "do_measure");
        }
        for (int row = 0; row < table->rowCount(); ++row)
            seen << table->item(row, 3)->text() + ' ' + table->item(row, 4)->text() + ' '
                        + QString::number(table->item(row, 6)->checkState());
        ModalDialogHelper::when_active("InertialCalibrationResultDlg", [&](QWidget* result) {
            auto* accepted = result->findChild<QTableWidget*>();
            seen << accepted->item(0, 0)->text() + " accepted, of " + QString::number(accepted->rowCount());
            result->close();
        });
        dialog->findChild<QPushButton*>("pushButton_apply")->click();
        ModalDialogHelper::when_active("InertialCalibrationHelpDlg", [&](QWidget* help) {
            seen << help->findChild<QLabel*>("label_3")->text();
            help->findChild<QPushButton*>("pushButton_exit")->click();
        });
        dialog->findChild<QPushButton*>("pushButton_help")->click();
        dialog->findChild<QPushButton*>("pushButton_exit")->click();
    });
    host.action("In&ertial Sensor Calibration")->trigger();

    const SimModel::Sensor& sensor = host.simulator()->model().sensors.at(0);
    const QString residual = QString::number(sensor.gyro_residual, 'f', 4);
    QCOMPARE(seen, QStringList({"left hand " + residual + " 2", "right hand  0", "10231 accepted, of 1",
                                "How to do a inertial sensor calibration?"}));
    QVERIFY(!sensor.gyro_marked && !sensor.has_new_gyro);
    QCOMPARE(host.simulator()->handle("norvane get status active").line, QByteArray("norvane set status active none"));
    QCOMPARE(host.messages().mid(start_messages), QStringList());
}

QTEST_MAIN(tst_CalibrationEndToEnd)
#include "tst_CalibrationEndToEnd.moc"
