// What a session says and hears while all goes well.

#include "SessionFixture.h"

#include <cstdio>

using namespace swplay;
using wire::StreamMessage;

namespace {

using SessionTest = SessionFixture;

StreamMessage touch(int action, int x)
{
    return touchMessage(action, 1, &x, &x, nullptr);
}

} // namespace

TEST_F(SessionTest, SignsInAndTellsTheSettingsInOrder)
{
    makeSession();
    setLogin(gateway.port());
    session->setBusinessType(1);
    session->setScreenCast(3); // in another order than they are told
    VideoLevel level;
    level.width = 144;
    level.height = 218;
    session->setLevels(std::vector<VideoLevel>(7, level));
    session->chooseRow(2);
    ASSERT_EQ(session->start(), 0);
    EXPECT_EQ(session->start(), 0); // changes nothing

    peer = gateway.accept();
    ASSERT_TRUE(peer);
    const wire::Login login = peer->signIn();
    EXPECT_EQ(login.protocol_version(), 1U);
    EXPECT_EQ(login.user_id(), 42);
    EXPECT_EQ(login.session_id(), "session-7");
    EXPECT_EQ(login.pad_code(), "PAD-1");
    EXPECT_EQ(login.business_type(), 1);
    EXPECT_EQ(peer->next()->video_levels().levels_size(), 7);
    EXPECT_EQ(peer->next()->video_level_choice().index(), 2);
    EXPECT_EQ(peer->next()->screen_cast().mode(), wire::ScreenCast::FULL);
    EXPECT_EQ(listener.next(), "connected");

    // No key frame is asked for at first; what comes next is what is set next.
    session->setScreenCast(0);
    EXPECT_EQ(peer->next()->screen_cast().mode(), wire::ScreenCast::PAUSED);
    session->chooseRow(0);
    EXPECT_EQ(peer->next()->video_level_choice().index(), 0);
}

TEST_F(SessionTest, SendsInputInOrder)
{
    connect();
    EXPECT_EQ(session->sendTouch(touch(0, 5)), 0);
    EXPECT_EQ(session->sendEvent(keyMessage(1, 30, true)), 0);
    EXPECT_EQ(session->sendEvent(textMessage("h\xc3\xa9")), 0);
    EXPECT_EQ(session->sendTouch(touch(1, 6)), 0);
    EXPECT_EQ(peer->next()->touch().action(), 0);
    EXPECT_EQ(peer->next()->key().code(), 30);
    EXPECT_EQ(peer->next()->text().text(), "h\xc3\xa9");
    EXPECT_EQ(peer->next()->touch().action(), 1);
    EXPECT_EQ(session->sendAudio(audioMessage(1, "sound")), 0);
    EXPECT_EQ(peer->next()->audio().data(), "sound");
    EXPECT_EQ(session->sendPicture(pictureMessage("picture")), 0);
    EXPECT_EQ(peer->next()->picture().jpeg(), "picture");
}

TEST_F(SessionTest, TouchesReferToTheSizeThatWasReported)
{
    makeSession();
    VideoLevel level;
    level.frameRate = 77;
    EXPECT_EQ(session->levelResult(level), -1);
    EXPECT_EQ(level.frameRate, 77);
    setLogin(gateway.port());
    session->start();
    acceptAndSignIn();
    session->sendTouch(touch(0, 1));
    auto message = peer->next(StreamMessage::kTouch);
    EXPECT_EQ(message->touch().reference_width(), 720U);
    EXPECT_EQ(message->touch().reference_height(), 1280U);

    EXPECT_EQ(session->levelResult(level), 0);
    EXPECT_EQ(level.width, 720);
    EXPECT_EQ(level.height, 1280);
    // The device comes back with another screen; the caller still counts in the size it was told.
    peer->cut();
    EXPECT_EQ(listener.next(), "reconnecting 1");
    peer = gateway.accept();
    ASSERT_TRUE(peer);
    ASSERT_TRUE(peer->next());
    StreamMessage result;
    result.mutable_login_result()->set_screen_width(1080);
    result.mutable_login_result()->set_screen_height(1920);
    peer->send(result);
    EXPECT_EQ(listener.next(), "connected");
    session->sendTouch(touch(0, 1));
    EXPECT_EQ(peer->next(StreamMessage::kTouch)->touch().reference_width(), 720U);
    EXPECT_EQ(session->levelResult(level), 0);
    EXPECT_EQ(level.width, 1080);
    session->sendTouch(touch(0, 1));
    message = peer->next(StreamMessage::kTouch);
    EXPECT_EQ(message->touch().reference_width(), 1080U);
    EXPECT_EQ(message->touch().reference_height(), 1920U);
}

