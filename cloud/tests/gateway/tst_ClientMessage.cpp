// The gateway's reading of the wire, pinned by literal bytes: nothing here is made by the protobuf library.
#include "gateway/ClientMessage.h"

#include "Bytes.h"

#include <gmock/gmock.h>

#include <random>

using namespace orvane::cloud;
using orvane::cloud::test::hex;

namespace {

template <typename Message>
Message readAs(std::string_view text)
{
    const ClientMessage message = readClientMessage(hex(text));
    if (const auto *wanted = std::get_if<Message>(&message)) {
        return *wanted;
    }
    const auto *malformed = std::get_if<client::Malformed>(&message);
    ADD_FAILURE() << "read as something else: " << (malformed ? malformed->reason : "another message");
    return {};
}

std::string malformedReason(std::string_view text)
{
    const ClientMessage message = readClientMessage(hex(text));
    const auto *malformed = std::get_if<client::Malformed>(&message);
    return malformed ? malformed->reason : "";
}

// Row 1 of the client's table.
const std::string LevelRow = "08 02 10 D0 05 18 80 0A 20 19 28 0F 30 80 30 38 64 50 64 58 32";

} // namespace

TEST(ClientMessage, Login)
{
    const auto login = readAs<client::Login>("0A 10 08 01 10 07 1A 03 61 62 63 22 03 56 4D 31 28 01");
    EXPECT_EQ(login.protocolVersion, 1U);
    EXPECT_EQ(login.userId, 7);
    EXPECT_EQ(login.sessionId, "abc");
    EXPECT_EQ(login.padCode, "VM1");
}

TEST(ClientMessage, LoginWithNegativeUser)
{
    EXPECT_EQ(readAs<client::Login>("0A 0D 08 01 10 FF FF FF FF FF FF FF FF FF 01").userId, -1);
}

TEST(ClientMessage, VideoLevels)
{
    const auto message = readAs<client::VideoLevels>("12 17 0A 15 " + LevelRow);
    ASSERT_EQ(message.levels.size(), 1U);
    const Level &level = message.levels[0];
    EXPECT_EQ(level.codec, 2);
    EXPECT_EQ(level.width, 720);
    EXPECT_EQ(level.height, 1280);
    EXPECT_EQ(level.frameRate, 25);
    EXPECT_EQ(level.minFrameRate, 15);
    EXPECT_EQ(level.bitRate, 6144);
    EXPECT_EQ(level.quality, 100);
    EXPECT_EQ(level.reserved8, 0);
    EXPECT_EQ(level.reserved9, 0);
    EXPECT_EQ(level.maxQuality, 100);
    EXPECT_EQ(level.minQuality, 50);
}

TEST(ClientMessage, ChoiceOfRow)
{
    EXPECT_EQ(readAs<client::ChooseRow>("1A 02 08 03").row, 3);
    EXPECT_EQ(readAs<client::ChooseRow>("1A 02 08 00").row, 0);
}

TEST(ClientMessage, ChoiceOfCustomLevel)
{
    // 144 x 218, 5 frames/s, 256 kbit/s
    const auto choice = readAs<client::ChooseCustom>("1A 0F 12 0D 08 02 10 90 01 18 DA 01 20 05 30 80 02");
    EXPECT_EQ(choice.level.width, 144);
    EXPECT_EQ(choice.level.height, 218);
    EXPECT_EQ(choice.level.frameRate, 5);
    EXPECT_EQ(choice.level.bitRate, 256);
    EXPECT_EQ(choice.level.quality, 0);
}

TEST(ClientMessage, OddSizesAreMadeEvenAndZeroRatesUsable)
{
    const auto choice = readAs<client::ChooseCustom>("1A 0A 12 08 08 02 10 91 01 18 DB 01");
    EXPECT_EQ(choice.level.width, 144);
    EXPECT_EQ(choice.level.height, 218);
    EXPECT_GE(choice.level.frameRate, 1);
    EXPECT_GE(choice.level.bitRate, 1);
}

TEST(ClientMessage, ScreenCast)
{
    EXPECT_EQ(readAs<client::ScreenCast>("22 00").mode, CastMode::Paused);
    EXPECT_EQ(readAs<client::ScreenCast>("22 02 08 01").mode, CastMode::Thumbnail);
    EXPECT_EQ(readAs<client::ScreenCast>("22 02 08 02").mode, CastMode::Full);
    EXPECT_EQ(readAs<client::ScreenCast>("22 02 08 03").mode, CastMode::Full);
    EXPECT_EQ(malformedReason("22 02 08 09"), "screen cast: no such mode");
}

TEST(ClientMessage, KeyframeRequestAndAck)
{
    readAs<client::KeyframeRequest>("2A 00");
    EXPECT_EQ(readAs<client::FrameAck>("32 03 08 AC 02").frameId, 300U);
}

