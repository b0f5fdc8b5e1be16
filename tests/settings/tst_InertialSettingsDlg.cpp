#include <QtTest>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QToolBox>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "SettingsScript.h"
#include "SettingsTestCase.h"
#include "settings/InertialSettingsDlg.h"

// The frame of the settings dialog: what each opening decides, its timers,
// the keyboard, the reopen message and leaving.
class tst_InertialSettingsDlg : public SettingsTestCase
{
    Q_OBJECT

private slots:
    void opening_data();
    void opening();
    void lockIconComesAndGoes();
    void closingStopsEveryTimer();
    void pageKeys_data();
    void pageKeys();
    void escapeLeavesThroughClose();
    void returningToStaleSettingsPageRebuilds();
    void reopen_data();
    void reopen();
    void askedAgainWhileOpenDoesNotNest();
    void aboutToExitUnregisters();
    void addSensorOpensItsDialog();
    void editedCellHoldsRefresh();

private:
    struct Snapshot
    {
        QString error;
        bool add = false;
        bool mode = false;
        bool frequency = false;
        bool table = false;
        bool scan = true;
        bool warmup = true;
        bool progressVisible = false;
        QString warmupText;
        QStringList timers;
        int rows = -1;
    };
    static Snapshot snapshot(InertialSettingsDlg& dialog);
    static QStringList running_timers(InertialSettingsDlg& dialog);
};

QStringList tst_InertialSettingsDlg::running_timers(InertialSettingsDlg& dialog)
{
    QStringList names;
    for (const char* name : {"buttonTimer", "firstRefreshTimer", "notPresentTimer", "sensorDataTimer"})
        if (dialog.findChild<QTimer*>(name)->isActive())
            names << name;
    return names;
}

tst_InertialSettingsDlg::Snapshot tst_InertialSettingsDlg::snapshot(InertialSettingsDlg& dialog)
{
    Snapshot s;
    s.error = dialog.findChild<QLabel*>("label_error")->text();
    s.add = dialog.findChild<QPushButton*>("pushButton_addSensor")->isEnabled();
    s.mode = dialog.findChild<QComboBox*>("comboBox_mode")->isEnabled();
    s.frequency = dialog.findChild<QDoubleSpinBox*>("doubleSpinBox_frequency")->isEnabled();
    s.table = dialog.findChild<QTableWidget*>("tableWidget")->isEnabled();
    s.scan = dialog.findChild<QPushButton*>("pushButton_scanAvailableChannels")->isEnabled();
    s.warmup = dialog.findChild<QPushButton*>("pushButton_warmup")->isEnabled();
    s.progressVisible = dialog.findChild<QProgressBar*>("progressBar")->isVisible();
    s.warmupText = dialog.findChild<QPushButton*>("pushButton_warmup")->text();
    s.timers = running_timers(dialog);
    s.rows = dialog.findChild<QTableWidget*>("tableWidget")->rowCount();
    return s;
}

void tst_InertialSettingsDlg::opening_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QByteArray>("changeable");
    QTest::addColumn<QByteArray>("available");
    QTest::addColumn<bool>("transceivers");
    QTest::addColumn<QByteArray>("warmup");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("enabled");   // of add, mode, frequency, table, scan, warmup
    QTest::addColumn<QString>("warmupText");
    QTest::addColumn<QStringList>("timers");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QByteArrayList>("asked");
    QTest::addColumn<QByteArrayList>("notAsked");

    const QString red = QStringLiteral("<b><font color=red>%1</font></b>");
    QTest::newRow("1.11 controller: no availability query, nothing read")
        << 11 << QByteArray("yes") << QByteArray("yes") << true << QByteArray("no")
        << red.arg("This controller does not support hybrid sensors - please update your controller")
        << "table" << "&Warmup start" << QStringList() << 0
        << QByteArrayList{"config is_changeable"}
        << QByteArrayList{"inertial available", "inertial number_of_transceivers", "inertial warmup"};
    QTest::newRow("configuration locked: table filled, everything off")
        << 21 << QByteArray("no") << QByteArray("yes") << true << QByteArray("no")
        << red.arg("The configuration is locked: the inertial settings cannot be changed")
        << "" << "&Warmup start" << QStringList() << 8
        << QByteArrayList{"inertial number_of_sensors", "inertial limit frequency"}
        << QByteArrayList{"inertial available", "inertial warmup"};
    QTest::newRow("inertial tracking unavailable")
        << 21 << QByteArray("yes") << QByteArray("no") << true << QByteArray("no")
        << red.arg("Hybrid tracking is not available!")
        << "table" << "&Warmup start" << QStringList() << 8
        << QByteArrayList{"inertial available", "inertial number_of_sensors"}
        << QByteArrayList{"inertial warmup", "inertial number_of_wakeup_modes"};
    QTest::newRow("no transceiver: only the channel scan is off, no timer")
        << 21 << QByteArray("yes") << QByteArray("yes") << false << QByteArray("no")
        << QString() << "add mode frequency table warmup" << "&Warmup start" << QStringList() << 6
        << QByteArrayList{"inertial number_of_wakeup_modes", "inertial frequency"}
        << QByteArrayList{"inertial warmup"};
    QTest::newRow("warm-up already running: sensor data timer instead of the poll")
        << 21 << QByteArray("yes") << QByteArray("yes") << true << QByteArray("yes")
        << QString() << "warmup" << "Warmup stop"
        << QStringList{"buttonTimer", "firstRefreshTimer", "sensorDataTimer"} << 8
        << QByteArrayList{"inertial warmup"} << QByteArrayList{};
    QTest::newRow("ready: presence poll and button refresh")
        << 21 << QByteArray("yes") << QByteArray("yes") << true << QByteArray("no")
        << QString() << "add mode frequency table scan warmup" << "Warmup start"
        << QStringList{"buttonTimer", "firstRefreshTimer", "notPresentTimer"} << 8
        << QByteArrayList{"inertial warmup", "inertial limit frequency"} << QByteArrayList{};
}

