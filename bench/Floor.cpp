#include "Floor.h"

#include "Report.h"

#include "device/VirtualDevice.h"
#include "gateway/H264Encoder.h"
#include "gateway/Level.h"
#include "gateway/YuvPicture.h"
#include "video/H264Decoder.h"
#include "video/PictureConverter.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>

#include <chrono>
#include <stdexcept>
#include <vector>

namespace bench {

namespace {
constexpr int flips = 120;
}

double floorMs()
{
    using namespace orvane::cloud;
    VirtualDevice device("floor", "Floor");
    auto now = std::chrono::steady_clock::now();
    device.openApp("Latency");
    device.takeDirty();

    const Level level;
    H264Encoder encoder({level.width, level.height, level.frameRate, level.bitRate});
    YuvPicture picture(level.width, level.height);
    swplay::H264Decoder decoder;
    swplay::PictureConverter converter;
    QImage pixels(level.width, level.height, QImage::Format_RGB32);
    const FrameBuffer target{pixels.bits(), pixels.width(), pixels.height(), pixels.bytesPerLine()};
    QImage window(viewSize, QImage::Format_RGB32);

    std::vector<double> values;
    for (int i = 0; i < flips; ++i) {
        now += std::chrono::milliseconds(200);
        device.touch("floor", 0, {{360, 640, 0.0F}}, now);
        device.touch("floor", 1, {}, now);
        const QRect dirty = device.takeDirty();

        QElapsedTimer timer;
        timer.start();
        picture.convert(device.frame(), dirty);
        H264Encoder::AccessUnit encoded = encoder.encode(picture, {i == 0, {}});
        swplay::AccessUnit unit;
        unit.keyFrame = encoded.keyFrame;
        unit.width = level.width;
        unit.height = level.height;
        unit.data = std::move(encoded.data);
        if (decoder.decode(std::move(unit)) != swplay::H264Decoder::Result::Picture
            || !converter.convert(*decoder.picture()->native, target))
            throw std::runtime_error("the floor's picture was not decoded");
        QPainter painter(&window);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.drawImage(window.rect(), pixels);
        painter.end();
        if (i > 0) // the first is a key frame
            values.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return percentile(values, 0.5);
}

} // namespace bench
