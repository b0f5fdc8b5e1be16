#ifndef CONTROLLERCHECKS_H
#define CONTROLLERCHECKS_H

class IOManager;
struct BackendVersions;

// The questions every dialog asks the controller before it offers anything:
// whether the configuration may be changed, whether inertial tracking is
// there at all, and whether the sensors are warming up. Asked the same way
// everywhere, so that no dialog offers what another one locks.
class ControllerChecks
{
public:
    // Locked only when the controller says so; older controllers have no
    // lock, and a failed query does not lock anything.
    static bool configLocked(IOManager* io, const BackendVersions* versions);
    static bool inertialAvailable(IOManager* io, const BackendVersions* versions);
    // A failed query is reported and counts as no warm-up.
    static bool warmupActive(IOManager* io);
};

#endif // CONTROLLERCHECKS_H
