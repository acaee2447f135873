#pragma once

#include <QPoint>
#include <QTimer>

class QWidget;

// Moves a window by the offsets that its page sends while it is dragged. The window system reports positions
// late: an offset that comes before the report of an earlier move counts from where that move leads, so that
// nothing is lost however fast they follow each other.
//
// GUI thread; part of its window.
class RelativeMove
{
public:
    explicit RelativeMove(QWidget *window);

    void moveBy(const QPoint &offset);
    // The window has been placed in another way: the next offset counts from where it is.
    void reset();

private:
    QWidget *m_window;
    QPoint m_target;
    QTimer m_settle; // runs while a move may be under way; in a stalled program it does not run out
};
