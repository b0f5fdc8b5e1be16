#include <QtTest>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QToolBox>

#include <functional>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "TypicalSystem.h"
#include "module/BackendVersions.h"
#include "module/InertialTrackingModule.h"
#include "settings/ChannelComboBox.h"
#include "settings/InertialSettingsDlg.h"

namespace {

// Columns of the sensor table as the user sees them.
enum { Id = 0, Name = 3, Channel = 5, Mode = 6, Delete = 11 };

const QByteArray T1 = "NRV Dongle 'T1001'";
const QByteArray T2 = "NRV Dongle 'T1002'";
const QByteArray S1 = "NRV IMU9 'S0001'";
const QByteArray S2 = "NRV IMU9 'S0002'";
const QByteArray S3 = "NRV IMU9 'S0003'";
const QString Typical = "T1001 S0002 S0001 T1002 S0005 S0003 cable connected: C0004";

QString red(const QString& text)
{
    return "<b><font color=red>" + text + "</font></b>";
}

// Which of the module's images an icon shows.
QString icon_name(const QIcon& icon)
{
    const QImage image = icon.pixmap(16).toImage();
    for (const char* name : {"inertial_en", "inertial_dis", "green", "yellow", "red", "118", "lock", "sensor"})
        if (!icon.isNull() && QIcon(QString(":/%1.png").arg(name)).pixmap(16).toImage() == image)
            return name;
    return icon.isNull() ? QString() : QStringLiteral("?");
}

} // namespace

// The settings dialog driven through its widgets against the typical system:
// what an opening decides and asks, the sensor table, its refreshes, and
// every action of the Settings page.
class tst_InertialSettingsDlg : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { InertialTrackingModule::init_resources(); }
    void init();
    void cleanup();
    void opening_data();
    void opening();
    void openingAsksInOrder();
    void typicalTable();
    void failures_data();
    void failures();
    void secondOpeningStartsAfresh_data();
    void secondOpeningStartsAfresh();
    void refresh_data();
    void refresh();
    void warmup_data();
    void warmup();
    void deletion_data();
    void deletion();
    void nameEdit_data();
    void nameEdit();
    void sensorMode_data();
    void sensorMode();
    void pageMode_data();
    void pageMode();
    void frequency_data();
    void frequency();
    void transceiverChannel_data();
    void transceiverChannel();
    void sensorChannel();
    void channelScan_data();
    void channelScan();
    void keys_data();
    void keys();
    void reopenMessage_data();
    void reopenMessage();
    void addSensorPausesRefresh();

private:
    // Scripts the system once; open() does it when the test did not.
    void install();
    // Opens the dialog (built once per test), runs `inside`, leaves by Exit.
    void open(const std::function<void()>& inside = {});
    template <class T = QWidget>
    T* w(const char* name) const { return dialog->findChild<T*>(QLatin1String(name)); }
    QTableWidget* table() const { return w<QTableWidget>("tableWidget"); }
    QString cell(int row, int column) const;
    QStringList rows() const;
    QString ids() const;
    QString enabled() const;
    QString timers() const;
    QString snapshot() const;
    void click(int row, int column);
    // Answers the next message box with `button`; box() then reads "title: text".
    void answer_box(int button);
    static void choose(QComboBox* combo, const QString& text);

    FakeController* fake = nullptr;
    BackendVersions versions;
    TypicalSystem system;
    QWidget* host = nullptr;
    InertialSettingsDlg* dialog = nullptr;
    bool installed = false;
    QString box;
};

void tst_InertialSettingsDlg::init()
{
    fake = new FakeController;
    versions = BackendVersions();
    versions.major = 1;
    versions.minor = 21;
    system = TypicalSystem();
    installed = false;
    box.clear();
    host = new QWidget;
    host->setWindowIcon(QIcon(":/sensor.png"));
    dialog = new InertialSettingsDlg(fake, host, &versions);
}

void tst_InertialSettingsDlg::cleanup()
{
    delete host;
    delete fake;
    QCOMPARE(ModalDialogHelper::pending(), 0);
    ModalDialogHelper::clear_pending();
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_InertialSettingsDlg::install()
{
    system.install(*fake);
    installed = true;
}

void tst_InertialSettingsDlg::open(const std::function<void()>& inside)
{
    if (!installed)
        install();
    ModalDialogHelper::when_active("InertialSettingsDlg", [this, inside](QWidget*) {
        if (inside)
            inside();
        if (dialog->isVisible())
            w<QPushButton>("pushButton_exit")->click();
    });
    dialog->update_and_exec();
}

QString tst_InertialSettingsDlg::cell(int row, int column) const
{
    // A greyed cell reads "~text", an editable name "text*"; widgets show
    // what the user sees in them.
    QWidget* widget = table()->cellWidget(row, column);
    if (auto* combo = qobject_cast<QComboBox*>(widget))
        return "[" + combo->currentText() + "]";
    if (auto* bar = qobject_cast<QProgressBar*>(widget))
        return QString("%1@%2").arg(bar->text()).arg(bar->value());
    const QTableWidgetItem* item = table()->item(row, column);
    if (!item)
        return QString();
    QString text = item->text();
    if (!icon_name(item->icon()).isEmpty())
        text.prepend("{" + icon_name(item->icon()) + "}");
    if (!(item->flags() & Qt::ItemIsEnabled))
        text.prepend('~');
    if (column == Name && (item->flags() & Qt::ItemIsEditable))
        text.append('*');
    return text;
}

QStringList tst_InertialSettingsDlg::rows() const
{
    QStringList result;
    for (int row = 0; row < table()->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table()->columnCount(); ++column)
            cells << cell(row, column);
        result << cells.join('|');
    }
    return result;
}

QString tst_InertialSettingsDlg::ids() const
{
    QStringList texts;
    for (int row = 0; row < table()->rowCount(); ++row)
        texts << (table()->item(row, Id) ? table()->item(row, Id)->text() : QString("-"));
    return texts.join(' ');
}

QString tst_InertialSettingsDlg::enabled() const
{
    QStringList names;
    const QList<QPair<const char*, const char*>> widgets{
        {"add", "pushButton_addSensor"}, {"mode", "comboBox_mode"}, {"frequency", "doubleSpinBox_frequency"},
        {"table", "tableWidget"}, {"scan", "pushButton_scanAvailableChannels"}, {"warmup", "pushButton_warmup"},
        {"bodies", "spinBox_numBodies"}, {"filter", "pushButton_filter"}, {"select", "pushButton_select"}};
    for (const auto& widget : widgets)
        if (w(widget.second)->isEnabled())
            names << widget.first;
    return names.join(' ');
}

QString tst_InertialSettingsDlg::timers() const
{
    QStringList names;
    for (const char* name : {"buttonTimer", "firstRefreshTimer", "notPresentTimer", "sensorDataTimer"})
        if (w<QTimer>(name)->isActive())
            names << name;
    return names.join(' ');
}

QString tst_InertialSettingsDlg::snapshot() const
{
    auto* progress = w<QProgressBar>("progressBar");
    return QStringList{w<QLabel>("label_error")->text(), enabled(), timers(),
                       w<QPushButton>("pushButton_warmup")->text(), icon_name(dialog->windowIcon()),
                       w<QLabel>("label_error3")->isVisible() ? w<QLabel>("label_error3")->text() : "",
                       QString("%1 %2 %3").arg(progress->isVisible()).arg(progress->isEnabled()).arg(progress->value()),
                       w<QComboBox>("comboBox_mode")->currentText(), rows().join('\n')}
        .join('\n');
}

