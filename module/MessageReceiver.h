#ifndef MESSAGERECEIVER_H
#define MESSAGERECEIVER_H

// A party the host can deliver text messages to by name (see
// IOManager::register_receiver). Receivers are owned by whoever registers
// them, never by the host, hence the protected destructor.
class MessageReceiver
{
public:
    virtual int transmit_message(int type, const char* sender, const char* text) = 0;

protected:
    ~MessageReceiver() = default;
};

#endif // MESSAGERECEIVER_H
