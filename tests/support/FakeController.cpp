#include "FakeController.h"

#include <QVariant>
#include <QVector>

#include <cstring>

#include "host/LineFormatter.h"
#include "module/MessageReceiver.h"

// Every operation with a format turns it into its line first, as a host
// does, and asks the script for the answer.
#define FAKE_ANSWER(operation)                                    \
    va_list args;                                                 \
    va_start(args, format);                                       \
    const QByteArray line = LineFormatter::format(format, args); \
    va_end(args);                                                 \
    QByteArray text;                                              \
    const int result = answer(operation, line, &text)

namespace {

// The first `count` words of a reply as numbers; nothing is written unless
// every one converts, as a host's readers do.
template <class T>
int read_numbers(int result, const QByteArray& text, int count, T* values)
{
    const QList<QByteArray> words = text.simplified().split(' ');
    QVector<T> parsed;
    for (int i = 0; i < count && result == 0; ++i) {
        QVariant word(QString::fromLatin1(words.value(i)));
        result = word.convert(qMetaTypeId<T>()) ? 0 : 3;
        parsed << word.value<T>();
    }
    if (result == 0 && count > 0)
        std::copy(parsed.cbegin(), parsed.cend(), values);
    return result != 0 || count > 0 ? result : 3;
}

} // namespace

QList<QByteArray> FakeController::lines() const
{
    QList<QByteArray> result;
    for (const Call& call : call_log)
        if (!call.line.isEmpty())
            result << call.line;
    return result;
}

QStringList FakeController::message_texts() const
{
    QStringList texts;
    for (const Message& message : message_log)
        texts << message.text;
    return texts;
}

void FakeController::clear_log()
{
    call_log.clear();
    unexpected_lines.clear();
    message_log.clear();
}

int FakeController::deliver(const QString& name, int type, const char* sender, const char* text)
{
    MessageReceiver* target = receivers.value(name);
    return target ? target->transmit_message(type, sender, text) : -1;
}

int FakeController::answer(Operation operation, const QByteArray& line, QByteArray* text)
{
    call_log << Call{operation, line, wait_separately, timeout_ms, timeout_flag};
    ++trips;
    if (const std::function<void()> hook = hooks.value(line))
        hook();
    auto it = script.find(line);
    if (it == script.end()) {
        // In stateful mode a setting of a scripted path needs no script.
        if (stateful && operation == SetValue && apply_setting(line))
            return 0;
        unexpected_lines << line;
        return 1;
    }
    Script& entry = it.value();
    if (!entry.answers.isEmpty())
        *text = entry.answers.at(qMin(entry.next++, entry.answers.size() - 1));
    if (entry.result != NaturalResult)
        return entry.result;
    return entry.answers.isEmpty() ? 1 : 0;
}

int FakeController::copy_reply(const QByteArray& text, char* reply) const
{
    // Like a host: a reply that does not fit is a failure, never cut short.
    if (text.size() >= ReplyCapacity)
        return 2;
    if (reply)
        std::memcpy(reply, text.constData(), size_t(text.size()) + 1);
    return 0;
}

bool FakeController::apply_setting(const QByteArray& line)
{
    // The longest scripted query that the setting starts with is the path;
    // what follows the blank is the new value.
    QByteArray path;
    for (auto it = script.constBegin(); it != script.constEnd(); ++it)
        if (it.key().size() > path.size() && line.startsWith(it.key() + ' ') && line.size() > it.key().size() + 1)
            path = it.key();
    QByteArray value = line.mid(path.size() + 1);
    if (value.size() >= 2 && value.startsWith('"') && value.endsWith('"'))
        value = value.mid(1, value.size() - 2);
    if (!path.isEmpty())
        reply(path, value);
    return !path.isEmpty();
}

void FakeController::set_timeout(bool separately, int milliseconds, bool flag)
{
    wait_separately = separately;
    timeout_ms = milliseconds;
    timeout_flag = flag;
    call_log << Call{SetTimeout, QByteArray(), wait_separately, timeout_ms, timeout_flag};
}

int FakeController::send_command(char* reply, const char* format, ...)
{
    FAKE_ANSWER(SendCommand);
    const int scripted = script.value(line, Script{}).result;
    // A command after set_timeout(true, ...) goes out and is finished by
    // wait_for_completion; the setting holds for that one command.
    const bool asynchronous = wait_separately;
    wait_separately = false;
    if (asynchronous && result == 0 && scripted == NaturalResult) {
        pending = true;
        pending_reply = reply;
        pending_answer = text;
        return 1;
    }
    const int copied = result == 0 || scripted != NaturalResult ? copy_reply(text, reply) : 0;
    return result == 0 ? copied : result;
}

int FakeController::wait_for_completion(int* status)
{
    call_log << Call{WaitForCompletion, QByteArray(), wait_separately, timeout_ms, timeout_flag};
    if (!pending)
        return 1;
    pending = false;
    if (status)
        *status = 0;
    return copy_reply(pending_answer, pending_reply);
}

int FakeController::get_string(char* reply, const char* format, ...)
{
    FAKE_ANSWER(GetString);
    return result != 0 ? result : copy_reply(text, reply);
}

int FakeController::get_int(int* value, const char* format, ...)
{
    FAKE_ANSWER(GetInt);
    return read_numbers(result, text, 1, value);
}

int FakeController::get_double(double* value, const char* format, ...)
{
    FAKE_ANSWER(GetDouble);
    return read_numbers(result, text, 1, value);
}

int FakeController::get_bool(bool* value, const char* format, ...)
{
    FAKE_ANSWER(GetBool);
    text = text.trimmed();
    if (result != 0 || (text != "yes" && text != "no"))
        return result != 0 ? result : 3;
    *value = text == "yes";
    return 0;
}

int FakeController::get_doubles(double* values, int count, const char* format, ...)
{
    FAKE_ANSWER(GetDoubles);
    return read_numbers(result, text, count, values);
}

int FakeController::get_ints(int* values, int count, const char* format, ...)
{
    FAKE_ANSWER(GetInts);
    return read_numbers(result, text, count, values);
}

int FakeController::set_value(const char* format, ...)
{
    FAKE_ANSWER(SetValue);
    if (result == 0 && stateful && script.contains(line))
        apply_setting(line);
    return result;
}

void FakeController::show_message(const char* target, const char* source, int type, const char* text)
{
    message_log << Message{QString::fromLatin1(target), QString::fromLatin1(source), type, QString::fromLatin1(text)};
}

void FakeController::register_receiver(const char* name, MessageReceiver* receiver)
{
    receivers.insert(QString::fromLatin1(name), receiver);
}

void FakeController::unregister_receiver(const char* name, MessageReceiver* receiver)
{
    if (receivers.value(QString::fromLatin1(name)) == receiver)
        receivers.remove(QString::fromLatin1(name));
}
