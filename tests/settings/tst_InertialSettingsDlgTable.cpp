#include <QtTest>

#include <QComboBox>
#include <QLabel>
#include <QTableWidget>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "SettingsScript.h"
#include "SettingsTestCase.h"
#include "settings/InertialSettingsDlg.h"
#include "statusbar/BatteryBar.h"
#include "statusbar/TemperatureBar.h"

using Dlg = InertialSettingsDlg;

// The sensor table: how a rebuild lays out transceivers and sensors, which
// failures end it and which leave a fallback, and the refreshes that run
// while the dialog is open.
class tst_InertialSettingsDlgTable : public SettingsTestCase
{
    Q_OBJECT

private slots:
    void typicalRows_data();
    void typicalRows();
    void rowsAreFoundByTheirData();
    void absentTransceiverIsGreyed();
    void withoutTransceiversSensorsGoUnderCable();
    void nothingAtAllLeavesAnEmptyTable();
    void twoWordIdentityIsSkipped();
    void absurdCountIsBounded();
    void failures_data();
    void failures();
    void presencePoll();
    void presencePollStopsWhenTrackingGoes();
    void refreshFollowsTheController();
    void lostAvailabilityDisablesThePage();
    void warmupTickEndsWarmupDisplay();
    void roundTripsOfOneOpening();

private:
    QTableWidget* table(Dlg& dialog) { return dialog.findChild<QTableWidget*>("tableWidget"); }
    QStringList column0(Dlg& dialog);
    // A cell's text, or what the combo in it shows.
    static QString shown(QTableWidget* table, int row, int column);
};

QString tst_InertialSettingsDlgTable::shown(QTableWidget* table, int row, int column)
{
    if (const auto* combo = qobject_cast<const QComboBox*>(table->cellWidget(row, column)))
        return combo->currentText();
    const QTableWidgetItem* item = table->item(row, column);
    return item ? item->text() : QString();
}

QStringList tst_InertialSettingsDlgTable::column0(Dlg& dialog)
{
    QStringList texts;
    for (int row = 0; row < table(dialog)->rowCount(); ++row) {
        const QTableWidgetItem* item = table(dialog)->item(row, Dlg::ColDeviceId);
        texts << (item ? item->text() : QStringLiteral("<empty>"));
    }
    return texts;
}

void tst_InertialSettingsDlgTable::typicalRows_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<bool>("modeCombo");
    QTest::addColumn<QString>("temperature");   // "bar" or the cell's text
    QTest::addColumn<QString>("frequency");

    QTest::newRow("first transceiver") << 0 << "T1001" << "Dongle (USB)" << "" << "3.1.0" << "12"
                                       << false << "" << "";
    QTest::newRow("its sensor added last, nearest") << 1 << "S0002" << "IMU9 sensor" << "" << "2.4.1"
                                                    << "12" << true << "bar" << "100 Hz";
    QTest::newRow("its sensor on body 1") << 2 << "S0001" << "IMU9 sensor" << "Body 01" << "2.4.1"
                                          << "12" << true << "bar" << "100 Hz";
    QTest::newRow("second transceiver") << 3 << "T1002" << "Dongle (USB)" << "" << "3.1.0" << "20"
                                        << false << "" << "";
    QTest::newRow("sensor asleep") << 4 << "S0005" << "IMU9 sensor" << "" << "" << "" << false
                                   << "not present" << "";
    QTest::newRow("sensor on body 2") << 5 << "S0003" << "IMU9 sensor" << "Body 02" << "2.4.1"
                                      << "20" << true << "bar" << "100 Hz";
    QTest::newRow("cable row") << 6 << "cable connected:" << "" << "" << "" << "" << false << "" << "";
    QTest::newRow("sensor on cable") << 7 << "C0004" << "IMU6 sensor" << "" << "2.4.1" << "USB"
                                     << true << "bar" << "100 Hz";
}

