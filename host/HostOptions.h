#ifndef HOSTOPTIONS_H
#define HOSTOPTIONS_H

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// norvane-host's command line.
class HostOptions
{
    Q_DECLARE_TR_FUNCTIONS(HostOptions)

public:
    static constexpr double MaximumSpeed = 10000.0;

    // Parses the arguments (the program name first); false with error() set
    // when they make no sense together. Needs the application object.
    bool parse(const QStringList& arguments);

    QString error() const { return problem; }
    QString help_text() const { return help; }
    bool help_requested() const { return wants_help; }
    bool version_requested() const { return wants_version; }

    bool uses_tcp() const { return !controller_host.isEmpty(); }
    QString controller_host;
    quint16 controller_port = 0;
    QString scenario;          // embedded simulator only; empty: the default
    double speed = 1.0;        // embedded simulator only
    QString plugin_dir;        // empty: next to the executable
    QString trace;             // empty: no trace file
    QString tour_dir;          // empty: no tour

private:
    QString problem;
    QString help;
    bool wants_help = false;
    bool wants_version = false;
};

#endif // HOSTOPTIONS_H
