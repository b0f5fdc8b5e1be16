#include "RecordingModule.h"

#include <QAction>
#include <QLabel>

RecordingModule::RecordingModule(const QString& module_name, QStringList* shared_journal)
    : name(module_name), journal(shared_journal)
{
}

RecordingModule::~RecordingModule()
{
    qDeleteAll(status_widgets);
}

QAction* RecordingModule::add_entry(const QString& menu, int menu_position, const QString& text,
                                    int action_position)
{
    auto* action = new QAction(text, this);
    add_raw(_GuiElement{action, action_position, menu, menu_position, nullptr, 0});
    return action;
}

QWidget* RecordingModule::add_status_widget()
{
    auto* widget = new QLabel(name);
    status_widgets << widget;
    add_raw(_GuiElement{nullptr, -1, QString(), -1, widget, 1});
    return widget;
}

void RecordingModule::exit_module()
{
    record(QStringLiteral("exit_module"));
    qDeleteAll(status_widgets);
    status_widgets.clear();
}

QList<_GuiElement*> RecordingModule::get_gui_elements()
{
    record(QStringLiteral("get_gui_elements"));
    QList<_GuiElement*> list;
    for (const auto& element : elements)
        list << element.get();
    return list;
}

void RecordingModule::set_param(QString param_name, QVariant value)
{
    record(QStringLiteral("set_param %1").arg(param_name));
    params.insert(param_name, value);
}
