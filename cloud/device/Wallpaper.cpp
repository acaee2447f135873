#include "device/Wallpaper.h"

#include "device/Theme.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cmath>
#include <map>
#include <mutex>
#include <utility>

namespace orvane::cloud {

namespace {

void glow(QPainter &painter, QPointF centre, qreal radius, const QColor &colour)
{
    QRadialGradient gradient(centre, radius);
    gradient.setColorAt(0, colour);
    QColor faint = colour;
    faint.setAlpha(0);
    gradient.setColorAt(1, faint);
    painter.setBrush(gradient);
    painter.drawEllipse(centre, radius, radius);
}

QImage draw(QSize screen)
{
    QImage image(screen, QImage::Format_RGB32);
    const qreal w = screen.width();
    const qreal h = screen.height();
    const qreal size = std::max(w, h);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient night(0, 0, w * 0.4, h);
    night.setColorAt(0, QColor(0xFF18264D));
    night.setColorAt(0.55, QColor(0xFF152040));
    night.setColorAt(1, QColor(theme::Night));
    painter.fillRect(image.rect(), night);
    painter.setPen(Qt::NoPen);
    glow(painter, {w * 0.95, h * 0.16}, size * 0.42, QColor(7, 204, 251, 110));
    glow(painter, {w * 0.05, h * 0.62}, size * 0.46, QColor(255, 155, 122, 120));
    glow(painter, {w * 0.8, h * 0.78}, size * 0.4, QColor(110, 92, 231, 110));
    for (int band = 0; band < 3; ++band) {
        const qreal y = h * (0.40 + 0.07 * band);
        QPainterPath ribbon(QPointF(-10, y + h * 0.10));
        ribbon.cubicTo(w * 0.3, y - h * 0.08, w * 0.6, y + h * 0.16, w + 10, y - h * 0.02);
        ribbon.lineTo(w + 10, y + h * 0.05);
        ribbon.cubicTo(w * 0.6, y + h * 0.21, w * 0.3, y - h * 0.02, -10, y + h * 0.13);
        painter.setBrush(QColor(255, 255, 255, 12));
        painter.drawPath(ribbon);
    }
    return image;
}

} // namespace

const QImage &wallpaper(QSize screen)
{
    static std::mutex mutex;
    static std::map<std::pair<int, int>, QImage> bySize;
    const std::lock_guard lock(mutex);
    QImage &image = bySize[{screen.width(), screen.height()}];
    if (image.isNull()) {
        image = draw(screen);
    }
    return image;
}

} // namespace orvane::cloud
