#include "gateway/FramePacer.h"

#include <algorithm>

namespace orvane::cloud {

namespace {

// What a fast screen shows. A few frames may follow each other at once, such as for a press and its release.
constexpr auto InputInterval = std::chrono::microseconds(1'000'000 / 60);
constexpr auto InputTolerance = 2 * InputInterval;

} // namespace

TimePoint FramePacer::nextFrameTime(bool afterInput, TimePoint now) const
{
    const TimePoint due = afterInput ? std::min(m_due, m_inputDue) : m_due;
    return std::max(due, now);
}

void FramePacer::frameSent(TimePoint now)
{
    m_due = advance(m_due, now, interval(), interval() / 2);
    m_inputDue = advance(m_inputDue, now, InputInterval, InputTolerance);
}

TimePoint FramePacer::advance(
    TimePoint due, TimePoint now, Clock::duration interval, Clock::duration tolerance)
{
    return std::min(std::max(due, now - tolerance), now) + interval;
}

Clock::duration FramePacer::interval() const
{
    return std::chrono::duration_cast<Clock::duration>(std::chrono::microseconds(1'000'000 / m_frameRate));
}

} // namespace orvane::cloud
