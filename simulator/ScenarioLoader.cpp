#include "ScenarioLoader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <cmath>

// Resources of a static library are registered by hand, from outside any
// namespace.
static void register_simulator_resources()
{
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    Q_INIT_RESOURCE(simulator);
}

namespace {

constexpr int MaxDepth = 4;

QString at(const QString& path, const QString& key)
{
    return path.isEmpty() ? key : path + '.' + key;
}

QString item(const QString& path, int index)
{
    return path + '[' + QString::number(index) + ']';
}

// The line and column of a byte offset, for parse errors a person can find.
QString position(const QByteArray& json, int offset)
{
    int line = 1;
    int column = 1;
    for (int i = 0; i < offset && i < json.size(); ++i) {
        if (json.at(i) == '\n') {
            ++line;
            column = 1;
        } else {
            ++column;
        }
    }
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

QByteArray with_quotes(const QByteArray& mode)
{
    if (mode == "none" || mode.startsWith('\''))
        return mode;
    return '\'' + mode + '\'';
}

} // namespace

ScenarioLoader::ScenarioLoader(const QString& origin, const QString& base_dir)
    : origin(origin)
    , base_dir(base_dir)
{
}

QByteArray ScenarioLoader::default_scenario()
{
    register_simulator_resources();
    QFile file(QStringLiteral(":/simulator/scenarios/default.json"));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

bool ScenarioLoader::load(const QByteArray& json, qint64 now_ms, SimModel* model,
                          QList<SimFault>* faults)
{
    problem.clear();
    QJsonObject root;
    if (!resolve(json, origin, base_dir, 0, &root))
        return false;
    if (!check_keys(root, QString(),
                    {"description", "system", "inertial", "calibrations", "filter6d", "transceivers",
                     "sensors", "waiting_sensors", "bodies", "tracking_pulse", "faults"}))
        return false;

    SimModel m;
    m.start_at(now_ms);
    QJsonObject o;
    QJsonArray a;
    if (!read_object(root, "system", QString(), &o) || !read_system(o, &m))
        return false;
    if (!read_object(root, "inertial", QString(), &o) || !read_inertial(o, &m))
        return false;
    if (!read_object(root, "calibrations", QString(), &o) || !read_calibrations(o, &m))
        return false;
    if (!read_object(root, "filter6d", QString(), &o) || !read_filter(o, &m))
        return false;
    if (!read_array(root, "transceivers", QString(), &a) || !read_transceivers(a, &m))
        return false;

    QSet<QByteArray> serials;
    for (const QString& list : {QStringLiteral("sensors"), QStringLiteral("waiting_sensors")}) {
        const bool waiting = list == QLatin1String("waiting_sensors");
        if (!read_array(root, list, QString(), &a))
            return false;
        if (waiting && a.size() + m.sensors.size() > 1000)
            return fail(list, "more than 1000 sensors");
        for (int i = 0; i < a.size(); ++i) {
            const QString path = item(list, i);
            if (!a.at(i).isObject())
                return fail(path, "must be an object");
            SimModel::Sensor s;
            if (!read_sensor(a.at(i).toObject(), path, waiting, now_ms, m, &s))
                return false;
            if (serials.contains(s.serial))
                return fail(path, "serial " + QString::fromLatin1(s.serial) + " is used twice");
            serials.insert(s.serial);
            (waiting ? m.waiting : m.sensors).append(s);
        }
        if (!waiting && m.sensors.size() > m.max_sensors)
            return fail(list, QStringLiteral("more than max_sensors (%1) sensors").arg(m.max_sensors));
    }

    if (!read_object(root, "bodies", QString(), &o) || !read_bodies(o, &m))
        return false;
    if (!read_object(root, "tracking_pulse", QString(), &o) || !read_pulse(o, &m))
        return false;
    QList<SimFault> injected;
    if (!read_array(root, "faults", QString(), &a) || !read_faults(a, now_ms, &injected))
        return false;

    *model = m;
    *faults = injected;
    return true;
}

bool ScenarioLoader::resolve(const QByteArray& json, const QString& name, const QString& dir,
                             int depth, QJsonObject* merged)
{
    QJsonParseError parse_error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parse_error);
    if (parse_error.error != QJsonParseError::NoError) {
        problem = name + ": " + position(json, parse_error.offset) + ": " + parse_error.errorString();
        return false;
    }
    if (!document.isObject()) {
        problem = name + ": a scenario must be a JSON object";
        return false;
    }
    QJsonObject object = document.object();
    const QJsonValue extends = object.take(QStringLiteral("extends"));
    if (extends.isUndefined()) {
        *merged = object;
        return true;
    }
    if (!extends.isString() || extends.toString().isEmpty()) {
        problem = name + ": extends: must name a scenario";
        return false;
    }
    if (depth >= MaxDepth) {
        problem = name + ": extends: scenarios extend each other more than "
                  + QString::number(MaxDepth) + " deep";
        return false;
    }
    const QString base = extends.toString();
    QByteArray base_json;
    QString base_name;
    QString base_dir_of_base;
    if (base == QLatin1String("default")) {
        base_json = default_scenario();
        base_name = QStringLiteral("default scenario");
        base_dir_of_base = dir;
    } else {
        const QString path = QDir(dir).absoluteFilePath(base);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            problem = name + ": extends: cannot read " + path + ": " + file.errorString();
            return false;
        }
        base_json = file.readAll();
        base_name = path;
        base_dir_of_base = QFileInfo(path).absolutePath();
    }
    QJsonObject base_object;
    if (!resolve(base_json, base_name, base_dir_of_base, depth + 1, &base_object))
        return false;
    *merged = merge(base_object, object);
    return true;
}

