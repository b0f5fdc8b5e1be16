#include "TourRunner.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QRegularExpression>
#include <QTableWidget>
#include <QToolBox>

#include "MainWindow.h"

struct TourRunner::Step
{
    enum Kind {
        Photo,         // save the window (stem: the window's own when null)
        Open,          // click a button that opens a window (stem: that window's)
        OpenIfEnabled, // the same, only when the button is enabled
        OpenCell,      // click the last cell of the first row whose last cell has an icon
                       // (a row's own button, such as delete) that opens a window
        Press,         // click a button that changes the window in place
        Check,         // tick a check box
        Choose,        // pick an entry of a combo box, or a page of a tool box
        SelectRow,     // make a table row the current one
        WaitEnabled,   // until the widget is enabled (a run or a scan is over)
        WaitClosed,    // until the window closes by itself
    };
    Kind kind;
    const char* target;
    int index;
    const char* stem;
};

// A window the tour knows, by class: the name of its pictures and what to do
// in it. When the steps are done the window is closed without accepting.
struct TourRunner::Script
{
    const char* class_name;
    const char* stem;
    QVector<Step> steps;
};

namespace {

using Step = TourRunner::Step;

constexpr int PollMs = 50;
// An entry that keeps opening windows is not photographed forever; what
// comes beyond this is closed unseen.
constexpr int MaxWindowsPerEntry = 24;

// The plug-in's dialogs, and what each opens from inside. The calibrations
// run on the controller; the tour waits for their end so that the results
// are real. Nothing is accepted that would change the controller for later
// pictures: no sensor is added or deleted, and result dialogs are declined.
const QVector<TourRunner::Script>& scripts()
{
    static const QVector<TourRunner::Script> all{
        {"InertialSettingsDlg", "inertial-sensor",
         {{Step::Photo, nullptr, 0, nullptr},
          {Step::Open, "pushButton_addSensor", 0, nullptr},
          // The delete cell of the first sensor's row.
          {Step::OpenCell, "tableWidget", 0, "delete-sensor-question"},
          {Step::Choose, "toolBox", 1, nullptr},
          {Step::SelectRow, "tableWidget_bodies", 0, nullptr},
          {Step::Photo, nullptr, 0, "inertial-sensor-hybrid-bodies"},
          // Needs a calibrated body chosen; a controller without one leaves it off.
          {Step::OpenIfEnabled, "pushButton_filter", 0, nullptr},
          {Step::Choose, "toolBox", 2, nullptr},
          {Step::Photo, nullptr, 0, "inertial-sensor-tracking-frequency"},
          {Step::Choose, "toolBox", 0, nullptr}}},
        {"AddInertialSensorDlg", "add-sensor",
         {{Step::Choose, "comboBox_scanMode", 0, nullptr},
          {Step::Press, "pushButton_scan", 0, nullptr},
          {Step::WaitEnabled, "pushButton_scan", 0, nullptr},
          {Step::Photo, nullptr, 0, nullptr}}},
        {"FilterDialog", "filter", {{Step::Photo, nullptr, 0, nullptr}, {Step::Open, "pushButton_help", 0, nullptr}}},
        {"FilterHelp", "filter-help", {{Step::Photo, nullptr, 0, nullptr}}},
        {"InertialCalibrationDlg", "inertial-sensor-calibration",
         {{Step::Photo, nullptr, 0, nullptr},
          {Step::Open, "pushButton_help", 0, nullptr},
          {Step::Check, "checkBox_calibrateAll", 0, nullptr},
          {Step::Press, "pushButton_calibrate", 0, nullptr},
          {Step::WaitEnabled, "pushButton_apply", 0, nullptr},
          {Step::Photo, nullptr, 0, "inertial-sensor-calibration-residuals"},
          {Step::Open, "pushButton_apply", 0, nullptr}}},
        {"InertialCalibrationHelpDlg", "inertial-sensor-calibration-help", {{Step::Photo, nullptr, 0, nullptr}}},
        {"InertialCalibrationResultDlg", "inertial-sensor-calibration-result", {{Step::Photo, nullptr, 0, nullptr}}},
        {"HybridBodyCalibrationDlg", "hybrid-body",
         {{Step::Photo, nullptr, 0, nullptr},
          {Step::Open, "pushButton_help", 0, nullptr},
          // Countdown (when the controller pauses before the run), progress, result.
          {Step::Open, "pushButton_calibrate", 0, nullptr}}},
        {"HybridBodyCalibrationHelpDlg", "hybrid-body-help", {{Step::Photo, nullptr, 0, nullptr}}},
        {"CountdownDlg", "countdown", {{Step::Photo, nullptr, 0, nullptr}, {Step::Press, "pushButton_2", 0, nullptr}}},
        {"CalibrationProgressDlg", "calibration-progress",
         {{Step::Photo, nullptr, 0, nullptr}, {Step::WaitClosed, nullptr, 0, nullptr}}},
        {"HybridBodyResultCalibrationDlg", "hybrid-body-result",
         {{Step::Press, "pushButton_showDetails", 0, nullptr}, {Step::Photo, nullptr, 0, nullptr}}},
    };
    return all;
}

const TourRunner::Script* script_for(const QWidget* window)
{
    const char* name = window->metaObject()->className();
    for (const TourRunner::Script& script : scripts())
        if (qstrcmp(script.class_name, name) == 0)
            return &script;
    static const TourRunner::Script unknown{nullptr, nullptr, {{Step::Photo, nullptr, 0, nullptr}}};
    return &unknown;
}

// The window's own widget of that name, not one in a dialog it owns (those
// are children too, and often use the same names).
QWidget* part_of(QWidget* window, const char* name)
{
    const QList<QWidget*> found = window->findChildren<QWidget*>(QLatin1String(name));
    for (QWidget* widget : found)
        if (widget->window() == window)
            return widget;
    return nullptr;
}

} // namespace

