#pragma once

#include "device/App.h"

#include <deque>

namespace orvane::cloud {

// Speed of a dragging finger, and the movement that goes on when it leaves the screen. One axis, in pixels.
// Used by the device's thread, part of the app that scrolls.
class Fling
{
public:
    // A finger is at `position`; the first call starts a drag and stops a movement.
    void drag(qreal position, TimePoint now);
    // The finger is gone; goes on moving if it was fast.
    void release(TimePoint now);
    void stop();
    bool isMoving() const { return m_speed != 0; }
    // How far it moved since the last call.
    qreal advance(TimePoint now);

private:
    struct Sample
    {
        qreal position;
        TimePoint time;
    };
    std::deque<Sample> m_samples; // of the drag; the last tenth of a second
    qreal m_speed = 0; // pixels per second, slowing down
    TimePoint m_last; // of the last advance
};

} // namespace orvane::cloud
