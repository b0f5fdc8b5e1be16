#include "AddInertialSensorDlg.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QIcon>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QVariantList>

#include <algorithm>
#include <cstring>

#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/VersionGate.h"
#include "settings/ChannelComboBox.h"
#include "settings/InertialSettingsDlg.h"
#include "ui_AddSenorDialog.h"

namespace {

// Counts come from the controller; a broken reply must not make the dialog
// loop for hours, so every count is held to something a system can have.
constexpr int SaneCount = 255;
// The controller answers -1 while it is still scanning.
constexpr int ScanPolls = 100;
constexpr int ScanTickMs = 100;

enum Column { ColumnId, ColumnVendor, ColumnModel, ColumnChannel, ColumnAccept, ColumnCount };
constexpr int ModeRole = Qt::UserRole + 1;
constexpr Qt::ItemFlags ReadOnly = Qt::ItemIsSelectable | Qt::ItemIsEnabled;

QVariantList channel_list(int first, int last)
{
    QVariantList list;
    for (int channel = first; channel <= last; ++channel)
        list << channel;
    return list;
}

// The wait cursor is on while the dialog talks to the controller; every way
// out of that, early returns included, puts the arrow back once.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { restore(); }
    void restore()
    {
        if (active)
            QApplication::restoreOverrideCursor();
        active = false;
    }

private:
    bool active = true;
};

} // namespace

AddInertialSensorDlg::AddInertialSensorDlg(IOManager* io, QDialog* parent, BackendVersions* versions)
    : QDialog(parent),
      ui(new Ui_AddSenorDialog),
      io(io),
      parent_dialog(parent),
      backend_versions(versions)
{
    ui->setupUi(this);
    ui->comboBox_channel->setChannelLimits(lowest_channel, highest_channel);
    ui->comboBox_channel->setChannel(-1);
    transceiver.clear();
    setup_table();
    setWindowIcon(QIcon(QStringLiteral(":/inertial_en")));

    scan_timer.setInterval(ScanTickMs);
    connect(&scan_timer, &QTimer::timeout, this, &AddInertialSensorDlg::scan_channels);
    // Keyboard toggles of an Accept cell count as much as clicks.
    connect(ui->tableWidget, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* item) {
        if (item->column() == ColumnAccept)
            enable_if_possible_pushButton_apply(true);
    });
    accept_all_guard = true;
}

AddInertialSensorDlg::~AddInertialSensorDlg()
{
    delete ui;
}

void AddInertialSensorDlg::about_to_exit()
{
    scan_timer.stop();
}

void AddInertialSensorDlg::report(const char* text) const
{
    ControllerText::report(io, QString::fromLatin1(text));
}

int AddInertialSensorDlg::update_and_exec()
{
    scan_timer.stop();
    scanning = false;
    ui->progressBar_overall->reset();
    ui->label_channel->clear();
    ui->tableWidget->clearContents();
    ui->tableWidget->setRowCount(0);
    found.clear();

    // A scan halted by Escape and then closed must not leave its buttons
    // locked for the next opening.
    ui->pushButton_scan->setEnabled(true);
    ui->pushButton_exit->setEnabled(true);
    ui->comboBox_scanMode->setEnabled(true);
    ui->pushButton_cancel->setEnabled(false);
    ui->pushButton_apply->setEnabled(false);

    update_comboBox_scanMode();
    ui->comboBox_scanMode->setCurrentIndex(ui->comboBox_scanMode->count() - 1);
    ui->comboBox_channel->setChannelLimits(lowest_channel, highest_channel);
    ui->pushButton_scan->setFocus();
    return exec();
}

int AddInertialSensorDlg::getNumTransceiver() const
{
    int count = 0;
    if (io->get_int(&count, "inertial number_of_transceivers") != 0)
        return 0;
    return qBound(0, count, SaneCount);
}

void AddInertialSensorDlg::update_comboBox_scanMode()
{
    QComboBox* modes = ui->comboBox_scanMode;
    modes->clear();
    if (getNumTransceiver() >= 1) {
        modes->addItem(tr("default channels"), QVariantList{35, 55});
        modes->setItemData(modes->count() - 1, DefaultChannels, ModeRole);
        modes->addItem(tr("single channel"), QVariantList());
        modes->setItemData(modes->count() - 1, SingleChannel, ModeRole);
        modes->addItem(tr("all channels"), channel_list(lowest_channel, highest_channel));
        modes->setItemData(modes->count() - 1, AllChannels, ModeRole);
    }
    modes->addItem(tr("USB"), QVariantList{0});
    modes->setItemData(modes->count() - 1, Usb, ModeRole);
}

