// The bytes below were put together by hand from the encoding rules, so that a mistake in the schema that
// both ends share cannot hide.

#include "session/WireMessage.h"

#include "Hex.h"
#include "MessageMutator.h"

#include <google/protobuf/stubs/logging.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

using namespace swplay;
using wire::StreamMessage;

namespace {

std::string hexOf(const StreamMessage &message)
{
    return toHex(serialise(message));
}

VideoLevel firstRow()
{
    return {2, 720, 1280, 25, 15, 6144, 100, 0, 0, 100, 50};
}

VideoLevel thumbnail()
{
    VideoLevel level;
    level.codec = 2;
    level.width = 144;
    level.height = 218;
    level.frameRate = 5;
    level.bitRate = 256;
    return level;
}

// Reads a message that must be good.
StreamMessage readHex(const std::string &hex)
{
    const std::string bytes = fromHex(hex);
    StreamMessage message;
    std::string reason;
    EXPECT_EQ(readGatewayMessage(bytes.data(), bytes.size(), message, reason), ReadResult::Message) << reason;
    return message;
}

ReadResult resultOf(const std::string &bytes, std::string *reasonOut = nullptr)
{
    StreamMessage message;
    std::string reason;
    const ReadResult result = readGatewayMessage(bytes.data(), bytes.size(), message, reason);
    EXPECT_EQ(result == ReadResult::Malformed, !reason.empty());
    if (reasonOut)
        *reasonOut = reason;
    return result;
}

} // namespace

// ---- Client to gateway ----

TEST(WireToGateway, Login)
{
    EXPECT_EQ(hexOf(loginMessage(7, "s1", "p2", 1)), "0a 0e 08 01 10 07 1a 02 73 31 22 02 70 32 28 01");
    EXPECT_EQ(hexOf(loginMessage(-1, "s1", "p2", 1)),
        "0a 17 08 01 10 ff ff ff ff ff ff ff ff ff 01 1a 02 73 31 22 02 70 32 28 01");
}

TEST(WireToGateway, VideoLevels)
{
    EXPECT_EQ(hexOf(videoLevelsMessage({firstRow()})),
        "12 17 0a 15 08 02 10 d0 05 18 80 0a 20 19 28 0f 30 80 30 38 64 50 64 58 32");
}

TEST(WireToGateway, VideoLevelChoice)
{
    EXPECT_EQ(hexOf(levelRowMessage(3)), "1a 02 08 03");
    EXPECT_EQ(hexOf(levelRowMessage(0)), "1a 02 08 00");
    EXPECT_EQ(hexOf(customLevelMessage(thumbnail())), "1a 0f 12 0d 08 02 10 90 01 18 da 01 20 05 30 80 02");
}

TEST(WireToGateway, ScreenCast)
{
    EXPECT_EQ(hexOf(screenCastMessage(3)), "22 02 08 03");
    EXPECT_EQ(hexOf(screenCastMessage(1)), "22 02 08 01");
    EXPECT_EQ(hexOf(screenCastMessage(0)), "22 00");
}

TEST(WireToGateway, KeyframeRequestAndFrameAck)
{
    EXPECT_EQ(hexOf(keyframeRequestMessage()), "2a 00");
    EXPECT_EQ(hexOf(frameAckMessage(300)), "32 03 08 ac 02");
}

TEST(WireToGateway, Touch)
{
    const int xs[] = {100, 719};
    const int ys[] = {200, 1279};
    const float pressures[] = {0, 0.5F};
    StreamMessage message = touchMessage(2, 2, xs, ys, pressures);
    message.mutable_touch()->set_reference_width(720);
    message.mutable_touch()->set_reference_height(1280);
    EXPECT_EQ(hexOf(message),
        "3a 1e 08 02 12 04 c8 01 9e 0b 1a 04 90 03 fe 13 22 08 00 00 00 00 00 00 00 3f 28 d0 05 30 80 0a");
}

