#include "TcpLink.h"

#include <QHostAddress>

namespace {

int remaining(QDeadlineTimer deadline)
{
    return int(qMax<qint64>(0, deadline.remainingTime()));
}

} // namespace

TcpLink::TcpLink(const QString& host_name, quint16 port_number, QObject* parent)
    : ControllerLink(parent), host(host_name), port(port_number)
{
    connect(&socket, &QTcpSocket::disconnected, this, &TcpLink::on_disconnected);
    connect(&socket, &QTcpSocket::connected, this, &TcpLink::on_probe_connected);
    connect(&socket, &QTcpSocket::readyRead, this, &TcpLink::on_probe_ready_read);
    connect(&socket, &QAbstractSocket::errorOccurred, this, [this] {
        if (probing)
            end_probe(false, socket.errorString());
    });
    probe_timeout.setSingleShot(true);
    connect(&probe_timeout, &QTimer::timeout, this, [this] {
        end_probe(false, tr("no answer within %1 ms").arg(default_timeout()));
    });
}

TcpLink::~TcpLink()
{
    socket.abort();
}

QString TcpLink::address() const
{
    return host.contains(QLatin1Char(':')) ? QStringLiteral("[%1]:%2").arg(host).arg(port)
                                           : QStringLiteral("%1:%2").arg(host).arg(port);
}

QString TcpLink::description() const
{
    return tr("controller at %1").arg(address());
}

bool TcpLink::is_connected() const
{
    return socket.state() == QAbstractSocket::ConnectedState;
}

bool TcpLink::parse_address(const QString& text, QString* host_out, quint16* port_out)
{
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    if (colon <= 0)
        return false;
    QString name = text.left(colon);
    if (name.startsWith(QLatin1Char('[')) && name.endsWith(QLatin1Char(']')))
        name = name.mid(1, name.size() - 2);
    else if (name.contains(QLatin1Char(':')))
        return false;   // a bare IPv6 address: the port cannot be told apart
    bool ok = false;
    const uint number = text.mid(colon + 1).toUInt(&ok);
    if (name.isEmpty() || !ok || number == 0 || number > 65535)
        return false;
    *host_out = name;
    *port_out = quint16(number);
    return true;
}

bool TcpLink::connect_now(QString* error)
{
    return ensure_connected(QDeadlineTimer(current_timeout()), error);
}

bool TcpLink::ensure_connected(QDeadlineTimer deadline, QString* error)
{
    if (socket.state() == QAbstractSocket::ConnectedState && !probing)
        return true;
    probing = false;
    probe_timeout.stop();
    socket.abort();
    input.clear();
    socket.connectToHost(host, port);
    if (!socket.waitForConnected(remaining(deadline))) {
        const QString reason = socket.error() == QAbstractSocket::SocketTimeoutError ? tr("no answer within the time-out")
                                                                                     : socket.errorString();
        socket.abort();
        *error = tr("cannot connect to the controller at %1: %2").arg(address(), reason);
        return false;
    }
    // Requests are single short lines answered at once: Nagle's algorithm
    // would only add its delay to every round trip.
    socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    set_connected(true);
    return true;
}

void TcpLink::probe()
{
    socket.abort();
    input.clear();
    probing = true;
    probe_timeout.start(default_timeout());
    socket.connectToHost(host, port);
}

void TcpLink::on_probe_connected()
{
    if (!probing)
        return;
    socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    socket.write(ProbeLine + '\n');
}

void TcpLink::on_probe_ready_read()
{
    // During an exchange read_reply() reads for itself.
    if (!probing)
        return;
    input += socket.readAll();
    const int end = input.indexOf('\n');
    if (end < 0 && input.size() <= MaxLineLength)
        return;
    const bool answered = end >= 0 && input.startsWith("norvane ");
    end_probe(answered, answered ? QString() : tr("no reply of the controller's language"));
}

void TcpLink::end_probe(bool answering, const QString& why)
{
    if (!probing)
        return;
    probing = false;
    probe_timeout.stop();
    input.clear();
    if (!answering) {
        socket.abort();
        probe_finished(false, why);
        return;
    }
    set_connected(true);
    probe_finished(true, QString());
}

void TcpLink::drop()
{
    socket.abort();
    input.clear();
    set_connected(false);
}

void TcpLink::on_disconnected()
{
    if (probing) {
        end_probe(false, tr("the controller closed the connection"));
        return;
    }
    // Also emitted from inside the wait functions: what was read so far
    // stays for read_reply() to judge.
    set_connected(false);
}

bool TcpLink::write_request(const QByteArray& line, QDeadlineTimer deadline, QString* error)
{
    if (!ensure_connected(deadline, error))
        return false;
    // Whatever arrived unasked belongs to no request of ours.
    if (socket.bytesAvailable() > 0)
        socket.skip(socket.bytesAvailable());
    input.clear();
    if (socket.write(line + '\n') != line.size() + 1) {
        *error = tr("cannot send to the controller: %1").arg(socket.errorString());
        drop();
        return false;
    }
    // Straight to the kernel; waiting for the socket to be writable first
    // only costs a poll() per request.
    socket.flush();
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(remaining(deadline))) {
            *error = deadline.hasExpired() ? tr("cannot send to the controller within the time-out")
                                           : tr("cannot send to the controller: %1").arg(socket.errorString());
            drop();
            return false;
        }
    }
    return true;
}

ControllerLink::Result TcpLink::read_reply(QByteArray* reply, QDeadlineTimer deadline, QString* error)
{
    for (;;) {
        if (socket.bytesAvailable() > 0)
            input += socket.read(socket.bytesAvailable());
        const int end = input.indexOf('\n');
        if (end > MaxLineLength) {
            // Read whole, so the next reply is in step; too long all the same.
            input.remove(0, end + 1);
            *error = tr("reply longer than %1 bytes").arg(int(MaxLineLength));
            return ReplyTooLong;
        }
        if (end >= 0) {
            *reply = input.left(end);
            if (reply->endsWith('\r'))
                reply->chop(1);
            input.remove(0, end + 1);
            return Success;
        }
        if (input.size() > MaxLineLength) {
            *error = tr("reply longer than %1 bytes without a line end").arg(int(MaxLineLength));
            drop();
            return ReplyTooLong;
        }
        if (socket.state() != QAbstractSocket::ConnectedState) {
            *error = input.isEmpty() ? tr("the controller closed the connection")
                                     : tr("the controller closed the connection in the middle of a reply");
            drop();
            return TransportFailure;
        }
        if (deadline.hasExpired()) {
            *error = input.isEmpty() ? tr("no reply within %1 ms").arg(current_timeout())
                                     : tr("reply incomplete after %1 ms").arg(current_timeout());
            drop();
            return TimedOut;
        }
        if (!socket.waitForReadyRead(remaining(deadline))
            && socket.error() != QAbstractSocket::SocketTimeoutError
            && socket.error() != QAbstractSocket::RemoteHostClosedError
            && socket.state() == QAbstractSocket::ConnectedState) {
            *error = tr("cannot read from the controller: %1").arg(socket.errorString());
            drop();
            return TransportFailure;
        }
    }
}
