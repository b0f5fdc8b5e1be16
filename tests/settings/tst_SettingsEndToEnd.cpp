#include <QtTest>

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>

#include <functional>

#include "HostHarness.h"
#include "ModalDialogHelper.h"
#include "host/MainWindow.h"
#include "simulator/SimulatedController.h"

// The settings dialog of the loaded plug-in, opened from the host's menu, on
// the simulator's default scenario: transceivers 70011 and 70012, radio
// sensors 10231 and 10232 on the first, 10233 (asleep, tap mode) and 10234
// on the second, and 10235 on cable.
class tst_SettingsEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void listsTransceiversAndSensors();
    void sensorModeReachesTheController();
    void pageModeReachesEveryReachableSensor();
    void movedTransceiverTakesItsSensors();
    void deletedSensorIsGone();

private:
    // Opens "In&ertial Sensor", runs `inside` on the dialog, then leaves by
    // its exit button.
    static void open_settings(HostHarness& host, const std::function<void(QDialog*)>& inside);
    static QStringList device_ids(QDialog* dialog);
    static int row_of(QDialog* dialog, const QString& device_id);
    static QByteArray ask(HostHarness& host, const QByteArray& path);
    static void choose(QComboBox* combo, const QString& text);
};

namespace {

HostHarness::Options with_plugin()
{
    HostHarness::Options options;
    options.plugin_file = QStringLiteral(PLUGIN_FILE);
    return options;
}

} // namespace

void tst_SettingsEndToEnd::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_SettingsEndToEnd::open_settings(HostHarness& host, const std::function<void(QDialog*)>& inside)
{
    QAction* entry = host.action("In&ertial Sensor");
    QVERIFY(entry);
    // The plug-in's own class, not the one this test links: found by name.
    ModalDialogHelper::when_active("InertialSettingsDlg", [&](QWidget* w) {
        auto* dialog = qobject_cast<QDialog*>(w);
        inside(dialog);
        dialog->findChild<QPushButton*>("pushButton_exit")->click();
    });
    entry->trigger();
}

QStringList tst_SettingsEndToEnd::device_ids(QDialog* dialog)
{
    QStringList ids;
    auto* table = dialog->findChild<QTableWidget*>("tableWidget");
    for (int row = 0; row < table->rowCount(); ++row)
        ids << table->item(row, 0)->text();
    return ids;
}

int tst_SettingsEndToEnd::row_of(QDialog* dialog, const QString& device_id)
{
    return device_ids(dialog).indexOf(device_id);
}

QByteArray tst_SettingsEndToEnd::ask(HostHarness& host, const QByteArray& path)
{
    const QByteArray reply = host.simulator()->handle("norvane get " + path).line;
    const QByteArray prefix = "norvane set " + path + ' ';
    return reply.startsWith(prefix) ? reply.mid(prefix.size()) : reply;
}

void tst_SettingsEndToEnd::choose(QComboBox* combo, const QString& text)
{
    // Step onto the entry with the arrow keys, as a user does; that
    // activates it.
    const int index = combo->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    combo->setCurrentIndex(index > 0 ? index - 1 : 1);
    QTest::keyClick(combo, index > 0 ? Qt::Key_Down : Qt::Key_Up);
}

void tst_SettingsEndToEnd::listsTransceiversAndSensors()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));

    const QStringList startup = host.messages();
    QStringList ids;
    QString asleep;
    QString cable;
    long trips = 0;
    const long before = host.round_trips();
    open_settings(host, [&](QDialog* dialog) {
        trips = host.round_trips() - before;
        ids = device_ids(dialog);
        auto* table = dialog->findChild<QTableWidget*>("tableWidget");
        asleep = table->item(row_of(dialog, "10233"), 8)->text();
        cable = table->item(row_of(dialog, "10235"), 5)->text();
    });
    qInfo("opening the settings dialog on the default scenario: %ld round trips", trips);

    QCOMPARE(ids, (QStringList{"70011", "10232", "10231", "70012", "10234", "10233",
                               "cable connected:", "10235"}));
    QCOMPARE(asleep, QString("not present"));
    QCOMPARE(cable, QString("USB"));
    // The host's own start-up lines only: no error from the dialog.
    QCOMPARE(host.messages(), startup);
}

void tst_SettingsEndToEnd::sensorModeReachesTheController()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    QCOMPARE(ask(host, "inertial sensor_wakeup_mode NRV IMU3 '10232'"), QByteArray("'wm_radio'"));
    const QStringList startup = host.messages();

    QString shown;
    open_settings(host, [&](QDialog* dialog) {
        auto* table = dialog->findChild<QTableWidget*>("tableWidget");
        auto* combo = qobject_cast<QComboBox*>(table->cellWidget(row_of(dialog, "10232"), 6));
        QVERIFY(combo);
        choose(combo, "wake on tap");
        shown = combo->currentText();
    });

    QCOMPARE(shown, QString("wake on tap"));
    QCOMPARE(ask(host, "inertial sensor_wakeup_mode NRV IMU3 '10232'"), QByteArray("'wm_tap'"));
    QCOMPARE(ask(host, "inertial sensor_sleep_timeout NRV IMU3 '10232'"), QByteArray("10"));
    // Its neighbour keeps its own mode.
    QCOMPARE(ask(host, "inertial sensor_wakeup_mode NRV IMU3 '10231'"), QByteArray("'wm_radio'"));
    // The host's own start-up lines only: no error from the dialog.
    QCOMPARE(host.messages(), startup);
}

