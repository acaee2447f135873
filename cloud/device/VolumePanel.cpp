#include "device/VolumePanel.h"

#include "device/Theme.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace orvane::cloud {

namespace {

constexpr std::chrono::milliseconds ShownFor{1800};

void drawSpeaker(QPainter &painter, QPointF centre, int level)
{
    const QColor colour(theme::Ink);
    QPainterPath body(centre + QPointF(-14, -5));
    body.lineTo(centre + QPointF(-7, -5));
    body.lineTo(centre + QPointF(1, -12));
    body.lineTo(centre + QPointF(1, 12));
    body.lineTo(centre + QPointF(-7, 5));
    body.lineTo(centre + QPointF(-14, 5));
    body.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPath(body);
    painter.setPen(QPen(colour, 2.6, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    if (level == 0) {
        painter.drawLine(centre + QPointF(7, -5), centre + QPointF(16, 5));
        painter.drawLine(centre + QPointF(7, 5), centre + QPointF(16, -5));
        return;
    }
    painter.drawArc(QRectF(centre.x() - 5, centre.y() - 7, 14, 14), -55 * 16, 110 * 16);
    if (level > VolumePanel::MaxLevel / 2) {
        painter.drawArc(QRectF(centre.x() - 8, centre.y() - 13, 26, 26), -55 * 16, 110 * 16);
    }
}

} // namespace

void VolumePanel::step(int direction, TimePoint now)
{
    m_level = std::clamp(m_level + direction, 0, MaxLevel);
    m_hideAt = now + ShownFor;
}

QRect VolumePanel::area(QSize screen) const
{
    const int height = 420;
    return {screen.width() - 116, (screen.height() - height) / 2 - 40, 92, height};
}

void VolumePanel::draw(QPainter &painter, QSize screen) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF panel = QRectF(area(screen)).adjusted(1, 1, -1, -1);
    painter.setPen(QPen(QColor(theme::Line), 1.5));
    painter.setBrush(QColor(theme::Paper));
    painter.drawRoundedRect(panel, 44, 44);
    theme::drawLine(painter, QRectF(panel.left(), panel.top() + 16, panel.width(), 40), Qt::AlignHCenter,
        theme::font(24, true), QColor(theme::Ink), QString::number(m_level));
    const QRectF groove(panel.center().x() - 9, panel.top() + 68, 18, panel.height() - 150);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(theme::Line));
    painter.drawRoundedRect(groove, 9, 9);
    QRectF filled = groove;
    filled.setTop(groove.bottom() - groove.height() * m_level / MaxLevel);
    painter.setBrush(QColor(theme::Cyan));
    painter.drawRoundedRect(filled, 9, 9);
    painter.setPen(QPen(QColor(theme::Cyan), 4));
    painter.setBrush(QColor(theme::Paper));
    painter.drawEllipse(QPointF(groove.center().x(), filled.top() + (m_level == 0 ? -4 : 4)), 14, 14);
    drawSpeaker(painter, QPointF(panel.center().x(), panel.bottom() - 42), m_level);
}

} // namespace orvane::cloud
