#pragma once

#include <QImage>
#include <QSize>

#include <array>

class QPainter;

namespace orvane::cloud {

// The moving picture of the video app: a flight over hills in the evening sun, on grainy film, which costs an
// encoder what camera footage costs. Its layers are drawn once and then only shifted, so that a picture costs
// a few copies. Where it is drawn small, layers of that size are used. Immutable after construction: one
// instance per screen size serves every device, from any thread.
class VideoScene
{
public:
    // The scene for a screen of this size; lives as long as the process.
    static const VideoScene &forScreen(QSize screen);

    explicit VideoScene(QSize screen);

    // Picture number `frame` (from 0) of the endless film, at 25 per second. Fills the screen.
    void draw(QPainter &painter, int frame) const;

private:
    // The same scene with its layers scaled down, or none when there are too many already.
    static const VideoScene *miniature(QSize screen, QSize size);
    VideoScene(const VideoScene &full, QSize size);

    // A strip that repeats to the left and right.
    struct Layer
    {
        QImage image; // premultiplied, transparent above
        int top = 0; // pixels of the screen from its top
        int speed = 0; // pixels of the screen per frame
    };
    struct Balloon
    {
        QImage image;
        int width = 0; // pixels of the screen
    };

    static QImage makeGrain(unsigned seed);
    QImage makeSky() const;
    Layer makeClouds() const;
    Layer makeHills(int index) const;
    void drawLayers(QPainter &painter, int frame) const;
    void drawBalloons(QPainter &painter, int frame) const;
    QPoint scaled(int x, int y) const;

    const QSize m_screen;
    const QSizeF m_scale{1, 1}; // pixels of the images for a pixel of the screen
    QImage m_sky;
    std::array<Layer, 5> m_layers; // far to near
    std::array<Balloon, 2> m_balloons;
    std::array<QImage, 3>
        m_grain; // tiles of film grain, premultiplied; none in small, where it would not show
};

} // namespace orvane::cloud
