#pragma once

#include "device/App.h"
#include "device/PushButton.h"

#include <QColor>
#include <QImage>
#include <QPointF>

#include <map>
#include <vector>

namespace orvane::cloud {

// Drawing paper: every finger draws a smooth line in a colour of its own; the number of fingers is shown.
// Lines go onto a bitmap once, only the newest piece of each is drawn at a time.
class PaintApp : public App
{
public:
    explicit PaintApp(Host host);

    void draw(QPainter &painter, const QRect &clip) override;
    void describe(QJsonObject &state) const override;
    void touchDown(const Pointer &pointer) override;
    void touchMove(const Pointer &pointer) override;
    void touchUp(const Pointer &pointer) override;
    void touchCancel(int id) override;

protected:
    void layout() override;

private:
    struct Sample
    {
        QPointF position;
        qreal width = 0; // pixels
    };
    struct Stroke
    {
        QColor colour;
        std::vector<Sample> samples;
    };
    struct Finger
    {
        int slot = 0; // lowest that is free when the finger comes down; decides the colour
        Stroke stroke;
    };

    int freeSlot() const;
    void finish(int id);
    void clear();
    QRect paper() const;
    QRect counter() const;
    void drawHeader(QPainter &painter);
    void inkAnew();
    // Draws the piece of the stroke that sample `index` completes onto the bitmap; returns what it covers.
    QRect inkPiece(QPainter &painter, const Stroke &stroke, std::size_t index);
    QRect inkEnd(QPainter &painter, const Stroke &stroke);
    static QRect tip(const Finger &finger);
    static void drawTip(QPainter &painter, const Finger &finger);
    void forgetOldest();

    PushButton m_clearButton;
    // The paper with every finished piece; screen coordinates. Null after a turn until it is looked at:
    // inking many strokes takes longer than an input may.
    QImage m_bitmap;
    std::map<int, Finger> m_fingers; // by pointer id
    std::vector<Stroke> m_strokes; // finished, for drawing anew after a turn; bounded
    int m_strokeCount = 0; // since the last clear
    int m_pointCount = 0;
};

} // namespace orvane::cloud
