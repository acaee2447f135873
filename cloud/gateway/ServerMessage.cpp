#include "gateway/ServerMessage.h"

#include "stream.pb.h"

#include <algorithm>

namespace orvane::cloud::server {

using swplay::wire::StreamMessage;

std::string loginRefused(LoginCode code, const std::string &reason)
{
    StreamMessage message;
    message.mutable_login_result()->set_code(static_cast<swplay::wire::LoginResult::Code>(code));
    message.mutable_login_result()->set_reason(reason);
    return message.SerializeAsString();
}

std::string loginAccepted(QSize screen, int rotation)
{
    StreamMessage message;
    auto *result = message.mutable_login_result();
    result->set_code(swplay::wire::LoginResult::OK);
    result->set_screen_width(static_cast<std::uint32_t>(screen.width()));
    result->set_screen_height(static_cast<std::uint32_t>(screen.height()));
    result->set_rotation(rotation);
    return message.SerializeAsString();
}

std::string videoFrame(std::uint64_t frameId, std::int64_t captureUs, bool keyFrame, std::string accessUnit,
    int width, int height)
{
    StreamMessage message;
    auto *frame = message.mutable_video_frame();
    frame->set_frame_id(frameId);
    frame->set_capture_us(captureUs);
    frame->set_key_frame(keyFrame);
    frame->set_data(std::move(accessUnit));
    frame->set_width(static_cast<std::uint32_t>(width));
    frame->set_height(static_cast<std::uint32_t>(height));
    return message.SerializeAsString();
}

std::string videoLevelResult(const LevelSelection::Effective &effective)
{
    StreamMessage message;
    auto *result = message.mutable_video_level_result();
    const Level &level = effective.level;
    auto *wire = result->mutable_level();
    wire->set_codec(level.codec);
    wire->set_width(level.width);
    wire->set_height(level.height);
    wire->set_frame_rate(level.frameRate);
    wire->set_min_frame_rate(level.minFrameRate);
    wire->set_bit_rate(level.bitRate);
    wire->set_quality(level.quality);
    wire->set_reserved_8(level.reserved8);
    wire->set_reserved_9(level.reserved9);
    wire->set_max_quality(level.maxQuality);
    wire->set_min_quality(level.minQuality);
    result->set_automatic(effective.automatic);
    result->set_row(effective.row);
    return message.SerializeAsString();
}

std::string screenRotation(int rotation)
{
    StreamMessage message;
    message.mutable_screen_rotation()->set_rotation(rotation);
    return message.SerializeAsString();
}

std::string sensorRequest(int inputType, int state, int width, int height)
{
    StreamMessage message;
    auto *request = message.mutable_sensor_request();
    request->set_input_type(inputType);
    request->set_state(state);
    request->set_width(static_cast<std::uint32_t>(std::max(0, width)));
    request->set_height(static_cast<std::uint32_t>(std::max(0, height)));
    return message.SerializeAsString();
}

std::string clipboard(const std::string &text)
{
    StreamMessage message;
    message.mutable_clipboard()->set_text(text);
    return message.SerializeAsString();
}

std::string sessionEnd(EndCode code, const std::string &reason)
{
    StreamMessage message;
    message.mutable_session_end()->set_code(static_cast<swplay::wire::SessionEnd::Code>(code));
    message.mutable_session_end()->set_reason(reason);
    return message.SerializeAsString();
}

std::string ping(std::uint64_t id, std::int64_t sentUs)
{
    StreamMessage message;
    message.mutable_ping()->set_id(id);
    message.mutable_ping()->set_sent_us(sentUs);
    return message.SerializeAsString();
}

std::string pong(std::uint64_t id, std::int64_t pingSentUs, std::int64_t repliedUs)
{
    StreamMessage message;
    message.mutable_pong()->set_id(id);
    message.mutable_pong()->set_ping_sent_us(pingSentUs);
    message.mutable_pong()->set_replied_us(repliedUs);
    return message.SerializeAsString();
}

} // namespace orvane::cloud::server