void tst_InertialSettingsDlg::opening()
{
    QFETCH(int, minor);
    QFETCH(QByteArray, changeable);
    QFETCH(QByteArray, available);
    QFETCH(bool, transceivers);
    QFETCH(QByteArray, warmup);
    QFETCH(QString, error);
    QFETCH(QString, enabled);
    QFETCH(QString, warmupText);
    QFETCH(QStringList, timers);
    QFETCH(int, rows);
    QFETCH(QByteArrayList, asked);
    QFETCH(QByteArrayList, notAsked);

    versions.minor = minor;
    SettingsScript script = SettingsScript::typical();
    script.config_changeable = changeable;
    script.available = available;
    script.warmup = warmup;
    if (!transceivers) {
        script.transceivers.clear();
        for (SettingsScript::Sensor& sensor : script.sensors)
            sensor.transceiver = "none";
    }
    script.install(*fake);

    InertialSettingsDlg dialog(fake, nullptr, &versions);
    Snapshot s;
    SettingsScript::open(dialog, [&] { s = snapshot(dialog); });

    QCOMPARE(s.error, error);
    QCOMPARE(s.add, enabled.contains("add"));
    QCOMPARE(s.mode, enabled.contains("mode"));
    QCOMPARE(s.frequency, enabled.contains("frequency"));
    QCOMPARE(s.table, enabled.contains("table"));
    QCOMPARE(s.scan, enabled.contains("scan"));
    QCOMPARE(s.warmup, enabled.contains("warmup"));
    QCOMPARE(s.warmupText, warmupText);
    // Hidden wherever the page cannot be used.
    QCOMPARE(s.progressVisible, error.isEmpty());
    QCOMPARE(s.timers, timers);
    QCOMPARE(s.rows, rows);
    for (const QByteArray& line : asked)
        QVERIFY2(fake->count(line) > 0, line.constData());
    for (const QByteArray& line : notAsked)
        QVERIFY2(fake->count(line) == 0, line.constData());
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
    QCOMPARE(fake->lines(FakeController::SetValue), QList<QByteArray>());
}

void tst_InertialSettingsDlg::lockIconComesAndGoes()
{
    SettingsScript script = SettingsScript::typical();
    script.config_changeable = "no";
    script.install(*fake);
    QWidget parent;
    parent.setWindowIcon(QIcon(":/sensor.png"));
    InertialSettingsDlg dialog(fake, &parent, &versions);

    const auto image = [](const QIcon& icon) { return icon.pixmap(16, 16).toImage(); };
    QImage locked;
    SettingsScript::open(dialog, [&] { locked = image(dialog.windowIcon()); });
    QCOMPARE(locked, image(QIcon(":/lock.png")));

    fake->reply("config is_changeable", "yes");
    QImage unlocked;
    SettingsScript::open(dialog, [&] { unlocked = image(dialog.windowIcon()); });
    QCOMPARE(unlocked, image(QIcon(":/sensor.png")));
}

