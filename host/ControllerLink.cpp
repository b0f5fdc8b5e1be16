#include "ControllerLink.h"

#include <QDateTime>
#include <QTime>
#include <QFile>
#include <QRegularExpression>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <vector>

#include "HostLog.h"
#include "LineFormatter.h"
#include "MessageHub.h"

// Every IOManager entry point starts the same way: its printf-style format
// and arguments become the request line.
#define NORVANE_FORMAT_LINE(line, format)                                                          \
    va_list line##_args;                                                                           \
    va_start(line##_args, format);                                                                 \
    const QByteArray line = LineFormatter::format(format, line##_args);                            \
    va_end(line##_args)

namespace {

const QByteArray CommandWord = "norvane ";
const QByteArray QueryPrefix = "norvane get ";
const QByteArray SettingPrefix = "norvane set ";
const QByteArray OkReply = "norvane ok";
const QByteArray ErrorPrefix = "norvane err";

QString error_reply_text(const QByteArray& reply)
{
    static const QRegularExpression form(QStringLiteral("^norvane err\\s+(-?\\d+)\\s*(?:\"(.*)\")?"));
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(reply));
    if (!match.hasMatch())
        return ControllerLink::tr("the controller refused the request (%1)")
            .arg(QString::fromLatin1(reply));
    const QString text = match.captured(2);
    return text.isEmpty() ? ControllerLink::tr("the controller refused the request (error %1)")
                                .arg(match.captured(1))
                          : ControllerLink::tr("the controller refused the request (error %1: %2)")
                                .arg(match.captured(1), text);
}

bool to_int(const QByteArray& word, int* value)
{
    bool ok = false;
    const int parsed = word.trimmed().toInt(&ok, 10);
    if (ok)
        *value = parsed;
    return ok;
}

bool to_double(const QByteArray& word, double* value)
{
    bool ok = false;
    const double parsed = word.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(parsed))
        return false;
    *value = parsed;
    return true;
}

QString quoted(const QByteArray& text)
{
    constexpr int Shown = 60;
    const QString shown = QString::fromLatin1(text.left(Shown));
    return QStringLiteral("\"%1%2\"").arg(shown, text.size() > Shown ? QStringLiteral("...") : QString());
}

// Reads the first `count` words of a value, each of which must be a whole
// number, as the controller's readers do ("27.0 36.0" read as one real is
// 27.0); the caller's array is written only when every one of them is good.
template <typename T, typename Parse>
int parse_words(const QByteArray& value, int count, T* out, Parse parse, QString* error)
{
    const QList<QByteArray> words = value.simplified().split(' ');
    if (value.simplified().isEmpty() || words.size() < count) {
        *error = count == 1 ? ControllerLink::tr("expected a number, got %1").arg(quoted(value))
                            : ControllerLink::tr("expected %1 numbers, got %2").arg(count).arg(quoted(value));
        return ControllerLink::MalformedReply;
    }
    std::vector<T> parsed(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        if (!parse(words.at(i), &parsed[size_t(i)])) {
            *error = ControllerLink::tr("%1 is not a number").arg(quoted(words.at(i)));
            return ControllerLink::MalformedReply;
        }
    }
    if (out)
        std::copy(parsed.cbegin(), parsed.cend(), out);
    return ControllerLink::Success;
}

// Counts the controller can really have, with room to spare (100 sensors
// and more, every real system); a count beyond one is junk, and believing it
// would cost one exchange per item that does not exist.
struct CountLimit
{
    const char* path;   // ending in a blank: the path and its arguments
    int limit;
    bool unknown_allowed;
};
const CountLimit CountLimits[] = {
    {"inertial number_of_sensors", 256, false},
    {"inertial number_of_scanned_sensors", 256, true},
    {"inertial number_of_transceivers", 16, false},
    {"inertial number_of_transceiver_available_radio_channels ", 128, false},
    {"inertial number_of_scan_channels", 64, false},
    {"inertial number_of_wakeup_modes", 64, false},
    {"body number_of_bodies ", 256, false},
    {"standard number_of_bodies", 256, false},
    {"standard max_number_of_bodies", 256, false},
    {"wand number_of_devices", 256, false},
    {"filter6d number_of_modes", 64, false},
    {"filter6d number_of_presets", 64, false},
    {"cal number_of_steps ", 64, false},
};
// Any other count.
constexpr int OtherCountLimit = 1024;

} // namespace

const QByteArray ControllerLink::ProbeLine = "norvane get system version";

int ControllerLink::count_limit(const QByteArray& path, bool* unknown_allowed)
{
    *unknown_allowed = false;
    for (const CountLimit& known : CountLimits) {
        const QByteArray name(known.path);
        if (name.endsWith(' ') ? path.startsWith(name) : path == name) {
            *unknown_allowed = known.unknown_allowed;
            return known.limit;
        }
    }
    const QByteArray parameter = path.split(' ').value(1);
    return parameter.startsWith("number_of_") || parameter.startsWith("max_number_of_") ? OtherCountLimit : 0;
}

ControllerLink::ControllerLink(QObject* parent) : QObject(parent)
{
    retry_timer.setSingleShot(true);
    connect(&retry_timer, &QTimer::timeout, this, &ControllerLink::retry);
    // A time-out asked for by a handler is over once that handler returned
    // to the event loop.
    override_reset.setSingleShot(true);
    override_reset.setInterval(0);
    connect(&override_reset, &QTimer::timeout, this, &ControllerLink::reset_timeout_override);
}

ControllerLink::~ControllerLink() = default;

void ControllerLink::set_message_hub(MessageHub* message_hub)
{
    hub = message_hub;
}

bool ControllerLink::open_trace(const QString& path, QString* error)
{
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        if (error)
            *error = tr("Cannot write the trace file %1: %2").arg(path, file->errorString());
        return false;
    }
    trace_file = std::move(file);
    return true;
}

