#include "session/Session.h"

#include "Log.h"
#include "session/NetworkThread.h"
#include "session/WireMessage.h"
#include "swplay/SWDataSourceListener.h"

#include <random>
#include <utility>

namespace swplay {

using std::chrono::steady_clock;

double Session::uniformRandom()
{
    thread_local std::minstd_rand generator{std::random_device{}()};
    return std::uniform_real_distribution<double>(0, 1)(generator);
}

Session::Session(
    unsigned id, SWDataSourceListener *listener, SessionTimings timings, ReconnectPolicy::Random random)
    : m_id(id)
    , m_listener(listener)
    , m_timings(timings)
    , m_retryTimer(NetworkThread::instance().io())
    , m_tickTimer(NetworkThread::instance().io())
    , m_policy(std::move(random), timings.firstRetry)
    , m_watch(timings.silence, timings.write)
{ }

Session::~Session() = default;

void Session::note(const std::string &text) const
{
    log(LogLevel::Info, "Session " + std::to_string(m_id) + ": " + text);
}

// ---- Any thread: settings ----

int Session::setLogin(std::optional<LoginParameters> login)
{
    const std::lock_guard lock(m_mutex);
    if (m_started || m_stopped)
        return Refused;
    m_login = std::move(login);
    return m_login ? Ok : Refused;
}

int Session::setBusinessType(std::int32_t type)
{
    const std::lock_guard lock(m_mutex);
    if (m_started || m_stopped)
        return Refused;
    m_businessType = type;
    return Ok;
}

// `change` gets the settings and returns whether the new value fits them.
template <typename Change>
int Session::changeSettings(Change &&change)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_stopped || !change(m_settings))
            return Refused;
        if (!m_connected)
            return Ok; // told after the login
    }
    wake();
    return Ok;
}

int Session::setLevels(std::vector<VideoLevel> levels)
{
    return changeSettings([&levels](VideoSettings &settings) {
        settings.setLevels(std::move(levels));
        return true;
    });
}

int Session::chooseRow(int row)
{
    return changeSettings([row](VideoSettings &settings) {
        if (row < 0 || (row > 0 && row >= settings.rowCount()))
            return false;
        settings.chooseRow(row);
        return true;
    });
}

int Session::chooseCustom(const VideoLevel &level)
{
    return changeSettings([&level](VideoSettings &settings) {
        settings.chooseCustom(level);
        return true;
    });
}

int Session::setScreenCast(int mode)
{
    return changeSettings([mode](VideoSettings &settings) {
        settings.setScreenCast(mode);
        return true;
    });
}

int Session::levelResult(VideoLevel &level)
{
    const std::lock_guard lock(m_mutex);
    if (m_screenWidth == 0)
        return Refused;
    level = m_levelInEffect ? *m_levelInEffect : m_settings.chosen();
    level.width = m_reportedWidth = m_screenWidth;
    level.height = m_reportedHeight = m_screenHeight;
    return Ok;
}

// ---- Any thread: input ----

// `push` puts the input into the queue and returns whether there was room.
template <typename Push>
int Session::handOver(Push &&push)
{
    bool room = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_stopped)
            return Refused;
        if (!m_connected)
            return NotConnected;
        room = push(m_input);
    }
    wake(); // a queue without room ends the connection
    return room ? Ok : NotConnected;
}

int Session::sendTouch(wire::StreamMessage message)
{
    return handOver([&](InputQueue &input) {
        const bool reported = m_reportedWidth > 0;
        wire::Touch &touch = *message.mutable_touch();
        touch.set_reference_width(static_cast<std::uint32_t>(reported ? m_reportedWidth : m_screenWidth));
        touch.set_reference_height(static_cast<std::uint32_t>(reported ? m_reportedHeight : m_screenHeight));
        return input.pushEvent(std::move(message));
    });
}

int Session::sendEvent(wire::StreamMessage message)
{
    return handOver([&](InputQueue &input) { return input.pushEvent(std::move(message)); });
}

int Session::sendPicture(wire::StreamMessage message)
{
    return handOver([&](InputQueue &input) {
        input.pushPicture(std::move(message));
        return true;
    });
}

int Session::sendAudio(wire::StreamMessage message)
{
    return handOver([&](InputQueue &input) {
        input.pushAudio(std::move(message));
        return true;
    });
}

// Lets the network thread look after what was handed over; one wake serves all that comes before it runs.
void Session::wake()
{
    if (m_wakePosted.exchange(true))
        return;
    NetworkThread::instance().post([self = shared_from_this()] {
        self->m_wakePosted = false;
        self->flush();
    });
}

void Session::keyframeNeeded()
{
    m_keyframeWanted = true;
    wake();
}

