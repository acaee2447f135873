#include "device/ArenaScene.h"

#include "device/ArenaFigure.h"
#include "device/Theme.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace orvane::cloud {

namespace {

constexpr double NearPlane = 0.4; // metres; nothing nearer is drawn
constexpr double GridDistance = 4; // metres
constexpr int GridReach = static_cast<int>(ArenaWorld::HalfField / GridDistance); // lines from the middle
constexpr double FieldEdge = ArenaWorld::HalfField + 0.6; // metres
constexpr double WallDistance = 26; // metres from the middle; the camera never gets there
constexpr double WallHeight = 1.6; // metres
constexpr double SunAzimuth = 24; // degrees
constexpr double SunHeight = 0.16; // of the focal length
constexpr double MuzzleFlashSeconds = 0.07;

// How much of the landscape is seen: portrait looks further ahead, landscape sees more to the sides.
constexpr double PortraitFocal = 680; // pixels
constexpr double LandscapeFocal = 540;
constexpr double PortraitAim = 0.35; // of the screen's height
constexpr double LandscapeAim = 0.36;

const QColor SkyTop(0xFF151B45);
const QColor SkyMiddle(0xFF4A4B9A);
const QColor SkyLow(0xFFF2A98C);
const QColor GroundFar(0xFF3B4A78);
const QColor GroundNear(0xFF1B2444);

// Sky and ground with room above and below for every pitch, so that a picture costs a copy only.
QImage makeBackdrop(QSize screen, double focal)
{
    const int room = qCeil(focal * std::tan(qDegreesToRadians(ArenaWorld::SteepestPitch)));
    QImage image(screen.width(), 2 * (screen.height() + room), QImage::Format_RGB32);
    const int horizon = image.height() / 2;
    QLinearGradient sky(0, horizon - screen.height() * 0.55, 0, horizon);
    sky.setColorAt(0, SkyTop);
    sky.setColorAt(0.6, SkyMiddle);
    sky.setColorAt(1, SkyLow);
    QLinearGradient ground(0, horizon, 0, horizon + screen.height() * 0.7);
    ground.setColorAt(0, GroundFar);
    ground.setColorAt(1, GroundNear);
    QPainter painter(&image);
    painter.fillRect(QRect(0, 0, image.width(), horizon), sky);
    painter.fillRect(QRect(0, horizon, image.width(), image.height() - horizon), ground);
    return image;
}

const QImage &backdrop(QSize screen)
{
    if (screen.width() > screen.height()) {
        static const QImage landscape = makeBackdrop(screen, LandscapeFocal);
        return landscape;
    }
    static const QImage portrait = makeBackdrop(screen, PortraitFocal);
    return portrait;
}

QColor shaded(const QColor &colour, int percent)
{
    return percent <= 100 ? colour.darker(10000 / std::max(percent, 1)) : colour.lighter(percent);
}

double angleDifference(double degrees, double from)
{
    return std::remainder(degrees - from, 360);
}

} // namespace

ArenaScene::ArenaScene(const ArenaWorld &world, QSize screen)
    : m_world(world)
    , m_screen(screen)
    , m_focal(screen.width() > screen.height() ? LandscapeFocal : PortraitFocal)
    , m_aim(screen.height() * (screen.width() > screen.height() ? LandscapeAim : PortraitAim))
    , m_horizon(m_aim + m_focal * std::tan(qDegreesToRadians(world.pitch())))
    , m_camera(world.camera())
    , m_forward(world.forward())
    , m_right(world.right())
{ }

// --- Projection ---

ArenaScene::Seen ArenaScene::see(const ArenaPoint &place) const
{
    const double east = place.east - m_camera.east;
    const double north = place.north - m_camera.north;
    return {east * m_right.east + north * m_right.north, place.up,
        east * m_forward.east + north * m_forward.north};
}

QPointF ArenaScene::project(const Seen &seen) const
{
    const double scale = pixelsPerMetre(seen.ahead);
    return {m_screen.width() / 2.0 + seen.aside * scale, m_horizon + (m_camera.up - seen.up) * scale};
}

std::optional<QPointF> ArenaScene::project(const ArenaPoint &place) const
{
    const Seen seen = see(place);
    return seen.ahead >= NearPlane ? std::optional(project(seen)) : std::nullopt;
}

