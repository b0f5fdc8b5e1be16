#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

#include <functional>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "TypicalSystem.h"
#include "addsensor/AddInertialSensorDlg.h"
#include "module/BackendVersions.h"
#include "settings/ChannelComboBox.h"

namespace {

const QByteArray Scanned = "inertial number_of_scanned_sensors";

QByteArray channel_line(int channel)
{
    return "inertial scan_transceiver_channel t01 NRV Dongle 'T1001' " + QByteArray::number(channel);
}

// Every text the label showed while it was painted: the scan repaints it
// before each blocking command, so this is what the user saw meanwhile.
class PaintedTexts : public QObject
{
public:
    explicit PaintedTexts(QLabel* label) : label(label) { label->installEventFilter(this); }
    QStringList texts;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && (texts.isEmpty() || texts.last() != label->text()))
            texts << label->text();
        return false;
    }

private:
    QLabel* label;
};

} // namespace

// The add sensor dialog against the typical system: scanning in each mode,
// one channel per tick, what stops a scan, and adding the accepted sensors
// to free bodies.
class tst_AddInertialSensorDlg : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void scanModes_data();
    void scanModes();
    void usbScanAsksInOrder();
    void scan_data();
    void scan();
    void scanFailures_data();
    void scanFailures();
    void haltedScanAndReopening();
    void acceptAllAndClicks();
    void apply_data();
    void apply();

private:
    // Opens the dialog, runs `steps` inside it and leaves by Exit.
    void open(const std::function<void()>& steps);
    template <class T = QWidget>
    T* w(const char* name) const { return dialog->findChild<T*>(QLatin1String(name)); }
    // Starts a scan in `mode` and ticks until it is over; returns the ticks.
    int scan(const QString& mode, int cancel_after = -1);
    void tick() { QMetaObject::invokeMethod(dialog, "scan_channels"); }
    // The found sensors as "id model channel accept" rows.
    QStringList rows() const;
    void answer_box(int button);

    FakeController* fake = nullptr;
    BackendVersions versions;
    TypicalSystem system;
    QDialog* parent = nullptr;
    AddInertialSensorDlg* dialog = nullptr;
    QString box;
};

void tst_AddInertialSensorDlg::init()
{
    fake = new FakeController;
    versions = BackendVersions();
    versions.major = 1;
    versions.minor = 21;
    system = TypicalSystem();
    system.install(*fake);
    fake->set_stateful(true);
    // Two new sensors wait on channel 35, one of the paired ones answers too.
    for (const QByteArray setting : {"inertial number_of_scan_channels 1", "inertial number_of_scan_channels 0",
                                     "inertial scan_transceiver_channel t01 usb"})
        fake->accept(setting);
    for (int channel = 2; channel <= 81; ++channel)
        fake->accept(channel_line(channel));
    fake->reply("norvane inertial scan_sensors", "norvane ok");
    fake->replies(Scanned, {"-1", "3"});
    fake->reply("inertial scanned_sensor d01", "NRV IMU9 'S0007' 35");
    fake->reply("inertial scanned_sensor d02", "NRV IMU9 'S0001' 35");
    fake->reply("inertial scanned_sensor d03", "NRV IMU6 'C0008' 35");
    box.clear();
    parent = new QDialog;
    dialog = new AddInertialSensorDlg(fake, parent, &versions);
}

void tst_AddInertialSensorDlg::cleanup()
{
    delete parent;
    delete fake;
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_AddInertialSensorDlg::open(const std::function<void()>& steps)
{
    ModalDialogHelper::when_active("AddInertialSensorDlg", [this, steps](QWidget*) {
        steps();
        if (w<QPushButton>("pushButton_exit")->isEnabled())
            w<QPushButton>("pushButton_exit")->click();
        else
            dialog->hide();   // a scan left halted
    });
    dialog->update_and_exec();
}

int tst_AddInertialSensorDlg::scan(const QString& mode, int cancel_after)
{
    auto* modes = w<QComboBox>("comboBox_scanMode");
    modes->setCurrentIndex(modes->findText(mode));
    w<QPushButton>("pushButton_scan")->click();
    int ticks = 0;
    for (; !w<QPushButton>("pushButton_scan")->isEnabled() && ticks < 200; ++ticks) {
        if (ticks == cancel_after)
            w<QPushButton>("pushButton_cancel")->click();
        tick();
    }
    return ticks;
}

QStringList tst_AddInertialSensorDlg::rows() const
{
    QStringList result;
    auto* table = w<QTableWidget>("tableWidget");
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < 4; ++column)
            cells << table->item(row, column)->text();
        const QTableWidgetItem* accept = table->item(row, 4);
        cells << (accept->flags() == Qt::NoItemFlags ? "-" : accept->checkState() == Qt::Checked ? "x" : "o");
        result << cells.join(' ');
    }
    return result;
}

