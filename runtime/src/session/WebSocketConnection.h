#pragma once

#include "session/Connection.h"
#include "session/WireMessage.h"

#include <boost/asio/connect.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/ssl.hpp>
#include <boost/beast/websocket.hpp>
#include <boost/beast/websocket/ssl.hpp>

#include <functional>
#include <utility>
#include <vector>

#ifdef __linux__
#include <netinet/tcp.h>
#include <sys/socket.h>
#endif

namespace swplay {

// The steps that a connection takes over any stream: look up, connect, secure (by the derived class),
// WebSocket handshake, then reading for as long as it lives. One timer limits the opening and later the
// closing.
//
// Every asynchronous step holds a reference to the connection. Network thread only.
template <typename Stream>
class WebSocketConnection : public Connection,
                            public std::enable_shared_from_this<WebSocketConnection<Stream>>
{
public:
    void start();

    bool isWritable() const override { return m_open && !m_writing && !m_closing; }
    void write(std::string message) override;
    void close(CloseCode code, const std::string &reason) override;
    void drop() override;

protected:
    using Error = boost::system::error_code;
    using WebSocket = boost::beast::websocket::stream<Stream>;

    template <typename... StreamArguments>
    WebSocketConnection(boost::asio::io_context &io, Endpoint endpoint, const ConnectionTimeouts &timeouts,
        std::weak_ptr<ConnectionEvents> events, StreamArguments &...streamArguments)
        : m_endpoint(std::move(endpoint))
        , m_timeouts(timeouts)
        , m_events(std::move(events))
        , m_resolver(io)
        , m_webSocket(streamArguments...)
        , m_limit(io)
    { }

    // Makes the connected stream secure and then calls `done`.
    virtual void secureStream(std::function<void(Error)> done) = 0;

    WebSocket &webSocket() { return m_webSocket; }
    const Endpoint &endpoint() const { return m_endpoint; }

private:
    using Tcp = boost::asio::ip::tcp;

    Tcp::socket &socket() { return boost::beast::get_lowest_layer(m_webSocket); }
    void limitTime(std::chrono::milliseconds time, const char *what);
    void lookUp();
    template <typename Endpoints>
    void connect(const Endpoints &endpoints);
    void setSocketOptions();
    void shakeHands();
    void read();
    void handleRead(const Error &error, std::size_t size);
    void fail(const char *step, const Error &error);
    void lose(ConnectionLoss loss, const std::string &reason);

    const Endpoint m_endpoint;
    const ConnectionTimeouts m_timeouts;
    std::weak_ptr<ConnectionEvents> m_events; // reset when no more events may be told
    Tcp::resolver m_resolver;
    WebSocket m_webSocket;
    boost::asio::steady_timer m_limit;
    const char *m_expired = nullptr; // what took too long
    boost::beast::flat_buffer m_input;
    std::string m_output; // being written
    bool m_open = false;
    bool m_writing = false;
    bool m_closing = false;
};

namespace connectionlimits {
// The buffer for input grows with a large message; above this it is given back afterwards.
constexpr std::size_t KeptInputBytes = 1u << 20;
// Masking and sending go in pieces of this size.
constexpr std::size_t WriteBufferBytes = 16u << 10;
// How much the system may hold unsent for us. Little, so that a touch does not wait behind a camera picture
// that the link is too slow for, and pictures are dropped here, where the newest can win.
constexpr int UnsentBytes = 32 << 10;
constexpr std::size_t MaxCloseReasonBytes = 120;
} // namespace connectionlimits

template <typename Stream>
void WebSocketConnection<Stream>::start()
{
    limitTime(m_timeouts.open, "no connection in time");
    // Posted, so that events never come from within open.
    boost::asio::post(m_webSocket.get_executor(), [self = this->shared_from_this()] { self->lookUp(); });
}

template <typename Stream>
void WebSocketConnection<Stream>::limitTime(std::chrono::milliseconds time, const char *what)
{
    m_limit.expires_after(time);
    m_limit.async_wait([self = this->shared_from_this(), what](const Error &error) {
        // It may have expired while it was being cancelled.
        if (error || (self->m_open && !self->m_closing))
            return;
        self->m_expired = what;
        self->m_resolver.cancel();
        Error ignored; // there is no better end than a closed socket
        self->socket().close(ignored);
        // A name look-up cannot be interrupted; its answer will find no one interested.
        if (!self->m_open)
            self->lose(ConnectionLoss::Network, what);
    });
}

template <typename Stream>
void WebSocketConnection<Stream>::lookUp()
{
    if (m_closing)
        return;
    Error notAnAddress;
    const auto address = boost::asio::ip::make_address(m_endpoint.host, notAnAddress);
    if (!notAnAddress) {
        connect(std::vector<Tcp::endpoint>{{address, m_endpoint.port}});
        return;
    }
    m_resolver.async_resolve(m_endpoint.host, std::to_string(m_endpoint.port),
        [self = this->shared_from_this()](const Error &error, const Tcp::resolver::results_type &results) {
            if (error)
                self->fail("look-up", error);
            else
                self->connect(results);
        });
}

template <typename Stream>
template <typename Endpoints>
void WebSocketConnection<Stream>::connect(const Endpoints &endpoints)
{
    if (m_closing || m_expired)
        return;
    boost::asio::async_connect(
        socket(), endpoints, [self = this->shared_from_this()](const Error &error, const Tcp::endpoint &) {
            if (error) {
                self->fail("connect", error);
                return;
            }
            self->setSocketOptions();
            self->secureStream([self](const Error &secureError) {
                if (secureError)
                    self->fail("TLS", secureError);
                else
                    self->shakeHands();
            });
        });
}

template <typename Stream>
void WebSocketConnection<Stream>::setSocketOptions()
{
    Error ignored; // options only make a connection better
    socket().set_option(Tcp::no_delay(true), ignored);
#ifdef TCP_NOTSENT_LOWAT
    const int bytes = connectionlimits::UnsentBytes;
    ::setsockopt(socket().native_handle(), IPPROTO_TCP, TCP_NOTSENT_LOWAT, &bytes, sizeof bytes);
#endif
}

template <typename Stream>
void WebSocketConnection<Stream>::shakeHands()
{
    namespace websocket = boost::beast::websocket;
    if (m_closing)
        return;
    // Time limits and pings are ours.
    m_webSocket.set_option(websocket::stream_base::timeout{
        websocket::stream_base::none(), websocket::stream_base::none(), false});
    m_webSocket.read_message_max(WireLimits::GatewayMessageBytes);
    m_webSocket.write_buffer_bytes(connectionlimits::WriteBufferBytes);
    m_webSocket.auto_fragment(false);
    m_webSocket.binary(true);
    m_webSocket.async_handshake(
        m_endpoint.authority(), "/stream", [self = this->shared_from_this()](const Error &error) {
            if (error) {
                self->fail("WebSocket handshake", error);
                return;
            }
            if (self->m_closing)
                return;
            self->m_limit.cancel();
            self->m_open = true;
            if (const auto events = self->m_events.lock())
                events->connectionOpened();
            self->read();
        });
}

template <typename Stream>
void WebSocketConnection<Stream>::read()
{
    m_webSocket.async_read(m_input, [self = this->shared_from_this()](const Error &error, std::size_t size) {
        self->handleRead(error, size);
    });
}

template <typename Stream>
void WebSocketConnection<Stream>::handleRead(const Error &error, std::size_t size)
{
    if (error) {
        fail("read", error);
        return;
    }
    if (const auto events = m_events.lock())
        events->connectionMessage(m_input.data().data(), size, m_webSocket.got_text());
    m_input.consume(size);
    if (m_input.capacity() > connectionlimits::KeptInputBytes && size < connectionlimits::KeptInputBytes)
        m_input.shrink_to_fit();
    // Read on even while closing: the peer's answer to the close comes this way.
    read();
}

template <typename Stream>
void WebSocketConnection<Stream>::write(std::string message)
{
    m_output = std::move(message);
    m_writing = true;
    m_webSocket.async_write(
        boost::asio::buffer(m_output), [self = this->shared_from_this()](const Error &error, std::size_t) {
            self->m_writing = false;
            if (error) {
                self->fail("write", error);
                return;
            }
            if (const auto events = self->m_events.lock())
                events->connectionWritten();
        });
}

template <typename Stream>
void WebSocketConnection<Stream>::close(CloseCode code, const std::string &reason)
{
    namespace websocket = boost::beast::websocket;
    if (!m_open || m_closing) {
        drop();
        return;
    }
    m_events.reset();
    m_closing = true;
    limitTime(m_timeouts.close, "not closed in time");
    const auto closeCode
        = code == CloseCode::Normal ? websocket::close_code::normal : websocket::close_code::protocol_error;
    m_webSocket.async_close(
        websocket::close_reason(closeCode, reason.substr(0, connectionlimits::MaxCloseReasonBytes)),
        [self = this->shared_from_this()](const Error &) {
            // However the handshake went, this is the end of the connection.
            self->m_limit.cancel();
            Error ignored;
            self->socket().close(ignored);
        });
}

template <typename Stream>
void WebSocketConnection<Stream>::drop()
{
    m_events.reset();
    m_closing = true;
    m_limit.cancel();
    m_resolver.cancel();
    Error ignored;
    socket().close(ignored);
}

template <typename Stream>
void WebSocketConnection<Stream>::fail(const char *step, const Error &error)
{
    namespace websocket = boost::beast::websocket;
    const bool protocol = error == websocket::condition::protocol_violation
        || error == websocket::error::message_too_big || error == websocket::error::buffer_overflow;
    std::string reason = std::string(step) + ": " + error.message();
    if (m_expired)
        reason = m_expired;
    else if (error == websocket::error::closed && !m_webSocket.reason().reason.empty())
        reason += ": " + std::string(m_webSocket.reason().reason.c_str());
    lose(protocol && m_open ? ConnectionLoss::Protocol : ConnectionLoss::Network, reason);
}

template <typename Stream>
void WebSocketConnection<Stream>::lose(ConnectionLoss loss, const std::string &reason)
{
    if (m_closing)
        return;
    const auto events = m_events.lock();
    drop();
    if (events)
        events->connectionLost(loss, reason);
}

} // namespace swplay
