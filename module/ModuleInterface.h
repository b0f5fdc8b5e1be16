#ifndef MODULEINTERFACE_H
#define MODULEINTERFACE_H

#include <QList>
#include <QString>
#include <QVariant>
#include <QtPlugin>

class QAction;
class QWidget;

// One entry a module hands to the host: a menu action with the dialog it
// opens, or a widget for the host's status bar. Owned by the module.
struct _GuiElement
{
    QAction* action;          // null for a status widget
    qint32 action_position;   // order within its menu; -1 for a status widget
    QString menu_name;        // translated menu title; empty for a status widget
    qint32 menu_position;     // order of that menu in the menu bar; -1 for a status widget
    QWidget* widget;          // the dialog the action opens, or the status widget
    qint32 element_type;      // 0 = menu entry, 1 = status-bar widget
};

// What the host expects of every plug-in module. The slot order is part of
// the contract with already built hosts: append, never reorder.
class ModuleInterface
{
public:
    virtual ~ModuleInterface() {}
    virtual void about_to_exit_module() = 0;
    virtual void exit_module() = 0;
    virtual QString get_module_name() const = 0;
    virtual QString get_module_version() const = 0;
    virtual QList<_GuiElement*> get_gui_elements() = 0;
    virtual void set_param(QString name, QVariant value) = 0;
};

#define ModuleInterface_iid "com.norvane.frontend.ModuleInterface/0.2.0"
Q_DECLARE_INTERFACE(ModuleInterface, ModuleInterface_iid)

#endif // MODULEINTERFACE_H
