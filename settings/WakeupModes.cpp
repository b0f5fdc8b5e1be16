#include "WakeupModes.h"

#include <QPointer>
#include <QTimer>

#include <cmath>

#include "SensorTable.h"
#include "SettingsCells.h"
#include "WakeupModes.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/VersionGate.h"
#include "ui_InertialSettingsDlg.h"

using namespace SettingsCells;

namespace {

QString sensor_line(const InertialSettingsDlg::sensor& s)
{
    return QStringList{s.vendor, s.model, s.serial}.join(QLatin1Char(' '));
}

} // namespace

WakeupModes::WakeupModes(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io) : d(dialog), ui(ui), io(io)
{
}

void WakeupModes::report(const QString& text) const
{
    ControllerText::report(io, text);
}

int WakeupModes::recalled(QString* answer, const QString& identity, const QString& mode)
{
    const QString key = mode.isNull() ? identity : identity + QLatin1Char('\n') + mode;
    const auto known = answers.constFind(key);
    if (known != answers.cend()) {
        *answer = *known;
        return 0;
    }
    char reply[IOManager::ReplyCapacity];
    const QByteArray line = ControllerText::latin(identity);
    const int result = mode.isNull()
                           ? io->get_string(reply, "inertial sensor_wakeup_mode %s", line.constData())
                           : io->get_string(reply, "inertial sensor_wakeup_mode_available %s %s", line.constData(),
                                            ControllerText::latin(mode).constData());
    if (result != 0)
        return result;
    *answer = ControllerText::reply(reply);
    if (answers.isEmpty())
        QTimer::singleShot(0, d, [this] { answers.clear(); });
    answers.insert(key, *answer);
    return 0;
}

