#include "ControllerText.h"

#include <cmath>
#include <cstring>

#include "IOManager.h"

QString ControllerText::reply(const char* buffer)
{
    return QString::fromLatin1(buffer, int(strnlen(buffer, IOManager::ReplyCapacity)));
}

QString ControllerText::withoutDoubleQuotes(QString text)
{
    return text.remove(QLatin1Char('"'));
}

QString ControllerText::withoutSingleQuotes(QString text)
{
    return text.remove(QLatin1Char('\''));
}

QString ControllerText::quoted(const QString& text)
{
    const int open = text.indexOf(QLatin1Char('"'));
    if (open < 0)
        return QString();
    const int close = text.indexOf(QLatin1Char('"'), open + 1);
    return text.mid(open + 1, close < 0 ? -1 : close - open - 1);
}

int ControllerText::percent(double fraction)
{
    const double value = std::floor(fraction * 100.0);
    return value >= 0.0 ? int(qMin(value, 100.0)) : 0;
}

QString ControllerText::red(const QString& text)
{
    return QStringLiteral("<b><font color=red>") + text + QStringLiteral("</font></b>");
}

QByteArray ControllerText::latin(const QString& text)
{
    return text.toLatin1();
}

void ControllerText::report(IOManager* io, const QString& text)
{
    if (io)
        io->show_message("standard", "Norvane", 1, latin(text).constData());
}
