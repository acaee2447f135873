#pragma once

#include <QImage>
#include <QRect>
#include <QRegion>
#include <QSize>
#include <QTransform>

#include <cstdint>
#include <functional>

class QPainter;

namespace orvane::cloud {

// The pixels of a device's screen. Content is drawn upright, in portrait or landscape; the frame is what is
// streamed and always portrait. Only what was invalidated is drawn. Thread-compatible, owned by the device.
class Surface
{
public:
    // Draws the content inside the rectangle; the painter is clipped to what was invalidated.
    using Draw = std::function<void(QPainter &, const QRect &)>;

    explicit Surface(QSize portrait);

    QSize portraitSize() const { return m_portrait; }
    QSize contentSize() const { return m_landscape ? m_portrait.transposed() : m_portrait; }
    void setLandscape(bool landscape);

    // Content coordinates.
    void invalidate(const QRect &rect);
    void invalidateAll();
    // Counts up with every call of the two above that may change pixels.
    std::uint64_t version() const { return m_version; }

    // Draws what is pending.
    void paint(const Draw &draw);
    const QImage &frame() const { return m_frame; }
    // Gives the frame's memory back; the next paint draws everything.
    void releaseFrame();
    // Draws everything into an image of any size in the frame's shape, whatever is pending. Costs little
    // where the image is small.
    void drawScaled(QImage &image, const Draw &draw) const;
    // Bounding rectangle in frame coordinates of what was painted since the last call.
    QRect takeDirty();

    // Where a point of the frame is in the content.
    QPoint toContent(QPoint frame) const;
    // Where a rectangle of the content is in the frame.
    QRect toFrame(const QRect &content) const;

private:
    void turnIntoFrame(const QRect &content);
    // From content to frame coordinates.
    QTransform frameTransform() const;

    const QSize m_portrait;
    bool m_landscape = false;
    QImage m_frame; // none until the first paint, as most devices of a service are never watched
    QImage m_content; // landscape only
    QRegion m_pending; // content coordinates; of few rectangles
    QRect m_dirty; // frame coordinates
    std::uint64_t m_version = 1;
};

} // namespace orvane::cloud
