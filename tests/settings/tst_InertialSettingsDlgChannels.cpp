#include <QtTest>

#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "SettingsScript.h"
#include "SettingsTestCase.h"
#include "settings/ChannelComboBox.h"
#include "settings/InertialSettingsDlg.h"
#include "settings/SensorChannelCombo.h"

using Dlg = InertialSettingsDlg;

namespace {

const QByteArray First = "NRV Dongle 'T1001'";
const QByteArray Second = "NRV Dongle 'T1002'";
const QByteArray S1 = "NRV IMU9 'S0001'";
const QByteArray S2 = "NRV IMU9 'S0002'";

} // namespace

// Radio channels on the Settings page: the transceivers' grid combos, the
// sensors' channel combos, moving a transceiver with its sensors, and the
// channel scan with its busy marks.
class tst_InertialSettingsDlgChannels : public SettingsTestCase
{
    Q_OBJECT

private slots:
    void combosShowTheControllersChannels();
    void chosenCellMovesSensorsThenTransceiver();
    void sensorNotFollowing_data();
    void sensorNotFollowing();
    void sleepingTapSensorIsListedNotSkipped();
    void escapeGivesUpRetrying();
    void sensorComboMovesOneSensor();
    void scanMarksBusyChannels_data();
    void scanMarksBusyChannels();
    void scanFailures_data();
    void scanFailures();
    void missingSuggestionAsksForAScan();
    void absurdChannelCountIsBounded();

private:
    static QTableWidget* table(Dlg& dialog) { return dialog.findChild<QTableWidget*>("tableWidget"); }
    static ChannelComboBox* grid_combo(Dlg& dialog, int row)
    {
        return qobject_cast<ChannelComboBox*>(table(dialog)->cellWidget(row, Dlg::ColChannel));
    }
    static SensorChannelCombo* sensor_combo(Dlg& dialog, int row)
    {
        return qobject_cast<SensorChannelCombo*>(table(dialog)->cellWidget(row, Dlg::ColChannel));
    }
    static QStringList entries(QComboBox* combo);
    // The settings the controller received, in order.
    QList<QByteArray> settings() const { return fake->lines(FakeController::SetValue); }
    // Answers every line of moving the first transceiver to `channel`.
    void accept_move(const QByteArray& channel);
};

QStringList tst_InertialSettingsDlgChannels::entries(QComboBox* combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts << combo->itemText(i);
    return texts;
}

void tst_InertialSettingsDlgChannels::accept_move(const QByteArray& channel)
{
    for (const QByteArray& sensor : {S1, S2}) {
        fake->accept("inertial sensor_radio_channel " + sensor + ' ' + channel);
        fake->reply("inertial sensor_radio_channel " + sensor, channel);
    }
    fake->accept("inertial transceiver_radio_channel " + First + ' ' + channel);
    fake->reply("inertial transceiver_radio_channel " + First, channel);
}

void tst_InertialSettingsDlgChannels::combosShowTheControllersChannels()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);

    ChannelComboBox* first = grid_combo(dialog, 0);
    QVERIFY(first);
    QCOMPARE(first->transceiver(), QString(First));
    QCOMPARE(first->channel(), 12);
    // Limited to the channels the transceiver can use.
    QCOMPARE(first->minimumChannel(), 10);
    QCOMPARE(first->maximumChannel(), 20);
    QVERIFY(first->isUserAction());
    QCOMPARE(grid_combo(dialog, 3)->channel(), 20);

    // A radio sensor may go to any transceiver's channel; a cable sensor has none.
    SensorChannelCombo* sensor = sensor_combo(dialog, 1);
    QVERIFY(sensor);
    QCOMPARE(sensor->sensor(), QString(S2));
    QCOMPARE(entries(sensor), (QStringList{"12", "20"}));
    QCOMPARE(sensor->currentText(), QString("12"));
    QVERIFY(sensor->isUserAction());
    QVERIFY(!sensor_combo(dialog, 7));
    QCOMPARE(table(dialog)->item(7, Dlg::ColChannel)->text(), QString("USB"));
    // Filling the combos chose nothing.
    QCOMPARE(settings(), QList<QByteArray>());
}