QJsonObject ScenarioLoader::merge(const QJsonObject& base, const QJsonObject& overlay)
{
    QJsonObject result = base;
    for (auto it = overlay.constBegin(); it != overlay.constEnd(); ++it) {
        const QJsonValue old = result.value(it.key());
        if (old.isObject() && it.value().isObject())
            result.insert(it.key(), merge(old.toObject(), it.value().toObject()));
        else
            result.insert(it.key(), it.value());
    }
    return result;
}

bool ScenarioLoader::read_system(const QJsonObject& o, SimModel* m)
{
    const QString path = QStringLiteral("system");
    if (!check_keys(o, path,
                    {"version", "type", "firmware_version", "config_changeable", "tracking_available",
                     "tracking", "sync_signal", "room_calibrated", "synccard_output_frequency"}))
        return false;
    QByteArray version = m->version.text();
    if (!read(o, "version", path, &version))
        return false;
    const QList<QByteArray> parts = version.split('.');
    bool ok = parts.size() == 3;
    int numbers[3] = {0, 0, 0};
    for (int i = 0; ok && i < 3; ++i) {
        numbers[i] = parts.at(i).toInt(&ok);
        ok = ok && numbers[i] >= (i == 2 ? -1 : 0);
    }
    if (!ok)
        return fail(at(path, "version"), "must be major.minor.patch, as 1.21.2");
    m->version = {numbers[0], numbers[1], numbers[2]};
    return read(o, "type", path, &m->system_type, true)
           && read(o, "firmware_version", path, &m->firmware_version, true)
           && read(o, "config_changeable", path, &m->config_changeable)
           && read(o, "tracking_available", path, &m->tracking_available)
           && read(o, "tracking", path, &m->tracking)
           && read(o, "sync_signal", path, &m->sync_signal)
           && read(o, "room_calibrated", path, &m->room_calibrated)
           && read(o, "synccard_output_frequency", path, &m->synccard_frequency, 0.0, 10000.0);
}

