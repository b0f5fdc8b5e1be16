#ifndef SIMHANDLER_H
#define SIMHANDLER_H

#include <QByteArray>
#include <QHash>

#include "SimResult.h"

class SimArgs;
class SimModel;

// One parameter of the language: reads its arguments (and a setting's value)
// and answers from the model or changes it.
using SimHandler = SimResult (*)(SimModel&, SimArgs&);
// Parameters by their root and name, "inertial sensor_present".
using SimHandlerTable = QHash<QByteArray, SimHandler>;

#endif // SIMHANDLER_H
