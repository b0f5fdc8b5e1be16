#include "TrackingPulsePage.h"

#include <cmath>

#include "InertialSettingsDlg.h"
#include "module/BackendVersions.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/ListLimits.h"
#include "module/SensorIdentity.h"
#include "module/VersionGate.h"
#include "ui_InertialSettingsDlg.h"

namespace {

constexpr double LowestFrequency = 10.0;
constexpr double HighestFrequency = 1000.0;
// A frame of this kind cannot process more.
constexpr double HighestFrameFrequency = 400.0;
constexpr double CameraFallback = 60.0;
constexpr double SensorFallback = 100.0;

const QString Cameras = QStringLiteral("synchronous_cameras");
const QString Sensor = QStringLiteral("inertial_sensor");
const QString Frequency = QStringLiteral("frequency");

// The second word of "frequency 120"; false when there is none or it is no number.
bool second_number(const QString& reply, double* value)
{
    const QStringList words = reply.simplified().split(QLatin1Char(' '));
    bool ok = false;
    const double number = words.size() >= 2 ? words.at(1).toDouble(&ok) : 0.0;
    if (ok && std::isfinite(number))
        *value = number;
    return ok && std::isfinite(number);
}

} // namespace

TrackingPulsePage::TrackingPulsePage(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io,
                                     BackendVersions* versions)
    : dialog(dialog), ui(ui), io(io), versions(versions), changed(false), user_edits(true)
{
}

bool TrackingPulsePage::supported() const
{
    return VersionGate::available(versions, 1, 21);
}

void TrackingPulsePage::report(const QString& text) const
{
    ControllerText::report(io, text);
}

void TrackingPulsePage::enableInertialControls(bool locked, bool inertial_available)
{
    ui->frame_trackingPulse->setEnabled(supported() && !locked && inertial_available);
    activateInertialControls();
}

void TrackingPulsePage::activateInertialControls()
{
    const bool sensors = ui->comboBox_inertialSensor->count() > 0;
    if (ui->radioButton_cameraSynchronous->isChecked()) {
        ui->doubleSpinBox_frequency_2->setEnabled(false);
        ui->comboBox_inertialSensor->setEnabled(false);
    } else if (ui->radioButton_frequency->isChecked()) {
        ui->doubleSpinBox_frequency_2->setEnabled(true);
        ui->comboBox_inertialSensor->setEnabled(false);
    } else if (ui->radioButton_inertialSensor->isChecked()) {
        ui->doubleSpinBox_frequency_2->setEnabled(false);
        ui->comboBox_inertialSensor->setEnabled(sensors);
    } else {
        ui->doubleSpinBox_frequency_2->setEnabled(true);
        ui->comboBox_inertialSensor->setEnabled(sensors);
    }
}

void TrackingPulsePage::refresh(bool inertial_available)
{
    update_spinBox_frequency();
    update_comboBox_inertialSensor(inertial_available);
    update_radioButtonsInertial();
    activateInertialControls();
}

void TrackingPulsePage::update_spinBox_frequency()
{
    if (!supported())
        return;
    const double upper = versions->system_type == QLatin1String("PORTAFRAME") ? HighestFrameFrequency
                                                                              : HighestFrequency;
    char reply[IOManager::ReplyCapacity];
    QString pulse = Cameras;
    if (io->get_string(reply, "tracking pulse") == 0)
        pulse = ControllerText::reply(reply);
    else
        report(tr("Error: Unable to info of tracking frequency type"));

    double value = CameraFallback;
    if (pulse.startsWith(Cameras)) {
        if (io->get_double(&value, "synccard output_frequency") != 0 || !(value >= LowestFrequency))
            value = CameraFallback;
    } else if (pulse.startsWith(Sensor)) {
        if (io->get_double(&value, "inertial frequency") != 0) {
            report(tr("Error: Unable to get inertial frequency"));
            value = SensorFallback;
        }
    } else if (pulse.startsWith(Frequency)) {
        if (!second_number(pulse, &value))
            value = SensorFallback;
    }
    user_edits = false;
    ui->doubleSpinBox_frequency_2->setMinimum(LowestFrequency);
    ui->doubleSpinBox_frequency_2->setMaximum(upper);
    ui->doubleSpinBox_frequency_2->setValue(value);
    user_edits = true;
}

