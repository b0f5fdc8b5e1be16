#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTableWidget>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "host/InProcessLink.h"
#include "host/MainWindow.h"
#include "simulator/SimModel.h"
#include "simulator/SimulatedController.h"

// The add sensor dialog of the loaded plug-in, in norvane-host, on the
// simulator's default scenario: four sensors wait to be found, two of them
// on the default channels 35 and 55, one on channel 40 and one on cable.
class tst_AddSensorEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void defaultChannelsFindWaitingSensors();
    void applyPutsThemOnBodies();
    void usbScanFindsCableSensor();

private:
    // Opens the plug-in's dialog, scans in `mode`, runs `then` and leaves.
    // `ticking` false lets the dialog's own 100 ms timer run the scan.
    void scan(HostHarness& host, const QString& mode, const std::function<void(QDialog*)>& then,
              bool ticking = true);
    static QStringList column(QDialog* dialog, int c);
    // Device IDs of the rows whose Accept cell can be ticked.
    static QStringList acceptable(QDialog* dialog);
};

namespace {

HostHarness::Options with_plugin()
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    return options;
}

// The plug-in's own instance, not the one the test links: found by name.
QDialog* add_sensor_dialog(HostHarness& host)
{
    for (QDialog* dialog : host.window()->findChildren<QDialog*>())
        if (dialog->inherits("AddInertialSensorDlg"))
            return dialog;
    return nullptr;
}

int body_of(const SimModel& model, const QByteArray& serial)
{
    for (int b = 0; b < model.bodies.size(); ++b)
        if (model.bodies.at(b).sensor.contains("'" + serial + "'"))
            return b + 1;
    return 0;
}

bool paired(const SimModel& model, const QByteArray& serial)
{
    for (const SimModel::Sensor& sensor : model.sensors)
        if (sensor.serial == serial)
            return true;
    return false;
}

} // namespace

void tst_AddSensorEndToEnd::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

QStringList tst_AddSensorEndToEnd::column(QDialog* dialog, int c)
{
    QStringList texts;
    auto* table = dialog->findChild<QTableWidget*>("tableWidget");
    for (int row = 0; row < table->rowCount(); ++row)
        texts << table->item(row, c)->text();
    return texts;
}

QStringList tst_AddSensorEndToEnd::acceptable(QDialog* dialog)
{
    QStringList ids;
    auto* table = dialog->findChild<QTableWidget*>("tableWidget");
    for (int row = 0; row < table->rowCount(); ++row)
        if (table->item(row, 4)->flags() & Qt::ItemIsUserCheckable)
            ids << table->item(row, 0)->text();
    return ids;
}

void tst_AddSensorEndToEnd::scan(HostHarness& host, const QString& mode,
                                 const std::function<void(QDialog*)>& then, bool ticking)
{
    QDialog* dialog = add_sensor_dialog(host);
    QVERIFY(dialog);
    // A failed check leaves `steps` early, never the dialog open.
    auto steps = [&] {
        auto* modes = dialog->findChild<QComboBox*>("comboBox_scanMode");
        auto* button = dialog->findChild<QPushButton*>("pushButton_scan");
        modes->setCurrentIndex(modes->findText(mode));
        QCOMPARE(modes->currentText(), mode);
        button->click();
        // One channel per tick; the test ticks instead of waiting 100 ms.
        for (int ticks = 0; ticking && !button->isEnabled() && ticks < 100; ++ticks)
            QMetaObject::invokeMethod(dialog, "scan_channels", Qt::DirectConnection);
        QTRY_VERIFY_WITH_TIMEOUT(button->isEnabled(), 5000);
        then(dialog);
    };
    ModalDialogHelper::when_active("AddInertialSensorDlg", [&](QWidget*) {
        steps();
        dialog->hide();
    });
    QMetaObject::invokeMethod(dialog, "update_and_exec", Qt::DirectConnection);
    QVERIFY(!dialog->isVisible());
}

void tst_AddSensorEndToEnd::defaultChannelsFindWaitingSensors()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    const int start_messages = host.messages().size();   // the host's own start-up notes
    scan(host, "default channels", [&](QDialog* dialog) {
        // Paired sensors answer the scan too; only the waiting ones can be accepted.
        QCOMPARE(column(dialog, 0), QStringList({"10240", "10231", "10232", "10241", "10234"}));
        QCOMPARE(column(dialog, 3), QStringList({"35", "35", "35", "55", "55"}));
        QCOMPARE(acceptable(dialog), QStringList({"10240", "10241"}));
    }, false);
    QCOMPARE(host.messages().mid(start_messages), QStringList());
}

void tst_AddSensorEndToEnd::applyPutsThemOnBodies()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    const int start_messages = host.messages().size();   // the host's own start-up notes
    const SimModel& model = host.simulator()->model();
    QCOMPARE(model.body_count, 6);
    scan(host, "default channels", [&](QDialog* dialog) {
        dialog->findChild<QCheckBox*>("checkBox_acceptAll")->setChecked(true);
        QStringList exchanges;
        const QMetaObject::Connection tracing = QObject::connect(
            host.link(), &ControllerLink::traced,
            [&](const QString& line, bool) { exchanges << line; });
        dialog->findChild<QPushButton*>("pushButton_apply")->click();
        QObject::disconnect(tracing);
        // 1 maximum, then per sensor add, count, storage, two queries per
        // body searched and the assignment: 16 for body 6, 19 for body 7
        // with the count raised. The settings table's rebuild follows.
        int applying = 0;
        while (applying < exchanges.size()
               && !exchanges.at(applying).contains(" inertial number_of_transceivers "))
            ++applying;
        QCOMPARE(applying, 36);
        QVERIFY(applying < exchanges.size());
        QVERIFY(!dialog->findChild<QPushButton*>("pushButton_apply")->isEnabled());
    });

    QVERIFY(paired(model, "10240"));
    QVERIFY(paired(model, "10241"));
    // Body 6 ("prop") is the only free one; the second sensor gets a new body.
    QCOMPARE(body_of(model, "10240"), 6);
    QCOMPARE(body_of(model, "10241"), 7);
    QCOMPARE(model.body_count, 7);
    QCOMPARE(host.messages().mid(start_messages), QStringList());
}

void tst_AddSensorEndToEnd::usbScanFindsCableSensor()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    const int start_messages = host.messages().size();   // the host's own start-up notes
    scan(host, "USB", [&](QDialog* dialog) {
        QCOMPARE(acceptable(dialog), QStringList({"10243"}));
        QVERIFY(column(dialog, 0).contains("10235"));   // the paired cable sensor
        QCOMPARE(column(dialog, 3).filter("USB").size(), column(dialog, 3).size());
    });
    QCOMPARE(host.messages().mid(start_messages), QStringList());
}

QTEST_MAIN(tst_AddSensorEndToEnd)
#include "tst_AddSensorEndToEnd.moc"
