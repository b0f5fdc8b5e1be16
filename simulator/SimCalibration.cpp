#include "SimCalibration.h"

#include <QtMath>

#include <cmath>

#include "SimFormat.h"
#include "SimModel.h"

const QByteArray SimCalibration::Gyro = "inertial_gyro";
const QByteArray SimCalibration::HandEye = "inertial_handeye";

namespace {

// The rotation of a hand-eye result: small angles about the three axes, so
// that the matrix looks like a sensor mounted a little askew.
void rotation(double a, double b, double c, double* column_major)
{
    const double ca = std::cos(a), sa = std::sin(a);
    const double cb = std::cos(b), sb = std::sin(b);
    const double cc = std::cos(c), sc = std::sin(c);
    // R = Rz(a) * Ry(b) * Rx(c)
    const double r[3][3] = {
        {ca * cb, ca * sb * sc - sa * cc, ca * sb * cc + sa * sc},
        {sa * cb, sa * sb * sc + ca * cc, sa * sb * cc - ca * sc},
        {-sb, cb * sc, cb * cc},
    };
    for (int column = 0; column < 3; ++column)
        for (int row = 0; row < 3; ++row)
            column_major[column * 3 + row] = r[row][column];
}

} // namespace

const SimCalibration::Type* SimCalibration::type(const QByteArray& id) const
{
    for (const Type& t : types)
        if (t.id == id)
            return &t;
    return nullptr;
}

bool SimCalibration::available(const QByteArray& id, const SimModel& model) const
{
    if (!type(id))
        return false;
    // Both inertial calibrations relate the sensors to the room's frame.
    if (id == Gyro || id == HandEye)
        return model.room_calibrated;
    return true;
}

SimResult SimCalibration::start(const QByteArray& id, SimModel& model)
{
    const Type* t = type(id);
    if (!t)
        return SimResult::error(SimResult::NoSuchItem, "unknown calibration type " + id);
    if (active)
        return SimResult::error(SimResult::WrongState, "calibration " + run.id + " is running");
    if (!available(id, model))
        return SimResult::error(SimResult::NotAvailable, "no valid room calibration");

    QList<QByteArray> chosen;
    if (id == Gyro || id == HandEye) {
        if (id == HandEye && !model.tracking_available)
            return SimResult::error(SimResult::NotAvailable, "no optical tracking available");
        for (const SimModel::Sensor& sensor : model.sensors) {
            const bool marked = id == Gyro ? sensor.gyro_marked : sensor.handeye_marked;
            if (!marked)
                continue;
            const QByteArray identity = sensor.identity();
            if (!model.present(sensor))
                return SimResult::error(SimResult::Unreachable,
                                        "sensor " + identity + " is not reachable");
            if (id == HandEye) {
                const QByteArray body = model.body_of_sensor(identity);
                if (body == "none")
                    return SimResult::error(SimResult::WrongState,
                                            "sensor " + identity + " is on no body");
                const SimModel::Body* b = model.body_by_id(body);
                if (!b || !b->calibrated)
                    return SimResult::error(SimResult::WrongState,
                                            "body " + body + " is not calibrated");
            }
            chosen.append(identity);
        }
        if (chosen.isEmpty())
            return SimResult::error(SimResult::WrongState, "no sensor is selected for " + id);
    }

    run = *t;
    phases.clear();
    total_ms = 0;
    for (int i = 0; i < run.steps.size(); ++i) {
        const Step& s = run.steps.at(i);
        if (s.pause_s > 0.0)
            phases.append({true, i + 1, qMax<qint64>(1, qint64(s.pause_s * 1000.0))});
        const qint64 duration = qMax<qint64>(1, qint64(s.duration_s * 1000.0));
        phases.append({false, i + 1, duration});
        total_ms += duration;
    }
    if (phases.isEmpty()) {
        phases.append({false, 1, 1});
        total_ms = 1;
    }
    participants = chosen;
    for (const QByteArray& identity : qAsConst(participants)) {
        SimModel::Sensor* sensor = model.sensor(identity);
        if (id == Gyro)
            sensor->has_new_gyro = false;
        else
            sensor->has_new_handeye = false;
    }
    active = true;
    phase = 0;
    phase_start_ms = model.now();
    now_ms = model.now();
    measured_ms = 0;
    error_pending = false;
    err_code = 0;
    err_text.clear();
    update_progress();
    // The calibration takes the cameras and sensors over.
    model.tracking = false;
    return SimResult::done();
}

SimResult SimCalibration::stop()
{
    if (!active)
        return SimResult::done();
    if (!run.interruptible)
        return SimResult::error(SimResult::WrongState,
                                "calibration " + run.id + " cannot be interrupted");
    active = false;
    return SimResult::done();
}

SimResult SimCalibration::start_step(int step)
{
    if (!active)
        return SimResult::error(SimResult::WrongState, "no calibration is running");
    if (step < 1 || step > run.steps.size())
        return SimResult::error(SimResult::NoSuchItem,
                                "calibration " + run.id + " has no step " + QByteArray::number(step));
    const Phase& p = phases.at(phase);
    if (p.step > step)
        return SimResult::done();   // already under way or over
    if (p.step < step)
        return SimResult::error(SimResult::WrongState,
                                "step " + QByteArray::number(p.step) + " has not ended yet");
    if (p.pause) {
        // The operator is ready before the pause is over.
        ++phase;
        phase_start_ms = now_ms;
        update_progress();
    }
    return SimResult::done();
}

