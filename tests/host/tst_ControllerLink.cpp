#include <QtTest>

#include <QTemporaryDir>

#include "ModalDialogHelper.h"
#include "ScriptedLink.h"
#include "host/MessageHub.h"
#include "module/MessageReceiver.h"

namespace {

constexpr char Canary = char(0x5A);

// A reply buffer of the size callers declare, followed by guard bytes that
// nothing may ever write.
struct GuardedBuffer
{
    char bytes[IOManager::ReplyCapacity + 32];
    GuardedBuffer() { std::fill(std::begin(bytes), std::end(bytes), Canary); }
    char* data() { return bytes; }
    bool untouched() const
    {
        return std::all_of(std::begin(bytes), std::end(bytes), [](char c) { return c == Canary; });
    }
    bool guard_intact() const
    {
        return std::all_of(bytes + IOManager::ReplyCapacity, std::end(bytes),
                           [](char c) { return c == Canary; });
    }
};

QByteArray answer(const QByteArray& path, const QByteArray& value)
{
    return "norvane set " + path + ' ' + value;
}

} // namespace

class tst_ControllerLink : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void requestLines_data();
    void requestLines();
    void integers_data();
    void integers();
    void reals_data();
    void reals();
    void flags_data();
    void flags();
    void numberLists_data();
    void numberLists();
    void integerLists();
    void unusableCountIsRefused_data();
    void unusableCountIsRefused();
    void textCapacity_data();
    void textCapacity();
    void settings_data();
    void settings();
    void rawCommandReturnsWholeReply_data();
    void rawCommandReturnsWholeReply();
    void refusedRequestsSendNothing_data();
    void refusedRequestsSendNothing();
    void asynchronousCommand();
    void asynchronousCommandTooLong();
    void uncollectedReplyIsDiscarded();
    void completionWithoutCommand();
    void asynchronousModeLastsOneCommand();
    void timeoutHoldsUntilEventLoop();
    void roundTripsCountLinesSent();
    void traceHasEveryExchange();
    void messagesGoToHub();
};

void tst_ControllerLink::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_ControllerLink::requestLines_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("query with index") << 0 << QByteArray("norvane get inertial sensor d07");
    QTest::newRow("setting with real") << 1 << QByteArray("norvane set inertial frequency 100.000000");
    QTest::newRow("raw command as it stands") << 2 << QByteArray("norvane inertial scan_sensors");
    QTest::newRow("setting with text") << 3
                                       << QByteArray("norvane set body desc standard b03 \"left hand\"");
}

void tst_ControllerLink::requestLines()
{
    QFETCH(int, operation);
    QFETCH(QByteArray, line);
    ScriptedLink link;
    char reply[IOManager::ReplyCapacity];
    switch (operation) {
    case 0: link.get_string(reply, "inertial sensor d%02d", 7); break;
    case 1: link.set_value("inertial frequency %f", 100.0); break;
    case 2: link.send_command(reply, "norvane inertial scan_sensors"); break;
    case 3: link.set_value("body desc standard b%02d \"%s\"", 3, "left hand"); break;
    }
    QCOMPARE(link.written(), QList<QByteArray>{line});
}

void tst_ControllerLink::integers_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("value");

    const QByteArray path = "inertial number_of_sensors";
    QTest::newRow("plain") << answer(path, "5") << 0 << 5;
    QTest::newRow("blanks around") << answer(path, " 7 ") << 0 << 7;
    QTest::newRow("negative") << answer(path, "-1") << 0 << -1;
    QTest::newRow("trailing garbage") << answer(path, "5x") << int(ControllerLink::MalformedReply) << -99;
    QTest::newRow("first of two numbers") << answer(path, "5 6") << 0 << 5;
    QTest::newRow("beyond int") << answer(path, "2147483648") << int(ControllerLink::MalformedReply) << -99;
    QTest::newRow("empty value") << QByteArray("norvane set inertial number_of_sensors")
                                 << int(ControllerLink::MalformedReply) << -99;
    QTest::newRow("other path") << answer("inertial number_of_transceivers", "2")
                                << int(ControllerLink::MalformedReply) << -99;
    QTest::newRow("path prefix only") << answer("inertial number_of_sensorsX", "2")
                                      << int(ControllerLink::MalformedReply) << -99;
    QTest::newRow("error reply") << QByteArray("norvane err 12 \"no such parameter\"")
                                 << int(ControllerLink::ControllerError) << -99;
    QTest::newRow("garbage") << QByteArray("\x01\x02garbage") << int(ControllerLink::MalformedReply) << -99;
}

