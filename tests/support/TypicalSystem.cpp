#include "TypicalSystem.h"

#include "FakeController.h"

namespace {

QByteArray index(char letter, int n)
{
    return ' ' + QByteArray(1, letter) + QByteArray::number(n).rightJustified(2, '0');
}

} // namespace

TypicalSystem::TypicalSystem()
{
    const QByteArray first = "NRV Dongle 'T1001'";
    const QByteArray second = "NRV Dongle 'T1002'";
    transceivers = {{first}, {second}};
    transceivers[1].channel = "20";
    sensors = {{"NRV IMU9 'S0001'", first, "standard b01"}, {"NRV IMU9 'S0002'", first},
               {"NRV IMU9 'S0003'", second, "standard b02", "yes", "'wm_tap'"},
               {"NRV IMU6 'C0004'", "none", "none", "yes", "'wm_usb'", {"'wm_usb'"}, "usb"},
               {"NRV IMU9 'S0005'", second, "none", "no", "'wm_tap'"}};
    sensors[0].handeye = "standard b01";
    sensors[2].channel = sensors[4].channel = "20";
}

void TypicalSystem::install(FakeController& fake) const
{
    fake.reply("config is_changeable", "yes");
    fake.reply("inertial available", "yes");
    fake.reply("inertial warmup", "no");
    fake.reply("inertial limit frequency", "1.0 500.0");
    fake.reply("inertial frequency", "100.0");
    fake.reply("inertial number_of_wakeup_modes", QByteArray::number(wakeup_modes.size()));
    for (int i = 0; i < wakeup_modes.size(); ++i) {
        fake.reply("inertial wakeup_mode" + index('t', i + 1), wakeup_modes.at(i).first);
        fake.reply("inertial wakeup_mode_desc " + wakeup_modes.at(i).first, wakeup_modes.at(i).second);
    }

    fake.reply("inertial number_of_transceivers", QByteArray::number(transceivers.size()));
    for (int i = 0; i < transceivers.size(); ++i) {
        const Transceiver& t = transceivers.at(i);
        const QByteArray& id = t.identity;
        fake.reply("inertial transceiver" + index('d', i + 1), id);
        const QList<QPair<QByteArray, QByteArray>> answers{{"version", "\"3.1.0\""}, {"present", t.present},
            {"radio_channel", t.channel}, {"suggested_radio_channel", t.suggested}};
        for (const auto& answer : answers)
            fake.reply("inertial transceiver_" + answer.first + ' ' + id, answer.second);
        fake.reply("inertial transceiver_vendor_desc " + id.split(' ').value(0), "\"Norvane\"");
        fake.reply("inertial transceiver_model_desc " + id.left(id.lastIndexOf(' ')), "\"Dongle (USB)\"");
        fake.reply("inertial number_of_transceiver_available_radio_channels " + id,
                   QByteArray::number(t.channels.size()));
        for (int k = 0; k < t.channels.size(); ++k) {
            const QByteArray channel = QByteArray::number(t.channels.at(k));
            fake.reply("inertial transceiver_available_radio_channel " + id + index('t', k + 1), channel);
            fake.reply("inertial transceiver_radio_channel_activity " + id + ' ' + channel, "0.1");
        }
    }

    fake.reply("inertial number_of_sensors", QByteArray::number(sensors.size()));
    for (int i = 0; i < sensors.size(); ++i) {
        const Sensor& s = sensors.at(i);
        const QByteArray& id = s.identity;
        const QByteArray model = id.left(id.lastIndexOf(' '));
        fake.reply("inertial sensor" + index('d', i + 1), id);
        const QList<QPair<QByteArray, QByteArray>> answers{{"body_of_sensor", s.body},
            {"transceiver_of_sensor", s.transceiver}, {"sensor_present", s.present}, {"sensor_temperature", "18.0 36.0"},
            {"sensor_battery", "0.8"}, {"sensor_output_frequency", "100.0"}, {"sensor_handeye", s.handeye},
            {"sensor_version", "'2.4.1'"}, {"sensor_radio_channel", s.channel}, {"sensor_wakeup_mode", s.mode},
            {"sensor_sleep_timeout", "0"}, {"sensor_has_storage", "yes"}};
        for (const auto& answer : answers)
            fake.reply("inertial " + answer.first + ' ' + id, answer.second);
        fake.reply("inertial sensor_vendor_desc " + id.split(' ').value(0), "\"Norvane\"");
        fake.reply("inertial sensor_model_desc " + model, "\"" + model.mid(4) + " sensor\"");
        for (const auto& mode : wakeup_modes)
            fake.reply("inertial sensor_wakeup_mode_available " + id + ' ' + mode.first,
                       s.modes.contains(mode.first) ? "yes" : "no");
    }

    const QByteArray bodies = QByteArray::number(calibrated.size());
    fake.reply("body number_of_bodies standard", bodies);
    fake.reply("standard number_of_bodies", bodies);
    fake.reply("standard max_number_of_bodies", QByteArray::number(max_bodies));
    for (int b = 1; b <= max_bodies; ++b) {
        const QByteArray body = "standard" + index('b', b);
        QByteArray carried = "none";
        for (const Sensor& s : sensors)
            carried = s.body == body ? s.identity : carried;
        fake.reply("body desc " + body, "\"Body " + index('b', b).mid(2) + '"');
        fake.reply("body calibrated " + body, calibrated.value(b - 1, "no"));
        fake.reply("body inertial_sensor " + body, carried);
        fake.reply("body active " + body, "yes");
        fake.reply("body filter6d_enabled " + body, "no");
    }
    fake.reply("tracking pulse", "synchronous_cameras");
    fake.reply("synccard output_frequency", "60.0");
}