bool ScenarioLoader::read_inertial(const QJsonObject& o, SimModel* m)
{
    const QString path = QStringLiteral("inertial");
    if (!check_keys(o, path,
                    {"available", "frequency", "frequency_limits", "warmup", "warmup_auto_stop",
                     "warmup_seconds", "ambient_temperature", "operating_temperature", "max_sensors",
                     "wakeup_modes", "vendors", "models", "scan"}))
        return false;
    if (!read(o, "available", path, &m->inertial_available) || !read(o, "warmup", path, &m->warmup)
        || !read(o, "warmup_auto_stop", path, &m->warmup_auto_stop)
        || !read(o, "warmup_seconds", path, &m->warmup_seconds, 1.0, 86400.0)
        || !read(o, "ambient_temperature", path, &m->ambient_temperature, -40.0, 60.0)
        || !read(o, "operating_temperature", path, &m->operating_temperature, -40.0, 100.0)
        || !read(o, "max_sensors", path, &m->max_sensors, 0, 1000))
        return false;
    if (m->operating_temperature <= m->ambient_temperature)
        return fail(at(path, "operating_temperature"), "must be above ambient_temperature");

    QJsonArray limits;
    if (!read_array(o, "frequency_limits", path, &limits))
        return false;
    if (!limits.isEmpty()) {
        if (limits.size() != 2 || !limits.at(0).isDouble() || !limits.at(1).isDouble()
            || limits.at(0).toDouble() <= 0.0 || limits.at(0).toDouble() > limits.at(1).toDouble())
            return fail(at(path, "frequency_limits"), "must be [minimum, maximum] in Hz");
        m->frequency_min = limits.at(0).toDouble();
        m->frequency_max = limits.at(1).toDouble();
    }
    if (!read(o, "frequency", path, &m->frequency, m->frequency_min, m->frequency_max))
        return false;
    if (m->frequency < m->frequency_min || m->frequency > m->frequency_max)
        return fail(at(path, "frequency"), "must lie within frequency_limits");

    QJsonArray modes;
    if (!read_array(o, "wakeup_modes", path, &modes))
        return false;
    if (o.contains(QStringLiteral("wakeup_modes"))) {
        m->wakeup_modes.clear();
        for (int i = 0; i < modes.size(); ++i) {
            const QString p = item(at(path, "wakeup_modes"), i);
            const QJsonObject mode = modes.at(i).toObject();
            SimModel::WakeupMode w;
            if (!modes.at(i).isObject() || !check_keys(mode, p, {"id", "desc"})
                || !read(mode, "id", p, &w.id, true) || !read(mode, "desc", p, &w.desc))
                return modes.at(i).isObject() ? false : fail(p, "must be an object");
            if (w.id.isEmpty())
                return fail(at(p, "id"), "is missing");
            w.id = with_quotes(w.id);
            w.desc = '\'' + w.desc + '\'';
            m->wakeup_modes.append(w);
        }
    }

    for (const char* table : {"vendors", "models"}) {
        QJsonObject entries;
        if (!read_object(o, table, path, &entries))
            return false;
        for (auto it = entries.constBegin(); it != entries.constEnd(); ++it) {
            if (!it.value().isString())
                return fail(at(at(path, table), it.key()), "must be a text");
            const QByteArray key = it.key().toLatin1();
            if (qstrcmp(table, "models") == 0 && key.split(' ').size() != 2)
                return fail(at(at(path, table), it.key()), "must be named \"vendor model\"");
            (qstrcmp(table, "vendors") == 0 ? m->vendor_desc : m->model_desc)
                .insert(key, it.value().toString().toLatin1());
        }
    }

    QJsonObject scan;
    const QString scan_path = at(path, "scan");
    return read_object(o, "scan", path, &scan)
           && check_keys(scan, scan_path, {"delay_ms", "pending_polls", "channel_scan_delay_ms"})
           && read(scan, "delay_ms", scan_path, &m->scan_delay_ms, 0, 1900)
           && read(scan, "pending_polls", scan_path, &m->scan_pending_polls, 0, 1000)
           && read(scan, "channel_scan_delay_ms", scan_path, &m->channel_scan_delay_ms, 0, 1900);
}

bool ScenarioLoader::read_calibrations(const QJsonObject& o, SimModel* m)
{
    // Keyed by type: a scenario changes what it names and keeps the rest.
    for (auto it = o.constBegin(); it != o.constEnd(); ++it) {
        const QString path = at(QStringLiteral("calibrations"), it.key());
        if (!it.value().isObject())
            return fail(path, "must be an object");
        const QByteArray id = it.key().toLatin1();
        if (id.isEmpty() || id.contains(' '))
            return fail(path, "a calibration type is one word");
        const QJsonObject c = it.value().toObject();
        if (!check_keys(c, path, {"desc", "interruptible", "steps", "fail"}))
            return false;
        SimCalibration::Type type;
        type.id = id;
        int index = -1;
        for (int i = 0; i < m->calibration.types.size(); ++i)
            if (m->calibration.types.at(i).id == id)
                index = i;
        if (index >= 0)
            type = m->calibration.types.at(index);
        if (!read(c, "desc", path, &type.desc) || !read(c, "interruptible", path, &type.interruptible))
            return false;
        QJsonArray steps;
        if (!read_array(c, "steps", path, &steps))
            return false;
        if (c.contains(QStringLiteral("steps"))) {
            if (steps.isEmpty() || steps.size() > 9)
                return fail(at(path, "steps"), "must hold 1 to 9 steps");
            type.steps.clear();
            for (int i = 0; i < steps.size(); ++i) {
                const QString p = item(at(path, "steps"), i);
                if (!steps.at(i).isObject())
                    return fail(p, "must be an object");
                const QJsonObject s = steps.at(i).toObject();
                SimCalibration::Step step;
                if (!check_keys(s, p, {"desc", "duration_s", "pause_s"}) || !read(s, "desc", p, &step.desc)
                    || !read(s, "duration_s", p, &step.duration_s, 0.1, 86400.0)
                    || !read(s, "pause_s", p, &step.pause_s, 0.0, 3600.0))
                    return false;
                type.steps.append(step);
            }
        }
        if (type.steps.isEmpty())
            return fail(path, "needs steps");
        QJsonObject failure;
        const QString fail_path = at(path, "fail");
        if (!read_object(c, "fail", path, &failure) || !check_keys(failure, fail_path, {"at", "code", "text"})
            || !read(failure, "at", fail_path, &type.fail_at, 0.0, 1.0)
            || !read(failure, "code", fail_path, &type.fail_code, 1, 999)
            || !read(failure, "text", fail_path, &type.fail_text))
            return false;
        if (type.fail_text.contains('"'))
            return fail(at(fail_path, "text"), "must not contain a double quote");
        if (index >= 0)
            m->calibration.types[index] = type;
        else
            m->calibration.types.append(type);
    }
    return true;
}

