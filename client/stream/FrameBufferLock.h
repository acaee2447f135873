#pragma once

#include <swplay/VideoDisplayWinBase.h>

#include <QImage>

// Holds the newest picture of a display for reading, from construction to destruction. GUI thread.
class FrameBufferLock
{
public:
    explicit FrameBufferLock(VideoDisplayWinBase &display)
        : m_display(display)
        , m_buffer(display.lockFrameBuffer())
    { }
    ~FrameBufferLock()
    {
        if (m_buffer)
            m_display.unlockFrameBuffer();
    }
    FrameBufferLock(const FrameBufferLock &) = delete;
    FrameBufferLock &operator=(const FrameBufferLock &) = delete;

    // The picture without copying its pixels: use it only while the lock lives. Null when there is none yet.
    // Alpha is always 255, and an opaque format draws three times as fast as one with alpha.
    QImage image() const
    {
        if (!m_buffer || m_buffer->width <= 0 || m_buffer->height <= 0)
            return {};
        const uchar *pixels = m_buffer->data;
        return QImage(pixels, m_buffer->width, m_buffer->height, m_buffer->stride, QImage::Format_RGB32);
    }

private:
    VideoDisplayWinBase &m_display;
    const FrameBuffer *m_buffer;
};
