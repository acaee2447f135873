#include "gateway/ClientConnection.h"

#include "gateway/ConnectionRegistry.h"
#include "gateway/DeviceHost.h"
#include "gateway/GatewayLog.h"

#include <boost/asio/post.hpp>

#include <algorithm>

namespace orvane::cloud {

namespace http = boost::beast::http;
namespace websocket = boost::beast::websocket;

namespace {

constexpr std::uint32_t ProtocolVersion = 1;
constexpr const char *StreamPath = "/stream";
constexpr std::uint32_t MaxRequestHeaderBytes = 16 * 1024;
constexpr std::size_t ReadChunkBytes = std::size_t(64) * 1024;
// A large message's buffer is given back after it.
constexpr std::size_t KeptBufferBytes = std::size_t(256) * 1024;
// Reading pauses while more than this waits for the device or for the client to read its answers.
constexpr int MaxPendingMessages = 64;
constexpr std::size_t MaxPendingBytes = std::size_t(8) * 1024 * 1024;
constexpr std::size_t MaxOutgoing = 256;
// A client that does not read what it is sent is given up when this much waits for it. Video alone stops long
// before, as it waits for the client's acknowledgements.
constexpr std::size_t MaxOutgoingBytes = std::size_t(16) * 1024 * 1024;

} // namespace

ClientConnection::ClientConnection(std::uint64_t id, boost::asio::ip::tcp::socket socket,
    ConnectionRegistry &registry, LoginCheck check, const ConnectionTimes &times)
    : m_id(id)
    , m_registry(registry)
    , m_check(std::move(check))
    , m_times(times)
    , m_counters(std::make_shared<SessionCounters>())
    , m_stream(ShapedSocket(std::move(socket)))
    , m_timer(m_stream.get_executor())
{
    m_stream.binary(true);
    m_stream.auto_fragment(false);
    m_stream.read_message_max(0); // onRead() looks at the size, so that the client can be told
    m_request.header_limit(MaxRequestHeaderBytes);
}

ClientConnection::~ClientConnection() = default;

template <typename Function>
void ClientConnection::onNetworkThread(Function function)
{
    boost::asio::post(m_stream.get_executor(),
        [self = shared_from_this(), function = std::move(function)]() mutable { function(*self); });
}

// --- Any thread ---

void ClientConnection::sendControl(std::string message)
{
    onNetworkThread([message = std::move(message)](ClientConnection &self) mutable {
        self.enqueue({std::move(message), false});
    });
}

void ClientConnection::sendVideo(std::string message)
{
    onNetworkThread([message = std::move(message)](ClientConnection &self) mutable {
        self.enqueue({std::move(message), true});
    });
}

void ClientConnection::accept(std::string loginResult)
{
    onNetworkThread([loginResult = std::move(loginResult)](ClientConnection &self) mutable {
        self.enqueue({std::move(loginResult), false});
        if (self.m_state == State::SignedIn) {
            self.m_heardAt = Clock::now();
            self.watchPeer();
            self.read();
        }
    });
}

void ClientConnection::refuse(LoginCode code, const std::string &reason)
{
    onNetworkThread([code, reason](ClientConnection &self) {
        self.endNow(server::loginRefused(code, reason), "login refused: " + reason);
    });
}

void ClientConnection::end(EndCode code, const std::string &reason)
{
    onNetworkThread(
        [code, reason](ClientConnection &self) { self.endNow(server::sessionEnd(code, reason), reason); });
}

void ClientConnection::endSession(bool expired)
{
    end(expired ? EndCode::Expired : EndCode::Closed,
        expired ? "the device's time is over" : "the session was given back");
}

void ClientConnection::cut()
{
    onNetworkThread([](ClientConnection &self) { self.close("cut on request"); });
}

void ClientConnection::stall(std::chrono::milliseconds duration)
{
    onNetworkThread([duration](ClientConnection &self) {
        self.m_stream.next_layer().stallUntil(Clock::now() + duration);
    });
}

void ClientConnection::limitSending(int kbitPerSec)
{
    onNetworkThread(
        [kbitPerSec](ClientConnection &self) { self.m_stream.next_layer().limitSending(kbitPerSec); });
}

// --- Handshake (network thread, as everything below) ---

void ClientConnection::start()
{
    ErrorCode error;
    m_stream.next_layer().socket().set_option(boost::asio::ip::tcp::no_delay(true), error);
    if (error) {
        return close("the socket cannot be set up: " + error.message());
    }
    startLoginTimer();
    http::async_read_header(m_stream.next_layer(), m_buffer, m_request,
        [self = shared_from_this()](const ErrorCode &failure, std::size_t) {
            if (failure) {
                self->close("no request: " + failure.message());
            } else {
                self->onRequest();
            }
        });
}

void ClientConnection::startLoginTimer()
{
    m_timer.expires_after(m_times.login);
    m_timer.async_wait([self = shared_from_this()](const ErrorCode &error) {
        if (error || self->m_state == State::SignedIn || self->m_state == State::CheckingLogin) {
            return;
        }
        if (self->m_state == State::AwaitingLogin) {
            self->protocolError("no login in time");
        } else if (self->m_state == State::Handshake) {
            self->close("no handshake in time");
        }
    });
}

void ClientConnection::onRequest()
{
    const auto &request = m_request.get();
    const auto target = request.target();
    const auto path = target.substr(0, target.find('?'));
    m_buffer.clear(); // a client must not send more before the answer
    if (!websocket::is_upgrade(request)) {
        return refuseRequest(http::status::upgrade_required);
    }
    if (path != StreamPath) {
        return refuseRequest(http::status::not_found);
    }
    m_stream.async_accept(request, [self = shared_from_this()](const ErrorCode &error) {
        if (error) {
            self->close("no WebSocket: " + error.message());
        } else {
            self->onAccepted();
        }
    });
}

void ClientConnection::refuseRequest(http::status status)
{
    m_refusal = {status, 11};
    m_refusal.keep_alive(false);
    if (status == http::status::upgrade_required) {
        m_refusal.set(http::field::upgrade, "websocket");
    }
    m_refusal.prepare_payload();
    http::async_write(m_stream.next_layer(), m_refusal,
        [self = shared_from_this()](const ErrorCode &, std::size_t) { self->close("not a stream request"); });
}

void ClientConnection::onAccepted()
{
    if (m_state != State::Handshake) {
        return;
    }
    m_state = State::AwaitingLogin;
    read();
}

// --- Reading ---

bool ClientConnection::mayRead() const
{
    return m_pendingMessages < MaxPendingMessages && m_pendingBytes < MaxPendingBytes
        && m_outgoing.size() < MaxOutgoing;
}

void ClientConnection::read()
{
    if (m_reading || (m_state != State::AwaitingLogin && m_state != State::SignedIn)) {
        return;
    }
    if (!mayRead()) {
        m_resumeWanted = true;
        // The device may have finished between the two: then nobody will call again.
        if (!mayRead() || !m_resumeWanted.exchange(false)) {
            return;
        }
    }
    m_reading = true;
    m_stream.async_read_some(
        m_buffer, ReadChunkBytes, [self = shared_from_this()](const ErrorCode &error, std::size_t) {
            self->m_reading = false;
            if (error == websocket::error::closed) {
                self->close("closed by the client");
            } else if (error) {
                self->close("connection lost: " + error.message());
            } else {
                self->onRead();
            }
        });
}

void ClientConnection::resumeReading()
{
    m_resumeWanted = false;
    m_heardAt = Clock::now(); // the silence was ours
    read();
}

void ClientConnection::onRead()
{
    if (m_state == State::Ending || m_state == State::Closed) {
        return;
    }
    m_heardAt = Clock::now();
    if (m_buffer.size() > MaxClientMessageBytes) {
        return protocolError("the message is too large");
    }
    if (m_stream.is_message_done()) {
        onMessage();
    }
    read();
}

void ClientConnection::onMessage()
{
    if (!m_stream.got_binary()) {
        return protocolError("a text message");
    }
    const std::size_t bytes = m_buffer.size();
    ClientMessage message = readClientMessage({static_cast<const char *>(m_buffer.data().data()), bytes});
    m_buffer.clear();
    if (m_buffer.capacity() > KeptBufferBytes) {
        m_buffer.shrink_to_fit();
    }
    if (const auto *malformed = std::get_if<client::Malformed>(&message)) {
        protocolError(malformed->reason);
    } else if (m_state == State::AwaitingLogin) {
        beforeLogin(message);
    } else {
        whileSignedIn(message, bytes);
    }
}

void ClientConnection::protocolError(const std::string &reason)
{
    endNow(server::sessionEnd(EndCode::ProtocolError, reason), reason);
}

// --- Login ---

void ClientConnection::beforeLogin(ClientMessage &message)
{
    auto *login = std::get_if<client::Login>(&message);
    if (!login) {
        return protocolError("the first message is not a login");
    }
    if (login->protocolVersion != ProtocolVersion) {
        return refuse(LoginCode::UnsupportedVersion,
            "protocol version " + std::to_string(login->protocolVersion) + " is not supported");
    }
    m_state = State::CheckingLogin; // nothing is read before the answer
    m_check(*login, [self = shared_from_this(), login = *login](LoginAnswer answer) {
        self->onLoginAnswer(login, std::move(answer));
    });
}

void ClientConnection::onLoginAnswer(const client::Login &login, LoginAnswer answer)
{
    if (m_state != State::CheckingLogin) {
        return; // cut meanwhile
    }
    if (answer.code != LoginCode::Ok) {
        return refuse(answer.code, answer.reason);
    }
    m_state = State::SignedIn;
    m_device = std::move(answer.device);
    const auto previous = m_registry.signIn(shared_from_this(), login.sessionId, m_device->padCode());
    if (previous) {
        previous->end(EndCode::Closed, "a newer connection has taken over the session");
    }
    qCInfo(gatewayLog, "connection %llu: signed in to %s", static_cast<unsigned long long>(m_id),
        m_device->padCode().c_str());
    m_device->join({m_id, login.sessionId, shared_from_this(), m_counters});
    checkAgain(login);
}

// Whoever ends a session first makes it invalid and then looks for its connections in the registry. A session
// that ended between its check and the registration was not found there; from now on it would be.
void ClientConnection::checkAgain(const client::Login &login)
{
    m_check(login, [self = shared_from_this()](const LoginAnswer &answer) { self->onSecondAnswer(answer); });
}

void ClientConnection::onSecondAnswer(const LoginAnswer &answer)
{
    switch (answer.code) {
    case LoginCode::Ok:
        return;
    case LoginCode::Busy:
        return end(EndCode::Shutdown, answer.reason); // the client may try again
    case LoginCode::Expired:
        return endSession(true);
    case LoginCode::UnknownSession:
    case LoginCode::UnsupportedVersion:
        return endSession(false);
    }
}

// --- Signed in ---

void ClientConnection::whileSignedIn(ClientMessage &message, std::size_t bytes)
{
    if (std::holds_alternative<client::Login>(message)) {
        protocolError("a second login");
    } else if (const auto *ping = std::get_if<client::Ping>(&message)) {
        enqueue({server::pong(ping->id, ping->sentUs, toMicroseconds(Clock::now())), false});
    } else if (const auto *pong = std::get_if<client::Pong>(&message)) {
        onPong(*pong);
    } else if (!std::holds_alternative<client::Unknown>(message)) {
        toDevice(message, bytes);
    }
}

void ClientConnection::onPong(const client::Pong &pong)
{
    if (pong.id == m_lastPingId && m_lastPingId != 0) {
        m_device->learnPathDelay(
            m_id, std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - m_lastPingAt));
    }
}

