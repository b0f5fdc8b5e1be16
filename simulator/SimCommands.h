#ifndef SIMCOMMANDS_H
#define SIMCOMMANDS_H

#include "SimHandler.h"

// The raw commands after "norvane": scans, adding and deleting sensors,
// accepting calibration results, tracking, and the calibrations' "cal TYPE
// start|stop|start_step sNN" (kept under the key "cal").
class SimCommands
{
public:
    static const SimHandlerTable& table();
};

#endif // SIMCOMMANDS_H
