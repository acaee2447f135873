#include "api/UserStore.h"

#include "api/PasswordHash.h"
#include "api/Statement.h"
#include "api/Transaction.h"

namespace orvane::cloud {

namespace {

User userOf(const Statement &row)
{
    return User{static_cast<std::int32_t>(row.integer(0)), row.text(1), row.text(2)};
}

} // namespace

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
    return select.step() ? std::optional<User>(userOf(select)) : std::nullopt;
}

std::optional<User> UserStore::findById(std::int32_t id) const
{
    const Database::Lock lock = m_database.lock();
    Statement select(m_database, "SELECT id, account, name FROM users WHERE id = ?", std::int64_t{id});
    return select.step() ? std::optional<User>(userOf(select)) : std::nullopt;
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
            user = userOf(select);
            hash = select.text(3);
        }
    }
    const bool matches = passwordMatches(password, hash);
    return matches ? user : std::nullopt;
}

} // namespace orvane::cloud
