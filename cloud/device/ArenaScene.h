#pragma once

#include "device/ArenaWorld.h"

#include <QColor>
#include <QPolygonF>
#include <QSize>

#include <optional>
#include <vector>

class QPainter;

namespace orvane::cloud {

// Draws the world of the game Arena as seen from behind the figure. Lives for one drawing, on the device's
// thread.
class ArenaScene
{
public:
    ArenaScene(const ArenaWorld &world, QSize screen);

    void draw(QPainter &painter) const;

private:
    // A place as the camera sees it: metres to the right, above the ground and ahead.
    struct Seen
    {
        double aside = 0;
        double up = 0;
        double ahead = 0;
    };
    // Something that stands on the ground, for drawing the far ones first.
    struct Thing
    {
        double ahead;
        const ArenaWorld::Block *block;
        const ArenaWorld::Target *target;
    };

    Seen see(const ArenaPoint &place) const;
    QPointF project(const Seen &seen) const;
    // None behind the camera.
    std::optional<QPointF> project(const ArenaPoint &place) const;
    double pixelsPerMetre(double ahead) const { return m_focal / ahead; }
    QPolygonF projectPolygon(const std::vector<ArenaPoint> &corners) const;

    void drawBackdrop(QPainter &painter) const;
    void drawSun(QPainter &painter) const;
    void drawHills(QPainter &painter, double height, double seed, const QColor &colour) const;
    void drawGround(QPainter &painter) const;
    void drawWalls(QPainter &painter) const;
    void drawLine(QPainter &painter, const ArenaPoint &from, const ArenaPoint &to) const;
    void drawThing(QPainter &painter, const Thing &thing) const;
    void drawBlock(QPainter &painter, const ArenaWorld::Block &block) const;
    void drawTarget(QPainter &painter, const ArenaWorld::Target &target) const;
    void drawFigure(QPainter &painter) const;
    void drawBullet(QPainter &painter, const ArenaWorld::Bullet &bullet) const;
    void drawCrosshair(QPainter &painter) const;

    const ArenaWorld &m_world;
    const QSize m_screen;
    const double m_focal; // pixels
    const double m_aim; // y of the middle of the view, where the crosshair is
    const double m_horizon; // y
    const ArenaPoint m_camera;
    const ArenaPoint m_forward;
    const ArenaPoint m_right;
};

} // namespace orvane::cloud
