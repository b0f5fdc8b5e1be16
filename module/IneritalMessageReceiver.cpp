#include "IneritalMessageReceiver.h"

#include <QString>

IneritalMessageReceiver::IneritalMessageReceiver(QObject* parent)
    : QObject(parent)
{
}

int IneritalMessageReceiver::transmit_message(int /*type*/, const char* /*sender*/, const char* text)
{
    // Another module's dialog closed and hands the user back to us.
    if (QString::fromLatin1(text) == QLatin1String("reopen"))
        emit dialogReopen();
    return 0;
}
