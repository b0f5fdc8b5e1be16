#include "SettingsScript.h"

#include <QPushButton>

#include "FakeController.h"
#include "ModalDialogHelper.h"
#include "settings/InertialSettingsDlg.h"

namespace {

QByteArray two_digits(int n)
{
    return QByteArray::number(n).rightJustified(2, '0');
}

} // namespace

SettingsScript SettingsScript::typical()
{
    SettingsScript script;
    const QByteArray first = "NRV Dongle 'T1001'";
    const QByteArray second = "NRV Dongle 'T1002'";
    Transceiver t1;
    t1.identity = first;
    Transceiver t2;
    t2.identity = second;
    t2.channel = "20";
    script.transceivers = {t1, t2};

    Sensor s1;
    s1.identity = "NRV IMU9 'S0001'";
    s1.transceiver = first;
    s1.body = "standard b01";
    s1.handeye = "1 0 0 0 1 0 0 0 1 0 0 0";

    Sensor s2;
    s2.identity = "NRV IMU9 'S0002'";
    s2.transceiver = first;

    Sensor s3;
    s3.identity = "NRV IMU9 'S0003'";
    s3.transceiver = second;
    s3.body = "standard b02";
    s3.channel = "20";
    s3.mode = "'wm_tap'";

    Sensor s4;
    s4.identity = "NRV IMU6 'C0004'";
    s4.channel = "usb";
    s4.mode = "'wm_usb'";
    s4.modes = {"'wm_usb'"};

    Sensor s5;
    s5.identity = "NRV IMU9 'S0005'";
    s5.transceiver = second;
    s5.present = "no";
    s5.channel = "20";
    s5.mode = "'wm_tap'";

    script.sensors = {s1, s2, s3, s4, s5};
    return script;
}

void SettingsScript::install(FakeController& fake) const
{
    fake.reply("config is_changeable", config_changeable);
    fake.reply("inertial available", available);
    fake.reply("inertial warmup", warmup);
    fake.reply("inertial limit frequency", frequency_limits);
    fake.reply("inertial frequency", frequency);
    fake.reply("body number_of_bodies standard", QByteArray::number(bodies));

    fake.reply("inertial number_of_wakeup_modes", QByteArray::number(wakeup_modes.size()));
    for (int i = 0; i < wakeup_modes.size(); ++i) {
        fake.reply("inertial wakeup_mode t" + two_digits(i + 1), wakeup_modes.at(i).first);
        fake.reply("inertial wakeup_mode_desc " + wakeup_modes.at(i).first, wakeup_modes.at(i).second);
    }

    fake.reply("inertial number_of_transceivers", QByteArray::number(transceivers.size()));
    for (int i = 0; i < transceivers.size(); ++i) {
        const Transceiver& t = transceivers.at(i);
        const QList<QByteArray> words = t.identity.split(' ');
        fake.reply("inertial transceiver d" + two_digits(i + 1), t.identity);
        fake.reply("inertial transceiver_version " + t.identity, "\"3.1.0\"");
        fake.reply("inertial transceiver_vendor_desc " + words.value(0), "\"Norvane\"");
        fake.reply("inertial transceiver_model_desc " + words.value(0) + ' ' + words.value(1),
                   "\"Dongle (USB)\"");
        fake.reply("inertial transceiver_present " + t.identity, t.present);
        fake.reply("inertial transceiver_radio_channel " + t.identity, t.channel);
        fake.reply("inertial transceiver_suggested_radio_channel " + t.identity, t.suggested);
        fake.reply("inertial number_of_transceiver_available_radio_channels " + t.identity,
                   QByteArray::number(t.available.size()));
        for (int k = 0; k < t.available.size(); ++k) {
            const int channel = t.available.at(k);
            fake.reply("inertial transceiver_available_radio_channel " + t.identity + " t" + two_digits(k + 1),
                       QByteArray::number(channel));
            fake.reply("inertial transceiver_radio_channel_activity " + t.identity + ' ' + QByteArray::number(channel),
                       t.activities.value(channel, t.activity));
        }
    }

    fake.reply("inertial number_of_sensors", QByteArray::number(sensors.size()));
    for (int i = 0; i < sensors.size(); ++i) {
        const Sensor& s = sensors.at(i);
        const QByteArray& id = s.identity;
        const QList<QByteArray> words = id.split(' ');
        fake.reply("inertial sensor d" + two_digits(i + 1), id);
        fake.reply("inertial body_of_sensor " + id, s.body);
        fake.reply("inertial transceiver_of_sensor " + id, s.transceiver);
        fake.reply("inertial sensor_vendor_desc " + words.value(0), "\"Norvane\"");
        fake.reply("inertial sensor_model_desc " + words.value(0) + ' ' + words.value(1),
                   "\"" + words.value(1) + " sensor\"");
        if (s.body != "none")
            fake.reply("body desc " + s.body, "\"Body " + s.body.right(2) + "\"");
        fake.reply("inertial sensor_present " + id, s.present);
        fake.reply("inertial sensor_temperature " + id, s.temperature);
        fake.reply("inertial sensor_battery " + id, s.battery);
        fake.reply("inertial sensor_output_frequency " + id, s.frequency);
        fake.reply("inertial sensor_handeye " + id, s.handeye);
        fake.reply("inertial sensor_version " + id, s.version);
        fake.reply("inertial sensor_radio_channel " + id, s.channel);
        fake.reply("inertial sensor_wakeup_mode " + id, s.mode);
        for (const auto& mode : wakeup_modes)
            fake.reply("inertial sensor_wakeup_mode_available " + id + ' ' + mode.first,
                       s.modes.contains(mode.first) ? "yes" : "no");
    }
}

void SettingsScript::open(InertialSettingsDlg& dialog, const std::function<void()>& inside)
{
    ModalDialogHelper::when_active("InertialSettingsDlg", [&dialog, inside](QWidget*) {
        if (inside)
            inside();
        if (dialog.isVisible())
            dialog.findChild<QPushButton*>("pushButton_exit")->click();
    });
    dialog.update_and_exec();
}
