#include "LineFormatter.h"

#include <cstdio>

#include <locale.h>

namespace {

// The controller reads "%f" with a decimal point whatever the user's language:
// QApplication adopts the environment's locale, under which the C library
// would print "0,5" for a German user. Formatting under a C locale of our own,
// for this thread only, keeps every line the same bytes under any locale.
class CNumericScope
{
public:
    CNumericScope() : previous(c_locale() ? uselocale(c_locale()) : nullptr) {}
    ~CNumericScope()
    {
        if (previous)
            uselocale(previous);
    }
    CNumericScope(const CNumericScope&) = delete;
    CNumericScope& operator=(const CNumericScope&) = delete;

private:
    static locale_t c_locale()
    {
        static const locale_t c = newlocale(LC_ALL_MASK, "C", locale_t(nullptr));
        return c;
    }
    locale_t previous;
};

} // namespace

QByteArray LineFormatter::format(const char* format, va_list args)
{
    if (!format)
        return QByteArray();
    const CNumericScope c_numbers;
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
