#include "FakeController.h"

#include <QtGlobal>

#include <cstring>

#include "host/LineFormatter.h"
#include "module/MessageReceiver.h"

namespace {

QByteArray format_args(const char* format, va_list args)
{
    return LineFormatter::format(format, args);
}

bool to_double(const QByteArray& text, double* value)
{
    bool ok = false;
    const double parsed = text.trimmed().toDouble(&ok);
    if (ok)
        *value = parsed;
    return ok;
}

} // namespace

FakeController::FakeController() = default;
FakeController::~FakeController() = default;

void FakeController::reply(const QByteArray& line, const QByteArray& answer, int result)
{
    Script entry;
    entry.answers << answer;
    entry.result = result;
    script.insert(line, entry);
}

void FakeController::replies(const QByteArray& line, const QList<QByteArray>& answers)
{
    Script entry;
    entry.answers = answers;
    script.insert(line, entry);
}

void FakeController::fail(const QByteArray& line, int result)
{
    Script entry;
    entry.result = result;
    script.insert(line, entry);
}

void FakeController::accept(const QByteArray& setting)
{
    reply(setting, QByteArray(), 0);
}

void FakeController::forget(const QByteArray& line)
{
    script.remove(line);
}

void FakeController::set_stateful(bool on)
{
    stateful = on;
}

void FakeController::set_blocked(bool on)
{
    blocked = on;
}

void FakeController::set_completion_result(int result)
{
    completion_result = result;
}

QList<QByteArray> FakeController::lines() const
{
    QList<QByteArray> result;
    for (const Call& call : call_log)
        if (!call.line.isEmpty())
            result << call.line;
    return result;
}

QList<QByteArray> FakeController::lines(Operation operation) const
{
    QList<QByteArray> result;
    for (const Call& call : call_log)
        if (call.operation == operation)
            result << call.line;
    return result;
}

