#pragma once

#include "api/Clocks.h"
#include "api/SignInStore.h"
#include "core/SessionStore.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::cloud {

class Database;

// The granted streaming sessions, which outlive a restart. A session belongs to one sign-in and one device;
// it ends when it is given back or its user signs out. While its device's time is over it is refused as
// expired, but kept.
//
// Every operation may be called from any thread and throws DatabaseError, except check(). Owned by
// ServiceData.
class StreamSessionStore : public SessionStore
{
public:
    // Clients that crash never give their session back, so a user has at most this many per device: the
    // oldest makes way.
    static constexpr int maxSessionsPerUserAndDevice = 64;

    struct Granted
    {
        StreamSession session;
        std::vector<std::string> replaced; // ids of sessions that made way
    };

    StreamSessionStore(Database &database, Clocks clocks);

    // Grants a session with each device, all or none; in the order of the pad codes, which must exist.
    std::vector<Granted> grant(const SignIn &signIn, const std::vector<std::string> &padCodes);
    // Takes back all sessions of a user with each device, all or none. Returns their ids.
    std::vector<std::string> giveBack(std::int32_t userId, const std::vector<std::string> &padCodes);
    // Ids of the sessions with devices whose time ended after one moment, but not after another.
    std::vector<std::string> expiredBetween(WallTime after, WallTime until) const;

    // A database error is logged and answered with Unknown: who cannot be checked does not stream.
    SessionState check(const StreamSession &session) override;

private:
    Granted grantOne(const SignIn &signIn, const std::string &padCode); // within a transaction
    SessionState lookUp(const StreamSession &session) const;

    Database &m_database;
    const Clocks m_clocks;
};

} // namespace orvane::cloud
