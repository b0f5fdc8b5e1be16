#include "CalibrationProgressDlg.h"

#include <QMessageBox>
#include <QStringList>

#include <cmath>

#include "CountdownDlg.h"
#include "module/ControllerText.h"
#include "module/IOManager.h"
#include "module/ListLimits.h"
#include "module/VersionGate.h"
#include "ui_CalibrationProgressDialog.h"

namespace {

constexpr int PollIntervalMs = 200;
constexpr int StartTimeoutMs = 5000;
// The wait at a step change when the controller's pauses are not honoured.
constexpr int StepChangePauseSeconds = 5;
// A pause the raw query announces as 0 still gives the user a moment.
constexpr int DefaultPauseSeconds = 5;
// An absurd pause or step from the controller must not freeze the user in
// a countdown or send the step index past any list the controller has.
constexpr int MaxPauseSeconds = 3600;

const QString ReflexScan = QStringLiteral("reflex_scan");
using ControllerWords::None;
using ControllerWords::Err;
const QString Cal = QStringLiteral("cal");
const QString Wait = QStringLiteral("wait");
using ControllerWords::Yes;
using ControllerWords::CommandDone;

QStringList words(const char* reply)
{
    return ControllerText::reply(reply).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

int sane_pause(double seconds)
{
    return std::isfinite(seconds) ? int(qBound(0.0, seconds, double(MaxPauseSeconds))) : 0;
}

} // namespace

CalibrationProgressDlg::CalibrationProgressDlg(IOManager* io, QWidget* parent, BackendVersions* versions,
                                               bool pause_mode)
    : QDialog(parent),
      ui(new Ui_CalibrationProgressDialog),
      io(io),
      versions(versions),
      poll_timer(this),
      number_of_steps(1),
      current_step(1),
      calculating_shown(false),
      pause1_seconds(DefaultPauseSeconds),
      pause2_seconds(DefaultPauseSeconds),
      pause_mode(pause_mode),
      pause2_pending(true),
      overall_progress(0.0),
      step_progress(0.0),
      reported_step(1)
{
    ui->setupUi(this);
    poll_timer.setInterval(PollIntervalMs);
    connect(&poll_timer, &QTimer::timeout, this, &CalibrationProgressDlg::update_cal_status);
    ui->label_remaining_time->clear();
}

CalibrationProgressDlg::~CalibrationProgressDlg()
{
    delete ui;
}

int CalibrationProgressDlg::update_and_execute(const QString& type)
{
    cal_type = type;
    type_line = ControllerText::latin(type);
    const char* t = type_line.constData();
    pause2_pending = true;
    current_step = 1;
    reported_step = 1;
    const bool reflex = type == ReflexScan;
    // A calibration that cannot be interrupted offers no way to close.
    setWindowFlags(reflex ? Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
                          : Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);

    char reply[IOManager::ReplyCapacity] = "";
    io->get_string(reply, "cal type_desc %s", t);
    const QString description = ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
    read_steps();
    if (pause1_seconds != 0 && !count_down(parentWidget(), pause1_seconds))
        return 0;
    lay_out(description, reflex);

    reply[0] = '\0';
    io->get_string(reply, "status active");
    const QString activity = ControllerText::reply(reply);
    if (activity == Wait) {
        ControllerText::report(io, tr("cannot start calibration, waiting for sync signal"));
        return 0;
    }
    char answer[IOManager::ReplyCapacity] = "";
    if (activity != None && activity != Err)
        io->send_command(answer, "norvane tracking stop");

    io->set_timeout(false, StartTimeoutMs, false);
    answer[0] = '\0';
    if (io->send_command(answer, "norvane cal %s start", t) != 0 || ControllerText::reply(answer) != CommandDone)
        return 0;
    // Polling begins with the run and ends with the dialog, so that a
    // calibration that never started or a closed dialog asks nothing more.
    poll_timer.start();
    const int result = exec();
    poll_timer.stop();
    return result;
}

void CalibrationProgressDlg::read_steps()
{
    const char* t = type_line.constData();
    int steps = 1;
    number_of_steps = io->get_int(&steps, "cal number_of_steps %s", t) == 0 ? qBound(1, steps, ListLimits::MaxListLength) : 1;
    char reply[IOManager::ReplyCapacity] = "";
    io->get_string(reply, "cal step_pause %s s%02d", t, 1);
    const QStringList pause = words(reply);
    pause1_seconds = pause.value(0) == Yes ? sane_pause(pause.value(1).toDouble()) : 0;
    if (number_of_steps != 2 || !pause_mode)
        return;
    bool first = false;
    bool second = false;
    const int before_first = announced_pause(1, &first);
    if (first)
        pause1_seconds = before_first;
    const int before_second = announced_pause(2, &second);
    if (second)
        pause2_seconds = before_second;
    // Without both pauses announced the steps cannot be driven from here.
    if (!first || !second)
        number_of_steps = 1;
}

void CalibrationProgressDlg::lay_out(QString description, bool reflex)
{
    ui->label_info->clear();
    const bool stepped = number_of_steps > 1;
    ui->progressBar_step->setVisible(stepped);
    ui->label->setVisible(stepped);
    ui->label_progress_step->setVisible(stepped);
    if (stepped)
        description += tr(" is a %1 step calibration.").arg(number_of_steps);
    ui->pb_cancel->setVisible(!reflex);
    if (reflex)
        description += tr("\nCurrently this calibration cannot be interrupted!");
    ui->label_desc->setText(description);
    ui->label_step_desc->setVisible(stepped);
    if (stepped)
        ui->label_step_desc->setText(step_description(1));
    overall_progress = 0.0;
    step_progress = 0.0;
    ui->progressBar_overall->setValue(0);
    ui->progressBar_step->setValue(0);
    ui->label_remaining_time->clear();
    calculating_shown = false;
}

void CalibrationProgressDlg::show_custom_message(const QString& text)
{
    if (!calculating_shown)
        ui->label_info->setText(text);
}

void CalibrationProgressDlg::update_cal_status()
{
    if (number_of_steps == 2 && pause_mode)
        poll_with_pauses();
    else
        poll_without_pauses();
}

void CalibrationProgressDlg::reject()
{
    if (cal_type == ReflexScan)
        return;
    poll_timer.stop();
    char reply[IOManager::ReplyCapacity] = "";
    io->send_command(reply, "norvane cal %s stop", type_line.constData());
    QDialog::reject();
}

void CalibrationProgressDlg::poll_without_pauses()
{
    char reply[IOManager::ReplyCapacity] = "";
    io->get_string(reply, "status active");
    const QString status = ControllerText::reply(reply);
    if (status == None) {
        poll_timer.stop();
        accept();
        return;
    }
    if (status == Err) {
        poll_timer.stop();
        show_calibration_error(false);
        done(Rejected);
        return;
    }
    if (status != Cal)
        return;

    const int step = show_progress();
    emit progress_changed(overall_progress, step_progress);
    if (step == 1 && !calculating_shown && ControllerText::percent(overall_progress) == 100) {
        calculating_shown = true;
        ui->label_info->setText(tr("calculating..."));
    }
    if (step > current_step) {
        current_step = step;
        ui->label_step_desc->setText(step_description(step));
        // The poll goes on meanwhile: the controller decides when the step begins.
        if (!count_down(this, StepChangePauseSeconds))
            poll_timer.stop();
    }
}

void CalibrationProgressDlg::poll_with_pauses()
{
    char reply[IOManager::ReplyCapacity] = "";
    io->get_string(reply, "status step_active");
    const QString status = ControllerText::reply(reply);
    if (status == QLatin1String("cal 1") || status == QLatin1String("cal 2")) {
        show_progress();
    } else if (status == QLatin1String("pause 2")) {
        poll_timer.stop();
        current_step = 2;
        ui->label_step_desc->setText(step_description(2));
        if (pause2_seconds == 0 || !pause2_pending)
            return;
        if (!count_down(this, pause2_seconds))
            done(Rejected);
        // Step 2 is started even when the user declined the countdown: the
        // controller waits for it, and it must not be left in its pause.
        pause2_pending = false;
        char answer[IOManager::ReplyCapacity] = "";
        io->send_command(answer, "norvane cal %s start_step s02", type_line.constData());
        poll_timer.start();
    } else if (status == QLatin1String("pause 1")) {
        poll_timer.stop();
        if (!count_down(this, pause1_seconds))
            done(Rejected);
        calculating_shown = false;
        poll_timer.start();
    } else if (status == None) {
        poll_timer.stop();
        accept();
    } else if (status == Err) {
        poll_timer.stop();
        show_calibration_error(true);
        done(Rejected);
    }
}

int CalibrationProgressDlg::show_progress()
{
    double overall = 0.0;
    if (io->get_double(&overall, "status progress") == 0 && std::isfinite(overall))
        overall_progress = overall;
    ui->progressBar_overall->setValue(ControllerText::percent(overall_progress));

    char reply[IOManager::ReplyCapacity] = "";
    io->get_string(reply, "status step_progress");
    const QStringList parts = words(reply);
    bool step_read = false;
    bool fraction_read = false;
    const int step = parts.value(0).toInt(&step_read);
    const double fraction = parts.value(1).toDouble(&fraction_read);
    if (step_read && fraction_read && std::isfinite(fraction)) {
        reported_step = qBound(1, step, ListLimits::MaxListLength);
        step_progress = fraction;
    }
    ui->progressBar_step->setValue(ControllerText::percent(step_progress));

    if (VersionGate::available(versions, 1, 4)) {
        reply[0] = '\0';
        io->get_string(reply, "cal step_duration %s s%02d", type_line.constData(), current_step);
        bool read = false;
        const double duration = words(reply).value(0).toDouble(&read);
        const double left = (1.0 - step_progress) * duration;
        if (read && std::isfinite(left) && std::fabs(left) < 1e9)
            ui->label_remaining_time->setText(tr("remaining time: %1 seconds").arg(int(left)));
    }
    return reported_step;
}

void CalibrationProgressDlg::show_calibration_error(bool restart_tracking)
{
    char reply[IOManager::ReplyCapacity] = "";
    io->send_command(reply, "norvane get status err");
    if (restart_tracking) {
        // Leaves the controller out of its error state without tracking.
        char answer[IOManager::ReplyCapacity] = "";
        io->send_command(answer, "norvane tracking start");
        io->send_command(answer, "norvane tracking stop");
    }
    QMessageBox box(QMessageBox::Critical, tr("Calibration Error"),
                    ControllerText::quoted(ControllerText::reply(reply)), QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

QString CalibrationProgressDlg::step_description(int step)
{
    char reply[IOManager::ReplyCapacity] = "";
    io->get_string(reply, "cal step_desc %s s%02d", type_line.constData(), step);
    return ControllerText::withoutDoubleQuotes(ControllerText::reply(reply));
}

int CalibrationProgressDlg::announced_pause(int step, bool* announced)
{
    // "norvane set cal step_pause TYPE sNN yes SECONDS"
    char reply[IOManager::ReplyCapacity] = "";
    io->send_command(reply, "norvane get cal step_pause %s s%02d", type_line.constData(), step);
    const QStringList parts = words(reply);
    *announced = parts.value(6) == Yes;
    const int seconds = sane_pause(parts.value(7).toInt());
    return seconds == 0 ? DefaultPauseSeconds : seconds;
}

bool CalibrationProgressDlg::count_down(QWidget* parent, int seconds)
{
    CountdownDlg countdown(parent);
    countdown.setMessage(QString(), seconds);
    return countdown.exec() == Accepted;
}
