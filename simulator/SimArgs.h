#ifndef SIMARGS_H
#define SIMARGS_H

#include <QByteArray>
#include <QList>

#include "SimModel.h"
#include "SimResult.h"

// Reads the arguments of one request word by word. The first problem is
// kept as the request's error reply; every later read fails quietly, so a
// handler can read all it needs and check once.
class SimArgs
{
public:
    SimArgs(const QList<QByteArray>& words, int first);

    bool failed() const { return !problem.ok; }
    const SimResult& error() const { return problem; }
    void fail(int code, const QByteArray& text);
    bool at_end() const { return next >= words.size(); }
    int remaining() const { return words.size() - next; }

    QByteArray word(const char* what);
    // Three words: vendor, model and the serial in single quotes.
    QByteArray identity(const char* what);
    // A list index such as d07, t02 or s01 (prefix and at least one digit).
    int index(char prefix, const char* what);
    int integer(const char* what);
    double real(const char* what);
    bool yes_no(const char* what);
    // "standard b03" or "wand b01": the kind and the number.
    bool body(QByteArray* kind, int* number);
    // The rest of the line as one value, enclosing double quotes removed.
    QByteArray text(const char* what);
    // Fails if words are left over.
    bool end();
    // The reply of a query that read all it needed: the value, or the first
    // problem (including words left over).
    SimResult answer(const QByteArray& value);

    // The same, looked up in the model; null (and the error kept) when the
    // controller does not know it.
    SimModel::Sensor* sensor(SimModel& model);
    SimModel::Transceiver* transceiver(SimModel& model);
    // A body of either kind, with its id ("standard b03") in *id.
    SimModel::Body* body(SimModel& model, QByteArray* id = nullptr);
    const SimCalibration::Type* calibration_type(const SimModel& model);

private:
    QList<QByteArray> words;
    int next;
    SimResult problem;
};

#endif // SIMARGS_H
