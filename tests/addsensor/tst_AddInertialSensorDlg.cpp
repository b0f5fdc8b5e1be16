#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

#include <functional>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "addsensor/AddInertialSensorDlg.h"
#include "module/BackendVersions.h"
#include "settings/ChannelComboBox.h"

namespace {

// What the label showed whenever it was painted: the scan repaints it
// before each blocking command, so this is what the user saw meanwhile.
class PaintedTexts : public QObject
{
public:
    explicit PaintedTexts(QLabel* label) : label(label) { label->installEventFilter(this); }
    QStringList texts;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == label && event->type() == QEvent::Paint
            && (texts.isEmpty() || texts.last() != label->text()))
            texts << label->text();
        return false;
    }

private:
    QLabel* label;
};

QByteArray dongleLine(int channel)
{
    return "inertial scan_transceiver_channel t01 nv dongle 'T1' " + QByteArray::number(channel);
}

} // namespace

class tst_AddInertialSensorDlg : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void form();
    void scanModes_data();
    void scanModes();
    void usbScanWithoutTransceiver();
    void allChannels();
    void defaultChannelsFindSensors();
    void scanCommandResult_data();
    void scanCommandResult();
    void scanFailures_data();
    void scanFailures();
    void pollTimesOut();
    void blockedTickWaits();
    void knownSensorIsInert();
    void acceptAllAndClicks();
    void singleChannel();
    void singleChannelNotChosen();
    void cancelSeenAtNextTick();
    void closeAndEscapeDuringScan();
    void f3Scans();
    void applyPlacesSensors();
    void applyStorage_data();
    void applyStorage();
    void applyFailures_data();
    void applyFailures();
    void absurdCounts();

private:
    template <class T>
    T* w(const char* name) const
    {
        T* widget = dlg->findChild<T*>(QLatin1String(name));
        Q_ASSERT(widget);
        return widget;
    }
    // Opens the dialog and runs `steps` inside its modal loop; Exit ends it.
    void open(const std::function<void()>& steps);
    void chooseMode(const QString& text);
    void tick();
    // Ticks until the scan is over (Scan usable again); returns the ticks.
    int finish();
    void scriptController(int transceivers);
    void scriptScanned(const QList<QByteArray>& sensors);
    QList<QByteArray> linesAfter(const QByteArray& first) const;

    FakeController* fake = nullptr;
    BackendVersions versions;
    QDialog* parent = nullptr;
    AddInertialSensorDlg* dlg = nullptr;
};

void tst_AddInertialSensorDlg::init()
{
    fake = new FakeController;
    versions = BackendVersions();
    versions.major = 1;
    versions.minor = 21;
    parent = new QDialog;
    dlg = new AddInertialSensorDlg(fake, parent, &versions);
}

void tst_AddInertialSensorDlg::cleanup()
{
    delete parent;
    parent = nullptr;
    dlg = nullptr;
    delete fake;
    fake = nullptr;
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
            dlg->hide();   // a test that left a scan halted
    });
    dlg->update_and_exec();
}

void tst_AddInertialSensorDlg::chooseMode(const QString& text)
{
    QComboBox* modes = w<QComboBox>("comboBox_scanMode");
    const int index = modes->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    modes->setCurrentIndex(index);
}

void tst_AddInertialSensorDlg::tick()
{
    QMetaObject::invokeMethod(dlg, "scan_channels", Qt::DirectConnection);
}

int tst_AddInertialSensorDlg::finish()
{
    int ticks = 0;
    while (!w<QPushButton>("pushButton_scan")->isEnabled() && ticks < 500) {
        tick();
        ++ticks;
    }
    return ticks;
}

void tst_AddInertialSensorDlg::scriptController(int transceivers)
{
    fake->reply("inertial number_of_transceivers", QByteArray::number(transceivers));
    fake->reply("inertial transceiver d01", "nv dongle 'T1'");
    fake->reply("inertial number_of_sensors", "1");
    fake->reply("inertial sensor d01", "nv imu '1001'");
    fake->accept("inertial number_of_scan_channels 1");
    fake->accept("inertial number_of_scan_channels 0");
    fake->accept("inertial scan_transceiver_channel t01 usb");
    for (int channel = 2; channel <= 81; ++channel)
        fake->accept(dongleLine(channel));
    fake->reply("norvane inertial scan_sensors", "norvane ok");
    fake->replies("inertial number_of_scanned_sensors", {"-1", "0"});
    fake->reply("inertial sensor_model_desc nv imu", "\"Motion\" Sensor");
    fake->reply("inertial sensor_vendor_desc nv", "\"Norvane\"");
}

void tst_AddInertialSensorDlg::scriptScanned(const QList<QByteArray>& sensors)
{
    fake->replies("inertial number_of_scanned_sensors", {"-1", "-1", QByteArray::number(sensors.size())});
    for (int i = 0; i < sensors.size(); ++i)
        fake->reply("inertial scanned_sensor d" + QByteArray::number(i + 1).rightJustified(2, '0'),
                    sensors.at(i));
}

QList<QByteArray> tst_AddInertialSensorDlg::linesAfter(const QByteArray& first) const
{
    const QList<QByteArray> all = fake->lines();
    const int at = all.indexOf(first);
    return at < 0 ? QList<QByteArray>() : all.mid(at);
}

