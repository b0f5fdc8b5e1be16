#include "LineFormatter.h"

#include <cstdio>

QByteArray LineFormatter::format(const char* format, va_list args)
{
    if (!format)
        return QByteArray();
    va_list measure;
    va_copy(measure, args);
    const int length = std::vsnprintf(nullptr, 0, format, measure);
    va_end(measure);
    if (length <= 0)
        return QByteArray();
    QByteArray line(length, '\0');
    va_list write;
    va_copy(write, args);
    std::vsnprintf(line.data(), size_t(length) + 1, format, write);
    va_end(write);
    return line;
}

QByteArray LineFormatter::format(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    QByteArray line = LineFormatter::format(format, args);
    va_end(args);
    return line;
}
