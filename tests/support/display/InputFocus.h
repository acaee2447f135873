#pragma once

class QWidget;

// Waits until the shown window `window` has the keyboard and stays with it; false after 5 s. Qt alone may
// take a window for the active one while the display is still about to move the focus there, and then tells
// it once more that it lost and got it.
//
// GUI thread. Elsewhere than on X11: until Qt takes the window for the active one.
bool waitForInputFocus(QWidget &window);
