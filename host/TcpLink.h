#ifndef TCPLINK_H
#define TCPLINK_H

#include <QElapsedTimer>
#include <QTcpSocket>

#include "ControllerLink.h"

// A controller reached over TCP. Connects on the first request, and again on
// the first request after the connection was lost; while the controller is
// gone every request fails at once with the reason, and a new attempt is
// made at most once per retry interval, so a dead controller cannot freeze
// the window on every poll. A reply that is late or cut short drops the
// connection: what comes after it could only be out of step.
class TcpLink : public ControllerLink
{
    Q_OBJECT

public:
    static constexpr int DefaultRetryIntervalMs = 2000;

    TcpLink(const QString& host, quint16 port, QObject* parent = nullptr);
    ~TcpLink() override;

    QString description() const override;
    // "127.0.0.1:4000", "[::1]:4000".
    QString address() const;
    bool is_connected() const override;
    // Connects now rather than on the first request.
    bool connect_now(QString* error);
    void set_retry_interval(int milliseconds) { retry_interval_ms = milliseconds; }

    // Parses "HOST:PORT" (an IPv6 address in brackets); false if malformed.
    static bool parse_address(const QString& text, QString* host, quint16* port);

protected:
    bool write_request(const QByteArray& line, QDeadlineTimer deadline, QString* error) override;
    Result read_reply(QByteArray* reply, QDeadlineTimer deadline, QString* error) override;

private:
    bool ensure_connected(QDeadlineTimer deadline, QString* error);
    void drop();
    void on_disconnected();

    QString host;
    quint16 port;
    QTcpSocket socket;
    QByteArray input;
    QElapsedTimer last_failed_attempt;
    QString last_connect_error;
    int retry_interval_ms = DefaultRetryIntervalMs;
};

#endif // TCPLINK_H
