// The public interface as the client uses it, over a real runtime.

#include "swplay/SWDataSource.h"

#include "RecordingListener.h"
#include "TestGateway.h"

#include "swplay/Keyboard.h"
#include "swplay/Mutex.h"
#include "swplay/SWPlayer.h"
#include "swplay/SWRuntime.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

using swplay::wire::StreamMessage;

namespace {

class SWDataSourceTest : public testing::Test
{
protected:
    SWDataSourceTest() { SWRuntime::getInstance()->init(0, nullptr); }
    ~SWDataSourceTest() override
    {
        source.reset();
        SWRuntime::getInstance()->deinit();
    }

    void makeSource(const char *address = "127.0.0.1")
    {
        source = std::make_shared<SWDataSource>(1, &listener);
        EXPECT_EQ(source->setLoginParams(address, gateway.port(), -1, "session", "pad", 0), 0);
    }

    void connect()
    {
        makeSource();
        ASSERT_EQ(source->start(), 0);
        peer = gateway.accept();
        ASSERT_TRUE(peer);
        peer->signIn();
        ASSERT_EQ(listener.next(), "connected");
    }

    TestGateway gateway;
    RecordingListener listener;
    std::shared_ptr<SWDataSource> source;
    std::shared_ptr<TestPeer> peer;
    int xs[11] = {};
    int ys[11] = {};
    float pressures[11] = {};
};

} // namespace

TEST_F(SWDataSourceTest, StartSequenceOfTheClient)
{
    std::vector<VideoLevel> table(7);
    for (VideoLevel &level : table) {
        level.width = 720;
        level.height = 1280;
    }
    makeSource();
    EXPECT_EQ(source->setPlayParams("", -1, 0, 0, 0, 0, 0, 0, -1, -1, 3, 1, 0), 0);
    EXPECT_EQ(source->setBusinessType(1), 0);
    EXPECT_EQ(source->setVideoLevels(table.data(), 7), 0);
    EXPECT_EQ(source->screenCast(3), 0);
    EXPECT_EQ(source->setVideoLevel(2, 0, 144, 218, 0, 256, 5), 0);
    SWPlayer player;
    EXPECT_EQ(player.setDataSource(source), 0);
    EXPECT_EQ(player.start(), 0);
    peer = gateway.accept();
    ASSERT_TRUE(peer);
    const auto login = peer->signIn();
    EXPECT_EQ(login.user_id(), -1);
    EXPECT_EQ(login.business_type(), 1);
    EXPECT_EQ(peer->next()->video_levels().levels_size(), 7);
    const auto choice = peer->next();
    const auto &custom = choice->video_level_choice().custom();
    EXPECT_EQ(custom.codec(), 2);
    EXPECT_EQ(custom.width(), 144);
    EXPECT_EQ(custom.height(), 218);
    EXPECT_EQ(custom.bit_rate(), 256);
    EXPECT_EQ(custom.frame_rate(), 5);
    EXPECT_EQ(peer->next()->screen_cast().mode(), 3);
    source->screenCast(0);
    EXPECT_EQ(peer->next()->screen_cast().mode(), 0);
    player.detachDataSource();
    player.stop();
    source->stop();
    EXPECT_EQ(peer->waitForEnd(), 1000);
}

TEST_F(SWDataSourceTest, SendsWhatItIsGiven)
{
    connect();
    EXPECT_EQ(source->sendTouchEvent(1, 0, nullptr, nullptr, nullptr), 0);
    auto message = peer->next();
    EXPECT_EQ(message->touch().x(0), -1);
    EXPECT_EQ(message->touch().x_size(), 1);
    xs[9] = 719;
    EXPECT_EQ(source->sendTouchEvent(0, 10, xs, ys, pressures), 0);
    EXPECT_EQ(peer->next()->touch().x(9), 719);
    EXPECT_EQ(source->sendKeyEvent(1, Keyboard::GetInstance()->getKeyCode('A')), 0);
    message = peer->next();
    EXPECT_EQ(message->key().code(), 30);
    EXPECT_TRUE(message->key().shift());
    EXPECT_EQ(source->sendKeyEvent(3, 0), 0);
    EXPECT_EQ(peer->next()->key().action(), 3);
    // The length counts UTF-16 units with the terminator: less than the bytes.
    EXPECT_EQ(source->sendInputString("\xe4\xbd\xa0\xe5\xa5\xbd", 3), 0);
    EXPECT_EQ(peer->next()->text().text(), "\xe4\xbd\xa0\xe5\xa5\xbd");
    EXPECT_EQ(source->sendInputString("", 1), 0);
    EXPECT_TRUE(peer->next()->has_text());
    EXPECT_EQ(source->sendPicture("\xff\xd8\0\xd9", 4), 0);
    EXPECT_EQ(peer->next()->picture().jpeg(), std::string("\xff\xd8\0\xd9", 4));
    EXPECT_EQ(source->sendAudio(1, "ab", 2), 0);
    EXPECT_EQ(peer->next()->audio().data(), "ab");
}

