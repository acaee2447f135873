#pragma once

class QPainter;

namespace orvane::cloud {

// How the figure of the game Arena stands.
struct ArenaPose
{
    double stride = 0; // metres walked, moves the legs
    double lean = 0; // -1 to the left to 1 to the right
    bool walking = false;
    bool inAir = false;
    bool firing = false;
};

// Draws the figure from behind with its feet at the origin of the painter, which counts in centimetres, y
// down. About 180 cm high. The device's thread.
void drawArenaFigure(QPainter &painter, const ArenaPose &pose);

} // namespace orvane::cloud
