#include "ControllerProbe.h"

namespace DefaultDevices {
const QByteArray S1 = "NRV IMU3 '10231'";
const QByteArray S2 = "NRV IMU3 '10232'";
const QByteArray S3 = "NRV IMU3 '10233'";
const QByteArray S4 = "NRV IMU3 '10234'";
const QByteArray S5 = "NRV IMU3C '10235'";
const QByteArray T1 = "NRV RD2 '70011'";
const QByteArray T2 = "NRV RD2 '70012'";
}

ControllerProbe::ControllerProbe(qint64 start_ms)
    : clock(start_ms)
    , controller(&clock)
{
}

QByteArray ControllerProbe::ask(const QByteArray& line)
{
    return controller.handle(line).line;
}

QByteArray ControllerProbe::value(const QByteArray& path)
{
    const QByteArray reply = ask("norvane get " + path);
    const QByteArray prefix = "norvane set " + path + ' ';
    return reply.startsWith(prefix) ? reply.mid(prefix.size()) : '<' + reply + '>';
}

double ControllerProbe::number(const QByteArray& path)
{
    bool ok = false;
    const double v = value(path).split(' ').first().toDouble(&ok);
    return ok ? v : -999.0;
}

bool ControllerProbe::load(const QByteArray& json)
{
    QString error;
    if (controller.load_scenario(json, &error))
        return true;
    qWarning("%s", qPrintable(error));
    return false;
}

bool ControllerProbe::load_file(const QString& path)
{
    QString error;
    if (controller.load_scenario_file(path, &error))
        return true;
    qWarning("%s", qPrintable(error));
    return false;
}
