#pragma once

#include "core/DeviceFleet.h"
#include "device/VirtualDevice.h"
#include "gateway/DeviceMutex.h"
#include "gateway/ScreenPictures.h"
#include "gateway/Viewer.h"
#include "gateway/WorkerPool.h"

#include <boost/asio/steady_timer.hpp>
#include <boost/asio/strand.hpp>

#include <array>
#include <atomic>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <variant>
#include <vector>

namespace orvane::cloud {

// One virtual device with the sessions that view and work it. Everything that takes time (drawing,
// converting, encoding) runs on the host's strand of the worker pool, and only when a picture may go out; a
// device that nobody watches has no picture and no timer and does nothing. Touches, keys and text do not wait
// for the strand: they reach the device in the thread that brings them, unless it is just being used or takes
// long over such input.
//
// Owned by GatewayFleet and by its own handlers. Viewers, picture and timer belong to the strand. The device
// itself is guarded by m_deviceMutex, so that the HTTP API can read and change it from its own threads.
class DeviceHost : public std::enable_shared_from_this<DeviceHost>
{
public:
    using Executor = WorkerPool::Executor;
    // One connection; never used twice.
    using ConnectionId = std::uint64_t;

    // Who wants to join.
    struct Joining
    {
        ConnectionId connection = 0;
        std::string sessionId;
        std::shared_ptr<ClientLink> link;
        std::shared_ptr<SessionCounters> counters;
    };

    // `screen`: the device's size in portrait, pixels.
    DeviceHost(std::string padCode, const std::string &name, QSize screen, const Executor &executor);

    const std::string &padCode() const { return m_padCode; }

    // Any thread; carried out in the order of the calls, but for touches, keys and text, which keep their own
    // order and overtake everything else.

    // Signs a session in and tells it so, or that the device is busy. A viewer with the same session id
    // leaves.
    void join(Joining joining);
    // The connection is gone; its fingers and keys are lifted.
    void leave(ConnectionId connection);
    // A message of a connection whose joining was accepted; others are ignored. `done` is called on any
    // thread when it has taken effect.
    void receive(ConnectionId connection, ClientMessage message, std::function<void()> done);
    void learnPathDelay(ConnectionId connection, std::chrono::microseconds delay);

    // Any thread; these take effect at once.

    DeviceState state();
    void reboot();
    bool openApp(const std::string &app);
    void setFilmRate(int picturesPerSecond); // 1 to 25
    bool rotate(int rotation); // 0 to 3
    void requestCamera(bool on);
    std::string appStateJson();
    std::vector<InputRecord> inputsSince(std::uint64_t sequence);
    QImage screen();
    std::uint64_t screenVersion(); // counts up from 1 whenever the picture changes

private:
    struct SensorEvent
    {
        int inputType, state, width, height;
    };
    struct ClipboardEvent
    {
        std::string text;
    };
    struct RotationEvent
    {
        int rotation;
    };
    using DeviceEvent = std::variant<SensorEvent, ClipboardEvent, RotationEvent>;
    // Three actions of touches, three of keys, and text: an app that is quick when a key goes up need not be
    // when it goes down.
    static constexpr std::size_t InputKinds = 7;
    // How closely the device is watched.
    struct Audience
    {
        bool isWatched = false;
        bool isOperated = false; // some viewer's level is one to work with
        std::optional<TimePoint> nextUpdate; // when the strand looks at the device in any case
    };
    struct Entry
    {
        ConnectionId connection;
        Viewer viewer;
    };

    // Any thread, without the mutex.
    void takeInputSoon();

    // Any thread, with the mutex held.
    void catchUp(TimePoint now);
    void noteEvent(DeviceEvent event);
    bool takeInput(const DeviceMutex::Input &input); // whether it took long
    // Gives input to the device. None when the message is no input.
    std::optional<FrameCause> input(const std::string &session, const ClientMessage &message);
    void noteChange(FrameCause cause);
    bool canChangeWait() const;

    // Strand only.
    void joinNow(Joining joining);
    void leaveNow(ConnectionId connection);
    void receiveNow(ConnectionId connection, ClientMessage &message);
    Viewer *find(ConnectionId connection);
    bool isWatched() const;
    void publishAudience();
    void update(FrameCause cause);
    void deliver(const std::vector<DeviceEvent> &events);
    void tellSensor(Viewer &viewer, const SensorEvent &event);
    void releasePictures();
    void schedule(TimePoint now, std::optional<TimePoint> deviceTick);

    const std::string m_padCode;
    boost::asio::strand<Executor> m_strand;

    DeviceMutex m_deviceMutex;
    VirtualDevice m_device; // m_deviceMutex
    // m_deviceMutex; what the device said and nobody was told yet: the newest of each kind
    std::vector<DeviceEvent> m_events;
    std::map<ConnectionId, std::string> m_sessions; // m_deviceMutex; of the entries
    std::optional<FrameCause> m_changeCause; // m_deviceMutex; the most urgent since the last update
    bool m_updatePosted = false; // m_deviceMutex; since the last update
    Audience m_audience; // m_deviceMutex; as of the last update
    // Kinds of input whose last one took the device long; set with m_deviceMutex.
    std::array<std::atomic<bool>, InputKinds> m_isSlowOver{};

    std::vector<std::unique_ptr<Entry>> m_entries; // strand
    std::vector<std::string> m_cameraSessions; // strand; asked to start the camera and not yet to stop
    ScreenPictures m_pictures; // strand; snapshot() m_deviceMutex
    std::uint64_t m_seenVersion = 0; // strand; of the device's picture, as the viewers know it
    boost::asio::steady_timer m_timer; // strand
    std::optional<TimePoint> m_timerAt; // strand; none = not running
};

} // namespace orvane::cloud
