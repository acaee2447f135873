#pragma once

#include "device/App.h"
#include "device/ArenaControls.h"
#include "device/ArenaWorld.h"

#include <cstdint>
#include <deque>

namespace orvane::cloud {

// A game that is made for several fingers at once: a joystick walks, dragging in the look zone turns the
// view, and buttons fire, jump and reload. It remembers every touch that it saw, for whoever wants to know
// what a key mapping sent.
//
// The world stands still, and nothing is drawn, while nobody walks and nothing flies. It is drawn at most
// MaxFramesPerSecond times a second, however fast fingers move. Used by the device's thread, owned by the
// shell.
class ArenaApp : public App
{
public:
    static constexpr int MaxFramesPerSecond = 60;
    static constexpr std::size_t MaxTouches = 2000; // that are remembered
    static constexpr double DegreesPerPixel = 0.2; // that dragging turns the view

    using App::App;

    void draw(QPainter &painter, const QRect &clip) override;
    bool isDark() const override { return true; }
    void describe(QJsonObject &state) const override;
    void touchDown(const Pointer &pointer) override;
    void touchMove(const Pointer &pointer) override;
    void touchUp(const Pointer &pointer) override;
    void touchCancel(int id) override;
    bool isAnimated() const override { return m_stale || m_world.isMoving(); }
    void resume(TimePoint now) override;
    void pause() override;
    std::optional<TimePoint> nextTick() const override;
    void tick(TimePoint now) override;

protected:
    void layout() override;

private:
    // What the log calls the four things that a finger does.
    enum class TouchAction {
        Down,
        Move,
        Up,
        Cancel,
    };
    struct Touch
    {
        int finger;
        TouchAction action;
        QPoint position; // pixels of the screen as it is held
        TimePoint time;
        std::optional<ArenaControl> control; // whose finger it is
    };

    static const char *nameOf(TouchAction action);

    void remember(const Touch &touch);
    void trigger(ArenaControl control);
    void release(int finger);
    void changed(TimePoint now);
    void drawHud(QPainter &painter) const;
    void drawCompass(QPainter &painter) const;
    QJsonArray touchList() const;

    ArenaWorld m_world;
    ArenaControls m_controls;
    std::deque<Touch> m_touches; // the newest, oldest first
    std::uint64_t m_touchCount = 0; // of all
    bool m_hasLooked = false;
    bool m_stale = false; // the screen does not show the present state yet
    std::optional<TimePoint> m_worldTime; // until when the world has moved; none while paused
    TimePoint m_frameTime{}; // of the last drawing
};

} // namespace orvane::cloud
