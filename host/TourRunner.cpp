#include "TourRunner.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPixmap>
#include <QRegularExpression>

#include "MainWindow.h"

namespace {

constexpr int PollMs = 50;
// An entry that keeps opening windows is not photographed forever; what
// comes beyond this is closed unseen.
constexpr int MaxPicturesPerEntry = 4;

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
    current_stem = file_stem(action->text());
    captured = 0;
    candidate = nullptr;
    visit_clock.start();
    watcher.start();
    // Blocks in the module's modal loop until poll() closed what it opened.
    action->trigger();
    watcher.stop();
    if (captured == 0)
        trouble << tr("\"%1\" opened no window.").arg(action->text().remove(QLatin1Char('&')));
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
    if (modal != candidate) {
        candidate = modal;
        candidate_since.start();
        return;
    }
    if (!candidate_since.hasExpired(settle_ms))
        return;

    ++captured;
    if (captured <= MaxPicturesPerEntry)
        save(modal, captured == 1 ? current_stem : QStringLiteral("%1-%2").arg(current_stem).arg(captured));
    candidate = nullptr;
    visit_clock.start();
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
        trouble << tr("Cannot write %1.").arg(QDir::toNativeSeparators(path));
        return false;
    }
    saved << path;
    return true;
}
