// The recording SDK's display: keeps the newest picture in a front and a back buffer.

#include "Recorder.h"

#include <swplay/VideoDisplayWinBase.h>
#include <swplay/VideoFrame.h>

#include <cstring>
#include <mutex>
#include <string>
#include <vector>

VideoDisplay::~VideoDisplay() = default;

struct VideoDisplayWinBase::Impl
{
    std::mutex lock; // guards what follows, but the pixels of `front` while it is fetched
    int width = 0;
    int height = 0;
    bool fresh = false; // `back` is newer than `front`
    std::vector<std::uint8_t> back;
    int backWidth = 0;
    int backHeight = 0;
    std::vector<std::uint8_t> front;
    FrameBuffer buffer; // of `front`

    // The nearest pixels of a picture that is at least as large as the buffer.
    void takeScaled(const VideoFrame &frame)
    {
        constexpr std::size_t PixelBytes = 4;
        backWidth = width;
        backHeight = height;
        back.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * PixelBytes);
        std::uint8_t *to = back.data();
        for (int y = 0; y < height; ++y) {
            const std::uint8_t *row
                = frame.planes[0] + static_cast<std::ptrdiff_t>(y * frame.height / height) * frame.strides[0];
            for (int x = 0; x < width; ++x, to += PixelBytes)
                std::memcpy(
                    to, row + static_cast<std::size_t>(x * frame.width / width) * PixelBytes, PixelBytes);
        }
    }
};

VideoDisplayWinBase::VideoDisplayWinBase()
    : m_impl(std::make_unique<Impl>())
{ }

VideoDisplayWinBase::~VideoDisplayWinBase() = default;

void VideoDisplayWinBase::setLogId(const char *logId)
{
    Recorder::instance().record("VideoDisplayWinBase::setLogId", logId);
}

void VideoDisplayWinBase::onScreenRotation(int)
{ }

void VideoDisplayWinBase::onFrameArrival()
{ }

int VideoDisplayWinBase::render(VideoFrame *frame)
{
    const std::lock_guard<std::mutex> lock(m_impl->lock);
    if (m_impl->width == 0 || frame->width < m_impl->width || frame->height < m_impl->height)
        return -1;
    m_impl->takeScaled(*frame);
    m_impl->fresh = true;
    return 0;
}

int VideoDisplayWinBase::setDstFormat(int format, int width, int height, int rotation)
{
    Recorder::instance().record("VideoDisplayWinBase::setDstFormat", format, width, height, rotation);
    const std::lock_guard<std::mutex> lock(m_impl->lock);
    m_impl->width = width;
    m_impl->height = height;
    return 0;
}

const FrameBuffer *VideoDisplayWinBase::lockFrameBuffer()
{
    const std::lock_guard<std::mutex> lock(m_impl->lock);
    if (m_impl->fresh) {
        m_impl->front.swap(m_impl->back);
        m_impl->fresh = false;
        m_impl->buffer = {m_impl->front.data(), m_impl->backWidth, m_impl->backHeight, m_impl->backWidth * 4};
    }
    return m_impl->buffer.data ? &m_impl->buffer : nullptr;
}

void VideoDisplayWinBase::unlockFrameBuffer()
{ }

int showPicture(VideoDisplay &display, const std::uint32_t *pixels, int width, int height)
{
    VideoFrame frame;
    frame.planes[0] = reinterpret_cast<const std::uint8_t *>(pixels);
    frame.strides[0] = width * 4;
    frame.width = width;
    frame.height = height;
    const int result = display.render(&frame);
    display.onFrameArrival();
    return result;
}
