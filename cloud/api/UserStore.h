#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::cloud {

class Database;

// One account.
struct User
{
    std::int32_t id = -1; // from 1
    std::string account; // what the user signs in with
    std::string name; // what the user is called
};

// The accounts. Every operation may be called from any thread and throws DatabaseError. Owned by ServiceData.
class UserStore
{
public:
    explicit UserStore(Database &database);

    bool isEmpty() const;
    // Adds an account; the password is stored as a salted hash. Throws also when the account exists.
    User create(const std::string &account, const std::string &name, std::string_view password);
    std::optional<User> find(std::string_view account) const;
    std::optional<User> findById(std::int32_t id) const;
    // The user if the password is right. Takes tens of milliseconds, also for an unknown account, so that the
    // time does not tell which accounts exist. The database is not locked meanwhile.
    std::optional<User> authenticate(std::string_view account, std::string_view password) const;

private:
    Database &m_database;
};

} // namespace orvane::cloud
