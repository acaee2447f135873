// What a session does when the network, the gateway or its caller do not behave.

#include "SessionFixture.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>

#include <thread>

using namespace swplay;
using namespace std::chrono_literals;
using wire::StreamMessage;

namespace {

using SessionFaults = SessionFixture;

} // namespace

TEST_F(SessionFaults, ReconnectsAtOnceWithTheSameSessionAndTellsEverythingAgain)
{
    makeSession();
    const auto sink = std::make_shared<RecordingSink>();
    session->attachSink(sink);
    setLogin(gateway.port());
    VideoLevel level;
    session->setLevels({level, level, level});
    session->chooseRow(1);
    session->setScreenCast(3);
    session->start();
    acceptAndSignIn();
    session->chooseRow(2); // what holds now is told later
    session->setScreenCast(1);
    EXPECT_EQ(sink->next(), "feedback");
    EXPECT_EQ(sink->next(), "reset");

    peer->cut();
    EXPECT_EQ(listener.next(), "reconnecting 1");
    EXPECT_EQ(sink->next(), "reset");
    // Input of the time between is dropped: no finger comes down late.
    const int x = 5;
    EXPECT_EQ(session->sendTouch(touchMessage(0, 1, &x, &x, nullptr)), -2);
    EXPECT_EQ(session->sendPicture(pictureMessage("p")), -2);
    peer = gateway.accept();
    ASSERT_TRUE(peer);
    EXPECT_EQ(peer->signIn().session_id(), "session-7");
    EXPECT_EQ(listener.next(), "connected");
    EXPECT_EQ(sink->next(), "reset");
    EXPECT_EQ(peer->next()->video_levels().levels_size(), 3);
    EXPECT_EQ(peer->next()->video_level_choice().index(), 2);
    EXPECT_EQ(peer->next()->screen_cast().mode(), wire::ScreenCast::THUMBNAIL);
    EXPECT_TRUE(peer->next()->has_keyframe_request());
    // Touches go on with what is on the screen now.
    EXPECT_EQ(session->sendTouch(touchMessage(2, 1, &x, &x, nullptr)), 0);
    const auto next = peer->next();
    ASSERT_TRUE(next->has_touch());
    EXPECT_EQ(next->touch().action(), 2);
}

TEST_F(SessionFaults, GoesOnTryingAndBacksOff)
{
    makeSession();
    std::uint16_t port = 0;
    {
        const TestGateway gone;
        port = gone.port();
    }
    setLogin(port);
    const auto start = std::chrono::steady_clock::now();
    session->start();
    for (int attempt = 1; attempt <= 4; ++attempt)
        EXPECT_EQ(listener.next(), "reconnecting " + std::to_string(attempt));
    // At once, then after 125, 250 and 500 ms.
    EXPECT_GE(std::chrono::steady_clock::now() - start, 875ms);
    // The gateway comes up: the session finds it.
    TestGateway late(TestGateway::Kind::Plain, port);
    peer = late.accept();
    ASSERT_TRUE(peer);
    peer->signIn();
    std::string event;
    while ((event = listener.next()) != "connected")
        ASSERT_EQ(event.substr(0, 12), "reconnecting");
    session->stop();
}

namespace {

// A session whose waits are hours.
struct PatientSession
{
    explicit PatientSession(std::uint16_t port)
    {
        SessionTimings timings;
        timings.firstRetry = std::chrono::hours(1);
        timings.stuckAfter = std::chrono::milliseconds(0);
        session = std::make_shared<Session>(2, &listener, timings);
        LoginParameters login;
        login.endpoint = {"127.0.0.1", port, false};
        login.sessionId = "the patient";
        session->setLogin(login);
    }
    ~PatientSession() { session->stop(); }

    RecordingListener listener;
    std::shared_ptr<Session> session;
};

class GatewayReturn : public SessionFixture
{
protected:
    // A second session looks for the gateway in vain, which returns then: both sign in. `next`: what the
    // patient one tells of its way there.
    void expectBothBack(std::uint16_t port, PatientSession &patient, const std::string &next)
    {
        makeSession();
        setLogin(port);
        session->start();
        EXPECT_EQ(listener.next(), "reconnecting 1");
        TestGateway late(TestGateway::Kind::Plain, port);
        peer = late.accept();
        ASSERT_TRUE(peer);
        EXPECT_EQ(peer->signIn().session_id(), "session-7");
        const auto other = late.accept();
        ASSERT_TRUE(other);
        EXPECT_EQ(patient.listener.next(), next);
        EXPECT_EQ(other->signIn().session_id(), "the patient");
        EXPECT_EQ(patient.listener.next(), "connected");
        session->stop();
    }
};

} // namespace