void tst_InertialSettingsDlg::click(int row, int column)
{
    QTableWidgetItem* item = table()->item(row, column);
    table()->scrollToItem(item);
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, table()->visualItemRect(item).center());
}

void tst_InertialSettingsDlg::answer_box(int button)
{
    ModalDialogHelper::when_active("QMessageBox", [this, button](QWidget* w) {
        box = w->windowTitle() + ": " + qobject_cast<QMessageBox*>(w)->text();
        if (button == QMessageBox::Escape)
            QTest::keyClick(w, Qt::Key_Escape);
        else
            ModalDialogHelper::press(w, button);
    });
}

void tst_InertialSettingsDlg::choose(QComboBox* combo, const QString& text)
{
    // Pick the entry in the open list, as a user does: even the current
    // entry counts as chosen.
    const int index = combo->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(index, 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

// --- opening -----------------------------------------------------------------

void tst_InertialSettingsDlg::opening_data()
{
    QTest::addColumn<int>("minor");
    QTest::addColumn<QByteArray>("changeable");
    QTest::addColumn<QByteArray>("available");
    QTest::addColumn<bool>("transceivers");
    QTest::addColumn<QByteArray>("warmup");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QString>("timers");
    QTest::addColumn<QString>("warmupText");
    QTest::addColumn<QString>("ids");
    QTest::addColumn<int>("trips");   // what the opening costs

    const QString all = "add mode frequency table scan warmup";
    const QString old = "This controller does not support hybrid sensors - please update your controller";
    QTest::newRow("1.8 controller: nothing asked") << 8 << QByteArray("yes") << QByteArray("yes") << true
        << QByteArray("no") << old << "table" << "" << "Warmup start" << "" << 0;
    QTest::newRow("1.11 controller: only the lock asked") << 11 << QByteArray("yes") << QByteArray("yes")
        << true << QByteArray("no") << old << "table" << "" << "Warmup start" << "" << 1;
    QTest::newRow("locked: table filled, nothing usable") << 21 << QByteArray("no") << QByteArray("yes") << true
        << QByteArray("no") << "The configuration is locked: the inertial settings cannot be changed" << ""
        << "" << "Warmup start" << Typical << 144;
    QTest::newRow("inertial tracking unavailable") << 21 << QByteArray("yes") << QByteArray("no") << true
        << QByteArray("no") << "Hybrid tracking is not available!" << "table" << "" << "Warmup start"
        << Typical << 103;
    QTest::newRow("no transceiver: no scan, no timer") << 21 << QByteArray("yes") << QByteArray("yes") << false
        << QByteArray("no") << "" << "add mode frequency table warmup" << "" << "Warmup start"
        << "cable connected: S0005 C0004 S0003 S0002 S0001" << 109;
    QTest::newRow("warm-up running: sensor data instead of the presence poll") << 21 << QByteArray("yes")
        << QByteArray("yes") << true << QByteArray("yes") << "" << "warmup"
        << "buttonTimer firstRefreshTimer sensorDataTimer" << "Warmup stop" << Typical << 172;
    QTest::newRow("ready") << 21 << QByteArray("yes") << QByteArray("yes") << true << QByteArray("no") << "" << all
        << "buttonTimer firstRefreshTimer notPresentTimer" << "Warmup start" << Typical << 147;
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
    QFETCH(QString, timers);
    QFETCH(QString, warmupText);
    QFETCH(QString, ids);
    QFETCH(int, trips);

    versions.minor = minor;
    system.config_changeable = changeable;
    system.available = available;
    system.warmup = warmup;
    if (!transceivers) {
        system.transceivers.clear();
        for (TypicalSystem::Sensor& sensor : system.sensors)
            sensor.transceiver = "none";
    }
    QString seen;
    bool progress = true;
    open([&] {
        seen = QStringList{w<QLabel>("label_error")->text(), this->enabled(), this->timers(),
                           w<QPushButton>("pushButton_warmup")->text(), this->ids()}
                   .join('\n');
        progress = w<QProgressBar>("progressBar")->isVisible();
    });
    QCOMPARE(seen, QStringList({error.isEmpty() ? error : red(error), enabled, timers, warmupText, ids}).join('\n'));
    QCOMPARE(progress, error.isEmpty());
    QCOMPARE(icon_name(dialog->windowIcon()), changeable == "no" ? "lock" : "sensor");
    QCOMPARE(fake->lines().size(), trips);
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
    QCOMPARE(fake->message_texts(), QStringList());
    QCOMPARE(this->timers(), QString());   // closing stops every timer
}

void tst_InertialSettingsDlg::openingAsksInOrder()
{
    // One transceiver with two usable channels, one radio sensor on body 1
    // and one on cable.
    system.transceivers = {system.transceivers.first()};
    system.transceivers[0].channels = {12, 14};
    system.sensors = {system.sensors.at(0), system.sensors.at(3)};
    open();
    const QByteArray C4 = "NRV IMU6 'C0004'";
    const QByteArray available = "inertial sensor_wakeup_mode_available ";
    QCOMPARE(fake->lines(), (QList<QByteArray>{
        "config is_changeable", "inertial available", "inertial number_of_wakeup_modes",
        "inertial wakeup_mode t01", "inertial wakeup_mode_desc 'wm_usb'", "inertial wakeup_mode t02",
        "inertial wakeup_mode_desc 'wm_tap'", "inertial wakeup_mode t03", "inertial wakeup_mode_desc 'wm_radio'",
        "inertial number_of_transceivers", "inertial transceiver d01", "inertial transceiver_version " + T1,
        "inertial transceiver_vendor_desc NRV", "inertial transceiver_model_desc NRV Dongle",
        "inertial transceiver_present " + T1, "inertial number_of_transceiver_available_radio_channels " + T1,
        "inertial transceiver_available_radio_channel " + T1 + " t01",
        "inertial transceiver_available_radio_channel " + T1 + " t02",
        "inertial transceiver_radio_channel_activity " + T1 + " 12",
        "inertial transceiver_radio_channel_activity " + T1 + " 14", "inertial transceiver_radio_channel " + T1,
        "inertial transceiver_suggested_radio_channel " + T1, "inertial number_of_sensors", "inertial sensor d01",
        "inertial body_of_sensor " + S1, "inertial transceiver_of_sensor " + S1, "inertial sensor_vendor_desc NRV",
        "inertial sensor_model_desc NRV IMU9", "body number_of_bodies standard", "body desc standard b01",
        "inertial sensor_present " + S1, "inertial sensor_temperature " + S1, "inertial sensor_battery " + S1,
        "inertial sensor_output_frequency " + S1, "inertial sensor_handeye " + S1, "inertial sensor_version " + S1,
        available + S1 + " 'wm_radio'", available + S1 + " 'wm_tap'", available + S1 + " 'wm_usb'",
        "inertial sensor_wakeup_mode " + S1, "inertial sensor_radio_channel " + S1, "inertial sensor d02",
        "inertial body_of_sensor " + C4, "inertial transceiver_of_sensor " + C4, "inertial sensor_vendor_desc NRV",
        "inertial sensor_model_desc NRV IMU6", "inertial sensor_present " + C4, "inertial sensor_temperature " + C4,
        "inertial sensor_battery " + C4, "inertial sensor_output_frequency " + C4, "inertial sensor_handeye " + C4,
        "inertial sensor_version " + C4, available + C4 + " 'wm_radio'", available + C4 + " 'wm_tap'",
        available + C4 + " 'wm_usb'", "inertial sensor_wakeup_mode " + C4, "inertial sensor_radio_channel " + C4,
        "inertial limit frequency", "inertial frequency", "inertial sensor_wakeup_mode " + S1,
        available + S1 + " 'wm_radio'", available + S1 + " 'wm_tap'", available + S1 + " 'wm_usb'",
        "inertial sensor_wakeup_mode " + C4, available + C4 + " 'wm_radio'", available + C4 + " 'wm_tap'",
        available + C4 + " 'wm_usb'", "inertial number_of_transceivers", "inertial limit frequency",
        "inertial warmup"}));
    // Slow answers are allowed for nothing here: no time-out was changed.
    QCOMPARE(fake->lines(FakeController::SetTimeout), QList<QByteArray>());
}

void tst_InertialSettingsDlg::typicalTable()
{
    QStringList seen;
    open([&] { seen = rows(); });
    const QString typical = "|Norvane|IMU9 sensor|%1|2.4.1|[%2]|[%3]|80%@80|18.0\u00b0C@50|100 Hz|{%4}|{118}";
    QCOMPARE(seen, (QStringList{
        "T1001|Norvane|Dongle (USB)||3.1.0|[12]||||||",
        "{inertial_en}S0002" + typical.arg("~", "12", "Wake by radio", "yellow"),
        "{inertial_en}S0001" + typical.arg("Body 01*", "12", "Wake by radio", "green"),
        "T1002|Norvane|Dongle (USB)||3.1.0|[20]||||||",
        "~{inertial_dis}S0005|~Norvane|~IMU9 sensor|~|~||~||not present||{yellow}|{118}",
        "{inertial_en}S0003" + typical.arg("Body 02*", "20", "Wake on tap", "yellow"),
        "cable connected:|||||||||||",
        "{inertial_en}C0004|Norvane|IMU6 sensor|~|2.4.1|USB|[Wake on USB]|80%@80|18.0\u00b0C@50|100 Hz|{yellow}|{118}"}));
    QCOMPARE(w<QComboBox>("comboBox_mode")->currentText(), QString("(mixed)"));
    QVERIFY(table()->isColumnHidden(1));
}

void tst_InertialSettingsDlg::failures_data()
{
    QTest::addColumn<QByteArray>("line");     // fails, or answers `reply` when one is given
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("ids");         // empty: the typical rows
    QTest::addColumn<QString>("cell");        // "row column text", checked when given

    auto row = [](const char* name, const QByteArray& line, const QStringList& messages, const QString& ids = {},
                  const QString& cell = {}, const QByteArray& reply = {}) {
        QTest::newRow(name) << line << reply << messages << ids << cell;
    };
    // Failures that end the rebuild: the table keeps what was filled.
    row("transceiver count", "inertial number_of_transceivers", {"Error: Unable to get number of dongles"}, " ");
    row("transceiver identity", "inertial transceiver d02", {"Error: Unable to get informations of dongle 2"}, " ");
    row("transceiver channel", "inertial transceiver_radio_channel " + T2,
        {"Error: Unable to get radio channel of dongle 2"}, "T1001 T1002", "0 5 [12]");
    row("sensor identity", "inertial sensor d03", {"Could not get informations of sensor 3"}, "T1001 S0002 S0001 T1002");
    row("body of a sensor", "inertial body_of_sensor " + S2, {"Could not get body of sensor 2"}, "T1001 S0001 T1002");
    // Failures that leave a fallback and go on.
    row("two-word transceiver", "inertial transceiver d01", {"Error: Unable to get informations of dongle 1"},
        "T1002 S0005 S0003 cable connected: C0004 S0002 S0001", "", "NRV Dongle");
    row("two-word sensor", "inertial sensor d02", {"Error: Unable to get vendor model of inertial sensor"},
        "T1001 S0001 T1002 S0005 S0003 cable connected: C0004", "", "NRV IMU9");
    row("sensor count", "inertial number_of_sensors", {"Could not get number of sensors"}, "T1001 T1002", "");
    row("transceiver firmware", "inertial transceiver_version " + T1,
        {"Error: Unable to get firmware version of dongle 1"}, "", "0 4 error");
    row("transceiver vendor", "inertial transceiver_vendor_desc NRV",
        {"Error: Unable to get vendor description of dongle 1", "Error: Unable to get vendor description of dongle 2"},
        "", "3 1 error");
    row("transceiver model: found by its key", "inertial transceiver_model_desc NRV Dongle",
        {"Error: Unable to get model description of dongle 1", "Error: Unable to get model description of dongle 2"},
        "", "0 2 error");
    row("transceiver presence", "inertial transceiver_present " + T1,
        {"Error: Unable to get present status of dongle 1"}, "", "0 5 [12]");
    row("transceiver absent: greyed", "inertial transceiver_present " + T2, {}, "", "3 5 ~", "no");
    row("channel count", "inertial number_of_transceiver_available_radio_channels " + T1,
        {"Error: Unable to get number of available channels of dongle 1",
         "Error: Unable to get number of available dongle channels"}, "", "0 5 [12]");
    row("one usable channel", "inertial transceiver_available_radio_channel " + T1 + " t05",
        {"Error: Unable to get available channel of dongle 1"}, "", "0 5 [12]");
    row("channel activity", "inertial transceiver_radio_channel_activity " + T1 + " 12",
        {"Could not get activity of dongle: " + QString(T1)});
    row("suggested channel", "inertial transceiver_suggested_radio_channel " + T2,
        {"Error: Unable to get suggested radio channel of dongle 2"});
    row("transceiver of a sensor", "inertial transceiver_of_sensor " + S2,
        {"Could not get associated transciever of sensor 2, transciever not connected?"},
        "T1001 S0001 T1002 S0005 S0003 cable connected: C0004 S0002");
    row("sensor vendor", "inertial sensor_vendor_desc NRV",
        {"Error: Unable to get vendor description of sensor 1", "Error: Unable to get vendor description of sensor 2",
         "Error: Unable to get vendor description of sensor 3", "Error: Unable to get vendor description of sensor 4",
         "Error: Unable to get vendor description of sensor 5"}, "", "1 1 error");
    row("sensor model", "inertial sensor_model_desc NRV IMU6",
        {"Error: Unable to get model description of sensor 4"}, "", "7 2 error");
    row("body description", "body desc standard b02", {"Could not get body description of body 3"}, "", "5 3 *");
    row("body count: the id shown", "body number_of_bodies standard",
        {"Error: Unable to get number of bodies", "Error: Unable to get number of bodies"}, "", "2 3 ~standard b01");
    row("sensor presence", "inertial sensor_present " + S3, {"Error: Unable to get informations of sensor 3"}, "",
        "5 8 not present");
    row("sensor firmware", "inertial sensor_version " + S1, {"Error: Unable to get firmware version of sensor"}, "",
        "2 4 v0.0.0");
    row("sensor channel", "inertial sensor_radio_channel " + S3,
        {"Error: Unable to get sensor channel", "Error: Unable to get radio channel of sensor"}, "", "5 5 []");
    row("sensor battery", "inertial sensor_battery " + S1, {"Error: Unable to get battery status of sensor"}, "",
        "2 7 ");
    row("sensor temperature", "inertial sensor_temperature " + S1,
        {"Error: Unable to get temperature status of sensor 2"}, "", "2 8 ");
    row("sensor output frequency", "inertial sensor_output_frequency " + S2,
        {"Error: Unable to get frequency of sensor 2"}, "", "1 9 ");
    row("hand-eye state", "inertial sensor_handeye " + S2, {"Error: Unable to get calibration status of sensor"}, "",
        "1 10 ~{red}");
    row("mode count", "inertial number_of_wakeup_modes",
        {"Error: Unable to get number of wakeup modes of inertial system"}, "", "1 6 []");
    row("mode id", "inertial wakeup_mode t02", {"Error: Unable to get wakeup modes of inertial system"}, "",
        "7 6 [Wake on USB]");
    row("mode description", "inertial wakeup_mode_desc 'wm_tap'",
        {"Error: Unable to get wakeup description of inertial system"}, "", "7 6 [Wake on USB]");
    row("modes a sensor offers", "inertial sensor_wakeup_mode_available " + S2 + " 'wm_radio'",
        {"Error: Unable to get available wakeup mode of sensor " + QString(S2),
         "Error: Unable to get available wakeup mode of sensor "}, "", "1 6 []");
    row("mode of a sensor", "inertial sensor_wakeup_mode " + S2,
        {"Error: Unable to get wakeup mode of sensor " + QString(S2),
         "Error: Unable to get wakeup mode of sensor " + QString(S2)}, "", "1 6 [Wake by radio]");
    row("frequency limits", "inertial limit frequency",
        {"Error: Unable to get minimum maximum range of the inertial frequency", "Error: Unable to get hybrid frequency"});
    row("limits the wrong way round", "inertial limit frequency", {"Error: Unable to get hybrid frequency"}, "", "",
        "600 10");
    row("frequency", "inertial frequency", {"Error: Unable to get the inertial frequency"});
    row("warm-up state", "inertial warmup", {"Could not get warmup status"});
}

void tst_InertialSettingsDlg::failures()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, reply);
    QFETCH(QStringList, messages);
    QFETCH(QString, ids);
    QFETCH(QString, cell);

    install();
    if (reply.isEmpty())
        fake->fail(line);
    else
        fake->reply(line, reply);
    QString shown;
    open([&] {
        const QStringList where = cell.split(' ');
        shown = this->ids() + '\n' + (cell.isEmpty() ? "" : this->cell(where.at(0).toInt(), where.at(1).toInt()));
    });
    const QString expected = cell.section(' ', 2);
    QCOMPARE(shown, (ids.isEmpty() ? Typical : ids.trimmed()) + '\n' + expected);
    QCOMPARE(fake->message_texts(), messages);
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
}

