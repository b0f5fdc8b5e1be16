#include <QtTest>

#include <QTemporaryDir>
#include <QThread>

#include "ScriptedLink.h"
#include "host/MessageHub.h"
#include "host/TcpLink.h"
#include "module/MessageReceiver.h"

// The link's rules for every IOManager call on a scripted transport; an
// outage failing every call at once until a probe from the event loop finds
// the controller again. The simulator's faults over TCP: tst_SimServer;
// in-process: tst_HostileController.
class tst_ControllerLink : public QObject
{
    Q_OBJECT

private slots:
    void replies_data();
    void replies();
    void asynchronous_command_and_timeouts();
    void outage_and_notices();
    void trace();
    void messages_by_receiver_name();
    void parse_address_data();
    void parse_address();
};

namespace {

constexpr int Unset = -7777;

// Calls what `call` names ("int", "int PATH", "ints 2", "string", "set",
// "command LINE", ...) on the path "p" or the setting "p yes"; shows what the
// caller got: its value(s), or "-" when nothing was written.
QString perform(ControllerLink& link, const QByteArray& call, int* result)
{
    const QByteArray op = call.split(' ').first();
    const QByteArray arg = call.mid(op.size() + 1);
    QByteArray text(IOManager::ReplyCapacity + 16, 'Z');
    int ints[2] = {Unset, Unset};
    double reals[2] = {Unset, Unset};
    bool flags[2] = {false, true};
    if (op == "int" || op == "ints")
        *result = op == "int" ? link.get_int(ints, "%s", arg.isEmpty() ? "p" : arg.constData()) : link.get_ints(ints, arg.toInt(), "p");
    else if (op == "double" || op == "doubles")
        *result = op == "double" ? link.get_double(reals, "p") : link.get_doubles(reals, arg.toInt(), "p");
    else if (op == "bool")
        *result = link.get_bool(&flags[0], "%s", "p") | link.get_bool(&flags[1], "p");
    else if (op == "string")
        *result = link.get_string(text.data(), "%s", "p");
    else if (op == "set")
        *result = link.set_value("p %s", "yes");
    else
        *result = link.send_command(text.data(), "%s", arg.constData());

    QStringList got;
    for (int i = 0; i < qBound(1, arg.toInt(), 2); ++i)
        got << (ints[i] != Unset ? QString::number(ints[i]) : reals[i] != Unset ? QString::number(reals[i]) : "");
    if (!text.endsWith(QByteArray(16, 'Z')))
        return QStringLiteral("overrun");
    if (text.at(0) != 'Z')
        return QString::fromLatin1(text.constData());
    if (op == "bool" && flags[0] == flags[1])
        return QLatin1String(flags[0] ? "yes" : "no");
    return got.join(' ').trimmed().isEmpty() ? QStringLiteral("-") : got.join(' ');
}

} // namespace

