#include "LineFormatter.h"

#include <clocale>
#include <cstdio>
#include <locale.h>

namespace {

// The controller reads "100.000000", never "100,000000": QApplication adopts
// the user's locale for the whole process, so the lines are printed under a
// C locale of their own, on this thread only.
class CNumbers
{
public:
    CNumbers() : previous(c_locale() ? uselocale(c_locale()) : nullptr) {}
    ~CNumbers()
    {
        if (previous)
            uselocale(previous);
    }
    CNumbers(const CNumbers&) = delete;
    CNumbers& operator=(const CNumbers&) = delete;

private:
    static locale_t c_locale()
    {
        static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
        return c;
    }
    locale_t previous;
};

} // namespace

QByteArray LineFormatter::format(const char* format, va_list args)
{
    if (!format)
        return QByteArray();
    const CNumbers c_numbers;
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
