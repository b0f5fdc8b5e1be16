#include "RadioChannels.h"

#include <QMessageBox>


#include "ChannelComboBox.h"
#include "RadioChannels.h"
#include "SensorChannelCombo.h"
#include "SensorTable.h"
#include "SettingsCells.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/ListLimits.h"
#include "module/VersionGate.h"
#include "ui_InertialSettingsDlg.h"

using namespace SettingsCells;

RadioChannels::RadioChannels(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io) : d(dialog), ui(ui), io(io)
{
}

void RadioChannels::report(const QString& text) const
{
    ControllerText::report(io, text);
}

bool RadioChannels::fill_dongle_channel(int row, const QString& identity)
{
    QTableWidget* table = ui->tableWidget;
    const QByteArray line = ControllerText::latin(identity);
    const int number = row + 1;
    auto* combo = qobject_cast<ChannelComboBox*>(table->cellWidget(row, InertialSettingsDlg::ColChannel));
    if (!combo) {
        combo = new ChannelComboBox(d, identity);
        // Queued: moving the transceiver rebuilds the table, and with it
        // this combo, which must not be destroyed while it reports.
        QObject::connect(combo, &ChannelComboBox::transceiverChannelChosen, d,
                &InertialSettingsDlg::transceiver_channel_chosen, Qt::QueuedConnection);
        table->setCellWidget(row, InertialSettingsDlg::ColChannel, combo);
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
        d->sensor_table->suggestion_missing = true;
    else if (!marked_channels.isEmpty())
        combo->setMarkedChannels(marked_channels.value(identity));
    combo->setUserAction(true);
    return true;
}

QList<int> RadioChannels::available_channels_of(int number, const QString& identity, const QString& failure)
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
    const int count = ListLimits::bounded(reported);
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

void RadioChannels::update_sensor_channel(int row, QString identity, bool present)
{
    if (!present)
        return;
    QString connection = QStringLiteral("2");
    bool answered = false;
    if (VersionGate::available(d->backend_versions, 1, 21)) {
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
        d->sensor_table->remove_cell_widget(row, InertialSettingsDlg::ColChannel);
        QTableWidgetItem* item = d->sensor_table->ensure_item(row, InertialSettingsDlg::ColChannel);
        d->sensor_table->write_flags(item, Qt::ItemIsEnabled);
        item->setTextAlignment(Qt::AlignCenter);
        d->sensor_table->write_text(item, tr("USB"));
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

    auto* combo = qobject_cast<SensorChannelCombo*>(table->cellWidget(row, InertialSettingsDlg::ColChannel));
    if (!combo) {
        combo = new SensorChannelCombo(io, d, identity);
        combo->setFocusPolicy(Qt::StrongFocus);
        combo->installEventFilter(d);
        QStringList channels;
        get_channels(channels, identity);
        for (const QString& offered : qAsConst(channels))
            combo->addItem(offered, offered.toInt());
        combo->showChannel(channel);
        combo->setUserAction(true);
        d->sensor_table->ensure_item(row, InertialSettingsDlg::ColChannel)->setText(QString());
        table->setCellWidget(row, InertialSettingsDlg::ColChannel, combo);
        return;
    }
    combo->showChannel(channel);
}

int RadioChannels::getSensorChannel(const QString& sensor)
{
    int channel = -1;
    if (io->get_int(&channel, "inertial sensor_radio_channel %s", ControllerText::latin(sensor).constData()) != 0) {
        report(tr("Error: Unable to get radio channel of sensor"));
        return -1;
    }
    return channel;
}

void RadioChannels::getChannelsOfDongles(QStringList& out) const
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const auto* combo = qobject_cast<const ChannelComboBox*>(ui->tableWidget->cellWidget(row, InertialSettingsDlg::ColChannel));
        if (combo && combo->channel() > 0)
            out << QString::number(combo->channel());
    }
}