void ControllerLink::set_default_timeout(int milliseconds)
{
    default_timeout_ms = milliseconds > 0 ? milliseconds : DefaultTimeoutMs;
}

int ControllerLink::current_timeout() const
{
    return timeout_override_ms > 0 ? timeout_override_ms : default_timeout_ms;
}

void ControllerLink::reset_timeout_override()
{
    timeout_override_ms = -1;
    next_command_async = false;
}

void ControllerLink::set_connected(bool now_connected)
{
    if (connected == now_connected)
        return;
    connected = now_connected;
    emit connection_changed(connected);
    if (connected)
        return;
    if (current.active)
        transport_lost = true;   // judged when the exchange ends
    else
        enter_outage(tr("the controller closed the connection"));
}

void ControllerLink::enter_outage(const QString& why)
{
    if (outage)
        return;
    outage = true;
    outage_since = QDateTime::currentDateTime().toString(QStringLiteral("HH:mm:ss"));
    retry_ms = FirstRetryMs;
    retry_timer.start(retry_ms);
    emit notice(tr("The %1 is not answering since %2 (%3).").arg(description(), outage_since, why));
    emit answering_changed(false, tr("not answering since %1").arg(outage_since));
}

void ControllerLink::retry()
{
    if (outage)
        probe();
}

void ControllerLink::probe_finished(bool answering, const QString& why)
{
    if (!outage)
        return;
    if (!answering) {
        qCDebug(lcHostLink).noquote() << "still no answer:" << why;
        retry_ms = qMin(retry_ms * 2, int(LongestRetryMs));
        retry_timer.start(retry_ms);
        return;
    }
    outage = false;
    told_too_long = false;
    told_malformed = false;
    emit notice(tr("The %1 is answering again.").arg(description()));
    emit answering_changed(true, tr("connected"));
}

void ControllerLink::tell_once(bool* told, const QString& text)
{
    if (*told)
        return;
    *told = true;
    emit notice(text);
}

bool ControllerLink::is_blocked()
{
    // The reply of an asynchronous command is still on its way: anything
    // sent now would be answered after it.
    return current.awaiting_completion;
}