void TrackingPulsePage::update_comboBox_inertialSensor(bool inertial_available)
{
    if (!inertial_available || !supported())
        return;
    const bool edits = user_edits;
    user_edits = false;
    int count = 0;
    if (io->get_int(&count, "inertial number_of_sensors") != 0) {
        report(tr("Error: Unable to get number of inertial sensors"));
        count = 0;
    }
    ui->comboBox_inertialSensor->clear();
    count = ListLimits::bounded(count);
    char reply[IOManager::ReplyCapacity];
    for (int i = 1; i <= count; ++i) {
        if (io->get_string(reply, "inertial sensor d%.2d", i) != 0) {
            report(tr("Error: Unable to get serial number of inertial sensor"));
            continue;
        }
        const QString line = ControllerText::reply(reply);
        const SensorIdentity sensor = SensorIdentity::parse(line);
        if (!sensor.isValid()) {
            report(tr("Error: Unable to get vendor model of inertial sensor"));
            continue;
        }
        if (io->get_string(reply, "inertial body_of_sensor %s", ControllerText::latin(line).constData()) != 0) {
            report(tr("Error: Unable to get body of sensor sensor"));
            continue;
        }
        // Only a sensor on a body can clock the output.
        if (ControllerText::reply(reply) == QLatin1String("none") || sensor.serial().isEmpty())
            continue;
        if (dialog->isSensorPresent(line))
            ui->comboBox_inertialSensor->addItem(ControllerText::withoutSingleQuotes(sensor.serial()), line);
    }
    user_edits = edits;
}

void TrackingPulsePage::update_radioButtonsInertial()
{
    if (!supported())
        return;
    user_edits = false;
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "tracking pulse") != 0) {
        report(tr("Error: Unable to info of frequency type"));
        user_edits = true;
        return;
    }
    const QString pulse = ControllerText::reply(reply);
    if (pulse.startsWith(Frequency)) {
        ui->radioButton_frequency->setChecked(true);
        double value = 0.0;
        if (second_number(pulse, &value))
            ui->doubleSpinBox_frequency_2->setValue(value);
    } else if (pulse.startsWith(Sensor)) {
        ui->radioButton_inertialSensor->setChecked(true);
        const QString line = pulse.mid(Sensor.size()).trimmed();
        const int index = ui->comboBox_inertialSensor->findData(line);
        if (index >= 0)
            ui->comboBox_inertialSensor->setCurrentIndex(index);
    } else {
        ui->radioButton_cameraSynchronous->setChecked(true);
    }
    user_edits = true;
}

void TrackingPulsePage::on_radioButton_toggled()
{
    activateInertialControls();
    user_changed();
}

void TrackingPulsePage::user_changed()
{
    if (user_edits)
        changed = true;
}

void TrackingPulsePage::sendTrackingPulseSettingsToAtc()
{
    if (!changed)
        return;
    if (!supported()) {
        report(tr("Error: Unable to set inertial tracking settings"));
        return;
    }
    if (ui->radioButton_cameraSynchronous->isChecked()) {
        if (io->set_value("tracking pulse synchronous_cameras") != 0)
            report(tr("Error: Unable to set inertial tracking synchronous to cameras"));
    } else if (ui->radioButton_inertialSensor->isChecked()) {
        const QByteArray line = ControllerText::latin(ui->comboBox_inertialSensor->currentData().toString());
        if (io->set_value("tracking pulse inertial_sensor %s", line.constData()) != 0)
            report(tr("Error: Unable to set inertial tracking to sensor"));
    } else if (ui->radioButton_frequency->isChecked()) {
        if (io->set_value("tracking pulse frequency %f", ui->doubleSpinBox_frequency_2->value()) != 0)
            report(tr("Error: Unable to set inertial tracking frequency"));
    }
    changed = false;
}
