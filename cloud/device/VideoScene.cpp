#include "device/VideoScene.h"

#include "device/Theme.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QTransform>

#include <libyuv/scale_argb.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <tuple>
#include <utility>

namespace orvane::cloud {

namespace {

constexpr int LayerWidth = 1920; // pixels; then it repeats
constexpr qreal Turn = 6.283185307179586;
constexpr int GrainTile = 256; // pixels
constexpr double GrainStrength = 5; // standard deviation, of 255
// Drawn at this share of its size or less, the film uses layers that are scaled once.
constexpr qreal LargestMiniature = 0.5;
constexpr std::size_t MaxMiniatures = 16; // of the process; viewers choose their sizes

struct HillStyle
{
    qreal top; // of the screen's height
    qreal height; // of the ridge's ups and downs, of the screen's height
    int waves; // over the layer's width
    QRgb colour;
    QRgb footColour;
    int speed; // pixels per frame
    int trees;
};

constexpr std::array<HillStyle, 4> Hills{{
    {0.50, 0.10, 5, 0xFF8C7FB8, 0xFFD79AA0, 1, 0},
    {0.60, 0.07, 4, 0xFF5C6AA8, 0xFF8F86B5, 2, 0},
    {0.70, 0.06, 3, 0xFF2F5F86, 0xFF44789A, 4, 26},
    {0.83, 0.045, 2, 0xFF163B55, 0xFF0E2438, 8, 15},
}};

// Height of a ridge, -1 to 1, repeating after the layer's width.
qreal ridge(const HillStyle &style, int x)
{
    const qreal phase = Turn * x / LayerWidth;
    return 0.55 * std::sin(style.waves * phase + style.waves) + 0.3 * std::sin((2 * style.waves + 1) * phase)
        + 0.15 * std::sin((5 * style.waves + 2) * phase + 1);
}

void drawTree(QPainter &painter, QPointF foot, qreal height, const QColor &colour)
{
    painter.setBrush(colour);
    painter.drawRect(QRectF(foot.x() - height * 0.04, foot.y() - height * 0.3, height * 0.08, height * 0.34));
    for (int tier = 0; tier < 3; ++tier) {
        const qreal base = foot.y() - height * (0.2 + 0.24 * tier);
        const qreal half = height * (0.26 - 0.06 * tier);
        painter.drawPolygon(QPolygonF() << QPointF(foot.x() - half, base) << QPointF(foot.x() + half, base)
                                        << QPointF(foot.x(), base - height * 0.36));
    }
}

QImage transparent(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage scaledOnce(const QImage &image, QSize size)
{
    QImage small(size, image.format());
    libyuv::ARGBScale(image.constBits(), image.bytesPerLine(), image.width(), image.height(), small.bits(),
        small.bytesPerLine(), size.width(), size.height(), libyuv::kFilterBox);
    return small;
}

// By halves, since more at once would leave pixels out. Not with QImage::scaled(), which would start threads
// of its own.
QImage scaledDown(QImage image, QSize size)
{
    while (image.width() > 2 * size.width() || image.height() > 2 * size.height()) {
        image = scaledOnce(image,
            {std::max(size.width(), (image.width() + 1) / 2),
                std::max(size.height(), (image.height() + 1) / 2)});
    }
    return scaledOnce(image, size);
}

QImage makeBalloon(const QColor &light, const QColor &dark, int width)
{
    QImage image = transparent({width, width * 3 / 2});
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width / 100.0, width / 100.0);
    QPainterPath hull(QPointF(50, 112));
    hull.cubicTo(36, 96, 4, 84, 4, 50);
    hull.cubicTo(4, 20, 24, 3, 50, 3);
    hull.cubicTo(76, 3, 96, 20, 96, 50);
    hull.cubicTo(96, 84, 64, 96, 50, 112);
    painter.setClipPath(hull);
    painter.fillRect(0, 0, 100, 150, light);
    painter.setPen(Qt::NoPen);
    painter.setBrush(dark);
    painter.drawEllipse(QRectF(34, -10, 32, 140));
    painter.setBrush(QColor(255, 255, 255, 60));
    painter.drawEllipse(QRectF(14, 10, 26, 60));
    painter.setClipping(false);
    painter.setPen(QPen(QColor(theme::Night), 1.5));
    painter.drawLine(42, 108, 44, 126);
    painter.drawLine(58, 108, 56, 126);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF7A4B32));
    painter.drawRoundedRect(QRectF(41, 125, 18, 14), 3, 3);
    return image;
}

} // namespace

const VideoScene &VideoScene::forScreen(QSize screen)
{
    static std::mutex mutex;
    static std::map<std::pair<int, int>, std::unique_ptr<const VideoScene>> bySize;
    const std::lock_guard lock(mutex);
    std::unique_ptr<const VideoScene> &scene = bySize[{screen.width(), screen.height()}];
    if (!scene) {
        scene = std::make_unique<const VideoScene>(screen);
    }
    return *scene;
}

