// orvane-cloud: puts the service's parts together in the right order and runs until it is told to end.

#include "api/ApiLog.h"
#include "api/ApiService.h"
#include "api/DemoData.h"
#include "api/ServiceData.h"
#include "api/program/ServiceOptions.h"
#include "gateway/GatewayFleet.h"

#include <QDir>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/address.hpp>
#include <boost/asio/signal_set.hpp>

#include <csignal>
#include <cstdio>
#include <exception>

using namespace orvane::cloud;

namespace {

enum ExitCode { ExitDone = 0, ExitFailed = 1, ExitUsage = 2 };

GatewayFleet::Options fleetOptions(const ServiceOptions &options, const ServiceData &data)
{
    GatewayFleet::Options fleet;
    fleet.listenAddress = options.listenAddress;
    fleet.port = options.gatewayPort;
    for (const Device &device : data.devices.all()) {
        const QSize screen = options.screens[fleet.devices.size() % options.screens.size()];
        fleet.devices.push_back({device.padCode, device.aliasName, screen});
    }
    return fleet;
}

QString url(const char *scheme, const std::string &address, std::uint16_t port)
{
    const bool v6 = boost::asio::ip::make_address(address).is_v6();
    return QStringLiteral("%1://%2:%3")
        .arg(QLatin1String(scheme), QString::fromStdString(v6 ? '[' + address + ']' : address))
        .arg(port);
}

void reportReady(const ServiceOptions &options, std::uint16_t httpPort, std::uint16_t gatewayPort)
{
    const QJsonObject line{{QStringLiteral("http"), url("http", options.listenAddress, httpPort)},
        {QStringLiteral("gateway"), url("ws", options.listenAddress, gatewayPort)},
        {QStringLiteral("data"), QDir(QString::fromStdString(options.dataFolder)).absolutePath()}};
    std::printf("%s\n", QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

void serve(const ServiceOptions &options)
{
    // Before any thread starts, so that no signal is missed.
    boost::asio::io_context signalContext;
    boost::asio::signal_set endSignals(signalContext, SIGINT, SIGTERM);
    endSignals.async_wait([](const boost::system::error_code &error, int number) {
        if (!error)
            qCInfo(apiLog, "signal %d: shutting down", number);
    });

    ServiceData data(options.dataFolder);
    prepareDemoData(data, options.deviceCount);
    GatewayFleet fleet(fleetOptions(options, data), data.sessions);
    if (!fleet.start())
        throw std::runtime_error(fleet.errorText());
    HttpServerOptions httpOptions;
    httpOptions.address = options.listenAddress;
    httpOptions.port = options.httpPort;
    ApiService api(data, fleet, httpOptions);
    api.start();
    reportReady(options, api.port(), fleet.controlPort());

    signalContext.run();
    // A second signal ends the process at once.
    endSignals.clear();
    api.stop();
    fleet.stop();
}

} // namespace

int main(int argc, char *argv[])
{
    // Devices draw with Qt, but nothing is shown here.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FORCE_STDERR_LOGGING", "1");
    qSetMessagePattern(QStringLiteral("%{time yyyy-MM-dd hh:mm:ss.zzz} %{type} %{category}: %{message}"));
    std::signal(SIGPIPE, SIG_IGN);
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("orvane-cloud"));
    try {
        const ServiceOptions options = ServiceOptions::parse(QGuiApplication::arguments());
        if (options.helpWanted)
            std::printf("%s", qPrintable(ServiceOptions::helpText()));
        else
            serve(options);
        return ExitDone;
    } catch (const UsageError &error) {
        std::fprintf(stderr, "orvane-cloud: %s\nTry --help.\n", error.what());
        return ExitUsage;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "orvane-cloud: %s\n", error.what());
        return ExitFailed;
    }
}
