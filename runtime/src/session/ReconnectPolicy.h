#pragma once

#include <chrono>
#include <functional>

namespace swplay {

// Decides how long to wait before the next try to connect: the first try after a good connection is made at
// once, the following ones back off to MaxDelay, with jitter so that the clients of a gateway that went down
// do not come back in step. There is no last try.
//
// Owned by a session; network thread only. Time and chance come from the caller.
class ReconnectPolicy
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    using Random = std::function<double()>; // uniform in [0, 1)

    static constexpr std::chrono::milliseconds FirstDelay{250};
    static constexpr std::chrono::milliseconds MaxDelay{8000};
    // A connection that lasted less than this was not a good one: it does not earn a try at once.
    static constexpr std::chrono::milliseconds StableAfter{2000};

    // `firstDelay`: the first step of the back-off; tests take another.
    explicit ReconnectPolicy(Random random, std::chrono::milliseconds firstDelay = FirstDelay);

    // The gateway accepted the login.
    void signedIn(TimePoint now);
    // A connection that was signed in is gone.
    void lost(TimePoint now);

    // The delay before the next try. `atOnceAllowed`: whether it may be zero; false where the gateway asked
    // for time. Every other delay lies between half of its step and its step: 250, 500, ... 8000 ms.
    std::chrono::milliseconds nextDelay(bool atOnceAllowed = true);

private:
    Random m_random;
    std::chrono::milliseconds m_firstDelay;
    TimePoint m_signedInAt;
    bool m_triedAtOnce = false;
    std::chrono::milliseconds m_step = m_firstDelay;
};

} // namespace swplay