void tst_ControllerLink::replies_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<QByteArray>("reply");   // "=V" is "norvane set p V"; empty: none comes
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("got");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const char* call, const QByteArray& reply, int result, const QString& got,
                        const QByteArray& error = "") {
        QTest::newRow(name) << QByteArray(call) << reply << result << got << QString::fromLatin1(error);
    };
    using L = ControllerLink;
    row("int", "int", "= -5 ", 0, "-5");
    row("first of two ints", "int", "=5 6", 0, "5");
    row("int with garbage", "int", "=5x", L::MalformedReply, "-", "\"5x\" is not a number");
    row("garbage shown up to 60 characters", "int", "=" + QByteArray(61, 'x'), L::MalformedReply, "-",
        "\"" + QByteArray(60, 'x') + "...\" is not");
    row("garbage of 60 characters shown whole", "int", "=" + QByteArray(60, 'x'), L::MalformedReply, "-",
        "x\" is not a number");
    row("no value", "int", "norvane set p", L::MalformedReply, "-", "expected a number, got \"\"");
    row("reply to another path", "int", "norvane set q 2", L::MalformedReply, "-", "expected \"norvane set p ...\"");
    row("reply to a longer path", "int", "norvane set pX 2", L::MalformedReply, "-");
    row("error reply", "int", "norvane err 12 \"no such parameter\"", L::ControllerError, "-",
        "the controller refused the request (error 12: no such parameter)");
    row("error reply without text", "int", "norvane err 17", L::ControllerError, "-", "(error 17)");
    row("not even an error reply", "int", "norvane err", L::ControllerError, "-", "(norvane err)");
    row("no reply", "int", "", L::TimedOut, "-", "no reply");
    row("first of two reals", "double", "=27.5 36.0", 0, "27.5");
    row("infinite", "double", "=inf", L::MalformedReply, "-");
    row("yes", "bool", "=yes", 0, "yes");
    row("no", "bool", "= no", 0, "no");
    row("capital Yes", "bool", "=Yes", L::MalformedReply, "-", "\"Yes\" is neither yes nor no");
    row("two reals", "doubles 2", "=1.0 1000.0", 0, "1 1000");
    row("a real missing", "doubles 2", "=1.0", L::MalformedReply, "-", "expected 2 numbers, got \"1.0\"");
    row("second real bad: none written", "doubles 2", "=1.0 lots", L::MalformedReply, "-");
    row("two ints", "ints 2", "=3 4", 0, "3 4");
    row("no values asked", "doubles 0", "=1", L::InvalidRequest, "-", "cannot read 0 values at once");
    row("most values", "ints 1024", "=1 2", L::MalformedReply, "-", "expected 1024 numbers");
    row("too many values", "ints 1025", "=1", L::InvalidRequest, "-");
    row("empty text", "string", "=", 0, "");
    row("text that just fits", "string", "=" + QByteArray(255, 'v'), 0, QString(255, 'v'));
    row("text one too long", "string", "=" + QByteArray(256, 'v'), L::ReplyTooLong, "-",
        "reply of 256 characters does not fit the 256-byte buffer");
    row("NUL inside", "string", QByteArray("=yes\0junk", 9), L::MalformedReply, "-",
        "reply holds the byte 0x00 at 17, which is not printable ASCII");
    row("escape sequence", "string", "=\x1b[31mred", L::MalformedReply, "-", "byte 0x1b at 14");
    row("high byte", "string", "=caf\xe9", L::MalformedReply, "-", "byte 0xe9");
    row("tab", "int", "=1\t2", L::MalformedReply, "-", "byte 0x09");
    row("error reply with a control character", "set", "norvane err 3 \"\x07\"", L::MalformedReply, "-");
    row("most sensors", "int inertial number_of_sensors", "=256", 0, "256");
    row("absurd count of sensors", "int inertial number_of_sensors", "=2147483647", L::MalformedReply, "-",
        "a count of 2147483647 is beyond the plausible 0 to 256");
    row("negative count", "int inertial number_of_sensors", "=-1", L::MalformedReply, "-");
    row("scan not finished", "int inertial number_of_scanned_sensors", "=-1", 0, "-1");
    row("scan count below -1", "int inertial number_of_scanned_sensors", "=-2", L::MalformedReply, "-");
    row("absurd count of channels", "int inertial number_of_transceiver_available_radio_channels NRV RD2 '1'",
        "=99999", L::MalformedReply, "-", "0 to 128");
    row("absurd count of anything", "int wand number_of_things", "=1025", L::MalformedReply, "-", "0 to 1024");
    row("not a count", "int inertial frequency", "=99999", 0, "99999");
    row("setting", "set", "norvane ok", 0, "-");
    row("setting: ok and more", "set", "norvane ok ", L::MalformedReply, "-", "expected \"norvane ok\"");
    row("setting refused", "set", "norvane err 3 \"out of range\"", L::ControllerError, "-", "(error 3: out of range)");
    row("command", "command norvane go", "norvane set p yes 5", 0, "norvane set p yes 5");
    row("command refused: text for the caller", "command norvane go", "norvane err 5 \"marker lost\"",
        L::ControllerError, "norvane err 5 \"marker lost\"");
    row("not a command", "command inertial go", "", L::InvalidRequest, "-", "a command starts with \"norvane\"");
    row("line break inside", "command norvane a\nnorvane b", "", L::InvalidRequest, "-", "request holds a line break");
    row("longest line", "command norvane " + QByteArray(L::MaxLineLength - 8, 'x'), "norvane ok", 0, "norvane ok");
    row("line too long", "command norvane " + QByteArray(L::MaxLineLength - 7, 'x'), "", L::InvalidRequest, "-",
        "request of 65537 bytes is too long");
}

