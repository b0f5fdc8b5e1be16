#ifndef TRACKINGPULSEPAGE_H
#define TRACKINGPULSEPAGE_H

#include <QCoreApplication>

class InertialSettingsDlg;
class IOManager;
class Ui_InertialSettingsDlg;
struct BackendVersions;

// The "Tracking Frequency" page: what clocks the controller's tracking
// output (the cameras, one inertial sensor on a body, or a frequency of its
// own). Read from the controller whenever it is shown; written back only
// after the user changed something, when the page box changes page or the
// dialog closes.
class TrackingPulsePage
{
    Q_DECLARE_TR_FUNCTIONS(TrackingPulsePage)

public:
    TrackingPulsePage(InertialSettingsDlg* dialog, Ui_InertialSettingsDlg* ui, IOManager* io,
                      BackendVersions* versions);

    // The page usable only on a controller that knows the tracking pulse
    // and whose configuration may be changed.
    void enableInertialControls(bool locked, bool inertial_available);
    void activateInertialControls();
    // Everything the page shows, read afresh.
    void refresh(bool inertial_available);
    void update_spinBox_frequency();
    void update_comboBox_inertialSensor(bool inertial_available);
    void update_radioButtonsInertial();
    void sendTrackingPulseSettingsToAtc();

    // The dialog's by-name slots end here.
    void on_radioButton_toggled();
    void user_changed();

private:
    bool supported() const;
    void report(const QString& text) const;

    InertialSettingsDlg* dialog;
    Ui_InertialSettingsDlg* ui;
    IOManager* io;
    BackendVersions* versions;
    bool changed;
    // Off while the page is filled from the controller: filling is no edit.
    bool user_edits;
};

#endif // TRACKINGPULSEPAGE_H
