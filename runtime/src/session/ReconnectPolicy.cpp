#include "session/ReconnectPolicy.h"

#include <algorithm>
#include <cmath>

namespace swplay {

ReconnectPolicy::ReconnectPolicy(Random random, std::chrono::milliseconds firstDelay)
    : m_random(std::move(random))
    , m_firstDelay(firstDelay)
{ }

void ReconnectPolicy::signedIn(TimePoint now)
{
    m_signedInAt = now;
}

void ReconnectPolicy::lost(TimePoint now)
{
    if (now - m_signedInAt < StableAfter)
        return;
    m_triedAtOnce = false;
    m_step = m_firstDelay;
}

std::chrono::milliseconds ReconnectPolicy::nextDelay(bool atOnceAllowed)
{
    if (!m_triedAtOnce && atOnceAllowed) {
        m_triedAtOnce = true;
        return std::chrono::milliseconds(0);
    }
    const double factor = 0.5 + 0.5 * std::clamp(m_random(), 0.0, 1.0);
    const auto delay = std::chrono::milliseconds(std::llround(static_cast<double>(m_step.count()) * factor));
    m_step = std::min(m_step * 2, MaxDelay);
    return delay;
}

} // namespace swplay
