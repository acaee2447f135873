#include "device/ArenaApp.h"

#include "device/ArenaScene.h"
#include "device/Theme.h"

#include <QJsonArray>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace orvane::cloud {

namespace {

constexpr auto FrameInterval = std::chrono::duration_cast<TimePoint::duration>(
    std::chrono::duration<double>(1.0 / ArenaApp::MaxFramesPerSecond));
constexpr int CompassReach = 70; // degrees to either side of the heading
constexpr qreal PixelsPerDegree = 2; // of the compass

double rounded(double value, int digits)
{
    const double factor = std::pow(10, digits);
    return std::round(value * factor) / factor;
}

qint64 microseconds(TimePoint time)
{
    return std::chrono::duration_cast<std::chrono::microseconds>(time.time_since_epoch()).count();
}

QColor plate()
{
    QColor colour(theme::Night);
    colour.setAlpha(140);
    return colour;
}

} // namespace

const char *ArenaApp::nameOf(TouchAction action)
{
    switch (action) {
    case TouchAction::Down:
        return "down";
    case TouchAction::Move:
        return "move";
    case TouchAction::Up:
        return "up";
    case TouchAction::Cancel:
        return "cancel";
    }
    return "";
}

void ArenaApp::layout()
{
    m_controls.layout(screen());
}

// --- Touches ---

void ArenaApp::remember(const Touch &touch)
{
    m_touches.push_back(touch);
    ++m_touchCount;
    if (m_touches.size() > MaxTouches) {
        m_touches.pop_front();
    }
}

void ArenaApp::touchDown(const Pointer &pointer)
{
    const std::optional<ArenaControl> control = m_controls.touchDown(pointer.id, pointer.position);
    remember({pointer.id, TouchAction::Down, pointer.position, pointer.time, control});
    if (control) {
        trigger(*control);
        changed(pointer.time);
    }
}

void ArenaApp::trigger(ArenaControl control)
{
    switch (control) {
    case ArenaControl::Joystick:
        m_world.push(m_controls.stick());
        break;
    case ArenaControl::Fire:
        m_world.fire();
        break;
    case ArenaControl::Jump:
        m_world.jump();
        break;
    case ArenaControl::Reload:
        m_world.reload();
        break;
    case ArenaControl::Look:
        break;
    }
}

void ArenaApp::touchMove(const Pointer &pointer)
{
    const std::optional<ArenaControl> control = m_controls.ownerOf(pointer.id);
    remember({pointer.id, TouchAction::Move, pointer.position, pointer.time, control});
    if (!control) {
        return;
    }
    const QPoint way = m_controls.touchMove(pointer.id, pointer.position);
    if (*control == ArenaControl::Joystick) {
        m_world.push(m_controls.stick());
    } else if (*control == ArenaControl::Look) {
        m_world.look(QPointF(way) * DegreesPerPixel);
        m_hasLooked = true;
    } else {
        return;
    }
    changed(pointer.time);
}

void ArenaApp::touchUp(const Pointer &pointer)
{
    remember({pointer.id, TouchAction::Up, pointer.position, pointer.time, m_controls.ownerOf(pointer.id)});
    release(pointer.id);
    changed(pointer.time);
}

void ArenaApp::touchCancel(int id)
{
    const auto isFinger = [id](const Touch &touch) { return touch.finger == id; };
    const auto last = std::find_if(m_touches.rbegin(), m_touches.rend(), isFinger);
    const QPoint position = last == m_touches.rend() ? QPoint() : last->position;
    const TimePoint now = m_worldTime.value_or(m_frameTime);
    remember({id, TouchAction::Cancel, position, now, m_controls.ownerOf(id)});
    release(id);
    changed(now);
}

void ArenaApp::release(int finger)
{
    const std::optional<ArenaControl> control = m_controls.ownerOf(finger);
    m_controls.release(finger);
    if (control == ArenaControl::Joystick) {
        m_world.push({});
    }
}

// --- Time ---

// Drawn now or, if that was only just done, with the next frame.
void ArenaApp::changed(TimePoint now)
{
    m_stale = true;
    if (now >= m_frameTime + FrameInterval) {
        m_stale = false;
        m_frameTime = now;
        invalidateAll();
    }
}

void ArenaApp::resume(TimePoint now)
{
    m_worldTime = now;
}

void ArenaApp::pause()
{
    m_worldTime.reset();
}

std::optional<TimePoint> ArenaApp::nextTick() const
{
    if (!m_worldTime || !isAnimated()) {
        return std::nullopt;
    }
    // A world in which nothing looks different, as at the edge of the field, is looked at as often.
    return (m_stale ? m_frameTime : std::max(m_frameTime, *m_worldTime)) + FrameInterval;
}

