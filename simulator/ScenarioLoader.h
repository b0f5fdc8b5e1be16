#ifndef SCENARIOLOADER_H
#define SCENARIOLOADER_H

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include "SimFault.h"
#include "SimModel.h"

// Builds the simulated controller's state from a scenario (JSON, described in
// docs/protocol.md). A scenario may extend another ("extends": "default" or a
// file beside it): objects are merged key by key, arrays replaced. Every
// problem is reported with the place it was found, and nothing is half
// loaded: the caller gets a complete model or an error.
class ScenarioLoader
{
public:
    // origin names the scenario in messages; relative "extends" paths are
    // looked up in base_dir.
    ScenarioLoader(const QString& origin, const QString& base_dir);

    // now_ms is the simulated time the scenario starts at.
    bool load(const QByteArray& json, qint64 now_ms, SimModel* model, QList<SimFault>* faults);
    const QString& error() const { return problem; }

    // The built-in scenario.
    static QByteArray default_scenario();

private:
    bool resolve(const QByteArray& json, const QString& origin, const QString& dir, int depth,
                 QJsonObject* merged);
    static QJsonObject merge(const QJsonObject& base, const QJsonObject& overlay);

    bool read_system(const QJsonObject& o, SimModel* m);
    bool read_inertial(const QJsonObject& o, SimModel* m);
    bool read_calibrations(const QJsonObject& o, SimModel* m);
    bool read_filter(const QJsonObject& o, SimModel* m);
    bool read_transceivers(const QJsonArray& list, SimModel* m);
    bool read_sensor(const QJsonObject& o, const QString& path, bool waiting, qint64 now_ms,
                     const SimModel& m, SimModel::Sensor* s);
    bool read_bodies(const QJsonObject& o, SimModel* m);
    bool read_body(const QJsonObject& o, const QString& path, bool wand, const SimModel& m,
                   SimModel::Body* b);
    bool read_pulse(const QJsonObject& o, SimModel* m);
    bool read_faults(const QJsonArray& list, qint64 now_ms, QList<SimFault>* faults);

    // Typed reads of an optional key: absent leaves *value as it is, a wrong
    // type or an absurd value is an error naming the key.
    bool read_bytes(const QJsonObject& o, const QString& key, const QString& path, QByteArray* value);
    bool check_keys(const QJsonObject& o, const QString& path, const QStringList& allowed);
    bool read(const QJsonObject& o, const QString& key, const QString& path, bool* value);
    bool read(const QJsonObject& o, const QString& key, const QString& path, int* value,
              int low, int high);
    bool read(const QJsonObject& o, const QString& key, const QString& path, double* value,
              double low, double high);
    bool read(const QJsonObject& o, const QString& key, const QString& path, QByteArray* value,
              bool word = false);
    bool read_object(const QJsonObject& o, const QString& key, const QString& path,
                     QJsonObject* value);
    bool read_array(const QJsonObject& o, const QString& key, const QString& path,
                    QJsonArray* value);
    bool fail(const QString& path, const QString& text);

    QString origin;
    QString base_dir;
    QString problem;
};

#endif // SCENARIOLOADER_H
