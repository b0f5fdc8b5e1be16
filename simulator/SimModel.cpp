#include "SimModel.h"

#include <cmath>

#include "SimFormat.h"

namespace {

constexpr double Hour = 3600.0;

QByteArray identity_of(const QByteArray& vendor, const QByteArray& model, const QByteArray& serial)
{
    return vendor + ' ' + model + " '" + serial + '\'';
}

double approach(double value, double target, double step)
{
    if (value < target)
        return qMin(target, value + step);
    return qMax(target, value - step);
}

} // namespace

QByteArray SimModel::Version::text() const
{
    return QByteArray::number(major) + '.' + QByteArray::number(minor) + '.'
           + QByteArray::number(patch);
}

QByteArray SimModel::Transceiver::identity() const
{
    return identity_of(vendor, model, serial);
}

QByteArray SimModel::Sensor::identity() const
{
    return identity_of(vendor, model, serial);
}

SimModel::SimModel()
{
    // What the controller's firmware brings along, whatever is connected.
    wakeup_modes = {
        {"'wm_usb'", "'wake on USB connection'"},
        {"'wm_tap'", "'wake on tap'"},
        {"'wm_radio'", "'wake by radio'"},
        {"none", "'no wake-up'"},
    };
    vendor_desc.insert("NRV", "Norvane");
    model_desc.insert("NRV IMU3", "IMU3 inertial sensor");
    model_desc.insert("NRV IMU3C", "IMU3 inertial sensor (cable)");
    model_desc.insert("NRV RD2", "RD2 Radio Dongle (USB)");
    filter_modes = {
        {"mode6d_standard", "standard", false},
        {"mode6d_smooth", "smooth", false},
        {"mode6d_hybrid", "hybrid", true},
    };
    filter_presets = {
        {"preset6d_default", "default", false, 0.5, 0.0, "mode6d_standard"},
        {"preset6d_med_pred", "medium prediction", false, 0.5, 0.03, "mode6d_standard"},
        {"preset6d_custom", "custom", false, 0.5, 0.0, "mode6d_standard"},
        {"preset6d_hybrid", "hybrid", true, 0.5, 0.02, "mode6d_hybrid"},
        {"preset6d_hybrid_custom", "hybrid custom", true, 0.5, 0.02, "mode6d_hybrid"},
    };
    SimCalibration::Type gyro;
    gyro.id = SimCalibration::Gyro;
    gyro.desc = "Inertial sensor gyroscope calibration";
    gyro.steps = {{"Keep the sensors still", 15.0, 0.0}};
    SimCalibration::Type handeye;
    handeye.id = SimCalibration::HandEye;
    handeye.desc = "Hybrid body calibration";
    handeye.steps = {{"Move and rotate the body in the tracking volume", 20.0, 0.0}};
    SimCalibration::Type alignment;
    alignment.id = "inertial_alignment";
    alignment.desc = "Inertial sensor alignment";
    alignment.steps = {{"Place the body on the floor and keep it still", 10.0, 3.0},
                       {"Turn the body slowly about its vertical axis", 15.0, 5.0}};
    SimCalibration::Type reflex;
    reflex.id = "reflex_scan";
    reflex.desc = "Reflex scan";
    reflex.steps = {{"Scanning the room for reflections", 8.0, 0.0}};
    reflex.interruptible = false;
    calibration.types = {gyro, handeye, alignment, reflex};
    for (int i = 0; i < max_bodies; ++i)
        bodies.append(Body());
}

SimModel::Transceiver* SimModel::transceiver(const QByteArray& identity)
{
    for (Transceiver& t : transceivers)
        if (t.identity() == identity)
            return &t;
    return nullptr;
}

SimModel::Transceiver* SimModel::transceiver_by_serial(const QByteArray& serial)
{
    for (Transceiver& t : transceivers)
        if (t.serial == serial)
            return &t;
    return nullptr;
}

const SimModel::Transceiver* SimModel::transceiver_by_serial(const QByteArray& serial) const
{
    for (const Transceiver& t : transceivers)
        if (t.serial == serial)
            return &t;
    return nullptr;
}

SimModel::Sensor* SimModel::sensor(const QByteArray& identity)
{
    const int index = sensor_index(identity);
    return index < 0 ? nullptr : &sensors[index];
}

const SimModel::Sensor* SimModel::sensor(const QByteArray& identity) const
{
    const int index = sensor_index(identity);
    return index < 0 ? nullptr : &sensors.at(index);
}

int SimModel::sensor_index(const QByteArray& identity) const
{
    for (int i = 0; i < sensors.size(); ++i)
        if (sensors.at(i).identity() == identity)
            return i;
    return -1;
}

SimModel::Body* SimModel::body(const QByteArray& kind, int number)
{
    QList<Body>* list = kind == "standard" ? &bodies : kind == "wand" ? &wands : nullptr;
    if (!list || number < 1 || number > list->size())
        return nullptr;
    return &(*list)[number - 1];
}

const SimModel::Body* SimModel::body_by_id(const QByteArray& id) const
{
    const QList<QByteArray> words = id.split(' ');
    if (words.size() != 2 || !words.at(1).startsWith('b'))
        return nullptr;
    bool ok = false;
    const int number = words.at(1).mid(1).toInt(&ok);
    if (!ok)
        return nullptr;
    return const_cast<SimModel*>(this)->body(words.at(0), number);
}

const SimModel::Choice* SimModel::choice(const QList<Choice>& list, const QByteArray& id) const
{
    for (const Choice& c : list)
        if (c.id == id)
            return &c;
    return nullptr;
}

