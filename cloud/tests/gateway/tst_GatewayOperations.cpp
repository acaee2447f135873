// Input on its way to a device, and what the service does with sessions, devices and connections.
#include "GatewayFixture.h"

#include <QBuffer>

#include <gmock/gmock.h>

using namespace orvane::cloud;
using namespace orvane::cloud::test;
using namespace std::chrono_literals;
using swplay::wire::SessionEnd;

// --- Input ---

TEST_F(GatewayFleetTest, InputReachesTheDevice)
{
    start();
    auto client = signIn();
    client->send(DownBytes);
    client->send(hex("42 06 08 01 10 1E 18 01"));
    client->send(hex("4A 04 0A 02 68 69"));
    ASSERT_TRUE(eventually([&] { return fleet->inputsSince("VM1", 0).size() == 3; }));
    const auto inputs = fleet->inputsSince("VM1", 0);
    EXPECT_EQ(inputs[0].sessionId, "abc");
    const auto json = [&](std::size_t i) {
        return QJsonDocument::fromJson(QByteArray::fromStdString(inputs[i].json)).object();
    };
    EXPECT_EQ(json(0)["type"].toString(), "touch");
    EXPECT_EQ(json(0)["points"].toArray().size(), 1);
    EXPECT_EQ(json(0)["points"].toArray()[0].toArray()[0].toInt(), 360);
    EXPECT_EQ(json(0)["points"].toArray()[0].toArray()[1].toInt(), 640);
    EXPECT_EQ(json(1)["type"].toString(), "key");
    EXPECT_EQ(json(1)["code"].toInt(), 30);
    EXPECT_TRUE(json(1)["shift"].toBool());
    EXPECT_EQ(json(2)["text"].toString(), "hi");
    EXPECT_EQ(fleet->inputsSince("VM1", inputs[1].sequence).size(), 1U);
    EXPECT_TRUE(fleet->inputsSince("VM2", 0).empty());
}

TEST_F(GatewayFleetTest, TouchesAreScaledFromTheReferenceSizeAndClamped)
{
    start();
    auto client = signIn();
    // (72, 109) of 144 x 218, then (-5, 30000) of 720 x 1280
    client->send(hex("3A 16 08 00 12 02 90 01 1A 02 DA 01 22 04 00 00 00 3F 28 90 01 30 DA 01"));
    client->send(hex("3A 16 08 02 12 01 09 1A 03 E0 D4 03 22 04 00 00 00 3F 28 D0 05 30 80 0A"));
    ASSERT_TRUE(eventually([&] { return fleet->inputsSince("VM1", 0).size() == 2; }));
    const auto point = [&](std::size_t i) {
        const auto json = fleet->inputsSince("VM1", 0)[i].json;
        return QJsonDocument::fromJson(QByteArray::fromStdString(json))
            .object()["points"]
            .toArray()[0]
            .toArray();
    };
    EXPECT_EQ(point(0)[0].toInt(), 362); // the middle of column 72 of 144
    EXPECT_EQ(point(0)[1].toInt(), 642);
    EXPECT_EQ(point(1)[0].toInt(), 0);
    EXPECT_EQ(point(1)[1].toInt(), 1279);
}

TEST_F(GatewayFleetTest, AFloodOfInputSlowsItsSenderAndLosesNothing)
{
    start();
    fleet->openApp("VM1", "Paint");
    auto client = signIn();
    constexpr std::uint64_t pairs = 3000;
    for (std::uint64_t i = 0; i < pairs; ++i) {
        ASSERT_TRUE(client->send(DownBytes));
        ASSERT_TRUE(client->send(UpBytes));
    }
    EXPECT_TRUE(eventually([&] {
        const auto inputs = fleet->inputsSince("VM1", 2 * pairs - 1);
        return !inputs.empty() && inputs.back().sequence == 2 * pairs;
    }));
    EXPECT_EQ(app()["fingers"].toInt(), 0);
}