void tst_AddInertialSensorDlg::form()
{
    QCOMPARE(dlg->windowTitle(), QString("Add Sensor(s)"));
    QCOMPARE(dlg->whatsThis(), QString("Adds sensors to your system"));
    QVERIFY(!dlg->windowIcon().isNull());
    QTableWidget* table = w<QTableWidget>("tableWidget");
    QStringList headers;
    for (int c = 0; c < table->columnCount(); ++c)
        headers << table->horizontalHeaderItem(c)->text();
    QCOMPARE(headers, QStringList({"Device ID", "Vendor", "Model", "Channel", "Accept"}));
    QVERIFY(table->isColumnHidden(1));
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->horizontalHeader()->sectionResizeMode(2), QHeaderView::Stretch);
    QCOMPARE(table->horizontalHeader()->sectionResizeMode(4), QHeaderView::Fixed);
    QCOMPARE(w<QProgressBar>("progressBar_overall")->format(), QString("scanning channels %p%"));
    QCOMPARE(w<ChannelComboBox>("comboBox_channel")->minimumChannel(), 2);
    QCOMPARE(w<ChannelComboBox>("comboBox_channel")->maximumChannel(), 81);
    QVERIFY(fake->lines().isEmpty());   // building the dialog asks nothing
}

void tst_AddInertialSensorDlg::scanModes_data()
{
    QTest::addColumn<QByteArray>("transceivers");
    QTest::addColumn<QStringList>("modes");

    const QStringList radio{"default channels", "single channel", "all channels", "USB"};
    QTest::newRow("one transceiver") << QByteArray("1") << radio;
    QTest::newRow("two transceivers") << QByteArray("2") << radio;
    QTest::newRow("none") << QByteArray("0") << QStringList{"USB"};
    QTest::newRow("query fails") << QByteArray() << QStringList{"USB"};
    QTest::newRow("negative count") << QByteArray("-3") << QStringList{"USB"};
}

void tst_AddInertialSensorDlg::scanModes()
{
    QFETCH(QByteArray, transceivers);
    QFETCH(QStringList, modes);

    if (transceivers.isEmpty())
        fake->fail("inertial number_of_transceivers");
    else
        fake->reply("inertial number_of_transceivers", transceivers);
    QStringList seen;
    QString current;
    bool chooserEnabled = true;
    open([&] {
        QComboBox* combo = w<QComboBox>("comboBox_scanMode");
        for (int i = 0; i < combo->count(); ++i)
            seen << combo->itemText(i);
        current = combo->currentText();
        chooserEnabled = w<ChannelComboBox>("comboBox_channel")->isEnabled();
        QVERIFY(!w<QPushButton>("pushButton_cancel")->isEnabled());
        QVERIFY(!w<QPushButton>("pushButton_apply")->isEnabled());
        QCOMPARE(dlg->focusWidget(), w<QPushButton>("pushButton_scan"));
    });
    QCOMPARE(seen, modes);
    QCOMPARE(current, QString("USB"));
    QVERIFY(!chooserEnabled);
    QCOMPARE(fake->lines(), QList<QByteArray>{"inertial number_of_transceivers"});
    QVERIFY(fake->messages().isEmpty());
}

void tst_AddInertialSensorDlg::usbScanWithoutTransceiver()
{
    scriptController(0);
    scriptScanned({"nv imu '2002' 0"});
    PaintedTexts painted(w<QLabel>("label_channel"));
    bool cancelDuringScan = true;
    int ticks = 0;
    open([&] {
        QVERIFY(QTest::qWaitForWindowExposed(dlg));
        w<QPushButton>("pushButton_scan")->click();
        cancelDuringScan = w<QPushButton>("pushButton_cancel")->isEnabled();
        QVERIFY(!w<QPushButton>("pushButton_exit")->isEnabled());
        QVERIFY(!w<QComboBox>("comboBox_scanMode")->isEnabled());
        ticks = finish();
    });

    QVERIFY(!cancelDuringScan);
    QCOMPARE(ticks, 1);
    QVERIFY2(painted.texts.contains("Scanning USB..."), qPrintable(painted.texts.join('|')));
    QCOMPARE(w<QLabel>("label_channel")->text(), QString("Scanning USB done"));
    QCOMPARE(w<QProgressBar>("progressBar_overall")->value(), 100);
    QCOMPARE(fake->lines(), QList<QByteArray>({
        "inertial number_of_transceivers",
        "inertial number_of_sensors",
        "inertial sensor d01",
        "inertial number_of_scan_channels 1",
        "inertial scan_transceiver_channel t01 usb",
        "norvane inertial scan_sensors",
        "inertial number_of_scanned_sensors",
        "inertial number_of_scanned_sensors",
        "inertial number_of_scanned_sensors",
        "inertial scanned_sensor d01",
        "inertial sensor_model_desc nv imu",
        "inertial sensor_vendor_desc nv",
        "inertial number_of_scan_channels 0",
    }));
    // The scan command alone goes out to be waited for separately.
    const QList<FakeController::Call>& calls = fake->calls();
    int command = -1;
    for (int i = 0; i < calls.size(); ++i)
        if (calls.at(i).operation == FakeController::SendCommand)
            command = i;
    QVERIFY(command > 0);
    QCOMPARE(calls.at(command).wait_separately, true);
    QCOMPARE(calls.at(command).timeout_ms, 20000);
    QCOMPARE(calls.at(command).timeout_flag, true);
    QCOMPARE(calls.at(command + 1).operation, FakeController::WaitForCompletion);

    QTableWidget* table = w<QTableWidget>("tableWidget");
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(table->item(0, 0)->text(), QString("2002"));
    QCOMPARE(table->item(0, 0)->textAlignment(), int(Qt::AlignRight | Qt::AlignVCenter));
    QCOMPARE(table->item(0, 1)->text(), QString("Norvane"));
    QCOMPARE(table->item(0, 2)->text(), QString("Motion Sensor"));
    QCOMPARE(table->item(0, 3)->text(), QString("USB"));
    QCOMPARE(table->item(0, 4)->checkState(), Qt::Unchecked);
    QCOMPARE(table->rowHeight(0), 20);
    QVERIFY(!w<QPushButton>("pushButton_apply")->isEnabled());   // nothing accepted yet
    QVERIFY(fake->unexpected().isEmpty());
    QVERIFY(fake->messages().isEmpty());
}

