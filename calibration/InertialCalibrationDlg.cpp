#include "InertialCalibrationDlg.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QTableWidgetItem>

#include <cmath>

#include "InertialCalibrationHelpDlg.h"
#include "InertialCalibrationResultDlg.h"
#include "module/ControllerChecks.h"
#include "module/ControllerText.h"
#include "module/HybridBodyCheck.h"
#include "module/IOManager.h"
#include "module/ListLimits.h"
#include "module/SensorIdentity.h"
#include "module/VersionGate.h"
#include "statusbar/TemperatureBar.h"
#include "ui_InertialCalibrationDialog.h"

namespace {

enum Column { DeviceId, Vendor, Model, Name, Residual, Calibrate, Accept };

constexpr int RowHeight = 20;
constexpr int CheckColumnWidth = 80;
constexpr int MeasureIntervalMs = 200;
constexpr int WarmupIntervalMs = 1000;
// Below this mean warm fraction a gyroscope residual is not to be trusted.
constexpr double WarmEnough = 0.95;

using ControllerWords::None;
using ControllerWords::Yes;
using ControllerWords::No;
using ControllerWords::Err;
using ControllerWords::CommandDone;

const Qt::ItemFlags PresentFlags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
const Qt::ItemFlags AbsentFlags = Qt::ItemIsSelectable;
const Qt::ItemFlags Checkable = Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;

QTableWidgetItem* text_item(const QString& text, Qt::ItemFlags flags)
{
    auto* item = new QTableWidgetItem(text);
    item->setFlags(flags);
    return item;
}

QTableWidgetItem* check_item(bool checked, Qt::ItemFlags flags)
{
    QTableWidgetItem* item = text_item(QString(), flags);
    item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    return item;
}

} // namespace

InertialCalibrationDlg::InertialCalibrationDlg(IOManager* io, QWidget* parent, BackendVersions* versions)
    : QDialog(parent),
      ui(new Ui_InertialCalibrationDialog),
      io(io),
      parent_widget(parent),
      versions(versions),
      config_locked(false),
      inertial_available(false),
      hybrid_available(false),
      lock_icon(QStringLiteral(":/lock.png")),
      sensor_enabled_icon(QStringLiteral(":/inertial_en")),
      sensor_disabled_icon(QStringLiteral(":/inertial_dis")),
      measure_timer(this),
      warmup_timer(this),
      calibrating(false),
      max_progress(0.0),
      selected_count(0),
      calibrate_all_guard(true),
      accept_all_guard(true),
      has_calibratable_body(false)
{
    ui->setupUi(this);
    ui->label_error->hide();
    setup_table();
    measure_timer.setInterval(MeasureIntervalMs);
    connect(&measure_timer, &QTimer::timeout, this, &InertialCalibrationDlg::do_measure);
    warmup_timer.setInterval(WarmupIntervalMs);
    connect(&warmup_timer, &QTimer::timeout, this, &InertialCalibrationDlg::warmup_update);
}

InertialCalibrationDlg::~InertialCalibrationDlg()
{
    delete ui;
}

void InertialCalibrationDlg::about_to_exit()
{
    measure_timer.stop();
    warmup_timer.stop();
}

int InertialCalibrationDlg::update_and_exec()
{
    // Already open (the menu and the settings dialog can both ask): once.
    if (isVisible()) {
        raise();
        activateWindow();
        return result();
    }
    refresh();
    const int result = exec();
    measure_timer.stop();
    warmup_timer.stop();
    return result;
}

