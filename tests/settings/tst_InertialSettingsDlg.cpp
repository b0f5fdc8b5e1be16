#include <QtTest>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QRadioButton>
#include <QSpinBox>
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
#include "settings/RadioChannels.h"
#include "settings/SensorTable.h"

namespace {

// Columns of the sensor table as the user sees them.
enum { Id = 0, Name = 3, Channel = 5, Mode = 6, Delete = 11 };

const QByteArray T1 = "NRV Dongle 'T1001'";
const QByteArray T2 = "NRV Dongle 'T1002'";
const QByteArray S1 = "NRV IMU9 'S0001'";   // on body 1, row 2
const QByteArray S2 = "NRV IMU9 'S0002'";   // row 1
const QByteArray S3 = "NRV IMU9 'S0003'";   // on body 2, row 5
const QString Typical = "T1001 S0002 S0001 T1002 S0005 S0003 cable connected: C0004";
const QString Red = "<b><font color=red>%1</font></b>";

// A step on the open dialog; it returns what the dialog then shows.
using Step = std::function<QString()>;

// Which of the module's images an icon shows.
QString icon_name(const QIcon& icon)
{
    for (const char* name : {"inertial_en", "inertial_dis", "green", "yellow", "red", "118", "lock", "sensor"})
        if (!icon.isNull() && QIcon(QString(":/%1.png").arg(name)).pixmap(16).toImage() == icon.pixmap(16).toImage())
            return name;
    return icon.isNull() ? QString() : QStringLiteral("?");
}

} // namespace

Q_DECLARE_METATYPE(Step)

// The settings dialog driven through its widgets against the typical system.
// Most behaviours are tables of steps on the open dialog: each row changes
// the typical controller ("LINE=ANSWER" answers LINE so, a bare "LINE"
// fails, "version=1.N" makes the controller 1.N), takes a step and expects a
// transcript: what the step returned, every setting or command sent ("> LINE
// @MS", with the time-out set for it) and every message reported ("! TEXT").
// Transcripts name the typical devices short: T1, T2, S1, S2, S3, S5, C4.
class tst_InertialSettingsDlg : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { InertialTrackingModule::init_resources(); }
    void init();
    void cleanup();
    void opening_data();
    void opening() { run(); }
    void typicalTable();
    void failures_data();
    void failures() { run(); }
    void secondOpeningStartsAfresh_data();
    void secondOpeningStartsAfresh();
    void refresh_data();
    void refresh() { run(); }
    void warmup_data();
    void warmup() { run(); }
    void deletion_data();
    void deletion() { run(); }
    void nameEdit_data();
    void nameEdit() { run(); }
    void wakeupModes_data();
    void wakeupModes() { run(); }
    void frequency_data();
    void frequency() { run(); }
    void channels_data();
    void channels() { run(); }
    void channelScan_data();
    void channelScan() { run(); }
    void laterPages_data();
    void laterPages() { run(); }

private:
    static void columns();
    static void row(const char* name, const QList<QByteArray>& changes, const Step& step, const QString& transcript);
    void run();
    void script(const QList<QByteArray>& changes);
    // Opens the dialog (the system installed first), runs `inside`, leaves by Exit.
    void open(const std::function<void()>& inside = {});
    template <class T = QWidget>
    T* w(const char* name) const { return dialog->findChild<T*>(QLatin1String(name)); }
    QTableWidget* table() const { return w<QTableWidget>("tableWidget"); }
    QString cell(int row, int column) const;
    QStringList rows() const;
    QString ids() const
    {
        QStringList texts;
        for (int row = 0; row < table()->rowCount(); ++row)
            texts << table()->item(row, Id)->text();
        return texts.join(' ');
    }
    // The enabled page widgets, the running timers and the warm-up text.
    QString page() const;
    // The rows an action changed, as they now read.
    QString changed_rows(const std::function<void()>& action);
    // The lines a step asked, in order.
    QList<QByteArray> asked() const
    {
        QList<QByteArray> lines;
        for (const FakeController::Call& call : fake->calls().mid(mark))
            if (!call.line.isEmpty())
                lines << call.line;
        return lines;
    }
    void click(int row, int column);
    // Answers the next message box with `button`; `box` then reads "title: text".
    void answer_box(int button);
    static void choose(QComboBox* combo, const QString& text);

    FakeController* fake = nullptr;
    BackendVersions versions;
    TypicalSystem system;
    QWidget* host = nullptr;
    InertialSettingsDlg* dialog = nullptr;
    bool installed = false;
    int mark = 0;   // calls before the step
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

void tst_InertialSettingsDlg::columns()
{
    QTest::addColumn<QList<QByteArray>>("changes");
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("transcript");
}

void tst_InertialSettingsDlg::row(const char* name, const QList<QByteArray>& changes, const Step& step,
                                  const QString& transcript)
{
    QTest::newRow(name) << changes << step << transcript;
}

void tst_InertialSettingsDlg::run()
{
    QFETCH(QList<QByteArray>, changes);
    QFETCH(Step, step);
    QFETCH(QString, transcript);

    script(changes);
    fake->set_stateful(true);
    QStringList seen;
    open([&] {
        w<QTimer>("firstRefreshTimer")->stop();
        mark = fake->calls().size();
        seen << step();
    });
    for (const FakeController::Call& call : fake->calls().mid(mark))
        if (call.operation == FakeController::SetValue || call.operation == FakeController::SendCommand)
            seen << "> " + call.line + (call.timeout_ms ? " @" + QByteArray::number(call.timeout_ms) : "");
    for (const QString& message : fake->message_texts())
        seen << "! " + message;
    QString shown = seen.join('\n');
    for (const QByteArray& id : {T1, T2, S1, S2, S3, QByteArray("NRV IMU9 'S0005'"), QByteArray("NRV IMU6 'C0004'")})
        shown.replace(id, id.at(id.size() - 6) + id.right(2).left(1));
    if (shown != transcript)
        qInfo().noquote() << "the transcript:\n" + shown;
    QCOMPARE(shown, transcript);
    QCOMPARE(fake->unexpected(), QList<QByteArray>());
    QCOMPARE(page().section(" | ", 1, 1), QString());   // leaving stops every timer
    QCOMPARE(dialog->cursor().shape(), Qt::ArrowCursor);
}

void tst_InertialSettingsDlg::script(const QList<QByteArray>& changes)
{
    if (!std::exchange(installed, true))
        system.install(*fake);
    for (const QByteArray& change : changes) {
        const int equals = change.indexOf('=');
        if (change.startsWith("version="))
            versions.minor = change.mid(10).toInt();
        else
            equals < 0 ? fake->fail(change) : fake->reply(change.left(equals), change.mid(equals + 1));
    }
}

