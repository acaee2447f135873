#include "gateway/ConnectionRegistry.h"

#include "gateway/ClientConnection.h"

namespace orvane::cloud {

void ConnectionRegistry::add(const Connection &connection)
{
    int limit = 0;
    {
        const std::lock_guard lock(m_mutex);
        m_entries[connection->id()] = {connection, {}, {}};
        limit = m_kbitPerSecForAll;
    }
    if (limit > 0) {
        connection->limitSending(limit);
    }
}

ConnectionRegistry::Connection ConnectionRegistry::signIn(
    const Connection &connection, const std::string &sessionId, const std::string &padCode)
{
    Connection previous;
    int limit = 0;
    {
        const std::lock_guard lock(m_mutex);
        for (auto &[id, entry] : m_entries) {
            if (entry.sessionId == sessionId && id != connection->id()) {
                previous = entry.connection;
                entry.sessionId.clear(); // it is on its way out and no longer speaks for the session
            }
        }
        m_entries[connection->id()] = {connection, sessionId, padCode};
        limit = limitFor(padCode);
    }
    connection->limitSending(limit);
    return previous;
}

void ConnectionRegistry::remove(std::uint64_t connectionId)
{
    Connection removed; // may be the last owner: destroyed after the lock is released
    const std::lock_guard lock(m_mutex);
    const auto entry = m_entries.find(connectionId);
    if (entry == m_entries.end()) {
        return;
    }
    removed = std::move(entry->second.connection);
    m_entries.erase(entry);
    if (m_entries.empty()) {
        m_emptied.notify_all();
    }
}

std::vector<ConnectionRegistry::Connection> ConnectionRegistry::withSession(
    const std::string &sessionId) const
{
    std::vector<Connection> found;
    const std::lock_guard lock(m_mutex);
    for (const auto &[id, entry] : m_entries) {
        if (!sessionId.empty() && entry.sessionId == sessionId) {
            found.push_back(entry.connection);
        }
    }
    return found;
}

std::vector<ConnectionRegistry::Connection> ConnectionRegistry::withPad(const std::string &padCode) const
{
    std::vector<Connection> found;
    const std::lock_guard lock(m_mutex);
    for (const auto &[id, entry] : m_entries) {
        if (padCode.empty() || entry.padCode == padCode) {
            found.push_back(entry.connection);
        }
    }
    return found;
}

std::size_t ConnectionRegistry::size() const
{
    const std::lock_guard lock(m_mutex);
    return m_entries.size();
}

int ConnectionRegistry::limitFor(const std::string &padCode) const
{
    const auto limit = m_kbitPerSecByPad.find(padCode);
    return limit == m_kbitPerSecByPad.end() ? m_kbitPerSecForAll : limit->second;
}

void ConnectionRegistry::limitBandwidth(const std::string &padCode, int kbitPerSec)
{
    {
        const std::lock_guard lock(m_mutex);
        if (padCode.empty()) {
            m_kbitPerSecByPad.clear();
            m_kbitPerSecForAll = kbitPerSec;
        } else {
            m_kbitPerSecByPad[padCode] = kbitPerSec;
        }
    }
    for (const Connection &connection : withPad(padCode)) {
        connection->limitSending(kbitPerSec);
    }
}

std::vector<SessionStats> ConnectionRegistry::stats() const
{
    std::vector<SessionStats> all;
    const std::lock_guard lock(m_mutex);
    for (const auto &[id, entry] : m_entries) {
        if (entry.sessionId.empty()) {
            continue;
        }
        const SessionCounters &counters = *entry.connection->counters();
        SessionStats stats;
        stats.sessionId = entry.sessionId;
        stats.padCode = entry.padCode;
        stats.bytesSent = counters.bytesSent;
        stats.framesSent = counters.framesSent;
        stats.framesDropped = counters.framesDropped;
        stats.levelRow = counters.levelRow;
        stats.automatic = counters.automatic;
        stats.castMode = counters.castMode;
        all.push_back(std::move(stats));
    }
    return all;
}

bool ConnectionRegistry::waitUntilEmpty(std::chrono::steady_clock::time_point deadline) const
{
    std::unique_lock lock(m_mutex);
    return m_emptied.wait_until(lock, deadline, [this] { return m_entries.empty(); });
}

} // namespace orvane::cloud
