#pragma once

#include "stream.pb.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/websocket.hpp>

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace orvane::cloud::test {

// A WebSocket client that sends and receives bytes as they are. Every wait has a limit. One thread; owned by
// the test.
class RawClient
{
public:
    using Message = swplay::wire::StreamMessage;
    static constexpr std::chrono::seconds Limit{20};

    explicit RawClient(std::uint16_t port, const std::string &path = "/stream");

    bool isConnected() const { return m_connected; }
    int httpStatus() const { return m_httpStatus; } // of a refused handshake

    // False when the connection is gone.
    bool send(const std::string &bytes);
    bool sendText(const std::string &text);
    // The next message's bytes; none when the connection ended (or nothing came within the limit).
    std::optional<std::string> receiveBytes();
    // The next message that is not a ping (those are answered) nor a video frame (acknowledged, if asked
    // for).
    std::optional<Message> receive();
    // The next message that satisfies the predicate; others are answered and dropped. None as above, or when
    // it did not come within `limit`.
    std::optional<Message> receiveUntil(
        const std::function<bool(const Message &)> &wanted, std::chrono::seconds limit = Limit);
    std::optional<swplay::wire::VideoFrame> receiveFrame();
    // Reads to the end. False when the connection was still there at the limit.
    bool waitForEnd();
    bool hasEnded() const { return m_ended; }
    // Stops answering pings and acknowledging.
    void beSilent() { m_silent = true; }

private:
    void answer(const Message &message);
    template <typename Start>
    bool run(Start start);

    boost::asio::io_context m_context;
    boost::beast::websocket::stream<boost::asio::ip::tcp::socket> m_stream;
    boost::beast::flat_buffer m_buffer;
    bool m_connected = false;
    bool m_ended = false;
    bool m_silent = false;
    int m_httpStatus = 0;
};

} // namespace orvane::cloud::test