void tst_InertialSettingsDlg::open(const std::function<void()>& inside)
{
    script({});
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
    const QString icon = icon_name(item->icon());
    return (item->flags() & Qt::ItemIsEnabled ? "" : "~") + (icon.isEmpty() ? "" : "{" + icon + "}") + item->text()
           + (column == Name && (item->flags() & Qt::ItemIsEditable) ? "*" : "");
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

QString tst_InertialSettingsDlg::page() const
{
    QStringList widgets;
    for (const char* name : {"pushButton_addSensor", "comboBox_mode", "doubleSpinBox_frequency", "tableWidget",
                             "pushButton_scanAvailableChannels", "pushButton_warmup", "spinBox_numBodies",
                             "pushButton_filter", "pushButton_select"})
        if (w(name)->isEnabled())
            widgets << QString(name).mid(QString(name).indexOf('_') + 1);
    QStringList timers;
    for (const char* name : {"buttonTimer", "firstRefreshTimer", "notPresentTimer", "sensorDataTimer"})
        if (w<QTimer>(name)->isActive())
            timers << name;
    return QStringList{widgets.join(' '), timers.join(' '), w<QPushButton>("pushButton_warmup")->text()}.join(" | ");
}

QString tst_InertialSettingsDlg::changed_rows(const std::function<void()>& action)
{
    const QStringList before = rows();
    action();
    QStringList after = rows();
    for (const QString& row : before)
        after.removeOne(row);
    return after.join('\n');
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
        button == QMessageBox::Escape ? QTest::keyClick(w, Qt::Key_Escape) : ModalDialogHelper::press(w, button);
    });
}

