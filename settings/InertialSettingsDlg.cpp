#include "InertialSettingsDlg.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QProgressBar>
#include <QScrollBar>
#include <QTableWidgetItem>
#include <QTimer>


#include "BodyAssignmentPage.h"
#include "RadioChannels.h"
#include "SensorTable.h"
#include "SettingsCells.h"
#include "TrackingPulsePage.h"
#include "WakeupModes.h"
#include "addsensor/AddInertialSensorDlg.h"
#include "module/ControllerChecks.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/IneritalMessageReceiver.h"
#include "module/VersionGate.h"
#include "ui_InertialSettingsDlg.h"

using namespace SettingsCells;

namespace {

constexpr int RefreshIntervalMs = 2000;
constexpr int FirstRefreshDelayMs = 250;

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
      message_receiver(nullptr),
      bodies(nullptr),
      pulse(nullptr),
      receiver_registered(false),
      scan_allowed(false),
      name_editing(false),
      retry_box(nullptr),
      sensor_table(nullptr),
      radio_channels(nullptr),
      wakeup_modes(nullptr)
{
    ui->setupUi(this);
    sensor_table = new SensorTable(this, ui, io);
    radio_channels = new RadioChannels(this, ui, io);
    wakeup_modes = new WakeupModes(this, ui, io);
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
    sensor_table->setup_table();

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
    delete wakeup_modes;
    delete radio_channels;
    delete sensor_table;
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
    wakeup_modes->all_wakeup_modes.clear();
    transceiver_present = false;
    scan_allowed = false;
    name_editing = false;
    // A transceiver may have been exchanged since the last opening.
    radio_channels->known_available_channels.clear();

    config_locked = is_config_locked();

    if (!VersionGate::available(backend_versions, 1, 12)) {
        show_error(tr("This controller does not support hybrid sensors - please update your controller"));
        disable_sensor_controls();
        ui->tableWidget->setEnabled(true);
        return run_without_body_pages();
    }

    if (config_locked) {
        setWindowIcon(icon_lock);
        wakeup_modes->get_all_wakeup_modes();
        sensor_table->update_table();
        wakeup_modes->update_wakeup_and_frequency();
        if (!wakeup_modes->limits_read)
            wakeup_modes->set_frequency_limit();
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
        sensor_table->update_table();
        ui->tableWidget->setEnabled(true);
        ui->progressBar->hide();
        disable_body_page();
        enableInertialControls();
        return run_modal();
    }

    ui->pushButton_warmup->setEnabled(false);
    wakeup_modes->get_all_wakeup_modes();
    ui->label_error->clear();
    sensor_table->update_table();
    wakeup_modes->update_wakeup_and_frequency();
    ui->progressBar->show();

    // Sensors on cable need no transceiver: the page stays usable for them.
    // A table rebuilt in full has just read the transceiver count.
    transceiver_present = table_stale ? isTransceiverPresent() : sensor_table->transceiver_count >= 1;
    scan_allowed = transceiver_present;
    ui->pushButton_addSensor->setEnabled(true);
    ui->comboBox_mode->setEnabled(true);
    ui->doubleSpinBox_frequency->setEnabled(true);
    ui->tableWidget->setEnabled(true);
    ui->pushButton_scanAvailableChannels->setEnabled(scan_allowed);
    if (transceiver_present) {
        // The page's refresh above read the same limits already.
        if (!wakeup_modes->limits_read)
            wakeup_modes->set_frequency_limit();
        first_refresh_timer->start();
        button_timer->start();
        if (is_warmup_active()) {
            ui->pushButton_warmup->setText(tr("Warmup stop"));
            set_warmup_lock(true);
            // Warm-up was just confirmed: read the rows without asking again.
            sensor_table->refresh_all_sensor_rows();
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
        sensor_table->update_table();
        stop_all_timers();
        return;
    }
    // Neither overwrite a cell the user is typing into nor compete with the
    // warm-up refresh, which reads the same rows.
    if (cell_editing || sensor_data_timer->isActive())
        return;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QString identity = sensor_table->sensor_identity_of_row(row);
        if (identity.isEmpty())
            continue;
        const bool present = isSensorPresent(identity);
        sensor_table->update_four_columns(row, identity, present);
        sensor_table->update_temperature(row, identity, present);
        sensor_table->update_battery(row, identity, present);
        sensor_table->update_firmware(row, identity, present);
        wakeup_modes->update_frequency(row, identity, present);
        sensor_table->update_sensor_calibration(row, identity, present);
        wakeup_modes->update_wakeup_combo(row, identity, present);
        radio_channels->update_sensor_channel(row, identity, present);
    }
    sensor_table->fit_changed_columns();
}

void InertialSettingsDlg::update_sensors_not_present()
{
    if (io->is_blocked())
        return;
    if (!sensor_table->transceiver_identities.isEmpty() && !is_inertial_available()) {
        not_present_timer->stop();
        return;
    }
    bool all_done = true;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        if (ui->tableWidget->cellWidget(row, ColTemperature))
            continue;
        const QString identity = sensor_table->sensor_identity_of_row(row);
        const QTableWidgetItem* temperature = ui->tableWidget->item(row, ColTemperature);
        if (identity.isEmpty() || !temperature || temperature->text() != not_present_text())
            continue;
        all_done = sensor_table->set_present_status_of_sensor(row, identity) && all_done;
    }
    sensor_table->fit_changed_columns();
    if (all_done)
        not_present_timer->stop();
}

void InertialSettingsDlg::set_temperature_and_battery_of_all_sensor()
{
    if (io->is_blocked())
        return;
    if (is_warmup_active() && is_inertial_available()) {
        sensor_table->refresh_all_sensor_rows();
        return;
    }
    // The controller ended the warm-up on its own: give the page back.
    end_warmup_display();
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
        sensor_table->update_table();
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
        wakeup_modes->set_comboBox_available_modes();

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

// --- radio channels ----------------------------------------------------------

void InertialSettingsDlg::transceiver_channel_chosen(const QString& transceiver, int channel)
{
    if (io->is_blocked())
        return;
    radio_channels->change_channel_of_dongle(transceiver, channel);
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
        sensor_table->update_table();
        wakeup_modes->set_comboBox_available_modes();
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

// --- the "Settings" page's parts do the work ---------------------------------

void InertialSettingsDlg::update_table() { sensor_table->update_table(); }
void InertialSettingsDlg::getChannelsOfDongles(QStringList& out) const { radio_channels->getChannelsOfDongles(out); }
void InertialSettingsDlg::on_pushButton_scanAvailableChannels_clicked() { radio_channels->scan_available_channels(); }
void InertialSettingsDlg::on_comboBox_mode_activated(const QString& text) { wakeup_modes->page_mode_chosen(text); }
void InertialSettingsDlg::wakeup_mode_active(const QString& text)
{
    wakeup_modes->wakeup_mode_chosen(qobject_cast<QComboBox*>(sender()), text);
}
void InertialSettingsDlg::on_doubleSpinBox_frequency_valueChanged(double value) { wakeup_modes->frequency_chosen(value); }
