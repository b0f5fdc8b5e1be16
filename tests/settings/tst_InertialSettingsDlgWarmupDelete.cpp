#include <QtTest>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "SettingsScript.h"
#include "SettingsTestCase.h"
#include "settings/InertialSettingsDlg.h"

using Dlg = InertialSettingsDlg;

namespace {

const QByteArray S1 = "NRV IMU9 'S0001'";   // row 2, on body 1
const QByteArray S2 = "NRV IMU9 'S0002'";   // row 1, on no body

} // namespace

// Warm-up, deleting a sensor and renaming its body on the Settings page.
class tst_InertialSettingsDlgWarmupDelete : public SettingsTestCase
{
    Q_OBJECT

private slots:
    void warmupStartsAndStops();
    void warmupFailures_data();
    void warmupFailures();
    void controllerEndsWarmup_data();
    void controllerEndsWarmup();
    void startWarmupSendsOnlyTheCommand();
    void deletion_data();
    void deletion();
    void deleteColumnOfOtherRows_data();
    void deleteColumnOfOtherRows();
    void nameEdit_data();
    void nameEdit();
    void deleteAssignment_data();
    void deleteAssignment();

private:
    struct Page
    {
        QString warmupText;
        QStringList enabled;   // of table, add, scan, frequency, mode
        QStringList timers;
    };
    static Page page(Dlg& dialog);
    static QTableWidget* table(Dlg& dialog) { return dialog.findChild<QTableWidget*>("tableWidget"); }
    static QPushButton* warmup(Dlg& dialog) { return dialog.findChild<QPushButton*>("pushButton_warmup"); }
    static void click_cell(Dlg& dialog, int row, int column);
    QList<QByteArray> changes() const;
};

tst_InertialSettingsDlgWarmupDelete::Page tst_InertialSettingsDlgWarmupDelete::page(Dlg& dialog)
{
    Page p;
    p.warmupText = warmup(dialog)->text();
    const QList<QPair<QString, QWidget*>> widgets{
        {"table", table(dialog)},
        {"add", dialog.findChild<QWidget*>("pushButton_addSensor")},
        {"scan", dialog.findChild<QWidget*>("pushButton_scanAvailableChannels")},
        {"frequency", dialog.findChild<QWidget*>("doubleSpinBox_frequency")},
        {"mode", dialog.findChild<QWidget*>("comboBox_mode")}};
    for (const auto& widget : widgets)
        if (widget.second->isEnabled())
            p.enabled << widget.first;
    for (const char* name : {"notPresentTimer", "sensorDataTimer"})
        if (dialog.findChild<QTimer*>(name)->isActive())
            p.timers << name;
    return p;
}

void tst_InertialSettingsDlgWarmupDelete::click_cell(Dlg& dialog, int row, int column)
{
    QTableWidget* t = table(dialog);
    QTableWidgetItem* item = t->item(row, column);
    QVERIFY(item);
    t->scrollToItem(item);
    QTest::mouseClick(t->viewport(), Qt::LeftButton, Qt::NoModifier, t->visualItemRect(item).center());
}

QList<QByteArray> tst_InertialSettingsDlgWarmupDelete::changes() const
{
    return fake->lines(FakeController::SetValue) + fake->lines(FakeController::SendCommand);
}

const QStringList Everything{"table", "add", "scan", "frequency", "mode"};

