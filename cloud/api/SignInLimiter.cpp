#include "api/SignInLimiter.h"

#include <algorithm>

namespace orvane::cloud {

SignInLimiter::SignInLimiter(Clocks clocks)
    : m_clocks(std::move(clocks))
{ }

bool SignInLimiter::allows(const std::string &account)
{
    const std::lock_guard lock(m_mutex);
    return !isBlocked(account, m_clocks.steady());
}

bool SignInLimiter::settle(const std::string &account, bool succeeded)
{
    const std::lock_guard lock(m_mutex);
    const SteadyTime now = m_clocks.steady();
    if (isBlocked(account, now))
        return false;
    if (succeeded) {
        m_failures.erase(account);
        return true;
    }
    if (m_failures.size() >= maxAccounts)
        forgetOld(now);
    m_failures[account].push_back(now);
    return true;
}

bool SignInLimiter::isBlocked(const std::string &account, SteadyTime now)
{
    const auto found = m_failures.find(account);
    if (found == m_failures.end())
        return false;
    Failures &failures = found->second;
    while (!failures.empty() && now - failures.front() > window)
        failures.pop_front();
    if (failures.empty()) {
        m_failures.erase(found);
        return false;
    }
    return failures.size() >= maxFailures;
}

void SignInLimiter::forgetOld(SteadyTime now)
{
    for (auto it = m_failures.begin(); it != m_failures.end();)
        it = now - it->second.back() > window ? m_failures.erase(it) : std::next(it);
    if (m_failures.size() < maxAccounts)
        return;
    const auto oldest = std::min_element(m_failures.begin(), m_failures.end(),
        [](const auto &a, const auto &b) { return a.second.front() < b.second.front(); });
    m_failures.erase(oldest);
}

} // namespace orvane::cloud
