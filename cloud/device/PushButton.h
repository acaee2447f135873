#pragma once

#include <QColor>
#include <QRect>
#include <QString>

class QPainter;

namespace orvane::cloud {

struct Pointer;

// A small button with a label inside an app: pressed while its finger is on it, clicked when the finger
// leaves the screen there. One finger at a time. Used by the device's thread, part of the app that shows it.
class PushButton
{
public:
    explicit PushButton(QString label);

    void setRect(const QRect &rect) { m_rect = rect; }
    const QRect &rect() const { return m_rect; }
    void draw(QPainter &painter, const QColor &colour) const;

    // The caller invalidates the rectangle of a button whose state changed.
    // Takes the finger if it is on the button.
    bool touchDown(const Pointer &pointer);
    bool owns(int pointerId) const { return m_pointer == pointerId; }
    // Whether this is a click.
    bool touchUp(const Pointer &pointer);
    void touchCancel(int pointerId);

private:
    const QString m_label;
    QRect m_rect;
    int m_pointer = 0; // 0 = not pressed
};

} // namespace orvane::cloud
