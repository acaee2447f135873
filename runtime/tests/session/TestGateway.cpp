#include "TestGateway.h"

#include "TestCertificate.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/ssl.hpp>
#include <boost/beast/websocket.hpp>
#include <boost/beast/websocket/ssl.hpp>

#include <deque>
#include <list>
#include <stdexcept>
#include <utility>
#include <vector>

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace websocket = beast::websocket;
using asio::ip::tcp;
using boost::system::error_code;
using swplay::wire::StreamMessage;

std::optional<StreamMessage> TestPeer::next(StreamMessage::BodyCase body)
{
    while (auto message = next()) {
        if (message->body_case() == body)
            return message;
    }
    return std::nullopt;
}

swplay::wire::Login TestPeer::signIn(int rotation)
{
    const auto first = next();
    if (!first || !first->has_login())
        throw std::runtime_error("the first message is not a login");
    StreamMessage answer;
    answer.mutable_login_result()->set_screen_width(720);
    answer.mutable_login_result()->set_screen_height(1280);
    answer.mutable_login_result()->set_rotation(rotation);
    send(answer);
    return first->login();
}

int TestPeer::waitForEnd(std::chrono::milliseconds patience)
{
    return m_end.pop(patience).value_or(-1);
}

namespace {

// Runs on the gateway's thread, except for the methods of TestPeer.
template <typename Stream>
class PeerOver final : public TestPeer, public std::enable_shared_from_this<PeerOver<Stream>>
{
public:
    // `owner` has the thread's context.
    template <typename... Arguments>
    explicit PeerOver(std::shared_ptr<void> owner, Arguments &&...arguments)
        : m_owner(std::move(owner))
        , m_stream(std::forward<Arguments>(arguments)...)
    { }

    websocket::stream<Stream> &stream() { return m_stream; }

    void sendBytes(std::string bytes, bool binary) override
    {
        run([this, bytes = std::move(bytes), binary]() mutable {
            m_output.emplace_back(std::move(bytes), binary);
            if (m_output.size() == 1)
                write();
        });
    }

    void cut() override
    {
        run([this] {
            error_code ignored;
            beast::get_lowest_layer(m_stream).close(ignored);
        });
    }

    void pauseReading() override
    {
        run([this] { m_paused = true; });
    }

    void resumeReading() override
    {
        run([this] {
            m_paused = false;
            if (!m_reading && !m_over)
                read();
        });
    }

    void read()
    {
        m_reading = true;
        m_stream.async_read(
            m_input, [self = this->shared_from_this()](const error_code &error, std::size_t size) {
                self->m_reading = false;
                self->handleRead(error, size);
            });
    }

private:
    template <typename Step>
    void run(Step &&step)
    {
        asio::post(m_stream.get_executor(),
            [self = this->shared_from_this(), step = std::forward<Step>(step)]() mutable { step(); });
    }

    void handleRead(const error_code &error, std::size_t size)
    {
        if (error) {
            m_over = true;
            m_received.end();
            m_end.push(error == websocket::error::closed ? m_stream.reason().code : 0);
            return;
        }
        StreamMessage message;
        if (!message.ParseFromArray(m_input.data().data(), static_cast<int>(size)))
            throw std::runtime_error("the client sent something malformed");
        m_input.consume(size);
        if (message.has_ping() && answersPings)
            answer(message.ping());
        else
            m_received.push(std::move(message));
        if (!m_paused)
            read();
    }

    void answer(const swplay::wire::Ping &ping)
    {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        StreamMessage message;
        message.mutable_pong()->set_id(ping.id());
        message.mutable_pong()->set_ping_sent_us(ping.sent_us());
        message.mutable_pong()->set_replied_us(
            std::chrono::duration_cast<std::chrono::microseconds>(now).count() + clockAheadUs);
        send(message);
    }

    void write()
    {
        m_stream.binary(m_output.front().second);
        m_stream.async_write(asio::buffer(m_output.front().first),
            [self = this->shared_from_this()](const error_code &error, std::size_t) {
                self->m_output.pop_front();
                if (error)
                    self->m_output.clear();
                if (!self->m_output.empty())
                    self->write();
            });
    }

