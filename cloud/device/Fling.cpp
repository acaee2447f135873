#include "device/Fling.h"

#include <algorithm>
#include <cmath>

namespace orvane::cloud {

namespace {

using Seconds = std::chrono::duration<qreal>;

constexpr std::chrono::milliseconds SpeedWindow{120}; // what the finger did before does not count
constexpr qreal SlowestSpeed = 40; // pixels per second; slower movements stop
constexpr qreal FastestSpeed = 9000;
constexpr qreal SlowingPerSecond = 3.2; // the speed falls by e to this power in a second

} // namespace

void Fling::drag(qreal position, TimePoint now)
{
    m_speed = 0;
    while (!m_samples.empty() && now - m_samples.front().time > SpeedWindow) {
        m_samples.pop_front();
    }
    m_samples.push_back({position, now});
}

void Fling::release(TimePoint now)
{
    if (m_samples.size() > 1 && now - m_samples.back().time <= SpeedWindow) {
        const Sample &first = m_samples.front();
        const Sample &last = m_samples.back();
        const qreal seconds = Seconds(last.time - first.time).count();
        const qreal speed = seconds > 0 ? (last.position - first.position) / seconds : 0;
        m_speed = std::abs(speed) < SlowestSpeed ? 0 : std::clamp(speed, -FastestSpeed, FastestSpeed);
    }
    m_samples.clear();
    m_last = now;
}

void Fling::stop()
{
    m_speed = 0;
    m_samples.clear();
}

qreal Fling::advance(TimePoint now)
{
    const qreal seconds = Seconds(now - m_last).count();
    if (m_speed == 0 || seconds <= 0) {
        return 0;
    }
    m_last = now;
    const qreal before = m_speed;
    m_speed *= std::exp(-SlowingPerSecond * seconds);
    const qreal way = (before - m_speed) / SlowingPerSecond;
    if (std::abs(m_speed) < SlowestSpeed) {
        m_speed = 0;
    }
    return way;
}

} // namespace orvane::cloud