void tst_InertialSettingsDlgTable::typicalRows()
{
    QFETCH(int, row);
    QFETCH(QString, device);
    QFETCH(QString, model);
    QFETCH(QString, name);
    QFETCH(QString, version);
    QFETCH(QString, channel);
    QFETCH(bool, modeCombo);
    QFETCH(QString, temperature);
    QFETCH(QString, frequency);

    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);
    QTableWidget* t = table(dialog);
    QCOMPARE(t->rowCount(), 8);

    const auto text = [t, row](int column) {
        const QTableWidgetItem* item = t->item(row, column);
        return item ? item->text() : QString();
    };
    QCOMPARE(text(Dlg::ColDeviceId), device);
    QCOMPARE(text(Dlg::ColModel), model);
    QCOMPARE(text(Dlg::ColName), name);
    QCOMPARE(text(Dlg::ColVersion), version);
    QCOMPARE(shown(t, row, Dlg::ColChannel), channel);
    QCOMPARE(qobject_cast<QComboBox*>(t->cellWidget(row, Dlg::ColWakeupMode)) != nullptr, modeCombo);
    if (temperature == "bar") {
        auto* bar = qobject_cast<TemperatureBar*>(t->cellWidget(row, Dlg::ColTemperature));
        QVERIFY(bar);
        QCOMPARE(bar->text(), QString("18.0") + QChar(0x00B0) + "C");
        QCOMPARE(bar->value(), 50);
        auto* battery = qobject_cast<BatteryBar*>(t->cellWidget(row, Dlg::ColBattery));
        QVERIFY(battery);
        QCOMPARE(battery->value(), 80);
    } else {
        QVERIFY(!t->cellWidget(row, Dlg::ColTemperature));
        QVERIFY(!t->cellWidget(row, Dlg::ColBattery));
        QCOMPARE(text(Dlg::ColTemperature), temperature);
    }
    QCOMPARE(text(Dlg::ColFrequency), frequency);
    QVERIFY(t->isColumnHidden(Dlg::ColVendor));
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialSettingsDlgTable::rowsAreFoundByTheirData()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);
    QTableWidget* t = table(dialog);

    QCOMPARE(t->item(0, Dlg::ColDeviceId)->data(Dlg::DongleKeyRole).toString(), QString("d01"));
    QCOMPARE(t->item(3, Dlg::ColDeviceId)->data(Dlg::DongleKeyRole).toString(), QString("d02"));
    QCOMPARE(t->item(0, Dlg::ColDeviceId)->data(Dlg::DongleSensorsRole).toStringList(),
             (QStringList{"NRV IMU9 'S0001'", "NRV IMU9 'S0002'"}));
    QCOMPARE(t->item(2, Dlg::ColDeviceId)->data(Dlg::SensorIdentityRole).toStringList(),
             (QStringList{"NRV", "IMU9", "'S0001'"}));
    QCOMPARE(t->item(2, Dlg::ColDeviceId)->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
    QCOMPARE(t->item(2, Dlg::ColName)->data(Dlg::BodyIdRole).toString(), QString("standard b01"));
    QCOMPARE(t->item(1, Dlg::ColName)->data(Dlg::BodyIdRole).toString(), QString("none"));

    QCOMPARE(dialog.get_row_of_dongle("NRV Dongle 'T1002'"), 3);
    QCOMPARE(dialog.get_row_of_dongle("NRV Dongle 'T9999'"), -1);
    QCOMPARE(dialog.getRowOfDummyDongle(), 6);
    QCOMPARE(dialog.get_sensorList_of_dongle("NRV Dongle 'T1002'"),
             (QStringList{"NRV IMU9 'S0003'", "NRV IMU9 'S0005'"}));
    QCOMPARE(dialog.getSensorSerial(4), QString("S0005"));
    QCOMPARE(dialog.getSensorModel(7), QString("IMU6 sensor"));
    QCOMPARE(dialog.getSensorVendorModelSerial(5), QString("NRV IMU9 'S0003'"));
    QCOMPARE(dialog.getSensorVendorModelSerial(3), QString());
    QCOMPARE(dialog.getSensorSerial(6), QString());

    fake->clear_log();
    QCOMPARE(dialog.get_onlyPresent_sensorList_of_dongle("NRV Dongle 'T1002'"),
             QStringList{"NRV IMU9 'S0003'"});
    QCOMPARE(dialog.get_onlyNotPresent_sensorList_of_dongle("NRV Dongle 'T1002'"),
             QStringList{"NRV IMU9 'S0005'"});
    fake->fail("inertial sensor_present NRV IMU9 'S0003'");
    QCOMPARE(dialog.get_onlyPresent_sensorList_of_dongle("NRV Dongle 'T1002'"), QStringList());
    QCOMPARE(fake->message_texts(), QStringList{"Error: Unable to get present status of sensor 1"});
}

