// norvane-simd: the simulated controller behind TCP, for hosts and tools
// that want a controller without hardware.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QHostAddress>
#include <QTextStream>

#include <cmath>

#include "SimModel.h"
#include "SimServer.h"
#include "SimulatedController.h"
#include "WallClock.h"

namespace {

QByteArray printable(const QByteArray& line)
{
    QByteArray shown;
    for (char c : line)
        shown += (c >= 0x20 && c < 0x7f) ? QByteArray(1, c) : "\\x" + QByteArray::number(quint8(c), 16);
    return shown;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("norvane-simd"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PROJECT_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Simulated Norvane tracking controller: answers the controller language over TCP."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption port_option(QStringLiteral("port"),
                                         QStringLiteral("TCP port to listen on (0: any free port)."),
                                         QStringLiteral("N"), QStringLiteral("7400"));
    const QCommandLineOption listen_option(QStringLiteral("listen"),
                                           QStringLiteral("Address to listen on."), QStringLiteral("ADDR"),
                                           QStringLiteral("127.0.0.1"));
    const QCommandLineOption scenario_option(QStringLiteral("scenario"),
                                             QStringLiteral("Scenario file (JSON); the built-in default without it."),
                                             QStringLiteral("FILE"));
    const QCommandLineOption speed_option(QStringLiteral("speed"),
                                          QStringLiteral("Simulated seconds per real second."),
                                          QStringLiteral("X"), QStringLiteral("1"));
    const QCommandLineOption log_option(QStringLiteral("log"), QStringLiteral("Print each line it answers."));
    parser.addOptions({port_option, listen_option, scenario_option, speed_option, log_option});
    parser.process(app);

    QTextStream err(stderr);
    bool ok = false;
    const uint port = parser.value(port_option).toUInt(&ok);
    if (!ok || port > 65535) {
        err << "norvane-simd: --port must be 0 to 65535, not " << parser.value(port_option) << '\n';
        return 2;
    }
    const double speed = parser.value(speed_option).toDouble(&ok);
    if (!ok || !std::isfinite(speed) || speed <= 0.0 || speed > 1e6) {
        err << "norvane-simd: --speed must be a number above 0, not " << parser.value(speed_option) << '\n';
        return 2;
    }
    const QHostAddress address(parser.value(listen_option));
    if (address.isNull()) {
        err << "norvane-simd: --listen needs an IP address, not " << parser.value(listen_option) << '\n';
        return 2;
    }

    WallClock clock(speed);
    SimulatedController controller(&clock);
    if (parser.isSet(scenario_option)) {
        QString error;
        if (!controller.load_scenario_file(parser.value(scenario_option), &error)) {
            err << "norvane-simd: " << error << '\n';
            return 1;
        }
    }

    SimServer server(&controller);
    QString error;
    if (!server.listen(address, quint16(port), &error)) {
        err << "norvane-simd: cannot listen on " << address.toString() << ':' << port << ": " << error << '\n';
        return 1;
    }

    QTextStream out(stdout);
    const SimModel& model = controller.model();
    out << "norvane-simd: listening on " << address.toString() << ':' << server.port() << " (controller "
        << model.version.text() << ' ' << model.system_type << ", " << model.transceivers.size()
        << " transceivers, " << model.sensors.size() << " sensors, scenario "
        << (parser.isSet(scenario_option) ? parser.value(scenario_option) : QStringLiteral("default"))
        << ", speed " << speed << ")\n";
    out.flush();

    if (parser.isSet(log_option)) {
        QObject::connect(&server, &SimServer::client_connected, [&out](int client, const QString& peer) {
            out << '[' << client << "] connected from " << peer << '\n';
            out.flush();
        });
        QObject::connect(&server, &SimServer::client_disconnected, [&out](int client) {
            out << '[' << client << "] disconnected\n";
            out.flush();
        });
        QObject::connect(&server, &SimServer::answered,
                         [&out](int client, const QByteArray& request, const SimReply& reply) {
                             out << '[' << client << "] " << printable(request) << " -> ";
                             if (reply.silent)
                                 out << "(no answer)";
                             else
                                 out << printable(reply.line);
                             if (reply.delay_ms > 0 && !reply.silent)
                                 out << " (after " << reply.delay_ms << " ms)";
                             if (reply.hang_up)
                                 out << " (hangs up)";
                             out << '\n';
                             out.flush();
                         });
    }
    return app.exec();
}
