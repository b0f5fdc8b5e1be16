#include "ModalDialogHelper.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>

namespace {

// A dialog that never appears must not hang the test: after this long the
// helper stops looking and stays pending for the test's cleanup to report.
constexpr qint64 PatienceMs = 10000;

QList<ModalDialogHelper*>& queue()
{
    static QList<ModalDialogHelper*> helpers;
    return helpers;
}

} // namespace

ModalDialogHelper::ModalDialogHelper(Action a, Match m) : action(std::move(a)), match(std::move(m))
{
    timer.setInterval(0);
    connect(&timer, &QTimer::timeout, this, &ModalDialogHelper::poll);
}

void ModalDialogHelper::when_active(Action action, Match match)
{
    queue().append(new ModalDialogHelper(std::move(action), std::move(match)));
    if (queue().size() == 1)
        queue().first()->timer.start();
}

void ModalDialogHelper::when_active(const char* class_name, Action action)
{
    const QByteArray name(class_name);
    when_active(std::move(action), [name](QWidget* w) { return w->inherits(name.constData()); });
}

void ModalDialogHelper::poll()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || !modal->isVisible() || (match && !match(modal))) {
        if (!waiting.isValid())
            waiting.start();
        if (waiting.hasExpired(PatienceMs))
            timer.stop();   // stays queued: pending() reports it
        return;
    }
    timer.stop();
    queue().removeOne(this);
    if (!queue().isEmpty())
        queue().first()->timer.start();
    Action run = std::move(action);
    deleteLater();
    run(modal);
}

void ModalDialogHelper::close(QWidget* modal)
{
    // done() rather than reject(): some dialogs keep Escape for stopping
    // work and stay open on reject(), yet a test must still end them.
    if (auto* dialog = qobject_cast<QDialog*>(modal))
        dialog->done(QDialog::Rejected);
    else if (modal)
        modal->close();
}

void ModalDialogHelper::press(QWidget* modal, int standard_button)
{
    auto* box = qobject_cast<QMessageBox*>(modal);
    if (QAbstractButton* button = box ? box->button(QMessageBox::StandardButton(standard_button)) : nullptr)
        button->click();
}

int ModalDialogHelper::pending()
{
    return queue().size();
}

void ModalDialogHelper::clear_pending()
{
    qDeleteAll(queue());
    queue().clear();
}

QStringList ModalDialogHelper::leaked_windows()
{
    QStringList leaked;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->windowType() != Qt::Desktop)
            leaked << QString("%1 \"%2\"").arg(QString::fromLatin1(w->metaObject()->className()), w->windowTitle());
    return leaked;
}
