#include "InertialParameters.h"

#include <cmath>

#include "SimArgs.h"
#include "SimFormat.h"
#include "SimModel.h"

namespace {

SimResult unreachable(const QByteArray& what)
{
    return SimResult::error(SimResult::Unreachable, what + " is not reachable");
}

QByteArray description(const QMap<QByteArray, QByteArray>& table, const QByteArray& key,
                       SimArgs& args)
{
    if (!args.failed() && !table.contains(key))
        args.fail(SimResult::NoSuchItem, "unknown device type " + key);
    return SimFormat::quoted(table.value(key));
}

// A sensor that must answer live: asleep or out of reach it cannot.
SimModel::Sensor* live_sensor(SimModel& m, SimArgs& a)
{
    SimModel::Sensor* s = a.sensor(m);
    if (s && !m.present(*s))
        a.fail(SimResult::Unreachable, "sensor " + s->identity() + " is not reachable");
    return s;
}

QByteArray sensor_channel(const SimModel::Sensor& s)
{
    return s.cable ? QByteArray("usb") : QByteArray::number(s.channel);
}

// A radio channel the sensor's transceivers can use.
bool channel_usable(const SimModel& m, const SimModel::Sensor& s, int channel)
{
    const SimModel::Transceiver* t = m.serving_transceiver(s);
    if (t && t->available.contains(channel))
        return true;
    for (const SimModel::Transceiver& other : m.transceivers)
        if (other.available.contains(channel))
            return true;
    return false;
}

} // namespace

