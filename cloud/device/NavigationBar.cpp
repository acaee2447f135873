#include "device/NavigationBar.h"

#include "device/Theme.h"

#include <QPainter>

#include <array>
#include <cstdlib>

namespace orvane::cloud {

namespace {

using Button = NavigationBar::Button;

constexpr std::array<Button, 3> Buttons{Button::Back, Button::Home, Button::Recents};
constexpr int Distance = 200; // pixels between the buttons' centres
constexpr int HalfTouchWidth = 90;

} // namespace

QRect NavigationBar::area() const
{
    return {0, m_screen.height() - theme::NavigationBarHeight, m_screen.width(), theme::NavigationBarHeight};
}

QPoint NavigationBar::centre(Button button) const
{
    return area().center() + QPoint((static_cast<int>(button) - 1) * Distance, 0);
}

std::optional<Button> NavigationBar::at(QPoint position) const
{
    for (const Button button : Buttons) {
        if (area().contains(position) && std::abs(position.x() - centre(button).x()) <= HalfTouchWidth) {
            return button;
        }
    }
    return std::nullopt;
}

bool NavigationBar::touchDown(int pointerId, QPoint position)
{
    const auto button = at(position);
    if (m_pointer != 0 || !button) {
        return false;
    }
    m_pointer = pointerId;
    m_pressed = *button;
    return true;
}

std::optional<Button> NavigationBar::touchUp(QPoint position)
{
    m_pointer = 0;
    return at(position) == m_pressed ? std::optional(m_pressed) : std::nullopt;
}

void NavigationBar::touchCancel()
{
    m_pointer = 0;
}

void NavigationBar::draw(QPainter &painter, const QColor &colour) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_pointer != 0) {
        QColor press = colour;
        press.setAlpha(50);
        painter.setPen(Qt::NoPen);
        painter.setBrush(press);
        painter.drawRoundedRect(QRectF(centre(m_pressed) - QPoint(70, 34), QSizeF(140, 68)), 34, 34);
    }
    painter.setPen(QPen(colour, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const QPointF back = centre(Button::Back);
    painter.drawPolygon(
        QPolygonF() << back + QPointF(-14, 0) << back + QPointF(9, -14) << back + QPointF(9, 14));
    painter.drawEllipse(QPointF(centre(Button::Home)), 14, 14);
    painter.drawRoundedRect(QRectF(centre(Button::Recents) - QPoint(12, 12), QSizeF(25, 25)), 5, 5);
}

} // namespace orvane::cloud
