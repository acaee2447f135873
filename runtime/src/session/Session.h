#pragma once

#include "VideoSink.h"
#include "session/CallbackGate.h"
#include "session/ClockOffset.h"
#include "session/Connection.h"
#include "session/InputQueue.h"
#include "session/PeerWatch.h"
#include "session/ReconnectPolicy.h"
#include "session/StreamInfo.h"
#include "session/VideoSettings.h"
#include "swplay/VideoLevel.h"

#include "stream.pb.h"

#include <boost/asio/steady_timer.hpp>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

class SWDataSourceListener;

namespace swplay {

// Who signs in, and where.
struct LoginParameters
{
    Endpoint endpoint;
    std::int32_t userId = -1;
    std::string sessionId;
    std::string padCode;
};

// The pace of a session. The product uses the defaults; tests are quicker.
struct SessionTimings
{
    ConnectionTimeouts connection;
    // How often the peer is pinged and looked after, and the stream information told.
    std::chrono::milliseconds tick{1000};
    // With the tick: a silent gateway is noticed within 5 s.
    std::chrono::milliseconds silence{4000};
    // For the largest camera picture over a slow uplink.
    std::chrono::milliseconds write{30000};
    // The first wait after a try at once has failed.
    std::chrono::milliseconds firstRetry = ReconnectPolicy::FirstDelay;
    // A try that takes longer, while another session gets through, began when the gateway could not be
    // reached and may wait long for its packets to be repeated.
    std::chrono::milliseconds stuckAfter{2000};
};

// One session with a device: it connects, signs in, hands video to the sink and events to the listener, sends
// input and settings, and repairs the connection until it is stopped or refused.
//
//   Idle --start--> Connecting --> SigningIn --> SignedIn
//                       ^------ Waiting <----------'   (loss: wait as the policy says, connect again)
//   any --stop, or ended by the gateway--> Ended
//
// Shared by its data source and by the operations that are under way on the network thread; its steps all run
// there. What other threads hand over is guarded by m_mutex, which is never held during a callback.
class Session final : public VideoFeedback,
                      public ConnectionEvents,
                      public std::enable_shared_from_this<Session>
{
public:
    // What methods that hand something over return.
    static constexpr int Ok = 0;
    static constexpr int Refused = -1; // out of range, or stopped
    static constexpr int NotConnected = -2;

    Session(unsigned id, SWDataSourceListener *listener, SessionTimings timings = {},
        ReconnectPolicy::Random random = uniformRandom);
    ~Session() override;

    // -- Any thread. --

    // Before start. Nothing = the parameters that were given cannot be used.
    int setLogin(std::optional<LoginParameters> login);
    int setBusinessType(std::int32_t type);

    int setLevels(std::vector<VideoLevel> levels); // 1 to 16
    int chooseRow(int row);
    int chooseCustom(const VideoLevel &level);
    int setScreenCast(int mode);
    int levelResult(VideoLevel &level);

    // The reference size is filled in here.
    int sendTouch(wire::StreamMessage message);
    int sendEvent(wire::StreamMessage message);
    int sendPicture(wire::StreamMessage message);
    int sendAudio(wire::StreamMessage message);

    void attachSink(std::shared_ptr<VideoSink> sink);
    int start();
    // No callback runs once it has returned. Not from a callback.
    void stop();

    // VideoFeedback
    void keyframeNeeded() override;
    void pictureDecoded(std::uint64_t frameId, std::int64_t captureUs,
        std::chrono::steady_clock::time_point decodedAt) override;

    // -- Network thread. --

    // Ends the session without telling the listener. Does nothing after the end.
    void shutDown();

    // Another session has got through to this gateway: a session that waits to try it again tries at once,
    // unless the gateway itself has asked for time.
    void gatewayIsBack(const Endpoint &gateway);

    // ConnectionEvents
    void connectionOpened() override;
    void connectionMessage(const void *data, std::size_t size, bool text) override;
    void connectionWritten() override;
    void connectionLost(ConnectionLoss loss, const std::string &reason) override;

private:
    enum class Phase { Idle, Connecting, SigningIn, SignedIn, Waiting, Ended };
    enum class Retry { AtOnce, BackOff };

    static double uniformRandom();

    // Any thread.
    template <typename Push>
    int handOver(Push &&push);
    template <typename Change>
    int changeSettings(Change &&change);
    void wake();
    void note(const std::string &text) const;

    // Network thread.
    void applySink();
    void connect();
    void flush();
    std::optional<wire::StreamMessage> nextMessage();
    void retry(Retry when, const std::string &reason);
    void reconnect();
    void leaveConnection();
    void finish();
    void end(int disconnectReason, const std::string &reason);
    void endOnProtocolError(const std::string &reason);
    void startTicking();
    void tick();
    void tellOthersThatGatewayIsBack();
    // Calls the listener, unless there is none or the session was stopped.
    template <typename Call>
    void tell(Call &&call)
    {
        if (m_listener)
            m_gate.run([&] { call(*m_listener); });
    }

    void dispatch(wire::StreamMessage &message);
    void handleLoginResult(const wire::LoginResult &result);
    void handleSignedIn(const wire::LoginResult &result);
    void handleVideoFrame(wire::VideoFrame &frame);
    void handleLevelResult(const wire::VideoLevelResult &result);
    void handleRotation(int rotation);
    void handleSensorRequest(const wire::SensorRequest &request);
    void handleClipboard(const std::string &text);
    void handleSessionEnd(const wire::SessionEnd &sessionEnd);
    void handlePong(const wire::Pong &pong);

    const unsigned m_id;
    SWDataSourceListener *const m_listener; // not owned; called through m_gate
    const SessionTimings m_timings;
    CallbackGate m_gate;
    StreamInfo m_info; // has its own lock
    std::atomic<bool> m_keyframeWanted{false};
    std::atomic<bool> m_wakePosted{false};

    // Handed over between threads.
    mutable std::mutex m_mutex; // guards the following, until the next comment
    bool m_started = false;
    bool m_stopped = false;
    bool m_connected = false; // signed in
    std::optional<LoginParameters> m_login;
    std::int32_t m_businessType = 0;
    VideoSettings m_settings;
    InputQueue m_input;
    std::shared_ptr<VideoSink> m_newSink; // what attachSink gave last
    std::optional<VideoLevel> m_levelInEffect;
    int m_screenWidth = 0; // pixels in portrait, 0 before the first login
    int m_screenHeight = 0;
    int m_reportedWidth = 0; // what levelResult told last, 0 before
    int m_reportedHeight = 0;

    // Network thread only.
    Phase m_phase = Phase::Idle;
    std::shared_ptr<Connection> m_connection;
    std::shared_ptr<VideoSink> m_sink;
    boost::asio::steady_timer m_retryTimer;
    boost::asio::steady_timer m_tickTimer;
    ReconnectPolicy m_policy;
    PeerWatch m_watch;
    ClockOffset m_clock;
    wire::StreamMessage m_message; // the one being read; kept for its memory
    std::deque<wire::Ping> m_pings; // to answer
    std::uint64_t m_lastPingId = 0;
    bool m_pingDue = false;
    std::uint64_t m_newestFrame = 0;
    bool m_ackDue = false;
    bool m_everSignedIn = false;
    int m_attempt = 0; // tries since the connection was lost
    std::chrono::steady_clock::time_point m_triedAt; // when the last one began
    bool m_waitsForGateway = false; // in Waiting: until it can be reached, not for a time it has asked for
    bool m_wasUnreachable = false; // had to try again before it signed in; the others are to be told
    int m_rotation = 0; // quarter turns, as last told
    int m_levelRow = 0;
};

} // namespace swplay
