#include "InertialSettingsDlg.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QScrollBar>
#include <QSet>
#include <QTableWidgetItem>
#include <QTimer>

#include <algorithm>
#include <cmath>

#include "BodyAssignmentPage.h"
#include "ChannelComboBox.h"
#include "SensorChannelCombo.h"
#include "TrackingPulsePage.h"
#include "addsensor/AddInertialSensorDlg.h"
#include "module/ControllerChecks.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/IneritalMessageReceiver.h"
#include "module/SensorIdentity.h"
#include "module/VersionGate.h"
#include "statusbar/BatteryBar.h"
#include "statusbar/TemperatureBar.h"
#include "ui_InertialSettingsDlg.h"

namespace {

// List indices go out as two digits ("d07", "t03"); a count beyond that is
// a broken reply, and looping over it would freeze the GUI thread.
constexpr int MaxListIndex = 99;

constexpr int RowHeight = 20;
constexpr int DeviceIdPadding = 15;
constexpr int RefreshIntervalMs = 2000;
constexpr int FirstRefreshDelayMs = 250;
// Warm-up, wake-up modes and radio channels: the controller answers these slowly.
constexpr int SlowAnswerTimeoutMs = 10000;
constexpr int SleepTimeoutOfWakeOnTouch = 10;

// Column 3 of a sensor row: what its flags are while the sensor is present.
constexpr int NameFlagsRole = Qt::UserRole + 3;
// Column 3 of a sensor row: the body's description as the controller has it.
constexpr int NameTextRole = Qt::UserRole + 4;

const Qt::Alignment RightCentred = Qt::AlignRight | Qt::AlignVCenter;  // 130

const QString None = QStringLiteral("none");
const QString Yes = QStringLiteral("yes");
const QString No = QStringLiteral("no");
const QString WakeOnUsb = QStringLiteral("'wm_usb'");
const QString WakeOnTap = QStringLiteral("'wm_tap'");
const QString WakeByRadio = QStringLiteral("'wm_radio'");
const QString TapAndRadio = WakeOnTap + QLatin1Char(' ') + WakeByRadio;
const char* const ModeProperty = "wakeupMode";
const QString CommandDone = QStringLiteral("norvane ok");

int sane_count(int count)
{
    return qBound(0, count, MaxListIndex);
}

// The status lamps belong to the host; a host without them still gets the
// module's own.
QIcon host_or_own_icon(const QString& host_path, const QString& own_path)
{
    return QIcon(QFile::exists(host_path) ? host_path : own_path);
}

QTableWidgetItem* text_item(const QString& text, Qt::ItemFlags flags)
{
    auto* item = new QTableWidgetItem(text);
    item->setFlags(flags);
    return item;
}

QString sensor_line(const InertialSettingsDlg::sensor& s)
{
    return QStringList{s.vendor, s.model, s.serial}.join(QLatin1Char(' '));
}

// "d01": how the controller indexes its lists, counted from 1.
QString list_key(int number)
{
    return QStringLiteral("d%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString not_present_text()
{
    return QCoreApplication::translate("InertialSettingsDlg", "not present");
}

} // namespace

InertialSettingsDlg::InertialSettingsDlg(IOManager* io, QWidget* parent, BackendVersions* versions)
    : QDialog(parent),
      ui(new Ui_InertialSettingsDlg),
      io(io),
      backend_versions(versions),
      parent_widget(parent),
      config_locked(false),
      add_sensor_dlg(nullptr),
      sensor_data_timer(nullptr),
      not_present_timer(nullptr),
      button_timer(nullptr),
      first_refresh_timer(nullptr),
      transceiver_present(false),
      inertial_available(false),
      table_stale(true),
      cell_editing(false),
      frequency_minimum(1.0),
      frequency_maximum(1000.0),
      frequency_react(false),
      message_receiver(nullptr),
      bodies(nullptr),
      pulse(nullptr),
      receiver_registered(false),
      dummyDongleNeeded(false),
      scanNeeded(false),
      scan_allowed(false),
      rebuilding(false),
      name_editing(false),
      suggestion_missing(false),
      retry_box(nullptr),
      number_of_wakeup_modes(0)
{
    ui->setupUi(this);
    if (parent_widget)
        setWindowIcon(parent_widget->windowIcon());
    own_window_icon = windowIcon();

    icon_delete = QIcon(QStringLiteral(":/118.png"));
    icon_lock = QIcon(QStringLiteral(":/lock.png"));
    icon_warning = QIcon(QStringLiteral(":/warning.png"));
    icon_inertial_en = QIcon(QStringLiteral(":/inertial_en"));
    icon_inertial_dis = QIcon(QStringLiteral(":/inertial_dis"));
    icon_green = host_or_own_icon(QStringLiteral(":/res/green.png"), QStringLiteral(":/green.png"));
    icon_yellow = host_or_own_icon(QStringLiteral(":/res/yellow.png"), QStringLiteral(":/yellow.png"));
    icon_red = host_or_own_icon(QStringLiteral(":/res/red.png"), QStringLiteral(":/red.png"));

    add_sensor_dlg = new AddInertialSensorDlg(io, this, versions);
    setup_table();

    // Named, so that whoever drives the dialog can tell which refresh runs.
    sensor_data_timer = new QTimer(this);
    sensor_data_timer->setObjectName(QStringLiteral("sensorDataTimer"));
    not_present_timer = new QTimer(this);
    not_present_timer->setObjectName(QStringLiteral("notPresentTimer"));
    button_timer = new QTimer(this);
    button_timer->setObjectName(QStringLiteral("buttonTimer"));
    first_refresh_timer = new QTimer(this);
    first_refresh_timer->setObjectName(QStringLiteral("firstRefreshTimer"));
    sensor_data_timer->setInterval(RefreshIntervalMs);
    not_present_timer->setInterval(RefreshIntervalMs);
    button_timer->setInterval(RefreshIntervalMs);
    first_refresh_timer->setInterval(FirstRefreshDelayMs);
    first_refresh_timer->setSingleShot(true);
    connect(sensor_data_timer, SIGNAL(timeout()), this, SLOT(set_temperature_and_battery_of_all_sensor()));
    connect(not_present_timer, SIGNAL(timeout()), this, SLOT(update_sensors_not_present()));
    connect(button_timer, SIGNAL(timeout()), this, SLOT(update_buttons()));
    connect(first_refresh_timer, SIGNAL(timeout()), this, SLOT(update_buttons()));

    initMessageReceiver();
    bodies = new BodyAssignmentPage(this, ui, io, versions);
    pulse = new TrackingPulsePage(this, ui, io, versions);
}

InertialSettingsDlg::~InertialSettingsDlg()
{
    // The host must not keep delivering to a receiver that dies with us.
    if (receiver_registered && io)
        io->unregister_receiver("InertialModule", message_receiver);
    delete pulse;
    delete bodies;
    delete ui;
}

void InertialSettingsDlg::initMessageReceiver()
{
    message_receiver = new IneritalMessageReceiver(this);
    if (io) {
        io->register_receiver("InertialModule", message_receiver);
        receiver_registered = true;
    }
    // Queued: the host may deliver while another dialog is still closing.
    connect(message_receiver, SIGNAL(dialogReopen()), this, SLOT(onReceiveReopen()),
            Qt::QueuedConnection);
}

void InertialSettingsDlg::about_to_exit()
{
    stop_all_timers();
    add_sensor_dlg->about_to_exit();
    if (receiver_registered && io)
        io->unregister_receiver("InertialModule", message_receiver);
    receiver_registered = false;
}

void InertialSettingsDlg::stop_all_timers()
{
    for (QTimer* timer : {sensor_data_timer, not_present_timer, button_timer, first_refresh_timer})
        if (timer->isActive())
            timer->stop();
}

// --- opening -----------------------------------------------------------------

int InertialSettingsDlg::update_and_exec()
{
    // Already open (the menu and a message can both ask): show it, once.
    if (isVisible()) {
        raise();
        activateWindow();
        return result();
    }
    table_stale = true;
    inertial_available = false;
    {
        // Every page is refreshed below; the page change must not do it twice.
        const QSignalBlocker quiet(ui->toolBox);
        ui->toolBox->setCurrentIndex(0);
    }
    ui->progressBar->setValue(0);
    ui->progressBar->setEnabled(false);
    ui->progressBar->setFormat(QString());
    ui->label_error3->hide();
    // Whatever an earlier opening showed, no warm-up is shown running until
    // this one finds it so, and no sensor or mode of a controller that may
    // since have been exchanged stays on show.
    ui->pushButton_warmup->setText(tr("Warmup start"));
    ui->tableWidget->setRowCount(0);
    ui->comboBox_mode->clear();
    all_wakeup_modes.clear();
    transceiver_present = false;
    scan_allowed = false;
    name_editing = false;
    // A transceiver may have been exchanged since the last opening.
    known_available_channels.clear();

    config_locked = is_config_locked();

    if (!VersionGate::available(backend_versions, 1, 12)) {
        show_error(tr("This controller does not support hybrid sensors - please update your controller"));
        disable_sensor_controls();
        ui->tableWidget->setEnabled(true);
        return run_without_body_pages();
    }

    if (config_locked) {
        setWindowIcon(icon_lock);
        get_all_wakeup_modes();
        update_table();
        update_wakeup_and_frequency();
        set_frequency_limit();
        disable_sensor_controls();
        ui->tableWidget->setEnabled(false);
        return run_without_body_pages();
    }

    setWindowIcon(own_window_icon);
    inertial_available = is_inertial_available();
    if (!inertial_available) {
        show_error(tr("Hybrid tracking is not available!"));
        disable_sensor_controls();
        bodies->update_spinBox_numBodies();
        update_table();
        ui->tableWidget->setEnabled(true);
        ui->progressBar->hide();
        disable_body_page();
        enableInertialControls();
        return run_modal();
    }

    ui->pushButton_warmup->setEnabled(false);
    get_all_wakeup_modes();
    ui->label_error->clear();
    update_table();
    update_wakeup_and_frequency();
    ui->progressBar->show();

    // Sensors on cable need no transceiver: the page stays usable for them.
    transceiver_present = isTransceiverPresent();
    scan_allowed = transceiver_present;
    ui->pushButton_addSensor->setEnabled(true);
    ui->comboBox_mode->setEnabled(true);
    ui->doubleSpinBox_frequency->setEnabled(true);
    ui->tableWidget->setEnabled(true);
    ui->pushButton_scanAvailableChannels->setEnabled(scan_allowed);
    if (transceiver_present) {
        set_frequency_limit();
        first_refresh_timer->start();
        button_timer->start();
        if (is_warmup_active()) {
            ui->pushButton_warmup->setText(tr("Warmup stop"));
            set_warmup_lock(true);
            // Warm-up was just confirmed: read the rows without asking again.
            refresh_all_sensor_rows();
            sensor_data_timer->start();
        } else {
            not_present_timer->start();
        }
    }
    bodies->open(true);
    enableInertialControls();
    pulse->refresh(inertial_available);
    return run_modal();
}

int InertialSettingsDlg::run_without_body_pages()
{
    ui->progressBar->hide();
    disable_body_page();
    enableInertialControls();
    return run_modal();
}

int InertialSettingsDlg::run_modal()
{
    const int result = exec();
    // However the dialog ended, nothing may poll the controller for a
    // dialog nobody sees.
    stop_all_timers();
    return result;
}

void InertialSettingsDlg::onReceiveReopen()
{
    // A second "reopen" while the dialog runs must not nest another exec().
    bodies->refresh_after_other_dialog();
    if (isVisible())
        return;
    run_modal();
}

void InertialSettingsDlg::disable_sensor_controls()
{
    ui->pushButton_scanAvailableChannels->setEnabled(false);
    ui->pushButton_addSensor->setEnabled(false);
    ui->comboBox_mode->setEnabled(false);
    ui->pushButton_warmup->setEnabled(false);
    ui->doubleSpinBox_frequency->setEnabled(false);
}

void InertialSettingsDlg::disable_body_page()
{
    bodies->disable();
}

void InertialSettingsDlg::enableInertialControls()
{
    pulse->enableInertialControls(config_locked, inertial_available);
}

void InertialSettingsDlg::set_warmup_lock(bool locked)
{
    ui->tableWidget->setEnabled(!locked);
    ui->pushButton_addSensor->setEnabled(!locked);
    ui->doubleSpinBox_frequency->setEnabled(!locked);
    ui->comboBox_mode->setEnabled(!locked);
    // Without a transceiver there is nothing to scan, warm-up or not.
    ui->pushButton_scanAvailableChannels->setEnabled(!locked && scan_allowed);
}

void InertialSettingsDlg::end_warmup_display()
{
    sensor_data_timer->stop();
    set_warmup_lock(false);
    ui->pushButton_warmup->setText(tr("Warmup start"));
    // Warm-up kept sensors awake; those that fall asleep again are watched
    // by the presence poll as after an opening.
    if (transceiver_present)
        not_present_timer->start();
}

void InertialSettingsDlg::show_error(const QString& text)
{
    ui->label_error->setText(ControllerText::red(text));
}

void InertialSettingsDlg::report(const QString& text)
{
    ControllerText::report(io, text);
}

QString InertialSettingsDlg::checked_text(int result, const char* reply, const QString& fallback,
                                          const QString& message)
{
    if (result == 0)
        return ControllerText::reply(reply);
    report(message);
    return fallback;
}

bool InertialSettingsDlg::read_count(int* count, const char* path, const QString& failure)
{
    *count = 0;
    int reported = 0;
    if (io->get_int(&reported, path) != 0) {
        report(failure);
        return false;
    }
    *count = sane_count(reported);
    return true;
}

bool InertialSettingsDlg::read_list_item(SensorIdentity* identity, const char* format, int index,
                                         const QString& failure)
{
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, format, index) != 0) {
        report(failure);
        return false;
    }
    *identity = SensorIdentity::parse(ControllerText::reply(reply));
    return true;
}