TEST(WireToGateway, TouchWithoutFingersIsOnePointOutside)
{
    const std::string none = "3a 0e 08 01 12 01 01 1a 01 01 22 04 00 00 00 00";
    EXPECT_EQ(hexOf(touchMessage(1, 0, nullptr, nullptr, nullptr)), none);
    const int outside = -1;
    EXPECT_EQ(hexOf(touchMessage(1, 1, &outside, &outside, nullptr)), none);
}

TEST(WireToGateway, TouchPressureIsFinite)
{
    const int x[] = {1, 1, 1};
    const float pressures[] = {std::nanf(""), std::numeric_limits<float>::infinity(), 1};
    const StreamMessage message = touchMessage(0, 3, x, x, pressures);
    EXPECT_EQ(message.touch().pressure(0), 0);
    EXPECT_EQ(message.touch().pressure(1), 0);
    EXPECT_EQ(message.touch().pressure(2), 1);
}

TEST(WireToGateway, Key)
{
    EXPECT_EQ(hexOf(keyMessage(1, 30, true)), "42 06 08 01 10 1e 18 01");
    EXPECT_EQ(hexOf(keyMessage(2, 158, false)), "42 05 08 02 10 9e 01");
    EXPECT_EQ(hexOf(keyMessage(3, 0, false)), "42 02 08 03");
}

TEST(WireToGateway, TextPictureAudio)
{
    EXPECT_EQ(hexOf(textMessage("\xc3\xa9")), "4a 04 0a 02 c3 a9");
    EXPECT_EQ(hexOf(pictureMessage("\xff\xd8")), "52 04 0a 02 ff d8");
    EXPECT_EQ(hexOf(audioMessage(1, "ab")), "5a 06 08 01 12 02 61 62");
}

TEST(WireToGateway, PingAndPong)
{
    EXPECT_EQ(hexOf(pingMessage(1, 150)), "c2 02 05 08 01 10 96 01");
    wire::Ping ping;
    ping.set_id(5);
    ping.set_sent_us(150);
    EXPECT_EQ(hexOf(pongMessage(ping, 300)), "ca 02 08 08 05 10 96 01 18 ac 02");
}

// ---- Gateway to client ----

TEST(WireToClient, LoginResult)
{
    const auto good = readHex("a2 01 08 18 d0 05 20 80 0a 28 01").login_result();
    EXPECT_EQ(good.code(), wire::LoginResult::OK);
    EXPECT_EQ(good.screen_width(), 720U);
    EXPECT_EQ(good.screen_height(), 1280U);
    EXPECT_EQ(good.rotation(), 1);
    const auto refused = readHex("a2 01 06 08 01 12 02 6e 6f").login_result();
    EXPECT_EQ(refused.code(), wire::LoginResult::UNKNOWN_SESSION);
    EXPECT_EQ(refused.reason(), "no");
    EXPECT_EQ(readHex("a2 01 02 08 02").login_result().code(), wire::LoginResult::EXPIRED);
    EXPECT_EQ(readHex("a2 01 02 08 03").login_result().code(), wire::LoginResult::UNSUPPORTED_VERSION);
    EXPECT_EQ(readHex("a2 01 02 08 04").login_result().code(), wire::LoginResult::BUSY);
}

TEST(WireToClient, VideoFrame)
{
    const auto frame
        = readHex("aa 01 15 08 01 10 c0 84 3d 18 01 22 05 00 00 00 01 65 28 d0 05 30 80 0a").video_frame();
    EXPECT_EQ(frame.frame_id(), 1U);
    EXPECT_EQ(frame.capture_us(), 1'000'000);
    EXPECT_TRUE(frame.key_frame());
    EXPECT_EQ(toHex(frame.data()), "00 00 00 01 65");
    EXPECT_EQ(frame.width(), 720U);
    EXPECT_EQ(frame.height(), 1280U);
}

TEST(WireToClient, VideoLevelResult)
{
    const auto result
        = readHex("b2 01 13 0a 0d 08 02 10 90 01 18 da 01 20 05 30 80 02 10 01 18 03").video_level_result();
    EXPECT_TRUE(result.automatic());
    EXPECT_EQ(result.row(), 3);
    const VideoLevel level = videoLevelOf(result.level());
    EXPECT_EQ(level.codec, 2);
    EXPECT_EQ(level.width, 144);
    EXPECT_EQ(level.height, 218);
    EXPECT_EQ(level.frameRate, 5);
    EXPECT_EQ(level.bitRate, 256);
    EXPECT_EQ(readHex("b2 01 0b 18 ff ff ff ff ff ff ff ff ff 01").video_level_result().row(), -1);
}

