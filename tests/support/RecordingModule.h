#ifndef RECORDINGMODULE_H
#define RECORDINGMODULE_H

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

#include "module/ModuleInterface.h"

// A module for host tests: hands out the elements the test gives it and
// writes every call the host makes, as "NAME call", into a journal that
// several modules may share, to see the order across them.
class RecordingModule : public QObject, public ModuleInterface
{
    Q_OBJECT
    Q_INTERFACES(ModuleInterface)

public:
    RecordingModule(const QString& name, QStringList* journal);
    ~RecordingModule() override;

    // A menu entry whose action is a child of the module.
    QAction* add_entry(const QString& menu, int menu_position, const QString& text, int action_position);
    // A status widget; the module deletes it in exit_module().
    QWidget* add_status_widget();
    // Anything, for hosts that must cope with broken records.
    void add_raw(const _GuiElement& element) { elements.push_back(std::make_unique<_GuiElement>(element)); }
    QVariant param(const QString& param_name) const { return params.value(param_name); }

    void about_to_exit_module() override { record(QStringLiteral("about_to_exit_module")); }
    void exit_module() override;
    QString get_module_name() const override { return name; }
    QString get_module_version() const override { return QStringLiteral("v0.0.1"); }
    QList<_GuiElement*> get_gui_elements() override;
    void set_param(QString param_name, QVariant value) override;

private:
    void record(const QString& call) { *journal << name + QLatin1Char(' ') + call; }

    QString name;
    QStringList* journal;
    std::vector<std::unique_ptr<_GuiElement>> elements;
    QList<QWidget*> status_widgets;
    QVariantMap params;
};

#endif // RECORDINGMODULE_H
