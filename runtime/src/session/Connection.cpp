#include "session/Connection.h"

#include "session/WebSocketConnection.h"

#include <boost/asio/ssl/context.hpp>
#include <boost/asio/ssl/host_name_verification.hpp>

#include <utility>

namespace swplay {

namespace {

using PlainStream = boost::asio::ip::tcp::socket;
using TlsStream = boost::beast::ssl_stream<boost::asio::ip::tcp::socket>;

// The TLS settings of all connections. Reading the authorities takes a while, so it is done once.
boost::asio::ssl::context &tlsContext()
{
    static boost::asio::ssl::context *const context = [] {
        auto *made = new boost::asio::ssl::context(boost::asio::ssl::context::tls_client);
        made->set_options(boost::asio::ssl::context::default_workarounds | boost::asio::ssl::context::no_tlsv1
            | boost::asio::ssl::context::no_tlsv1_1);
        boost::system::error_code
            noAuthorities; // then no certificate is accepted, which every connection logs
        made->set_default_verify_paths(noAuthorities);
        made->set_verify_mode(boost::asio::ssl::verify_peer);
        return made;
    }();
    return *context;
}

class PlainConnection final : public WebSocketConnection<PlainStream>
{
public:
    PlainConnection(boost::asio::io_context &io, Endpoint endpoint, const ConnectionTimeouts &timeouts,
        std::weak_ptr<ConnectionEvents> events)
        : WebSocketConnection(io, std::move(endpoint), timeouts, std::move(events), io)
    { }

private:
    void secureStream(std::function<void(boost::system::error_code)> done) override { done({}); }
};

class TlsConnection final : public WebSocketConnection<TlsStream>
{
public:
    TlsConnection(boost::asio::io_context &io, Endpoint endpoint, const ConnectionTimeouts &timeouts,
        std::weak_ptr<ConnectionEvents> events)
        : WebSocketConnection(io, std::move(endpoint), timeouts, std::move(events), io, tlsContext())
    { }

private:
    void secureStream(std::function<void(boost::system::error_code)> done) override
    {
        TlsStream &stream = webSocket().next_layer();
        const std::string &host = endpoint().host;
        stream.set_verify_callback(boost::asio::ssl::host_name_verification(host));
        // Server name indication is for names only.
        boost::system::error_code notAnAddress;
        boost::asio::ip::make_address(host, notAnAddress);
        if (notAnAddress && SSL_set_tlsext_host_name(stream.native_handle(), host.c_str()) != 1) {
            done({static_cast<int>(::ERR_get_error()), boost::asio::error::get_ssl_category()});
            return;
        }
        stream.async_handshake(boost::asio::ssl::stream_base::client, std::move(done));
    }
};

} // namespace

std::shared_ptr<Connection> Connection::open(boost::asio::io_context &io, const Endpoint &endpoint,
    const ConnectionTimeouts &timeouts, std::weak_ptr<ConnectionEvents> events)
{
    if (endpoint.tls) {
        auto connection = std::make_shared<TlsConnection>(io, endpoint, timeouts, std::move(events));
        connection->start();
        return connection;
    }
    auto connection = std::make_shared<PlainConnection>(io, endpoint, timeouts, std::move(events));
    connection->start();
    return connection;
}

} // namespace swplay
