#ifndef SIMULATEDCONTROLLER_H
#define SIMULATEDCONTROLLER_H

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

#include "SimReply.h"

class FaultInjector;
class SimClock;
class SimModel;

// The simulated tracking controller: answers request lines of the wire
// protocol (docs/protocol.md) from a stateful model whose time comes from a
// SimClock. Used in-process by norvane-host and behind TCP by norvane-simd.
class SimulatedController : public QObject
{
    Q_OBJECT

public:
    // The clock is not owned and must outlive the controller. Starts with the
    // built-in default scenario.
    explicit SimulatedController(SimClock* clock, QObject* parent = nullptr);
    ~SimulatedController() override;

    // Replaces the whole state by a scenario (JSON); on failure the state is
    // left as it was and *error says why.
    bool load_scenario_file(const QString& path, QString* error);
    bool load_scenario(const QByteArray& json, QString* error);
    void load_default_scenario();

    // One request line without its line feed, e.g. "norvane get inertial
    // number_of_sensors", answered with one reply line.
    SimReply handle(const QByteArray& line);

    // The state behind the answers, for a look from outside (a daemon's
    // summary, a test's check); change it only through handle().
    const SimModel& model() const;
    // The "description" of the scenario loaded last.
    QString scenario_description() const { return description; }

private:
    bool load(const QByteArray& json, const QString& origin, const QString& base_dir,
              QString* error);

    SimClock* clock;
    std::unique_ptr<SimModel> state;
    std::unique_ptr<FaultInjector> faults;
    QString description;
};

#endif // SIMULATEDCONTROLLER_H
