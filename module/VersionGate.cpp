#include "VersionGate.h"

#include "BackendVersions.h"

bool VersionGate::available(const BackendVersions* versions, int major, int minor)
{
    // Without a version record nothing newer than the oldest controller is
    // assumed; the host always hands one over before the first dialog opens.
    if (!versions)
        return false;
    if (versions->major != major)
        return versions->major > major;
    if (versions->minor != minor)
        return versions->minor > minor;
    return versions->patch >= -1;
}