TEST_F(GatewayFleetTest, FingersAreLiftedWhenTheConnectionIsCut)
{
    start();
    fleet->openApp("VM1", "Paint");
    auto client = signIn();
    client->send(DownBytes);
    ASSERT_TRUE(eventually([&] { return app()["fingers"].toInt() == 1; }));
    EXPECT_EQ(fleet->cutConnections("VM2"), 0);
    EXPECT_EQ(fleet->cutConnections("VM1"), 1);
    EXPECT_TRUE(eventually([&] { return app()["fingers"].toInt() == 0; }));
    EXPECT_TRUE(client->waitForEnd());
}

TEST_F(GatewayFleetTest, ANewerConnectionReplacesTheOlder)
{
    start();
    fleet->openApp("VM1", "Paint");
    auto older = signIn();
    older->send(DownBytes);
    ASSERT_TRUE(eventually([&] { return app()["fingers"].toInt() == 1; }));
    auto newer = watch();
    expectEnd(*older, SessionEnd::CLOSED, "a newer connection has taken over the session");
    EXPECT_TRUE(eventually([&] { return app()["fingers"].toInt() == 0; }));
    EXPECT_TRUE(newer->receiveFrame());
    newer->send(DownBytes);
    EXPECT_TRUE(eventually([&] { return app()["fingers"].toInt() == 1; }));
    EXPECT_EQ(fleet->stats().size(), 1U);
}

// --- What the service does with sessions and devices ---

TEST_F(GatewayFleetTest, SessionsEndWhenTheyAreGivenBackOrExpire)
{
    start();
    auto closed = signIn();
    auto expired = signIn(SecondLoginBytes);
    fleet->endSession("nobody", false);
    fleet->endSession("abc", false);
    expectEnd(*closed, SessionEnd::CLOSED, "the session was given back");
    fleet->endSession("abc2", true);
    expectEnd(*expired, SessionEnd::EXPIRED, "the device's time is over");
}

TEST_F(GatewayFleetTest, StoppingSaysGoodbye)
{
    start();
    auto client = watch();
    auto stranger = connect();
    std::thread stopping([&] { fleet->stop(); });
    expectEnd(*client, SessionEnd::SHUTDOWN, "the gateway goes down");
    EXPECT_TRUE(stranger->waitForEnd());
    stopping.join();
    EXPECT_FALSE(connect()->isConnected());
}

TEST_F(GatewayFleetTest, StoppingDoesNotWaitForClientsThatDoNotAnswer)
{
    ConnectionTimes times;
    times.closing = 50ms;
    start(times);
    auto client = watch();
    fleet->stop();
    EXPECT_TRUE(client->waitForEnd());
}

TEST_F(GatewayFleetTest, RotationAndCameraAreToldToTheClients)
{
    start();
    auto client = signIn();
    EXPECT_TRUE(fleet->rotate("VM1", 1));
    const auto rotation = client->receiveUntil([](const auto &m) { return m.has_screen_rotation(); });
    ASSERT_TRUE(rotation);
    EXPECT_EQ(rotation->screen_rotation().rotation(), 1);
    EXPECT_FALSE(fleet->rotate("VM1", 4));
    EXPECT_FALSE(fleet->rotate("VM9", 0));
    EXPECT_TRUE(fleet->requestCamera("VM1", true));
    const auto camera = client->receiveUntil([](const auto &m) { return m.has_sensor_request(); });
    ASSERT_TRUE(camera);
    EXPECT_THAT(camera->sensor_request().input_type(), testing::AnyOf(199, 212));
    EXPECT_NE(camera->sensor_request().state(), 0);
    // Who comes later is told with the login.
    auto later = connect();
    later->send(SecondLoginBytes);
    const auto login = later->receive();
    ASSERT_TRUE(login);
    EXPECT_EQ(login->login_result().rotation(), 1);
}

