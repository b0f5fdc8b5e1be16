#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

#include <functional>

#include "DialogFixture.h"
#include "TypicalSystem.h"
#include "addsensor/AddInertialSensorDlg.h"
#include "settings/ChannelComboBox.h"

namespace {

const QByteArray Scanned = "inertial number_of_scanned_sensors";
const QByteArray Add7 = "norvane inertial add_sensor NRV IMU9 'S0007' 35";
const QByteArray Add8 = "norvane inertial add_sensor NRV IMU6 'C0008' 35";

} // namespace

// The add sensor dialog against the typical system, whose first transceiver
// hears two new sensors (S0007, C0008) and a paired one (S0001) on channel
// 35: scanning in each mode one channel a tick, what stops a scan, and
// adding the accepted sensors to free bodies.
class tst_AddInertialSensorDlg : public QObject, DialogFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { finish(); }
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
    // Starts a scan in `mode`, ticks until it is over (Cancel after `cancel`
    // ticks); returns whether Cancel was usable. Meanwhile `labels` gets the
    // label at each scan command, `bars` the progress at each poll.
    bool scan(const QString& mode, int cancel = -1);
    // The label, the progress and whether Scan, Exit and the modes are usable.
    QString state() const;
    // The found sensors as "id vendor model channel accept" rows.
    QStringList rows() const;
    void answer_box(int button);

    AddInertialSensorDlg* dialog = nullptr;
    QString box;
    QStringList labels;
    QStringList bars;
};

void tst_AddInertialSensorDlg::init()
{
    start();
    TypicalSystem().install(*fake);
    fake->set_stateful(true);
    for (const QByteArray setting : {"inertial number_of_scan_channels 1", "inertial number_of_scan_channels 0",
                                     "inertial scan_transceiver_channel t01 usb"})
        fake->accept(setting);
    for (int channel = 2; channel <= 81; ++channel)
        fake->accept("inertial scan_transceiver_channel t01 NRV Dongle 'T1001' " + QByteArray::number(channel));
    fake->reply("norvane inertial scan_sensors", "norvane ok");
    fake->replies(Scanned, {"-1", "3"});
    fake->reply("inertial scanned_sensor d01", "NRV IMU9 'S0007' 35");
    fake->reply("inertial scanned_sensor d02", "NRV IMU9 'S0001' 35");
    fake->reply("inertial scanned_sensor d03", "NRV IMU6 'C0008' 35");
    box.clear();
    labels.clear();
    bars.clear();
    dialog = new AddInertialSensorDlg(fake, owner, &versions);
    fake->when_asked("norvane inertial scan_sensors", [this] { labels << w<QLabel>("label_channel")->text(); });
    fake->when_asked(Scanned, [this] { bars << QString::number(w<QProgressBar>("progressBar_overall")->value()); });
}

void tst_AddInertialSensorDlg::open(const std::function<void()>& steps)
{
    ModalDialogHelper::when_active("AddInertialSensorDlg", [this, steps](QWidget*) {
        steps();
        w<QPushButton>("pushButton_exit")->isEnabled() ? w<QPushButton>("pushButton_exit")->click() : dialog->hide();
    });
    dialog->update_and_exec();
}

bool tst_AddInertialSensorDlg::scan(const QString& mode, int cancel)
{
    auto* modes = w<QComboBox>("comboBox_scanMode");
    modes->setCurrentIndex(modes->findText(mode));
    w<QPushButton>("pushButton_scan")->click();
    const bool cancellable = w("pushButton_cancel")->isEnabled();
    for (int tick = 0; !w("pushButton_scan")->isEnabled() && tick < 100; ++tick) {
        if (tick == cancel)
            w<QPushButton>("pushButton_cancel")->click();
        QMetaObject::invokeMethod(dialog, "scan_channels");
    }
    return cancellable;
}

