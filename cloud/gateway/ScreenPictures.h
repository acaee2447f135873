#pragma once

#include "gateway/DeviceMutex.h"
#include "gateway/YuvPicture.h"

#include <QImage>
#include <QSize>

#include <cstdint>
#include <optional>
#include <vector>

namespace orvane::cloud {

class VirtualDevice;

// The present picture of one device in the sizes that its viewers want: each is made when it is asked for,
// once for all of them. A small one is drawn at its size, without the device ever having a picture of its
// whole screen; others are scaled from that.
//
// Owned by DeviceHost; used on its strand only, but for snapshot(). The device is guarded by the given mutex,
// which is held while the device draws and its picture is converted.
class ScreenPictures
{
public:
    // Both outlive it.
    ScreenPictures(VirtualDevice &device, DeviceMutex &deviceMutex);

    // What the device shows now; `size`: even, at least 2 x 2. Valid until the next call.
    const YuvPicture &picture(QSize size);
    // Gives back what none of these sizes needs.
    void keep(const std::vector<QSize> &sizes);
    // The whole screen as an image (Format_RGB32). Any thread, with the mutex held.
    QImage snapshot();

private:
    struct Scaled
    {
        YuvPicture picture;
        std::uint64_t version; // of the device's picture
    };

    bool isDrawnSmall(QSize size) const;
    // Each tells the version of what it made.
    std::uint64_t drawSmall(YuvPicture &target);
    std::uint64_t updateWhole();
    bool isPresent(std::uint64_t version);

    VirtualDevice &m_device;
    DeviceMutex &m_deviceMutex;
    const QSize m_screen;
    bool m_frameKept = false; // the mutex; m_whole follows the device's frame
    std::optional<YuvPicture> m_whole; // of the whole screen; none while nobody wants it
    std::vector<Scaled> m_scaled; // one for each size
};

} // namespace orvane::cloud
