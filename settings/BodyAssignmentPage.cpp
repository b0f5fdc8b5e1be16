#include "BodyAssignmentPage.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidgetItem>

#include "InertialSettingsDlg.h"
#include "calibration/InertialCalibrationDlg.h"
#include "filter/FilterDialog.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/ListLimits.h"
#include "module/SensorIdentity.h"
#include "ui_InertialSettingsDlg.h"

namespace {

constexpr int RowHeight = 20;
constexpr int DefaultMaxBodies = 40;

using ControllerWords::None;
const QString Standard = QStringLiteral("standard");

QTableWidgetItem* text_item(const QString& text, Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable)
{
    auto* item = new QTableWidgetItem(text);
    item->setFlags(flags);
    return item;
}

QString body_key(int row)
{
    return QStringLiteral("b%1").arg(row + 1, 2, 10, QLatin1Char('0'));
}

} // namespace

BodyAssignmentPage::BodyAssignmentPage(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io,
                                       BackendVersions* versions)
    : dialog(dialog),
      ui(ui),
      io(io),
      versions(versions),
      max_bodies(DefaultMaxBodies),
      selected_row(-1),
      inertial_available(false),
      filling(false),
      icon_used(QStringLiteral(":/inertial_en")),
      icon_state{QIcon(QStringLiteral(":/green.png")), QIcon(QStringLiteral(":/yellow.png")),
                 QIcon(QStringLiteral(":/red.png"))}
{
    setup_tableWidget_bodies();
    setup_tableWidget_sensors();
}

void BodyAssignmentPage::report(const QString& text) const
{
    ControllerText::report(io, text);
}

QByteArray BodyAssignmentPage::body_id(int row)
{
    return QByteArrayLiteral("standard ") + body_key(row).toLatin1();
}

QString BodyAssignmentPage::cell(int row, int column) const
{
    const QTableWidgetItem* item = ui->tableWidget_bodies->item(row, column);
    return item ? item->text() : QString();
}

int BodyAssignmentPage::current_body_row() const
{
    const int row = ui->tableWidget_bodies->currentRow();
    return row < ui->tableWidget_bodies->rowCount() ? row : -1;
}

bool BodyAssignmentPage::read_bool(const char* format, int body, const QString& failure, bool* value) const
{
    *value = false;
    if (io->get_bool(value, format, body_id(body).constData()) == 0)
        return true;
    report(failure);
    *value = false;
    return false;
}

QString BodyAssignmentPage::read_text(const QString& failure, const char* format, int body) const
{
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, format, body_id(body).constData()) == 0)
        return ControllerText::reply(reply);
    if (!failure.isEmpty())
        report(failure);
    return QString();
}

// --- tables ------------------------------------------------------------------

void BodyAssignmentPage::setup_tableWidget_bodies()
{
    QTableWidget* table = ui->tableWidget_bodies;
    table->setColumnCount(BodyColumnCount);
    table->setRowCount(0);
    table->setHorizontalHeaderLabels({tr("ID"), tr("Name"), tr("Model"), tr("Device ID"), tr("Cal."), tr("Filter"),
                                      tr("Vendor-Model-Serial"), tr("Active")});
    table->setColumnHidden(BodySensor, true);
    table->setColumnHidden(BodyActive, true);
    QHeaderView* header = table->horizontalHeader();
    header->setSectionsClickable(false);
    header->setStretchLastSection(false);
    const QHeaderView::ResizeMode modes[] = {QHeaderView::Fixed, QHeaderView::Stretch,
                                             QHeaderView::ResizeToContents, QHeaderView::ResizeToContents,
                                             QHeaderView::Fixed, QHeaderView::ResizeToContents};
    for (int column = 0; column < int(sizeof modes / sizeof *modes); ++column)
        header->setSectionResizeMode(column, modes[column]);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->verticalHeader()->hide();
}