void tst_InertialSettingsDlgWarmupDelete::warmupStartsAndStops()
{
    SettingsScript::typical().install(*fake);
    fake->set_stateful(true);
    Dlg dialog(fake, nullptr, &versions);
    Page before;
    Page running;
    Page after;
    QList<QByteArray> started;
    QList<QByteArray> stopped;
    QList<FakeController::Call> calls;
    SettingsScript::open(dialog, [&] {
        before = page(dialog);
        fake->clear_log();
        warmup(dialog)->click();
        running = page(dialog);
        started = fake->lines();
        calls = fake->calls();
        fake->clear_log();
        warmup(dialog)->click();
        stopped = changes();
        after = page(dialog);
    });

    QCOMPARE(before.warmupText, QString("Warmup start"));
    QCOMPARE(before.enabled, Everything);
    QCOMPARE(before.timers, QStringList{"notPresentTimer"});

    QCOMPARE(started.value(0), QByteArray("inertial warmup yes"));
    QCOMPARE(calls.value(1).timeout_ms, 10000);
    QCOMPARE(calls.value(1).wait_separately, false);
    QCOMPARE(calls.value(1).timeout_flag, true);
    // The rows are read at once, not two seconds later.
    QVERIFY(started.contains("inertial sensor_temperature " + S1));
    QCOMPARE(running.warmupText, QString("Warmup stop"));
    QCOMPARE(running.enabled, QStringList());
    QCOMPARE(running.timers, QStringList{"sensorDataTimer"});

    QCOMPARE(stopped, QList<QByteArray>{"inertial warmup no"});
    QCOMPARE(after.warmupText, QString("Warmup start"));
    QCOMPARE(after.enabled, Everything);
    QCOMPARE(after.timers, QStringList{"notPresentTimer"});
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialSettingsDlgWarmupDelete::warmupFailures_data()
{
    QTest::addColumn<QByteArray>("running");   // at opening
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("text");

    QTest::newRow("start refused") << QByteArray("no") << QByteArray("inertial warmup yes")
                                   << "Could not start warmup of sensors" << "Warmup start";
    QTest::newRow("stop refused") << QByteArray("yes") << QByteArray("inertial warmup no")
                                  << "Could not stop warmup of sensors" << "Warmup stop";
}

void tst_InertialSettingsDlgWarmupDelete::warmupFailures()
{
    QFETCH(QByteArray, running);
    QFETCH(QByteArray, command);
    QFETCH(QString, message);
    QFETCH(QString, text);

    SettingsScript script = SettingsScript::typical();
    script.warmup = running;
    script.install(*fake);
    fake->fail(command);
    Dlg dialog(fake, nullptr, &versions);
    Page before;
    Page after;
    QList<QByteArray> sent;
    SettingsScript::open(dialog, [&] {
        before = page(dialog);
        fake->clear_log();
        warmup(dialog)->click();
        sent = fake->lines();
        after = page(dialog);
    });
    // The page stays as it was.
    QCOMPARE(sent, QList<QByteArray>{command});
    QCOMPARE(fake->message_texts(), QStringList{message});
    QCOMPARE(after.warmupText, text);
    QCOMPARE(after.enabled, before.enabled);
    QCOMPARE(after.timers, before.timers);
}

void tst_InertialSettingsDlgWarmupDelete::controllerEndsWarmup_data()
{
    QTest::addColumn<bool>("transceivers");
    QTest::addColumn<QStringList>("enabled");

    QTest::newRow("with transceivers the scan comes back") << true << Everything;
    QTest::newRow("without one the scan stays off")
        << false << QStringList{"table", "add", "frequency", "mode"};
}

void tst_InertialSettingsDlgWarmupDelete::controllerEndsWarmup()
{
    QFETCH(bool, transceivers);
    QFETCH(QStringList, enabled);

    SettingsScript script = SettingsScript::typical();
    if (!transceivers) {
        script.transceivers.clear();
        for (SettingsScript::Sensor& sensor : script.sensors)
            sensor.transceiver = "none";
    }
    script.install(*fake);
    fake->set_stateful(true);
    Dlg dialog(fake, nullptr, &versions);
    Page running;
    Page ended;
    QList<QByteArray> sent;
    SettingsScript::open(dialog, [&] {
        warmup(dialog)->click();
        running = page(dialog);
        // The controller stops warming up on its own; the next tick notices.
        fake->reply("inertial warmup", "no");
        fake->clear_log();
        dialog.set_temperature_and_battery_of_all_sensor();
        sent = changes();
        ended = page(dialog);
    });
    QCOMPARE(running.warmupText, QString("Warmup stop"));
    QCOMPARE(sent, QList<QByteArray>());
    QCOMPARE(ended.warmupText, QString("Warmup start"));
    QCOMPARE(ended.enabled, enabled);
    QVERIFY(!ended.timers.contains("sensorDataTimer"));
}

void tst_InertialSettingsDlgWarmupDelete::startWarmupSendsOnlyTheCommand()
{
    SettingsScript::typical().install(*fake);
    fake->accept("inertial warmup yes");
    fake->fail("inertial warmup no");
    Dlg dialog(fake, nullptr, &versions);
    Page before;
    Page after;
    int started = -1;
    int stopped = -1;
    SettingsScript::open(dialog, [&] {
        before = page(dialog);
        fake->clear_log();
        started = dialog.start_warmup(true);
        stopped = dialog.start_warmup(false);
        after = page(dialog);
    });
    QCOMPARE(started, 0);
    QVERIFY(stopped != 0);
    QCOMPARE(fake->lines(), (QList<QByteArray>{"inertial warmup yes", "inertial warmup no"}));
    QCOMPARE(fake->message_texts(), QStringList{"Could not stop warmup of sensors"});
    QCOMPARE(after.warmupText, before.warmupText);
    QCOMPARE(after.timers, before.timers);
}

void tst_InertialSettingsDlgWarmupDelete::deletion_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QByteArray>("reply");   // of the delete command
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<bool>("rebuilt");

    const QByteArray delete1 = "norvane inertial delete_sensor NRV IMU9 'S0001'";
    const QByteArray delete2 = "norvane inertial delete_sensor NRV IMU9 'S0002'";
    QTest::newRow("answered No: nothing sent")
        << 1 << int(QMessageBox::No) << QByteArray("norvane ok") << QList<QByteArray>() << QStringList()
        << false;
    QTest::newRow("unassigned: only the delete command")
        << 1 << int(QMessageBox::Yes) << QByteArray("norvane ok") << QList<QByteArray>{delete2}
        << QStringList() << true;
    QTest::newRow("assigned: the body is detached first")
        << 2 << int(QMessageBox::Yes) << QByteArray("norvane ok")
        << QList<QByteArray>{"body inertial_sensor standard b01 none", "standard number_of_bodies 6", delete1}
        << QStringList() << true;
    QTest::newRow("refused: message, table kept")
        << 1 << int(QMessageBox::Yes) << QByteArray("norvane error") << QList<QByteArray>{delete2}
        << QStringList{"Could not delete sensor NRV IMU9 'S0002'"} << false;
}

