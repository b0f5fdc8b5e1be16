#include "SimCommands.h"

#include "SimArgs.h"
#include "SimModel.h"

namespace {

bool awake(const SimModel& m, const SimModel::Sensor& s)
{
    return !s.asleep && s.battery > 0.0 && s.appears_at_ms <= m.now();
}

QByteArray scan_line(const SimModel::Sensor& s, int channel)
{
    return s.identity() + ' ' + QByteArray::number(channel);
}

// Everything one scan channel hears: sensors waiting to be paired and the
// paired ones that happen to be there.
void listen(const SimModel& m, const SimModel::ScanSlot& slot, QList<QByteArray>* found)
{
    const auto heard = [&](const SimModel::Sensor& s) {
        if (!awake(m, s) || s.cable != slot.usb || (!slot.usb && s.channel != slot.channel))
            return;
        const QByteArray line = scan_line(s, slot.usb ? 0 : s.channel);
        if (!found->contains(line))
            found->append(line);
    };
    for (const SimModel::Sensor& s : m.waiting)
        heard(s);
    for (const SimModel::Sensor& s : m.sensors)
        heard(s);
}

SimResult scan_sensors(SimModel& m, SimArgs& a)
{
    if (!a.end())
        return a.error();
    if (m.scan_slots.isEmpty())
        return SimResult::error(SimResult::WrongState, "no scan channel is set up");
    QList<QByteArray> found;
    for (int i = 0; i < m.scan_slots.size(); ++i) {
        const SimModel::ScanSlot& slot = m.scan_slots.at(i);
        if (!slot.set)
            return SimResult::error(SimResult::WrongState,
                                    "scan channel t" + QByteArray::number(i + 1).rightJustified(2, '0')
                                        + " is not set");
        if (!slot.usb) {
            const SimModel::Transceiver* t = m.transceiver(slot.transceiver);
            if (!t || !t->present)
                return SimResult::error(SimResult::Unreachable,
                                        "transceiver " + slot.transceiver + " is not reachable");
        }
        listen(m, slot, &found);
    }
    m.scan_results = found;
    m.scan_done = true;
    m.scan_polls_left = m.scan_pending_polls;
    SimResult result = SimResult::done();
    result.delay_ms = m.scan_delay_ms;
    return result;
}

SimResult scan_channels(SimModel& m, SimArgs& a)
{
    if (!a.end())
        return a.error();
    bool any = false;
    for (SimModel::Transceiver& t : m.transceivers) {
        if (!t.present)
            continue;
        ++t.scans;
        any = true;
    }
    if (!any)
        return SimResult::error(SimResult::Unreachable, "no transceiver is connected");
    SimResult result = SimResult::done();
    result.delay_ms = m.channel_scan_delay_ms;
    return result;
}

SimResult add_sensor(SimModel& m, SimArgs& a)
{
    const QByteArray id = a.identity("sensor");
    const int channel = a.integer("channel");
    if (!a.end())
        return a.error();
    if (m.sensor(id))
        return SimResult::error(SimResult::WrongState, "sensor " + id + " is already added");
    if (m.sensors.size() >= m.max_sensors)
        return SimResult::error(SimResult::OutOfRange,
                                "no more than " + QByteArray::number(m.max_sensors) + " sensors");
    int index = -1;
    for (int i = 0; i < m.waiting.size() && index < 0; ++i) {
        const SimModel::Sensor& w = m.waiting.at(i);
        if (w.identity() == id && awake(m, w) && (channel == 0 ? w.cable : !w.cable && w.channel == channel))
            index = i;
    }
    if (index < 0)
        return SimResult::error(SimResult::NoSuchItem, "no sensor " + id + " on "
                                    + (channel == 0 ? QByteArray("USB") : "channel " + QByteArray::number(channel)));
    SimModel::Sensor sensor = m.waiting.at(index);
    if (!sensor.cable) {
        // Paired through the transceiver on its channel; failing that, the
        // controller moves the sensor to the first transceiver's channel.
        const SimModel::Transceiver* through = nullptr;
        for (const SimModel::Transceiver& t : m.transceivers)
            if (t.present && (!through || (t.channel == channel && through->channel != channel)))
                through = &t;
        if (!through)
            return SimResult::error(SimResult::Unreachable, "no transceiver is connected");
        sensor.transceiver = through->serial;
        sensor.channel = through->channel;
    }
    m.waiting.removeAt(index);
    m.sensors.append(sensor);
    return SimResult::done();
}

SimResult delete_sensor(SimModel& m, SimArgs& a)
{
    const QByteArray id = a.identity("sensor");
    if (!a.end())
        return a.error();
    const int index = m.sensor_index(id);
    if (index < 0)
        return SimResult::error(SimResult::NoSuchItem, "unknown sensor " + id);
    if (m.calibration.running())
        return SimResult::error(SimResult::WrongState, "a calibration is running");
    m.detach_sensor(id);
    // Still out there: a later scan finds it again.
    SimModel::Sensor sensor = m.sensors.takeAt(index);
    sensor.gyro_marked = false;
    sensor.handeye_marked = false;
    sensor.has_new_gyro = false;
    sensor.has_new_handeye = false;
    sensor.handeye.clear();
    m.waiting.append(sensor);
    if (m.sensors.isEmpty())
        m.warmup = false;
    return SimResult::done();
}

SimResult accept_gyro(SimModel& m, SimArgs& a)
{
    SimModel::Sensor* s = a.sensor(m);
    if (!a.end())
        return a.error();
    if (!s->has_new_gyro)
        return SimResult::error(SimResult::WrongState, "no new gyroscope calibration of " + s->identity());
    s->gyro_residual = s->new_gyro_residual;
    s->has_new_gyro = false;
    return SimResult::done();
}

SimResult accept_handeye(SimModel& m, SimArgs& a)
{
    SimModel::Sensor* s = a.sensor(m);
    if (!a.end())
        return a.error();
    if (!s->has_new_handeye)
        return SimResult::error(SimResult::WrongState, "no new hand-eye calibration of " + s->identity());
    const QByteArray body = m.body_of_sensor(s->identity());
    if (body == "none")
        return SimResult::error(SimResult::WrongState, "sensor " + s->identity() + " is on no body");
    s->handeye = body;
    s->has_new_handeye = false;
    return SimResult::done();
}

SimResult tracking_start(SimModel& m, SimArgs& a)
{
    if (!a.end())
        return a.error();
    if (m.calibration.running())
        return SimResult::error(SimResult::WrongState, "a calibration is running");
    if (!m.tracking_available)
        return SimResult::error(SimResult::NotAvailable, "no camera is connected");
    m.tracking = true;
    m.calibration.clear_failure();
    return SimResult::done();
}

SimResult tracking_stop(SimModel& m, SimArgs& a)
{
    if (!a.end())
        return a.error();
    m.tracking = false;
    return SimResult::done();
}

SimResult calibration(SimModel& m, SimArgs& a)
{
    const SimCalibration::Type* type = a.calibration_type(m);
    const QByteArray action = a.word("action");
    if (a.failed())
        return a.error();
    const bool other = m.calibration.running() && m.calibration.running_type() != type->id;
    if (action == "start") {
        if (!a.end())
            return a.error();
        return m.calibration.start(type->id, m);
    }
    if (action == "stop") {
        if (!a.end())
            return a.error();
        if (other)
            return SimResult::error(SimResult::WrongState,
                                    "calibration " + m.calibration.running_type() + " is running");
        return m.calibration.running() ? m.calibration.stop() : SimResult::done();
    }
    if (action == "start_step") {
        const int step = a.index('s', "step");
        if (!a.end())
            return a.error();
        if (other || !m.calibration.running())
            return SimResult::error(SimResult::WrongState, "calibration " + type->id + " is not running");
        return m.calibration.start_step(step);
    }
    return SimResult::error(SimResult::UnknownPath, "unknown command cal " + type->id + ' ' + action);
}

} // namespace

const SimHandlerTable& SimCommands::table()
{
    static const SimHandlerTable commands = {
        {"inertial scan_sensors", scan_sensors},
        {"inertial scan_transceiver_radio_channels", scan_channels},
        {"inertial add_sensor", add_sensor},
        {"inertial delete_sensor", delete_sensor},
        {"inertial accept_new_sensor_gyro", accept_gyro},
        {"inertial accept_new_sensor_handeye", accept_handeye},
        {"tracking start", tracking_start},
        {"tracking stop", tracking_stop},
        {"cal", calibration},
    };
    return commands;
}
