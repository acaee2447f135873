#pragma once

#include <QPoint>
#include <QPointF>
#include <QPointer>

class QWidget;

// The mouse pointer while it turns the view instead of pointing: it is held at one place, and only the way it
// goes counts. The widget sees every move and shows no pointer; when the object goes, the pointer stands
// where it was before and looks as usual, and the widget tracks the mouse as it did before.
//
// GUI thread; owned by whoever needs the way.
class CapturedCursor
{
public:
    // Remembers where the pointer is and moves it to `place` (screen coordinates).
    CapturedCursor(QWidget *widget, const QPoint &place);
    ~CapturedCursor();
    CapturedCursor(const CapturedCursor &) = delete;
    CapturedCursor &operator=(const CapturedCursor &) = delete;

    // Hides the pointer over the widget, and lets the widget see the moves without a button.
    void hide();
    // How far the pointer has gone since the last call, in pixels of the widget's coordinates, and back to
    // `place` with it. Moves that were on their way when the pointer was put back count once: a call for each
    // of them gives (0, 0) from the second on.
    QPointF takeWay(const QPoint &place);

private:
    void holdAt(const QPoint &place);

    QPointer<QWidget> m_widget; // not owned
    bool m_isHidden = false; // hide() was called
    bool m_wasTracking = false; // the widget's, before hide()
    QPointF m_savedPosition; // global position of the pointer before
    QPoint m_place; // where the pointer was asked to be
    QPoint m_rest; // where it came to rest then, in the display's own pixels
};
