#ifndef TEMPERATUREBAR_H
#define TEMPERATUREBAR_H

#include <QProgressBar>

// A temperature or warm-up level, 0..100: red until 95, green from 95 (the
// sensors are usable once warm), white when unknown (negative). The shown
// text is set apart from the value, so the bar can carry a temperature.
class TemperatureBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit TemperatureBar(QWidget* parent = nullptr);

    void setValue(int value);
    void setValue(double value);
    void setTemperature(double celsius);

    static QString styleFor(int value);
};

#endif // TEMPERATUREBAR_H
