#pragma once

#include "session/Endpoint.h"

#include <boost/asio/io_context.hpp>

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>

namespace swplay {

enum class ConnectionLoss {
    Network, // not reached, cut or closed by the gateway
    Protocol, // the gateway sent something that is not WebSocket, or a message that is too large
};

// What a connection tells its session. Called on the network thread, never from within a Connection method.
class ConnectionEvents
{
public:
    virtual ~ConnectionEvents() = default;
    virtual void connectionOpened() = 0;
    // One whole message; the bytes are valid during the call only. `text`: a text instead of a binary
    // message.
    virtual void connectionMessage(const void *data, std::size_t size, bool text) = 0;
    // The message given to write is on its way; the next one can be given.
    virtual void connectionWritten() = 0;
    // The connection is gone; nothing more comes from it. `reason` is for the log.
    virtual void connectionLost(ConnectionLoss loss, const std::string &reason) = 0;
};

struct ConnectionTimeouts
{
    std::chrono::milliseconds open{10000}; // from the name look-up to the end of the WebSocket handshake
    std::chrono::milliseconds close{500}; // for the closing handshake
};

// One WebSocket connection to a gateway, over TCP or TLS. It keeps itself alive while operations are under
// way. Owned by a session; network thread only.
class Connection
{
public:
    enum class CloseCode {
        Normal, // the client is done
        ProtocolError,
    };

    // Begins to connect and returns at once. Over TLS the gateway must show a certificate for the host that
    // an authority of the system vouches for (OpenSSL's default locations; SSL_CERT_FILE and SSL_CERT_DIR).
    static std::shared_ptr<Connection> open(boost::asio::io_context &io, const Endpoint &endpoint,
        const ConnectionTimeouts &timeouts, std::weak_ptr<ConnectionEvents> events);

    Connection() = default;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    virtual ~Connection() = default;

    // Whether a message can be written now: the connection is open and the last one is on its way.
    virtual bool isWritable() const = 0;
    // Sends one binary message. Only while isWritable.
    virtual void write(std::string message) = 0;
    // Ends the connection with a closing handshake as far as the peer takes part in time. No further events.
    virtual void close(CloseCode code, const std::string &reason) = 0;
    // Ends the connection at once. No further events.
    virtual void drop() = 0;
};

} // namespace swplay
