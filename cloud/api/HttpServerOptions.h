#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane::cloud {

// Where the HTTP server listens and what it puts up with.
struct HttpServerOptions
{
    std::string address = "127.0.0.1"; // numeric, IPv4 or IPv6
    std::uint16_t port = 0; // 0 = any free port
    int workers = 4; // threads that handle requests

    std::uint32_t maxHeaderBytes = 16'384;
    std::uint64_t maxBodyBytes = 1'048'576;
    std::size_t maxConnections = 512; // more are closed at once

    std::chrono::milliseconds idleTimeout = std::chrono::seconds(60); // up to the end of a request's header
    std::chrono::milliseconds bodyTimeout = std::chrono::seconds(15);
    std::chrono::milliseconds writeTimeout = std::chrono::seconds(30);
};

} // namespace orvane::cloud
