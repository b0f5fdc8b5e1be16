#include "SimArgs.h"

#include <cctype>
#include <cmath>

#include "SimFormat.h"

SimArgs::SimArgs(const QList<QByteArray>& words, int first)
    : words(words)
    , next(first)
{
}

void SimArgs::fail(int code, const QByteArray& text)
{
    if (problem.ok)
        problem = SimResult::error(code, text);
}

QByteArray SimArgs::word(const char* what)
{
    if (failed())
        return QByteArray();
    if (at_end()) {
        fail(SimResult::Malformed, QByteArray("missing ") + what);
        return QByteArray();
    }
    return words.at(next++);
}

QByteArray SimArgs::identity(const char* what)
{
    const QByteArray vendor = word(what);
    const QByteArray model = word(what);
    const QByteArray serial = word(what);
    if (failed())
        return QByteArray();
    return vendor + ' ' + model + ' ' + serial;
}

int SimArgs::index(char prefix, const char* what)
{
    const QByteArray w = word(what);
    if (failed())
        return 0;
    bool ok = false;
    const int value = w.mid(1).toInt(&ok);
    if (w.size() < 2 || w.at(0) != prefix || !ok || value < 1 || !std::isdigit(quint8(w.at(1)))) {
        fail(SimResult::Malformed, QByteArray("bad ") + what + ' ' + w);
        return 0;
    }
    return value;
}

int SimArgs::integer(const char* what)
{
    const QByteArray w = word(what);
    if (failed())
        return 0;
    bool ok = false;
    const int value = w.toInt(&ok);
    if (!ok)
        fail(SimResult::Malformed, QByteArray("bad ") + what + ' ' + w);
    return value;
}

double SimArgs::real(const char* what)
{
    const QByteArray w = word(what);
    if (failed())
        return 0.0;
    bool ok = false;
    const double value = w.toDouble(&ok);
    if (!ok || !std::isfinite(value)) {
        fail(SimResult::Malformed, QByteArray("bad ") + what + ' ' + w);
        return 0.0;
    }
    return value;
}

bool SimArgs::yes_no(const char* what)
{
    const QByteArray w = word(what);
    if (failed())
        return false;
    if (w != "yes" && w != "no")
        fail(SimResult::Malformed, QByteArray(what) + " must be yes or no, not " + w);
    return w == "yes";
}

bool SimArgs::body(QByteArray* kind, int* number)
{
    *kind = word("body kind");
    const int n = index('b', "body");
    if (failed())
        return false;
    if (*kind != "standard" && *kind != "wand") {
        fail(SimResult::NoSuchItem, "unknown body kind " + *kind);
        return false;
    }
    *number = n;
    return true;
}

QByteArray SimArgs::text(const char* what)
{
    if (failed())
        return QByteArray();
    if (at_end()) {
        fail(SimResult::Malformed, QByteArray("missing ") + what);
        return QByteArray();
    }
    QByteArray joined = words.mid(next).join(' ');
    next = words.size();
    return SimFormat::unquoted(joined);
}

bool SimArgs::end()
{
    if (!failed() && !at_end())
        fail(SimResult::Malformed, "unexpected " + words.at(next));
    return !failed();
}

SimResult SimArgs::answer(const QByteArray& value)
{
    return end() ? SimResult::answer(value) : problem;
}

SimModel::Sensor* SimArgs::sensor(SimModel& model)
{
    const QByteArray id = identity("sensor");
    if (failed())
        return nullptr;
    SimModel::Sensor* s = model.sensor(id);
    if (!s)
        fail(SimResult::NoSuchItem, "unknown sensor " + id);
    return s;
}

SimModel::Transceiver* SimArgs::transceiver(SimModel& model)
{
    const QByteArray id = identity("transceiver");
    if (failed())
        return nullptr;
    SimModel::Transceiver* t = model.transceiver(id);
    if (!t)
        fail(SimResult::NoSuchItem, "unknown transceiver " + id);
    return t;
}

SimModel::Body* SimArgs::body(SimModel& model, QByteArray* id)
{
    QByteArray kind;
    int number = 0;
    if (!body(&kind, &number))
        return nullptr;
    SimModel::Body* b = model.body(kind, number);
    const QByteArray name = SimModel::body_id(kind, number);
    if (!b)
        fail(SimResult::NoSuchItem, "no body " + name);
    if (id)
        *id = name;
    return b;
}

const SimCalibration::Type* SimArgs::calibration_type(const SimModel& model)
{
    const QByteArray id = word("calibration type");
    if (failed())
        return nullptr;
    const SimCalibration::Type* t = model.calibration.type(id);
    if (!t)
        fail(SimResult::NoSuchItem, "unknown calibration type " + id);
    return t;
}
