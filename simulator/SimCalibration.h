#ifndef SIMCALIBRATION_H
#define SIMCALIBRATION_H

#include <QByteArray>
#include <QList>

#include "SimResult.h"

class SimModel;

// The controller's calibrations: the catalogue of types with their steps,
// and the one run that may be going on. A run passes through its steps, each
// after an optional pause, and ends in success or in an error that "status
// active" reports as "err" until tracking or another calibration starts.
class SimCalibration
{
public:
    struct Step
    {
        QByteArray desc;
        double duration_s = 10.0;
        double pause_s = 0.0;       // wait before the step; 0: none
    };

    struct Type
    {
        QByteArray id;
        QByteArray desc;
        QList<Step> steps;
        bool interruptible = true;
        double fail_at = -1.0;      // overall progress at which the run fails; < 0: never
        int fail_code = 0;
        QByteArray fail_text;
    };

    static const QByteArray Gyro;
    static const QByteArray HandEye;

    QList<Type> types;

    const Type* type(const QByteArray& id) const;
    bool available(const QByteArray& id, const SimModel& model) const;

    bool running() const { return active; }
    const QByteArray& running_type() const { return run.id; }
    bool failed() const { return error_pending; }
    int error_code() const { return err_code; }
    const QByteArray& error_text() const { return err_text; }
    // Tracking started: the failure has been seen and is no longer the
    // controller's state (its text stays readable).
    void clear_failure() { error_pending = false; }

    SimResult start(const QByteArray& type, SimModel& model);
    SimResult stop();
    SimResult start_step(int step);
    void advance(qint64 now_ms, SimModel& model);

    // "none", "cal N", "pause N" or "err".
    QByteArray step_active() const;
    double progress() const;
    int step() const { return current_step; }
    double step_fraction() const { return current_fraction; }
    // How far one sensor of a gyro run has come, 0..1.
    double sensor_progress(const QByteArray& serial) const;

private:
    struct Phase
    {
        bool pause = false;
        int step = 1;
        qint64 duration_ms = 0;
    };

    void update_progress();
    void finish(SimModel& model);
    void fail(int code, const QByteArray& text);
    void deliver_gyro_results(SimModel& model, bool all);
    void check_participants(SimModel& model);
    static double sensor_factor(const QByteArray& serial);

    Type run;
    bool active = false;
    QList<Phase> phases;
    int phase = 0;
    qint64 phase_start_ms = 0;
    qint64 now_ms = 0;
    qint64 measured_ms = 0;         // measuring time of the finished phases
    qint64 total_ms = 0;            // measuring time of the whole run
    double overall = 0.0;
    int current_step = 0;
    double current_fraction = 0.0;
    QList<QByteArray> participants; // sensor identities taking part
    bool error_pending = false;
    int err_code = 0;
    QByteArray err_text;
};

#endif // SIMCALIBRATION_H
