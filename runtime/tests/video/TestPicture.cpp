#include "TestPicture.h"

#include "swplay/VideoFrame.h"

#include <algorithm>
#include <cmath>

namespace {

std::uint8_t toByte(double value)
{
    return static_cast<std::uint8_t>(std::clamp(std::lround(value), 0L, 255L));
}

TestPicture sized(int width, int height)
{
    TestPicture picture;
    picture.width = width;
    picture.height = height;
    picture.strides[0] = width;
    picture.strides[1] = picture.strides[2] = width / 2;
    for (int plane = 0; plane < 3; ++plane)
        picture.planes[plane].resize(
            std::size_t(picture.strides[plane]) * (plane == 0 ? height : height / 2));
    return picture;
}

} // namespace

double TestPicture::gradientChannel(int channel, double x, double y, int phase)
{
    const double shift = phase * 0.05;
    switch (channel) {
    case 0:
        return 60 + 120 * (0.5 + 0.5 * std::sin(3 * x + shift));
    case 1:
        return 50 + 150 * y;
    default:
        return 40 + 140 * (0.5 + 0.5 * std::cos(2 * x + 2 * y + shift));
    }
}

TestPicture TestPicture::gradient(int width, int height, int phase)
{
    TestPicture picture = sized(width, height);
    for (int plane = 0; plane < 3; ++plane) {
        const int w = plane == 0 ? width : width / 2;
        const int h = plane == 0 ? height : height / 2;
        for (int row = 0; row < h; ++row) {
            for (int column = 0; column < w; ++column) {
                const double x = (column + 0.5) / w;
                const double y = (row + 0.5) / h;
                const double b = gradientChannel(0, x, y, phase);
                const double g = gradientChannel(1, x, y, phase);
                const double r = gradientChannel(2, x, y, phase);
                // ITU-R BT.601, limited range.
                const double values[3] = {16 + 0.257 * r + 0.504 * g + 0.098 * b,
                    128 - 0.148 * r - 0.291 * g + 0.439 * b, 128 + 0.439 * r - 0.368 * g - 0.071 * b};
                picture.planes[plane][std::size_t(row) * w + column] = toByte(values[plane]);
            }
        }
    }
    return picture;
}

TestPicture TestPicture::flat(int width, int height, std::uint8_t luma)
{
    TestPicture picture = sized(width, height);
    std::fill(picture.planes[0].begin(), picture.planes[0].end(), luma);
    for (int plane = 1; plane < 3; ++plane)
        std::fill(picture.planes[plane].begin(), picture.planes[plane].end(), std::uint8_t(128));
    return picture;
}

int TestPicture::greyOf(std::uint8_t luma)
{
    return static_cast<int>(std::clamp(std::lround((luma - 16) * 255.0 / 219.0), 0L, 255L));
}

VideoFrame TestPicture::asFrame() const
{
    VideoFrame frame;
    for (int plane = 0; plane < 3; ++plane) {
        frame.planes[plane] = planes[plane].data();
        frame.strides[plane] = strides[plane];
    }
    frame.width = width;
    frame.height = height;
    return frame;
}
