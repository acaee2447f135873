#include "device/ArenaFigure.h"

#include "device/Theme.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace orvane::cloud {

namespace {

constexpr QRgb Jacket = 0xFFF07F5A;
constexpr QRgb JacketDark = 0xFFC95F3E;
constexpr QRgb Trousers = 0xFF4A5A86;
constexpr QRgb TrousersDark = 0xFF3C4A72;
constexpr QRgb Boots = 0xFF121826;
constexpr QRgb Helmet = 0xFFF1F4FA;
constexpr double StridesPerMetre = 2.4; // radians

// A leg hangs from the hip; `lift` raises its foot, in centimetres.
void drawLeg(QPainter &painter, double hip, double lift, const QColor &colour)
{
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(hip - 9, -92, 18, 80 - lift), 8, 8);
    painter.setBrush(QColor(Boots));
    painter.drawRoundedRect(QRectF(hip - 11, -20 - lift, 22, 20), 7, 7);
}

void drawArm(QPainter &painter, double shoulder, double length, double angle, const QColor &colour)
{
    painter.save();
    painter.translate(shoulder, -138);
    painter.rotate(angle);
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(-8, -6, 16, length + 6), 8, 8);
    painter.setBrush(QColor(Boots));
    painter.drawEllipse(QPointF(0, length), 8, 8);
    painter.restore();
}

// Points ahead, over the right hand.
void drawBlaster(QPainter &painter, bool firing)
{
    painter.save();
    painter.translate(50, -112);
    if (firing) {
        painter.setBrush(QColor(255, 227, 163, 150));
        painter.drawEllipse(QPointF(0, -46), 22, 22);
        painter.setBrush(QColor(0xFFFFF6DC));
        painter.drawEllipse(QPointF(0, -46), 11, 11);
    }
    painter.setBrush(QColor(0xFF8FA0C8));
    painter.drawRoundedRect(QRectF(-5, -46, 10, 24), 4, 4);
    painter.setBrush(QColor(0xFF2A3350));
    painter.drawRoundedRect(QRectF(-9, -28, 18, 32), 5, 5);
    painter.setBrush(QColor(theme::Cyan));
    painter.drawRoundedRect(QRectF(-3, -22, 6, 16), 3, 3);
    painter.restore();
}

void drawTorso(QPainter &painter)
{
    QPainterPath torso(QPointF(-30, -146));
    torso.cubicTo(-14, -154, 14, -154, 30, -146);
    torso.lineTo(22, -86);
    torso.cubicTo(10, -82, -10, -82, -22, -86);
    torso.closeSubpath();
    painter.setBrush(QColor(Jacket));
    painter.drawPath(torso);
    painter.setBrush(QColor(0xFF39435E)); // pack
    painter.drawRoundedRect(QRectF(-17, -142, 34, 44), 8, 8);
    painter.setBrush(QColor(theme::Cyan));
    painter.drawRoundedRect(QRectF(-10, -134, 20, 6), 3, 3);
    painter.drawRoundedRect(QRectF(-10, -122, 20, 6), 3, 3);
}

void drawHead(QPainter &painter)
{
    painter.setBrush(QColor(JacketDark));
    painter.drawRoundedRect(QRectF(-9, -158, 18, 14), 5, 5);
    painter.setBrush(QColor(Helmet));
    painter.drawEllipse(QPointF(0, -168), 19, 20);
    painter.setBrush(QColor(0xFFC4CEDF));
    painter.drawRoundedRect(QRectF(-19, -166, 38, 8), 4, 4);
    painter.setBrush(QColor(theme::Coral));
    painter.drawRoundedRect(QRectF(-3, -189, 6, 16), 3, 3);
}

} // namespace

void drawArenaFigure(QPainter &painter, const ArenaPose &pose)
{
    const double swing = pose.walking ? std::sin(pose.stride * StridesPerMetre) : 0;
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.rotate(5 * pose.lean);
    const double tuck = pose.inAir ? 20 : 0;
    drawLeg(painter, -12, tuck + 14 * std::max(0.0, swing), QColor(Trousers));
    drawLeg(painter, 12, tuck * 0.6 + 14 * std::max(0.0, -swing), QColor(TrousersDark));
    drawArm(painter, -31, 46, pose.inAir ? 50 : 12 + 14 * swing, QColor(JacketDark));
    drawTorso(painter);
    drawBlaster(painter, pose.firing);
    drawArm(painter, 31, 32, -36, QColor(JacketDark));
    drawHead(painter);
    painter.restore();
}

} // namespace orvane::cloud
