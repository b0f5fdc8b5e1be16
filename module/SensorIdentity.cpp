#include "SensorIdentity.h"

SensorIdentity SensorIdentity::parse(const QString& reply)
{
    const QStringList words = reply.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    SensorIdentity identity;
    if (words.size() < 3)
        return identity;
    identity.vendor_word = words.at(0);
    identity.model_word = words.at(1);
    identity.serial_words = words.mid(2).join(QLatin1Char(' '));
    identity.valid = true;
    return identity;
}

SensorIdentity SensorIdentity::fromFields(const QStringList& fields)
{
    return parse(fields.join(QLatin1Char(' ')));
}

QString SensorIdentity::line() const
{
    return valid ? fields().join(QLatin1Char(' ')) : QString();
}

QStringList SensorIdentity::fields() const
{
    if (!valid)
        return QStringList();
    return QStringList{vendor_word, model_word, serial_words};
}

QString SensorIdentity::deviceId() const
{
    QString id = serial_words;
    return id.remove(QLatin1Char('\''));
}