void ArenaApp::tick(TimePoint now)
{
    if (!m_worldTime) {
        return;
    }
    const std::chrono::duration<double> passed = now - *m_worldTime;
    m_worldTime = std::max(now, *m_worldTime);
    const bool moved = m_world.advance(passed.count());
    if (moved || m_stale) {
        changed(now);
    }
}

// --- Screen ---

void ArenaApp::draw(QPainter &painter, const QRect &)
{
    ArenaScene(m_world, screen()).draw(painter);
    drawHud(painter);
    m_controls.draw(painter, !m_hasLooked);
}

void ArenaApp::drawHud(QPainter &painter) const
{
    const int top = theme::StatusBarHeight + 18;
    theme::drawPill(painter, QRectF(theme::Margin, top, 150, 52), plate(), QColor(theme::Paper),
        QStringLiteral("Hits %1").arg(m_world.hits()));
    const bool empty = m_world.ammunition() == 0;
    theme::drawPill(painter, QRectF(screen().width() - theme::Margin - 150, top, 150, 52),
        empty ? QColor(theme::Coral) : plate(), QColor(empty ? theme::Night : theme::Paper),
        empty ? QStringLiteral("Reload!")
              : QStringLiteral("%1 / %2").arg(m_world.ammunition()).arg(ArenaWorld::MagazineSize));
    drawCompass(painter);
}

void ArenaApp::drawCompass(QPainter &painter) const
{
    const QRectF strip(screen().width() / 2.0 - CompassReach * PixelsPerDegree - 10,
        theme::StatusBarHeight + 18, 2 * (CompassReach * PixelsPerDegree + 10), 52);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plate());
    painter.drawRoundedRect(strip, 26, 26);
    constexpr int Mark = 15; // degrees between marks
    const std::array<const char *, 4> names{"N", "E", "S", "W"};
    for (int azimuth = 0; azimuth < 360; azimuth += Mark) {
        const double aside = std::remainder(azimuth - m_world.heading(), 360);
        if (std::abs(aside) > CompassReach - 4) {
            continue;
        }
        const qreal x = strip.center().x() + aside * PixelsPerDegree;
        if (azimuth % 90 == 0) {
            theme::drawLine(painter, QRectF(x - 20, strip.top(), 40, strip.height()), Qt::AlignHCenter,
                theme::font(24, true), QColor(azimuth == 0 ? theme::Coral : theme::Paper),
                QString::fromLatin1(names.at(static_cast<std::size_t>(azimuth) / 90)));
        } else {
            painter.setPen(QPen(QColor(255, 255, 255, 130), 2));
            painter.drawLine(QPointF(x, strip.center().y() - 6), QPointF(x, strip.center().y() + 6));
        }
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(theme::Cyan));
    const QPointF tip(strip.center().x(), strip.top() + 10);
    painter.drawPolygon(QPolygonF() << tip << tip + QPointF(-7, -10) << tip + QPointF(7, -10));
}

// --- State ---

void ArenaApp::describe(QJsonObject &state) const
{
    const ArenaPoint figure = m_world.figure();
    state.insert(QStringLiteral("position"), QJsonArray{rounded(figure.east, 3), rounded(figure.north, 3)});
    state.insert(QStringLiteral("heading"), rounded(m_world.heading(), 2));
    state.insert(QStringLiteral("pitch"), rounded(m_world.pitch(), 2));
    state.insert(QStringLiteral("walking"), !m_world.stick().isNull());
    state.insert(QStringLiteral("inAir"), m_world.isInAir());
    state.insert(QStringLiteral("shots"), m_world.shots());
    state.insert(QStringLiteral("hits"), m_world.hits());
    state.insert(QStringLiteral("ammunition"), m_world.ammunition());
    state.insert(QStringLiteral("reloads"), m_world.reloads());
    state.insert(QStringLiteral("jumps"), m_world.jumps());
    state.insert(QStringLiteral("targetInSight"), m_world.isTargetInSight());
    m_controls.describe(state);
    state.insert(QStringLiteral("touches"), touchList());
    state.insert(QStringLiteral("touchCount"), static_cast<qint64>(m_touchCount));
}

QJsonArray ArenaApp::touchList() const
{
    QJsonArray list;
    for (const Touch &touch : m_touches) {
        list.append(QJsonObject{{QStringLiteral("finger"), touch.finger},
            {QStringLiteral("action"), QLatin1String(nameOf(touch.action))},
            {QStringLiteral("x"), touch.position.x()}, {QStringLiteral("y"), touch.position.y()},
            {QStringLiteral("time_us"), microseconds(touch.time)},
            {QStringLiteral("control"), touch.control ? arenaControlName(*touch.control) : QString()}});
    }
    return list;
}

} // namespace orvane::cloud