TEST_F(SWDataSourceTest, ArgumentsOutOfRange)
{
    connect();
    EXPECT_EQ(source->sendTouchEvent(3, 1, xs, ys, pressures), -1);
    EXPECT_EQ(source->sendTouchEvent(-1, 1, xs, ys, pressures), -1);
    EXPECT_EQ(source->sendTouchEvent(0, 11, xs, ys, pressures), -1);
    EXPECT_EQ(source->sendTouchEvent(0, -1, xs, ys, pressures), -1);
    EXPECT_EQ(source->sendTouchEvent(0, 1, nullptr, ys, pressures), -1);
    EXPECT_EQ(source->sendKeyEvent(0, 30), -1);
    EXPECT_EQ(source->sendKeyEvent(4, 30), -1);
    EXPECT_EQ(source->sendKeyEvent(1, -1), -1);
    EXPECT_EQ(source->sendKeyEvent(1, 0x300), -1);
    EXPECT_EQ(source->sendKeyEvent(1, 0x20000), -1);
    EXPECT_EQ(source->sendInputString(nullptr, 1), -1);
    EXPECT_EQ(source->sendInputString("a", 0), -1);
    EXPECT_EQ(source->sendInputString("\xff", 2), -1);
    EXPECT_EQ(source->sendInputString(std::string((1u << 20) + 1, 'a').c_str(), 5), -1);
    EXPECT_EQ(source->sendPicture(nullptr, 1), -1);
    EXPECT_EQ(source->sendPicture("", 0), -1);
    EXPECT_EQ(source->sendPicture("", std::numeric_limits<int>::max()), -1);
    EXPECT_EQ(source->sendAudio(1, "", 0), -1);
    EXPECT_EQ(source->sendAudio(1, "", (1 << 20) + 1), -1);
    EXPECT_EQ(source->screenCast(2), -1);
    EXPECT_EQ(source->screenCast(-1), -1);
    std::vector<VideoLevel> levels(17);
    EXPECT_EQ(source->setVideoLevels(levels.data(), 17), -1);
    EXPECT_EQ(source->setVideoLevels(levels.data(), 0), -1);
    EXPECT_EQ(source->setVideoLevels(nullptr, 1), -1);
    EXPECT_EQ(source->setVideoLevels(levels.data(), 1), -1); // rows of no size
    EXPECT_EQ(source->setVideoLevel(-1), -1);
    EXPECT_EQ(source->setVideoLevel(1), -1); // there is no table
    EXPECT_EQ(source->setVideoLevel(2, 0, 0, 218, 0, 256, 5), -1);
    EXPECT_EQ(source->setVideoLevel(2, 0, 144, 218, 0, 0, 5), -1);
    EXPECT_EQ(source->getVideoLevelResult(nullptr), -1);
    EXPECT_EQ(source->setBusinessType(2), -1); // it has started
    EXPECT_EQ(source->setLoginParams("127.0.0.1", 1, 1, "s", "p", 0), -1);
    // Nothing of it was sent.
    EXPECT_EQ(source->sendKeyEvent(3, 7), 0);
    EXPECT_EQ(peer->next()->key().code(), 7);
}

TEST_F(SWDataSourceTest, LargestTextAndPicture)
{
    connect();
    const std::string text(1u << 20, 'a');
    EXPECT_EQ(source->sendInputString(text.c_str(), 1), 0);
    EXPECT_EQ(peer->next()->text().text().size(), text.size());
    const std::string picture(4u << 20, 'p');
    EXPECT_EQ(source->sendPicture(picture.data(), static_cast<int>(picture.size())), 0);
    EXPECT_EQ(peer->next()->picture().jpeg().size(), picture.size());
}

TEST_F(SWDataSourceTest, InputWithoutAConnectionIsDropped)
{
    makeSource();
    EXPECT_EQ(source->sendKeyEvent(1, 30), -2);
    EXPECT_EQ(source->sendTouchEvent(0, 1, xs, ys, nullptr), -2);
    EXPECT_EQ(source->sendInputString("a", 2), -2);
    source->stop();
    EXPECT_EQ(source->sendKeyEvent(1, 30), -1);
}

