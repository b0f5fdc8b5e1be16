#ifndef SIMMODEL_H
#define SIMMODEL_H

#include <QByteArray>
#include <QList>
#include <QMap>

#include "SimCalibration.h"

// The state of the simulated controller: its system data, transceivers,
// sensors (paired and still waiting to be found), bodies, filter and
// calibration catalogues. Time-dependent values (temperatures, batteries,
// calibrations, sensors that wake up) move on in advance().
class SimModel
{
public:
    struct Version
    {
        int major = 1;
        int minor = 21;
        int patch = 2;

        // The controller knows features introduced at or before A.B.
        bool at_least(int a, int b) const { return major > a || (major == a && minor >= b); }
        QByteArray text() const;
    };

    struct Transceiver
    {
        QByteArray vendor;
        QByteArray model;
        QByteArray serial;          // without the single quotes
        QByteArray version;         // firmware
        bool present = true;
        int channel = 0;
        QList<int> available;       // usable radio channels, ascending
        QList<int> busy;            // channels another radio system occupies
        int scans = 0;              // activity measurements so far

        QByteArray identity() const;
    };

    struct HandEyeResult
    {
        double residual = 0.0;      // degrees
        double delay_ms = 0.0;
        double values[12] = {};     // offset (3), then the rotation column by column
    };

    struct Sensor
    {
        QByteArray vendor;
        QByteArray model;
        QByteArray serial;          // without the single quotes
        bool cable = false;         // on USB instead of radio
        QByteArray transceiver;     // serial of the transceiver it was paired through
        int channel = 0;            // radio channel (unused on cable)
        bool asleep = false;
        qint64 wake_at_ms = -1;     // someone taps it then; -1: nobody does
        qint64 appears_at_ms = 0;   // switched on then (sensors waiting to be found)
        QByteArray wakeup_mode;     // mode id with its quotes, 'wm_radio'
        QList<QByteArray> wakeup_modes;
        int sleep_timeout = 10;
        double max_frequency = 500.0;
        QByteArray version;         // firmware
        bool storage = true;
        double battery = 1.0;       // fraction
        double temperature = 24.0;  // degrees Celsius
        bool gyro_marked = false;
        double gyro_residual = -1.0;        // of the accepted calibration; < 0: none
        bool has_new_gyro = false;
        double new_gyro_residual = 0.0;
        bool handeye_marked = false;
        QByteArray handeye;                 // body of the accepted hand-eye calibration
        bool has_new_handeye = false;
        HandEyeResult new_handeye;

        QByteArray identity() const;
    };

    struct Filter
    {
        bool enabled = false;
        QByteArray preset = "preset6d_default";
        QByteArray mode = "mode6d_standard";
        double strength = 0.5;
        double prediction = 0.0;    // seconds
    };

    struct Body
    {
        QByteArray desc;
        bool calibrated = false;
        bool active = false;
        QByteArray sensor;          // identity of the inertial sensor; empty: none
        Filter filter;
    };

    // A filter mode or preset; hybrid ones are offered only for bodies that
    // carry an inertial sensor.
    struct Choice
    {
        QByteArray id;
        QByteArray desc;
        bool hybrid = false;
        // Presets only: what choosing one sets. A custom preset keeps what
        // the body has; its values are the user's.
        double strength = 0.5;
        double prediction = 0.0;
        QByteArray mode = "mode6d_standard";

        bool custom() const { return id.contains("preset6d_") && id.contains("_custom"); }
    };

    struct WakeupMode
    {
        QByteArray id;              // with its quotes
        QByteArray desc;
    };

    // One channel of a sensor scan: a transceiver and a radio channel, or USB.
    struct ScanSlot
    {
        bool set = false;
        bool usb = false;
        QByteArray transceiver;     // identity
        int channel = 0;
    };

    enum class Pulse { Cameras, Sensor, Frequency };

    SimModel();

    // --- system -------------------------------------------------------------
    Version version;
    QByteArray system_type = "NORVANE-DUO";
    QByteArray firmware_version = "4.2.1";
    bool config_changeable = true;
    bool tracking_available = true;     // cameras connected
    bool tracking = false;              // tracking running
    bool sync_signal = true;            // without it tracking waits
    bool room_calibrated = true;
    double synccard_frequency = 60.0;
    Pulse pulse = Pulse::Cameras;
    QByteArray pulse_sensor;
    double pulse_frequency = 100.0;

