#include "device/ArenaWorld.h"

#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace orvane::cloud {

namespace {

constexpr double LongestStep = 1.0 / 60; // seconds; longer ones would walk through corners
constexpr double LongestAdvance = 30; // seconds; by then a figure that walks has met something
constexpr double FigureRadius = 0.6; // metres
constexpr double JumpSpeed = 5; // metres per second
constexpr double Gravity = 13; // metres per second squared
constexpr double BulletSpeed = 60; // metres per second
constexpr double Range = 40; // metres
constexpr double ShortestFlight = 0.1; // seconds
constexpr double AimTolerance = 1.15; // of the target's radius
constexpr double NearestAim = 1; // metre before the figure
constexpr std::size_t TargetCount = 6;

// Where targets may be. A target that was hit comes back at the next place that is free.
constexpr std::array<ArenaPoint, 14> Spots{{{0, 14, 2.6}, {7, 11, 1.6}, {-9, 12, 2.0}, {13, -2, 1.8},
    {-13, 1, 2.4}, {3, -14, 2.0}, {-5, 17, 3.2}, {16, 9, 2.2}, {-16, -11, 1.7}, {10, -13, 2.8}, {-3, 8, 1.5},
    {17, -16, 2.0}, {-17, 14, 3.0}, {5, 18, 2.2}}};

ArenaPoint along(const ArenaPoint &start, const ArenaPoint &direction, double metres)
{
    return {start.east + direction.east * metres, start.north + direction.north * metres,
        start.up + direction.up * metres};
}

double dot(const ArenaPoint &a, const ArenaPoint &b)
{
    return a.east * b.east + a.north * b.north;
}

double distance(const ArenaPoint &a, const ArenaPoint &b)
{
    return std::hypot(a.east - b.east, a.north - b.north, a.up - b.up);
}

// Out of a block by the shortest way.
void leave(const ArenaWorld::Block &block, ArenaPoint &figure)
{
    const double reach = block.side / 2 + FigureRadius;
    const double east = figure.east - block.east;
    const double north = figure.north - block.north;
    if (std::abs(east) >= reach || std::abs(north) >= reach) {
        return;
    }
    if (std::abs(east) > std::abs(north)) {
        figure.east = block.east + std::copysign(reach, east);
    } else {
        figure.north = block.north + std::copysign(reach, north);
    }
}

} // namespace

const std::vector<ArenaWorld::Block> &ArenaWorld::blocks()
{
    static const std::vector<Block> blocks{{-6, 5, 2, 3.4}, {8, 4, 1.6, 4.6}, {-10, -7, 2.4, 2.6},
        {5, -8, 2, 3.8}, {0, 11, 1.4, 1.2}, {14, 14, 2.6, 5.2}, {-14, 9, 1.8, 3}, {13, -9, 1.6, 2.2}};
    return blocks;
}

ArenaWorld::ArenaWorld()
{
    for (; m_nextSpot < TargetCount; ++m_nextSpot) {
        m_targets.push_back({m_nextSpot, Spots.at(m_nextSpot)});
    }
}

// --- Directions ---

ArenaPoint ArenaWorld::forward() const
{
    const double angle = qDegreesToRadians(m_heading);
    return {std::sin(angle), std::cos(angle), 0};
}

ArenaPoint ArenaWorld::right() const
{
    const ArenaPoint ahead = forward();
    return {ahead.north, -ahead.east, 0};
}

ArenaPoint ArenaWorld::camera() const
{
    ArenaPoint place = along(m_figure, forward(), -CameraDistance);
    place.up = CameraHeight;
    return place;
}

ArenaPoint ArenaWorld::muzzle() const
{
    ArenaPoint place = along(along(m_figure, right(), 0.5), forward(), 0.5);
    place.up += 1.45;
    return place;
}

// The nearest target in the middle of the view that no block hides.
const ArenaWorld::Target *ArenaWorld::targetInSight() const
{
    const ArenaPoint eye = camera();
    const double slope = std::tan(qDegreesToRadians(m_pitch));
    const Target *nearest = nullptr;
    double nearestAhead = std::min(Range, distanceToBlock());
    for (const Target &target : m_targets) {
        const ArenaPoint way{target.middle.east - eye.east, target.middle.north - eye.north, 0};
        const double ahead = dot(way, forward());
        const double aside = dot(way, right());
        const double above = target.middle.up - (eye.up + slope * ahead);
        if (ahead > CameraDistance + NearestAim && ahead < nearestAhead
            && std::hypot(aside, above) <= TargetRadius * AimTolerance) {
            nearest = &target;
            nearestAhead = ahead;
        }
    }
    return nearest;
}

