#ifndef BENCHSCENARIO_H
#define BENCHSCENARIO_H

#include <QByteArray>

// The benchmark's controller: the default scenario grown to a given number
// of paired radio sensors, split over its two transceivers, each on a body
// of its own. The default's four waiting sensors stay for the add-sensor
// scan, with free bodies and sensor places for them. A warm-up, once
// started, outlasts any run.
class BenchScenario
{
public:
    static constexpr int MaxSensors = 900;

    // The scenario as JSON; `sensors` is clamped to 1..MaxSensors.
    static QByteArray json(int sensors);
};

#endif // BENCHSCENARIO_H