void tst_InertialSettingsDlg::closingStopsEveryTimer()
{
    SettingsScript::typical().install(*fake);
    InertialSettingsDlg dialog(fake, nullptr, &versions);
    QStringList inside;
    SettingsScript::open(dialog, [&] { inside = running_timers(dialog); });
    QVERIFY(!inside.isEmpty());
    QCOMPARE(running_timers(dialog), QStringList());
    QVERIFY(!dialog.isVisible());
}

void tst_InertialSettingsDlg::pageKeys_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("to");

    QTest::newRow("1 from the last page") << 2 << int(Qt::Key_1) << 0;
    QTest::newRow("2 from the first page") << 0 << int(Qt::Key_2) << 1;
    QTest::newRow("3 from the first page") << 0 << int(Qt::Key_3) << 2;
    QTest::newRow("F3 goes forward") << 0 << int(Qt::Key_F3) << 1;
    QTest::newRow("F4 goes forward too") << 1 << int(Qt::Key_F4) << 2;
    QTest::newRow("F4 on the last page wraps to the first") << 2 << int(Qt::Key_F4) << 0;
    QTest::newRow("F3 on the last page wraps to the first") << 2 << int(Qt::Key_F3) << 0;
    QTest::newRow("another digit does nothing") << 1 << int(Qt::Key_4) << 1;
}

void tst_InertialSettingsDlg::pageKeys()
{
    QFETCH(int, from);
    QFETCH(int, key);
    QFETCH(int, to);

    SettingsScript::typical().install(*fake);
    InertialSettingsDlg dialog(fake, nullptr, &versions);
    auto* pages = dialog.findChild<QToolBox*>("toolBox");
    int reached = -1;
    SettingsScript::open(dialog, [&] {
        pages->setCurrentIndex(from);
        QTest::keyClick(&dialog, Qt::Key(key));
        reached = pages->currentIndex();
    });
    QCOMPARE(reached, to);
}

void tst_InertialSettingsDlg::escapeLeavesThroughClose()
{
    SettingsScript::typical().install(*fake);
    InertialSettingsDlg dialog(fake, nullptr, &versions);

    // Escape must run the close handling, not only reject the dialog.
    struct CloseSpy : QObject
    {
        int closes = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            closes += event->type() == QEvent::Close ? 1 : 0;
            return false;
        }
    } spy;
    dialog.installEventFilter(&spy);

    bool closed = false;
    ModalDialogHelper::when_active("InertialSettingsDlg", [&](QWidget*) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        closed = !dialog.isVisible();
    });
    QCOMPARE(dialog.update_and_exec(), int(QDialog::Rejected));
    QVERIFY(closed);
    QCOMPARE(spy.closes, 1);
    QCOMPARE(running_timers(dialog), QStringList());
}

void tst_InertialSettingsDlg::returningToStaleSettingsPageRebuilds()
{
    SettingsScript::typical().install(*fake);
    InertialSettingsDlg dialog(fake, nullptr, &versions);
    auto* pages = dialog.findChild<QToolBox*>("toolBox");
    int fresh = -1;
    int afterAdding = -1;
    SettingsScript::open(dialog, [&] {
        // Right after the opening the table is current: no second rebuild.
        pages->setCurrentIndex(1);
        pages->setCurrentIndex(0);
        fresh = fake->count("inertial number_of_transceivers");

        // Leaving the add sensor dialog without adding leaves it stale.
        ModalDialogHelper::when_active("AddInertialSensorDlg", ModalDialogHelper::close);
        dialog.findChild<QPushButton*>("pushButton_addSensor")->click();
        pages->setCurrentIndex(2);
        pages->setCurrentIndex(0);
        afterAdding = fake->count("inertial number_of_transceivers");
    });
    // Counted once by the opening's table and once by its transceiver check;
    // then once by the add sensor dialog's own check and once by the rebuild.
    QCOMPARE(fresh, 2);
    QCOMPARE(afterAdding, 4);

    // Reopening from another page rebuilds once, not once more for the page.
    fake->clear_log();
    SettingsScript::open(dialog, [&] { pages->setCurrentIndex(2); });
    fake->clear_log();
    SettingsScript::open(dialog);
    QCOMPARE(fake->count("inertial number_of_sensors"), 1);
}

void tst_InertialSettingsDlg::reopen_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("reopens");

    QTest::newRow("reopen") << QByteArray("reopen") << true;
    QTest::newRow("capital R") << QByteArray("Reopen") << false;
    QTest::newRow("a word behind") << QByteArray("reopen now") << false;
    QTest::newRow("a blank behind") << QByteArray("reopen ") << false;
    QTest::newRow("a blank before") << QByteArray(" reopen") << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("another module's request") << QByteArray("OpenHybridBodyCalibration") << false;
}