void Session::pictureDecoded(
    std::uint64_t /*frameId*/, std::int64_t captureUs, steady_clock::time_point decodedAt)
{
    m_info.decoded(captureUs, decodedAt);
}

// ---- Any thread: start and end ----

void Session::attachSink(std::shared_ptr<VideoSink> sink)
{
    {
        const std::lock_guard lock(m_mutex);
        m_newSink = std::move(sink);
    }
    NetworkThread::instance().post([self = shared_from_this()] { self->applySink(); });
}

int Session::start()
{
    bool usable = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_stopped)
            return Refused;
        if (m_started)
            return Ok;
        if (!NetworkThread::instance().add(shared_from_this()))
            return Refused;
        m_started = true;
        usable = m_login.has_value();
    }
    NetworkThread::instance().post([self = shared_from_this(), usable] {
        self->applySink();
        if (usable)
            self->connect();
        else
            self->end(SWDisconnectBadParameters, "address, port or session id missing or malformed");
    });
    return usable ? Ok : Refused;
}

void Session::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        m_connected = false;
        m_input.clear();
        m_newSink.reset();
    }
    NetworkThread::instance().post([self = shared_from_this()] { self->shutDown(); });
    m_gate.close();
}

// ---- Network thread ----

void Session::applySink()
{
    std::shared_ptr<VideoSink> sink;
    {
        const std::lock_guard lock(m_mutex);
        if (m_phase == Phase::Ended)
            m_newSink.reset();
        sink = m_newSink;
    }
    if (sink == m_sink)
        return;
    if (m_sink)
        m_sink->setFeedback({});
    m_sink = std::move(sink);
    if (!m_sink)
        return;
    m_sink->setFeedback(weak_from_this());
    if (m_rotation != 0)
        m_sink->screenRotation(m_rotation);
    // It comes into a running stream and cannot begin in the middle.
    if (m_phase == Phase::SignedIn)
        keyframeNeeded();
}

void Session::connect()
{
    if (m_phase == Phase::Ended)
        return;
    m_phase = Phase::Connecting;
    m_triedAt = steady_clock::now();
    Endpoint endpoint;
    std::string padCode;
    {
        const std::lock_guard lock(m_mutex);
        endpoint = m_login->endpoint;
        padCode = m_login->padCode;
    }
    note("connecting to " + endpoint.authority() + (endpoint.tls ? " (TLS)" : "") + " for device " + padCode);
    m_connection
        = Connection::open(NetworkThread::instance().io(), endpoint, m_timings.connection, weak_from_this());
}

void Session::connectionOpened()
{
    m_phase = Phase::SigningIn;
    const auto now = steady_clock::now();
    m_watch.reset(now);
    m_clock.reset();
    m_info.reset(now);
    m_pings.clear();
    m_pingDue = false;
    m_ackDue = false;
    wire::StreamMessage login;
    {
        const std::lock_guard lock(m_mutex);
        login = loginMessage(m_login->userId, m_login->sessionId, m_login->padCode, m_businessType);
    }
    m_watch.writeStarted(now);
    m_connection->write(serialise(login));
    startTicking();
}

void Session::connectionWritten()
{
    m_watch.writeDone();
    flush();
}

// Writes the next message if the connection can take one.
void Session::flush()
{
    if (m_phase != Phase::SignedIn)
        return;
    bool overfull = false;
    {
        const std::lock_guard lock(m_mutex);
        overfull = m_input.isOverfull();
    }
    if (overfull) {
        retry(Retry::AtOnce, "the gateway does not take the input in time");
        return;
    }
    if (!m_connection->isWritable())
        return;
    const auto message = nextMessage();
    if (!message)
        return;
    m_watch.writeStarted(steady_clock::now());
    m_connection->write(serialise(*message));
}

// In the order of what a user would notice.
std::optional<wire::StreamMessage> Session::nextMessage()
{
    const auto nowUs = [] {
        return std::chrono::duration_cast<std::chrono::microseconds>(steady_clock::now().time_since_epoch())
            .count();
    };
    if (!m_pings.empty()) {
        const wire::Ping ping = m_pings.front();
        m_pings.pop_front();
        return pongMessage(ping, nowUs());
    }
    const std::lock_guard lock(m_mutex);
    if (auto setting = m_settings.takeUntold())
        return setting;
    if (m_keyframeWanted.exchange(false))
        return keyframeRequestMessage();
    if (auto event = m_input.takeEvent())
        return event;
    if (std::exchange(m_pingDue, false))
        return pingMessage(++m_lastPingId, nowUs());
    if (std::exchange(m_ackDue, false))
        return frameAckMessage(m_newestFrame);
    return m_input.takeAudioOrPicture();
}

