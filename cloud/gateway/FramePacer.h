#pragma once

#include "gateway/Clock.h"

namespace orvane::cloud {

// Why a picture has changed, from the least to the most urgent.
enum class FrameCause {
    Animation, // of the device's own accord
    Motion, // a finger moved, a camera picture came
    Press, // a finger or key went down or up, text was typed, the service acted
};

// Spaces the frames of one session. Animation keeps to the level's frame rate. A frame that shows the effect
// of input goes at once: motion up to the rate of a fast screen, a press whatever was sent before, so that
// what the user does is never held back; only presses far beyond what hands can do are slowed down. A level
// of very few frames is for looking on, not for operating: it keeps to its rate whatever the cause. Pure
// logic, time is passed in; used by one thread at a time (Viewer).
class FramePacer
{
public:
    // The highest rate at which nobody operates a device.
    static constexpr int OnlookerRate = 5;

    void setFrameRate(int framesPerSecond) { m_frameRate = framesPerSecond; }

    bool isForOnlookers() const { return m_frameRate <= OnlookerRate; }

    // The earliest time at which the next frame may be encoded; in the past or present = now.
    TimePoint nextFrameTime(FrameCause cause, TimePoint now) const;
    void frameSent(FrameCause cause, TimePoint now);

private:
    // When the frame after one sent now is due. A frame that came late by less than the tolerance does not
    // shift the ones after it.
    static TimePoint advance(
        TimePoint due, TimePoint now, Clock::duration interval, Clock::duration tolerance);
    Clock::duration interval() const;

    int m_frameRate = 25;
    TimePoint m_due{};
    TimePoint m_motionDue{};
    TimePoint m_pressDue{};
};

} // namespace orvane::cloud
