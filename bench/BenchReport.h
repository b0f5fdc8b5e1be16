#ifndef BENCHREPORT_H
#define BENCHREPORT_H

#include <QJsonDocument>
#include <QString>
#include <QVector>

#include "Stopwatch.h"

// Collects the samples of every repeat and reports their medians: one row
// per link, number of sensors and action, as a text table and as JSON.
// Exchange rows hold the cost of one exchange, averaged over a batch.
class BenchReport
{
public:
    // Exchange rows compared with each other.
    static const QString LinkExchange;
    static const QString RawPingPong;

    void add_action(const QString& link, int sensors, const QString& action, const Sample& sample);
    void add_exchange(const QString& link, int sensors, const QString& what, const Sample& per_exchange);

    QString table() const;
    QJsonDocument json() const;

    // The median of one exchange row, null when there is none.
    const Sample* median_exchange(const QString& link, int sensors, const QString& what) const;

private:
    struct Row
    {
        QString link;
        int sensors = 0;
        QString name;
        bool exchange = false;
        QVector<Sample> samples;
        Sample median;
    };

    void add(const QString& link, int sensors, const QString& name, bool exchange, const Sample& sample);
    static Sample median_of(const QVector<Sample>& samples);

    QVector<Row> rows;
};

#endif // BENCHREPORT_H
