#include <QtTest>

#include "ModalDialogHelper.h"
#include "module/SensorIdentity.h"

// The controller's three-word names of transceivers and sensors.
class tst_SensorIdentity : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void parse_data();
    void parse();
    void fromFieldsRoundTrips();
};

void tst_SensorIdentity::cleanup()
{
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_SensorIdentity::parse_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("deviceId");
    QTest::addColumn<QStringList>("fields");

    QTest::newRow("three words") << "NRV IMU9 'S0001'" << true << "NRV IMU9 'S0001'" << "S0001"
                                 << QStringList{"NRV", "IMU9", "'S0001'"};
    QTest::newRow("extra blanks collapse") << "  NRV   IMU9\t'S0001' \n" << true << "NRV IMU9 'S0001'"
                                           << "S0001" << QStringList{"NRV", "IMU9", "'S0001'"};
    QTest::newRow("serial with a blank stays one serial")
        << "NRV IMU9 'AB 12'" << true << "NRV IMU9 'AB 12'" << "AB 12"
        << QStringList{"NRV", "IMU9", "'AB 12'"};
    QTest::newRow("serial without quotes") << "NRV Dongle T7" << true << "NRV Dongle T7" << "T7"
                                           << QStringList{"NRV", "Dongle", "T7"};
    QTest::newRow("two words are no identity") << "NRV IMU9" << false << "" << "" << QStringList();
    QTest::newRow("empty") << "" << false << "" << "" << QStringList();
    QTest::newRow("none") << "none" << false << "" << "" << QStringList();
}

void tst_SensorIdentity::parse()
{
    QFETCH(QString, reply);
    QFETCH(bool, valid);
    QFETCH(QString, line);
    QFETCH(QString, deviceId);
    QFETCH(QStringList, fields);

    const SensorIdentity identity = SensorIdentity::parse(reply);
    QCOMPARE(identity.isValid(), valid);
    QCOMPARE(identity.line(), line);
    QCOMPARE(identity.deviceId(), deviceId);
    QCOMPARE(identity.fields(), fields);
}

void tst_SensorIdentity::fromFieldsRoundTrips()
{
    const SensorIdentity identity = SensorIdentity::parse("NRV IMU9 'AB 12'");
    const SensorIdentity again = SensorIdentity::fromFields(identity.fields());
    QCOMPARE(again.line(), identity.line());
    QCOMPARE(again.serial(), QString("'AB 12'"));
    QVERIFY(!SensorIdentity::fromFields({"NRV", "IMU9"}).isValid());
}

QTEST_MAIN(tst_SensorIdentity)
#include "tst_SensorIdentity.moc"