void RadioChannels::get_channels(QStringList& out, const QString& sensor) const
{
    // A sensor can only be handed to a channel some transceiver listens on.
    Q_UNUSED(sensor)
    QStringList channels;
    getChannelsOfDongles(channels);
    channels.removeDuplicates();
    out << channels;
}

void RadioChannels::change_channel_of_dongle(QString transceiver, int channel)
{
    d->wait_cursor_active(true);
    // Sensors first: once the transceiver has moved, those still on the old
    // channel are out of its reach.
    QStringList unreachable;
    for (const QString& sensor : d->sensor_table->get_sensorList_of_dongle(transceiver))
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
    d->sensor_table->update_table();
    d->wait_cursor_active(false);
}

bool RadioChannels::move_sensor(const QString& sensor, int channel)
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

QString RadioChannels::unreachable_text(const QStringList& sensors)
{
    QString text = tr("There are several sensors not available:\n");
    for (const QString& sensor : sensors) {
        QStringList parts{tr("Sensor: ") + sensor};
        char reply[IOManager::ReplyCapacity];
        if (io->get_string(reply, "inertial body_of_sensor %s", ControllerText::latin(sensor).constData()) == 0) {
            const QString body = ControllerText::reply(reply);
            if (body != None && d->sensor_table->checkBodyTypeIdExists(body)
                && io->get_string(reply, "body desc %s", ControllerText::latin(body).constData()) == 0)
                parts << tr("of body: ") + ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
        }
        text += QLatin1Char('\n') + parts.join(QStringLiteral(", "));
    }
    return text + QStringLiteral("\n\n")
           + tr("Press Retry if you want to try again to change the channel of the sensors.");
}

bool RadioChannels::ask_retry(const QString& text)
{
    QMessageBox box(QMessageBox::Warning, tr("Changing Sensor Channel failed"), text, QMessageBox::Retry, d);
    // Cancel is named the default although the box does not carry it; the
    // box's only way out besides Retry is Escape or its close button, which
    // the dialog's eventFilter() turns into Cancel.
    box.setDefaultButton(QMessageBox::Cancel);
    box.installEventFilter(d);
    d->retry_box = &box;
    d->wait_cursor_active(false);
    const int answer = box.exec();
    d->retry_box = nullptr;
    d->wait_cursor_active(true);
    return answer == QMessageBox::Retry;
}

void RadioChannels::set_progressBar_scanAvailableChannels()
{
    ui->progressBar->setFormat(tr("Scanning available channels %p%"));
    ui->progressBar->setValue(0);
    ui->progressBar->setEnabled(true);
    d->wait_cursor_active(true);
}

void RadioChannels::scan_available_channels()
{
    if (d->sensor_table->transceiver_identities.isEmpty())
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
        d->wait_cursor_active(false);
        return;
    }
    scanNeeded = false;
    update_scan_status();
    d->sensor_table->update_table();
    d->wait_cursor_active(false);
}

void RadioChannels::update_scan_status()
{
    QList<QList<int>> channels;
    int total = 0;
    bool counted = true;
    for (int i = 0; i < d->sensor_table->transceiver_identities.size(); ++i) {
        const QString& transceiver = d->sensor_table->transceiver_identities.at(i);
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
    for (int i = 0; i < d->sensor_table->transceiver_identities.size(); ++i) {
        measure_activity(d->sensor_table->transceiver_identities.at(i), channels.at(i));
        done += channels.at(i).size();
        if (!scanNeeded)
            ui->progressBar->setValue(done);
    }
    // A transceiver whose channels could not be counted shows stale marks.
    if (!counted && !d->sensor_table->rebuilding)
        d->sensor_table->update_table();
}

void RadioChannels::scan_transciever_radio_channel_activity(QString transceiver)
{
    const int index = d->sensor_table->transceiver_identities.indexOf(transceiver);
    const QList<int> channels = available_channels_of(
        index + 1, transceiver, tr("Error: Unable to get number of available dongle channels"));
    if (known_available_channels.contains(transceiver))
        measure_activity(transceiver, channels);
}

void RadioChannels::measure_activity(const QString& transceiver, const QList<int>& channels)
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
