#include <QtTest>

#include <cstring>

#include "FakeController.h"

// The dialog tests stand on the fake's semantics: these are the ones a
// mistake would silently turn into passing tests.
class tst_FakeController : public QObject
{
    Q_OBJECT

private slots:
    void unscriptedLineFails();
    void sequenceRepeatsLast();
    void asynchronousCommand();
    void replyBeyondCapacityFails();
    void statefulSetting();
    void typedQueries_data();
    void typedQueries();
};

void tst_FakeController::unscriptedLineFails()
{
    FakeController fake;
    char reply[IOManager::ReplyCapacity] = "untouched";
    QVERIFY(fake.get_string(reply, "inertial sensor d%02d", 3) != 0);
    QCOMPARE(QByteArray(reply), QByteArray("untouched"));
    QCOMPARE(fake.unexpected(), QList<QByteArray>({"inertial sensor d03"}));
}

void tst_FakeController::sequenceRepeatsLast()
{
    FakeController fake;
    fake.replies("inertial warmup_status", {"0.1", "0.5"});
    double value = 0;
    QList<double> seen;
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(fake.get_double(&value, "inertial warmup_status"), 0);
        seen << value;
    }
    QCOMPARE(seen, QList<double>({0.1, 0.5, 0.5}));
    QCOMPARE(fake.round_trips(), 3L);
}

void tst_FakeController::asynchronousCommand()
{
    FakeController fake;
    fake.reply("norvane inertial scan_sensors", "norvane ok");
    fake.reply("norvane tracking start", "norvane ok");
    char reply[IOManager::ReplyCapacity] = "";
    fake.set_timeout(true, 20000, true);
    QCOMPARE(fake.send_command(reply, "norvane inertial scan_sensors"), 1);
    QCOMPARE(QByteArray(reply), QByteArray());
    int status = 0;
    QCOMPARE(fake.wait_for_completion(&status), 0);
    QCOMPARE(QByteArray(reply), QByteArray("norvane ok"));
    // The separate wait applies to one command only.
    QCOMPARE(fake.send_command(reply, "norvane tracking start"), 0);
    QCOMPARE(fake.calls().at(1).wait_separately, true);
    QCOMPARE(fake.calls().at(1).timeout_ms, 20000);
    QCOMPARE(fake.calls().last().wait_separately, false);
}

void tst_FakeController::replyBeyondCapacityFails()
{
    FakeController fake;
    fake.reply("body desc standard b01", QByteArray(IOManager::ReplyCapacity, 'x'));
    fake.reply("body desc standard b02", QByteArray(IOManager::ReplyCapacity - 1, 'x'));
    char reply[IOManager::ReplyCapacity + 8];
    std::memset(reply, '#', sizeof reply);
    QVERIFY(fake.get_string(reply, "body desc standard b01") != 0);
    QCOMPARE(reply[0], '#');
    QCOMPARE(fake.get_string(reply, "body desc standard b02"), 0);
    QCOMPARE(int(qstrlen(reply)), IOManager::ReplyCapacity - 1);
    QCOMPARE(reply[IOManager::ReplyCapacity], '#');
}

void tst_FakeController::statefulSetting()
{
    FakeController fake;
    fake.set_stateful(true);
    fake.reply("inertial frequency", "50.0");
    QCOMPARE(fake.set_value("inertial frequency %f", 100.0), 0);
    double value = 0;
    QCOMPARE(fake.get_double(&value, "inertial frequency"), 0);
    QCOMPARE(value, 100.0);
    QVERIFY(fake.set_value("inertial warmup yes") != 0);
    QCOMPARE(fake.unexpected(), QList<QByteArray>({"inertial warmup yes"}));
}

void tst_FakeController::typedQueries_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("intOk");
    QTest::addColumn<bool>("boolOk");

    QTest::newRow("number") << QByteArray("12") << true << false;
    QTest::newRow("yes") << QByteArray("yes") << false << true;
    QTest::newRow("garbage") << QByteArray("12abc") << false << false;
    QTest::newRow("two billion") << QByteArray("2000000000") << true << false;
    QTest::newRow("beyond int") << QByteArray("99999999999") << false << false;
}

void tst_FakeController::typedQueries()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, intOk);
    QFETCH(bool, boolOk);
    FakeController fake;
    fake.reply("x", answer);
    int number = -7;
    bool flag = false;
    QCOMPARE(fake.get_int(&number, "x") == 0, intOk);
    if (!intOk)
        QCOMPARE(number, -7);
    QCOMPARE(fake.get_bool(&flag, "x") == 0, boolOk);
}

QTEST_APPLESS_MAIN(tst_FakeController)
#include "tst_FakeController.moc"