// Metres ahead of the camera to the first block in the middle of the view; Range if there is none.
double ArenaWorld::distanceToBlock() const
{
    const ArenaPoint eye = camera();
    const double slope = std::tan(qDegreesToRadians(m_pitch));
    double nearest = Range;
    for (const Block &block : blocks()) {
        const ArenaPoint way{block.east - eye.east, block.north - eye.north, 0};
        const double ahead = dot(way, forward());
        const bool inLine
            = std::abs(dot(way, right())) < block.side / 2 && eye.up + slope * ahead < block.height;
        if (inLine && ahead > CameraDistance + NearestAim) {
            nearest = std::min(nearest, ahead - block.side / 2);
        }
    }
    return nearest;
}

// --- What the player does ---

void ArenaWorld::push(QPointF stick)
{
    const double length = std::hypot(stick.x(), stick.y());
    m_stick = length > 1 ? stick / length : stick;
}

void ArenaWorld::look(QPointF degrees)
{
    m_heading = std::fmod(m_heading + std::fmod(degrees.x(), 360) + 360, 360);
    m_pitch = std::clamp(m_pitch - degrees.y(), -SteepestPitch, SteepestPitch);
}

bool ArenaWorld::fire()
{
    if (m_ammunition == 0) {
        return false;
    }
    --m_ammunition;
    ++m_shots;
    const Target *target = targetInSight();
    ArenaPoint end;
    if (target) {
        end = target->middle;
    } else {
        const double reach = distanceToBlock();
        end = along(camera(), forward(), reach);
        end.up = std::max(0.05, end.up + std::tan(qDegreesToRadians(m_pitch)) * reach);
    }
    const ArenaPoint start = muzzle();
    const double flight = std::max(ShortestFlight, distance(start, end) / BulletSpeed);
    m_bullets.push_back({start, end, flight, 0, target != nullptr, target ? target->spot : 0});
    return true;
}

void ArenaWorld::reload()
{
    m_ammunition = MagazineSize;
    ++m_reloads;
}

bool ArenaWorld::jump()
{
    if (isInAir()) {
        return false;
    }
    m_upSpeed = JumpSpeed;
    ++m_jumps;
    return true;
}

// --- Time ---

bool ArenaWorld::isMoving() const
{
    return !m_stick.isNull() || isInAir() || !m_bullets.empty();
}

bool ArenaWorld::advance(double seconds)
{
    bool changed = false;
    for (double left = std::min(seconds, LongestAdvance); left > 0 && isMoving(); left -= LongestStep) {
        changed = step(std::min(left, LongestStep)) || changed;
    }
    return changed;
}

bool ArenaWorld::step(double seconds)
{
    const bool walked = walk(seconds);
    const bool flew = fly(seconds);
    const bool aged = age(seconds);
    return walked || flew || aged;
}

bool ArenaWorld::walk(double seconds)
{
    if (m_stick.isNull()) {
        return false;
    }
    const ArenaPoint before = m_figure;
    const double way = WalkSpeed * seconds;
    m_figure = along(along(m_figure, forward(), -m_stick.y() * way), right(), m_stick.x() * way);
    for (const Block &block : blocks()) {
        leave(block, m_figure);
    }
    m_figure.east = std::clamp(m_figure.east, -HalfField, HalfField);
    m_figure.north = std::clamp(m_figure.north, -HalfField, HalfField);
    const double walked = distance(before, m_figure);
    m_stride += walked;
    return walked > 0;
}

bool ArenaWorld::fly(double seconds)
{
    if (!isInAir()) {
        return false;
    }
    m_figure.up += m_upSpeed * seconds - Gravity * seconds * seconds / 2;
    m_upSpeed -= Gravity * seconds;
    if (m_figure.up <= 0) {
        m_figure.up = 0;
        m_upSpeed = 0;
    }
    return true;
}

bool ArenaWorld::age(double seconds)
{
    if (m_bullets.empty()) {
        return false;
    }
    for (Bullet &bullet : m_bullets) {
        const bool arrived = bullet.age >= bullet.flight;
        bullet.age += seconds;
        if (!arrived && bullet.age >= bullet.flight && bullet.hits) {
            hit(bullet.spot);
        }
    }
    const auto isOver = [](const Bullet &bullet) { return bullet.age >= bullet.flight + BurstSeconds; };
    m_bullets.erase(std::remove_if(m_bullets.begin(), m_bullets.end(), isOver), m_bullets.end());
    return true;
}

void ArenaWorld::hit(std::size_t spot)
{
    const auto isThere
        = [](std::size_t place) { return [place](const Target &target) { return target.spot == place; }; };
    const auto target = std::find_if(m_targets.begin(), m_targets.end(), isThere(spot));
    if (target == m_targets.end()) {
        return; // another bullet was faster
    }
    ++m_hits;
    while (std::any_of(m_targets.begin(), m_targets.end(), isThere(m_nextSpot))) {
        m_nextSpot = (m_nextSpot + 1) % Spots.size();
    }
    *target = {m_nextSpot, Spots.at(m_nextSpot)};
}

} // namespace orvane::cloud
