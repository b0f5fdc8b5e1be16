#ifndef INERITALMESSAGERECEIVER_H
#define INERITALMESSAGERECEIVER_H

#include <QObject>

#include "MessageReceiver.h"

// Receives the host's messages for "InertialModule". The host may deliver
// from anywhere, so the only reaction is a signal that the settings dialog
// takes through a queued connection.
class IneritalMessageReceiver : public QObject, public MessageReceiver
{
    Q_OBJECT

public:
    explicit IneritalMessageReceiver(QObject* parent = nullptr);

    int transmit_message(int type, const char* sender, const char* text) override;

signals:
    void dialogReopen();
};

#endif // INERITALMESSAGERECEIVER_H