TEST(ClientMessage, Touch)
{
    const auto touch
        = readAs<client::Touch>("3A 16 08 02 12 02 C8 01 1A 02 90 03 22 04 00 00 00 3F 28 D0 05 30 80 0A");
    EXPECT_EQ(touch.action, 2);
    ASSERT_EQ(touch.points.size(), 1U);
    EXPECT_EQ(touch.points[0].x, 100);
    EXPECT_EQ(touch.points[0].y, 200);
    EXPECT_FLOAT_EQ(touch.points[0].pressure, 0.5F);
    EXPECT_EQ(touch.referenceWidth, 720);
    EXPECT_EQ(touch.referenceHeight, 1280);
}

TEST(ClientMessage, TouchOfNoFinger)
{
    EXPECT_TRUE(readAs<client::Touch>("3A 02 08 01").points.empty());
    // one point (-1, -1)
    EXPECT_TRUE(readAs<client::Touch>("3A 0E 08 01 12 01 01 1A 01 01 22 04 00 00 00 00").points.empty());
}

TEST(ClientMessage, PressuresAreFiniteAndBounded)
{
    const auto pressure = [](const std::string &bits) {
        return readAs<client::Touch>("3A 0C 12 01 02 1A 01 02 22 04 " + bits).points.at(0).pressure;
    };
    EXPECT_EQ(pressure("00 00 C0 7F"), 0.0F); // NaN
    EXPECT_EQ(pressure("00 00 80 7F"), 0.0F); // infinity
    EXPECT_EQ(pressure("00 00 80 BF"), 0.0F); // -1
    EXPECT_EQ(pressure("00 00 00 40"), 1.0F); // 2
}

TEST(ClientMessage, TenPointsButNotEleven)
{
    EXPECT_EQ(readAs<client::Touch>("3A 18 12 0A 02 02 02 02 02 02 02 02 02 02 "
                                    "1A 0A 02 02 02 02 02 02 02 02 02 02")
                  .points.size(),
        10U);
    EXPECT_EQ(malformedReason("3A 1A 12 0B 02 02 02 02 02 02 02 02 02 02 02 "
                              "1A 0B 02 02 02 02 02 02 02 02 02 02 02"),
        "touch: more than 10 points");
}

TEST(ClientMessage, TouchThatDoesNotAddUp)
{
    EXPECT_EQ(malformedReason("3A 02 08 03"), "touch: no such action");
    EXPECT_EQ(malformedReason("3A 07 12 02 02 02 1A 01 02"), "touch: the lists differ in length");
    EXPECT_EQ(
        malformedReason("3A 0E 12 01 02 1A 01 02 22 08 00 00 00 00 00 00"), "the message cannot be parsed");
    EXPECT_EQ(malformedReason("3A 04 28 81 80 01"), "touch: the reference size is out of range");
}

TEST(ClientMessage, Key)
{
    const auto key = readAs<client::Key>("42 06 08 01 10 1E 18 01");
    EXPECT_EQ(key.action, 1);
    EXPECT_EQ(key.code, 30);
    EXPECT_TRUE(key.shift);
    EXPECT_EQ(readAs<client::Key>("42 02 08 03").code, 0); // keep-alive
    EXPECT_EQ(malformedReason("42 02 08 04"), "key: no such action");
    EXPECT_EQ(malformedReason("42 00"), "key: no such action");
    EXPECT_EQ(malformedReason("42 05 08 01 10 80 06"), "key: the code is out of range");
}

TEST(ClientMessage, Text)
{
    EXPECT_EQ(readAs<client::Text>("4A 04 0A 02 68 69").text, "hi");
    EXPECT_EQ(readAs<client::Text>("4A 06 0A 04 F0 9F 98 80").text, "\xF0\x9F\x98\x80");
}

TEST(ClientMessage, TextThatIsNotUtf8)
{
    for (const char *bytes : {"4A 03 0A 01 80", "4A 04 0A 02 C0 80", "4A 05 0A 03 ED A0 80",
             "4A 06 0A 04 F4 90 80 80", "4A 04 0A 02 C3 28"}) {
        EXPECT_NE(malformedReason(bytes), "") << bytes;
    }
}

TEST(ClientMessage, PictureAndAudio)
{
    EXPECT_EQ(readAs<client::Picture>("52 04 0A 02 FF D8").jpeg, "\xFF\xD8");
    const auto audio = readAs<client::Audio>("5A 06 08 01 12 02 01 02");
    EXPECT_EQ(audio.format, 1);
    EXPECT_EQ(audio.data, "\x01\x02");
}

TEST(ClientMessage, PingAndPong)
{
    const auto ping = readAs<client::Ping>("C2 02 05 08 01 10 E8 07");
    EXPECT_EQ(ping.id, 1U);
    EXPECT_EQ(ping.sentUs, 1000);
    const auto pong = readAs<client::Pong>("CA 02 08 08 01 10 E8 07 18 D0 0F");
    EXPECT_EQ(pong.id, 1U);
    EXPECT_EQ(pong.pingSentUs, 1000);
}