void tst_AddInertialSensorDlg::allChannels()
{
    scriptController(1);
    QList<int> progress;
    QList<int> commands;
    bool cancelDuringScan = false;
    bool exitDuringScan = true;
    open([&] {
        chooseMode("all channels");
        w<QPushButton>("pushButton_scan")->click();
        cancelDuringScan = w<QPushButton>("pushButton_cancel")->isEnabled();
        exitDuringScan = w<QPushButton>("pushButton_exit")->isEnabled();
        for (int k = 1; k <= 80; ++k) {
            tick();
            progress << w<QProgressBar>("progressBar_overall")->value();
            commands << fake->count("norvane inertial scan_sensors");
        }
    });

    QVERIFY(cancelDuringScan);
    QVERIFY(!exitDuringScan);
    QList<QByteArray> scanned = fake->lines(FakeController::SetValue);
    scanned.erase(std::remove_if(scanned.begin(), scanned.end(),
                                 [](const QByteArray& line) { return !line.startsWith("inertial scan_transceiver"); }),
                  scanned.end());
    QCOMPARE(scanned.size(), 80);
    QCOMPARE(scanned.first(), dongleLine(2));
    QCOMPARE(scanned.at(39), dongleLine(41));
    QCOMPARE(scanned.last(), dongleLine(81));
    // One channel per tick.
    QCOMPARE(commands.first(), 1);
    QCOMPARE(commands.at(39), 40);
    QCOMPARE(commands.last(), 80);
    // int(100 / 80 * k + 0.5)
    QCOMPARE(progress.at(0), 1);
    QCOMPARE(progress.at(1), 3);
    QCOMPARE(progress.at(2), 4);
    QCOMPARE(progress.at(39), 50);
    QCOMPARE(progress.at(78), 99);
    QCOMPARE(progress.at(79), 100);
    QCOMPARE(w<QLabel>("label_channel")->text(), QString("Scanning channels done"));
    QCOMPARE(fake->count("inertial transceiver d01"), 1);
    QVERIFY(fake->unexpected().isEmpty());
}

void tst_AddInertialSensorDlg::defaultChannelsFindSensors()
{
    scriptController(1);
    fake->replies("inertial number_of_scanned_sensors", {"-1", "1", "-1", "3"});
    fake->replies("inertial scanned_sensor d01", {"nv imu '2002' 35", "nv imu '2003' 55"});
    fake->reply("inertial scanned_sensor d02", "nv imu '2004' 55");
    fake->reply("inertial scanned_sensor d03", "nv imu '2002' 55");   // heard again: listed once
    open([&] {
        chooseMode("default channels");
        w<QPushButton>("pushButton_scan")->click();
        QCOMPARE(finish(), 2);
    });

    QCOMPARE(fake->count(dongleLine(35)), 1);
    QCOMPARE(fake->count(dongleLine(55)), 1);
    QCOMPARE(fake->count("inertial scan_transceiver_channel t01 usb"), 0);
    QTableWidget* table = w<QTableWidget>("tableWidget");
    QCOMPARE(table->rowCount(), 3);
    QCOMPARE(table->item(0, 0)->text(), QString("2002"));
    QCOMPARE(table->item(0, 3)->text(), QString("35"));
    QCOMPARE(table->item(2, 0)->text(), QString("2004"));
    QCOMPARE(table->item(2, 3)->text(), QString("55"));
    QCOMPARE(w<QLabel>("label_channel")->text(), QString("Scanning channels done"));
    QVERIFY(fake->unexpected().isEmpty());
}

