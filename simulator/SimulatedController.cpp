#include "SimulatedController.h"

#include "SimClock.h"

SimulatedController::SimulatedController(SimClock* clock, QObject* parent)
    : QObject(parent)
    , clock(clock)
{
    load_default_scenario();
}

SimulatedController::~SimulatedController() = default;

bool SimulatedController::load_scenario_file(const QString& path, QString* error)
{
    Q_UNUSED(path);
    if (error)
        *error = QStringLiteral("scenario files are not supported yet");
    return false;
}

bool SimulatedController::load_scenario(const QByteArray& json, QString* error)
{
    Q_UNUSED(json);
    if (error)
        *error = QStringLiteral("scenarios are not supported yet");
    return false;
}

void SimulatedController::load_default_scenario()
{
}

SimReply SimulatedController::handle(const QByteArray& line)
{
    SimReply reply;
    if (line == "norvane get system version")
        reply.line = "norvane set system version 1.21.2";
    else if (line == "norvane get system type")
        reply.line = "norvane set system type NORVANE-DUO";
    else if (line == "norvane get system firmware_version")
        reply.line = "norvane set system firmware_version 4.2.1";
    else
        reply.line = "norvane err 1 \"unknown command\"";
    return reply;
}
