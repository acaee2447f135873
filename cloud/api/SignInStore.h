#pragma once

#include "api/Clocks.h"
#include "api/UserStore.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::cloud {

// How long a sign-in is good for.
constexpr std::chrono::seconds signInLifetime = std::chrono::hours(24 * 30);

// What a client gets when it signs in.
struct SignInGrant
{
    std::string accessToken;
    std::string loginId;
};

// One sign-in of a user: what a request's identity headers stand for.
struct SignIn
{
    std::int64_t id = -1;
    std::int32_t userId = -1;
    std::string loginId;
    WallTime expiresAt; // not in force from this moment on
};

// The sign-ins, which outlive a restart. Access tokens are stored as SHA-256 hashes only. Every operation may
// be called from any thread and throws DatabaseError. Owned by ServiceData.
class SignInStore
{
public:
    SignInStore(Database &database, Clocks clocks);

    SignInGrant create(std::int32_t userId);
    // The sign-in of both values together; none when one is wrong or its time is over.
    std::optional<SignIn> find(std::string_view accessToken, std::string_view loginId) const;
    // Whether a sign-in of this number is in force, and whose it is.
    std::optional<SignIn> find(std::int64_t signInId) const;
    // Ends a sign-in. Returns the ids of the streaming sessions that went with it.
    std::vector<std::string> remove(std::int64_t signInId);
    // Removes the sign-ins whose time is over. Returns the ids of the streaming sessions that went with them.
    std::vector<std::string> removeExpired();

private:
    Database &m_database;
    const Clocks m_clocks;
};

} // namespace orvane::cloud
