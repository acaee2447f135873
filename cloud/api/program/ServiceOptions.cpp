#include "api/program/ServiceOptions.h"

#include "api/DemoData.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <QStandardPaths>

#include <boost/asio/ip/address.hpp>

namespace orvane::cloud {

namespace {

constexpr int highestPort = 65535;

const QString description = QStringLiteral(
    "The local cloud-phone service: HTTP API, streaming gateway and virtual devices in one process.\n"
    "\n"
    "When it is ready it prints one line of JSON with its addresses and its data folder on the standard "
    "output:\n"
    "  {\"data\":\"...\",\"gateway\":\"ws://127.0.0.1:8181\",\"http\":\"http://127.0.0.1:8180\"}\n"
    "Its log goes to the standard error output. SIGINT and SIGTERM end it.\n"
    "\n"
    "A new service knows the account \"demo\" with the password \"orvane-demo\" and the account \"second\"\n"
    "with the password \"orvane-second\".");

QString defaultDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(description);
    parser.addOptions({
        {QStringLiteral("http-port"),
            QStringLiteral("Port of the HTTP API; 0 = any free one (default 8180)."), QStringLiteral("port"),
            QStringLiteral("8180")},
        {QStringLiteral("gateway-port"),
            QStringLiteral("Port of the streaming gateway; 0 = any free one (default 8181)."),
            QStringLiteral("port"), QStringLiteral("8181")},
        {QStringLiteral("listen"),
            QStringLiteral("Numeric address of this machine to listen on and to send clients to (default "
                           "127.0.0.1: this machine only). Connections are not encrypted."),
            QStringLiteral("address"), QStringLiteral("127.0.0.1")},
        {QStringLiteral("data"),
            QStringLiteral("Folder that the service keeps its data in; made if it is missing (default %1).")
                .arg(defaultDataFolder()),
            QStringLiteral("folder"), defaultDataFolder()},
        {QStringLiteral("devices"),
            QStringLiteral(
                "How many devices the demo account has, 0 to %1. Devices are added or removed at the "
                "end of its list (default %2 for a new service, otherwise as many as there are).")
                .arg(maxDeviceCount)
                .arg(defaultDeviceCount),
            QStringLiteral("count")},
        {QStringLiteral("screens"),
            QStringLiteral("Sizes of the devices' screens in portrait, which the devices take in turn in the "
                           "order of their ids (default 720x1280). Even numbers; 720 to 1440 wide, 16:9 or "
                           "longer, at most 2560 high."),
            QStringLiteral("WxH,..."), QStringLiteral("720x1280")},
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this text.")},
    });
}

int numberOption(const QCommandLineParser &parser, const QString &name, int highest)
{
    bool valid = false;
    const int number = parser.value(name).toInt(&valid);
    if (!valid || number < 0 || number > highest)
        throw UsageError(QStringLiteral("--%1 must be a number from 0 to %2, not \"%3\".")
                             .arg(name)
                             .arg(highest)
                             .arg(parser.value(name))
                             .toStdString());
    return number;
}

// What the apps of a device are made for, and what a picture of it may take.
bool isScreen(QSize size)
{
    return size.width() >= 720 && size.width() <= 1440 && size.height() <= 2560 && size.width() % 2 == 0
        && size.height() % 2 == 0 && size.height() * 9 >= size.width() * 16;
}

std::vector<QSize> screensOption(const QCommandLineParser &parser)
{
    std::vector<QSize> screens;
    const QStringList texts = parser.value(QStringLiteral("screens")).split(QLatin1Char(','));
    for (const QString &text : texts) {
        static const QRegularExpression pattern(
            QRegularExpression::anchoredPattern(QStringLiteral("(\\d{1,5})x(\\d{1,5})")));
        const QRegularExpressionMatch match = pattern.match(text);
        const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
        if (!match.hasMatch() || !isScreen(size))
            throw UsageError(QStringLiteral("--screens has no screen \"%1\".").arg(text).toStdString());
        screens.push_back(size);
    }
    return screens;
}

std::string addressOption(const QCommandLineParser &parser)
{
    std::string text = parser.value(QStringLiteral("listen")).toStdString();
    boost::system::error_code error;
    const boost::asio::ip::address address = boost::asio::ip::make_address(text, error);
    // Clients are sent to this address, so it must be one that can be connected to.
    if (error || address.is_unspecified() || address.is_multicast())
        throw UsageError("--listen must be a numeric address of this machine, not \"" + text + "\".");
    return text;
}

} // namespace

ServiceOptions ServiceOptions::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        throw UsageError(parser.errorText().toStdString());
    if (!parser.positionalArguments().isEmpty())
        throw UsageError(
            "unexpected argument \"" + parser.positionalArguments().first().toStdString() + "\".");
    ServiceOptions options;
    options.helpWanted = parser.isSet(QStringLiteral("help"));
    options.listenAddress = addressOption(parser);
    options.httpPort
        = static_cast<std::uint16_t>(numberOption(parser, QStringLiteral("http-port"), highestPort));
    options.gatewayPort
        = static_cast<std::uint16_t>(numberOption(parser, QStringLiteral("gateway-port"), highestPort));
    options.dataFolder = parser.value(QStringLiteral("data")).toStdString();
    if (options.dataFolder.empty())
        throw UsageError("--data must name a folder.");
    if (parser.isSet(QStringLiteral("devices")))
        options.deviceCount = numberOption(parser, QStringLiteral("devices"), maxDeviceCount);
    options.screens = screensOption(parser);
    return options;
}

QString ServiceOptions::helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    return parser.helpText();
}

} // namespace orvane::cloud