void tst_AddInertialSensorDlg::answer_box(int button)
{
    ModalDialogHelper::when_active("QMessageBox", [this, button](QWidget* w) {
        box = w->windowTitle() + ": " + qobject_cast<QMessageBox*>(w)->text();
        ModalDialogHelper::press(w, button);
    });
}

void tst_AddInertialSensorDlg::scanModes_data()
{
    QTest::addColumn<QByteArray>("transceivers");   // empty: the query fails
    QTest::addColumn<QStringList>("modes");

    const QStringList radio{"default channels", "single channel", "all channels", "USB"};
    QTest::newRow("one transceiver") << QByteArray("1") << radio;
    QTest::newRow("none") << QByteArray("0") << QStringList{"USB"};
    QTest::newRow("query fails") << QByteArray() << QStringList{"USB"};
    QTest::newRow("negative count") << QByteArray("-3") << QStringList{"USB"};
}

void tst_AddInertialSensorDlg::scanModes()
{
    QFETCH(QByteArray, transceivers);
    QFETCH(QStringList, modes);

    transceivers.isEmpty() ? fake->fail("inertial number_of_transceivers")
                           : fake->reply("inertial number_of_transceivers", transceivers);
    QStringList seen;
    QString state;
    open([&] {
        auto* combo = w<QComboBox>("comboBox_scanMode");
        for (int i = 0; i < combo->count(); ++i)
            seen << combo->itemText(i);
        state = QString("%1 %2 %3 %4 %5").arg(combo->currentText()).arg(w("comboBox_channel")->isEnabled())
                    .arg(w("pushButton_cancel")->isEnabled()).arg(w("pushButton_apply")->isEnabled())
                    .arg(dialog->focusWidget() == w("pushButton_scan"));
    });
    QCOMPARE(seen, modes);
    QCOMPARE(state, QString("USB 0 0 0 1"));
    QCOMPARE(fake->lines(), QList<QByteArray>{"inertial number_of_transceivers"});
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_AddInertialSensorDlg::usbScanAsksInOrder()
{
    PaintedTexts painted(w<QLabel>("label_channel"));
    bool cancel = true;
    open([&] {
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        fake->clear_log();
        w<QPushButton>("pushButton_scan")->click();
        cancel = w("pushButton_cancel")->isEnabled() || w("pushButton_exit")->isEnabled()
                 || w("comboBox_scanMode")->isEnabled();
        tick();
    });
    QVERIFY(!cancel);
    QCOMPARE(fake->lines(), (QList<QByteArray>{
        "inertial number_of_sensors", "inertial sensor d01", "inertial sensor d02", "inertial sensor d03",
        "inertial sensor d04", "inertial sensor d05", "inertial number_of_scan_channels 1",
        "inertial scan_transceiver_channel t01 usb", "norvane inertial scan_sensors", Scanned, Scanned,
        "inertial scanned_sensor d01", "inertial sensor_model_desc NRV IMU9", "inertial sensor_vendor_desc NRV",
        "inertial scanned_sensor d02", "inertial sensor_model_desc NRV IMU9", "inertial sensor_vendor_desc NRV",
        "inertial scanned_sensor d03", "inertial sensor_model_desc NRV IMU6", "inertial sensor_vendor_desc NRV",
        "inertial number_of_scan_channels 0"}));
    // The scan command alone is waited for separately, under a long time-out.
    const FakeController::Call& command = fake->calls().at(9);
    QVERIFY(command.wait_separately && command.timeout_ms == 20000 && command.timeout_flag);
    QCOMPARE(fake->calls().at(10).operation, FakeController::WaitForCompletion);
    QCOMPARE(fake->calls().at(11).wait_separately, false);
    QVERIFY2(painted.texts.contains("Scanning USB..."), qPrintable(painted.texts.join('|')));
    // A paired sensor is listed but cannot be accepted.
    QCOMPARE(rows(), (QStringList{"S0007 Norvane IMU9 sensor 35 o", "S0001 Norvane IMU9 sensor 35 -",
                                  "C0008 Norvane IMU6 sensor 35 o"}));
    QCOMPARE(w<QTableWidget>("tableWidget")->rowHeight(0), 20);
    QCOMPARE(w<QLabel>("label_channel")->text() + ' ' + QString::number(w<QProgressBar>("progressBar_overall")->value()),
             QString("Scanning USB done 100"));
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_AddInertialSensorDlg::scan_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("cancel");          // after this many ticks, -1: never
    QTest::addColumn<int>("ticks");
    QTest::addColumn<QList<int>>("channels");  // scanned, in order
    QTest::addColumn<QString>("end");          // label, progress, then whether Cancel was usable
    QTest::addColumn<QList<int>>("progress");  // after each tick

    QTest::newRow("default channels") << "default channels" << -1 << 2 << QList<int>{35, 55}
                                      << "Scanning channels done 100 1" << QList<int>{50, 100};
    QTest::newRow("all channels, one a tick") << "all channels" << -1 << 80 << QList<int>{2, 3, 4, 81}
                                              << "Scanning channels done 100 1" << QList<int>{1, 3, 4, 50, 99, 100};
    QTest::newRow("single channel 47") << "single channel" << -1 << 1 << QList<int>{47}
                                       << "Scanning channel done 100 0" << QList<int>{100};
    QTest::newRow("cancelled: seen at the next tick") << "all channels" << 2 << 3 << QList<int>{2, 3}
                                                      << "Scanning channels aborted 0 1" << QList<int>{1, 3, 0};
}

void tst_AddInertialSensorDlg::scan()
{
    QFETCH(QString, mode);
    QFETCH(int, cancel);
    QFETCH(int, ticks);
    QFETCH(QList<int>, channels);
    QFETCH(QString, end);
    QFETCH(QList<int>, progress);

    fake->replies(Scanned, {"-1", "0"});
    fake->reply("inertial scanned_sensor d01", "NRV IMU9 'S0007' 0");
    QList<int> seen;
    bool cancellable = false;
    bool chooser = false;
    open([&] {
        auto* modes = w<QComboBox>("comboBox_scanMode");
        modes->setCurrentIndex(modes->findText(mode));
        auto* pick = w<ChannelComboBox>("comboBox_channel");
        chooser = pick->isEnabled();
        if (chooser) {   // the user picks 47 in the grid
            QCOMPARE(pick->currentText(), QString("2"));
            pick->showPopup();
            pick->table()->setCurrentCell(4, 6);
            QTest::keyClick(pick->table(), Qt::Key_Return);
        }
        w<QPushButton>("pushButton_scan")->click();
        cancellable = w("pushButton_cancel")->isEnabled();
        QVERIFY(!pick->isEnabled());
        for (int tick = 0; !w("pushButton_scan")->isEnabled() && tick < 100; ++tick) {
            if (tick == cancel)
                w<QPushButton>("pushButton_cancel")->click();
            this->tick();
            seen << w<QProgressBar>("progressBar_overall")->value();
        }
        QCOMPARE(pick->isEnabled(), chooser);   // given back as it was
    });
    QCOMPARE(chooser, mode == "single channel");
    QCOMPARE(seen.size(), ticks);
    if (seen.size() == 80)
        seen = QList<int>{seen.at(0), seen.at(1), seen.at(2), seen.at(39), seen.at(78), seen.at(79)};
    QCOMPARE(seen, progress);
    QList<int> scanned;
    for (const QByteArray& line : fake->lines(FakeController::SetValue))
        if (line.startsWith("inertial scan_transceiver_channel"))
            scanned << line.mid(line.lastIndexOf(' ') + 1).toInt();
    if (scanned.size() == 80)
        scanned = QList<int>{scanned.at(0), scanned.at(1), scanned.at(2), scanned.at(79)};
    QCOMPARE(scanned, channels);
    QCOMPARE(w<QLabel>("label_channel")->text() + ' ' + QString::number(w<QProgressBar>("progressBar_overall")->value())
                 + ' ' + QString::number(cancellable), end);
    QCOMPARE(fake->count("inertial transceiver d01"), 1);
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_AddInertialSensorDlg::scanFailures_data()
{
    QTest::addColumn<QByteArray>("line");    // fails, or answers `reply`
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QByteArray>("last");    // the last line sent
    QTest::addColumn<int>("rows");

    const QByteArray reset = "inertial number_of_scan_channels 0";
    auto row = [](const char* name, const QByteArray& line, const QStringList& messages, const QByteArray& last,
                  int rows, const QByteArray& reply = {}) {
        QTest::newRow(name) << line << reply << messages << last << rows;
    };
    row("sensor count", "inertial number_of_sensors", {"Error: Unable to get numbers of sensor"}, reset, 3);
    row("a paired sensor", "inertial sensor d02", {"Error: Unable to get informations of sensor"}, reset, 3);
    row("scan slots", "inertial number_of_scan_channels 1", {"Error: Unable to set channels to scan"},
        "inertial number_of_scan_channels 1", 0);
    row("usb slot", "inertial scan_transceiver_channel t01 usb", {"Error: Unable to scan channel of dongle 01"},
        "inertial scan_transceiver_channel t01 usb", 0);
    row("scan not sent", "norvane inertial scan_sensors", {"Error: Unable to scan sensors"},
        "norvane inertial scan_sensors", 0);
    row("scan refused", "norvane inertial scan_sensors", {}, reset, 0, "norvane busy");
    row("scanned count", Scanned, {"Error: Unable to get numbers of sensors to scan"}, Scanned, 0);
    row("still scanning after 100 polls", Scanned, {}, reset, 0, "-1");
    row("a scanned sensor", "inertial scanned_sensor d02", {"Error: Unable to get informations of sensor to add"},
        reset, 1);
    row("its model", "inertial sensor_model_desc NRV IMU6", {"Error: Unable to get description of sensor to add"},
        reset, 2);
    row("its vendor", "inertial sensor_vendor_desc NRV", {"Error: Unable to get vendor description of sensor to add"},
        reset, 0);
    row("no more sensors", "inertial scanned_sensor d02", {}, reset, 1, "");
    row("a short line is skipped", "inertial scanned_sensor d02", {}, reset, 2, "NRV IMU9");
    row("resetting the slots", reset, {"Error: Unable to set channels to scan"}, reset, 3);
}

void tst_AddInertialSensorDlg::scanFailures()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, reply);
    QFETCH(QStringList, messages);
    QFETCH(QByteArray, last);
    QFETCH(int, rows);

    reply.isNull() ? fake->fail(line) : fake->reply(line, reply);
    QString end;
    open([&] {
        QCOMPARE(scan("USB"), 1);
        end = QString("%1 %2 %3%4%5").arg(w<QLabel>("label_channel")->text())
                  .arg(w<QProgressBar>("progressBar_overall")->value()).arg(w("pushButton_exit")->isEnabled())
                  .arg(w("comboBox_scanMode")->isEnabled()).arg(w("pushButton_apply")->isEnabled());
    });
    QCOMPARE(fake->message_texts(), messages);
    QCOMPARE(fake->lines().last(), last);
    QCOMPARE(this->rows().size(), rows);
    // An error stop ends in the "done" words: the message told the user.
    QCOMPARE(end, QString("Scanning USB done 100 110"));
    QCOMPARE(fake->count(Scanned), line == Scanned && reply == "-1" ? 100 : fake->count(Scanned));
}

