#include "device/Surface.h"

#include <QPainter>

#include <libyuv/rotate_argb.h>

#include <cstddef>
#include <utility>

namespace orvane::cloud {

namespace {

constexpr int BytesPerPixel = 4;
constexpr int TurnTile
    = 16; // pixels; tiles that fit into the nearest cache turn five times as fast as the whole
// Many small changes before the next paint are painted as one.
constexpr int MaxPendingRects = 32;

} // namespace

Surface::Surface(QSize portrait)
    : m_portrait(portrait)
    , m_pending(QRect({}, portrait))
{ }

void Surface::setLandscape(bool landscape)
{
    m_landscape = landscape;
    m_content = QImage();
    m_pending = QRegion();
    invalidateAll();
}

void Surface::invalidate(const QRect &rect)
{
    const QRect visible = rect & QRect({}, contentSize());
    if (!visible.isEmpty()) {
        m_pending += visible;
        if (m_pending.rectCount() > MaxPendingRects) {
            m_pending = m_pending.boundingRect();
        }
        ++m_version;
    }
}

void Surface::invalidateAll()
{
    invalidate(QRect({}, contentSize()));
}

void Surface::paint(const Draw &draw)
{
    if (m_pending.isEmpty()) {
        return;
    }
    if (m_frame.isNull()) {
        m_frame = QImage(m_portrait, QImage::Format_RGB32);
    }
    if (m_landscape && m_content.isNull()) {
        m_content = QImage(contentSize(), QImage::Format_RGB32);
    }
    const QRegion region = std::exchange(m_pending, QRegion());
    const QRect bounds = region.boundingRect();
    {
        QPainter painter(m_landscape ? &m_content : &m_frame);
        painter.setClipRegion(region);
        draw(painter, bounds);
    }
    if (m_landscape) {
        turnIntoFrame(bounds);
    }
    m_dirty = m_dirty.united(toFrame(bounds));
}

void Surface::releaseFrame()
{
    m_frame = QImage();
    m_content = QImage();
    m_dirty = QRect();
    m_pending = QRect({}, contentSize());
}

void Surface::drawScaled(QImage &image, const Draw &draw) const
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setTransform(frameTransform()
        * QTransform::fromScale(static_cast<qreal>(image.width()) / m_portrait.width(),
            static_cast<qreal>(image.height()) / m_portrait.height()));
    const QRect everything({}, contentSize());
    painter.setClipRect(everything);
    draw(painter, everything);
}

QTransform Surface::frameTransform() const
{
    // A quarter turn to the right and back into the frame: (x, y) to (width - y, x).
    return m_landscape ? QTransform(0, 1, -1, 0, m_portrait.width(), 0) : QTransform();
}

void Surface::turnIntoFrame(const QRect &content)
{
    const int sourceStride = m_content.bytesPerLine();
    const int targetStride = m_frame.bytesPerLine();
    const auto pixelOf = [](QPoint place, int stride) {
        return static_cast<std::ptrdiff_t>(place.y()) * stride
            + static_cast<std::ptrdiff_t>(place.x()) * BytesPerPixel;
    };
    const uchar *source = m_content.constBits();
    uchar *destination = m_frame.bits();
    for (int y = content.top(); y <= content.bottom(); y += TurnTile) {
        for (int x = content.left(); x <= content.right(); x += TurnTile) {
            const QRect tile = QRect(x, y, TurnTile, TurnTile) & content;
            const QRect target = toFrame(tile);
            libyuv::ARGBRotate(source + pixelOf(tile.topLeft(), sourceStride), sourceStride,
                destination + pixelOf(target.topLeft(), targetStride), targetStride, tile.width(),
                tile.height(), libyuv::kRotate90); // fails only without pixels
        }
    }
}

QRect Surface::takeDirty()
{
    return std::exchange(m_dirty, QRect());
}

QPoint Surface::toContent(QPoint frame) const
{
    return m_landscape ? QPoint(frame.y(), m_portrait.width() - 1 - frame.x()) : frame;
}

QRect Surface::toFrame(const QRect &content) const
{
    if (!m_landscape) {
        return content;
    }
    return {m_portrait.width() - 1 - content.bottom(), content.left(), content.height(), content.width()};
}

} // namespace orvane::cloud
