#ifndef LINEFORMATTER_H
#define LINEFORMATTER_H

#include <QByteArray>

#include <cstdarg>

// Turns a printf-style format and its arguments into one line of the
// controller language, exactly as the C library would print it. Every
// IOManager of ours (the links and the tests' fake) builds lines here, so
// that "%02d" or "%f" never mean two different things.
class LineFormatter
{
public:
    static QByteArray format(const char* format, va_list args);
    static QByteArray format(const char* format, ...);
};

#endif // LINEFORMATTER_H
