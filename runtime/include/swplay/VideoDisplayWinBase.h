#pragma once

#include "swplay/VideoDisplay.h"

#include <cstdint>
#include <memory>

// The picture that lockFrameBuffer hands out: rows of 32-bit pixels, bytes B, G, R, A (A is always 255).
struct FrameBuffer
{
    std::uint8_t *data = nullptr;
    int width = 0; // pixels
    int height = 0; // pixels
    int stride = 0; // bytes per row
};

// Base of a window's render target: keeps the newest picture as a BGRA buffer of a fixed size that the window
// paints from. Newest picture wins; nothing queues. Pictures that nobody fetches are not converted: a picture
// is converted on the decoding thread while the previous one was fetched, otherwise when it is fetched.
class VideoDisplayWinBase : public VideoDisplay
{
public:
    VideoDisplayWinBase();
    ~VideoDisplayWinBase() override;

    void setLogId(const char *logId) override;
    void onScreenRotation(int rotation) override;
    int render(VideoFrame *frame) override;
    void onFrameArrival() override;

    // Format, size and turn of the buffer. `format` -1 = BGRA, the only one there is; width and height in
    // pixels, 1 to 8192; `rotation` must be 0. Any thread. Returns 0, or -1 when a value is out of range
    // (nothing changes then). Until it is called the display keeps no picture.
    int setDstFormat(int format, int width, int height, int rotation);

    // The newest picture, or nullptr when there is none yet (then unlockFrameBuffer is not needed). The
    // buffer is not written to until unlockFrameBuffer; decoding goes on meanwhile. One thread at a time.
    const FrameBuffer *lockFrameBuffer();
    void unlockFrameBuffer();

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
