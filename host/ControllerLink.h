#ifndef CONTROLLERLINK_H
#define CONTROLLERLINK_H

#include <QByteArray>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>

#include "module/IOManager.h"

class MessageHub;
class QFile;

// The host's IOManager: turns every call into one request line of the wire
// protocol, waits for the one reply line and converts it. Requests and
// replies:
//
//   query "P"           -> "norvane get P"   <- "norvane set P VALUE"
//   setting "P V"       -> "norvane set P V" <- "norvane ok" | "norvane err N \"TEXT\""
//   raw "norvane ..."   -> as it stands      <- returned whole
//
// Everything a link does is here, once; a subclass only moves lines (TCP,
// or the simulator in-process) through write_request()/read_reply().
//
// Time-outs: set_timeout() holds for the next request only, the long
// command it was asked for; the queries after it get the default again.
// set_timeout(true, ...) makes the next send_command() asynchronous: it
// returns Pending once the command is out, and wait_for_completion() collects
// the reply.
//
// Outages: after a time-out or a lost connection every call fails at once
// until the controller answers again. Whether it does is tried from the event
// loop (probe()), first after FirstRetryMs and then ever more rarely, never
// inside a call that blocks the window; a silent controller thus costs one
// time-out, not one per question.
class ControllerLink : public QObject, public IOManager
{
    Q_OBJECT

public:
    // Results of every IOManager call; Pending only from an asynchronous
    // send_command(). Failures never use 1, so that a caller of the
    // asynchronous form cannot mistake one for "sent".
    enum Result {
        Success = 0,
        Pending = 1,
        TransportFailure = 2,   // not connected, or the connection broke
        TimedOut = 3,
        ControllerError = 4,    // "norvane err ..."
        MalformedReply = 5,     // not the reply form the request asks for
        ReplyTooLong = 6,       // does not fit the caller's buffer
        InvalidRequest = 7,     // refused before anything was sent
    };

    static constexpr int DefaultTimeoutMs = 3000;
    // Longest request or reply line accepted, line feed excluded.
    static constexpr int MaxLineLength = 64 * 1024;
    // Most values get_doubles()/get_ints() read in one go.
    static constexpr int MaxValueCount = 1024;
    static constexpr int FirstRetryMs = 500;
    static constexpr int LongestRetryMs = 8000;

    // The largest count a count query ("inertial number_of_sensors", ...)
    // may answer; 0 for a path that is no count query. *unknown_allowed
    // says whether -1 ("not yet") is a value of that path.
    static int count_limit(const QByteArray& path, bool* unknown_allowed);

    explicit ControllerLink(QObject* parent = nullptr);
    ~ControllerLink() override;

    // Where show_message() and the receiver registry go; not owned.
    void set_message_hub(MessageHub* hub);
    MessageHub* message_hub() const { return hub; }

    // Appends every exchange to a text file as well as to traced().
    bool open_trace(const QString& path, QString* error);

    void set_default_timeout(int milliseconds);
    int default_timeout() const { return default_timeout_ms; }
    // The time-out the next request gets.
    int current_timeout() const;

    // What the link talks to, for the window ("127.0.0.1:4000", ...).
    virtual QString description() const = 0;
    // False from a time-out or lost connection until the controller answers
    // again.
    bool is_answering() const { return !outage; }

    // --- IOManager ---------------------------------------------------------
    bool is_blocked() override;
    void set_timeout(bool wait_separately, int milliseconds, bool flag) override;
    int send_command(char* reply, const char* format, ...) override;
    int wait_for_completion(int* status) override;
    int get_string(char* reply, const char* format, ...) override;
    int get_int(int* value, const char* format, ...) override;
    int get_double(double* value, const char* format, ...) override;
    int get_bool(bool* value, const char* format, ...) override;
    int get_doubles(double* values, int count, const char* format, ...) override;
    int get_ints(int* values, int count, const char* format, ...) override;
    int set_value(const char* format, ...) override;
    const char* last_error() const override { return last_error_text.constData(); }
    long round_trips() const override { return trips; }
    void show_message(const char* target, const char* source, int type, const char* text) override;
    void register_receiver(const char* name, MessageReceiver* receiver) override;
    void unregister_receiver(const char* name, MessageReceiver* receiver) override;

