#include <QtTest>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTableWidget>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "SettingsScript.h"
#include "SettingsTestCase.h"
#include "settings/InertialSettingsDlg.h"

using Dlg = InertialSettingsDlg;

// Wake-up modes, per sensor and for all sensors at once, and the inertial
// frequency with its limits and the table's frequency column.
class tst_InertialSettingsDlgWakeup : public SettingsTestCase
{
    Q_OBJECT

private slots:
    void pageChoices_data();
    void pageChoices();
    void sensorChoicesAndNoComboWhenAsleep();
    void chooseForOneSensor_data();
    void chooseForOneSensor();
    void changeFailures_data();
    void changeFailures();
    void chooseForAllSensors_data();
    void chooseForAllSensors();
    void wheelLeavesModeAlone();
    void frequencySent_data();
    void frequencySent();
    void refusedFrequencyShowsTheControllersValue();
    void frequencyLimits_data();
    void frequencyLimits();
    void frequencyColumn_data();
    void frequencyColumn();

private:
    static QStringList entries(const QComboBox* combo);
    QComboBox* sensorCombo(Dlg& dialog, int row);
    QComboBox* pageCombo(Dlg& dialog) { return dialog.findChild<QComboBox*>("comboBox_mode"); }
    // What a user does: step to the entry with the arrow keys, which
    // activates it.
    static void choose(QComboBox* combo, int index);
    QList<FakeController::Call> settings() const;
};

QStringList tst_InertialSettingsDlgWakeup::entries(const QComboBox* combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts << combo->itemText(i);
    return texts;
}

QComboBox* tst_InertialSettingsDlgWakeup::sensorCombo(Dlg& dialog, int row)
{
    return qobject_cast<QComboBox*>(
        dialog.findChild<QTableWidget*>("tableWidget")->cellWidget(row, Dlg::ColWakeupMode));
}

void tst_InertialSettingsDlgWakeup::choose(QComboBox* combo, int index)
{
    const bool fromAbove = index > 0;
    combo->setCurrentIndex(fromAbove ? index - 1 : 1);
    QTest::keyClick(combo, fromAbove ? Qt::Key_Down : Qt::Key_Up);
}

QList<FakeController::Call> tst_InertialSettingsDlgWakeup::settings() const
{
    QList<FakeController::Call> result;
    for (const FakeController::Call& call : fake->calls())
        if (call.operation == FakeController::SetValue)
            result << call;
    return result;
}

void tst_InertialSettingsDlgWakeup::pageChoices_data()
{
    QTest::addColumn<QList<int>>("sensors");   // which of the typical sensors
    QTest::addColumn<int>("modes");            // how many wake-up modes the controller has
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("current");

    const QString tapAndRadio = "Wake on tap and Wake by radio";
    QTest::newRow("sensors differ: (mixed)")
        << QList<int>{0, 1, 2, 3, 4} << 3
        << QStringList{"(mixed)", "Wake on USB", "Wake on tap", "Wake by radio", tapAndRadio}
        << "(mixed)";
    QTest::newRow("all by radio")
        << QList<int>{0, 1} << 3 << QStringList{"Wake on tap", "Wake by radio", tapAndRadio}
        << "Wake by radio";
    QTest::newRow("exactly tap and radio")
        << QList<int>{0, 2} << 3 << QStringList{"Wake on tap", "Wake by radio", tapAndRadio}
        << tapAndRadio;
    QTest::newRow("only the cable sensor") << QList<int>{3} << 3 << QStringList{"Wake on USB"}
                                           << "Wake on USB";
    QTest::newRow("no wake-up modes at all") << QList<int>{0, 1, 2} << 0 << QStringList() << "";
    QTest::newRow("no sensors") << QList<int>{} << 3 << QStringList() << "";
}