void tst_InertialSettingsDlg::choose(QComboBox* combo, const QString& text)
{
    // Picked in the open list, as a user does: even the current entry counts.
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(combo->findText(text), 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

// --- openings ----------------------------------------------------------------------

void tst_InertialSettingsDlg::opening_data()
{
    columns();
    // The page, the table, the message line, the window icon, and what the opening cost.
    const Step opened = [this] {
        return page() + '\n' + ids() + '\n' + w<QLabel>("label_error")->text() + '\n' + icon_name(dialog->windowIcon())
               + QString(" %1 round trips%2").arg(mark).arg(w("progressBar")->isVisible() ? ", progress" : "");
    };
    const QString old = Red.arg("This controller does not support hybrid sensors - please update your controller");
    row("1.11: only the lock asked", {"version=1.11"}, opened, "tableWidget |  | Warmup start\n\n" + old
        + "\nsensor 1 round trips");
    row("locked: all filled, nothing usable", {"config is_changeable=no"}, opened, " |  | Warmup start\n" + Typical
        + "\n\nlock 131 round trips");
    row("tracking unavailable", {"inertial available=no"}, opened, "tableWidget |  | Warmup start\n" + Typical + '\n'
        + Red.arg("Hybrid tracking is not available!") + "\nsensor 108 round trips");
    row("no transceiver: no scan, no timer", {"inertial number_of_transceivers=0"}, opened, "addSensor mode frequency "
        "tableWidget warmup numBodies |  | Warmup start\ncable connected: S0005 C0004 S0003 S0002 S0001\n\nsensor 176 "
        "round trips, "
        "progress");
    row("warm-up running: no presence poll", {"inertial warmup=yes"}, opened, "warmup numBodies | buttonTimer "
        "sensorDataTimer | Warmup stop\n" + Typical + "\n\nsensor 234 round trips, progress");
    row("1.12: the first with inertial sensors", {"version=1.12"}, opened, "addSensor mode frequency tableWidget "
        "scanAvailableChannels warmup numBodies | buttonTimer notPresentTimer | Warmup start\n" + Typical + "\n\nsensor 193 round "
        "trips, progress\n! Error: Unable to get radio channel of sensor 6");   // C4 on cable, which 1.12 cannot tell
    row("no sensors: nothing to warm up", {"inertial number_of_sensors=0"}, opened, "addSensor mode frequency tableWidget "
        "scanAvailableChannels numBodies | buttonTimer notPresentTimer | Warmup start\nT1001 T1002\n\nsensor 93 round trips, "
        "progress");
    row("ready", {}, opened, "addSensor mode frequency tableWidget scanAvailableChannels warmup numBodies | "
        "buttonTimer notPresentTimer | Warmup start\n" + Typical + "\n\nsensor 213 round trips, progress");
    // What the table's rebuild just read is not asked again in the same opening.
    row("ready: asked once", {}, [this] {
        QStringList counts;
        for (const QByteArray& line : {QByteArray("inertial number_of_transceivers"), QByteArray("inertial limit frequency"),
                                       "inertial sensor_wakeup_mode " + S1, "inertial sensor_wakeup_mode_available " + S1 + " 'wm_tap'"})
            counts << QString::number(fake->count(line));
        return counts.join(' ');
    }, "1 1 1 1");
}

void tst_InertialSettingsDlg::typicalTable()
{
    QStringList seen;
    open([&] {
        for (int column = 0; column < table()->columnCount(); ++column)
            seen << table()->horizontalHeaderItem(column)->text();
        seen = QStringList{seen.join('|')} + rows();
    });
    const QString radio = "|Norvane|IMU9 sensor|%1|2.4.1|[%2]|[%3]|80%@80|18.0\u00b0C@50|100 Hz|{%4}|{118}";
    QCOMPARE(seen, (QStringList{"Device ID|Vendor|Model|Name|Version|Channel|Wakeup Mode|Battery|Temperature|Frequency|"
        "Cal.|Delete", "T1001|Norvane|Dongle (USB)||3.1.0|[12]||||||",
        "{inertial_en}S0002" + radio.arg("~", "12", "Wake by radio", "yellow"),
        "{inertial_en}S0001" + radio.arg("Body 01*", "12", "Wake by radio", "green"),
        "T1002|Norvane|Dongle (USB)||3.1.0|[20]||||||",
        "~{inertial_dis}S0005|~Norvane|~IMU9 sensor|~|~||~||not present||{yellow}|{118}",
        "{inertial_en}S0003" + radio.arg("Body 02*", "20", "Wake on tap", "yellow"), "cable connected:|||||||||||",
        "{inertial_en}C0004|Norvane|IMU6 sensor|~|2.4.1|USB|[Wake on USB]|80%@80|18.0\u00b0C@50|100 Hz|{yellow}|{118}"}));
    QCOMPARE(w<QComboBox>("comboBox_mode")->currentText(), QString("(mixed)"));
    QVERIFY(table()->isColumnHidden(1));
}

void tst_InertialSettingsDlg::failures_data()
{
    columns();
    // The table's device IDs, then what one cell shows.
    auto shown = [this](int row, int column) { return [=] { return ids() + (row < 0 ? "" : '\n' + cell(row, column)); }; };
    const QString e = "\n! Error: Unable to get ";
    const QString c = "\n! Could not get ";
    // Failures that end the rebuild: the table keeps what was filled.
    row("transceiver count", {"inertial number_of_transceivers"}, shown(-1, 0), e + "number of dongles");
    row("transceiver identity", {"inertial transceiver d02"}, shown(-1, 0), e + "informations of dongle 2");
    row("transceiver channel", {"inertial transceiver_radio_channel " + T1}, shown(0, 5), "T1001\n[]" + e
        + "radio channel of dongle 1");
    row("body of a sensor", {"inertial body_of_sensor " + S2}, shown(-1, 0), "T1001 S0001 T1002" + c + "body of sensor 2"
        + e + "body of sensor sensor");
    // Failures that leave a fallback and go on.
    row("sensor count", {"inertial number_of_sensors"}, shown(-1, 0), "T1001 T1002" + c + "number of sensors"
        + e + "number of inertial sensors" + e + "number of inertial sensors");
    row("transceiver firmware", {"inertial transceiver_version " + T1}, shown(0, 4), Typical + "\nerror" + e
        + "firmware version of dongle 1");
    row("transceiver model: found by its key", {"inertial transceiver_model_desc NRV Dongle"}, shown(0, 2), Typical
        + "\nerror" + e + "model description of dongle 1" + e + "model description of dongle 2");
    row("transceiver absent: greyed", {"inertial transceiver_present " + T2 + "=no"}, shown(3, 5), Typical + "\n~");
    row("channel count", {"inertial number_of_transceiver_available_radio_channels " + T1}, shown(0, 5), Typical
        + "\n[12]" + e + "number of available channels of dongle 1" + e + "number of available dongle channels");
    row("one usable channel", {"inertial transceiver_available_radio_channel " + T1 + " t05"}, shown(0, 5), Typical
        + "\n[12]" + e + "available channel of dongle 1");
    row("sensor vendor", {"inertial sensor_vendor_desc NRV"}, shown(1, 1), Typical + "\nerror" + e + "vendor "
        "description of sensor 1" + e + "vendor description of sensor 2" + e + "vendor description of sensor 3" + e
        + "vendor description of sensor 4" + e + "vendor description of sensor 5");
    row("body count: the id shown", {"body number_of_bodies standard"}, shown(2, 3), Typical + "\n~standard b01" + e
        + "number of bodies" + e + "number of bodies" + e + "number of bodies");
    row("sensor presence", {"inertial sensor_present " + S3}, shown(5, 8), Typical + "\nnot present" + e
        + "informations of sensor 3");
    row("sensor channel", {"inertial sensor_radio_channel " + S3}, shown(5, 5), Typical + "\n[]" + e + "sensor "
        "channel" + e + "radio channel of sensor 4");
    row("sensor output frequency", {"inertial sensor_output_frequency " + S2}, shown(1, 9), Typical + "\n" + e
        + "frequency of sensor 2");
    row("hand-eye state", {"inertial sensor_handeye " + S2}, shown(1, 10), Typical + "\n~{red}" + e + "calibration "
        "status of sensor");
    row("mode count", {"inertial number_of_wakeup_modes"}, shown(1, 6), Typical + "\n[]" + e + "number of wakeup "
        "modes of inertial system");
    row("transceiver of a sensor: listed with the cables", {"inertial transceiver_of_sensor " + S2}, shown(-1, 0),
        "T1001 S0001 T1002 S0005 S0003 cable connected: C0004 S0002" + c + "associated transciever of sensor 2, "
        "transciever not connected?");
    row("mode description", {"inertial wakeup_mode_desc 'wm_tap'"}, shown(1, 6), Typical + "\n[]" + e
        + "wakeup description of inertial system");
    row("frequency", {"inertial frequency"}, shown(-1, 0), Typical + e + "the inertial frequency");
    row("frequency limits", {"inertial limit frequency"}, shown(-1, 0), Typical + e + "minimum maximum range of the "
        "inertial frequency" + e + "hybrid frequency");
}

void tst_InertialSettingsDlg::secondOpeningStartsAfresh_data()
{
    QTest::addColumn<QList<QByteArray>>("first");    // the controller at the first opening
    QTest::addColumn<QList<QByteArray>>("second");   // what changed for the next

    auto row = [](const char* name, const QList<QByteArray>& first, const QList<QByteArray>& second) {
        QTest::newRow(name) << first << second;
    };
    const QByteArray warm = "inertial warmup=yes";
    const QByteArray hint = "inertial transceiver_suggested_radio_channel " + T1 + "=0";
    row("warm-up, then locked", {warm}, {"config is_changeable=no"});
    row("warm-up, then no transceiver", {warm}, {"inertial number_of_transceivers=0"});
    row("tracking back", {"inertial available=no"}, {"inertial available=yes"});
    row("locked, then tracking unavailable", {"config is_changeable=no"}, {"config is_changeable=yes",
                                                                          "inertial available=no"});
    row("a hint, then an old controller", {hint}, {"version=1.11"});
    row("other channels usable", {}, {"inertial transceiver_available_radio_channel " + T1 + " t05=30"});
}

void tst_InertialSettingsDlg::secondOpeningStartsAfresh()
{
    QFETCH(QList<QByteArray>, first);
    QFETCH(QList<QByteArray>, second);

    // The dialog lives on between openings; the second must look exactly as
    // a new dialog's first on the same controller.
    auto snapshot = [this] {
        auto* bar = w<QProgressBar>("progressBar");
        return QStringList{page(), w<QLabel>("label_error")->text(), icon_name(dialog->windowIcon()),
                           w("label_error3")->isVisible() ? w<QLabel>("label_error3")->text() : "",
                           w<QComboBox>("comboBox_mode")->currentText(), QString("%1 %2 %3 %4 %5").arg(bar->isVisible())
                               .arg(bar->isEnabled()).arg(bar->value()).arg(w<QToolBox>("toolBox")->currentIndex())
                               .arg(bar->format()),
                           rows().join('\n')};
    };
    script(first + QList<QByteArray>{"norvane inertial scan_transceiver_radio_channels=norvane ok"});
    open([this] {
        w<QPushButton>("pushButton_scanAvailableChannels")->click();
        emit table()->cellClicked(2, Name);
        QTest::keyClick(dialog, Qt::Key_3);
    });
    script(second);
    QStringList reused;
    QStringList fresh;
    open([&] { reused = snapshot(); });
    delete std::exchange(dialog, new InertialSettingsDlg(fake, host, &versions));
    open([&] { fresh = snapshot(); });
    QCOMPARE(reused, fresh);
    QCOMPARE(fresh.at(5).section(' ', 1, 1), QString("0"));   // the scan's bar is off until a scan runs
}

// --- what the user does on the open dialog -----------------------------------------

void tst_InertialSettingsDlg::refresh_data()
{
    columns();
    // Between two refreshes S1 warms up and changes, S2 goes away, S5 wakes.
    // The timers' own ticks drive the refreshes, as while the dialog is open.
    auto tick = [this](const char* timer) {
        return [this, timer] {
            const QString changed = changed_rows([&] {
                script({"inertial sensor_battery " + S1 + "=0.15", "inertial sensor_temperature " + S1 + "=35.0 36.0",
                        "inertial sensor_version " + S1 + "='2.5.0'", "inertial sensor_wakeup_mode " + S1 + "='wm_tap'",
                        "inertial sensor_handeye " + S1 + "=", "inertial sensor_present " + S2 + "=no",
                        "inertial sensor_present NRV IMU9 'S0005'=yes"});
                QMetaObject::invokeMethod(w<QTimer>(timer), "timeout");
            });
            return changed + QString("\n%1 ms, then ").arg(w<QTimer>(timer)->interval()) + page().section(" | ", 1, 1);
        };
    };
    const QString s1 = "{inertial_en}S0001|Norvane|IMU9 sensor|Body 01*|2.5.0|[12]|[Wake on tap]|15%@15|35.0\u00b0C@97|"
                       "100 Hz|%1|{118}\n";
    const QString s2 = "~{inertial_dis}S0002|~Norvane|~IMU9 sensor|~|~2.4.1|[12]|[Wake by radio]|80%@80|not present|%1|{yellow}|{118}\n";
    const QString s5 = "{inertial_en}S0005|Norvane|IMU9 sensor|~|2.4.1|[20]|[Wake on tap]|80%@80|18.0\u00b0C@50|%1|"
                       "{yellow}|{118}\n";
    row("button refresh: every row", {}, tick("buttonTimer"), s2.arg("") + s1.arg("~{red}") + s5.arg("100 Hz")
        + "2000 ms, then buttonTimer notPresentTimer");
    row("a longer text widens its column", {}, [this] {
        const int before = table()->columnWidth(4);
        script({"inertial sensor_version " + S1 + "='2.5.0 with a long build name'"});
        QMetaObject::invokeMethod(w<QTimer>("buttonTimer"), "timeout");
        return QString::number(table()->columnWidth(4) - before > 50);
    }, "1");
    row("presence poll: the absent only, once", {}, tick("notPresentTimer"), s5.arg("") + "2000 ms, then buttonTimer");
    row("warm-up tick: the live columns", {"inertial warmup=yes"}, tick("sensorDataTimer"),
        s2.arg("100 Hz") + s1.arg("{green}") + s5.arg("") + "2000 ms, then buttonTimer sensorDataTimer");
    row("tracking lost: the page given up", {}, [this] {
        script({"inertial available=no", "inertial number_of_sensors=1"});   // the table shows it at once
        QMetaObject::invokeMethod(dialog, "update_buttons");
        QTest::keyClick(dialog, Qt::Key_3);   // the tracking page given up too
        return page() + '\n' + w<QLabel>("label_error")->text() + QString::number(w("progressBar")->isVisible())
               + QString::number(w("frame_trackingPulse")->isEnabled()) + ' ' + ids();
    }, "tableWidget numBodies |  | Warmup start\n" + Red.arg("Hybrid tracking is not available!") + "00 T1001 S0001 T1002");
    row("adding sensors pauses it", {}, [this] {
        QString during;
        ModalDialogHelper::when_active("AddInertialSensorDlg", [&](QWidget* w) {
            during = page().section(" | ", 1, 1);
            ModalDialogHelper::close(w);
        });
        w<QTimer>("firstRefreshTimer")->start();   // as just after the opening
        w<QPushButton>("pushButton_addSensor")->click();
        during += '|' + page().section(" | ", 1, 1);
        // Nothing was added, yet the table is stale: returning to the page rebuilds it.
        mark = fake->calls().size();
        QTest::keyClick(dialog, Qt::Key_F4);
        during += QString(" %1").arg(asked().count("inertial number_of_transceivers"));
        QTest::keyClick(dialog, Qt::Key_1);
        return during + ' ' + QString::number(asked().count("inertial number_of_transceivers"));
    }, "|buttonTimer notPresentTimer 0 1");
    auto keys = [this](Qt::Key first, Qt::Key second) {
        return [=] {
            QTest::keyClick(dialog, first);
            const QString shown = QString::number(w<QToolBox>("toolBox")->currentIndex());
            QTest::keyClick(dialog, second);
            return shown + QString::number(dialog->isVisible() ? w<QToolBox>("toolBox")->currentIndex() : -1) + ' '
                   + QString::number(asked().count("inertial number_of_transceivers"));   // a fresh table is not read again
        };
    };
    row("keys 3, then 1", {}, keys(Qt::Key_3, Qt::Key_1), "20 0");
    row("F3 on the last page wraps", {}, keys(Qt::Key_3, Qt::Key_F3), "20 0");
    row("Escape closes", {}, keys(Qt::Key_2, Qt::Key_Escape), "1-1 0");
}

void tst_InertialSettingsDlg::warmup_data()
{
    columns();
    auto press = [this](const QList<QByteArray>& then) {
        return [this, then] {
            w<QPushButton>("pushButton_warmup")->click();
            const QString pressed = page() + ' ' + cell(2, 8);
            // The controller ends a running warm-up by itself: the next tick gives the page back.
            script(then);
            QMetaObject::invokeMethod(dialog, "set_temperature_and_battery_of_all_sensor");
            return pressed + '\n' + page();
        };
    };
    const QList<QByteArray> ends{"inertial sensor_temperature " + S1 + "=35.0 36.0", "inertial warmup=no"};
    const QString ready = "addSensor mode frequency tableWidget scanAvailableChannels warmup numBodies | buttonTimer "
                          "notPresentTimer | Warmup start";
    row("start: the rows read at once, the page locked", {"inertial sensor_temperature " + S1 + "=35.0 36.0"},
        press({"inertial warmup=no"}), "warmup numBodies | buttonTimer sensorDataTimer | Warmup stop 35.0\u00b0C@97\n" + ready
        + "\n> inertial warmup yes @10000");
    row("stop", {"inertial warmup=yes"}, press(ends), ready + " 18.0\u00b0C@50\n" + ready + "\n> inertial warmup no @10000");
    row("without a transceiver the scan stays off", {"inertial number_of_transceivers=0"}, press({"inertial warmup=no"}),
        "warmup numBodies | sensorDataTimer | Warmup stop 18.0\u00b0C@50\naddSensor mode frequency tableWidget warmup numBodies"
        " |  | "
        "Warmup start\n> inertial warmup yes @10000");
}

void tst_InertialSettingsDlg::deletion_data()
{
    columns();
    auto remove = [this](int row, int button) {
        return [this, row, button] {
            if (button >= 0)
                answer_box(button);
            // Once deleted, the controller lists one sensor less.
            script({"inertial number_of_sensors=4", "inertial sensor d01=" + (row == 1 ? S1 : S2), "inertial sensor d02="
                    + S3, "inertial sensor d03=NRV IMU6 'C0004'", "inertial sensor d04=NRV IMU9 'S0005'"});
            click(row, Delete);
            return box + '\n' + ids();
        };
    };
    const QList<QByteArray> ok{"norvane inertial delete_sensor " + S1 + "=norvane ok",
                               "norvane inertial delete_sensor " + S2 + "=norvane ok"};
    const QString ask1 = "Warning: Delete sensor S1?\nT1001 S0002 T1002 S0005 S0003 cable connected: C0004\n"
                         "> body inertial_sensor standard b01 none\n";
    const QString six = "> standard number_of_bodies 6\n";
    const QString delete1 = "> norvane inertial delete_sensor S1";
    row("answered No", ok, remove(1, QMessageBox::No), "Warning: Delete sensor S2?\n" + Typical);
    row("unassigned: only the command", ok, remove(1, QMessageBox::Yes), "Warning: Delete sensor S2?\nT1001 S0001 T1002 "
        "S0005 S0003 cable connected: C0004\n> norvane inertial delete_sensor S2");
    row("assigned: the body let go first", ok, remove(2, QMessageBox::Yes), ask1 + six + delete1);
    row("deletion refused", {"norvane inertial delete_sensor " + S2}, remove(1, QMessageBox::Yes), "Warning: Delete sensor S2?\n" + Typical
        + "\n> norvane inertial delete_sensor S2\n! Could not delete sensor S2");
    row("detaching refused: deleted anyway", ok + QList<QByteArray>{"body inertial_sensor standard b01 none"},
        remove(2, QMessageBox::Yes), ask1 + six + delete1 + "\n! Could not set body of sensor: standard b01");
    auto detach = [this](const char* sensor, const QList<QByteArray>& failing) {
        return [=] {
            script(failing);
            dialog->deleteAssignmentIfSensorIsAlreadyAssigned(sensor);
            return QString();
        };
    };
    row("detaching an assigned sensor", {}, detach("NRV IMU9 'S0001'", {}), "\n> body inertial_sensor standard b01 none");
    row("detaching refused", {}, detach("NRV IMU9 'S0001'", {"body inertial_sensor standard b01 none"}), "\n> body "
        "inertial_sensor standard b01 none\n! Error: Unable to delete assignment of sensor");
}

void tst_InertialSettingsDlg::nameEdit_data()
{
    columns();
    auto edit = [this](int row, bool clicked) {
        return [this, row, clicked] {
            if (clicked)
                emit table()->cellClicked(row, Name);
            table()->item(row, Name)->setText("Left hand");
            const QString shown = cell(row, Name);
            table()->item(row, Name)->setText("Right hand");   // no click: no edit
            // The edit is over: the periodic refresh reads the rows again.
            QMetaObject::invokeMethod(dialog, "update_buttons");
            return shown + (asked().contains("inertial sensor_present " + S2) ? " refreshed" : "");
        };
    };
    const QByteArray rename = "body desc standard b01 \"Left hand\"";
    row("renamed", {}, edit(2, true), "Left hand* refreshed\n> " + rename);
    row("refused: the old name back", {rename}, edit(2, true), "Body 01* refreshed\n> " + rename
        + "\n! Error: Unable to set body description standard b01");
    row("no body: nothing sent", {}, edit(1, true), "~Left hand refreshed");
}

void tst_InertialSettingsDlg::wakeupModes_data()
{
    columns();
    auto pick = [this](int row, const char* mode, const QList<QByteArray>& failing) {
        return [=] {
            script(failing);
            choose(qobject_cast<QComboBox*>(table()->cellWidget(row, Mode)), mode);
            return qobject_cast<QComboBox*>(table()->cellWidget(row, Mode))->currentText() + ", page "
                   + w<QComboBox>("comboBox_mode")->currentText();
        };
    };
    const QByteArray tap = "inertial sensor_wakeup_mode " + S1 + " 'wm_tap'";
    const QByteArray sleep = "inertial sensor_sleep_timeout " + S1 + " 10";
    const QString sent = "> inertial sensor_wakeup_mode S1 'wm_tap' @10000";
    const QString slept = "\n> inertial sensor_sleep_timeout S1 10 @10000";
    row("radio: one line", {}, pick(5, "Wake by radio", {}), "Wake by radio, page (mixed)\n"
        "> inertial sensor_wakeup_mode S3 'wm_radio' @10000");
    row("tap: then a sleep time-out", {}, pick(2, "Wake on tap", {}), "Wake on tap, page (mixed)\n" + sent + slept);
    row("mode refused: the sensor's own shown", {}, pick(2, "Wake on tap", {tap}), "Wake by radio, page (mixed)\n"
        "> inertial sensor_wakeup_mode S1 'wm_tap' @10000\n! Error: Unable to set wakeup mode of sensor");
    row("time-out refused: the mode stays", {}, pick(2, "Wake on tap", {sleep}), "Wake on tap, page (mixed)\n" + sent
        + slept + "\n! Error: Unable to set sleep timeout of sensor");
    row("sensor gone: its mode shown again", {}, pick(1, "Wake on tap", {"inertial sensor_present " + S2 + "=no"}),
        "Wake by radio, page (mixed)\n! Error: Unable to reach sensor");
    // The page's choice: the modes some sensor offers, the current one first.
    auto all = [this](const char* mode) {
        return [=] {
            auto* page = w<QComboBox>("comboBox_mode");
            QStringList entries;
            for (int i = 0; i < page->count(); ++i)
                entries << page->itemText(i);
            const QString before = page->currentText() + ": " + entries.join(", ");
            const int read = fake->count("inertial sensor_wakeup_mode " + S1);   // a mode that took: only the refresh reads it
            if (page->count())
                choose(page, mode);
            return before + " -> " + page->currentText() + QString(", S1 read %1").arg(fake->count("inertial "
                "sensor_wakeup_mode " + S1) - read);
        };
    };
    const QString five = "(mixed): (mixed), Wake on USB, Wake on tap, Wake by radio, Wake on tap and Wake by radio -> ";
    const QString two = "Wake on tap, Wake by radio, Wake on tap and Wake by radio -> ";
    const QString on = "\n> inertial sensor_wakeup_mode ";
    const QString off = "\n> inertial sensor_sleep_timeout ";
    row("all: radio to every awake sensor offering it", {}, all("Wake by radio"), five + "(mixed), S1 read 1" + on + "S1 'wm_radio' "
        "@10000" + on + "S2 'wm_radio' @10000" + on + "S3 'wm_radio' @10000\n! Error: Unable to reach sensor S5");
    row("all: tap, each with its time-out", {"inertial number_of_sensors=2"}, all("Wake on tap"), "Wake by radio: " + two
        + "Wake on tap, S1 read 1" + on + "S1 'wm_tap' @10000" + off + "S1 10 @10000" + on + "S2 'wm_tap' @10000" + off + "S2 10 @10000");
    row("all: exactly tap and radio, tap first", {"inertial number_of_sensors=2", "inertial sensor d02=" + S3},
        all("Wake on tap and Wake by radio"), "Wake on tap and Wake by radio: " + two + "Wake by radio, S1 read 1" + on + "S1 'wm_tap' "
        "@10000" + off + "S1 10 @10000" + on + "S3 'wm_tap' @10000" + off + "S3 10 @10000" + on + "S1 'wm_radio' @10000" + on
        + "S3 'wm_radio' @10000");
    row("all: only the cable sensor", {"inertial number_of_sensors=1", "inertial sensor d01=NRV IMU6 'C0004'"},
        all("Wake on USB"), "Wake on USB: Wake on USB -> Wake on USB, S1 read 0" + on + "C4 'wm_usb' @10000" + off + "C4 10 @10000");
}

void tst_InertialSettingsDlg::frequency_data()
{
    columns();
    auto set = [this](double value) {
        return [=] {
            auto* spin = w<QDoubleSpinBox>("doubleSpinBox_frequency");
            spin->setValue(value);
            return QString("%1 to %2: %3").arg(spin->minimum()).arg(spin->maximum()).arg(spin->value());
        };
    };
    const QByteArray hz50 = "inertial frequency=50.0";
    const QString limits = "\n! Error: Unable to get hybrid frequency";
    row("sent with six decimals", {hz50}, set(100.0), "1 to 500: 100\n> inertial frequency 100.000000");
    row("refused: the controller's value", {hz50, "inertial frequency 120.000000"}, set(120.0), "1 to 500: 50\n"
        "> inertial frequency 120.000000\n! Error: Unable to set frequency of inertial system");
    row("limits unreadable: 1 to 1000", {hz50, "inertial limit frequency=low high"}, set(900.0),
        "1 to 1000: 900\n> inertial frequency 900.000000" + limits);
    row("refused, then unreadable", {hz50, "inertial frequency 120.000000"}, [=] {
        script({"inertial frequency"});
        return set(120.0)();
    }, "1 to 500: 120\n> inertial frequency 120.000000\n! Error: Unable to set frequency of inertial system\n! Error: "
        "Unable to get the inertial frequency");
    row("one limit only", {hz50, "inertial limit frequency=250"}, set(0.5), "1 to 1000: 1\n> inertial frequency "
        "1.000000" + limits);
}

void tst_InertialSettingsDlg::channels_data()
{
    columns();
    auto grid = [this](const QList<QByteArray>& first, int button) {
        return [=] {
            // A sensor can take the order yet stay where it was.
            fake->set_stateful(false);
            fake->replies("inertial sensor_radio_channel " + S1, first);
            script({"inertial sensor_radio_channel " + S1 + " 16=", "inertial sensor_radio_channel " + S2 + " 16=",
                    "inertial transceiver_radio_channel " + T1 + " 16=", "inertial sensor_radio_channel " + S2 + "=16",
                    "inertial transceiver_radio_channel " + T1 + "=16"});
            if (button >= 0)
                answer_box(button);
            // The user opens the grid and commits channel 16 (second row, sixth cell).
            auto* combo = qobject_cast<ChannelComboBox*>(table()->cellWidget(0, Channel));
            combo->showPopup();
            combo->table()->setCurrentCell(1, 5);
            QTest::keyClick(combo->table(), Qt::Key_Return);
            if (!QTest::qWaitFor([this] { return asked().contains("inertial transceiver_radio_channel " + T1 + " 16"); }))
                return QString("the transceiver was not moved");
            return box + cell(0, Channel) + cell(1, Channel);
        };
    };
    const QString move1 = "\n> inertial sensor_radio_channel S1 16 @10000";
    const QString moves = move1 + "\n> inertial sensor_radio_channel S2 16 @10000";
    const QString last = "\n> inertial transceiver_radio_channel T1 16 @10000";
    const QString text = "Changing Sensor Channel failed: There are several sensors not available:\n\nSensor: S1, of body: "
                         "Body 01\n\nPress Retry if you want to try again to change the channel of the sensors.";
    row("a transceiver: its sensors first", {}, grid({"16"}, -1), "[16][16]" + moves + last);
    row("one left behind: Retry moves it", {}, grid({"12", "16"}, QMessageBox::Retry), text + "[16][16]" + moves + move1
        + last);
    row("a sleeping tap sensor is named, not moved", {"inertial sensor_radio_channel " + S3 + "=30"}, [this] {
        answer_box(QMessageBox::Escape);
        dialog->channels()->change_channel_of_dongle(QString(T2), 30);
        return box.section('\n', 2, 2);
    }, "Sensor: S5\n> inertial sensor_radio_channel S3 30 @10000\n> inertial transceiver_radio_channel T2 30 @10000");
    row("a transceiver's sensors, present or not", {}, [this] {
        script({"inertial sensor_present " + S3});
        return (dialog->table()->get_onlyPresent_sensorList_of_dongle(QString(T2)) + QStringList{"|"}
                + dialog->table()->get_onlyNotPresent_sensorList_of_dongle(QString(T2))).join(' ');
    }, "| S5\n! Error: Unable to get present status of sensor 1\n! Error: Unable to get present status of sensor 1");
    auto sensor = [this](const char* channel) {
        return [=] {
            auto* combo = qobject_cast<QComboBox*>(table()->cellWidget(1, Channel));
            combo->setCurrentIndex(combo->findText(channel));
            return QString::number(combo->count()) + cell(1, Channel);
        };
    };
    row("a wheel over a sensor's combos scrolls the table instead", {}, [this] {
        for (int column : {Channel, Mode}) {
            QWidget* combo = table()->cellWidget(1, column);
            QWheelEvent wheel(QPointF(5, 5), QPointF(combo->mapToGlobal(QPoint(5, 5))), QPoint(), QPoint(0, -120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(combo, &wheel);
        }
        return cell(1, Channel) + cell(1, Mode);
    }, "[12][Wake by radio]");
    row("a sensor to another transceiver's channel", {}, sensor("20"), "2[20]\n> inertial sensor_radio_channel S2 20 "
        "@10000");
    row("a sensor's channel unreadable: moved anyway", {}, [=] {
        script({"inertial sensor_radio_channel " + S2});
        return sensor("20")();
    }, "2[20]\n> inertial sensor_radio_channel S2 20 @10000\n! Error: Unable to get radio channel of sensor");
    row("a sensor's move refused", {"inertial sensor_radio_channel " + S2 + " 20"}, sensor("20"), "2[12]\n> inertial "
        "sensor_radio_channel S2 20 @10000\n! Error: Unable to set radio channel of sensor");
}

void tst_InertialSettingsDlg::channelScan_data()
{
    columns();
    auto scan = [this](const QByteArray& activity) {
        return [=] {
            const QString hint = w("label_error3")->isVisible() ? w<QLabel>("label_error3")->text() : "";
            script({"inertial transceiver_radio_channel_activity " + T1 + " 16" + activity,
                    "inertial transceiver_suggested_radio_channel " + T1 + "=14"});
            w<QPushButton>("pushButton_scanAvailableChannels")->click();
            QStringList busy;
            for (int channel : dialog->channels()->marked_channels.value(QString(T1)))
                busy << QString::number(channel);
            auto* bar = w<QProgressBar>("progressBar");
            // The grid shows the marks: a busy channel greyed, the suggestion green.
            auto* grid = qobject_cast<ChannelComboBox*>(table()->cellWidget(0, Channel))->table();
            const QBrush greyed = QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Base);
            return QStringList{hint == Red.arg("Please scan available channels") ? "hint" : "", busy.join(','),
                               QString("%1 %2 %3 %4").arg(bar->format()).arg(bar->value()).arg(bar->maximum())
                                   .arg(bar->isEnabled()), grid->item(1, 5)->background() == greyed ? grid->item(1, 5)->toolTip() : "",
                               grid->item(1, 3)->background() == QBrush(Qt::green) ? grid->item(1, 3)->toolTip() : "",
                               w("label_error3")->isVisible() ? "hint" : ""}.join('|');
        };
    };
    const QByteArray unscanned = "inertial transceiver_suggested_radio_channel " + T1 + "=0";
    const QList<QByteArray> ok{unscanned, "norvane inertial scan_transceiver_radio_channels=norvane ok"};
    const QString done = "|Scanning available channels %p% 10 10 1|";
    const QString command = "\n> norvane inertial scan_transceiver_radio_channels @10000";
    row("fully occupied, 1.0", ok, scan("=1.0"), "hint|16" + done + "Busy channel|Suggested channel|" + command);
    row("nearly occupied, 0.99", ok, scan("=0.99"), "hint|" + done + "|Suggested channel|" + command);
    row("command not sent", {unscanned, "norvane inertial scan_transceiver_radio_channels"}, scan("=1.0"),
        "hint|| 0 10 0|||hint" + command + "\n! Error: Unable to execute scan transceiver channel");
}

// --- "Hybrid Bodies" and "Tracking Frequency" -------------------------------------

void tst_InertialSettingsDlg::laterPages_data()
{
    columns();
    // Page 2 with body `row` and sensor row `sensor` current: what the action saw,
    // each body row as "Cal. icon, name, device ID, filter", then the buttons on.
    auto bodies = [this](int row, int sensor, const std::function<QString()>& action) {
        return [=] {
            QTest::keyClick(dialog, Qt::Key_2);
            auto* table = w<QTableWidget>("tableWidget_bodies");
            table->setCurrentCell(row, 0);
            w<QTableWidget>("tableWidget_sensors")->setCurrentCell(sensor, 0);
            emit table->cellClicked(row, 0);
            QStringList seen{action ? action() : QString()};
            for (int r = 0; r < table->rowCount(); ++r)
                seen << QStringList{icon_name(table->item(r, 4)->icon()), table->item(r, 1)->text(),
                                    table->item(r, 3)->text(), table->item(r, 5)->text()}.join(' ');
            for (const char* name : {"select", "deselect", "filter", "hybridBodyCalibration", "calibration"})
                seen << QString::number(w((QByteArray("pushButton_") + name).constData())->isEnabled());
            return seen.join('|');
        };
    };
    auto click = [this](const char* name) { w<QPushButton>(name)->click(); };
    const QString typical = "green Body 01 S0001 |yellow Body 02 S0003 |red Body 03  |green Body 04  |red Body 05  |"
                            "red Body 06  |";
    row("0 bodies: nothing to choose; the sensors' columns", {"body number_of_bodies standard=0"}, bodies(0, 0, [this] {
        auto* sensors = w<QTableWidget>("tableWidget_sensors");
        QStringList shown;
        for (int column = 0; column < sensors->columnCount(); ++column)
            if (!sensors->isColumnHidden(column))
                shown << sensors->horizontalHeaderItem(column)->text();
        return shown.join(',');
    }), "Device ID,Model,Used|0|0|0|0|0");
    row("the maximum reached, then left", {}, bodies(-1, 0, [this] {
        auto* count = w<QSpinBox>("spinBox_numBodies");
        count->setValue(8);
        const QString reached = w<QLabel>("label_error2")->text();
        count->setValue(7);
        return reached + '/' + w<QLabel>("label_error2")->text() + '/' + QString::number(count->maximum());
    }), Red.arg("Max. number of bodies is reached!") + "//8|" + typical + "red Body 07  |0|0|0|0|0\n"
        "> standard number_of_bodies 8\n> standard number_of_bodies 7");
    const QByteArray b = "body filter6d_";
    row("filter texts: standard, custom, hybrid custom",
        {b + "enabled standard b01=yes", b + "preset standard b01=preset6d_soft", "filter6d preset_desc preset6d_soft=\"Soft\"",
         b + "enabled standard b02=yes", b + "preset standard b02=preset6d_user_custom", b + "strength standard b02=0.5",
         b + "prediction standard b02=0.02", b + "mode standard b02=m2", "filter6d mode_desc m2=\"Linear\"",
         b + "enabled standard b04=yes", b + "preset standard b04=preset6d_hybrid_custom", b + "prediction standard b04=0.01",
         "inertial sensor_handeye " + S1 + "=done"}, bodies(0, 0, {}),
        "|green Body 01 S0001 Soft|yellow Body 02 S0003 0.50/20ms/Linear|red Body 03  |green Body 04  10ms/hybrid|"
        "red Body 05  |red Body 06  |0|1|1|1|1");
    row("an uncalibrated body with a sensor offers no filter", {"body calibrated standard b01=no"}, bodies(0, 0, {}),
        "|red" + typical.mid(5) + "0|1|0|1|1");
    row("select on a carrying body clears it first", {}, bodies(0, 1, [=] { click("pushButton_select"); return ""; }),
        "|yellow" + typical.mid(5) + "1|1|1|1|1\n> body inertial_sensor standard b01 none\n> body inertial_sensor standard b01 S2");
    row("deselect takes the sensor off the body", {}, bodies(0, 0, [=] {
        script({"inertial body_of_sensor " + S1 + "=none"});   // as the controller then says
        click("pushButton_deselect");
        return "";
    }),
        '|' + QString(typical).replace("Body 01 S0001", "Body 01 ") + "1|0|0|0|1\n> body inertial_sensor standard b01 none");
    row("select refused; select and deselect with nothing chosen", {"body inertial_sensor standard b03"}, bodies(2, 0, [=] {
        click("pushButton_select");
        w<QTableWidget>("tableWidget_bodies")->setCurrentCell(-1, -1);
        QMetaObject::invokeMethod(dialog, "on_pushButton_deselect_clicked");   // the buttons are off by then
        QMetaObject::invokeMethod(dialog, "on_pushButton_select_clicked");
        w<QTableWidget>("tableWidget_bodies")->setCurrentCell(2, 0);
        w<QTableWidget>("tableWidget_sensors")->setCurrentCell(-1, -1);
        QMetaObject::invokeMethod(dialog, "on_pushButton_select_clicked");
        return "";
    }), '|' + typical + "0|0|0|0|1" + QString("\n! Error: Unable to get inertial info of body").repeated(2) + "\n! Error: "
        "Unable to get info of assignment of body.\n! Error: Unable to delete assignment of body. No body is selected\n! Error: "
        "Unable to assgin sensor to body. No body is selected\n! Error: Unable to assgin sensor to body. No sensor is selected");
    row("a quoted name shown bare, written quoted once; calibrations", {"body desc standard b02=\"Left \"\"hand\""},
        bodies(1, 0, [=] {
        auto* name = w<QTableWidget>("tableWidget_bodies")->item(1, 1);
        const QString shown = name->text();
        name->setText("Left hand");
        name->setText("Right");
        click("pushButton_hybridBodyCalibration");   // the body from the row
        click("pushButton_calibration");              // another module's, by message: this dialog steps aside
        return shown + QString::number(dialog->isVisible());
    }), "Left hand0|" + QString(typical).replace("Body 02", "Right") + "1|1|1|1|1\n> body desc standard b02 \"Right\"\n"
        "! OpenHybridBodyCalibration standard|2|full\n! OpenBodyCalDialog standard b02");
    row("back from another module's dialog: the bodies read again", {}, bodies(0, 0, [=] {
        script({"body desc standard b02=\"Renamed\""});
        fake->deliver("InertialModule", 1, "BodyCalibration", "reopen");
        QCoreApplication::processEvents();   // delivered queued
        return "";
    }), '|' + QString(typical).replace("Body 02", "Renamed") + "0|1|1|1|1");
    row("hybrid calibration: the first body from its row, the second from its sensor on page 1", {}, bodies(0, 0, [=] {
        click("pushButton_hybridBodyCalibration");
        QTest::keyClick(dialog, Qt::Key_1);
        table()->setCurrentCell(5, Id);   // S3
        click("pushButton_hybridBodyCalibration");
        return "";
    }), '|' + typical + "0|1|1|1|1\n! OpenHybridBodyCalibration standard|1|full\n! OpenHybridBodyCalibration standard|2|full");

    // Keys on the open dialog (F12: check `radio`), then page 3 as "checked button, value, sensor offered, usable".
    auto pulse = [this](const QList<Qt::Key>& pressed, const char* radio = nullptr) {
        return [=] {
            for (Qt::Key key : pressed)
                key == Qt::Key_F12 ? w<QRadioButton>(radio)->setChecked(true) : QTest::keyClick(dialog, key);
            QStringList seen;
            for (const char* name : {"radioButton_cameraSynchronous", "radioButton_inertialSensor", "radioButton_frequency"})
                if (w<QRadioButton>(name)->isChecked())
                    seen << QString(name).mid(12);
            auto* combo = w<QComboBox>("comboBox_inertialSensor");
            return (seen << QString::number(w<QDoubleSpinBox>("doubleSpinBox_frequency_2")->value()) << combo->currentText()
                         << QString::number(combo->isEnabled())).join(' ');
        };
    };
    row("page changes alone send nothing", {}, pulse({Qt::Key_2, Qt::Key_3, Qt::Key_1, Qt::Key_3}),
        "cameraSynchronous 60 S0001 0");
    row("a sync card at 5 Hz shows 60", {"synccard output_frequency=5"}, pulse({Qt::Key_3}), "cameraSynchronous 60 S0001 0");
    row("pulse unreadable: nothing checked", {"tracking pulse"}, pulse({Qt::Key_3}), "60 S0001 1" + QString("\n! Error: "
        "Unable to info of tracking frequency type\n! Error: Unable to info of frequency type").repeated(2));
    row("a custom frequency", {"tracking pulse=frequency 250"}, pulse({Qt::Key_3}), "frequency 250 S0001 0");
    row("following a sensor", {"tracking pulse=inertial_sensor " + S3}, pulse({Qt::Key_3}), "inertialSensor 100 S0003 1");
    row("following a sensor, none left on a body", {"tracking pulse=inertial_sensor " + S3, "inertial body_of_sensor " + S1
        + "=none", "inertial body_of_sensor " + S3 + "=none"}, pulse({Qt::Key_3}), "inertialSensor 100  0");
    row("\"frequency\" without a number", {"tracking pulse=frequency fast"}, pulse({Qt::Key_3}), "frequency 100 S0001 0");
    row("a sensor chosen goes out once, even refused", {"tracking pulse inertial_sensor " + S1},
        pulse({Qt::Key_3, Qt::Key_F12, Qt::Key_1, Qt::Key_3}, "radioButton_inertialSensor"),
        "cameraSynchronous 60 S0001 0\n> tracking pulse inertial_sensor S1\n! Error: Unable to set inertial tracking to sensor");
    row("before 1.21 a change is refused", {"version=1.20"}, pulse({Qt::Key_F12, Qt::Key_3}, "radioButton_frequency"),
        "frequency 100  0\n! Error: Unable to get radio channel of sensor 6" + QString("\n! Error: Unable to set inertial "
        "tracking settings").repeated(2));   // each page change and the closing try again
}

QTEST_MAIN(tst_InertialSettingsDlg)
#include "tst_InertialSettingsDlg.moc"
