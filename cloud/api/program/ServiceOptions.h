#pragma once

#include <QSize>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvane::cloud {

// The command line cannot be understood; what() says why in one sentence.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// What the command line asks for. Used at the start, on the main thread; needs the application object.
struct ServiceOptions
{
    std::string listenAddress = "127.0.0.1"; // numeric; also what clients connect to
    std::uint16_t httpPort = 8180; // 0 = any free port
    std::uint16_t gatewayPort = 8181; // 0 = any free port
    std::string dataFolder;
    std::optional<int> deviceCount; // of the demo account; none = leave it as it is
    std::vector<QSize> screens{{720, 1280}}; // in portrait, pixels; the devices take them in turn
    bool helpWanted = false;

    // `arguments` begin with the program's name. Throws UsageError.
    static ServiceOptions parse(const QStringList &arguments);
    static QString helpText();
};

} // namespace orvane::cloud