TEST_F(GatewayReturn, ForOneIsForAll)
{
    std::uint16_t port = 0;
    {
        const TestGateway gone;
        port = gone.port();
    }
    PatientSession patient(port);
    patient.session->start();
    EXPECT_EQ(patient.listener.next(), "reconnecting 1"); // at once; it waits for an hour then
    expectBothBack(port, patient, "reconnecting 2");
}

// Packets that were lost while the gateway was away are repeated ever more seldom.
TEST_F(GatewayReturn, EndsATryThatIsStuck)
{
    using boost::asio::ip::tcp;
    boost::asio::io_context context;
    tcp::acceptor listening(context, {boost::asio::ip::address_v4::loopback(), 0});
    const std::uint16_t port = listening.local_endpoint().port();
    PatientSession patient(port);
    patient.session->start();
    const tcp::socket silent = listening.accept(); // and never says anything
    listening.close();
    expectBothBack(port, patient, "reconnecting 1");
}

TEST_F(SessionFaults, GatewayThatAskedForTimeIsLeftItsTime)
{
    PatientSession patient(gateway.port());
    patient.session->start();
    const auto busy = gateway.accept();
    ASSERT_TRUE(busy);
    ASSERT_TRUE(busy->next());
    busy->send(loginResult(wire::LoginResult::BUSY));
    busy->waitForEnd();
    connect();
    peer->cut();
    EXPECT_EQ(listener.next(), "reconnecting 1");
    peer = gateway.accept();
    ASSERT_TRUE(peer);
    peer->answersPings = false;
    peer->signIn();
    for (int i = 0; i < 2;
         ++i) // the second follows a look after the gateway, and by then the others were told
        EXPECT_TRUE(peer->next(StreamMessage::kPing));
    EXPECT_TRUE(patient.listener.isEmpty());
    expectNoFurtherConnection();
}

TEST_F(SessionFaults, BusyDeviceIsTriedAgainLater)
{
    makeSession();
    setLogin(gateway.port());
    session->start();
    const auto start = std::chrono::steady_clock::now();
    for (int attempt = 1; attempt <= 2; ++attempt) {
        peer = gateway.accept();
        ASSERT_TRUE(peer);
        ASSERT_TRUE(peer->next());
        peer->send(loginResult(wire::LoginResult::BUSY));
        EXPECT_EQ(listener.next(), "reconnecting " + std::to_string(attempt));
    }
    EXPECT_GE(std::chrono::steady_clock::now() - start, 375ms); // never at once
    acceptAndSignIn();
}

TEST_F(SessionFaults, RefusedSessionIsNotTriedAgain)
{
    const std::pair<wire::LoginResult::Code, const char *> cases[]
        = {{wire::LoginResult::UNKNOWN_SESSION, "disconnected 1"},
            {wire::LoginResult::EXPIRED, "disconnected 2"},
            {wire::LoginResult::UNSUPPORTED_VERSION, "disconnected 3"}};
    for (const auto &[code, event] : cases) {
        makeSession();
        setLogin(gateway.port());
        session->start();
        peer = gateway.accept();
        ASSERT_TRUE(peer);
        ASSERT_TRUE(peer->next());
        peer->send(loginResult(code));
        EXPECT_EQ(listener.next(), event);
        EXPECT_EQ(session->sendEvent(keyMessage(1, 30, false)), -2);
        expectNoFurtherConnection();
        session->stop();
    }
}

TEST_F(SessionFaults, EndsOfTheGateway)
{
    const std::pair<wire::SessionEnd::Code, const char *> cases[] = {
        {wire::SessionEnd::CLOSED, "disconnected 0"}, {wire::SessionEnd::EXPIRED, "disconnected 2"},
        {wire::SessionEnd::PROTOCOL_ERROR, "reconnecting 1"}, {wire::SessionEnd::SHUTDOWN, "reconnecting 1"}};
    for (const auto &[code, event] : cases) {
        connect();
        StreamMessage message;
        message.mutable_session_end()->set_code(code);
        peer->send(message);
        EXPECT_EQ(listener.next(), event);
        if (event[0] == 'r')
            acceptAndSignIn();
        else
            expectNoFurtherConnection();
        session->stop();
    }
}

TEST_F(SessionFaults, SilentGatewayIsNoticed)
{
    auto timings = quick();
    timings.silence = 1s;
    connect(timings);
    peer->answersPings = false; // and says nothing else
    EXPECT_EQ(listener.next(), "reconnecting 1");
    acceptAndSignIn();
}