void tst_InertialSettingsDlgChannels::chosenCellMovesSensorsThenTransceiver()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QList<QByteArray> sent;
    QList<FakeController::Call> calls;
    int shown = -1;
    QString sensorShows;
    SettingsScript::open(dialog, [&] {
        accept_move("16");
        fake->clear_log();
        // The user opens the grid and commits channel 16 (second row, sixth cell).
        ChannelComboBox* combo = grid_combo(dialog, 0);
        combo->showPopup();
        combo->table()->setCurrentCell(1, 5);
        QTest::keyClick(combo->table(), Qt::Key_Return);
        QTRY_VERIFY(fake->count("inertial transceiver_radio_channel " + First + " 16") == 1);
        sent = settings();
        calls = fake->calls();
        shown = grid_combo(dialog, 0)->channel();
        sensorShows = sensor_combo(dialog, 1)->currentText();
    });

    QCOMPARE(sent, (QList<QByteArray>{"inertial sensor_radio_channel " + S1 + " 16",
                                      "inertial sensor_radio_channel " + S2 + " 16",
                                      "inertial transceiver_radio_channel " + First + " 16"}));
    for (const FakeController::Call& call : calls) {
        if (call.operation != FakeController::SetValue)
            continue;
        QCOMPARE(call.wait_separately, false);
        QCOMPARE(call.timeout_ms, 10000);
        QCOMPARE(call.timeout_flag, true);
    }
    // Each move is checked against what the sensor then reports.
    QCOMPARE(fake->count("inertial sensor_radio_channel " + S1), 2);
    QCOMPARE(shown, 16);
    QCOMPARE(sensorShows, QString("16"));
    QCOMPARE(fake->message_texts(), QStringList());
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
}

void tst_InertialSettingsDlgChannels::sensorNotFollowing_data()
{
    QTest::addColumn<bool>("retry");
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<int>("boxes");

    const QByteArray move1 = "inertial sensor_radio_channel " + S1 + " 16";
    const QByteArray move2 = "inertial sensor_radio_channel " + S2 + " 16";
    const QByteArray moveT = "inertial transceiver_radio_channel " + First + " 16";
    QTest::newRow("Retry moves it") << true << QList<QByteArray>{move1, move2, move1, moveT} << 1;
    QTest::newRow("Cancel leaves it behind") << false << QList<QByteArray>{move1, move2, moveT} << 1;
}

void tst_InertialSettingsDlgChannels::sensorNotFollowing()
{
    QFETCH(bool, retry);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(int, boxes);

    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QString title;
    QString text;
    QList<QMessageBox::StandardButton> buttons;
    int asked = 0;
    QList<QByteArray> settingsSent;
    SettingsScript::open(dialog, [&] {
        accept_move("16");
        // The first sensor accepts the order but stays where it was; on
        // retry it follows.
        fake->replies("inertial sensor_radio_channel " + S1, {"12", "16"});
        fake->clear_log();
        ModalDialogHelper::when_active("QMessageBox", [&](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            ++asked;
            title = box->windowTitle();
            text = box->text();
            for (QAbstractButton* button : box->buttons())
                buttons << box->standardButton(button);
            if (retry)
                ModalDialogHelper::press(box, QMessageBox::Retry);
            else
                ModalDialogHelper::close(box);
        });
        dialog.change_channel_of_dongle(QString(First), 16);
        settingsSent = settings();
    });

    QCOMPARE(asked, boxes);
    QCOMPARE(title, QString("Changing Sensor Channel failed"));
    QCOMPARE(text, QString("There are several sensors not available:\n"
                           "\nSensor: NRV IMU9 'S0001', of body: Body 01"
                           "\n\nPress Retry if you want to try again to change the channel of the sensors."));
    QCOMPARE(buttons, QList<QMessageBox::StandardButton>{QMessageBox::Retry});
    // The transceiver moves either way, and always last.
    QCOMPARE(settingsSent, sent);
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialSettingsDlgChannels::sleepingTapSensorIsListedNotSkipped()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QString text;
    QList<QByteArray> settingsSent;
    SettingsScript::open(dialog, [&] {
        const QByteArray awake = "NRV IMU9 'S0003'";
        fake->accept("inertial sensor_radio_channel " + awake + " 16");
        fake->reply("inertial sensor_radio_channel " + awake, "16");
        fake->accept("inertial transceiver_radio_channel " + Second + " 16");
        fake->clear_log();
        ModalDialogHelper::when_active("QMessageBox", [&](QWidget* w) {
            text = qobject_cast<QMessageBox*>(w)->text();
            ModalDialogHelper::close(w);
        });
        dialog.change_channel_of_dongle(QString(Second), 16);
        settingsSent = settings();
    });

    // The sleeping sensor is not ordered at all, but the user hears of it.
    QCOMPARE(settingsSent, (QList<QByteArray>{"inertial sensor_radio_channel NRV IMU9 'S0003' 16",
                                              "inertial transceiver_radio_channel " + Second + " 16"}));
    QVERIFY2(text.contains("\nSensor: NRV IMU9 'S0005'\n"), qPrintable(text));
    QVERIFY(!text.contains("S0003"));
}

