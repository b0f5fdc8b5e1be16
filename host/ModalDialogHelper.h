#ifndef MODALDIALOGHELPER_H
#define MODALDIALOGHELPER_H

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

class QWidget;

// Acts on a modal dialog once it runs, for the tests and the benchmarks:
// call, before the blocking exec() or update_and_exec(),
//   ModalDialogHelper::when_active([&](QWidget* w) { ...; ModalDialogHelper::close(w); });
// The action runs once, inside the dialog's own event loop, on the first
// active modal widget that `match` accepts (any by default). Actions queue:
// a second one waits for the next matching modal widget, such as a message
// box that the first action opens.
class ModalDialogHelper : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void(QWidget*)>;
    using Match = std::function<bool(QWidget*)>;

    static void when_active(Action action, Match match = Match());
    // Shortcut: when a modal widget of class `class_name` (QMessageBox,
    // InertialSettingsDlg, ...) is active, run `action` on it.
    static void when_active(const char* class_name, Action action);
    // Ends a dialog as rejected (whatever its Escape does), or presses a
    // message box's button of that role.
    static void close(QWidget* modal);
    static void press(QWidget* message_box, int standard_button);

    // Actions that never found their dialog; a test's cleanup expects none.
    static int pending();
    static void clear_pending();
    // Top-level widgets still alive: a test that leaves one leaked it.
    static QStringList leaked_windows();

private:
    ModalDialogHelper(Action action, Match match);
    void poll();

    Action action;
    Match match;
    QTimer timer;
    QElapsedTimer waiting;
};

#endif // MODALDIALOGHELPER_H