TEST_F(SessionTest, LevelInEffectHasTheSizeOfTheScreen)
{
    connect();
    StreamMessage message;
    wire::VideoLevelResult &result = *message.mutable_video_level_result();
    result.mutable_level()->set_codec(2);
    result.mutable_level()->set_width(480);
    result.mutable_level()->set_height(848);
    result.mutable_level()->set_bit_rate(1024);
    result.set_row(4);
    peer->send(message);
    message.mutable_keyboard_type()->set_type(1);
    peer->send(message);
    ASSERT_EQ(listener.next(), "keyboard 1"); // came after the level
    VideoLevel level;
    EXPECT_EQ(session->levelResult(level), 0);
    EXPECT_EQ(level.bitRate, 1024);
    EXPECT_EQ(level.codec, 2);
    EXPECT_EQ(level.width, 720);
    EXPECT_EQ(level.height, 1280);
}

TEST_F(SessionTest, HandsVideoToTheSinkAndAcknowledgesIt)
{
    makeSession();
    const auto sink = std::make_shared<RecordingSink>();
    session->attachSink(sink);
    setLogin(gateway.port());
    session->start();
    acceptAndSignIn();
    EXPECT_EQ(sink->next(), "feedback");
    EXPECT_EQ(sink->next(), "reset");
    peer->send(frame(1, 100'000));
    peer->send(frame(2));
    const auto unit = sink->units.pop();
    ASSERT_TRUE(unit);
    EXPECT_EQ(unit->frameId, 1U);
    EXPECT_EQ(unit->captureUs, 1000);
    EXPECT_TRUE(unit->keyFrame);
    EXPECT_EQ(unit->width, 720);
    EXPECT_EQ(unit->height, 1280);
    EXPECT_EQ(unit->data, std::string(100'000, 'x'));
    EXPECT_FALSE(sink->units.pop()->keyFrame);
    // Every frame is acknowledged, unless a newer one came before the first acknowledgement could be written.
    auto ack = peer->next(StreamMessage::kFrameAck);
    if (ack->frame_ack().frame_id() == 1)
        ack = peer->next(StreamMessage::kFrameAck);
    EXPECT_EQ(ack->frame_ack().frame_id(), 2U);
}

TEST_F(SessionTest, AsksForAKeyFrameWhenTheDecoderNeedsOne)
{
    makeSession();
    const auto sink = std::make_shared<RecordingSink>();
    session->attachSink(sink);
    setLogin(gateway.port());
    session->start();
    acceptAndSignIn();
    EXPECT_EQ(sink->next(), "feedback");
    sink->feedback()->keyframeNeeded();
    EXPECT_TRUE(peer->next()->has_keyframe_request());
    // A new sink in a running stream cannot begin in the middle.
    const auto other = std::make_shared<RecordingSink>();
    session->attachSink(other);
    EXPECT_TRUE(peer->next()->has_keyframe_request());
    EXPECT_EQ(other->next(), "feedback");
    EXPECT_EQ(sink->next(), "reset");
    EXPECT_EQ(sink->next(), "no feedback");
    peer->send(frame(1));
    EXPECT_EQ(other->next(), "unit 1");
}

TEST_F(SessionTest, TellsDeviceEvents)
{
    makeSession();
    const auto sink = std::make_shared<RecordingSink>();
    session->attachSink(sink);
    setLogin(gateway.port());
    session->start();
    acceptAndSignIn();
    StreamMessage message;
    message.mutable_screen_rotation()->set_rotation(3);
    peer->send(message);
    EXPECT_EQ(listener.next(), "rotation 3");
    wire::SensorRequest &sensor = *message.mutable_sensor_request();
    sensor.set_input_type(212);
    sensor.set_state(1);
    sensor.set_width(640);
    sensor.set_height(480);
    peer->send(message);
    EXPECT_EQ(listener.next(), "sensor 212 1 640x480");
    sensor.set_width(0);
    sensor.set_height(0);
    peer->send(message);
    EXPECT_EQ(listener.next(), "sensor 212 1");
    message.mutable_clipboard()->set_text("c\xc3\xb6py");
    peer->send(message);
    EXPECT_EQ(listener.next(), "copy 5 c\xc3\xb6py");
    message.mutable_keyboard_type()->set_type(2);
    peer->send(message);
    EXPECT_EQ(listener.next(), "keyboard 2");
    message.mutable_control_grant()->set_state(1);
    peer->send(message);
    EXPECT_EQ(listener.next(), "control 1");
    EXPECT_EQ(sink->next(), "feedback");
    EXPECT_EQ(sink->next(), "reset");
    EXPECT_EQ(sink->next(), "rotation 3");
}

TEST_F(SessionTest, RotationAtLoginIsToldOnlyWhenItIsNews)
{
    makeSession();
    setLogin(gateway.port());
    session->start();
    for (int i = 0; i < 2; ++i) {
        peer = gateway.accept();
        ASSERT_TRUE(peer);
        peer->signIn(1);
        EXPECT_EQ(listener.next(), "connected");
        if (i == 0) {
            EXPECT_EQ(listener.next(), "rotation 1");
        }
        peer->cut();
        EXPECT_EQ(listener.next(), "reconnecting 1");
    }
}

TEST_F(SessionTest, AnswersPings)
{
    connect();
    StreamMessage message;
    message.mutable_ping()->set_id(77);
    message.mutable_ping()->set_sent_us(123'456);
    peer->send(message);
    const auto pong = peer->next(StreamMessage::kPong);
    ASSERT_TRUE(pong);
    EXPECT_EQ(pong->pong().id(), 77U);
    EXPECT_EQ(pong->pong().ping_sent_us(), 123'456);
    EXPECT_GT(pong->pong().replied_us(), 0);
}

TEST_F(SessionTest, SkipsWhatItDoesNotKnow)
{
    connect();
    peer->sendBytes(std::string("\x92\x03\x02\x08\x01", 5), true); // body 50
    peer->sendBytes("", true);
    StreamMessage message;
    message.mutable_login()->set_user_id(1); // is for gateways
    peer->send(message);
    message.mutable_login_result()->set_code(wire::LoginResult::EXPIRED); // comes too late to mean anything
    peer->send(message);
    message.mutable_control_grant()->set_state(0);
    peer->send(message);
    EXPECT_EQ(listener.next(), "control 0");
}

TEST_F(SessionTest, NothingButTheLoginResultCountsBeforeIt)
{
    makeSession();
    setLogin(gateway.port());
    session->start();
    peer = gateway.accept();
    ASSERT_TRUE(peer);
    StreamMessage message;
    message.mutable_control_grant()->set_state(1);
    peer->send(message);
    peer->send(frame(1));
    peer->signIn();
    EXPECT_EQ(listener.next(), "connected");
    message.mutable_control_grant()->set_state(0);
    peer->send(message);
    EXPECT_EQ(listener.next(), "control 0");
}

TEST_F(SessionTest, StreamInformationIsCorrectedForTheClocks)
{
    makeSession();
    const auto sink = std::make_shared<RecordingSink>();
    session->attachSink(sink);
    setLogin(gateway.port());
    session->start();
    peer = gateway.accept();
    ASSERT_TRUE(peer);
    peer->clockAheadUs = 3'600'000'000;
    peer->signIn();
    StreamMessage level;
    level.mutable_video_level_result()->set_row(4);
    peer->send(level);
    ASSERT_EQ(sink->next(), "feedback");
    // Decoded half a second after the gateway captured it.
    const auto decodedAt = std::chrono::steady_clock::now();
    const auto captureUs
        = std::chrono::duration_cast<std::chrono::microseconds>(decodedAt.time_since_epoch()).count()
        + 3'600'000'000 - 500'000;
    peer->send(frame(1));
    ASSERT_TRUE(sink->units.pop());
    sink->feedback()->pictureDecoded(1, captureUs, decodedAt);
    const std::string info = listener.infos.pop().value_or("");
    int delayMs = 0;
    ASSERT_EQ(std::sscanf(info.c_str(), "{\"delayTime\":%d,", &delayMs), 1) << info;
    // The offset is as good as half of the round trip, which a busy machine may stretch.
    EXPECT_NEAR(delayMs, 500, 250);
    EXPECT_NE(info.find(R"("width":720,"height":1280,)"), std::string::npos) << info;
    EXPECT_NE(info.find(R"("level":4})"), std::string::npos) << info;
}

// While the gateway does not read, input waits: moves merge, everything else arrives, in order.
TEST_F(SessionTest, InputThatWaitsIsMergedButNeverLost)
{
    connect(SessionTimings()); // with pings so rare that none comes between
    session->sendEvent(keyMessage(3, 0, false));
    ASSERT_TRUE(peer->next(StreamMessage::kKey)); // and the first ping is over
    peer->pauseReading();
    // The first picture still arrives, since the gateway was waiting for a message; the second one gets
    // stuck.
    const std::string big(WireLimits::PictureBytes, 'x');
    session->sendPicture(pictureMessage(big));
    ASSERT_TRUE(peer->next(StreamMessage::kPicture));
    session->sendPicture(pictureMessage(big));
    StreamMessage barrier;
    for (int i = 0; i < 2; ++i) {
        barrier.mutable_control_grant()->set_state(i);
        peer->send(barrier);
        ASSERT_EQ(listener.next(), "control " + std::to_string(i));
    }
    constexpr int Gestures = 20;
    for (int gesture = 0; gesture < Gestures; ++gesture) {
        EXPECT_EQ(session->sendTouch(touch(0, gesture)), 0);
        for (int i = 0; i < 100; ++i)
            EXPECT_EQ(session->sendTouch(touch(2, 1000 * gesture + i)), 0);
        EXPECT_EQ(session->sendTouch(touch(1, gesture)), 0);
        EXPECT_EQ(session->sendEvent(textMessage("text " + std::to_string(gesture))), 0);
        EXPECT_EQ(session->sendEvent(keyMessage(2, gesture + 1, false)), 0);
        session->sendPicture(pictureMessage("picture " + std::to_string(gesture)));
    }
    peer->resumeReading();
    ASSERT_TRUE(peer->next(StreamMessage::kPicture));
    const auto next = [this] { return peer->next().value_or(StreamMessage()); };
    for (int gesture = 0; gesture < Gestures; ++gesture) {
        EXPECT_EQ(next().touch().x(0), gesture);
        EXPECT_EQ(next().touch().x(0), 1000 * gesture + 99); // the newest position alone
        EXPECT_EQ(next().touch().action(), 1);
        EXPECT_EQ(next().text().text(), "text " + std::to_string(gesture));
        EXPECT_EQ(next().key().code(), gesture + 1);
    }
    EXPECT_EQ(next().picture().jpeg(), "picture 19");
}