void tst_InertialSettingsDlg::secondOpeningStartsAfresh_data()
{
    QTest::addColumn<QByteArray>("path");   // answered `first` at the first opening, `second` at the next
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");

    QTest::newRow("lock released") << QByteArray("config is_changeable") << QByteArray("no") << QByteArray("yes");
    QTest::newRow("warm-up ended") << QByteArray("inertial warmup") << QByteArray("yes") << QByteArray("no");
    QTest::newRow("warm-up, then locked") << QByteArray("config is_changeable") << QByteArray("yes") << QByteArray("no");
    QTest::newRow("tracking back") << QByteArray("inertial available") << QByteArray("no") << QByteArray("yes");
    QTest::newRow("transceivers gone") << QByteArray("inertial number_of_transceivers") << QByteArray("2")
                                       << QByteArray("0");
    QTest::newRow("scanned since") << QByteArray("inertial transceiver_suggested_radio_channel " + T1)
                                   << QByteArray("0") << QByteArray("14");
    QTest::newRow("other channels") << QByteArray("inertial transceiver_available_radio_channel " + T1 + " t05")
                                    << QByteArray("20") << QByteArray("30");
}

void tst_InertialSettingsDlg::secondOpeningStartsAfresh()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);

    // The dialog object lives on between openings; the second must look
    // exactly as a new dialog's first on the same controller.
    system.warmup = "yes";
    install();
    fake->reply(path, first);
    open([this] {
        QTest::keyClick(dialog, Qt::Key_3);
        emit table()->cellClicked(2, Name);
    });
    fake->reply(path, second);
    QString reused;
    QString fresh;
    open([&] { reused = snapshot(); });
    fake->clear_log();
    auto* again = dialog;
    dialog = new InertialSettingsDlg(fake, host, &versions);
    open([&] { fresh = snapshot(); });
    delete again;
    QCOMPARE(reused, fresh);
    QCOMPARE(w<QToolBox>("toolBox")->currentIndex(), 0);
}

