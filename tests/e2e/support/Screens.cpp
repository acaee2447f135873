#include "Screens.h"

#include "Desktop.h"
#include "Waiting.h"

#include <QSet>

namespace e2e {

namespace {
constexpr int settledMs = 400;
constexpr double unchangedShare = 0.0005; // a blinking cursor is no change
constexpr int clearDifference = 24; // of 255, in any channel
constexpr int fewColours = 3;
} // namespace

double difference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size() || a.isNull())
        return 1;
    qint64 differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            differing += qAbs(qRed(p) - qRed(q)) > clearDifference
                || qAbs(qGreen(p) - qGreen(q)) > clearDifference
                || qAbs(qBlue(p) - qBlue(q)) > clearDifference;
        }
    }
    return static_cast<double>(differing) / (static_cast<double>(a.width()) * a.height());
}

int colourCount(const QImage &picture, int limit)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colours.insert(picture.pixel(x, y));
            if (colours.size() >= limit)
                return limit;
        }
    }
    return colours.size();
}

double sharpness(const QImage &picture)
{
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 1; x < picture.width(); ++x) {
            const double step = qGray(picture.pixel(x, y)) - qGray(picture.pixel(x - 1, y));
            sum += step * step;
        }
    }
    return sum / qMax(1.0, static_cast<double>(picture.width()) * picture.height());
}

QImage settledPicture(const QString &what, const QRect &area, int timeoutMs)
{
    QImage last;
    QElapsedTimer unchanged;
    unchanged.start();
    waitUntil(
        what,
        [&] {
            const QImage now = Desktop::screenshot(area);
            if (difference(last, now) > unchangedShare) {
                last = now;
                unchanged.restart();
            }
            return unchanged.elapsed() >= settledMs && colourCount(last, fewColours + 1) > fewColours;
        },
        timeoutMs);
    return last;
}

QImage settledPictureOf(
    const QString &what, const QString &window, const QPoint &position, const QColor &colour, int timeoutMs)
{
    waitUntil(
        what,
        [&] {
            const QRect pixel(Desktop::window(window).topLeft() + position, QSize(1, 1));
            return Desktop::screenshot(pixel).pixelColor(0, 0) == colour;
        },
        timeoutMs);
    return settledPicture(what, Desktop::window(window), timeoutMs);
}

} // namespace e2e