void ClientConnection::toDevice(ClientMessage &message, std::size_t bytes)
{
    ++m_pendingMessages;
    m_pendingBytes += bytes;
    m_device->receive(
        m_id, std::move(message), [self = shared_from_this(), bytes] { self->onDeviceDone(bytes); });
}

void ClientConnection::onDeviceDone(std::size_t bytes)
{
    --m_pendingMessages;
    m_pendingBytes -= bytes;
    if (m_pendingMessages <= MaxPendingMessages / 2 && m_pendingBytes <= MaxPendingBytes / 2
        && m_resumeWanted.exchange(false)) {
        onNetworkThread([](ClientConnection &self) { self.resumeReading(); });
    }
}

void ClientConnection::watchPeer()
{
    m_lastPingAt = Clock::now();
    enqueue({server::ping(++m_lastPingId, toMicroseconds(m_lastPingAt)), false});
    m_timer.expires_after(m_times.pingInterval);
    m_timer.async_wait([self = shared_from_this()](const ErrorCode &error) {
        if (!error) {
            self->onWatch();
        }
    });
}

void ClientConnection::onWatch()
{
    if (m_state != State::SignedIn) {
        return;
    }
    const TimePoint now = Clock::now();
    if (m_stream.next_layer().isStalled(now) || !m_reading) {
        m_heardAt = now; // it is us who do not listen
    }
    if (now - m_heardAt >= m_times.silence) {
        return close("the client is silent");
    }
    watchPeer();
}

