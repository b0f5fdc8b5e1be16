#include "ControllerChecks.h"

#include <QCoreApplication>

#include "ControllerText.h"
#include "IOManager.h"
#include "VersionGate.h"

bool ControllerChecks::configLocked(IOManager* io, const BackendVersions* versions)
{
    if (!VersionGate::available(versions, 1, 9))
        return false;
    char reply[IOManager::ReplyCapacity];
    return io->get_string(reply, "config is_changeable") == 0 && ControllerText::reply(reply) == QLatin1String("no");
}

bool ControllerChecks::inertialAvailable(IOManager* io, const BackendVersions* versions)
{
    if (!VersionGate::available(versions, 1, 12))
        return false;
    char reply[IOManager::ReplyCapacity];
    return io->get_string(reply, "inertial available") == 0 && ControllerText::reply(reply) == QLatin1String("yes");
}

bool ControllerChecks::warmupActive(IOManager* io)
{
    char reply[IOManager::ReplyCapacity];
    if (io->get_string(reply, "inertial warmup") != 0) {
        ControllerText::report(io, QCoreApplication::translate("ControllerChecks", "Could not get warmup status"));
        return false;
    }
    return ControllerText::reply(reply) == QLatin1String("yes");
}
