#include "device/AppIcon.h"

#include "device/Theme.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace orvane::cloud {

namespace {

// Icons are drawn in a square of 100 x 100 units.

void drawPlate(QPainter &painter, QRgb from, QRgb to)
{
    QLinearGradient gradient(0, 0, 100, 100);
    gradient.setColorAt(0, QColor(from));
    gradient.setColorAt(1, QColor(to));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(QRectF(0, 0, 100, 100), 26, 26);
}

void drawPaint(QPainter &painter)
{
    drawPlate(painter, 0xFFFFB79E, theme::Coral);
    QPainterPath stroke(QPointF(18, 70));
    stroke.cubicTo(34, 40, 46, 92, 58, 66);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(theme::Paper), 9, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(stroke);
    painter.save();
    painter.translate(58, 64);
    painter.rotate(38);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF5A3426)); // handle
    painter.drawRoundedRect(QRectF(-5, -62, 10, 36), 5, 5);
    painter.setBrush(QColor(0xFFFFE6DC)); // ferrule
    painter.drawRect(QRectF(-6, -30, 12, 10));
    QPainterPath tip(QPointF(-7, -20));
    tip.cubicTo(-9, -6, -4, -4, 0, 6);
    tip.cubicTo(4, -4, 9, -6, 7, -20);
    painter.setBrush(QColor(0xFF0489B5));
    painter.drawPath(tip);
    painter.restore();
}

void drawNotes(QPainter &painter)
{
    drawPlate(painter, 0xFFFFE3A3, 0xFFF7B733);
    painter.setBrush(QColor(theme::Paper));
    painter.drawRoundedRect(QRectF(25, 20, 46, 60), 7, 7);
    painter.setPen(QPen(QColor(0xFFC9D2DF), 4, Qt::SolidLine, Qt::RoundCap));
    for (const int y : {35, 47, 59}) {
        painter.drawLine(QPointF(34, y), QPointF(y == 59 ? 50 : 62, y));
    }
    painter.save();
    painter.translate(54, 74);
    painter.rotate(42);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(theme::Ink));
    painter.drawRoundedRect(QRectF(-5, -46, 10, 36), 2, 2);
    painter.setBrush(QColor(theme::Coral));
    painter.drawRoundedRect(QRectF(-5, -50, 10, 9), 3, 3);
    painter.setBrush(QColor(0xFFFFE6CC));
    painter.drawPolygon(QPolygonF() << QPointF(-5, -10) << QPointF(5, -10) << QPointF(0, 2));
    painter.restore();
}

void drawList(QPainter &painter)
{
    drawPlate(painter, 0xFF6FE0C0, 0xFF00A878);
    const QRgb dots[] = {theme::Coral, 0xFFFFE3A3, theme::Cyan};
    for (int row = 0; row < 3; ++row) {
        const qreal top = 23 + 20 * row;
        painter.setBrush(QColor(255, 255, 255, 235));
        painter.drawRoundedRect(QRectF(20, top, 60, 15), 6, 6);
        painter.setBrush(QColor(dots[row]));
        painter.drawEllipse(QRectF(23.5, top + 3, 9, 9));
        painter.setBrush(QColor(0xFFBFD9D0));
        painter.drawRoundedRect(QRectF(38, top + 5.5, row == 1 ? 26 : 34, 4), 2, 2);
    }
}