void tst_InertialSettingsDlgTable::absentTransceiverIsGreyed()
{
    SettingsScript script = SettingsScript::typical();
    script.transceivers[1].present = "no";
    script.install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);
    QTableWidget* t = table(dialog);

    QCOMPARE(column0(dialog), (QStringList{"T1001", "S0002", "S0001", "T1002", "S0005", "S0003",
                                           "cable connected:", "C0004"}));
    for (int column = 0; column < Dlg::ColumnCount; ++column) {
        QCOMPARE(int(t->item(3, column)->flags()), int(Qt::NoItemFlags));
        QCOMPARE(t->item(3, column)->background(),
                 QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Base));
    }
    QCOMPARE(fake->count("inertial transceiver_radio_channel NRV Dongle 'T1002'"), 0);
    QCOMPARE(t->item(3, Dlg::ColChannel)->text(), QString());
    QCOMPARE(int(t->item(0, Dlg::ColDeviceId)->flags()), int(Qt::ItemIsEnabled));
}

void tst_InertialSettingsDlgTable::withoutTransceiversSensorsGoUnderCable()
{
    SettingsScript script = SettingsScript::typical();
    script.transceivers.clear();
    script.sensors = {script.sensors.at(3), script.sensors.at(0)};
    script.install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);

    // The radio sensor names a transceiver the table does not list.
    QCOMPARE(column0(dialog), (QStringList{"cable connected:", "S0001", "C0004"}));
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialSettingsDlgTable::nothingAtAllLeavesAnEmptyTable()
{
    SettingsScript script;
    script.install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);
    QCOMPARE(table(dialog)->rowCount(), 0);
    QCOMPARE(table(dialog)->columnCount(), int(Dlg::ColumnCount));
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
}

void tst_InertialSettingsDlgTable::twoWordIdentityIsSkipped()
{
    SettingsScript::typical().install(*fake);
    fake->reply("inertial sensor d02", "NRV IMU9");
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);

    QCOMPARE(column0(dialog), (QStringList{"T1001", "S0001", "T1002", "S0005", "S0003",
                                           "cable connected:", "C0004"}));
    QCOMPARE(fake->message_texts(), QStringList{"Error: Unable to get vendor model of inertial sensor"});
    QCOMPARE(fake->count("inertial body_of_sensor NRV IMU9"), 0);
}

void tst_InertialSettingsDlgTable::absurdCountIsBounded()
{
    SettingsScript::typical().install(*fake);
    fake->reply("inertial number_of_sensors", "2000000000");
    fake->reply("inertial number_of_transceivers", "-7");
    fake->fail("inertial sensor d06");
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);

    // A negative count lists nothing; a huge one stops at the first gap.
    QCOMPARE(column0(dialog), (QStringList{"cable connected:", "S0005", "C0004", "S0003", "S0002",
                                           "S0001"}));
    QCOMPARE(fake->message_texts(), QStringList{"Could not get informations of sensor 6"});
    QCOMPARE(fake->count("inertial sensor d07"), 0);
}

