#include "BenchReport.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>

namespace {

template <typename T>
T median(QVector<T> values)
{
    if (values.isEmpty())
        return T();
    std::sort(values.begin(), values.end());
    const int middle = values.size() / 2;
    return values.size() % 2 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

QString fixed(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

} // namespace

const QString BenchReport::LinkExchange = QStringLiteral("link exchange");
const QString BenchReport::RawPingPong = QStringLiteral("raw ping-pong");

void BenchReport::add_action(const QString& link, int sensors, const QString& action, const Sample& sample)
{
    add(link, sensors, action, false, sample);
}

void BenchReport::add_exchange(const QString& link, int sensors, const QString& what, const Sample& per_exchange)
{
    add(link, sensors, what, true, per_exchange);
}

void BenchReport::add(const QString& link, int sensors, const QString& name, bool exchange, const Sample& sample)
{
    for (Row& row : rows) {
        if (row.link == link && row.sensors == sensors && row.name == name && row.exchange == exchange) {
            row.samples << sample;
            row.median = median_of(row.samples);
            return;
        }
    }
    Row row;
    row.link = link;
    row.sensors = sensors;
    row.name = name;
    row.exchange = exchange;
    row.samples << sample;
    row.median = sample;
    rows << row;
}

Sample BenchReport::median_of(const QVector<Sample>& samples)
{
    QVector<long> trips;
    QVector<qint64> wall;
    QVector<qint64> cpu;
    for (const Sample& s : samples) {
        trips << s.round_trips;
        wall << s.wall_ns;
        cpu << s.cpu_ns;
    }
    Sample result;
    result.round_trips = median(trips);
    result.wall_ns = median(wall);
    result.cpu_ns = median(cpu);
    return result;
}

const Sample* BenchReport::median_exchange(const QString& link, int sensors, const QString& what) const
{
    for (const Row& row : rows)
        if (row.exchange && row.link == link && row.sensors == sensors && row.name == what)
            return &row.median;
    return nullptr;
}

QString BenchReport::table() const
{
    QString text;
    QTextStream out(&text);
    out << QStringLiteral("%1 %2 %3 %4 %5 %6\n")
               .arg(QStringLiteral("link"), -7)
               .arg(QStringLiteral("sensors"), 7)
               .arg(QStringLiteral("action (medians)"), -52)
               .arg(QStringLiteral("trips"), 6)
               .arg(QStringLiteral("wall ms"), 10)
               .arg(QStringLiteral("cpu ms"), 10);
    for (const Row& row : rows) {
        if (row.exchange)
            continue;
        out << QStringLiteral("%1 %2 %3 %4 %5 %6\n")
                   .arg(row.link, -7)
                   .arg(row.sensors, 7)
                   .arg(row.name, -52)
                   .arg(row.median.round_trips, 6)
                   .arg(fixed(row.median.wall_ns / 1e6, 3), 10)
                   .arg(fixed(row.median.cpu_ns / 1e6, 3), 10);
    }
    out << QStringLiteral("\n%1 %2 %3 %4 %5\n")
               .arg(QStringLiteral("link"), -7)
               .arg(QStringLiteral("sensors"), 7)
               .arg(QStringLiteral("one exchange (medians)"), -52)
               .arg(QStringLiteral("wall us"), 17)
               .arg(QStringLiteral("cpu us"), 10);
    for (const Row& row : rows) {
        if (!row.exchange)
            continue;
        out << QStringLiteral("%1 %2 %3 %4 %5\n")
                   .arg(row.link, -7)
                   .arg(row.sensors, 7)
                   .arg(row.name, -52)
                   .arg(fixed(row.median.wall_ns / 1e3, 2), 17)
                   .arg(fixed(row.median.cpu_ns / 1e3, 2), 10);
    }
    for (const Row& row : rows) {
        const Sample* raw = median_exchange(row.link, row.sensors, RawPingPong);
        if (row.exchange && row.name == LinkExchange && raw && raw->wall_ns > 0)
            out << QStringLiteral("%1 %2 %3 %4\n")
                       .arg(row.link, -7)
                       .arg(row.sensors, 7)
                       .arg(QStringLiteral("link exchange / raw ping-pong (wall)"), -52)
                       .arg(fixed(double(row.median.wall_ns) / double(raw->wall_ns), 2), 17);
    }
    return text;
}

QJsonDocument BenchReport::json() const
{
    QJsonArray actions;
    QJsonArray exchanges;
    for (const Row& row : rows) {
        QJsonArray wall;
        QJsonArray cpu;
        for (const Sample& s : row.samples) {
            wall.append(double(s.wall_ns));
            cpu.append(double(s.cpu_ns));
        }
        QJsonObject entry{
            {QStringLiteral("link"), row.link},
            {QStringLiteral("sensors"), row.sensors},
            {row.exchange ? QStringLiteral("exchange") : QStringLiteral("action"), row.name},
            {QStringLiteral("wall_ns"), double(row.median.wall_ns)},
            {QStringLiteral("cpu_ns"), double(row.median.cpu_ns)},
            {QStringLiteral("samples_wall_ns"), wall},
            {QStringLiteral("samples_cpu_ns"), cpu},
        };
        if (row.exchange) {
            const Sample* raw = median_exchange(row.link, row.sensors, RawPingPong);
            if (row.name == LinkExchange && raw && raw->wall_ns > 0)
                entry.insert(QStringLiteral("wall_to_raw_ping_pong"),
                             double(row.median.wall_ns) / double(raw->wall_ns));
            exchanges.append(entry);
        } else {
            entry.insert(QStringLiteral("round_trips"), double(row.median.round_trips));
            actions.append(entry);
        }
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("actions"), actions},
                                     {QStringLiteral("exchanges"), exchanges}});
}
