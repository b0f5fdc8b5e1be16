#include "SimDaemon.h"

#include <QRegularExpression>

namespace {

constexpr int StartTimeoutMs = 10000;
constexpr int StopTimeoutMs = 3000;

} // namespace

SimDaemon::~SimDaemon()
{
    stop();
}

bool SimDaemon::start(const QString& program, const QString& scenario_file, double speed, QString* error)
{
    stop();
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, {QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--scenario"),
                            scenario_file, QStringLiteral("--speed"), QString::number(speed)});
    if (!process.waitForStarted(StartTimeoutMs)) {
        *error = QStringLiteral("cannot start %1: %2").arg(program, process.errorString());
        return false;
    }
    // "norvane-simd: listening on 127.0.0.1:40123 (...)"
    static const QRegularExpression listening(QStringLiteral("listening on [^ ]*:(\\d+)"));
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(StartTimeoutMs)) {
            *error = QStringLiteral("%1 did not say where it listens").arg(program);
            stop();
            return false;
        }
    }
    const QString first = QString::fromLocal8Bit(process.readLine());
    const QRegularExpressionMatch match = listening.match(first);
    listening_port = match.hasMatch() ? quint16(match.captured(1).toUInt()) : 0;
    if (listening_port == 0) {
        *error = QStringLiteral("%1 said: %2").arg(program, first.trimmed());
        stop();
        return false;
    }
    return true;
}

void SimDaemon::stop()
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(StopTimeoutMs)) {
        process.kill();
        process.waitForFinished(StopTimeoutMs);
    }
    listening_port = 0;
}
