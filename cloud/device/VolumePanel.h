#pragma once

#include "device/App.h"

#include <optional>

namespace orvane::cloud {

// The media volume and the panel that shows it for a moment after a volume key. Used by the device's thread,
// part of the shell, which invalidates area() after every change.
class VolumePanel
{
public:
    static constexpr int MaxLevel = 15;

    int level() const { return m_level; } // 0 to MaxLevel
    // One step up or down; shows the panel.
    void step(int direction, TimePoint now);
    void hide() { m_hideAt.reset(); }
    bool isVisible() const { return m_hideAt.has_value(); }
    std::optional<TimePoint> hideAt() const { return m_hideAt; }
    QRect area(QSize screen) const;
    void draw(QPainter &painter, QSize screen) const;

private:
    int m_level = 8;
    std::optional<TimePoint> m_hideAt;
};

} // namespace orvane::cloud