void tst_InertialSettingsDlgWakeup::pageChoices()
{
    QFETCH(QList<int>, sensors);
    QFETCH(int, modes);
    QFETCH(QStringList, entries);
    QFETCH(QString, current);

    SettingsScript script = SettingsScript::typical();
    QList<SettingsScript::Sensor> chosen;
    for (int i : sensors)
        chosen << script.sensors.at(i);
    script.sensors = chosen;
    script.wakeup_modes = script.wakeup_modes.mid(0, modes);
    script.install(*fake);

    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);
    QCOMPARE(this->entries(pageCombo(dialog)), entries);
    QCOMPARE(pageCombo(dialog)->currentText(), current);
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialSettingsDlgWakeup::sensorChoicesAndNoComboWhenAsleep()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);

    QComboBox* combo = sensorCombo(dialog, 2);
    QVERIFY(combo);
    QCOMPARE(entries(combo), (QStringList{"Wake by radio", "Wake on tap"}));
    QCOMPARE(combo->itemData(0).toString(), QString("NRV IMU9 'S0001' 'wm_radio'"));
    QCOMPARE(combo->currentText(), QString("Wake by radio"));
    QCOMPARE(sensorCombo(dialog, 5)->currentText(), QString("Wake on tap"));
    QCOMPARE(entries(sensorCombo(dialog, 7)), QStringList{"Wake on USB"});

    // The sleeping sensor has a plain cell and nothing to choose from.
    QVERIFY(!sensorCombo(dialog, 4));
    QVERIFY(dialog.findChild<QTableWidget*>("tableWidget")->item(4, Dlg::ColWakeupMode));
}

void tst_InertialSettingsDlgWakeup::chooseForOneSensor_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QByteArrayList>("sent");

    QTest::newRow("radio: one line")
        << 5 << 0 << "Wake by radio"
        << QByteArrayList{"inertial sensor_wakeup_mode NRV IMU9 'S0003' 'wm_radio'"};
    QTest::newRow("tap: the mode, then a sleep time-out")
        << 2 << 1 << "Wake on tap"
        << QByteArrayList{"inertial sensor_wakeup_mode NRV IMU9 'S0001' 'wm_tap'",
                          "inertial sensor_sleep_timeout NRV IMU9 'S0001' 10"};
    QTest::newRow("usb: the mode, then a sleep time-out")
        << 1 << 1 << "Wake on USB"
        << QByteArrayList{"inertial sensor_wakeup_mode NRV IMU9 'S0002' 'wm_usb'",
                          "inertial sensor_sleep_timeout NRV IMU9 'S0002' 10"};
}

void tst_InertialSettingsDlgWakeup::chooseForOneSensor()
{
    QFETCH(int, row);
    QFETCH(int, entry);
    QFETCH(QString, chosen);
    QFETCH(QByteArrayList, sent);

    SettingsScript script = SettingsScript::typical();
    script.sensors[1].modes = {"'wm_usb'", "'wm_radio'"};
    script.install(*fake);
    fake->set_stateful(true);
    fake->accept(sent.last());
    Dlg dialog(fake, nullptr, &versions);

    QString shown;
    QString page;
    SettingsScript::open(dialog, [&] {
        fake->clear_log();
        choose(sensorCombo(dialog, row), entry);
        shown = sensorCombo(dialog, row)->currentText();
        page = pageCombo(dialog)->currentText();
    });

    QByteArrayList lines;
    for (const FakeController::Call& call : settings()) {
        lines << call.line;
        // Sensors answer slowly: every change goes out under a long time-out.
        QCOMPARE(call.timeout_ms, 10000);
        QVERIFY(!call.wait_separately);
        QVERIFY(call.timeout_flag);
    }
    QCOMPARE(lines, sent);
    QCOMPARE(shown, chosen);
    QCOMPARE(page, QString("(mixed)"));
    QCOMPARE(fake->message_texts(), QStringList());
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
}

