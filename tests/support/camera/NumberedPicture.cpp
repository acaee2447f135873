#include "NumberedPicture.h"

#include <QPainter>

namespace {

constexpr int BitCount = 16;
constexpr int FarFromGrey = 64; // a column is black or white, not in between

} // namespace

QImage numberedpicture::make(int number, QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    for (int bit = 0; bit < BitCount; ++bit) {
        const int left = bit * size.width() / BitCount;
        const int right = (bit + 1) * size.width() / BitCount;
        const bool isSet = (number >> (BitCount - 1 - bit) & 1) != 0;
        painter.fillRect(left, 0, right - left, size.height(), isSet ? Qt::white : Qt::black);
    }
    return picture;
}

int numberedpicture::read(const QImage &picture)
{
    if (picture.isNull())
        return -1;
    int number = 0;
    for (int bit = 0; bit < BitCount; ++bit) {
        const int x = (2 * bit + 1) * picture.width() / (2 * BitCount);
        const int grey = qGray(picture.pixel(x, picture.height() / 2));
        if (qAbs(grey - 128) < FarFromGrey)
            return -1;
        number = number << 1 | (grey > 128 ? 1 : 0);
    }
    return number;
}
