#ifndef SENSORCHANNELCOMBO_H
#define SENSORCHANNELCOMBO_H

#include <QComboBox>
#include <QString>

class IOManager;
class InertialSettingsDlg;

// The radio channel of one sensor in the sensor table. Its entries are the
// channels the transceivers work on, so that a sensor can be handed over to
// another transceiver. Filling the combo is not a choice: only once its
// owner calls setUserAction(true) does a new entry move the sensor.
class SensorChannelCombo : public QComboBox
{
    Q_OBJECT

public:
    SensorChannelCombo(IOManager* io, InertialSettingsDlg* dialog, const QString& sensor);

    void setUserAction(bool on) { user_action = on; }
    bool isUserAction() const { return user_action; }
    QString sensor() const { return sensor_identity; }

    // The entry of `channel`, added when it is missing, made current
    // without counting as a choice.
    void showChannel(int channel);

public slots:
    void onCurrentIndexChanged(const QString& text);

private:
    void report(const QString& text);

    IOManager* io;
    InertialSettingsDlg* dialog;
    QString sensor_identity;
    bool user_action = false;
};

#endif // SENSORCHANNELCOMBO_H