TEST(ClientMessage, UnknownFieldsAndBodiesAreSkipped)
{
    // Key with an unknown field 15 and an unknown body 100 beside it.
    const auto key = readAs<client::Key>("42 06 08 01 10 1E 78 05 A2 06 00");
    EXPECT_EQ(key.code, 30);
    readAs<client::Unknown>("A2 06 01 00"); // body 100 alone
    readAs<client::Unknown>(""); // no body
    readAs<client::Unknown>("1A 00"); // a choice of a kind to come
    readAs<client::Unknown>("BA 01 00"); // ScreenRotation is for clients
}

TEST(ClientMessage, MalformedBytes)
{
    EXPECT_EQ(malformedReason("FF FF FF FF"), "the message cannot be parsed");
    EXPECT_EQ(malformedReason("0A 10 08 01"), "the message cannot be parsed"); // cut off
    EXPECT_EQ(
        malformedReason("1A 0B 08 FF FF FF FF FF FF FF FF FF 01"), "video level choice: the row is negative");
    // A codec that is not H.264, and a size of nothing.
    EXPECT_EQ(malformedReason("12 0A 0A 08 08 01 10 D0 05 18 80 0A"), "video levels: a row is out of range");
    EXPECT_EQ(malformedReason("12 04 0A 02 08 02"), "video levels: a row is out of range");
}

TEST(ClientMessage, AtMostSixteenLevels)
{
    const auto table = [](int rows) {
        std::string bytes;
        for (int i = 0; i < rows; ++i) {
            bytes += hex("0A 08 08 02 10 90 01 18 DA 01"); // one row in 10 bytes
        }
        return hex("12") + static_cast<char>(bytes.size() % 128 + 128) + static_cast<char>(bytes.size() / 128)
            + bytes;
    };
    EXPECT_TRUE(std::holds_alternative<client::VideoLevels>(readClientMessage(table(16))));
    EXPECT_TRUE(std::holds_alternative<client::Malformed>(readClientMessage(table(17))));
}

TEST(ClientMessage, LargestPictureAndOneByteMore)
{
    const auto picture = [](std::size_t size) {
        const auto varint = [](std::size_t value) {
            std::string bytes;
            for (; value >= 128; value /= 128) {
                bytes.push_back(static_cast<char>(value % 128 + 128));
            }
            return bytes + static_cast<char>(value);
        };
        const std::string inner = hex("0A") + varint(size) + std::string(size, 'x');
        return hex("52") + varint(inner.size()) + inner;
    };
    constexpr std::size_t limit = 4 * 1024 * 1024;
    EXPECT_TRUE(std::holds_alternative<client::Picture>(readClientMessage(picture(limit))));
    EXPECT_TRUE(std::holds_alternative<client::Malformed>(readClientMessage(picture(limit + 1))));
    EXPECT_TRUE(
        std::holds_alternative<client::Malformed>(readClientMessage(std::string(limit + 65537, 'x'))));
}

TEST(ClientMessage, AMillionDamagedMessages)
{
    const std::vector<std::string> good = {
        hex("0A 10 08 01 10 07 1A 03 61 62 63 22 03 56 4D 31 28 01"),
        hex("12 17 0A 15 " + LevelRow),
        hex("1A 0F 12 0D 08 02 10 90 01 18 DA 01 20 05 30 80 02"),
        hex("22 02 08 03"),
        hex("32 03 08 AC 02"),
        hex("3A 16 08 02 12 02 C8 01 1A 02 90 03 22 04 00 00 00 3F 28 D0 05 30 80 0A"),
        hex("42 06 08 01 10 1E 18 01"),
        hex("4A 06 0A 04 F0 9F 98 80"),
        hex("52 04 0A 02 FF D8"),
        hex("C2 02 05 08 01 10 E8 07"),
    };
    std::mt19937 random(20261121);
    const auto pick = [&](std::size_t size) { return static_cast<std::size_t>(random()) % size; };
    std::size_t refused = 0;
    for (int i = 0; i < 1'000'000; ++i) {
        std::string bytes = good[pick(good.size())];
        for (std::size_t changes = 1 + pick(3); changes > 0 && !bytes.empty(); --changes) {
            switch (pick(4)) {
            case 0:
                bytes[pick(bytes.size())] = static_cast<char>(random());
                break;
            case 1:
                bytes.resize(pick(bytes.size() + 1));
                break;
            case 2:
                bytes.insert(pick(bytes.size()), 1, static_cast<char>(random()));
                break;
            default:
                bytes += good[pick(good.size())];
                break;
            }
        }
        const ClientMessage message = readClientMessage(bytes);
        refused += std::holds_alternative<client::Malformed>(message) ? 1 : 0;
        if (const auto *touch = std::get_if<client::Touch>(&message)) {
            ASSERT_LE(touch->points.size(), 10U);
            for (const auto &point : touch->points) {
                ASSERT_TRUE(point.pressure >= 0 && point.pressure <= 1);
            }
        } else if (const auto *custom = std::get_if<client::ChooseCustom>(&message)) {
            ASSERT_TRUE(
                custom->level.width >= 16 && custom->level.width <= 1440 && custom->level.width % 2 == 0);
        }
    }
    EXPECT_GT(refused, 100'000U);
    EXPECT_LT(refused, 950'000U);
}
