#include <QtTest>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>

#include <memory>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "filter/FilterDialog.h"
#include "simulator/ManualClock.h"
#include "simulator/SimModel.h"
#include "simulator/SimulatedController.h"

// The loaded plug-in in norvane-host on the simulator's default scenario,
// whose warm-up ends by itself once every sensor is warm, as the field
// firmware's does. One run per thing a user does with the plug-in, checked
// on the controller's side; none of them may leave a message for the user.
class tst_PluginEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void warmupRisesAndEndsOnItsOwn();
    void foundSensorsGoOnBodies();
    void acceptedResidualBecomesTheSensorsCalibration();
    void hybridBodyCalibratedAndAccepted();
    void filterPresetAndPredictionKept();

private:
    QByteArray ask(const QByteArray& path) const { return host->simulator()->handle("norvane get " + path).line; }
    template <class T = QPushButton>
    static T* in(QObject* parent, const char* name) { return parent->findChild<T*>(name); }

    std::unique_ptr<HostHarness> host;
    QStringList startup;   // the host's own start-up notes
};

void tst_PluginEndToEnd::init()
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    options.scenario_json = R"({"extends": "default", "inertial": {"warmup_auto_stop": true}})";
    host = std::make_unique<HostHarness>(options);
    QVERIFY2(host->ok(), qPrintable(host->error()));
    startup = host->messages();
}

