#include "MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>

#include <clocale>

#include "ControllerLink.h"
#include "LogView.h"
#include "MenuPlacer.h"
#include "MessageHub.h"
#include "ModuleLoader.h"
#include "VersionProbe.h"
#include "module/IOManager.h"
#include "ui_MainWindow.h"

namespace {

// After the modules' entries, whatever they ask for.
constexpr int QuitActionPosition = 1000000;
constexpr int StatusMessageMs = 10000;

} // namespace

// Outside any namespace, as Q_INIT_RESOURCE requires; the images live in a
// static library, where nothing else would keep them linked in.
static void init_host_resources() { Q_INIT_RESOURCE(host); }

MainWindow::MainWindow(ControllerLink* controller, QWidget* parent)
    : QMainWindow(parent),
      ui(std::make_unique<Ui::MainWindow>()),
      link(controller),
      hub(new MessageHub(this)),
      loader(new ModuleLoader(this)),
      connection_label(new QLabel(this))
{
    init_host_resources();
    // QApplication adopted the user's locale; modules read numbers out of
    // replies with sscanf, and the controller writes "0.5" whatever the
    // user's language.
    std::setlocale(LC_NUMERIC, "C");
    ui->setupUi(this);
    placer = std::make_unique<MenuPlacer>(ui->menubar);
    placer->adopt(ui->menu_file, FileMenuPosition);
    placer->adopt(ui->menu_settings, SettingsMenuPosition);
    placer->adopt(ui->menu_calibration, CalibrationMenuPosition);
    placer->adopt(ui->menu_help, HelpMenuPosition);
    placer->place(ui->menu_file, ui->action_quit, QuitActionPosition);
    placer->update_enabled();

    ui->splitter_main->setStretchFactor(0, 0);
    ui->splitter_main->setStretchFactor(1, 1);
    ui->treeWidget_modules->header()->setStretchLastSection(true);
    ui->logView_messages->set_timestamps(true);
    ui->logView_traffic->setLineWrapMode(QPlainTextEdit::NoWrap);
    statusBar()->addPermanentWidget(connection_label);

    link->set_message_hub(hub);
    connect(hub, &MessageHub::standard_message, this, &MainWindow::show_user_message);
    connect(hub, &MessageHub::note, this, [this](const QString& text) { log_note(text, true); });
    connect(link, &ControllerLink::traced, ui->logView_traffic, &LogView::append_entry);
    // The count changes with every exchange; drawing it once per pass of
    // the event loop is as current as the eye can see.
    connect(link, &ControllerLink::round_trips_changed, this, [this] {
        if (round_trips_queued)
            return;
        round_trips_queued = true;
        QMetaObject::invokeMethod(this, &MainWindow::show_round_trips, Qt::QueuedConnection);
    });
    connect(link, &ControllerLink::connection_changed, this, &MainWindow::update_connection_state);
    connect(link, &ControllerLink::notice, this, [this](const QString& text) {
        log_note(text, true);
        statusBar()->showMessage(text, StatusMessageMs);
    });
    connect(link, &ControllerLink::answering_changed, this,
            [this](bool, const QString& state) { show_connection_state(state); });
    // Queued: the change is reported from inside an exchange, and reading
    // the versions is exchanges of its own.
    connect(link, &ControllerLink::connection_changed, this, &MainWindow::reread_versions_after_reconnect,
            Qt::QueuedConnection);

    VersionProbe::set_host_version(&versions);
    update_controller_view();
}

MainWindow::~MainWindow()
{
    shutdown_modules();
    link->set_message_hub(nullptr);
}

bool MainWindow::connect_controller()
{
    QStringList problems;
    versions_known = VersionProbe::read(link, &versions, &problems);
    for (const QString& problem : qAsConst(problems))
        log_note(problem, true);
    if (versions_known)
        log_note(tr("Connected to the %1: software %2, system type %3, firmware %4.%5.%6.")
                     .arg(link->description(), VersionProbe::controller_version_text(versions),
                          versions.system_type)
                     .arg(versions.firmware_major)
                     .arg(versions.firmware_minor)
                     .arg(versions.firmware_patch));
    else
        log_note(tr("Features that need a newer controller stay off until its version is known."), true);
    update_controller_view();
    return versions_known;
}

void MainWindow::reread_versions_after_reconnect(bool connected)
{
    if (connected && !versions_known && !shut_down)
        connect_controller();
}

