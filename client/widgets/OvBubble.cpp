#include "widgets/OvBubble.h"

#include "widgets/Compositing.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

namespace {

// Sizes in pixels and colours that make the bubble look as designed.
namespace Look {
constexpr int margin = 2; // around the content, besides the arrow
constexpr int arrowSize = 10;
constexpr int arrowHalfWidth = 5;
constexpr int cornerRadius = 4;
constexpr QRgb color = qRgb(48, 49, 51);
} // namespace Look

OvBubble::ArrowDirection opposite(OvBubble::ArrowDirection direction)
{
    return static_cast<OvBubble::ArrowDirection>((direction + 2) % 4);
}

// A position within a range, its beginning if the range is too short.
int within(int position, int first, int last)
{
    return qMax(first, qMin(position, last));
}

} // namespace

OvBubble::OvBubble(QWidget *parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint)
    , m_layout(new QVBoxLayout(this))
    , m_color(QColor::fromRgb(Look::color))
    , m_arrowSize(Look::arrowSize)
    , m_arrowHalfWidth(Look::arrowHalfWidth)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    m_layout->setSpacing(0);
    m_layout->setSizeConstraint(QLayout::SetFixedSize);
    updateMargins();
}

OvBubble::~OvBubble() = default;

void OvBubble::setContentWidget(QWidget *content)
{
    if (content == m_content)
        return;
    delete m_content;
    m_content = content;
    if (m_content)
        m_layout->addWidget(m_content);
}

void OvBubble::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void OvBubble::setArrowDirection(ArrowDirection direction)
{
    m_wantedDirection = direction;
    m_pointedPosition.reset();
    showArrowOn(direction);
}

void OvBubble::setArrowSize(int size, int halfWidth)
{
    m_arrowSize = qMax(0, size);
    m_arrowHalfWidth = qMax(0, halfWidth);
    updateMargins();
}

void OvBubble::setArrowPosition(std::optional<int> position)
{
    m_arrowPosition = position;
    m_pointedPosition.reset();
    updateShape();
}

bool OvBubble::arrowIsHorizontal() const
{
    return m_shownDirection == ArrowLeft || m_shownDirection == ArrowRight;
}

void OvBubble::showArrowOn(ArrowDirection direction)
{
    m_shownDirection = direction;
    updateMargins();
}

void OvBubble::updateMargins()
{
    const auto margin
        = [this](ArrowDirection side) { return Look::margin + (m_shownDirection == side ? m_arrowSize : 0); };
    m_layout->setContentsMargins(margin(ArrowLeft), margin(ArrowUp), margin(ArrowRight), margin(ArrowDown));
    m_layout->activate();
    updateShape();
}

// The bubble's position with its arrow's tip in the middle of the facing edge.
QPoint OvBubble::placeBeside(const QRect &target) const
{
    const QPoint middle(target.x() + target.width() / 2, target.y() + target.height() / 2);
    switch (m_shownDirection) {
    case ArrowUp:
        return {middle.x() - width() / 2, target.y() + target.height()};
    case ArrowRight:
        return {target.x() - width(), middle.y() - height() / 2};
    case ArrowDown:
        return {middle.x() - width() / 2, target.y() - height()};
    case ArrowLeft:
        break;
    }
    return {target.x() + target.width(), middle.y() - height() / 2};
}

void OvBubble::pointAt(const QRect &target)
{
    const QScreen *holder = QGuiApplication::screenAt(target.center());
    const QRect available = (holder ? holder : screen())->availableGeometry();
    const auto fits = [&](const QPoint &pos) {
        return arrowIsHorizontal()
            ? pos.x() >= available.left() && pos.x() + width() <= available.right() + 1
            : pos.y() >= available.top() && pos.y() + height() <= available.bottom() + 1;
    };
    m_layout->invalidate();
    showArrowOn(m_wantedDirection);
    if (!fits(placeBeside(target))) {
        showArrowOn(opposite(m_wantedDirection));
        if (!fits(placeBeside(target)))
            showArrowOn(m_wantedDirection);
    }
    const QPoint wanted = placeBeside(target);
    const QPoint pos(within(wanted.x(), available.left(), available.right() + 1 - width()),
        within(wanted.y(), available.top(), available.bottom() + 1 - height()));
    m_pointedPosition = arrowIsHorizontal() ? target.y() + target.height() / 2 - pos.y()
                                            : target.x() + target.width() / 2 - pos.x();
    move(pos);
    updateShape();
}

QRectF OvBubble::body() const
{
    const auto arrow = [this](ArrowDirection side) { return m_shownDirection == side ? m_arrowSize : 0; };
    return QRectF(rect()).adjusted(arrow(ArrowLeft), arrow(ArrowUp), -arrow(ArrowRight), -arrow(ArrowDown));
}

QPainterPath OvBubble::shape() const
{
    const QRectF box = body();
    const double length = arrowIsHorizontal() ? height() : width();
    const double offCorner = Look::cornerRadius + m_arrowHalfWidth;
    double tip = length / 2;
    if (m_pointedPosition || m_arrowPosition)
        tip = m_pointedPosition ? *m_pointedPosition : *m_arrowPosition;
    tip = length > 2 * offCorner ? qBound(offCorner, tip, length - offCorner) : length / 2;

    // The arrow on the upper side of a box, turned to the side that carries it.
    const auto onSide = [this, &box](double along, double out) {
        switch (m_shownDirection) {
        case ArrowUp:
            return QPointF(along, box.top() - out);
        case ArrowRight:
            return QPointF(box.right() + out, along);
        case ArrowDown:
            return QPointF(along, box.bottom() + out);
        case ArrowLeft:
            break;
        }
        return QPointF(box.left() - out, along);
    };
    QPainterPath path;
    path.addRoundedRect(box, Look::cornerRadius, Look::cornerRadius);
    QPainterPath arrow;
    arrow.addPolygon(QVector<QPointF>{onSide(tip - m_arrowHalfWidth, -1), onSide(tip - m_arrowHalfWidth, 0),
        onSide(tip, m_arrowSize), onSide(tip + m_arrowHalfWidth, 0), onSide(tip + m_arrowHalfWidth, -1)});
    arrow.closeSubpath();
    return m_arrowSize > 0 && m_arrowHalfWidth > 0 ? path.united(arrow) : path;
}

// Only a shown bubble needs to know whether it is composed with what lies behind.
void OvBubble::updateShape()
{
    if (isVisible())
        Compositing::setShape(this, shape());
    update();
}

void OvBubble::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Where the window is cut to its shape, there is nothing for a smooth edge to be mixed with.
    if (mask().isEmpty())
        painter.fillPath(shape(), m_color);
    else
        painter.fillRect(rect(), m_color);
}

void OvBubble::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    updateShape();
}

void OvBubble::showEvent(QShowEvent *event)
{
    Compositing::setShape(this, shape());
    QWidget::showEvent(event);
}
