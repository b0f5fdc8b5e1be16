#include <QtTest>

#include <QThread>

#include "ModalDialogHelper.h"
#include "host/MessageHub.h"
#include "module/MessageReceiver.h"

namespace {

// Remembers what it was given and on which thread.
class Recorder : public MessageReceiver
{
public:
    struct Delivery
    {
        int type;
        QByteArray sender;
        bool sender_null;
        QByteArray text;
        QThread* thread;
    };
    QList<Delivery> deliveries;
    int transmit_message(int type, const char* sender, const char* text) override
    {
        deliveries << Delivery{type, QByteArray(sender), sender == nullptr, QByteArray(text),
                               QThread::currentThread()};
        return 0;
    }
};

} // namespace

class tst_MessageHub : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void standardGoesToTheUser();
    void namedReceiverGetsItAsSent_data();
    void namedReceiverGetsItAsSent();
    void onlyTheHolderMayUnregister();
    void registeringAgainReplaces();
    void unknownNameIsNoted();
    void postFromAnotherThread();
    void receiverGoneBeforeDelivery();
};

void tst_MessageHub::cleanup()
{
    QCOMPARE(ModalDialogHelper::pending(), 0);
    QCOMPARE(ModalDialogHelper::leaked_windows(), QStringList());
}

void tst_MessageHub::standardGoesToTheUser()
{
    MessageHub hub;
    Recorder recorder;
    hub.register_receiver("standard", &recorder);   // the name is the host's: never a receiver's
    QSignalSpy spy(&hub, &MessageHub::standard_message);
    hub.post("standard", "Norvane", 1, "Error: Unable to set frequency of inertial system");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Norvane"));
    QCOMPARE(spy.at(0).at(1).toInt(), 1);
    QCOMPARE(spy.at(0).at(2).toString(), QStringLiteral("Error: Unable to set frequency of inertial system"));
    QVERIFY(recorder.deliveries.isEmpty());
}

void tst_MessageHub::namedReceiverGetsItAsSent_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("sender");
    QTest::addColumn<bool>("nullSender");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("reopen") << 1 << QByteArray("HybridBodyCalibration") << false << QByteArray("reopen");
    QTest::newRow("open calibration") << 1 << QByteArray("InertialModule") << false
                                      << QByteArray("OpenHybridBodyCalibration standard b02");
    QTest::newRow("other type") << 0 << QByteArray("x") << false << QByteArray("reopen");
    QTest::newRow("no sender") << 1 << QByteArray() << true << QByteArray("reopen");
}

void tst_MessageHub::namedReceiverGetsItAsSent()
{
    QFETCH(int, type);
    QFETCH(QByteArray, sender);
    QFETCH(bool, nullSender);
    QFETCH(QByteArray, text);
    MessageHub hub;
    Recorder recorder;
    hub.register_receiver("InertialModule", &recorder);
    hub.post("InertialModule", nullSender ? nullptr : sender.constData(), type, text.constData());
    QCOMPARE(recorder.deliveries.size(), 1);
    const Recorder::Delivery& delivery = recorder.deliveries.first();
    QCOMPARE(delivery.type, type);
    QCOMPARE(delivery.sender_null, nullSender);
    QCOMPARE(delivery.sender, sender);
    QCOMPARE(delivery.text, text);
}

void tst_MessageHub::onlyTheHolderMayUnregister()
{
    MessageHub hub;
    Recorder holder, stranger;
    hub.register_receiver("HybridBodyCalibration", &holder);
    hub.unregister_receiver("HybridBodyCalibration", &stranger);
    QCOMPARE(hub.receiver("HybridBodyCalibration"), &holder);
    hub.unregister_receiver("HybridBodyCalibration", &holder);
    QVERIFY(hub.receiver_names().isEmpty());
}

void tst_MessageHub::registeringAgainReplaces()
{
    MessageHub hub;
    Recorder old_one, new_one;
    QSignalSpy notes(&hub, &MessageHub::note);
    hub.register_receiver("InertialModule", &old_one);
    hub.register_receiver("InertialModule", &old_one);
    QCOMPARE(notes.count(), 0);
    hub.register_receiver("InertialModule", &new_one);
    QCOMPARE(notes.count(), 1);
    hub.post("InertialModule", "x", 1, "reopen");
    QVERIFY(old_one.deliveries.isEmpty());
    QCOMPARE(new_one.deliveries.size(), 1);
}

void tst_MessageHub::unknownNameIsNoted()
{
    MessageHub hub;
    QSignalSpy notes(&hub, &MessageHub::note);
    QSignalSpy standard(&hub, &MessageHub::standard_message);
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression("No receiver"));
    hub.post("BodyCalModule", "InertialModule", 1, "OpenBodyCalDialog standard b03");
    QCOMPARE(standard.count(), 0);
    QCOMPARE(notes.count(), 1);
    QCOMPARE(notes.at(0).at(0).toString(),
             QStringLiteral("No receiver \"BodyCalModule\" for the message from InertialModule: "
                            "OpenBodyCalDialog standard b03"));
}

void tst_MessageHub::postFromAnotherThread()
{
    MessageHub hub;
    Recorder recorder;
    hub.register_receiver("InertialModule", &recorder);
    QSignalSpy standard(&hub, &MessageHub::standard_message);
    std::unique_ptr<QThread> poster(QThread::create([&hub] {
        hub.post("InertialModule", "Elsewhere", 1, "reopen");
        hub.post("standard", "Elsewhere", 1, "from a worker");
    }));
    poster->start();
    QVERIFY(poster->wait(5000));
    // Nothing happens on the poster's thread...
    QVERIFY(recorder.deliveries.isEmpty());
    // ...but on the GUI thread, once its event loop runs.
    QTRY_COMPARE(recorder.deliveries.size(), 1);
    QCOMPARE(recorder.deliveries.first().thread, QThread::currentThread());
    QCOMPARE(standard.count(), 1);
}

void tst_MessageHub::receiverGoneBeforeDelivery()
{
    MessageHub hub;
    auto recorder = std::make_unique<Recorder>();
    hub.register_receiver("InertialModule", recorder.get());
    std::unique_ptr<QThread> poster(QThread::create([&hub] { hub.post("InertialModule", "x", 1, "reopen"); }));
    poster->start();
    QVERIFY(poster->wait(5000));
    hub.unregister_receiver("InertialModule", recorder.get());
    recorder.reset();
    QSignalSpy notes(&hub, &MessageHub::note);
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression("No receiver"));
    QTRY_COMPARE(notes.count(), 1);
}

QTEST_MAIN(tst_MessageHub)
#include "tst_MessageHub.moc"
