// What a session does with each message of the gateway. All on the network thread.

#include "Log.h"
#include "session/Session.h"
#include "session/WireMessage.h"
#include "swplay/SWDataSourceListener.h"

#include <limits>
#include <utility>

namespace swplay {

using std::chrono::steady_clock;

namespace {

constexpr std::size_t MaxPingsToAnswer = 16; // further pings wait behind a write that is stuck; older ones go

// Text for the log: what a gateway says, cut to a sensible length.
std::string quoted(const std::string &text)
{
    constexpr std::size_t MaxLength = 200;
    return '"' + text.substr(0, MaxLength) + '"';
}

} // namespace

void Session::connectionMessage(const void *data, std::size_t size, bool text)
{
    m_watch.heard(steady_clock::now());
    if (text) {
        endOnProtocolError("text message");
        return;
    }
    std::string reason;
    switch (readGatewayMessage(data, size, m_message, reason)) {
    case ReadResult::Malformed:
        endOnProtocolError(reason);
        break;
    case ReadResult::Skipped:
        log(LogLevel::Debug, "Session " + std::to_string(m_id) + ": message of unknown kind skipped");
        break;
    case ReadResult::Message:
        dispatch(m_message);
        break;
    }
}

void Session::dispatch(wire::StreamMessage &message)
{
    using wire::StreamMessage;
    const auto body = message.body_case();
    if (body == StreamMessage::kSessionEnd) {
        handleSessionEnd(message.session_end());
        return;
    }
    if (m_phase != Phase::SignedIn) {
        // Only the answer to the login counts before it.
        if (body == StreamMessage::kLoginResult)
            handleLoginResult(message.login_result());
        return;
    }
    switch (body) {
    case StreamMessage::kVideoFrame:
        return handleVideoFrame(*message.mutable_video_frame());
    case StreamMessage::kVideoLevelResult:
        return handleLevelResult(message.video_level_result());
    case StreamMessage::kScreenRotation:
        return handleRotation(message.screen_rotation().rotation());
    case StreamMessage::kSensorRequest:
        return handleSensorRequest(message.sensor_request());
    case StreamMessage::kClipboard:
        return handleClipboard(message.clipboard().text());
    case StreamMessage::kKeyboardType:
        return tell([type = message.keyboard_type().type()](
                        SWDataSourceListener &listener) { listener.onRecvKeyboardType(type); });
    case StreamMessage::kControlGrant:
        return tell([state = message.control_grant().state()](
                        SWDataSourceListener &listener) { listener.onControlGrant(state); });
    case StreamMessage::kPing:
        if (m_pings.size() >= MaxPingsToAnswer)
            m_pings.pop_front();
        m_pings.push_back(message.ping());
        return flush();
    case StreamMessage::kPong:
        return handlePong(message.pong());
    default:
        return; // a second login result means nothing
    }
}

void Session::handleLoginResult(const wire::LoginResult &result)
{
    switch (result.code()) {
    case wire::LoginResult::OK:
        return handleSignedIn(result);
    case wire::LoginResult::UNKNOWN_SESSION:
        return end(SWDisconnectRefused, "the gateway does not know it: " + quoted(result.reason()));
    case wire::LoginResult::EXPIRED:
        return end(SWDisconnectExpired, "the device's time is over: " + quoted(result.reason()));
    case wire::LoginResult::UNSUPPORTED_VERSION:
        return end(SWDisconnectUnsupported, "the gateway speaks another version: " + quoted(result.reason()));
    default:
        // Busy, or a code of a newer gateway.
        return retry(Retry::BackOff,
            "not signed in, code " + std::to_string(result.code()) + ": " + quoted(result.reason()));
    }
}

void Session::handleSignedIn(const wire::LoginResult &result)
{
    m_phase = Phase::SignedIn;
    m_policy.signedIn(steady_clock::now());
    m_wasUnreachable = m_attempt > 0;
    m_attempt = 0;
    m_newestFrame = 0;
    m_pingDue = true;
    m_keyframeWanted = std::exchange(m_everSignedIn, true);
    {
        const std::lock_guard lock(m_mutex);
        if (m_stopped)
            return; // the end is already on its way
        m_screenWidth = static_cast<int>(result.screen_width());
        m_screenHeight = static_cast<int>(result.screen_height());
        m_levelInEffect.reset();
        m_input.clear();
        m_settings.tellAll();
        m_connected = true;
    }
    note("signed in, screen of " + std::to_string(result.screen_width()) + " x "
        + std::to_string(result.screen_height()));
    if (m_sink)
        m_sink->streamReset();
    flush();
    tell([](SWDataSourceListener &listener) { listener.onConnected(); });
    // The client may have turned its view by hand meanwhile; only a turn of the device is news.
    if (result.rotation() != m_rotation)
        handleRotation(result.rotation());
}

void Session::handleVideoFrame(wire::VideoFrame &frame)
{
    AccessUnit unit;
    unit.frameId = frame.frame_id();
    unit.captureUs = frame.capture_us();
    unit.keyFrame = frame.key_frame();
    unit.width = static_cast<int>(frame.width());
    unit.height = static_cast<int>(frame.height());
    unit.data = std::move(*frame.mutable_data());
    m_info.received(unit.data.size(), unit.width, unit.height);
    m_newestFrame = unit.frameId;
    m_ackDue = true;
    flush();
    if (m_sink)
        m_sink->accessUnit(std::move(unit));
}

void Session::handleLevelResult(const wire::VideoLevelResult &result)
{
    m_levelRow = result.row();
    const std::lock_guard lock(m_mutex);
    m_levelInEffect = videoLevelOf(result.level());
}

void Session::handleRotation(int rotation)
{
    m_rotation = rotation;
    if (m_sink)
        m_sink->screenRotation(rotation);
    tell([rotation](SWDataSourceListener &listener) { listener.onScreenRotation(rotation); });
}

void Session::handleSensorRequest(const wire::SensorRequest &request)
{
    const int width = static_cast<int>(request.width());
    const int height = static_cast<int>(request.height());
    tell([&](SWDataSourceListener &listener) {
        if (width > 0 && height > 0)
            listener.onSensorRequest(request.input_type(), request.state(), width, height);
        else
            listener.onSensorRequest(request.input_type(), request.state());
    });
}

void Session::handleClipboard(const std::string &text)
{
    static_assert(WireLimits::GatewayMessageBytes <= std::numeric_limits<int>::max());
    tell([&text](SWDataSourceListener &listener) {
        listener.onCopyFromRemote(text.c_str(), static_cast<int>(text.size()));
    });
}

void Session::handleSessionEnd(const wire::SessionEnd &sessionEnd)
{
    const std::string reason = quoted(sessionEnd.reason());
    switch (sessionEnd.code()) {
    case wire::SessionEnd::CLOSED:
        return end(SWDisconnectClosed, "given back: " + reason);
    case wire::SessionEnd::EXPIRED:
        return end(SWDisconnectExpired, "the device's time is over: " + reason);
    case wire::SessionEnd::SHUTDOWN:
        return retry(Retry::AtOnce, "the gateway goes down: " + reason);
    default:
        // The gateway took something amiss, or has a new code: try again, but do not hurry.
        return retry(Retry::BackOff,
            "ended by the gateway, code " + std::to_string(sessionEnd.code()) + ": " + reason);
    }
}

void Session::handlePong(const wire::Pong &pong)
{
    // Only pings of this connection count; their ids go up through all connections.
    if (pong.id() == 0 || pong.id() > m_lastPingId)
        return;
    const auto now = steady_clock::now();
    m_clock.add(pong.ping_sent_us(), pong.replied_us(),
        std::chrono::duration_cast<std::chrono::microseconds>(now.time_since_epoch()).count());
}

} // namespace swplay
