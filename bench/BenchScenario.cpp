#include "BenchScenario.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Room for the default's waiting sensors, and bodies to put them on.
constexpr int Headroom = 10;
// Long enough to outlast any run at the simulator speeds the bench uses.
constexpr double WarmupSeconds = 86400.0;

} // namespace

QByteArray BenchScenario::json(int sensors)
{
    const int count = qBound(1, sensors, MaxSensors);
    QJsonArray sensor_list;
    QJsonArray bodies;
    for (int i = 0; i < count; ++i) {
        const QString serial = QString::number(20000 + i);
        const bool first = i % 2 == 0;
        sensor_list.append(QJsonObject{
            {QStringLiteral("serial"), serial},
            {QStringLiteral("transceiver"), first ? QStringLiteral("70011") : QStringLiteral("70012")},
            {QStringLiteral("channel"), first ? 35 : 55},
            {QStringLiteral("wakeup_mode"), QStringLiteral("wm_radio")},
            {QStringLiteral("battery"), 0.3 + 0.6 * (i % 7) / 6.0},
            {QStringLiteral("temperature"), 25.0 + i % 5},
            {QStringLiteral("version"), QStringLiteral("2.3.1")},
            {QStringLiteral("gyro_residual"), 0.02 + 0.01 * (i % 5)},
            {QStringLiteral("handeye"), i % 3 == 0},
        });
        bodies.append(QJsonObject{
            {QStringLiteral("desc"), QStringLiteral("body %1").arg(i + 1)},
            {QStringLiteral("calibrated"), true},
            {QStringLiteral("active"), true},
            {QStringLiteral("sensor"), serial},
        });
    }
    const QJsonObject scenario{
        {QStringLiteral("extends"), QStringLiteral("default")},
        {QStringLiteral("description"),
         QStringLiteral("Benchmark: %1 radio sensors on bodies, warm-up running.").arg(count)},
        {QStringLiteral("inertial"),
         QJsonObject{{QStringLiteral("max_sensors"), count + Headroom},
                     {QStringLiteral("warmup"), false},
                     {QStringLiteral("warmup_seconds"), WarmupSeconds}}},
        {QStringLiteral("sensors"), sensor_list},
        {QStringLiteral("bodies"),
         QJsonObject{{QStringLiteral("max"), count + Headroom},
                     {QStringLiteral("count"), count},
                     {QStringLiteral("standard"), bodies}}},
    };
    return QJsonDocument(scenario).toJson(QJsonDocument::Compact);
}
