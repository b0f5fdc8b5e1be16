#include "BodyParameters.h"


#include "SimArgs.h"
#include "SimFormat.h"
#include "SimModel.h"

namespace {

// The 6DOF filter's modes or presets, whichever the parameter names.
const QList<SimModel::Choice>& choices(const SimModel& m, bool presets)
{
    return presets ? m.filter_presets : m.filter_modes;
}

SimResult choice_available(SimModel& m, SimArgs& a, bool presets)
{
    const SimModel::Body* b = a.body(m);
    const QByteArray id = a.word(presets ? "preset" : "mode");
    const SimModel::Choice* c = a.failed() ? nullptr : m.choice(choices(m, presets), id);
    if (!a.failed() && !c)
        a.fail(SimResult::NoSuchItem, QByteArray(presets ? "unknown preset " : "unknown mode ") + id);
    return a.answer(c ? SimFormat::yes_no(m.usable_choice(*c, *b)) : QByteArray());
}

SimResult choice_id(SimModel& m, SimArgs& a, bool presets)
{
    const int i = a.index('t', presets ? "preset index" : "mode index");
    const QList<SimModel::Choice>& list = choices(m, presets);
    if (!a.failed() && i > list.size())
        a.fail(SimResult::NoSuchItem, QByteArray(presets ? "no preset " : "no mode ") + QByteArray::number(i));
    return a.answer(a.failed() ? QByteArray() : list.at(i - 1).id);
}

SimResult choice_desc(SimModel& m, SimArgs& a, bool presets)
{
    const QByteArray id = a.word(presets ? "preset" : "mode");
    const SimModel::Choice* c = a.failed() ? nullptr : m.choice(choices(m, presets), id);
    if (!a.failed() && !c)
        a.fail(SimResult::NoSuchItem, QByteArray(presets ? "unknown preset " : "unknown mode ") + id);
    return a.answer(c ? SimFormat::quoted(c->desc) : QByteArray());
}

SimResult limit(SimArgs& a, double v)
{
    return a.answer(SimFormat::real(v));
}

// Strength, prediction and mode belong to the user only with a custom preset.
SimResult custom_only(SimModel& m, const SimModel::Body& b, const QByteArray& id)
{
    const SimModel::Choice* preset = m.choice(m.filter_presets, b.filter.preset);
    if (!preset || !preset->custom())
        return SimResult::error(SimResult::WrongState, "the preset of " + id + " is not a custom one");
    return SimResult::done();
}

} // namespace