void tst_InertialSettingsDlgTable::failures_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<int>("cellRow");
    QTest::addColumn<int>("cellColumn");
    QTest::addColumn<QString>("cellText");

    const QStringList all{"T1001", "S0002", "S0001", "T1002", "S0005", "S0003", "cable connected:", "C0004"};

    // Failures that end the rebuild: the table keeps what was filled.
    QTest::newRow("transceiver count ends it")
        << QByteArray("inertial number_of_transceivers") << "Error: Unable to get number of dongles"
        << QStringList() << -1 << 0 << QString();
    QTest::newRow("transceiver identity ends it")
        << QByteArray("inertial transceiver d02") << "Error: Unable to get informations of dongle 2"
        << QStringList() << -1 << 0 << QString();
    QTest::newRow("transceiver channel ends it")
        << QByteArray("inertial transceiver_radio_channel NRV Dongle 'T1002'")
        << "Error: Unable to get radio channel of dongle 2" << QStringList{"T1001", "T1002"}
        << 0 << int(Dlg::ColChannel) << "12";
    QTest::newRow("sensor identity ends it")
        << QByteArray("inertial sensor d03") << "Could not get informations of sensor 3"
        << QStringList{"T1001", "S0002", "S0001", "T1002"} << -1 << 0 << QString();
    QTest::newRow("body of a sensor ends it")
        << QByteArray("inertial body_of_sensor NRV IMU9 'S0002'") << "Could not get body of sensor 2"
        << QStringList{"T1001", "S0001", "T1002"} << -1 << 0 << QString();

    // Failures that leave a fallback and go on.
    QTest::newRow("sensor count reads as none")
        << QByteArray("inertial number_of_sensors") << "Could not get number of sensors"
        << QStringList{"T1001", "T1002"} << -1 << 0 << QString();
    QTest::newRow("transceiver firmware")
        << QByteArray("inertial transceiver_version NRV Dongle 'T1001'")
        << "Error: Unable to get firmware version of dongle 1" << all << 0 << int(Dlg::ColVersion)
        << "error";
    QTest::newRow("transceiver model")
        << QByteArray("inertial transceiver_model_desc NRV Dongle")
        << "Error: Unable to get model description of dongle 1" << all << 3 << int(Dlg::ColModel)
        << "error";
    QTest::newRow("sensor model")
        << QByteArray("inertial sensor_model_desc NRV IMU6")
        << "Error: Unable to get model description of sensor 4" << all << 7 << int(Dlg::ColModel)
        << "error";
    QTest::newRow("sensor firmware")
        << QByteArray("inertial sensor_version NRV IMU9 'S0001'")
        << "Error: Unable to get firmware version of sensor" << all << 2 << int(Dlg::ColVersion)
        << "v0.0.0";
    QTest::newRow("body description")
        << QByteArray("body desc standard b02") << "Could not get body description of body 3"
        << all << 5 << int(Dlg::ColName) << "";
    QTest::newRow("sensor channel")
        << QByteArray("inertial sensor_radio_channel NRV IMU9 'S0003'")
        << "Error: Unable to get sensor channel" << all << 5 << int(Dlg::ColChannel) << "";
    QTest::newRow("sensor output frequency")
        << QByteArray("inertial sensor_output_frequency NRV IMU9 'S0002'")
        << "Error: Unable to get frequency of sensor 2" << all << 1 << int(Dlg::ColFrequency) << "";
}

void tst_InertialSettingsDlgTable::failures()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, message);
    QFETCH(QStringList, rows);
    QFETCH(int, cellRow);
    QFETCH(int, cellColumn);
    QFETCH(QString, cellText);

    SettingsScript::typical().install(*fake);
    fake->fail(line);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);

    QCOMPARE(fake->message_texts().value(0), message);
    QCOMPARE(column0(dialog), rows);
    if (cellRow >= 0)
        QCOMPARE(shown(table(dialog), cellRow, cellColumn), cellText);
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
}

