#include "SimulatedController.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include "FaultInjector.h"
#include "ScenarioLoader.h"
#include "SimClock.h"
#include "SimLanguage.h"
#include "SimModel.h"
#include "SimRequest.h"

namespace {

// Long commands keep the link busy for real, but never long enough to look
// like a controller that has gone away.
constexpr int LongestAnswerMs = 1900;

} // namespace

SimulatedController::SimulatedController(SimClock* clock, QObject* parent)
    : QObject(parent)
    , clock(clock)
    , state(new SimModel)
    , faults(new FaultInjector)
{
    load_default_scenario();
}

SimulatedController::~SimulatedController() = default;

bool SimulatedController::load_scenario_file(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = path + ": " + file.errorString();
        return false;
    }
    return load(file.readAll(), path, QFileInfo(path).absolutePath(), error);
}

bool SimulatedController::load_scenario(const QByteArray& json, QString* error)
{
    return load(json, QStringLiteral("scenario"), QDir::currentPath(), error);
}

void SimulatedController::load_default_scenario()
{
    QString error;
    if (!load(ScenarioLoader::default_scenario(), QStringLiteral("default scenario"),
              QDir::currentPath(), &error))
        qWarning("simulated controller: %s", qPrintable(error));
}

bool SimulatedController::load(const QByteArray& json, const QString& origin, const QString& base_dir,
                               QString* error)
{
    ScenarioLoader loader(origin, base_dir);
    SimModel model;
    QList<SimFault> injected;
    if (!loader.load(json, clock->now_ms(), &model, &injected)) {
        if (error)
            *error = loader.error();
        return false;
    }
    *state = model;
    faults->set_faults(injected);
    description = QJsonDocument::fromJson(json).object().value(QStringLiteral("description")).toString();
    return true;
}

SimReply SimulatedController::handle(const QByteArray& line)
{
    QByteArray request_line = line;
    while (request_line.endsWith('\n') || request_line.endsWith('\r'))
        request_line.chop(1);
    const qint64 now = clock->now_ms();
    state->advance(now);

    SimReply reply;
    const SimFault* fault = faults->strike(request_line, now);
    if (fault && fault->kind == SimFault::Fail) {
        // Refused: the controller did nothing.
        FaultInjector::apply(*fault, &reply);
        return reply;
    }
    const SimRequest request = SimRequest::parse(request_line);
    const SimResult result = SimLanguage::answer(*state, request);
    reply.line = SimLanguage::reply(request, result);
    if (result.delay_ms > 0) {
        const double speed = clock->speed() > 0.0 ? clock->speed() : 1.0;
        reply.delay_ms = qBound(1, int(result.delay_ms / speed), LongestAnswerMs);
    }
    if (fault)
        FaultInjector::apply(*fault, &reply);
    return reply;
}

const SimModel& SimulatedController::model() const
{
    return *state;
}
