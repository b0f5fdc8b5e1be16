#include "SensorTable.h"


#include <cmath>

#include "RadioChannels.h"
#include "SettingsCells.h"
#include "WakeupModes.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/ListLimits.h"
#include "module/SensorIdentity.h"
#include "statusbar/BatteryBar.h"
#include "statusbar/TemperatureBar.h"
#include "ui_InertialSettingsDlg.h"

using namespace SettingsCells;

SensorTable::SensorTable(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io) : d(dialog), ui(ui), io(io)
{
}

void SensorTable::report(const QString& text) const
{
    ControllerText::report(io, text);
}

QString SensorTable::checked_text(int result, const char* reply, const QString& fallback,
                                          const QString& message)
{
    if (result == 0)
        return ControllerText::reply(reply);
    report(message);
    return fallback;
}

bool SensorTable::read_count(int* count, const char* path, const QString& failure)
{
    *count = 0;
    int reported = 0;
    if (io->get_int(&reported, path) != 0) {
        report(failure);
        return false;
    }
    *count = ListLimits::bounded(reported);
    return true;
}

bool SensorTable::read_list_item(SensorIdentity* identity, const char* format, int index,
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

void SensorTable::refresh_all_sensor_rows()
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QString identity = sensor_identity_of_row(row);
        if (!identity.isEmpty())
            set_present_status_of_sensor(row, identity);
    }
    fit_changed_columns();
}

void SensorTable::setup_table()
{
    QTableWidget* table = ui->tableWidget;
    table->clear();
    table->setColumnCount(InertialSettingsDlg::ColumnCount);
    table->setRowCount(0);
    table->setHorizontalHeaderLabels({tr("Device ID"), tr("Vendor"), tr("Model"), tr("Name"),
                                      tr("Version"), tr("Channel"), tr("Wakeup Mode"),
                                      tr("Battery"), tr("Temperature"), tr("Frequency"),
                                      tr("Cal."), tr("Delete")});
    QHeaderView* header = table->horizontalHeader();
    // The columns sized by their contents are fitted by us, after a rebuild
    // and after a refresh that changed them (fit_changed_columns): left to
    // the header, every changed cell would measure its whole column again,
    // which grows with the square of the number of sensors.
    for (int column = 0; column < InertialSettingsDlg::ColumnCount; ++column)
        header->setSectionResizeMode(column, column == InertialSettingsDlg::ColName ? QHeaderView::Stretch
                                                                                   : QHeaderView::Fixed);
    header->setSectionsClickable(false);
    header->setStretchLastSection(false);
    table->setColumnHidden(InertialSettingsDlg::ColVendor, true);
    table->verticalHeader()->hide();
    table->resizeColumnsToContents();
    QObject::connect(table->itemDelegate(), SIGNAL(closeEditor(QWidget*, QAbstractItemDelegate::EndEditHint)),
            d, SLOT(editor_closed()));
}

void SensorTable::update_table()
{
    QTableWidget* table = ui->tableWidget;
    table->setRowCount(0);
    sensor_list.clear();
    d->cell_editing = false;
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
    table->setColumnWidth(InertialSettingsDlg::ColDeviceId, table->columnWidth(InertialSettingsDlg::ColDeviceId) + DeviceIdPadding);
    changed_columns = 0;
    // A rebuild cut short stays stale, so that the next visit tries again.
    if (complete)
        d->table_stale = false;
}

bool SensorTable::add_dongles()
{
    transceiver_identities.clear();
    transceiver_count = -1;
    int count = 0;
    if (!read_count(&count, "inertial number_of_transceivers", tr("Error: Unable to get number of dongles")))
        return false;
    transceiver_count = count;
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
        if (fill_dongle_row(row, identity) && !d->radio_channels->fill_dongle_channel(row, identity)) {
            // The dongles below were never read; keep no empty rows for them.
            ui->tableWidget->setRowCount(row + 1);
            return false;
        }
    }
    return true;
}

