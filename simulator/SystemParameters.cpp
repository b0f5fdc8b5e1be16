#include "SystemParameters.h"


#include "SimArgs.h"
#include "SimFormat.h"
#include "SimModel.h"

namespace {

// The step of a calibration type that the arguments name.
const SimCalibration::Step* step_of(SimModel& m, SimArgs& a)
{
    const SimCalibration::Type* t = a.calibration_type(m);
    const int i = a.index('s', "step");
    if (a.failed())
        return nullptr;
    if (i > t->steps.size()) {
        a.fail(SimResult::NoSuchItem, "calibration " + t->id + " has no step " + QByteArray::number(i));
        return nullptr;
    }
    return &t->steps.at(i - 1);
}

double pulse_limit(const SimModel& m)
{
    return m.system_type == "PORTAFRAME" ? 400.0 : 1000.0;
}

} // namespace

const SimHandlerTable& SystemParameters::queries()
{
    static const SimHandlerTable table = {
        {"system version", [](SimModel& m, SimArgs& a) { return a.answer(m.version.text()); }},
        {"system type", [](SimModel& m, SimArgs& a) { return a.answer(m.system_type); }},
        {"system firmware_version", [](SimModel& m, SimArgs& a) { return a.answer(m.firmware_version); }},
        {"config is_changeable", [](SimModel& m, SimArgs& a) { return a.answer(SimFormat::yes_no(m.config_changeable)); }},
        {"tracking available", [](SimModel& m, SimArgs& a) { return a.answer(SimFormat::yes_no(m.tracking_available)); }},
        {"tracking pulse", [](SimModel& m, SimArgs& a) {
             switch (m.pulse) {
             case SimModel::Pulse::Sensor:
                 return a.answer("inertial_sensor " + m.pulse_sensor);
             case SimModel::Pulse::Frequency:
                 return a.answer("frequency " + SimFormat::real(m.pulse_frequency));
             case SimModel::Pulse::Cameras:
                 break;
             }
             return a.answer("synchronous_cameras");
         }},
        {"synccard output_frequency", [](SimModel& m, SimArgs& a) { return a.answer(SimFormat::real(m.synccard_frequency)); }},
        {"cal available", [](SimModel& m, SimArgs& a) {
             const QByteArray type = a.word("calibration type");
             return a.answer(SimFormat::yes_no(m.calibration.available(type, m)));
         }},
        {"cal number_of_steps", [](SimModel& m, SimArgs& a) {
             const SimCalibration::Type* t = a.calibration_type(m);
             return a.answer(t ? QByteArray::number(t->steps.size()) : QByteArray());
         }},
        {"cal type_desc", [](SimModel& m, SimArgs& a) {
             const SimCalibration::Type* t = a.calibration_type(m);
             return a.answer(t ? SimFormat::quoted(t->desc) : QByteArray());
         }},
        {"cal step_desc", [](SimModel& m, SimArgs& a) {
             const SimCalibration::Step* s = step_of(m, a);
             return a.answer(s ? SimFormat::quoted(s->desc) : QByteArray());
         }},
        {"cal step_duration", [](SimModel& m, SimArgs& a) {
             const SimCalibration::Step* s = step_of(m, a);
             return a.answer(s ? SimFormat::real(s->duration_s) : QByteArray());
         }},
        {"cal step_pause", [](SimModel& m, SimArgs& a) {
             // "yes" and the seconds to wait before the step, or "no 0".
             const SimCalibration::Step* s = step_of(m, a);
             if (!s)
                 return a.error();
             const int seconds = int(s->pause_s);
             return a.answer((seconds > 0 ? "yes " : "no ") + QByteArray::number(seconds));
         }},
        {"status active", [](SimModel& m, SimArgs& a) { return a.answer(m.activity()); }},
        {"status progress", [](SimModel& m, SimArgs& a) { return a.answer(SimFormat::real(m.calibration.progress())); }},
        {"status step_active", [](SimModel& m, SimArgs& a) { return a.answer(m.calibration.step_active()); }},
        {"status step_progress", [](SimModel& m, SimArgs& a) {
             return a.answer(QByteArray::number(m.calibration.step()) + ' '
                                 + SimFormat::real(m.calibration.step_fraction()));
         }},
        {"status err", [](SimModel& m, SimArgs& a) {
             // The code, then the text in double quotes: the front end shows
             // what stands between the first two quote characters.
             return a.answer(QByteArray::number(m.calibration.error_code()) + ' '
                                 + SimFormat::quoted(m.calibration.error_text()));
         }},
    };
    return table;
}

const SimHandlerTable& SystemParameters::settings()
{
    static const SimHandlerTable table = {
        {"tracking pulse", [](SimModel& m, SimArgs& a) {
             const QByteArray kind = a.word("pulse source");
             if (a.failed())
                 return a.error();
             if (kind == "synchronous_cameras") {
                 if (!a.end())
                     return a.error();
                 m.pulse = SimModel::Pulse::Cameras;
                 m.pulse_sensor.clear();
                 return SimResult::done();
             }
             if (kind == "frequency") {
                 const double f = a.real("frequency");
                 if (!a.end())
                     return a.error();
                 if (f < 10.0 || f > pulse_limit(m))
                     return SimResult::error(SimResult::OutOfRange, "tracking frequency must be 10 to "
                                                                        + SimFormat::real(pulse_limit(m)) + " Hz");
                 m.pulse = SimModel::Pulse::Frequency;
                 m.pulse_frequency = f;
                 m.pulse_sensor.clear();
                 return SimResult::done();
             }
             if (kind == "inertial_sensor") {
                 const SimModel::Sensor* s = a.sensor(m);
                 if (!a.end())
                     return a.error();
                 // Only a sensor that tracks a body can clock the output.
                 if (m.body_of_sensor(s->identity()) == "none")
                     return SimResult::error(SimResult::WrongState, "sensor " + s->identity() + " is on no body");
                 if (!m.present(*s))
                     return SimResult::error(SimResult::Unreachable, "sensor " + s->identity() + " is not reachable");
                 m.pulse = SimModel::Pulse::Sensor;
                 m.pulse_sensor = s->identity();
                 return SimResult::done();
             }
             return SimResult::error(SimResult::OutOfRange, "unknown pulse source " + kind);
         }},
    };
    return table;
}
