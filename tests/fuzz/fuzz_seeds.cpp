// Writes the fuzz targets' seed corpus from the simulator's own answers:
// fuzz_seeds REPLY_DIR REQUEST_DIR.
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

#include "simulator/ManualClock.h"
#include "simulator/SimulatedController.h"

namespace {

const char* const Requests[] = {
    "get system version", "get system type", "get config is_changeable", "get inertial available",
    "get inertial number_of_sensors", "get inertial sensor d01", "get inertial sensor_present NRV IMU3 '10231'",
    "get inertial body_of_sensor NRV IMU3 '10231'", "get inertial sensor_temperature NRV IMU3 '10231'",
    "get inertial sensor_battery NRV IMU3 '10231'", "get inertial sensor_version NRV IMU3 '10231'",
    "get inertial limit frequency", "get inertial frequency", "get inertial warmup", "get inertial warmup_status",
    "get inertial number_of_transceivers", "get inertial transceiver d01",
    "get inertial number_of_transceiver_available_radio_channels NRV RD2 '70011'",
    "get inertial transceiver_radio_channel_activity NRV RD2 '70011' 35", "get inertial number_of_wakeup_modes",
    "get inertial wakeup_mode t01", "get inertial number_of_scanned_sensors", "get body number_of_bodies standard",
    "get body desc standard b01", "get body filter6d_enabled standard b01", "get filter6d number_of_presets",
    "get filter6d preset_id t01", "get status err", "get status step_progress", "get cal step_pause inertial_alignment s01",
    "get inertial new_sensor_handeye NRV IMU3 '10231'", "get tracking pulse", "get no such_thing",
    "set inertial frequency 100.000000", "set body desc standard b02 \"left \"hand\"\"", "set inertial warmup yes",
    "inertial scan_transceiver_radio_channels", "tracking start", "cal inertial_gyro start",
};

bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 3 || !QDir().mkpath(argv[1]) || !QDir().mkpath(argv[2])) {
        std::fprintf(stderr, "usage: fuzz_seeds REPLY_DIR REQUEST_DIR\n");
        return 2;
    }
    ManualClock clock;
    SimulatedController controller(&clock);
    int n = 0;
    for (const char* request : Requests) {
        const QByteArray line = QByteArray("norvane ") + request;
        const QByteArray path = QByteArray(request).mid(4);
        const QByteArray reply = controller.handle(line).line;
        const QString name = QStringLiteral("/seed%1").arg(++n, 2, 10, QLatin1Char('0'));
        if (!write(argv[1] + name, path + '\n' + reply) || !write(argv[2] + name, line))
            return 1;
    }
    return 0;
}