void Session::connectionLost(ConnectionLoss loss, const std::string &reason)
{
    if (loss == ConnectionLoss::Protocol)
        endOnProtocolError(reason);
    else
        retry(Retry::AtOnce, reason);
}

// What holds for the end of every connection.
void Session::leaveConnection()
{
    m_wasUnreachable = false;
    m_tickTimer.cancel();
    if (m_connection) {
        m_connection->drop();
        m_connection.reset();
    }
    {
        const std::lock_guard lock(m_mutex);
        m_connected = false;
        m_input.clear();
    }
    if (m_phase == Phase::SignedIn) {
        m_policy.lost(steady_clock::now());
        m_attempt = 0;
        if (m_sink)
            m_sink->streamReset();
    }
}

void Session::retry(Retry when, const std::string &reason)
{
    if (m_phase == Phase::Ended)
        return;
    leaveConnection();
    m_phase = Phase::Waiting;
    m_waitsForGateway = when == Retry::AtOnce;
    const auto delay = m_policy.nextDelay(when == Retry::AtOnce);
    note("connection lost (" + reason + "); next try in " + std::to_string(delay.count()) + " ms");
    m_retryTimer.expires_after(delay);
    m_retryTimer.async_wait([self = shared_from_this()](const boost::system::error_code &error) {
        if (!error)
            self->reconnect();
    });
}

void Session::reconnect()
{
    if (m_phase != Phase::Waiting)
        return;
    const int attempt = ++m_attempt;
    tell([attempt](SWDataSourceListener &listener) { listener.onReconnecting(attempt); });
    connect();
}

void Session::gatewayIsBack(const Endpoint &gateway)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_login || m_login->endpoint != gateway)
            return;
    }
    const bool isStuck
        = m_phase == Phase::Connecting && steady_clock::now() - m_triedAt > m_timings.stuckAfter;
    if (isStuck) {
        note("the gateway is back; this try is given up for a new one");
        leaveConnection();
        m_phase = Phase::Waiting;
        reconnect();
    } else if (m_phase == Phase::Waiting && m_waitsForGateway && m_retryTimer.cancel() > 0) {
        reconnect(); // otherwise the try is on its way already
    }
}

// A group of devices that lost its gateway comes back with the first of its sessions that gets through,
// instead of one by one as their waits end.
void Session::tellOthersThatGatewayIsBack()
{
    Endpoint gateway;
    {
        const std::lock_guard lock(m_mutex);
        gateway = m_login->endpoint;
    }
    const auto sessions = NetworkThread::instance().sessions();
    for (const auto &session : sessions) {
        if (session.get() != this)
            session->gatewayIsBack(gateway);
    }
}

// The last step of every session.
void Session::finish()
{
    if (m_connection) {
        m_connection->close(Connection::CloseCode::Normal, {});
        m_connection.reset();
    }
    leaveConnection();
    m_phase = Phase::Ended;
    m_retryTimer.cancel();
    {
        const std::lock_guard lock(m_mutex);
        m_newSink.reset();
    }
    applySink();
}

void Session::shutDown()
{
    if (m_phase == Phase::Ended)
        return;
    if (m_phase != Phase::Idle)
        note("stopped");
    finish();
}

void Session::end(int disconnectReason, const std::string &reason)
{
    if (m_phase == Phase::Ended)
        return;
    log(LogLevel::Error, "Session " + std::to_string(m_id) + " ended: " + reason);
    finish();
    tell([disconnectReason](SWDataSourceListener &listener) { listener.onDisconnected(disconnectReason); });
}

void Session::endOnProtocolError(const std::string &reason)
{
    if (m_connection)
        m_connection->close(Connection::CloseCode::ProtocolError, reason);
    m_connection.reset();
    end(SWDisconnectProtocolError, "the gateway sent something malformed: " + reason);
}

void Session::startTicking()
{
    m_tickTimer.expires_after(m_timings.tick);
    m_tickTimer.async_wait([self = shared_from_this()](const boost::system::error_code &error) {
        if (!error && (self->m_phase == Phase::SigningIn || self->m_phase == Phase::SignedIn))
            self->tick();
    });
}

void Session::tick()
{
    const auto now = steady_clock::now();
    if (const char *verdict = m_watch.verdict(now)) {
        retry(Retry::AtOnce, verdict);
        return;
    }
    startTicking();
    if (m_phase != Phase::SignedIn)
        return;
    if (std::exchange(m_wasUnreachable, false))
        tellOthersThatGatewayIsBack();
    m_pingDue = true;
    flush();
    if (m_phase != Phase::SignedIn)
        return;
    if (const auto info = m_info.report(now, m_clock.offset(), m_levelRow))
        tell([&info](SWDataSourceListener &listener) { listener.onStreamInfo(info->c_str()); });
}

} // namespace swplay
