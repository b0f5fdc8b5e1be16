#ifndef SYSTEMPARAMETERS_H
#define SYSTEMPARAMETERS_H

#include "SimHandler.h"

// The controller's own parameters: "system", "config", "tracking",
// "synccard", and the calibrations' "cal" and "status".
class SystemParameters
{
public:
    static const SimHandlerTable& queries();
    static const SimHandlerTable& settings();
};

#endif // SYSTEMPARAMETERS_H