void BodyAssignmentPage::setup_tableWidget_sensors()
{
    QTableWidget* table = ui->tableWidget_sensors;
    table->setColumnCount(SensorColumnCount);
    table->setRowCount(0);
    table->setHorizontalHeaderLabels({tr("Device ID"), tr("Vendor"), tr("Model"), tr("Used"),
                                      tr("Vendor-Model-Serial")});
    table->setColumnHidden(SensorVendor, true);
    table->setColumnHidden(SensorIdentityColumn, true);
    QHeaderView* header = table->horizontalHeader();
    for (int column : {SensorDeviceId, SensorVendor, SensorModel})
        header->setSectionResizeMode(column, QHeaderView::Stretch);
    header->setSectionResizeMode(SensorUsed, QHeaderView::Fixed);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->verticalHeader()->hide();
}

void BodyAssignmentPage::update_map_body_sensor()
{
    body_sensor.clear();
    int count = 0;
    if (io->get_int(&count, "inertial number_of_sensors") != 0)
        return;
    count = ListLimits::bounded(count);
    char reply[IOManager::ReplyCapacity];
    for (int i = 1; i <= count; ++i) {
        if (io->get_string(reply, "inertial sensor d%.2d", i) != 0)
            continue;
        const QString line = ControllerText::reply(reply);
        if (io->get_string(reply, "inertial body_of_sensor %s", ControllerText::latin(line).constData()) != 0)
            continue;
        const QStringList words = ControllerText::reply(reply).simplified().split(QLatin1Char(' '));
        if (words.size() >= 2 && words.at(0) == Standard)
            body_sensor.insert(words.at(1), line);
    }
}

void BodyAssignmentPage::update_tableWidget_bodies()
{
    QTableWidget* table = ui->tableWidget_bodies;
    const QSignalBlocker quiet(table);
    filling = true;
    update_map_body_sensor();
    const int bodies = ui->spinBox_numBodies->value();
    table->clearContents();
    table->setRowCount(bodies);
    for (int row = 0; row < bodies; ++row) {
        table->setItem(row, BodyId, text_item(QString::number(row + 1)));
        const QString name = read_text(QString(), "body desc %s", row);
        table->setItem(row, BodyName, text_item(ControllerText::withoutDoubleQuotes(name),
                                                Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable));
        const SensorIdentity sensor = SensorIdentity::parse(body_sensor.value(body_key(row)));
        table->setItem(row, BodyModel, text_item(sensor.model()));
        table->setItem(row, BodyDeviceId, text_item(sensor.isValid() ? sensor.deviceId() : QString()));
        const int state = getCalibrationStatus("standard", row + 1);
        QTableWidgetItem* cal = text_item(QString());
        cal->setIcon(icon_state[state]);
        cal->setData(Qt::UserRole, state);
        table->setItem(row, BodyCal, cal);
        table->setItem(row, BodyFilter, text_item(getCurrentFilterPreset(row)));
        table->setItem(row, BodySensor, text_item(sensor.isValid() ? sensor.line() : QString()));
        table->setItem(row, BodyActive, text_item(getBodyActive(row)));
        table->setRowHeight(row, RowHeight);
    }
    if (selected_row >= bodies)
        selected_row = bodies - 1;
    if (selected_row >= 0)
        table->setCurrentCell(selected_row, BodyId);
    filling = false;
}