void tst_ControllerLink::integers()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, result);
    QFETCH(int, value);
    ScriptedLink link;
    link.reply("norvane get inertial number_of_sensors", reply);
    int got = -99;
    QCOMPARE(link.get_int(&got, "inertial number_of_sensors"), result);
    QCOMPARE(got, value);
    QCOMPARE(QByteArray(link.last_error()).isEmpty(), result == 0);
}

void tst_ControllerLink::reals_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("result");
    QTest::addColumn<double>("expected");

    QTest::newRow("fraction") << QByteArray("0.999") << 0 << 0.999;
    QTest::newRow("exponent") << QByteArray("1e3") << 0 << 1000.0;
    QTest::newRow("integer") << QByteArray("42") << 0 << 42.0;
    QTest::newRow("first of two") << QByteArray("27.0 36.0") << 0 << 27.0;
    QTest::newRow("first is bad") << QByteArray("27.0x 36.0") << int(ControllerLink::MalformedReply) << -1.0;
    QTest::newRow("not a number") << QByteArray("nan") << int(ControllerLink::MalformedReply) << -1.0;
    QTest::newRow("infinite") << QByteArray("inf") << int(ControllerLink::MalformedReply) << -1.0;
    QTest::newRow("comma decimal") << QByteArray("0,5") << int(ControllerLink::MalformedReply) << -1.0;
    QTest::newRow("word") << QByteArray("warm") << int(ControllerLink::MalformedReply) << -1.0;
}

void tst_ControllerLink::reals()
{
    QFETCH(QByteArray, value);
    QFETCH(int, result);
    QFETCH(double, expected);
    ScriptedLink link;
    link.reply("norvane get inertial warmup_status", answer("inertial warmup_status", value));
    double got = -1.0;
    QCOMPARE(link.get_double(&got, "inertial warmup_status"), result);
    QCOMPARE(got, expected);
}

void tst_ControllerLink::flags_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("expected");   // -1: untouched

    QTest::newRow("yes") << QByteArray("yes") << 0 << 1;
    QTest::newRow("no") << QByteArray("no") << 0 << 0;
    QTest::newRow("capital") << QByteArray("Yes") << int(ControllerLink::MalformedReply) << -1;
    QTest::newRow("none") << QByteArray("none") << int(ControllerLink::MalformedReply) << -1;
    QTest::newRow("number") << QByteArray("1") << int(ControllerLink::MalformedReply) << -1;
}

void tst_ControllerLink::flags()
{
    QFETCH(QByteArray, value);
    QFETCH(int, result);
    QFETCH(int, expected);
    ScriptedLink link;
    const QByteArray path = "body calibrated standard b01";
    link.reply("norvane get " + path, answer(path, value));
    // Start from the opposite of what is expected so that a write shows.
    bool got = expected != 1;
    const bool before = got;
    QCOMPARE(link.get_bool(&got, "body calibrated standard b%02d", 1), result);
    QCOMPARE(got, expected < 0 ? before : expected == 1);
}

void tst_ControllerLink::numberLists_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("result");

    QTest::newRow("two numbers") << QByteArray("1.0 1000.0") << 0;
    QTest::newRow("more than asked") << QByteArray("1.0 1000.0 7") << 0;
    QTest::newRow("repeated blanks") << QByteArray(" 1.0   1000.0 ") << 0;
    QTest::newRow("one missing") << QByteArray("1.0") << int(ControllerLink::MalformedReply);
    QTest::newRow("second bad") << QByteArray("1.0 lots") << int(ControllerLink::MalformedReply);
    QTest::newRow("empty") << QByteArray() << int(ControllerLink::MalformedReply);
}

void tst_ControllerLink::numberLists()
{
    QFETCH(QByteArray, value);
    QFETCH(int, result);
    ScriptedLink link;
    link.reply("norvane get inertial limit frequency", answer("inertial limit frequency", value));
    double limits[2] = {-5.0, -5.0};
    QCOMPARE(link.get_doubles(limits, 2, "inertial limit frequency"), result);
    if (result == 0) {
        QCOMPARE(limits[0], 1.0);
        QCOMPARE(limits[1], 1000.0);
    } else {
        // Never half filled.
        QCOMPARE(limits[0], -5.0);
        QCOMPARE(limits[1], -5.0);
    }
}

