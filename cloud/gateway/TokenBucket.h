#pragma once

#include "gateway/Clock.h"

#include <cstddef>

namespace orvane::cloud {

// A bandwidth limit: bytes become available at a steady rate and may be saved up for a short burst. Pure
// logic, time is passed in; used by the network thread (ShapedSocket).
class TokenBucket
{
public:
    // 0 = no limit. What was saved up is kept as far as the new limit allows.
    void setRate(int kbitPerSec, TimePoint now);
    bool isLimited() const { return m_bytesPerSec > 0; }

    // How many of `wanted` bytes may be taken now; 0 = none before nextTime().
    std::size_t available(std::size_t wanted, TimePoint now);
    void take(std::size_t bytes);
    // When a worthwhile number of bytes will be available.
    TimePoint nextTime(TimePoint now) const;

private:
    double capacity() const;

    double m_bytesPerSec = 0;
    double m_tokens = 0;
    TimePoint m_filledAt{};
};

} // namespace orvane::cloud