// --- controller state --------------------------------------------------------

bool InertialSettingsDlg::is_config_locked()
{
    return ControllerChecks::configLocked(io, backend_versions);
}

bool InertialSettingsDlg::is_inertial_available()
{
    return ControllerChecks::inertialAvailable(io, backend_versions);
}

bool InertialSettingsDlg::is_warmup_active()
{
    return ControllerChecks::warmupActive(io);
}

bool InertialSettingsDlg::isTransceiverPresent()
{
    int count = 0;
    return io->get_int(&count, "inertial number_of_transceivers") == 0 && count >= 1;
}

bool InertialSettingsDlg::isSensorPresent(const QString& identity)
{
    bool present = false;
    return io->get_bool(&present, "inertial sensor_present %s", ControllerText::latin(identity).constData()) == 0
           && present;
}

// --- periodic refresh --------------------------------------------------------

void InertialSettingsDlg::update_buttons()
{
    if (io->is_blocked())
        return;
    if (!is_inertial_available()) {
        inertial_available = false;
        scan_allowed = false;
        show_error(tr("Hybrid tracking is not available!"));
        disable_sensor_controls();
        ui->tableWidget->setEnabled(true);
        ui->progressBar->hide();
        update_table();
        stop_all_timers();
        return;
    }
    // Neither overwrite a cell the user is typing into nor compete with the
    // warm-up refresh, which reads the same rows.
    if (cell_editing || sensor_data_timer->isActive())
        return;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QString identity = sensor_identity_of_row(row);
        if (identity.isEmpty())
            continue;
        const bool present = isSensorPresent(identity);
        update_four_columns(row, identity, present);
        update_temperature(row, identity, present);
        update_battery(row, identity, present);
        update_firmware(row, identity, present);
        update_frequency(row, identity, present);
        update_sensor_calibration(row, identity, present);
        update_wakeup_combo(row, identity, present);
        update_sensor_channel(row, identity, present);
    }
}

void InertialSettingsDlg::update_sensors_not_present()
{
    if (io->is_blocked())
        return;
    if (!transceiver_identities.isEmpty() && !is_inertial_available()) {
        not_present_timer->stop();
        return;
    }
    bool all_done = true;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        if (ui->tableWidget->cellWidget(row, ColTemperature))
            continue;
        const QString identity = sensor_identity_of_row(row);
        const QTableWidgetItem* temperature = ui->tableWidget->item(row, ColTemperature);
        if (identity.isEmpty() || !temperature || temperature->text() != not_present_text())
            continue;
        all_done = set_present_status_of_sensor(row, identity) && all_done;
    }
    if (all_done)
        not_present_timer->stop();
}

void InertialSettingsDlg::set_temperature_and_battery_of_all_sensor()
{
    if (io->is_blocked())
        return;
    if (is_warmup_active() && is_inertial_available()) {
        refresh_all_sensor_rows();
        return;
    }
    // The controller ended the warm-up on its own: give the page back.
    end_warmup_display();
}

void InertialSettingsDlg::refresh_all_sensor_rows()
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QString identity = sensor_identity_of_row(row);
        if (!identity.isEmpty())
            set_present_status_of_sensor(row, identity);
    }
}

// --- user actions of the frame -----------------------------------------------

void InertialSettingsDlg::closeEvent(QCloseEvent* event)
{
    stop_all_timers();
    pulse->sendTrackingPulseSettingsToAtc();
    QDialog::closeEvent(event);
}

void InertialSettingsDlg::on_pushButton_exit_clicked()
{
    close();
}

void InertialSettingsDlg::keyPressEvent(QKeyEvent* event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const int pages = ui->toolBox->count();
    switch (event->key()) {
    case Qt::Key_1:
    case Qt::Key_2:
    case Qt::Key_3:
        if (!plain)
            break;
        ui->toolBox->setCurrentIndex(event->key() - Qt::Key_1);
        return;
    case Qt::Key_F3:
    case Qt::Key_F4:
        if (!plain || pages == 0)
            break;
        ui->toolBox->setCurrentIndex((ui->toolBox->currentIndex() + 1) % pages);
        return;
    case Qt::Key_Escape:
        // Through close(), so that leaving by Escape stops the timers too.
        close();
        return;
    default:
        break;
    }
    QDialog::keyPressEvent(event);
}

void InertialSettingsDlg::on_toolBox_currentChanged(int index)
{
    const bool all = index < 0 || index > 2;
    if (all || (index == 0 && table_stale)) {
        bodies->update_spinBox_numBodies();
        update_table();
    }
    if (all || index == 1) {
        bodies->update_tableWidget_bodies();
        bodies->update_tableWidget_sensors();
        bodies->activate_pushButton_select();
        bodies->activate_pushButton_deselect();
    }
    if (all || index == 2) {
        enableInertialControls();
        pulse->refresh(inertial_available);
    }
    // Whatever page comes, a changed tracking pulse goes out now.
    pulse->sendTrackingPulseSettingsToAtc();
}

QStringList InertialSettingsDlg::sensor_fields_of_settings_row() const
{
    const int row = ui->tableWidget->currentRow();
    const QTableWidgetItem* device = row < 0 ? nullptr : ui->tableWidget->item(row, ColDeviceId);
    return device ? device->data(SensorIdentityRole).toStringList() : QStringList();
}

// --- "Hybrid Bodies" and "Tracking Frequency": the pages do the work ---------

