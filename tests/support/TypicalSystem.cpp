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
    fake.reply("config is_changeable", config_changeable);
    fake.reply("inertial available", available);
    fake.reply("inertial warmup", warmup);
    fake.reply("inertial limit frequency", frequency_limits);
    fake.reply("inertial frequency", frequency);
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
        fake.reply("inertial transceiver_version " + id, "\"3.1.0\"");
        fake.reply("inertial transceiver_vendor_desc " + id.split(' ').value(0), "\"Norvane\"");
        fake.reply("inertial transceiver_model_desc " + id.left(id.lastIndexOf(' ')), "\"Dongle (USB)\"");
        fake.reply("inertial transceiver_present " + id, t.present);
        fake.reply("inertial transceiver_radio_channel " + id, t.channel);
        fake.reply("inertial transceiver_suggested_radio_channel " + id, t.suggested);
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
        fake.reply("inertial body_of_sensor " + id, s.body);
        fake.reply("inertial transceiver_of_sensor " + id, s.transceiver);
        fake.reply("inertial sensor_vendor_desc " + id.split(' ').value(0), "\"Norvane\"");
        fake.reply("inertial sensor_model_desc " + model, "\"" + model.mid(4) + " sensor\"");
        fake.reply("inertial sensor_present " + id, s.present);
        fake.reply("inertial sensor_temperature " + id, "18.0 36.0");
        fake.reply("inertial sensor_battery " + id, "0.8");
        fake.reply("inertial sensor_output_frequency " + id, "100.0");
        fake.reply("inertial sensor_handeye " + id, s.handeye);
        fake.reply("inertial sensor_version " + id, "'2.4.1'");
        fake.reply("inertial sensor_radio_channel " + id, s.channel);
        fake.reply("inertial sensor_wakeup_mode " + id, s.mode);
        fake.reply("inertial sensor_sleep_timeout " + id, "0");
        fake.reply("inertial sensor_has_storage " + id, "yes");
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
    }
}
