#include "gateway/TokenBucket.h"

#include <algorithm>

namespace orvane::cloud {

namespace {

// A burst is what passes in this time, but no less than one packet.
constexpr double BurstSeconds = 0.02;
constexpr double MinBurstBytes = 1500;

} // namespace

void TokenBucket::setRate(int kbitPerSec, TimePoint now)
{
    m_bytesPerSec = std::max(0, kbitPerSec) * 125.0;
    m_tokens = std::min(m_tokens, capacity());
    m_filledAt = now;
}

double TokenBucket::capacity() const
{
    return std::max(MinBurstBytes, m_bytesPerSec * BurstSeconds);
}

std::size_t TokenBucket::available(std::size_t wanted, TimePoint now)
{
    if (!isLimited()) {
        return wanted;
    }
    const std::chrono::duration<double> elapsed = now - m_filledAt;
    m_tokens = std::min(capacity(), m_tokens + std::max(0.0, elapsed.count()) * m_bytesPerSec);
    m_filledAt = now;
    return m_tokens < 1 ? 0 : std::min(wanted, static_cast<std::size_t>(m_tokens));
}

void TokenBucket::take(std::size_t bytes)
{
    if (isLimited()) {
        m_tokens -= static_cast<double>(bytes);
    }
}

TimePoint TokenBucket::nextTime(TimePoint now) const
{
    if (!isLimited()) {
        return now;
    }
    const double missing = std::max(0.0, capacity() / 2 - m_tokens);
    return now
        + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(missing / m_bytesPerSec));
}

} // namespace orvane::cloud
