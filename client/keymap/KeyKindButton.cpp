#include "keymap/KeyKindButton.h"

#include "widgets/FittedText.h"

#include <QIcon>
#include <QPainter>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr QSize Usual(84, 62);
constexpr int IconExtent = 26;
constexpr int IconTop = 5;
constexpr int Margin = 3;
constexpr int TextPixels = 12;
constexpr int SmallestTextPixels = 9;
constexpr int CornerRadius = 6;
constexpr double DisabledOpacity = 0.35;
constexpr QRgb Ground = qRgb(0x2C, 0x2D, 0x42);
constexpr QRgb HoverGround = qRgb(0x3A, 0x3C, 0x55);
constexpr QRgb Accent = qRgb(0x07, 0xCC, 0xFB);
} // namespace Look

} // namespace

KeyKindButton::KeyKindButton(const QString &iconPath, QWidget *parent)
    : QPushButton(parent)
{
    setIcon(QIcon(iconPath));
    setIconSize({Look::IconExtent, Look::IconExtent});
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
}

KeyKindButton::~KeyKindButton() = default;

QSize KeyKindButton::sizeHint() const
{
    return Look::Usual;
}

QSize KeyKindButton::minimumSizeHint() const
{
    return Look::Usual;
}

void KeyKindButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isHot = isEnabled() && underMouse();
    if (!isEnabled())
        painter.setOpacity(Look::DisabledOpacity);
    painter.setPen(isHot ? QPen(QColor::fromRgb(Look::Accent)) : QPen(Qt::NoPen));
    painter.setBrush(QColor::fromRgb(isHot && !isDown() ? Look::HoverGround : Look::Ground));
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Look::CornerRadius, Look::CornerRadius);

    icon().paint(
        &painter, QRect((width() - Look::IconExtent) / 2, Look::IconTop, Look::IconExtent, Look::IconExtent));
    const int textTop = Look::IconTop + Look::IconExtent;
    const QRect textRect(
        Look::Margin, textTop, width() - 2 * Look::Margin, height() - textTop - Look::Margin + 1);
    painter.setFont(
        FittedText::wrapped(font(), text(), textRect.size(), Look::TextPixels, Look::SmallestTextPixels));
    painter.setPen(Qt::white);
    painter.drawText(textRect, Qt::AlignCenter | Qt::TextWordWrap, text());
}
