#pragma once

#include "gateway/Clock.h"

#include <cstddef>
#include <deque>
#include <optional>

namespace orvane::cloud {

// Decides how much video may be on its way to one client, so that a picture never waits behind older ones:
// not in our queues, not in the kernel's, not in the path's. Works from the client's acknowledgements alone,
// as they are the only thing that tells about every queue at once.
//
// The smallest acknowledgement delay seen lately is the path's own delay; what is above it is queueing. While
// queueing stays small, the window grows with what is acknowledged; when it passes the target, the window is
// cut to what the path carried in its own delay plus the target. One frame may always be under way.
//
// Pure logic, time is passed in; used by one thread at a time (Viewer).
class SendWindow
{
public:
    SendWindow();

    // What one acknowledgement taught.
    struct Ack
    {
        std::chrono::microseconds queueDelay{0}; // above the path's own delay
        bool congested = false; // the path carries no more than what it gets, and more is wanted
        int kbitPerSec = 0; // what the path carries, while it is congested
    };

    // A frame may be encoded and sent now.
    bool isOpen() const;
    // A frame was handed to the connection.
    void sent(std::uint64_t frameId, std::size_t bytes, TimePoint now);
    // The client has every frame up to `frameId`. Nothing for an id that is not under way.
    std::optional<Ack> acknowledged(std::uint64_t frameId, TimePoint now);
    // A round trip of something small, such as a ping: it tells the path's own delay before any frame does.
    void learnPathDelay(std::chrono::microseconds delay, TimePoint now);
    // A frame was wanted while the window was closed: only then is there a reason to grow.
    void noteDemand() { m_limited = true; }

    // The oldest frame under way has been queueing for too long already.
    bool isCongested(TimePoint now) const;

    bool isEmpty() const { return m_frames.empty(); }
    std::size_t bytesUnderWay() const { return m_bytes; }
    std::size_t windowBytes() const { return m_window; }

private:
    struct Frame
    {
        std::uint64_t id;
        std::size_t bytes;
        std::size_t bytesUnderWay; // this one included, when it was sent
        TimePoint sentAt;
    };

    std::chrono::microseconds pathDelay() const;
    void resize(const Frame &frame, std::chrono::microseconds delay, std::size_t ackedBytes, TimePoint now);

    std::deque<Frame> m_frames;
    std::size_t m_bytes = 0;
    std::size_t m_window;
    bool m_limited = false;
    TimePoint m_lastCut{};
    // Smallest delay ever, of the running and of the previous period: a longer route is learnt within two
    // periods, but a queue that never empties is not mistaken for one without end.
    std::optional<std::chrono::microseconds> m_leastDelay;
    std::optional<std::chrono::microseconds> m_minDelay;
    std::optional<std::chrono::microseconds> m_previousMinDelay;
    TimePoint m_periodStart{};
};

} // namespace orvane::cloud
