#ifndef INERTIALSTATUSBAR_H
#define INERTIALSTATUSBAR_H

#include <QIcon>
#include <QToolBar>

class IOManager;
struct BackendVersions;
class QAction;
class QTimer;
class QToolButton;
class TemperatureBar;

// The module's widget in the host's status bar: whether inertial sensors are
// usable, a button that starts and stops their warm-up, and the warm-up
// progress. It polls the controller on its own, so a warm-up started from a
// dialog shows here too, and it works with no dialog open.
//
// Three states, decided afresh every second from the controller's answers:
// unavailable (button disabled, bar hidden), idle ("Warmup start", no
// progress poll) and warming ("Warmup stop", progress polled every five
// seconds).
class InertialStatusBar : public QToolBar
{
    Q_OBJECT

public:
    InertialStatusBar(IOManager* io, QWidget* parent, BackendVersions* versions);

    // Unlike the dialogs, a controller that cannot say whether inertial
    // tracking is there is given the benefit of the doubt, and one without
    // sensors counts as unavailable: there is nothing to warm up.
    bool is_inertial_available();
    bool is_warmup_active();

    void about_to_exit();

public slots:
    void update_status();
    void update_progress();
    void on_pushButton_startWarmup_clicked();

private:
    void enter_idle();
    void enter_warming();
    void show_unavailable();
    void report(const char* text);

    IOManager* io;
    BackendVersions* backend_versions;
    QTimer* progress_timer;
    QTimer* status_timer;
    QIcon enabled_icon;
    QIcon disabled_icon;
    QToolButton* warmup_button;
    TemperatureBar* warmup_bar;
    QAction* bar_action;
    int number_of_sensors;
};

#endif // INERTIALSTATUSBAR_H
