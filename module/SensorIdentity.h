#ifndef SENSORIDENTITY_H
#define SENSORIDENTITY_H

#include <QString>
#include <QStringList>

// How the controller names a transceiver or a sensor: vendor, model and
// serial separated by blanks, the serial in single quotes. The words joined
// by single blanks are what every later query about that device carries;
// the serial without its quotes is what the user knows the device by.
class SensorIdentity
{
public:
    SensorIdentity() = default;

    // Reads a reply such as "ACME IMU9 'A0042'". A serial with blanks inside
    // its quotes stays one serial; fewer than three words give an identity
    // that is not valid.
    static SensorIdentity parse(const QString& reply);
    // The stored word list of a table cell: vendor, model, serial.
    static SensorIdentity fromFields(const QStringList& fields);

    bool isValid() const { return valid; }
    const QString& vendor() const { return vendor_word; }
    const QString& model() const { return model_word; }
    const QString& serial() const { return serial_words; }

    // The words joined by single blanks.
    QString line() const;
    QStringList fields() const;
    // The serial as the user sees it, without quotes.
    QString deviceId() const;

private:
    QString vendor_word;
    QString model_word;
    QString serial_words;
    bool valid = false;
};

#endif // SENSORIDENTITY_H
