#ifndef HOSTHARNESS_H
#define HOSTHARNESS_H

#include <QByteArray>
#include <QMenu>
#include <QString>
#include <QStringList>

#include <memory>

#include "host/InProcessLink.h"
#include "host/LogView.h"
#include "host/MainWindow.h"

class ManualClock;
class SimulatedController;

// The whole product in one test: norvane-host's window on the in-process
// simulator, with the real plug-in loaded from the build, so that a test
// can open a dialog from the menu and check the simulator's state after.
//
//   HostHarness host(HostHarness::Options{PLUGIN_FILE});
//   QVERIFY2(host.ok(), qPrintable(host.error()));
//   host.action("In&ertial Sensor")->trigger();
//   host.clock()->advance(5000);
//
// Tests pass the plug-in's path as tst_PluginLoader does, from
// $<TARGET_FILE:InertialTracking>.
class HostHarness
{
public:
    struct Options
    {
        QString plugin_file;
        // The simulator's start: a scenario file, or JSON text, or neither
        // for the built-in default.
        QString scenario_file;
        QByteArray scenario_json;
        // A manual clock (advanced by the test, answers never wait) or the
        // wall clock at `speed`.
        bool manual_clock = true;
        double speed = 50.0;
        bool show_window = false;
    };

    explicit HostHarness(const Options& options);
    ~HostHarness();

    // False when the scenario or the plug-in could not be loaded; error()
    // says why.
    bool ok() const { return problem.isEmpty(); }
    QString error() const { return problem; }

    MainWindow* window() const { return main_window.get(); }
    InProcessLink* link() const { return controller_link.get(); }
    SimulatedController* simulator() const { return controller_link->simulator(); }
    ManualClock* clock() const { return manual; }   // null on the wall clock
    long round_trips() const { return controller_link->round_trips(); }

    // A module's menu entry by its text with the mnemonic, and its menu.
    QAction* action(const QString& text) const { return main_window->module_action(text); }
    QMenu* menu_of(const QString& action_text) const { return main_window->menu_of(action(action_text)); }
    // The modules' status widgets, in the order they were placed.
    QList<QWidget*> status_widgets() const { return main_window->status_widgets(); }
    QWidget* status_widget() const { return status_widgets().value(0); }
    // The window's message log, oldest first, without times.
    QStringList messages() const { return main_window->message_log()->texts(); }

    // What quitting does: the modules stop and destroy their widgets.
    void shutdown() { main_window->shutdown_modules(); }

    // Texts of menu bar entries or menu entries, " (off)" after disabled ones.
    static QStringList texts(const QList<QAction*>& actions);

private:
    std::unique_ptr<InProcessLink> controller_link;
    std::unique_ptr<MainWindow> main_window;
    ManualClock* manual = nullptr;
    QString problem;
};

#endif // HOSTHARNESS_H