TourRunner::TourRunner(MainWindow* main_window, const QString& target, QObject* parent)
    : QObject(parent), window(main_window), folder(target)
{
    watcher.setInterval(PollMs);
    connect(&watcher, &QTimer::timeout, this, &TourRunner::poll);
}

QString TourRunner::file_stem(const QString& action_text)
{
    QString stem = action_text;
    stem.remove(QLatin1Char('&'));
    stem = stem.toLower();
    stem.replace(QRegularExpression(QStringLiteral("[^a-z0-9]+")), QStringLiteral("-"));
    stem.remove(QRegularExpression(QStringLiteral("^-+|-+$")));
    return stem.isEmpty() ? QStringLiteral("entry") : stem;
}

bool TourRunner::run()
{
    saved.clear();
    trouble.clear();
    if (!QDir().mkpath(folder)) {
        trouble << tr("Cannot create the folder %1.").arg(QDir::toNativeSeparators(folder));
        return false;
    }
    const QList<QAction*> actions = window->module_actions();
    if (actions.isEmpty())
        trouble << tr("No module offers a menu entry.");
    for (QAction* action : actions)
        visit(action);

    // The window last, so that its logs show the tour's traffic.
    QApplication::processEvents();
    save(window, QStringLiteral("main-window"));
    return trouble.isEmpty();
}

void TourRunner::visit(QAction* action)
{
    entry_stem = file_stem(action->text());
    entry_windows = 0;
    announced_stem.clear();
    candidate = nullptr;
    visit_clock.start();
    watcher.start();
    // Blocks in the module's modal loop until poll() closed what it opened.
    action->trigger();
    watcher.stop();
    visits.clear();
    if (entry_windows == 0)
        complain(tr("\"%1\" opened no window.").arg(action->text().remove(QLatin1Char('&'))));
}

void TourRunner::poll()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || !modal->isVisible()) {
        candidate = nullptr;
        if (visit_clock.hasExpired(patience_ms)) {
            // The entry never opened anything the tour could see.
            watcher.stop();
        }
        return;
    }
    visit_clock.start();
    if (modal != candidate) {
        candidate = modal;
        candidate_since.start();
        if (!visits.contains(modal))
            adopt(modal);
        return;
    }
    Visit* current = &visits[modal];
    // A new window fills in first; between the steps in one a short breath
    // lets queued clicks and replies arrive.
    if (!candidate_since.hasExpired(current->next == 0 ? settle_ms : qMin(settle_ms, 300)))
        return;
    if (entry_windows > MaxWindowsPerEntry) {
        finish(modal);
        return;
    }
    if (current->next >= current->script->steps.size()) {
        finish(modal);
        return;
    }
    if (perform(modal, current)) {
        ++current->next;
        current->waiting.invalidate();
        candidate_since.start();
    }
}

void TourRunner::adopt(QWidget* modal)
{
    ++windows_seen;
    ++entry_windows;
    Visit visit;
    visit.script = script_for(modal);
    if (!announced_stem.isEmpty())
        visit.stem = announced_stem;
    else if (visit.script->stem)
        visit.stem = QString::fromLatin1(visit.script->stem);
    else
        visit.stem = entry_windows == 1 ? entry_stem : QStringLiteral("%1-%2").arg(entry_stem).arg(entry_windows);
    announced_stem.clear();
    visits.insert(modal, visit);
    // Dialogs live on their opener's stack: a later one may take the address.
    connect(modal, &QObject::destroyed, this, [this, modal] { visits.remove(modal); });
}