// Cut off at the near plane; empty if all of it is behind that.
QPolygonF ArenaScene::projectPolygon(const std::vector<ArenaPoint> &corners) const
{
    QPolygonF polygon;
    Seen previous = see(corners.back());
    for (const ArenaPoint &corner : corners) {
        const Seen seen = see(corner);
        if ((seen.ahead >= NearPlane) != (previous.ahead >= NearPlane)) {
            const double part = (NearPlane - previous.ahead) / (seen.ahead - previous.ahead);
            polygon << project(Seen{previous.aside + (seen.aside - previous.aside) * part,
                previous.up + (seen.up - previous.up) * part, NearPlane});
        }
        if (seen.ahead >= NearPlane) {
            polygon << project(seen);
        }
        previous = seen;
    }
    return polygon;
}

// --- The landscape ---

void ArenaScene::draw(QPainter &painter) const
{
    drawBackdrop(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSun(painter);
    drawHills(painter, 0.12, 1, QColor(0xFF6B5C9E));
    drawHills(painter, 0.07, 7, QColor(0xFF4A4A85));
    drawGround(painter);
    drawWalls(painter);

    std::vector<Thing> things;
    for (const ArenaWorld::Block &block : ArenaWorld::blocks()) {
        things.push_back({see({block.east, block.north, 0}).ahead, &block, nullptr});
    }
    for (const ArenaWorld::Target &target : m_world.targets()) {
        things.push_back({see(target.middle).ahead, nullptr, &target});
    }
    std::sort(things.begin(), things.end(), [](const Thing &a, const Thing &b) { return a.ahead > b.ahead; });
    // Bullets fly away from the figure, so that it hides them.
    const auto nearer = std::find_if(things.begin(), things.end(),
        [](const Thing &thing) { return thing.ahead < ArenaWorld::CameraDistance; });
    std::for_each(things.begin(), nearer, [&](const Thing &thing) { drawThing(painter, thing); });
    for (const ArenaWorld::Bullet &bullet : m_world.bullets()) {
        drawBullet(painter, bullet);
    }
    drawFigure(painter);
    std::for_each(nearer, things.end(), [&](const Thing &thing) { drawThing(painter, thing); });
    drawCrosshair(painter);
}

void ArenaScene::drawBackdrop(QPainter &painter) const
{
    const QImage &image = backdrop(m_screen);
    painter.drawImage(
        QPoint(0, 0), image, QRect(QPoint(0, image.height() / 2 - qRound(m_horizon)), m_screen));
}

void ArenaScene::drawSun(QPainter &painter) const
{
    const double angle = angleDifference(SunAzimuth, m_world.heading());
    if (std::abs(angle) > 60) {
        return;
    }
    const QPointF middle(m_screen.width() / 2.0 + m_focal * std::tan(qDegreesToRadians(angle)),
        m_horizon - m_focal * SunHeight);
    painter.setPen(Qt::NoPen);
    for (const auto &[radius, alpha] : {std::pair(0.15, 26), std::pair(0.11, 40), std::pair(0.075, 255)}) {
        painter.setBrush(QColor(255, 214, 170, alpha));
        painter.drawEllipse(middle, m_focal * radius, m_focal * radius);
    }
}

// A range of hills all around; heights are parts of the focal length.
void ArenaScene::drawHills(QPainter &painter, double height, double seed, const QColor &colour) const
{
    constexpr int Step = 6; // degrees
    const int middle = qRound(m_world.heading() / Step) * Step;
    const double halfView = qRadiansToDegrees(std::atan(m_screen.width() / 2.0 / m_focal));
    const int reach = (qCeil(halfView / Step) + 1) * Step;
    QPolygonF hills;
    for (int azimuth = middle - reach; azimuth <= middle + reach; azimuth += Step) {
        const double radians = qDegreesToRadians(static_cast<double>(azimuth));
        const double part
            = 0.5 + 0.28 * std::sin(5 * radians + seed) + 0.22 * std::sin(14 * radians + 2 * seed);
        const double across = std::tan(qDegreesToRadians(azimuth - m_world.heading()));
        hills << QPointF(m_screen.width() / 2.0 + m_focal * across, m_horizon - m_focal * height * part);
    }
    hills << QPointF(hills.last().x(), m_horizon + 1) << QPointF(hills.first().x(), m_horizon + 1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(hills);
}

void ArenaScene::drawLine(QPainter &painter, const ArenaPoint &from, const ArenaPoint &to) const
{
    const QPolygonF line = projectPolygon({from, to});
    if (line.size() >= 2) {
        painter.drawLine(line.first(), line.last());
    }
}

void ArenaScene::drawGround(QPainter &painter) const
{
    painter.setPen(QPen(QColor(130, 170, 230, 70), 2));
    for (int line = -GridReach; line <= GridReach; ++line) {
        const double place = line * GridDistance;
        drawLine(painter, {place, -FieldEdge, 0}, {place, FieldEdge, 0});
        drawLine(painter, {-FieldEdge, place, 0}, {FieldEdge, place, 0});
    }
    painter.setPen(QPen(QColor(theme::Coral), 4));
    const ArenaPoint corners[]{{-FieldEdge, -FieldEdge, 0}, {FieldEdge, -FieldEdge, 0},
        {FieldEdge, FieldEdge, 0}, {-FieldEdge, FieldEdge, 0}};
    for (int side = 0; side < 4; ++side) {
        drawLine(painter, corners[side], corners[(side + 1) % 4]);
    }
}

void ArenaScene::drawWalls(QPainter &painter) const
{
    constexpr double W = WallDistance;
    const ArenaPoint corners[]{{-W, -W, 0}, {W, -W, 0}, {W, W, 0}, {-W, W, 0}};
    for (int side = 0; side < 4; ++side) {
        ArenaPoint left = corners[side];
        ArenaPoint right = corners[(side + 1) % 4];
        ArenaPoint leftTop = left;
        ArenaPoint rightTop = right;
        leftTop.up = rightTop.up = WallHeight;
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(30, 44, 92, 235));
        painter.drawPolygon(projectPolygon({left, right, rightTop, leftTop}));
        painter.setPen(QPen(QColor(theme::Cyan), 3));
        drawLine(painter, leftTop, rightTop);
    }
}

// --- What stands in it ---

void ArenaScene::drawThing(QPainter &painter, const Thing &thing) const
{
    // What is between the camera and the figure must not hide it.
    painter.setOpacity(thing.ahead < ArenaWorld::CameraDistance ? 0.35 : 1);
    if (thing.block) {
        drawBlock(painter, *thing.block);
    } else if (thing.ahead >= NearPlane) {
        drawTarget(painter, *thing.target);
    }
    painter.setOpacity(1);
}

void ArenaScene::drawBlock(QPainter &painter, const ArenaWorld::Block &block) const
{
    const double half = block.side / 2;
    const QColor colour(0xFF5D6FB0);
    struct Side
    {
        double east;
        double north;
        int percent; // of the colour
    };
    constexpr Side Sides[]{{0, -1, 100}, {1, 0, 82}, {0, 1, 64}, {-1, 0, 118}};
    painter.setPen(Qt::NoPen);
    for (const Side &side : Sides) {
        const double east = block.east + side.east * half;
        const double north = block.north + side.north * half;
        if ((m_camera.east - east) * side.east + (m_camera.north - north) * side.north <= 0) {
            continue; // seen from behind
        }
        const double alongEast = side.north * half;
        const double alongNorth = -side.east * half;
        const auto face = [&](double low, double high) {
            return projectPolygon({{east - alongEast, north - alongNorth, low},
                {east + alongEast, north + alongNorth, low}, {east + alongEast, north + alongNorth, high},
                {east - alongEast, north - alongNorth, high}});
        };
        painter.setBrush(shaded(colour, side.percent));
        painter.drawPolygon(face(0, block.height));
        painter.setBrush(shaded(QColor(theme::Cyan), side.percent));
        painter.drawPolygon(face(block.height - 0.18, block.height));
    }
    if (m_camera.up > block.height) {
        painter.setBrush(shaded(colour, 135));
        painter.drawPolygon(projectPolygon({{block.east - half, block.north - half, block.height},
            {block.east + half, block.north - half, block.height},
            {block.east + half, block.north + half, block.height},
            {block.east - half, block.north + half, block.height}}));
    }
}

void ArenaScene::drawTarget(QPainter &painter, const ArenaWorld::Target &target) const
{
    const Seen seen = see(target.middle);
    const double scale = pixelsPerMetre(seen.ahead);
    const QPointF middle = project(seen);
    const QPointF foot = project(Seen{seen.aside, 0, seen.ahead});
    const double radius = ArenaWorld::TargetRadius * scale;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(10, 14, 30, 110));
    painter.drawEllipse(foot, radius * 0.7, radius * 0.7 * m_camera.up / seen.ahead);
    painter.setPen(QPen(QColor(0xFF8B9AC4), std::max(1.5, 0.09 * scale)));
    painter.drawLine(foot, middle);
    painter.setPen(Qt::NoPen);
    const std::pair<double, QRgb> rings[]{
        {1, theme::Paper}, {0.78, theme::Coral}, {0.52, theme::Paper}, {0.26, theme::Coral}};
    for (const auto &[part, colour] : rings) {
        painter.setBrush(QColor(colour));
        painter.drawEllipse(middle, radius * part, radius * part);
    }
}

