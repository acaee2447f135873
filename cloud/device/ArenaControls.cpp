#include "device/ArenaControls.h"

#include "device/Theme.h"

#include <QJsonArray>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace orvane::cloud {

namespace {

// Where the controls are, in pixels of the screen as it is held. The service's demo schemes put their keys
// on these places.
struct Places
{
    QPoint joystick;
    QPoint fire;
    QPoint jump;
    QPoint reload;
    QRect look;
};
constexpr Places PortraitPlaces{{190, 990}, {560, 930}, {440, 1080}, {610, 1105}, {24, 140, 673, 661}};
constexpr Places LandscapePlaces{{200, 450}, {1120, 400}, {960, 520}, {1150, 560}, {420, 120, 837, 501}};

constexpr int JoystickRadius = 160; // of the zone that takes a finger
constexpr int FireRadius = 84;
constexpr int ButtonRadius = 62;
constexpr qreal StickRing = 118; // pixels, radius of what is drawn
constexpr qreal KnobRadius = 50;
constexpr int CornerLength = 34; // of the look zone's corner marks

QRect around(QPoint centre, int radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius + 1, 2 * radius + 1};
}

QColor withAlpha(QRgb colour, int alpha)
{
    QColor result(colour);
    result.setAlpha(alpha);
    return result;
}

// Icons are drawn around the origin, about 60 pixels wide.

void drawFireIcon(QPainter &painter)
{
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(0, 0), 24, 24);
    for (int side = 0; side < 4; ++side) {
        painter.drawLine(QPointF(0, -36), QPointF(0, -14));
        painter.rotate(90);
    }
    painter.drawPoint(QPointF(0, 0));
}

void drawJumpIcon(QPainter &painter)
{
    for (const int y : {-16, 4}) {
        painter.drawPolyline(QPolygonF() << QPointF(-18, y + 16) << QPointF(0, y) << QPointF(18, y + 16));
    }
}

// Most of a circle, clockwise, with an arrow at its end.
void drawReloadIcon(QPainter &painter)
{
    constexpr qreal Radius = 22;
    constexpr int End = 30; // degrees from the right, upwards
    constexpr int Span = 285;
    constexpr qreal Barb = 15;
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(-Radius, -Radius, 2 * Radius, 2 * Radius), End * 16, Span * 16);
    const qreal angle = qDegreesToRadians(static_cast<qreal>(End));
    painter.save();
    painter.translate(Radius * std::cos(angle), -Radius * std::sin(angle));
    painter.rotate(90 - End + 8); // the way the circle runs there
    painter.drawPolyline(
        QPolygonF() << QPointF(-Barb, -Barb * 0.75) << QPointF(0, 0) << QPointF(-Barb, Barb * 0.75));
    painter.restore();
}

} // namespace

QString arenaControlName(ArenaControl control)
{
    switch (control) {
    case ArenaControl::Joystick:
        return QStringLiteral("joystick");
    case ArenaControl::Look:
        return QStringLiteral("look");
    case ArenaControl::Fire:
        return QStringLiteral("fire");
    case ArenaControl::Jump:
        return QStringLiteral("jump");
    case ArenaControl::Reload:
        return QStringLiteral("reload");
    }
    return {};
}

void ArenaControls::layout(QSize screen)
{
    const Places &places = screen.width() > screen.height() ? LandscapePlaces : PortraitPlaces;
    part(ArenaControl::Joystick).area = around(places.joystick, JoystickRadius);
    part(ArenaControl::Look).area = places.look;
    part(ArenaControl::Fire).area = around(places.fire, FireRadius);
    part(ArenaControl::Jump).area = around(places.jump, ButtonRadius);
    part(ArenaControl::Reload).area = around(places.reload, ButtonRadius);
}

bool ArenaControls::covers(ArenaControl control, QPoint position) const
{
    const QRect area = part(control).area;
    if (control == ArenaControl::Look) {
        return area.contains(position);
    }
    const QPoint way = position - area.center();
    const int radius = area.width() / 2;
    return QPoint::dotProduct(way, way) <= radius * radius;
}

std::optional<ArenaControl> ArenaControls::touchDown(int finger, QPoint position)
{
    // Buttons lie over the look zone.
    for (const ArenaControl control : {ArenaControl::Fire, ArenaControl::Jump, ArenaControl::Reload,
             ArenaControl::Joystick, ArenaControl::Look}) {
        if (!covers(control, position)) {
            continue;
        }
        Part &taken = part(control);
        if (taken.finger != 0) {
            return std::nullopt;
        }
        taken.finger = finger;
        taken.position = position;
        return control;
    }
    return std::nullopt;
}

std::optional<ArenaControl> ArenaControls::ownerOf(int finger) const
{
    for (const ArenaControl control : ArenaControlList) {
        if (part(control).finger == finger) {
            return control;
        }
    }
    return std::nullopt;
}

QPoint ArenaControls::touchMove(int finger, QPoint position)
{
    Part &moved = part(ownerOf(finger).value());
    const QPoint way = position - moved.position;
    moved.position = position;
    return way;
}

