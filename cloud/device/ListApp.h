#pragma once

#include "device/App.h"
#include "device/Fling.h"

#include <map>
#include <utility>

namespace orvane::cloud {

// A long list: one finger scrolls, with inertia; two fingers zoom the rows about the point between them.
// Position and zoom are shown.
class ListApp : public App
{
public:
    using App::App;

    void draw(QPainter &painter, const QRect &clip) override;
    void describe(QJsonObject &state) const override;
    void touchDown(const Pointer &pointer) override;
    void touchMove(const Pointer &pointer) override;
    void touchUp(const Pointer &pointer) override;
    void touchCancel(int id) override;
    void pause() override;
    std::optional<TimePoint> nextTick() const override;
    void tick(TimePoint now) override;

protected:
    void layout() override;

private:
    QRect viewport() const;
    qreal rowHeight() const; // pixels
    qreal maxOffset() const;
    void scrollTo(qreal offset);
    // Of the first two fingers: the distance between them and the height of their middle in the viewport.
    std::pair<qreal, qreal> span() const;
    void fingersChanged(TimePoint now);
    void pinch();
    void drawHeader(QPainter &painter);
    void drawRow(QPainter &painter, int row, const QRectF &rect) const;
    void drawScrollBar(QPainter &painter) const;

    qreal m_offset = 0; // pixels from the list's top to the viewport's top
    qreal m_zoom = 1;
    std::map<int, QPoint> m_fingers; // by pointer id; the first two count
    QPoint m_dragFrom;
    qreal m_pinchSpan = 0; // at the start of the pinch, pixels
    qreal m_pinchZoom = 1; // then
    qreal m_pinchRow = 0; // row (with fraction) that was between the fingers then
    Fling m_fling;
    std::optional<TimePoint> m_nextTick;
};

} // namespace orvane::cloud