void BodyAssignmentPage::update_tableWidget_sensors()
{
    QTableWidget* table = ui->tableWidget_sensors;
    const int kept = table->currentRow();
    table->setRowCount(0);
    int count = 0;
    if (io->get_int(&count, "inertial number_of_sensors") != 0) {
        report(tr("Error: Unable to get number of inertial sensors"));
        return;
    }
    count = ListLimits::bounded(count);
    char reply[IOManager::ReplyCapacity];
    for (int i = 1; i <= count; ++i) {
        // Rows stay in the controller's order: select names the sensor by it.
        const int row = table->rowCount();
        table->insertRow(row);
        table->setRowHeight(row, RowHeight);
        if (io->get_string(reply, "inertial sensor d%.2d", i) != 0) {
            report(tr("Error: Unable to get serial number of inertial sensor"));
            continue;
        }
        const SensorIdentity sensor = SensorIdentity::parse(ControllerText::reply(reply));
        if (!sensor.isValid())
            continue;
        const QString vendor = io->get_string(reply, "inertial sensor_vendor_desc %s",
                                              ControllerText::latin(sensor.vendor()).constData()) == 0
                                   ? ControllerText::reply(reply) : QString();
        const QString model = io->get_string(reply, "inertial sensor_model_desc %s %s",
                                             ControllerText::latin(sensor.vendor()).constData(),
                                             ControllerText::latin(sensor.model()).constData()) == 0
                                  ? ControllerText::reply(reply) : QString();
        table->setItem(row, SensorDeviceId, text_item(sensor.deviceId()));
        table->setItem(row, SensorVendor, text_item(ControllerText::withoutDoubleQuotes(vendor)));
        table->setItem(row, SensorModel, text_item(ControllerText::withoutDoubleQuotes(model)));
        auto* used = new QTableWidgetItem;
        if (isSensorAssignedToBody(sensor.line())) {
            used->setIcon(icon_used);
            used->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        } else {
            used->setFlags(Qt::NoItemFlags);
        }
        table->setItem(row, SensorUsed, used);
        table->setItem(row, SensorIdentityColumn, text_item(sensor.line()));
    }
    if (kept >= 0 && kept < table->rowCount())
        table->setCurrentCell(kept, SensorDeviceId);
}

// --- number of bodies --------------------------------------------------------

void BodyAssignmentPage::storeMaxNumberOfBodies()
{
    int maximum = 0;
    if (io->get_int(&maximum, "standard max_number_of_bodies") != 0) {
        report(tr("Error: Unable to get maximum number of bodies"));
        maximum = DefaultMaxBodies;
    }
    max_bodies = ListLimits::bounded(maximum);
    const QSignalBlocker quiet(ui->spinBox_numBodies);
    ui->spinBox_numBodies->setMaximum(max_bodies);
}

void BodyAssignmentPage::update_spinBox_numBodies()
{
    int bodies = 0;
    if (io->get_int(&bodies, "body number_of_bodies standard") != 0) {
        report(tr("Error: Unable to get number of bodies"));
        bodies = 0;
    }
    const QSignalBlocker quiet(ui->spinBox_numBodies);
    ui->spinBox_numBodies->setValue(bodies);
}

void BodyAssignmentPage::on_spinBox_numBodies_valueChanged(int value)
{
    if (value < 0 || value > max_bodies) {
        report(tr("Error: Unable to set number of bodies to %1").arg(value));
        return;
    }
    int current = 0;
    const bool known = io->get_int(&current, "body number_of_bodies standard") == 0;
    if (!known || current != value) {
        if (io->set_value("standard number_of_bodies %d", value) != 0) {
            report(tr("Error: Unable to set number of bodies"));
            return;
        }
        dialog->mark_table_stale();
    }
    if (selected_row >= value)
        selected_row = value - 1;
    update_tableWidget_bodies();
    update_tableWidget_sensors();
    activate_all_buttons();
    ui->label_error2->setText(value == max_bodies ? ControllerText::red(tr("Max. number of bodies is reached!"))
                                                  : QString());
}

// --- opening -----------------------------------------------------------------

void BodyAssignmentPage::open(bool available)
{
    inertial_available = available;
    for (QWidget* widget : std::initializer_list<QWidget*>{ui->spinBox_numBodies, ui->tableWidget_bodies,
                                                           ui->tableWidget_sensors, ui->pushButton_select,
                                                           ui->pushButton_deselect})
        widget->setEnabled(true);
    storeMaxNumberOfBodies();
    update_spinBox_numBodies();
    ui->label_error2->setText(ui->spinBox_numBodies->value() == max_bodies
                                  ? ControllerText::red(tr("Max. number of bodies is reached!")) : QString());
    update_tableWidget_bodies();
    update_tableWidget_sensors();
    activate_all_buttons();
}

void BodyAssignmentPage::disable()
{
    inertial_available = false;
    for (QWidget* widget : std::initializer_list<QWidget*>{
             ui->spinBox_numBodies, ui->tableWidget_bodies, ui->tableWidget_sensors, ui->pushButton_select,
             ui->pushButton_deselect, ui->pushButton_filter, ui->pushButton_calibration,
             ui->pushButton_inertialSensorCalibration, ui->pushButton_hybridBodyCalibration})
        widget->setEnabled(false);
    ui->tableWidget_bodies->setCurrentCell(-1, -1);
}