bool SensorTable::fill_dongle_row(int row, const QString& identity)
{
    QTableWidget* table = ui->tableWidget;
    const SensorIdentity id = SensorIdentity::parse(identity);
    const QByteArray line = ControllerText::latin(identity);
    const int number = row + 1;
    char reply[IOManager::ReplyCapacity];

    QTableWidgetItem* device = text_item(id.deviceId(), Qt::ItemIsEnabled);
    device->setData(InertialSettingsDlg::DongleSensorsRole, QStringList());
    device->setData(InertialSettingsDlg::DongleKeyRole, list_key(number));
    table->setItem(row, InertialSettingsDlg::ColDeviceId, device);

    const QString version = checked_text(
        io->get_string(reply, "inertial transceiver_version %s", line.constData()), reply,
        QStringLiteral("error"), tr("Error: Unable to get firmware version of dongle %1").arg(number));
    table->setItem(row, InertialSettingsDlg::ColVersion, text_item(ControllerText::withoutDoubleQuotes(version), Qt::ItemIsEnabled));

    const QString vendor = checked_text(
        io->get_string(reply, "inertial transceiver_vendor_desc %s", ControllerText::latin(id.vendor()).constData()),
        reply, QStringLiteral("error"),
        tr("Error: Unable to get vendor description of dongle %1").arg(number));
    table->setItem(row, InertialSettingsDlg::ColVendor, text_item(ControllerText::withoutDoubleQuotes(vendor), Qt::ItemIsEnabled));

    const QString model = checked_text(
        io->get_string(reply, "inertial transceiver_model_desc %s %s", ControllerText::latin(id.vendor()).constData(),
                       ControllerText::latin(id.model()).constData()),
        reply, QStringLiteral("error"),
        tr("Error: Unable to get model description of dongle %1").arg(number));
    QTableWidgetItem* model_item = text_item(ControllerText::withoutDoubleQuotes(model), Qt::ItemIsEnabled);
    model_item->setData(InertialSettingsDlg::DongleIdentityRole, id.fields());
    table->setItem(row, InertialSettingsDlg::ColModel, model_item);

    table->setRowHeight(row, RowHeight);
    for (int column : {InertialSettingsDlg::ColName, InertialSettingsDlg::ColWakeupMode, InertialSettingsDlg::ColBattery, InertialSettingsDlg::ColTemperature, InertialSettingsDlg::ColFrequency,
                       InertialSettingsDlg::ColCalibration, InertialSettingsDlg::ColDelete})
        table->setItem(row, column, text_item(QString(), Qt::ItemIsEnabled));

    const QString present = checked_text(
        io->get_string(reply, "inertial transceiver_present %s", line.constData()), reply, QString(),
        tr("Error: Unable to get present status of dongle %1").arg(number));
    if (present != No)
        return true;
    // Absent transceivers stay listed, greyed, so their sensors keep a home.
    const QBrush greyed = QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Base);
    for (int column = 0; column < InertialSettingsDlg::ColumnCount; ++column) {
        QTableWidgetItem* item = ensure_item(row, column);
        item->setFlags(Qt::NoItemFlags);
        item->setBackground(greyed);
    }
    return false;
}

void SensorTable::add_dummyDongleEntry()
{
    QTableWidget* table = ui->tableWidget;
    const int row = table->rowCount();
    table->insertRow(row);
    table->setItem(row, InertialSettingsDlg::ColDeviceId, text_item(tr("cable connected:"), Qt::ItemIsEnabled));
    for (int column = 1; column < InertialSettingsDlg::ColumnCount; ++column)
        table->setItem(row, column, text_item(QString(), Qt::ItemIsEnabled));
}

void SensorTable::delete_dummyDongleEntry_ifNotNeeded()
{
    const int row = getRowOfDummyDongle();
    if (!dummyDongleNeeded && row >= 0)
        ui->tableWidget->removeRow(row);
}

bool SensorTable::add_sensors()
{
    sensor_list.clear();
    int count = 0;
    read_count(&count, "inertial number_of_sensors", tr("Could not get number of sensors"));
    // Availability as the opening found it; the button refresh notices a loss.
    ui->pushButton_warmup->setEnabled(count > 0 && d->inertial_available);

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
        sensor_list << InertialSettingsDlg::sensor{list_key(i), id.vendor(),
                              id.model(), id.serial()};

        const int row = row_for_sensor(transceiver, identity);
        ui->tableWidget->insertRow(row);
        fill_sensor_row(row, id, body, i);
    }
    return true;
}

