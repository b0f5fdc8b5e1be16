#ifndef VERSIONPROBE_H
#define VERSIONPROBE_H

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class IOManager;
struct BackendVersions;

// Fills the version record modules gate their features on: the host's own
// version, then the controller's software version, system type and firmware
// version, one query each.
class VersionProbe
{
    Q_DECLARE_TR_FUNCTIONS(VersionProbe)

public:
    // Everything the controller would not tell stays as it was (zero: every
    // gated feature off); *problems lists what could not be read.
    static bool read(IOManager* io, BackendVersions* versions, QStringList* problems);
    static void set_host_version(BackendVersions* versions);
    // "1.21.0", "1.21" (patch 0), "1.21.-1"; anything else is refused.
    static bool parse(const QByteArray& text, int* major, int* minor, int* patch);
    static QString controller_version_text(const BackendVersions& versions);
};

#endif // VERSIONPROBE_H
