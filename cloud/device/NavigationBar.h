#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

class QPainter;

namespace orvane::cloud {

// The bar at the bottom of the screen: back, home and recent apps. One finger presses at a time. Used by the
// device's thread, part of the shell.
class NavigationBar
{
public:
    enum class Button {
        Back,
        Home,
        Recents,
    };

    void resize(QSize screen) { m_screen = screen; }
    QRect area() const;
    // Whether the finger is the bar's; the caller invalidates area() after each of these.
    bool touchDown(int pointerId, QPoint position);
    bool owns(int pointerId) const { return m_pointer == pointerId; }
    // The button that was clicked: pressed and left on it.
    std::optional<Button> touchUp(QPoint position);
    void touchCancel();
    void draw(QPainter &painter, const QColor &colour) const;

private:
    QPoint centre(Button button) const;
    std::optional<Button> at(QPoint position) const;

    QSize m_screen;
    int m_pointer = 0; // 0 = none
    Button m_pressed = Button::Back; // while m_pointer is set
};

} // namespace orvane::cloud
