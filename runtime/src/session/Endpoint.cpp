#include "session/Endpoint.h"

#include <boost/asio/ip/address_v6.hpp>

#include <algorithm>

namespace swplay {

namespace {

constexpr std::size_t MaxHostLength = 253; // of a DNS name

bool startsWithIgnoringCase(const std::string &text, const std::string &lowerCasePrefix)
{
    return text.size() >= lowerCasePrefix.size()
        && std::equal(lowerCasePrefix.begin(), lowerCasePrefix.end(), text.begin(),
            [](char wanted, char c) { return wanted == (c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); });
}

bool isIpV6(const std::string &text)
{
    boost::system::error_code error;
    boost::asio::ip::make_address_v6(text, error);
    return !error;
}

bool isHostName(const std::string &text)
{
    return !text.empty() && text.size() <= MaxHostLength && text.front() != '.' && text.front() != '-'
        && std::all_of(text.begin(), text.end(), [](char c) {
               return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.'
                   || c == '-' || c == '_';
           });
}

} // namespace

std::string Endpoint::authority() const
{
    const bool v6 = host.find(':') != std::string::npos;
    return (v6 ? '[' + host + ']' : host) + ':' + std::to_string(port);
}

std::optional<Endpoint> parseEndpoint(const std::string &address, std::uint16_t port)
{
    Endpoint endpoint;
    endpoint.host = address;
    endpoint.port = port;
    if (startsWithIgnoringCase(address, "ws://")) {
        endpoint.host.erase(0, 5);
    } else if (startsWithIgnoringCase(address, "wss://")) {
        endpoint.host.erase(0, 6);
        endpoint.tls = true;
    }
    std::string &host = endpoint.host;
    if (!host.empty() && host.back() == '/')
        host.pop_back();
    const bool bracketed = host.size() > 2 && host.front() == '[' && host.back() == ']';
    if (bracketed)
        host = host.substr(1, host.size() - 2);
    if (port == 0 || !(isIpV6(host) || (!bracketed && isHostName(host))))
        return std::nullopt;
    return endpoint;
}

} // namespace swplay
