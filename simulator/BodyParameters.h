#ifndef BODYPARAMETERS_H
#define BODYPARAMETERS_H

#include "SimHandler.h"

// The parameters of bodies and their 6DOF filter: the roots "body",
// "standard", "wand" and "filter6d".
class BodyParameters
{
public:
    static const SimHandlerTable& queries();
    static const SimHandlerTable& settings();
};

#endif // BODYPARAMETERS_H