void tst_AddInertialSensorDlg::haltedScanAndReopening()
{
    fake->fail("inertial transceiver d01");
    QString refused;
    open([&] {
        // Without the first transceiver's name no radio scan starts.
        auto* modes = w<QComboBox>("comboBox_scanMode");
        modes->setCurrentIndex(modes->findText("default channels"));
        w<QPushButton>("pushButton_scan")->click();
        refused = w<QLabel>("label_channel")->text();
        fake->reply("inertial transceiver d01", "NRV Dongle 'T1001'");
        w<QPushButton>("pushButton_scan")->click();
        QVERIFY(!dialog->close());   // refused while the scan can be cancelled
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(dialog->isVisible());   // Escape halts the scan, the dialog stays
        QCOMPARE(fake->count("norvane inertial scan_sensors"), 0);
        QTest::keyClick(dialog, Qt::Key_F3);   // no second scan while one is halted
        QCOMPARE(fake->count("inertial number_of_sensors"), 1);
        dialog->hide();
    });
    QCOMPARE(refused, QString("Scanning channel(s) aborted, could not get informations of dongle 1"));
    QCOMPARE(fake->message_texts(), QStringList{"Error: Unable to get informations of dongle 1"});
    // The next opening starts afresh, and F3 scans as the button does.
    QStringList found;
    open([&] {
        QVERIFY(w("pushButton_scan")->isEnabled() && w("pushButton_exit")->isEnabled());
        QCOMPARE(w<QComboBox>("comboBox_scanMode")->currentText(), QString("USB"));
        QTest::keyClick(dialog, Qt::Key_F3);
        tick();
        found = rows();
        QVERIFY(dialog->close());
    });
    QCOMPARE(found.size(), 3);
    // Cancel ends a scan halted by Escape.
    open([&] {
        auto* modes = w<QComboBox>("comboBox_scanMode");
        modes->setCurrentIndex(modes->findText("all channels"));
        w<QPushButton>("pushButton_scan")->click();
        QTest::keyClick(dialog, Qt::Key_Escape);
        w<QPushButton>("pushButton_cancel")->click();
        QTRY_VERIFY(w("pushButton_scan")->isEnabled());
        QCOMPARE(w<QLabel>("label_channel")->text(), QString("Scanning channels aborted"));
    });
    QCOMPARE(fake->count("norvane inertial scan_sensors"), 1);
}

