#include "api/FileSender.h"

#include <boost/asio/buffer.hpp>
#include <boost/asio/error.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/write.hpp>

#include <algorithm>
#include <utility>

namespace orvane::cloud {

namespace asio = boost::asio;

namespace {

constexpr std::uint64_t piecesPerSec = 50; // of a limited delivery, at least

} // namespace

FileSender::FileSender(
    boost::beast::tcp_stream &stream, FileDelivery delivery, std::chrono::milliseconds writeTimeout)
    : m_stream(stream)
    , m_delivery(std::move(delivery))
    , m_writeTimeout(writeTimeout)
    , m_pause(stream.get_executor())
{ }

void FileSender::start(Done done)
{
    m_begin = Clock::now();
    proceed(std::move(done));
}

void FileSender::proceed(Done done)
{
    if (m_delivery.breakOffAfter && m_sent >= *m_delivery.breakOffAfter)
        return done(asio::error::connection_aborted);
    if (m_sent == m_delivery.bytes)
        return done({});
    const Clock::duration pause = pauseNow();
    if (pause <= Clock::duration::zero())
        return sendPiece(std::move(done));
    m_stream.expires_never();
    m_pause.expires_after(pause);
    m_pause.async_wait([this, done = std::move(done)](const ErrorCode &error) mutable {
        if (error)
            done(error);
        else
            sendPiece(std::move(done));
    });
}

FileSender::Clock::duration FileSender::pauseNow()
{
    if (m_delivery.stallAfter && m_sent >= *m_delivery.stallAfter) {
        m_delivery.stallAfter.reset();
        return std::chrono::milliseconds(m_delivery.stallMs);
    }
    if (m_delivery.bytesPerSec == 0)
        return Clock::duration::zero();
    const std::chrono::duration<double> due(
        static_cast<double>(m_sent) / static_cast<double>(m_delivery.bytesPerSec));
    return std::chrono::duration_cast<Clock::duration>(due) - (Clock::now() - m_begin);
}

// A piece ends where something is to happen.
std::size_t FileSender::pieceBytes() const
{
    std::uint64_t bytes = std::min<std::uint64_t>(m_piece.size(), m_delivery.bytes - m_sent);
    for (const std::optional<std::uint64_t> &stop : {m_delivery.breakOffAfter, m_delivery.stallAfter}) {
        if (stop)
            bytes = std::min(bytes, *stop - m_sent);
    }
    if (m_delivery.bytesPerSec > 0)
        bytes = std::min(bytes, std::max<std::uint64_t>(1, m_delivery.bytesPerSec / piecesPerSec));
    return static_cast<std::size_t>(bytes);
}

bool FileSender::readPiece(std::size_t bytes)
{
    m_delivery.file.read(m_piece.data(), static_cast<std::streamsize>(bytes));
    const std::uint64_t middle = m_delivery.bytes / 2;
    if (m_delivery.corrupt && middle >= m_sent && middle < m_sent + bytes)
        m_piece[static_cast<std::size_t>(middle - m_sent)] ^= 0x55;
    return m_delivery.file.good();
}

void FileSender::sendPiece(Done done)
{
    const std::size_t bytes = pieceBytes();
    if (!readPiece(bytes)) // the file is shorter than it was
        return done(asio::error::connection_aborted);
    m_stream.expires_after(m_writeTimeout);
    asio::async_write(m_stream, asio::buffer(m_piece.data(), bytes),
        [this, done = std::move(done)](const ErrorCode &error, std::size_t written) mutable {
            if (error)
                return done(error);
            m_sent += written;
            proceed(std::move(done));
        });
}

} // namespace orvane::cloud