void InertialSettingsDlg::on_pushButton_select_clicked() { bodies->on_pushButton_select_clicked(); }
void InertialSettingsDlg::on_pushButton_deselect_clicked() { bodies->on_pushButton_deselect_clicked(); }
void InertialSettingsDlg::on_spinBox_numBodies_valueChanged(int value) { bodies->on_spinBox_numBodies_valueChanged(value); }
void InertialSettingsDlg::on_tableWidget_bodies_itemChanged(QTableWidgetItem* item) { bodies->on_tableWidget_bodies_itemChanged(item); }
void InertialSettingsDlg::on_tableWidget_bodies_cellClicked(int row, int column) { bodies->on_tableWidget_bodies_cellClicked(row, column); }
void InertialSettingsDlg::on_pushButton_filter_clicked() { bodies->on_pushButton_filter_clicked(); }
void InertialSettingsDlg::on_pushButton_calibration_clicked() { bodies->on_pushButton_calibration_clicked(); }
void InertialSettingsDlg::on_pushButton_hybridBodyCalibration_clicked() { bodies->on_pushButton_hybridBodyCalibration_clicked(); }
void InertialSettingsDlg::on_pushButton_inertialSensorCalibration_clicked() { bodies->on_pushButton_inertialSensorCalibration_clicked(); }

void InertialSettingsDlg::on_tableWidget_bodies_clicked(const QModelIndex&)
{
    bodies->activate_pushButton_select();
    bodies->activate_pushButton_deselect();
}

void InertialSettingsDlg::on_tableWidget_sensors_itemSelectionChanged()
{
    bodies->activate_pushButton_select();
}

void InertialSettingsDlg::on_radioButton_cameraSynchronous_toggled(bool) { pulse->on_radioButton_toggled(); }
void InertialSettingsDlg::on_radioButton_inertialSensor_toggled(bool) { pulse->on_radioButton_toggled(); }
void InertialSettingsDlg::on_radioButton_frequency_toggled(bool) { pulse->on_radioButton_toggled(); }
void InertialSettingsDlg::on_comboBox_inertialSensor_currentIndexChanged(int) { pulse->user_changed(); }
void InertialSettingsDlg::on_doubleSpinBox_frequency_2_valueChanged(double) { pulse->user_changed(); }

void InertialSettingsDlg::on_pushButton_addSensor_clicked()
{
    // The table is out of sight while sensors are added; refreshing it would
    // only compete with the scan for the controller.
    const bool refreshing = button_timer->isActive();
    const bool polling = not_present_timer->isActive();
    button_timer->stop();
    not_present_timer->stop();
    first_refresh_timer->stop();

    table_stale = true;
    add_sensor_dlg->update_and_exec();
    // The add dialog rebuilds the table when it added sensors; their modes
    // then change what the page-level choice offers.
    if (!table_stale)
        set_comboBox_available_modes();

    if (refreshing)
        button_timer->start();
    if (polling)
        not_present_timer->start();
}

void InertialSettingsDlg::on_tableWidget_cellClicked(int row, int column)
{
    const QTableWidgetItem* item = ui->tableWidget->item(row, column);
    if (column == ColDelete) {
        // Only sensor rows carry the delete icon.
        if (item && !item->icon().isNull())
            delete_sensor(row);
        return;
    }
    if (column == ColName)
        name_editing = true;
    if (item && (item->flags() & Qt::ItemIsEditable))
        cell_editing = true;
}

void InertialSettingsDlg::on_tableWidget_itemChanged(QTableWidgetItem* item)
{
    cell_editing = false;
    if (!item || item->column() != ColName || !name_editing)
        return;
    // The refresh touches this cell's flags too; only a new text is an edit.
    const QString description = item->data(NameTextRole).toString();
    const QString edited = item->text();
    if (edited == description)
        return;
    name_editing = false;
    const QString body = item->data(BodyIdRole).toString();
    if (body.isEmpty() || body == None)
        return;
    const QSignalBlocker quiet(ui->tableWidget);
    if (io->set_value("body desc %s \"%s\"", ControllerText::latin(body).constData(), ControllerText::latin(edited).constData()) != 0) {
        report(tr("Error: Unable to set body description %1").arg(body));
        // Show the name the controller kept, not the refused one.
        item->setText(description);
        return;
    }
    item->setData(NameTextRole, edited);
}

void InertialSettingsDlg::editor_closed()
{
    // An edit the user abandoned changes no item, yet the refresh must resume.
    cell_editing = false;
    name_editing = false;
}