TEST(WireToClient, EveryFieldOfALevel)
{
    const auto result
        = readHex("b2 01 18 0a 16 08 01 10 02 18 03 20 04 28 05 30 06 38 07 40 08 48 09 50 0a 58 0b");
    const VideoLevel level = videoLevelOf(result.video_level_result().level());
    EXPECT_EQ(level.codec, 1);
    EXPECT_EQ(level.width, 2);
    EXPECT_EQ(level.height, 3);
    EXPECT_EQ(level.frameRate, 4);
    EXPECT_EQ(level.minFrameRate, 5);
    EXPECT_EQ(level.bitRate, 6);
    EXPECT_EQ(level.quality, 7);
    EXPECT_EQ(level.reserved8, 8);
    EXPECT_EQ(level.reserved9, 9);
    EXPECT_EQ(level.maxQuality, 10);
    EXPECT_EQ(level.minQuality, 11);
}

TEST(WireToClient, DeviceEvents)
{
    EXPECT_EQ(readHex("ba 01 02 08 01").screen_rotation().rotation(), 1);
    const auto sensor = readHex("c2 01 0b 08 d4 01 10 01 18 d0 05 20 80 0a").sensor_request();
    EXPECT_EQ(sensor.input_type(), 212);
    EXPECT_EQ(sensor.state(), 1);
    EXPECT_EQ(sensor.width(), 720U);
    EXPECT_EQ(sensor.height(), 1280U);
    EXPECT_EQ(readHex("ca 01 04 0a 02 68 69").clipboard().text(), "hi");
    EXPECT_EQ(readHex("d2 01 02 08 02").keyboard_type().type(), 2);
    EXPECT_EQ(readHex("da 01 02 08 01").control_grant().state(), 1);
}

TEST(WireToClient, SessionEnd)
{
    const auto expired = readHex("e2 01 05 08 01 12 01 78").session_end();
    EXPECT_EQ(expired.code(), wire::SessionEnd::EXPIRED);
    EXPECT_EQ(expired.reason(), "x");
    EXPECT_EQ(readHex("e2 01 00").session_end().code(), wire::SessionEnd::CLOSED);
    EXPECT_EQ(readHex("e2 01 02 08 02").session_end().code(), wire::SessionEnd::PROTOCOL_ERROR);
    EXPECT_EQ(readHex("e2 01 02 08 03").session_end().code(), wire::SessionEnd::SHUTDOWN);
}

TEST(WireToClient, PingAndPong)
{
    const auto ping = readHex("c2 02 05 08 01 10 96 01").ping();
    EXPECT_EQ(ping.id(), 1U);
    EXPECT_EQ(ping.sent_us(), 150);
    const auto pong = readHex("ca 02 08 08 05 10 96 01 18 ac 02").pong();
    EXPECT_EQ(pong.id(), 5U);
    EXPECT_EQ(pong.ping_sent_us(), 150);
    EXPECT_EQ(pong.replied_us(), 300);
}

// ---- What else may arrive ----

TEST(WireToClient, UnknownFieldsAreSkipped)
{
    // Field 15 within the rotation, field 60 beside it.
    EXPECT_EQ(readHex("ba 01 04 08 01 78 05 e0 03 09").screen_rotation().rotation(), 1);
}

TEST(WireToClient, UnknownBodiesAreSkipped)
{
    EXPECT_EQ(resultOf(""), ReadResult::Skipped);
    EXPECT_EQ(resultOf(fromHex("92 03 02 08 01")), ReadResult::Skipped); // body 50
    EXPECT_EQ(
        resultOf(fromHex("22 02 08 03")), ReadResult::Skipped); // a screen cast, which is for the gateway
}

