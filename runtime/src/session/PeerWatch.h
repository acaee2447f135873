#pragma once

#include <chrono>

namespace swplay {

// Notices a peer that is gone without saying so: one from which nothing arrives although it is pinged, or one
// that has stopped reading. Owned by a session; network thread only. Times come from the caller.
class PeerWatch
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::steady_clock::duration;

    // `silenceLimit`: how long a living peer may send nothing; `writeLimit`: how long one message may take to
    // be written.
    PeerWatch(Duration silenceLimit, Duration writeLimit);

    // A connection was made.
    void reset(TimePoint now);
    void heard(TimePoint now) { m_heardAt = now; }
    void writeStarted(TimePoint now);
    void writeDone() { m_writing = false; }

    // Why the peer must be taken for dead, for the log; nullptr while it lives.
    const char *verdict(TimePoint now) const;

private:
    const Duration m_silenceLimit;
    const Duration m_writeLimit;
    TimePoint m_heardAt;
    TimePoint m_writingSince;
    bool m_writing = false;
};

} // namespace swplay