int FakeController::count(const QByteArray& line) const
{
    int n = 0;
    for (const Call& call : call_log)
        n += call.line == line ? 1 : 0;
    return n;
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

void FakeController::record(Operation operation, const QByteArray& line)
{
    call_log << Call{operation, line, wait_separately, timeout_ms, timeout_flag};
}

int FakeController::answer(const QByteArray& line, QByteArray* text)
{
    ++trips;
    auto it = script.find(line);
    if (it == script.end()) {
        unexpected_lines << line;
        return 1;
    }
    Script& entry = it.value();
    if (!entry.answers.isEmpty()) {
        *text = entry.answers.at(qMin(entry.next, entry.answers.size() - 1));
        ++entry.next;
    }
    if (entry.result != NaturalResult)
        return entry.result;
    return entry.answers.isEmpty() ? 1 : 0;
}

int FakeController::copy_reply(const QByteArray& text, char* reply) const
{
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
    for (auto it = script.constBegin(); it != script.constEnd(); ++it) {
        const QByteArray& candidate = it.key();
        if (candidate.size() > path.size() && line.size() > candidate.size() + 1
            && line.startsWith(candidate) && line.at(candidate.size()) == ' ')
            path = candidate;
    }
    if (path.isEmpty())
        return false;
    QByteArray value = line.mid(path.size() + 1);
    if (value.size() >= 2 && value.startsWith('"') && value.endsWith('"'))
        value = value.mid(1, value.size() - 2);
    reply(path, value);
    return true;
}

void FakeController::set_timeout(bool separately, int milliseconds, bool flag)
{
    wait_separately = separately;
    timeout_ms = milliseconds;
    timeout_flag = flag;
    record(SetTimeout, QByteArray());
}

int FakeController::send_command(char* reply, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const QByteArray line = format_args(format, args);
    va_end(args);
    record(SendCommand, line);

    // A command after set_timeout(true, ...) goes out and is finished by
    // wait_for_completion; the setting holds for that one command.
    const bool asynchronous = wait_separately;
    wait_separately = false;

    QByteArray text;
    const int scripted = script.contains(line) ? script.value(line).result : NaturalResult;
    int result = answer(line, &text);
    if (asynchronous && result == 0 && scripted == NaturalResult) {
        pending = true;
        pending_reply = reply;
        pending_answer = text;
        return 1;
    }
    if (result == 0 || scripted != NaturalResult) {
        const int copied = copy_reply(text, reply);
        if (result == 0)
            result = copied;
    }
    return result;
}

int FakeController::wait_for_completion(int* status)
{
    record(WaitForCompletion, QByteArray());
    if (!pending)
        return 1;
    pending = false;
    if (completion_result != 0) {
        if (status)
            *status = completion_result;
        return completion_result;
    }
    return copy_reply(pending_answer, pending_reply);
}

int FakeController::get_string(char* reply, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const QByteArray line = format_args(format, args);
    va_end(args);
    record(GetString, line);
    QByteArray text;
    const int result = answer(line, &text);
    return result != 0 ? result : copy_reply(text, reply);
}

int FakeController::get_int(int* value, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const QByteArray line = format_args(format, args);
    va_end(args);
    record(GetInt, line);
    QByteArray text;
    int result = answer(line, &text);
    if (result != 0)
        return result;
    bool ok = false;
    const int parsed = text.trimmed().toInt(&ok);
    if (!ok)
        return 3;
    *value = parsed;
    return 0;
}

int FakeController::get_double(double* value, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const QByteArray line = format_args(format, args);
    va_end(args);
    record(GetDouble, line);
    QByteArray text;
    int result = answer(line, &text);
    if (result != 0)
        return result;
    return to_double(text, value) ? 0 : 3;
}

int FakeController::get_bool(bool* value, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const QByteArray line = format_args(format, args);
    va_end(args);
    record(GetBool, line);
    QByteArray text;
    int result = answer(line, &text);
    if (result != 0)
        return result;
    text = text.trimmed();
    if (text != "yes" && text != "no")
        return 3;
    *value = text == "yes";
    return 0;
}

int FakeController::get_doubles(double* values, int count, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const QByteArray line = format_args(format, args);
    va_end(args);
    record(GetDoubles, line);
    QByteArray text;
    int result = answer(line, &text);
    if (result != 0)
        return result;
    const QList<QByteArray> words = text.simplified().split(' ');
    if (count <= 0 || words.size() < count)
        return 3;
    QVector<double> parsed(count);
    for (int i = 0; i < count; ++i)
        if (!to_double(words.at(i), &parsed[i]))
            return 3;
    std::copy(parsed.cbegin(), parsed.cend(), values);
    return 0;
}

int FakeController::get_ints(int* values, int count, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const QByteArray line = format_args(format, args);
    va_end(args);
    record(GetInts, line);
    QByteArray text;
    int result = answer(line, &text);
    if (result != 0)
        return result;
    const QList<QByteArray> words = text.simplified().split(' ');
    if (count <= 0 || words.size() < count)
        return 3;
    QVector<int> parsed(count);
    for (int i = 0; i < count; ++i) {
        bool ok = false;
        parsed[i] = words.at(i).toInt(&ok);
        if (!ok)
            return 3;
    }
    std::copy(parsed.cbegin(), parsed.cend(), values);
    return 0;
}

int FakeController::set_value(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const QByteArray line = format_args(format, args);
    va_end(args);
    record(SetValue, line);
    if (!script.contains(line) && stateful) {
        ++trips;
        if (apply_setting(line))
            return 0;
        unexpected_lines << line;
        return 1;
    }
    QByteArray ignored;
    const int result = answer(line, &ignored);
    if (result == 0 && stateful)
        apply_setting(line);
    return result;
}

void FakeController::show_message(const char* target, const char* source, int type, const char* text)
{
    message_log << Message{QString::fromLatin1(target), QString::fromLatin1(source), type,
                           QString::fromLatin1(text)};
}

void FakeController::register_receiver(const char* name, MessageReceiver* receiver)
{
    receivers.insert(QString::fromLatin1(name), receiver);
}

void FakeController::unregister_receiver(const char* name, MessageReceiver* receiver)
{
    const QString key = QString::fromLatin1(name);
    if (receivers.value(key) == receiver)
        receivers.remove(key);
}
