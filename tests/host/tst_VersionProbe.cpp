#include <QtTest>

#include "ModalDialogHelper.h"
#include "ScriptedLink.h"
#include "host/VersionProbe.h"
#include "module/BackendVersions.h"

class tst_VersionProbe : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void parse_data();
    void parse();
    void readsThreeQueries();
    void keepsWhatItCannotRead();
};

void tst_VersionProbe::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_VersionProbe::parse_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("patch");

    QTest::newRow("full") << QByteArray("1.21.0") << true << 1 << 21 << 0;
    QTest::newRow("no patch") << QByteArray("1.9") << true << 1 << 9 << 0;
    QTest::newRow("any patch") << QByteArray("1.12.-1") << true << 1 << 12 << -1;
    QTest::newRow("blanks") << QByteArray(" 0.17.0 ") << true << 0 << 17 << 0;
    QTest::newRow("other negative patch") << QByteArray("1.12.-2") << false << 0 << 0 << 0;
    QTest::newRow("suffix") << QByteArray("1.21.0-rc1") << false << 0 << 0 << 0;
    QTest::newRow("one number") << QByteArray("2") << false << 0 << 0 << 0;
    QTest::newRow("absurdly long") << QByteArray("12345678901.1.1") << false << 0 << 0 << 0;
    QTest::newRow("empty") << QByteArray() << false << 0 << 0 << 0;
}

void tst_VersionProbe::parse()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, ok);
    QFETCH(int, major);
    QFETCH(int, minor);
    QFETCH(int, patch);
    int a = 0, b = 0, c = 0;
    QCOMPARE(VersionProbe::parse(text, &a, &b, &c), ok);
    QCOMPARE(a, major);
    QCOMPARE(b, minor);
    QCOMPARE(c, patch);
}

void tst_VersionProbe::readsThreeQueries()
{
    ScriptedLink link;
    link.reply("norvane get system version", "norvane set system version 1.21.3");
    link.reply("norvane get system type", "norvane set system type PORTAFRAME");
    link.reply("norvane get system firmware_version", "norvane set system firmware_version 2.0.1");
    BackendVersions versions;
    QStringList problems;
    QVERIFY(VersionProbe::read(&link, &versions, &problems));
    QVERIFY(problems.isEmpty());
    QCOMPARE(link.written(), QList<QByteArray>({"norvane get system version", "norvane get system type",
                                                "norvane get system firmware_version"}));
    QCOMPARE(versions.major, 1);
    QCOMPARE(versions.minor, 21);
    QCOMPARE(versions.patch, 3);
    QCOMPARE(versions.system_type, QStringLiteral("PORTAFRAME"));
    QCOMPARE(versions.firmware_major, 2);
    QCOMPARE(versions.firmware_patch, 1);
    QCOMPARE(versions.frontend_major, NORVANE_HOST_VERSION_MAJOR);
}

void tst_VersionProbe::keepsWhatItCannotRead()
{
    ScriptedLink link;
    link.reply("norvane get system version", "norvane set system version one point two");
    link.reply("norvane get system type", "norvane err 4 \"not available\"");
    link.reply("norvane get system firmware_version", "norvane set system firmware_version 2.0.1");
    BackendVersions versions;
    versions.major = 7;
    versions.system_type = QStringLiteral("before");
    QStringList problems;
    QVERIFY(!VersionProbe::read(&link, &versions, &problems));
    QCOMPARE(versions.major, 7);
    QCOMPARE(versions.system_type, QStringLiteral("before"));
    QCOMPARE(versions.firmware_major, 2);
    QCOMPARE(problems.size(), 2);
    QVERIFY(problems.at(0).contains("\"one point two\""));
    QVERIFY2(problems.at(1).contains("error 4: not available"), qPrintable(problems.at(1)));
}

QTEST_MAIN(tst_VersionProbe)
#include "tst_VersionProbe.moc"
