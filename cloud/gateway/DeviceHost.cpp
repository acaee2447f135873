#include "gateway/DeviceHost.h"

#include "gateway/GatewayLog.h"

#include <boost/asio/post.hpp>

#include <algorithm>
#include <utility>

namespace orvane::cloud {

namespace {

// More viewers of one device than this are told to come back later.
constexpr std::size_t MaxViewers = 32;
// Sessions that were asked for the camera and may be away; the one asked first is forgotten.
constexpr std::size_t MaxCameraSessions = 2 * MaxViewers;
// Pasted rather than typed.
constexpr std::size_t LongTextBytes = 256;
// A device that worked longer over an input than this gets the next one of the kind on its strand: an app
// that lays out a long text must not hold up the input of other devices.
constexpr std::chrono::milliseconds SlowInput{1};
// What somebody who only looks on is shown may be older by this.
constexpr Clock::duration OnlookerInterval = std::chrono::milliseconds(1000 / FramePacer::OnlookerRate);
// Action of a touch frame in which no finger went down or up.
constexpr int TouchMove = 2;

// Where a coordinate of the client's reference size lies on the screen: pixel centres are mapped, and what
// lies outside goes to the edge. `reference` 0 = the screen's own size.
int toScreen(int value, int reference, int screen)
{
    const std::int64_t size = reference > 0 ? reference : screen;
    const std::int64_t clamped = std::clamp<std::int64_t>(value, 0, size - 1);
    return static_cast<int>((2 * clamped + 1) * screen / (2 * size));
}

std::vector<TouchPoint> onScreen(const client::Touch &touch, QSize screen)
{
    std::vector<TouchPoint> points;
    points.reserve(touch.points.size());
    for (const client::Touch::Point &point : touch.points) {
        points.push_back({toScreen(point.x, touch.referenceWidth, screen.width()),
            toScreen(point.y, touch.referenceHeight, screen.height()), point.pressure});
    }
    return points;
}

// Input that decides about nothing but itself, and takes a while to decode.
bool isRecording(const ClientMessage &message)
{
    return std::holds_alternative<client::Picture>(message) || std::holds_alternative<client::Audio>(message);
}

bool isInput(const ClientMessage &message)
{
    return std::holds_alternative<client::Touch>(message) || std::holds_alternative<client::Key>(message)
        || std::holds_alternative<client::Text>(message);
}

// Index into DeviceHost::m_isSlowOver.
std::size_t kindOf(const ClientMessage &message)
{
    if (const auto *touch = std::get_if<client::Touch>(&message)) {
        return static_cast<std::size_t>(std::clamp(touch->action, 0, 2));
    }
    if (const auto *key = std::get_if<client::Key>(&message)) {
        return 3 + static_cast<std::size_t>(std::clamp(key->action, 1, 3) - 1);
    }
    return 6;
}

bool isLongText(const ClientMessage &message)
{
    const auto *text = std::get_if<client::Text>(&message);
    return text && text->text.size() > LongTextBytes;
}

template <typename... Handlers>
struct Overloaded : Handlers...
{
    using Handlers::operator()...;
};
template <typename... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

} // namespace

DeviceHost::DeviceHost(std::string padCode, const std::string &name, QSize screen, const Executor &executor)
    : m_padCode(std::move(padCode))
    , m_strand(boost::asio::make_strand(executor))
    , m_deviceMutex(
          [this](const DeviceMutex::Input &input) { return takeInput(input); }, [this] { takeInputSoon(); })
    , m_device(m_padCode, name, &QDateTime::currentDateTime, screen)
    , m_pictures(m_device, m_deviceMutex)
    , m_timer(m_strand)
{
    // The device calls these while it is being used, that is with the mutex held.
    m_device.onSensorRequest = [this](int inputType, int state, int width, int height) {
        noteEvent(SensorEvent{inputType, state, width, height});
    };
    m_device.onClipboard = [this](const std::string &text) { noteEvent(ClipboardEvent{text}); };
    m_device.onRotation = [this](int rotation) { noteEvent(RotationEvent{rotation}); };
}

// --- Any thread, in order ---

void DeviceHost::join(Joining joining)
{
    boost::asio::post(m_strand, [self = shared_from_this(), joining = std::move(joining)]() mutable {
        self->joinNow(std::move(joining));
    });
}

void DeviceHost::leave(ConnectionId connection)
{
    boost::asio::post(m_strand, [self = shared_from_this(), connection] { self->leaveNow(connection); });
}

void DeviceHost::receive(ConnectionId connection, ClientMessage message, std::function<void()> done)
{
    if (isInput(message)) {
        const bool isSlow = m_isSlowOver.at(kindOf(message)) || isLongText(message);
        return m_deviceMutex.give({connection, std::move(message), std::move(done), isSlow});
    }
    boost::asio::post(m_strand,
        [self = shared_from_this(), connection, message = std::move(message),
            done = std::move(done)]() mutable {
            self->receiveNow(connection, message);
            done();
        });
}

void DeviceHost::learnPathDelay(ConnectionId connection, std::chrono::microseconds delay)
{
    boost::asio::post(m_strand, [self = shared_from_this(), connection, delay] {
        if (Viewer *viewer = self->find(connection)) {
            viewer->learnPathDelay(delay, Clock::now());
        }
    });
}

// --- Any thread, at once ---

DeviceState DeviceHost::state()
{
    const std::lock_guard lock(m_deviceMutex);
    catchUp(Clock::now());
    return m_device.isBooting() ? DeviceState::Booting : DeviceState::Online;
}

void DeviceHost::reboot()
{
    const std::lock_guard lock(m_deviceMutex);
    m_device.reboot(Clock::now());
    noteChange(FrameCause::Press);
}

bool DeviceHost::openApp(const std::string &app)
{
    const std::lock_guard lock(m_deviceMutex);
    catchUp(Clock::now());
    const bool isOpened = m_device.openApp(app);
    noteChange(FrameCause::Press);
    return isOpened;
}

void DeviceHost::setFilmRate(int picturesPerSecond)
{
    const std::lock_guard lock(m_deviceMutex);
    m_device.setFilmRate(picturesPerSecond);
    noteChange(FrameCause::Press);
}

bool DeviceHost::rotate(int rotation)
{
    if (rotation < 0 || rotation > 3) {
        return false;
    }
    const std::lock_guard lock(m_deviceMutex);
    m_device.setRotation(rotation);
    noteChange(FrameCause::Press);
    return true;
}

void DeviceHost::requestCamera(bool on)
{
    const std::lock_guard lock(m_deviceMutex);
    m_device.requestCamera(on);
    noteChange(FrameCause::Press);
}

std::string DeviceHost::appStateJson()
{
    const std::lock_guard lock(m_deviceMutex);
    catchUp(Clock::now());
    return m_device.appStateJson();
}

std::vector<InputRecord> DeviceHost::inputsSince(std::uint64_t sequence)
{
    const std::lock_guard lock(m_deviceMutex);
    return m_device.inputsSince(sequence);
}

QImage DeviceHost::screen()
{
    const std::lock_guard lock(m_deviceMutex);
    catchUp(Clock::now());
    return m_pictures.snapshot();
}

std::uint64_t DeviceHost::screenVersion()
{
    const std::lock_guard lock(m_deviceMutex);
    catchUp(Clock::now());
    return m_device.pictureVersion() + 1;
}

// --- Any thread, without the mutex ---

void DeviceHost::takeInputSoon()
{
    boost::asio::post(m_strand, [self = shared_from_this()] {
        const std::lock_guard lock(self->m_deviceMutex); // carries out what waits
    });
}

// --- Any thread, with the mutex held ---

void DeviceHost::catchUp(TimePoint now)
{
    const auto due = m_device.nextTick();
    if (due && *due <= now) {
        m_device.tick(now);
    }
}

// Only the last of its kind counts for the viewers, however many a client causes before they are told.
void DeviceHost::noteEvent(DeviceEvent event)
{
    const auto isSameKind = [&event](const DeviceEvent &other) { return other.index() == event.index(); };
    m_events.erase(std::remove_if(m_events.begin(), m_events.end(), isSameKind), m_events.end());
    m_events.push_back(std::move(event));
}

bool DeviceHost::takeInput(const DeviceMutex::Input &given)
{
    const auto session = m_sessions.find(given.connection);
    if (session == m_sessions.end()) {
        return false; // replaced or on its way out: its input no longer counts
    }
    const auto begin = threadWorkTime();
    if (const auto cause = input(session->second, given.message)) {
        noteChange(*cause);
    }
    const bool tookLong = threadWorkTime() - begin > SlowInput;
    m_isSlowOver.at(kindOf(given.message)) = tookLong;
    return tookLong;
}

std::optional<FrameCause> DeviceHost::input(const std::string &session, const ClientMessage &message)
{
    const TimePoint now = Clock::now(); // the device's times must not go back: read with the mutex held
    if (const auto *touch = std::get_if<client::Touch>(&message)) {
        m_device.touch(session, touch->action, onScreen(*touch, m_device.screenSize()), now);
        return touch->action == TouchMove ? FrameCause::Motion : FrameCause::Press;
    }
    if (const auto *key = std::get_if<client::Key>(&message)) {
        m_device.key(session, key->action, key->code, key->shift, now);
        return FrameCause::Press;
    }
    if (const auto *text = std::get_if<client::Text>(&message)) {
        m_device.text(session, text->text, now);
        return FrameCause::Press;
    }
    if (const auto *picture = std::get_if<client::Picture>(&message)) {
        m_device.picture(session, picture->jpeg, now);
        return FrameCause::Motion;
    }
    if (const auto *audio = std::get_if<client::Audio>(&message)) {
        m_device.audio(session, audio->format, audio->data, now);
        return FrameCause::Motion;
    }
    return std::nullopt;
}

// The device has changed. Calls for an update unless one is under way or the change can wait: waking a worker
// for each of a group's hundreds of devices costs more than the input itself.
void DeviceHost::noteChange(FrameCause cause)
{
    m_changeCause = std::max(m_changeCause.value_or(cause), cause);
    if (!m_updatePosted && !canChangeWait()) {
        m_updatePosted = true;
        boost::asio::post(m_strand, [self = shared_from_this()] { self->update(FrameCause::Animation); });
    }
}

bool DeviceHost::canChangeWait() const
{
    if (!m_events.empty() || m_audience.isOperated) {
        return false; // somebody is to be told, or to see it at once
    }
    return !m_audience.isWatched
        || (m_audience.nextUpdate && *m_audience.nextUpdate <= Clock::now() + OnlookerInterval);
}

// --- Strand ---

void DeviceHost::joinNow(Joining joining)
{
    for (const auto &entry : m_entries) {
        if (entry->viewer.sessionId() == joining.sessionId) {
            leaveNow(entry->connection);
            break;
        }
    }
    if (m_entries.size() >= MaxViewers) {
        qCInfo(gatewayLog, "%s: busy, %zu sessions view it", m_padCode.c_str(), m_entries.size());
        joining.link->refuse(LoginCode::Busy, "too many sessions view the device");
        return;
    }
    int rotation = 0;
    QSize size;
    std::optional<QSize> camera;
    std::vector<DeviceEvent> events; // for those who were there before: the new one is told how things are
    {
        const std::lock_guard lock(m_deviceMutex);
        events.swap(m_events);
        rotation = m_device.rotation();
        camera = m_device.wantedCamera();
        size = m_device.screenSize();
        m_sessions.emplace(joining.connection, joining.sessionId);
    }
    deliver(events);
    joining.link->accept(server::loginAccepted(size, rotation));
    m_entries.push_back(std::make_unique<Entry>(Entry{joining.connection,
        Viewer(joining.sessionId, std::move(joining.link), std::move(joining.counters))}));
    // It may have missed a request while it was away.
    const QSize cameraSize = camera.value_or(QSize(0, 0));
    tellSensor(m_entries.back()->viewer,
        {VirtualDevice::CameraInput, camera ? 1 : 0, cameraSize.width(), cameraSize.height()});
    update(FrameCause::Animation);
}

void DeviceHost::leaveNow(ConnectionId connection)
{
    const auto entry = std::find_if(
        m_entries.begin(), m_entries.end(), [&](const auto &e) { return e->connection == connection; });
    if (entry == m_entries.end()) {
        return; // replaced before
    }
    {
        const std::lock_guard lock(m_deviceMutex);
        m_device.sessionGone((*entry)->viewer.sessionId(), Clock::now());
        m_sessions.erase(connection);
    }
    m_entries.erase(entry);
    update(FrameCause::Press);
}

Viewer *DeviceHost::find(ConnectionId connection)
{
    for (const auto &entry : m_entries) {
        if (entry->connection == connection) {
            return &entry->viewer;
        }
    }
    return nullptr;
}

bool DeviceHost::isWatched() const
{
    return std::any_of(
        m_entries.begin(), m_entries.end(), [](const auto &entry) { return entry->viewer.isWatching(); });
}

void DeviceHost::receiveNow(ConnectionId connection, ClientMessage &message)
{
    Viewer *viewer = find(connection);
    if (!viewer) {
        return; // replaced or on its way out
    }
    if (isRecording(message)) {
        const std::lock_guard lock(m_deviceMutex);
        if (const auto cause = input(viewer->sessionId(), message)) {
            noteChange(*cause);
        }
        return;
    }
    const TimePoint now = Clock::now();
    std::visit(Overloaded{
                   [&](const client::VideoLevels &levels) { viewer->setLevels(levels); },
                   [&](const client::ChooseRow &choice) { viewer->choose(choice); },
                   [&](const client::ChooseCustom &choice) { viewer->choose(choice); },
                   [&](const client::ScreenCast &cast) { viewer->setCastMode(cast.mode); },
                   [&](const client::KeyframeRequest &) { viewer->requestKeyFrame(now); },
                   [&](const client::FrameAck &ack) { viewer->acknowledge(ack.frameId, now); },
                   [](const auto &) {}, // handled by the connection
               },
        message);
    update(FrameCause::Animation);
}

void DeviceHost::update(FrameCause cause)
{
    const bool watched = isWatched();
    TimePoint now;
    std::vector<DeviceEvent> events;
    std::uint64_t version = m_seenVersion;
    std::optional<TimePoint> tick;
    {
        const std::lock_guard lock(m_deviceMutex);
        now = Clock::now();
        if (watched) {
            catchUp(now);
            version = m_device.pictureVersion();
            tick = m_device.nextTick();
        }
        events.swap(m_events);
        cause = std::max(cause, std::exchange(m_changeCause, std::nullopt).value_or(cause));
        m_updatePosted = false;
    }
    deliver(events);
    const bool changed = std::exchange(m_seenVersion, version) != version;
    for (const auto &entry : m_entries) {
        if (changed) {
            entry->viewer.screenChanged(cause);
        }
        entry->viewer.pump(
            now, [this](QSize size) -> const YuvPicture & { return m_pictures.picture(size); });
    }
    releasePictures();
    schedule(now, tick);
    publishAudience();
}

void DeviceHost::publishAudience()
{
    const bool isOperated = std::any_of(
        m_entries.begin(), m_entries.end(), [](const auto &entry) { return entry->viewer.isOperating(); });
    const std::lock_guard lock(m_deviceMutex);
    m_audience = {isWatched(), isOperated, m_timerAt};
    if (m_changeCause) {
        noteChange(*m_changeCause); // it came meanwhile and may have relied on the old audience
    }
}

void DeviceHost::releasePictures()
{
    std::vector<QSize> wanted;
    for (const auto &entry : m_entries) {
        if (const auto size = entry->viewer.pictureSize()) {
            wanted.push_back(*size);
        }
    }
    m_pictures.keep(wanted);
}

void DeviceHost::deliver(const std::vector<DeviceEvent> &events)
{
    const auto tellAll = [this](const std::string &message) {
        for (const auto &entry : m_entries) {
            entry->viewer.link().sendControl(message);
        }
    };
    const Overloaded tell{
        [this](const SensorEvent &e) {
            for (const auto &entry : m_entries) {
                tellSensor(entry->viewer, e);
            }
        },
        [&](const ClipboardEvent &e) { tellAll(server::clipboard(e.text)); },
        [&](const RotationEvent &e) { tellAll(server::screenRotation(e.rotation)); },
    };
    for (const DeviceEvent &event : events) {
        std::visit(tell, event);
    }
}

// A request to stop goes only to sessions that were asked to start, also when they have been away meanwhile:
// a client that serves several devices takes it for all of them.
void DeviceHost::tellSensor(Viewer &viewer, const SensorEvent &event)
{
    std::vector<std::string> &asked = m_cameraSessions;
    const auto known = std::find(asked.begin(), asked.end(), viewer.sessionId());
    if (event.state != 0 && known == asked.end()) {
        if (asked.size() == MaxCameraSessions) {
            asked.erase(asked.begin());
        }
        asked.push_back(viewer.sessionId());
    } else if (event.state == 0) {
        if (known == asked.end()) {
            return;
        }
        asked.erase(known);
    }
    viewer.link().sendControl(server::sensorRequest(event.inputType, event.state, event.width, event.height));
}

void DeviceHost::schedule(TimePoint now, std::optional<TimePoint> deviceTick)
{
    std::optional<TimePoint> next;
    std::optional<TimePoint> usefulTick; // when somebody can be shown what the device does by itself
    const auto earliest = [](std::optional<TimePoint> &least, TimePoint time) {
        least = least ? std::min(*least, time) : time;
    };
    for (const auto &entry : m_entries) {
        const Viewer &viewer = entry->viewer;
        if (const auto time = viewer.nextPump(now)) {
            earliest(next, *time);
        }
        if (deviceTick && viewer.isWatching()) {
            earliest(usefulTick, std::max(*deviceTick, viewer.nextAnimationTime(now)));
        }
    }
    if (usefulTick) {
        earliest(next, *usefulTick);
    }
    if (next == m_timerAt) {
        return; // already set, or not needed
    }
    m_timerAt = next;
    if (!next) {
        m_timer.cancel();
        return;
    }
    m_timer.expires_at(*next);
    m_timer.async_wait([self = weak_from_this()](const boost::system::error_code &error) {
        if (const auto host = self.lock(); host && !error) {
            host->m_timerAt.reset();
            host->update(FrameCause::Animation);
        }
    });
}

} // namespace orvane::cloud