// --- refreshes while open --------------------------------------------------------

void tst_InertialSettingsDlg::refresh_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QByteArray>("warmup");
    QTest::addColumn<QStringList>("changed");   // the rows that differ from the opening's, after the refresh
    QTest::addColumn<QString>("timers");

    QString s1 = "{inertial_en}S0001|Norvane|IMU9 sensor|Body 01*|2.5.0|[12]|[Wake on tap]|15%@15|35.0\u00b0C@97|"
                       "100 Hz|{green}|{118}";
    QString s2 = "~{inertial_dis}S0002|~Norvane|~IMU9 sensor|~|~2.4.1|[12]|~||not present|100 Hz|{yellow}|{118}";
    QString s5 = "{inertial_en}S0005|Norvane|IMU9 sensor|~|2.4.1|[20]|[Wake on tap]|80%@80|18.0\u00b0C@50||{yellow}|{118}";
    QTest::newRow("button refresh") << "update_buttons" << QByteArray("no")
                                    << QStringList{QString(s2).replace("|100 Hz|", "||"), QString(s1).replace("{green}", "~{red}"),
                                                   QString(s5).replace("||{", "|100 Hz|{")}
                                    << "buttonTimer firstRefreshTimer notPresentTimer";
    QTest::newRow("presence poll: the absent only, once")
        << "update_sensors_not_present" << QByteArray("no") << QStringList{s5} << "buttonTimer firstRefreshTimer";
    QTest::newRow("warm-up tick") << "set_temperature_and_battery_of_all_sensor" << QByteArray("yes")
                                  << QStringList{s2, s1, s5} << "buttonTimer firstRefreshTimer sensorDataTimer";
}

void tst_InertialSettingsDlg::refresh()
{
    QFETCH(QString, slot);
    QFETCH(QByteArray, warmup);
    QFETCH(QStringList, changed);
    QFETCH(QString, timers);

    system.warmup = warmup;
    QStringList before;
    QStringList after;
    QString running;
    open([&] {
        before = rows();
        fake->reply("inertial sensor_battery " + S1, "0.15");
        fake->reply("inertial sensor_temperature " + S1, "35.0 36.0");
        fake->reply("inertial sensor_version " + S1, "'2.5.0'");
        fake->reply("inertial sensor_wakeup_mode " + S1, "'wm_tap'");
        fake->reply("inertial sensor_handeye " + S1, "");
        fake->reply("inertial sensor_present " + S2, "no");
        fake->reply("inertial sensor_present NRV IMU9 'S0005'", "yes");
        QVERIFY(QMetaObject::invokeMethod(dialog, slot.toLatin1()));
        after = rows();
        running = this->timers();
    });
    QStringList differ;
    for (int row = 0; row < after.size(); ++row)
        if (after.at(row) != before.value(row))
            differ << after.at(row);
    QCOMPARE(differ, changed);
    QCOMPARE(running, timers);
    QCOMPARE(fake->message_texts(), QStringList());
}

// --- warm-up, deletion, names ----------------------------------------------------

void tst_InertialSettingsDlg::warmup_data()
{
    QTest::addColumn<QByteArray>("running");    // at the opening
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<bool>("transceivers");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("after");         // warm-up text, enabled widgets, timers

    QTest::newRow("start") << QByteArray("no") << true << true << QStringList()
                           << "Warmup stop\nwarmup\nbuttonTimer sensorDataTimer";
    QTest::newRow("start refused") << QByteArray("no") << false << true << QStringList{"Could not start warmup of sensors"}
                                   << "Warmup start\nadd mode frequency table scan warmup\nbuttonTimer notPresentTimer";
    QTest::newRow("stop") << QByteArray("yes") << true << true << QStringList()
                          << "Warmup start\nadd mode frequency table scan warmup\nbuttonTimer notPresentTimer";
    QTest::newRow("stop refused") << QByteArray("yes") << false << true << QStringList{"Could not stop warmup of sensors"}
                                  << "Warmup stop\nwarmup\nbuttonTimer sensorDataTimer";
    QTest::newRow("start without transceiver") << QByteArray("no") << true << false << QStringList()
                                               << "Warmup stop\nwarmup\nsensorDataTimer";
}

