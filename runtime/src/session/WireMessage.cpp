#include "session/WireMessage.h"

#include <cmath>
#include <limits>

namespace swplay {

namespace {

using wire::StreamMessage;

bool isRotation(int rotation)
{
    return rotation >= 0 && rotation <= 3;
}

bool isSide(std::uint32_t pixels)
{
    return pixels <= static_cast<std::uint32_t>(WireLimits::SidePixels);
}

// What is wrong with the fields of a message for the client, or nullptr.
const char *fieldError(const StreamMessage &message)
{
    switch (message.body_case()) {
    case StreamMessage::kLoginResult: {
        const wire::LoginResult &result = message.login_result();
        if (!isSide(result.screen_width()) || !isSide(result.screen_height()))
            return "login result: screen size out of range";
        if (result.code() == wire::LoginResult::OK
            && (result.screen_width() == 0 || result.screen_height() == 0))
            return "login result: no screen size";
        return isRotation(result.rotation()) ? nullptr : "login result: rotation out of range";
    }
    case StreamMessage::kVideoFrame: {
        const wire::VideoFrame &frame = message.video_frame();
        if (frame.data().empty())
            return "video frame: no data";
        if (!isSide(frame.width()) || !isSide(frame.height()))
            return "video frame: size out of range";
        return nullptr;
    }
    case StreamMessage::kVideoLevelResult: {
        const int row = message.video_level_result().row();
        return row >= -1 && row < WireLimits::Levels ? nullptr : "video level result: row out of range";
    }
    case StreamMessage::kScreenRotation:
        return isRotation(message.screen_rotation().rotation()) ? nullptr : "screen rotation: out of range";
    case StreamMessage::kSensorRequest: {
        const wire::SensorRequest &request = message.sensor_request();
        return isSide(request.width()) && isSide(request.height()) ? nullptr
                                                                   : "sensor request: size out of range";
    }
    default:
        return nullptr;
    }
}

bool isForClient(StreamMessage::BodyCase body)
{
    switch (body) {
    case StreamMessage::kLoginResult:
    case StreamMessage::kVideoFrame:
    case StreamMessage::kVideoLevelResult:
    case StreamMessage::kScreenRotation:
    case StreamMessage::kSensorRequest:
    case StreamMessage::kClipboard:
    case StreamMessage::kKeyboardType:
    case StreamMessage::kControlGrant:
    case StreamMessage::kSessionEnd:
    case StreamMessage::kPing:
    case StreamMessage::kPong:
        return true;
    default:
        return false;
    }
}

void copyLevel(const VideoLevel &from, wire::VideoLevel &to)
{
    to.set_codec(from.codec);
    to.set_width(from.width);
    to.set_height(from.height);
    to.set_frame_rate(from.frameRate);
    to.set_min_frame_rate(from.minFrameRate);
    to.set_bit_rate(from.bitRate);
    to.set_quality(from.quality);
    to.set_reserved_8(from.reserved8);
    to.set_reserved_9(from.reserved9);
    to.set_max_quality(from.maxQuality);
    to.set_min_quality(from.minQuality);
}

} // namespace

ReadResult readGatewayMessage(
    const void *data, std::size_t size, wire::StreamMessage &message, std::string &reason)
{
    static_assert(WireLimits::GatewayMessageBytes <= std::numeric_limits<int>::max());
    if (size > WireLimits::GatewayMessageBytes) {
        reason = "message of " + std::to_string(size) + " bytes";
        return ReadResult::Malformed;
    }
    if (!message.ParseFromArray(data, static_cast<int>(size))) {
        reason = "not a message";
        return ReadResult::Malformed;
    }
    if (!isForClient(message.body_case()))
        return ReadResult::Skipped;
    if (const char *error = fieldError(message)) {
        reason = error;
        return ReadResult::Malformed;
    }
    return ReadResult::Message;
}

std::string serialise(const wire::StreamMessage &message)
{
    return message.SerializeAsString();
}

bool isUtf8(const std::string &text)
{
    // The well-formed byte sequences of Unicode, table 3-7: no overlong forms, surrogates or values above
    // U+10FFFF. After the first byte, only the second one's range varies.
    const auto *byte = reinterpret_cast<const unsigned char *>(text.data());
    const auto *const end = byte + text.size();
    while (byte != end) {
        const unsigned char first = *byte++;
        if (first < 0x80)
            continue;
        const int following = first >= 0xf0 ? 3 : first >= 0xe0 ? 2 : 1;
        if (first < 0xc2 || first > 0xf4 || end - byte < following)
            return false;
        const unsigned char low = first == 0xe0 ? 0xa0 : first == 0xf0 ? 0x90 : 0x80;
        const unsigned char high = first == 0xed ? 0x9f : first == 0xf4 ? 0x8f : 0xbf;
        if (*byte < low || *byte > high)
            return false;
        ++byte;
        for (int i = 1; i < following; ++i, ++byte) {
            if ((*byte & 0xc0) != 0x80)
                return false;
        }
    }
    return true;
}

wire::StreamMessage loginMessage(
    std::int32_t userId, const std::string &sessionId, const std::string &padCode, std::int32_t businessType)
{
    wire::StreamMessage message;
    wire::Login &login = *message.mutable_login();
    login.set_protocol_version(WireLimits::ProtocolVersion);
    login.set_user_id(userId);
    login.set_session_id(sessionId);
    login.set_pad_code(padCode);
    login.set_business_type(businessType);
    return message;
}

wire::StreamMessage videoLevelsMessage(const std::vector<VideoLevel> &levels)
{
    wire::StreamMessage message;
    wire::VideoLevels &list = *message.mutable_video_levels();
    for (const VideoLevel &level : levels)
        copyLevel(level, *list.add_levels());
    return message;
}

wire::StreamMessage levelRowMessage(int row)
{
    wire::StreamMessage message;
    message.mutable_video_level_choice()->set_index(row);
    return message;
}

wire::StreamMessage customLevelMessage(const VideoLevel &level)
{
    wire::StreamMessage message;
    copyLevel(level, *message.mutable_video_level_choice()->mutable_custom());
    return message;
}

wire::StreamMessage screenCastMessage(int mode)
{
    wire::StreamMessage message;
    message.mutable_screen_cast()->set_mode(static_cast<wire::ScreenCast::Mode>(mode));
    return message;
}

wire::StreamMessage keyframeRequestMessage()
{
    wire::StreamMessage message;
    message.mutable_keyframe_request();
    return message;
}

wire::StreamMessage frameAckMessage(std::uint64_t frameId)
{
    wire::StreamMessage message;
    message.mutable_frame_ack()->set_frame_id(frameId);
    return message;
}

wire::StreamMessage touchMessage(int action, int count, const int *xs, const int *ys, const float *pressures)
{
    wire::StreamMessage message;
    wire::Touch &touch = *message.mutable_touch();
    touch.set_action(action);
    for (int i = 0; i < count; ++i) {
        const float pressure = pressures ? pressures[i] : 0;
        touch.add_x(xs[i]);
        touch.add_y(ys[i]);
        touch.add_pressure(std::isfinite(pressure) ? pressure : 0);
    }
    if (count == 0) {
        touch.add_x(-1);
        touch.add_y(-1);
        touch.add_pressure(0);
    }
    return message;
}

wire::StreamMessage keyMessage(int action, int code, bool shift)
{
    wire::StreamMessage message;
    wire::Key &key = *message.mutable_key();
    key.set_action(action);
    key.set_code(code);
    key.set_shift(shift);
    return message;
}

wire::StreamMessage textMessage(std::string text)
{
    wire::StreamMessage message;
    message.mutable_text()->set_text(std::move(text));
    return message;
}

wire::StreamMessage pictureMessage(std::string jpeg)
{
    wire::StreamMessage message;
    message.mutable_picture()->set_jpeg(std::move(jpeg));
    return message;
}

wire::StreamMessage audioMessage(int format, std::string data)
{
    wire::StreamMessage message;
    message.mutable_audio()->set_format(format);
    message.mutable_audio()->set_data(std::move(data));
    return message;
}

wire::StreamMessage pingMessage(std::uint64_t id, std::int64_t sentUs)
{
    wire::StreamMessage message;
    message.mutable_ping()->set_id(id);
    message.mutable_ping()->set_sent_us(sentUs);
    return message;
}

wire::StreamMessage pongMessage(const wire::Ping &ping, std::int64_t repliedUs)
{
    wire::StreamMessage message;
    wire::Pong &pong = *message.mutable_pong();
    pong.set_id(ping.id());
    pong.set_ping_sent_us(ping.sent_us());
    pong.set_replied_us(repliedUs);
    return message;
}

VideoLevel videoLevelOf(const wire::VideoLevel &level)
{
    VideoLevel result;
    result.codec = level.codec();
    result.width = level.width();
    result.height = level.height();
    result.frameRate = level.frame_rate();
    result.minFrameRate = level.min_frame_rate();
    result.bitRate = level.bit_rate();
    result.quality = level.quality();
    result.reserved8 = level.reserved_8();
    result.reserved9 = level.reserved_9();
    result.maxQuality = level.max_quality();
    result.minQuality = level.min_quality();
    return result;
}

} // namespace swplay