void tst_ControllerLink::integerLists()
{
    ScriptedLink link;
    link.reply("norvane get a", answer("a", "3 4"));
    link.reply("norvane get b", answer("b", "3 4.5"));
    int values[2] = {0, 0};
    QCOMPARE(link.get_ints(values, 2, "a"), 0);
    QCOMPARE(values[0], 3);
    QCOMPARE(values[1], 4);
    QCOMPARE(link.get_ints(values, 2, "b"), int(ControllerLink::MalformedReply));
    QCOMPARE(values[0], 3);
}

void tst_ControllerLink::unusableCountIsRefused_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -3;
    QTest::newRow("two billion") << 2000000000;
}

void tst_ControllerLink::unusableCountIsRefused()
{
    QFETCH(int, count);
    ScriptedLink link;
    double value = 0;
    QCOMPARE(link.get_doubles(&value, count, "inertial limit frequency"),
             int(ControllerLink::InvalidRequest));
    int number = 0;
    QCOMPARE(link.get_ints(&number, count, "inertial limit frequency"),
             int(ControllerLink::InvalidRequest));
    QVERIFY(link.written().isEmpty());
    QVERIFY(QByteArray(link.last_error()).contains("values"));
}

void tst_ControllerLink::textCapacity_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("result");

    QTest::newRow("empty") << 0 << 0;
    QTest::newRow("fits exactly") << IOManager::ReplyCapacity - 1 << 0;
    QTest::newRow("one too many") << int(IOManager::ReplyCapacity) << int(ControllerLink::ReplyTooLong);
    QTest::newRow("far too long") << 5000 << int(ControllerLink::ReplyTooLong);
}

void tst_ControllerLink::textCapacity()
{
    QFETCH(int, length);
    QFETCH(int, result);
    ScriptedLink link;
    const QByteArray text(length, 'v');
    link.reply("norvane get body desc standard b01", answer("body desc standard b01", text));
    GuardedBuffer buffer;
    QCOMPARE(link.get_string(buffer.data(), "body desc standard b%02d", 1), result);
    QVERIFY(buffer.guard_intact());
    if (result == 0)
        QCOMPARE(QByteArray(buffer.data()), text);
    else
        QVERIFY2(buffer.untouched(), "a failed reply must write nothing");
}

void tst_ControllerLink::settings_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("error");

    QTest::newRow("acknowledged") << QByteArray("norvane ok") << 0 << QString();
    QTest::newRow("ok with trailing blank") << QByteArray("norvane ok ")
                                            << int(ControllerLink::MalformedReply)
                                            << QString("norvane ok");
    QTest::newRow("refused with text") << QByteArray("norvane err 3 \"value out of range\"")
                                       << int(ControllerLink::ControllerError)
                                       << QString("error 3: value out of range");
    QTest::newRow("refused without text") << QByteArray("norvane err 17")
                                          << int(ControllerLink::ControllerError)
                                          << QString("error 17");
    QTest::newRow("echo instead of ack") << QByteArray("norvane set inertial warmup yes")
                                         << int(ControllerLink::MalformedReply) << QString("norvane ok");
}

void tst_ControllerLink::settings()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, result);
    QFETCH(QString, error);
    ScriptedLink link;
    link.reply("norvane set inertial warmup yes", reply);
    QCOMPARE(link.set_value("inertial warmup yes"), result);
    QVERIFY2(QString::fromLocal8Bit(link.last_error()).contains(error), link.last_error());
}

void tst_ControllerLink::rawCommandReturnsWholeReply_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("result");

    QTest::newRow("acknowledged") << QByteArray("norvane ok") << 0;
    QTest::newRow("value of a get form")
        << QByteArray("norvane set cal step_pause inertial_twostep s01 yes 5") << 0;
    QTest::newRow("error text for the caller")
        << QByteArray("norvane err 5 \"marker lost\"") << int(ControllerLink::ControllerError);
}

void tst_ControllerLink::rawCommandReturnsWholeReply()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, result);
    ScriptedLink link;
    link.reply("norvane get status err", reply);
    GuardedBuffer buffer;
    QCOMPARE(link.send_command(buffer.data(), "norvane get status err"), result);
    QCOMPARE(QByteArray(buffer.data()), reply);
    QVERIFY(buffer.guard_intact());
}