bool ScenarioLoader::read_filter(const QJsonObject& o, SimModel* m)
{
    const QString path = QStringLiteral("filter6d");
    if (!check_keys(o, path, {"standard", "wand", "modes", "presets", "strength", "prediction"})
        || !read(o, "standard", path, &m->filter_standard) || !read(o, "wand", path, &m->filter_wand))
        return false;
    for (const char* list : {"modes", "presets"}) {
        const bool presets = qstrcmp(list, "presets") == 0;
        QJsonArray entries;
        if (!read_array(o, list, path, &entries))
            return false;
        if (!o.contains(QLatin1String(list)))
            continue;
        QList<SimModel::Choice> choices;
        for (int i = 0; i < entries.size(); ++i) {
            const QString p = item(at(path, list), i);
            if (!entries.at(i).isObject())
                return fail(p, "must be an object");
            const QJsonObject e = entries.at(i).toObject();
            SimModel::Choice c;
            const QStringList keys = presets ? QStringList{"id", "desc", "hybrid", "strength", "prediction", "mode"}
                                             : QStringList{"id", "desc", "hybrid"};
            if (!check_keys(e, p, keys) || !read(e, "id", p, &c.id, true) || !read(e, "desc", p, &c.desc)
                || !read(e, "hybrid", p, &c.hybrid) || !read(e, "strength", p, &c.strength, 0.0, 1.0)
                || !read(e, "prediction", p, &c.prediction, -1.0, 1.0) || !read(e, "mode", p, &c.mode, true))
                return false;
            if (c.id.isEmpty())
                return fail(at(p, "id"), "is missing");
            choices.append(c);
        }
        (presets ? m->filter_presets : m->filter_modes) = choices;
    }
    for (const SimModel::Choice& preset : qAsConst(m->filter_presets))
        if (!m->choice(m->filter_modes, preset.mode))
            return fail(at(path, "presets"), "preset " + QString::fromLatin1(preset.id) + " uses unknown mode "
                                                 + QString::fromLatin1(preset.mode));
    for (const char* range : {"strength", "prediction"}) {
        QJsonArray limits;
        if (!read_array(o, range, path, &limits))
            return false;
        if (limits.isEmpty())
            continue;
        if (limits.size() != 2 || !limits.at(0).isDouble() || !limits.at(1).isDouble()
            || limits.at(0).toDouble() > limits.at(1).toDouble())
            return fail(at(path, range), "must be [minimum, maximum]");
        const bool strength = qstrcmp(range, "strength") == 0;
        (strength ? m->strength_min : m->prediction_min) = limits.at(0).toDouble();
        (strength ? m->strength_max : m->prediction_max) = limits.at(1).toDouble();
    }
    return true;
}

