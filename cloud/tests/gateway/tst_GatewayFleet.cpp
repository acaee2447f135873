// The gateway as its clients see it: real sockets, a real device, bytes as they are on the wire.
#include "GatewayFixture.h"
#include "TestDecoder.h"

#include <gmock/gmock.h>

#include <random>

using namespace orvane::cloud;
using namespace orvane::cloud::test;
using namespace std::chrono_literals;
using swplay::wire::SessionEnd;

// --- Login ---

TEST_F(GatewayFleetTest, LoginIsAnsweredWithTheScreen)
{
    start();
    auto client = connect();
    ASSERT_TRUE(client->isConnected());
    ASSERT_TRUE(client->send(LoginBytes));
    const auto answer = client->receiveBytes();
    ASSERT_TRUE(answer);
    EXPECT_EQ(toHex(*answer), "A2 01 06 18 D0 05 20 80 0A");
}

TEST_F(GatewayFleetTest, RefusedLoginsSayWhyAndEnd)
{
    start();
    const std::pair<const char *, const char *> refusals[] = {
        {"0A 0E 08 01 10 07 1A 03 78 78 78 22 03 56 4D 31", "08 01"}, // session "xxx"
        {"0A 0E 08 01 10 08 1A 03 61 62 63 22 03 56 4D 31", "08 01"}, // user 8
        {"0A 0E 08 01 10 07 1A 03 61 62 63 22 03 56 4D 39", "08 01"}, // device VM9
        {"0A 0E 08 01 10 07 1A 03 6F 6C 64 22 03 56 4D 31", "08 02"}, // session "old"
        {"0A 0E 08 02 10 07 1A 03 61 62 63 22 03 56 4D 31", "08 03"}, // version 2
        {"0A 00", "08 03"}, // version 0
    };
    for (const auto &[login, code] : refusals) {
        auto client = connect();
        ASSERT_TRUE(client->send(hex(login)));
        const auto answer = client->receiveBytes();
        ASSERT_TRUE(answer) << login;
        EXPECT_EQ(toHex(answer->substr(0, 2)), "A2 01");
        EXPECT_EQ(toHex(answer->substr(3, 2)), code) << login;
        EXPECT_FALSE(client->receiveBytes());
        EXPECT_TRUE(client->waitForEnd());
    }
    EXPECT_TRUE(fleet->stats().empty());
}

// What ends a session looks for its connections. One whose login is still being checked is not among them.
TEST_F(GatewayFleetTest, ASessionGivenBackDuringItsLoginIsEnded)
{
    start();
    sessions.afterLookUp = [this] {
        sessions.known = SessionState::Unknown;
        fleet->endSession("abc", false);
    };
    auto client = connect();
    ASSERT_TRUE(client->send(LoginBytes));
    expectEnd(*client, SessionEnd::CLOSED, "the session was given back");
    EXPECT_TRUE(eventually([&] { return fleet->stats().empty(); }));
}

TEST_F(GatewayFleetTest, ASessionThatExpiresDuringItsLoginIsEnded)
{
    start();
    sessions.afterLookUp = [this] {
        sessions.known = SessionState::Expired;
        fleet->endSession("abc", true);
    };
    auto client = connect();
    ASSERT_TRUE(client->send(LoginBytes));
    expectEnd(*client, SessionEnd::EXPIRED, "the device's time is over");
    EXPECT_TRUE(eventually([&] { return fleet->stats().empty(); }));
}

TEST_F(GatewayFleetTest, WhoCannotBeCheckedAgainMayTryLater)
{
    start();
    sessions.afterLookUp = [this] { sessions.broken = true; };
    auto client = connect();
    ASSERT_TRUE(client->send(LoginBytes));
    expectEnd(*client, SessionEnd::SHUTDOWN, "the session cannot be looked up");
    sessions.broken = false;
    EXPECT_TRUE(signIn());
}

TEST_F(GatewayFleetTest, InputBeforeTheLoginEndsTheConnection)
{
    start();
    auto client = connect();
    ASSERT_TRUE(client->send(DownBytes));
    expectEnd(*client, SessionEnd::PROTOCOL_ERROR, "the first message is not a login");
    EXPECT_TRUE(fleet->inputsSince("VM1", 0).empty());
}

TEST_F(GatewayFleetTest, NoLoginInTime)
{
    ConnectionTimes times;
    times.login = 1s;
    start(times);
    auto client = connect();
    expectEnd(*client, SessionEnd::PROTOCOL_ERROR, "no login in time");
}