void tst_AddInertialSensorDlg::scanCommandResult_data()
{
    QTest::addColumn<int>("sendResult");          // FakeController::NaturalResult: sent, answer pending
    QTest::addColumn<int>("completion");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("waited");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QByteArray>("after");         // the line after the scan command

    const QStringList failed{"Error: Unable to scan sensors"};
    QTest::newRow("1, then completed") << int(FakeController::NaturalResult) << 0 << QByteArray("norvane ok")
                                       << true << QStringList() << QByteArray("inertial number_of_scanned_sensors");
    QTest::newRow("0 is a failure here") << 0 << 0 << QByteArray("norvane ok") << false << failed << QByteArray();
    QTest::newRow("2 is a failure") << 2 << 0 << QByteArray("norvane ok") << false << failed << QByteArray();
    QTest::newRow("completion fails") << int(FakeController::NaturalResult) << 4 << QByteArray("norvane ok")
                                      << true << failed << QByteArray();
    QTest::newRow("answer not ok") << int(FakeController::NaturalResult) << 0 << QByteArray("norvane ok ")
                                   << true << QStringList() << QByteArray("inertial number_of_scan_channels 0");
}

void tst_AddInertialSensorDlg::scanCommandResult()
{
    QFETCH(int, sendResult);
    QFETCH(int, completion);
    QFETCH(QByteArray, answer);
    QFETCH(bool, waited);
    QFETCH(QStringList, messages);
    QFETCH(QByteArray, after);

    scriptController(0);
    fake->reply("norvane inertial scan_sensors", answer, sendResult);
    fake->set_completion_result(completion);
    open([&] {
        w<QPushButton>("pushButton_scan")->click();
        QCOMPARE(finish(), 1);
    });

    const QList<FakeController::Call>& calls = fake->calls();
    bool sawWait = false;
    for (const FakeController::Call& call : calls)
        sawWait = sawWait || call.operation == FakeController::WaitForCompletion;
    QCOMPARE(sawWait, waited);
    QCOMPARE(fake->message_texts(), messages);
    const QList<QByteArray> rest = linesAfter("norvane inertial scan_sensors");
    QCOMPARE(rest.value(1), after);
    if (after != "inertial number_of_scanned_sensors")
        QCOMPARE(rest.size(), after.isEmpty() ? 1 : 2);
    // An error stop still ends in the "done" words: the message told the user.
    QCOMPARE(w<QLabel>("label_channel")->text(), QString("Scanning USB done"));
    QCOMPARE(w<QProgressBar>("progressBar_overall")->value(), 100);
    QVERIFY(w<QPushButton>("pushButton_scan")->isEnabled());
}

void tst_AddInertialSensorDlg::scanFailures_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QByteArray>("failing");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("last");     // the last line sent
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("scans");   // scan commands sent

    QTest::newRow("sensor count") << "USB" << QByteArray("inertial number_of_sensors")
                                  << "Error: Unable to get numbers of sensor"
                                  << QByteArray("inertial number_of_scan_channels 0") << 1 << 1;
    QTest::newRow("known sensor") << "USB" << QByteArray("inertial sensor d01")
                                  << "Error: Unable to get informations of sensor"
                                  << QByteArray("inertial number_of_scan_channels 0") << 1 << 1;
    QTest::newRow("scan channel count") << "USB" << QByteArray("inertial number_of_scan_channels 1")
                                        << "Error: Unable to set channels to scan"
                                        << QByteArray("inertial number_of_scan_channels 1") << 0 << 0;
    QTest::newRow("usb scan setting") << "USB" << QByteArray("inertial scan_transceiver_channel t01 usb")
                                      << "Error: Unable to scan channel of dongle 01"
                                      << QByteArray("inertial scan_transceiver_channel t01 usb") << 0 << 0;
    QTest::newRow("channel scan setting") << "all channels" << dongleLine(2)
                                          << "Error: Unable to scan channel of dongle 01" << dongleLine(2) << 0 << 0;
    QTest::newRow("scanned count") << "USB" << QByteArray("inertial number_of_scanned_sensors")
                                   << "Error: Unable to get numbers of sensors to scan"
                                   << QByteArray("inertial number_of_scanned_sensors") << 0 << 1;
    QTest::newRow("scanned sensor") << "USB" << QByteArray("inertial scanned_sensor d01")
                                    << "Error: Unable to get informations of sensor to add"
                                    << QByteArray("inertial number_of_scan_channels 0") << 0 << 1;
    QTest::newRow("model description") << "USB" << QByteArray("inertial sensor_model_desc nv imu")
                                       << "Error: Unable to get description of sensor to add"
                                       << QByteArray("inertial number_of_scan_channels 0") << 0 << 1;
    QTest::newRow("vendor description") << "USB" << QByteArray("inertial sensor_vendor_desc nv")
                                        << "Error: Unable to get vendor description of sensor to add"
                                        << QByteArray("inertial number_of_scan_channels 0") << 0 << 1;
    QTest::newRow("reset of the scan count goes on") << "default channels" << QByteArray("inertial number_of_scan_channels 0")
                                                     << "Error: Unable to set channels to scan"
                                                     << QByteArray("inertial number_of_scan_channels 0") << 1 << 2;
}