// A session on the way to the camera app: what each client was asked for, and the pictures it sends.
TEST_F(GatewayFleetTest, EverySessionIsAskedForTheCamera)
{
    start();
    const auto isAsked = [](const auto &m) { return m.has_sensor_request(); };
    const auto expectAsked = [&](RawClient &client, int state, int width, int height) {
        const auto message = client.receiveUntil(isAsked);
        ASSERT_TRUE(message);
        EXPECT_EQ(message->sensor_request().input_type(), 212);
        EXPECT_EQ(message->sensor_request().state(), state);
        EXPECT_EQ(message->sensor_request().width(), width);
        EXPECT_EQ(message->sensor_request().height(), height);
    };
    auto first = signIn(); // watches no video
    auto second = watch(SecondLoginBytes);
    fleet->openApp("VM1", "Camera");
    expectAsked(*first, 1, 720, 1280);
    expectAsked(*second, 1, 720, 1280);

    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::green);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    ASSERT_TRUE(image.save(&buffer, "JPG"));
    RawClient::Message picture;
    picture.mutable_picture()->set_jpeg(jpeg.toStdString());
    for (RawClient *client : {first.get(), second.get()}) {
        ASSERT_TRUE(client->send(picture.SerializeAsString()));
    }
    EXPECT_TRUE(eventually([&] { return app()["pictures"] == 2; }));
    EXPECT_EQ(app()["pictureWidth"], 64);
    EXPECT_EQ(app()["pictureHeight"], 48);

    fleet->openApp("VM1", "Home");
    expectAsked(*first, 0, 0, 0);
    expectAsked(*second, 0, 0, 0);
}

TEST_F(GatewayFleetTest, WhoComesLaterIsAskedForTheCameraToo)
{
    start();
    fleet->openApp("VM1", "Camera");
    auto client = signIn();
    const auto isAsked = [](const auto &m) { return m.has_sensor_request(); };
    auto asked = client->receiveUntil(isAsked);
    ASSERT_TRUE(asked);
    EXPECT_EQ(asked->sensor_request().state(), 1);
    EXPECT_EQ(asked->sensor_request().width(), 720);

    // One that misses the end while it is away is told when it comes back; one that was never asked is not.
    client.reset();
    EXPECT_TRUE(eventually([&] { return fleet->stats().empty(); }));
    fleet->openApp("VM1", "Home");
    client = signIn();
    asked = client->receiveUntil(isAsked);
    ASSERT_TRUE(asked);
    EXPECT_EQ(asked->sensor_request().state(), 0);
    auto stranger = signIn(SecondLoginBytes);
    fleet->requestCamera("VM1", false);
    fleet->rotate("VM1", 1);
    for (RawClient *any : {client.get(), stranger.get()}) {
        const auto next = any->receiveUntil(
            [](const auto &m) { return m.has_sensor_request() || m.has_screen_rotation(); });
        ASSERT_TRUE(next);
        EXPECT_TRUE(next->has_screen_rotation()) << "not asked for what it does not do";
    }
}

TEST_F(GatewayFleetTest, ARestartKeepsTheSession)
{
    start();
    auto client = watch();
    ASSERT_TRUE(client->receiveFrame());
    EXPECT_TRUE(fleet->reboot("VM1"));
    EXPECT_FALSE(fleet->reboot("VM9"));
    EXPECT_EQ(fleet->state("VM1"), DeviceState::Booting);
    while (fleet->state("VM1") == DeviceState::Booting) {
        ASSERT_TRUE(client->receiveFrame()) << "the boot screen moves";
    }
    EXPECT_EQ(fleet->stats().size(), 1U);
}

TEST_F(GatewayFleetTest, UnknownDevices)
{
    start();
    EXPECT_TRUE(fleet->contains("VM1"));
    EXPECT_FALSE(fleet->contains("VM9"));
    EXPECT_TRUE(fleet->screenPng("VM9", 100).empty());
    EXPECT_TRUE(fleet->inputsSince("VM9", 0).empty());
    EXPECT_FALSE(fleet->openApp("VM9", "Home"));
    EXPECT_FALSE(fleet->openApp("VM1", "Nothing"));
    EXPECT_FALSE(fleet->requestCamera("VM9", true));
    EXPECT_EQ(fleet->appStateJson("VM9"), "");
}

