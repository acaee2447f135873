#pragma once

#include "WaitingQueue.h"

#include "stream.pb.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <thread>

// One connection that a TestGateway accepted. All methods but the constructor: the test's thread.
class TestPeer
{
public:
    virtual ~TestPeer() = default;

    // Queues one message; they are sent in order.
    void send(const swplay::wire::StreamMessage &message) { sendBytes(message.SerializeAsString(), true); }
    virtual void sendBytes(std::string bytes, bool binary) = 0;
    // Ends the TCP connection without a closing handshake.
    virtual void cut() = 0;
    // From now on nothing is read (until resumeReading), so that the client's writes get stuck.
    virtual void pauseReading() = 0;
    virtual void resumeReading() = 0;

    // The client's next message, without pings that are answered; nothing once the connection is over.
    std::optional<swplay::wire::StreamMessage> next() { return m_received.pop(); }
    // Its next message with this body; the others before it are dropped.
    std::optional<swplay::wire::StreamMessage> next(swplay::wire::StreamMessage::BodyCase body);
    // Takes the login and answers it.
    swplay::wire::Login signIn(int rotation = 0);
    // Waits for the end of the connection. The WebSocket close code the client gave, 0 for none, -1 if it
    // goes on.
    int waitForEnd(std::chrono::milliseconds patience = Patience);

    // Whether pings are answered; the clock of the answers is the real one plus `clockAheadUs`.
    std::atomic<bool> answersPings{true};
    std::atomic<std::int64_t> clockAheadUs{0};

protected:
    WaitingQueue<swplay::wire::StreamMessage> m_received;
    WaitingQueue<int> m_end;
};

// A gateway for tests: accepts WebSocket connections on a free port of 127.0.0.1 and hands each to the test.
// Its own thread moves the bytes; what is said is the test's business.
class TestGateway
{
public:
    enum class Kind {
        Plain,
        Tls, // with a certificate for 127.0.0.1; certificateFile() is its authority
        Mute, // takes TCP connections and never answers
        Garbage, // answers every TCP connection with something that is not HTTP
    };

    explicit TestGateway(Kind kind = Kind::Plain, std::uint16_t port = 0);
    ~TestGateway();

    std::uint16_t port() const;
    // The next connection whose handshake is done; nothing if none comes in time.
    std::shared_ptr<TestPeer> accept(std::chrono::milliseconds patience = Patience);
    // Waits for a TCP connection that was accepted, whether or not a handshake follows.
    bool waitForTcpConnection();

    // The PEM file of the certificate of all TLS gateways of this process.
    static std::string certificateFile();

private:
    struct Impl;
    std::shared_ptr<Impl> m_impl;
};
