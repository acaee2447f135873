#include "device/StatusBar.h"

#include "device/Theme.h"

#include <QPainter>

namespace orvane::cloud {

namespace {

void drawWireless(QPainter &painter, QPointF foot, const QColor &colour)
{
    painter.setBrush(Qt::NoBrush);
    for (const qreal radius : {8.0, 14.0, 20.0}) {
        painter.setPen(QPen(colour, 3, Qt::SolidLine, Qt::RoundCap));
        const QRectF circle(foot.x() - radius, foot.y() - radius, 2 * radius, 2 * radius);
        painter.drawArc(circle, 50 * 16, 80 * 16);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(foot - QPointF(0, 1.5), 2.6, 2.6);
}

void drawSignal(QPainter &painter, QPointF foot, const QColor &colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    for (int bar = 0; bar < 4; ++bar) {
        const qreal height = 6 + 4.5 * bar;
        painter.drawRoundedRect(QRectF(foot.x() + 7 * bar, foot.y() - height, 4.5, height), 1.5, 1.5);
    }
}

void drawBattery(QPainter &painter, const QRectF &box, int percent, const QColor &colour)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, 2));
    painter.drawRoundedRect(box, 5, 5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(box.right() + 2, box.center().y() - 3.5, 3, 7), 1.5, 1.5);
    QRectF charge = box.adjusted(3.5, 3.5, -3.5, -3.5);
    charge.setWidth(charge.width() * percent / 100);
    painter.drawRoundedRect(charge, 2, 2);
}

} // namespace

void drawStatusBar(
    QPainter &painter, QSize screen, const QString &time, int batteryPercent, const QColor &colour)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QFont font = theme::font(23, true);
    const qreal height = theme::StatusBarHeight;
    const qreal right = screen.width() - 28;
    theme::drawLine(painter, QRectF(28, 0, 160, height), Qt::AlignLeft, font, colour, time);
    drawBattery(painter, QRectF(right - 38, height / 2 - 9, 34, 18), batteryPercent, colour);
    theme::drawLine(painter, QRectF(right - 126, 0, 80, height), Qt::AlignRight, font, colour,
        QStringLiteral("%1%").arg(batteryPercent));
    drawSignal(painter, QPointF(right - 158, height / 2 + 9), colour);
    drawWireless(painter, QPointF(right - 190, height / 2 + 9), colour);
}

} // namespace orvane::cloud
