#pragma once

#include "gateway/ClientLink.h"
#include "gateway/ClientMessage.h"
#include "gateway/SessionCounters.h"
#include "gateway/ShapedSocket.h"

#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace orvane::cloud {

class ConnectionRegistry;
class DeviceHost;

// How long a connection may take or be silent. Tests set shorter times.
struct ConnectionTimes
{
    std::chrono::milliseconds login{5000}; // from accept to Login
    std::chrono::milliseconds pingInterval{1000}; // also how often silence is looked at
    std::chrono::milliseconds silence{4000}; // a client that says nothing for so long is gone
    std::chrono::milliseconds closing{1000}; // for the farewell to arrive
};

// One client's connection: WebSocket handshake, login, messages both ways, end. It reads only as fast as the
// device takes the input, so that a flood of input slows its sender down and nothing is dropped.
//
// Lives on the network thread and is kept alive by its pending operations and the registry. ClientLink and
// the operations marked so may be called from any thread; they hand over to the network thread. An input that
// the device takes late may be the last to know it: then another thread destroys it, long after it was
// closed.
class ClientConnection : public ClientLink, public std::enable_shared_from_this<ClientConnection>
{
public:
    // Decides about a login, away from the network thread, and answers on the network thread: the device, or
    // why not. Asked a second time once the connection is registered, see checkAgain().
    struct LoginAnswer
    {
        LoginCode code = LoginCode::UnknownSession;
        std::string reason;
        std::shared_ptr<DeviceHost> device; // set if and only if `code` is Ok
    };
    using LoginCheck = std::function<void(client::Login, std::function<void(LoginAnswer)>)>;

    ClientConnection(std::uint64_t id, boost::asio::ip::tcp::socket socket, ConnectionRegistry &registry,
        LoginCheck check, const ConnectionTimes &times);
    ~ClientConnection() override;

    void start(); // network thread, once

    std::uint64_t id() const { return m_id; }
    const std::shared_ptr<SessionCounters> &counters() const { return m_counters; }

    // Any thread.
    void sendControl(std::string message) override;
    void sendVideo(std::string message) override;
    void accept(std::string loginResult) override;
    void refuse(LoginCode code, const std::string &reason) override;
    void end(EndCode code, const std::string &reason) override;
    void endSession(bool expired); // the session is over: given back, or its device's time has run out
    void cut(); // closes the socket at once, without a word
    void stall(std::chrono::milliseconds duration);
    void limitSending(int kbitPerSec); // 0 = no limit

private:
    enum class State { Handshake, AwaitingLogin, CheckingLogin, SignedIn, Ending, Closed };
    struct Outgoing
    {
        std::string message;
        bool video = false;
    };
    using ErrorCode = boost::system::error_code;

    void onRequest();
    void refuseRequest(boost::beast::http::status status);
    void onAccepted();
    void read();
    void onRead();
    bool mayRead() const;
    void resumeReading();
    void onMessage();
    void beforeLogin(ClientMessage &message);
    void onLoginAnswer(const client::Login &login, LoginAnswer answer);
    void checkAgain(const client::Login &login);
    void onSecondAnswer(const LoginAnswer &answer);
    void whileSignedIn(ClientMessage &message, std::size_t bytes);
    void onPong(const client::Pong &pong);
    void toDevice(ClientMessage &message, std::size_t bytes);
    void onDeviceDone(std::size_t bytes); // any thread
    void protocolError(const std::string &reason);

    void enqueue(Outgoing outgoing);
    void write();
    void onWritten(std::size_t bytes);
    void endNow(std::string farewell, const std::string &why);
    void sayGoodbye();
    void leaveDevice();
    void close(const std::string &why);

    void startLoginTimer();
    void watchPeer();
    void onWatch();

    template <typename Function>
    void onNetworkThread(Function function);

    const std::uint64_t m_id;
    ConnectionRegistry &m_registry;
    const LoginCheck m_check;
    const ConnectionTimes m_times;
    const std::shared_ptr<SessionCounters> m_counters;

    boost::beast::websocket::stream<ShapedSocket, false> m_stream;
    boost::asio::steady_timer m_timer; // login, then peer watch, then closing
    boost::beast::flat_buffer m_buffer;
    boost::beast::http::request_parser<boost::beast::http::empty_body> m_request;
    boost::beast::http::response<boost::beast::http::empty_body> m_refusal;
    State m_state = State::Handshake;
    bool m_reading = false;
    bool m_writing = false;
    std::deque<Outgoing> m_outgoing; // the first one is being written while m_writing
    std::size_t m_outgoingBytes = 0; // of m_outgoing, until the connection ends
    std::shared_ptr<DeviceHost> m_device;
    TimePoint m_heardAt{};
    std::uint64_t m_lastPingId = 0;
    TimePoint m_lastPingAt{};

    // Input that the device has not taken yet: counted up here, down by whoever gave it to the device.
    std::atomic<int> m_pendingMessages{0};
    std::atomic<std::size_t> m_pendingBytes{0};
    std::atomic<bool> m_resumeWanted{false};
};

} // namespace orvane::cloud