bool TourRunner::perform(QWidget* modal, Visit* visit)
{
    const Step& step = visit->script->steps.at(visit->next);
    if (visit->awaiting)
        return expect_window(modal, visit, step);
    if (!visit->waiting.isValid())
        visit->waiting.start();
    QWidget* target = step.target ? part_of(modal, step.target) : nullptr;
    if (step.target && !target) {
        complain(tr("%1 has no %2.").arg(visit->stem, QLatin1String(step.target)));
        return true;
    }
    auto* button = qobject_cast<QAbstractButton*>(target);
    switch (step.kind) {
    case Step::Photo:
        save(modal, step.stem ? QString::fromLatin1(step.stem) : visit->stem);
        return true;
    case Step::OpenIfEnabled:
        if (!target->isEnabled())
            return true;
        Q_FALLTHROUGH();
    case Step::Open:
    case Step::OpenCell:
        if (!target->isEnabled()) {
            complain(tr("%1: %2 is disabled.").arg(visit->stem, QLatin1String(step.target)));
            return true;
        }
        visit->awaiting = true;
        visit->windows_before = windows_seen;
        announced_stem = step.stem ? QString::fromLatin1(step.stem) : QString();
        // Queued: the window it opens runs its own modal loop, not inside this poll.
        if (step.kind == Step::OpenCell) {
            auto* table = qobject_cast<QTableWidget*>(target);
            const int column = table ? table->columnCount() - 1 : 0;
            int row = 0;
            while (table && row < table->rowCount()
                   && !(table->item(row, column) && !table->item(row, column)->icon().isNull()))
                ++row;
            QMetaObject::invokeMethod(target, "cellClicked", Qt::QueuedConnection, Q_ARG(int, row),
                                      Q_ARG(int, column));
        } else {
            QMetaObject::invokeMethod(target, "click", Qt::QueuedConnection);
        }
        return false;
    case Step::Press:
        if (button && button->isEnabled())
            QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
        else
            complain(tr("%1: %2 cannot be pressed.").arg(visit->stem, QLatin1String(step.target)));
        return true;
    case Step::Check:
        if (button)
            button->setChecked(true);
        return true;
    case Step::Choose:
        if (auto* combo = qobject_cast<QComboBox*>(target))
            combo->setCurrentIndex(step.index);
        else if (auto* pages = qobject_cast<QToolBox*>(target))
            pages->setCurrentIndex(step.index);
        return true;
    case Step::SelectRow:
        if (auto* table = qobject_cast<QTableWidget*>(target); table && table->rowCount() > step.index)
            table->setCurrentCell(step.index, 0);
        return true;
    case Step::WaitEnabled:
    case Step::WaitClosed:
        if (step.kind == Step::WaitEnabled && target->isEnabled())
            return true;
        if (!visit->waiting.hasExpired(patience_ms))
            return false;
        complain(tr("%1 did not finish within %2 s.").arg(visit->stem).arg(patience_ms / 1000));
        return true;
    }
    return true;
}

bool TourRunner::expect_window(QWidget* modal, Visit* visit, const Step& step)
{
    // Back in this window: whatever the click opened has been and gone.
    Q_UNUSED(modal)
    if (windows_seen > visit->windows_before) {
        visit->awaiting = false;
        return true;
    }
    if (!visit->waiting.hasExpired(patience_ms))
        return false;
    complain(tr("%1: %2 opened no window.").arg(visit->stem, QLatin1String(step.target)));
    visit->awaiting = false;
    announced_stem.clear();
    return true;
}

void TourRunner::finish(QWidget* modal)
{
    candidate = nullptr;
    visits.remove(modal);
    // Hiding ends a modal loop whatever the dialog makes of reject().
    if (auto* dialog = qobject_cast<QDialog*>(modal))
        dialog->done(QDialog::Rejected);
    if (modal->isVisible())
        modal->hide();
}

bool TourRunner::save(QWidget* widget, const QString& stem)
{
    const QString path = QDir(folder).filePath(stem + QStringLiteral(".png"));
    if (!widget->grab().save(path)) {
        complain(tr("Cannot write %1.").arg(QDir::toNativeSeparators(path)));
        return false;
    }
    saved << path;
    return true;
}

void TourRunner::complain(const QString& problem)
{
    trouble << problem;
}