const SimHandlerTable& InertialParameters::queries()
{
    static const SimHandlerTable table = {
        {"inertial available", [](SimModel& m, SimArgs& a) { return a.answer(SimFormat::yes_no(m.inertial_available)); }},
        {"inertial number_of_sensors", [](SimModel& m, SimArgs& a) { return a.answer(QByteArray::number(m.sensors.size())); }},
        {"inertial sensor", [](SimModel& m, SimArgs& a) {
             const int i = a.index('d', "sensor index");
             if (!a.failed() && i > m.sensors.size())
                 a.fail(SimResult::NoSuchItem, "no sensor " + QByteArray::number(i));
             return a.answer(a.failed() ? QByteArray() : m.sensors.at(i - 1).identity());
         }},
        {"inertial sensor_present", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? SimFormat::yes_no(m.present(*s)) : QByteArray());
         }},
        {"inertial body_of_sensor", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? m.body_of_sensor(s->identity()) : QByteArray());
         }},
        {"inertial sensor_vendor_desc", [](SimModel& m, SimArgs& a) {
             const QByteArray vendor = a.word("vendor");
             return a.answer(description(m.vendor_desc, vendor, a));
         }},
        {"inertial sensor_model_desc", [](SimModel& m, SimArgs& a) {
             const QByteArray vendor = a.word("vendor");
             const QByteArray model = a.word("model");
             return a.answer(description(m.model_desc, vendor + ' ' + model, a));
         }},
        {"inertial sensor_version", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? '\'' + s->version + '\'' : QByteArray());
         }},
        {"inertial sensor_battery", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = live_sensor(m, a);
             return a.answer(s ? SimFormat::real(s->battery) : QByteArray());
         }},
        {"inertial sensor_temperature", [](SimModel& m, SimArgs& a) {
             // The sensor's temperature, then the one it counts as warm at.
             const SimModel::Sensor* s = live_sensor(m, a);
             return a.answer(s ? SimFormat::real(std::round(s->temperature * 10.0) / 10.0) + ' '
                                     + SimFormat::real(m.operating_temperature)
                               : QByteArray());
         }},
        {"inertial sensor_output_frequency", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = live_sensor(m, a);
             return a.answer(s ? SimFormat::real(m.output_frequency(*s)) : QByteArray());
         }},
        {"inertial sensor_radio_channel", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? sensor_channel(*s) : QByteArray());
         }},
        {"inertial sensor_wakeup_mode", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? s->wakeup_mode : QByteArray());
         }},
        {"inertial sensor_wakeup_mode_available", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             const QByteArray mode = a.word("wake-up mode");
             if (!a.failed() && !m.wakeup_mode(mode))
                 a.fail(SimResult::NoSuchItem, "unknown wake-up mode " + mode);
             return a.answer(s ? SimFormat::yes_no(s->wakeup_modes.contains(mode)) : QByteArray());
         }},
        {"inertial sensor_sleep_timeout", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? QByteArray::number(s->sleep_timeout) : QByteArray());
         }},
        {"inertial number_of_wakeup_modes", [](SimModel& m, SimArgs& a) { return a.answer(QByteArray::number(m.wakeup_modes.size())); }},
        {"inertial wakeup_mode", [](SimModel& m, SimArgs& a) {
             const int i = a.index('t', "wake-up mode index");
             if (!a.failed() && i > m.wakeup_modes.size())
                 a.fail(SimResult::NoSuchItem, "no wake-up mode " + QByteArray::number(i));
             return a.answer(a.failed() ? QByteArray() : m.wakeup_modes.at(i - 1).id);
         }},
        {"inertial wakeup_mode_desc", [](SimModel& m, SimArgs& a) {
             const QByteArray id = a.word("wake-up mode");
             const SimModel::WakeupMode* mode = a.failed() ? nullptr : m.wakeup_mode(id);
             if (!a.failed() && !mode)
                 a.fail(SimResult::NoSuchItem, "unknown wake-up mode " + id);
             return a.answer(mode ? mode->desc : QByteArray());
         }},
        {"inertial frequency", [](SimModel& m, SimArgs& a) { return a.answer(SimFormat::real(m.frequency)); }},
        {"inertial limit", [](SimModel& m, SimArgs& a) {
             const QByteArray what = a.word("limit");
             if (!a.failed() && what != "frequency")
                 a.fail(SimResult::UnknownPath, "unknown parameter inertial limit " + what);
             return a.answer(SimFormat::real(m.frequency_min) + ' ' + SimFormat::real(m.frequency_max));
         }},
        {"inertial warmup", [](SimModel& m, SimArgs& a) { return a.answer(SimFormat::yes_no(m.warmup)); }},
        {"inertial warmup_status", [](SimModel& m, SimArgs& a) { return a.answer(SimFormat::real(m.warmup_status())); }},
        {"inertial number_of_transceivers", [](SimModel& m, SimArgs& a) { return a.answer(QByteArray::number(m.transceivers.size())); }},
        {"inertial transceiver", [](SimModel& m, SimArgs& a) {
             const int i = a.index('d', "transceiver index");
             if (!a.failed() && i > m.transceivers.size())
                 a.fail(SimResult::NoSuchItem, "no transceiver " + QByteArray::number(i));
             return a.answer(a.failed() ? QByteArray() : m.transceivers.at(i - 1).identity());
         }},
        {"inertial transceiver_present", [](SimModel& m, SimArgs& a) {
             const SimModel::Transceiver* t = a.transceiver(m);
             return a.answer(t ? SimFormat::yes_no(t->present) : QByteArray());
         }},
        {"inertial transceiver_vendor_desc", [](SimModel& m, SimArgs& a) {
             const QByteArray vendor = a.word("vendor");
             return a.answer(description(m.vendor_desc, vendor, a));
         }},
        {"inertial transceiver_model_desc", [](SimModel& m, SimArgs& a) {
             const QByteArray vendor = a.word("vendor");
             const QByteArray model = a.word("model");
             return a.answer(description(m.model_desc, vendor + ' ' + model, a));
         }},
        {"inertial transceiver_version", [](SimModel& m, SimArgs& a) {
             const SimModel::Transceiver* t = a.transceiver(m);
             return a.answer(t ? SimFormat::quoted(t->version) : QByteArray());
         }},
        {"inertial transceiver_of_sensor", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             const SimModel::Transceiver* t = s ? m.serving_transceiver(*s) : nullptr;
             return a.answer(t ? t->identity() : QByteArray("none"));
         }},
        {"inertial transceiver_radio_channel", [](SimModel& m, SimArgs& a) {
             const SimModel::Transceiver* t = a.transceiver(m);
             return a.answer(t ? QByteArray::number(t->channel) : QByteArray());
         }},
        {"inertial transceiver_suggested_radio_channel", [](SimModel& m, SimArgs& a) {
             const SimModel::Transceiver* t = a.transceiver(m);
             return a.answer(t ? QByteArray::number(m.suggested_channel(*t)) : QByteArray());
         }},
        {"inertial number_of_transceiver_available_radio_channels", [](SimModel& m, SimArgs& a) {
             const SimModel::Transceiver* t = a.transceiver(m);
             return a.answer(t ? QByteArray::number(t->available.size()) : QByteArray());
         }},
        {"inertial transceiver_available_radio_channel", [](SimModel& m, SimArgs& a) {
             const SimModel::Transceiver* t = a.transceiver(m);
             const int i = a.index('t', "channel index");
             if (t && !a.failed() && i > t->available.size())
                 a.fail(SimResult::NoSuchItem, "no available channel " + QByteArray::number(i));
             return a.answer(a.failed() ? QByteArray() : QByteArray::number(t->available.at(i - 1)));
         }},
        {"inertial transceiver_radio_channel_activity", [](SimModel& m, SimArgs& a) {
             const SimModel::Transceiver* t = a.transceiver(m);
             const int channel = a.integer("channel");
             return a.answer(t ? SimFormat::real(m.channel_activity(*t, channel)) : QByteArray());
         }},
        {"inertial number_of_scan_channels", [](SimModel& m, SimArgs& a) { return a.answer(QByteArray::number(m.scan_slots.size())); }},
        {"inertial number_of_scanned_sensors", [](SimModel& m, SimArgs& a) {
             if (!a.end())
                 return a.error();
             // The scan's last moments: the poll sees "not yet" a few times.
             if (m.scan_polls_left > 0) {
                 --m.scan_polls_left;
                 return SimResult::answer("-1");
             }
             return SimResult::answer(QByteArray::number(m.scan_done ? m.scan_results.size() : 0));
         }},
        {"inertial scanned_sensor", [](SimModel& m, SimArgs& a) {
             const int i = a.index('d', "scanned sensor index");
             if (!a.failed() && (m.scan_polls_left > 0 || i > m.scan_results.size()))
                 a.fail(SimResult::NoSuchItem, "no scanned sensor " + QByteArray::number(i));
             return a.answer(a.failed() ? QByteArray() : m.scan_results.at(i - 1));
         }},
        {"inertial sensor_has_storage", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? SimFormat::yes_no(s->storage) : QByteArray());
         }},
        {"inertial sensor_handeye", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(!s ? QByteArray() : s->handeye.isEmpty() ? QByteArray("none") : s->handeye);
         }},
        {"inertial sensor_gyro_calibrate", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? SimFormat::yes_no(s->gyro_marked) : QByteArray());
         }},
        {"inertial sensor_gyro_progress", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? SimFormat::real(m.calibration.sensor_progress(s->identity())) : QByteArray());
         }},
        {"inertial new_sensor_gyro_residual", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             if (s && !s->has_new_gyro)
                 a.fail(SimResult::WrongState, "no new gyroscope calibration of " + s->identity());
             return a.answer(s ? SimFormat::real(s->new_gyro_residual) : QByteArray());
         }},
        {"inertial sensor_handeye_calibrate", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             return a.answer(s ? SimFormat::yes_no(s->handeye_marked) : QByteArray());
         }},
        {"inertial new_sensor_delay", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             if (s && !s->has_new_handeye)
                 a.fail(SimResult::WrongState, "no new hand-eye calibration of " + s->identity());
             return a.answer(s ? SimFormat::real(s->new_handeye.delay_ms) : QByteArray());
         }},
        {"inertial new_sensor_handeye_residual", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             if (s && !s->has_new_handeye)
                 a.fail(SimResult::WrongState, "no new hand-eye calibration of " + s->identity());
             return a.answer(s ? SimFormat::real(s->new_handeye.residual) : QByteArray());
         }},
        {"inertial new_sensor_handeye", [](SimModel& m, SimArgs& a) {
             const SimModel::Sensor* s = a.sensor(m);
             if (s && !s->has_new_handeye)
                 a.fail(SimResult::WrongState, "no new hand-eye calibration of " + s->identity());
             QByteArray numbers;
             if (s)
                 for (double v : s->new_handeye.values)
                     numbers += (numbers.isEmpty() ? "" : " ") + SimFormat::real(v);
             return a.answer(numbers);
         }},
    };
    return table;
}

