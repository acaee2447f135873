#pragma once

#include "api/Clocks.h"

#include <deque>
#include <map>
#include <mutex>
#include <string>

namespace orvane::cloud {

// Slows down guessing of passwords: after five failed sign-ins for one account within a minute, no sign-in to
// it is possible until the oldest of them is more than a minute ago. Counts for accounts that do not exist as
// well.
//
// Any thread. Owned by UserApi; a restart forgets the failures.
class SignInLimiter
{
public:
    static constexpr std::size_t maxFailures = 5;
    static constexpr std::chrono::seconds window{60};
    // Bounds the memory that made-up accounts can take; beyond it the account with the oldest failure is
    // forgotten.
    static constexpr std::size_t maxAccounts = 10'000;

    explicit SignInLimiter(Clocks clocks);

    // Whether a sign-in may be tried. Asked before the password is checked, which is expensive.
    bool allows(const std::string &account);
    // Settles a sign-in whose password was checked. False when too many failures have come in meanwhile: then
    // it must be refused, whatever the password, so that attempts side by side gain nothing.
    bool settle(const std::string &account, bool succeeded);

private:
    using Failures = std::deque<SteadyTime>; // oldest first

    bool isBlocked(const std::string &account, SteadyTime now); // with m_mutex held
    void forgetOld(SteadyTime now); // with m_mutex held

    const Clocks m_clocks;
    std::mutex m_mutex;
    std::map<std::string, Failures> m_failures; // m_mutex
};

} // namespace orvane::cloud
