#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>

// The geometry of resizing a frameless window by its margin: which edge is under the pointer, which cursor
// tells so, and what one step of a drag does. Pure functions, in pixels; any thread.
namespace EdgeResize {

// A set of edges; a corner is the sum of two.
enum Edge : int {
    NoEdge = 0,
    LeftEdge = 1,
    RightEdge = 2,
    TopEdge = 4,
    BottomEdge = 8,
};

// The edges under a pointer (window coordinates) in a window with a resize zone of the given width inside
// each side, both ends included. Where two opposite zones overlap, left and top win.
int edgesAt(const QPoint &pointer, const QSize &windowSize, int zoneWidth);

Qt::CursorShape cursorFor(int edges);

// What holds during a whole drag.
struct Rules
{
    int edges = NoEdge; // set of Edge
    double aspectRatio = -1.0; // content width / height to keep; 0 or less: free
    bool moveWithEdge = true; // dragging the left or top edge also moves the window
    QSize margins; // what the window has beyond its content, both sides together
    QSize minimumWindowSize;
    QSize maximumWindowSize;
};

struct Step
{
    QPoint windowPos;
    // May go below what the minimum window size leaves: the edge takes hold again only when the pointer comes
    // back to it.
    QSize contentSize;
};

// One step of a drag: the pointer moved by delta while the window stood at window (screen coordinates) with
// the given content size.
Step resizeStep(const Rules &rules, const QRect &window, const QSize &contentSize, const QPoint &delta);

} // namespace EdgeResize
