#ifndef SIMLANGUAGE_H
#define SIMLANGUAGE_H

#include <QByteArray>

#include "SimResult.h"

class SimModel;
struct SimRequest;

// The controller's side of the language: finds the parameter or command a
// request names, applies the rules that hold for all of them (what this
// controller version knows, the configuration lock, whether inertial
// tracking is switched on) and lets the parameter answer.
class SimLanguage
{
public:
    // Most characters of one word of the request an error text quotes.
    static constexpr int QuotedLength = 80;

    static SimResult answer(SimModel& model, const SimRequest& request);
    // The reply line of an answer to a request.
    static QByteArray reply(const SimRequest& request, const SimResult& result);

    // An error text with every long word cut short.
    static QByteArray clipped(const QByteArray& text);

private:
    static SimResult query(SimModel& model, const SimRequest& request);
    static SimResult setting(SimModel& model, const SimRequest& request);
    static SimResult command(SimModel& model, const SimRequest& request);
    // Whether a controller of this version has the parameter or command
    // "root name" (or its whole root).
    static bool known(const SimModel& model, const QByteArray& root, const QByteArray& name);
};

#endif // SIMLANGUAGE_H
