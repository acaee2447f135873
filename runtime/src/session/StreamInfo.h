#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>

namespace swplay {

// Gathers the figures of a stream and tells them as a JSON object, for SWDataSourceListener::onStreamInfo:
// {"delayTime": capture to decoded in ms, "width", "height": pixels of the newest picture, "frameRate":
// pictures decoded per second, "bitRate": kbit/s of received video, "level": row of the level table in
// effect, -1 for a custom level}. Rates are those of the time since the last report.
//
// Owned by a session. decoded: any thread; the rest: network thread.
class StreamInfo
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    // A connection was made: what was gathered is of another stream.
    void reset(TimePoint now);
    void received(std::size_t bytes, int width, int height);
    void decoded(std::int64_t captureUs, TimePoint decodedAt);

    // The figures since the last report. `clockOffset`: gateway clock minus ours. Nothing until both the
    // offset and a picture's time are known; while no picture arrives the delay of the last ones is repeated.
    std::optional<std::string> report(
        TimePoint now, std::optional<std::chrono::microseconds> clockOffset, int levelRow);

private:
    std::mutex m_mutex; // guards all fields
    TimePoint m_since;
    std::uint64_t m_bytes = 0;
    int m_width = 0;
    int m_height = 0;
    int m_pictures = 0;
    double m_ageSumUs = 0; // of decoding time on our clock minus capture time on the gateway's
    std::optional<double> m_delayMs; // of the last report
};

} // namespace swplay
