#include "PingPong.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

PingPong::~PingPong()
{
    if (fd >= 0)
        ::close(fd);
}

bool PingPong::connect_to(quint16 port, QString* error)
{
    fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int on = 1;
    if (fd < 0 || ::setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on) != 0
        || ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        *error = QStringLiteral("raw socket to port %1: %2").arg(port).arg(QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    return true;
}

bool PingPong::exchange(const QByteArray& line, int count, QString* error)
{
    const QByteArray request = line + '\n';
    char buffer[4096];
    for (int i = 0; i < count; ++i) {
        if (::send(fd, request.constData(), size_t(request.size()), MSG_NOSIGNAL) != request.size()) {
            *error = QStringLiteral("raw socket: cannot send");
            return false;
        }
        for (;;) {
            const ssize_t got = ::recv(fd, buffer, sizeof buffer, 0);
            if (got <= 0) {
                *error = QStringLiteral("raw socket: the daemon closed the connection");
                return false;
            }
            // One request in flight: its reply ends the read.
            if (std::memchr(buffer, '\n', size_t(got)))
                break;
        }
    }
    return true;
}
