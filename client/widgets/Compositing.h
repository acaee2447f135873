#pragma once

class QPainterPath;
class QWidget;

// Windows with translucent parts where nobody mixes them with what lies behind. GUI thread.
namespace Compositing {

// Whether the window system shows what lies behind the translucent parts of a window. Windows always does; an
// X server does while a compositing manager runs, and shows black in their place otherwise.
bool isActive();

// Cuts a window to the shape that it paints, so that nothing black stands around it, where the window system
// cannot compose; takes the cut back where it can. The shape is in the widget's coordinates.
void setShape(QWidget *window, const QPainterPath &shape);

} // namespace Compositing