    const std::shared_ptr<void> m_owner;
    websocket::stream<Stream> m_stream;
    beast::flat_buffer m_input;
    std::deque<std::pair<std::string, bool>> m_output; // the first one is being written
    bool m_paused = false;
    bool m_reading = false;
    bool m_over = false;
};

using PlainPeer = PeerOver<tcp::socket>;
using TlsPeer = PeerOver<beast::ssl_stream<tcp::socket>>;

const TestCertificate &certificate()
{
    static const TestCertificate made("127.0.0.1");
    return made;
}

} // namespace

struct TestGateway::Impl : std::enable_shared_from_this<TestGateway::Impl>
{
    Impl(Kind wantedKind, std::uint16_t port)
        : kind(wantedKind)
        , acceptor(io, tcp::endpoint(asio::ip::address_v4::loopback(), port))
        , tls(asio::ssl::context::tls_server)
    {
        if (kind == Kind::Tls) {
            tls.use_certificate_file(certificate().certificateFile(), asio::ssl::context::pem);
            tls.use_private_key_file(certificate().keyFile(), asio::ssl::context::pem);
        }
    }

    void acceptNext()
    {
        acceptor.async_accept([self = shared_from_this()](const error_code &error, tcp::socket socket) {
            if (error || self->over)
                return;
            self->tcpConnections.push(1);
            self->serve(std::move(socket));
            self->acceptNext();
        });
    }

    void serve(tcp::socket socket)
    {
        socket.set_option(tcp::no_delay(true));
        if (kind == Kind::Plain) {
            auto peer = std::make_shared<PlainPeer>(shared_from_this(), std::move(socket));
            all.push_back(peer);
            shakeHands(peer);
        } else if (kind == Kind::Tls) {
            auto peer = std::make_shared<TlsPeer>(shared_from_this(), std::move(socket), tls);
            all.push_back(peer);
            peer->stream().next_layer().async_handshake(
                asio::ssl::stream_base::server, [self = shared_from_this(), peer](const error_code &error) {
                    if (!error && !self->over)
                        self->shakeHands(peer);
                });
        } else {
            error_code ignored; // the client may be gone already
            if (kind == Kind::Garbage)
                asio::write(
                    socket, asio::buffer(std::string("\x16\x03 nothing that is HTTP\r\n\r\n")), ignored);
            others.push_back(std::move(socket));
            if (kind == Kind::Garbage)
                others.back().shutdown(tcp::socket::shutdown_send, ignored);
        }
    }

    template <typename Peer>
    void shakeHands(const std::shared_ptr<Peer> &peer)
    {
        peer->stream().read_message_max(16u << 20);
        peer->stream().auto_fragment(false);
        peer->stream().async_accept([self = shared_from_this(), peer](const error_code &error) {
            if (error || self->over)
                return;
            self->peers.push(peer);
            peer->read();
        });
    }

    const Kind kind;
    asio::io_context io{1};
    tcp::acceptor acceptor;
    asio::ssl::context tls;
    std::list<tcp::socket> others; // that get no handshake
    std::vector<std::weak_ptr<TestPeer>> all; // whether or not their handshakes are done
    WaitingQueue<std::shared_ptr<TestPeer>> peers;
    WaitingQueue<int> tcpConnections;
    std::thread thread;
    bool over = false; // what completes from now on is let go
};

TestGateway::TestGateway(Kind kind, std::uint16_t port)
    : m_impl(std::make_shared<Impl>(kind, port))
{
    m_impl->acceptNext();
    m_impl->thread = std::thread([impl = m_impl.get()] { impl->io.run(); });
}

TestGateway::~TestGateway()
{
    m_impl->io.stop();
    m_impl->thread.join();
    m_impl->over = true;
    // What still waits holds references to the connections and to the gateway.
    error_code ignored;
    m_impl->acceptor.close(ignored);
    m_impl->others.clear();
    while (m_impl->peers.pop(std::chrono::milliseconds(0))) { }
    for (const auto &weak : m_impl->all) {
        if (const auto peer = weak.lock())
            peer->cut();
    }
    m_impl->io.restart();
    m_impl->io.poll();
}

std::uint16_t TestGateway::port() const
{
    return m_impl->acceptor.local_endpoint().port();
}

std::shared_ptr<TestPeer> TestGateway::accept(std::chrono::milliseconds patience)
{
    return m_impl->peers.pop(patience).value_or(nullptr);
}

bool TestGateway::waitForTcpConnection()
{
    return m_impl->tcpConnections.pop().has_value();
}

std::string TestGateway::certificateFile()
{
    return certificate().certificateFile();
}