void tst_ControllerLink::refusedRequestsSendNothing_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("not a command") << QByteArray("inertial scan_sensors");
    QTest::newRow("line break inside") << QByteArray("norvane tracking start\nnorvane tracking stop");
    QTest::newRow("carriage return") << QByteArray("norvane tracking start\r");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("longer than a line may be")
        << QByteArray("norvane ") + QByteArray(ControllerLink::MaxLineLength, 'x');
}

void tst_ControllerLink::refusedRequestsSendNothing()
{
    QFETCH(QByteArray, command);
    ScriptedLink link;
    GuardedBuffer buffer;
    QCOMPARE(link.send_command(buffer.data(), "%s", command.constData()),
             int(ControllerLink::InvalidRequest));
    QVERIFY(link.written().isEmpty());
    QVERIFY(buffer.untouched());
    QCOMPARE(link.round_trips(), 0L);
}

void tst_ControllerLink::asynchronousCommand()
{
    ScriptedLink link;
    link.reply("norvane inertial scan_sensors", "norvane ok");
    GuardedBuffer buffer;
    link.set_timeout(true, 20000, true);
    QCOMPARE(link.current_timeout(), 20000);
    QCOMPARE(link.send_command(buffer.data(), "norvane inertial scan_sensors"),
             int(ControllerLink::Pending));
    QVERIFY(link.is_blocked());
    QVERIFY(buffer.untouched());
    QCOMPARE(link.written(), QList<QByteArray>{"norvane inertial scan_sensors"});

    int status = 0;
    QCOMPARE(link.wait_for_completion(&status), 0);
    QCOMPARE(status, 0);
    QCOMPARE(QByteArray(buffer.data()), QByteArray("norvane ok"));
    QVERIFY(!link.is_blocked());
    QCOMPARE(link.round_trips(), 1L);
}

void tst_ControllerLink::asynchronousCommandTooLong()
{
    ScriptedLink link;
    link.reply("norvane inertial scan_sensors", QByteArray(400, 'k'));
    GuardedBuffer buffer;
    link.set_timeout(true, 20000, true);
    QCOMPARE(link.send_command(buffer.data(), "norvane inertial scan_sensors"),
             int(ControllerLink::Pending));
    int status = 0;
    QCOMPARE(link.wait_for_completion(&status), int(ControllerLink::ReplyTooLong));
    QCOMPARE(status, int(ControllerLink::ReplyTooLong));
    QVERIFY(buffer.untouched());
}

void tst_ControllerLink::uncollectedReplyIsDiscarded()
{
    ScriptedLink link;
    link.reply("norvane inertial scan_sensors", "norvane ok");
    link.reply("norvane get inertial number_of_scanned_sensors",
               answer("inertial number_of_scanned_sensors", "3"));
    GuardedBuffer buffer;
    link.set_timeout(true, 20000, true);
    QCOMPARE(link.send_command(buffer.data(), "norvane inertial scan_sensors"),
             int(ControllerLink::Pending));
    int count = 0;
    QCOMPARE(link.get_int(&count, "inertial number_of_scanned_sensors"), 0);
    QCOMPARE(count, 3);
    QVERIFY2(buffer.untouched(), "the abandoned reply must not be written late");
    QVERIFY(!link.is_blocked());
    int status = 0;
    QCOMPARE(link.wait_for_completion(&status), int(ControllerLink::InvalidRequest));
}

void tst_ControllerLink::completionWithoutCommand()
{
    ScriptedLink link;
    int status = 0;
    QCOMPARE(link.wait_for_completion(&status), int(ControllerLink::InvalidRequest));
    QCOMPARE(status, int(ControllerLink::InvalidRequest));
    QVERIFY(link.written().isEmpty());
}

void tst_ControllerLink::asynchronousModeLastsOneCommand()
{
    ScriptedLink link;
    link.reply("norvane inertial scan_sensors", "norvane ok");
    char reply[IOManager::ReplyCapacity];
    link.set_timeout(true, 20000, true);
    QCOMPARE(link.send_command(reply, "norvane inertial scan_sensors"), int(ControllerLink::Pending));
    int status = 0;
    QCOMPARE(link.wait_for_completion(&status), 0);
    QCOMPARE(link.send_command(reply, "norvane inertial scan_sensors"), 0);

    // Asked for but not used by its handler: gone once back in the event loop.
    link.set_timeout(true, 20000, true);
    QCoreApplication::processEvents();
    QCOMPARE(link.send_command(reply, "norvane inertial scan_sensors"), 0);
}