TEST(WireToClient, MalformedBytes)
{
    for (const char *hex : {
             "ff", // a tag that does not end
             "aa 01 7f 08 01", // shorter than it says
             "aa 01 02 08", // a field is missing its value
             "07", // wire type 7 does not exist
             "00 01", // field 0 does not exist
             "ca 01 04 0a 02 c3 28", // text that is not UTF-8
             "0b", // a group without an end
         })
        EXPECT_EQ(resultOf(fromHex(hex)), ReadResult::Malformed) << hex;
}

TEST(WireToClient, FieldsOutOfRange)
{
    const std::vector<std::pair<const char *, const char *>> cases = {
        {"a2 01 02 18 01", "login result: no screen size"},
        {"a2 01 08 18 81 80 01 20 80 0a 28", nullptr},
        {"a2 01 07 18 81 80 01 20 80 0a", "login result: screen size out of range"},
        {"a2 01 08 18 d0 05 20 80 0a 28 04", "login result: rotation out of range"},
        {"aa 01 06 08 01 28 d0 05 22", nullptr},
        {"aa 01 05 08 01 28 d0 05", "video frame: no data"},
        {"aa 01 07 22 01 61 28 81 80 01", "video frame: size out of range"},
        {"b2 01 02 18 10", "video level result: row out of range"},
        {"b2 01 0b 18 fe ff ff ff ff ff ff ff ff 01", "video level result: row out of range"},
        {"ba 01 02 08 04", "screen rotation: out of range"},
        {"ba 01 0b 08 ff ff ff ff ff ff ff ff ff 01", "screen rotation: out of range"},
        {"c2 01 04 18 81 80 01", "sensor request: size out of range"},
    };
    for (const auto &[hex, expected] : cases) {
        std::string reason;
        EXPECT_EQ(resultOf(fromHex(hex), &reason), ReadResult::Malformed) << hex;
        EXPECT_EQ(reason, expected ? expected : "not a message") << hex;
    }
}

TEST(WireToClient, SizeLimit)
{
    // A video frame of exactly the limit is good; one more byte is not. Frame: tag 2, length 4; data: tag 1,
    // length 4.
    for (const std::size_t excess : {0, 1}) {
        StreamMessage message;
        message.mutable_video_frame()->set_data(
            std::string(WireLimits::GatewayMessageBytes - 11 + excess, 'x'));
        const std::string bytes = message.SerializeAsString();
        ASSERT_EQ(bytes.size(), WireLimits::GatewayMessageBytes + excess);
        EXPECT_EQ(resultOf(bytes), excess == 0 ? ReadResult::Message : ReadResult::Malformed);
    }
}

TEST(WireToClient, AMillionMutatedMessages)
{
    const google::protobuf::LogSilencer silencer; // it has a line for every text that is not UTF-8
    MessageMutator mutator(20260101);
    int counts[3] = {0, 0, 0};
    StreamMessage message;
    std::string reason;
    for (int i = 0; i < 1'000'000; ++i) {
        const std::string &bytes = mutator.next();
        ++counts[static_cast<int>(readGatewayMessage(bytes.data(), bytes.size(), message, reason))];
    }
    // The mutations reach every way through the reader.
    for (const int count : counts)
        EXPECT_GT(count, 10'000);
}

TEST(Utf8, WellFormedOnly)
{
    for (const char *good :
        {"", "a", "\xc2\x80", "\xe0\xa0\x80", "\xed\x9f\xbf", "\xee\x80\x80", "\xef\xbf\xbf",
            "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf", "A\xc3\xa9\xe4\xbd\xa0\xf0\x9f\x98\x80z"})
        EXPECT_TRUE(isUtf8(good)) << toHex(good);
    for (const char *bad :
        {"\x80", "\xc0\x80", "\xc1\xbf", "\xc2", "\xc2 ", "\xe0\x9f\xbf", "\xed\xa0\x80", "\xe1\x80",
            "\xe1\x80 ", "\xf0\x8f\xbf\xbf", "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xf1\x80\x80", "\xff"})
        EXPECT_FALSE(isUtf8(bad)) << toHex(bad);
}
