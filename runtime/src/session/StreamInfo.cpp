#include "session/StreamInfo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace swplay {

namespace {

constexpr double MaxDelayMs = 999'999; // what a nonsensical capture time is cut to

std::int64_t toUs(std::chrono::steady_clock::time_point time)
{
    return std::chrono::duration_cast<std::chrono::microseconds>(time.time_since_epoch()).count();
}

} // namespace

void StreamInfo::reset(TimePoint now)
{
    const std::lock_guard lock(m_mutex);
    m_since = now;
    m_bytes = 0;
    m_pictures = 0;
    m_ageSumUs = 0;
    m_delayMs.reset();
}

void StreamInfo::received(std::size_t bytes, int width, int height)
{
    const std::lock_guard lock(m_mutex);
    m_bytes += bytes;
    m_width = width;
    m_height = height;
}

void StreamInfo::decoded(std::int64_t captureUs, TimePoint decodedAt)
{
    const std::lock_guard lock(m_mutex);
    ++m_pictures;
    m_ageSumUs += static_cast<double>(toUs(decodedAt)) - static_cast<double>(captureUs);
}

std::optional<std::string> StreamInfo::report(
    TimePoint now, std::optional<std::chrono::microseconds> clockOffset, int levelRow)
{
    const std::lock_guard lock(m_mutex);
    const double seconds = std::chrono::duration<double>(now - m_since).count();
    if (!clockOffset || seconds <= 0)
        return std::nullopt;
    if (m_pictures > 0) {
        const double delayMs = (m_ageSumUs / m_pictures + static_cast<double>(clockOffset->count())) / 1000;
        m_delayMs = std::clamp(delayMs, 0.0, MaxDelayMs);
    }
    const long frameRate = std::lround(m_pictures / seconds);
    const long kbitPerSec = std::lround(static_cast<double>(m_bytes) * 8 / 1000 / seconds);
    m_since = now;
    m_bytes = 0;
    m_pictures = 0;
    m_ageSumUs = 0;
    if (!m_delayMs)
        return std::nullopt;
    std::array<char, 192> json{};
    std::snprintf(json.data(), json.size(),
        R"({"delayTime":%ld,"width":%d,"height":%d,"frameRate":%ld,"bitRate":%ld,"level":%d})",
        std::lround(*m_delayMs), m_width, m_height, frameRate, kbitPerSec, levelRow);
    return std::string(json.data());
}

} // namespace swplay