    // --- inertial system ----------------------------------------------------
    bool inertial_available = true;
    double frequency = 200.0;
    double frequency_min = 50.0;
    double frequency_max = 500.0;
    bool warmup = false;
    bool warmup_auto_stop = false;      // ends itself once every sensor is warm
    double ambient_temperature = 24.0;
    double operating_temperature = 36.0;
    double warmup_seconds = 180.0;      // from ambient to operating temperature
    int max_sensors = 40;
    QList<WakeupMode> wakeup_modes;
    QMap<QByteArray, QByteArray> vendor_desc;   // vendor code -> description
    QMap<QByteArray, QByteArray> model_desc;    // "vendor model" -> description
    QList<Transceiver> transceivers;
    QList<Sensor> sensors;                      // paired, in pairing order
    QList<Sensor> waiting;                      // out there, not paired

    // --- sensor scan ----------------------------------------------------------
    QList<ScanSlot> scan_slots;
    QList<QByteArray> scan_results;             // "vendor model 'serial' channel"
    bool scan_done = false;
    int scan_polls_left = 0;                    // polls that still answer -1
    int scan_pending_polls = 2;
    int scan_delay_ms = 400;
    int channel_scan_delay_ms = 300;

    // --- bodies and filter --------------------------------------------------
    int max_bodies = 20;
    int body_count = 0;
    QList<Body> bodies;                         // max_bodies of them
    QList<Body> wands;
    bool filter_standard = true;
    bool filter_wand = true;
    QList<Choice> filter_modes;
    QList<Choice> filter_presets;
    double strength_min = 0.01;
    double strength_max = 0.99;
    double prediction_min = -0.05;
    double prediction_max = 0.2;

    SimCalibration calibration;

    // --- lookups --------------------------------------------------------------
    Transceiver* transceiver(const QByteArray& identity);
    Transceiver* transceiver_by_serial(const QByteArray& serial);
    const Transceiver* transceiver_by_serial(const QByteArray& serial) const;
    Sensor* sensor(const QByteArray& identity);
    const Sensor* sensor(const QByteArray& identity) const;
    int sensor_index(const QByteArray& identity) const;
    Body* body(const QByteArray& kind, int number);
    // "standard b03" as the controller writes it.
    const Body* body_by_id(const QByteArray& id) const;
    const Choice* choice(const QList<Choice>& list, const QByteArray& id) const;
    const WakeupMode* wakeup_mode(const QByteArray& id) const;
    static QByteArray body_id(const QByteArray& kind, int number);

    // --- derived state --------------------------------------------------------
    bool present(const Sensor& sensor) const;
    // The transceiver that reaches a radio sensor: one on its channel, the
    // one it was paired through first; else that one, unreachable.
    const Transceiver* serving_transceiver(const Sensor& sensor) const;
    double warm_fraction(const Sensor& sensor) const;
    double warmup_status() const;
    double output_frequency(const Sensor& sensor) const;
    // "standard b03" or "none".
    QByteArray body_of_sensor(const QByteArray& identity) const;
    // What the controller does: "none", "tracking", "wait", "cal" or "err".
    QByteArray activity() const;
    // Radio activity a channel scan measured, -1 when not measured.
    double channel_activity(const Transceiver& transceiver, int channel) const;
    // The quietest channel of the last scan; 0 before any scan.
    int suggested_channel(const Transceiver& transceiver) const;
    bool usable_choice(const Choice& choice, const Body& body) const;

    // --- changes ---------------------------------------------------------------
    // Takes a sensor off its body and out of the tracking pulse.
    void detach_sensor(const QByteArray& identity);
    void advance(qint64 now_ms);
    qint64 now() const { return last_ms; }
    // Where the model's time starts (when a scenario is loaded).
    void start_at(qint64 now_ms) { last_ms = now_ms; }

private:
    void step(qint64 from_ms, qint64 to_ms);

    qint64 last_ms = 0;
};

#endif // SIMMODEL_H