// --- Writing ---

void ClientConnection::enqueue(Outgoing outgoing)
{
    if (m_state != State::SignedIn) {
        return;
    }
    m_outgoingBytes += outgoing.message.size();
    if (m_outgoingBytes > MaxOutgoingBytes) {
        return close("the client does not read");
    }
    if (outgoing.video) {
        m_outgoing.push_back(std::move(outgoing));
    } else {
        const auto begin = m_outgoing.begin() + (m_writing ? 1 : 0);
        const auto firstVideo
            = std::find_if(begin, m_outgoing.end(), [](const Outgoing &o) { return o.video; });
        m_outgoing.insert(firstVideo, std::move(outgoing));
    }
    write();
}

void ClientConnection::write()
{
    if (m_writing || m_outgoing.empty() || m_state == State::Closed) {
        return;
    }
    m_writing = true;
    m_stream.async_write(boost::asio::buffer(m_outgoing.front().message),
        [self = shared_from_this()](const ErrorCode &error, std::size_t bytes) {
            self->m_writing = false;
            if (error) {
                self->close("connection lost: " + error.message());
            } else {
                self->onWritten(bytes);
            }
        });
}

void ClientConnection::onWritten(std::size_t bytes)
{
    m_counters->bytesSent += bytes;
    m_outgoingBytes -= std::min(m_outgoingBytes, m_outgoing.front().message.size());
    m_outgoing.pop_front();
    if (m_state == State::Ending && m_outgoing.empty()) {
        return sayGoodbye();
    }
    write();
    if (m_resumeWanted && mayRead()) {
        resumeReading();
    }
}