int SensorTable::row_for_sensor(const QString& transceiver, const QString& identity)
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
    QTableWidgetItem* device = ui->tableWidget->item(dongle, InertialSettingsDlg::ColDeviceId);
    device->setData(InertialSettingsDlg::DongleSensorsRole, device->data(InertialSettingsDlg::DongleSensorsRole).toStringList() << identity);
    return dongle + 1;
}

void SensorTable::fill_sensor_row(int row, const SensorIdentity& id, const QString& body, int index)
{
    QTableWidget* table = ui->tableWidget;
    const QString identity = id.line();
    const QByteArray line = ControllerText::latin(identity);
    char reply[IOManager::ReplyCapacity];

    QTableWidgetItem* device = text_item(id.deviceId(), Qt::ItemIsEnabled);
    device->setTextAlignment(RightCentred);
    device->setData(InertialSettingsDlg::SensorIdentityRole, id.fields());
    table->setItem(row, InertialSettingsDlg::ColDeviceId, device);

    const QString vendor = checked_text(
        io->get_string(reply, "inertial sensor_vendor_desc %s", ControllerText::latin(id.vendor()).constData()), reply,
        QStringLiteral("error"), tr("Error: Unable to get vendor description of sensor %1").arg(index));
    table->setItem(row, InertialSettingsDlg::ColVendor, text_item(ControllerText::withoutDoubleQuotes(vendor), Qt::ItemIsEnabled));

    const QString model = checked_text(
        io->get_string(reply, "inertial sensor_model_desc %s %s", ControllerText::latin(id.vendor()).constData(),
                       ControllerText::latin(id.model()).constData()),
        reply, QStringLiteral("error"), tr("Error: Unable to get model description of sensor %1").arg(index));
    table->setItem(row, InertialSettingsDlg::ColModel, text_item(ControllerText::withoutDoubleQuotes(model), Qt::ItemIsEnabled));

    auto* name = new QTableWidgetItem;
    name->setData(InertialSettingsDlg::BodyIdRole, body);
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
    table->setItem(row, InertialSettingsDlg::ColName, name);

    QTableWidgetItem* remove = text_item(QString(), Qt::ItemIsEnabled);
    remove->setIcon(d->icon_delete);
    table->setItem(row, InertialSettingsDlg::ColDelete, remove);

    const QString present_reply = checked_text(
        io->get_string(reply, "inertial sensor_present %s", line.constData()), reply, QString(),
        tr("Error: Unable to get informations of sensor %1").arg(index));
    const bool present = present_reply == Yes;
    update_four_columns(row, identity, present);
    update_temperature(row, identity, present);
    update_battery(row, identity, present);
    d->wakeup_modes->update_frequency(row, identity, present);
    update_sensor_calibration(row, identity, present);
    update_firmware(row, identity, present);
    d->wakeup_modes->update_wakeup_combo(row, identity, present);
    d->radio_channels->update_sensor_channel(row, identity, present);
    table->setRowHeight(row, RowHeight);
}

template <class Bar>
Bar* SensorTable::bar_in(int row, int column)
{
    auto* bar = qobject_cast<Bar*>(ui->tableWidget->cellWidget(row, column));
    if (!bar) {
        bar = new Bar;
        bar->setMaximumWidth(ui->tableWidget->columnWidth(column));
        ui->tableWidget->setCellWidget(row, column, bar);
        widened(column);
    }
    return bar;
}

QTableWidgetItem* SensorTable::ensure_item(int row, int column)
{
    QTableWidgetItem* item = ui->tableWidget->item(row, column);
    if (!item) {
        item = new QTableWidgetItem;
        ui->tableWidget->setItem(row, column, item);
    }
    return item;
}

void SensorTable::write_text(QTableWidgetItem* item, const QString& text)
{
    if (item->text() == text)
        return;
    item->setText(text);
    widened(item->column());
}

void SensorTable::write_flags(QTableWidgetItem* item, Qt::ItemFlags flags)
{
    if (item->flags() != flags)
        item->setFlags(flags);
}

void SensorTable::write_icon(QTableWidgetItem* item, const QIcon& icon)
{
    if (item->icon().cacheKey() == icon.cacheKey())
        return;
    item->setIcon(icon);
    widened(item->column());
}

