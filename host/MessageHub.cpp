#include "MessageHub.h"

#include <QThread>

#include "HostLog.h"
#include "module/MessageReceiver.h"

const char MessageHub::StandardTarget[] = "standard";

namespace {

QString text_of(const char* text)
{
    return text ? QString::fromLatin1(text) : QString();
}

} // namespace

MessageHub::MessageHub(QObject* parent) : QObject(parent)
{
}

void MessageHub::register_receiver(const char* name, MessageReceiver* receiver)
{
    const QString key = text_of(name);
    if (key.isEmpty() || !receiver) {
        remark(tr("Ignored the registration of a message receiver without name or object."));
        return;
    }
    MessageReceiver* previous = receivers.value(key);
    if (previous && previous != receiver)
        remark(tr("The message receiver \"%1\" was registered again; the newer one gets its messages.")
                   .arg(key));
    receivers.insert(key, receiver);
}

void MessageHub::unregister_receiver(const char* name, MessageReceiver* receiver)
{
    // Only the receiver that holds the name may give it up: a stale
    // unregistration must not cut off its successor.
    const QString key = text_of(name);
    if (receivers.value(key) == receiver)
        receivers.remove(key);
}

QStringList MessageHub::receiver_names() const
{
    QStringList names = receivers.keys();
    names.sort();
    return names;
}

void MessageHub::clear()
{
    receivers.clear();
}

void MessageHub::post(const char* target, const char* source, int type, const char* text)
{
    const QString to = text_of(target);
    const QString from = text_of(source);
    const QByteArray body = text ? QByteArray(text) : QByteArray();
    if (QThread::currentThread() == thread()) {
        deliver(to, from, type, body);
        return;
    }
    // The receiver is looked up only once on the GUI thread, so that one
    // unregistered meanwhile is never called.
    QMetaObject::invokeMethod(
        this, [this, to, from, type, body] { deliver(to, from, type, body); }, Qt::QueuedConnection);
}

void MessageHub::deliver(const QString& target, const QString& source, int type, const QByteArray& text)
{
    if (target == QLatin1String(StandardTarget)) {
        emit standard_message(source, type, QString::fromLatin1(text));
        return;
    }
    MessageReceiver* receiver = receivers.value(target);
    if (!receiver) {
        remark(tr("No receiver \"%1\" for the message from %2: %3")
                   .arg(target, source.isEmpty() ? tr("(unnamed)") : source, QString::fromLatin1(text)));
        return;
    }
    const QByteArray sender = source.toLatin1();
    receiver->transmit_message(type, source.isNull() ? nullptr : sender.constData(), text.constData());
}

void MessageHub::remark(const QString& text)
{
    qCInfo(lcHostMessages).noquote() << text;
    emit note(text);
}
