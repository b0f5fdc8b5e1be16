#include "InertialTrackingModule.h"

#include <QAction>
#include <QWidget>

#include "BackendVersions.h"
#include "IOManager.h"
#include "calibration/InertialCalibrationDlg.h"
#include "hybridbody/HybridBodyCalibrationDlg.h"
#include "settings/InertialSettingsDlg.h"
#include "statusbar/InertialStatusBar.h"

namespace {

void clear_element(_GuiElement& element)
{
    element.action = nullptr;
    element.action_position = 0;
    element.menu_name.clear();
    element.menu_position = 0;
    element.widget = nullptr;
    element.element_type = 0;
}

void register_pointer_types()
{
    // Host and module must agree on these exact names: the host builds its
    // QVariants from them.
    qRegisterMetaType<IOManager*>("IOManager*");
    qRegisterMetaType<BackendVersions*>("BackendVersions*");
}

} // namespace

// Outside any namespace, as Q_INIT_RESOURCE requires.
static void init_inertial_resources() { Q_INIT_RESOURCE(InertialesTracking); }

InertialTrackingModule::InertialTrackingModule()
    : parent_widget(nullptr), io(nullptr), backend_versions(nullptr), observer_mode(false)
{
    clear_element(settings_element);
    clear_element(hybrid_body_element);
    clear_element(inertial_calibration_element);
    clear_element(status_element);
    register_pointer_types();
    init_resources();
}

InertialTrackingModule::~InertialTrackingModule() = default;

void InertialTrackingModule::init_resources()
{
    init_inertial_resources();
}

QString InertialTrackingModule::get_module_name() const
{
    return tr("GUI Inertial Tracking");
}

QString InertialTrackingModule::get_module_version() const
{
    return QStringLiteral("v%1.%2.%3").arg(1).arg(3).arg(1);
}

void InertialTrackingModule::set_param(QString name, QVariant value)
{
    register_pointer_types();
    if (name == QLatin1String("CommandManager")) {
        io = value.userType() == qMetaTypeId<IOManager*>() ? value.value<IOManager*>() : nullptr;
    } else if (name == QLatin1String("ModuleParent")) {
        parent_widget = value.value<QWidget*>();
    } else if (name == QLatin1String("BackendVersions")) {
        backend_versions = value.userType() == qMetaTypeId<BackendVersions*>()
                               ? value.value<BackendVersions*>()
                               : nullptr;
    } else if (name == QLatin1String("ObserverMode")) {
        observer_mode = value.type() == QVariant::Bool && value.toBool();
    }
}

QList<_GuiElement*> InertialTrackingModule::get_gui_elements()
{
    if (!elements.isEmpty())
        return elements;

    auto* settings = new InertialSettingsDlg(io, parent_widget, backend_versions);
    settings_element.menu_name = tr("&Settings");
    settings_element.menu_position = 200;
    settings_element.action_position = 522;
    settings_element.element_type = 0;
    settings_element.widget = settings;
    settings_element.action = new QAction(tr("In&ertial Sensor"), this);
    settings_element.action->setStatusTip(tr("Change the Inertial Sensor settings"));
    settings_element.action->setWhatsThis(tr("Change the Inertial Sensor settings"));
    connect(settings_element.action, SIGNAL(triggered()), settings, SLOT(update_and_exec()));

    auto* hybrid = new HybridBodyCalibrationDlg(io, parent_widget, backend_versions);
    hybrid_body_element.menu_name = tr("&Calibration");
    hybrid_body_element.menu_position = 300;
    hybrid_body_element.action_position = 720;
    hybrid_body_element.element_type = 0;
    hybrid_body_element.widget = hybrid;
    hybrid_body_element.action = new QAction(tr("&Hybrid Body"), this);
    hybrid_body_element.action->setStatusTip(tr("Calibrate a Hybrid Body"));
    hybrid_body_element.action->setWhatsThis(tr("Calibrate a Hybrid Body"));
    connect(hybrid_body_element.action, SIGNAL(triggered()), hybrid, SLOT(update_and_exec()));

    auto* calibration = new InertialCalibrationDlg(io, parent_widget, backend_versions);
    inertial_calibration_element.menu_name = tr("&Calibration");
    inertial_calibration_element.menu_position = 300;
    inertial_calibration_element.action_position = 420;
    inertial_calibration_element.element_type = 0;
    inertial_calibration_element.widget = calibration;
    inertial_calibration_element.action = new QAction(tr("In&ertial Sensor Calibration"), this);
    inertial_calibration_element.action->setStatusTip(tr("Calibrate a inertial sensor"));
    inertial_calibration_element.action->setWhatsThis(tr("Calibrate a inertial sensor"));
    connect(inertial_calibration_element.action, SIGNAL(triggered()), calibration,
            SLOT(update_and_exec()));

    status_element.action = nullptr;
    status_element.menu_name.clear();
    status_element.action_position = -1;
    status_element.menu_position = -1;
    status_element.widget = new InertialStatusBar(io, parent_widget, backend_versions);
    status_element.element_type = 1;

    elements.clear();
    elements << &settings_element << &hybrid_body_element << &inertial_calibration_element
             << &status_element;
    return elements;
}

void InertialTrackingModule::about_to_exit_module()
{
    if (auto* hybrid = qobject_cast<HybridBodyCalibrationDlg*>(hybrid_body_element.widget))
        hybrid->about_to_exit();
    if (auto* settings = qobject_cast<InertialSettingsDlg*>(settings_element.widget))
        settings->about_to_exit();
    if (auto* status = qobject_cast<InertialStatusBar*>(status_element.widget))
        status->about_to_exit();
}

void InertialTrackingModule::exit_module()
{
    for (_GuiElement* element : {&settings_element, &hybrid_body_element,
                                 &inertial_calibration_element, &status_element}) {
        delete element->widget;
        element->widget = nullptr;
    }
    elements.clear();
}