void tst_InertialSettingsDlg::warmup()
{
    QFETCH(QByteArray, running);
    QFETCH(bool, accepted);
    QFETCH(bool, transceivers);
    QFETCH(QStringList, messages);
    QFETCH(QString, after);

    if (!transceivers) {
        system.transceivers.clear();
        for (TypicalSystem::Sensor& sensor : system.sensors)
            sensor.transceiver = "none";
    }
    system.warmup = running;
    install();
    fake->set_stateful(true);
    const QByteArray command = running == "yes" ? "inertial warmup no" : "inertial warmup yes";
    if (accepted)
        fake->accept(command);
    else
        fake->fail(command);
    QString seen;
    QString ended;
    open([&] {
        w<QTimer>("firstRefreshTimer")->stop();
        fake->clear_log();
        w<QPushButton>("pushButton_warmup")->click();
        seen = QStringList{w<QPushButton>("pushButton_warmup")->text(), enabled(), this->timers()}.join('\n');
        // The controller ends a running warm-up by itself: the next tick gives the page back.
        fake->reply("inertial warmup", "no");
        QMetaObject::invokeMethod(dialog, "set_temperature_and_battery_of_all_sensor");
        ended = QStringList{w<QPushButton>("pushButton_warmup")->text(), enabled()}.join('\n');
    });
    QCOMPARE(seen, after);
    QCOMPARE(fake->lines().value(0), command);
    QCOMPARE(fake->calls().value(1).timeout_ms, 10000);
    QCOMPARE(fake->calls().value(1).timeout_flag, true);
    QCOMPARE(fake->message_texts(), messages);
    QCOMPARE(ended, "Warmup start\nadd mode frequency table " + QString(transceivers ? "scan " : "") + "warmup");
    QCOMPARE(fake->lines(FakeController::SetValue), QList<QByteArray>{command});
}

void tst_InertialSettingsDlg::deletion_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("button");
    QTest::addColumn<QByteArray>("failing");   // of the lines the deletion sends
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("ids");

    const QByteArray delete1 = "norvane inertial delete_sensor " + S1;
    const QByteArray delete2 = "norvane inertial delete_sensor " + S2;
    const QByteArray detach = "body inertial_sensor standard b01 none";
    const QString without1 = "T1001 S0002 T1002 S0005 S0003 cable connected: C0004";
    QTest::newRow("No: nothing") << 1 << int(QMessageBox::No) << QByteArray() << QList<QByteArray>{} << QStringList()
                                 << Typical;
    QTest::newRow("unassigned: only the command") << 1 << int(QMessageBox::Yes) << QByteArray()
                                                  << QList<QByteArray>{delete2} << QStringList()
                                                  << "T1001 S0001 T1002 S0005 S0003 cable connected: C0004";
    QTest::newRow("assigned: the body let go first") << 2 << int(QMessageBox::Yes) << QByteArray()
        << QList<QByteArray>{"standard number_of_bodies", detach, "standard number_of_bodies 6", delete1}
        << QStringList() << without1;
    QTest::newRow("body count unknown: not written back") << 2 << int(QMessageBox::Yes)
        << QByteArray("standard number_of_bodies") << QList<QByteArray>{"standard number_of_bodies", detach, delete1}
        << QStringList{"Error: Unable to get number of bodies"} << without1;
    QTest::newRow("detaching refused: deleted anyway") << 2 << int(QMessageBox::Yes) << detach
        << QList<QByteArray>{"standard number_of_bodies", detach, "standard number_of_bodies 6", delete1}
        << QStringList{"Could not set body of sensor: standard b01"} << without1;
    QTest::newRow("count refused") << 2 << int(QMessageBox::Yes) << QByteArray("standard number_of_bodies 6")
        << QList<QByteArray>{"standard number_of_bodies", detach, "standard number_of_bodies 6", delete1}
        << QStringList{"Could not set standard number of bodies 6"} << without1;
    QTest::newRow("command refused: table kept") << 1 << int(QMessageBox::Yes) << delete2
                                                 << QList<QByteArray>{delete2}
                                                 << QStringList{"Could not delete sensor " + QString(S2)} << Typical;
    QTest::newRow("transceiver row: no icon, no question") << 0 << -1 << QByteArray() << QList<QByteArray>{}
                                                           << QStringList() << Typical;
    QTest::newRow("cable row: no question") << 6 << -1 << QByteArray() << QList<QByteArray>{} << QStringList()
                                            << Typical;
}

void tst_InertialSettingsDlg::deletion()
{
    QFETCH(int, row);
    QFETCH(int, button);
    QFETCH(QByteArray, failing);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QStringList, messages);
    QFETCH(QString, ids);

    install();
    fake->set_stateful(true);
    fake->reply("norvane inertial delete_sensor " + S1, "norvane ok");
    fake->reply("norvane inertial delete_sensor " + S2, "norvane ok");
    if (!failing.isEmpty())
        fake->fail(failing);
    QString shown;
    open([&] {
        if (button >= 0)
            answer_box(button);
        fake->clear_log();
        // Once deleted, the controller lists one sensor less.
        fake->reply("inertial number_of_sensors", "4");
        fake->reply("inertial sensor d01", row == 1 ? S1 : S2);
        fake->reply("inertial sensor d02", S3);
        fake->reply("inertial sensor d03", "NRV IMU6 'C0004'");
        fake->reply("inertial sensor d04", "NRV IMU9 'S0005'");
        click(row, Delete);
        shown = this->ids();
    });
    QList<QByteArray> changes;
    for (const QByteArray& line : fake->lines())
        if (line.startsWith("standard") || line.startsWith("body inertial") || line.startsWith("norvane"))
            changes << line;
    QCOMPARE(changes, sent);
    QCOMPARE(box, button < 0 ? QString() : "Warning: Delete sensor " + QString(row == 1 ? S2 : S1) + "?");
    QCOMPARE(fake->message_texts(), messages);
    QCOMPARE(shown, ids);
}

void tst_InertialSettingsDlg::nameEdit_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("clicked");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("messages");

    const QByteArray rename = "body desc standard b01 \"Left hand\"";
    QTest::newRow("renamed") << 2 << true << true << QList<QByteArray>{rename} << "Left hand*" << QStringList();
    QTest::newRow("refused: the old name back") << 2 << true << false << QList<QByteArray>{rename} << "Body 01*"
                                                << QStringList{"Error: Unable to set body description standard b01"};
    QTest::newRow("no body: nothing sent") << 1 << true << true << QList<QByteArray>() << "~Left hand"
                                           << QStringList();
    QTest::newRow("not clicked: a fill, not an edit") << 2 << false << true << QList<QByteArray>() << "Left hand*"
                                                      << QStringList();
}