const VideoScene *VideoScene::miniature(QSize screen, QSize size)
{
    using Key = std::tuple<int, int, int, int>;
    static std::mutex mutex;
    static std::map<Key, std::unique_ptr<const VideoScene>> bySize;
    const VideoScene &full = forScreen(screen);
    const std::lock_guard lock(mutex);
    const Key key{screen.width(), screen.height(), size.width(), size.height()};
    const auto found = bySize.find(key);
    if (found != bySize.end()) {
        return found->second.get();
    }
    if (bySize.size() >= MaxMiniatures) {
        return nullptr;
    }
    // The constructor is private.
    return bySize.emplace(key, std::unique_ptr<const VideoScene>(new VideoScene(full, size)))
        .first->second.get();
}

VideoScene::VideoScene(QSize screen)
    : m_screen(screen)
    , m_sky(makeSky())
{
    m_layers[0] = makeClouds();
    for (int i = 0; i < static_cast<int>(Hills.size()); ++i) {
        m_layers.at(static_cast<std::size_t>(i) + 1) = makeHills(i);
    }
    m_grain = {makeGrain(1), makeGrain(2), makeGrain(3)};
    m_balloons = {Balloon{makeBalloon(QColor(theme::Coral), QColor(0xFFFFD1BF), 150), 150},
        Balloon{makeBalloon(QColor(theme::Cyan), QColor(0xFFB5F0FF), 96), 96}};
}

VideoScene::VideoScene(const VideoScene &full, QSize size)
    : m_screen(full.m_screen)
    , m_scale(static_cast<qreal>(size.width()) / m_screen.width(),
          static_cast<qreal>(size.height()) / m_screen.height())
    , m_sky(scaledDown(full.m_sky, size))
    , m_layers(full.m_layers)
    , m_balloons(full.m_balloons)
{
    const auto inSmall = [this](const QImage &image) {
        const QPoint corner = scaled(image.width(), image.height());
        return scaledDown(image, QSize(corner.x(), corner.y()).expandedTo(QSize(1, 1)));
    };
    for (Layer &layer : m_layers) {
        layer.image = inSmall(layer.image);
    }
    for (Balloon &balloon : m_balloons) {
        balloon.image = inSmall(balloon.image);
    }
}

// Lighter and darker specks, strongest where the film is neither black nor white.
QImage VideoScene::makeGrain(unsigned seed)
{
    QImage image = transparent({GrainTile, GrainTile});
    std::mt19937 random(seed);
    std::normal_distribution<double> speck(0, GrainStrength);
    for (int y = 0; y < GrainTile; ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < GrainTile; ++x) {
            const int strength = std::clamp(static_cast<int>(std::lround(speck(random))) * 2, -120, 120);
            row[x] = strength > 0 ? qRgba(strength, strength, strength, strength) : qRgba(0, 0, 0, -strength);
        }
    }
    return image;
}

QImage VideoScene::makeSky() const
{
    QImage image(m_screen, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, m_screen.height() * 0.66);
    sky.setColorAt(0, QColor(0xFF2B3A78));
    sky.setColorAt(0.45, QColor(0xFF7C6BB0));
    sky.setColorAt(0.8, QColor(0xFFFFA98A));
    sky.setColorAt(1, QColor(0xFFFFD9A8));
    painter.fillRect(image.rect(), sky);
    const QPointF sun(m_screen.width() * 0.66, m_screen.height() * 0.42);
    QRadialGradient glow(sun, m_screen.height() * 0.3);
    glow.setColorAt(0, QColor(255, 240, 200, 210));
    glow.setColorAt(1, QColor(255, 220, 170, 0));
    painter.fillRect(image.rect(), glow);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFFFFF4D8));
    painter.drawEllipse(sun, m_screen.height() * 0.055, m_screen.height() * 0.055);
    return image;
}

