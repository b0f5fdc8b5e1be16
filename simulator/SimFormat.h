#ifndef SIMFORMAT_H
#define SIMFORMAT_H

#include <QByteArray>

// How the controller writes values into its replies.
class SimFormat
{
public:
    // Shortest faithful decimal form with at least one decimal: 200.0, 0.35,
    // -0.05. Readable by sscanf's %lf and QByteArray::toDouble alike.
    static QByteArray real(double value);
    static QByteArray yes_no(bool value);
    // Free text between double quotes, as descriptions are answered.
    static QByteArray quoted(const QByteArray& text);
    // Strips one pair of enclosing double quotes, if there is one.
    static QByteArray unquoted(const QByteArray& text);
    // A stable pseudo-random fraction in [0, 1) for a text, so that measured
    // values (residuals, channel noise) differ per device but never between
    // runs.
    static double noise(const QByteArray& seed);
};

#endif // SIMFORMAT_H
