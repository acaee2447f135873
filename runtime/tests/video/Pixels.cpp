#include "Pixels.h"

#include "TestPicture.h"

#include <cmath>
#include <cstdlib>

namespace {

const std::uint8_t *pixelAt(const FrameBuffer &buffer, int x, int y)
{
    return buffer.data + std::ptrdiff_t(y) * buffer.stride + std::ptrdiff_t(x) * 4;
}

} // namespace

double gradientError(const FrameBuffer &buffer, int phase)
{
    double sum = 0;
    for (int y = 0; y < buffer.height; ++y) {
        for (int x = 0; x < buffer.width; ++x) {
            const std::uint8_t *pixel = pixelAt(buffer, x, y);
            for (int channel = 0; channel < 3; ++channel)
                sum += std::fabs(pixel[channel]
                    - TestPicture::gradientChannel(
                        channel, (x + 0.5) / buffer.width, (y + 0.5) / buffer.height, phase));
        }
    }
    return sum / (3.0 * buffer.width * buffer.height);
}

bool isOpaque(const FrameBuffer &buffer)
{
    for (int y = 0; y < buffer.height; ++y)
        for (int x = 0; x < buffer.width; ++x)
            if (pixelAt(buffer, x, y)[3] != 255)
                return false;
    return true;
}

int onlyGrey(const FrameBuffer &buffer)
{
    const int grey = buffer.data[0];
    for (int y = 0; y < buffer.height; ++y)
        for (int x = 0; x < buffer.width; ++x)
            for (int channel = 0; channel < 3; ++channel)
                if (std::abs(pixelAt(buffer, x, y)[channel] - grey) > 2)
                    return -1;
    return grey;
}
