#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

namespace e2e {

// Waits until the area of the screen shows something (not one flat colour) and has not changed for a moment;
// returns its picture. Throws StepFailed.
QImage settledPicture(const QString &what, const QRect &area, int timeoutMs = 15000);

// Waits until the window with this title, wherever it is, has this very colour at a position of it, then for
// its picture as settledPicture does. For a click that leads to another page: the page before may stay for
// longer than a moment, so take a colour that it does not have there.
QImage settledPictureOf(const QString &what, const QString &window, const QPoint &position,
    const QColor &colour, int timeoutMs = 15000);

// Share of pixels that differ clearly between two pictures of one size, 0 to 1; 1 when the sizes differ.
double difference(const QImage &a, const QImage &b);

// How many distinct colours a picture has, counted up to `limit`.
int colourCount(const QImage &picture, int limit = 1000);

// How sharp a picture is: the mean squared difference between horizontal neighbours. A blurred picture has
// much less of it than a sharp one of the same thing.
double sharpness(const QImage &picture);

} // namespace e2e