void BodyAssignmentPage::refresh_after_other_dialog()
{
    if (!ui->tableWidget_bodies->isEnabled())
        return;
    update_tableWidget_bodies();
    activate_pushButton_filter();
    activate_pushButton_hybridBodyCalibration();
    activate_pushButton_inertialSensorCalibration();
}

// --- reading a body ----------------------------------------------------------

QString BodyAssignmentPage::getBodyActive(int row) const
{
    return read_text(tr("Error: Unable to get info whether body is active"), "body active %s", row);
}

bool BodyAssignmentPage::isSensorAssignedToBody(const QString& identity) const
{
    for (int row = 0; row < ui->tableWidget_bodies->rowCount(); ++row)
        if (cell(row, BodySensor) == identity)
            return true;
    return false;
}

QString BodyAssignmentPage::getCurrentFilterPreset(int row)
{
    bool on = false;
    if (!read_bool("body calibrated %s", row, tr("Error: Unable to get calibration info of body"), &on) || !on)
        return QString();
    if (!read_bool("body filter6d_enabled %s", row, tr("Error: Unable to get filter info of body"), &on) || !on)
        return QString();
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "body filter6d_preset %s", body_id(row).constData()) != 0) {
        report(tr("Error: Unable to get filter preset info of body"));
        return QString();
    }
    const QString preset = ControllerText::reply(reply);
    const bool custom = preset.contains(QLatin1String("preset6d_")) && preset.contains(QLatin1String("_custom"));
    if (!custom) {
        if (io->get_string(reply, "filter6d preset_desc %s", ControllerText::latin(preset).constData()) != 0) {
            report(tr("Error: Unable to get filter preset description"));
            return QString();
        }
        return ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
    }
    double prediction = 0.0;
    io->get_double(&prediction, "body filter6d_prediction %s", body_id(row).constData());
    const QString ms = QString::number(qRound(prediction * 1000.0));
    const bool hybrid = preset.contains(QLatin1String("hybrid"));
    QString mode = tr("hybrid");
    if (!hybrid) {
        const QString id = read_text(QString(), "body filter6d_mode %s", row);
        mode = io->get_string(reply, "filter6d mode_desc %s", ControllerText::latin(id).constData()) == 0
                   ? ControllerText::withoutDoubleQuotes(ControllerText::reply(reply)) : id;
        double strength = 0.0;
        io->get_double(&strength, "body filter6d_strength %s", body_id(row).constData());
        return QStringLiteral("%1/%2ms/%3").arg(QString::number(strength, 'f', 2), ms, mode);
    }
    return QStringLiteral("%1ms/%2").arg(ms, mode);
}

int BodyAssignmentPage::getCalibrationStatus(const char* kind, int body)
{
    char reply[IOManager::ReplyCapacity];
    QString sensor = None;
    if (io->get_string(reply, "body inertial_sensor %s b%.2d", kind, body) == 0)
        sensor = ControllerText::reply(reply);
    else
        report(tr("Error: Unable to get inertial info of body"));
    bool calibrated = false;
    if (io->get_bool(&calibrated, "body calibrated %s b%.2d", kind, body) != 0) {
        report(tr("Error: Unable to get calibration info of body"));
        calibrated = false;
    }
    if (!calibrated)
        return BodyUncalibrated;
    if (sensor == None || sensor.isEmpty())
        return Calibrated;
    QString handeye = None;
    if (io->get_string(reply, "inertial sensor_handeye %s", ControllerText::latin(sensor).constData()) == 0)
        handeye = ControllerText::reply(reply);
    else
        report(tr("Error: Unable to get inertial info of body"));
    return handeye == None ? SensorUncalibrated : Calibrated;
}

// --- buttons -----------------------------------------------------------------

void BodyAssignmentPage::activate_pushButton_select()
{
    const int body = current_body_row();
    const int sensor = ui->tableWidget_sensors->currentRow();
    bool on = inertial_available && body >= 0 && sensor >= 0 && ui->tableWidget_sensors->rowCount() > 0;
    if (on) {
        const QTableWidgetItem* identity = ui->tableWidget_sensors->item(sensor, SensorIdentityColumn);
        on = cell(body, BodySensor) != (identity ? identity->text() : QString());
    }
    ui->pushButton_select->setEnabled(on);
}