const SimHandlerTable& BodyParameters::queries()
{
    static const SimHandlerTable table = {
        {"body number_of_bodies", [](SimModel& m, SimArgs& a) {
             const QByteArray kind = a.word("body kind");
             // A body id after the kind names the kind all the same.
             if (a.remaining() == 1)
                 a.index('b', "body");
             if (!a.failed() && kind != "standard" && kind != "wand")
                 a.fail(SimResult::NoSuchItem, "unknown body kind " + kind);
             return a.answer(QByteArray::number(kind == "wand" ? m.wands.size() : m.body_count));
         }},
        {"body inertial_sensor", [](SimModel& m, SimArgs& a) {
             const SimModel::Body* b = a.body(m);
             return a.answer(!b ? QByteArray() : b->sensor.isEmpty() ? QByteArray("none") : b->sensor);
         }},
        {"body calibrated", [](SimModel& m, SimArgs& a) {
             const SimModel::Body* b = a.body(m);
             return a.answer(b ? SimFormat::yes_no(b->calibrated) : QByteArray());
         }},
        {"body active", [](SimModel& m, SimArgs& a) {
             const SimModel::Body* b = a.body(m);
             return a.answer(b ? SimFormat::yes_no(b->active) : QByteArray());
         }},
        {"body desc", [](SimModel& m, SimArgs& a) {
             const SimModel::Body* b = a.body(m);
             return a.answer(b ? SimFormat::quoted(b->desc) : QByteArray());
         }},
        {"body filter6d_enabled", [](SimModel& m, SimArgs& a) {
             const SimModel::Body* b = a.body(m);
             return a.answer(b ? SimFormat::yes_no(b->filter.enabled) : QByteArray());
         }},
        {"body filter6d_mode", [](SimModel& m, SimArgs& a) {
             const SimModel::Body* b = a.body(m);
             return a.answer(b ? b->filter.mode : QByteArray());
         }},
        {"body filter6d_preset", [](SimModel& m, SimArgs& a) {
             const SimModel::Body* b = a.body(m);
             return a.answer(b ? b->filter.preset : QByteArray());
         }},
        {"body filter6d_strength", [](SimModel& m, SimArgs& a) {
             const SimModel::Body* b = a.body(m);
             return a.answer(b ? SimFormat::real(b->filter.strength) : QByteArray());
         }},
        {"body filter6d_prediction", [](SimModel& m, SimArgs& a) {
             const SimModel::Body* b = a.body(m);
             return a.answer(b ? SimFormat::real(b->filter.prediction) : QByteArray());
         }},
        {"body filter6d_mode_available", [](SimModel& m, SimArgs& a) { return choice_available(m, a, false); }},
        {"body filter6d_preset_available", [](SimModel& m, SimArgs& a) { return choice_available(m, a, true); }},
        {"standard number_of_bodies", [](SimModel& m, SimArgs& a) { return a.answer(QByteArray::number(m.body_count)); }},
        {"standard max_number_of_bodies", [](SimModel& m, SimArgs& a) { return a.answer(QByteArray::number(m.max_bodies)); }},
        {"wand number_of_devices", [](SimModel& m, SimArgs& a) { return a.answer(QByteArray::number(m.wands.size())); }},
        {"filter6d available", [](SimModel& m, SimArgs& a) {
             const QByteArray kind = a.word("body kind");
             if (!a.failed() && kind != "standard" && kind != "wand")
                 a.fail(SimResult::NoSuchItem, "unknown body kind " + kind);
             return a.answer(SimFormat::yes_no(kind == "wand" ? m.filter_wand : m.filter_standard));
         }},
        {"filter6d number_of_modes", [](SimModel& m, SimArgs& a) { return a.answer(QByteArray::number(m.filter_modes.size())); }},
        {"filter6d number_of_presets", [](SimModel& m, SimArgs& a) { return a.answer(QByteArray::number(m.filter_presets.size())); }},
        {"filter6d mode_id", [](SimModel& m, SimArgs& a) { return choice_id(m, a, false); }},
        {"filter6d preset_id", [](SimModel& m, SimArgs& a) { return choice_id(m, a, true); }},
        {"filter6d mode_desc", [](SimModel& m, SimArgs& a) { return choice_desc(m, a, false); }},
        {"filter6d preset_desc", [](SimModel& m, SimArgs& a) { return choice_desc(m, a, true); }},
        {"filter6d limit", [](SimModel& m, SimArgs& a) {
             const QByteArray which = a.word("limit");
             if (a.failed())
                 return a.error();
             if (which == "strength_min")
                 return limit(a, m.strength_min);
             if (which == "strength_max")
                 return limit(a, m.strength_max);
             if (which == "prediction_min")
                 return limit(a, m.prediction_min);
             if (which == "prediction_max")
                 return limit(a, m.prediction_max);
             return SimResult::error(SimResult::UnknownPath, "unknown parameter filter6d limit " + which);
         }},
    };
    return table;
}