bool ScenarioLoader::read_transceivers(const QJsonArray& list, SimModel* m)
{
    for (int i = 0; i < list.size(); ++i) {
        const QString path = item(QStringLiteral("transceivers"), i);
        if (!list.at(i).isObject())
            return fail(path, "must be an object");
        const QJsonObject o = list.at(i).toObject();
        if (!check_keys(o, path, {"vendor", "model", "serial", "version", "present", "channel", "channels",
                                  "busy_channels", "scanned"}))
            return false;
        SimModel::Transceiver t;
        t.vendor = "NRV";
        t.model = "RD2";
        t.version = "1.4.2";
        t.channel = 35;
        for (int c = 2; c <= 81; ++c)
            t.available.append(c);
        bool scanned = false;
        if (!read(o, "vendor", path, &t.vendor, true) || !read(o, "model", path, &t.model, true)
            || !read(o, "serial", path, &t.serial, true) || !read(o, "version", path, &t.version, true)
            || !read(o, "present", path, &t.present) || !read(o, "channel", path, &t.channel, 1, 255)
            || !read(o, "scanned", path, &scanned))
            return false;
        if (t.serial.isEmpty())
            return fail(at(path, "serial"), "is missing");
        if (m->transceiver_by_serial(t.serial))
            return fail(at(path, "serial"), "serial " + QString::fromLatin1(t.serial) + " is used twice");
        const QJsonValue channels = o.value(QStringLiteral("channels"));
        if (channels.isObject()) {
            const QJsonObject range = channels.toObject();
            int from = 2;
            int to = 81;
            const QString p = at(path, "channels");
            if (!check_keys(range, p, {"from", "to"}) || !read(range, "from", p, &from, 1, 255)
                || !read(range, "to", p, &to, from, 255))
                return false;
            t.available.clear();
            for (int c = from; c <= to; ++c)
                t.available.append(c);
        } else if (channels.isArray()) {
            t.available.clear();
            for (const QJsonValue& c : channels.toArray()) {
                const int channel = c.toInt(-1);
                if (!c.isDouble() || channel < 1 || channel > 255 || double(channel) != c.toDouble())
                    return fail(at(path, "channels"), "must hold channel numbers 1 to 255");
                if (!t.available.contains(channel))
                    t.available.append(channel);
            }
            std::sort(t.available.begin(), t.available.end());
            if (t.available.isEmpty())
                return fail(at(path, "channels"), "must not be empty");
        } else if (!channels.isUndefined()) {
            return fail(at(path, "channels"), "must be a list of channels or {\"from\": A, \"to\": B}");
        }
        if (!t.available.contains(t.channel))
            return fail(at(path, "channel"), QStringLiteral("channel %1 is not among its channels").arg(t.channel));
        QJsonArray busy;
        if (!read_array(o, "busy_channels", path, &busy))
            return false;
        for (const QJsonValue& c : qAsConst(busy)) {
            if (!c.isDouble())
                return fail(at(path, "busy_channels"), "must hold channel numbers");
            t.busy.append(c.toInt());
        }
        t.scans = scanned ? 1 : 0;
        m->transceivers.append(t);
    }
    return true;
}

bool ScenarioLoader::read_sensor(const QJsonObject& o, const QString& path, bool waiting, qint64 now_ms,
                                 const SimModel& m, SimModel::Sensor* s)
{
    if (!check_keys(o, path, {"vendor", "model", "serial", "cable", "transceiver", "channel", "asleep",
                              "wake_after_s", "appears_after_s", "wakeup_mode", "wakeup_modes",
                              "sleep_timeout", "max_frequency", "version", "storage", "battery",
                              "temperature", "gyro_residual", "handeye"}))
        return false;
    s->vendor = "NRV";
    s->model = "IMU3";
    s->version = "2.3.1";
    s->temperature = m.ambient_temperature;
    double wake_after = -1.0;
    double appears_after = 0.0;
    QByteArray transceiver;
    QByteArray mode;
    bool handeye = false;
    if (!read(o, "vendor", path, &s->vendor, true) || !read(o, "model", path, &s->model, true)
        || !read(o, "serial", path, &s->serial, true) || !read(o, "cable", path, &s->cable)
        || !read(o, "transceiver", path, &transceiver, true) || !read(o, "asleep", path, &s->asleep)
        || !read(o, "wake_after_s", path, &wake_after, 0.0, 1e7)
        || !read(o, "appears_after_s", path, &appears_after, 0.0, 1e7)
        || !read(o, "wakeup_mode", path, &mode, true) || !read(o, "sleep_timeout", path, &s->sleep_timeout, 0, 240)
        || !read(o, "max_frequency", path, &s->max_frequency, 1.0, 10000.0)
        || !read(o, "version", path, &s->version, true) || !read(o, "storage", path, &s->storage)
        || !read(o, "battery", path, &s->battery, 0.0, 1.0)
        || !read(o, "temperature", path, &s->temperature, -40.0, 100.0)
        || !read(o, "gyro_residual", path, &s->gyro_residual, 0.0, 90.0) || !read(o, "handeye", path, &handeye))
        return false;
    if (s->serial.isEmpty())
        return fail(at(path, "serial"), "is missing");
    if (s->serial.contains('\'') || s->vendor.contains('\'') || s->model.contains('\''))
        return fail(path, "vendor, model and serial are written without quotes");
    if (wake_after >= 0.0)
        s->wake_at_ms = now_ms + qint64(wake_after * 1000.0);
    s->appears_at_ms = now_ms + qint64(appears_after * 1000.0);
    if (handeye && waiting)
        return fail(at(path, "handeye"), "a sensor waiting to be found has no hand-eye calibration");
    // Marked for now; read_bodies turns it into the body the sensor is on.
    if (handeye)
        s->handeye = "?";

    if (s->cable) {
        if (o.contains(QStringLiteral("transceiver")) || o.contains(QStringLiteral("channel")))
            return fail(path, "a sensor on cable has no transceiver or channel");
    } else {
        const SimModel::Transceiver* t = nullptr;
        if (!transceiver.isEmpty()) {
            if (waiting)
                return fail(at(path, "transceiver"), "a sensor waiting to be found is paired with nothing");
            t = m.transceiver_by_serial(transceiver);
            if (!t)
                return fail(at(path, "transceiver"), "no transceiver " + QString::fromLatin1(transceiver));
        } else if (!waiting) {
            if (m.transceivers.isEmpty())
                return fail(path, "a radio sensor needs a transceiver (or \"cable\": true)");
            t = &m.transceivers.first();
        }
        s->channel = t ? t->channel : 0;
        if (!read(o, "channel", path, &s->channel, 1, 255))
            return false;
        if (s->channel == 0)
            return fail(at(path, "channel"), "a sensor waiting on radio needs its channel");
        if (t)
            s->transceiver = t->serial;
    }

    QJsonArray modes;
    if (!read_array(o, "wakeup_modes", path, &modes))
        return false;
    if (o.contains(QStringLiteral("wakeup_modes"))) {
        for (const QJsonValue& v : qAsConst(modes)) {
            const QByteArray id = with_quotes(v.toString().toLatin1());
            if (!v.isString() || !m.wakeup_mode(id))
                return fail(at(path, "wakeup_modes"), "unknown wake-up mode " + v.toString());
            s->wakeup_modes.append(id);
        }
    } else if (s->cable) {
        s->wakeup_modes = {"'wm_usb'"};
    } else {
        s->wakeup_modes = {"'wm_usb'", "'wm_tap'", "'wm_radio'"};
    }
    s->wakeup_mode = mode.isEmpty() ? s->wakeup_modes.value(0, "none") : with_quotes(mode);
    if (s->wakeup_mode != "none" && !s->wakeup_modes.contains(s->wakeup_mode))
        return fail(at(path, "wakeup_mode"), "the sensor does not support " + QString::fromLatin1(s->wakeup_mode));
    return true;
}

