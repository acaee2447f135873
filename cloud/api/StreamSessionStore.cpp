#include "api/StreamSessionStore.h"

#include "api/ApiLog.h"
#include "api/DatabaseError.h"
#include "api/RandomToken.h"
#include "api/Statement.h"
#include "api/Transaction.h"

namespace orvane::cloud {

namespace {

constexpr std::size_t sessionIdBytes = 16;

} // namespace

StreamSessionStore::StreamSessionStore(Database &database, Clocks clocks)
    : m_database(database)
    , m_clocks(std::move(clocks))
{ }

std::vector<StreamSessionStore::Granted> StreamSessionStore::grant(
    const SignIn &signIn, const std::vector<std::string> &padCodes)
{
    std::vector<Granted> granted;
    granted.reserve(padCodes.size());
    Transaction transaction(m_database);
    for (const std::string &padCode : padCodes)
        granted.push_back(grantOne(signIn, padCode));
    transaction.commit();
    return granted;
}

StreamSessionStore::Granted StreamSessionStore::grantOne(const SignIn &signIn, const std::string &padCode)
{
    Granted granted;
    granted.session = StreamSession{randomToken(sessionIdBytes), padCode, signIn.userId};
    Statement(m_database,
        "INSERT INTO stream_sessions (session_id, pad_code, user_id, sign_in_id) VALUES (?, ?, ?, ?)",
        granted.session.sessionId, padCode, std::int64_t{signIn.userId}, signIn.id)
        .run();
    Statement surplus(m_database,
        "SELECT session_id FROM stream_sessions WHERE pad_code = ? AND user_id = ?"
        " ORDER BY id DESC LIMIT -1 OFFSET ?",
        padCode, std::int64_t{signIn.userId}, std::int64_t{maxSessionsPerUserAndDevice});
    granted.replaced = surplus.texts();
    for (const std::string &sessionId : granted.replaced)
        Statement(m_database, "DELETE FROM stream_sessions WHERE session_id = ?", sessionId).run();
    return granted;
}

std::vector<std::string> StreamSessionStore::giveBack(
    std::int32_t userId, const std::vector<std::string> &padCodes)
{
    std::vector<std::string> sessions;
    Transaction transaction(m_database);
    for (const std::string &padCode : padCodes) {
        Statement remove(m_database,
            "DELETE FROM stream_sessions WHERE pad_code = ? AND user_id = ? RETURNING session_id", padCode,
            std::int64_t{userId});
        const std::vector<std::string> ofDevice = remove.texts();
        sessions.insert(sessions.end(), ofDevice.begin(), ofDevice.end());
    }
    transaction.commit();
    return sessions;
}

std::vector<std::string> StreamSessionStore::expiredBetween(WallTime after, WallTime until) const
{
    const Database::Lock lock = m_database.lock();
    Statement select(m_database,
        "SELECT session_id FROM stream_sessions JOIN devices USING (pad_code)"
        " WHERE devices.expires_at > ? AND devices.expires_at <= ?",
        after, until);
    return select.texts();
}

SessionState StreamSessionStore::check(const StreamSession &session)
{
    try {
        return lookUp(session);
    } catch (const DatabaseError &error) {
        qCWarning(apiLog, "a streaming session could not be looked up: %s", error.what());
        return SessionState::Unknown;
    }
}

SessionState StreamSessionStore::lookUp(const StreamSession &session) const
{
    const Database::Lock lock = m_database.lock();
    Statement select(m_database,
        "SELECT devices.expires_at FROM stream_sessions"
        " JOIN devices USING (pad_code) JOIN sign_ins ON sign_ins.id = sign_in_id"
        " WHERE session_id = ? AND pad_code = ? AND stream_sessions.user_id = ? AND sign_ins.expires_at > ?",
        session.sessionId, session.padCode, std::int64_t{session.userId}, m_clocks.wall());
    if (!select.step())
        return SessionState::Unknown;
    return select.time(0) > m_clocks.wall() ? SessionState::Valid : SessionState::Expired;
}

} // namespace orvane::cloud