void SensorTable::widened(int column)
{
    if (column >= 0 && column < InertialSettingsDlg::ColumnCount)
        changed_columns |= 1u << column;
}

void SensorTable::fit_changed_columns()
{
    // Only the columns that follow their contents; the others keep the
    // width the rebuild gave them.
    static const int content_sized[] = {InertialSettingsDlg::ColVendor,      InertialSettingsDlg::ColModel,
                                        InertialSettingsDlg::ColVersion,     InertialSettingsDlg::ColBattery,
                                        InertialSettingsDlg::ColTemperature, InertialSettingsDlg::ColFrequency,
                                        InertialSettingsDlg::ColDelete};
    if (rebuilding || changed_columns == 0)
        return;
    for (int column : content_sized)
        if (changed_columns & (1u << column))
            ui->tableWidget->resizeColumnToContents(column);
    changed_columns = 0;
}

void SensorTable::remove_cell_widget(int row, int column)
{
    if (ui->tableWidget->cellWidget(row, column))
        ui->tableWidget->removeCellWidget(row, column);
}

QString SensorTable::sensor_identity_of_row(int row) const
{
    const QTableWidgetItem* device = ui->tableWidget->item(row, InertialSettingsDlg::ColDeviceId);
    if (!device)
        return QString();
    return SensorIdentity::fromFields(device->data(InertialSettingsDlg::SensorIdentityRole).toStringList()).line();
}

bool SensorTable::set_present_status_of_sensor(int row, QString identity)
{
    const bool present = d->isSensorPresent(identity);
    // The presence icon costs no query and must not lag behind the rest.
    update_four_columns(row, identity, present);
    d->radio_channels->update_sensor_channel(row, identity, present);
    update_temperature(row, identity, present);
    update_battery(row, identity, present);
    update_firmware(row, identity, present);
    d->wakeup_modes->update_wakeup_combo(row, identity, present);
    return true;
}

void SensorTable::update_four_columns(int row, QString /*identity*/, bool present)
{
    write_icon(ensure_item(row, InertialSettingsDlg::ColDeviceId), present ? d->icon_inertial_en : d->icon_inertial_dis);
    for (int column = InertialSettingsDlg::ColDeviceId; column <= InertialSettingsDlg::ColName; ++column) {
        QTableWidgetItem* item = ensure_item(row, column);
        Qt::ItemFlags flags = Qt::ItemIsSelectable;
        if (present)
            flags = column == InertialSettingsDlg::ColName ? Qt::ItemFlags(item->data(NameFlagsRole).toInt())
                                      : Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        write_flags(item, flags);
    }
}

void SensorTable::update_firmware(int row, QString identity, bool present)
{
    if (!present) {
        write_flags(ensure_item(row, InertialSettingsDlg::ColVersion), Qt::ItemIsSelectable);
        return;
    }
    char reply[IOManager::ReplyCapacity];
    const QString version = checked_text(
        io->get_string(reply, "inertial sensor_version %s", ControllerText::latin(identity).constData()), reply,
        QStringLiteral("v0.0.0"), tr("Error: Unable to get firmware version of sensor"));
    QTableWidgetItem* item = ensure_item(row, InertialSettingsDlg::ColVersion);
    write_text(item, ControllerText::withoutSingleQuotes(version));
    write_flags(item, Qt::ItemIsEnabled);
}

void SensorTable::update_battery(int row, QString identity, bool present)
{
    if (!present) {
        // The last charge stays on show: it is what the sensor had when it left.
        write_flags(ensure_item(row, InertialSettingsDlg::ColBattery), Qt::ItemIsEnabled);
        return;
    }
    double charge = -1.0;
    if (io->get_double(&charge, "inertial sensor_battery %s", ControllerText::latin(identity).constData()) != 0) {
        report(tr("Error: Unable to get battery status of sensor"));
        charge = -1.0;
    }
    if (!(charge >= 0.0))
        return;
    bar_in<BatteryBar>(row, InertialSettingsDlg::ColBattery)->setValue(charge);
}

