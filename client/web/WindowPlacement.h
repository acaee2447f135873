#pragma once

#include <QRect>

class QWidget;

// Centres a top-level widget in the available area of the primary screen, raises it and repaints it.
// GUI thread.
void centerOnScreen(QWidget *widget);

// What a window covers when its page maximises it: the available area of the screen under `pos`, in pixels,
// and a little more on every side, so that the window's transparent edge lies outside the screen.
QRect maximizedGeometry(const QPoint &pos);