void tst_InertialSettingsDlgWakeup::changeFailures_data()
{
    QTest::addColumn<QByteArray>("failing");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArrayList>("sent");

    const QByteArray present = "inertial sensor_present NRV IMU9 'S0001'";
    const QByteArray tap = "inertial sensor_wakeup_mode NRV IMU9 'S0001' 'wm_tap'";
    const QByteArray sleep = "inertial sensor_sleep_timeout NRV IMU9 'S0001' 10";
    QTest::newRow("refused mode: the combo snaps back to the controller's")
        << tap << "Wake by radio" << "Error: Unable to set wakeup mode of sensor"
        << QByteArrayList{present, tap, "inertial sensor_wakeup_mode NRV IMU9 'S0001'"};
    QTest::newRow("sensor out of reach: nothing is sent")
        << present << "Wake by radio" << "Error: Unable to reach sensor" << QByteArrayList{present};
    QTest::newRow("refused time-out: the mode stays, nothing is re-read")
        << sleep << "Wake on tap" << "Error: Unable to set sleep timeout of sensor"
        << QByteArrayList{present, tap, sleep};
}

void tst_InertialSettingsDlgWakeup::changeFailures()
{
    QFETCH(QByteArray, failing);
    QFETCH(QString, shown);
    QFETCH(QString, message);
    QFETCH(QByteArrayList, sent);

    SettingsScript::typical().install(*fake);
    fake->accept("inertial sensor_wakeup_mode NRV IMU9 'S0001' 'wm_tap'");
    Dlg dialog(fake, nullptr, &versions);
    QString after;
    SettingsScript::open(dialog, [&] {
        QVERIFY(sensorCombo(dialog, 2));
        fake->fail(failing);
        fake->clear_log();
        choose(sensorCombo(dialog, 2), 1);
        after = sensorCombo(dialog, 2)->currentText();
    });
    QCOMPARE(after, shown);
    QCOMPARE(fake->message_texts(), QStringList{message});
    QCOMPARE(QByteArrayList(fake->lines()), sent);
}

void tst_InertialSettingsDlgWakeup::chooseForAllSensors_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QByteArrayList>("sent");
    QTest::addColumn<QStringList>("messages");

    const QByteArray mode = "inertial sensor_wakeup_mode NRV IMU9 ";
    const QByteArray sleep = "inertial sensor_sleep_timeout NRV IMU9 ";
    const QString asleep = "Error: Unable to reach sensor NRV IMU9 'S0005'";
    QTest::newRow("(mixed) does nothing") << 0 << QByteArrayList{} << QStringList();
    QTest::newRow("radio for every present sensor that offers it")
        << 3
        << QByteArrayList{mode + "'S0001' 'wm_radio'", mode + "'S0002' 'wm_radio'",
                          mode + "'S0003' 'wm_radio'"}
        << QStringList{asleep};
    QTest::newRow("tap, each with its time-out")
        << 2
        << QByteArrayList{mode + "'S0001' 'wm_tap'", sleep + "'S0001' 10", mode + "'S0002' 'wm_tap'",
                          sleep + "'S0002' 10", mode + "'S0003' 'wm_tap'", sleep + "'S0003' 10"}
        << QStringList{asleep};
    QTest::newRow("tap and radio: tap first, radio where offered")
        << 4
        << QByteArrayList{mode + "'S0001' 'wm_tap'", sleep + "'S0001' 10", mode + "'S0002' 'wm_tap'",
                          sleep + "'S0002' 10", mode + "'S0003' 'wm_tap'", sleep + "'S0003' 10",
                          mode + "'S0001' 'wm_radio'", mode + "'S0002' 'wm_radio'",
                          mode + "'S0003' 'wm_radio'"}
        << QStringList{asleep, asleep};
}