void tst_ControllerLink::timeoutHoldsUntilEventLoop()
{
    ScriptedLink link;
    link.reply("norvane set inertial warmup yes", "norvane ok");
    QCOMPARE(link.current_timeout(), int(ControllerLink::DefaultTimeoutMs));
    link.set_timeout(false, 10000, true);
    QCOMPARE(link.set_value("inertial warmup yes"), 0);
    QCOMPARE(link.set_value("inertial warmup yes"), 0);
    QCOMPARE(link.current_timeout(), 10000);
    QCoreApplication::processEvents();
    QCOMPARE(link.current_timeout(), int(ControllerLink::DefaultTimeoutMs));
    link.set_default_timeout(1500);
    QCOMPARE(link.current_timeout(), 1500);
}

void tst_ControllerLink::roundTripsCountLinesSent()
{
    ScriptedLink link;
    link.reply("norvane get inertial available", answer("inertial available", "yes"));
    QSignalSpy spy(&link, &ControllerLink::round_trips_changed);
    char reply[IOManager::ReplyCapacity];
    link.get_string(reply, "inertial available");
    link.get_string(reply, "inertial available");
    link.get_string(reply, "inertial unknown");          // went out, no reply
    link.send_command(reply, "tracking start");          // refused, never sent
    link.refuse_writes(true);
    link.get_string(reply, "inertial available");        // could not go out
    QCOMPARE(link.round_trips(), 3L);
    QCOMPARE(spy.count(), 3);
}

void tst_ControllerLink::traceHasEveryExchange()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath("trace.txt");
    ScriptedLink link;
    QString error;
    QVERIFY2(link.open_trace(path, &error), qPrintable(error));
    link.reply("norvane get inertial available", answer("inertial available", "yes"));
    QSignalSpy spy(&link, &ControllerLink::traced);
    char reply[IOManager::ReplyCapacity];
    link.get_string(reply, "inertial available");
    link.get_string(reply, "inertial frequency");
    link.send_command(reply, "tracking start");

    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(0).at(1).toBool(), false);
    QCOMPARE(spy.at(1).at(1).toBool(), true);
    const QString first = spy.at(0).at(0).toString();
    QVERIFY2(first.contains("norvane get inertial available  ->  norvane set inertial available yes"),
             qPrintable(first));
    QVERIFY2(QRegularExpression(" \\d+\\.\\d{3} ms ").match(first).hasMatch(), qPrintable(first));
    QVERIFY(spy.at(1).at(0).toString().contains("(no reply)  [no reply]"));
    QVERIFY(spy.at(2).at(0).toString().contains("starts with \"norvane\""));

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), first);

    QVERIFY(!link.open_trace(dir.filePath("missing/folder/trace.txt"), &error));
    QVERIFY(error.contains("missing/folder"));
}

namespace {

struct RecordingReceiver : MessageReceiver
{
    QStringList texts;
    int transmit_message(int, const char*, const char* text) override
    {
        texts << QString::fromLatin1(text);
        return 0;
    }
};

} // namespace

void tst_ControllerLink::messagesGoToHub()
{
    ScriptedLink link;
    MessageHub hub;
    link.set_message_hub(&hub);
    RecordingReceiver receiver;
    link.register_receiver("InertialModule", &receiver);
    QSignalSpy standard(&hub, &MessageHub::standard_message);
    link.show_message("standard", "Norvane", 1, "Could not get warmup status");
    link.show_message("InertialModule", "HybridBodyCalibration", 1, "reopen");
    link.unregister_receiver("InertialModule", &receiver);
    link.show_message("InertialModule", "HybridBodyCalibration", 1, "reopen");

    QCOMPARE(standard.count(), 1);
    QCOMPARE(standard.at(0).at(2).toString(), QStringLiteral("Could not get warmup status"));
    QCOMPARE(receiver.texts, QStringList{"reopen"});
    QVERIFY(link.written().isEmpty());
}

QTEST_MAIN(tst_ControllerLink)
#include "tst_ControllerLink.moc"