void ControllerLink::set_timeout(bool wait_separately, int milliseconds, bool /*flag*/)
{
    timeout_override_ms = milliseconds > 0 ? milliseconds : -1;
    next_command_async = wait_separately;
    override_reset.start();
}

// --- the exchange ------------------------------------------------------------

void ControllerLink::start(const QByteArray& request)
{
    abandon_pending();
    current = Exchange();
    current.active = true;
    current.request = request;
    current.clock.start();
    current.deadline = QDeadlineTimer(current_timeout());
    // A longer time-out was asked for this request, not the ones after it.
    timeout_override_ms = -1;
    current_error.clear();
    transport_lost = false;
}

int ControllerLink::reject(const QByteArray& request, const QString& error)
{
    start(request);
    return conclude(fail(InvalidRequest, error));
}

int ControllerLink::begin(const QByteArray& request)
{
    start(request);
    if (request.isEmpty())
        return fail(InvalidRequest, tr("empty request"));
    if (request.size() > MaxLineLength)
        return fail(InvalidRequest, tr("request of %1 bytes is too long").arg(request.size()));
    if (request.contains('\n') || request.contains('\r'))
        return fail(InvalidRequest, tr("request holds a line break"));

    if (outage)
        return fail(TransportFailure, tr("the controller is not answering since %1").arg(outage_since));
    QString error;
    if (!write_request(request, current.deadline, &error)) {
        transport_lost = true;
        return fail(TransportFailure, error);
    }
    ++trips;
    emit round_trips_changed(trips);
    return Success;
}

int ControllerLink::receive()
{
    QString error;
    const Result result = read_reply(&current.reply, current.deadline, &error);
    if (result != Success) {
        current.reply.clear();
        if (result == TimedOut || result == TransportFailure)
            transport_lost = true;
        return fail(result, error);
    }
    current.replied = true;
    // Control characters, escape sequences, NULs and high bytes are no part
    // of the language, and would otherwise reach table cells or cut a value
    // short.
    const QString unprintable = printable_problem(current.reply);
    if (!unprintable.isEmpty())
        return fail(MalformedReply, unprintable);
    if (current.reply.startsWith(ErrorPrefix))
        return fail(ControllerError, error_reply_text(current.reply));
    return Success;
}

int ControllerLink::fail(int result, const QString& error)
{
    current_error = error;
    return result;
}

int ControllerLink::conclude(int result)
{
    if (!current.active)
        return result;
    const qint64 duration = current.clock.nsecsElapsed();
    const QString line = trace_line(current.request, current.reply, current.replied, duration,
                                    result == Success ? QString() : current_error);
    last_error_text = result == Success ? QByteArray() : current_error.toLocal8Bit();
    if (result != Success)
        qCDebug(lcHostLink).noquote() << line;
    if (trace_file) {
        trace_file->write(line.toUtf8() + '\n');
        trace_file->flush();
    }
    current.active = false;
    current.awaiting_completion = false;
    current.async_buffer = nullptr;
    emit traced(line, result != Success);
    if (transport_lost) {
        transport_lost = false;
        enter_outage(current_error);
    } else if (result == ReplyTooLong) {
        tell_once(&told_too_long, tr("The controller sent a reply that does not fit: %1.").arg(current_error));
    } else if (result == MalformedReply) {
        tell_once(&told_malformed,
                  tr("The controller sent something that is not its language: %1.").arg(current_error));
    }
    return result;
}

QString ControllerLink::printable_problem(const QByteArray& reply)
{
    for (int i = 0; i < reply.size(); ++i) {
        const auto byte = static_cast<unsigned char>(reply.at(i));
        if (byte < 0x20 || byte > 0x7e)
            return tr("reply holds the byte 0x%1 at %2, which is not printable ASCII")
                .arg(uint(byte), 2, 16, QLatin1Char('0'))
                .arg(i);
    }
    return QString();
}