void SimCalibration::advance(qint64 t, SimModel& model)
{
    while (active) {
        const Phase p = phases.at(phase);
        const qint64 end = phase_start_ms + p.duration_ms;
        now_ms = qMin(t, end);
        update_progress();
        if (run.fail_at >= 0.0 && overall >= run.fail_at) {
            fail(run.fail_code > 0 ? run.fail_code : 20,
                 run.fail_text.isEmpty() ? QByteArray("calibration failed") : run.fail_text);
            return;
        }
        check_participants(model);
        if (!active)
            return;
        deliver_gyro_results(model, false);
        if (t < end)
            return;
        if (!p.pause)
            measured_ms += p.duration_ms;
        ++phase;
        phase_start_ms = end;
        if (phase >= phases.size()) {
            now_ms = end;
            finish(model);
            return;
        }
    }
}

QByteArray SimCalibration::step_active() const
{
    if (active) {
        const Phase& p = phases.at(phase);
        return (p.pause ? "pause " : "cal ") + QByteArray::number(p.step);
    }
    return error_pending ? QByteArrayLiteral("err") : QByteArrayLiteral("none");
}

double SimCalibration::progress() const
{
    return overall;
}

double SimCalibration::sensor_progress(const QByteArray& identity) const
{
    if (run.id != Gyro || !participants.contains(identity) || total_ms <= 0)
        return 0.0;
    // A finished run is at 1 for everyone; a stopped or failed one stays
    // where it broke off.
    return qMin(1.0, overall / sensor_factor(identity));
}

void SimCalibration::update_progress()
{
    const Phase& p = phases.at(phase);
    const qint64 elapsed = qBound<qint64>(0, now_ms - phase_start_ms, p.duration_ms);
    const qint64 done = measured_ms + (p.pause ? 0 : elapsed);
    overall = total_ms > 0 ? double(done) / double(total_ms) : 1.0;
    current_step = p.step;
    current_fraction = p.pause ? 0.0 : double(elapsed) / double(p.duration_ms);
}

void SimCalibration::finish(SimModel& model)
{
    active = false;
    overall = 1.0;
    current_fraction = 1.0;
    deliver_gyro_results(model, true);
    if (run.id != HandEye)
        return;
    for (const QByteArray& identity : qAsConst(participants)) {
        SimModel::Sensor* sensor = model.sensor(identity);
        if (!sensor)
            continue;
        SimModel::HandEyeResult& r = sensor->new_handeye;
        const double cold = 1.0 - model.warm_fraction(*sensor);
        r.residual = (0.2 + 0.6 * SimFormat::noise(identity + " handeye")) * (1.0 + cold);
        r.delay_ms = 6.0 + 14.0 * SimFormat::noise(identity + " delay");
        for (int i = 0; i < 3; ++i)
            r.values[i] = (SimFormat::noise(identity + " offset" + QByteArray::number(i)) - 0.5) * 60.0;
        rotation((SimFormat::noise(identity + " yaw") - 0.5) * 0.4,
                 (SimFormat::noise(identity + " pitch") - 0.5) * 0.4,
                 (SimFormat::noise(identity + " roll") - 0.5) * 0.4, r.values + 3);
        sensor->has_new_handeye = true;
    }
}

void SimCalibration::fail(int code, const QByteArray& text)
{
    active = false;
    error_pending = true;
    err_code = code;
    err_text = text;
}

void SimCalibration::deliver_gyro_results(SimModel& model, bool all)
{
    if (run.id != Gyro)
        return;
    for (const QByteArray& identity : qAsConst(participants)) {
        SimModel::Sensor* sensor = model.sensor(identity);
        if (!sensor || sensor->has_new_gyro)
            continue;
        if (!all && sensor_progress(identity) < 1.0)
            continue;
        // A cold gyroscope drifts: the residual shows why warm-up matters.
        const double cold = 1.0 - model.warm_fraction(*sensor);
        sensor->new_gyro_residual =
            (0.01 + 0.07 * SimFormat::noise(identity + " gyro")) * (1.0 + 3.0 * cold);
        sensor->has_new_gyro = true;
    }
}

void SimCalibration::check_participants(SimModel& model)
{
    for (const QByteArray& identity : qAsConst(participants)) {
        const SimModel::Sensor* sensor = model.sensor(identity);
        if (!sensor || !model.present(*sensor)) {
            fail(31, "Lost contact to sensor " + identity);
            return;
        }
        if (run.id != HandEye)
            continue;
        const QByteArray body = model.body_of_sensor(identity);
        const SimModel::Body* b = model.body_by_id(body);
        if (!b || !b->calibrated || !b->active || !model.tracking_available) {
            fail(32, "Body " + body + " is not visible to the cameras");
            return;
        }
    }
}

double SimCalibration::sensor_factor(const QByteArray& identity)
{
    // Sensors finish one after another; the slowest needs the whole step.
    return 0.8 + 0.2 * SimFormat::noise(identity + " pace");
}