void tst_AddInertialSensorDlg::scanFailures()
{
    QFETCH(QString, mode);
    QFETCH(QByteArray, failing);
    QFETCH(QString, message);
    QFETCH(QByteArray, last);
    QFETCH(int, rows);
    QFETCH(int, scans);

    scriptController(1);
    scriptScanned({"nv imu '2002' 35"});
    fake->fail(failing);
    open([&] {
        chooseMode(mode);
        w<QPushButton>("pushButton_scan")->click();
        finish();
    });

    QVERIFY(fake->message_texts().contains(message));
    QCOMPARE(fake->lines().last(), last);
    QCOMPARE(w<QTableWidget>("tableWidget")->rowCount(), rows);
    QCOMPARE(fake->count("norvane inertial scan_sensors"), scans);
    QVERIFY(w<QPushButton>("pushButton_scan")->isEnabled());
    QVERIFY(w<QPushButton>("pushButton_exit")->isEnabled());
    QVERIFY(w<QComboBox>("comboBox_scanMode")->isEnabled());
    QCOMPARE(w<QProgressBar>("progressBar_overall")->value(), 100);
}

void tst_AddInertialSensorDlg::pollTimesOut()
{
    scriptController(0);
    fake->reply("inertial number_of_scanned_sensors", "-1");
    open([&] {
        w<QPushButton>("pushButton_scan")->click();
        QCOMPARE(finish(), 1);
    });

    QCOMPARE(fake->count("inertial number_of_scanned_sensors"), 100);
    QCOMPARE(fake->lines().last(), QByteArray("inertial number_of_scan_channels 0"));
    QVERIFY(fake->messages().isEmpty());
    QCOMPARE(w<QTableWidget>("tableWidget")->rowCount(), 0);
    QCOMPARE(w<QLabel>("label_channel")->text(), QString("Scanning USB done"));
}

void tst_AddInertialSensorDlg::blockedTickWaits()
{
    scriptController(0);
    open([&] {
        w<QPushButton>("pushButton_scan")->click();
        fake->clear_log();
        fake->set_blocked(true);
        tick();
        QVERIFY(fake->lines().isEmpty());
        QVERIFY(!w<QPushButton>("pushButton_scan")->isEnabled());
        fake->set_blocked(false);
        QCOMPARE(finish(), 1);
    });
    QCOMPARE(fake->count("norvane inertial scan_sensors"), 1);
}

void tst_AddInertialSensorDlg::knownSensorIsInert()
{
    scriptController(0);
    scriptScanned({"nv imu '1001' 0", "nv imu '2002' 0"});
    fake->reply("standard max_number_of_bodies", "4");
    fake->reply("standard number_of_bodies", "1");
    fake->reply("norvane inertial add_sensor nv imu '2002' 0", "norvane ok");
    fake->reply("inertial sensor_has_storage nv imu '2002'", "yes");
    fake->reply("body calibrated standard b01", "no");
    fake->reply("body inertial_sensor standard b01", "none");
    fake->accept("body inertial_sensor standard b01 nv imu '2002'");
    open([&] {
        w<QPushButton>("pushButton_scan")->click();
        finish();
        w<QCheckBox>("checkBox_acceptAll")->setChecked(true);
        QTableWidget* table = w<QTableWidget>("tableWidget");
        QCOMPARE(table->item(0, 4)->flags(), Qt::NoItemFlags);
        QCOMPARE(table->item(0, 4)->checkState(), Qt::Unchecked);
        QCOMPARE(table->item(1, 4)->checkState(), Qt::Checked);
        fake->clear_log();
        w<QPushButton>("pushButton_apply")->click();
    });
    QCOMPARE(fake->count("norvane inertial add_sensor nv imu '2002' 0"), 1);
    for (const QByteArray& line : fake->lines())
        QVERIFY2(!line.contains("1001"), line.constData());
    QVERIFY(fake->unexpected().isEmpty());
}

void tst_AddInertialSensorDlg::acceptAllAndClicks()
{
    scriptController(0);
    scriptScanned({"nv imu '2002' 0", "nv imu '2003' 0", "nv imu '2004' 0"});
    open([&] {
        w<QPushButton>("pushButton_scan")->click();
        finish();
        QTableWidget* table = w<QTableWidget>("tableWidget");
        QPushButton* apply = w<QPushButton>("pushButton_apply");
        QCheckBox* all = w<QCheckBox>("checkBox_acceptAll");
        QVERIFY(!apply->isEnabled());

        all->setChecked(true);
        for (int row = 0; row < 3; ++row)
            QCOMPARE(table->item(row, 4)->checkState(), Qt::Checked);
        QVERIFY(apply->isEnabled());

        // A click on one Accept cell unticks "accept all" but keeps the others.
        const QRect cell = table->visualItemRect(table->item(1, 4));
        const QPoint indicator(cell.left() + 10, cell.center().y());
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, indicator);
        QCOMPARE(table->item(1, 4)->checkState(), Qt::Unchecked);
        QVERIFY(!all->isChecked());
        QCOMPARE(table->item(0, 4)->checkState(), Qt::Checked);
        QCOMPARE(table->item(2, 4)->checkState(), Qt::Checked);
        QVERIFY(apply->isEnabled());

        all->setChecked(false);   // unchecked already: nothing changes
        QCOMPARE(table->item(0, 4)->checkState(), Qt::Checked);
        all->setChecked(true);
        all->setChecked(false);
        for (int row = 0; row < 3; ++row)
            QCOMPARE(table->item(row, 4)->checkState(), Qt::Unchecked);
        QVERIFY(!apply->isEnabled());

        table->item(2, 4)->setCheckState(Qt::Checked);   // by keyboard: no click
        QVERIFY(apply->isEnabled());
    });
    QVERIFY(fake->unexpected().isEmpty());
}