void InertialCalibrationDlg::refresh()
{
    // A run that the dialog was closed during goes on in the controller
    // unwatched; the dialog opens idle.
    measure_timer.stop();
    selected_count = 0;
    ui->pushButton_cancel->setEnabled(false);
    ui->pushButton_exit->setEnabled(true);
    ui->tableWidget->clearContents();
    ui->tableWidget->setRowCount(0);
    ui->progressBar->setValue(0);
    ui->progressBar_warmup->setValue(0);
    ui->progressBar_warmup->hide();
    ui->label_error->clear();
    ui->label_error->hide();
    has_calibratable_body = false;
    inertial_available = false;
    hybrid_available = false;

    config_locked = is_config_locked();
    if (!VersionGate::available(versions, 1, 12))
        return enableDialog(false, tr("This controller does not support hybrid sensors - please update your controller"));
    inertial_available = is_inertial_available();
    if (!inertial_available)
        return enableDialog(false, tr("Hybrid tracking is not available"));
    hybrid_available = is_hybrid_body_available();
    if (!hybrid_available)
        return enableDialog(false, tr("No hybrid body is available"));
    char reply[IOManager::ReplyCapacity] = "";
    if (io->get_string(reply, "cal available inertial_gyro") != 0)
        report(tr("Could not get calibration information"));
    if (ControllerText::reply(reply) == No)
        return enableDialog(false, tr("No valid room calibration"));

    update_table();
    enableDialog(has_calibratable_body,
                 has_calibratable_body ? QString() : tr("No active body with hybrid calibration found"));
    if (is_warmup_active()) {
        ui->progressBar_warmup->show();
        warmup_update();
        warmup_timer.start();
    }
    // Only a warning: a cold sensor still calibrates, with a larger residual.
    if (has_calibratable_body && get_warmup_status() < WarmEnough) {
        ui->label_error->setText(ControllerText::red(
            tr("Not all sensors have been warmed up, to get a valid calibration please start the warmup!")));
        ui->label_error->show();
    }
}

bool InertialCalibrationDlg::is_config_locked()
{
    return ControllerChecks::configLocked(io, versions);
}

bool InertialCalibrationDlg::is_inertial_available()
{
    return ControllerChecks::inertialAvailable(io, versions);
}

bool InertialCalibrationDlg::is_warmup_active()
{
    return ControllerChecks::warmupActive(io);
}

bool InertialCalibrationDlg::is_hybrid_body_available()
{
    return HybridBodyCheck::available(io, this);
}

double InertialCalibrationDlg::get_warmup_status()
{
    double status = 0.0;
    if (io->get_double(&status, "inertial warmup_status") != 0) {
        report(tr("Could not get warmup status"));
        return 0.0;
    }
    return status;
}

bool InertialCalibrationDlg::isSensorPresent(const QString& identity) const
{
    bool present = false;
    if (io->get_bool(&present, "inertial sensor_present %s", ControllerText::latin(identity).constData()) != 0) {
        report(tr("Error ln751: Unable to get informations of sensor"));
        return false;
    }
    return present;
}

QString InertialCalibrationDlg::get_sensorVendorID_from_row(int row) const
{
    const QTableWidgetItem* device = cell(row, DeviceId);
    return device ? device->data(Qt::UserRole).toString() : QString();
}

QString InertialCalibrationDlg::getBodyDesc(const QString& body_id) const
{
    const QStringList words = body_id.split(QLatin1Char(' '));
    return tr("%1 body %2").arg(words.value(0), words.value(1).remove(QLatin1Char('b')));
}

void InertialCalibrationDlg::setup_table()
{
    QHeaderView* header = ui->tableWidget->horizontalHeader();
    for (int column : {DeviceId, Vendor, Model, Residual})
        header->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(Name, QHeaderView::Stretch);
    for (int column : {Calibrate, Accept}) {
        header->setSectionResizeMode(column, QHeaderView::Fixed);
        header->resizeSection(column, CheckColumnWidth);
    }
    header->setSectionsClickable(false);
    ui->tableWidget->setColumnHidden(Vendor, true);
    QHeaderView* rows = ui->tableWidget->verticalHeader();
    rows->setMinimumSectionSize(qMin(rows->minimumSectionSize(), RowHeight));
    rows->setDefaultSectionSize(RowHeight);
}

