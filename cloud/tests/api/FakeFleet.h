#pragma once

#include "core/DeviceFleet.h"

#include <atomic>
#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace orvane::cloud::test {

// A fleet without devices or gateway: remembers what the API asked of it and answers with what the test put
// in. Any thread.
class FakeFleet : public DeviceFleet
{
public:
    struct EndedSession
    {
        std::string sessionId;
        bool expired;
        bool operator==(const EndedSession &other) const
        {
            return sessionId == other.sessionId && expired == other.expired;
        }
    };
    struct FakeDevice
    {
        DeviceState state = DeviceState::Online;
        std::uint64_t screenVersion = 1;
        std::string app = "Home";
        std::vector<InputRecord> inputs;
        int reboots = 0;
        int rotation = 0;
        int filmRate = 25;
        bool camera = false;
    };

    explicit FakeFleet(const std::vector<std::string> &padCodes);

    // For the test.
    FakeDevice device(const std::string &padCode) const;
    void setDevice(const std::string &padCode, const FakeDevice &device);
    void removeDevice(const std::string &padCode);
    void setStats(std::vector<SessionStats> stats);
    std::vector<EndedSession> endedSessions() const;
    // Waits until so many sessions have been ended; false after 10 s.
    bool waitForEndedSessions(std::size_t count);
    std::vector<std::string> calls() const; // of the operations on connections, as text
    std::vector<int> pictureSides() const; // maxSide of the screenPng() calls

    std::string controlIp() const override { return "127.0.0.1"; }
    std::uint16_t controlPort() const override { return 8181; }
    bool contains(const std::string &padCode) const override;
    DeviceState state(const std::string &padCode) const override;
    bool reboot(const std::string &padCode) override;
    void endSession(const std::string &sessionId, bool expired) override;
    std::string screenPng(const std::string &padCode, int maxSide) override;
    std::uint64_t screenVersion(const std::string &padCode) const override;
    std::vector<InputRecord> inputsSince(const std::string &padCode, std::uint64_t sequence) const override;
    bool openApp(const std::string &padCode, const std::string &app) override;
    bool setFilmRate(const std::string &padCode, int picturesPerSecond) override;
    bool rotate(const std::string &padCode, int rotation) override;
    bool requestCamera(const std::string &padCode, bool on) override;
    std::string appStateJson(const std::string &padCode) const override;
    int cutConnections(const std::string &padCode) override;
    int stallConnections(const std::string &padCode, std::chrono::milliseconds duration) override;
    void limitBandwidth(const std::string &padCode, int kbitPerSec) override;
    int corruptVideo(const std::string &padCode, int count) override;
    std::vector<SessionStats> stats() const override;

private:
    void remember(const std::string &call);

    mutable std::mutex m_mutex; // guards all below
    std::condition_variable m_sessionEnded;
    std::map<std::string, FakeDevice> m_devices;
    std::vector<EndedSession> m_ended;
    std::vector<std::string> m_calls;
    std::vector<int> m_pictureSides;
    std::vector<SessionStats> m_stats;
};

} // namespace orvane::cloud::test
