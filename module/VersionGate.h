#ifndef VERSIONGATE_H
#define VERSIONGATE_H

struct BackendVersions;

// Decides whether a feature introduced with controller software A.B.0 is
// there. Every version-dependent branch of the module asks this one class,
// so that the rule (a patch of -1 passes) cannot drift between dialogs.
class VersionGate
{
public:
    static bool available(const BackendVersions* versions, int major, int minor);
};

#endif // VERSIONGATE_H
