#pragma once

#include <QPointF>

#include <vector>

namespace orvane::cloud {

// A place in the arena: metres to the east, to the north and above the ground. The origin is the middle.
struct ArenaPoint
{
    double east = 0;
    double north = 0;
    double up = 0;
};

// What happens in the game Arena: a figure that walks, jumps and shoots at targets. It knows no screen and no
// clock. Used by the device's thread, part of ArenaApp.
class ArenaWorld
{
public:
    // The figure stays within so many metres of the middle, either way.
    static constexpr double HalfField = 20;
    static constexpr int MagazineSize = 30;
    static constexpr double WalkSpeed = 6; // metres per second at full stick
    static constexpr double SteepestPitch = 20; // degrees, up or down
    // The camera looks over the figure's shoulder: behind it, and above the ground it stands on.
    static constexpr double CameraDistance = 4.2; // metres
    static constexpr double CameraHeight = 2.5; // metres

    // A block that nobody walks through; square, `side` metres wide.
    struct Block
    {
        double east;
        double north;
        double side;
        double height;
    };
    // A disc that faces the figure.
    struct Target
    {
        std::size_t spot; // where it is, by number
        ArenaPoint middle;
    };
    struct Bullet
    {
        ArenaPoint from;
        ArenaPoint to;
        double flight; // seconds from `from` to `to`
        double age; // seconds; from `flight` on it bursts
        bool hits; // reaches target
        std::size_t spot; // the target's place when it was fired, if it hits
    };
    static constexpr double TargetRadius = 0.8; // metres
    static constexpr double BurstSeconds = 0.3;

    ArenaWorld();

    // Time passes. Whether anything looks different now.
    bool advance(double seconds);
    // Whether time passing can change anything.
    bool isMoving() const;

    // How far the stick is pushed: right and down, 1 = all the way. A longer vector counts as one of
    // length 1.
    void push(QPointF stick);
    // Turns the view to the right and down by degrees. The pitch ends at SteepestPitch.
    void look(QPointF degrees);
    // False when the magazine is empty.
    bool fire();
    // Fills the magazine.
    void reload();
    // False when the figure is in the air already.
    bool jump();

    ArenaPoint figure() const { return m_figure; } // its feet
    double heading() const { return m_heading; } // degrees, 0 = north, 90 = east; below 360
    double pitch() const { return m_pitch; } // degrees, up is positive
    QPointF stick() const { return m_stick; }
    double stride() const { return m_stride; } // metres walked
    bool isInAir() const { return m_figure.up > 0 || m_upSpeed > 0; }
    bool isTargetInSight() const { return targetInSight() != nullptr; }
    int shots() const { return m_shots; }
    int hits() const { return m_hits; }
    int ammunition() const { return m_ammunition; }
    int reloads() const { return m_reloads; }
    int jumps() const { return m_jumps; }
    const std::vector<Target> &targets() const { return m_targets; }
    const std::vector<Bullet> &bullets() const { return m_bullets; }
    static const std::vector<Block> &blocks();

    // Directions on the ground, one metre long.
    ArenaPoint forward() const;
    ArenaPoint right() const;
    ArenaPoint camera() const;
    ArenaPoint muzzle() const;

private:
    bool step(double seconds);
    bool walk(double seconds);
    bool fly(double seconds);
    bool age(double seconds);
    void hit(std::size_t spot);
    const Target *targetInSight() const;
    double distanceToBlock() const;

    ArenaPoint m_figure;
    double m_heading = 0;
    double m_pitch = 0;
    double m_upSpeed = 0; // metres per second
    double m_stride = 0;
    QPointF m_stick;
    std::vector<Target> m_targets;
    std::size_t m_nextSpot = 0;
    std::vector<Bullet> m_bullets;
    int m_shots = 0;
    int m_hits = 0;
    int m_ammunition = MagazineSize;
    int m_reloads = 0;
    int m_jumps = 0;
};

} // namespace orvane::cloud