void InertialSettingsDlg::wait_cursor_active(bool active)
{
    if (active)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool InertialSettingsDlg::eventFilter(QObject* watched, QEvent* event)
{
    if (retry_box && watched == retry_box) {
        const bool escape = event->type() == QEvent::KeyPress
                            && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
        if (escape || event->type() == QEvent::Close) {
            // The box carries Retry alone; leaving it any other way gives up.
            retry_box->done(QMessageBox::Cancel);
            return true;
        }
    }
    if (event->type() == QEvent::Wheel) {
        auto* combo = qobject_cast<QComboBox*>(watched);
        if (combo && !combo->hasFocus()) {
            // A wheel turned to scroll the table must not change a sensor's
            // wake-up mode on its way past.
            QCoreApplication::sendEvent(ui->tableWidget->verticalScrollBar(), event);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

// --- sensor table ------------------------------------------------------------

void InertialSettingsDlg::setup_table()
{
    QTableWidget* table = ui->tableWidget;
    table->clear();
    table->setColumnCount(ColumnCount);
    table->setRowCount(0);
    table->setHorizontalHeaderLabels({tr("Device ID"), tr("Vendor"), tr("Model"), tr("Name"),
                                      tr("Version"), tr("Channel"), tr("Wakeup Mode"),
                                      tr("Battery"), tr("Temperature"), tr("Frequency"),
                                      tr("Cal."), tr("Delete")});
    QHeaderView* header = table->horizontalHeader();
    const QHeaderView::ResizeMode modes[ColumnCount] = {
        QHeaderView::Fixed,            QHeaderView::ResizeToContents, QHeaderView::ResizeToContents,
        QHeaderView::Stretch,          QHeaderView::ResizeToContents, QHeaderView::Fixed,
        QHeaderView::Fixed,            QHeaderView::ResizeToContents, QHeaderView::ResizeToContents,
        QHeaderView::ResizeToContents, QHeaderView::Fixed,            QHeaderView::ResizeToContents};
    for (int column = 0; column < ColumnCount; ++column)
        header->setSectionResizeMode(column, modes[column]);
    header->setSectionsClickable(false);
    header->setStretchLastSection(false);
    table->setColumnHidden(ColVendor, true);
    table->verticalHeader()->hide();
    table->resizeColumnsToContents();
    connect(table->itemDelegate(), SIGNAL(closeEditor(QWidget*, QAbstractItemDelegate::EndEditHint)),
            this, SLOT(editor_closed()));
}

void InertialSettingsDlg::update_table()
{
    QTableWidget* table = ui->tableWidget;
    table->clearContents();
    table->setRowCount(0);
    sensor_list.clear();
    cell_editing = false;
    rebuilding = true;
    suggestion_missing = false;

    bool complete = add_dongles();
    if (complete) {
        add_dummyDongleEntry();
        dummyDongleNeeded = false;
        complete = add_sensors();
        delete_dummyDongleEntry_ifNotNeeded();
    }

    // One transceiver without a suggestion is enough: the user should scan.
    if (suggestion_missing) {
        ui->label_error3->setText(ControllerText::red(tr("Please scan available channels")));
        ui->label_error3->show();
    } else {
        ui->label_error3->hide();
        ui->label_error3->clear();
    }
    rebuilding = false;

    table->resizeColumnsToContents();
    table->setColumnWidth(ColDeviceId, table->columnWidth(ColDeviceId) + DeviceIdPadding);
    // A rebuild cut short stays stale, so that the next visit tries again.
    if (complete)
        table_stale = false;
}

bool InertialSettingsDlg::add_dongles()
{
    transceiver_identities.clear();
    int count = 0;
    if (!read_count(&count, "inertial number_of_transceivers", tr("Error: Unable to get number of dongles")))
        return false;
    for (int i = 1; i <= count; ++i) {
        SensorIdentity identity;
        const QString failure = tr("Error: Unable to get informations of dongle %1").arg(i);
        if (!read_list_item(&identity, "inertial transceiver d%.2d", i, failure))
            return false;
        if (!identity.isValid()) {
            // Nothing could be asked about it: no further query would name it.
            report(failure);
            continue;
        }
        transceiver_identities << identity.line();
    }

    ui->tableWidget->setRowCount(transceiver_identities.size());
    for (int row = 0; row < transceiver_identities.size(); ++row) {
        const QString& identity = transceiver_identities.at(row);
        if (fill_dongle_row(row, identity) && !fill_dongle_channel(row, identity)) {
            // The dongles below were never read; keep no empty rows for them.
            ui->tableWidget->setRowCount(row + 1);
            return false;
        }
    }
    return true;
}

bool InertialSettingsDlg::fill_dongle_row(int row, const QString& identity)
{
    QTableWidget* table = ui->tableWidget;
    const SensorIdentity id = SensorIdentity::parse(identity);
    const QByteArray line = ControllerText::latin(identity);
    const int number = row + 1;
    char reply[IOManager::ReplyCapacity];

    QTableWidgetItem* device = text_item(id.deviceId(), Qt::ItemIsEnabled);
    device->setData(DongleSensorsRole, QStringList());
    device->setData(DongleKeyRole, list_key(number));
    table->setItem(row, ColDeviceId, device);

    const QString version = checked_text(
        io->get_string(reply, "inertial transceiver_version %s", line.constData()), reply,
        QStringLiteral("error"), tr("Error: Unable to get firmware version of dongle %1").arg(number));
    table->setItem(row, ColVersion, text_item(ControllerText::withoutDoubleQuotes(version), Qt::ItemIsEnabled));

    const QString vendor = checked_text(
        io->get_string(reply, "inertial transceiver_vendor_desc %s", ControllerText::latin(id.vendor()).constData()),
        reply, QStringLiteral("error"),
        tr("Error: Unable to get vendor description of dongle %1").arg(number));
    table->setItem(row, ColVendor, text_item(ControllerText::withoutDoubleQuotes(vendor), Qt::ItemIsEnabled));

    const QString model = checked_text(
        io->get_string(reply, "inertial transceiver_model_desc %s %s", ControllerText::latin(id.vendor()).constData(),
                       ControllerText::latin(id.model()).constData()),
        reply, QStringLiteral("error"),
        tr("Error: Unable to get model description of dongle %1").arg(number));
    QTableWidgetItem* model_item = text_item(ControllerText::withoutDoubleQuotes(model), Qt::ItemIsEnabled);
    model_item->setData(DongleIdentityRole, id.fields());
    table->setItem(row, ColModel, model_item);

    table->setRowHeight(row, RowHeight);
    for (int column : {ColName, ColWakeupMode, ColBattery, ColTemperature, ColFrequency,
                       ColCalibration, ColDelete})
        table->setItem(row, column, text_item(QString(), Qt::ItemIsEnabled));

    const QString present = checked_text(
        io->get_string(reply, "inertial transceiver_present %s", line.constData()), reply, QString(),
        tr("Error: Unable to get present status of dongle %1").arg(number));
    if (present != No)
        return true;
    // Absent transceivers stay listed, greyed, so their sensors keep a home.
    const QBrush greyed = QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Base);
    for (int column = 0; column < ColumnCount; ++column) {
        QTableWidgetItem* item = ensure_item(row, column);
        item->setFlags(Qt::NoItemFlags);
        item->setBackground(greyed);
    }
    return false;
}

bool InertialSettingsDlg::fill_dongle_channel(int row, const QString& identity)
{
    QTableWidget* table = ui->tableWidget;
    const QByteArray line = ControllerText::latin(identity);
    const int number = row + 1;
    auto* combo = qobject_cast<ChannelComboBox*>(table->cellWidget(row, ColChannel));
    if (!combo) {
        combo = new ChannelComboBox(this, identity);
        // Queued: moving the transceiver rebuilds the table, and with it
        // this combo, which must not be destroyed while it reports.
        connect(combo, &ChannelComboBox::transceiverChannelChosen, this,
                &InertialSettingsDlg::transceiver_channel_chosen, Qt::QueuedConnection);
        table->setCellWidget(row, ColChannel, combo);
    }
    const QList<int> available = available_channels_of(
        number, identity, tr("Error: Unable to get number of available channels of dongle %1").arg(number));
    if (!available.isEmpty())
        combo->setChannelLimits(*std::min_element(available.cbegin(), available.cend()),
                                *std::max_element(available.cbegin(), available.cend()));

    if (marked_channels.isEmpty()) {
        scanNeeded = true;
        update_scan_status();
    }

    int channel = 0;
    if (io->get_int(&channel, "inertial transceiver_radio_channel %s", line.constData()) != 0) {
        report(tr("Error: Unable to get radio channel of dongle %1").arg(number));
        return false;
    }
    combo->setChannel(channel);

    int suggested = 0;
    if (io->get_int(&suggested, "inertial transceiver_suggested_radio_channel %s", line.constData()) != 0) {
        report(tr("Error: Unable to get suggested radio channel of dongle %1").arg(number));
        suggested = 0;
    }
    combo->setMarkSuggestedChannel(suggested);
    // No suggestion means the controller has measured nothing yet.
    if (suggested == 0)
        suggestion_missing = true;
    else if (!marked_channels.isEmpty())
        combo->setMarkedChannels(marked_channels.value(identity));
    combo->setUserAction(true);
    return true;
}

QList<int> InertialSettingsDlg::available_channels_of(int number, const QString& identity, const QString& failure)
{
    // What a transceiver can use does not change while the dialog is open;
    // asking again at every rebuild would cost a round trip per channel.
    const auto known = known_available_channels.constFind(identity);
    if (known != known_available_channels.cend())
        return *known;

    const QByteArray line = ControllerText::latin(identity);
    int reported = 0;
    if (io->get_int(&reported, "inertial number_of_transceiver_available_radio_channels %s", line.constData()) != 0) {
        report(failure);
        return {};
    }
    QList<int> channels;
    const int count = sane_count(reported);
    for (int k = 1; k <= count; ++k) {
        int channel = 0;
        if (io->get_int(&channel, "inertial transceiver_available_radio_channel %s t%.2d", line.constData(), k) != 0) {
            report(tr("Error: Unable to get available channel of dongle %1").arg(number));
            continue;
        }
        if (channel >= 1 && channel <= ChannelComboBox::LargestChannel && !channels.contains(channel))
            channels << channel;
    }
    known_available_channels.insert(identity, channels);
    return channels;
}

void InertialSettingsDlg::add_dummyDongleEntry()
{
    QTableWidget* table = ui->tableWidget;
    const int row = table->rowCount();
    table->insertRow(row);
    table->setItem(row, ColDeviceId, text_item(tr("cable connected:"), Qt::ItemIsEnabled));
    for (int column = 1; column < ColumnCount; ++column)
        table->setItem(row, column, text_item(QString(), Qt::ItemIsEnabled));
}

void InertialSettingsDlg::delete_dummyDongleEntry_ifNotNeeded()
{
    const int row = getRowOfDummyDongle();
    if (!dummyDongleNeeded && row >= 0)
        ui->tableWidget->removeRow(row);
}

bool InertialSettingsDlg::add_sensors()
{
    sensor_list.clear();
    int count = 0;
    read_count(&count, "inertial number_of_sensors", tr("Could not get number of sensors"));
    // Availability as the opening found it; the button refresh notices a loss.
    ui->pushButton_warmup->setEnabled(count > 0 && inertial_available);

    for (int i = 1; i <= count; ++i) {
        SensorIdentity id;
        if (!read_list_item(&id, "inertial sensor d%.2d", i, tr("Could not get informations of sensor %1").arg(i)))
            return false;
        if (!id.isValid()) {
            report(tr("Error: Unable to get vendor model of inertial sensor"));
            continue;
        }
        char reply[IOManager::ReplyCapacity];
        const QString identity = id.line();
        const QByteArray line = ControllerText::latin(identity);

        if (io->get_string(reply, "inertial body_of_sensor %s", line.constData()) != 0) {
            report(tr("Could not get body of sensor %1").arg(i));
            return false;
        }
        const QString body = ControllerText::reply(reply);

        QString transceiver;
        if (io->get_string(reply, "inertial transceiver_of_sensor %s", line.constData()) != 0) {
            report(tr("Could not get associated transciever of sensor %1, transciever not connected?").arg(i));
            if (transceiver_identities.isEmpty())
                return false;
        } else {
            transceiver = ControllerText::reply(reply);
        }
        sensor_list << sensor{list_key(i), id.vendor(),
                              id.model(), id.serial()};

        const int row = row_for_sensor(transceiver, identity);
        ui->tableWidget->insertRow(row);
        fill_sensor_row(row, id, body, i);
    }
    return true;
}

int InertialSettingsDlg::row_for_sensor(const QString& transceiver, const QString& identity)
{
    // Sensors on cable, and those whose transceiver the table does not
    // list, gather under "cable connected:".
    if (transceiver == None || transceiver.isEmpty()) {
        dummyDongleNeeded = true;
        return getRowOfDummyDongle() + 1;
    }
    // The transceiver's own row already shows the answer; the controller
    // nonetheless expects the question before a sensor is filed under it.
    char reply[IOManager::ReplyCapacity];
    io->get_string(reply, "inertial transceiver_present %s", ControllerText::latin(transceiver).constData());
    const int dongle = get_row_of_dongle(transceiver);
    if (dongle < 0) {
        dummyDongleNeeded = true;
        return getRowOfDummyDongle() + 1;
    }
    QTableWidgetItem* device = ui->tableWidget->item(dongle, ColDeviceId);
    device->setData(DongleSensorsRole, device->data(DongleSensorsRole).toStringList() << identity);
    return dongle + 1;
}

void InertialSettingsDlg::fill_sensor_row(int row, const SensorIdentity& id, const QString& body, int index)
{
    QTableWidget* table = ui->tableWidget;
    const QString identity = id.line();
    const QByteArray line = ControllerText::latin(identity);
    char reply[IOManager::ReplyCapacity];

    QTableWidgetItem* device = text_item(id.deviceId(), Qt::ItemIsEnabled);
    device->setTextAlignment(RightCentred);
    device->setData(SensorIdentityRole, id.fields());
    table->setItem(row, ColDeviceId, device);

    const QString vendor = checked_text(
        io->get_string(reply, "inertial sensor_vendor_desc %s", ControllerText::latin(id.vendor()).constData()), reply,
        QStringLiteral("error"), tr("Error: Unable to get vendor description of sensor %1").arg(index));
    table->setItem(row, ColVendor, text_item(ControllerText::withoutDoubleQuotes(vendor), Qt::ItemIsEnabled));

    const QString model = checked_text(
        io->get_string(reply, "inertial sensor_model_desc %s %s", ControllerText::latin(id.vendor()).constData(),
                       ControllerText::latin(id.model()).constData()),
        reply, QStringLiteral("error"), tr("Error: Unable to get model description of sensor %1").arg(index));
    table->setItem(row, ColModel, text_item(ControllerText::withoutDoubleQuotes(model), Qt::ItemIsEnabled));

    auto* name = new QTableWidgetItem;
    name->setData(BodyIdRole, body);
    Qt::ItemFlags name_flags = Qt::NoItemFlags;
    if (body == None) {
        // no body, nothing to show
    } else if (!checkBodyTypeIdExists(body)) {
        name->setText(body);
        name_flags = Qt::ItemIsSelectable;
    } else {
        name->setText(ControllerText::withoutDoubleQuotes(checked_text(io->get_string(reply, "body desc %s", ControllerText::latin(body).constData()),
                                           reply, QString(),
                                           tr("Could not get body description of body %1").arg(index))));
        // The body's name is edited right here.
        name_flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable;
    }
    name->setFlags(name_flags);
    name->setData(NameFlagsRole, int(name_flags));
    name->setData(NameTextRole, name->text());
    table->setItem(row, ColName, name);

    QTableWidgetItem* remove = text_item(QString(), Qt::ItemIsEnabled);
    remove->setIcon(icon_delete);
    table->setItem(row, ColDelete, remove);

    const QString present_reply = checked_text(
        io->get_string(reply, "inertial sensor_present %s", line.constData()), reply, QString(),
        tr("Error: Unable to get informations of sensor %1").arg(index));
    const bool present = present_reply == Yes;
    update_four_columns(row, identity, present);
    update_temperature(row, identity, present);
    update_battery(row, identity, present);
    update_frequency(row, identity, present);
    update_sensor_calibration(row, identity, present);
    update_firmware(row, identity, present);
    update_wakeup_combo(row, identity, present);
    update_sensor_channel(row, identity, present);
    table->setRowHeight(row, RowHeight);
}

QTableWidgetItem* InertialSettingsDlg::ensure_item(int row, int column)
{
    QTableWidgetItem* item = ui->tableWidget->item(row, column);
    if (!item) {
        item = new QTableWidgetItem;
        ui->tableWidget->setItem(row, column, item);
    }
    return item;
}

void InertialSettingsDlg::remove_cell_widget(int row, int column)
{
    if (ui->tableWidget->cellWidget(row, column))
        ui->tableWidget->removeCellWidget(row, column);
}

QString InertialSettingsDlg::sensor_identity_of_row(int row) const
{
    const QTableWidgetItem* device = ui->tableWidget->item(row, ColDeviceId);
    if (!device)
        return QString();
    return SensorIdentity::fromFields(device->data(SensorIdentityRole).toStringList()).line();
}

bool InertialSettingsDlg::set_present_status_of_sensor(int row, QString identity)
{
    const bool present = isSensorPresent(identity);
    // The presence icon costs no query and must not lag behind the rest.
    update_four_columns(row, identity, present);
    update_sensor_channel(row, identity, present);
    update_temperature(row, identity, present);
    update_battery(row, identity, present);
    update_firmware(row, identity, present);
    update_wakeup_combo(row, identity, present);
    return true;
}

void InertialSettingsDlg::update_four_columns(int row, QString /*identity*/, bool present)
{
    ensure_item(row, ColDeviceId)->setIcon(present ? icon_inertial_en : icon_inertial_dis);
    for (int column = ColDeviceId; column <= ColName; ++column) {
        QTableWidgetItem* item = ensure_item(row, column);
        Qt::ItemFlags flags = Qt::ItemIsSelectable;
        if (present)
            flags = column == ColName ? Qt::ItemFlags(item->data(NameFlagsRole).toInt())
                                      : Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        item->setFlags(flags);
    }
}

void InertialSettingsDlg::update_firmware(int row, QString identity, bool present)
{
    if (!present) {
        ensure_item(row, ColVersion)->setFlags(Qt::ItemIsSelectable);
        return;
    }
    char reply[IOManager::ReplyCapacity];
    const QString version = checked_text(
        io->get_string(reply, "inertial sensor_version %s", ControllerText::latin(identity).constData()), reply,
        QStringLiteral("v0.0.0"), tr("Error: Unable to get firmware version of sensor"));
    ui->tableWidget->setItem(row, ColVersion, text_item(ControllerText::withoutSingleQuotes(version), Qt::ItemIsEnabled));
}

void InertialSettingsDlg::update_sensor_channel(int row, QString identity, bool present)
{
    if (!present)
        return;
    QString connection = QStringLiteral("2");
    bool answered = false;
    if (VersionGate::available(backend_versions, 1, 21)) {
        char reply[IOManager::ReplyCapacity];
        if (io->get_string(reply, "inertial sensor_radio_channel %s", ControllerText::latin(identity).constData()) != 0) {
            report(tr("Error: Unable to get sensor channel"));
        } else {
            connection = ControllerText::reply(reply).trimmed();
            answered = true;
        }
    }
    QTableWidget* table = ui->tableWidget;
    if (connection == QLatin1String("usb")) {
        remove_cell_widget(row, ColChannel);
        QTableWidgetItem* item = ensure_item(row, ColChannel);
        item->setFlags(Qt::ItemIsEnabled);
        item->setTextAlignment(Qt::AlignCenter);
        item->setText(tr("USB"));
        return;
    }
    // A controller that names the channel already answered; older ones are
    // asked for the number itself.
    bool numeric = false;
    int channel = connection.toInt(&numeric);
    if (!answered || !numeric) {
        channel = -1;
        if (io->get_int(&channel, "inertial sensor_radio_channel %s", ControllerText::latin(identity).constData()) != 0) {
            report(tr("Error: Unable to get radio channel of sensor %1").arg(row));
            channel = -1;
        }
    }

    auto* combo = qobject_cast<SensorChannelCombo*>(table->cellWidget(row, ColChannel));
    if (!combo) {
        combo = new SensorChannelCombo(io, this, identity);
        combo->setFocusPolicy(Qt::StrongFocus);
        combo->installEventFilter(this);
        QStringList channels;
        get_channels(channels, identity);
        for (const QString& offered : qAsConst(channels))
            combo->addItem(offered, offered.toInt());
        combo->showChannel(channel);
        combo->setUserAction(true);
        ensure_item(row, ColChannel)->setText(QString());
        table->setCellWidget(row, ColChannel, combo);
        return;
    }
    combo->showChannel(channel);
}

void InertialSettingsDlg::update_battery(int row, QString identity, bool present)
{
    if (!present) {
        // The last charge stays on show: it is what the sensor had when it left.
        ensure_item(row, ColBattery)->setFlags(Qt::ItemIsEnabled);
        return;
    }
    double charge = -1.0;
    if (io->get_double(&charge, "inertial sensor_battery %s", ControllerText::latin(identity).constData()) != 0) {
        report(tr("Error: Unable to get battery status of sensor"));
        charge = -1.0;
    }
    if (!(charge >= 0.0))
        return;
    auto* bar = qobject_cast<BatteryBar*>(ui->tableWidget->cellWidget(row, ColBattery));
    if (!bar) {
        bar = new BatteryBar;
        bar->setMaximumWidth(ui->tableWidget->columnWidth(ColBattery));
        ui->tableWidget->setCellWidget(row, ColBattery, bar);
    }
    bar->setValue(charge);
}

void InertialSettingsDlg::update_temperature(int row, QString identity, bool present)
{
    QTableWidgetItem* item = ensure_item(row, ColTemperature);
    if (!present) {
        // A bar would keep showing the last reading of a sensor that is gone.
        remove_cell_widget(row, ColTemperature);
        item->setText(not_present_text());
        item->setTextAlignment(Qt::AlignCenter);
        return;
    }
    item->setText(QString());
    // Two numbers: the temperature in degrees Celsius and the operating
    // temperature at which the sensor counts as warm. The bar fills towards
    // the latter and turns green close to it.
    double reading[2] = {0.0, 0.0};
    if (io->get_doubles(reading, 2, "inertial sensor_temperature %s", ControllerText::latin(identity).constData()) != 0) {
        report(tr("Error: Unable to get temperature status of sensor %1").arg(row + 1));
        return;
    }
    if (!(reading[0] > 0.0) || !std::isfinite(reading[0]))
        return;
    auto* bar = qobject_cast<TemperatureBar*>(ui->tableWidget->cellWidget(row, ColTemperature));
    if (!bar) {
        bar = new TemperatureBar;
        bar->setMaximumWidth(ui->tableWidget->columnWidth(ColTemperature));
        ui->tableWidget->setCellWidget(row, ColTemperature, bar);
    }
    bar->setTemperature(reading[0]);
    const double warm = reading[1] > 0.0 && std::isfinite(reading[1]) ? reading[0] / reading[1] : 0.0;
    bar->setValue(qRound(qBound(0.0, warm * 100.0, 100.0)));
}

void InertialSettingsDlg::update_sensor_calibration(int row, QString identity, bool /*present*/)
{
    const int status = getSensorCalibrationStatus(ControllerText::latin(identity).constData());
    QTableWidgetItem* item = ensure_item(row, ColCalibration);
    item->setText(QString());
    if (status == 1) {
        item->setIcon(icon_green);
        item->setFlags(Qt::ItemIsEnabled);
    } else if (status == 0) {
        item->setIcon(icon_yellow);
        item->setFlags(Qt::ItemIsEnabled);
    } else {
        item->setIcon(icon_red);
        item->setFlags(Qt::NoItemFlags);
    }
}

int InertialSettingsDlg::getSensorCalibrationStatus(const char* identity)
{
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "inertial sensor_handeye %s", identity) != 0) {
        report(tr("Error: Unable to get calibration status of sensor"));
        return -1;
    }
    const QString handeye = ControllerText::reply(reply).trimmed();
    if (handeye.isEmpty())
        return -1;
    return handeye == None ? 0 : 1;
}

bool InertialSettingsDlg::checkBodyTypeIdExists(QString body_id)
{
    // "standard b03": the body exists while the count of its kind reaches it.
    const QStringList words = body_id.simplified().split(QLatin1Char(' '));
    if (words.size() < 2 || !words.at(1).startsWith(QLatin1Char('b')))
        return false;
    bool numeric = false;
    const int number = words.at(1).mid(1).toInt(&numeric);
    if (!numeric || number < 1)
        return false;
    int count = 0;
    if (io->get_int(&count, "body number_of_bodies %s", ControllerText::latin(words.at(0)).constData()) != 0) {
        report(tr("Error: Unable to get number of bodies"));
        return false;
    }
    return number <= count;
}

int InertialSettingsDlg::getRowOfDummyDongle() const
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QTableWidgetItem* item = ui->tableWidget->item(row, ColDeviceId);
        if (item && item->text().startsWith(QLatin1String("cable connected"), Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

int InertialSettingsDlg::get_row_of_dongle(QString identity) const
{
    const QString wanted = SensorIdentity::parse(identity).line();
    // The controller calls its transceivers "Dongle (USB)" in their model
    // description: those cells carry the transceiver's identity.
    for (const QTableWidgetItem* item :
         ui->tableWidget->findItems(QStringLiteral("Dongle (USB)"), Qt::MatchContains)) {
        const QStringList fields = item->data(DongleIdentityRole).toStringList();
        if (fields.size() >= 3 && fields.mid(0, 3).join(QLatin1Char(' ')) == wanted)
            return item->row();
    }
    // A transceiver described otherwise is still found by its key.
    const int index = transceiver_identities.indexOf(wanted);
    if (index < 0)
        return -1;
    const QString key = list_key(index + 1);
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QTableWidgetItem* device = ui->tableWidget->item(row, ColDeviceId);
        if (device && device->data(DongleKeyRole).toString() == key)
            return row;
    }
    return -1;
}

QStringList InertialSettingsDlg::get_sensorList_of_dongle(QString identity) const
{
    const int row = get_row_of_dongle(identity);
    const QTableWidgetItem* device = row < 0 ? nullptr : ui->tableWidget->item(row, ColDeviceId);
    return device ? device->data(DongleSensorsRole).toStringList() : QStringList();
}

QStringList InertialSettingsDlg::get_onlyPresent_sensorList_of_dongle(QString identity)
{
    return sensors_of_dongle_by_presence(identity, true);
}

QStringList InertialSettingsDlg::get_onlyNotPresent_sensorList_of_dongle(QString identity)
{
    return sensors_of_dongle_by_presence(identity, false);
}

QStringList InertialSettingsDlg::sensors_of_dongle_by_presence(const QString& identity, bool present)
{
    QStringList result;
    const QStringList sensors = get_sensorList_of_dongle(identity);
    for (int i = 0; i < sensors.size(); ++i) {
        char reply[IOManager::ReplyCapacity];
        if (io->get_string(reply, "inertial sensor_present %s", ControllerText::latin(sensors.at(i)).constData()) != 0) {
            report(tr("Error: Unable to get present status of sensor %1").arg(i + 1));
            continue;
        }
        if ((ControllerText::reply(reply) == Yes) == present)
            result << sensors.at(i);
    }
    return result;
}

QString InertialSettingsDlg::getSensorSerial(int row) const
{
    const QTableWidgetItem* device = ui->tableWidget->item(row, ColDeviceId);
    return device && device->data(SensorIdentityRole).isValid() ? device->text() : QString();
}

QString InertialSettingsDlg::getSensorModel(int row) const
{
    if (getSensorVendorModelSerial(row).isEmpty())
        return QString();
    const QTableWidgetItem* model = ui->tableWidget->item(row, ColModel);
    return model ? model->text() : QString();
}

QString InertialSettingsDlg::getSensorVendorModelSerial(int row) const
{
    return sensor_identity_of_row(row);
}

// --- wake-up modes -----------------------------------------------------------

void InertialSettingsDlg::get_all_wakeup_modes()
{
    all_wakeup_modes.clear();
    if (!read_count(&number_of_wakeup_modes, "inertial number_of_wakeup_modes",
                    tr("Error: Unable to get number of wakeup modes of inertial system")))
        return;
    for (int i = 1; i <= number_of_wakeup_modes; ++i) {
        char reply[IOManager::ReplyCapacity];
        if (io->get_string(reply, "inertial wakeup_mode t%.2d", i) != 0) {
            report(tr("Error: Unable to get wakeup modes of inertial system"));
            return;
        }
        const QString mode = ControllerText::reply(reply).trimmed();
        // The placeholder is never offered, so its description is not needed.
        if (mode == None)
            continue;
        if (io->get_string(reply, "inertial wakeup_mode_desc %s", ControllerText::latin(mode).constData()) != 0) {
            report(tr("Error: Unable to get wakeup description of inertial system"));
            return;
        }
        all_wakeup_modes.insert(mode, ControllerText::withoutSingleQuotes(ControllerText::reply(reply)));
    }
}

void InertialSettingsDlg::get_available_wakeup_modes_of_sensor(QString identity, QComboBox* combo)
{
    const QByteArray line = ControllerText::latin(identity);
    for (auto mode = all_wakeup_modes.cbegin(); mode != all_wakeup_modes.cend(); ++mode) {
        char reply[IOManager::ReplyCapacity];
        if (io->get_string(reply, "inertial sensor_wakeup_mode_available %s %s", line.constData(),
                           ControllerText::latin(mode.key()).constData()) != 0) {
            report(tr("Error: Unable to get available wakeup mode of sensor %1").arg(identity));
            continue;
        }
        if (ControllerText::reply(reply) == Yes && combo)
            combo->addItem(mode.value(), identity + QLatin1Char(' ') + mode.key());
    }
}

QString InertialSettingsDlg::get_wakeup_modeID_of_sensor(QString identity)
{
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "inertial sensor_wakeup_mode %s", ControllerText::latin(identity).constData()) != 0) {
        report(tr("Error: Unable to get wakeup mode of sensor %1").arg(identity));
        return QString();
    }
    return ControllerText::reply(reply).trimmed();
}

