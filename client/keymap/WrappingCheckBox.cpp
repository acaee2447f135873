#include "keymap/WrappingCheckBox.h"

#include <QEvent>
#include <QPainter>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr int BoxExtent = 16;
constexpr int BoxRadius = 3;
constexpr int Gap = 8; // between box and text
constexpr int LeastHeight = 20;
constexpr int UsualTextWidth = 230;
constexpr int LeastTextWidth = 60;
constexpr double TickPen = 2.0;
constexpr double DisabledOpacity = 0.35;
constexpr QRgb Accent = qRgb(0x07, 0xCC, 0xFB);
constexpr QRgb Edge = qRgb(0x90, 0x93, 0x99);
constexpr int TextFlags = static_cast<int>(Qt::TextWordWrap) | static_cast<int>(Qt::AlignLeft);
} // namespace Look

} // namespace

WrappingCheckBox::WrappingCheckBox(QWidget *parent)
    : QCheckBox(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAttribute(Qt::WA_Hover);
}

WrappingCheckBox::~WrappingCheckBox() = default;

QRect WrappingCheckBox::textRect(int width) const
{
    const int room = qMax(Look::LeastTextWidth, width - Look::BoxExtent - Look::Gap);
    return fontMetrics().boundingRect(QRect(0, 0, room, 0), Look::TextFlags, text());
}

int WrappingCheckBox::heightForWidth(int width) const
{
    return qMax(Look::LeastHeight, textRect(width).height() + 2);
}

QSize WrappingCheckBox::sizeHint() const
{
    const int width = Look::BoxExtent + Look::Gap + Look::UsualTextWidth;
    return {width, heightForWidth(width)};
}

QSize WrappingCheckBox::minimumSizeHint() const
{
    return {Look::BoxExtent + Look::Gap + Look::LeastTextWidth, Look::LeastHeight};
}

bool WrappingCheckBox::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void WrappingCheckBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QCheckBox::changeEvent(event);
}

// The box stands beside the first line.
void WrappingCheckBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(Look::DisabledOpacity);
    const QRect textSize = textRect(width());
    const int textTop = qMax(0, (height() - textSize.height()) / 2);
    const int lineHeight = qMin(fontMetrics().height(), height());
    const int boxTop = textTop + (lineHeight - Look::BoxExtent) / 2;
    const QRectF box(0.5, boxTop + 0.5, Look::BoxExtent - 1, Look::BoxExtent - 1);
    const bool isHot = isChecked() || (isEnabled() && underMouse());
    painter.setPen(QColor::fromRgb(isHot ? Look::Accent : Look::Edge));
    painter.setBrush(isChecked() ? QColor::fromRgb(Look::Accent) : QColor(Qt::transparent));
    painter.drawRoundedRect(box, Look::BoxRadius, Look::BoxRadius);
    if (isChecked()) {
        painter.setPen(QPen(Qt::white, Look::TickPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({box.topLeft() + QPointF(3.5, 7.5), box.topLeft() + QPointF(6.5, 10.5),
            box.topLeft() + QPointF(11.5, 4.5)}));
    }
    painter.setPen(Qt::white);
    const int left = Look::BoxExtent + Look::Gap;
    painter.drawText(QRect(left, textTop, width() - left, height() - textTop), Look::TextFlags, text());
}
