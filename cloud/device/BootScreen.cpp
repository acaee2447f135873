#include "device/BootScreen.h"

#include "device/Theme.h"

#include <QPainter>

#include <cmath>

namespace orvane::cloud {

namespace {

constexpr std::chrono::milliseconds TickInterval{40};
constexpr double Turn = 6.283185307179586;

} // namespace

void BootScreen::start(TimePoint now)
{
    m_start = now;
    m_nextTick = now + TickInterval;
    m_progress = 0;
}

QRect BootScreen::animatedArea(QSize screen) const
{
    return {screen.width() / 2 - 160, screen.height() / 2 - 180, 320, 360};
}

bool BootScreen::tick(TimePoint now)
{
    if (!m_start || now < m_nextTick) {
        return false;
    }
    m_progress = std::chrono::duration<double>(now - *m_start) / std::chrono::duration<double>(Duration);
    m_nextTick = now + TickInterval;
    if (m_progress >= 1) {
        m_start.reset();
    }
    return true;
}

void BootScreen::draw(QPainter &painter, QSize screen, const QRect &clip) const
{
    painter.fillRect(clip, QColor(theme::Night));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF area = animatedArea(screen);
    const QPointF middle(area.center().x(), area.top() + 130);
    // Two discs go around each other, slower and slower, and the one in front passes the other.
    const double angle = Turn * 1.5 * (1 - std::pow(1 - m_progress, 2.2));
    const QPointF way(62 * std::cos(angle), 22 * std::sin(angle));
    const double near = 1 + 0.16 * std::sin(angle);
    const double far = 2 - near;
    const auto disc = [&](QPointF centre, double scale, QRgb colour) {
        QColor filled(colour);
        filled.setAlpha(235);
        painter.setBrush(filled);
        painter.drawEllipse(centre, 54 * scale, 54 * scale);
    };
    const bool coralInFront = near > 1;
    disc(coralInFront ? middle - way : middle + way, coralInFront ? far : near,
        coralInFront ? theme::Cyan : theme::Coral);
    disc(coralInFront ? middle + way : middle - way, coralInFront ? near : far,
        coralInFront ? theme::Coral : theme::Cyan);
    const QRectF groove(area.left() + 50, area.bottom() - 60, area.width() - 100, 8);
    painter.setBrush(QColor(255, 255, 255, 34));
    painter.drawRoundedRect(groove, 4, 4);
    painter.setBrush(QColor(theme::Paper));
    QRectF done = groove;
    done.setWidth(std::max(8.0, groove.width() * m_progress));
    painter.drawRoundedRect(done, 4, 4);
}

} // namespace orvane::cloud
