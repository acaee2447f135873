#include "device/CameraApp.h"

#include "device/Theme.h"

#include <QPainter>

namespace orvane::cloud {

void CameraApp::draw(QPainter &painter, const QRect &clip)
{
    painter.fillRect(clip, QColor(theme::Night));
    if (m_picture.isNull()) {
        drawWaiting(painter);
        return;
    }
    QRect area(QPoint(), m_nativeSize.scaled(body().size(), Qt::KeepAspectRatio));
    area.moveCenter(body().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(area, m_picture);
    QColor plate(theme::Night);
    plate.setAlpha(150);
    theme::drawPill(painter, QRectF(theme::Margin, theme::StatusBarHeight + 20, 420, 54), plate,
        QColor(theme::Paper),
        QStringLiteral("Picture %1 · %2 × %3")
            .arg(m_count)
            .arg(m_nativeSize.width())
            .arg(m_nativeSize.height()));
}

void CameraApp::drawWaiting(QPainter &painter) const
{
    const QPoint centre = body().center();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 26));
    painter.drawEllipse(QPointF(centre) - QPointF(0, 90), 76, 76);
    painter.setPen(QPen(QColor(theme::Cyan), 6));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(centre) - QPointF(0, 90), 34, 34);
    const QRectF line(theme::Margin, centre.y() + 20, screen().width() - 2 * theme::Margin, 56);
    theme::drawLine(painter, line, Qt::AlignHCenter, theme::font(32, true), QColor(theme::Paper),
        QStringLiteral("Waiting for your camera"));
    theme::drawLine(painter, line.translated(0, 56), Qt::AlignHCenter, theme::font(25),
        QColor(255, 255, 255, 170), QStringLiteral("Its pictures appear here as they come."));
}

void CameraApp::describe(QJsonObject &state) const
{
    state.insert(QStringLiteral("pictures"), m_count);
    state.insert(QStringLiteral("pictureWidth"), m_nativeSize.width());
    state.insert(QStringLiteral("pictureHeight"), m_nativeSize.height());
}

// What was seen before is not shown again, neither on return nor among the recent apps.
void CameraApp::pause()
{
    m_picture = QImage();
    m_nativeSize = QSize(0, 0);
    m_count = 0;
    invalidateAll();
}

void CameraApp::cameraPicture(const QImage &picture, QSize nativeSize)
{
    m_picture = picture;
    m_nativeSize = nativeSize;
    ++m_count;
    invalidate(body());
}

} // namespace orvane::cloud
