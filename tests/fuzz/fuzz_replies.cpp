// The host's link reading whatever a controller may send. An input is the
// path asked for, a line feed, and the reply the controller gives to every
// request: "inertial number_of_sensors\nnorvane set inertial number_of_sensors 5".
#include <QCoreApplication>

#include <cstdint>
#include <vector>

#include "host/ControllerLink.h"

namespace {

class FuzzedLink : public ControllerLink
{
public:
    QByteArray answer;
    QString description() const override { return QStringLiteral("fuzzed controller"); }

protected:
    bool write_request(const QByteArray&, QDeadlineTimer, QString*) override { return true; }
    Result read_reply(QByteArray* reply, QDeadlineTimer, QString*) override
    {
        *reply = answer;
        return Success;
    }
    void probe() override { probe_finished(true, QString()); }
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QCoreApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char*>(data), int(size));
    const int split = input.indexOf('\n');
    const QByteArray path = split < 0 ? QByteArray("p") : input.left(split);
    FuzzedLink link;
    // One line, as the transports hand it over.
    link.answer = input.mid(split + 1).split('\n').first();
    // Exactly the capacity, so that writing one byte more is caught.
    std::vector<char> text(IOManager::ReplyCapacity);
    int number = 0;
    double real = 0;
    bool flag = false;
    std::vector<double> reals(12);
    std::vector<int> numbers(2);
    link.get_string(text.data(), "%s", path.constData());
    link.get_int(&number, "%s", path.constData());
    link.get_double(&real, "%s", path.constData());
    link.get_bool(&flag, "%s", path.constData());
    link.get_doubles(reals.data(), 2, "%s", path.constData());
    link.get_doubles(reals.data(), 12, "%s", path.constData());
    link.get_ints(numbers.data(), 2, "%s", path.constData());
    link.set_value("%s", path.constData());
    link.send_command(text.data(), "norvane %s", path.constData());
    link.set_timeout(true, 20000, true);
    if (link.send_command(text.data(), "norvane %s", path.constData()) == ControllerLink::Pending)
        link.wait_for_completion(&number);
    return 0;
}
