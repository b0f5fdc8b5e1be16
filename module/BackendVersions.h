#ifndef BACKENDVERSIONS_H
#define BACKENDVERSIONS_H

#include <QMetaType>
#include <QString>

// Versions the host learnt from the controller when it connected. Modules
// read it to switch features on or off; the host owns it.
struct BackendVersions
{
    int frontend_major = 0;   // the host's own version
    int frontend_minor = 0;
    int frontend_patch = 0;
    int major = 0;            // controller software
    int minor = 0;
    int patch = 0;            // -1 satisfies every patch comparison
    int firmware_major = 0;
    int firmware_minor = 0;
    int firmware_patch = 0;
    QString system_type;
};

Q_DECLARE_METATYPE(BackendVersions*)

#endif // BACKENDVERSIONS_H
