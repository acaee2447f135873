#pragma once

#include "api/FileDelivery.h"

#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/error.hpp>
#include <boost/beast/core/tcp_stream.hpp>

#include <array>
#include <chrono>
#include <functional>

namespace orvane::cloud {

// Sends a file as the body of a reply whose header has been sent, a piece at a time, so that one of any size
// takes no memory. Reading a piece is left to the disk's cache: it happens on the network thread. Owned by
// its connection, and used on the network thread.
class FileSender
{
public:
    using ErrorCode = boost::beast::error_code;
    // Keeps the connection, and so the sender, alive while the file is being sent.
    using Done = std::function<void(ErrorCode)>;

    // `stream` outlives it. `writeTimeout`: how long the client may take over one piece.
    FileSender(
        boost::beast::tcp_stream &stream, FileDelivery delivery, std::chrono::milliseconds writeTimeout);

    // Calls `done` once: without an error when the whole file was sent.
    void start(Done done);
    // Ends a pause, if there is one; `done` is then called with an error. The connection closes its stream
    // besides.
    void cancel() { m_pause.cancel(); }

private:
    using Clock = std::chrono::steady_clock;

    void proceed(Done done);
    void sendPiece(Done done);
    // How long to wait before the next piece.
    Clock::duration pauseNow();
    std::size_t pieceBytes() const;
    bool readPiece(std::size_t bytes);

    boost::beast::tcp_stream &m_stream;
    FileDelivery m_delivery;
    const std::chrono::milliseconds m_writeTimeout;
    boost::asio::steady_timer m_pause;
    Clock::time_point m_begin;
    std::uint64_t m_sent = 0;
    std::array<char, 65'536> m_piece{};
};

} // namespace orvane::cloud
