// The end of sessions, from any thread and at any time.

#include "SessionFixture.h"

#include <atomic>
#include <future>
#include <thread>
#include <vector>

using namespace swplay;
using namespace std::chrono_literals;

namespace {

using SessionStop = SessionFixture;

} // namespace

TEST_F(SessionStop, ClosesTheConnection)
{
    connect();
    session->stop();
    EXPECT_EQ(peer->waitForEnd(), 1000); // a normal closing handshake
    EXPECT_EQ(session->sendEvent(keyMessage(1, 30, false)), -1);
    EXPECT_EQ(session->setScreenCast(3), -1);
    EXPECT_EQ(session->start(), -1);
    session->stop();
    expectNoFurtherConnection();
    EXPECT_TRUE(listener.isEmpty()); // the one who stops is not told
}

TEST_F(SessionStop, WhileConnecting)
{
    TestGateway mute(TestGateway::Kind::Mute);
    makeSession();
    setLogin(mute.port());
    session->start();
    ASSERT_TRUE(mute.waitForTcpConnection());
    session->stop();
    expectNoFurtherConnection();
    EXPECT_TRUE(listener.isEmpty());
}

TEST_F(SessionStop, WhileWaitingToTryAgain)
{
    TestGateway garbage(TestGateway::Kind::Garbage);
    makeSession();
    setLogin(garbage.port());
    session->start();
    EXPECT_EQ(listener.next(), "reconnecting 1");
    EXPECT_EQ(listener.next(), "reconnecting 2");
    session->stop();
    const bool noneLater = listener.isEmpty();
    expectNoFurtherConnection();
    EXPECT_EQ(listener.isEmpty(), noneLater);
}

TEST_F(SessionStop, WaitsForTheCallbackThatRuns)
{
    std::promise<void> entered;
    std::promise<void> mayReturn;
    std::atomic<bool> returned{false};
    makeSession();
    listener.during = [&](const std::string &event) {
        if (event != "control 1")
            return;
        entered.set_value();
        mayReturn.get_future().wait();
        returned = true;
    };
    setLogin(gateway.port());
    session->start();
    acceptAndSignIn();
    wire::StreamMessage message;
    message.mutable_control_grant()->set_state(1);
    peer->send(message);
    entered.get_future().wait();
    std::atomic<bool> returnedBeforeStop{false};
    std::thread stopper([&] {
        session->stop();
        returnedBeforeStop = returned.load();
    });
    // Input from other threads is not held up by the callback; -1 tells that stop has begun.
    while (session->sendEvent(keyMessage(1, 30, false)) != -1)
        std::this_thread::yield();
    mayReturn.set_value();
    stopper.join();
    EXPECT_TRUE(returnedBeforeStop);
}

TEST_F(SessionStop, SinkIsLetGo)
{
    makeSession();
    auto sink = std::make_shared<RecordingSink>();
    session->attachSink(sink);
    setLogin(gateway.port());
    session->start();
    acceptAndSignIn();
    session->stop();
    for (const char *event : {"feedback", "reset", "reset", "no feedback"})
        EXPECT_EQ(sink->next(), event);
}

TEST_F(SessionStop, EndOfTheRuntimeEndsItsSessions)
{
    connect();
    NetworkThread::instance().stop();
    EXPECT_EQ(peer->waitForEnd(), 1000);
    EXPECT_EQ(session->sendEvent(keyMessage(1, 30, false)), -1);
    session->stop(); // nothing to wait for any more
    makeSession();
    setLogin(gateway.port());
    EXPECT_EQ(session->start(), -1); // no runtime
    NetworkThread::instance().start();
    EXPECT_EQ(session->start(), 0); // a runtime again
    acceptAndSignIn();
}

TEST_F(SessionStop, EndOfTheRuntimeWithPeersThatDoNotAnswer)
{
    TestGateway mute(TestGateway::Kind::Mute);
    makeSession();
    setLogin(mute.port());
    session->start();
    ASSERT_TRUE(mute.waitForTcpConnection());
    NetworkThread::instance().stop(); // returns
}

TEST_F(SessionStop, HammeredFromManyThreads)
{
    for (int round = 0; round < 30; ++round) {
        TestGateway own; // without connections that are left from earlier rounds
        makeSession();
        setLogin(own.port());
        const auto sink = std::make_shared<RecordingSink>();
        session->attachSink(sink);
        session->start();
        std::vector<std::thread> senders;
        for (int i = 0; i < 3; ++i) {
            senders.emplace_back([this, i] {
                int x = 0;
                VideoLevel level;
                while (session->sendTouch(touchMessage(2, 1, &x, &x, nullptr)) != -1) {
                    ++x;
                    session->sendPicture(pictureMessage("picture"));
                    session->chooseRow(0);
                    session->levelResult(level);
                    session->keyframeNeeded();
                    session->pictureDecoded(1, x, std::chrono::steady_clock::now());
                    if (i == 0 && x % 50 == 0)
                        session->attachSink(x % 100 == 0 ? std::make_shared<RecordingSink>() : nullptr);
                }
            });
        }
        if (round % 3 != 0) {
            peer = own.accept();
            EXPECT_TRUE(peer);
            if (peer)
                peer->signIn();
            for (std::uint64_t id = 1; peer && id <= 20; ++id)
                peer->send(frame(id));
            if (peer && round % 3 == 2)
                peer->cut();
        }
        session->stop();
        for (std::thread &sender : senders)
            sender.join();
    }
}