void tst_InertialSettingsDlg::reopen()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, reopens);

    SettingsScript::typical().install(*fake);
    InertialSettingsDlg dialog(fake, nullptr, &versions);
    bool opened = false;
    ModalDialogHelper::when_active("InertialSettingsDlg", [&](QWidget* w) {
        opened = true;
        ModalDialogHelper::close(w);
    });

    QCOMPARE(fake->deliver("InertialModule", 0, "x", text.constData()), 0);
    // Queued: nothing happens before the event loop runs.
    QVERIFY(!opened);
    QCoreApplication::processEvents();
    if (reopens)
        QTRY_VERIFY(opened);
    QCOMPARE(opened, reopens);
    ModalDialogHelper::clear_pending();
    // A reopen runs the dialog as it stands, without asking the controller.
    QCOMPARE(fake->lines(), QList<QByteArray>());
}

void tst_InertialSettingsDlg::askedAgainWhileOpenDoesNotNest()
{
    SettingsScript::typical().install(*fake);
    InertialSettingsDlg dialog(fake, nullptr, &versions);
    int runs = 0;
    QList<QByteArray> askedAgain;
    ModalDialogHelper::when_active("InertialSettingsDlg", [&](QWidget*) {
        ++runs;
        fake->clear_log();
        fake->deliver("InertialModule", 1, "HybridBodyCalibration", "reopen");
        QCoreApplication::processEvents();
        dialog.update_and_exec();
        askedAgain = fake->lines();
        dialog.findChild<QPushButton*>("pushButton_exit")->click();
    });
    dialog.update_and_exec();
    QCoreApplication::processEvents();
    QCOMPARE(runs, 1);
    QCOMPARE(askedAgain, QList<QByteArray>());
    QVERIFY(!dialog.isVisible());
}

void tst_InertialSettingsDlg::aboutToExitUnregisters()
{
    InertialSettingsDlg dialog(fake, nullptr, &versions);
    QVERIFY(fake->receiver("InertialModule"));
    dialog.about_to_exit();
    QCOMPARE(fake->receiver("InertialModule"), nullptr);
    QCOMPARE(fake->lines(), QList<QByteArray>());
}

void tst_InertialSettingsDlg::addSensorOpensItsDialog()
{
    SettingsScript::typical().install(*fake);
    InertialSettingsDlg dialog(fake, nullptr, &versions);
    QStringList during;
    QStringList after;
    QString added;
    SettingsScript::open(dialog, [&] {
        ModalDialogHelper::when_active("AddInertialSensorDlg", [&](QWidget* w) {
            added = w->metaObject()->className();
            during = running_timers(dialog);
            ModalDialogHelper::close(w);
        });
        dialog.findChild<QPushButton*>("pushButton_addSensor")->click();
        after = running_timers(dialog);
    });
    QCOMPARE(added, QString("AddInertialSensorDlg"));
    // The hidden table is not refreshed while sensors are being added.
    QCOMPARE(during, QStringList());
    QCOMPARE(after, (QStringList{"buttonTimer", "notPresentTimer"}));
}

void tst_InertialSettingsDlg::editedCellHoldsRefresh()
{
    SettingsScript::typical().install(*fake);
    InertialSettingsDlg dialog(fake, nullptr, &versions);
    auto* table = dialog.findChild<QTableWidget*>("tableWidget");
    QList<QByteArray> whileEditing;
    QList<QByteArray> afterEditing;
    SettingsScript::open(dialog, [&] {
        QTableWidgetItem* name = table->item(2, InertialSettingsDlg::ColName);
        name->setFlags(name->flags() | Qt::ItemIsEditable);
        emit table->cellClicked(2, InertialSettingsDlg::ColName);
        fake->clear_log();
        dialog.update_buttons();
        whileEditing = fake->lines();

        name->setText("Renamed");   // the edit ends with the item changed
        fake->clear_log();
        dialog.update_buttons();
        afterEditing = fake->lines();
    });
    // Only the availability check: the rows are left alone while editing.
    QCOMPARE(whileEditing, QList<QByteArray>{"inertial available"});
    QVERIFY(afterEditing.contains("inertial sensor_present NRV IMU9 'S0001'"));
}

QTEST_MAIN(tst_InertialSettingsDlg)
#include "tst_InertialSettingsDlg.moc"