void tst_InertialSettingsDlgTable::presencePoll()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QTableWidget* t = table(dialog);
    QList<QByteArray> asked;
    bool pollingBefore = false;
    bool pollingAfter = true;
    SettingsScript::open(dialog, [&] {
        auto* poll = dialog.findChild<QTimer*>("notPresentTimer");
        pollingBefore = poll->isActive();
        fake->reply("inertial sensor_present NRV IMU9 'S0005'", "yes");
        fake->clear_log();
        dialog.update_sensors_not_present();
        asked = fake->lines();
        pollingAfter = poll->isActive();
    });
    QVERIFY(pollingBefore);
    // Only the sensor shown as not present is asked about, and one pass ends the poll.
    for (const QByteArray& line : asked)
        QVERIFY2(line == "inertial available" || line.endsWith("'S0005'")
                     || line.endsWith("'S0005' 'wm_radio'") || line.endsWith("'S0005' 'wm_tap'")
                     || line.endsWith("'S0005' 'wm_usb'"),
                 line.constData());
    QVERIFY(asked.contains("inertial sensor_present NRV IMU9 'S0005'"));
    QVERIFY(!pollingAfter);
    QVERIFY(qobject_cast<TemperatureBar*>(t->cellWidget(4, Dlg::ColTemperature)));
    QVERIFY(qobject_cast<QComboBox*>(t->cellWidget(4, Dlg::ColWakeupMode)));
    QCOMPARE(shown(t, 4, Dlg::ColChannel), QString("20"));
}

void tst_InertialSettingsDlgTable::presencePollStopsWhenTrackingGoes()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QList<QByteArray> asked;
    bool polling = true;
    SettingsScript::open(dialog, [&] {
        fake->reply("inertial available", "no");
        fake->clear_log();
        dialog.update_sensors_not_present();
        asked = fake->lines();
        polling = dialog.findChild<QTimer*>("notPresentTimer")->isActive();
    });
    QCOMPARE(asked, QList<QByteArray>{"inertial available"});
    QVERIFY(!polling);
}

void tst_InertialSettingsDlgTable::refreshFollowsTheController()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QTableWidget* t = table(dialog);
    SettingsScript::open(dialog, [&] {
        fake->reply("inertial sensor_battery NRV IMU9 'S0001'", "0.15");
        fake->reply("inertial sensor_temperature NRV IMU9 'S0001'", "35.0 36.0");
        fake->reply("inertial sensor_version NRV IMU9 'S0001'", "'2.5.0'");
        fake->reply("inertial sensor_present NRV IMU9 'S0002'", "no");
        fake->reply("inertial sensor_handeye NRV IMU9 'S0003'", "garbage that is not none");
        fake->fail("inertial sensor_handeye NRV IMU9 'S0002'");
        dialog.update_buttons();
    });
    QCOMPARE(qobject_cast<BatteryBar*>(t->cellWidget(2, Dlg::ColBattery))->value(), 15);
    auto* warm = qobject_cast<TemperatureBar*>(t->cellWidget(2, Dlg::ColTemperature));
    QCOMPARE(warm->value(), 97);
    QCOMPARE(warm->text(), QString("35.0") + QChar(0x00B0) + "C");
    QCOMPARE(t->item(2, Dlg::ColVersion)->text(), QString("2.5.0"));

    // A sensor that went away loses its live widgets and shows so.
    QCOMPARE(t->item(1, Dlg::ColTemperature)->text(), QString("not present"));
    QVERIFY(!t->cellWidget(1, Dlg::ColTemperature));
    QVERIFY(!t->cellWidget(1, Dlg::ColBattery));
    QVERIFY(!t->cellWidget(1, Dlg::ColWakeupMode));
    QCOMPARE(int(t->item(1, Dlg::ColDeviceId)->flags()), int(Qt::ItemIsSelectable));

    // Hand-eye calibration: green when there, yellow when "none", red when unknown.
    QCOMPARE(int(t->item(5, Dlg::ColCalibration)->flags()), int(Qt::ItemIsEnabled));
    QCOMPARE(int(t->item(1, Dlg::ColCalibration)->flags()), int(Qt::NoItemFlags));
    QVERIFY(fake->message_texts().contains("Error: Unable to get calibration status of sensor"));
}