void tst_InertialSettingsDlgWakeup::chooseForAllSensors()
{
    QFETCH(int, entry);
    QFETCH(QByteArrayList, sent);
    QFETCH(QStringList, messages);

    SettingsScript::typical().install(*fake);
    fake->set_stateful(true);
    for (const char* serial : {"'S0001'", "'S0002'", "'S0003'"})
        fake->accept(QByteArray("inertial sensor_sleep_timeout NRV IMU9 ") + serial + " 10");
    Dlg dialog(fake, nullptr, &versions);
    QList<QByteArray> lines;
    SettingsScript::open(dialog, [&] {
        QCOMPARE(pageCombo(dialog)->currentText(), QString("(mixed)"));
        fake->clear_log();
        choose(pageCombo(dialog), entry);
        lines = fake->lines();
    });
    QByteArrayList set;
    for (const FakeController::Call& call : settings())
        set << call.line;
    QCOMPARE(set, sent);
    QCOMPARE(fake->message_texts(), messages);
    if (sent.isEmpty())
        QCOMPARE(lines, QList<QByteArray>());
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
}

void tst_InertialSettingsDlgWakeup::wheelLeavesModeAlone()
{
    SettingsScript::typical().install(*fake);
    Dlg dialog(fake, nullptr, &versions);
    QString shown;
    SettingsScript::open(dialog, [&] {
        QComboBox* combo = sensorCombo(dialog, 2);
        fake->clear_log();
        const QPointF at(combo->width() / 2.0, combo->height() / 2.0);
        QWheelEvent wheel(at, QPointF(combo->mapToGlobal(at.toPoint())), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(combo, &wheel);
        shown = combo->currentText();
    });
    QCOMPARE(shown, QString("Wake by radio"));
    QCOMPARE(fake->lines(), QList<QByteArray>());
}

void tst_InertialSettingsDlgWakeup::frequencySent_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArrayList>("sent");

    QTest::newRow("100 Hz") << 100.0 << QByteArrayList{"inertial frequency 100.000000"};
    QTest::newRow("above the maximum stays at it") << 900.0
                                                   << QByteArrayList{"inertial frequency 500.000000"};
    QTest::newRow("below the minimum stays at it") << 0.2 << QByteArrayList{"inertial frequency 1.000000"};
    QTest::newRow("unchanged sends nothing") << 50.0 << QByteArrayList{};
}

void tst_InertialSettingsDlgWakeup::frequencySent()
{
    QFETCH(double, value);
    QFETCH(QByteArrayList, sent);

    SettingsScript script = SettingsScript::typical();
    script.frequency = "50.0";
    script.install(*fake);
    fake->set_stateful(true);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog, [&] {
        auto* spin = dialog.findChild<QDoubleSpinBox*>("doubleSpinBox_frequency");
        QCOMPARE(spin->value(), 50.0);
        fake->clear_log();
        spin->setValue(value);
    });
    QCOMPARE(QByteArrayList(fake->lines(FakeController::SetValue)), sent);
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialSettingsDlgWakeup::refusedFrequencyShowsTheControllersValue()
{
    SettingsScript script = SettingsScript::typical();
    script.frequency = "50.0";
    script.install(*fake);
    fake->fail("inertial frequency 100.000000");
    Dlg dialog(fake, nullptr, &versions);
    double shown = 0.0;
    SettingsScript::open(dialog, [&] {
        auto* spin = dialog.findChild<QDoubleSpinBox*>("doubleSpinBox_frequency");
        fake->clear_log();
        spin->setValue(100.0);
        shown = spin->value();
    });
    QCOMPARE(shown, 50.0);
    QCOMPARE(fake->message_texts(), QStringList{"Error: Unable to set frequency of inertial system"});
    QCOMPARE(fake->lines(), (QList<QByteArray>{"inertial frequency 100.000000", "inertial frequency"}));
}

