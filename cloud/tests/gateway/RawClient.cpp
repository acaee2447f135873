#include "RawClient.h"

namespace orvane::cloud::test {

namespace websocket = boost::beast::websocket;
using boost::asio::ip::tcp;
using boost::system::error_code;

RawClient::RawClient(std::uint16_t port, const std::string &path)
    : m_stream(m_context)
{
    error_code error;
    m_stream.next_layer().connect({boost::asio::ip::make_address("127.0.0.1"), port}, error);
    if (error) {
        return;
    }
    m_stream.next_layer().set_option(tcp::no_delay(true));
    m_stream.binary(true);
    websocket::response_type response;
    m_connected = run([&](auto done) {
        m_stream.async_handshake(response, "127.0.0.1", path, [done](error_code failure) { done(failure); });
    });
    m_httpStatus = static_cast<int>(response.result_int());
}

template <typename Start>
bool RawClient::run(Start start)
{
    std::optional<error_code> result;
    m_context.restart();
    start([&result](error_code error) { result = error; });
    m_context.run_for(Limit);
    if (!result) { // the limit: give the operation up
        error_code ignored;
        m_stream.next_layer().close(ignored);
        m_context.restart();
        m_context.run_for(Limit);
        return false;
    }
    m_ended = m_ended || bool(*result);
    return !*result;
}

bool RawClient::send(const std::string &bytes)
{
    return run([&](auto done) {
        m_stream.async_write(
            boost::asio::buffer(bytes), [done](error_code error, std::size_t) { done(error); });
    });
}

bool RawClient::sendText(const std::string &text)
{
    m_stream.text(true);
    const bool sent = send(text);
    m_stream.binary(true);
    return sent;
}

std::optional<std::string> RawClient::receiveBytes()
{
    m_buffer.clear();
    const bool received = run([&](auto done) {
        m_stream.async_read(m_buffer, [done](error_code error, std::size_t) { done(error); });
    });
    if (!received) {
        return std::nullopt;
    }
    return std::string(static_cast<const char *>(m_buffer.data().data()), m_buffer.size());
}

void RawClient::answer(const Message &message)
{
    if (m_silent) {
        return;
    }
    Message reply;
    if (message.has_ping()) {
        reply.mutable_pong()->set_id(message.ping().id());
        reply.mutable_pong()->set_ping_sent_us(message.ping().sent_us());
        send(reply.SerializeAsString());
    } else if (message.has_video_frame()) {
        reply.mutable_frame_ack()->set_frame_id(message.video_frame().frame_id());
        send(reply.SerializeAsString());
    }
}

std::optional<RawClient::Message> RawClient::receiveUntil(
    const std::function<bool(const Message &)> &wanted, std::chrono::seconds limit)
{
    // Pings keep coming: the limit is for the wanted message.
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (std::chrono::steady_clock::now() < deadline) {
        const auto bytes = receiveBytes();
        Message message;
        if (!bytes || !message.ParseFromString(*bytes)) {
            return std::nullopt;
        }
        answer(message);
        if (wanted(message)) {
            return message;
        }
    }
    return std::nullopt;
}

std::optional<RawClient::Message> RawClient::receive()
{
    return receiveUntil([](const Message &m) { return !m.has_ping() && !m.has_video_frame(); });
}

std::optional<swplay::wire::VideoFrame> RawClient::receiveFrame()
{
    const auto message = receiveUntil([](const Message &m) { return m.has_video_frame(); });
    return message ? std::make_optional(message->video_frame()) : std::nullopt;
}

bool RawClient::waitForEnd()
{
    while (receiveBytes()) { }
    return m_ended;
}

} // namespace orvane::cloud::test
