#include "widgets/EdgeResize.h"

#include <QtGlobal>

#include <cmath>

namespace EdgeResize {

namespace {

constexpr int horizontalEdges = LeftEdge | RightEdge;
constexpr int verticalEdges = TopEdge | BottomEdge;
constexpr double largestExtent = (1 << 24) - 1; // the toolkit's limit for widgets

// Whole pixels, cut off, also for ratios that lead beyond what a widget can be.
int truncated(double extent)
{
    return static_cast<int>(qBound(-largestExtent, std::trunc(extent), largestExtent));
}

// Where the near side of a window goes so that its far side stays, whatever size the window may take.
int followingPosition(int farSide, int wantedExtent, int minimum, int maximum)
{
    return farSide - qMax(minimum, qMin(wantedExtent, maximum));
}

} // namespace

int edgesAt(const QPoint &pointer, const QSize &windowSize, int zoneWidth)
{
    int edges = NoEdge;
    if (pointer.x() >= 0 && pointer.x() <= zoneWidth)
        edges |= LeftEdge;
    else if (pointer.x() >= windowSize.width() - zoneWidth && pointer.x() <= windowSize.width())
        edges |= RightEdge;
    if (pointer.y() >= 0 && pointer.y() <= zoneWidth)
        edges |= TopEdge;
    else if (pointer.y() >= windowSize.height() - zoneWidth && pointer.y() <= windowSize.height())
        edges |= BottomEdge;
    return edges;
}

Qt::CursorShape cursorFor(int edges)
{
    switch (edges) {
    case LeftEdge:
    case RightEdge:
        return Qt::SizeHorCursor;
    case TopEdge:
    case BottomEdge:
        return Qt::SizeVerCursor;
    case LeftEdge | TopEdge:
    case RightEdge | BottomEdge:
        return Qt::SizeFDiagCursor;
    case RightEdge | TopEdge:
    case LeftEdge | BottomEdge:
        return Qt::SizeBDiagCursor;
    default:
        return Qt::ArrowCursor;
    }
}

Step resizeStep(const Rules &rules, const QRect &window, const QSize &contentSize, const QPoint &delta)
{
    QSize content = contentSize;
    if (rules.edges & LeftEdge)
        content.rwidth() -= delta.x();
    else if (rules.edges & RightEdge)
        content.rwidth() += delta.x();
    if (rules.edges & TopEdge)
        content.rheight() -= delta.y();
    else if (rules.edges & BottomEdge)
        content.rheight() += delta.y();

    const bool keepsRatio = rules.aspectRatio > 0;
    if (keepsRatio && (rules.edges & horizontalEdges))
        content.setHeight(truncated(content.width() / rules.aspectRatio));
    else if (keepsRatio && (rules.edges & verticalEdges))
        content.setWidth(truncated(content.height() * rules.aspectRatio));

    QPoint pos = window.topLeft();
    // A corner that keeps the ratio leaves the window where it is.
    const bool isCorner = (rules.edges & horizontalEdges) && (rules.edges & verticalEdges);
    if (rules.moveWithEdge && !(keepsRatio && isCorner)) {
        const QSize wanted = content + rules.margins;
        if (rules.edges & LeftEdge) {
            pos.setX(followingPosition(window.x() + window.width(), wanted.width(),
                rules.minimumWindowSize.width(), rules.maximumWindowSize.width()));
        }
        if (rules.edges & TopEdge) {
            pos.setY(followingPosition(window.y() + window.height(), wanted.height(),
                rules.minimumWindowSize.height(), rules.maximumWindowSize.height()));
        }
    }
    return {pos, content};
}

} // namespace EdgeResize
