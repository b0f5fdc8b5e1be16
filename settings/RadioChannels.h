#ifndef RADIOCHANNELS_H
#define RADIOCHANNELS_H

#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include "InertialSettingsDlg.h"

class IOManager;
class QComboBox;
class QTableWidgetItem;
class SensorIdentity;
class Ui_InertialSettingsDlg;

// Radio channels of the "Settings" page: each transceiver's channel and the
// channels it can use, a sensor's channel, moving a transceiver with its
// sensors, and the scan that marks busy channels.
class RadioChannels
{
    // Its texts are the dialog's: they keep their translations.
    Q_DECLARE_TR_FUNCTIONS(InertialSettingsDlg)

public:
    RadioChannels(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io);

    bool fill_dongle_channel(int row, const QString& identity);
    // The channels a transceiver (1-based `number`) can use, read once per
    // opening; `failure` is reported when their count cannot be read.
    QList<int> available_channels_of(int number, const QString& identity, const QString& failure);
    void update_sensor_channel(int row, QString identity, bool present);
    int getSensorChannel(const QString& sensor);
    void getChannelsOfDongles(QStringList& out) const;
    // What a sensor's channel combo offers: the transceivers' channels.
    void get_channels(QStringList& out, const QString& sensor) const;
    // Moves every sensor of the transceiver, then the transceiver itself;
    // sensors left behind are offered for retry.
    void change_channel_of_dongle(QString transceiver, int channel);
    // Moves one sensor; false when it is asleep or did not follow.
    bool move_sensor(const QString& sensor, int channel);
    QString unreachable_text(const QStringList& sensors);
    bool ask_retry(const QString& text);
    void set_progressBar_scanAvailableChannels();
    void scan_available_channels();
    // Reads the radio activity of every transceiver's channels into the
    // busy-channel map.
    void update_scan_status();
    void scan_transciever_radio_channel_activity(QString transceiver);
    // Reads one transceiver's channel activity into the busy-channel map.
    void measure_activity(const QString& transceiver, const QList<int>& channels);

    QMap<QString, QList<int>> marked_channels;          // transceiver -> busy channels
    QMap<QString, QList<int>> known_available_channels; // transceiver -> usable channels
    bool scanNeeded = false;

private:
    void report(const QString& text) const;

    InertialSettingsDlg* d;
    Ui_InertialSettingsDlg* ui;
    IOManager* io;
};

#endif // RADIOCHANNELS_H
