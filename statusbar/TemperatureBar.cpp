#include "TemperatureBar.h"

#include <limits>

#include "BarStyle.h"

TemperatureBar::TemperatureBar(QWidget* parent)
    : QProgressBar(parent)
{
    setRange(0, 100);
    // QProgressBar starts one below its minimum, i.e. "no value yet"; these
    // bars start at 0 like the battery bar. The base setter leaves the style
    // sheet alone until a real value arrives.
    QProgressBar::setValue(0);
}

QString TemperatureBar::styleFor(int value)
{
    const char* selector = "TemperatureBar";
    const char* chunk = "QProgressBar::chunk";
    if (value < 0)
        return BarStyle::sheet(selector, "white", "white", chunk, "background-color: #FF0000;");
    if (value < 95)
        return BarStyle::sheet(selector, "black", "black", chunk, "background-color: #FF0000;");
    if (value < 100)
        return BarStyle::sheet(selector, "black", "black", chunk, "background-color: #4CFF00;");
    return BarStyle::sheet(selector, "black", "black", chunk,
                           "background-color: #4CFF00; border-radius: 2px;");
}

void TemperatureBar::setValue(int value)
{
    const QString style = styleFor(value);
    if (styleSheet() != style)
        setStyleSheet(style);
    QProgressBar::setValue(value < 0 ? 0 : value);
}

void TemperatureBar::setValue(double value)
{
    // Truncation toward zero, without scaling or clamping; only values an
    // int cannot hold are pinned, since converting them is undefined.
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    if (value != value)
        setValue(-1);
    else if (value <= lowest)
        setValue(std::numeric_limits<int>::min());
    else if (value >= highest)
        setValue(std::numeric_limits<int>::max());
    else
        setValue(int(value));
}

void TemperatureBar::setTemperature(double celsius)
{
    setFormat(QString::number(celsius, 'f', 1) + QChar(0x00B0) + QLatin1Char('C'));
}
