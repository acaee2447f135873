#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>

namespace orvane::cloud {

// The service's clock: steady, never set back. Logic that depends on time takes a time point as argument, so
// that tests decide what time it is.
using Clock = std::chrono::steady_clock;
using TimePoint = Clock::time_point;

// The clock's value as it travels in messages.
inline std::int64_t toMicroseconds(TimePoint time)
{
    return std::chrono::duration_cast<std::chrono::microseconds>(time.time_since_epoch()).count();
}

// What this thread has worked so far, without the time that others had its processor.
inline std::chrono::nanoseconds threadWorkTime()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace orvane::cloud