void tst_SettingsEndToEnd::pageModeReachesEveryReachableSensor()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));

    QString before;
    QString after;
    open_settings(host, [&](QDialog* dialog) {
        auto* page = dialog->findChild<QComboBox*>("comboBox_mode");
        before = page->currentText();
        choose(page, "wake on tap");
        after = page->currentText();
    });

    QCOMPARE(before, QString("(mixed)"));
    for (const char* serial : {"10231", "10232", "10234"})
        QCOMPARE(ask(host, QByteArray("inertial sensor_wakeup_mode NRV IMU3 '") + serial + "'"),
                 QByteArray("'wm_tap'"));
    // The cable sensor cannot wake on tap; the sleeping one was already in tap mode.
    QCOMPARE(ask(host, "inertial sensor_wakeup_mode NRV IMU3C '10235'"), QByteArray("'wm_usb'"));
    QCOMPARE(after, QString("(mixed)"));
    QVERIFY2(host.messages().join('\n').contains("Error: Unable to reach sensor NRV IMU3 '10233'"),
             qPrintable(host.messages().join('\n')));
}

void tst_SettingsEndToEnd::movedTransceiverTakesItsSensors()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    const QStringList startup = host.messages();

    QStringList before;
    QStringList after;
    QString shown;
    open_settings(host, [&](QDialog* dialog) {
        before = device_ids(dialog);
        auto* table = dialog->findChild<QTableWidget*>("tableWidget");
        auto* combo = qobject_cast<QComboBox*>(table->cellWidget(row_of(dialog, "70011"), 5));
        QVERIFY(combo);
        // Channel 40 in the grid of channels 1 to 90, ten to a row.
        auto* grid = qobject_cast<QTableWidget*>(combo->view());
        QVERIFY(grid);
        combo->showPopup();
        grid->setCurrentCell(3, 9);
        QTest::keyClick(grid, Qt::Key_Return);
        QTRY_COMPARE(ask(host, "inertial transceiver_radio_channel NRV RD2 '70011'"), QByteArray("40"));
        QCoreApplication::processEvents();
        after = device_ids(dialog);
        auto* moved = qobject_cast<QComboBox*>(table->cellWidget(row_of(dialog, "70011"), 5));
        shown = moved ? moved->currentText() : QString();
    });

    for (const char* serial : {"10231", "10232"})
        QCOMPARE(ask(host, QByteArray("inertial sensor_radio_channel NRV IMU3 '") + serial + "'"),
                 QByteArray("40"));
    // The other transceiver's sensors stay where they were.
    QCOMPARE(ask(host, "inertial sensor_radio_channel NRV IMU3 '10234'"), QByteArray("55"));
    // Still reached through their transceiver: listed under it as before.
    QCOMPARE(after, before);
    QCOMPARE(shown, QString("40"));
    QCOMPARE(host.messages(), startup);
}

void tst_SettingsEndToEnd::deletedSensorIsGone()
{
    HostHarness host(with_plugin());
    QVERIFY2(host.ok(), qPrintable(host.error()));
    QCOMPARE(ask(host, "body inertial_sensor standard b02"), QByteArray("NRV IMU3 '10232'"));
    const QStringList startup = host.messages();

    QString question;
    QStringList after;
    open_settings(host, [&](QDialog* dialog) {
        auto* table = dialog->findChild<QTableWidget*>("tableWidget");
        QTableWidgetItem* remove = table->item(row_of(dialog, "10232"), 11);
        QVERIFY(remove);
        ModalDialogHelper::when_active("QMessageBox", [&](QWidget* w) {
            question = qobject_cast<QMessageBox*>(w)->text();
            ModalDialogHelper::press(w, QMessageBox::Yes);
        });
        table->scrollToItem(remove);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                          table->visualItemRect(remove).center());
        after = device_ids(dialog);
    });

    QCOMPARE(question, QString("Delete sensor NRV IMU3 '10232'?"));
    QCOMPARE(after, (QStringList{"70011", "10231", "70012", "10234", "10233", "cable connected:", "10235"}));
    QCOMPARE(ask(host, "inertial number_of_sensors"), QByteArray("4"));
    QCOMPARE(ask(host, "body inertial_sensor standard b02"), QByteArray("none"));
    QCOMPARE(ask(host, "standard number_of_bodies"), QByteArray("6"));
    QCOMPARE(host.messages(), startup);
}

QTEST_MAIN(tst_SettingsEndToEnd)
#include "tst_SettingsEndToEnd.moc"
