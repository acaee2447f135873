#pragma once

#include "swplay/VideoLevel.h"

#include "stream.pb.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace swplay {

// The limits of the wire, the same on both ends.
struct WireLimits
{
    static constexpr std::uint32_t ProtocolVersion = 1;
    static constexpr std::size_t GatewayMessageBytes = 8u << 20; // largest message to the client
    static constexpr std::size_t PictureBytes = 4u << 20;
    static constexpr std::size_t ClientMessageBytes = PictureBytes + 1024; // largest message to the gateway
    static constexpr std::size_t AudioBytes = 1u << 20;
    static constexpr std::size_t TextBytes = 1u << 20;
    static constexpr std::size_t IdBytes = 4096; // session id, device code
    static constexpr int Levels = 16;
    static constexpr int Fingers = 10;
    static constexpr int SidePixels = 16384; // of pictures and screens
    static constexpr int FrameRate = 1000; // per second
    static constexpr int KeyCode = 0x2ff; // KEY_MAX of linux/input-event-codes.h
};

enum class ReadResult {
    Message, // one for the client, every field within its range
    Skipped, // of a kind that this side does not know or does not take
    Malformed, // not a message, too large, or a field is out of range
};

// Reads one binary message of the gateway. After Malformed, `reason` says what is wrong, English, for the log
// and the peer. Any thread; never throws on account of the bytes.
ReadResult readGatewayMessage(
    const void *data, std::size_t size, wire::StreamMessage &message, std::string &reason);

// The bytes of a message. Any thread.
std::string serialise(const wire::StreamMessage &message);

// Whether `text` is UTF-8; only such text may be put into a message.
bool isUtf8(const std::string &text);

// What the client sends. The arguments are within the limits above.
wire::StreamMessage loginMessage(
    std::int32_t userId, const std::string &sessionId, const std::string &padCode, std::int32_t businessType);
wire::StreamMessage videoLevelsMessage(const std::vector<VideoLevel> &levels);
wire::StreamMessage levelRowMessage(int row); // 0 = automatic
wire::StreamMessage customLevelMessage(const VideoLevel &level);
wire::StreamMessage screenCastMessage(int mode);
wire::StreamMessage keyframeRequestMessage();
wire::StreamMessage frameAckMessage(std::uint64_t frameId);
// `count` points; none becomes the single (-1, -1) that means no finger. `pressures` may be null = 0. The
// reference size is set later, when the message is queued.
wire::StreamMessage touchMessage(int action, int count, const int *xs, const int *ys, const float *pressures);
wire::StreamMessage keyMessage(int action, int code, bool shift);
wire::StreamMessage textMessage(std::string text);
wire::StreamMessage pictureMessage(std::string jpeg);
wire::StreamMessage audioMessage(int format, std::string data);
wire::StreamMessage pingMessage(std::uint64_t id, std::int64_t sentUs);
wire::StreamMessage pongMessage(const wire::Ping &ping, std::int64_t repliedUs);

// A row as the gateway told it.
VideoLevel videoLevelOf(const wire::VideoLevel &level);

} // namespace swplay