void ArenaControls::release(int finger)
{
    if (const auto owner = ownerOf(finger)) {
        part(*owner).finger = 0;
    }
}

QPointF ArenaControls::stick() const
{
    const Part &joystick = part(ArenaControl::Joystick);
    if (joystick.finger == 0) {
        return {};
    }
    const QPointF way = joystick.position - joystick.area.center();
    const qreal length = std::hypot(way.x(), way.y());
    return length <= StickDeadZone ? QPointF() : way / std::max<qreal>(length, StickTravel);
}

void ArenaControls::describe(QJsonObject &state) const
{
    QJsonObject controls;
    QJsonObject held;
    for (const ArenaControl control : ArenaControlList) {
        const QRect area = part(control).area;
        QJsonObject place{{QStringLiteral("x"), area.center().x()}, {QStringLiteral("y"), area.center().y()}};
        if (control == ArenaControl::Look) {
            place.insert(QStringLiteral("width"), area.width());
            place.insert(QStringLiteral("height"), area.height());
        } else {
            place.insert(QStringLiteral("radius"), area.width() / 2);
        }
        controls.insert(arenaControlName(control), place);
        if (isHeld(control)) {
            held.insert(arenaControlName(control), part(control).finger);
        }
    }
    state.insert(QStringLiteral("controls"), controls);
    state.insert(QStringLiteral("held"), held);
}

void ArenaControls::draw(QPainter &painter, bool showHint) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    drawLookZone(painter, showHint);
    drawJoystick(painter);
    for (const ArenaControl control : {ArenaControl::Fire, ArenaControl::Jump, ArenaControl::Reload}) {
        drawButton(painter, control);
    }
}

void ArenaControls::drawLookZone(QPainter &painter, bool showHint) const
{
    const QRectF area(part(ArenaControl::Look).area);
    const bool held = isHeld(ArenaControl::Look);
    painter.setPen(QPen(withAlpha(held ? theme::Cyan : theme::Paper, held ? 200 : 70), 3, Qt::SolidLine,
        Qt::RoundCap, Qt::RoundJoin));
    for (const bool right : {false, true}) {
        for (const bool bottom : {false, true}) {
            const QPointF corner(right ? area.right() : area.left(), bottom ? area.bottom() : area.top());
            const QPointF across(right ? -CornerLength : CornerLength, 0);
            const QPointF along(0, bottom ? -CornerLength : CornerLength);
            painter.drawPolyline(QPolygonF() << corner + across << corner << corner + along);
        }
    }
    if (showHint) {
        theme::drawLine(painter, QRectF(area.left(), area.top() + 14, area.width(), 40), Qt::AlignHCenter,
            theme::font(24), withAlpha(theme::Paper, 190), QStringLiteral("Drag to look around"));
    }
}

void ArenaControls::drawJoystick(QPainter &painter) const
{
    const QPointF middle(centre(ArenaControl::Joystick));
    const bool held = isHeld(ArenaControl::Joystick);
    painter.setPen(QPen(withAlpha(theme::Paper, held ? 190 : 110), 3));
    painter.setBrush(withAlpha(theme::Night, held ? 110 : 80));
    painter.drawEllipse(middle, StickRing, StickRing);
    painter.setPen(QPen(withAlpha(theme::Paper, 150), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.save();
    painter.translate(middle);
    for (int side = 0; side < 4; ++side) {
        const qreal top = -StickRing + 16;
        painter.drawPolyline(
            QPolygonF() << QPointF(-10, top + 10) << QPointF(0, top) << QPointF(10, top + 10));
        painter.rotate(90);
    }
    painter.restore();
    const QPointF knob = middle + stick() * (StickRing - KnobRadius + 18);
    painter.setPen(QPen(withAlpha(theme::Paper, 220), 3));
    painter.setBrush(withAlpha(theme::Coral, held ? 255 : 200));
    painter.drawEllipse(knob, KnobRadius, KnobRadius);
}

void ArenaControls::drawButton(QPainter &painter, ArenaControl control) const
{
    const QPointF middle(centre(control));
    const bool held = isHeld(control);
    const qreal radius = part(control).area.width() / 2.0 - (held ? 5 : 0);
    const QRgb colour = control == ArenaControl::Fire ? theme::Coral : theme::Cyan;
    painter.setPen(QPen(withAlpha(held ? theme::Paper : colour, 220), 4));
    painter.setBrush(held ? withAlpha(colour, 230) : withAlpha(theme::Night, 120));
    painter.drawEllipse(middle, radius, radius);
    painter.save();
    painter.translate(middle);
    if (control == ArenaControl::Fire) {
        painter.scale(1.2, 1.2);
    }
    painter.setPen(QPen(QColor(theme::Paper), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (control) {
    case ArenaControl::Fire:
        drawFireIcon(painter);
        break;
    case ArenaControl::Jump:
        drawJumpIcon(painter);
        break;
    default:
        drawReloadIcon(painter);
    }
    painter.restore();
}

} // namespace orvane::cloud
