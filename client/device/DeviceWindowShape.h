#pragma once

#include "stream/ScreenOrientation.h"

#include <QPoint>
#include <QRect>
#include <QSize>

// The geometry of a device window: its content is the title bar above and, below it, the video with the menu
// bar at its right, or with the editor of the key mapping in its place. Pure functions, in device-independent
// pixels; any thread.
namespace DeviceWindowShape {

constexpr int titleBarHeight = 40;
// The widest that a maximised window in landscape becomes.
constexpr int maximizedLandscapeWidth = 1300;

// The content of a new window.
QSize contentSize(ScreenOrientation orientation);
// The content while the key mapping is edited. The video has the size that it has in a new window, which is
// the one that the places of a scheme's keys are for.
QSize editingContentSize(ScreenOrientation orientation);
// The smallest content in which the bars and the stand-by page have room.
QSize smallestContentSize(ScreenOrientation orientation);

// The content after its video area has been turned by a quarter; twice gives the same again.
QSize turned(const QSize &content);
// The content, smaller in the same proportions if it does not fit into an area.
QSize fitted(const QSize &content, const QSize &area);

double aspectRatio(const QSize &content);
// The largest rectangle of an aspect ratio (width / height) in the middle of an area, at most `widthLimit`
// wide; 0: no limit.
QRect maximized(const QRect &area, double aspectRatio, int widthLimit);

// Where a body goes so that it lies within an area: moved no further than needed. Of one that is larger, the
// upper left part is within.
QPoint positionWithin(const QRect &area, const QRect &body);

} // namespace DeviceWindowShape
