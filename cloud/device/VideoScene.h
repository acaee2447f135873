#pragma once

#include <QImage>
#include <QSize>

#include <array>

class QPainter;

namespace orvane::cloud {

// The moving picture of the video app: a flight over hills in the evening sun, on grainy film, which costs an
// encoder what camera footage costs. Its layers are drawn once and then only shifted, so that a picture costs
// a few copies. Immutable after construction: one instance per orientation serves every device, from any
// thread.
class VideoScene
{
public:
    // The scene for a screen of this size; lives as long as the process.
    static const VideoScene &forScreen(QSize screen);

    explicit VideoScene(QSize screen);

    // Picture number `frame` (from 0) of the endless film, at 25 per second. Fills the screen.
    void draw(QPainter &painter, int frame) const;

private:
    // A strip that repeats to the left and right.
    struct Layer
    {
        QImage image; // premultiplied, transparent above
        int top = 0; // pixels from the screen's top
        int speed = 0; // pixels per frame
    };

    static QImage makeGrain(unsigned seed);
    QImage makeSky() const;
    Layer makeClouds() const;
    Layer makeHills(int index) const;
    void drawBalloons(QPainter &painter, int frame) const;

    const QSize m_screen;
    QImage m_sky;
    std::array<Layer, 5> m_layers; // far to near
    std::array<QImage, 2> m_balloons;
    std::array<QImage, 3> m_grain; // tiles of film grain, premultiplied
};

} // namespace orvane::cloud
