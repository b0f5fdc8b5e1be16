#include <QtTest>

#include "ModalDialogHelper.h"
#include "host/HostOptions.h"

class tst_HostOptions : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void parse_data();
    void parse();
    void defaults();
};

void tst_HostOptions::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_HostOptions::parse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");   // empty: parses
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::addColumn<double>("speed");

    QTest::newRow("tcp controller") << QStringList{"--controller", "127.0.0.1:4000"} << "" << "127.0.0.1" << 4000 << 1.0;
    QTest::newRow("tcp with equals") << QStringList{"--controller=[::1]:5000"} << "" << "::1" << 5000 << 1.0;
    QTest::newRow("fast simulator") << QStringList{"--speed", "60", "--scenario", "old.json"} << "" << "" << 0 << 60.0;
    QTest::newRow("fractional speed") << QStringList{"--speed", "0.5"} << "" << "" << 0 << 0.5;
    QTest::newRow("bad address") << QStringList{"--controller", "localhost"} << "wants host:port" << "" << 0 << 1.0;
    QTest::newRow("scenario with tcp") << QStringList{"--controller", "h:1", "--scenario", "a.json"}
                                       << "for the embedded simulator" << "" << 0 << 1.0;
    QTest::newRow("speed with tcp") << QStringList{"--controller", "h:1", "--speed", "2"}
                                    << "for the embedded simulator" << "" << 0 << 1.0;
    QTest::newRow("zero speed") << QStringList{"--speed", "0"} << "--speed wants" << "" << 0 << 1.0;
    QTest::newRow("absurd speed") << QStringList{"--speed", "1e9"} << "--speed wants" << "" << 0 << 1.0;
    QTest::newRow("speed not a number") << QStringList{"--speed", "fast"} << "--speed wants" << "" << 0 << 1.0;
    QTest::newRow("empty tour folder") << QStringList{"--tour="} << "--tour wants a value" << "" << 0 << 1.0;
    QTest::newRow("unknown option") << QStringList{"--colour"} << "colour" << "" << 0 << 1.0;
    QTest::newRow("stray argument") << QStringList{"extra"} << "Unexpected argument: extra" << "" << 0 << 1.0;
    QTest::newRow("missing value") << QStringList{"--trace"} << "trace" << "" << 0 << 1.0;
}

void tst_HostOptions::parse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    QFETCH(QString, host);
    QFETCH(int, port);
    QFETCH(double, speed);
    HostOptions options;
    const bool ok = options.parse(QStringList{"norvane-host"} + arguments);
    QVERIFY2(ok == error.isEmpty(), qPrintable(options.error()));
    if (!ok) {
        QVERIFY2(options.error().contains(error), qPrintable(options.error()));
        return;
    }
    QCOMPARE(options.uses_tcp(), !host.isEmpty());
    QCOMPARE(options.controller_host, host);
    QCOMPARE(int(options.controller_port), port);
    QCOMPARE(options.speed, speed);
}

void tst_HostOptions::defaults()
{
    HostOptions options;
    QVERIFY(options.parse({"norvane-host", "--plugin-dir", "/opt/modules", "--trace", "t.txt", "--tour", "pics"}));
    QVERIFY(!options.uses_tcp());
    QCOMPARE(options.plugin_dir, QStringLiteral("/opt/modules"));
    QCOMPARE(options.trace, QStringLiteral("t.txt"));
    QCOMPARE(options.tour_dir, QStringLiteral("pics"));
    QVERIFY(options.scenario.isEmpty());
    QVERIFY(!options.help_requested());
    QVERIFY(options.help_text().contains("--controller <host:port>"));
}

QTEST_MAIN(tst_HostOptions)
#include "tst_HostOptions.moc"
