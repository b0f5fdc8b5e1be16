#ifndef BARSTYLE_H
#define BARSTYLE_H

#include <QString>

// The frame the battery and temperature bars share; only the colours and
// the chunk rule differ between their states.
class BarStyle
{
public:
    static QString sheet(const char* selector, const char* text_colour, const char* border_colour,
                         const char* chunk_selector, const char* chunk_rule);
};

#endif // BARSTYLE_H
