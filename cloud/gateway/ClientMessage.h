#pragma once

#include "gateway/Level.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orvane::cloud {

// The messages of a client, as the rest of the gateway works with them: every value checked, no trace of the
// wire format. Plain data.
namespace client {

struct Login
{
    std::uint32_t protocolVersion = 0;
    std::int32_t userId = -1;
    std::string sessionId;
    std::string padCode;
};

struct VideoLevels
{
    std::vector<Level> levels;
};

struct ChooseRow
{
    int row = 0; // 0 = automatic; not negative, not checked against the table
};

struct ChooseCustom
{
    Level level;
};

struct ScreenCast
{
    CastMode mode = CastMode::Full;
};

struct KeyframeRequest
{ };

struct FrameAck
{
    std::uint64_t frameId = 0;
};

struct Touch
{
    struct Point
    {
        int x = 0; // in pixels of the reference size, may lie outside
        int y = 0;
        float pressure = 0; // 0 to 1
    };

    int action = 0; // 0 down, 1 up, 2 move
    std::vector<Point> points; // fingers on the screen, none = all lifted
    int referenceWidth = 0; // 0 = the screen's own size
    int referenceHeight = 0;
};

struct Key
{
    int action = 1; // 1 down, 2 up, 3 click
    int code = 0; // Linux input code, 0 = activity only
    bool shift = false;
};

struct Text
{
    std::string text; // valid UTF-8
};

struct Picture
{
    std::string jpeg;
};

struct Audio
{
    int format = 0;
    std::string data;
};

struct Ping
{
    std::uint64_t id = 0;
    std::int64_t sentUs = 0; // the client's clock
};

struct Pong
{
    std::uint64_t id = 0;
    std::int64_t pingSentUs = 0; // our clock
};

// Well-formed, but nothing this version knows.
struct Unknown
{ };

// Not a message: the connection ends with this reason.
struct Malformed
{
    std::string reason;
};

} // namespace client

using ClientMessage = std::variant<client::Login, client::VideoLevels, client::ChooseRow,
    client::ChooseCustom, client::ScreenCast, client::KeyframeRequest, client::FrameAck, client::Touch,
    client::Key, client::Text, client::Picture, client::Audio, client::Ping, client::Pong, client::Unknown,
    client::Malformed>;

// The longest message a client may send, bytes: a picture of 4 MiB and what goes around it.
constexpr std::size_t MaxClientMessageBytes = std::size_t(4) * 1024 * 1024 + std::size_t(64) * 1024;

// Reads one binary message. Never throws for what is in it; any thread.
ClientMessage readClientMessage(std::string_view bytes);

} // namespace orvane::cloud
