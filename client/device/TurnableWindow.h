#pragma once

#include "stream/ScreenOrientation.h"
#include "widgets/OvWindowBase.h"

#include <QSize>

// A window around a device's picture, which stands upright or lies on its side; the window turns with it, as
// DeviceWindowShape says, and stays on its screen. Maximised, by F11 or by the title bar's button, it keeps
// its proportions, in the middle of the screen; a window that was turned meanwhile is restored turned.
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

protected:
    void turnTo(ScreenOrientation orientation);
    void toggleMaximized();

private:
    void maximize();
    void restore();
    void fillScreen();
    void applyContent(const QSize &content);
    void moveOntoScreen();

    ScreenOrientation m_orientation = ScreenOrientation::Portrait;
    ScreenOrientation m_maximizedOrientation = ScreenOrientation::Portrait; // when it was maximised
    bool m_maximized = false;
};