void InertialSettingsDlg::update_available_wakeup_modes()
{
    wakeup_mode_of_sensor.clear();
    sensors_of_wakeup_mode.clear();
    for (const sensor& s : qAsConst(sensor_list)) {
        const QString identity = sensor_line(s);
        const QString active = get_wakeup_modeID_of_sensor(identity);
        if (!active.isEmpty())
            wakeup_mode_of_sensor.insert(identity, active);
        for (auto mode = all_wakeup_modes.cbegin(); mode != all_wakeup_modes.cend(); ++mode) {
            char reply[IOManager::ReplyCapacity];
            if (io->get_string(reply, "inertial sensor_wakeup_mode_available %s %s",
                               ControllerText::latin(identity).constData(), ControllerText::latin(mode.key()).constData()) != 0) {
                report(tr("Error: Unable to get available wakeup mode of sensor "));
                continue;
            }
            if (ControllerText::reply(reply) != Yes)
                continue;
            QStringList& offering = sensors_of_wakeup_mode[mode.key()];
            if (!offering.contains(identity))
                offering << identity;
        }
    }
}

void InertialSettingsDlg::update_wakeup_combo(int row, QString identity, bool present)
{
    auto* combo = qobject_cast<QComboBox*>(ui->tableWidget->cellWidget(row, ColWakeupMode));
    if (!present) {
        ensure_item(row, ColWakeupMode)->setFlags(Qt::ItemIsSelectable);
        return;
    }
    if (combo) {
        select_wakeup_entry(combo, identity, get_wakeup_modeID_of_sensor(identity));
        return;
    }
    combo = new QComboBox(this);
    combo->setFocusPolicy(Qt::StrongFocus);
    combo->installEventFilter(this);
    connect(combo, SIGNAL(activated(QString)), this, SLOT(wakeup_mode_active(QString)));
    get_available_wakeup_modes_of_sensor(identity, combo);
    select_wakeup_entry(combo, identity, get_wakeup_modeID_of_sensor(identity));
    ui->tableWidget->setCellWidget(row, ColWakeupMode, combo);
}

