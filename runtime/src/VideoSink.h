#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace swplay {

// One whole H.264 access unit in Annex B form, as it came from the wire.
struct AccessUnit
{
    std::uint64_t frameId = 0;
    std::int64_t captureUs = 0; // gateway clock, microseconds
    bool keyFrame = false;
    int width = 0; // pixels
    int height = 0; // pixels
    std::string data;
};

// What a sink tells its session. Implemented by the session; any thread; returns at once.
class VideoFeedback
{
public:
    virtual ~VideoFeedback() = default;
    // Decoding cannot go on without a key frame.
    virtual void keyframeNeeded() = 0;
    virtual void pictureDecoded(
        std::uint64_t frameId, std::int64_t captureUs, std::chrono::steady_clock::time_point decodedAt)
        = 0;
};

// Where a session's video goes. Implemented by the player; called on the network thread; never blocks.
class VideoSink
{
public:
    virtual ~VideoSink() = default;
    virtual void setFeedback(std::weak_ptr<VideoFeedback> feedback) = 0;
    virtual void accessUnit(AccessUnit unit) = 0;
    virtual void screenRotation(int rotation) = 0;
    // The connection was lost or made anew: what is waiting is stale, and the next unit is a key frame.
    virtual void streamReset() = 0;
};

} // namespace swplay
