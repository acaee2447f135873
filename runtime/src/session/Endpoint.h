#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace swplay {

// Where a gateway listens, and whether it is reached over TLS. A value.
struct Endpoint
{
    std::string host; // name or IP address, IPv6 without brackets
    std::uint16_t port = 0;
    bool tls = false;

    // Host and port as a URL has them, "[::1]:8181".
    std::string authority() const;

    bool operator==(const Endpoint &other) const
    {
        return port == other.port && tls == other.tls && host == other.host;
    }
    bool operator!=(const Endpoint &other) const { return !(*this == other); }
};

// Takes an address as the service gives it apart: a host name or IP address (IPv6 with or without brackets),
// optionally with "ws://" or "wss://" before it and "/" behind it. Nothing if it is not one, or if port is 0.
std::optional<Endpoint> parseEndpoint(const std::string &address, std::uint16_t port);

} // namespace swplay