TEST_F(GatewayFleetTest, NoHandshakeInTime)
{
    ConnectionTimes times;
    times.login = 50ms;
    start(times);
    boost::asio::io_context context;
    boost::asio::ip::tcp::socket socket(context);
    socket.connect({boost::asio::ip::make_address("127.0.0.1"), fleet->controlPort()});
    char byte = 0;
    boost::system::error_code error;
    socket.read_some(boost::asio::buffer(&byte, 1), error); // returns when the gateway closes
    EXPECT_TRUE(error);
}

TEST_F(GatewayFleetTest, OtherPathsAreNotServed)
{
    start();
    auto client = connect("/other");
    EXPECT_FALSE(client->isConnected());
    EXPECT_EQ(client->httpStatus(), 404);
}

TEST_F(GatewayFleetTest, ASecondLoginIsAnError)
{
    start();
    auto client = signIn();
    client->send(LoginBytes);
    expectEnd(*client, SessionEnd::PROTOCOL_ERROR, "a second login");
}

// --- Messages ---

TEST_F(GatewayFleetTest, MalformedMessagesEndTheSessionWithAReason)
{
    start();
    const std::pair<const char *, const char *> messages[] = {
        {"FF FF FF FF", "the message cannot be parsed"},
        {"3A 02 08 03", "touch: no such action"},
        {"42 02 08 04", "key: no such action"},
        {"4A 03 0A 01 80", "the message cannot be parsed"}, // not UTF-8
        {"22 02 08 09", "screen cast: no such mode"},
    };
    for (const auto &[bytes, reason] : messages) {
        auto client = signIn();
        client->send(hex(bytes));
        expectEnd(*client, SessionEnd::PROTOCOL_ERROR, reason);
    }
}

TEST_F(GatewayFleetTest, TextMessagesAreAnError)
{
    start();
    auto client = signIn();
    client->sendText("hello");
    expectEnd(*client, SessionEnd::PROTOCOL_ERROR, "a text message");
}

TEST_F(GatewayFleetTest, OversizedMessagesAreAnError)
{
    start();
    auto client = signIn();
    client->send(std::string(5 * 1024 * 1024, 'x'));
    expectEnd(*client, SessionEnd::PROTOCOL_ERROR, "the message is too large");
}

TEST_F(GatewayFleetTest, UnknownMessagesAreSkipped)
{
    start();
    auto client = signIn();
    client->send(hex("A2 06 01 00")); // body 100
    client->send("");
    client->send(hex("C2 02 05 08 01 10 E8 07"));
    const auto pong = client->receiveUntil([](const auto &m) { return m.has_pong(); });
    ASSERT_TRUE(pong);
}

TEST_F(GatewayFleetTest, PingsAreAnsweredWithTheirOwnTime)
{
    start();
    auto client = signIn();
    client->send(hex("C2 02 05 08 05 10 E8 07"));
    std::optional<std::string> pong;
    do {
        pong = client->receiveBytes();
    } while (pong && pong->substr(0, 2) != hex("CA 02"));
    ASSERT_TRUE(pong);
    EXPECT_EQ(toHex(pong->substr(3, 6)), "08 05 10 E8 07 18");
}

TEST_F(GatewayFleetTest, ASilentClientIsDropped)
{
    ConnectionTimes times;
    times.pingInterval = 20ms;
    times.silence = 100ms;
    start(times);
    auto client = signIn();
    client->beSilent();
    EXPECT_TRUE(client->waitForEnd());
    EXPECT_TRUE(eventually([&] { return fleet->stats().empty(); }));
}

TEST_F(GatewayFleetTest, DamagedMessagesNeverHurtTheGateway)
{
    start();
    std::mt19937 random(4711);
    const std::vector<std::string> good{LevelsBytes, FullBytes, DownBytes, UpBytes,
        hex("42 06 08 01 10 1E 18 01"), hex("4A 06 0A 04 F0 9F 98 80"), hex("1A 02 08 03"), hex("2A 00"),
        hex("32 03 08 AC 02"), hex("52 04 0A 02 FF D8"), hex("C2 02 05 08 01 10 E8 07")};
    for (int i = 0; i < 60; ++i) {
        auto client = signIn();
        for (int k = 0; k < 100 && !client->hasEnded(); ++k) {
            std::string bytes = good[random() % good.size()];
            bytes[random() % bytes.size()] = static_cast<char>(random());
            client->send(bytes);
        }
    }
    auto client = watch();
    EXPECT_TRUE(client->receiveFrame());
}