void tst_InertialSettingsDlgTable::lostAvailabilityDisablesThePage()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QString error;
    QStringList timers;
    bool add = true;
    SettingsScript::open(dialog, [&] {
        fake->reply("inertial available", "no");
        dialog.update_buttons();
        error = dialog.findChild<QLabel*>("label_error")->text();
        add = dialog.findChild<QWidget*>("pushButton_addSensor")->isEnabled();
        for (QTimer* timer : dialog.findChildren<QTimer*>())
            if (timer->isActive())
                timers << timer->objectName();
    });
    QCOMPARE(error, QString("<b><font color=red>Hybrid tracking is not available!</font></b>"));
    QVERIFY(!add);
    QCOMPARE(timers, QStringList());
    QCOMPARE(table(dialog)->rowCount(), 8);
}

void tst_InertialSettingsDlgTable::warmupTickEndsWarmupDisplay()
{
    SettingsScript script = SettingsScript::typical();
    script.warmup = "yes";
    script.install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QList<QByteArray> duringWarmup;
    QString text;
    bool tableEnabled = false;
    bool ticking = true;
    SettingsScript::open(dialog, [&] {
        fake->clear_log();
        dialog.set_temperature_and_battery_of_all_sensor();
        duringWarmup = fake->lines();

        fake->reply("inertial warmup", "no");
        dialog.set_temperature_and_battery_of_all_sensor();
        text = dialog.findChild<QWidget*>("pushButton_warmup")->property("text").toString();
        tableEnabled = table(dialog)->isEnabled();
        ticking = dialog.findChild<QTimer*>("sensorDataTimer")->isActive();
    });
    QVERIFY(duringWarmup.contains("inertial sensor_temperature NRV IMU9 'S0003'"));
    QVERIFY(duringWarmup.contains("inertial sensor_battery NRV IMU6 'C0004'"));
    QCOMPARE(text, QString("Warmup start"));
    QVERIFY(tableEnabled);
    QVERIFY(!ticking);
}

void tst_InertialSettingsDlgTable::roundTripsOfOneOpening()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    const long before = fake->round_trips();
    SettingsScript::open(dialog);
    const long trips = fake->round_trips() - before;
    qInfo("one opening with 2 transceivers, 5 sensors and 3 wake-up modes: %ld round trips", trips);

    // Every round trip is a line the script knows: nothing hidden, nothing repeated by accident.
    QCOMPARE(long(fake->lines().size()), trips);
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
    // Per-sensor cost of the full rebuild and of the wake-up choices:
    // identity, body, transceiver, vendor, model, presence, then for a present
    // radio sensor temperature, battery, output frequency, hand-eye, firmware,
    // three modes offered and the active mode for its combo and the channel.
    QCOMPARE(fake->count("inertial sensor_wakeup_mode_available NRV IMU9 'S0001' 'wm_tap'"), 2);
    QCOMPARE(fake->count("inertial sensor_radio_channel NRV IMU9 'S0001'"), 1);
    // Each transceiver's usable channels are read once per opening, and the
    // first rebuild reads every channel's activity for the busy marks.
    QCOMPARE(fake->count("inertial transceiver_available_radio_channel NRV Dongle 'T1001' t03"), 1);
    QCOMPARE(fake->count("inertial transceiver_radio_channel_activity NRV Dongle 'T1002' 14"), 1);
    // The budget of one opening: a further query per opening is a decision, not an accident.
    QVERIFY2(trips <= 147, qPrintable(QString::number(trips)));
}

QTEST_MAIN(tst_InertialSettingsDlgTable)
#include "tst_InertialSettingsDlgTable.moc"
