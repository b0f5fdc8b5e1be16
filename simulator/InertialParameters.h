#ifndef INERTIALPARAMETERS_H
#define INERTIALPARAMETERS_H

#include "SimHandler.h"

// The parameters of the root "inertial": sensors, transceivers, wake-up
// modes, frequency, warm-up, scans and the sensors' calibration data.
class InertialParameters
{
public:
    static const SimHandlerTable& queries();
    static const SimHandlerTable& settings();
};

#endif // INERTIALPARAMETERS_H
