#pragma once

#include "gateway/Clock.h"

namespace orvane::cloud {

// Spaces the frames of one session. Frames of their own accord (animation) keep to the level's frame rate; a
// frame that shows the effect of input goes at once, up to the rate of a fast screen, so that what the user
// does is never held back. Pure logic, time is passed in; used by one thread at a time (Viewer).
class FramePacer
{
public:
    void setFrameRate(int framesPerSecond) { m_frameRate = framesPerSecond; }

    // The earliest time at which the next frame may be encoded; in the past or present = now.
    TimePoint nextFrameTime(bool afterInput, TimePoint now) const;
    void frameSent(TimePoint now);

private:
    // When the frame after one sent now is due. A frame that came late by less than the tolerance does not
    // shift the ones after it.
    static TimePoint advance(
        TimePoint due, TimePoint now, Clock::duration interval, Clock::duration tolerance);
    Clock::duration interval() const;

    int m_frameRate = 25;
    TimePoint m_due{};
    TimePoint m_inputDue{};
};

} // namespace orvane::cloud