void SensorTable::update_temperature(int row, QString identity, bool present)
{
    QTableWidgetItem* item = ensure_item(row, InertialSettingsDlg::ColTemperature);
    if (!present) {
        // A bar would keep showing the last reading of a sensor that is gone.
        remove_cell_widget(row, InertialSettingsDlg::ColTemperature);
        write_text(item, not_present_text());
        item->setTextAlignment(Qt::AlignCenter);
        return;
    }
    write_text(item, QString());
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
    auto* bar = bar_in<TemperatureBar>(row, InertialSettingsDlg::ColTemperature);
    bar->setTemperature(reading[0]);
    const double warm = reading[1] > 0.0 && std::isfinite(reading[1]) ? reading[0] / reading[1] : 0.0;
    bar->setValue(qRound(qBound(0.0, warm * 100.0, 100.0)));
}

void SensorTable::update_sensor_calibration(int row, QString identity, bool /*present*/)
{
    const int status = getSensorCalibrationStatus(ControllerText::latin(identity).constData());
    QTableWidgetItem* item = ensure_item(row, InertialSettingsDlg::ColCalibration);
    if (status == 1) {
        write_icon(item, d->icon_green);
        write_flags(item, Qt::ItemIsEnabled);
    } else if (status == 0) {
        write_icon(item, d->icon_yellow);
        write_flags(item, Qt::ItemIsEnabled);
    } else {
        write_icon(item, d->icon_red);
        write_flags(item, Qt::NoItemFlags);
    }
}

int SensorTable::getSensorCalibrationStatus(const char* identity)
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

bool SensorTable::checkBodyTypeIdExists(QString body_id)
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

int SensorTable::getRowOfDummyDongle() const
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QTableWidgetItem* item = ui->tableWidget->item(row, InertialSettingsDlg::ColDeviceId);
        if (item && item->text().startsWith(QLatin1String("cable connected"), Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

int SensorTable::get_row_of_dongle(QString identity) const
{
    const QString wanted = SensorIdentity::parse(identity).line();
    // The controller calls its transceivers "Dongle (USB)" in their model
    // description: those cells carry the transceiver's identity.
    for (const QTableWidgetItem* item :
         ui->tableWidget->findItems(QStringLiteral("Dongle (USB)"), Qt::MatchContains)) {
        const QStringList fields = item->data(InertialSettingsDlg::DongleIdentityRole).toStringList();
        if (fields.size() >= 3 && fields.mid(0, 3).join(QLatin1Char(' ')) == wanted)
            return item->row();
    }
    // A transceiver described otherwise is still found by its key.
    const int index = transceiver_identities.indexOf(wanted);
    if (index < 0)
        return -1;
    const QString key = list_key(index + 1);
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QTableWidgetItem* device = ui->tableWidget->item(row, InertialSettingsDlg::ColDeviceId);
        if (device && device->data(InertialSettingsDlg::DongleKeyRole).toString() == key)
            return row;
    }
    return -1;
}

QStringList SensorTable::get_sensorList_of_dongle(QString identity) const
{
    const int row = get_row_of_dongle(identity);
    const QTableWidgetItem* device = row < 0 ? nullptr : ui->tableWidget->item(row, InertialSettingsDlg::ColDeviceId);
    return device ? device->data(InertialSettingsDlg::DongleSensorsRole).toStringList() : QStringList();
}

QStringList SensorTable::get_onlyPresent_sensorList_of_dongle(QString identity)
{
    return sensors_of_dongle_by_presence(identity, true);
}

QStringList SensorTable::get_onlyNotPresent_sensorList_of_dongle(QString identity)
{
    return sensors_of_dongle_by_presence(identity, false);
}

QStringList SensorTable::sensors_of_dongle_by_presence(const QString& identity, bool present)
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

QString SensorTable::getSensorSerial(int row) const
{
    const QTableWidgetItem* device = ui->tableWidget->item(row, InertialSettingsDlg::ColDeviceId);
    return device && device->data(InertialSettingsDlg::SensorIdentityRole).isValid() ? device->text() : QString();
}

QString SensorTable::getSensorModel(int row) const
{
    if (getSensorVendorModelSerial(row).isEmpty())
        return QString();
    const QTableWidgetItem* model = ui->tableWidget->item(row, InertialSettingsDlg::ColModel);
    return model ? model->text() : QString();
}

QString SensorTable::getSensorVendorModelSerial(int row) const
{
    return sensor_identity_of_row(row);
}