int MainWindow::load_modules_from(const QString& folder)
{
    const int before = loader->modules().size();
    loader->load_folder(folder);
    report_loader_problems();
    const QList<ModuleLoader::Module> all = loader->modules();
    for (int i = before; i < all.size(); ++i)
        add_module(all.at(i).module, all.at(i).file);
    if (all.size() == before)
        log_note(tr("No module found in %1.").arg(QDir::toNativeSeparators(folder)), true);
    return all.size() - before;
}

bool MainWindow::load_module_file(const QString& path)
{
    const int before = loader->modules().size();
    ModuleInterface* module = loader->load_file(path);
    report_loader_problems();
    if (module && loader->modules().size() > before)
        add_module(module, loader->modules().last().file);
    return module != nullptr;
}

void MainWindow::report_loader_problems()
{
    const QStringList problems = loader->problems();
    for (int i = loader_problems_reported; i < problems.size(); ++i)
        log_note(problems.at(i), true);
    loader_problems_reported = problems.size();
}

QStringList MainWindow::module_problems() const
{
    return loader->problems();
}

void MainWindow::add_module(ModuleInterface* module, const QString& file)
{
    if (!module || installed.contains(module) || shut_down)
        return;
    installed << module;
    IOManager* io = link;
    module->set_param(QStringLiteral("CommandManager"), QVariant::fromValue<IOManager*>(io));
    module->set_param(QStringLiteral("ModuleParent"), QVariant::fromValue<QWidget*>(this));
    module->set_param(QStringLiteral("BackendVersions"), QVariant::fromValue<BackendVersions*>(&versions));
    module->set_param(QStringLiteral("ObserverMode"), false);

    const QString name = module->get_module_name();
    const QList<_GuiElement*> elements = module->get_gui_elements();
    for (_GuiElement* element : elements)
        place_element(name, element);
    placer->update_enabled();

    auto* item = new QTreeWidgetItem(ui->treeWidget_modules);
    item->setText(0, name);
    item->setText(1, module->get_module_version());
    item->setText(2, QFileInfo(file).fileName());
    item->setToolTip(2, file);
    for (int column = 0; column < 2; ++column)
        ui->treeWidget_modules->resizeColumnToContents(column);
    log_note(tr("Loaded %1 %2 from %3.").arg(name, module->get_module_version(), QFileInfo(file).fileName()));
}

void MainWindow::place_element(const QString& module_name, _GuiElement* element)
{
    if (!element) {
        log_note(tr("%1 handed out an empty element; skipped.").arg(module_name), true);
        return;
    }
    switch (element->element_type) {
    case 0:
        if (!element->action || element->menu_name.isEmpty()) {
            log_note(tr("%1 handed out a menu entry without action or menu; skipped.").arg(module_name), true);
            return;
        }
        placer->place(placer->menu(element->menu_name, element->menu_position), element->action,
                      element->action_position);
        placed_actions << element->action;
        return;
    case 1:
        if (!element->widget) {
            log_note(tr("%1 handed out a status element without widget; skipped.").arg(module_name), true);
            return;
        }
        // Permanent, so that the status bar's passing messages never hide
        // it; left of the connection state, in the order they came.
        statusBar()->insertPermanentWidget(placed_status_widgets.size(), element->widget);
        element->widget->show();
        placed_status_widgets << element->widget;
        return;
    default:
        log_note(tr("%1 handed out an element of unknown type %2; skipped.")
                     .arg(module_name)
                     .arg(element->element_type),
                 true);
    }
}

void MainWindow::shutdown_modules()
{
    if (shut_down)
        return;
    shut_down = true;
    for (ModuleInterface* module : qAsConst(installed))
        module->about_to_exit_module();
    for (ModuleInterface* module : qAsConst(installed))
        module->exit_module();
    installed.clear();
    // Receivers still registered belong to objects about to go with their
    // libraries; nothing may reach them any more.
    const QStringList left = hub->receiver_names();
    if (!left.isEmpty())
        log_note(tr("Still registered at shutdown: %1").arg(left.join(QStringLiteral(", "))), true);
    hub->clear();
    // The entries' dialogs are gone: nothing may open them any more.
    for (const QPointer<QAction>& action : qAsConst(placed_actions))
        if (action)
            if (QMenu* menu = menu_of(action))
                menu->removeAction(action);
    loader->unload_all();
    placed_actions.clear();
    placed_status_widgets.clear();
    placer->update_enabled();
}

