#ifndef TCPLINK_H
#define TCPLINK_H

#include <QTcpSocket>
#include <QTimer>

#include "ControllerLink.h"

// A controller reached over TCP. Connects on the first request; after the
// connection was lost the link's outage rule applies, and probe() connects
// again from the event loop and asks one question before the link counts as
// answering. A reply that is late or cut short drops the connection: what
// comes after it could only be out of step.
class TcpLink : public ControllerLink
{
    Q_OBJECT

public:
    TcpLink(const QString& host, quint16 port, QObject* parent = nullptr);
    ~TcpLink() override;

    QString description() const override;
    // "127.0.0.1:4000", "[::1]:4000".
    QString address() const;
    bool is_connected() const override;
    // Connects now rather than on the first request.
    bool connect_now(QString* error);

    // Parses "HOST:PORT" (an IPv6 address in brackets); false if malformed.
    static bool parse_address(const QString& text, QString* host, quint16* port);

protected:
    bool write_request(const QByteArray& line, QDeadlineTimer deadline, QString* error) override;
    Result read_reply(QByteArray* reply, QDeadlineTimer deadline, QString* error) override;
    void probe() override;

private:
    bool ensure_connected(QDeadlineTimer deadline, QString* error);
    void drop();
    void on_disconnected();
    void on_probe_connected();
    void on_probe_ready_read();
    void end_probe(bool answering, const QString& why);

    QString host;
    quint16 port;
    QTcpSocket socket;
    QByteArray input;
    bool probing = false;
    QTimer probe_timeout;
};

#endif // TCPLINK_H