TEST_F(SWDataSourceTest, BadLoginParameters)
{
    source = std::make_shared<SWDataSource>(1, &listener);
    EXPECT_EQ(source->setLoginParams(nullptr, 1, 1, "s", "p", 0), -1);
    EXPECT_EQ(source->setLoginParams("", 1, 1, "s", "p", 0), -1);
    EXPECT_EQ(source->setLoginParams("127.0.0.1", 0, 1, "s", "p", 0), -1);
    EXPECT_EQ(source->setLoginParams("127.0.0.1", 1, 1, "", "p", 0), -1);
    EXPECT_EQ(source->setLoginParams("127.0.0.1", 1, 1, "s", nullptr, 0), -1);
    EXPECT_EQ(source->setLoginParams("127.0.0.1", 1, 1, "\xff", "p", 0), -1);
    EXPECT_EQ(source->setLoginParams("ftp://127.0.0.1", 1, 1, "s", "p", 0), -1);
    EXPECT_EQ(source->start(), -1);
    EXPECT_EQ(listener.next(), "disconnected 4");
}

// The client replaces a data source without stopping it.
TEST_F(SWDataSourceTest, DestructionWithoutStop)
{
    connect();
    const auto first = peer;
    makeSource();
    EXPECT_EQ(first->waitForEnd(), 1000);
    EXPECT_EQ(source->start(), 0);
    peer = gateway.accept();
    ASSERT_TRUE(peer);
    peer->signIn();
    EXPECT_EQ(listener.next(), "connected");
}

TEST_F(SWDataSourceTest, WithoutAListener)
{
    source = std::make_shared<SWDataSource>(1, nullptr);
    source->setLoginParams("127.0.0.1", gateway.port(), 1, "s", "p", 0);
    EXPECT_EQ(source->start(), 0);
    peer = gateway.accept();
    ASSERT_TRUE(peer);
    peer->signIn();
    peer->cut();
    peer = gateway.accept();
    EXPECT_TRUE(peer);
}

TEST_F(SWDataSourceTest, LivesOnAfterTheRuntime)
{
    connect();
    EXPECT_EQ(SWRuntime::getInstance()->init(2, "/nonexistent"), 0); // changes nothing
    SWRuntime::getInstance()->deinit();
    EXPECT_EQ(peer->waitForEnd(), 1000);
    EXPECT_EQ(source->sendKeyEvent(1, 30), -1);
    source->stop();
    auto late = std::make_shared<SWDataSource>(2, &listener);
    late->setLoginParams("127.0.0.1", gateway.port(), 1, "s", "p", 0);
    EXPECT_EQ(late->start(), -1); // there is no runtime
    SWRuntime::getInstance()->deinit(); // twice does nothing
    SWRuntime::getInstance()->init(0, nullptr);
    EXPECT_EQ(late->start(), 0);
    EXPECT_TRUE(gateway.accept());
}

TEST_F(SWDataSourceTest, OverTlsWithACertificateThatIsTrusted)
{
    ::setenv("SSL_CERT_FILE", TestGateway::certificateFile().c_str(), 1); // before the first TLS connection
    TestGateway secure(TestGateway::Kind::Tls);
    source = std::make_shared<SWDataSource>(1, &listener);
    source->setLoginParams("wss://127.0.0.1", secure.port(), 1, "s", "p", 0);
    EXPECT_EQ(source->start(), 0);
    peer = secure.accept();
    ASSERT_TRUE(peer);
    peer->signIn();
    EXPECT_EQ(listener.next(), "connected");
    EXPECT_EQ(source->sendInputString("secret", 7), 0);
    EXPECT_EQ(peer->next(StreamMessage::kText)->text().text(), "secret");
    source->stop();
    EXPECT_EQ(peer->waitForEnd(), 1000);
    // The certificate is for the address, not for this name.
    source = std::make_shared<SWDataSource>(1, &listener);
    source->setLoginParams("wss://localhost", secure.port(), 1, "s", "p", 0);
    EXPECT_EQ(source->start(), 0);
    EXPECT_EQ(listener.next(), "reconnecting 1");
    EXPECT_EQ(listener.next(), "reconnecting 2");
    source->stop();
    EXPECT_FALSE(secure.accept(std::chrono::milliseconds(0)));
    peer.reset();
}

TEST(MutexTest, IsALock)
{
    Mutex mutex;
    int count = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int n = 0; n < 1000; ++n) {
                const std::lock_guard<Mutex> lock(mutex);
                ++count;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(count, 4000);
}