void drawVideo(QPainter &painter)
{
    drawPlate(painter, 0xFF8F80F0, 0xFF5140C8);
    painter.setBrush(QColor(255, 255, 255, 238));
    painter.drawRoundedRect(QRectF(19, 28, 62, 44), 9, 9);
    painter.setBrush(QColor(0xFF5140C8));
    for (int hole = 0; hole < 5; ++hole) {
        painter.drawRoundedRect(QRectF(24.5 + 11 * hole, 32, 6, 5), 1.5, 1.5);
        painter.drawRoundedRect(QRectF(24.5 + 11 * hole, 63, 6, 5), 1.5, 1.5);
    }
    QPainterPath triangle(QPointF(44, 41.5));
    triangle.lineTo(60, 50);
    triangle.lineTo(44, 58.5);
    triangle.closeSubpath();
    painter.setPen(QPen(QColor(theme::Coral), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(theme::Coral));
    painter.drawPath(triangle);
}

void drawLatency(QPainter &painter)
{
    drawPlate(painter, 0xFF53DDFF, 0xFF0489B5);
    painter.setBrush(QColor(theme::Paper));
    painter.drawRoundedRect(QRectF(44, 15, 12, 12), 3, 3);
    painter.save();
    painter.translate(50, 55);
    painter.rotate(42);
    painter.drawRoundedRect(QRectF(-4, -38, 8, 10), 2, 2);
    painter.restore();
    painter.drawEllipse(QPointF(50, 55), 30, 30);
    painter.setBrush(QColor(theme::Night));
    painter.drawEllipse(QPointF(50, 55), 23.5, 23.5);
    QPainterPath bolt(QPointF(54, 36));
    bolt.lineTo(39, 58);
    bolt.lineTo(49, 58);
    bolt.lineTo(46, 74);
    bolt.lineTo(61, 51);
    bolt.lineTo(51, 51);
    bolt.closeSubpath();
    painter.setPen(QPen(QColor(theme::Coral), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(theme::Coral));
    painter.drawPath(bolt);
}

void drawCamera(QPainter &painter)
{
    drawPlate(painter, 0xFFFF9FB8, 0xFFD6336C);
    painter.setBrush(QColor(theme::Paper));
    painter.drawRoundedRect(QRectF(38, 24, 24, 16), 5, 5);
    painter.drawRoundedRect(QRectF(18, 32, 64, 46), 10, 10);
    painter.setBrush(QColor(0xFF7A1E3E));
    painter.drawEllipse(QPointF(50, 55), 18, 18);
    painter.setBrush(QColor(theme::Cyan));
    painter.drawEllipse(QPointF(50, 55), 10, 10);
    painter.setBrush(QColor(255, 255, 255, 200));
    painter.drawEllipse(QPointF(46.5, 51.5), 3, 3);
    painter.setBrush(QColor(theme::Coral));
    painter.drawEllipse(QPointF(73, 41), 3, 3);
}

void drawArena(QPainter &painter)
{
    drawPlate(painter, 0xFF4A4B9A, 0xFF151B45);
    painter.setBrush(QColor(0xFFFFD6AA));
    painter.drawEllipse(QPointF(66, 40), 13, 13);
    painter.setBrush(QColor(0xFF6B5C9E));
    painter.drawPolygon(QPolygonF() << QPointF(6, 62) << QPointF(30, 42) << QPointF(50, 58) << QPointF(72, 46)
                                    << QPointF(94, 62));
    painter.setBrush(QColor(0xFF2C3A6B));
    painter.drawRect(QRectF(5, 62, 90, 14));
    painter.setPen(QPen(QColor(theme::Coral), 5, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(50, 52), 22, 22);
    painter.save();
    painter.translate(50, 52);
    for (int side = 0; side < 4; ++side) {
        painter.drawLine(QPointF(0, -32), QPointF(0, -14));
        painter.rotate(90);
    }
    painter.restore();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(theme::Paper));
    painter.drawEllipse(QPointF(50, 52), 4, 4);
}

void drawSettings(QPainter &painter)
{
    drawPlate(painter, 0xFF9AA8C2, 0xFF4A5875);
    painter.save();
    painter.translate(50, 50);
    painter.setBrush(QColor(theme::Paper));
    for (int tooth = 0; tooth < 8; ++tooth) {
        painter.drawRoundedRect(QRectF(-6, -34, 12, 16), 4, 4);
        painter.rotate(45);
    }
    painter.restore();
    painter.drawEllipse(QPointF(50, 50), 25, 25);
    painter.setBrush(QColor(0xFF5A6885));
    painter.drawEllipse(QPointF(50, 50), 13, 13);
    painter.setBrush(QColor(theme::Coral));
    painter.drawEllipse(QPointF(50, 50), 6, 6);
}

} // namespace

void drawAppIcon(QPainter &painter, AppKind kind, const QRectF &square)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / 100, square.height() / 100);
    switch (kind) {
    case AppKind::Paint:
        drawPaint(painter);
        break;
    case AppKind::Notes:
        drawNotes(painter);
        break;
    case AppKind::List:
        drawList(painter);
        break;
    case AppKind::Video:
        drawVideo(painter);
        break;
    case AppKind::Latency:
        drawLatency(painter);
        break;
    case AppKind::Camera:
        drawCamera(painter);
        break;
    case AppKind::Arena:
        drawArena(painter);
        break;
    case AppKind::Settings:
        drawSettings(painter);
        break;
    case AppKind::Home:
        break;
    }
    painter.restore();
}

} // namespace orvane::cloud
