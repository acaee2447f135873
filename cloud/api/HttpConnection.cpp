#include "api/HttpConnection.h"

#include "api/HttpReplies.h"

#include <boost/asio/buffer.hpp>
#include <boost/asio/post.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>

namespace orvane::cloud {

namespace asio = boost::asio;
namespace http = boost::beast::http;

namespace {

constexpr std::chrono::milliseconds lingerTime = std::chrono::seconds(2);
constexpr const char *serverName = "orvane-cloud";

bool isLoopback(const asio::ip::address &address)
{
    if (address.is_v6() && address.to_v6().is_v4_mapped())
        return asio::ip::make_address_v4(asio::ip::v4_mapped, address.to_v6()).is_loopback();
    return address.is_loopback();
}

// The reply to a request that cannot be read; none when the client is just gone or too slow.
std::optional<HttpResponse> replyToUnreadable(const boost::beast::error_code &error)
{
    if (error == http::error::body_limit)
        return errorReply(http::status::payload_too_large, "The body is too large.");
    if (error == http::error::header_limit)
        return errorReply(http::status::request_header_fields_too_large, "The header is too large.");
    const bool malformed = error.category() == http::make_error_code(http::error::bad_method).category();
    if (malformed && error != http::error::end_of_stream && error != http::error::partial_message)
        return errorReply(http::status::bad_request, "This is not an HTTP request: " + error.message() + '.');
    return std::nullopt;
}

} // namespace

HttpConnection::HttpConnection(asio::ip::tcp::socket socket, HttpConnectionContext &context)
    : m_context(context)
    , m_stream(std::move(socket))
{
    m_context.connections.insert(this);
    ErrorCode ignored; // the first read will tell
    m_stream.socket().set_option(asio::ip::tcp::no_delay(true), ignored);
    const auto peer = m_stream.socket().remote_endpoint(ignored);
    m_request.fromLoopback = !ignored && isLoopback(peer.address());
}

HttpConnection::~HttpConnection()
{
    m_context.connections.erase(this);
}

void HttpConnection::end()
{
    m_ending = true;
    if (m_file)
        m_file->cancel();
    if (!m_handling)
        m_stream.close();
}

void HttpConnection::readHeader()
{
    m_parser.emplace();
    m_parser->header_limit(m_context.options.maxHeaderBytes);
    m_parser->body_limit(m_context.options.maxBodyBytes);
    m_stream.expires_after(m_context.options.idleTimeout);
    http::async_read_header(m_stream, m_buffer, *m_parser,
        [self = shared_from_this()](ErrorCode error, std::size_t) { self->onHeader(error); });
}

void HttpConnection::onHeader(ErrorCode error)
{
    if (error)
        return onReadFailed(error);
    if (boost::beast::iequals(m_parser->get()[http::field::expect], "100-continue"))
        return sendContinue();
    readBody();
}

void HttpConnection::sendContinue()
{
    m_continue = {http::status::continue_, 11};
    m_stream.expires_after(m_context.options.writeTimeout);
    http::async_write(m_stream, m_continue, [self = shared_from_this()](ErrorCode error, std::size_t) {
        if (!error)
            self->readBody();
    });
}

void HttpConnection::readBody()
{
    m_stream.expires_after(m_context.options.bodyTimeout);
    http::async_read(m_stream, m_buffer, *m_parser,
        [self = shared_from_this()](ErrorCode error, std::size_t) { self->onBody(error); });
}

void HttpConnection::onBody(ErrorCode error)
{
    if (error)
        return onReadFailed(error);
    if (m_ending)
        return;
    m_stream.expires_never();
    m_request.message = m_parser->release();
    handle();
}

void HttpConnection::onReadFailed(ErrorCode error)
{
    if (std::optional<HttpResponse> reply = replyToUnreadable(error))
        write(std::move(*reply), false);
}

void HttpConnection::handle()
{
    m_handling = true;
    asio::post(m_context.workers, [self = shared_from_this()]() mutable {
        HttpReply reply = self->m_context.handler(self->m_request);
        const auto executor = self->m_stream.get_executor();
        asio::post(executor, [self = std::move(self), reply = std::move(reply)]() mutable {
            self->write(std::move(reply), self->m_request.message.keep_alive());
        });
    });
}

void HttpConnection::write(HttpReply reply, bool keepAlive)
{
    m_handling = false;
    m_response = std::move(reply.message);
    m_response.version(11);
    m_response.set(http::field::server, serverName);
    m_response.keep_alive(keepAlive && !m_ending);
    if (reply.file) {
        m_response.content_length(reply.file->bytes);
        m_file
            = std::make_unique<FileSender>(m_stream, std::move(*reply.file), m_context.options.writeTimeout);
    } else if (m_response.result() != http::status::no_content) { // which has no length either
        m_response.prepare_payload();
    }
    m_stream.expires_after(m_ending ? lingerTime : m_context.options.writeTimeout);
    http::async_write(m_stream, m_response,
        [self = shared_from_this()](ErrorCode error, std::size_t) { self->onHeadWritten(error); });
}

void HttpConnection::onHeadWritten(ErrorCode error)
{
    if (error || !m_file || m_ending) // a file may take longer than anyone waits for the end
        return onWritten(error);
    m_file->start([self = shared_from_this()](ErrorCode fileError) {
        self->m_file.reset();
        self->onWritten(fileError);
    });
}

void HttpConnection::onWritten(ErrorCode error)
{
    if (error || m_ending)
        return;
    if (m_response.keep_alive())
        readHeader();
    else
        linger();
}

void HttpConnection::linger()
{
    ErrorCode error;
    m_stream.socket().shutdown(asio::ip::tcp::socket::shutdown_send, error);
    if (error)
        return;
    m_stream.expires_after(lingerTime);
    drain();
}

void HttpConnection::drain()
{
    m_stream.async_read_some(
        asio::buffer(m_drained), [self = shared_from_this()](ErrorCode error, std::size_t) {
            if (!error)
                self->drain();
        });
}

} // namespace orvane::cloud