void tst_AddInertialSensorDlg::singleChannel()
{
    scriptController(1);
    bool chooserEnabled = false;
    bool cancelDuringScan = true;
    bool chooserDuringScan = true;
    open([&] {
        chooseMode("single channel");
        ChannelComboBox* chooser = w<ChannelComboBox>("comboBox_channel");
        chooserEnabled = chooser->isEnabled();
        QCOMPARE(chooser->currentText(), QString("2"));
        chooser->showPopup();   // pick 47 in the grid as a user does
        chooser->table()->setCurrentCell(4, 6);
        QTest::keyClick(chooser->table(), Qt::Key_Return);
        QCOMPARE(chooser->currentText(), QString("47"));
        w<QPushButton>("pushButton_scan")->click();
        cancelDuringScan = w<QPushButton>("pushButton_cancel")->isEnabled();
        chooserDuringScan = chooser->isEnabled();
        QCOMPARE(finish(), 1);
        QVERIFY(chooser->isEnabled());
        chooseMode("USB");
        QVERIFY(!chooser->isEnabled());
        QCOMPARE(chooser->currentIndex(), -1);
    });
    QVERIFY(chooserEnabled);
    QVERIFY(!cancelDuringScan);
    QVERIFY(!chooserDuringScan);
    QCOMPARE(fake->count(dongleLine(47)), 1);
    QCOMPARE(fake->count("norvane inertial scan_sensors"), 1);
    QCOMPARE(w<QLabel>("label_channel")->text(), QString("Scanning channel done"));
}

void tst_AddInertialSensorDlg::singleChannelNotChosen()
{
    scriptController(1);
    QString warning;
    open([&] {
        chooseMode("single channel");
        w<ChannelComboBox>("comboBox_channel")->setChannel(-1);
        ModalDialogHelper::when_active("QMessageBox", [&](QWidget* box) {
            warning = box->windowTitle() + ": " + static_cast<QMessageBox*>(box)->text();
            ModalDialogHelper::press(box, QMessageBox::Ok);
        });
        fake->clear_log();
        w<QPushButton>("pushButton_scan")->click();
        QVERIFY(w<QPushButton>("pushButton_scan")->isEnabled());
    });
    QCOMPARE(warning, QString("Warning: Please select a channel to scan"));
    QVERIFY(fake->lines().isEmpty());
}

void tst_AddInertialSensorDlg::cancelSeenAtNextTick()
{
    scriptController(1);
    open([&] {
        chooseMode("all channels");
        w<QPushButton>("pushButton_scan")->click();
        tick();
        tick();
        const int sent = fake->lines().size();
        w<QPushButton>("pushButton_cancel")->click();
        QCOMPARE(fake->lines().size(), sent);   // nothing stops mid-channel
        QVERIFY(!w<QPushButton>("pushButton_scan")->isEnabled());
        tick();
        QCOMPARE(fake->lines().size(), sent);
        QVERIFY(w<QPushButton>("pushButton_scan")->isEnabled());
        QVERIFY(!w<QPushButton>("pushButton_cancel")->isEnabled());
    });
    QCOMPARE(fake->count("norvane inertial scan_sensors"), 2);
    QCOMPARE(w<QLabel>("label_channel")->text(), QString("Scanning channels aborted"));
    QCOMPARE(w<QProgressBar>("progressBar_overall")->value(), 0);
}

void tst_AddInertialSensorDlg::closeAndEscapeDuringScan()
{
    scriptController(1);
    open([&] {
        chooseMode("default channels");
        w<QPushButton>("pushButton_scan")->click();
        QVERIFY(!dlg->close());   // refused while the scan can be cancelled
        QVERIFY(dlg->isVisible());

        QTest::keyClick(dlg, Qt::Key_Escape);
        QVERIFY(dlg->isVisible());
        QVERIFY(!w<QPushButton>("pushButton_scan")->isEnabled());   // halted, still scanning
        QTest::qWait(250);   // the halted timer really stays silent
        QCOMPARE(fake->count("norvane inertial scan_sensors"), 0);

        // Cancel still ends a halted scan.
        w<QPushButton>("pushButton_cancel")->click();
        QTRY_VERIFY(w<QPushButton>("pushButton_scan")->isEnabled());
        QCOMPARE(w<QLabel>("label_channel")->text(), QString("Scanning channels aborted"));
        QCOMPARE(fake->count("norvane inertial scan_sensors"), 0);

        QVERIFY(dlg->close());   // idle: closing is fine
    });
    QVERIFY(!dlg->isVisible());
}

void tst_AddInertialSensorDlg::f3Scans()
{
    scriptController(0);
    open([&] {
        QTest::keyClick(dlg, Qt::Key_F3);
        QVERIFY(!w<QPushButton>("pushButton_scan")->isEnabled());
        QTest::keyClick(dlg, Qt::Key_F3);   // no second scan while one runs
        QCOMPARE(finish(), 1);
    });
    QCOMPARE(fake->count("norvane inertial scan_sensors"), 1);
    QCOMPARE(fake->count("inertial number_of_sensors"), 1);
}

