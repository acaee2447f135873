#pragma once

#include "device/VirtualDevice.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace orvane::cloud {

// A device with a clock in the test's hand.
class DeviceFixture : public testing::Test
{
protected:
    using Points = std::vector<std::pair<int, int>>;

    static constexpr int Down = 0;
    static constexpr int Up = 1;
    static constexpr int Move = 2;

    void touch(int action, const Points &points, const std::string &session = "one")
    {
        std::vector<TouchPoint> list;
        for (const auto &[x, y] : points) {
            list.push_back({x, y, 1});
        }
        device.touch(session, action, list, now);
    }
    void tap(int x, int y)
    {
        touch(Down, {{x, y}});
        touch(Up, {{-1, -1}});
    }
    // The same at a place of the screen as it is held.
    std::pair<int, int> onFrame(int x, int y) const
    {
        return device.rotation() % 2 == 0 ? std::pair(x, y) : std::pair(719 - y, x);
    }
    void tapHeld(int x, int y)
    {
        const auto [frameX, frameY] = onFrame(x, y);
        tap(frameX, frameY);
    }
    // Of an app on the home screen.
    void tapIcon(const char *name)
    {
        const QJsonArray centre = state()["icons"].toObject()[QLatin1String(name)].toArray();
        ASSERT_EQ(centre.size(), 2) << name;
        tapHeld(centre[0].toInt(), centre[1].toInt());
    }
    void click(int code, bool shift = false) { device.key("one", 3, code, shift, now); }
    void type(const std::string &utf8) { device.text("one", utf8, now); }
    // Lets time pass and ticks as often as the device wants it.
    void pass(std::chrono::milliseconds duration)
    {
        const auto end = now + duration;
        for (auto next = device.nextTick(); next && *next <= end; next = device.nextTick()) {
            now = std::max(now, *next);
            device.tick(now);
            ++ticks;
        }
        now = end;
    }
    QJsonObject state() const
    {
        return QJsonDocument::fromJson(QByteArray::fromStdString(device.appStateJson())).object();
    }
    QString app() const { return state()["app"].toString(); }
    QString noteText() const { return state()["text"].toString(); }
    int number(const char *member) const { return state()[QLatin1String(member)].toInt(-1); }

    QDateTime wallTime{QDate(2026, 11, 21), QTime(9, 41)};
    VirtualDevice device{"VM100001", "Aurora", [this] { return wallTime; }};
    VirtualDevice::TimePoint now{std::chrono::hours(5)};
    int ticks = 0;
};

} // namespace orvane::cloud