void tst_InertialSettingsDlgWakeup::frequencyLimits_data()
{
    QTest::addColumn<QByteArray>("limits");   // empty: the query fails
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QStringList>("messages");

    const QString hybrid = "Error: Unable to get hybrid frequency";
    QTest::newRow("the controller's limits") << QByteArray("10.0 400.0") << 10.0 << 400.0 << QStringList();
    QTest::newRow("failed query keeps 1 to 1000")
        << QByteArray() << 1.0 << 1000.0
        << QStringList{"Error: Unable to get minimum maximum range of the inertial frequency", hybrid};
    QTest::newRow("words instead of numbers") << QByteArray("low high") << 1.0 << 1000.0
                                              << QStringList{hybrid};
    QTest::newRow("minimum above maximum") << QByteArray("600 10") << 1.0 << 1000.0
                                           << QStringList{hybrid};
    QTest::newRow("one number only") << QByteArray("250") << 1.0 << 1000.0 << QStringList{hybrid};
}

void tst_InertialSettingsDlgWakeup::frequencyLimits()
{
    QFETCH(QByteArray, limits);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(QStringList, messages);

    SettingsScript script = SettingsScript::typical();
    script.frequency_limits = limits;
    script.install(*fake);
    if (limits.isEmpty())
        fake->fail("inertial limit frequency");
    Dlg dialog(fake, nullptr, &versions);
    double low = 0.0;
    double high = 0.0;
    SettingsScript::open(dialog, [&] {
        auto* spin = dialog.findChild<QDoubleSpinBox*>("doubleSpinBox_frequency");
        low = spin->minimum();
        high = spin->maximum();
    });
    QCOMPARE(low, minimum);
    QCOMPARE(high, maximum);
    QCOMPARE(fake->message_texts(), messages);
    QCOMPARE(fake->lines(FakeController::SetValue), QList<QByteArray>());
}

void tst_InertialSettingsDlgWakeup::frequencyColumn_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QByteArray>("reply");   // empty: the query fails
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("messages");

    QTest::newRow("100 Hz") << 21 << QByteArray("100.0") << "100 Hz" << QStringList();
    QTest::newRow("10 Hz exactly shows nothing") << 21 << QByteArray("10.0") << "" << QStringList();
    QTest::newRow("rounded to whole hertz") << 21 << QByteArray("10.6") << "11 Hz" << QStringList();
    // Numbered by the row the sensor was filled into, before a later sensor
    // of its transceiver was inserted above it.
    QTest::newRow("failed query") << 21 << QByteArray() << ""
                                  << QStringList{"Error: Unable to get frequency of sensor 2"};
    QTest::newRow("older controller is not asked") << 20 << QByteArray("100.0") << "" << QStringList();
}

void tst_InertialSettingsDlgWakeup::frequencyColumn()
{
    QFETCH(int, minor);
    QFETCH(QByteArray, reply);
    QFETCH(QString, text);
    QFETCH(QStringList, messages);

    versions.minor = minor;
    SettingsScript script = SettingsScript::typical();
    // Older controllers cannot tell a cable sensor's channel; leave it out.
    script.sensors.removeAt(3);
    script.install(*fake);
    if (reply.isEmpty())
        fake->fail("inertial sensor_output_frequency NRV IMU9 'S0001'");
    else
        fake->reply("inertial sensor_output_frequency NRV IMU9 'S0001'", reply);
    Dlg dialog(fake, nullptr, &versions);
    SettingsScript::open(dialog);

    const QTableWidgetItem* cell = dialog.findChild<QTableWidget*>("tableWidget")->item(2, Dlg::ColFrequency);
    QCOMPARE(cell->text(), text);
    QCOMPARE(cell->textAlignment(), int(Qt::AlignCenter));
    QVERIFY(!(cell->flags() & Qt::ItemIsEditable));
    QCOMPARE(fake->message_texts(), messages);
    QCOMPARE(fake->count("inertial sensor_output_frequency NRV IMU9 'S0001'"), minor >= 21 ? 1 : 0);
}

QTEST_MAIN(tst_InertialSettingsDlgWakeup)
#include "tst_InertialSettingsDlgWakeup.moc"
