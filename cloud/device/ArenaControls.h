#pragma once

#include <QJsonObject>
#include <QPointF>
#include <QRect>

#include <array>
#include <optional>

class QPainter;

namespace orvane::cloud {

// What a finger can work in the game Arena.
enum class ArenaControl {
    Joystick,
    Look,
    Fire,
    Jump,
    Reload,
};
inline constexpr std::array ArenaControlList{
    ArenaControl::Joystick, ArenaControl::Look, ArenaControl::Fire, ArenaControl::Jump, ArenaControl::Reload};

// Name in the state, such as "joystick".
QString arenaControlName(ArenaControl control);

// The controls on the screen of the game Arena. A finger belongs to the control that it went down on until it
// leaves the screen, wherever it moves; each control has one finger at most and ignores others. Used by the
// device's thread, part of ArenaApp.
class ArenaControls
{
public:
    // How far the stick is pushed when it is pushed all the way; more counts as much.
    static constexpr int StickTravel = 100; // pixels
    static constexpr int StickDeadZone = 8; // pixels

    void layout(QSize screen);

    // The control that now has the finger; none if there is no free one at the position.
    std::optional<ArenaControl> touchDown(int finger, QPoint position);
    std::optional<ArenaControl> ownerOf(int finger) const;
    // Where the finger has moved since the last call; its control must own it.
    QPoint touchMove(int finger, QPoint position);
    void release(int finger);

    bool isHeld(ArenaControl control) const { return part(control).finger != 0; }
    // How far the stick is pushed: right and down, 1 = all the way. At most 1 long; (0, 0) in the dead zone.
    QPointF stick() const;
    QPoint centre(ArenaControl control) const { return part(control).area.center(); }

    // `controls` with their centres and sizes in pixels, `held` with the finger of each that has one.
    void describe(QJsonObject &state) const;
    // `showHint`: how to look around is told.
    void draw(QPainter &painter, bool showHint) const;

private:
    struct Part
    {
        QRect area; // all but Look are round
        int finger = 0; // 0 = none
        QPoint position; // of the finger
    };

    const Part &part(ArenaControl control) const { return m_parts.at(static_cast<std::size_t>(control)); }
    Part &part(ArenaControl control) { return m_parts.at(static_cast<std::size_t>(control)); }
    bool covers(ArenaControl control, QPoint position) const;
    void drawJoystick(QPainter &painter) const;
    void drawLookZone(QPainter &painter, bool showHint) const;
    void drawButton(QPainter &painter, ArenaControl control) const;

    std::array<Part, ArenaControlList.size()> m_parts;
};

} // namespace orvane::cloud
