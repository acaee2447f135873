#pragma once

#include "WidgetTestSupport.h"

#include "widgets/OvTitleBarBase.h"
#include "widgets/OvWindowBase.h"

#include <QPushButton>

// A frameless window whose place on the screen the tests know.
namespace widgettest {

// The screen of the tests, less a task bar of 40 pixels at its lower end.
inline constexpr QRect availableArea(0, 0, 1920, 1040);

// A window of 820 x 620 at (100, 200) with a content of 800 x 600.
class Window : public OvWindowBase
{
public:
    Window()
    {
        setAvailableGeometry([](const QPoint &) { return availableArea; });
        setContentSize(QSize(800, 600));
        updateWindowSize();
        move(100, 200);
    }
    QPushButton *button(const char *name) const { return findChild<QPushButton *>(QLatin1String(name)); }
    QPoint middleOfLeftEdge() const { return pos() + QPoint(5, height() / 2); }
    QPoint middleOfRightEdge() const { return pos() + QPoint(width() - 5, height() / 2); }
    QPoint middle() const { return geometry().center(); }
};

// Takes hold of what is under the pointer.
inline void pressAt(QWidget *window, const QPoint &globalPos)
{
    hover(window, globalPos);
    press(window, globalPos);
}

} // namespace widgettest