void tst_PluginEndToEnd::cleanup()
{
    const QStringList said = host->messages();
    host.reset();
    QCOMPARE(said, startup);
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_PluginEndToEnd::warmupRisesAndEndsOnItsOwn()
{
    QWidget* status = host->status_widget();
    auto* button = in<QToolButton>(status, "pushButton_startWarmup");
    auto* bar = in<QProgressBar>(status, "progressBar_warmup");
    QVERIFY(button->isEnabled());
    button->click();
    QVERIFY(host->simulator()->model().warmup);
    QCOMPARE(button->text(), QString("Warmup stop"));
    // The widget's two polls, driven as its timers would a simulated ten
    // seconds apart, until the controller has ended the warm-up.
    QList<int> seen;
    auto* poll = in<QTimer>(status, "statusTimer");
    auto* progress = in<QTimer>(status, "progressTimer");
    for (int step = 0; step < 200 && progress->isActive(); ++step) {
        host->clock()->advance(10000);
        QMetaObject::invokeMethod(progress, "timeout");
        seen << bar->value();
        QMetaObject::invokeMethod(poll, "timeout");
    }
    QVERIFY(!host->simulator()->model().warmup);
    QVERIFY2(seen.size() >= 3 && seen.last() >= 95, qPrintable(QString::number(seen.size())));
    QVERIFY(std::is_sorted(seen.cbegin(), seen.cend()));
    QCOMPARE(button->text() + ' ' + QString::number(bar->value()), QString("Warmup start 0"));
}

void tst_PluginEndToEnd::foundSensorsGoOnBodies()
{
    // Four sensors wait to be found: two on the default channels 35 and 55,
    // one on channel 40, one on cable; body 6 is the only free one.
    QDialog* dialog = nullptr;
    for (QDialog* d : host->window()->findChildren<QDialog*>())   // the plug-in's own class: by name
        dialog = d->inherits("AddInertialSensorDlg") ? d : dialog;
    QVERIFY(dialog);
    const auto found = [dialog] {
        QStringList rows;   // "id channel", "+" after those that can be accepted
        auto* table = in<QTableWidget>(dialog, "tableWidget");
        for (int row = 0; row < table->rowCount(); ++row)
            rows << table->item(row, 0)->text() + ' ' + table->item(row, 3)->text()
                        + (table->item(row, 4)->flags() & Qt::ItemIsUserCheckable ? "+" : "");
        return rows.join(", ");
    };
    QStringList seen;
    ModalDialogHelper::when_active("AddInertialSensorDlg", [&](QWidget*) {
        auto* modes = in<QComboBox>(dialog, "comboBox_scanMode");
        modes->setCurrentIndex(modes->findText("default channels"));
        in(dialog, "pushButton_scan")->click();
        for (int tick = 0; tick < 10 && !in(dialog, "pushButton_scan")->isEnabled(); ++tick)
            QMetaObject::invokeMethod(dialog, "scan_channels");
        seen << found();
        in<QCheckBox>(dialog, "checkBox_acceptAll")->setChecked(true);
        in(dialog, "pushButton_apply")->click();
        seen << found();
        dialog->hide();
    });
    QMetaObject::invokeMethod(dialog, "update_and_exec");
    // Paired sensors answer the scan too; only the waiting ones can be accepted.
    QCOMPARE(seen, QStringList({"10240 35+, 10231 35, 10232 35, 10241 55+, 10234 55",
                                "10240 35, 10231 35, 10232 35, 10241 55, 10234 55"}));
    // Body 6 was the only free one; the second sensor got a new body.
    const SimModel& model = host->simulator()->model();
    QCOMPARE(model.bodies.value(5).sensor + ", " + model.bodies.value(6).sensor,
             QString("NRV IMU3 '10240', NRV IMU3 '10241'"));
    QCOMPARE(model.body_count, 7);
    QCOMPARE(model.sensors.size(), 7);
}

void tst_PluginEndToEnd::acceptedResidualBecomesTheSensorsCalibration()
{
    // Of the active bodies, "left hand" (sensor 10231) has a hybrid
    // calibration, "right hand" (10232) not.
    QStringList seen;
    ModalDialogHelper::when_active("InertialCalibrationDlg", [&](QWidget* dialog) {
        auto* table = in<QTableWidget>(dialog, "tableWidget");
        auto* calibrate = in(dialog, "pushButton_calibrate");
        QVERIFY(in<QLabel>(dialog, "label_error")->text().contains("warmed up"));   // cold sensors
        calibrate->click();
        for (int seconds = 0; seconds < 30 && !calibrate->isEnabled(); ++seconds) {
            host->clock()->advance(1000);
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
        in(dialog, "pushButton_apply")->click();
        ModalDialogHelper::when_active("InertialCalibrationHelpDlg", [&](QWidget* help) {
            seen << in<QLabel>(help, "label_3")->text();
            in(help, "pushButton_exit")->click();
        });
        in(dialog, "pushButton_help")->click();
        in(dialog, "pushButton_exit")->click();
    });
    host->action("In&ertial Sensor Calibration")->trigger();

    const SimModel::Sensor& sensor = host->simulator()->model().sensors.at(0);
    const QString residual = QString::number(sensor.gyro_residual, 'f', 4);
    QCOMPARE(seen, QStringList({"left hand " + residual + " 2", "right hand  0", "10231 accepted, of 1",
                                "How to do a inertial sensor calibration?"}));
    QVERIFY(!sensor.gyro_marked && !sensor.has_new_gyro);
    QCOMPARE(ask("status active"), QByteArray("norvane set status active none"));
}

void tst_PluginEndToEnd::hybridBodyCalibratedAndAccepted()
{
    // Body 2 ("right hand") carries sensor 10232 without a hand-eye calibration.
    const QByteArray handeye = "inertial sensor_handeye NRV IMU3 '10232'";
    QCOMPARE(ask(handeye), "norvane set " + handeye + " none");
    QStringList cells, expected;
    ModalDialogHelper::when_active("HybridBodyCalibrationDlg", [&](QWidget* dialog) {
        auto* combo = in<QComboBox>(dialog, "comboBox_body");
        QTest::keyClick(combo, Qt::Key_Down);   // from body 1, as a user steps onto the next
        QCOMPARE(combo->currentText(), QString("standard body 02 (right hand)"));
        ModalDialogHelper::when_active("CalibrationProgressDlg", [&](QWidget* progress) {
            host->clock()->advance(21000);   // the whole run
            QMetaObject::invokeMethod(progress->findChild<QTimer*>(), "timeout");
        });
        ModalDialogHelper::when_active("HybridBodyResultCalibrationDlg", [&](QWidget* result) {
            // "norvane set inertial new_sensor_handeye NRV IMU3 '10232'", an offset, the rotation by columns
            const QList<QByteArray> words = ask("inertial new_sensor_handeye NRV IMU3 '10232'").split(' ');
            auto* table = in<QTableWidget>(result, "tableWidget");
            for (int i = 0; i < 9; ++i) {   // row by row
                expected << QString::number(words.value(10 + i % 3 * 3 + i / 3).toDouble(), 'f', 4);
                cells << table->item(i / 3, i % 3)->text();
            }
            QCOMPARE(in<QLabel>(result, "label_deviceId")->text(), QString("10232"));
            in(result, "pushButton_ok")->click();
        });
        in(dialog, "pushButton_calibrate")->click();
        in(dialog, "pushButton_exit")->click();
    });
    host->action("&Hybrid Body")->trigger();
    QCOMPARE(cells, expected);
    QCOMPARE(ask(handeye), "norvane set " + handeye + " standard b02");
}

void tst_PluginEndToEnd::filterPresetAndPredictionKept()
{
    // The filter dialog as the body calibration opens it, on body 03 ("head",
    // the medium prediction preset), then on the wands, of which there is no 03.
    FilterDialog dialog(host->link(), host->window(), host->window()->backend_versions());
    const auto open = [&](int type, const std::function<void()>& steps) {
        ModalDialogHelper::when_active("FilterDialog", [&](QWidget*) {
            steps();
            in<QAbstractButton>(&dialog, "pushButton_exit")->click();
        });
        QCOMPARE(dialog.update_and_exec(type, 2), int(QDialog::Accepted));
    };
    open(0, [&] {
        auto* presets = in<QComboBox>(&dialog, "comboBox_preset");
        QCOMPARE(presets->currentText(), "medium prediction");
        presets->setCurrentIndex(presets->findText("custom"));
        in<QSpinBox>(&dialog, "spinBox_prediction")->setValue(40);
        QTest::keyClick(in<QSpinBox>(&dialog, "spinBox_prediction"), Qt::Key_Return);
        ModalDialogHelper::when_active("FilterHelp", [&](QWidget* box) {
            QCOMPARE(box->windowTitle(), "Help Filter");
            in<QAbstractButton>(box, "pushButton_exit")->click();
        });
        in<QAbstractButton>(&dialog, "pushButton_help")->click();
    });
    open(1, [&] { QCOMPARE(in<QComboBox>(&dialog, "comboBox_body")->currentText(), "pointer (Wand body 01)"); });
    QCOMPARE(ask("body filter6d_preset standard b03") + ", " + ask("body filter6d_prediction standard b03"),
             "norvane set body filter6d_preset standard b03 preset6d_custom, "
             "norvane set body filter6d_prediction standard b03 0.04");
}

QTEST_MAIN(tst_PluginEndToEnd)
#include "tst_PluginEndToEnd.moc"