bool ScenarioLoader::read_bodies(const QJsonObject& o, SimModel* m)
{
    const QString path = QStringLiteral("bodies");
    if (!check_keys(o, path, {"max", "count", "standard", "wands"})
        || !read(o, "max", path, &m->max_bodies, 0, 999))
        return false;
    QJsonArray standard;
    QJsonArray wands;
    if (!read_array(o, "standard", path, &standard) || !read_array(o, "wands", path, &wands))
        return false;
    if (standard.size() > m->max_bodies)
        return fail(at(path, "standard"), QStringLiteral("more bodies than max (%1)").arg(m->max_bodies));
    m->body_count = standard.size();
    if (!read(o, "count", path, &m->body_count, 0, m->max_bodies))
        return false;
    m->bodies.clear();
    for (int i = 0; i < m->max_bodies; ++i) {
        SimModel::Body b;
        if (i < standard.size()) {
            const QString p = item(at(path, "standard"), i);
            if (!standard.at(i).isObject())
                return fail(p, "must be an object");
            if (!read_body(standard.at(i).toObject(), p, false, *m, &b))
                return false;
            if (!b.sensor.isEmpty() && m->body_of_sensor(b.sensor) != "none")
                return fail(at(p, "sensor"), "the sensor is on " + QString::fromLatin1(m->body_of_sensor(b.sensor))
                                                 + " already");
        }
        m->bodies.append(b);
    }
    m->wands.clear();
    for (int i = 0; i < wands.size(); ++i) {
        const QString p = item(at(path, "wands"), i);
        SimModel::Body b;
        if (!wands.at(i).isObject())
            return fail(p, "must be an object");
        if (!read_body(wands.at(i).toObject(), p, true, *m, &b))
            return false;
        m->wands.append(b);
    }
    // A hand-eye calibration belongs to the body the sensor is on.
    for (int i = 0; i < m->sensors.size(); ++i) {
        SimModel::Sensor& s = m->sensors[i];
        if (s.handeye.isEmpty())
            continue;
        s.handeye = m->body_of_sensor(s.identity());
        if (s.handeye == "none")
            return fail(at(item(QStringLiteral("sensors"), i), "handeye"), "the sensor is on no body");
    }
    return true;
}