    // One trace line for an exchange, as traced() and the trace file show it.
    static QString trace_line(const QByteArray& request, const QByteArray& reply, bool replied,
                              qint64 duration_ns, const QString& error);
    // "HH:mm:ss.zzz" now, from a monotonic clock.
    static QByteArray time_of_day();

signals:
    // Every exchange, after it ended, with its duration.
    void traced(const QString& line, bool failed);
    void connection_changed(bool connected);
    void round_trips_changed(long trips);
    // What the user should know about the controller, said once per event:
    // it stopped answering, it is back, it sent what does not fit or what is
    // not its language.
    void notice(const QString& text);
    void answering_changed(bool answering, const QString& state);

protected:
    // Sends one request line (no line feed) before the deadline. On failure
    // *error says why in a few words.
    virtual bool write_request(const QByteArray& line, QDeadlineTimer deadline, QString* error) = 0;
    // Waits for the reply line to the request written last, line feed
    // removed. Returns Success or the failure's Result.
    virtual Result read_reply(QByteArray* reply, QDeadlineTimer deadline, QString* error) = 0;

    // Subclasses report their connection state here; listeners hear of
    // changes only. A connection lost is an outage.
    void set_connected(bool connected);
    bool connected_state() const { return connected; }

    // A request every controller answers, for probe().
    static const QByteArray ProbeLine;
    // Tries to reach the controller after an outage, without blocking; ends
    // with probe_finished(), now or later from the event loop.
    virtual void probe() = 0;
    void probe_finished(bool answering, const QString& why);

private:
    // Turns the value of a query reply into the caller's type; returns a
    // Result and, on failure, says why in *error.
    using Converter = std::function<int(const QByteArray& value, QString* error)>;

    struct Exchange
    {
        QByteArray request;
        QByteArray reply;
        bool replied = false;
        QElapsedTimer clock;
        QDeadlineTimer deadline;
        char* async_buffer = nullptr;
        bool active = false;
        bool awaiting_completion = false;
    };

    int query(const QByteArray& path, const Converter& convert);
    int count_query(const QByteArray& path, int count, const Converter& convert);
    // Opens the record of a new exchange (finishing an abandoned one first).
    void start(const QByteArray& request);
    // Refuses a request without sending anything.
    int reject(const QByteArray& request, const QString& error);
    // Validates and sends; the caller concludes.
    int begin(const QByteArray& request);
    // Reads the reply of the exchange under way; spots error replies.
    int receive();
    int finish_command(char* buffer);
    int fail(int result, const QString& error);
    int conclude(int result);
    void abandon_pending();
    static int copy_to(const QByteArray& text, char* buffer, QString* error);
    void reset_timeout_override();
    void enter_outage(const QString& why);
    void retry();
    // Tells the user about a faulty reply, once per kind and outage.
    void tell_once(bool* told, const QString& text);
    static QString printable_problem(const QByteArray& reply);

    MessageHub* hub = nullptr;
    std::unique_ptr<QFile> trace_file;
    Exchange current;
    QString current_error;
    QByteArray last_error_text;
    int default_timeout_ms = DefaultTimeoutMs;
    int timeout_override_ms = -1;
    bool next_command_async = false;
    QTimer override_reset;
    long trips = 0;
    bool connected = false;
    bool transport_lost = false;   // during the exchange under way
    bool outage = false;
    QString outage_since;
    QTimer retry_timer;
    int retry_ms = FirstRetryMs;
    bool told_too_long = false;
    bool told_malformed = false;
};

#endif // CONTROLLERLINK_H