void InertialSettingsDlg::select_wakeup_entry(QComboBox* combo, const QString& identity, const QString& mode)
{
    // An unanswered query leaves the last known mode on show.
    if (mode.isEmpty())
        return;
    combo->setCurrentIndex(combo->findData(identity + QLatin1Char(' ') + mode, WakeupModeRole));
    combo->setProperty(ModeProperty, mode);
}

void InertialSettingsDlg::set_all_sensorWakeupModes_ComboBoxes()
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QString identity = sensor_identity_of_row(row);
        if (identity.isEmpty())
            continue;
        char reply[IOManager::ReplyCapacity];
        const QString present = checked_text(
            io->get_string(reply, "inertial sensor_present %s", ControllerText::latin(identity).constData()), reply,
            QString(), tr("Error: Unable to get informations of sensor"));
        update_wakeup_combo(row, identity, present == Yes);
    }
}

void InertialSettingsDlg::set_comboBox_available_modes()
{
    ui->comboBox_mode->clear();
    update_available_wakeup_modes();
    if (wakeup_mode_of_sensor.isEmpty())
        return;
    for (const QString& mode : {WakeOnUsb, WakeOnTap, WakeByRadio})
        if (sensors_of_wakeup_mode.contains(mode))
            ui->comboBox_mode->addItem(all_wakeup_modes.value(mode, mode), mode);
    if (sensors_of_wakeup_mode.contains(WakeOnTap) && sensors_of_wakeup_mode.contains(WakeByRadio))
        ui->comboBox_mode->addItem(tr("%1 and %2").arg(all_wakeup_modes.value(WakeOnTap),
                                                       all_wakeup_modes.value(WakeByRadio)),
                                   TapAndRadio);
    select_page_mode();
}

