#include "session/ClockOffset.h"

#include <algorithm>

namespace swplay {

namespace {

// Clocks count microseconds since some start; more than this (about 3000 years) is not a time, and the limit
// keeps the arithmetic below from overflowing.
constexpr std::int64_t MaxClockUs = std::int64_t{100'000'000'000} * 1'000'000;

bool isClockValue(std::int64_t us)
{
    return us > -MaxClockUs && us < MaxClockUs;
}

} // namespace

void ClockOffset::add(std::int64_t sentUs, std::int64_t repliedUs, std::int64_t receivedUs)
{
    if (!isClockValue(sentUs) || !isClockValue(repliedUs) || !isClockValue(receivedUs) || receivedUs < sentUs)
        return;
    const std::int64_t roundTripUs = receivedUs - sentUs;
    m_samples.push_back({roundTripUs, repliedUs - (sentUs + roundTripUs / 2)});
    if (m_samples.size() > KeptSamples)
        m_samples.pop_front();
}

void ClockOffset::reset()
{
    m_samples.clear();
}

const ClockOffset::Sample *ClockOffset::best() const
{
    const auto sample = std::min_element(m_samples.begin(), m_samples.end(),
        [](const Sample &a, const Sample &b) { return a.roundTripUs < b.roundTripUs; });
    return sample == m_samples.end() ? nullptr : &*sample;
}

std::optional<std::chrono::microseconds> ClockOffset::offset() const
{
    const Sample *sample = best();
    return sample ? std::optional(std::chrono::microseconds(sample->offsetUs)) : std::nullopt;
}

std::optional<std::chrono::microseconds> ClockOffset::roundTrip() const
{
    const Sample *sample = best();
    return sample ? std::optional(std::chrono::microseconds(sample->roundTripUs)) : std::nullopt;
}

} // namespace swplay