const SimModel::WakeupMode* SimModel::wakeup_mode(const QByteArray& id) const
{
    for (const WakeupMode& m : wakeup_modes)
        if (m.id == id)
            return &m;
    return nullptr;
}

QByteArray SimModel::body_id(const QByteArray& kind, int number)
{
    return kind + " b" + QByteArray::number(number).rightJustified(2, '0');
}

bool SimModel::present(const Sensor& s) const
{
    if (s.asleep || s.battery <= 0.0)
        return false;
    if (s.cable)
        return true;
    const Transceiver* t = serving_transceiver(s);
    return t && t->present && t->channel == s.channel;
}

const SimModel::Transceiver* SimModel::serving_transceiver(const Sensor& s) const
{
    if (s.cable)
        return nullptr;
    const Transceiver* paired = transceiver_by_serial(s.transceiver);
    if (paired && paired->present && paired->channel == s.channel)
        return paired;
    for (const Transceiver& t : transceivers)
        if (t.present && t.channel == s.channel)
            return &t;
    return paired;
}

double SimModel::warm_fraction(const Sensor& s) const
{
    const double span = operating_temperature - ambient_temperature;
    if (span <= 0.0)
        return 1.0;
    return qBound(0.0, (s.temperature - ambient_temperature) / span, 1.0);
}

double SimModel::warmup_status() const
{
    double sum = 0.0;
    int count = 0;
    for (const Sensor& s : sensors) {
        if (!present(s))
            continue;
        sum += warm_fraction(s);
        ++count;
    }
    return count > 0 ? sum / count : 0.0;
}

double SimModel::output_frequency(const Sensor& s) const
{
    return qMin(frequency, s.max_frequency);
}

QByteArray SimModel::body_of_sensor(const QByteArray& identity) const
{
    for (int i = 0; i < bodies.size(); ++i)
        if (bodies.at(i).sensor == identity)
            return body_id("standard", i + 1);
    return "none";
}

QByteArray SimModel::activity() const
{
    if (calibration.running())
        return "cal";
    if (calibration.failed())
        return "err";
    if (tracking)
        return sync_signal ? "tracking" : "wait";
    return "none";
}

double SimModel::channel_activity(const Transceiver& t, int channel) const
{
    if (t.scans <= 0 || !t.available.contains(channel))
        return -1.0;
    if (t.busy.contains(channel))
        return 1.0;
    for (const Transceiver& other : transceivers)
        if (&other != &t && other.present && other.channel == channel)
            return 1.0;
    const double measured =
        0.6 * SimFormat::noise(t.serial + ' ' + QByteArray::number(channel) + ' '
                               + QByteArray::number(t.scans));
    return std::floor(measured * 100.0) / 100.0;
}

int SimModel::suggested_channel(const Transceiver& t) const
{
    int best = 0;
    double quietest = 1.0;
    for (int channel : t.available) {
        const double a = channel_activity(t, channel);
        if (a >= 0.0 && a < quietest) {
            quietest = a;
            best = channel;
        }
    }
    return best;
}

bool SimModel::usable_choice(const Choice& c, const Body& b) const
{
    return !c.hybrid || !b.sensor.isEmpty();
}

void SimModel::detach_sensor(const QByteArray& identity)
{
    for (Body& b : bodies)
        if (b.sensor == identity)
            b.sensor.clear();
    if (pulse == Pulse::Sensor && pulse_sensor == identity) {
        pulse = Pulse::Cameras;
        pulse_sensor.clear();
    }
}

void SimModel::advance(qint64 now_ms)
{
    if (now_ms <= last_ms)
        return;
    // Small steps, so that what happens within the span (a battery running
    // empty, a sensor waking up) reaches the calibration in its order.
    const qint64 span = now_ms - last_ms;
    const qint64 chunk = qMax<qint64>(1000, (span + 19999) / 20000);
    qint64 from = last_ms;
    while (from < now_ms) {
        const qint64 to = qMin(now_ms, from + chunk);
        step(from, to);
        from = to;
    }
    last_ms = now_ms;
}

void SimModel::step(qint64 from_ms, qint64 to_ms)
{
    const double dt = double(to_ms - from_ms) / 1000.0;
    const double span = qMax(0.1, operating_temperature - ambient_temperature);
    const double heating = span / qMax(1.0, warmup_seconds);
    bool all_warm = true;
    bool any_present = false;
    for (Sensor& s : sensors) {
        if (s.asleep && s.wake_at_ms >= 0 && to_ms >= s.wake_at_ms) {
            s.asleep = false;
            s.wake_at_ms = -1;
        }
        const bool on = present(s);
        const bool warming = on && warmup;
        const bool busy = warming || (on && (tracking || calibration.running()));
        // Warming overshoots a little, so that a sensor counts as fully warm.
        const double target = warming ? operating_temperature + 0.5
                              : on    ? ambient_temperature + 3.0
                                      : ambient_temperature;
        const double rate = s.temperature < target ? heating : heating / 2.0;
        s.temperature = approach(s.temperature, target, rate * dt);
        if (s.cable)
            s.battery = qMin(1.0, s.battery + 0.30 * dt / Hour);
        else if (on)
            s.battery = qMax(0.0, s.battery - (busy ? 0.06 : 0.02) * dt / Hour);
        else
            s.battery = qMax(0.0, s.battery - 0.002 * dt / Hour);
        if (on) {
            any_present = true;
            all_warm = all_warm && warm_fraction(s) >= 1.0;
        }
    }
    if (warmup && warmup_auto_stop && any_present && all_warm)
        warmup = false;
    calibration.advance(to_ms, *this);
}
