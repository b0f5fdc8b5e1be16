#include "ControllerProbe.h"

#include <QRegularExpression>
#include <QTest>

// Some time after the clock's zero, so that nothing can pass for measured
// from the start of the scenario when it is measured from zero.
ControllerProbe::ControllerProbe() : clock(3600 * 1000), controller(&clock)
{
}

QByteArray ControllerProbe::expand(QByteArray text)
{
    for (const char* device : {"S1 NRV IMU3 '10231'", "S2 NRV IMU3 '10232'", "S3 NRV IMU3 '10233'",
                               "S4 NRV IMU3 '10234'", "S5 NRV IMU3C '10235'", "T1 NRV RD2 '70011'",
                               "T2 NRV RD2 '70012'"})
        text.replace('$' + QByteArray(device, 2), QByteArray(device + 3));
    return text;
}

void ControllerProbe::rows(const char* table)
{
    QTest::addColumn<QByteArray>("script");
    for (const QByteArray& row : QByteArray(table).replace("\n ", " ").split('\n')) {
        const int colon = row.indexOf(": ");
        if (colon > 0)
            QTest::newRow(row.left(colon).constData()) << row.mid(colon + 2).simplified();
    }
}

QString ControllerProbe::run(const QByteArray& script)
{
    for (QByteArray step : expand(script).split('|')) {
        step = step.trimmed();
        const int arrow = step.indexOf(" -> ");
        const int equals = step.indexOf(" = ");
        QByteArray expected = step.mid(arrow + 4);
        QByteArray got;
        if (step.startsWith('+')) {
            clock.advance(qint64(step.mid(1).toDouble() * 1000));
            continue;
        }
        if (step.startsWith("load ") || step.startsWith("with ")) {
            QString error;
            QByteArray scenario = arrow > 0 ? step.mid(5, arrow - 5) : step.mid(5);
            if (step.startsWith("with "))
                scenario = "{\"extends\": \"default\", " + scenario + '}';
            const bool loaded =
                scenario.endsWith(".json")
                    ? controller.load_scenario_file(QString::fromLatin1(SCENARIO_DIR "/" + scenario), &error)
                    : controller.load_scenario(scenario, &error);
            if (arrow < 0 ? loaded : !loaded && error.contains(QString::fromUtf8(expected)))
                continue;
            got = loaded ? "loaded" : error.toUtf8();
        } else if (arrow < 0 && equals < 0) {
            return QStringLiteral("cannot read the step \"%1\"").arg(QString::fromLatin1(step));
        } else {
            QByteArray request = "norvane " + step.left(arrow);
            if (arrow < 0) {
                request = "norvane get " + step.left(equals);
                expected = "norvane set " + step.left(equals) + ' ' + step.mid(equals + 3);
            } else if (QRegularExpression("^(ok\\b|set |err )").match(QString::fromLatin1(expected)).hasMatch()) {
                expected.prepend("norvane ");
            }
            const SimReply reply = controller.handle(request);
            got = reply.line + (reply.delay_ms ? " (after " + QByteArray::number(reply.delay_ms) + " ms)" : "")
                  + (reply.silent ? " (no answer)" : "") + (reply.hang_up ? " (hangs up)" : "");
            QString pattern = QRegularExpression::escape(QString::fromLatin1(expected));
            if (QRegularExpression("^norvane err \\d+$").match(QString::fromLatin1(expected)).hasMatch())
                pattern += " \"[^\"]*\"";   // any text
            if (QRegularExpression('^' + pattern + '$').match(QString::fromLatin1(got)).hasMatch())
                continue;
        }
        return QStringLiteral("%1\n   got: %2").arg(QString::fromLatin1(step), QString::fromLatin1(got));
    }
    return QString();
}