void InertialCalibrationDlg::update_table()
{
    // The rows are built, not edited by the user.
    const QSignalBlocker blocker(ui->tableWidget);
    QTableWidget* table = ui->tableWidget;
    table->setRowCount(0);
    has_calibratable_body = false;
    int count = 0;
    if (io->get_int(&count, "standard number_of_bodies") != 0)
        return;
    count = ListLimits::bounded(count);
    for (int body = 1; body <= count; ++body) {
        const QString id = QStringLiteral("standard b%1").arg(body, 2, 10, QLatin1Char('0'));
        const QByteArray body_line = ControllerText::latin(id);
        bool active = false;
        if (io->get_bool(&active, "body active %s", body_line.constData()) != 0)
            report(tr("Could not get information body %1 is active").arg(id));
        if (!active)
            continue;
        char reply[IOManager::ReplyCapacity] = "";
        const bool has_sensor = io->get_string(reply, "body inertial_sensor %s", body_line.constData()) == 0;
        const QString identity = ControllerText::reply(reply);
        if (identity == None)
            continue;
        const SensorIdentity sensor = SensorIdentity::parse(identity);
        if (!has_sensor || !sensor.isValid()) {
            report(tr("Could not get sensor of body: ") + id);
            continue;
        }
        reply[0] = '\0';
        if (io->get_string(reply, "body desc %s", body_line.constData()) != 0) {
            report(tr("Could not get description of body: ") + id);
            continue;
        }
        QString name = ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
        if (name.isEmpty())
            name = getBodyDesc(id);

        const int row = table->rowCount();
        table->insertRow(row);
        const bool present = isSensorPresent(identity);
        const Qt::ItemFlags flags = present ? PresentFlags : AbsentFlags;
        QTableWidgetItem* device = text_item(sensor.deviceId(), flags);
        device->setData(Qt::UserRole, identity);
        device->setIcon(present ? sensor_enabled_icon : sensor_disabled_icon);
        table->setItem(row, DeviceId, device);

        const QByteArray vendor = ControllerText::latin(sensor.vendor());
        const QByteArray model = ControllerText::latin(sensor.model());
        reply[0] = '\0';
        QString text = io->get_string(reply, "inertial sensor_vendor_desc %s", vendor.constData()) == 0
                           ? ControllerText::reply(reply)
                           : sensor.vendor();
        table->setItem(row, Vendor, text_item(ControllerText::withoutDoubleQuotes(text), flags));
        reply[0] = '\0';
        text = io->get_string(reply, "inertial sensor_model_desc %s %s", vendor.constData(), model.constData()) == 0
                   ? ControllerText::reply(reply)
                   : sensor.model();
        table->setItem(row, Model, text_item(ControllerText::withoutDoubleQuotes(text), flags));
        table->setItem(row, Name, text_item(name, flags));
        table->setItem(row, Residual, text_item(QString(), flags));

        reply[0] = '\0';
        if (io->get_string(reply, "inertial sensor_handeye %s", ControllerText::latin(identity).constData()) != 0) {
            report(tr("Could not get hybrid calibration of sensor: ") + identity);
        } else {
            // Only a sensor that knows its place on the body can be calibrated.
            const bool calibratable = present && ControllerText::reply(reply) != None;
            table->setItem(row, Calibrate, check_item(calibratable, calibratable ? Checkable : Qt::NoItemFlags));
            table->setItem(row, Accept, check_item(false, Qt::NoItemFlags));
            has_calibratable_body = has_calibratable_body || calibratable;
        }
        table->setRowHeight(row, RowHeight);
    }
}

void InertialCalibrationDlg::enableDialog(bool enable, const QString& message)
{
    if (config_locked) {
        setWindowIcon(lock_icon);
    } else {
        setWindowIcon(parent_widget ? parent_widget->windowIcon() : QIcon());
        if (enable) {
            ui->label_error->clear();
            ui->label_error->hide();
            ui->pushButton_calibrate->setEnabled(true);
            ui->pushButton_apply->setEnabled(false);
            ui->checkBox_calibrateAll->setEnabled(true);
            ui->checkBox_calibrateAll->setChecked(true);
            ui->tableWidget->setEnabled(true);
            ui->checkBox_acceptAll->setEnabled(true);
            ui->progressBar->setEnabled(false);
            return;
        }
        ui->label_error->setText(ControllerText::red(message));
        ui->label_error->show();
    }
    for (QWidget* control : std::initializer_list<QWidget*>{
             ui->pushButton_calibrate, ui->pushButton_apply, ui->pushButton_cancel, ui->checkBox_acceptAll,
             ui->checkBox_calibrateAll, ui->progressBar, ui->tableWidget})
        control->setEnabled(false);
}

