#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane::cloud {

enum class DeviceState {
    Online,
    Booting, // restart under way; sessions stay connected and see the boot screen
};

// One input event as a virtual device received it, for tests and the admin API.
struct InputRecord
{
    std::uint64_t sequence = 0; // counts up from 1 per device
    std::int64_t timeUs = 0; // service clock (steady), microseconds
    std::string sessionId;
    std::string json; // {"type":"touch","action":0,"points":[[x,y],…]} | {"type":"key","action":1,"code":30,
                      // "shift":true} | {"type":"text","text":"…"} |
                      // {"type":"picture","bytes":n,"width":w,"height":h} | {"type":"audio","bytes":n}
};

// What the gateway measured about one connected session.
struct SessionStats
{
    std::string sessionId;
    std::string padCode;
    std::uint64_t bytesSent = 0;
    std::uint64_t framesSent = 0;
    std::uint64_t framesDropped = 0;
    int levelRow = -1; // row in effect, -1 for a custom level
    bool automatic = false;
    int castMode = 0;
};

// Virtual devices together with the gateway that streams them, as the HTTP API sees them. Implemented by
// gateway/; every operation may be called from any thread and returns at once. A pad code names a device.
class DeviceFleet
{
public:
    virtual ~DeviceFleet() = default;

    // Address that clients connect to, as handed out by device_apply.
    virtual std::string controlIp() const = 0;
    virtual std::uint16_t controlPort() const = 0;

    virtual bool contains(const std::string &padCode) const = 0;
    virtual DeviceState state(const std::string &padCode) const = 0;
    // Restarts the device: boot screen for a moment, then the launcher. False when there is no such device.
    virtual bool reboot(const std::string &padCode) = 0;
    // Ends the connections of a session that was given back (SessionEnd CLOSED) or whose time is over
    // (EXPIRED).
    virtual void endSession(const std::string &sessionId, bool expired) = 0;
    // Picture of the screen as PNG bytes; longest side at most `maxSide` pixels. Empty for an unknown device.
    virtual std::string screenPng(const std::string &padCode, int maxSide) = 0;
    // Counts up whenever the screen's picture changes; equal values mean an unchanged picture for as long as
    // the process runs. 0 for an unknown device.
    virtual std::uint64_t screenVersion(const std::string &padCode) const = 0;

    // For tests, through /admin/.
    virtual std::vector<InputRecord> inputsSince(
        const std::string &padCode, std::uint64_t sequence) const = 0;
    virtual bool openApp(const std::string &padCode, const std::string &app)
        = 0; // "Home", "Paint", "Notes", …
    // Pictures a second that the device's Video app shows, 1 to 25. False when there is no such device.
    virtual bool setFilmRate(const std::string &padCode, int picturesPerSecond) = 0;
    virtual bool rotate(const std::string &padCode, int rotation) = 0; // 0 to 3
    virtual bool requestCamera(const std::string &padCode, bool on) = 0;
    // What the app in front shows, as JSON: {"app":"Notes","text":"…"}, {"app":"Paint","fingers":2,…}.
    virtual std::string appStateJson(const std::string &padCode) const = 0;
    // Empty pad code = every connection of the gateway.
    virtual int cutConnections(const std::string &padCode)
        = 0; // closes the sockets at once; returns how many
    virtual int stallConnections(const std::string &padCode, std::chrono::milliseconds duration)
        = 0; // neither reads nor writes
    virtual void limitBandwidth(const std::string &padCode, int kbitPerSec) = 0; // 0 = no limit
    // Replaces the next `count` access units that are sent by damaged ones.
    virtual int corruptVideo(const std::string &padCode, int count) = 0;
    virtual std::vector<SessionStats> stats() const = 0;
};

} // namespace orvane::cloud