void tst_AddInertialSensorDlg::acceptAllAndClicks()
{
    QString warning;
    open([&] {
        // "single channel" without a channel: nothing to scan.
        answer_box(QMessageBox::Ok);
        auto* modes = w<QComboBox>("comboBox_scanMode");
        modes->setCurrentIndex(modes->findText("single channel"));
        w<ChannelComboBox>("comboBox_channel")->setChannel(-1);
        w<QPushButton>("pushButton_scan")->click();
        warning = box;
        QCOMPARE(scan("USB"), 1);
        auto* table = w<QTableWidget>("tableWidget");
        auto* apply = w<QPushButton>("pushButton_apply");
        auto* all = w<QCheckBox>("checkBox_acceptAll");
        QVERIFY(!apply->isEnabled());
        all->setChecked(true);
        QCOMPARE(rows().join(' ').count(" x"), 2);
        QVERIFY(apply->isEnabled());
        // A click on one Accept cell unticks "accept all" and keeps the others.
        const QRect cell = table->visualItemRect(table->item(0, 4));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(cell.left() + 10, cell.center().y()));
        QCOMPARE(rows().join(',').remove("Norvane ").remove(" sensor 35"),
                 QString("S0007 IMU9 o,S0001 IMU9 -,C0008 IMU6 x"));
        QVERIFY(!all->isChecked() && apply->isEnabled());
        all->setChecked(true);
        all->setChecked(false);
        QVERIFY(!apply->isEnabled());
        table->item(2, 4)->setCheckState(Qt::Checked);   // by keyboard: no click
        QVERIFY(apply->isEnabled());
    });
    QCOMPARE(warning, QString("Warning: Please select a channel to scan"));
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_AddInertialSensorDlg::apply_data()
{
    QTest::addColumn<bool>("taken");        // every body of the count carries a sensor or is calibrated
    QTest::addColumn<QByteArray>("line");   // fails, or answers `reply`
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QList<QByteArray>>("sent");   // settings and commands, in order
    QTest::addColumn<QString>("accept");           // the Accept cells after
    QTest::addColumn<QString>("shown");            // the messages, or the box

    const QByteArray add7 = "norvane inertial add_sensor NRV IMU9 'S0007' 35";
    const QByteArray add8 = "norvane inertial add_sensor NRV IMU6 'C0008' 35";
    const QByteArray on3 = "body inertial_sensor standard b03 NRV IMU9 'S0007'";
    const QByteArray on5 = "body inertial_sensor standard b05 NRV IMU6 'C0008'";
    auto row = [](const char* name, bool taken, const QByteArray& line, const QList<QByteArray>& sent,
                  const QString& accept, const QString& shown, const QByteArray& reply = {}) {
        QTest::newRow(name) << taken << line << reply << sent << accept << shown;
    };
    row("the first free bodies", false, "", {add7, on3, add8, on5}, "- - -", "");
    row("bodies raised up to the maximum", true, "", {add7, "standard number_of_bodies 7",
        "body inertial_sensor standard b07 NRV IMU9 'S0007'", add8, "standard number_of_bodies 8",
        "body inertial_sensor standard b08 NRV IMU6 'C0008'"}, "- - -", "");
    row("maximum reached: taken off again", true, "standard max_number_of_bodies", {add7, add8,
        "norvane inertial delete_sensor NRV IMU9 'S0007'", "norvane inertial delete_sensor NRV IMU6 'C0008'"},
        "x - x", "Sensor adding failed: Following sensors are not added:\n\n'S0007'\n'C0008'\n\n because the "
        "maximum number of bodies is reached.", "6");
    row("no storage: no body", false, "inertial sensor_has_storage NRV IMU9 'S0007'",
        {add7, add8, "body inertial_sensor standard b03 NRV IMU6 'C0008'"}, "- - -", "", "no");
    row("storage unknown: a body anyway", false, "inertial sensor_has_storage NRV IMU9 'S0007'",
        {add7, on3, add8, on5}, "- - -", "Error: Unable to get whether sensor has storage");
    row("refused: told why, nothing more", false, add7, {add7}, "x - x",
        "Information: Could not add sensor norvane err 7 not now", "norvane err 7 'not now'");
    row("not sent", false, add7, {add7}, "x - x", "Error: Unable to add sensor");
    row("maximum unknown", false, "standard max_number_of_bodies", {}, "x - x",
        "Error: Unable to get max number of bodies");
    row("count unknown", false, "standard number_of_bodies", {add7}, "x - x", "Error: Unable to get number of bodies");
    row("calibration unknown", false, "body calibrated standard b01", {add7}, "x - x",
        "Error: Unable to get calibration of body");
    row("sensor of a body unknown", false, "body inertial_sensor standard b01", {add7}, "x - x",
        "Error: Unable to get inertial information of body");
    row("raising refused", true, "standard number_of_bodies 7", {add7, "standard number_of_bodies 7"}, "x - x",
        "Error: Unable to set number of bodies");
    row("placing refused", false, on3, {add7, on3}, "x - x", "Error: Unable to set inertial sensor to body");
}

