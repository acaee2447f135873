#pragma once

#include <QObject>
#include <QSize>
#include <QVector>

// Whoever holds fingers on the device besides the mouse: the key mapping. GUI thread; owned by its window,
// held weakly by the VideoView.
class TouchPointSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Appends the points of all keys that are pressed now, in pixels of the remote screen, whose portrait
    // size is `remote`. Appends as many to `xs` as to `ys`.
    virtual void appendTouchPoints(QVector<int> &xs, QVector<int> &ys, const QSize &remote) = 0;
};