const SimHandlerTable& InertialParameters::settings()
{
    static const SimHandlerTable table = {
        {"inertial sensor_radio_channel", [](SimModel& m, SimArgs& a) {
             SimModel::Sensor* s = live_sensor(m, a);
             const int channel = a.integer("channel");
             if (!a.end())
                 return a.error();
             if (s->cable)
                 return SimResult::error(SimResult::WrongState, "sensor " + s->identity() + " is on cable");
             if (!channel_usable(m, *s, channel))
                 return SimResult::error(SimResult::OutOfRange, "channel " + QByteArray::number(channel) + " is not available");
             s->channel = channel;
             return SimResult::done();
         }},
        {"inertial sensor_wakeup_mode", [](SimModel& m, SimArgs& a) {
             SimModel::Sensor* s = live_sensor(m, a);
             const QByteArray mode = a.word("wake-up mode");
             if (!a.end())
                 return a.error();
             if (!m.wakeup_mode(mode))
                 return SimResult::error(SimResult::NoSuchItem, "unknown wake-up mode " + mode);
             if (!s->wakeup_modes.contains(mode))
                 return SimResult::error(SimResult::OutOfRange, "sensor " + s->identity() + " does not support " + mode);
             s->wakeup_mode = mode;
             return SimResult::done();
         }},
        {"inertial sensor_sleep_timeout", [](SimModel& m, SimArgs& a) {
             SimModel::Sensor* s = live_sensor(m, a);
             const int minutes = a.integer("sleep timeout");
             if (!a.end())
                 return a.error();
             if (minutes < 0 || minutes > 240)
                 return SimResult::error(SimResult::OutOfRange, "sleep timeout must be 0 to 240 minutes");
             s->sleep_timeout = minutes;
             return SimResult::done();
         }},
        {"inertial frequency", [](SimModel& m, SimArgs& a) {
             const double f = a.real("frequency");
             if (!a.end())
                 return a.error();
             if (f < m.frequency_min || f > m.frequency_max)
                 return SimResult::error(SimResult::OutOfRange, "frequency must be " + SimFormat::real(m.frequency_min)
                                                                    + " to " + SimFormat::real(m.frequency_max) + " Hz");
             m.frequency = f;
             return SimResult::done();
         }},
        {"inertial warmup", [](SimModel& m, SimArgs& a) {
             const bool on = a.yes_no("warm-up");
             if (!a.end())
                 return a.error();
             if (on && m.sensors.isEmpty())
                 return SimResult::error(SimResult::WrongState, "no sensor to warm up");
             m.warmup = on;
             return SimResult::done();
         }},
        {"inertial transceiver_radio_channel", [](SimModel& m, SimArgs& a) {
             SimModel::Transceiver* t = a.transceiver(m);
             const int channel = a.integer("channel");
             if (!a.end())
                 return a.error();
             if (!t->present)
                 return unreachable("transceiver " + t->identity());
             if (!t->available.contains(channel))
                 return SimResult::error(SimResult::OutOfRange, "channel " + QByteArray::number(channel) + " is not available");
             t->channel = channel;
             return SimResult::done();
         }},
        {"inertial number_of_scan_channels", [](SimModel& m, SimArgs& a) {
             const int n = a.integer("number of scan channels");
             if (!a.end())
                 return a.error();
             if (n < 0 || n > 8)
                 return SimResult::error(SimResult::OutOfRange, "number of scan channels must be 0 to 8");
             m.scan_slots = QList<SimModel::ScanSlot>();
             for (int i = 0; i < n; ++i)
                 m.scan_slots.append(SimModel::ScanSlot());
             // Ending the scan mode drops the results of the last scan.
             m.scan_results.clear();
             m.scan_done = false;
             m.scan_polls_left = 0;
             return SimResult::done();
         }},
        {"inertial scan_transceiver_channel", [](SimModel& m, SimArgs& a) {
             const int slot = a.index('t', "scan channel");
             if (!a.failed() && slot > m.scan_slots.size())
                 a.fail(SimResult::WrongState, "scan channel " + QByteArray::number(slot) + " is not set up");
             SimModel::ScanSlot chosen;
             chosen.set = true;
             if (a.remaining() == 1) {
                 const QByteArray usb = a.word("usb");
                 if (!a.failed() && usb != "usb")
                     a.fail(SimResult::Malformed, "expected usb or a transceiver and a channel");
                 chosen.usb = true;
             } else {
                 const SimModel::Transceiver* t = a.transceiver(m);
                 chosen.channel = a.integer("channel");
                 if (t && !a.failed()) {
                     if (!t->present)
                         a.fail(SimResult::Unreachable, "transceiver " + t->identity() + " is not reachable");
                     else if (!t->available.contains(chosen.channel))
                         a.fail(SimResult::OutOfRange, "channel " + QByteArray::number(chosen.channel) + " is not available");
                     chosen.transceiver = t->identity();
                 }
             }
             if (!a.end())
                 return a.error();
             m.scan_slots[slot - 1] = chosen;
             return SimResult::done();
         }},
        {"inertial sensor_gyro_calibrate", [](SimModel& m, SimArgs& a) {
             SimModel::Sensor* s = a.sensor(m);
             const bool on = a.yes_no("selection");
             if (!a.end())
                 return a.error();
             if (m.calibration.running() && m.calibration.running_type() == SimCalibration::Gyro)
                 return SimResult::error(SimResult::WrongState, "a gyroscope calibration is running");
             if (on && !m.present(*s))
                 return unreachable("sensor " + s->identity());
             s->gyro_marked = on;
             return SimResult::done();
         }},
        {"inertial sensor_handeye_calibrate", [](SimModel& m, SimArgs& a) {
             SimModel::Sensor* s = a.sensor(m);
             const bool on = a.yes_no("selection");
             if (!a.end())
                 return a.error();
             if (m.calibration.running() && m.calibration.running_type() == SimCalibration::HandEye)
                 return SimResult::error(SimResult::WrongState, "a hand-eye calibration is running");
             if (on && !m.present(*s))
                 return unreachable("sensor " + s->identity());
             if (on && m.body_of_sensor(s->identity()) == "none")
                 return SimResult::error(SimResult::WrongState, "sensor " + s->identity() + " is on no body");
             s->handeye_marked = on;
             return SimResult::done();
         }},
    };
    return table;
}
