#include "FakeFleet.h"

#include <algorithm>

namespace orvane::cloud::test {

FakeFleet::FakeFleet(const std::vector<std::string> &padCodes)
{
    for (const std::string &padCode : padCodes)
        m_devices[padCode];
}

FakeFleet::FakeDevice FakeFleet::device(const std::string &padCode) const
{
    const std::lock_guard lock(m_mutex);
    return m_devices.at(padCode);
}

void FakeFleet::setDevice(const std::string &padCode, const FakeDevice &device)
{
    const std::lock_guard lock(m_mutex);
    m_devices[padCode] = device;
}

void FakeFleet::removeDevice(const std::string &padCode)
{
    const std::lock_guard lock(m_mutex);
    m_devices.erase(padCode);
}

void FakeFleet::setStats(std::vector<SessionStats> stats)
{
    const std::lock_guard lock(m_mutex);
    m_stats = std::move(stats);
}

std::vector<FakeFleet::EndedSession> FakeFleet::endedSessions() const
{
    const std::lock_guard lock(m_mutex);
    return m_ended;
}

bool FakeFleet::waitForEndedSessions(std::size_t count)
{
    std::unique_lock lock(m_mutex);
    return m_sessionEnded.wait_for(lock, std::chrono::seconds(10), [&] { return m_ended.size() >= count; });
}

std::vector<std::string> FakeFleet::calls() const
{
    const std::lock_guard lock(m_mutex);
    return m_calls;
}

std::vector<int> FakeFleet::pictureSides() const
{
    const std::lock_guard lock(m_mutex);
    return m_pictureSides;
}

bool FakeFleet::contains(const std::string &padCode) const
{
    const std::lock_guard lock(m_mutex);
    return m_devices.count(padCode) > 0;
}

DeviceState FakeFleet::state(const std::string &padCode) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_devices.find(padCode);
    return found == m_devices.end() ? DeviceState::Online : found->second.state;
}

bool FakeFleet::reboot(const std::string &padCode)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_devices.find(padCode);
    if (found == m_devices.end())
        return false;
    ++found->second.reboots;
    return true;
}

void FakeFleet::endSession(const std::string &sessionId, bool expired)
{
    const std::lock_guard lock(m_mutex);
    m_ended.push_back({sessionId, expired});
    m_sessionEnded.notify_all();
}

std::string FakeFleet::screenPng(const std::string &padCode, int maxSide)
{
    const std::lock_guard lock(m_mutex);
    m_pictureSides.push_back(maxSide);
    return m_devices.count(padCode) ? "\x89PNG of " + padCode : std::string();
}

std::uint64_t FakeFleet::screenVersion(const std::string &padCode) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_devices.find(padCode);
    return found == m_devices.end() ? 0 : found->second.screenVersion;
}

std::vector<InputRecord> FakeFleet::inputsSince(const std::string &padCode, std::uint64_t sequence) const
{
    const std::lock_guard lock(m_mutex);
    std::vector<InputRecord> newer;
    for (const InputRecord &record : m_devices.at(padCode).inputs)
        if (record.sequence > sequence)
            newer.push_back(record);
    return newer;
}

bool FakeFleet::openApp(const std::string &padCode, const std::string &app)
{
    const std::lock_guard lock(m_mutex);
    if (app != "Home" && app != "Paint")
        return false;
    m_devices.at(padCode).app = app;
    return true;
}

bool FakeFleet::setFilmRate(const std::string &padCode, int picturesPerSecond)
{
    const std::lock_guard lock(m_mutex);
    m_devices.at(padCode).filmRate = picturesPerSecond;
    return true;
}

bool FakeFleet::rotate(const std::string &padCode, int rotation)
{
    const std::lock_guard lock(m_mutex);
    m_devices.at(padCode).rotation = rotation;
    return true;
}

bool FakeFleet::requestCamera(const std::string &padCode, bool on)
{
    const std::lock_guard lock(m_mutex);
    m_devices.at(padCode).camera = on;
    return true;
}

std::string FakeFleet::appStateJson(const std::string &padCode) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_devices.find(padCode);
    return found == m_devices.end() ? std::string() : R"({"app":")" + found->second.app + R"(","fingers":2})";
}

void FakeFleet::remember(const std::string &call)
{
    const std::lock_guard lock(m_mutex);
    m_calls.push_back(call);
}

int FakeFleet::cutConnections(const std::string &padCode)
{
    remember("cut '" + padCode + "'");
    return 3;
}

int FakeFleet::stallConnections(const std::string &padCode, std::chrono::milliseconds duration)
{
    remember("stall '" + padCode + "' " + std::to_string(duration.count()));
    return 2;
}

void FakeFleet::limitBandwidth(const std::string &padCode, int kbitPerSec)
{
    remember("bandwidth '" + padCode + "' " + std::to_string(kbitPerSec));
}

int FakeFleet::corruptVideo(const std::string &padCode, int count)
{
    remember("corrupt '" + padCode + "' " + std::to_string(count));
    return 1;
}

std::vector<SessionStats> FakeFleet::stats() const
{
    const std::lock_guard lock(m_mutex);
    return m_stats;
}

} // namespace orvane::cloud::test