VideoScene::Layer VideoScene::makeClouds() const
{
    const int height = m_screen.height() * 2 / 5;
    Layer layer{transparent({LayerWidth, height}), m_screen.height() / 16, 1};
    QPainter painter(&layer.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    std::mt19937 random(7);
    for (int cloud = 0; cloud < 7; ++cloud) {
        const qreal scale = 0.6 + random() % 100 / 130.0;
        const QPointF place(
            150 + cloud * (LayerWidth - 300) / 6.5, 50 + random() % static_cast<unsigned>(height - 110));
        painter.setBrush(QColor(255, 255, 255, 70 + static_cast<int>(random() % 70)));
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        path.addRoundedRect(
            QRectF(place.x() - 100 * scale, place.y(), 200 * scale, 34 * scale), 17 * scale, 17 * scale);
        path.addEllipse(place + QPointF(-38, 4) * scale, 40 * scale, 34 * scale);
        path.addEllipse(place + QPointF(18, -6) * scale, 52 * scale, 44 * scale);
        painter.drawPath(path.simplified());
    }
    return layer;
}

VideoScene::Layer VideoScene::makeHills(int index) const
{
    const HillStyle &style = Hills.at(static_cast<std::size_t>(index));
    const bool nearest = index + 1 == static_cast<int>(Hills.size());
    const qreal swing = style.height * m_screen.height();
    const qreal treeHeight = style.trees > 0 ? m_screen.height() * (nearest ? 0.09 : 0.045) : 0;
    const int base = static_cast<int>(swing + treeHeight) + 2; // of the ridge's middle, from the layer's top
    const int top = static_cast<int>(style.top * m_screen.height()) - base;
    // Down to where the next layer surely covers it.
    const qreal bottom = nearest ? 1.0
                                 : Hills.at(static_cast<std::size_t>(index) + 1).top
            + Hills.at(static_cast<std::size_t>(index) + 1).height + 0.01;
    Layer layer{
        transparent({LayerWidth, static_cast<int>(bottom * m_screen.height()) - top}), top, style.speed};
    QPainter painter(&layer.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const auto ridgeAt = [&](int x) { return base - swing * ridge(style, x); };
    std::mt19937 random(static_cast<unsigned>(index));
    for (int tree = 0; tree < style.trees; ++tree) {
        const int x = static_cast<int>(treeHeight) / 2
            + (LayerWidth - static_cast<int>(treeHeight)) * tree / style.trees
            + static_cast<int>(random() % 40);
        const qreal height = treeHeight * (0.7 + random() % 30 / 100.0);
        drawTree(painter, QPointF(x, ridgeAt(x) + 4), height, QColor(style.colour).darker(118));
    }
    QPolygonF hill;
    for (int x = 0; x <= LayerWidth; x += 4) {
        hill << QPointF(x, ridgeAt(x));
    }
    hill << QPointF(LayerWidth, layer.image.height()) << QPointF(0, layer.image.height());
    QLinearGradient shade(0, base - swing, 0, layer.image.height());
    shade.setColorAt(0, QColor(style.colour));
    shade.setColorAt(1, QColor(style.footColour));
    painter.setBrush(shade);
    painter.drawPolygon(hill);
    return layer;
}

void VideoScene::draw(QPainter &painter, int frame) const
{
    const QTransform transform = painter.deviceTransform();
    const qreal scaleX = std::hypot(transform.m11(), transform.m12());
    const qreal scaleY = std::hypot(transform.m21(), transform.m22());
    if (std::max(scaleX, scaleY) <= LargestMiniature) {
        const QSize size(qRound(m_screen.width() * scaleX), qRound(m_screen.height() * scaleY));
        const VideoScene *small = size.isEmpty() ? nullptr : miniature(m_screen, size);
        if (small) {
            painter.save();
            painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
            painter.scale(1 / scaleX, 1 / scaleY);
            small->drawLayers(painter, frame);
            painter.restore();
            return;
        }
    }
    drawLayers(painter, frame);
    // Never twice in the same place in a row.
    painter.setBrushOrigin(frame * 97 % GrainTile, frame * 61 % GrainTile);
    painter.fillRect(
        QRect(QPoint(), m_screen), QBrush(m_grain.at(static_cast<std::size_t>(frame) % m_grain.size())));
    painter.setBrushOrigin(0, 0);
}

QPoint VideoScene::scaled(int x, int y) const
{
    return {qRound(x * m_scale.width()), qRound(y * m_scale.height())};
}

void VideoScene::drawLayers(QPainter &painter, int frame) const
{
    painter.drawImage(0, 0, m_sky);
    for (std::size_t i = 0; i < m_layers.size(); ++i) {
        const Layer &layer = m_layers.at(i);
        const auto shift = static_cast<int>(static_cast<std::int64_t>(frame) * layer.speed % LayerWidth);
        const QPoint first = scaled(-shift, layer.top);
        for (int x = first.x(); x < m_sky.width(); x += layer.image.width()) {
            painter.drawImage(x, first.y(), layer.image);
        }
        if (i == 2) {
            drawBalloons(painter, frame);
        }
    }
}

void VideoScene::drawBalloons(QPainter &painter, int frame) const
{
    for (std::size_t i = 0; i < m_balloons.size(); ++i) {
        const Balloon &balloon = m_balloons.at(i);
        const int way = m_screen.width() + 2 * balloon.width;
        const std::int64_t start = static_cast<std::int64_t>(i + 1) * way / 3;
        const std::int64_t speed = i == 0 ? 3 : 2;
        const int x = static_cast<int>((frame * speed + start) % way) - balloon.width;
        const qreal swing = std::sin(Turn * (frame % 250) / 250.0 + static_cast<qreal>(i) * 2);
        const int y
            = static_cast<int>(m_screen.height() * (i == 0 ? 0.27 : 0.16) + swing * m_screen.height() * 0.04);
        painter.drawImage(scaled(x, y), balloon.image);
    }
}

} // namespace orvane::cloud
