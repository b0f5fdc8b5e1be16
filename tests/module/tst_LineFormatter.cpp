#include <QtTest>

#include "host/LineFormatter.h"

// Lines must come out exactly as printf writes them: the controller parses
// the zero padding and the six decimals.
class tst_LineFormatter : public QObject
{
    Q_OBJECT

private slots:
    void format_data();
    void format();
    void longLine();
};

void tst_LineFormatter::format_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<QByteArray>("actual");

    QTest::newRow("sensor index 7") << QByteArray("inertial sensor d07")
                                    << LineFormatter::format("inertial sensor d%02d", 7);
    QTest::newRow("precision form") << QByteArray("inertial transceiver d07")
                                    << LineFormatter::format("inertial transceiver d%.2d", 7);
    QTest::newRow("body index 0") << QByteArray("body desc standard b01")
                                  << LineFormatter::format("body desc standard b%02d", 0 + 1);
    QTest::newRow("body index 9") << QByteArray("body desc standard b10")
                                  << LineFormatter::format("body desc standard b%02d", 9 + 1);
    QTest::newRow("frequency 100") << QByteArray("inertial frequency 100.000000")
                                   << LineFormatter::format("inertial frequency %f", 100.0);
    QTest::newRow("identity argument")
        << QByteArray("inertial sensor_present Acme IMU3 '0042'")
        << LineFormatter::format("inertial sensor_present %s", "Acme IMU3 '0042'");
    QTest::newRow("quoted description")
        << QByteArray("body desc standard b03 \"left \"hand\"\"")
        << LineFormatter::format("body desc standard b%02d \"%s\"", 3, "left \"hand\"");
    QTest::newRow("empty format") << QByteArray() << LineFormatter::format("");
}

void tst_LineFormatter::format()
{
    QFETCH(QByteArray, expected);
    QFETCH(QByteArray, actual);
    QCOMPARE(actual, expected);
}

void tst_LineFormatter::longLine()
{
    const QByteArray name(5000, 'x');
    const QByteArray line = LineFormatter::format("body desc %s", name.constData());
    QCOMPARE(line.size(), 5010);
    QVERIFY(line.endsWith("xxx"));
}

QTEST_APPLESS_MAIN(tst_LineFormatter)
#include "tst_LineFormatter.moc"