void tst_InertialSettingsDlg::nameEdit()
{
    QFETCH(int, row);
    QFETCH(bool, clicked);
    QFETCH(bool, accepted);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QString, shown);
    QFETCH(QStringList, messages);

    install();
    const QByteArray rename = "body desc standard b01 \"Left hand\"";
    accepted ? fake->accept(rename) : fake->fail(rename);
    QString text;
    QList<QByteArray> refreshed;
    open([&] {
        fake->clear_log();
        if (clicked)
            emit table()->cellClicked(row, Name);
        table()->item(row, Name)->setText("Left hand");
        text = cell(row, Name);
        // A second change of the same cell without a click is no edit.
        table()->item(row, Name)->setText(text.chopped(text.endsWith('*') ? 1 : 0));
        w<QTimer>("firstRefreshTimer")->stop();
        QMetaObject::invokeMethod(dialog, "update_buttons");
        refreshed = fake->lines().mid(sent.size(), 2);
    });
    QCOMPARE(fake->lines(FakeController::SetValue), sent);
    QCOMPARE(text, shown);
    QCOMPARE(fake->message_texts(), messages);
    // The edit is over: the periodic refresh reads the rows again.
    QCOMPARE(refreshed, (QList<QByteArray>{"inertial available", "inertial sensor_present " + S2}));
}

// --- wake-up modes and frequency ---------------------------------------------------

void tst_InertialSettingsDlg::sensorMode_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QByteArray>("failing");
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<QString>("shown");   // the combo's mode, then the page's
    QTest::addColumn<QStringList>("messages");

    const QByteArray tap = "inertial sensor_wakeup_mode " + S1 + " 'wm_tap'";
    const QByteArray sleep = "inertial sensor_sleep_timeout " + S1 + " 10";
    QTest::newRow("radio: one line") << 5 << "Wake by radio" << QByteArray()
                                     << QList<QByteArray>{"inertial sensor_wakeup_mode " + S3 + " 'wm_radio'"}
                                     << "Wake by radio (mixed)" << QStringList();
    QTest::newRow("tap: the mode, then a sleep time-out") << 2 << "Wake on tap" << QByteArray()
                                                          << QList<QByteArray>{tap, sleep} << "Wake on tap (mixed)"
                                                          << QStringList();
    QTest::newRow("usb: with its time-out") << 7 << "Wake on USB" << QByteArray("inertial sensor_wakeup_mode NRV IMU6 'C0004'")
        << QList<QByteArray>{"inertial sensor_wakeup_mode NRV IMU6 'C0004' 'wm_usb'",
                             "inertial sensor_sleep_timeout NRV IMU6 'C0004' 10"} << "Wake on USB (mixed)" << QStringList();
    QTest::newRow("refused: back to the controller's") << 2 << "Wake on tap" << tap << QList<QByteArray>{tap}
        << "Wake by radio (mixed)" << QStringList{"Error: Unable to set wakeup mode of sensor"};
    QTest::newRow("out of reach: nothing sent") << 2 << "Wake on tap" << QByteArray("inertial sensor_present " + S1)
        << QList<QByteArray>{} << "Wake by radio (mixed)" << QStringList{"Error: Unable to reach sensor"};
    QTest::newRow("time-out refused: the mode stays") << 2 << "Wake on tap" << sleep << QList<QByteArray>{tap, sleep}
        << "Wake on tap (mixed)" << QStringList{"Error: Unable to set sleep timeout of sensor"};
}

void tst_InertialSettingsDlg::sensorMode()
{
    QFETCH(int, row);
    QFETCH(QString, mode);
    QFETCH(QByteArray, failing);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QString, shown);
    QFETCH(QStringList, messages);

    install();
    fake->set_stateful(true);
    QString seen;
    open([&] {
        if (failing.endsWith("'C0004'"))   // the cable sensor offers one mode: give it a second
            fake->reply("inertial sensor_wakeup_mode NRV IMU6 'C0004'", "'wm_radio'");
        else if (!failing.isEmpty())
            fake->fail(failing);
        auto* combo = qobject_cast<QComboBox*>(table()->cellWidget(row, Mode));
        if (failing.endsWith("'C0004'"))
            combo->insertItem(0, "Wake by radio", "NRV IMU6 'C0004' 'wm_radio'");
        fake->clear_log();
        choose(combo, mode);
        combo = qobject_cast<QComboBox*>(table()->cellWidget(row, Mode));
        seen = combo->currentText() + ' ' + w<QComboBox>("comboBox_mode")->currentText();
    });
    QCOMPARE(fake->lines(FakeController::SetValue), sent);
    for (const FakeController::Call& call : fake->calls())
        if (call.operation == FakeController::SetValue)
            QVERIFY(call.timeout_ms == 10000 && !call.wait_separately && call.timeout_flag);
    QCOMPARE(seen, shown);
    QCOMPARE(fake->message_texts(), messages);
}

void tst_InertialSettingsDlg::pageMode_data()
{
    QTest::addColumn<QList<int>>("sensors");   // which of the typical sensors
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<QString>("after");

    const QByteArray mode = "inertial sensor_wakeup_mode NRV IMU9 ";
    const QByteArray sleep = "inertial sensor_sleep_timeout NRV IMU9 ";
    const QString both = "Wake on tap and Wake by radio";
    QTest::newRow("sensors differ: (mixed) changes nothing") << QList<int>{0, 1, 2, 3, 4}
        << QStringList{"(mixed)", "Wake on USB", "Wake on tap", "Wake by radio", both} << "(mixed)" << "(mixed)"
        << QList<QByteArray>{} << "(mixed)";
    QTest::newRow("radio for every present sensor that offers it") << QList<int>{0, 1, 2, 3, 4}
        << QStringList{"(mixed)", "Wake on USB", "Wake on tap", "Wake by radio", both} << "(mixed)" << "Wake by radio"
        << QList<QByteArray>{mode + "'S0001' 'wm_radio'", mode + "'S0002' 'wm_radio'", mode + "'S0003' 'wm_radio'"}
        << "(mixed)";
    QTest::newRow("tap, each with its time-out") << QList<int>{0, 1}
        << QStringList{"Wake on tap", "Wake by radio", both} << "Wake by radio" << "Wake on tap"
        << QList<QByteArray>{mode + "'S0001' 'wm_tap'", sleep + "'S0001' 10", mode + "'S0002' 'wm_tap'",
                             sleep + "'S0002' 10"} << "Wake on tap";
    QTest::newRow("exactly tap and radio") << QList<int>{0, 2} << QStringList{"Wake on tap", "Wake by radio", both}
        << both << both << QList<QByteArray>{mode + "'S0001' 'wm_tap'", sleep + "'S0001' 10", mode + "'S0003' 'wm_tap'",
                                     sleep + "'S0003' 10", mode + "'S0001' 'wm_radio'", mode + "'S0003' 'wm_radio'"}
        << "Wake by radio";
    QTest::newRow("only the cable sensor") << QList<int>{3} << QStringList{"Wake on USB"} << "Wake on USB" << "Wake on USB"
        << QList<QByteArray>{"inertial sensor_wakeup_mode NRV IMU6 'C0004' 'wm_usb'",
                             "inertial sensor_sleep_timeout NRV IMU6 'C0004' 10"} << "Wake on USB";
    QTest::newRow("no sensors") << QList<int>{} << QStringList() << "" << "" << QList<QByteArray>{} << "";
}

void tst_InertialSettingsDlg::pageMode()
{
    QFETCH(QList<int>, sensors);
    QFETCH(QStringList, entries);
    QFETCH(QString, current);
    QFETCH(QString, chosen);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QString, after);

    QList<TypicalSystem::Sensor> kept;
    for (int i : sensors)
        kept << system.sensors.at(i);
    system.sensors = kept;
    install();
    fake->set_stateful(true);
    QStringList seen;
    QString shown;
    open([&] {
        auto* page = w<QComboBox>("comboBox_mode");
        for (int i = 0; i < page->count(); ++i)
            seen << page->itemText(i);
        QCOMPARE(page->currentText(), current);
        fake->clear_log();
        if (!chosen.isEmpty())
            choose(page, chosen);
        shown = page->currentText();
    });
    QCOMPARE(seen, entries);
    QCOMPARE(fake->lines(FakeController::SetValue), sent);
    QCOMPARE(shown, after);
    const QString asleep = "Error: Unable to reach sensor NRV IMU9 'S0005'";
    QCOMPARE(fake->message_texts(), sensors.contains(4) && !sent.isEmpty() ? QStringList{asleep} : QStringList());
}