void ArenaScene::drawFigure(QPainter &painter) const
{
    const ArenaPoint feet = m_world.figure();
    const double scale = pixelsPerMetre(ArenaWorld::CameraDistance);
    const QPointF ground = project(Seen{0, 0, ArenaWorld::CameraDistance});
    const double shrink = 1 / (1 + 0.6 * feet.up);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(10, 14, 30, 120));
    painter.drawEllipse(ground, 0.42 * scale * shrink, 0.16 * scale * shrink);

    ArenaPose pose;
    pose.stride = m_world.stride();
    pose.lean = m_world.stick().x();
    pose.walking = !m_world.stick().isNull();
    pose.inAir = m_world.isInAir();
    pose.firing = std::any_of(m_world.bullets().begin(), m_world.bullets().end(),
        [](const ArenaWorld::Bullet &bullet) { return bullet.age < MuzzleFlashSeconds; });
    painter.save();
    painter.translate(ground - QPointF(0, feet.up * scale));
    painter.scale(scale / 100, scale / 100);
    drawArenaFigure(painter, pose);
    painter.restore();
}

void ArenaScene::drawBullet(QPainter &painter, const ArenaWorld::Bullet &bullet) const
{
    const auto at = [&bullet](double part) {
        return ArenaPoint{bullet.from.east + (bullet.to.east - bullet.from.east) * part,
            bullet.from.north + (bullet.to.north - bullet.from.north) * part,
            bullet.from.up + (bullet.to.up - bullet.from.up) * part};
    };
    if (bullet.age < bullet.flight) {
        const double head = bullet.age / bullet.flight;
        painter.setPen(QPen(QColor(0xFFFFE3A3), 5, Qt::SolidLine, Qt::RoundCap));
        drawLine(painter, at(std::max(0.0, head - 0.2)), at(head));
        return;
    }
    const auto middle = project(bullet.to);
    if (!middle) {
        return;
    }
    const double part = std::min(1.0, (bullet.age - bullet.flight) / ArenaWorld::BurstSeconds);
    const double radius = (bullet.hits ? 1.6 : 0.5) * pixelsPerMetre(see(bullet.to).ahead) * (0.3 + part);
    QColor colour(bullet.hits ? theme::Coral : theme::Paper);
    colour.setAlphaF(1 - part);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, bullet.hits ? 7 : 4));
    painter.drawEllipse(*middle, radius, radius);
}

void ArenaScene::drawCrosshair(QPainter &painter) const
{
    const bool sees = m_world.isTargetInSight();
    painter.save();
    painter.translate(m_screen.width() / 2.0, m_aim);
    painter.setPen(QPen(QColor(sees ? theme::Coral : theme::Paper), 4, Qt::SolidLine, Qt::RoundCap));
    for (int side = 0; side < 4; ++side) {
        painter.drawLine(QPointF(0, sees ? -12 : -14), QPointF(0, sees ? -24 : -28));
        painter.rotate(90);
    }
    painter.setPen(QPen(QColor(sees ? theme::Coral : theme::Paper), 5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(QPointF(0, 0));
    painter.restore();
}

} // namespace orvane::cloud