void InertialSettingsDlg::select_page_mode()
{
    QComboBox* combo = ui->comboBox_mode;
    for (int i = combo->count() - 1; i >= 0; --i)
        if (combo->itemData(i, Qt::UserRole).toString().isEmpty())
            combo->removeItem(i);

    const QList<QString> modes = wakeup_mode_of_sensor.values();
    const QSet<QString> active(modes.cbegin(), modes.cend());
    int index = -1;
    if (active.size() == 1)
        index = combo->findData(*active.cbegin(), Qt::UserRole);
    else if (active == QSet<QString>{WakeOnTap, WakeByRadio})
        index = combo->findData(TapAndRadio, Qt::UserRole);
    // Without any mode to offer there is nothing to call mixed either.
    if (index < 0 && !active.isEmpty() && combo->count() > 0) {
        // No single entry describes the sensors; the entry carries no mode,
        // so choosing it changes nothing.
        combo->insertItem(0, tr("(mixed)"), QString());
        index = 0;
    }
    combo->setCurrentIndex(index);
}

void InertialSettingsDlg::wakeup_mode_active(const QString& text)
{
    auto* combo = qobject_cast<QComboBox*>(sender());
    if (text.isEmpty() || !combo)
        return;
    const QString data = combo->itemData(combo->findText(text), WakeupModeRole).toString();
    // The mode id is the last word; the words before it name the sensor.
    const int blank = data.lastIndexOf(QLatin1Char(' '));
    if (blank <= 0)
        return;
    const QString identity = data.left(blank);
    const QString mode = data.mid(blank + 1);

    // Pending events run while the cursor changes; a refresh among them may
    // replace this combo.
    const QPointer<QComboBox> chosen(combo);
    wait_cursor_active(true);
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "inertial sensor_present %s", ControllerText::latin(identity).constData()) != 0
        || ControllerText::reply(reply) != Yes) {
        wait_cursor_active(false);
        report(tr("Error: Unable to reach sensor"));
        if (chosen)
            select_wakeup_entry(chosen, identity, chosen->property(ModeProperty).toString());
        return;
    }
    const int result = set_sensor_wakeup_mode(identity, mode);
    if (result == -1) {
        const QString actual = get_wakeup_modeID_of_sensor(identity);
        if (chosen)
            select_wakeup_entry(chosen, identity, actual);
    } else if (result == 0) {
        set_all_sensorWakeupModes_ComboBoxes();
        set_comboBox_available_modes();
    }
    wait_cursor_active(false);
}

void InertialSettingsDlg::on_comboBox_mode_activated(const QString& text)
{
    if (text.isEmpty() || text == None)
        return;
    const QString data = ui->comboBox_mode->currentData(Qt::UserRole).toString();
    if (data.isEmpty())
        return;

    wait_cursor_active(true);
    bool all_set = true;
    for (const QString& mode : data.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        for (const QString& identity : sensors_of_wakeup_mode.value(mode)) {
            const QByteArray line = ControllerText::latin(identity);
            char reply[IOManager::ReplyCapacity];
            if (io->get_string(reply, "inertial sensor_present %s", line.constData()) != 0
                || ControllerText::reply(reply) != Yes) {
                report(tr("Error: Unable to reach sensor ") + identity);
                all_set = false;
                continue;
            }
            if (set_sensor_wakeup_mode(identity, mode) == 0)
                continue;
            all_set = false;
            // Keep the page's picture of this sensor true to the controller.
            if (io->get_string(reply, "inertial sensor_wakeup_mode %s", line.constData()) != 0)
                report(tr("Error: Unable to get wakeupmode of sensor %1").arg(identity));
            else
                wakeup_mode_of_sensor.insert(identity, ControllerText::reply(reply).trimmed());
        }
    }
    set_all_sensorWakeupModes_ComboBoxes();
    if (wakeup_mode_of_sensor.size() > 1)
        set_comboBox_available_modes();
    else if (!all_set)
        select_page_mode();
    wait_cursor_active(false);
}

int InertialSettingsDlg::set_sensor_wakeup_mode(const QString& identity, QString mode)
{
    const QByteArray line = ControllerText::latin(identity);
    io->set_timeout(false, SlowAnswerTimeoutMs, true);
    if (io->set_value("inertial sensor_wakeup_mode %s %s", line.constData(), ControllerText::latin(mode).constData()) != 0) {
        report(tr("Error: Unable to set wakeup mode of sensor"));
        return -1;
    }
    if (mode == WakeOnUsb || mode == WakeOnTap) {
        // Sensors woken by cable or touch fall asleep again on their own.
        if (io->set_value("inertial sensor_sleep_timeout %s %d", line.constData(), SleepTimeoutOfWakeOnTouch) != 0) {
            report(tr("Error: Unable to set sleep timeout of sensor"));
            return -2;
        }
    }
    return 0;
}

// --- frequency ---------------------------------------------------------------

void InertialSettingsDlg::update_wakeup_and_frequency()
{
    QString range = QStringLiteral("1.0 1000.0");
    if (VersionGate::available(backend_versions, 1, 12)) {
        char reply[IOManager::ReplyCapacity];
        range = checked_text(io->get_string(reply, "inertial limit frequency"), reply, range,
                             tr("Error: Unable to get minimum maximum range of the inertial frequency"));
    }
    double minimum = 1.0;
    double maximum = 1000.0;
    const QStringList fields = range.simplified().split(QLatin1Char(' '));
    if (fields.size() >= 2) {
        bool min_ok = false;
        bool max_ok = false;
        const double low = fields.at(0).toDouble(&min_ok);
        const double high = fields.at(1).toDouble(&max_ok);
        if (min_ok && max_ok && std::isfinite(low) && std::isfinite(high) && low <= high) {
            minimum = low;
            maximum = high;
        }
    }

    double value = ui->doubleSpinBox_frequency->value();
    if (io->get_double(&value, "inertial frequency") != 0 || !std::isfinite(value)) {
        report(tr("Error: Unable to get the inertial frequency"));
        value = ui->doubleSpinBox_frequency->value();
    }
    frequency_react = false;
    set_frequency_range(minimum, maximum);
    ui->doubleSpinBox_frequency->setValue(value);
    frequency_react = true;

    set_comboBox_available_modes();
}

void InertialSettingsDlg::set_frequency_limit()
{
    double limits[2] = {0.0, 0.0};
    if (io->get_doubles(limits, 2, "inertial limit frequency") != 0 || !std::isfinite(limits[0])
        || !std::isfinite(limits[1]) || limits[0] > limits[1]) {
        report(tr("Error: Unable to get hybrid frequency"));
        return;
    }
    frequency_react = false;
    set_frequency_range(limits[0], limits[1]);
    frequency_react = true;
}

void InertialSettingsDlg::set_frequency_range(double minimum, double maximum)
{
    frequency_minimum = minimum;
    frequency_maximum = maximum;
    ui->doubleSpinBox_frequency->setRange(minimum, maximum);
}

void InertialSettingsDlg::on_doubleSpinBox_frequency_valueChanged(double value)
{
    if (!frequency_react || value < frequency_minimum || value > frequency_maximum)
        return;
    if (io->set_value("inertial frequency %f", value) == 0)
        return;
    report(tr("Error: Unable to set frequency of inertial system"));
    // Show what the controller kept, not what it refused.
    double current = 0.0;
    if (io->get_double(&current, "inertial frequency") != 0 || !std::isfinite(current)) {
        report(tr("Error: Unable to get the inertial frequency"));
        return;
    }
    frequency_react = false;
    ui->doubleSpinBox_frequency->setValue(current);
    frequency_react = true;
}

void InertialSettingsDlg::update_frequency(int row, QString identity, bool present)
{
    auto* item = new QTableWidgetItem;
    if (present && VersionGate::available(backend_versions, 1, 21)) {
        double frequency = 0.0;
        if (io->get_double(&frequency, "inertial sensor_output_frequency %s", ControllerText::latin(identity).constData()) != 0)
            report(tr("Error: Unable to get frequency of sensor %1").arg(row + 1));
        else if (frequency > 10.0 && std::isfinite(frequency))
            item->setText(tr("%1 Hz").arg(frequency, 0, 'f', 0));
    }
    item->setTextAlignment(Qt::AlignCenter);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    ui->tableWidget->setItem(row, ColFrequency, item);
}

// --- radio channels ----------------------------------------------------------

int InertialSettingsDlg::getSensorChannel(const QString& sensor)
{
    int channel = -1;
    if (io->get_int(&channel, "inertial sensor_radio_channel %s", ControllerText::latin(sensor).constData()) != 0) {
        report(tr("Error: Unable to get radio channel of sensor"));
        return -1;
    }
    return channel;
}

void InertialSettingsDlg::getChannelsOfDongles(QStringList& out) const
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const auto* combo = qobject_cast<const ChannelComboBox*>(ui->tableWidget->cellWidget(row, ColChannel));
        if (combo && combo->channel() > 0)
            out << QString::number(combo->channel());
    }
}

void InertialSettingsDlg::get_channels(QStringList& out, const QString& sensor) const
{
    // A sensor can only be handed to a channel some transceiver listens on.
    Q_UNUSED(sensor)
    QStringList channels;
    getChannelsOfDongles(channels);
    channels.removeDuplicates();
    out << channels;
}

void InertialSettingsDlg::transceiver_channel_chosen(const QString& transceiver, int channel)
{
    if (io->is_blocked())
        return;
    change_channel_of_dongle(transceiver, channel);
}

void InertialSettingsDlg::change_channel_of_dongle(QString transceiver, int channel)
{
    wait_cursor_active(true);
    // Sensors first: once the transceiver has moved, those still on the old
    // channel are out of its reach.
    QStringList unreachable;
    for (const QString& sensor : get_sensorList_of_dongle(transceiver))
        if (!move_sensor(sensor, channel))
            unreachable << sensor;

    while (!unreachable.isEmpty()) {
        if (!ask_retry(unreachable_text(unreachable)))
            break;
        QStringList still;
        for (const QString& sensor : qAsConst(unreachable))
            if (!move_sensor(sensor, channel))
                still << sensor;
        unreachable = still;
    }

    const QByteArray line = ControllerText::latin(transceiver);
    io->set_timeout(false, SlowAnswerTimeoutMs, true);
    if (io->set_value("inertial transceiver_radio_channel %s %d", line.constData(), channel) != 0)
        report(tr("Error: Unable to set radio channel of dongle %1").arg(transceiver));
    int now = 0;
    if (io->get_int(&now, "inertial transceiver_radio_channel %s", line.constData()) != 0)
        report(tr("Error: Unable to get radio channel of dongle %1").arg(transceiver));

    update_scan_status();
    update_table();
    wait_cursor_active(false);
}

