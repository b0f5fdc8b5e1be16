#ifndef MESSAGEHUB_H
#define MESSAGEHUB_H

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

class MessageReceiver;

// The host's post office for text messages between modules. Receivers
// register under a name; a message to "standard" is for the user and goes to
// the window (standard_message()), a message to any other name is handed to
// that receiver's transmit_message() on the GUI thread. The registry is kept
// and used on the GUI thread only; posting is safe from any thread.
class MessageHub : public QObject
{
    Q_OBJECT

public:
    static const char StandardTarget[];

    explicit MessageHub(QObject* parent = nullptr);

    void register_receiver(const char* name, MessageReceiver* receiver);
    void unregister_receiver(const char* name, MessageReceiver* receiver);
    MessageReceiver* receiver(const QString& name) const { return receivers.value(name); }
    QStringList receiver_names() const;
    // Forgets every receiver, for when the modules that registered them are
    // gone.
    void clear();

    void post(const char* target, const char* source, int type, const char* text);

signals:
    void standard_message(const QString& source, int type, const QString& text);
    // The hub's own remarks for the log: undeliverable messages, replaced
    // receivers.
    void note(const QString& text);

private:
    void deliver(const QString& target, const QString& source, int type, const QByteArray& text);
    void remark(const QString& text);

    QHash<QString, MessageReceiver*> receivers;
};

#endif // MESSAGEHUB_H