void BodyAssignmentPage::activate_pushButton_deselect()
{
    // Without inertial tracking only select is switched off; deselect keeps
    // whatever state it had, so that an assignment can still be removed.
    if (!inertial_available) {
        ui->pushButton_select->setEnabled(false);
        return;
    }
    const int body = current_body_row();
    ui->pushButton_deselect->setEnabled(body >= 0 && !cell(body, BodySensor).isEmpty());
}

void BodyAssignmentPage::activate_pushButton_filter()
{
    const int body = current_body_row();
    const QTableWidgetItem* cal = body >= 0 ? ui->tableWidget_bodies->item(body, BodyCal) : nullptr;
    ui->pushButton_filter->setEnabled(ui->spinBox_numBodies->value() > 0 && body >= 0
                                      && !cell(body, BodySensor).isEmpty() && cal
                                      && cal->data(Qt::UserRole).toInt() != BodyUncalibrated);
}

void BodyAssignmentPage::activate_pushButton_hybridBodyCalibration()
{
    const int body = current_body_row();
    ui->pushButton_hybridBodyCalibration->setEnabled(
        ui->spinBox_numBodies->value() > 0 && body >= 0 && cell(body, BodyActive) != QLatin1String("no")
        && !cell(body, BodySensor).isEmpty() && dialog->isSensorPresent(cell(body, BodySensor)));
}

void BodyAssignmentPage::activate_pushButton_inertialSensorCalibration()
{
    // The module keeps one calibration dialog beside this one.
    const QWidget* host = dialog->parentWidget();
    ui->pushButton_inertialSensorCalibration->setEnabled(inertial_available && host
                                                         && host->findChild<InertialCalibrationDlg*>());
}

void BodyAssignmentPage::activate_all_buttons()
{
    activate_pushButton_select();
    activate_pushButton_deselect();
    activate_pushButton_filter();
    activate_pushButton_hybridBodyCalibration();
    activate_pushButton_inertialSensorCalibration();
    ui->pushButton_calibration->setEnabled(inertial_available && current_body_row() >= 0);
}

// --- assignment --------------------------------------------------------------

void BodyAssignmentPage::on_pushButton_select_clicked()
{
    const int body = current_body_row();
    if (body < 0) {
        report(tr("Error: Unable to assgin sensor to body. No body is selected"));
        return;
    }
    const int sensor = ui->tableWidget_sensors->currentRow();
    if (sensor < 0) {
        report(tr("Error: Unable to assgin sensor to body. No sensor is selected"));
        return;
    }
    const QByteArray id = body_id(body);
    QString current;
    if (!read_assignment(id, &current))
        return;
    if (current != None && io->set_value("body inertial_sensor %s none", id.constData()) != 0)
        report(tr("Error: Unable to delete assignment of body"));
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "inertial sensor d%.2d", sensor + 1) != 0) {
        report(tr("Error: Unable to assgin sensor to body. No sensor info."));
        return;
    }
    const QByteArray line = ControllerText::latin(ControllerText::reply(reply));
    // A sensor sits on one body at a time: taken from another, it moves here.
    dialog->deleteAssignmentIfSensorIsAlreadyAssigned(line.constData());
    if (io->set_value("body inertial_sensor %s %s", id.constData(), line.constData()) != 0)
        report(tr("Error: Unable to set assignment of body"));
    reread_after_assignment(body);
}

void BodyAssignmentPage::on_pushButton_deselect_clicked()
{
    const int body = current_body_row();
    if (body < 0) {
        report(tr("Error: Unable to delete assignment of body. No body is selected"));
        return;
    }
    const QByteArray id = body_id(body);
    QString current;
    if (!read_assignment(id, &current))
        return;
    if (io->set_value("body inertial_sensor %s none", id.constData()) != 0)
        report(tr("Error: Unable to delete assignment of body"));
    reread_after_assignment(body);
}

