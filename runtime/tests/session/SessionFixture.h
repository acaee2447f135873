#pragma once

#include "RecordingListener.h"
#include "RecordingSink.h"
#include "TestGateway.h"

#include "session/NetworkThread.h"
#include "session/Session.h"
#include "session/WireMessage.h"

#include <gtest/gtest.h>

#include <memory>

// A session of the runtime against a gateway of the test, with the network thread running. The session is
// quick: it looks after its peer every 20 ms and backs off by half of each step.
class SessionFixture : public testing::Test
{
protected:
    SessionFixture() { swplay::NetworkThread::instance().start(); }
    ~SessionFixture() override
    {
        if (session)
            session->stop();
        swplay::NetworkThread::instance().stop();
    }

    static swplay::SessionTimings quick()
    {
        swplay::SessionTimings timings;
        timings.tick = std::chrono::milliseconds(20);
        return timings;
    }

    void makeSession(swplay::SessionTimings timings = quick())
    {
        session = std::make_shared<swplay::Session>(1, &listener, timings, [] { return 0.0; });
    }

    void setLogin(std::uint16_t port)
    {
        swplay::LoginParameters login;
        login.endpoint.host = "127.0.0.1";
        login.endpoint.port = port;
        login.userId = 42;
        login.sessionId = "session-7";
        login.padCode = "PAD-1";
        ASSERT_EQ(session->setLogin(login), 0);
    }

    // Starts a session and signs it in; `peer` is its connection.
    void connect(swplay::SessionTimings timings = quick())
    {
        makeSession(timings);
        setLogin(gateway.port());
        ASSERT_EQ(session->start(), 0);
        acceptAndSignIn();
    }

    void acceptAndSignIn()
    {
        peer = gateway.accept();
        ASSERT_TRUE(peer);
        peer->signIn();
        ASSERT_EQ(listener.next(), "connected");
    }

    static swplay::wire::StreamMessage loginResult(swplay::wire::LoginResult::Code code)
    {
        swplay::wire::StreamMessage message;
        message.mutable_login_result()->set_code(code);
        message.mutable_login_result()->set_reason("because");
        return message;
    }

    static swplay::wire::StreamMessage frame(std::uint64_t id, std::size_t size = 100)
    {
        swplay::wire::StreamMessage message;
        swplay::wire::VideoFrame &video = *message.mutable_video_frame();
        video.set_frame_id(id);
        video.set_capture_us(1000 * static_cast<std::int64_t>(id));
        video.set_key_frame(id == 1);
        video.set_data(std::string(size, 'x'));
        video.set_width(720);
        video.set_height(1280);
        return message;
    }

    // Another session signs in at the gateway, as its next connection: nothing of the first one came between.
    void expectNoFurtherConnection()
    {
        RecordingListener otherListener;
        auto other = std::make_shared<swplay::Session>(2, &otherListener, quick());
        swplay::LoginParameters login;
        login.endpoint = {"127.0.0.1", gateway.port(), false};
        login.sessionId = "the other";
        other->setLogin(login);
        ASSERT_EQ(other->start(), 0);
        const auto next = gateway.accept();
        ASSERT_TRUE(next);
        EXPECT_EQ(next->signIn().session_id(), "the other");
        EXPECT_EQ(otherListener.next(), "connected");
        other->stop();
    }

    TestGateway gateway;
    RecordingListener listener;
    std::shared_ptr<swplay::Session> session;
    std::shared_ptr<TestPeer> peer;
};
