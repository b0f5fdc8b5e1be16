#include <QtTest>

#include "module/BackendVersions.h"
#include "module/VersionGate.h"

class tst_VersionGate : public QObject
{
    Q_OBJECT

private slots:
    void available_data();
    void available();
    void nullRecordIsOldest();
};

void tst_VersionGate::available_data()
{
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("patch");
    QTest::addColumn<int>("gateMajor");
    QTest::addColumn<int>("gateMinor");
    QTest::addColumn<bool>("expected");

    QTest::newRow("1.12.-1 passes 1.12") << 1 << 12 << -1 << 1 << 12 << true;
    QTest::newRow("1.12.0 passes 1.12") << 1 << 12 << 0 << 1 << 12 << true;
    QTest::newRow("1.12.-2 fails 1.12") << 1 << 12 << -2 << 1 << 12 << false;
    QTest::newRow("1.11.99 fails 1.12") << 1 << 11 << 99 << 1 << 12 << false;
    QTest::newRow("1.13.0 passes 1.12") << 1 << 13 << 0 << 1 << 12 << true;
    QTest::newRow("2.0.0 passes 1.21") << 2 << 0 << 0 << 1 << 21 << true;
    QTest::newRow("2.0.0 passes 1.4") << 2 << 0 << 0 << 1 << 4 << true;
    QTest::newRow("0.99.9 fails 1.4") << 0 << 99 << 9 << 1 << 4 << false;
    QTest::newRow("1.20.5 fails 1.21") << 1 << 20 << 5 << 1 << 21 << false;
    QTest::newRow("1.9.0 passes 1.9") << 1 << 9 << 0 << 1 << 9 << true;
    QTest::newRow("0.17.0 passes 0.17") << 0 << 17 << 0 << 0 << 17 << true;
    QTest::newRow("0.16.5 fails 0.17") << 0 << 16 << 5 << 0 << 17 << false;
    QTest::newRow("1.0.0 passes 0.17") << 1 << 0 << 0 << 0 << 17 << true;
}

void tst_VersionGate::available()
{
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(int, patch);
    QFETCH(int, gateMajor);
    QFETCH(int, gateMinor);
    QFETCH(bool, expected);

    BackendVersions versions;
    versions.major = major;
    versions.minor = minor;
    versions.patch = patch;
    QCOMPARE(VersionGate::available(&versions, gateMajor, gateMinor), expected);
}

void tst_VersionGate::nullRecordIsOldest()
{
    QVERIFY(!VersionGate::available(nullptr, 0, 17));
}

QTEST_APPLESS_MAIN(tst_VersionGate)
#include "tst_VersionGate.moc"
