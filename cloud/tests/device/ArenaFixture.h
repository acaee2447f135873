#pragma once

#include "DeviceFixture.h"

#include <map>
#include <set>

namespace orvane::cloud {

// The game Arena in front, worked through its controls' places.
class ArenaFixture : public DeviceFixture
{
protected:
    using Point = std::pair<int, int>;

    void SetUp() override { enter(0); }
    void enter(int rotation)
    {
        device.setRotation(rotation);
        ASSERT_TRUE(device.openApp("Arena"));
        device.tick(now);
        device.takeDirty();
    }
    // On the frame, so many pixels right of and below the control's middle as the screen is held.
    Point at(const char *control, int x = 0, int y = 0) const
    {
        const QJsonObject place = state()["controls"].toObject()[QLatin1String(control)].toObject();
        EXPECT_FALSE(place.isEmpty()) << control;
        return onFrame(place["x"].toInt() + x, place["y"].toInt() + y);
    }
    void press(const char *control)
    {
        touch(Down, {at(control)});
        touch(Up, {{-1, -1}});
    }
    double value(const char *member) const { return state()[QLatin1String(member)].toDouble(-1e9); }
    double east() const { return state()["position"].toArray()[0].toDouble(); }
    double north() const { return state()["position"].toArray()[1].toDouble(); }
    QJsonObject held() const { return state()["held"].toObject(); }
    QJsonArray touches() const { return state()["touches"].toArray(); }
    // The log as lines such as "1 down fire 560,930".
    std::vector<std::string> lines() const
    {
        std::vector<std::string> lines;
        for (const QJsonValue entry : touches()) {
            const QJsonObject touch = entry.toObject();
            const QString control = touch["control"].toString();
            lines.push_back(QStringLiteral("%1 %2 %3 %4,%5")
                                .arg(touch["finger"].toInt())
                                .arg(touch["action"].toString(), control.isEmpty() ? "-" : control)
                                .arg(touch["x"].toInt())
                                .arg(touch["y"].toInt())
                                .toStdString());
        }
        return lines;
    }
    // Ticks as often as the device wants it and takes every picture; how many there were.
    int framesDuring(std::chrono::milliseconds duration)
    {
        const auto end = now + duration;
        int frames = 0;
        for (auto next = device.nextTick(); next && *next <= end; next = device.nextTick()) {
            now = std::max(now, *next);
            device.tick(now);
            frames += device.takeDirty().isEmpty() ? 0 : 1;
        }
        now = end;
        return frames;
    }
};

} // namespace orvane::cloud
