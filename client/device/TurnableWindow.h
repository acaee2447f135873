#pragma once

#include "stream/ScreenOrientation.h"
#include "widgets/OvWindowBase.h"

#include <QElapsedTimer>
#include <QRect>
#include <QSize>

// A window around a device's picture, which stands upright or lies on its side; the window turns with it, as
// DeviceWindowShape says, and stays on its screen. Maximised, by F11 or by the title bar's button, it keeps
// its proportions, in the middle of the screen; a window that was turned meanwhile is restored turned.
//
// While the key mapping is edited the window has the one size that this takes in its orientation.
//
// GUI thread; owned by whoever creates it.
class TurnableWindow : public OvWindowBase
{
    Q_OBJECT

public:
    // Upright at first.
    explicit TurnableWindow(QWidget *parent = nullptr);

    // How the device's screen is shown.
    ScreenOrientation orientation() const { return m_orientation; }
    bool isMaximizedInProportion() const { return m_maximized; }
    // Whether the window has the shape for editing the key mapping.
    bool hasEditingShape() const { return m_hasEditingShape; }

protected:
    void turnTo(ScreenOrientation orientation);
    // Does nothing in the shape for editing.
    void toggleMaximized();
    // Gives the window the shape for editing the key mapping, or that of a new window; one that was maximised
    // before is maximised again then.
    void setEditingShape(bool editing);

    void mousePressEvent(QMouseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private:
    void maximize();
    void restore();
    void fillScreen();
    void applyContent(const QSize &content);
    QSize normalContentSize() const;
    void moveInto(const QRect &area);
    // Puts the window where it belongs, also against late answers of the window system to what was asked of
    // it before: they would move it back.
    void place(const QRect &geometry);

    ScreenOrientation m_orientation = ScreenOrientation::Portrait;
    ScreenOrientation m_maximizedOrientation = ScreenOrientation::Portrait; // when it was maximised
    bool m_maximized = false;
    bool m_hasEditingShape = false;
    bool m_wasMaximized = false; // before it got the shape for editing
    QRect m_placed;
    QElapsedTimer m_sincePlaced;
    int m_placings = 0; // how often it may be put there again
};