void tst_AddInertialSensorDlg::apply()
{
    QFETCH(bool, taken);
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, reply);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QString, accept);
    QFETCH(QString, shown);

    for (const QByteArray& sensor : {QByteArray("NRV IMU9 'S0007'"), QByteArray("NRV IMU6 'C0008'")}) {
        fake->reply("norvane inertial add_sensor " + sensor + " 35", "norvane ok");
        fake->reply("norvane inertial delete_sensor " + sensor, "norvane ok");
        fake->reply("inertial sensor_has_storage " + sensor, "yes");
    }
    for (const char* body : {"b03", "b05", "b06"})
        fake->reply(QByteArray("body calibrated standard ") + body, taken ? "yes" : "no");
    if (!line.isEmpty())
        reply.isNull() ? fake->fail(line) : fake->reply(line, reply);
    QString cells;
    open([&] {
        QCOMPARE(scan("USB"), 1);
        w<QCheckBox>("checkBox_acceptAll")->setChecked(true);
        fake->clear_log();
        if (shown.startsWith("Information") || shown.startsWith("Sensor adding failed"))
            answer_box(QMessageBox::Ok);
        w<QPushButton>("pushButton_apply")->click();
        cells = rows().join(' ').remove(QRegularExpression("\\S+ Norvane IMU\\d sensor 35 "));
        QVERIFY(dialog->isVisible() && !QApplication::overrideCursor());
    });
    QList<QByteArray> changes;
    for (const FakeController::Call& call : fake->calls())
        if (call.operation == FakeController::SetValue || call.operation == FakeController::SendCommand)
            changes << call.line;
    QCOMPARE(changes, sent);
    QCOMPARE(cells, accept);
    QCOMPARE(box.isEmpty() ? fake->message_texts().join('\n') : box, shown);
}

QTEST_MAIN(tst_AddInertialSensorDlg)
#include "tst_AddInertialSensorDlg.moc"
