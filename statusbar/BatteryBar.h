#ifndef BATTERYBAR_H
#define BATTERYBAR_H

#include <QProgressBar>

// A sensor's battery charge, 0..100: red below 20, green from 20, an empty
// white bar when the charge is unknown (negative).
class BatteryBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit BatteryBar(QWidget* parent = nullptr);

    void setValue(int value);
    // The charge as the controller reports it, a fraction of 1.
    void setValue(double fraction);

    static QString styleFor(int value);
};

#endif // BATTERYBAR_H