const SimHandlerTable& BodyParameters::settings()
{
    static const SimHandlerTable table = {
        {"body inertial_sensor", [](SimModel& m, SimArgs& a) {
             QByteArray id;
             SimModel::Body* b = a.body(m, &id);
             const QByteArray first = a.word("sensor");
             QByteArray sensor;
             if (!a.failed() && first != "none") {
                 const QByteArray model = a.word("sensor");
                 const QByteArray serial = a.word("sensor");
                 sensor = first + ' ' + model + ' ' + serial;
             }
             if (!a.end())
                 return a.error();
             if (id.startsWith("wand"))
                 return SimResult::error(SimResult::WrongState, "wands carry no inertial sensor");
             if (!sensor.isEmpty()) {
                 SimModel::Sensor* s = m.sensor(sensor);
                 if (!s)
                     return SimResult::error(SimResult::NoSuchItem, "unknown sensor " + sensor);
                 const QByteArray current = m.body_of_sensor(sensor);
                 if (current != "none" && current != id)
                     return SimResult::error(SimResult::WrongState, "sensor " + sensor + " is on body " + current);
                 // A hand-eye calibration relates a sensor to one body only.
                 if (s->handeye != id)
                     s->handeye.clear();
             }
             if (!b->sensor.isEmpty() && b->sensor != sensor) {
                 if (SimModel::Sensor* old = m.sensor(b->sensor))
                     old->handeye.clear();
             }
             b->sensor = sensor;
             return SimResult::done();
         }},
        {"body desc", [](SimModel& m, SimArgs& a) {
             SimModel::Body* b = a.body(m);
             const QByteArray text = a.text("description");
             if (!a.end())
                 return a.error();
             b->desc = text;
             return SimResult::done();
         }},
        {"body active", [](SimModel& m, SimArgs& a) {
             QByteArray id;
             SimModel::Body* b = a.body(m, &id);
             const bool on = a.yes_no("active");
             if (!a.end())
                 return a.error();
             if (on && !b->calibrated)
                 return SimResult::error(SimResult::WrongState, "body " + id + " is not calibrated");
             b->active = on;
             return SimResult::done();
         }},
        {"body filter6d_enabled", [](SimModel& m, SimArgs& a) {
             SimModel::Body* b = a.body(m);
             const bool on = a.yes_no("filter");
             if (!a.end())
                 return a.error();
             b->filter.enabled = on;
             return SimResult::done();
         }},
        {"body filter6d_preset", [](SimModel& m, SimArgs& a) {
             QByteArray id;
             SimModel::Body* b = a.body(m, &id);
             const QByteArray preset = a.word("preset");
             if (!a.end())
                 return a.error();
             const SimModel::Choice* c = m.choice(m.filter_presets, preset);
             if (!c)
                 return SimResult::error(SimResult::NoSuchItem, "unknown preset " + preset);
             if (!m.usable_choice(*c, *b))
                 return SimResult::error(SimResult::OutOfRange, "preset " + preset + " needs a body with an inertial sensor");
             b->filter.preset = preset;
             if (!c->custom()) {
                 b->filter.strength = c->strength;
                 b->filter.prediction = c->prediction;
                 b->filter.mode = c->mode;
             }
             return SimResult::done();
         }},
        {"body filter6d_mode", [](SimModel& m, SimArgs& a) {
             QByteArray id;
             SimModel::Body* b = a.body(m, &id);
             const QByteArray mode = a.word("mode");
             if (!a.end())
                 return a.error();
             const SimModel::Choice* c = m.choice(m.filter_modes, mode);
             if (!c)
                 return SimResult::error(SimResult::NoSuchItem, "unknown mode " + mode);
             if (!m.usable_choice(*c, *b))
                 return SimResult::error(SimResult::OutOfRange, "mode " + mode + " needs a body with an inertial sensor");
             const SimResult custom = custom_only(m, *b, id);
             if (!custom.ok)
                 return custom;
             b->filter.mode = mode;
             return SimResult::done();
         }},
        {"body filter6d_strength", [](SimModel& m, SimArgs& a) {
             QByteArray id;
             SimModel::Body* b = a.body(m, &id);
             const double v = a.real("strength");
             if (!a.end())
                 return a.error();
             if (v < m.strength_min || v > m.strength_max)
                 return SimResult::error(SimResult::OutOfRange, "strength must be " + SimFormat::real(m.strength_min)
                                                                    + " to " + SimFormat::real(m.strength_max));
             const SimResult custom = custom_only(m, *b, id);
             if (!custom.ok)
                 return custom;
             if (b->filter.preset.contains("hybrid"))
                 return SimResult::error(SimResult::WrongState, "a hybrid preset has no strength");
             b->filter.strength = v;
             return SimResult::done();
         }},
        {"body filter6d_prediction", [](SimModel& m, SimArgs& a) {
             QByteArray id;
             SimModel::Body* b = a.body(m, &id);
             const double v = a.real("prediction");
             if (!a.end())
                 return a.error();
             if (v < m.prediction_min || v > m.prediction_max)
                 return SimResult::error(SimResult::OutOfRange, "prediction must be " + SimFormat::real(m.prediction_min)
                                                                    + " to " + SimFormat::real(m.prediction_max) + " s");
             const SimResult custom = custom_only(m, *b, id);
             if (!custom.ok)
                 return custom;
             b->filter.prediction = v;
             return SimResult::done();
         }},
        {"standard number_of_bodies", [](SimModel& m, SimArgs& a) {
             const int n = a.integer("number of bodies");
             if (!a.end())
                 return a.error();
             if (n < 0 || n > m.max_bodies)
                 return SimResult::error(SimResult::OutOfRange, "number of bodies must be 0 to "
                                                                    + QByteArray::number(m.max_bodies));
             m.body_count = n;
             return SimResult::done();
         }},
    };
    return table;
}
