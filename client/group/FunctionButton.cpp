#include "group/FunctionButton.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr int IconExtent = 16;
constexpr int ButtonHeight = 36;
constexpr qreal LetterSpacing = 96; // percent; so that the English texts fit beside each other
constexpr int LeastWidth = 28; // to be hit by the mouse
constexpr int IconTop = 3; // above a text
constexpr int CornerRadius = 4;
constexpr QRgb HoverColour = qRgba(255, 255, 255, 36);
constexpr QRgb PressedColour = qRgba(255, 255, 255, 20);
constexpr double DisabledOpacity = 0.35;
} // namespace Look

} // namespace

FunctionButton::FunctionButton(const QString &iconPath, QWidget *parent)
    : QPushButton(parent)
{
    setIcon(QIcon(iconPath));
    setIconSize({Look::IconExtent, Look::IconExtent});
    setFixedSize(Look::LeastWidth, Look::ButtonHeight);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
}

FunctionButton::~FunctionButton() = default;

QFont FunctionButton::textFont(int pixels) const
{
    QFont result = font();
    result.setPixelSize(pixels);
    result.setLetterSpacing(QFont::PercentageSpacing, Look::LetterSpacing);
    return result;
}

int FunctionButton::widthFor(int pixels) const
{
    const int textWidth = pixels > 0 ? QFontMetrics(textFont(pixels)).horizontalAdvance(text()) + 1 : 0;
    return qMax(textWidth, Look::LeastWidth);
}

void FunctionButton::setTextPixels(int pixels)
{
    m_textPixels = pixels;
    setFixedWidth(widthFor(pixels));
    setToolTip(pixels > 0 ? QString() : text());
    update();
}

void FunctionButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDown() || (isEnabled() && underMouse())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgba(isDown() ? Look::PressedColour : Look::HoverColour));
        painter.drawRoundedRect(rect(), Look::CornerRadius, Look::CornerRadius);
    }
    if (!isEnabled())
        painter.setOpacity(Look::DisabledOpacity);
    QRect iconRect(QPoint(0, 0), iconSize());
    iconRect.moveCenter(rect().center());
    if (m_textPixels > 0) {
        iconRect.moveTop(Look::IconTop);
        painter.setFont(textFont(m_textPixels));
        painter.setPen(Qt::white);
        const QRect textRect(0, iconRect.bottom() + 1, width(), height() - iconRect.bottom() - 1);
        painter.drawText(textRect, Qt::AlignCenter, text());
    }
    icon().paint(&painter, iconRect);
}
