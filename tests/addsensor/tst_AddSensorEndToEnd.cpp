#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTableWidget>

#include <functional>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "host/MainWindow.h"
#include "simulator/SimModel.h"
#include "simulator/SimulatedController.h"

// The add sensor dialog of the loaded plug-in, in norvane-host, on the
// simulator's default scenario: four sensors wait to be found, two of them
// on the default channels 35 and 55, one on channel 40 and one on cable;
// body 6 is the only free one.
class tst_AddSensorEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void foundSensorsGoOnBodies();

private:
    // Scans in `mode`, one channel a tick, runs `then`, leaves.
    void scan(const QString& mode, const std::function<void(QDialog*)>& then);
    // "id channel" of every row, "+" after those that can be accepted.
    static QStringList found(QDialog* dialog);

    std::unique_ptr<HostHarness> host;
};

void tst_AddSensorEndToEnd::cleanup()
{
    host.reset();
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_AddSensorEndToEnd::scan(const QString& mode, const std::function<void(QDialog*)>& then)
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    host = std::make_unique<HostHarness>(options);
    QVERIFY2(host->ok(), qPrintable(host->error()));
    const QStringList startup = host->messages();
    // The plug-in's own instance, not one this test links: found by name.
    QDialog* dialog = nullptr;
    for (QDialog* d : host->window()->findChildren<QDialog*>())
        dialog = d->inherits("AddInertialSensorDlg") ? d : dialog;
    QVERIFY(dialog);
    ModalDialogHelper::when_active("AddInertialSensorDlg", [&](QWidget*) {
        auto* modes = dialog->findChild<QComboBox*>("comboBox_scanMode");
        modes->setCurrentIndex(modes->findText(mode));
        auto* button = dialog->findChild<QPushButton*>("pushButton_scan");
        button->click();
        for (int tick = 0; tick < 10 && !button->isEnabled(); ++tick)
            QMetaObject::invokeMethod(dialog, "scan_channels");
        then(dialog);
        dialog->hide();
    });
    QMetaObject::invokeMethod(dialog, "update_and_exec");
    QCOMPARE(host->messages(), startup);
}

QStringList tst_AddSensorEndToEnd::found(QDialog* dialog)
{
    QStringList rows;
    auto* table = dialog->findChild<QTableWidget*>("tableWidget");
    for (int row = 0; row < table->rowCount(); ++row)
        rows << table->item(row, 0)->text() + ' ' + table->item(row, 3)->text()
                    + (table->item(row, 4)->flags() & Qt::ItemIsUserCheckable ? "+" : "");
    return rows;
}

void tst_AddSensorEndToEnd::foundSensorsGoOnBodies()
{
    QStringList before;
    QStringList after;
    scan("default channels", [&](QDialog* dialog) {
        before = found(dialog);
        dialog->findChild<QCheckBox*>("checkBox_acceptAll")->setChecked(true);
        dialog->findChild<QPushButton*>("pushButton_apply")->click();
        after = found(dialog);
    });
    // Paired sensors answer the scan too; only the waiting ones can be accepted.
    QCOMPARE(before, (QStringList{"10240 35+", "10231 35", "10232 35", "10241 55+", "10234 55"}));
    QCOMPARE(after, (QStringList{"10240 35", "10231 35", "10232 35", "10241 55", "10234 55"}));
    // Body 6 was the only free one; the second sensor got a new body.
    const SimModel& model = host->simulator()->model();
    QStringList bodies;
    for (const auto& body : model.bodies)
        bodies << body.sensor;
    QCOMPARE(bodies.mid(5, 2), (QStringList{"NRV IMU3 '10240'", "NRV IMU3 '10241'"}));
    QCOMPARE(model.body_count, 7);
    QCOMPARE(model.sensors.size(), 7);
}

QTEST_MAIN(tst_AddSensorEndToEnd)
#include "tst_AddSensorEndToEnd.moc"
