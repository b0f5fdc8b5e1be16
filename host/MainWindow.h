#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QList>
#include <QMainWindow>
#include <QPointer>
#include <QStringList>

#include <memory>

#include "module/BackendVersions.h"
#include "module/ModuleInterface.h"

class ControllerLink;
class LogView;
class MenuPlacer;
class MessageHub;
class ModuleLoader;
class QLabel;
namespace Ui {
class MainWindow;
}

// The host's window: menus that modules fill, the controller's state, the
// loaded modules, the user's messages and the controller traffic, and a
// status bar that carries the modules' status widgets.
//
// Start-up order: connect_controller() (fills the version record), then
// load_modules_from()/load_module_file(), which hands every module the link,
// this window, the record and the observer flag before asking for its
// elements. Closing the window calls about_to_exit_module() and then
// exit_module() on every module.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // Menu positions of the host's own menus; modules place theirs by the
    // same keys ("&Settings" 200, "&Calibration" 300).
    static constexpr int FileMenuPosition = 100;
    static constexpr int SettingsMenuPosition = 200;
    static constexpr int CalibrationMenuPosition = 300;
    static constexpr int HelpMenuPosition = 10000;

    // The link is not owned and must outlive the window.
    explicit MainWindow(ControllerLink* link, QWidget* parent = nullptr);
    ~MainWindow() override;

    // Reads the controller's versions into the record modules get; returns
    // false (and logs why) when the controller did not tell them all.
    bool connect_controller();
    int load_modules_from(const QString& folder);
    bool load_module_file(const QString& path);
    // Installs a module that is not a plug-in file (built in, or a test's);
    // the caller keeps it alive until shutdown_modules().
    void add_module(ModuleInterface* module, const QString& origin);
    // Why plug-in files could not be used, one sentence each.
    QStringList module_problems() const;
    // Lets every module stop and destroy what it handed out, then unloads
    // them. Safe to call more than once.
    void shutdown_modules();

    BackendVersions* backend_versions() { return &versions; }
    MessageHub* message_hub() const { return hub; }
    ControllerLink* controller_link() const { return link; }
    QList<ModuleInterface*> modules() const;
    // Every menu entry that came from a module, in menu order.
    QList<QAction*> module_actions() const;
    // A module's menu entry by its text with the mnemonic ("In&ertial Sensor").
    QAction* module_action(const QString& text) const;
    QMenu* menu_of(const QAction* action) const;
    QList<QWidget*> status_widgets() const;
    LogView* message_log() const;
    LogView* traffic_log() const;

protected:
    void closeEvent(QCloseEvent* event) override;

private slots:
    void on_action_quit_triggered();
    void on_action_about_triggered();
    void on_action_aboutQt_triggered();

private:
    void place_element(const QString& module_name, _GuiElement* element);
    void show_user_message(const QString& source, int type, const QString& text);
    void log_note(const QString& text, bool problem = false);
    void report_loader_problems();
    void update_controller_view();
    void show_round_trips();
    void update_connection_state(bool connected);
    void show_connection_state(const QString& state);
    void reread_versions_after_reconnect(bool connected);

    std::unique_ptr<Ui::MainWindow> ui;
    std::unique_ptr<MenuPlacer> placer;
    ControllerLink* link;
    MessageHub* hub;
    ModuleLoader* loader;
    QLabel* connection_label;
    BackendVersions versions;
    bool versions_known = false;
    bool round_trips_queued = false;
    bool shut_down = false;
    int loader_problems_reported = 0;
    QList<ModuleInterface*> installed;
    QList<QPointer<QAction>> placed_actions;
    QList<QPointer<QWidget>> placed_status_widgets;
};

#endif // MAINWINDOW_H