void tst_InertialSettingsDlgChannels::escapeGivesUpRetrying()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    int asked = 0;
    SettingsScript::open(dialog, [&] {
        accept_move("16");
        fake->reply("inertial sensor_radio_channel " + S1, "12");
        // Escape on the box: it carries Retry alone, yet the user must get out.
        ModalDialogHelper::when_active("QMessageBox", [&](QWidget* w) {
            ++asked;
            QTest::keyClick(w, Qt::Key_Escape);
        });
        dialog.change_channel_of_dongle(QString(First), 16);
    });
    QCOMPARE(asked, 1);
    QCOMPARE(fake->count("inertial transceiver_radio_channel " + First + " 16"), 1);
}

void tst_InertialSettingsDlgChannels::sensorComboMovesOneSensor()
{
    SettingsScript::typical().install(*fake);
    fake->set_stateful(true);
    Dlg dialog(fake, nullptr, &versions);
    QList<QByteArray> first;
    QList<QByteArray> again;
    QString shows;
    SettingsScript::open(dialog, [&] {
        fake->clear_log();
        SensorChannelCombo* combo = sensor_combo(dialog, 1);
        combo->setCurrentIndex(combo->findText("20"));
        first = settings();
        shows = sensor_combo(dialog, 1)->currentText();

        // The same channel once more: the controller already has it.
        fake->clear_log();
        fake->reply("inertial sensor_radio_channel " + S2, "12");
        SensorChannelCombo* rebuilt = sensor_combo(dialog, 1);
        rebuilt->setCurrentIndex(rebuilt->findText("12"));
        again = settings();
    });
    QCOMPARE(first, QList<QByteArray>{"inertial sensor_radio_channel " + S2 + " 20"});
    QCOMPARE(shows, QString("20"));
    QCOMPARE(again, QList<QByteArray>());
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialSettingsDlgChannels::scanMarksBusyChannels_data()
{
    QTest::addColumn<QByteArray>("activity");   // empty: the query fails
    QTest::addColumn<bool>("busy");

    QTest::newRow("fully occupied, exactly 1.0") << QByteArray("1.0") << true;
    QTest::newRow("not measured, -1.0") << QByteArray("-1.0") << true;
    QTest::newRow("unanswered query") << QByteArray() << true;
    QTest::newRow("half occupied, 0.5") << QByteArray("0.5") << false;
    QTest::newRow("nearly occupied, 0.99") << QByteArray("0.99") << false;
    QTest::newRow("quiet, 0.0") << QByteArray("0.0") << false;
}

void tst_InertialSettingsDlgChannels::scanMarksBusyChannels()
{
    QFETCH(QByteArray, activity);
    QFETCH(bool, busy);

    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QList<int> before;
    QList<int> after;
    QBrush background;
    QString format;
    int value = -1;
    int maximum = -1;
    FakeController::Call command{};
    SettingsScript::open(dialog, [&] {
        before = dialog.busy_channels(QString(First));
        const QByteArray line = "inertial transceiver_radio_channel_activity " + First + " 16";
        if (activity.isEmpty())
            fake->fail(line);
        else
            fake->reply(line, activity);
        fake->reply("norvane inertial scan_transceiver_radio_channels", "norvane ok");
        fake->clear_log();
        dialog.findChild<QPushButton*>("pushButton_scanAvailableChannels")->click();
        after = dialog.busy_channels(QString(First));
        ChannelComboBox* combo = grid_combo(dialog, 0);
        background = combo->table()->item(1, 5)->background();   // channel 16
        auto* bar = dialog.findChild<QProgressBar*>("progressBar");
        format = bar->format();
        value = bar->value();
        maximum = bar->maximum();
        for (const FakeController::Call& call : fake->calls())
            if (call.operation == FakeController::SendCommand)
                command = call;
    });

    QCOMPARE(before, QList<int>());
    QCOMPARE(after.contains(16), busy);
    QCOMPARE(after.size(), busy ? 1 : 0);
    QCOMPARE(background, QGuiApplication::palette().brush(busy ? QPalette::Disabled : QPalette::Active,
                                                          QPalette::Base));
    QCOMPARE(command.line, QByteArray("norvane inertial scan_transceiver_radio_channels"));
    QCOMPARE(command.wait_separately, false);
    QCOMPARE(command.timeout_ms, 10000);
    QCOMPARE(command.timeout_flag, true);
    // Both transceivers' five channels measured.
    QCOMPARE(format, QString("Scanning available channels %p%"));
    QCOMPARE(maximum, 10);
    QCOMPARE(value, 10);
    QCOMPARE(fake->message_texts(),
             activity.isEmpty() ? QStringList{"Could not get activity of dongle: " + QString(First)}
                                : QStringList());
}

void tst_InertialSettingsDlgChannels::scanFailures_data()
{
    QTest::addColumn<bool>("sent");
    QTest::addColumn<QStringList>("messages");

    QTest::newRow("command not sent") << false << QStringList{"Error: Unable to execute scan transceiver channel"};
    QTest::newRow("command refused") << true << QStringList();
}

void tst_InertialSettingsDlgChannels::scanFailures()
{
    QFETCH(bool, sent);
    QFETCH(QStringList, messages);

    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QList<QByteArray> lines;
    bool barEnabled = true;
    bool buttonEnabled = false;
    SettingsScript::open(dialog, [&] {
        const QByteArray command = "norvane inertial scan_transceiver_radio_channels";
        if (sent)
            fake->reply(command, "norvane busy");
        else
            fake->fail(command);
        fake->clear_log();
        dialog.findChild<QPushButton*>("pushButton_scanAvailableChannels")->click();
        lines = fake->lines();
        barEnabled = dialog.findChild<QProgressBar*>("progressBar")->isEnabled();
        buttonEnabled = dialog.findChild<QPushButton*>("pushButton_scanAvailableChannels")->isEnabled();
    });
    // Nothing is measured after a scan that did not run.
    QCOMPARE(lines, QList<QByteArray>{"norvane inertial scan_transceiver_radio_channels"});
    QCOMPARE(fake->message_texts(), messages);
    QVERIFY(!barEnabled);
    QVERIFY(buttonEnabled);
}

void tst_InertialSettingsDlgChannels::missingSuggestionAsksForAScan()
{
    SettingsScript script = SettingsScript::typical();
    script.transceivers[1].suggested = "0";
    script.install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QString hint;
    bool hintShown = false;
    bool hintShownAfterScan = true;
    QBrush suggested;
    SettingsScript::open(dialog, [&] {
        auto* label = dialog.findChild<QLabel*>("label_error3");
        hint = label->text();
        hintShown = label->isVisible();
        fake->reply("inertial transceiver_suggested_radio_channel " + Second, "14");
        fake->reply("norvane inertial scan_transceiver_radio_channels", "norvane ok");
        dialog.findChild<QPushButton*>("pushButton_scanAvailableChannels")->click();
        hintShownAfterScan = label->isVisible();
        suggested = grid_combo(dialog, 3)->table()->item(1, 3)->background();
    });
    QCOMPARE(hint, QString("<b><font color=red>Please scan available channels</font></b>"));
    QVERIFY(hintShown);
    QVERIFY(!hintShownAfterScan);
    QCOMPARE(suggested, QBrush(Qt::green));
}

void tst_InertialSettingsDlgChannels::absurdChannelCountIsBounded()
{
    SettingsScript::typical().install(*fake);
    fake->reply("inertial number_of_transceiver_available_radio_channels " + First, "2000000000");
    Dlg dialog(fake, nullptr, &versions);
    int limitsFrom = 0;
    int limitsTo = 0;
    SettingsScript::open(dialog, [&] {
        limitsFrom = grid_combo(dialog, 0)->minimumChannel();
        limitsTo = grid_combo(dialog, 0)->maximumChannel();
    });
    int asked = 0;
    for (const QByteArray& line : fake->lines())
        if (line.startsWith("inertial transceiver_available_radio_channel " + First + " t"))
            ++asked;
    // Two-digit indices reach 99: beyond that the count cannot be meant.
    QCOMPARE(asked, 99);
    QCOMPARE(fake->count("inertial transceiver_available_radio_channel " + First + " t99"), 1);
    // The five channels that were answered still set the limits.
    QCOMPARE(limitsFrom, 10);
    QCOMPARE(limitsTo, 20);
    QCOMPARE(fake->message_texts().count("Error: Unable to get available channel of dongle 1"), 94);
}

QTEST_MAIN(tst_InertialSettingsDlgChannels)
#include "tst_InertialSettingsDlgChannels.moc"
