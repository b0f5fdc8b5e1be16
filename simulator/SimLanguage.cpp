#include "SimLanguage.h"

#include "BodyParameters.h"
#include "InertialParameters.h"
#include "SimArgs.h"
#include "SimCommands.h"
#include "SimModel.h"
#include "SimRequest.h"
#include "SystemParameters.h"

namespace {

struct Introduced
{
    int major;
    int minor;
};

// When parameters came into the controller's language. An older controller
// answers them as unknown, which is what a front end that ignores its
// version gates would meet.
const QHash<QByteArray, Introduced>& introduced()
{
    static const QHash<QByteArray, Introduced> table = {
        {"inertial", {1, 12}},
        {"body inertial_sensor", {1, 12}},
        {"filter6d available", {1, 12}},
        {"config is_changeable", {1, 9}},
        {"tracking available", {0, 17}},
        {"cal step_duration", {1, 4}},
        {"tracking pulse", {1, 21}},
        {"inertial sensor_output_frequency", {1, 21}},
        {"inertial sensor_has_storage", {1, 21}},
        {"inertial new_sensor_delay", {1, 21}},
        {"filter6d number_of_modes", {1, 21}},
        {"filter6d number_of_presets", {1, 21}},
        {"filter6d mode_id", {1, 21}},
        {"filter6d preset_id", {1, 21}},
        {"filter6d mode_desc", {1, 21}},
        {"filter6d preset_desc", {1, 21}},
        {"body filter6d_mode", {1, 21}},
        {"body filter6d_preset", {1, 21}},
        {"body filter6d_mode_available", {1, 21}},
        {"body filter6d_preset_available", {1, 21}},
    };
    return table;
}

SimHandler find(const SimHandlerTable& table, const QByteArray& key)
{
    return table.value(key, nullptr);
}

SimResult unknown(const SimRequest& request)
{
    const QByteArray what = request.words.mid(0, 2).join(' ');
    return SimResult::error(SimResult::UnknownPath,
                            (request.kind == SimRequest::Command ? "unknown command " : "unknown parameter ")
                                + what);
}

} // namespace

SimResult SimLanguage::answer(SimModel& model, const SimRequest& request)
{
    switch (request.kind) {
    case SimRequest::Query:
        return query(model, request);
    case SimRequest::Setting:
        return setting(model, request);
    case SimRequest::Command:
        return command(model, request);
    case SimRequest::Invalid:
        break;
    }
    return SimResult::error(SimResult::Malformed, "not a request");
}

QByteArray SimLanguage::clipped(const QByteArray& text)
{
    // Texts quote what they refuse, and a request line may be 64 KiB: each
    // word quoted is cut to its first QuotedLength characters.
    QList<QByteArray> words = text.split(' ');
    for (QByteArray& word : words)
        if (word.size() > QuotedLength)
            word = word.left(QuotedLength) + "...";
    QByteArray clipped = words.join(' ');
    if (clipped.size() > 2 * QuotedLength)
        clipped = clipped.left(2 * QuotedLength) + "...";
    return clipped;
}

QByteArray SimLanguage::reply(const SimRequest& request, const SimResult& result)
{
    if (!result.ok)
        return "norvane err " + QByteArray::number(result.code) + " \"" + clipped(result.text) + '"';
    if (request.kind == SimRequest::Query)
        return "norvane set " + request.body + ' ' + result.value;
    return "norvane ok";
}

SimResult SimLanguage::query(SimModel& model, const SimRequest& request)
{
    if (request.words.size() < 2)
        return SimResult::error(SimResult::Malformed, "incomplete path " + request.body);
    const QByteArray& root = request.words.at(0);
    const QByteArray key = root + ' ' + request.words.at(1);
    SimHandler handler = find(InertialParameters::queries(), key);
    if (!handler)
        handler = find(BodyParameters::queries(), key);
    if (!handler)
        handler = find(SystemParameters::queries(), key);
    if (!handler || !known(model, root, key))
        return unknown(request);
    SimArgs args(request.words, 2);
    return handler(model, args);
}

SimResult SimLanguage::setting(SimModel& model, const SimRequest& request)
{
    if (request.words.size() < 3)
        return SimResult::error(SimResult::Malformed, "setting without a value: " + request.body);
    const QByteArray& root = request.words.at(0);
    const QByteArray key = root + ' ' + request.words.at(1);
    SimHandler handler = find(InertialParameters::settings(), key);
    if (!handler)
        handler = find(BodyParameters::settings(), key);
    if (!handler)
        handler = find(SystemParameters::settings(), key);
    if (!handler || !known(model, root, key)) {
        // A parameter that can be read but not written.
        const bool readable = find(InertialParameters::queries(), key) || find(BodyParameters::queries(), key)
                              || find(SystemParameters::queries(), key);
        if (readable && known(model, root, key))
            return SimResult::error(SimResult::WrongState, "parameter " + key + " is read-only");
        return unknown(request);
    }
    // Warming up keeps the sensors ready; it changes nothing that is kept.
    if (!model.config_changeable && key != "inertial warmup")
        return SimResult::error(SimResult::Locked, "configuration is locked");
    if (!model.inertial_available && (root == "inertial" || key == "body inertial_sensor"))
        return SimResult::error(SimResult::NotAvailable, "inertial tracking is not available");
    SimArgs args(request.words, 2);
    return handler(model, args);
}

SimResult SimLanguage::command(SimModel& model, const SimRequest& request)
{
    const QByteArray& root = request.words.at(0);
    const QByteArray key = root + ' ' + request.words.value(1);
    int first = 2;
    SimHandler handler = find(SimCommands::table(), key);
    if (!handler) {
        handler = find(SimCommands::table(), root);
        first = 1;
    }
    if (!handler || !known(model, root, key))
        return unknown(request);
    // Only tracking and stopping a calibration leave the configuration alone.
    const bool harmless = root == "tracking" || (root == "cal" && request.words.last() == "stop");
    if (!model.config_changeable && !harmless)
        return SimResult::error(SimResult::Locked, "configuration is locked");
    if (!model.inertial_available && root == "inertial")
        return SimResult::error(SimResult::NotAvailable, "inertial tracking is not available");
    SimArgs args(request.words, first);
    return handler(model, args);
}

bool SimLanguage::known(const SimModel& model, const QByteArray& root, const QByteArray& name)
{
    const QHash<QByteArray, Introduced>& table = introduced();
    for (const QByteArray& key : {root, name}) {
        const auto it = table.constFind(key);
        if (it != table.constEnd() && !model.version.at_least(it->major, it->minor))
            return false;
    }
    return true;
}