void tst_AddInertialSensorDlg::applyPlacesSensors()
{
    // Body 1 is free, body 2 appears when the count is raised, and the
    // third sensor finds no body below the maximum of 2.
    scriptController(0);
    scriptScanned({"nv imu '2002' 0", "nv imu '2003' 0", "nv imu '2004' 0"});
    fake->set_stateful(true);
    fake->reply("standard max_number_of_bodies", "2");
    fake->reply("standard number_of_bodies", "1");
    for (const QByteArray serial : {"2002", "2003", "2004"}) {
        fake->reply("norvane inertial add_sensor nv imu '" + serial + "' 0", "norvane ok");
        fake->reply("inertial sensor_has_storage nv imu '" + serial + "'", "yes");
    }
    fake->reply("body calibrated standard b01", "no");
    fake->reply("body calibrated standard b02", "no");
    fake->reply("body inertial_sensor standard b01", "none");
    fake->reply("body inertial_sensor standard b02", "none");
    fake->reply("norvane inertial delete_sensor nv imu '2004'", "norvane ok");

    QString warning;
    open([&] {
        w<QPushButton>("pushButton_scan")->click();
        finish();
        w<QCheckBox>("checkBox_acceptAll")->setChecked(true);
        fake->clear_log();
        ModalDialogHelper::when_active("QMessageBox", [&](QWidget* box) {
            warning = box->windowTitle() + ": " + static_cast<QMessageBox*>(box)->text();
            ModalDialogHelper::press(box, QMessageBox::Ok);
        });
        w<QPushButton>("pushButton_apply")->click();
        QVERIFY(dlg->isVisible());   // adding leaves the dialog open
    });

    QCOMPARE(fake->lines(), QList<QByteArray>({
        "standard max_number_of_bodies",
        "norvane inertial add_sensor nv imu '2002' 0",
        "standard number_of_bodies",
        "inertial sensor_has_storage nv imu '2002'",
        "body calibrated standard b01",
        "body inertial_sensor standard b01",
        "body inertial_sensor standard b01 nv imu '2002'",
        "norvane inertial add_sensor nv imu '2003' 0",
        "standard number_of_bodies",
        "inertial sensor_has_storage nv imu '2003'",
        "body calibrated standard b01",
        "body inertial_sensor standard b01",
        "standard number_of_bodies 2",
        "body calibrated standard b02",
        "body inertial_sensor standard b02",
        "body inertial_sensor standard b02 nv imu '2003'",
        "norvane inertial add_sensor nv imu '2004' 0",
        "standard number_of_bodies",
        "inertial sensor_has_storage nv imu '2004'",
        "body calibrated standard b01",
        "body inertial_sensor standard b01",
        "body calibrated standard b02",
        "body inertial_sensor standard b02",
        "norvane inertial delete_sensor nv imu '2004'",
    }));
    QCOMPARE(warning, QString("Sensor adding failed: Following sensors are not added:\n\n'2004'\n\n"
                              " because the maximum number of bodies is reached."));
    QTableWidget* table = w<QTableWidget>("tableWidget");
    QCOMPARE(table->item(0, 4)->flags(), Qt::NoItemFlags);
    QCOMPARE(table->item(1, 4)->flags(), Qt::NoItemFlags);
    QVERIFY(table->item(2, 4)->flags() & Qt::ItemIsUserCheckable);   // may be tried again
    QVERIFY(fake->messages().isEmpty());
    QVERIFY(fake->unexpected().isEmpty());
}

void tst_AddInertialSensorDlg::applyStorage_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QByteArray>("storage");   // empty: the query fails
    QTest::addColumn<bool>("placed");
    QTest::addColumn<QStringList>("messages");

    QTest::newRow("1.21, with storage") << 21 << QByteArray("yes") << true << QStringList();
    QTest::newRow("1.21, without storage") << 21 << QByteArray("no") << false << QStringList();
    QTest::newRow("1.21, query fails") << 21 << QByteArray() << true
                                       << QStringList{"Error: Unable to get whether sensor has storage"};
    QTest::newRow("1.20 does not ask") << 20 << QByteArray("no") << true << QStringList();
}

void tst_AddInertialSensorDlg::applyStorage()
{
    QFETCH(int, minor);
    QFETCH(QByteArray, storage);
    QFETCH(bool, placed);
    QFETCH(QStringList, messages);

    versions.minor = minor;
    scriptController(0);
    scriptScanned({"nv imu '2002' 0"});
    fake->reply("standard max_number_of_bodies", "2");
    fake->reply("standard number_of_bodies", "1");
    fake->reply("norvane inertial add_sensor nv imu '2002' 0", "norvane ok");
    if (storage.isEmpty())
        fake->fail("inertial sensor_has_storage nv imu '2002'");
    else
        fake->reply("inertial sensor_has_storage nv imu '2002'", storage);
    fake->reply("body calibrated standard b01", "no");
    fake->reply("body inertial_sensor standard b01", "none");
    fake->accept("body inertial_sensor standard b01 nv imu '2002'");
    open([&] {
        w<QPushButton>("pushButton_scan")->click();
        finish();
        w<QCheckBox>("checkBox_acceptAll")->setChecked(true);
        fake->clear_log();
        w<QPushButton>("pushButton_apply")->click();
        QCOMPARE(w<QTableWidget>("tableWidget")->item(0, 4)->flags(), Qt::NoItemFlags);
        QVERIFY(!w<QPushButton>("pushButton_apply")->isEnabled());
    });
    QCOMPARE(fake->count("inertial sensor_has_storage nv imu '2002'"), minor >= 21 ? 1 : 0);
    QCOMPARE(fake->count("body inertial_sensor standard b01 nv imu '2002'"), placed ? 1 : 0);
    QCOMPARE(fake->message_texts(), messages);
    QVERIFY(fake->unexpected().isEmpty());
}