void tst_ControllerLink::replies()
{
    QFETCH(QByteArray, call);
    QFETCH(QByteArray, reply);
    QFETCH(int, result);
    QFETCH(QString, got);
    QFETCH(QString, error);
    ScriptedLink link;
    const QByteArray path = call.startsWith("int ") ? call.mid(4) : QByteArray("p");
    const QByteArray request = call.startsWith("command ") ? call.mid(8)
                               : call == "set"              ? QByteArray("norvane set p yes")
                                                            : "norvane get " + path;
    if (!reply.isEmpty())
        link.reply(request, reply.startsWith('=') ? "norvane set " + path + ' ' + reply.mid(1) : reply);
    int answer = Unset;
    QCOMPARE(perform(link, call, &answer), got);
    QCOMPARE(answer, result);
    QCOMPARE(link.written().value(0), result == ControllerLink::InvalidRequest ? QByteArray() : request);
    QCOMPARE(link.round_trips(), long(link.written().size()));
    QCOMPARE(QByteArray(link.last_error()).isEmpty(), result == 0);
    QVERIFY2(QString::fromLatin1(link.last_error()).contains(error), link.last_error());
}

void tst_ControllerLink::asynchronous_command_and_timeouts()
{
    ScriptedLink link;
    link.reply("norvane scan", "norvane ok");
    link.reply("norvane get n", "norvane set n 3");
    link.reply("norvane long", QByteArray(400, 'k'));
    const QByteArray untouched(IOManager::ReplyCapacity, 'Z');
    QByteArray buffer = untouched;
    QByteArray abandoned = untouched;
    int status = Unset;
    int n = 0;
    link.set_timeout(true, 20000, true);
    QCOMPARE(link.send_command(buffer.data(), "norvane scan"), int(ControllerLink::Pending));
    QVERIFY(link.is_blocked());
    QCOMPARE(buffer, untouched);
    QCOMPARE(link.wait_for_completion(&status), 0);
    QCOMPARE(buffer.constData(), "norvane ok");
    QVERIFY(!link.is_blocked());
    QCOMPARE(link.send_command(buffer.data(), "norvane scan"), 0);   // asynchronous for one command only

    // A reply nobody collected is read and thrown away, never written late.
    link.set_timeout(true, 20000, true);
    QCOMPARE(link.send_command(abandoned.data(), "norvane scan"), int(ControllerLink::Pending));
    QCOMPARE(link.get_int(&n, "n"), 0);
    QCOMPARE(n, 3);
    QVERIFY(!link.is_blocked());
    QCOMPARE(link.wait_for_completion(&status), int(ControllerLink::InvalidRequest));
    QCOMPARE(status, int(ControllerLink::InvalidRequest));
    link.set_timeout(true, 20000, true);
    QCOMPARE(link.send_command(abandoned.data(), "norvane long"), int(ControllerLink::Pending));
    QCOMPARE(link.wait_for_completion(nullptr), int(ControllerLink::ReplyTooLong));
    QCOMPARE(abandoned, untouched);
    QCOMPARE(link.round_trips(), 5L);

    // Asked for by a handler for its long command: over with that command,
    // or once control is back in the event loop.
    link.set_timeout(true, 20000, true);
    QCoreApplication::processEvents();
    QCOMPARE(link.send_command(buffer.data(), "norvane scan"), 0);
    link.set_timeout(false, 10000, true);
    QCOMPARE(link.current_timeout(), 10000);
    QCOMPARE(link.send_command(buffer.data(), "norvane scan"), 0);
    QCOMPARE(link.current_timeout(), int(ControllerLink::DefaultTimeoutMs));
    link.set_default_timeout(1500);
    link.set_timeout(false, 1, true);
    QCOMPARE(link.current_timeout(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(link.current_timeout(), 1500);
    link.set_default_timeout(0);
    QCOMPARE(link.current_timeout(), int(ControllerLink::DefaultTimeoutMs));
}

void tst_ControllerLink::outage_and_notices()
{
    ScriptedLink link;
    link.reply("norvane get a", "norvane set a yes");
    link.reply("norvane get long", "norvane set long " + QByteArray(300, 'x'));
    link.reply("norvane get junk", "norvane set junk \x01");
    QSignalSpy notices(&link, &ControllerLink::notice);
    char reply[IOManager::ReplyCapacity];
    const auto ask = [&](const char* path) {
        const int result = link.get_string(reply, "%s", path);
        return QStringLiteral("%1 %2").arg(result).arg(result ? link.last_error() : reply);
    };
    for (int twice = 0; twice < 2; ++twice) {
        QVERIFY(ask("long").startsWith("6 "));
        QVERIFY(ask("junk").startsWith("5 "));
    }
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(ask("silent"), "3 no reply");
    const QString since = QTime::currentTime().toString("HH:mm:ss");
    // Every call fails at once, nothing goes out, until a probe is answered;
    // probes come ever more rarely.
    link.answer_probes(false);
    const int written = link.written().size();
    QCOMPARE(ask("a"), "2 the controller is not answering since " + since);
    QCOMPARE(link.set_value("a yes"), int(ControllerLink::TransportFailure));
    QCOMPARE(link.written().size(), written);
    QTRY_COMPARE_WITH_TIMEOUT(link.probe_count(), 2, 5000);
    // 500 ms, then 1000 ms, give or take the timers' coarseness.
    QVERIFY2(clock.elapsed() >= ControllerLink::FirstRetryMs * 3 * 19 / 20, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(!link.is_answering());
    link.answer_probes(true);
    QTRY_VERIFY_WITH_TIMEOUT(link.is_answering(), 5000);
    QCOMPARE(link.probe_count(), 3);
    QCOMPARE(ask("a"), "0 yes");
    QVERIFY(ask("junk").startsWith("5 "));   // told again after the outage
    QStringList told;
    for (const QList<QVariant>& notice : notices)
        told << notice.at(0).toString();
    QCOMPARE(told, QStringList({"The controller sent a reply that does not fit: reply of 300 characters does not fit the "
                                "256-byte buffer.",
                                "The controller sent something that is not its language: reply holds the byte 0x01 at 17, "
                                "which is not printable ASCII.",
                                "The scripted controller is not answering since " + since + " (no reply).",
                                "The scripted controller is answering again.",
                                "The controller sent something that is not its language: reply holds the byte 0x01 at 17, "
                                "which is not printable ASCII."}));
}

void tst_ControllerLink::trace()
{
    QTemporaryDir dir;
    ScriptedLink link;
    QString error;
    QVERIFY(!link.open_trace(dir.filePath("missing/trace.txt"), &error));
    QVERIFY2(error.startsWith("Cannot write the trace file " + dir.filePath("missing/trace.txt")), qPrintable(error));
    QVERIFY2(link.open_trace(dir.filePath("trace.txt"), &error), qPrintable(error));
    link.reply("norvane get a", "norvane set a yes");
    QSignalSpy traced(&link, &ControllerLink::traced);
    QSignalSpy trips(&link, &ControllerLink::round_trips_changed);
    char reply[IOManager::ReplyCapacity];
    link.get_string(reply, "a");
    link.get_string(reply, "b");                 // goes out, never answered
    link.send_command(reply, "tracking start");  // refused, never sent
    QTRY_VERIFY(link.is_answering());
    link.refuse_writes(true);
    link.get_string(reply, "a");                 // cannot go out
    QCOMPARE(trips.count(), 2);
    QCOMPARE(trips.at(1).at(0).value<long>(), 2L);
    QStringList lines;
    for (const QList<QVariant>& signal : traced)
        lines << signal.at(0).toString().section(QStringLiteral("ms  "), 1) + (signal.at(1).toBool() ? " (failed)" : "");
    QCOMPARE(lines, QStringList({"norvane get a  ->  norvane set a yes", "norvane get b  ->  (no reply)  [no reply] (failed)",
                                 "tracking start  ->  (no reply)  [a command starts with \"norvane\"] (failed)",
                                 "norvane get a  ->  (no reply)  [transport refused] (failed)"}));
    const QString first = traced.at(0).at(0).toString();
    QVERIFY2(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d\\.\\d{3} +\\d+\\.\\d{3} ms  norvane").match(first).hasMatch(),
             qPrintable(first));
    QFile file(dir.filePath("trace.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().split('\n').value(3), traced.at(3).at(0).toString().toUtf8());

}

void tst_ControllerLink::messages_by_receiver_name()
{
    struct Receiver : MessageReceiver
    {
        QStringList texts;
        int transmit_message(int type, const char* sender, const char* text) override
        {
            texts << QStringLiteral("%1 %2 %3").arg(type).arg(sender ? sender : "(null)", text)
                         + (QThread::currentThread() == qApp->thread() ? "" : " off the GUI thread");
            return 0;
        }
    } first, second;
    ScriptedLink link;
    MessageHub hub;
    link.set_message_hub(&hub);
    QSignalSpy standard(&hub, &MessageHub::standard_message);
    QSignalSpy notes(&hub, &MessageHub::note);
    link.register_receiver("standard", &first);   // the user's name: never a module's
    link.register_receiver("InertialModule", &first);
    link.register_receiver("InertialModule", &first);
    link.register_receiver("", &first);
    link.show_message("standard", "Norvane", 1, "Error: Unable to set frequency");
    link.show_message("InertialModule", nullptr, 0, "reopen");
    link.register_receiver("InertialModule", &second);
    link.unregister_receiver("InertialModule", &first);   // not its name any more
    link.show_message("InertialModule", "x", 1, "to the newer one");
    link.unregister_receiver("InertialModule", &second);
    link.show_message("InertialModule", nullptr, 1, "nobody");
    // From another thread: delivered on the GUI thread, the receiver looked
    // up only then, so that one unregistered meanwhile is never called.
    link.register_receiver("InertialModule", &first);
    link.register_receiver("Gone", &second);
    std::unique_ptr<QThread> poster(QThread::create([&link] {
        link.show_message("InertialModule", "Elsewhere", 1, "posted");
        link.show_message("standard", "Elsewhere", 1, "from a worker");
        link.show_message("Gone", "Elsewhere", 1, "too late");
    }));
    poster->start();
    QVERIFY(poster->wait(5000));
    QCOMPARE(first.texts.size(), 1);
    link.unregister_receiver("Gone", &second);
    QTRY_COMPARE(notes.count(), 4);
    QCOMPARE(standard.count(), 2);
    QCOMPARE(standard.at(0), QList<QVariant>({"Norvane", 1, "Error: Unable to set frequency"}));
    QCOMPARE(first.texts, QStringList({"0 (null) reopen", "1 Elsewhere posted"}));
    QCOMPARE(second.texts, QStringList{"1 x to the newer one"});
    QStringList remarks;
    for (const QList<QVariant>& note : notes)
        remarks << note.at(0).toString();
    QCOMPARE(remarks, QStringList({"Ignored the registration of a message receiver without name or object.",
                                   "The message receiver \"InertialModule\" was registered again; the newer one gets its "
                                   "messages.",
                                   "No receiver \"InertialModule\" for the message from (unnamed): nobody",
                                   "No receiver \"Gone\" for the message from Elsewhere: too late"}));
}

void tst_ControllerLink::parse_address_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("parsed");   // "host port", empty when refused

    QTest::newRow("name and highest port") << "localhost:65535" << "localhost 65535";
    QTest::newRow("bracketed IPv6") << "[::1]:1" << "::1 1";
    QTest::newRow("bare IPv6") << "::1:4000" << "";
    QTest::newRow("no port") << "localhost" << "";
    QTest::newRow("port zero") << "localhost:0" << "";
    QTest::newRow("port too large") << "localhost:65536" << "";
    QTest::newRow("no host") << ":4000" << "";
}

void tst_ControllerLink::parse_address()
{
    QFETCH(QString, text);
    QFETCH(QString, parsed);
    QString host;
    quint16 port = 0;
    const bool ok = TcpLink::parse_address(text, &host, &port);
    QCOMPARE(ok ? QStringLiteral("%1 %2").arg(host).arg(port) : QString(), parsed);
    if (ok)
        QCOMPARE(TcpLink(host, port).address(), text);
}

QTEST_MAIN(tst_ControllerLink)
#include "tst_ControllerLink.moc"