TEST_F(SessionFaults, GatewayThatPausesIsKept)
{
    connect();
    peer->answersPings = false;
    // Five unanswered pings are far from the limit of 4 s.
    for (int i = 0; i < 5; ++i)
        ASSERT_TRUE(peer->next(StreamMessage::kPing));
    peer->answersPings = true;
    StreamMessage message;
    message.mutable_control_grant()->set_state(1);
    peer->send(message);
    EXPECT_EQ(listener.next(), "control 1");
}

TEST_F(SessionFaults, GatewayThatSilentlyTakesTheLoginIsNoticed)
{
    auto timings = quick();
    timings.silence = 1s;
    makeSession(timings);
    setLogin(gateway.port());
    session->start();
    peer = gateway.accept();
    ASSERT_TRUE(peer);
    EXPECT_EQ(listener.next(), "reconnecting 1");
}

TEST_F(SessionFaults, GatewayThatNeverShakesHandsIsNoticed)
{
    TestGateway mute(TestGateway::Kind::Mute);
    auto timings = quick();
    timings.connection.open = 200ms;
    makeSession(timings);
    setLogin(mute.port());
    session->start();
    EXPECT_EQ(listener.next(), "reconnecting 1");
    EXPECT_EQ(listener.next(), "reconnecting 2");
    session->stop();
}

TEST_F(SessionFaults, SomethingThatIsNoGatewayIsTriedAgain)
{
    TestGateway garbage(TestGateway::Kind::Garbage);
    makeSession();
    setLogin(garbage.port());
    session->start();
    EXPECT_EQ(listener.next(), "reconnecting 1");
    EXPECT_EQ(listener.next(), "reconnecting 2");
    session->stop();
}

TEST_F(SessionFaults, GatewayThatStopsReadingIsNoticed)
{
    auto timings = quick();
    timings.write = 1s;
    connect(timings);
    peer->pauseReading();
    const std::string big(WireLimits::PictureBytes, 'x');
    // It keeps talking, so that it is not silent.
    std::thread talker([other = peer] {
        StreamMessage message;
        message.mutable_pong();
        while (other->waitForEnd(10ms) == -1)
            other->send(message);
    });
    while (session->sendPicture(pictureMessage(big)) == 0)
        std::this_thread::yield();
    EXPECT_EQ(listener.next(), "reconnecting 1");
    peer->resumeReading();
    talker.join();
}

TEST_F(SessionFaults, InputThatFindsNoRoomEndsTheConnectionInsteadOfBeingLost)
{
    connect();
    peer->pauseReading();
    int result = 0;
    const std::string text(100'000, 'x');
    while ((result = session->sendEvent(textMessage(text))) == 0) { }
    EXPECT_EQ(result, -2);
    EXPECT_EQ(listener.next(), "reconnecting 1");
    acceptAndSignIn();
    EXPECT_EQ(session->sendEvent(textMessage("again")), 0);
    EXPECT_EQ(peer->next(StreamMessage::kText)->text().text(), "again");
}

TEST_F(SessionFaults, MalformedMessagesEndTheSessionWithAReason)
{
    const std::pair<std::string, bool> cases[] = {
        {"\xff\xff\xff", true}, // no message
        {std::string("\xba\x01\x02\x08\x07", 5), true}, // rotation 7
        {"text", false}, // a text message
    };
    for (const auto &[bytes, binary] : cases) {
        connect();
        peer->sendBytes(bytes, binary);
        EXPECT_EQ(listener.next(), "disconnected 5");
        EXPECT_EQ(peer->waitForEnd(), 1002); // protocol error
        expectNoFurtherConnection();
        session->stop();
    }
}

TEST_F(SessionFaults, MessageThatIsTooLargeEndsTheSession)
{
    connect();
    peer->sendBytes(std::string(WireLimits::GatewayMessageBytes + 1, '\0'), true);
    EXPECT_EQ(listener.next(), "disconnected 5");
    expectNoFurtherConnection();
}

TEST_F(SessionFaults, LargestMessageArrives)
{
    makeSession();
    const auto sink = std::make_shared<RecordingSink>();
    session->attachSink(sink);
    setLogin(gateway.port());
    session->start();
    acceptAndSignIn();
    peer->send(frame(1, WireLimits::GatewayMessageBytes - 64));
    const auto unit = sink->units.pop();
    ASSERT_TRUE(unit);
    EXPECT_EQ(unit->data.size(), WireLimits::GatewayMessageBytes - 64);
}

TEST_F(SessionFaults, UnusableParametersAreToldAndNotTried)
{
    makeSession();
    EXPECT_EQ(session->setLogin(std::nullopt), -1);
    EXPECT_EQ(session->start(), -1);
    EXPECT_EQ(listener.next(), "disconnected 4");
    expectNoFurtherConnection();
}