// --- Video ---

TEST_F(GatewayFleetTest, AViewerGetsItsLevelAndAKeyFrame)
{
    start();
    auto client = signIn();
    const auto first = client->receive();
    ASSERT_TRUE(first && first->has_video_level_result()) << "the level in effect follows the login";
    client->send(LevelsBytes);
    client->send(FullBytes);
    const auto frame = client->receiveFrame();
    ASSERT_TRUE(frame);
    EXPECT_TRUE(frame->key_frame());
    EXPECT_EQ(frame->frame_id(), 1U);
    TestDecoder decoder;
    const auto luma = decoder.decode(frame->data());
    ASSERT_TRUE(luma);
    EXPECT_EQ(luma->width, 720);
    EXPECT_EQ(luma->height, 1280);
}

TEST_F(GatewayFleetTest, ATouchShowsAtOnce)
{
    start();
    fleet->openApp("VM1", "Latency");
    auto client = watch();
    TestDecoder decoder;
    const auto brightness = [&](const swplay::wire::VideoFrame &frame) {
        const auto luma = decoder.decode(frame.data());
        return luma ? int(luma->samples.at(640 * 720 + 360)) : -1;
    };
    int before = brightness(*client->receiveFrame());
    for (int i = 0; i < 5; ++i) {
        client->send(DownBytes);
        int after = before;
        while (std::abs(after - before) < 20) {
            const auto frame = client->receiveFrame();
            ASSERT_TRUE(frame);
            after = brightness(*frame);
        }
        before = after;
        client->send(UpBytes);
    }
}

TEST_F(GatewayFleetTest, TheFinalPictureIsTheDevicesScreen)
{
    start();
    auto client = watch();
    ASSERT_TRUE(fleet->openApp("VM1", "Notes"));
    const auto png = fleet->screenPng("VM1", 0);
    const QImage screen
        = QImage::fromData(QByteArray::fromStdString(png)).convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(screen.size(), QSize(720, 1280));
    YuvPicture wanted(720, 1280);
    wanted.convert(screen, screen.rect());
    TestDecoder decoder;
    double likeness = 0;
    while (likeness < 38) {
        const auto frame = client->receiveFrame();
        ASSERT_TRUE(frame) << "the last picture was only like the screen by " << likeness;
        const auto luma = decoder.decode(frame->data());
        ASSERT_TRUE(luma);
        likeness = psnr(*luma, wanted);
    }
}

TEST_F(GatewayFleetTest, TwoSessionsSeeAndWorkOneDevice)
{
    start();
    fleet->openApp("VM1", "Paint");
    auto first = watch();
    auto second = watch(SecondLoginBytes);
    EXPECT_TRUE(first->receiveFrame());
    EXPECT_TRUE(second->receiveFrame());
    first->send(DownBytes);
    second->send(hex("3A 16 08 00 12 02 A8 01 1A 02 90 03 22 04 00 00 00 3F 28 D0 05 30 80 0A")); // (84, 200)
    EXPECT_TRUE(eventually([&] { return app()["fingers"].toInt() == 2; }));
    EXPECT_EQ(fleet->stats().size(), 2U);
}

TEST_F(GatewayFleetTest, KeyFrameOnRequest)
{
    start();
    auto client = watch();
    ASSERT_TRUE(client->receiveFrame());
    client->send(hex("2A 00"));
    const auto key = client->receiveUntil(
        [](const auto &m) { return m.has_video_frame() && m.video_frame().key_frame(); });
    EXPECT_TRUE(key);
}

TEST_F(GatewayFleetTest, DamagedVideoOnRequest)
{
    start();
    auto client = watch();
    ASSERT_TRUE(client->receiveFrame());
    EXPECT_EQ(fleet->corruptVideo("VM1", 1), 1);
    EXPECT_EQ(fleet->corruptVideo("VM2", 1), 0);
    client->send(hex("2A 00"));
    const auto key = client->receiveUntil(
        [](const auto &m) { return m.has_video_frame() && m.video_frame().key_frame(); });
    ASSERT_TRUE(key);
    const QImage image = QImage::fromData(QByteArray::fromStdString(fleet->screenPng("VM1", 0)))
                             .convertToFormat(QImage::Format_RGB32);
    YuvPicture screen(720, 1280);
    screen.convert(image, image.rect());
    TestDecoder fresh;
    const auto luma = fresh.decode(key->video_frame().data());
    EXPECT_LT(luma ? psnr(*luma, screen) : 0, 25);
}
