#include "gateway/ScreenPictures.h"

#include "device/VirtualDevice.h"

#include <algorithm>

namespace orvane::cloud {

namespace {

// A picture at most this share of the screen, each way, is drawn at its own size.
constexpr int SmallShare = 4;

QSize sizeOf(const YuvPicture &picture)
{
    return {picture.width(), picture.height()};
}

} // namespace

ScreenPictures::ScreenPictures(VirtualDevice &device, DeviceMutex &deviceMutex)
    : m_device(device)
    , m_deviceMutex(deviceMutex)
    , m_screen(device.screenSize())
{ }

const YuvPicture &ScreenPictures::picture(QSize size)
{
    if (size == m_screen) {
        updateWhole();
        return *m_whole;
    }
    auto scaled = std::find_if(
        m_scaled.begin(), m_scaled.end(), [size](const Scaled &s) { return sizeOf(s.picture) == size; });
    if (scaled == m_scaled.end()) {
        m_scaled.push_back({YuvPicture(size.width(), size.height()), 0});
        scaled = std::prev(m_scaled.end());
    } else if (isPresent(scaled->version)) {
        return scaled->picture;
    }
    if (isDrawnSmall(size)) {
        scaled->version = drawSmall(scaled->picture);
    } else {
        scaled->version = updateWhole();
        scaled->picture.scaleFrom(*m_whole);
    }
    return scaled->picture;
}

void ScreenPictures::keep(const std::vector<QSize> &sizes)
{
    const auto isWanted
        = [&sizes](QSize size) { return std::find(sizes.begin(), sizes.end(), size) != sizes.end(); };
    m_scaled.erase(std::remove_if(m_scaled.begin(), m_scaled.end(),
                       [&](const Scaled &scaled) { return !isWanted(sizeOf(scaled.picture)); }),
        m_scaled.end());
    const bool wholeWanted
        = std::any_of(sizes.begin(), sizes.end(), [this](QSize size) { return !isDrawnSmall(size); });
    if (!wholeWanted && m_whole) {
        m_whole.reset();
        const std::lock_guard lock(m_deviceMutex);
        m_frameKept = false;
        m_device.releaseFrame();
    }
}

QImage ScreenPictures::snapshot()
{
    if (m_frameKept) {
        return m_device.frame().copy(); // the device goes on painting into its own
    }
    QImage image = m_device.frame();
    m_device.releaseFrame();
    return image;
}

bool ScreenPictures::isDrawnSmall(QSize size) const
{
    return size.width() * SmallShare <= m_screen.width() && size.height() * SmallShare <= m_screen.height();
}

bool ScreenPictures::isPresent(std::uint64_t version)
{
    const std::lock_guard lock(m_deviceMutex);
    return m_device.pictureVersion() == version;
}

std::uint64_t ScreenPictures::drawSmall(YuvPicture &target)
{
    QImage image(sizeOf(target), QImage::Format_RGB32);
    const std::lock_guard lock(m_deviceMutex);
    m_device.drawScaled(image);
    target.convert(image, image.rect());
    return m_device.pictureVersion();
}

std::uint64_t ScreenPictures::updateWhole()
{
    const std::lock_guard lock(m_deviceMutex);
    QRect changed = m_device.takeDirty();
    const QImage &frame = m_device.frame();
    m_frameKept = true;
    if (!m_whole) {
        m_whole.emplace(frame.width(), frame.height());
        changed = frame.rect();
    }
    m_whole->convert(frame, changed);
    return m_device.pictureVersion();
}

} // namespace orvane::cloud
