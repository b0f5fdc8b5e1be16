#ifndef IOMANAGER_H
#define IOMANAGER_H

#include <QMetaType>

class MessageReceiver;

// The host's link to the controller, as modules see it. Every call is
// synchronous on the GUI thread and returns 0 on success. Formats follow
// printf rules and build one line of the controller's parameter language.
//
// The slot order is part of the contract with already built plug-ins:
// append, never reorder.
class IOManager
{
public:
    // Size of every reply buffer handed to the host, terminator included.
    // A reply that does not fit is a failure, never a truncated reply.
    static constexpr int ReplyCapacity = 256;

    virtual ~IOManager() {}
    virtual bool is_blocked() = 0;
    virtual void set_timeout(bool wait_separately, int milliseconds, bool flag) = 0;
    virtual int send_command(char* reply, const char* format, ...) = 0;
    virtual int wait_for_completion(int* status) = 0;
    virtual int get_string(char* reply, const char* format, ...) = 0;
    virtual int get_int(int* value, const char* format, ...) = 0;
    virtual int get_double(double* value, const char* format, ...) = 0;
    virtual int get_bool(bool* value, const char* format, ...) = 0;
    virtual int get_doubles(double* values, int count, const char* format, ...) = 0;
    // The host's own extras below are never called by plug-ins.
    virtual int get_ints(int* /*values*/, int /*count*/, const char* /*format*/, ...) { return -1; }
    virtual int set_value(const char* format, ...) = 0;
    virtual const char* last_error() const { return ""; }
    virtual bool is_connected() const { return true; }
    virtual long round_trips() const { return 0; }
    virtual int reply_capacity() const { return ReplyCapacity; }
    virtual void show_message(const char* target, const char* source, int type, const char* text) = 0;
    virtual void register_receiver(const char* name, MessageReceiver* receiver) = 0;
    virtual void unregister_receiver(const char* name, MessageReceiver* receiver) = 0;
};

Q_DECLARE_METATYPE(IOManager*)

#endif // IOMANAGER_H