void tst_InertialSettingsDlg::frequency_data()
{
    QTest::addColumn<QByteArray>("limits");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<QString>("shown");   // minimum, maximum, value
    QTest::addColumn<QStringList>("messages");

    QTest::newRow("sent with six decimals") << QByteArray("1.0 500.0") << 100.0 << true
                                            << QList<QByteArray>{"inertial frequency 100.000000"} << "1 500 100" << QStringList();
    QTest::newRow("above the maximum: the maximum") << QByteArray("10.0 400.0") << 900.0 << true
                                                    << QList<QByteArray>{"inertial frequency 400.000000"} << "10 400 400"
                                                    << QStringList();
    QTest::newRow("unchanged: nothing") << QByteArray("1.0 500.0") << 50.0 << true << QList<QByteArray>{} << "1 500 50"
                                        << QStringList();
    QTest::newRow("refused: the controller's value") << QByteArray("1.0 500.0") << 100.0 << false
        << QList<QByteArray>{"inertial frequency 100.000000"} << "1 500 50"
        << QStringList{"Error: Unable to set frequency of inertial system"};
    QTest::newRow("limits unreadable: 1 to 1000") << QByteArray("low high") << 900.0 << true
        << QList<QByteArray>{"inertial frequency 900.000000"} << "1 1000 900" << QStringList{"Error: Unable to get hybrid frequency"};
    QTest::newRow("one limit only") << QByteArray("250") << 0.5 << true << QList<QByteArray>{"inertial frequency 1.000000"}
                                    << "1 1000 1" << QStringList{"Error: Unable to get hybrid frequency"};
    QTest::newRow("infinite limits") << QByteArray("1.0 inf") << 50.0 << true << QList<QByteArray>{} << "1 1000 50"
                                     << QStringList{"Error: Unable to get hybrid frequency"};
}

void tst_InertialSettingsDlg::frequency()
{
    QFETCH(QByteArray, limits);
    QFETCH(double, value);
    QFETCH(bool, accepted);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QString, shown);
    QFETCH(QStringList, messages);

    system.frequency_limits = limits;
    system.frequency = "50.0";
    install();
    fake->set_stateful(accepted);
    if (!accepted)
        fake->fail("inertial frequency 100.000000");
    QString seen;
    open([&] {
        auto* spin = w<QDoubleSpinBox>("doubleSpinBox_frequency");
        spin->setValue(value);
        seen = QString("%1 %2 %3").arg(spin->minimum()).arg(spin->maximum()).arg(spin->value());
    });
    QCOMPARE(fake->lines(FakeController::SetValue), sent);
    QCOMPARE(seen, shown);
    QCOMPARE(fake->message_texts(), messages);
}

// --- radio channels ----------------------------------------------------------------

void tst_InertialSettingsDlg::transceiverChannel_data()
{
    QTest::addColumn<QByteArray>("second");   // what S0001 reports after its first move to 16
    QTest::addColumn<int>("button");          // on the retry box, -1: none comes
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::addColumn<QString>("box");

    const QByteArray move1 = "inertial sensor_radio_channel " + S1 + " 16";
    const QByteArray move2 = "inertial sensor_radio_channel " + S2 + " 16";
    const QByteArray moveT = "inertial transceiver_radio_channel " + T1 + " 16";
    const QString text = "Changing Sensor Channel failed: There are several sensors not available:\n\nSensor: " + QString(S1)
                         + ", of body: Body 01\n\nPress Retry if you want to try again to change the channel of the sensors.";
    QTest::newRow("sensors first, then the transceiver") << QByteArray("16") << -1
                                                         << QList<QByteArray>{move1, move2, moveT} << QString();
    QTest::newRow("one left behind: Retry moves it") << QByteArray("12") << int(QMessageBox::Retry)
                                                     << QList<QByteArray>{move1, move2, move1, moveT} << text;
    QTest::newRow("Escape gives up") << QByteArray("12") << int(QMessageBox::Escape)
                                     << QList<QByteArray>{move1, move2, moveT} << text;
}