bool InertialSettingsDlg::move_sensor(const QString& sensor, int channel)
{
    const QByteArray line = ControllerText::latin(sensor);
    char reply[IOManager::ReplyCapacity];
    // A sensor that wakes on touch and sleeps now cannot hear the order.
    if (io->get_string(reply, "inertial sensor_wakeup_mode %s", line.constData()) == 0
        && ControllerText::reply(reply).trimmed() == WakeOnTap
        && io->get_string(reply, "inertial sensor_present %s", line.constData()) == 0
        && ControllerText::reply(reply) == No)
        return false;

    io->set_timeout(false, SlowAnswerTimeoutMs, true);
    if (io->set_value("inertial sensor_radio_channel %s %d", line.constData(), channel) != 0)
        report(tr("Error: Unable to set radio channel of sensor %1").arg(sensor));
    // The sensor's own word counts, not the controller's acceptance.
    int now = -1;
    if (io->get_int(&now, "inertial sensor_radio_channel %s", line.constData()) != 0) {
        report(tr("Error: Unable to get radio channel of sensor %1").arg(sensor));
        return false;
    }
    return now == channel;
}

QString InertialSettingsDlg::unreachable_text(const QStringList& sensors)
{
    QString text = tr("There are several sensors not available:\n");
    for (const QString& sensor : sensors) {
        QStringList parts{tr("Sensor: ") + sensor};
        char reply[IOManager::ReplyCapacity];
        if (io->get_string(reply, "inertial body_of_sensor %s", ControllerText::latin(sensor).constData()) == 0) {
            const QString body = ControllerText::reply(reply);
            if (body != None && checkBodyTypeIdExists(body)
                && io->get_string(reply, "body desc %s", ControllerText::latin(body).constData()) == 0)
                parts << tr("of body: ") + ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
        }
        text += QLatin1Char('\n') + parts.join(QStringLiteral(", "));
    }
    return text + QStringLiteral("\n\n")
           + tr("Press Retry if you want to try again to change the channel of the sensors.");
}

bool InertialSettingsDlg::ask_retry(const QString& text)
{
    QMessageBox box(QMessageBox::Warning, tr("Changing Sensor Channel failed"), text, QMessageBox::Retry, this);
    // Cancel is named the default although the box does not carry it; the
    // box's only way out besides Retry is Escape or its close button, which
    // eventFilter() turns into Cancel.
    box.setDefaultButton(QMessageBox::Cancel);
    box.installEventFilter(this);
    retry_box = &box;
    wait_cursor_active(false);
    const int answer = box.exec();
    retry_box = nullptr;
    wait_cursor_active(true);
    return answer == QMessageBox::Retry;
}

void InertialSettingsDlg::set_progressBar_scanAvailableChannels()
{
    ui->progressBar->setFormat(tr("Scanning available channels %p%"));
    ui->progressBar->setValue(0);
    ui->progressBar->setEnabled(true);
    wait_cursor_active(true);
}

void InertialSettingsDlg::on_pushButton_scanAvailableChannels_clicked()
{
    if (transceiver_identities.isEmpty())
        return;
    set_progressBar_scanAvailableChannels();
    marked_channels.clear();
    io->set_timeout(false, SlowAnswerTimeoutMs, true);
    char reply[IOManager::ReplyCapacity];
    const int result = io->send_command(reply, "norvane inertial scan_transceiver_radio_channels");
    if (result != 0 || ControllerText::reply(reply) != CommandDone) {
        if (result != 0)
            report(tr("Error: Unable to execute scan transceiver channel"));
        // Nothing was measured: the bar must not claim a scan under way.
        ui->progressBar->setValue(0);
        ui->progressBar->setEnabled(false);
        ui->progressBar->setFormat(QString());
        wait_cursor_active(false);
        return;
    }
    scanNeeded = false;
    update_scan_status();
    update_table();
    wait_cursor_active(false);
}

void InertialSettingsDlg::update_scan_status()
{
    QList<QList<int>> channels;
    int total = 0;
    bool counted = true;
    for (int i = 0; i < transceiver_identities.size(); ++i) {
        const QString& transceiver = transceiver_identities.at(i);
        if (!known_available_channels.contains(transceiver)) {
            const QList<int> read = available_channels_of(
                i + 1, transceiver, tr("Error: Unable to get number of available dongle channels"));
            counted = counted && known_available_channels.contains(transceiver);
            channels << read;
        } else {
            channels << known_available_channels.value(transceiver);
        }
        total += channels.last().size();
    }
    ui->progressBar->setMaximum(qMax(1, total));

    int done = 0;
    for (int i = 0; i < transceiver_identities.size(); ++i) {
        measure_activity(transceiver_identities.at(i), channels.at(i));
        done += channels.at(i).size();
        if (!scanNeeded)
            ui->progressBar->setValue(done);
    }
    // A transceiver whose channels could not be counted shows stale marks.
    if (!counted && !rebuilding)
        update_table();
}

void InertialSettingsDlg::scan_transciever_radio_channel_activity(QString transceiver)
{
    const int index = transceiver_identities.indexOf(transceiver);
    const QList<int> channels = available_channels_of(
        index + 1, transceiver, tr("Error: Unable to get number of available dongle channels"));
    if (known_available_channels.contains(transceiver))
        measure_activity(transceiver, channels);
}

void InertialSettingsDlg::measure_activity(const QString& transceiver, const QList<int>& channels)
{
    const QByteArray line = ControllerText::latin(transceiver);
    QList<int> busy;
    bool reported = false;
    for (int channel : channels) {
        double activity = -1.0;
        if (io->get_double(&activity, "inertial transceiver_radio_channel_activity %s %d", line.constData(), channel) != 0) {
            activity = -1.0;
            // Once per transceiver: an unplugged one fails for every channel.
            if (!reported)
                report(tr("Could not get activity of dongle: ") + transceiver);
            reported = true;
        }
        // Fully occupied, or not measured at all: do not suggest it as free.
        if (activity == 1.0 || activity == -1.0)
            busy << channel;
    }
    marked_channels.insert(transceiver, busy);
}

// --- warm-up and deletion ----------------------------------------------------

int InertialSettingsDlg::start_warmup(bool on)
{
    const int result = io->set_value(on ? "inertial warmup yes" : "inertial warmup no");
    if (result != 0)
        report(on ? tr("Could not start warmup of sensors") : tr("Could not stop warmup of sensors"));
    return result;
}

void InertialSettingsDlg::on_pushButton_warmup_clicked()
{
    const bool running = sensor_data_timer->isActive();
    io->set_timeout(false, SlowAnswerTimeoutMs, true);
    if (start_warmup(!running) != 0)
        return;
    if (running) {
        end_warmup_display();
        return;
    }
    not_present_timer->stop();
    set_temperature_and_battery_of_all_sensor();
    sensor_data_timer->start();
    ui->pushButton_warmup->setText(tr("Warmup stop"));
    set_warmup_lock(true);
}

void InertialSettingsDlg::delete_sensor(int row)
{
    const QTableWidgetItem* device = ui->tableWidget->item(row, ColDeviceId);
    const QStringList fields = device ? device->data(SensorIdentityRole).toStringList() : QStringList();
    if (fields.size() < 3)
        return;
    const QTableWidgetItem* name = ui->tableWidget->item(row, ColName);
    const QString body = name ? name->data(BodyIdRole).toString() : QString();
    const QString sensor = fields.mid(0, 3).join(QLatin1Char(' '));

    if (QMessageBox::warning(this, tr("Warning"), tr("Delete sensor %1?").arg(sensor),
                             QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        != QMessageBox::Yes)
        return;

    // Detach the body first, so that no body is left pointing at a sensor
    // the controller no longer knows.
    if (!body.isEmpty() && body != None) {
        int bodies = 0;
        const bool counted = io->get_int(&bodies, "standard number_of_bodies") == 0;
        if (!counted)
            report(tr("Error: Unable to get number of bodies"));
        if (io->set_value("body inertial_sensor %s none", ControllerText::latin(body).constData()) != 0)
            report(tr("Could not set body of sensor: ") + body);
        // The count is written back whether the body lies within it or not;
        // an unread count is never written, it would drop every body.
        if (counted && io->set_value("standard number_of_bodies %d", qMax(bodies, 0)) != 0)
            report(tr("Could not set standard number of bodies ") + QString::number(bodies));
    }

    char reply[IOManager::ReplyCapacity];
    if (io->send_command(reply, "norvane inertial delete_sensor %s %s %s", ControllerText::latin(fields.at(0)).constData(),
                         ControllerText::latin(fields.at(1)).constData(), ControllerText::latin(fields.at(2)).constData())
            == 0
        && ControllerText::reply(reply) == CommandDone) {
        update_table();
        set_comboBox_available_modes();
        return;
    }
    report(tr("Could not delete sensor ") + sensor);
}

void InertialSettingsDlg::deleteAssignmentIfSensorIsAlreadyAssigned(const char* identity)
{
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "inertial body_of_sensor %s", identity) != 0) {
        report(tr("Error: Unable to get assignment of sensor"));
        return;
    }
    const QString body = ControllerText::reply(reply);
    if (body == None)
        return;
    if (io->set_value("body inertial_sensor %s none", ControllerText::latin(body).constData()) != 0)
        report(tr("Error: Unable to delete assignment of sensor"));
}
