#pragma once

#include "core/DeviceFleet.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace orvane::cloud {

class ClientConnection;

// All connections of the gateway, and the network faults that tests asked for. Owned by GatewayFleet; any
// thread. Nothing is called on a connection while the registry's lock is held.
class ConnectionRegistry
{
public:
    using Connection = std::shared_ptr<ClientConnection>;

    void add(const Connection &connection);
    // The connection signed in. Returns the connection that had the session before, if any. A bandwidth limit
    // of the pad is put into effect.
    Connection signIn(const Connection &connection, const std::string &sessionId, const std::string &padCode);
    void remove(std::uint64_t connectionId);

    std::vector<Connection> withSession(const std::string &sessionId) const;
    std::vector<Connection> withPad(const std::string &padCode) const; // empty = all, signed in or not
    std::size_t size() const;

    // Also for connections to come. 0 = no limit; an empty pad code replaces the limits of all pads.
    void limitBandwidth(const std::string &padCode, int kbitPerSec);
    std::vector<SessionStats> stats() const;

    // False when there are still connections at the deadline.
    bool waitUntilEmpty(std::chrono::steady_clock::time_point deadline) const;

private:
    struct Entry
    {
        Connection connection;
        std::string sessionId;
        std::string padCode;
    };

    int limitFor(const std::string &padCode) const; // with the lock held

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_emptied;
    std::map<std::uint64_t, Entry> m_entries; // m_mutex
    std::map<std::string, int> m_kbitPerSecByPad; // m_mutex
    int m_kbitPerSecForAll = 0; // m_mutex
};

} // namespace orvane::cloud
