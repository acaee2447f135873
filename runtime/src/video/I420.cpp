#include "video/I420.h"

#include <libyuv/convert.h>

namespace swplay {

namespace {

using PlanarCopy = decltype(&libyuv::I422ToI420);

// libyuv's conversion from a planar format to I420, or none.
PlanarCopy copierFor(int format)
{
    switch (format) {
    case AV_PIX_FMT_YUV422P:
    case AV_PIX_FMT_YUVJ422P:
        return &libyuv::I422ToI420;
    case AV_PIX_FMT_YUV444P:
    case AV_PIX_FMT_YUVJ444P:
        return &libyuv::I444ToI420;
    default:
        return nullptr;
    }
}

} // namespace

bool isI420(const AVFrame &frame)
{
    return frame.format == AV_PIX_FMT_YUV420P || frame.format == AV_PIX_FMT_YUVJ420P;
}

FramePtr makeI420(int width, int height)
{
    FramePtr frame(av_frame_alloc());
    if (!frame)
        return nullptr;
    frame->format = AV_PIX_FMT_YUV420P;
    frame->width = width;
    frame->height = height;
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        return nullptr;
    return frame;
}

FramePtr copyAsI420(const AVFrame &frame)
{
    const PlanarCopy copy = copierFor(frame.format);
    if (!copy)
        return nullptr;
    FramePtr result = makeI420(frame.width, frame.height);
    if (!result || av_frame_copy_props(result.get(), &frame) < 0)
        return nullptr;
    if (frame.format == AV_PIX_FMT_YUVJ422P || frame.format == AV_PIX_FMT_YUVJ444P)
        result->color_range = AVCOL_RANGE_JPEG;
    if (copy(frame.data[0], frame.linesize[0], frame.data[1], frame.linesize[1], frame.data[2],
            frame.linesize[2], result->data[0], result->linesize[0], result->data[1], result->linesize[1],
            result->data[2], result->linesize[2], frame.width, frame.height)
        != 0)
        return nullptr;
    return result;
}

} // namespace swplay
