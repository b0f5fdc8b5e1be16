// The simulator reading whatever a client may send: every line of an input
// is one request, answered from the default scenario.
#include <QCoreApplication>

#include <cstdint>

#include "simulator/ManualClock.h"
#include "simulator/SimulatedController.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QCoreApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static ManualClock clock;
    static SimulatedController controller(&clock);
    // Each input starts from the same state, so that a crash reproduces.
    controller.load_default_scenario();
    const QByteArray input(reinterpret_cast<const char*>(data), int(size));
    for (const QByteArray& line : input.split('\n')) {
        controller.handle(line);
        clock.advance(250);
    }
    return 0;
}
