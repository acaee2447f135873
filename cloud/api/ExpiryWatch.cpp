#include "api/ExpiryWatch.h"

#include "api/ApiLog.h"
#include "api/DatabaseError.h"
#include "api/ServiceData.h"
#include "core/DeviceFleet.h"

#include <algorithm>

namespace orvane::cloud {

namespace {

// A device's time may be changed, the calendar set forward, the machine asleep: none of them shortens a wait.
constexpr std::chrono::milliseconds longestSleep(500);
// While the database cannot be read, so that the log is not flooded.
constexpr std::chrono::milliseconds sleepAfterFailure(5000);

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
        std::chrono::milliseconds sleep = sleepAfterFailure;
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

bool ExpiryWatch::expireIn(const std::string &padCode, std::chrono::seconds remaining)
{
    const std::lock_guard lock(m_mutex);
    const WallTime end = m_data.clocks.wall() + remaining;
    if (!m_data.devices.setExpiresAt(padCode, end))
        return false;
    // Checks look only at what ends after this: an end at the moment of the last check must still be before
    // them.
    m_checkedUntil = std::min(m_checkedUntil, end - std::chrono::milliseconds(1));
    checkLocked();
    return true;
}

void ExpiryWatch::checkLocked()
{
    const WallTime now = m_data.clocks.wall();
    // A calendar that was set back makes devices usable again; they are over once more when their time comes.
    const WallTime after = std::min(m_checkedUntil, now);
    for (const std::string &sessionId : m_data.sessions.expiredBetween(after, now))
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
