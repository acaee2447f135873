#include "api/SignInStore.h"

#include "api/RandomToken.h"
#include "api/Statement.h"
#include "api/Transaction.h"

#include <openssl/sha.h>

namespace orvane::cloud {

namespace {

constexpr std::size_t accessTokenBytes = 32;
constexpr std::size_t loginIdBytes = 12;

// A token is random, so its hash needs neither salt nor many rounds.
std::string tokenHash(std::string_view token)
{
    std::string digest(SHA256_DIGEST_LENGTH, '\0');
    SHA256(reinterpret_cast<const unsigned char *>(token.data()), token.size(),
        reinterpret_cast<unsigned char *>(digest.data()));
    return toHex(digest);
}

SignIn signInOf(const Statement &row)
{
    return SignIn{row.integer(0), static_cast<std::int32_t>(row.integer(1)), row.text(2), row.time(3)};
}

} // namespace

SignInStore::SignInStore(Database &database, Clocks clocks)
    : m_database(database)
    , m_clocks(std::move(clocks))
{ }

SignInGrant SignInStore::create(std::int32_t userId)
{
    SignInGrant grant{randomToken(accessTokenBytes), randomToken(loginIdBytes)};
    Transaction transaction(m_database);
    Statement(m_database,
        "INSERT INTO sign_ins (token_hash, login_id, user_id, expires_at) VALUES (?, ?, ?, ?)",
        tokenHash(grant.accessToken), grant.loginId, std::int64_t{userId}, m_clocks.wall() + signInLifetime)
        .run();
    transaction.commit();
    return grant;
}

std::optional<SignIn> SignInStore::find(std::string_view accessToken, std::string_view loginId) const
{
    const std::string hash = tokenHash(accessToken);
    const Database::Lock lock = m_database.lock();
    Statement select(m_database,
        "SELECT id, user_id, login_id, expires_at FROM sign_ins WHERE token_hash = ? AND expires_at > ?",
        hash, m_clocks.wall());
    if (!select.step() || !equalSecrets(select.text(2), loginId))
        return std::nullopt;
    return signInOf(select);
}

std::optional<SignIn> SignInStore::find(std::int64_t signInId) const
{
    const Database::Lock lock = m_database.lock();
    Statement select(m_database,
        "SELECT id, user_id, login_id, expires_at FROM sign_ins WHERE id = ? AND expires_at > ?", signInId,
        m_clocks.wall());
    return select.step() ? std::optional<SignIn>(signInOf(select)) : std::nullopt;
}

std::vector<std::string> SignInStore::remove(std::int64_t signInId)
{
    Transaction transaction(m_database);
    Statement select(m_database, "SELECT session_id FROM stream_sessions WHERE sign_in_id = ?", signInId);
    std::vector<std::string> sessions = select.texts();
    // The streaming sessions go with it.
    Statement(m_database, "DELETE FROM sign_ins WHERE id = ?", signInId).run();
    transaction.commit();
    return sessions;
}

std::vector<std::string> SignInStore::removeExpired()
{
    const WallTime now = m_clocks.wall();
    Transaction transaction(m_database);
    Statement select(m_database,
        "SELECT session_id FROM stream_sessions WHERE sign_in_id IN"
        " (SELECT id FROM sign_ins WHERE expires_at <= ?)",
        now);
    std::vector<std::string> sessions = select.texts();
    Statement(m_database, "DELETE FROM sign_ins WHERE expires_at <= ?", now).run();
    transaction.commit();
    return sessions;
}

} // namespace orvane::cloud