void tst_AddInertialSensorDlg::applyFailures_data()
{
    QTest::addColumn<QByteArray>("failing");
    QTest::addColumn<QString>("message");

    QTest::newRow("max bodies") << QByteArray("standard max_number_of_bodies") << "Error: Unable to get max number of bodies";
    QTest::newRow("add") << QByteArray("norvane inertial add_sensor nv imu '2002' 0") << "Error: Unable to add sensor";
    QTest::newRow("body count") << QByteArray("standard number_of_bodies") << "Error: Unable to get number of bodies";
    QTest::newRow("calibration") << QByteArray("body calibrated standard b01") << "Error: Unable to get calibration of body";
    QTest::newRow("body sensor") << QByteArray("body inertial_sensor standard b01")
                                 << "Error: Unable to get inertial information of body";
    QTest::newRow("raising the count") << QByteArray("standard number_of_bodies 2") << "Error: Unable to set number of bodies";
    QTest::newRow("assignment") << QByteArray("body inertial_sensor standard b02 nv imu '2002'")
                                << "Error: Unable to set inertial sensor to body";
    QTest::newRow("refused") << QByteArray() << "Information: Could not add sensor norvane error no room";
}

void tst_AddInertialSensorDlg::applyFailures()
{
    QFETCH(QByteArray, failing);
    QFETCH(QString, message);

    scriptController(0);
    scriptScanned({"nv imu '2002' 0", "nv imu '2003' 0"});
    fake->reply("standard max_number_of_bodies", "3");
    fake->reply("standard number_of_bodies", "1");
    fake->reply("norvane inertial add_sensor nv imu '2002' 0", "norvane ok");
    fake->reply("inertial sensor_has_storage nv imu '2002'", "yes");
    fake->reply("body calibrated standard b01", "no");
    fake->reply("body inertial_sensor standard b01", "nv imu '1001'");
    fake->accept("standard number_of_bodies 2");
    fake->reply("body calibrated standard b02", "no");
    fake->reply("body inertial_sensor standard b02", "none");
    fake->accept("body inertial_sensor standard b02 nv imu '2002'");
    if (failing.isEmpty())
        fake->reply("norvane inertial add_sensor nv imu '2002' 0", "norvane error 'no room'");
    else
        fake->fail(failing);

    QString box;
    open([&] {
        w<QPushButton>("pushButton_scan")->click();
        finish();
        w<QCheckBox>("checkBox_acceptAll")->setChecked(true);
        fake->clear_log();
        if (failing.isEmpty())
            ModalDialogHelper::when_active("QMessageBox", [&](QWidget* b) {
                box = b->windowTitle() + ": " + static_cast<QMessageBox*>(b)->text();
                ModalDialogHelper::press(b, QMessageBox::Ok);
            });
        w<QPushButton>("pushButton_apply")->click();
        QVERIFY(QApplication::overrideCursor() == nullptr);
        QVERIFY(w<QPushButton>("pushButton_scan")->isEnabled());
    });
    if (failing.isEmpty()) {
        QCOMPARE(box, message);
        QVERIFY(fake->messages().isEmpty());
    } else {
        QCOMPARE(fake->message_texts(), QStringList{message});
        QCOMPARE(fake->lines().last(), failing);
    }
    // The first failure ends adding: the second sensor is never tried.
    QCOMPARE(fake->count("norvane inertial add_sensor nv imu '2003' 0"), 0);
}

void tst_AddInertialSensorDlg::absurdCounts()
{
    // A controller gone mad must cost a bounded number of round trips.
    scriptController(1);
    fake->reply("inertial number_of_transceivers", "2000000000");
    fake->reply("inertial number_of_sensors", "2000000000");
    fake->replies("inertial number_of_scanned_sensors", {"2000000000"});
    fake->reply("inertial scanned_sensor d01", "nv");            // too short to be a sensor
    fake->reply("inertial scanned_sensor d02", "nv imu '2002'"); // no channel word: the scanned one
    fake->reply("inertial scanned_sensor d03", "");             // nothing more
    open([&] {
        chooseMode("single channel");
        w<ChannelComboBox>("comboBox_channel")->setChannel(9);
        w<QPushButton>("pushButton_scan")->click();
        QCOMPARE(finish(), 1);
    });
    QVERIFY(fake->count("inertial sensor d01") == 1);
    QVERIFY(fake->lines().size() < 600);
    QTableWidget* table = w<QTableWidget>("tableWidget");
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(table->item(0, 0)->text(), QString("2002"));
    QCOMPARE(table->item(0, 3)->text(), QString("9"));
}

QTEST_MAIN(tst_AddInertialSensorDlg)
#include "tst_AddInertialSensorDlg.moc"