void tst_InertialSettingsDlgWarmupDelete::deletion()
{
    QFETCH(int, row);
    QFETCH(int, answer);
    QFETCH(QByteArray, reply);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QStringList, messages);
    QFETCH(bool, rebuilt);

    SettingsScript::typical().install(*fake);
    fake->reply("standard number_of_bodies", "6");
    fake->accept("body inertial_sensor standard b01 none");
    fake->accept("standard number_of_bodies 6");
    fake->reply("norvane inertial delete_sensor NRV IMU9 'S0001'", reply);
    fake->reply("norvane inertial delete_sensor NRV IMU9 'S0002'", reply);
    Dlg dialog(fake, nullptr, &versions);
    QString title;
    QString question;
    QMessageBox::StandardButton fallback = QMessageBox::NoButton;
    QList<QByteArray> lines;
    SettingsScript::open(dialog, [&] {
        fake->clear_log();
        ModalDialogHelper::when_active("QMessageBox", [&](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            title = box->windowTitle();
            question = box->text();
            fallback = box->standardButton(box->defaultButton());
            ModalDialogHelper::press(box, answer);
        });
        click_cell(dialog, row, Dlg::ColDelete);
        lines = fake->lines();
    });

    QCOMPARE(title, QString("Warning"));
    QCOMPARE(question, QString("Delete sensor %1?").arg(QString(row == 1 ? S2 : S1)));
    QCOMPARE(fallback, QMessageBox::No);
    QCOMPARE(changes(), sent);
    QCOMPARE(fake->message_texts(), messages);
    // A deleted sensor leaves the table and the page's wake-up choice.
    QCOMPARE(lines.contains("inertial number_of_transceivers"), rebuilt);
    if (answer == QMessageBox::No)
        QCOMPARE(lines, QList<QByteArray>());
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
}

void tst_InertialSettingsDlgWarmupDelete::deleteColumnOfOtherRows_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("transceiver row") << 0;
    QTest::newRow("cable connected row") << 6;
}

