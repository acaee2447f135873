// Input that nobody or only an onlooker sees the effect of, and input that comes early.
#include "GatewayFixture.h"
#include "TestDecoder.h"

#include "gateway/FramePacer.h"

#include <linux/input-event-codes.h>

using namespace orvane::cloud;
using namespace orvane::cloud::test;
using namespace std::chrono_literals;

namespace {

// Exactly 144 x 218 at 5 frames per second.
std::string thumbnailBytes()
{
    swplay::wire::StreamMessage message;
    auto &level = *message.mutable_video_level_choice()->mutable_custom();
    level.set_codec(2);
    level.set_width(144);
    level.set_height(218);
    level.set_frame_rate(FramePacer::OnlookerRate);
    level.set_bit_rate(256);
    return message.SerializeAsString();
}

class GatewayInputTest : public GatewayFleetTest
{
protected:
    std::unique_ptr<RawClient> lookOn()
    {
        auto client = signIn();
        EXPECT_TRUE(client->send(thumbnailBytes()));
        EXPECT_TRUE(client->send(FullBytes));
        return client;
    }

    std::optional<TestDecoder::Luma> nextPicture(RawClient &client)
    {
        const auto frame = client.receiveFrame();
        return frame ? decoder.decode(frame->data()) : std::nullopt;
    }

    // Receives pictures until the middle of one is bright (or dark).
    bool becomes(RawClient &client, bool bright)
    {
        while (const auto luma = nextPicture(client)) {
            const int middle
                = luma->samples.at(std::size_t(luma->height / 2) * luma->width + luma->width / 2);
            if ((middle > 128) == bright) {
                return true;
            }
        }
        return false;
    }

    TestDecoder decoder;
};

} // namespace

TEST_F(GatewayInputTest, AnOnlookerSeesTheEffectOnAStillScreen)
{
    start();
    fleet->openApp("VM1", "Latency"); // dark, and bright after a touch
    auto client = lookOn();
    ASSERT_TRUE(becomes(*client, false));
    for (const bool bright : {true, false, true}) {
        std::this_thread::sleep_for(500ms); // nothing is to be sent any more
        client->send(DownBytes);
        client->send(UpBytes);
        EXPECT_TRUE(becomes(*client, bright));
    }
}

TEST_F(GatewayInputTest, AnOnlookerSeesTheEffectOnAMovingScreen)
{
    start();
    fleet->openApp("VM1", "Video");
    auto client = lookOn();
    ASSERT_TRUE(nextPicture(*client));
    ASSERT_TRUE(nextPicture(*client));
    fleet->openApp("VM1", "Latency"); // shown when the film's next picture was due
    EXPECT_TRUE(becomes(*client, false));
    client->send(DownBytes);
    client->send(UpBytes);
    EXPECT_TRUE(becomes(*client, true));
}

TEST_F(GatewayInputTest, WhatHappenedUnseenIsSeenLater)
{
    start();
    fleet->openApp("VM1", "Latency");
    auto client = signIn(); // paused
    client->send(DownBytes);
    client->send(UpBytes);
    ASSERT_TRUE(eventually([&] { return fleet->inputsSince("VM1", 0).size() == 2; }));
    client->send(thumbnailBytes());
    client->send(FullBytes);
    EXPECT_TRUE(becomes(*client, true));
    client->send(DownBytes);
    client->send(UpBytes);
    EXPECT_TRUE(becomes(*client, false));
}

TEST_F(GatewayInputTest, InputRightBehindTheLoginArrives)
{
    start();
    auto client = connect();
    client->send(LoginBytes);
    client->send(DownBytes);
    client->send(UpBytes);
    const auto result = client->receive();
    ASSERT_TRUE(result && result->has_login_result());
    EXPECT_TRUE(eventually([&] { return fleet->inputsSince("VM1", 0).size() == 2; }));
}

TEST_F(GatewayInputTest, InputBeforeTheEndOfAConnectionCounts)
{
    start();
    constexpr std::size_t touches = 40;
    auto client = signIn();
    for (std::size_t i = 0; i < touches; ++i) {
        ASSERT_TRUE(client->send(DownBytes));
    }
    client->sendText("no such message");
    expectEnd(*client, swplay::wire::SessionEnd::PROTOCOL_ERROR, "a text message");
    EXPECT_TRUE(eventually([&] { return fleet->inputsSince("VM1", 0).size() == touches; }));
}

TEST_F(GatewayInputTest, LongTextAndWhatFollowsKeepTheirOrder)
{
    start();
    fleet->openApp("VM1", "Notes");
    auto client = signIn();
    swplay::wire::StreamMessage longText;
    longText.mutable_text()->set_text(std::string(20000, 'a'));
    client->send(longText.SerializeAsString());
    client->send(DownBytes);
    client->send(longText.SerializeAsString());
    client->send(UpBytes);
    ASSERT_TRUE(eventually([&] { return fleet->inputsSince("VM1", 0).size() == 4; }));
    std::vector<std::string> types;
    for (const InputRecord &input : fleet->inputsSince("VM1", 0)) {
        types.push_back(QJsonDocument::fromJson(QByteArray::fromStdString(input.json))
                            .object()["type"]
                            .toString()
                            .toStdString());
    }
    EXPECT_EQ(types, (std::vector<std::string>{"text", "touch", "text", "touch"}));
}

TEST_F(GatewayInputTest, ASessionThatSeesNothingIsAskedForTheCamera)
{
    start();
    auto client = signIn(); // paused
    fleet->openApp("VM1", "Camera");
    EXPECT_TRUE(client->receiveUntil([](const auto &m) { return m.has_sensor_request(); }));
}

TEST_F(GatewayInputTest, WhoComesAfterTheCameraWasOpenedIsAskedOnce)
{
    start();
    fleet->openApp("VM1", "Camera");
    auto client = signIn();
    int requests = 0;
    fleet->rotate("VM1", 1);
    const auto rotation = client->receiveUntil([&](const auto &m) {
        requests += m.has_sensor_request() ? 1 : 0;
        return m.has_screen_rotation();
    });
    EXPECT_TRUE(rotation);
    EXPECT_EQ(requests, 1);
}

// Its device may have more and more to tell it: 36 MB here.
TEST_F(GatewayInputTest, AClientThatDoesNotReadIsGivenUp)
{
    start();
    fleet->openApp("VM1", "Notes");
    auto deaf = signIn();
    auto other = signIn(SecondLoginBytes);
    const auto press = [&other](int code) {
        swplay::wire::StreamMessage message;
        message.mutable_key()->set_action(1);
        message.mutable_key()->set_code(code);
        return other->send(message.SerializeAsString());
    };
    swplay::wire::StreamMessage note;
    for (int i = 0; i < 10000; ++i) {
        note.mutable_text()->mutable_text()->append("好");
    }
    other->send(note.SerializeAsString());
    press(KEY_LEFTCTRL);
    for (int i = 0; i < 1200; ++i) {
        press(KEY_C);
        ASSERT_TRUE(other->receiveUntil([](const auto &m) { return m.has_clipboard(); })) << i;
    }
    EXPECT_TRUE(deaf->waitForEnd());
    EXPECT_FALSE(other->hasEnded());
}
