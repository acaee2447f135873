#pragma once

#include <QPoint>

class QWidget;

// The mouse pointer in the display's own pixels. Where the display can move it by a way instead of to a place
// (X11), nothing of what the mouse does meanwhile is lost. GUI thread.
namespace ScreenPointer {

QPoint position();
// Moves it from wherever it is now.
void moveBy(const QPoint &way);
// How many of these pixels are one pixel of a widget's coordinates.
qreal pixelRatio(const QWidget &widget);

} // namespace ScreenPointer
