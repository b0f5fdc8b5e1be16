#ifndef SIMDAEMON_H
#define SIMDAEMON_H

#include <QProcess>
#include <QString>

// norvane-simd as a child process on a free loopback port, stopped with the
// object.
class SimDaemon
{
public:
    SimDaemon() = default;
    ~SimDaemon();
    SimDaemon(const SimDaemon&) = delete;
    SimDaemon& operator=(const SimDaemon&) = delete;

    // Starts the daemon on the scenario file at the simulator speed and
    // waits for the line that names its port.
    bool start(const QString& program, const QString& scenario_file, double speed, QString* error);
    void stop();
    quint16 port() const { return listening_port; }

private:
    QProcess process;
    quint16 listening_port = 0;
};

#endif // SIMDAEMON_H
