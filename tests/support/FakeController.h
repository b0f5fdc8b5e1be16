#ifndef FAKECONTROLLER_H
#define FAKECONTROLLER_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

#include "module/IOManager.h"

// A scripted controller for dialog tests. It formats every call's line as a
// host does, records each call in order with the time-out settings in force,
// and answers from a script: reply(line, answer) every time, replies(line,
// answers) in turn with the last repeating, fail(line) with a non-zero
// result, accept(setting) for a setting that succeeds. A line that the script
// does not know fails and is listed in unexpected(). In stateful mode a
// setting "P V" of a scripted query P succeeds and makes later queries of P
// answer V, as the controller would.
class FakeController : public IOManager
{
public:
    enum Operation { SetTimeout, SendCommand, WaitForCompletion, GetString, GetInt, GetDouble, GetBool,
                     GetDoubles, GetInts, SetValue };

    // One call with the time-out settings in force for it; no line for SetTimeout and WaitForCompletion.
    struct Call { Operation operation; QByteArray line; bool wait_separately; int timeout_ms; bool timeout_flag; };
    struct Message { QString target; QString source; int type; QString text; };

    // Result a scripted line gives when it is not told otherwise.
    static constexpr int NaturalResult = -1000;

    void reply(const QByteArray& line, const QByteArray& answer, int result = NaturalResult)
    { script.insert(line, Script{{answer}, 0, result}); }
    void replies(const QByteArray& line, const QList<QByteArray>& answers)
    { script.insert(line, Script{answers, 0, NaturalResult}); }
    void fail(const QByteArray& line, int result = 1) { script.insert(line, Script{{}, 0, result}); }
    void accept(const QByteArray& setting) { reply(setting, QByteArray(), 0); }
    // Runs `hook` each time `line` goes out, before it is answered: what the
    // user sees while the dialog waits for the controller.
    void when_asked(const QByteArray& line, std::function<void()> hook) { hooks.insert(line, std::move(hook)); }
    void set_stateful(bool on) { stateful = on; }
    void set_blocked(bool on) { blocked = on; }

    const QList<Call>& calls() const { return call_log; }
    QList<QByteArray> lines() const;                       // every line, in order
    int count(const QByteArray& line) const { return lines().count(line); }   // how often a line went out
    QList<QByteArray> unexpected() const { return unexpected_lines; }
    const QList<Message>& messages() const { return message_log; }
    QStringList message_texts() const;
    void clear_log();

    MessageReceiver* receiver(const QString& name) const { return receivers.value(name); }
    int deliver(const QString& name, int type, const char* sender, const char* text);

    bool is_blocked() override { return blocked; }
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
    long round_trips() const override { return trips; }
    void show_message(const char* target, const char* source, int type, const char* text) override;
    void register_receiver(const char* name, MessageReceiver* receiver) override;
    void unregister_receiver(const char* name, MessageReceiver* receiver) override;

private:
    struct Script { QList<QByteArray> answers; int next = 0; int result = NaturalResult; };

    // Records the call; its scripted result, and the answer in *text.
    int answer(Operation operation, const QByteArray& line, QByteArray* text);
    int copy_reply(const QByteArray& text, char* reply) const;
    bool apply_setting(const QByteArray& line);

    QHash<QByteArray, Script> script;
    QHash<QByteArray, std::function<void()>> hooks;
    QList<Call> call_log;
    QList<QByteArray> unexpected_lines;
    QList<Message> message_log;
    QHash<QString, MessageReceiver*> receivers;
    bool stateful = false;
    bool blocked = false;
    bool wait_separately = false;   // the time-out settings in force
    int timeout_ms = 0;
    bool timeout_flag = false;
    bool pending = false;           // an asynchronous command waits for wait_for_completion
    char* pending_reply = nullptr;
    QByteArray pending_answer;
    long trips = 0;
};

#endif // FAKECONTROLLER_H