void InertialCalibrationDlg::on_checkBox_calibrateAll_stateChanged(int state)
{
    if (!calibrate_all_guard)
        return;
    {
        const QSignalBlocker blocker(ui->tableWidget);
        for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
            QTableWidgetItem* calibrate = cell(row, Calibrate);
            if (calibrate && calibrate->flags() != Qt::NoItemFlags)
                calibrate->setCheckState(state == Qt::Checked ? Qt::Checked : Qt::Unchecked);
        }
    }
    if (!running())
        set_calibrate_button_enabled_if_possible();
}

void InertialCalibrationDlg::on_checkBox_acceptAll_stateChanged(int state)
{
    if (!accept_all_guard)
        return;
    {
        const QSignalBlocker blocker(ui->tableWidget);
        for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
            QTableWidgetItem* accept = cell(row, Accept);
            if (!accept || accept->flags() == Qt::NoItemFlags)
                continue;
            if (state != Qt::Checked)
                accept->setCheckState(Qt::Unchecked);
            else if (checked(row, Calibrate))
                accept->setCheckState(Qt::Checked);
        }
    }
    if (!running())
        set_apply_button_enabled_if_possible();
}

void InertialCalibrationDlg::on_tableWidget_itemChanged(QTableWidgetItem* item)
{
    // Only the user's own clicks arrive here: the dialog changes cells with
    // the table's signals blocked.
    if (running() || !item)
        return;
    const bool unchecked = item->checkState() == Qt::Unchecked;
    if (item->column() == Accept) {
        if (unchecked) {
            accept_all_guard = false;
            ui->checkBox_acceptAll->setChecked(false);
            accept_all_guard = true;
        }
        set_apply_button_enabled_if_possible();
    } else if (item->column() == Calibrate) {
        if (unchecked) {
            calibrate_all_guard = false;
            ui->checkBox_calibrateAll->setChecked(false);
            calibrate_all_guard = true;
        }
        set_calibrate_button_enabled_if_possible();
    }
}

void InertialCalibrationDlg::set_calibrate_button_enabled_if_possible()
{
    bool any = false;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row)
        any = any || checked(row, Calibrate);
    ui->pushButton_calibrate->setEnabled(any);
}

void InertialCalibrationDlg::set_apply_button_enabled_if_possible()
{
    bool any = false;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row)
        any = any || (checked(row, Accept) && cell(row, Accept)->flags() != Qt::NoItemFlags);
    ui->pushButton_apply->setEnabled(any);
}

void InertialCalibrationDlg::on_pushButton_calibrate_clicked()
{
    ui->progressBar->setValue(0);
    calibrating = false;
    selected_count = 0;
    max_progress = 0.0;
    {
        const QSignalBlocker blocker(ui->tableWidget);
        for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
            const bool chosen = checked(row, Calibrate);
            if (!mark(row, chosen))
                return;
            cell(row, DeviceId)->setBackground(chosen ? QBrush(Qt::yellow) : QBrush(Qt::transparent));
            if (!chosen)
                continue;
            cell(row, Residual)->setText(QString());
            cell(row, Accept)->setFlags(Qt::NoItemFlags);
            calibrating = true;
            ++selected_count;
        }
    }
    if (!calibrating)
        return;
    char reply[IOManager::ReplyCapacity] = "";
    if (io->send_command(reply, "norvane cal inertial_gyro start") != 0) {
        report(tr("Could not start calibration of sensor"));
        return;
    }
    if (ControllerText::reply(reply) != CommandDone)
        return;
    ui->pushButton_cancel->setEnabled(true);
    ui->pushButton_apply->setEnabled(false);
    ui->pushButton_calibrate->setEnabled(false);
    ui->pushButton_exit->setEnabled(false);
    ui->progressBar->setEnabled(true);
    measure_timer.start();
}

