#ifndef CALIBRATIONPROGRESSDLG_H
#define CALIBRATIONPROGRESSDLG_H

#include <QByteArray>
#include <QDialog>
#include <QString>
#include <QTimer>

class IOManager;
struct BackendVersions;
class Ui_CalibrationProgressDialog;

// Runs one calibration of the controller, of any type, and shows how far it
// has come until the controller reports it finished (accepted) or failed
// (rejected, after showing the controller's reason). With `pause_mode` a
// two-step calibration is driven through its step pauses: the user gets a
// countdown before each step and step 2 is started from here.
class CalibrationProgressDlg : public QDialog
{
    Q_OBJECT

public:
    CalibrationProgressDlg(IOManager* io, QWidget* parent, BackendVersions* versions, bool pause_mode);
    ~CalibrationProgressDlg() override;

    // Prepares and starts a calibration of `type` and runs the dialog
    // modally. 0 when it could not start or the user declined to begin.
    int update_and_execute(const QString& type);
    // A line of the caller's own under the bars, unless "calculating..."
    // already stands there.
    void show_custom_message(const QString& text);

public slots:
    void update_cal_status();
    // Stops the calibration, except one the controller cannot interrupt.
    void reject() override;

signals:
    void progress_changed(double overall, double step);

private:
    // The number of steps and the pauses before them, as far as this
    // dialog honours them.
    void read_steps();
    // Shows the description and the bars the steps need, all at 0.
    void lay_out(QString description, bool reflex);
    void poll_without_pauses();
    void poll_with_pauses();
    // Reads and shows both bars and the time left; returns the step the
    // controller reports.
    int show_progress();
    void show_calibration_error(bool restart_tracking);
    QString step_description(int step);
    // The pause before `step` as the raw form of the query reports it;
    // *announced tells whether the reply said "yes".
    int announced_pause(int step, bool* announced);
    bool count_down(QWidget* parent, int seconds);

    Ui_CalibrationProgressDialog* ui;
    IOManager* io;
    BackendVersions* versions;
    QTimer poll_timer;
    QString cal_type;
    QByteArray type_line;       // cal_type as it goes out
    int number_of_steps;
    int current_step;
    bool calculating_shown;
    int pause1_seconds;
    int pause2_seconds;
    bool pause_mode;
    bool pause2_pending;
    double overall_progress;    // last fractions read, kept when a read fails
    double step_progress;
    int reported_step;
};

#endif // CALIBRATIONPROGRESSDLG_H