void WakeupModes::get_all_wakeup_modes()
{
    all_wakeup_modes.clear();
    if (!d->sensor_table->read_count(&number_of_wakeup_modes, "inertial number_of_wakeup_modes",
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

void WakeupModes::get_available_wakeup_modes_of_sensor(QString identity, QComboBox* combo)
{
    for (auto mode = all_wakeup_modes.cbegin(); mode != all_wakeup_modes.cend(); ++mode) {
        QString available;
        if (recalled(&available, identity, mode.key()) != 0) {
            report(tr("Error: Unable to get available wakeup mode of sensor %1").arg(identity));
            continue;
        }
        if (available == Yes && combo)
            combo->addItem(mode.value(), identity + QLatin1Char(' ') + mode.key());
    }
}

QString WakeupModes::get_wakeup_modeID_of_sensor(QString identity)
{
    QString mode;
    if (recalled(&mode, identity) != 0) {
        report(tr("Error: Unable to get wakeup mode of sensor %1").arg(identity));
        return QString();
    }
    return mode.trimmed();
}

void WakeupModes::update_available_wakeup_modes()
{
    wakeup_mode_of_sensor.clear();
    sensors_of_wakeup_mode.clear();
    for (const InertialSettingsDlg::sensor& s : qAsConst(d->sensor_table->sensor_list)) {
        const QString identity = sensor_line(s);
        const QString active = get_wakeup_modeID_of_sensor(identity);
        if (!active.isEmpty())
            wakeup_mode_of_sensor.insert(identity, active);
        for (auto mode = all_wakeup_modes.cbegin(); mode != all_wakeup_modes.cend(); ++mode) {
            QString available;
            if (recalled(&available, identity, mode.key()) != 0) {
                report(tr("Error: Unable to get available wakeup mode of sensor "));
                continue;
            }
            if (available != Yes)
                continue;
            QStringList& offering = sensors_of_wakeup_mode[mode.key()];
            if (!offering.contains(identity))
                offering << identity;
        }
    }
}

void WakeupModes::update_wakeup_combo(int row, QString identity, bool present)
{
    auto* combo = qobject_cast<QComboBox*>(ui->tableWidget->cellWidget(row, InertialSettingsDlg::ColWakeupMode));
    if (!present) {
        d->sensor_table->write_flags(d->sensor_table->ensure_item(row, InertialSettingsDlg::ColWakeupMode), Qt::ItemIsSelectable);
        return;
    }
    if (combo) {
        select_wakeup_entry(combo, identity, get_wakeup_modeID_of_sensor(identity));
        return;
    }
    combo = new QComboBox(d);
    combo->setFocusPolicy(Qt::StrongFocus);
    combo->installEventFilter(d);
    QObject::connect(combo, SIGNAL(activated(QString)), d, SLOT(wakeup_mode_active(QString)));
    get_available_wakeup_modes_of_sensor(identity, combo);
    select_wakeup_entry(combo, identity, get_wakeup_modeID_of_sensor(identity));
    ui->tableWidget->setCellWidget(row, InertialSettingsDlg::ColWakeupMode, combo);
}

void WakeupModes::select_wakeup_entry(QComboBox* combo, const QString& identity, const QString& mode)
{
    // An unanswered query leaves the last known mode on show.
    if (mode.isEmpty())
        return;
    combo->setCurrentIndex(combo->findData(identity + QLatin1Char(' ') + mode, InertialSettingsDlg::WakeupModeRole));
    combo->setProperty(ModeProperty, mode);
}

void WakeupModes::set_all_sensorWakeupModes_ComboBoxes()
{
    for (int row = 0; row < ui->tableWidget->rowCount(); ++row) {
        const QString identity = d->sensor_table->sensor_identity_of_row(row);
        if (identity.isEmpty())
            continue;
        char reply[IOManager::ReplyCapacity];
        const QString present = d->sensor_table->checked_text(
            io->get_string(reply, "inertial sensor_present %s", ControllerText::latin(identity).constData()), reply,
            QString(), tr("Error: Unable to get informations of sensor"));
        update_wakeup_combo(row, identity, present == Yes);
    }
}

void WakeupModes::set_comboBox_available_modes()
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

void WakeupModes::select_page_mode()
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

void WakeupModes::wakeup_mode_chosen(QComboBox* combo, const QString& text)
{
    if (text.isEmpty() || !combo)
        return;
    const QString data = combo->itemData(combo->findText(text), InertialSettingsDlg::WakeupModeRole).toString();
    // The mode id is the last word; the words before it name the sensor.
    const int blank = data.lastIndexOf(QLatin1Char(' '));
    if (blank <= 0)
        return;
    const QString identity = data.left(blank);
    const QString mode = data.mid(blank + 1);

    // Pending events run while the cursor changes; a refresh among them may
    // replace this combo.
    const QPointer<QComboBox> chosen(combo);
    d->wait_cursor_active(true);
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "inertial sensor_present %s", ControllerText::latin(identity).constData()) != 0
        || ControllerText::reply(reply) != Yes) {
        d->wait_cursor_active(false);
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
    d->wait_cursor_active(false);
}

void WakeupModes::page_mode_chosen(const QString& text)
{
    if (text.isEmpty() || text == None)
        return;
    const QString data = ui->comboBox_mode->currentData(Qt::UserRole).toString();
    if (data.isEmpty())
        return;

    d->wait_cursor_active(true);
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
    d->wait_cursor_active(false);
}

int WakeupModes::set_sensor_wakeup_mode(const QString& identity, QString mode)
{
    answers.clear();
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

void WakeupModes::update_wakeup_and_frequency()
{
    QString range = QStringLiteral("1.0 1000.0");
    bool answered = false;
    if (VersionGate::available(d->backend_versions, 1, 12)) {
        char reply[IOManager::ReplyCapacity];
        const int result = io->get_string(reply, "inertial limit frequency");
        answered = result == 0;
        range = d->sensor_table->checked_text(result, reply, range,
                             tr("Error: Unable to get minimum maximum range of the inertial frequency"));
    }
    limits_read = false;
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
            limits_read = answered;
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

void WakeupModes::set_frequency_limit()
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

void WakeupModes::set_frequency_range(double minimum, double maximum)
{
    frequency_minimum = minimum;
    frequency_maximum = maximum;
    ui->doubleSpinBox_frequency->setRange(minimum, maximum);
}

void WakeupModes::frequency_chosen(double value)
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

void WakeupModes::update_frequency(int row, QString identity, bool present)
{
    QString text;
    if (present && VersionGate::available(d->backend_versions, 1, 21)) {
        double frequency = 0.0;
        if (io->get_double(&frequency, "inertial sensor_output_frequency %s", ControllerText::latin(identity).constData()) != 0)
            report(tr("Error: Unable to get frequency of sensor %1").arg(row + 1));
        else if (frequency > 10.0 && std::isfinite(frequency))
            text = tr("%1 Hz").arg(frequency, 0, 'f', 0);
    }
    // Shown, never edited: a fresh item's flags without editing.
    static const Qt::ItemFlags shown = QTableWidgetItem().flags() & ~Qt::ItemIsEditable;
    QTableWidgetItem* item = d->sensor_table->ensure_item(row, InertialSettingsDlg::ColFrequency);
    d->sensor_table->write_text(item, text);
    item->setTextAlignment(Qt::AlignCenter);
    d->sensor_table->write_flags(item, shown);
}