void ControllerLink::abandon_pending()
{
    if (!current.awaiting_completion)
        return;
    // The caller never collected the reply; read it so that it cannot be
    // taken for the answer to what comes next, but write nowhere: the
    // caller's buffer may be long gone.
    current.awaiting_completion = false;
    current.async_buffer = nullptr;
    if (receive() == Success)
        fail(TransportFailure, tr("reply abandoned: nobody waited for its completion"));
    conclude(TransportFailure);
}

QString ControllerLink::trace_line(const QByteArray& request, const QByteArray& reply, bool replied,
                                   qint64 duration_ns, const QString& error)
{
    // "HH:mm:ss.zzz    0.123 ms", in whole numbers: printf's %f would take
    // the user's decimal comma.
    const qint64 us = (qMax<qint64>(0, duration_ns) + 500) / 1000;
    char head[64];
    std::snprintf(head, sizeof head, "%s %4lld.%03lld ms  ", time_of_day().constData(),
                  static_cast<long long>(us / 1000), static_cast<long long>(us % 1000));
    QString line = QLatin1String(head) + QLatin1String(request) + QLatin1String("  ->  ")
                   + (replied ? QString::fromLatin1(reply) : tr("(no reply)"));
    if (!error.isEmpty())
        line += QLatin1String("  [") + error + QLatin1Char(']');
    return line;
}

QByteArray ControllerLink::time_of_day()
{
    // The wall clock is read once; later stamps add the monotonic time
    // since, which asks nothing of the time zone on every exchange. A clock
    // change while the host runs moves no stamp.
    static const qint64 start_ms = QTime::currentTime().msecsSinceStartOfDay();
    static const QElapsedTimer since = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    constexpr qint64 DayMs = 24 * 3600 * 1000;
    const qint64 ms = (start_ms + since.elapsed()) % DayMs;
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d.%03d", int(ms / 3600000), int(ms / 60000 % 60),
                  int(ms / 1000 % 60), int(ms % 1000));
    return QByteArray(text);
}

int ControllerLink::copy_to(const QByteArray& text, char* buffer, QString* error)
{
    if (text.size() + 1 > ReplyCapacity) {
        *error = tr("reply of %1 characters does not fit the %2-byte buffer")
                     .arg(text.size())
                     .arg(int(ReplyCapacity));
        return ReplyTooLong;
    }
    if (buffer)
        std::memcpy(buffer, text.constData(), size_t(text.size()) + 1);
    return Success;
}

int ControllerLink::query(const QByteArray& path, const Converter& convert)
{
    int result = begin(QueryPrefix + path);
    if (result == Success)
        result = receive();
    if (result != Success)
        return conclude(result);

    // The reply names the path it answers: a reply to anything else is a
    // stream out of step, never a value.
    const QByteArray expected = SettingPrefix + path;
    const QByteArray& reply = current.reply;
    QByteArray value;
    if (reply.startsWith(expected + ' '))
        value = reply.mid(expected.size() + 1);
    else if (reply != expected)
        return conclude(fail(MalformedReply, tr("expected \"%1 ...\"").arg(QString::fromLatin1(expected))));

    QString error;
    result = convert(value, &error);
    return conclude(result == Success ? Success : fail(result, error));
}

int ControllerLink::count_query(const QByteArray& path, int count, const Converter& convert)
{
    if (count <= 0 || count > MaxValueCount)
        return reject(QueryPrefix + path, tr("cannot read %1 values at once").arg(count));
    return query(path, convert);
}

// --- IOManager -----------------------------------------------------------------

int ControllerLink::send_command(char* reply, const char* format, ...)
{
    NORVANE_FORMAT_LINE(line, format);
    const bool asynchronous = next_command_async;
    next_command_async = false;

    if (!line.startsWith(CommandWord))
        return reject(line, tr("a command starts with \"norvane\""));
    const int result = begin(line);
    if (result != Success)
        return conclude(result);
    if (asynchronous) {
        current.async_buffer = reply;
        current.awaiting_completion = true;
        return Pending;
    }
    return finish_command(reply);
}

