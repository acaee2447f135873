#include "GroupFloor.h"

#include "Report.h"

#include "device/VirtualDevice.h"
#include "gateway/H264Encoder.h"
#include "gateway/YuvPicture.h"
#include "video/H264Decoder.h"
#include "video/PictureConverter.h"

#include <QImage>
#include <QPainter>

#include <chrono>
#include <stdexcept>
#include <vector>

namespace bench {

namespace {

constexpr int pictures = 60;
constexpr int picturesPerSecond = 5;

// What the gateway would send.
std::vector<swplay::AccessUnit> encodedFilm(QSize level, int kbitPerSec)
{
    using namespace orvane::cloud;
    VirtualDevice device("floor", "Floor");
    auto now = std::chrono::steady_clock::now();
    device.openApp("Video");
    device.setFilmRate(picturesPerSecond);
    H264Encoder encoder({level.width(), level.height(), picturesPerSecond, kbitPerSec});
    YuvPicture picture(level.width(), level.height());
    QImage screen(level, QImage::Format_RGB32);
    std::vector<swplay::AccessUnit> units;
    for (int i = 0; i < pictures; ++i) {
        now += std::chrono::milliseconds(1000 / picturesPerSecond);
        device.tick(now);
        device.drawScaled(screen);
        picture.convert(screen, screen.rect());
        H264Encoder::AccessUnit encoded = encoder.encode(picture, {i == 0, {}});
        swplay::AccessUnit unit;
        unit.keyFrame = encoded.keyFrame;
        unit.width = level.width();
        unit.height = level.height();
        unit.data = std::move(encoded.data);
        units.push_back(std::move(unit));
    }
    return units;
}

} // namespace

PictureCost pictureCost(QSize level, int kbitPerSec, QSize buffer, QSize view)
{
    swplay::H264Decoder decoder;
    swplay::PictureConverter converter;
    QImage pixels(buffer, QImage::Format_RGB32);
    const FrameBuffer target{pixels.bits(), pixels.width(), pixels.height(), pixels.bytesPerLine()};
    QImage window(view, QImage::Format_RGB32);
    PictureCost sum;
    int count = 0;
    for (swplay::AccessUnit &unit : encodedFilm(level, kbitPerSec)) {
        const bool keyFrame = unit.keyFrame;
        const double begin = threadCpuMs();
        if (decoder.decode(std::move(unit)) != swplay::H264Decoder::Result::Picture)
            throw std::runtime_error("the floor's picture was not decoded");
        const double decoded = threadCpuMs();
        if (!converter.convert(*decoder.picture()->native, target))
            throw std::runtime_error("the floor's picture was not converted");
        const double converted = threadCpuMs();
        QPainter painter(&window);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.drawImage(window.rect(), pixels);
        painter.end();
        const double painted = threadCpuMs();
        if (keyFrame) {
            sum.keyFrameMs = converted - begin;
            continue;
        }
        sum.decodeMs += decoded - begin;
        sum.convertMs += converted - decoded;
        sum.paintMs += painted - converted;
        ++count;
    }
    return {sum.keyFrameMs, sum.decodeMs / count, sum.convertMs / count, sum.paintMs / count};
}

} // namespace bench
