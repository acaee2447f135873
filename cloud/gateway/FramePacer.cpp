#include "gateway/FramePacer.h"

#include <algorithm>

namespace orvane::cloud {

namespace {

// What a fast screen shows.
constexpr auto ScreenInterval = std::chrono::microseconds(1'000'000 / 60);
constexpr auto MotionTolerance = ScreenInterval;
// Ten presses and releases in one moment, and as many as the screen shows from then on.
constexpr auto PressTolerance = 20 * ScreenInterval;

} // namespace

TimePoint FramePacer::nextFrameTime(FrameCause cause, TimePoint now) const
{
    TimePoint due = m_due;
    if (isForOnlookers()) {
        return std::max(due, now);
    }
    if (cause != FrameCause::Animation) {
        due = std::min(due, m_motionDue);
    }
    if (cause == FrameCause::Press) {
        due = std::min(due, m_pressDue);
    }
    return std::max(due, now);
}

void FramePacer::frameSent(FrameCause cause, TimePoint now)
{
    m_due = advance(m_due, now, interval(), interval() / 2);
    m_motionDue = advance(m_motionDue, now, ScreenInterval, MotionTolerance);
    if (cause == FrameCause::Press) {
        m_pressDue = advance(m_pressDue, now, ScreenInterval, PressTolerance);
    }
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