int ControllerLink::finish_command(char* buffer)
{
    const int result = receive();
    if (!current.replied)
        return conclude(result);
    // The reply goes back whole, an error reply too, so the caller can read
    // the controller's text; the result still says it failed.
    QString error;
    const int copied = copy_to(current.reply, buffer, &error);
    return conclude(copied != Success ? fail(copied, error) : result);
}

int ControllerLink::wait_for_completion(int* status)
{
    int result;
    if (!current.awaiting_completion) {
        result = reject(QByteArray(), tr("no command awaits its completion"));
    } else {
        current.awaiting_completion = false;
        result = finish_command(current.async_buffer);
    }
    if (status)
        *status = result;
    return result;
}

int ControllerLink::get_string(char* reply, const char* format, ...)
{
    NORVANE_FORMAT_LINE(path, format);
    return query(path, [reply](const QByteArray& value, QString* error) {
        return copy_to(value, reply, error);
    });
}

int ControllerLink::get_int(int* value, const char* format, ...)
{
    NORVANE_FORMAT_LINE(path, format);
    bool unknown_allowed = false;
    const int limit = count_limit(path, &unknown_allowed);
    return query(path, [value, limit, unknown_allowed](const QByteArray& text, QString* error) {
        int parsed = 0;
        const int result = parse_words(text, 1, &parsed, to_int, error);
        if (result != Success)
            return result;
        if (limit > 0 && (parsed > limit || (parsed < 0 && !(unknown_allowed && parsed == -1)))) {
            *error = tr("a count of %1 is beyond the plausible 0 to %2").arg(parsed).arg(limit);
            return int(MalformedReply);
        }
        if (value)
            *value = parsed;
        return int(Success);
    });
}

int ControllerLink::get_double(double* value, const char* format, ...)
{
    NORVANE_FORMAT_LINE(path, format);
    return query(path, [value](const QByteArray& text, QString* error) {
        return parse_words(text, 1, value, to_double, error);
    });
}

int ControllerLink::get_bool(bool* value, const char* format, ...)
{
    NORVANE_FORMAT_LINE(path, format);
    return query(path, [value](const QByteArray& text, QString* error) {
        const QByteArray word = text.trimmed();
        if (word != "yes" && word != "no") {
            *error = tr("%1 is neither yes nor no").arg(quoted(text));
            return int(MalformedReply);
        }
        if (value)
            *value = word == "yes";
        return int(Success);
    });
}

int ControllerLink::get_doubles(double* values, int count, const char* format, ...)
{
    NORVANE_FORMAT_LINE(path, format);
    return count_query(path, count, [values, count](const QByteArray& text, QString* error) {
        return parse_words(text, count, values, to_double, error);
    });
}

int ControllerLink::get_ints(int* values, int count, const char* format, ...)
{
    NORVANE_FORMAT_LINE(path, format);
    return count_query(path, count, [values, count](const QByteArray& text, QString* error) {
        return parse_words(text, count, values, to_int, error);
    });
}

int ControllerLink::set_value(const char* format, ...)
{
    NORVANE_FORMAT_LINE(setting, format);
    int result = begin(SettingPrefix + setting);
    if (result == Success)
        result = receive();
    if (result == Success && current.reply != OkReply)
        result = fail(MalformedReply, tr("expected \"norvane ok\""));
    return conclude(result);
}

void ControllerLink::show_message(const char* target, const char* source, int type, const char* text)
{
    if (hub) {
        hub->post(target, source, type, text);
        return;
    }
    qCInfo(lcHostMessages, "to %s from %s (%d): %s", target ? target : "(null)",
           source ? source : "(null)", type, text ? text : "");
}

void ControllerLink::register_receiver(const char* name, MessageReceiver* receiver)
{
    if (hub)
        hub->register_receiver(name, receiver);
}

void ControllerLink::unregister_receiver(const char* name, MessageReceiver* receiver)
{
    if (hub)
        hub->unregister_receiver(name, receiver);
}
