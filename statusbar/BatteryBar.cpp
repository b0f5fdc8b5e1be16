#include "BatteryBar.h"

#include "BarStyle.h"

BatteryBar::BatteryBar(QWidget* parent)
    : QProgressBar(parent)
{
    setRange(0, 100);
    setValue(0);
}

QString BatteryBar::styleFor(int value)
{
    const char* selector = "BatteryBar";
    const char* chunk = "BatteryBar::chunk";
    if (value < 0)
        return BarStyle::sheet(selector, "white", "white", chunk,
                               "background-color: #FFFFFF; border-radius: 2px;");
    if (value < 20)
        return BarStyle::sheet(selector, "black", "red", chunk, "background-color: #FF0000;");
    if (value < 100)
        return BarStyle::sheet(selector, "black", "black", chunk, "background-color: #4CFF00;");
    return BarStyle::sheet(selector, "black", "black", chunk,
                           "background-color: #4CFF00; border-radius: 2px;");
}

void BatteryBar::setValue(int value)
{
    const QString style = styleFor(value);
    // Re-polishing is what costs; the table refreshes every row each tick.
    if (styleSheet() != style)
        setStyleSheet(style);
    QProgressBar::setValue(value < 0 ? 0 : value);
}

void BatteryBar::setValue(double fraction)
{
    const double percent = fraction * 100.0;
    // Guard the conversion: NaN or a huge reply must not become undefined
    // behaviour on the way to an int.
    int value;
    if (percent != percent || percent < -1.0)
        value = -1;
    else if (percent >= 100.0)
        value = 100;
    else
        value = int(percent);
    setValue(value);
}