void tst_InertialSettingsDlgWarmupDelete::deleteColumnOfOtherRows()
{
    QFETCH(int, row);
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QList<QByteArray> lines;
    SettingsScript::open(dialog, [&] {
        fake->clear_log();
        click_cell(dialog, row, Dlg::ColDelete);
        lines = fake->lines();
    });
    // No question asked (the cleanup finds no box), nothing sent.
    QCOMPARE(lines, QList<QByteArray>());
}

void tst_InertialSettingsDlgWarmupDelete::nameEdit_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("clicked");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("messages");

    const QByteArray rename = "body desc standard b01 \"Left hand\"";
    QTest::newRow("body none: nothing sent")
        << 1 << true << true << QList<QByteArray>() << "Left hand" << QStringList();
    QTest::newRow("renamed body") << 2 << true << true << QList<QByteArray>{rename} << "Left hand"
                                  << QStringList();
    QTest::newRow("refused: old name back")
        << 2 << true << false << QList<QByteArray>{rename} << "Body 01"
        << QStringList{"Error: Unable to set body description standard b01"};
    QTest::newRow("not clicked: a fill, not an edit")
        << 2 << false << true << QList<QByteArray>() << "Left hand" << QStringList();
}

void tst_InertialSettingsDlgWarmupDelete::nameEdit()
{
    QFETCH(int, row);
    QFETCH(bool, clicked);
    QFETCH(bool, accepted);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QString, shown);
    QFETCH(QStringList, messages);

    SettingsScript::typical().install(*fake);
    const QByteArray rename = "body desc standard b01 \"Left hand\"";
    if (accepted)
        fake->accept(rename);
    else
        fake->fail(rename);
    Dlg dialog(fake, nullptr, &versions);
    QString text;
    bool editable = false;
    SettingsScript::open(dialog, [&] {
        fake->clear_log();
        QTableWidgetItem* name = table(dialog)->item(row, Dlg::ColName);
        editable = name->flags() & Qt::ItemIsEditable;
        if (clicked)
            emit table(dialog)->cellClicked(row, Dlg::ColName);
        name->setText("Left hand");
        text = name->text();
    });
    QCOMPARE(editable, row == 2);
    QCOMPARE(fake->lines(), sent);
    QCOMPARE(text, shown);
    QCOMPARE(fake->message_texts(), messages);
}

void tst_InertialSettingsDlgWarmupDelete::deleteAssignment_data()
{
    QTest::addColumn<QByteArray>("body");   // empty: the query fails
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<QStringList>("messages");

    const QByteArray detach = "body inertial_sensor standard b03 none";
    QTest::newRow("assigned: detached") << QByteArray("standard b03") << true << QList<QByteArray>{detach}
                                        << QStringList();
    QTest::newRow("unassigned: nothing") << QByteArray("none") << true << QList<QByteArray>() << QStringList();
    QTest::newRow("unknown assignment") << QByteArray() << true << QList<QByteArray>()
                                        << QStringList{"Error: Unable to get assignment of sensor"};
    QTest::newRow("detach refused") << QByteArray("standard b03") << false << QList<QByteArray>{detach}
                                    << QStringList{"Error: Unable to delete assignment of sensor"};
}

void tst_InertialSettingsDlgWarmupDelete::deleteAssignment()
{
    QFETCH(QByteArray, body);
    QFETCH(bool, accepted);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QStringList, messages);

    const QByteArray query = "inertial body_of_sensor " + S2;
    if (body.isEmpty())
        fake->fail(query);
    else
        fake->reply(query, body);
    const QByteArray detach = "body inertial_sensor standard b03 none";
    if (accepted)
        fake->accept(detach);
    else
        fake->fail(detach);
    Dlg dialog(fake, nullptr, &versions);
    dialog.deleteAssignmentIfSensorIsAlreadyAssigned(S2.constData());
    QCOMPARE(fake->lines(FakeController::SetValue), sent);
    QCOMPARE(fake->message_texts(), messages);
}

QTEST_MAIN(tst_InertialSettingsDlgWarmupDelete)
#include "tst_InertialSettingsDlgWarmupDelete.moc"