bool ScenarioLoader::read_body(const QJsonObject& o, const QString& path, bool wand, const SimModel& m,
                               SimModel::Body* b)
{
    const QStringList keys = wand ? QStringList{"desc", "calibrated", "active", "filter"}
                                  : QStringList{"desc", "calibrated", "active", "sensor", "filter"};
    QByteArray serial;
    if (!check_keys(o, path, keys) || !read(o, "desc", path, &b->desc) || !read(o, "calibrated", path, &b->calibrated)
        || !read(o, "active", path, &b->active) || !read(o, "sensor", path, &serial, true))
        return false;
    if (b->active && !b->calibrated)
        return fail(at(path, "active"), "a body that is not calibrated cannot be active");
    if (!serial.isEmpty()) {
        for (const SimModel::Sensor& s : m.sensors)
            if (s.serial == serial)
                b->sensor = s.identity();
        if (b->sensor.isEmpty())
            return fail(at(path, "sensor"), "no paired sensor " + QString::fromLatin1(serial));
    }
    QJsonObject filter;
    const QString p = at(path, "filter");
    if (!read_object(o, "filter", path, &filter)
        || !check_keys(filter, p, {"enabled", "preset", "mode", "strength", "prediction"})
        || !read(filter, "enabled", p, &b->filter.enabled) || !read(filter, "preset", p, &b->filter.preset, true)
        || !read(filter, "mode", p, &b->filter.mode, true)
        || !read(filter, "strength", p, &b->filter.strength, m.strength_min, m.strength_max)
        || !read(filter, "prediction", p, &b->filter.prediction, m.prediction_min, m.prediction_max))
        return false;
    if (!m.choice(m.filter_presets, b->filter.preset))
        return fail(at(p, "preset"), "unknown preset " + QString::fromLatin1(b->filter.preset));
    if (!m.choice(m.filter_modes, b->filter.mode))
        return fail(at(p, "mode"), "unknown mode " + QString::fromLatin1(b->filter.mode));
    return true;
}

bool ScenarioLoader::read_pulse(const QJsonObject& o, SimModel* m)
{
    const QString path = QStringLiteral("tracking_pulse");
    QByteArray source = "synchronous_cameras";
    QByteArray serial;
    if (!check_keys(o, path, {"source", "sensor", "frequency"}) || !read(o, "source", path, &source, true)
        || !read(o, "sensor", path, &serial, true)
        || !read(o, "frequency", path, &m->pulse_frequency, 10.0, m->system_type == "PORTAFRAME" ? 400.0 : 1000.0))
        return false;
    if (source == "synchronous_cameras") {
        m->pulse = SimModel::Pulse::Cameras;
    } else if (source == "frequency") {
        m->pulse = SimModel::Pulse::Frequency;
    } else if (source == "inertial_sensor") {
        m->pulse = SimModel::Pulse::Sensor;
        for (const SimModel::Sensor& s : qAsConst(m->sensors))
            if (s.serial == serial)
                m->pulse_sensor = s.identity();
        if (m->pulse_sensor.isEmpty() || m->body_of_sensor(m->pulse_sensor) == "none")
            return fail(at(path, "sensor"), "must name a paired sensor on a body");
    } else {
        return fail(at(path, "source"), "must be synchronous_cameras, inertial_sensor or frequency");
    }
    return true;
}

bool ScenarioLoader::read_faults(const QJsonArray& list, qint64 now_ms, QList<SimFault>* faults)
{
    static const QHash<QString, SimFault::Kind> kinds = {
        {"fail", SimFault::Fail},       {"late", SimFault::Late},     {"garbage", SimFault::Garbage},
        {"silent", SimFault::Silent},   {"hang_up", SimFault::HangUp},
    };
    static const QHash<QString, SimFault::Match> matches = {
        {"exact", SimFault::Exact}, {"prefix", SimFault::Prefix}, {"contains", SimFault::Contains}};
    for (int i = 0; i < list.size(); ++i) {
        const QString path = item(QStringLiteral("faults"), i);
        if (!list.at(i).isObject())
            return fail(path, "must be an object");
        const QJsonObject o = list.at(i).toObject();
        SimFault f;
        QByteArray kind;
        QByteArray how = "exact";
        double after_s = 0.0;
        if (!check_keys(o, path, {"line", "match", "kind", "delay_ms", "code", "text", "reply", "length", "skip",
                                  "times", "after_s"})
            || !read(o, "line", path, &f.pattern) || !read(o, "match", path, &how, true)
            || !read(o, "kind", path, &kind, true) || !read(o, "delay_ms", path, &f.delay_ms, 0, 3600000)
            || !read(o, "code", path, &f.code, 1, 999) || !read(o, "text", path, &f.text)
            || !read_bytes(o, "reply", path, &f.reply) || !read(o, "length", path, &f.length, 0, 1 << 20)
            || !read(o, "skip", path, &f.skip, 0, 1 << 30) || !read(o, "times", path, &f.times, -1, 1 << 30)
            || !read(o, "after_s", path, &after_s, 0.0, 1e7))
            return false;
        if (f.pattern.isEmpty())
            return fail(at(path, "line"), "is missing");
        if (!kinds.contains(QString::fromLatin1(kind)))
            return fail(at(path, "kind"), "must be fail, late, garbage, silent or hang_up");
        if (!matches.contains(QString::fromLatin1(how)))
            return fail(at(path, "match"), "must be exact, prefix or contains");
        if (f.text.contains('"'))
            return fail(at(path, "text"), "must not contain a double quote");
        f.kind = kinds.value(QString::fromLatin1(kind));
        f.match = matches.value(QString::fromLatin1(how));
        f.after_ms = now_ms + qint64(after_s * 1000.0);
        faults->append(f);
    }
    return true;
}

