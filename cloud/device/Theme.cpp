#include "device/Theme.h"

#include <QFontMetricsF>
#include <QPainter>

namespace orvane::cloud::theme {

QFont font(int pixelSize, bool bold)
{
    static const QStringList families{QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans CJK SC"),
        QStringLiteral("Noto Sans Arabic"), QStringLiteral("Noto Sans Thai"),
        QStringLiteral("Noto Color Emoji"), QStringLiteral("DejaVu Sans")};
    QFont font;
    font.setFamilies(families);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    return font;
}

void drawLine(QPainter &painter, const QRectF &rect, Qt::Alignment horizontal, const QFont &font,
    const QColor &colour, const QString &text)
{
    const QString fitting = QFontMetricsF(font).elidedText(text, Qt::ElideRight, rect.width());
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(rect, static_cast<int>(horizontal) | Qt::AlignVCenter | Qt::TextSingleLine, fitting);
}

void drawTitle(QPainter &painter, const QString &title, const QColor &colour)
{
    drawLine(painter, QRectF(Margin, StatusBarHeight, 280, HeaderHeight), Qt::AlignLeft, font(40, true),
        colour, title);
}

void drawPill(QPainter &painter, const QRectF &rect, const QColor &background, const QColor &colour,
    const QString &text)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(background);
    painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    drawLine(painter, rect, Qt::AlignHCenter, font(24), colour, text);
}

} // namespace orvane::cloud::theme