void InertialCalibrationDlg::do_measure()
{
    if (selected_count == 0)
        return;
    char reply[IOManager::ReplyCapacity] = "";
    const QString status = io->get_string(reply, "status active") == 0 ? ControllerText::reply(reply) : None;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        if (!checked(row, Calibrate))
            continue;
        const QString identity = get_sensorVendorID_from_row(row);
        const QByteArray line = ControllerText::latin(identity);
        reply[0] = '\0';
        if (io->get_string(reply, "inertial sensor_gyro_calibrate %s", line.constData()) != 0
            || ControllerText::reply(reply) != Yes)
            continue;
        double progress = 0.0;
        if (io->get_double(&progress, "inertial sensor_gyro_progress %s", line.constData()) != 0) {
            report(tr("Could not get progress of calibration of sensor: ") + identity);
            continue;
        }
        // A residual is read once: after it the Accept cell is offered.
        const bool offered = (cell(row, Accept)->flags() & Checkable) == Checkable;
        if (!(progress >= 1.0) || offered || !cell(row, Residual)->text().isEmpty())
            continue;
        double residual = 0.0;
        if (io->get_double(&residual, "inertial new_sensor_gyro_residual %s", line.constData()) == 0)
            set_residual(row, residual);
        else
            report(tr("Could not set get new residual of sensor: ") + identity);
    }
    double progress = 0.0;
    if (io->get_double(&progress, "status progress") != 0) {
        report(tr("Could not get progress of calibration"));
    } else if (progress > max_progress) {
        // The sensors finish one by one; the bar never runs backwards.
        max_progress = progress;
        ui->progressBar->setValue(ControllerText::percent(progress));
    }
    if (status == None)
        end_run(true);
    else if (status == Err)
        end_run(false);
}

void InertialCalibrationDlg::end_run(bool finished)
{
    measure_timer.stop();
    resetBackgroundTableWidgets();
    if (finished)
        setAcceptDefaultStatus();
    ui->progressBar->setValue(finished ? 100 : 0);
    ui->pushButton_cancel->setEnabled(false);
    ui->pushButton_calibrate->setEnabled(true);
    ui->pushButton_exit->setEnabled(true);
    selected_count = 0;
    set_apply_button_enabled_if_possible();
}

void InertialCalibrationDlg::set_residual(int row, double residual)
{
    const QSignalBlocker blocker(ui->tableWidget);
    cell(row, DeviceId)->setBackground(QBrush(Qt::green));
    ui->tableWidget->setItem(row, Residual, text_item(QString::number(residual, 'f', 4), Qt::ItemIsEnabled));
    QTableWidgetItem* accept = cell(row, Accept);
    accept->setFlags(Checkable);
    if (ui->checkBox_acceptAll->isChecked())
        accept->setCheckState(Qt::Checked);
}

void InertialCalibrationDlg::setAcceptDefaultStatus()
{
    // Every sensor that produced a residual is offered for keeping; the
    // user judges the number.
    const QSignalBlocker blocker(ui->tableWidget);
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        bool read = false;
        const double residual = cell(row, Residual)->text().toDouble(&read);
        if (read && residual > 0.0 && cell(row, Accept))
            cell(row, Accept)->setCheckState(Qt::Checked);
    }
}

void InertialCalibrationDlg::resetBackgroundTableWidgets()
{
    const QSignalBlocker blocker(ui->tableWidget);
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row)
        cell(row, DeviceId)->setBackground(QBrush(Qt::transparent));
}

void InertialCalibrationDlg::on_pushButton_cancel_clicked()
{
    char reply[IOManager::ReplyCapacity] = "";
    if (io->send_command(reply, "norvane cal inertial_gyro stop") != 0) {
        report(tr("Could not stop calibration"));
        return;
    }
    if (ControllerText::reply(reply) != CommandDone)
        return;
    measure_timer.stop();
    ui->pushButton_cancel->setEnabled(false);
    ui->pushButton_calibrate->setEnabled(true);
    ui->pushButton_exit->setEnabled(true);
    ui->progressBar->setValue(0);
    ui->progressBar->setEnabled(false);
    resetBackgroundTableWidgets();
    set_apply_button_enabled_if_possible();
}

