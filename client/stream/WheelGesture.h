#pragma once

#include <QPoint>
#include <QSize>
#include <QVector>

#include "stream/ScreenOrientation.h"

// One turn of the mouse wheel as a gesture of fingers on the device: a drag with one finger, or a pinch with
// two. A plain value, in pixels of the remote portrait screen; the VideoView steps it every 50 ms. GUI
// thread.
class WheelGesture
{
public:
    // No gesture: already at its end.
    WheelGesture() = default;

    // How far one wheel event goes, in remote pixels: a touchpad's own pixels where it gives them, otherwise
    // 10 % of the remote height for each notch of 120.
    static QPoint distance(const QPoint &pixelDelta, const QPoint &angleDelta, const QSize &remote);
    // Where the pointer is on the remote screen. `position` and `view` in widget pixels.
    static QPoint centre(
        const QPoint &position, const QSize &view, const QSize &remote, ScreenOrientation orientation);

    static WheelGesture drag(
        const QPoint &centre, const QPoint &distance, const QSize &remote, ScreenOrientation orientation);
    static WheelGesture pinch(const QPoint &centre, const QPoint &distance, const QSize &remote);

    bool atTarget() const { return m_current == m_target; }
    // Moves the finger one step; after finitely many steps it is at its target.
    void advance();
    // The gesture's fingers; in a pinch the mirrored one comes first.
    void appendPoints(QVector<int> &xs, QVector<int> &ys) const;

private:
    WheelGesture(const QPoint &from, const QPoint &to, const QSize &remote);

    QPoint m_current; // the moving finger
    QPoint m_target;
    QPoint m_centre; // of a pinch
    bool m_pinch = false;
    int m_step = 0;
};