// --- The end ---

void ClientConnection::endNow(std::string farewell, const std::string &why)
{
    if (m_state == State::Ending || m_state == State::Closed) {
        return;
    }
    if (m_state == State::Handshake) {
        return close(why);
    }
    qCInfo(gatewayLog, "connection %llu: ended: %s", static_cast<unsigned long long>(m_id), why.c_str());
    m_state = State::Ending;
    leaveDevice();
    m_outgoing.erase(m_outgoing.begin() + (m_writing ? 1 : 0), m_outgoing.end());
    m_outgoing.push_back({std::move(farewell), false});
    m_timer.expires_after(m_times.closing);
    m_timer.async_wait([self = shared_from_this()](const ErrorCode &error) {
        if (!error) {
            self->close("the client did not close");
        }
    });
    write();
}

void ClientConnection::sayGoodbye()
{
    // Reads and drops what the client still sends until it has answered, so that the farewell is not lost.
    m_stream.async_close(websocket::close_code::normal, [self = shared_from_this()](const ErrorCode &) {
        self->close("said goodbye"); // whether or not the client answered
    });
}

void ClientConnection::leaveDevice()
{
    if (m_device) {
        m_device->leave(m_id);
        m_device.reset();
    }
}

void ClientConnection::close(const std::string &why)
{
    if (m_state == State::Closed) {
        return;
    }
    if (m_state != State::Ending) {
        qCInfo(gatewayLog, "connection %llu: closed: %s", static_cast<unsigned long long>(m_id), why.c_str());
    }
    m_state = State::Closed;
    leaveDevice();
    m_timer.cancel();
    m_stream.next_layer().close();
    m_registry.remove(m_id);
}

} // namespace orvane::cloud
