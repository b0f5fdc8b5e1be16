#include "VersionProbe.h"

#include <QObject>
#include <QRegularExpression>

#include "module/BackendVersions.h"
#include "module/IOManager.h"

namespace {

QString why(IOManager* io)
{
    const QString error = QString::fromLocal8Bit(io->last_error());
    return error.isEmpty() ? QObject::tr("no reason given") : error;
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
    bool complete = true;
    auto problem = [&](const QString& text) {
        complete = false;
        if (problems)
            *problems << text;
    };

    char reply[IOManager::ReplyCapacity];
    int major = 0, minor = 0, patch = 0;
    if (io->get_string(reply, "system version") != 0)
        problem(QObject::tr("Could not read the controller's software version: %1").arg(why(io)));
    else if (!parse(reply, &major, &minor, &patch))
        problem(QObject::tr("The controller's software version \"%1\" is not of the form 1.21.0")
                    .arg(QString::fromLatin1(reply)));
    else {
        versions->major = major;
        versions->minor = minor;
        versions->patch = patch;
    }

    if (io->get_string(reply, "system type") != 0)
        problem(QObject::tr("Could not read the controller's system type: %1").arg(why(io)));
    else
        versions->system_type = QString::fromLatin1(reply).trimmed();

    if (io->get_string(reply, "system firmware_version") != 0)
        problem(QObject::tr("Could not read the controller's firmware version: %1").arg(why(io)));
    else if (!parse(reply, &major, &minor, &patch))
        problem(QObject::tr("The controller's firmware version \"%1\" is not of the form 1.2.3")
                    .arg(QString::fromLatin1(reply)));
    else {
        versions->firmware_major = major;
        versions->firmware_minor = minor;
        versions->firmware_patch = patch;
    }
    return complete;
}