void tst_InertialSettingsDlg::transceiverChannel()
{
    QFETCH(QByteArray, second);
    QFETCH(int, button);
    QFETCH(QList<QByteArray>, sent);
    QFETCH(QString, box);

    install();
    for (const QByteArray& line : sent)
        fake->accept(line);
    QString shown;
    open([&] {
        fake->replies("inertial sensor_radio_channel " + S1, {second, "16"});
        fake->reply("inertial sensor_radio_channel " + S2, "16");
        fake->reply("inertial transceiver_radio_channel " + T1, "16");
        if (button >= 0)
            answer_box(button);
        fake->clear_log();
        // The user opens the grid and commits channel 16 (second row, sixth cell).
        auto* combo = qobject_cast<ChannelComboBox*>(table()->cellWidget(0, Channel));
        combo->showPopup();
        combo->table()->setCurrentCell(1, 5);
        QTest::keyClick(combo->table(), Qt::Key_Return);
        QTRY_COMPARE(fake->count("inertial transceiver_radio_channel " + T1 + " 16"), 1);
        shown = cell(0, Channel) + cell(1, Channel);
    });
    QCOMPARE(fake->lines(FakeController::SetValue), sent);
    for (const FakeController::Call& call : fake->calls())
        if (call.operation == FakeController::SetValue)
            QVERIFY(call.timeout_ms == 10000 && !call.wait_separately && call.timeout_flag);
    QCOMPARE(this->box, box);
    QCOMPARE(shown, QString("[16][16]"));
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialSettingsDlg::sensorChannel()
{
    install();
    fake->set_stateful(true);
    QList<QByteArray> first;
    QList<QByteArray> again;
    QString shown;
    QString asleep;
    open([&] {
        auto* combo = qobject_cast<QComboBox*>(table()->cellWidget(1, Channel));
        QCOMPARE(combo->count(), 2);   // the transceivers' channels
        fake->clear_log();
        combo->setCurrentIndex(combo->findText("20"));
        first = fake->lines(FakeController::SetValue);
        shown = cell(1, Channel);
        // The controller has it there already: nothing to send.
        fake->clear_log();
        fake->reply("inertial sensor_radio_channel " + S2, "12");
        combo = qobject_cast<QComboBox*>(table()->cellWidget(1, Channel));
        combo->setCurrentIndex(combo->findText("12"));
        again = fake->lines(FakeController::SetValue);
        // A sleeping tap sensor cannot be moved: it is named in the retry box, not skipped.
        answer_box(QMessageBox::Escape);
        fake->reply("inertial sensor_radio_channel " + S3, "30");
        dialog->change_channel_of_dongle(QString(T2), 30);
        asleep = box;
    });
    QCOMPARE(first, QList<QByteArray>{"inertial sensor_radio_channel " + S2 + " 20"});
    QCOMPARE(shown, QString("[20]"));
    QCOMPARE(again, QList<QByteArray>());
    QVERIFY2(asleep.contains("\nSensor: NRV IMU9 'S0005'\n") && !asleep.contains("S0003"), qPrintable(asleep));
    QCOMPARE(fake->message_texts(), QStringList());
}

void tst_InertialSettingsDlg::channelScan_data()
{
    QTest::addColumn<QByteArray>("reply");      // of the scan command; empty: not sent
    QTest::addColumn<QByteArray>("activity");   // of channel 16; empty: the query fails
    QTest::addColumn<QString>("busy");          // busy channels of the first transceiver
    QTest::addColumn<QString>("progress");      // format, value, maximum, enabled
    QTest::addColumn<QStringList>("messages");

    const QString done = "Scanning available channels %p% 10 10 1";
    QTest::newRow("fully occupied, 1.0") << QByteArray("norvane ok") << QByteArray("1.0") << "16" << done << QStringList();
    QTest::newRow("not measured, -1.0") << QByteArray("norvane ok") << QByteArray("-1.0") << "16" << done << QStringList();
    QTest::newRow("unanswered") << QByteArray("norvane ok") << QByteArray() << "16" << done
                                << QStringList{"Could not get activity of dongle: " + QString(T1)};
    QTest::newRow("nearly occupied, 0.99") << QByteArray("norvane ok") << QByteArray("0.99") << "" << done << QStringList();
    QTest::newRow("command refused") << QByteArray("norvane busy") << QByteArray("1.0") << "" << " 0 10 0" << QStringList();
    QTest::newRow("command not sent") << QByteArray() << QByteArray("1.0") << "" << " 0 10 0"
                                      << QStringList{"Error: Unable to execute scan transceiver channel"};
}

void tst_InertialSettingsDlg::channelScan()
{
    QFETCH(QByteArray, reply);
    QFETCH(QByteArray, activity);
    QFETCH(QString, busy);
    QFETCH(QString, progress);
    QFETCH(QStringList, messages);

    system.transceivers[0].suggested = "0";
    install();
    const QByteArray command = "norvane inertial scan_transceiver_radio_channels";
    reply.isEmpty() ? fake->fail(command) : fake->reply(command, reply);
    QString hint;
    QString shown;
    QString marks;
    open([&] {
        hint = w<QLabel>("label_error3")->isVisible() ? w<QLabel>("label_error3")->text() : "";
        const QByteArray line = "inertial transceiver_radio_channel_activity " + T1 + " 16";
        activity.isEmpty() ? fake->fail(line) : fake->reply(line, activity);
        fake->reply("inertial transceiver_suggested_radio_channel " + T1, "14");
        fake->clear_log();
        w<QPushButton>("pushButton_scanAvailableChannels")->click();
        auto* bar = w<QProgressBar>("progressBar");
        shown = QString("%1 %2 %3 %4").arg(bar->format()).arg(bar->value()).arg(bar->maximum()).arg(bar->isEnabled());
        QStringList channels;
        for (int channel : dialog->busy_channels(QString(T1)))
            channels << QString::number(channel);
        marks = channels.join(' ') + '|' + (w<QLabel>("label_error3")->isVisible() ? "hint" : "");
        // The grid shows the marks: busy greyed, the suggestion green.
        auto* grid = qobject_cast<ChannelComboBox*>(table()->cellWidget(0, Channel))->table();
        const bool greyed = grid->item(1, 5)->background() == QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Base);
        QCOMPARE(greyed, !busy.isEmpty());
        QCOMPARE(grid->item(1, 3)->background() == QBrush(Qt::green), reply == "norvane ok");
    });
    QCOMPARE(hint, red("Please scan available channels"));
    QCOMPARE(fake->lines().value(0), command);
    QCOMPARE(fake->calls().value(1).timeout_ms, 10000);
    QCOMPARE(shown, progress);
    QCOMPARE(marks, busy + '|' + (reply == "norvane ok" ? "" : "hint"));
    QCOMPARE(fake->message_texts(), messages);
}

// --- the frame ---------------------------------------------------------------------

void tst_InertialSettingsDlg::keys_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("to");   // -1: the dialog closed

    QTest::newRow("1 from the last page") << 2 << int(Qt::Key_1) << 0;
    QTest::newRow("2") << 0 << int(Qt::Key_2) << 1;
    QTest::newRow("3") << 0 << int(Qt::Key_3) << 2;
    QTest::newRow("F3 forward") << 0 << int(Qt::Key_F3) << 1;
    QTest::newRow("F4 forward too") << 1 << int(Qt::Key_F4) << 2;
    QTest::newRow("F3 on the last page wraps") << 2 << int(Qt::Key_F3) << 0;
    QTest::newRow("another digit does nothing") << 1 << int(Qt::Key_4) << 1;
    QTest::newRow("Escape closes, timers stopped") << 0 << int(Qt::Key_Escape) << -1;
}

void tst_InertialSettingsDlg::keys()
{
    QFETCH(int, from);
    QFETCH(int, key);
    QFETCH(int, to);

    int reached = -2;
    QList<QByteArray> asked;
    open([&] {
        auto* pages = w<QToolBox>("toolBox");
        pages->setCurrentIndex(from);
        fake->clear_log();
        QTest::keyClick(dialog, Qt::Key(key));
        reached = dialog->isVisible() ? pages->currentIndex() : -1;
        asked = fake->lines();
    });
    QCOMPARE(reached, to);
    QCOMPARE(timers(), QString());
    // The table is fresh after the opening: going back to it asks nothing.
    QCOMPARE(asked, QList<QByteArray>());
}

void tst_InertialSettingsDlg::reopenMessage_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("reopens");

    QTest::newRow("reopen") << QByteArray("reopen") << true;
    QTest::newRow("capital R") << QByteArray("Reopen") << false;
    QTest::newRow("a word behind") << QByteArray("reopen now") << false;
    QTest::newRow("another module's request") << QByteArray("OpenHybridBodyCalibration") << false;
}

void tst_InertialSettingsDlg::reopenMessage()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, reopens);

    install();
    int runs = 0;
    ModalDialogHelper::when_active("InertialSettingsDlg", [&](QWidget* w) {
        ++runs;
        // Asked again while it runs, by the menu or the message: no second run.
        fake->deliver("InertialModule", 0, "x", "reopen");
        QCoreApplication::processEvents();
        dialog->update_and_exec();
        ModalDialogHelper::close(w);
    });
    QCOMPARE(fake->deliver("InertialModule", 0, "x", text.constData()), 0);
    QCOMPARE(runs, 0);   // queued: nothing before the event loop runs
    if (reopens)
        QTRY_COMPARE(runs, 1);
    QCoreApplication::processEvents();
    QCOMPARE(runs, reopens ? 1 : 0);
    ModalDialogHelper::clear_pending();
    // The reopened dialog runs as it stands, without asking the controller.
    QCOMPARE(fake->lines(), QList<QByteArray>());
    dialog->about_to_exit();
    QCOMPARE(fake->receiver("InertialModule"), nullptr);
}

void tst_InertialSettingsDlg::addSensorPausesRefresh()
{
    QString during;
    QString after;
    QString pageAfterAdding;
    open([&] {
        fake->clear_log();
        ModalDialogHelper::when_active("AddInertialSensorDlg", [&](QWidget* w) {
            during = timers();
            ModalDialogHelper::close(w);
        });
        w<QPushButton>("pushButton_addSensor")->click();
        after = timers();
        // Nothing was added, yet the table is stale: returning to the page rebuilds it.
        w<QToolBox>("toolBox")->setCurrentIndex(2);
        w<QToolBox>("toolBox")->setCurrentIndex(0);
        pageAfterAdding = QString::number(fake->count("inertial number_of_transceivers"));
    });
    QCOMPARE(during, QString());
    QCOMPARE(after, QString("buttonTimer notPresentTimer"));
    QCOMPARE(pageAfterAdding, QString("2"));
}

QTEST_MAIN(tst_InertialSettingsDlg)
#include "tst_InertialSettingsDlg.moc"