void InertialCalibrationDlg::on_pushButton_apply_clicked()
{
    setCursor(Qt::WaitCursor);
    QList<CalibrationResult> accepted;
    {
        const QSignalBlocker blocker(ui->tableWidget);
        for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
            QTableWidgetItem* accept = cell(row, Accept);
            if (!accept || accept->flags() == Qt::NoItemFlags || accept->checkState() != Qt::Checked)
                continue;
            const QString identity = get_sensorVendorID_from_row(row);
            char reply[IOManager::ReplyCapacity] = "";
            if (io->send_command(reply, "norvane inertial accept_new_sensor_gyro %s",
                                 ControllerText::latin(identity).constData())
                != 0)
                report(tr("Could not accept new calirabtion of sensor: ") + identity);
            else if (ControllerText::reply(reply) == CommandDone)
                accepted << CalibrationResult{cell(row, DeviceId)->text(), cell(row, Vendor)->text(),
                                              cell(row, Model)->text(), cell(row, Name)->text()};
            // Unmarked either way; a sensor left marked would join the next run.
            if (!mark(row, false)) {
                setCursor(Qt::ArrowCursor);
                return;
            }
            accept->setFlags(Qt::NoItemFlags);
            accept->setCheckState(Qt::Unchecked);
        }
    }
    set_apply_button_enabled_if_possible();
    if (!accepted.isEmpty()) {
        InertialCalibrationResultDlg result(this);
        for (const CalibrationResult& r : qAsConst(accepted))
            result.appendSensor(r.device_id, r.vendor, r.model, r.name);
        result.exec();
    }
    setCursor(Qt::ArrowCursor);
}

void InertialCalibrationDlg::on_pushButton_help_clicked()
{
    InertialCalibrationHelpDlg help;
    help.exec();
}

void InertialCalibrationDlg::on_pushButton_exit_clicked()
{
    close();
}

void InertialCalibrationDlg::warmup_update()
{
    if (!is_warmup_active() && warmup_timer.isActive()) {
        warmup_timer.stop();
        ui->progressBar_warmup->hide();
        // Warm sensors change what the dialog offers; a running calibration
        // is left alone and the next opening rebuilds.
        if (!running())
            refresh();
        return;
    }
    double status = 0.0;
    if (io->get_double(&status, "inertial warmup_status") != 0) {
        report(tr("Error: Unable to get warmup status"));
        return;
    }
    ui->progressBar_warmup->setValue(std::floor(status * 100.0));
}

void InertialCalibrationDlg::set_all_sensor_to_no_gyro()
{
    if (config_locked || !is_inertial_available())
        return;
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row)
        mark(row, false);
}

bool InertialCalibrationDlg::mark(int row, bool calibrate)
{
    const QString identity = get_sensorVendorID_from_row(row);
    if (io->set_value("inertial sensor_gyro_calibrate %s %s", ControllerText::latin(identity).constData(),
                      calibrate ? "yes" : "no")
        == 0)
        return true;
    report(tr("Could not set calibration of sensor: ") + identity);
    return false;
}

void InertialCalibrationDlg::closeEvent(QCloseEvent* event)
{
    // During a run the controller goes on calibrating without the dialog:
    // nothing is stopped and its sensors stay marked.
    if (!running())
        set_all_sensor_to_no_gyro();
    measure_timer.stop();
    warmup_timer.stop();
    QDialog::closeEvent(event);
}

void InertialCalibrationDlg::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape)
        return QDialog::keyPressEvent(event);
    if (inertial_available && hybrid_available && running() && !ui->pushButton_calibrate->isEnabled())
        on_pushButton_cancel_clicked();
    else
        close();
}

QTableWidgetItem* InertialCalibrationDlg::cell(int row, int column) const
{
    return ui->tableWidget->item(row, column);
}

bool InertialCalibrationDlg::checked(int row, int column) const
{
    const QTableWidgetItem* item = cell(row, column);
    return item && item->checkState() == Qt::Checked;
}

bool InertialCalibrationDlg::running() const
{
    // The Cancel button is the dialog's record of a run going on.
    return ui->pushButton_cancel->isEnabled();
}

void InertialCalibrationDlg::report(const QString& text) const
{
    ControllerText::report(io, text);
}
