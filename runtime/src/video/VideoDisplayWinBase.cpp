#include "swplay/VideoDisplayWinBase.h"

#include "Log.h"
#include "swplay/VideoFrame.h"
#include "video/FrameStore.h"
#include "video/I420.h"

#include <libyuv/convert.h>

#include <mutex>
#include <string>

using swplay::FramePtr;
using swplay::SharedFrame;

namespace {

constexpr int BgraFormat = -1;
constexpr int NoRotation = 0;

// The decoder's own frame, referenced.
SharedFrame referenceOf(const AVFrame &native)
{
    return FramePtr(av_frame_clone(&native));
}

// The planes of a picture that does not come from libavcodec, copied.
SharedFrame copyOf(const VideoFrame &frame)
{
    if (frame.width < 1 || frame.height < 1 || !frame.planes[0] || !frame.planes[1] || !frame.planes[2])
        return nullptr;
    FramePtr copy = swplay::makeI420(frame.width, frame.height);
    if (!copy)
        return nullptr;
    copy->color_range = frame.fullRange ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
    libyuv::I420Copy(frame.planes[0], frame.strides[0], frame.planes[1], frame.strides[1], frame.planes[2],
        frame.strides[2], copy->data[0], copy->linesize[0], copy->data[1], copy->linesize[1], copy->data[2],
        copy->linesize[2], frame.width, frame.height);
    return copy;
}

} // namespace

struct VideoDisplayWinBase::Impl
{
    void notePictureSize(int width, int height);

    swplay::FrameStore store;

    std::mutex mutex;
    std::string logId; // mutex

    int pictureWidth = 0; // the decoding thread that calls render
    int pictureHeight = 0; // likewise
};

void VideoDisplayWinBase::Impl::notePictureSize(int width, int height)
{
    if (width == pictureWidth && height == pictureHeight)
        return;
    pictureWidth = width;
    pictureHeight = height;
    std::string name;
    {
        const std::lock_guard lock(mutex);
        name = logId;
    }
    swplay::log(swplay::LogLevel::Info,
        "Display \"" + name + "\" receives pictures of " + std::to_string(width) + " x "
            + std::to_string(height));
}

VideoDisplayWinBase::VideoDisplayWinBase()
    : m_impl(std::make_unique<Impl>())
{ }

VideoDisplayWinBase::~VideoDisplayWinBase() = default;

void VideoDisplayWinBase::setLogId(const char *logId)
{
    const std::lock_guard lock(m_impl->mutex);
    m_impl->logId = logId ? logId : "";
}

void VideoDisplayWinBase::onScreenRotation(int)
{ }

void VideoDisplayWinBase::onFrameArrival()
{ }

int VideoDisplayWinBase::render(VideoFrame *frame)
{
    if (!frame)
        return -1;
    SharedFrame picture
        = frame->native && swplay::isI420(*frame->native) ? referenceOf(*frame->native) : copyOf(*frame);
    if (!picture)
        return -1;
    m_impl->notePictureSize(picture->width, picture->height);
    return m_impl->store.put(std::move(picture)) ? 0 : -1;
}

int VideoDisplayWinBase::setDstFormat(int format, int width, int height, int rotation)
{
    if (format != BgraFormat || rotation != NoRotation)
        return -1;
    return m_impl->store.setSize(width, height) ? 0 : -1;
}

const FrameBuffer *VideoDisplayWinBase::lockFrameBuffer()
{
    return m_impl->store.lock();
}

void VideoDisplayWinBase::unlockFrameBuffer()
{
    m_impl->store.unlock();
}
