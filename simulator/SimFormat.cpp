#include "SimFormat.h"

#include <cmath>

QByteArray SimFormat::real(double value)
{
    if (!std::isfinite(value))
        return "0.0";
    QByteArray text = QByteArray::number(value, 'f', 6);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.append('0');
    if (text == "-0.0")
        text = "0.0";
    return text;
}

QByteArray SimFormat::yes_no(bool value)
{
    return value ? QByteArrayLiteral("yes") : QByteArrayLiteral("no");
}

QByteArray SimFormat::quoted(const QByteArray& text)
{
    return '"' + text + '"';
}

QByteArray SimFormat::unquoted(const QByteArray& text)
{
    if (text.size() >= 2 && text.startsWith('"') && text.endsWith('"'))
        return text.mid(1, text.size() - 2);
    return text;
}

double SimFormat::noise(const QByteArray& seed)
{
    // FNV-1a, then the top bits as a fraction.
    quint32 hash = 2166136261u;
    for (char c : seed) {
        hash ^= quint8(c);
        hash *= 16777619u;
    }
    hash ^= hash >> 15;
    hash *= 2246822519u;
    hash ^= hash >> 13;
    return double(hash >> 8) / double(1u << 24);
}
