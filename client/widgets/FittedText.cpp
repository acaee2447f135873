#include "widgets/FittedText.h"

#include <QFontMetrics>
#include <QString>

namespace FittedText {

QFont onOneLine(const QFont &font, const QString &text, int room, int pixels, int smallestPixels)
{
    QFont fitted = font;
    fitted.setPixelSize(pixels);
    while (pixels > smallestPixels && QFontMetrics(fitted).horizontalAdvance(text) > room)
        fitted.setPixelSize(--pixels);
    return fitted;
}

QFont wrapped(const QFont &font, const QString &text, const QSize &room, int pixels, int smallestPixels)
{
    QFont fitted = font;
    fitted.setPixelSize(pixels);
    const auto fits = [&] {
        const QRect needed = QFontMetrics(fitted).boundingRect(
            QRect(0, 0, room.width(), 0), Qt::AlignHCenter | Qt::TextWordWrap, text);
        return needed.width() <= room.width() && needed.height() <= room.height();
    };
    while (pixels > smallestPixels && !fits())
        fitted.setPixelSize(--pixels);
    return fitted;
}

} // namespace FittedText
