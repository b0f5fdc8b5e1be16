#include "BarStyle.h"

QString BarStyle::sheet(const char* selector, const char* text_colour, const char* border_colour,
                        const char* chunk_selector, const char* chunk_rule)
{
    const QString border = QString::fromLatin1(border_colour);
    return QStringLiteral("%1 { color: %2; text-align:center; border-radius: 5px; "
                          "border-left: 0.5px solid %3; border-right: 0.5px solid %3; "
                          "border-top: 2px solid %3; border-bottom: 3px solid %3; "
                          "margin:2px; margin-left: 5px; margin-right: 5px; } %4 { %5 }")
        .arg(QString::fromLatin1(selector), QString::fromLatin1(text_colour), border,
             QString::fromLatin1(chunk_selector), QString::fromLatin1(chunk_rule));
}