bool BodyAssignmentPage::read_assignment(const QByteArray& id, QString* sensor) const
{
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "body inertial_sensor %s", id.constData()) != 0) {
        report(tr("Error: Unable to get info of assignment of body."));
        return false;
    }
    *sensor = ControllerText::reply(reply);
    return true;
}

void BodyAssignmentPage::reread_after_assignment(int body)
{
    dialog->mark_table_stale();
    selected_row = body;
    update_tableWidget_bodies();
    update_tableWidget_sensors();
    activate_all_buttons();
}

void BodyAssignmentPage::on_tableWidget_bodies_itemChanged(QTableWidgetItem* item)
{
    if (filling || !item || item->column() != BodyName || ui->toolBox->currentWidget() != ui->page_2)
        return;
    const int row = item->row();
    if (row < 0 || row >= ui->tableWidget_bodies->rowCount())
        return;
    const QString name = item->text();
    const QString stored = ControllerText::withoutDoubleQuotes(read_text(QString(), "body desc %s", row));
    if (name == stored)
        return;
    if (io->set_value("body desc %s \"%s\"", body_id(row).constData(), ControllerText::latin(name).constData()) != 0)
        report(tr("Error: Unable to set body description %1").arg(name));
}

void BodyAssignmentPage::on_tableWidget_bodies_cellClicked(int row, int column)
{
    selected_row = row;
    activate_all_buttons();
    if (column != BodyFilter || !ui->pushButton_filter->isEnabled())
        return;
    bool calibrated = false;
    if (read_bool("body calibrated %s", row, tr("Error: Unable to get calibration info of body"), &calibrated)
        && calibrated)
        open_filter(row);
}

void BodyAssignmentPage::on_pushButton_filter_clicked()
{
    const int row = current_body_row();
    if (row >= 0)
        open_filter(row);
}

void BodyAssignmentPage::open_filter(int row)
{
    FilterDialog filter(io, dialog, versions);
    filter.update_and_exec(0, row);
    update_tableWidget_bodies();
    activate_all_buttons();
}

// --- other dialogs -----------------------------------------------------------

void BodyAssignmentPage::on_pushButton_calibration_clicked()
{
    const int row = current_body_row();
    if (row < 0)
        return;
    const QString text = QStringLiteral("OpenBodyCalDialog standard b%1").arg(row + 1, 2, 10, QLatin1Char('0'));
    dialog->mark_table_stale();
    // The body calibration belongs to another module; it sends "reopen" when
    // the user is done, and this dialog comes back.
    dialog->hide();
    io->show_message("BodyCalModule", "InertialModule", 1, ControllerText::latin(text).constData());
}

int BodyAssignmentPage::body_row_of_settings_sensor() const
{
    const QStringList fields = dialog->sensor_fields_of_settings_row();
    if (fields.size() < 3)
        return -1;
    const QString identity = QStringLiteral("%1 %2 %3").arg(fields.at(0), fields.at(1), fields.at(2));
    for (int row = 0; row < ui->tableWidget_bodies->rowCount(); ++row)
        if (cell(row, BodySensor) == identity)
            return row;
    return -1;
}

void BodyAssignmentPage::on_pushButton_hybridBodyCalibration_clicked()
{
    const int row = ui->toolBox->currentIndex() == 0 ? body_row_of_settings_sensor() : current_body_row();
    if (row < 0)
        return;
    dialog->mark_table_stale();
    // The module's one calibration dialog answers to its name; it sends
    // "reopen" back when it closes, and the tables are read again then.
    const QString text = QStringLiteral("OpenHybridBodyCalibration %1|%2|%3").arg(Standard).arg(row + 1).arg(
        QStringLiteral("full"));
    io->show_message("HybridBodyCalibration", "InertialModule", 1, ControllerText::latin(text).constData());
}

void BodyAssignmentPage::on_pushButton_inertialSensorCalibration_clicked()
{
    QWidget* host = dialog->parentWidget();
    auto* calibration = host ? host->findChild<InertialCalibrationDlg*>() : nullptr;
    if (!calibration)
        return;
    dialog->mark_table_stale();
    calibration->update_and_exec();
    refresh_after_other_dialog();
}
