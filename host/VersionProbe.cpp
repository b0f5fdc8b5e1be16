#include "VersionProbe.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include "module/BackendVersions.h"
#include "module/IOManager.h"

namespace {

QString why(IOManager* io)
{
    const QString error = QString::fromLocal8Bit(io->last_error());
    return error.isEmpty() ? VersionProbe::tr("no reason given") : error;
}

} // namespace

bool VersionProbe::parse(const QByteArray& text, int* major, int* minor, int* patch)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,6})\\.(\\d{1,6})(?:\\.(-1|\\d{1,6}))?$"));
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(text.trimmed()));
    if (!match.hasMatch())
        return false;
    *major = match.captured(1).toInt();
    *minor = match.captured(2).toInt();
    *patch = match.captured(3).isEmpty() ? 0 : match.captured(3).toInt();
    return true;
}

void VersionProbe::set_host_version(BackendVersions* versions)
{
    versions->frontend_major = NORVANE_HOST_VERSION_MAJOR;
    versions->frontend_minor = NORVANE_HOST_VERSION_MINOR;
    versions->frontend_patch = NORVANE_HOST_VERSION_PATCH;
}

QString VersionProbe::controller_version_text(const BackendVersions& versions)
{
    return QStringLiteral("%1.%2.%3").arg(versions.major).arg(versions.minor).arg(versions.patch);
}

bool VersionProbe::read(IOManager* io, BackendVersions* versions, QStringList* problems)
{
    set_host_version(versions);
    QStringList found;
    char reply[IOManager::ReplyCapacity];

    // One query; false (and why in `found`) when it yields no usable text.
    auto ask = [&](const char* path, const QString& what) {
        if (io->get_string(reply, "%s", path) == 0)
            return true;
        found << tr("Could not read the controller's %1: %2").arg(what, why(io));
        return false;
    };
    auto ask_version = [&](const char* path, const QString& what, int* major, int* minor, int* patch) {
        if (!ask(path, what))
            return;
        int a = 0, b = 0, c = 0;
        if (!parse(reply, &a, &b, &c)) {
            found << tr("The controller's %1 \"%2\" is not of the form 1.21.0")
                         .arg(what, QString::fromLatin1(reply));
            return;
        }
        *major = a;
        *minor = b;
        *patch = c;
    };

    ask_version("system version", tr("software version"), &versions->major, &versions->minor,
                &versions->patch);
    if (ask("system type", tr("system type")))
        versions->system_type = QString::fromLatin1(reply).trimmed();
    ask_version("system firmware_version", tr("firmware version"), &versions->firmware_major,
                &versions->firmware_minor, &versions->firmware_patch);

    if (problems)
        *problems << found;
    return found.isEmpty();
}
