#include "api/ExpiryWatch.h"

#include "api/ApiLog.h"
#include "api/DatabaseError.h"
#include "api/ServiceData.h"
#include "core/DeviceFleet.h"

#include <algorithm>

namespace orvane::cloud {

namespace {

constexpr std::chrono::milliseconds longestSleep = std::chrono::seconds(30);

} // namespace

ExpiryWatch::ExpiryWatch(ServiceData &data, DeviceFleet &fleet)
    : m_data(data)
    , m_fleet(fleet)
    , m_checkedUntil(data.clocks.wall())
{ }

ExpiryWatch::~ExpiryWatch()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void ExpiryWatch::start()
{
    m_thread = std::thread([this] { run(); });
}

void ExpiryWatch::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_stopping) {
        std::chrono::milliseconds sleep = longestSleep;
        try {
            checkLocked();
            sleep = timeToNextCheck();
        } catch (const DatabaseError &error) {
            qCWarning(apiLog, "looking for what has expired: %s", error.what());
        }
        m_wake.wait_for(lock, sleep, [this] { return m_stopping; });
    }
}

void ExpiryWatch::check()
{
    const std::lock_guard lock(m_mutex);
    checkLocked();
}

bool ExpiryWatch::expireNow(const std::string &padCode)
{
    const std::lock_guard lock(m_mutex);
    // Never before m_checkedUntil, or the check would not see it.
    if (!m_data.devices.setExpiresAt(padCode, m_data.clocks.wall()))
        return false;
    checkLocked();
    return true;
}

void ExpiryWatch::checkLocked()
{
    const WallTime now = m_data.clocks.wall();
    // Both ends included: ending a session twice does no harm, and neither does a calendar that was set back.
    const WallTime from = std::min(m_checkedUntil, now);
    for (const std::string &sessionId : m_data.sessions.expiredBetween(from, now))
        m_fleet.endSession(sessionId, true);
    m_checkedUntil = now;
    for (const std::string &sessionId : m_data.signIns.removeExpired())
        m_fleet.endSession(sessionId, false);
}

std::chrono::milliseconds ExpiryWatch::timeToNextCheck() const
{
    const std::optional<WallTime> next = m_data.devices.nextExpiry(m_checkedUntil);
    if (!next)
        return longestSleep;
    return std::clamp(*next - m_data.clocks.wall(), std::chrono::milliseconds(1), longestSleep);
}

} // namespace orvane::cloud
