#pragma once

#include "device/App.h"

#include <optional>

namespace orvane::cloud {

// What a restarting device shows. Used by the device's thread, part of the shell.
class BootScreen
{
public:
    static constexpr std::chrono::milliseconds Duration{2000};

    void start(TimePoint now);
    bool isActive() const { return m_start.has_value(); }
    // Part of the screen that moves.
    QRect animatedArea(QSize screen) const;
    // While active.
    TimePoint nextTick() const { return m_nextTick; }
    // Moves on to `now`; ends the boot when its time is over. Returns whether something changed.
    bool tick(TimePoint now);
    void draw(QPainter &painter, QSize screen, const QRect &clip) const;

private:
    std::optional<TimePoint> m_start; // none = not booting
    TimePoint m_nextTick;
    double m_progress = 0; // 0 to 1
};

} // namespace orvane::cloud