TEST_F(GatewayFleetTest, PictureOfTheScreen)
{
    start();
    const QImage image = QImage::fromData(QByteArray::fromStdString(fleet->screenPng("VM1", 320)));
    EXPECT_EQ(image.size(), QSize(180, 320));
    const auto version = fleet->screenVersion("VM1");
    EXPECT_GT(version, 0U);
    EXPECT_EQ(fleet->screenVersion("VM1"), version);
    fleet->openApp("VM1", "Notes");
    EXPECT_GT(fleet->screenVersion("VM1"), version);
    EXPECT_EQ(fleet->screenVersion("VM9"), 0U);
}

// --- Bad networks on request ---

TEST_F(GatewayFleetTest, AStalledConnectionNeitherReadsNorWrites)
{
    start();
    auto client = signIn();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(fleet->stallConnections("VM1", 300ms), 1);
    client->send(hex("C2 02 05 08 01 10 E8 07"));
    ASSERT_TRUE(client->receiveUntil([](const auto &m) { return m.has_pong(); }));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 300ms);
}

TEST_F(GatewayFleetTest, ALimitedConnectionIsSlowAndItsLevelGoesDown)
{
    start();
    fleet->limitBandwidth("VM1", 500);
    fleet->openApp("VM1", "Video");
    auto client = signIn();
    // Rows 0 to 2: 720 x 1280 at 6144 kbit/s, twice; then 240 x 424 at 256 kbit/s.
    const std::string row = "0A 15 08 02 10 D0 05 18 80 0A 20 19 28 0F 30 80 30 38 64 50 64 58 32";
    client->send(hex("12 3F " + row + row + " 0A 0F 08 02 10 F0 01 18 A8 03 20 0F 30 80 02 38 64"));
    client->send(FullBytes);
    const auto down = client->receiveUntil(
        [](const auto &m) { return m.has_video_level_result() && m.video_level_result().row() == 2; });
    ASSERT_TRUE(down);
    EXPECT_TRUE(down->video_level_result().automatic());
    // Still fresh: what arrives now was captured a moment ago.
    for (int i = 0; i < 20; ++i) {
        const auto frame = client->receiveFrame();
        ASSERT_TRUE(frame);
        const auto age = toMicroseconds(Clock::now()) - frame->capture_us();
        EXPECT_LT(age, 2'000'000) << i;
    }
    fleet->limitBandwidth("", 0);
    // One late acknowledgement begins the calm before the next step up anew.
    EXPECT_TRUE(client->receiveUntil(
        [](const auto &m) { return m.has_video_level_result() && m.video_level_result().row() == 1; }, 120s));
}

TEST_F(GatewayFleetTest, Statistics)
{
    start();
    auto client = watch();
    ASSERT_TRUE(client->receiveFrame());
    const auto stats = fleet->stats();
    ASSERT_EQ(stats.size(), 1U);
    EXPECT_EQ(stats[0].sessionId, "abc");
    EXPECT_EQ(stats[0].padCode, "VM1");
    EXPECT_GE(stats[0].framesSent, 1U);
    EXPECT_EQ(stats[0].levelRow, 0);
    EXPECT_TRUE(stats[0].automatic);
    EXPECT_EQ(stats[0].castMode, 3);
    EXPECT_TRUE(eventually([&] { return fleet->stats()[0].bytesSent > 1000; }));
}

TEST(GatewayFleetStart, ATakenPortIsReported)
{
    Sessions sessions;
    GatewayFleet::Options options;
    options.port = 0;
    GatewayFleet first(options, sessions);
    ASSERT_TRUE(first.start());
    boost::asio::io_context context;
    options.port = first.controlPort();
    GatewayFleet second(options, sessions);
    EXPECT_FALSE(second.start());
    EXPECT_THAT(second.errorText(), testing::HasSubstr(std::to_string(first.controlPort())));
    options.listenAddress = "nowhere";
    GatewayFleet third(options, sessions);
    EXPECT_FALSE(third.start());
}
