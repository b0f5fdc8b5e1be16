#include "RecordingModule.h"

#include <QAction>
#include <QLabel>

RecordingModule::RecordingModule(const QString& module_name) : name(module_name)
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
    elements.push_back(std::make_unique<_GuiElement>(
        _GuiElement{action, action_position, menu, menu_position, nullptr, 0}));
    return action;
}

QWidget* RecordingModule::add_status_widget()
{
    auto* widget = new QLabel(QStringLiteral("%1 status").arg(name));
    widget->setObjectName(QStringLiteral("%1Status").arg(name));
    status_widgets << widget;
    elements.push_back(std::make_unique<_GuiElement>(_GuiElement{nullptr, -1, QString(), -1, widget, 1}));
    return widget;
}

void RecordingModule::add_raw(const _GuiElement& element)
{
    elements.push_back(std::make_unique<_GuiElement>(element));
}

void RecordingModule::about_to_exit_module()
{
    record(QStringLiteral("about_to_exit_module"));
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

void RecordingModule::record(const QString& call)
{
    log << call;
    if (journal)
        *journal << QStringLiteral("%1 %2").arg(name, call);
}