int AddInertialSensorDlg::scan_mode() const
{
    return ui->comboBox_scanMode->currentData(ModeRole).toInt();
}

int AddInertialSensorDlg::scan_mode_index(int mode) const
{
    return ui->comboBox_scanMode->findData(mode, ModeRole);
}

void AddInertialSensorDlg::setup_table()
{
    QTableWidget* table = ui->tableWidget;
    table->setColumnCount(ColumnCount);
    table->setHorizontalHeaderLabels(
        {tr("Device ID"), tr("Vendor"), tr("Model"), tr("Channel"), tr("Accept")});
    table->hideColumn(ColumnVendor);
    QHeaderView* header = table->horizontalHeader();
    header->setSectionResizeMode(ColumnId, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(ColumnVendor, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(ColumnModel, QHeaderView::Stretch);
    header->setSectionResizeMode(ColumnChannel, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(ColumnAccept, QHeaderView::Fixed);
    header->setSectionsClickable(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(qMin(table->verticalHeader()->minimumSectionSize(), 20));
    table->verticalHeader()->setDefaultSectionSize(20);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

void AddInertialSensorDlg::update_table(QList<Sensor> sensors)
{
    if (sensors.isEmpty())
        return;
    QTableWidget* table = ui->tableWidget;
    const int first = found.size();
    found += sensors;
    table->setRowCount(found.size());
    const bool accept_all = ui->checkBox_acceptAll->isChecked();

    const QSignalBlocker blocker(table);   // Apply is decided once, by the caller
    for (int row = first; row < found.size(); ++row) {
        const Sensor& sensor = found.at(row);
        auto* id = new QTableWidgetItem(ControllerText::withoutSingleQuotes(sensor.serial));
        id->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto* vendor = new QTableWidgetItem(sensor.vendor_desc);
        auto* model = new QTableWidgetItem(sensor.model_desc);
        auto* channel = new QTableWidgetItem(sensor.channel == 0 ? tr("USB")
                                                                  : QString::number(sensor.channel));
        auto* accept = new QTableWidgetItem;
        for (QTableWidgetItem* item : {id, vendor, model, channel})
            item->setFlags(ReadOnly);
        if (sensor.already_added) {
            accept->setFlags(Qt::NoItemFlags);
            // Greyed so that the row reads as settled, not as a pick forgotten.
            const QBrush settled = table->palette().brush(QPalette::Disabled, QPalette::Text);
            for (QTableWidgetItem* item : {id, vendor, model, channel, accept}) {
                item->setForeground(settled);
                item->setToolTip(tr("This sensor is already added"));
            }
        } else {
            accept->setFlags(ReadOnly | Qt::ItemIsUserCheckable);
            accept->setCheckState(accept_all ? Qt::Checked : Qt::Unchecked);
        }
        table->setItem(row, ColumnId, id);
        table->setItem(row, ColumnVendor, vendor);
        table->setItem(row, ColumnModel, model);
        table->setItem(row, ColumnChannel, channel);
        table->setItem(row, ColumnAccept, accept);
        table->setRowHeight(row, 20);
    }
}

void AddInertialSensorDlg::on_comboBox_scanMode_currentIndexChanged(const QString& text)
{
    Q_UNUSED(text)   // the entry's mode says what it is, whatever the language
    ChannelComboBox* chooser = ui->comboBox_channel;
    if (ui->comboBox_scanMode->currentIndex() >= 0 && scan_mode() == SingleChannel) {
        chooser->setEnabled(true);
        chooser->setChannel(lowest_channel);
    } else {
        chooser->setEnabled(false);
        chooser->setChannel(-1);
    }
}

void AddInertialSensorDlg::on_comboBox_channel_currentIndexChanged(const QString& text)
{
    const int index = scan_mode_index(SingleChannel);
    if (index < 0)
        return;
    bool ok = false;
    const int channel = text.toInt(&ok);
    ui->comboBox_scanMode->setItemData(index, ok && channel > 0 ? QVariantList{channel} : QVariantList());
}

void AddInertialSensorDlg::on_pushButton_scan_clicked()
{
    const QVariantList list = ui->comboBox_scanMode->currentData().toList();
    if (list.isEmpty()) {
        QMessageBox::warning(this, tr("Warning"), tr("Please select a channel to scan"), QMessageBox::Ok);
        return;
    }

    ui->tableWidget->clearContents();
    ui->tableWidget->setRowCount(0);
    channels.clear();
    for (const QVariant& channel : list)
        channels << channel.toInt();
    channels_done = 0;

    if (channels.first() == 0) {
        transceiver.clear();
    } else {
        char reply[IOManager::ReplyCapacity] = {};
        if (io->get_string(reply, "inertial transceiver d01") != 0) {
            report("Error: Unable to get informations of dongle 1");
            ui->label_channel->setText(
                tr("Scanning channel(s) aborted, could not get informations of dongle 1"));
            return;
        }
        transceiver = ControllerText::reply(reply);
    }

    added = get_added_sensors();

    channel_combo_was_enabled = ui->comboBox_channel->isEnabled();
    if (channel_combo_was_enabled)
        ui->comboBox_channel->setEnabled(false);
    ui->pushButton_scan->setEnabled(false);
    ui->pushButton_apply->setEnabled(false);
    ui->pushButton_exit->setEnabled(false);

    // Only a scan over several channels has ticks in between to cancel at.
    const int mode = scan_mode();
    ui->pushButton_cancel->setEnabled(mode != SingleChannel && mode != Usb);
    ui->comboBox_scanMode->setEnabled(false);
    updateProgress(0);
    found.clear();
    ui->tableWidget->clearContents();
    ui->tableWidget->setRowCount(0);
    abort_scan = false;
    scanning = true;
    channel_cursor = 0;
    ui->label_channel->clear();
    scan_timer.start();
}

QList<AddInertialSensorDlg::Sensor> AddInertialSensorDlg::get_added_sensors()
{
    QList<Sensor> sensors;
    int count = 0;
    if (io->get_int(&count, "inertial number_of_sensors") != 0) {
        report("Error: Unable to get numbers of sensor");
        count = 0;
    }
    count = qBound(0, count, SaneCount);
    for (int i = 1; i <= count; ++i) {
        char reply[IOManager::ReplyCapacity] = {};
        if (io->get_string(reply, "inertial sensor d%.2d", i) != 0) {
            report("Error: Unable to get informations of sensor");
            continue;
        }
        const QStringList words = ControllerText::reply(reply).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (words.size() < 3)
            continue;
        Sensor sensor;
        sensor.vendor = words.at(0);
        sensor.model = words.at(1);
        sensor.serial = words.at(2);
        sensor.already_added = true;
        sensors << sensor;
    }
    return sensors;
}

void AddInertialSensorDlg::show_scan_label(const QString& text)
{
    ui->label_channel->setText(text);
    // The scan command blocks for seconds; show where it is before it does.
    ui->label_channel->repaint();
}

void AddInertialSensorDlg::stop_scan(const QString& label)
{
    ui->label_channel->setText(label);
    set_buttons_after_scan();
}

bool AddInertialSensorDlg::reset_scan_channels()
{
    if (io->set_value("inertial number_of_scan_channels %d", 0) == 0)
        return true;
    report("Error: Unable to set channels to scan");
    return false;
}

void AddInertialSensorDlg::scan_channels()
{
    // A host that waits for a reply may run events meanwhile; the next tick
    // must not start a second scan inside this one.
    if (in_tick || !scanning)
        return;
    const QScopedValueRollback<bool> ticking(in_tick, true);

    if (io->is_blocked())
        return;
    if (abort_scan) {
        stop_scan(tr("Scanning channel(s) aborted"));
        return;
    }
    if (channel_cursor >= channels.size()) {
        set_buttons_after_scan();
        return;
    }

    if (io->set_value("inertial number_of_scan_channels %d", 1) != 0) {
        report("Error: Unable to set channels to scan");
        stop_scan(tr("Scanning channel(s) aborted"));
        return;
    }

    const int channel = channels.at(channel_cursor);
    int result = 0;
    if (channel != 0) {
        show_scan_label(tr("Scanning channel: ") + QString::number(channel) + QStringLiteral("..."));
        result = io->set_value("inertial scan_transceiver_channel t01 %s %d",
                               transceiver.toLatin1().constData(), channel);
    } else {
        show_scan_label(tr("Scanning USB..."));
        result = io->set_value("inertial scan_transceiver_channel t01 usb");
    }
    if (result != 0) {
        report("Error: Unable to scan channel of dongle 01");
        stop_scan(tr("Scanning channel(s) aborted, error detected"));
        return;
    }

    // The scan takes seconds: the host sends it and waits for the answer
    // separately (a result of 1 means sent, answer pending).
    char reply[IOManager::ReplyCapacity] = {};
    io->set_timeout(true, 20000, true);
    bool sent = io->send_command(reply, "norvane inertial scan_sensors") == 1;
    if (sent) {
        int status = 0;
        sent = io->wait_for_completion(&status) == 0;
    }
    if (!sent) {
        report("Error: Unable to scan sensors");
        stop_scan(tr("Scanning channel(s) aborted, error detected"));
        return;
    }
    if (std::strncmp(reply, "norvane ok", sizeof reply) != 0) {
        reset_scan_channels();
        stop_scan(tr("Scanning channel(s) aborted, error detected"));
        return;
    }

    const int progress = int(100.0 / channels.size() * (channels_done + 1) + 0.5);
    updateProgress(progress);

    int scanned = -1;
    for (int poll = 0; poll < ScanPolls && scanned == -1; ++poll) {
        if (io->get_int(&scanned, "inertial number_of_scanned_sensors") != 0) {
            report("Error: Unable to get numbers of sensors to scan");
            stop_scan(tr("Scanning channel(s) aborted, timeout of scanning"));
            return;
        }
    }
    if (scanned == -1) {
        io->set_value("inertial number_of_scan_channels %d", 0);
        set_channel_label(tr("Scanning channel(s) aborted, timeout of scanning"));
        set_buttons_after_scan();
        return;
    }

    add_sensor_to_foundList(scanned);
    reset_scan_channels();

    updateProgress(progress);
    ++channels_done;
    ++channel_cursor;
    if (channel_cursor >= channels.size())
        set_buttons_after_scan();
}

void AddInertialSensorDlg::add_sensor_to_foundList(int count)
{
    QList<Sensor> sensors;
    const int scanned_channel = channels.value(channel_cursor);
    count = qMin(count, SaneCount);
    for (int i = 1; i <= count; ++i) {
        char reply[IOManager::ReplyCapacity] = {};
        if (io->get_string(reply, "inertial scanned_sensor d%.2d", i) != 0) {
            report("Error: Unable to get informations of sensor to add");
            break;
        }
        const QString line = ControllerText::reply(reply);
        if (line.isEmpty())
            break;
        const QStringList words = line.split(QLatin1Char(' '));
        if (words.size() < 3)
            continue;   // no vendor, model and serial: nothing that could be added

        Sensor sensor;
        sensor.vendor = words.at(0);
        sensor.model = words.at(1);
        sensor.serial = words.at(2);
        bool ok = false;
        sensor.channel = words.value(3).toInt(&ok);
        if (!ok)
            sensor.channel = scanned_channel;

        // A sensor heard twice in one scan can still be added only once.
        auto same_serial = [&sensor](const Sensor& other) { return other.serial == sensor.serial; };
        if (std::any_of(found.cbegin(), found.cend(), same_serial)
            || std::any_of(sensors.cbegin(), sensors.cend(), same_serial))
            continue;
        sensor.already_added = std::any_of(added.cbegin(), added.cend(), same_serial);

        const QByteArray vendor = sensor.vendor.toLatin1();
        const QByteArray model = sensor.model.toLatin1();
        if (io->get_string(reply, "inertial sensor_model_desc %s %s", vendor.constData(),
                           model.constData()) != 0) {
            report("Error: Unable to get description of sensor to add");
            break;
        }
        sensor.model_desc = ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
        if (io->get_string(reply, "inertial sensor_vendor_desc %s", vendor.constData()) != 0) {
            report("Error: Unable to get vendor description of sensor to add");
            break;
        }
        sensor.vendor_desc = ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
        sensors << sensor;
    }
    update_table(sensors);
}

void AddInertialSensorDlg::set_channel_label(const QString& text)
{
    ui->label_channel->setText(tr("Scanning channel ") + text + QStringLiteral("..."));
}

void AddInertialSensorDlg::updateProgress(int value)
{
    ui->progressBar_overall->setValue(qBound(0, value > 99 ? 100 : value, 100));
}

void AddInertialSensorDlg::set_buttons_after_scan()
{
    scan_timer.stop();
    scanning = false;
    ui->pushButton_cancel->setEnabled(false);
    ui->pushButton_scan->setEnabled(true);
    ui->pushButton_exit->setEnabled(true);
    ui->comboBox_scanMode->setEnabled(true);
    if (channel_combo_was_enabled)
        ui->comboBox_channel->setEnabled(true);
    // Sensors were found: Apply is offered even before any is ticked, and
    // only then says that nothing is chosen.
    if (!found.isEmpty())
        ui->pushButton_apply->setEnabled(true);

    QString what;
    if (channels.size() == 1 && channels.first() == 0)
        what = abort_scan ? tr("Scanning USB aborted") : tr("Scanning USB done");
    else if (channels.size() == 1)
        what = abort_scan ? tr("Scanning channel aborted") : tr("Scanning channel done");
    else
        what = abort_scan ? tr("Scanning channels aborted") : tr("Scanning channels done");
    // Errors were reported as messages already; the label sums up the scan.
    updateProgress(abort_scan ? 0 : 100);
    ui->label_channel->setText(what);
}

void AddInertialSensorDlg::enable_if_possible_pushButton_apply(bool enable)
{
    bool any_checked = false;
    QTableWidget* table = ui->tableWidget;
    for (int row = 0; row < table->rowCount() && !any_checked; ++row) {
        const QTableWidgetItem* accept = table->item(row, ColumnAccept);
        any_checked = accept && accept->flags() != Qt::NoItemFlags && accept->checkState() == Qt::Checked;
    }
    ui->pushButton_apply->setEnabled(enable && any_checked && !ui->pushButton_cancel->isEnabled()
                                     && !scanning);
}

void AddInertialSensorDlg::on_checkBox_acceptAll_stateChanged(int state)
{
    if (!accept_all_guard)
        return;
    QTableWidget* table = ui->tableWidget;
    const QSignalBlocker blocker(table);
    for (int row = 0; row < table->rowCount(); ++row) {
        QTableWidgetItem* accept = table->item(row, ColumnAccept);
        if (accept && accept->flags() != Qt::NoItemFlags)
            accept->setCheckState(state == Qt::Checked ? Qt::Checked : Qt::Unchecked);
    }
    enable_if_possible_pushButton_apply(true);
}

void AddInertialSensorDlg::on_tableWidget_cellClicked(int row, int column)
{
    const QTableWidgetItem* accept = ui->tableWidget->item(row, ColumnAccept);
    if (column == ColumnAccept && accept && (accept->flags() & Qt::ItemIsEnabled)) {
        // One row changed by hand: "accept all" no longer holds, but the
        // other rows keep what they have.
        accept_all_guard = false;
        ui->checkBox_acceptAll->setChecked(false);
        accept_all_guard = true;
    }
    enable_if_possible_pushButton_apply(true);
}

int AddInertialSensorDlg::body_is_free(int body)
{
    char calibrated[IOManager::ReplyCapacity] = {};
    if (io->get_string(calibrated, "body calibrated standard b%.2d", body) != 0) {
        report("Error: Unable to get calibration of body");
        return -1;
    }
    char sensor[IOManager::ReplyCapacity] = {};
    if (io->get_string(sensor, "body inertial_sensor standard b%.2d", body) != 0) {
        report("Error: Unable to get inertial information of body");
        return -1;
    }
    // Free means not optically calibrated yet and carrying no sensor.
    return std::strncmp(calibrated, "no", sizeof calibrated) == 0
                   && std::strncmp(sensor, "none", sizeof sensor) == 0
               ? 1
               : 0;
}

int AddInertialSensorDlg::find_free_body(int bodies, int max_bodies)
{
    for (int b = 1; b <= bodies; ++b) {
        const int free = body_is_free(b);
        if (free != 0)
            return free < 0 ? -1 : b;
    }
    for (int b = bodies + 1; b <= max_bodies; ++b) {
        if (io->set_value("standard number_of_bodies %d", b) != 0) {
            report("Error: Unable to set number of bodies");
            return -1;
        }
        const int free = body_is_free(b);
        if (free != 0)
            return free < 0 ? -1 : b;
    }
    return 0;
}

void AddInertialSensorDlg::on_pushButton_apply_clicked()
{
    WaitCursor cursor;
    io->set_timeout(false, 10000, false);
    int max_bodies = 0;
    if (io->get_int(&max_bodies, "standard max_number_of_bodies") != 0) {
        report("Error: Unable to get max number of bodies");
        return;
    }
    max_bodies = qBound(0, max_bodies, SaneCount);
    const bool storage_known = VersionGate::available(backend_versions, 1, 21);

    QList<Sensor> not_added;
    bool processed = false;
    QTableWidget* table = ui->tableWidget;
    const QSignalBlocker blocker(table);
    for (int row = 0; row < table->rowCount() && row < found.size(); ++row) {
        QTableWidgetItem* accept = table->item(row, ColumnAccept);
        if (!accept || accept->flags() == Qt::NoItemFlags || accept->checkState() != Qt::Checked)
            continue;
        const Sensor& sensor = found.at(row);
        processed = true;

        char reply[IOManager::ReplyCapacity] = {};
        const QByteArray line = QStringLiteral("%1 %2 %3 %4")
                                    .arg(sensor.vendor, sensor.model, sensor.serial)
                                    .arg(sensor.channel)
                                    .toLatin1();
        if (io->send_command(reply, "norvane inertial add_sensor %s", line.constData()) != 0) {
            report("Error: Unable to add sensor");
            return;
        }
        if (std::strncmp(reply, "norvane ok", sizeof reply) != 0) {
            cursor.restore();
            const QString why = ControllerText::withoutSingleQuotes(ControllerText::reply(reply));
            QMessageBox::information(this, tr("Information"), tr("Could not add sensor ") + why,
                                     QMessageBox::Ok);
            return;
        }

        int bodies = 0;
        if (io->get_int(&bodies, "standard number_of_bodies") != 0) {
            report("Error: Unable to get number of bodies");
            return;
        }
        bodies = qBound(0, bodies, SaneCount);
        const QByteArray key =
            QStringLiteral("%1 %2 %3").arg(sensor.vendor, sensor.model, sensor.serial).toLatin1();

        if (storage_known) {
            bool has_storage = true;
            if (io->get_bool(&has_storage, "inertial sensor_has_storage %s", key.constData()) != 0) {
                report("Error: Unable to get whether sensor has storage");
                has_storage = true;
            }
            if (!has_storage) {
                // Such a sensor is not tracked on a body of its own.
                accept->setFlags(Qt::NoItemFlags);
                continue;
            }
        }

        const int body = find_free_body(bodies, max_bodies);
        if (body < 0)
            return;
        if (body == 0) {
            not_added << sensor;
            continue;
        }
        if (io->set_value("body inertial_sensor standard b%.2d %s", body, key.constData()) != 0) {
            report("Error: Unable to set inertial sensor to body");
            return;
        }
        accept->setFlags(Qt::NoItemFlags);
    }

    if (processed) {
        if (auto* settings = qobject_cast<InertialSettingsDlg*>(parent_dialog))
            settings->update_table();
    }
    // A sensor that found no body stays on the controller only until here:
    // it is taken off again and the user told which ones, by serial.
    QString unplaced;
    for (const Sensor& sensor : not_added) {
        char reply[IOManager::ReplyCapacity] = {};
        io->send_command(reply, "norvane inertial delete_sensor %s %s %s",
                         sensor.vendor.toLatin1().constData(), sensor.model.toLatin1().constData(),
                         sensor.serial.toLatin1().constData());
        unplaced += QLatin1Char('\n') + sensor.serial;
    }
    cursor.restore();
    enable_if_possible_pushButton_apply(true);

    if (!not_added.isEmpty()) {
        QMessageBox::warning(this, tr("Sensor adding failed"),
                             tr("Following sensors are not added:\n") + unplaced
                                 + tr("\n\n because the maximum number of bodies is reached."));
    }
}

void AddInertialSensorDlg::on_pushButton_cancel_clicked()
{
    abort_scan = true;
    // A scan halted by Escape has no tick left to see the flag: give it one.
    if (scanning && !scan_timer.isActive())
        scan_timer.start();
}

void AddInertialSensorDlg::on_pushButton_exit_clicked()
{
    hide();
}

void AddInertialSensorDlg::reject()
{
    // Escape halts a running scan but never closes the dialog: a user
    // hammering Escape to stop the radio must not lose the sensors found.
    if (scan_timer.isActive())
        scan_timer.stop();
}

void AddInertialSensorDlg::closeEvent(QCloseEvent* event)
{
    if (ui->pushButton_cancel->isEnabled()) {
        event->ignore();
        return;
    }
    scan_timer.stop();
    scanning = false;
    event->accept();
}

void AddInertialSensorDlg::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F3 && event->modifiers() == Qt::NoModifier) {
        if (ui->pushButton_scan->isEnabled())
            on_pushButton_scan_clicked();
        return;
    }
    QDialog::keyPressEvent(event);
}
