#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

namespace swplay {

// Estimates how far the gateway's clock is from ours, from pings and their pongs: of the newest samples the
// one with the shortest round trip counts, since its two ways were the least disturbed.
//
// Owned by a session; network thread only. A connection starts with a fresh estimate, since the gateway may
// be another process than before.
class ClockOffset
{
public:
    static constexpr std::size_t KeptSamples = 16;

    // A pong arrived: we sent the ping at `sentUs` and received the answer at `receivedUs`, both on our
    // clock; the gateway answered at `repliedUs` on its own. Microseconds. Answers from before their ping are
    // ignored.
    void add(std::int64_t sentUs, std::int64_t repliedUs, std::int64_t receivedUs);
    void reset();

    // Gateway clock minus our clock, or nothing before the first pong.
    std::optional<std::chrono::microseconds> offset() const;
    // The shortest of the newest round trips.
    std::optional<std::chrono::microseconds> roundTrip() const;

private:
    struct Sample
    {
        std::int64_t roundTripUs = 0;
        std::int64_t offsetUs = 0;
    };
    const Sample *best() const;

    std::deque<Sample> m_samples;
};

} // namespace swplay
