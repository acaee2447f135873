#pragma once

#include <QImage>
#include <QRandomGenerator>

namespace orvane::cloud::test {

// A picture like a screen full of text and colour: hard edges, many details, the same for the same `seed`.
inline QImage busyScreen(int seed, int width = 720, int height = 1280)
{
    QImage image(width, height, QImage::Format_RGB32);
    QRandomGenerator random(static_cast<quint32>(seed));
    image.fill(QColor::fromHsv(seed * 37 % 360, 40, 240));
    for (int i = 0; i < 3000; ++i) {
        const QRgb colour = qRgb(random.bounded(256), random.bounded(256), random.bounded(256));
        const int left = random.bounded(width - 12);
        const int top = random.bounded(height - 12);
        for (int y = top; y < top + 10; ++y) {
            auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = left; x < left + 3; ++x) {
                line[x] = colour;
            }
        }
    }
    return image;
}

// A picture that scrolls: `offset` pixels up.
inline QImage scrolled(const QImage &image, int offset)
{
    QImage result(image.size(), image.format());
    for (int y = 0; y < image.height(); ++y) {
        const int from = (y + offset) % image.height();
        std::copy_n(image.constScanLine(from), image.bytesPerLine(), result.scanLine(y));
    }
    return result;
}

} // namespace orvane::cloud::test
