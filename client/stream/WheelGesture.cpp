#include "stream/WheelGesture.h"

#include <cmath>
#include <cstdlib>

namespace {

constexpr double NotchShare = 0.1; // of the remote height that one notch drags over
constexpr double StepShare = 0.25; // of a notch that the finger moves at a time
constexpr int StepsPerNotch = 4; // the inverse of StepShare
constexpr int NotchAngle = 120; // eighths of a degree
constexpr int JumpDistance = 25; // remote pixels below which the finger goes straight to its target

int stepLength(const QSize &remote)
{
    return static_cast<int>(remote.height() * NotchShare * StepShare);
}

// Halves are rounded upward, also negative ones.
int notchesToPixels(int unit, int angle)
{
    return static_cast<int>(std::floor(static_cast<double>(unit) * angle / NotchAngle + 0.5));
}

// One axis of a step. On very high screens a step may be so long that it would swing about the target for
// ever: what does not come nearer goes there at once.
int advanced(int current, int target, int step)
{
    const int remaining = std::abs(target - current);
    if (remaining < JumpDistance || std::abs(remaining - step) >= remaining)
        return target;
    return target > current ? current + step : current - step;
}

} // namespace

WheelGesture::WheelGesture(const QPoint &from, const QPoint &to, const QSize &remote)
    : m_current(from)
    , m_target(to)
    , m_step(stepLength(remote))
{ }

QPoint WheelGesture::distance(const QPoint &pixelDelta, const QPoint &angleDelta, const QSize &remote)
{
    if (!pixelDelta.isNull())
        return pixelDelta;
    const int unit = StepsPerNotch * stepLength(remote);
    return {notchesToPixels(unit, angleDelta.x()), notchesToPixels(unit, angleDelta.y())};
}

QPoint WheelGesture::centre(
    const QPoint &position, const QSize &view, const QSize &remote, ScreenOrientation orientation)
{
    const int w = remote.width();
    const int h = remote.height();
    if (view.isEmpty())
        return {w / 2, h / 2};
    if (orientation == ScreenOrientation::Portrait)
        return {w * position.x() / view.width(), h * position.y() / view.height()};
    return {w - w * position.y() / view.height(), h * position.x() / view.width()};
}

WheelGesture WheelGesture::drag(
    const QPoint &centre, const QPoint &distance, const QSize &remote, ScreenOrientation orientation)
{
    // Turned with the picture: what is vertical on screen is horizontal on the device.
    const QPoint half
        = orientation == ScreenOrientation::Portrait ? distance : QPoint(-distance.y(), -distance.x());
    return WheelGesture(centre - half, centre + half, remote);
}

WheelGesture WheelGesture::pinch(const QPoint &centre, const QPoint &distance, const QSize &remote)
{
    const QPoint inner(centre.x(), centre.y() + distance.y() / 2);
    const QPoint outer(centre.x(), centre.y() + distance.y());
    const bool apart = distance.y() >= 1;
    WheelGesture gesture(apart ? inner : outer, apart ? outer : inner, remote);
    gesture.m_pinch = true;
    gesture.m_centre = centre;
    return gesture;
}

void WheelGesture::advance()
{
    m_current.setX(advanced(m_current.x(), m_target.x(), m_step));
    m_current.setY(advanced(m_current.y(), m_target.y(), m_step));
}

void WheelGesture::appendPoints(QVector<int> &xs, QVector<int> &ys) const
{
    if (m_pinch) {
        xs.append(m_centre.x());
        ys.append(2 * m_centre.y() - m_current.y());
    }
    xs.append(m_current.x());
    ys.append(m_current.y());
}
