#pragma once

#include <chrono>
#include <functional>

namespace orvane::cloud {

// Wall-clock times are kept and stored in whole milliseconds since 1970-01-01 UTC.
using WallTime = std::chrono::time_point<std::chrono::system_clock, std::chrono::milliseconds>;
using SteadyTime = std::chrono::steady_clock::time_point;

// The two clocks of the HTTP API. Tests put their own in; both may be read from any thread.
struct Clocks
{
    // Calendar time: when devices and sign-ins end. May be set forward or back by the machine's owner.
    std::function<WallTime()> wall = [] {
        return std::chrono::time_point_cast<std::chrono::milliseconds>(std::chrono::system_clock::now());
    };
    // Never set back: measures spans such as "within a minute".
    std::function<SteadyTime()> steady = [] { return std::chrono::steady_clock::now(); };
};

} // namespace orvane::cloud