QList<ModuleInterface*> MainWindow::modules() const
{
    return installed;
}

QList<QAction*> MainWindow::module_actions() const
{
    QList<QAction*> result;
    for (QAction* menu_action : ui->menubar->actions()) {
        if (!menu_action->menu())
            continue;
        for (QAction* action : menu_action->menu()->actions())
            if (placed_actions.contains(action))
                result << action;
    }
    return result;
}

QAction* MainWindow::module_action(const QString& text) const
{
    for (const QPointer<QAction>& action : placed_actions)
        if (action && action->text() == text)
            return action;
    return nullptr;
}

QMenu* MainWindow::menu_of(const QAction* action) const
{
    for (QAction* menu_action : ui->menubar->actions())
        if (menu_action->menu() && menu_action->menu()->actions().contains(const_cast<QAction*>(action)))
            return menu_action->menu();
    return nullptr;
}

QList<QWidget*> MainWindow::status_widgets() const
{
    QList<QWidget*> result;
    for (const QPointer<QWidget>& widget : placed_status_widgets)
        if (widget)
            result << widget;
    return result;
}

LogView* MainWindow::message_log() const
{
    return ui->logView_messages;
}

LogView* MainWindow::traffic_log() const
{
    return ui->logView_traffic;
}

void MainWindow::show_user_message(const QString& source, int type, const QString& text)
{
    ui->logView_messages->append_entry(source.isEmpty() ? text : QStringLiteral("%1: %2").arg(source, text),
                                       type == 1);
    statusBar()->showMessage(text, StatusMessageMs);
}

void MainWindow::log_note(const QString& text, bool problem)
{
    ui->logView_messages->append_entry(text, problem);
}

void MainWindow::update_connection_state(bool connected)
{
    // An outage's own words outlast the connection's ups and downs.
    if (link->is_answering())
        show_connection_state(connected ? tr("connected") : tr("not connected"));
}

void MainWindow::show_connection_state(const QString& state)
{
    ui->label_state->setText(state);
    connection_label->setText(QStringLiteral("%1 \u2014 %2").arg(link->description(), state));
}

void MainWindow::show_round_trips()
{
    round_trips_queued = false;
    ui->label_roundTrips->setNum(int(link->round_trips()));
}

void MainWindow::update_controller_view()
{
    const QString unknown = tr("unknown");
    ui->label_link->setText(link->description());
    ui->label_version->setText(versions_known ? VersionProbe::controller_version_text(versions) : unknown);
    ui->label_systemType->setText(versions.system_type.isEmpty() ? unknown : versions.system_type);
    ui->label_firmware->setText(versions_known ? QStringLiteral("%1.%2.%3")
                                                     .arg(versions.firmware_major)
                                                     .arg(versions.firmware_minor)
                                                     .arg(versions.firmware_patch)
                                               : unknown);
    ui->label_roundTrips->setNum(int(link->round_trips()));
    update_connection_state(link->is_connected());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    shutdown_modules();
    QMainWindow::closeEvent(event);
}

void MainWindow::on_action_quit_triggered()
{
    close();
}

void MainWindow::on_action_about_triggered()
{
    QStringList module_lines;
    for (ModuleInterface* module : qAsConst(installed))
        module_lines << QStringLiteral("<li>%1 %2</li>")
                            .arg(module->get_module_name().toHtmlEscaped(),
                                 module->get_module_version().toHtmlEscaped());
    const QString modules_html = module_lines.isEmpty() ? tr("<p>No modules loaded.</p>")
                                                        : QStringLiteral("<ul>%1</ul>").arg(module_lines.join(QString()));
    QMessageBox::about(this, tr("About Norvane Host"),
                       tr("<h3>Norvane Host %1.%2.%3</h3>"
                          "<p>The desktop front end of the Norvane tracking controller.</p>"
                          "<p>Controller: %4, software %5</p>"
                          "<p>Modules:</p>%6")
                           .arg(versions.frontend_major)
                           .arg(versions.frontend_minor)
                           .arg(versions.frontend_patch)
                           .arg(link->description().toHtmlEscaped(),
                                versions_known ? VersionProbe::controller_version_text(versions) : tr("unknown"),
                                modules_html));
}

void MainWindow::on_action_aboutQt_triggered()
{
    QMessageBox::aboutQt(this);
}
