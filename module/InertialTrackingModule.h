#ifndef INERTIALTRACKINGMODULE_H
#define INERTIALTRACKINGMODULE_H

#include <QList>
#include <QObject>

#include "ModuleInterface.h"

class IOManager;
struct BackendVersions;

// The object the host gets from the plug-in: it takes the host's objects,
// builds the module's dialogs and status widget once and hands them out as
// menu and status-bar elements, and tears them down at shutdown.
class InertialTrackingModule : public QObject, public ModuleInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ModuleInterface_iid)
    Q_INTERFACES(ModuleInterface)

public:
    InertialTrackingModule();
    ~InertialTrackingModule() override;

    void about_to_exit_module() override;
    void exit_module() override;
    QString get_module_name() const override;
    QString get_module_version() const override;
    QList<_GuiElement*> get_gui_elements() override;
    void set_param(QString name, QVariant value) override;

    // Registers the module's images; safe to call more than once. Tests that
    // build a dialog without the module call it themselves.
    static void init_resources();

private:
    QWidget* parent_widget;
    QList<_GuiElement*> elements;
    _GuiElement settings_element;
    _GuiElement hybrid_body_element;
    _GuiElement inertial_calibration_element;
    _GuiElement status_element;
    IOManager* io;
    BackendVersions* backend_versions;
    bool observer_mode;
};

#endif // INERTIALTRACKINGMODULE_H