QString tst_AddInertialSensorDlg::state() const
{
    return QString("%1, %2%, %3%4%5").arg(w<QLabel>("label_channel")->text()).arg(w<QProgressBar>("progressBar_overall")
        ->value()).arg(w("pushButton_scan")->isEnabled()).arg(w("pushButton_exit")->isEnabled())
        .arg(w("comboBox_scanMode")->isEnabled());
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
        result << cells.join(' ') + (accept->flags() == Qt::NoItemFlags ? " -" : accept->checkState() ? " x" : " o");
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

void tst_AddInertialSensorDlg::usbScanAsksInOrder()
{
    QString during;
    open([&] {
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        fake->clear_log();
        w<QPushButton>("pushButton_scan")->click();
        QCoreApplication::processEvents();   // the first channel waits for the timer's tick
        during = state() + QString::number(w("pushButton_cancel")->isEnabled());
        QMetaObject::invokeMethod(dialog, "scan_channels");
    });
    QCOMPARE(during, QString(", 0%, 0000"));
    // While the controller scans, the label says what; while it is polled, the bar shows the share done.
    QCOMPARE(labels.join('|') + ' ' + bars.join(' '), QString("Scanning USB... 100 100"));
    QCOMPARE(fake->lines(), (QList<QByteArray>{"inertial number_of_sensors", "inertial sensor d01",
        "inertial sensor d02", "inertial sensor d03", "inertial sensor d04", "inertial sensor d05",
        "inertial number_of_scan_channels 1", "inertial scan_transceiver_channel t01 usb",
        "norvane inertial scan_sensors", Scanned, Scanned, "inertial scanned_sensor d01",
        "inertial sensor_model_desc NRV IMU9", "inertial sensor_vendor_desc NRV", "inertial scanned_sensor d02",
        "inertial sensor_model_desc NRV IMU9", "inertial sensor_vendor_desc NRV", "inertial scanned_sensor d03",
        "inertial sensor_model_desc NRV IMU6", "inertial sensor_vendor_desc NRV", "inertial number_of_scan_channels 0"}));
    // The scan alone goes out to be waited for separately, under a long time-out.
    const FakeController::Call& command = fake->calls().at(9);
    QVERIFY(command.wait_separately && command.timeout_ms == 20000 && command.timeout_flag);
    QCOMPARE(fake->calls().at(10).operation, FakeController::WaitForCompletion);
    // A paired sensor is listed but cannot be accepted.
    QCOMPARE(rows(), (QStringList{"S0007 Norvane IMU9 sensor 35 o", "S0001 Norvane IMU9 sensor 35 -",
                                  "C0008 Norvane IMU6 sensor 35 o"}));
    QCOMPARE(w<QTableWidget>("tableWidget")->rowHeight(0), 20);
    QCOMPARE(state(), QString("Scanning USB done, 100%, 111"));
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_AddInertialSensorDlg::scan_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("cancel");          // after this many ticks, -1: never
    QTest::addColumn<QString>("scanned");     // channels, in order (the first and last three of many)
    QTest::addColumn<QString>("progress");    // at each poll (the first and last three of many)
    QTest::addColumn<QString>("end");         // state(), and whether Cancel was usable during the scan

    QTest::newRow("default channels") << "default channels" << -1 << "35 55" << "50 50 100"
                                      << "Scanning channels done, 100%, 111 1";
    QTest::newRow("all channels, one a tick") << "all channels" << -1 << "2 3 4 79 80 81" << "1 1 3 98 99 100"
                                              << "Scanning channels done, 100%, 111 1";
    QTest::newRow("single channel 47") << "single channel" << -1 << "47" << "100 100" << "Scanning channel done, 100%, 111 0";
    QTest::newRow("cancelled: seen at the next tick") << "all channels" << 2 << "2 3" << "1 1 3"
                                                      << "Scanning channels aborted, 0%, 111 1";
}

void tst_AddInertialSensorDlg::scan()
{
    QFETCH(QString, mode);
    QFETCH(int, cancel);
    QFETCH(QString, scanned);
    QFETCH(QString, progress);
    QFETCH(QString, end);

    fake->replies(Scanned, {"-1", "0"});
    bool cancellable = false;
    open([&] {
        auto* modes = w<QComboBox>("comboBox_scanMode");
        modes->setCurrentIndex(modes->findText("single channel"));   // the chooser follows the mode
        modes->setCurrentIndex(modes->findText(mode));
        auto* pick = w<ChannelComboBox>("comboBox_channel");
        const bool chooser = pick->isEnabled();
        QCOMPARE(pick->currentText(), chooser ? QString("2") : QString());
        if (chooser) {   // the user picks 47 in the grid
            pick->showPopup();
            pick->table()->setCurrentCell(4, 6);
            QTest::keyClick(pick->table(), Qt::Key_Return);
        }
        cancellable = scan(mode, cancel);
        QCOMPARE(pick->isEnabled(), chooser);   // given back as it was
    });
    auto shorten = [](QStringList list) { return (list.size() > 6 ? list.mid(0, 3) + list.mid(list.size() - 3) : list).join(' '); };
    QStringList channels, shown;
    for (const QByteArray& line : fake->lines())
        if (line.startsWith("inertial scan_transceiver_channel t01 NRV Dongle 'T1001' ")) {
            channels << line.mid(line.lastIndexOf(' ') + 1);
            shown << "Scanning channel: " + channels.last() + "...";
        }
    QCOMPARE(labels, shown);
    QCOMPARE(shorten(channels), scanned);
    QCOMPARE(shorten(bars), progress);
    QCOMPARE(state() + ' ' + QString::number(cancellable), end);
    QCOMPARE(fake->count("inertial transceiver d01"), 1);
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_AddInertialSensorDlg::scanFailures_data()
{
    QTest::addColumn<QByteArray>("change");   // "LINE" fails, "LINE=ANSWER" answers so
    QTest::addColumn<QString>("messages");
    QTest::addColumn<QByteArray>("last");     // the last line sent
    QTest::addColumn<QString>("marks");       // the rows' Accept cells: o to accept, - already added

    const QByteArray reset = "inertial number_of_scan_channels 0";
    QTest::newRow("known sensors unknown: none inert") << QByteArray("inertial number_of_sensors")
                                                       << "Error: Unable to get numbers of sensor" << reset << "ooo";
    QTest::newRow("another known sensor unknown") << QByteArray("inertial sensor d02")
                                                  << "Error: Unable to get informations of sensor" << reset << "o-o";
    QTest::newRow("scan slots") << QByteArray("inertial number_of_scan_channels 1") << "Error: Unable to set channels "
                                   "to scan" << QByteArray("inertial number_of_scan_channels 1") << "";
    QTest::newRow("usb slot") << QByteArray("inertial scan_transceiver_channel t01 usb") << "Error: Unable to scan channel "
                                 "of dongle 01" << QByteArray("inertial scan_transceiver_channel t01 usb") << "";
    QTest::newRow("scan not sent") << QByteArray("norvane inertial scan_sensors") << "Error: Unable to scan sensors"
                                   << QByteArray("norvane inertial scan_sensors") << "";
    QTest::newRow("scan refused") << QByteArray("norvane inertial scan_sensors=norvane busy") << "" << reset << "";
    QTest::newRow("scanned count") << Scanned << "Error: Unable to get numbers of sensors to scan" << Scanned << "";
    QTest::newRow("still scanning after 100 polls") << Scanned + "=-1" << "" << reset << "";
    QTest::newRow("a scanned sensor") << QByteArray("inertial scanned_sensor d02") << "Error: Unable to get informations "
                                         "of sensor to add" << reset << "o";
    QTest::newRow("its model") << QByteArray("inertial sensor_model_desc NRV IMU6") << "Error: Unable to get description "
                                  "of sensor to add" << reset << "o-";
    QTest::newRow("its vendor") << QByteArray("inertial sensor_vendor_desc NRV") << "Error: Unable to get vendor "
                                   "description of sensor to add" << reset << "";
    QTest::newRow("no more sensors") << QByteArray("inertial scanned_sensor d02=") << "" << reset << "o";
    QTest::newRow("a short line is skipped") << QByteArray("inertial scanned_sensor d02=NRV IMU9") << "" << reset << "oo";
    QTest::newRow("heard twice, listed once") << QByteArray("inertial scanned_sensor d03=NRV IMU9 'S0007' 35") << ""
                                              << reset << "o-";
    QTest::newRow("resetting the slots") << reset << "Error: Unable to set channels to scan" << reset << "o-o";
}

void tst_AddInertialSensorDlg::scanFailures()
{
    QFETCH(QByteArray, change);
    QFETCH(QString, messages);
    QFETCH(QByteArray, last);
    QFETCH(QString, marks);

    const int equals = change.indexOf('=');
    equals < 0 ? fake->fail(change) : fake->reply(change.left(equals), change.mid(equals + 1));
    open([&] { scan("USB"); });
    QCOMPARE(fake->message_texts().join('\n'), messages);
    QCOMPARE(fake->lines().last(), last);
    QString seen;
    for (const QString& row : rows())
        seen += row.right(1);
    QCOMPARE(seen, marks);
    // An error stop ends in the "done" words too: the message told the user.
    QCOMPARE(state(), QString("Scanning USB done, 100%, 111"));
    QCOMPARE(fake->count(Scanned), change == Scanned + "=-1" ? 100 : fake->count(Scanned));
}

void tst_AddInertialSensorDlg::haltedScanAndReopening()
{
    fake->reply("inertial number_of_transceivers", "1");
    fake->fail("inertial transceiver d01");
    // The modes and the one chosen, state(), and whether the channel, Cancel
    // and Apply are usable and Scan has the focus.
    const auto opened = [this] {
        auto* modes = w<QComboBox>("comboBox_scanMode");
        QStringList texts;
        for (int i = 0; i < modes->count(); ++i)
            texts << modes->itemText(i);
        return texts.join(", ") + " (" + modes->currentText() + ") " + state() + QString(" %1%2%3%4")
            .arg(w("comboBox_channel")->isEnabled()).arg(w("pushButton_cancel")->isEnabled())
            .arg(w("pushButton_apply")->isEnabled()).arg(dialog->focusWidget() == w("pushButton_scan"));
    };
    QStringList seen;
    open([&] {
        QMetaObject::invokeMethod(dialog, "scan_channels");   // a stray tick: no scan, nothing shown
        seen << opened();
        // Without the first transceiver's name no radio scan starts.
        QVERIFY(!scan("default channels"));   // nothing to cancel, no tick
        seen << w<QLabel>("label_channel")->text();
        fake->reply("inertial transceiver d01", "NRV Dongle 'T1001'");
        w<QPushButton>("pushButton_scan")->click();
        QVERIFY(!dialog->close());   // refused while the scan can be cancelled
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(dialog->isVisible());   // Escape halts the scan, the dialog stays
        QTest::keyClick(dialog, Qt::Key_F3);   // no second scan while one is halted
        QCOMPARE(fake->count("inertial number_of_sensors") + fake->count("norvane inertial scan_sensors"), 1);
        w<QPushButton>("pushButton_cancel")->click();   // the halted scan gets a tick to end on
        QTRY_VERIFY(!w("pushButton_cancel")->isEnabled());
        dialog->hide();
    });
    QCOMPARE(fake->message_texts(), QStringList{"Error: Unable to get informations of dongle 1"});
    // The next opening starts afresh, without radio when the transceivers
    // cannot be counted, and F3 scans as the button does.
    fake->fail("inertial number_of_transceivers");
    open([&] {
        seen << opened();
        QTest::keyClick(dialog, Qt::Key_A);   // only F3 scans
        QTest::keyClick(dialog, Qt::Key_F3, Qt::ShiftModifier);
        seen << QString::number(w("pushButton_scan")->isEnabled());
        QTest::keyClick(dialog, Qt::Key_F3);
        QMetaObject::invokeMethod(dialog, "scan_channels");
        seen.last() += QString::number(rows().size());
        QVERIFY(dialog->close());
    });
    QCOMPARE(seen, QStringList({"default channels, single channel, all channels, USB (USB) , -1%, 111 0001",
                                "Scanning channel(s) aborted, could not get informations of dongle 1",
                                "USB (USB) , -1%, 111 0001", "13"}));   // a reset bar shows no value
    QCOMPARE(fake->count("norvane inertial scan_sensors"), 1);
}

void tst_AddInertialSensorDlg::acceptAllAndClicks()
{
    open([&] {
        // "single channel" without a channel: nothing to scan.
        answer_box(QMessageBox::Ok);
        auto* modes = w<QComboBox>("comboBox_scanMode");
        modes->setCurrentIndex(modes->findText("single channel"));
        w<ChannelComboBox>("comboBox_channel")->setChannel(-1);
        w<QPushButton>("pushButton_scan")->click();
        scan("USB");
        auto* table = w<QTableWidget>("tableWidget");
        auto* apply = w<QPushButton>("pushButton_apply");
        auto* all = w<QCheckBox>("checkBox_acceptAll");
        QStringList seen{QString::number(apply->isEnabled())};
        all->setChecked(true);
        seen << rows().join(',').remove(" Norvane").remove(" sensor 35") + QString::number(apply->isEnabled());
        // A click on one Accept cell unticks "accept all" and keeps the others.
        const QRect cell = table->visualItemRect(table->item(0, 4));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(cell.left() + 10, cell.center().y()));
        seen << rows().join(',').remove(" Norvane").remove(" sensor 35") + QString::number(apply->isEnabled())
                    + QString::number(all->isChecked());
        all->setChecked(true);
        all->setChecked(false);
        seen << QString::number(apply->isEnabled());
        table->item(2, 4)->setCheckState(Qt::Checked);   // by keyboard: no click
        seen << QString::number(apply->isEnabled());
        w<QPushButton>("pushButton_scan")->click();   // nothing to apply while scanning again
        seen << QString::number(apply->isEnabled());
        QMetaObject::invokeMethod(dialog, "scan_channels");
        QCOMPARE(seen.join(' '), QString("1 S0007 IMU9 x,S0001 IMU9 -,C0008 IMU6 x1 S0007 IMU9 o,S0001 IMU9 -,"
                                         "C0008 IMU6 x10 0 1 0"));
    });
    QCOMPARE(box, QString("Warning: Please select a channel to scan"));
    open([&] { QCOMPARE(rows().size() + w("pushButton_apply")->isEnabled(), 0); });   // the next opening lists nothing
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_AddInertialSensorDlg::apply_data()
{
    QTest::addColumn<bool>("taken");             // every body of the count carries a sensor or is calibrated
    QTest::addColumn<QByteArray>("change");      // "LINE" fails, "LINE=ANSWER" answers so
    QTest::addColumn<QList<QByteArray>>("sent");   // settings and commands, in order
    QTest::addColumn<QString>("after");          // the Accept cells, then the messages or the box

    const QByteArray on3 = "body inertial_sensor standard b03 NRV IMU9 'S0007'";
    const QByteArray on5 = "body inertial_sensor standard b05 NRV IMU6 'C0008'";
    QTest::newRow("the first free bodies") << false << QByteArray() << QList<QByteArray>{Add7, on3, Add8, on5} << "---";
    QTest::newRow("bodies raised up to the maximum") << true << QByteArray() << QList<QByteArray>{Add7,
        "standard number_of_bodies 7", "body inertial_sensor standard b07 NRV IMU9 'S0007'", Add8,
        "standard number_of_bodies 8", "body inertial_sensor standard b08 NRV IMU6 'C0008'"} << "---";
    QTest::newRow("maximum reached: taken off again") << true << QByteArray("standard max_number_of_bodies=6")
        << QList<QByteArray>{Add7, Add8, "norvane inertial delete_sensor NRV IMU9 'S0007'",
                             "norvane inertial delete_sensor NRV IMU6 'C0008'"}
        << "x-x Sensor adding failed: Following sensors are not added:\n\n'S0007'\n'C0008'\n\n because the maximum "
           "number of bodies is reached.";
    QTest::newRow("no storage: no body") << false << QByteArray("inertial sensor_has_storage NRV IMU9 'S0007'=no")
        << QList<QByteArray>{Add7, Add8, "body inertial_sensor standard b03 NRV IMU6 'C0008'"} << "---";
    QTest::newRow("storage unknown: a body anyway") << false << QByteArray("inertial sensor_has_storage NRV IMU9 'S0007'")
        << QList<QByteArray>{Add7, on3, Add8, on5} << "--- Error: Unable to get whether sensor has storage";
    QTest::newRow("refused: told why, nothing more") << false << Add7 + "=norvane err 7 'not now'"
        << QList<QByteArray>{Add7} << "x-x Information: Could not add sensor norvane err 7 not now";
    QTest::newRow("not sent") << false << Add7 << QList<QByteArray>{Add7} << "x-x Error: Unable to add sensor";
    QTest::newRow("maximum unknown") << false << QByteArray("standard max_number_of_bodies") << QList<QByteArray>{}
                                     << "x-x Error: Unable to get max number of bodies";
    QTest::newRow("bodies unknown") << false << QByteArray("standard number_of_bodies") << QList<QByteArray>{Add7}
                                    << "x-x Error: Unable to get number of bodies";
    QTest::newRow("calibration unknown") << false << QByteArray("body calibrated standard b01") << QList<QByteArray>{Add7}
                                         << "x-x Error: Unable to get calibration of body";
    QTest::newRow("sensor of a body unknown") << false << QByteArray("body inertial_sensor standard b01")
        << QList<QByteArray>{Add7} << "x-x Error: Unable to get inertial information of body";
    QTest::newRow("raising refused") << true << QByteArray("standard number_of_bodies 7") << QList<QByteArray>{Add7,
        "standard number_of_bodies 7"} << "x-x Error: Unable to set number of bodies";
    QTest::newRow("placing refused") << false << on3 << QList<QByteArray>{Add7, on3}
                                     << "x-x Error: Unable to set inertial sensor to body";
}

void tst_AddInertialSensorDlg::apply()
{
    QFETCH(bool, taken);
    QFETCH(QByteArray, change);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QString, after);

    for (const QByteArray& sensor : {QByteArray("NRV IMU9 'S0007'"), QByteArray("NRV IMU6 'C0008'")}) {
        fake->reply("norvane inertial add_sensor " + sensor + " 35", "norvane ok");
        fake->reply("norvane inertial delete_sensor " + sensor, "norvane ok");
        fake->reply("inertial sensor_has_storage " + sensor, "yes");
    }
    for (const char* body : {"b03", "b05", "b06"})
        fake->reply(QByteArray("body calibrated standard ") + body, taken ? "yes" : "no");
    const int equals = change.indexOf('=');
    if (!change.isEmpty())
        equals < 0 ? fake->fail(change) : fake->reply(change.left(equals), change.mid(equals + 1));
    QString seen;
    open([&] {
        scan("USB");
        w<QCheckBox>("checkBox_acceptAll")->setChecked(true);
        fake->clear_log();
        if (after.contains("failed:") || after.contains("Information:"))
            answer_box(QMessageBox::Ok);
        w<QPushButton>("pushButton_apply")->click();
        for (const QString& row : rows())
            seen += row.right(1);
        QVERIFY(dialog->isVisible() && !QApplication::overrideCursor());
    });
    QList<QByteArray> changes;
    for (const FakeController::Call& call : fake->calls())
        if (call.operation == FakeController::SetValue || call.operation == FakeController::SendCommand)
            changes << call.line;
    QCOMPARE(changes, sent);
    QCOMPARE(QStringList({seen, box.isEmpty() ? fake->message_texts().join('\n') : box}).join(' ').trimmed(), after);
}

QTEST_MAIN(tst_AddInertialSensorDlg)
#include "tst_AddInertialSensorDlg.moc"
