#ifndef RECORDINGMODULE_H
#define RECORDINGMODULE_H

#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

#include "module/ModuleInterface.h"

class QWidget;

// A module for host tests: hands out whatever elements the test gives it
// and records, in order, every call the host makes.
//
//   RecordingModule module;
//   module.add_entry("&Tools", 250, "&Probe", 10);
//   window.add_module(&module, "test");
//   QCOMPARE(module.calls(), ...);
class RecordingModule : public QObject, public ModuleInterface
{
    Q_OBJECT
    Q_INTERFACES(ModuleInterface)

public:
    explicit RecordingModule(const QString& name = QStringLiteral("Recording"));
    ~RecordingModule() override;

    // A menu entry whose action is a child of the module.
    QAction* add_entry(const QString& menu, int menu_position, const QString& text, int action_position);
    // A status widget; the module deletes it in exit_module().
    QWidget* add_status_widget();
    // Anything, for hosts that must cope with broken records.
    void add_raw(const _GuiElement& element);

    // "set_param CommandManager", "get_gui_elements", "about_to_exit_module", ...
    QStringList calls() const { return log; }
    // Also writes every call, prefixed with the module's name, into a list
    // that several modules share, to see the order across modules.
    void set_journal(QStringList* shared) { journal = shared; }
    QVariant param(const QString& name) const { return params.value(name); }

    void about_to_exit_module() override;
    void exit_module() override;
    QString get_module_name() const override { return name; }
    QString get_module_version() const override { return QStringLiteral("v0.0.1"); }
    QList<_GuiElement*> get_gui_elements() override;
    void set_param(QString name, QVariant value) override;

private:
    QString name;
    std::vector<std::unique_ptr<_GuiElement>> elements;
    QList<QWidget*> status_widgets;
    QVariantMap params;
    QStringList log;
    QStringList* journal = nullptr;

    void record(const QString& call);
};

#endif // RECORDINGMODULE_H
