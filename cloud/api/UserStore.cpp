#include "api/UserStore.h"

#include "api/PasswordHash.h"
#include "api/Statement.h"
#include "api/Transaction.h"

namespace orvane::cloud {

UserStore::UserStore(Database &database)
    : m_database(database)
{ }

bool UserStore::isEmpty() const
{
    const Database::Lock lock = m_database.lock();
    return !Statement(m_database, "SELECT 1 FROM users LIMIT 1").step();
}

User UserStore::create(const std::string &account, const std::string &name, std::string_view password)
{
    const std::string hash = hashPassword(password);
    Transaction transaction(m_database);
    Statement insert(m_database,
        "INSERT INTO users (account, name, password_hash) VALUES (?, ?, ?) RETURNING id", account, name,
        hash);
    insert.step();
    User user{static_cast<std::int32_t>(insert.integer(0)), account, name};
    insert.run();
    transaction.commit();
    return user;
}

std::optional<User> UserStore::find(std::string_view account) const
{
    const Database::Lock lock = m_database.lock();
    Statement select(m_database, "SELECT id, account, name FROM users WHERE account = ?", account);
    if (!select.step())
        return std::nullopt;
    return User{static_cast<std::int32_t>(select.integer(0)), select.text(1), select.text(2)};
}

std::optional<User> UserStore::authenticate(std::string_view account, std::string_view password) const
{
    std::optional<User> user;
    std::string hash = decoyHash();
    {
        const Database::Lock lock = m_database.lock();
        Statement select(
            m_database, "SELECT id, account, name, password_hash FROM users WHERE account = ?", account);
        if (select.step()) {
            user = User{static_cast<std::int32_t>(select.integer(0)), select.text(1), select.text(2)};
            hash = select.text(3);
        }
    }
    const bool matches = passwordMatches(password, hash);
    return matches ? user : std::nullopt;
}

} // namespace orvane::cloud