bool ScenarioLoader::read_bytes(const QJsonObject& o, const QString& key, const QString& path, QByteArray* value)
{
    // Junk is meant to be anything a broken controller may send: control
    // characters, NULs and high bytes ("\u0000" to "\u00ff") included.
    const QJsonValue v = o.value(key);
    if (v.isUndefined())
        return true;
    const QString text = v.toString();
    for (const QChar c : text)
        if (c.unicode() > 0xff)
            return fail(at(path, key), "must be bytes, \\u0000 to \\u00ff");
    if (!v.isString())
        return fail(at(path, key), "must be a text");
    *value = text.toLatin1();
    return true;
}

bool ScenarioLoader::check_keys(const QJsonObject& o, const QString& path, const QStringList& allowed)
{
    for (auto it = o.constBegin(); it != o.constEnd(); ++it)
        if (!allowed.contains(it.key()))
            return fail(at(path, it.key()), "unknown key (known: " + allowed.join(", ") + ')');
    return true;
}

bool ScenarioLoader::read(const QJsonObject& o, const QString& key, const QString& path, bool* value)
{
    const QJsonValue v = o.value(key);
    if (v.isUndefined())
        return true;
    if (!v.isBool())
        return fail(at(path, key), "must be true or false");
    *value = v.toBool();
    return true;
}

bool ScenarioLoader::read(const QJsonObject& o, const QString& key, const QString& path, int* value, int low,
                          int high)
{
    const QJsonValue v = o.value(key);
    if (v.isUndefined())
        return true;
    const double d = v.toDouble();
    if (!v.isDouble() || d != std::floor(d) || d < low || d > high)
        return fail(at(path, key), QStringLiteral("must be a whole number from %1 to %2").arg(low).arg(high));
    *value = int(d);
    return true;
}

bool ScenarioLoader::read(const QJsonObject& o, const QString& key, const QString& path, double* value,
                          double low, double high)
{
    const QJsonValue v = o.value(key);
    if (v.isUndefined())
        return true;
    const double d = v.toDouble();
    if (!v.isDouble() || !std::isfinite(d) || d < low || d > high)
        return fail(at(path, key), QStringLiteral("must be a number from %1 to %2").arg(low).arg(high));
    *value = d;
    return true;
}

bool ScenarioLoader::read(const QJsonObject& o, const QString& key, const QString& path, QByteArray* value,
                          bool word)
{
    const QJsonValue v = o.value(key);
    if (v.isUndefined())
        return true;
    if (!v.isString())
        return fail(at(path, key), "must be a text");
    const QString text = v.toString();
    // The language is ASCII lines: no line breaks, nothing outside ASCII.
    for (const QChar c : text)
        if (c.unicode() < 0x20 || c.unicode() > 0x7e)
            return fail(at(path, key), "must be printable ASCII");
    if (word && (text.isEmpty() || text.contains(' ')))
        return fail(at(path, key), "must be one word");
    *value = text.toLatin1();
    return true;
}

bool ScenarioLoader::read_object(const QJsonObject& o, const QString& key, const QString& path,
                                 QJsonObject* value)
{
    const QJsonValue v = o.value(key);
    *value = QJsonObject();
    if (v.isUndefined())
        return true;
    if (!v.isObject())
        return fail(at(path, key), "must be an object");
    *value = v.toObject();
    return true;
}

bool ScenarioLoader::read_array(const QJsonObject& o, const QString& key, const QString& path,
                                QJsonArray* value)
{
    const QJsonValue v = o.value(key);
    *value = QJsonArray();
    if (v.isUndefined())
        return true;
    if (!v.isArray())
        return fail(at(path, key), "must be a list");
    *value = v.toArray();
    return true;
}

bool ScenarioLoader::fail(const QString& path, const QString& text)
{
    problem = origin + ": " + (path.isEmpty() ? QString() : path + ": ") + text;
    return false;
}
