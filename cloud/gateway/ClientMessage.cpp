#include "gateway/ClientMessage.h"

#include "stream.pb.h"

#include <google/protobuf/stubs/logging.h>

#include <algorithm>
#include <cmath>

namespace orvane::cloud {

namespace {

// What a client may send; docs/protocol.md has the same figures.
constexpr std::size_t MaxPictureBytes = std::size_t(4) * 1024 * 1024;
constexpr std::size_t MaxAudioBytes = std::size_t(1024) * 1024;
constexpr std::size_t MaxTextBytes = std::size_t(1024) * 1024;
constexpr std::size_t MaxIdBytes = 256;
constexpr int MaxPoints = 10;
constexpr int MaxLevels = 16;
constexpr unsigned MaxReference = 16384;
constexpr int MaxKeyCode = 0x2ff; // KEY_MAX of linux/input-event-codes.h
constexpr int CodecH264 = 2;
constexpr int MinSide = 16;
constexpr int MaxWidth = 1440;
constexpr int MaxHeight = 2560;
constexpr int MaxFrameRate = 60;
constexpr int MinBitRate = 32; // kbit/s
constexpr int MaxBitRate = 50'000;

// The library would write its own lines about malformed messages, as many as a client likes; the connection
// writes one when it ends. Before the first message, once.
void silenceProtobuf()
{
    static const bool silent = [] {
        google::protobuf::SetLogHandler(nullptr);
        return true;
    }();
    static_cast<void>(silent);
}

client::Malformed malformed(const char *reason)
{
    return {reason};
}

ClientMessage readLogin(swplay::wire::Login &login)
{
    if (login.session_id().size() > MaxIdBytes || login.pad_code().size() > MaxIdBytes) {
        return malformed("login: an id is too long");
    }
    return client::Login{login.protocol_version(), login.user_id(), std::move(*login.mutable_session_id()),
        std::move(*login.mutable_pad_code())};
}

bool isUsable(const swplay::wire::VideoLevel &level)
{
    return level.codec() == CodecH264 && level.width() >= MinSide && level.width() <= MaxWidth
        && level.height() >= MinSide && level.height() <= MaxHeight && level.bit_rate() >= 0
        && level.frame_rate() >= 0;
}

Level toLevel(const swplay::wire::VideoLevel &wire)
{
    Level level;
    level.codec = wire.codec();
    level.width = wire.width() & ~1;
    level.height = wire.height() & ~1;
    level.frameRate = std::clamp(wire.frame_rate(), 1, MaxFrameRate);
    level.minFrameRate = wire.min_frame_rate();
    level.bitRate = std::clamp(wire.bit_rate(), MinBitRate, MaxBitRate);
    level.quality = wire.quality();
    level.reserved8 = wire.reserved_8();
    level.reserved9 = wire.reserved_9();
    level.maxQuality = wire.max_quality();
    level.minQuality = wire.min_quality();
    return level;
}

ClientMessage readLevels(const swplay::wire::VideoLevels &wire)
{
    if (wire.levels_size() > MaxLevels) {
        return malformed("video levels: more than 16 rows");
    }
    client::VideoLevels message;
    for (const auto &level : wire.levels()) {
        if (!isUsable(level)) {
            return malformed("video levels: a row is out of range");
        }
        message.levels.push_back(toLevel(level));
    }
    return message;
}

ClientMessage readChoice(const swplay::wire::VideoLevelChoice &wire)
{
    switch (wire.choice_case()) {
    case swplay::wire::VideoLevelChoice::kIndex:
        if (wire.index() < 0) {
            return malformed("video level choice: the row is negative");
        }
        return client::ChooseRow{wire.index()};
    case swplay::wire::VideoLevelChoice::kCustom:
        if (!isUsable(wire.custom())) {
            return malformed("video level choice: the level is out of range");
        }
        return client::ChooseCustom{toLevel(wire.custom())};
    case swplay::wire::VideoLevelChoice::CHOICE_NOT_SET:
        break;
    }
    return client::Unknown();
}

ClientMessage readScreenCast(const swplay::wire::ScreenCast &wire)
{
    switch (static_cast<int>(wire.mode())) {
    case swplay::wire::ScreenCast::PAUSED:
        return client::ScreenCast{CastMode::Paused};
    case swplay::wire::ScreenCast::THUMBNAIL:
        return client::ScreenCast{CastMode::Thumbnail};
    case swplay::wire::ScreenCast::UNUSED:
    case swplay::wire::ScreenCast::FULL:
        return client::ScreenCast{CastMode::Full};
    default:
        return malformed("screen cast: no such mode");
    }
}

ClientMessage readTouch(const swplay::wire::Touch &wire)
{
    const int count = wire.x_size();
    if (wire.action() < 0 || wire.action() > 2) {
        return malformed("touch: no such action");
    }
    if (wire.y_size() != count || (wire.pressure_size() != count && wire.pressure_size() != 0)) {
        return malformed("touch: the lists differ in length");
    }
    if (count > MaxPoints) {
        return malformed("touch: more than 10 points");
    }
    if (wire.reference_width() > MaxReference || wire.reference_height() > MaxReference) {
        return malformed("touch: the reference size is out of range");
    }
    client::Touch touch;
    touch.action = wire.action();
    touch.referenceWidth = static_cast<int>(wire.reference_width());
    touch.referenceHeight = static_cast<int>(wire.reference_height());
    for (int i = 0; i < count; ++i) {
        if (wire.x(i) == -1 && wire.y(i) == -1) {
            continue; // stands for "no finger"
        }
        const float pressure = i < wire.pressure_size() ? wire.pressure(i) : 0.0F;
        touch.points.push_back(
            {wire.x(i), wire.y(i), std::isfinite(pressure) ? std::clamp(pressure, 0.0F, 1.0F) : 0.0F});
    }
    return touch;
}

ClientMessage readKey(const swplay::wire::Key &wire)
{
    if (wire.action() < 1 || wire.action() > 3) {
        return malformed("key: no such action");
    }
    if (wire.code() < 0 || wire.code() > MaxKeyCode) {
        return malformed("key: the code is out of range");
    }
    return client::Key{wire.action(), wire.code(), wire.shift()};
}

ClientMessage readText(swplay::wire::Text &wire)
{
    if (wire.text().size() > MaxTextBytes) {
        return malformed("text: longer than 1 MiB");
    }
    return client::Text{std::move(*wire.mutable_text())};
}

ClientMessage readPicture(swplay::wire::Picture &wire)
{
    if (wire.jpeg().size() > MaxPictureBytes) {
        return malformed("picture: larger than 4 MiB");
    }
    return client::Picture{std::move(*wire.mutable_jpeg())};
}

ClientMessage readAudio(swplay::wire::Audio &wire)
{
    if (wire.data().size() > MaxAudioBytes) {
        return malformed("audio: larger than 1 MiB");
    }
    return client::Audio{wire.format(), std::move(*wire.mutable_data())};
}

} // namespace

ClientMessage readClientMessage(std::string_view bytes)
{
    using swplay::wire::StreamMessage;
    silenceProtobuf();
    StreamMessage message;
    if (bytes.size() > MaxClientMessageBytes) {
        return malformed("the message is too large");
    }
    // Strings that are not UTF-8 do not parse either.
    if (!message.ParseFromArray(bytes.data(), static_cast<int>(bytes.size()))) {
        return malformed("the message cannot be parsed");
    }
    switch (message.body_case()) {
    case StreamMessage::kLogin:
        return readLogin(*message.mutable_login());
    case StreamMessage::kVideoLevels:
        return readLevels(message.video_levels());
    case StreamMessage::kVideoLevelChoice:
        return readChoice(message.video_level_choice());
    case StreamMessage::kScreenCast:
        return readScreenCast(message.screen_cast());
    case StreamMessage::kKeyframeRequest:
        return client::KeyframeRequest();
    case StreamMessage::kFrameAck:
        return client::FrameAck{message.frame_ack().frame_id()};
    case StreamMessage::kTouch:
        return readTouch(message.touch());
    case StreamMessage::kKey:
        return readKey(message.key());
    case StreamMessage::kText:
        return readText(*message.mutable_text());
    case StreamMessage::kPicture:
        return readPicture(*message.mutable_picture());
    case StreamMessage::kAudio:
        return readAudio(*message.mutable_audio());
    case StreamMessage::kPing:
        return client::Ping{message.ping().id(), message.ping().sent_us()};
    case StreamMessage::kPong:
        return client::Pong{message.pong().id(), message.pong().ping_sent_us()};
    default:
        return client::Unknown(); // newer than this gateway, or meant for clients
    }
}

} // namespace orvane::cloud
