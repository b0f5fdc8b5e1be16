#ifndef PINGPONG_H
#define PINGPONG_H

#include <QByteArray>
#include <QString>

// The floor of one exchange over TCP: a blocking socket that writes a
// request line and reads its reply line, nothing else, against the same
// daemon and line as the host's link. What the link takes beyond it is its
// own (and Qt's) work.
class PingPong
{
public:
    PingPong() = default;
    ~PingPong();
    PingPong(const PingPong&) = delete;
    PingPong& operator=(const PingPong&) = delete;

    bool connect_to(quint16 port, QString* error);
    // Sends `line` (no line feed) `count` times, each time reading the whole
    // reply; false when the daemon did not answer.
    bool exchange(const QByteArray& line, int count, QString* error);

private:
    int fd = -1;
};

#endif // PINGPONG_H
