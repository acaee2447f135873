#pragma once

#include "gateway/TokenBucket.h"

#include <boost/asio/compose.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/buffers_prefix.hpp>
#include <boost/beast/core/role.hpp>
#include <boost/beast/websocket/teardown.hpp>

namespace orvane::cloud {

// A TCP socket that can behave like a bad network: it can stall (neither read nor write for a while) and send
// no faster than a limit. Without either it passes everything straight on. Lowest layer of the WebSocket
// stream of a ClientConnection, which owns it; network thread only.
class ShapedSocket
{
public:
    using executor_type = boost::asio::ip::tcp::socket::executor_type;
    using ErrorCode = boost::system::error_code;

    explicit ShapedSocket(boost::asio::ip::tcp::socket socket)
        : m_socket(std::move(socket))
        , m_readTimer(m_socket.get_executor())
        , m_writeTimer(m_socket.get_executor())
    { }

    executor_type get_executor() { return m_socket.get_executor(); }
    boost::asio::ip::tcp::socket &socket() { return m_socket; }

    void stallUntil(TimePoint time) { m_stalledUntil = std::max(m_stalledUntil, time); }
    bool isStalled(TimePoint now) const { return now < m_stalledUntil; }
    void limitSending(int kbitPerSec) { m_bucket.setRate(kbitPerSec, Clock::now()); }

    // Closes at once; operations under way end with operation_aborted.
    void close()
    {
        ErrorCode ignored; // there is nothing to be done about a socket that does not close cleanly
        m_socket.close(ignored);
        m_readTimer.cancel();
        m_writeTimer.cancel();
    }

    template <typename Buffers, typename Token>
    auto async_read_some(const Buffers &buffers, Token &&token)
    {
        return boost::asio::async_compose<Token, void(ErrorCode, std::size_t)>(
            ReadOperation<Buffers>{*this, buffers}, token, m_socket);
    }

    template <typename Buffers, typename Token>
    auto async_write_some(const Buffers &buffers, Token &&token)
    {
        return boost::asio::async_compose<Token, void(ErrorCode, std::size_t)>(
            WriteOperation<Buffers>{*this, buffers}, token, m_socket);
    }

private:
    // Waits out a stall before the read, and holds back what arrived during one.
    template <typename Buffers>
    struct ReadOperation
    {
        ShapedSocket &shaped;
        Buffers buffers;
        bool hasRead = false;
        std::size_t bytesRead = 0;
        ErrorCode result{};

        template <typename Self>
        void operator()(Self &self, ErrorCode error = {})
        {
            if (error) {
                self.complete(error, 0); // the wait was cancelled
            } else if (shaped.isStalled(Clock::now())) {
                shaped.m_readTimer.expires_at(shaped.m_stalledUntil);
                shaped.m_readTimer.async_wait(std::move(self));
            } else if (hasRead) {
                self.complete(result, bytesRead);
            } else {
                shaped.m_socket.async_read_some(buffers, std::move(self));
            }
        }

        template <typename Self>
        void operator()(Self &self, ErrorCode error, std::size_t bytes)
        {
            hasRead = true;
            bytesRead = bytes;
            result = error;
            if (error) {
                self.complete(error, bytes);
            } else {
                (*this)(self);
            }
        }
    };

    // Waits out a stall and the limit before the write, and writes no more than the limit allows.
    template <typename Buffers>
    struct WriteOperation
    {
        ShapedSocket &shaped;
        Buffers buffers;

        template <typename Self>
        void operator()(Self &self, ErrorCode error = {})
        {
            const TimePoint now = Clock::now();
            if (error) {
                self.complete(error, 0);
            } else if (shaped.isStalled(now)) {
                wait(self, shaped.m_stalledUntil);
            } else if (!shaped.m_bucket.isLimited() || boost::asio::buffer_size(buffers) == 0) {
                shaped.m_socket.async_write_some(buffers, std::move(self));
            } else if (const auto allowed
                = shaped.m_bucket.available(boost::asio::buffer_size(buffers), now)) {
                shaped.m_socket.async_write_some(
                    boost::beast::buffers_prefix(allowed, buffers), std::move(self));
            } else {
                wait(self, shaped.m_bucket.nextTime(now));
            }
        }

        template <typename Self>
        void operator()(Self &self, ErrorCode error, std::size_t bytes)
        {
            shaped.m_bucket.take(bytes);
            self.complete(error, bytes);
        }

        template <typename Self>
        void wait(Self &self, TimePoint until)
        {
            shaped.m_writeTimer.expires_at(until);
            shaped.m_writeTimer.async_wait(std::move(self));
        }
    };

    boost::asio::ip::tcp::socket m_socket;
    boost::asio::steady_timer m_readTimer;
    boost::asio::steady_timer m_writeTimer;
    TokenBucket m_bucket;
    TimePoint m_stalledUntil{};
};

// What the WebSocket stream calls to end the connection below it.
inline void beast_close_socket(ShapedSocket &shaped)
{
    shaped.close();
}

inline void teardown(boost::beast::role_type role, ShapedSocket &shaped, boost::system::error_code &error)
{
    boost::beast::websocket::teardown(role, shaped.socket(), error);
}

template <typename Handler>
void async_teardown(boost::beast::role_type role, ShapedSocket &shaped, Handler &&handler)
{
    boost::beast::websocket::async_teardown(role, shaped.socket(), std::forward<Handler>(handler));
}

} // namespace orvane::cloud
