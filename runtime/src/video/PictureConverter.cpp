#include "video/PictureConverter.h"

#include "Log.h"
#include "video/I420.h"

#include <libyuv/convert_argb.h>
#include <libyuv/scale.h>

namespace swplay {

namespace {

const libyuv::YuvConstants &matrixOf(const AVFrame &picture)
{
    const bool full = picture.format == AV_PIX_FMT_YUVJ420P || picture.color_range == AVCOL_RANGE_JPEG;
    if (picture.colorspace == AVCOL_SPC_BT709)
        return full ? libyuv::kYuvF709Constants : libyuv::kYuvH709Constants;
    return full ? libyuv::kYuvJPEGConstants : libyuv::kYuvI601Constants;
}

} // namespace

bool PictureConverter::convert(const AVFrame &picture, const FrameBuffer &target)
{
    const AVFrame *source = &picture;
    if (picture.width != target.width || picture.height != target.height)
        source = scaled(picture, target.width, target.height);
    // libyuv's "ARGB" is the bytes B, G, R, A.
    if (source
        && libyuv::I420ToARGBMatrix(source->data[0], source->linesize[0], source->data[1],
               source->linesize[1], source->data[2], source->linesize[2], target.data, target.stride,
               &matrixOf(picture), target.width, target.height)
            == 0)
        return true;
    log(LogLevel::Error,
        "Cannot convert a picture of " + std::to_string(picture.width) + " x "
            + std::to_string(picture.height) + " to " + std::to_string(target.width) + " x "
            + std::to_string(target.height));
    return false;
}

// Scales before the conversion, while a pixel takes one and a half bytes instead of four.
const AVFrame *PictureConverter::scaled(const AVFrame &picture, int width, int height)
{
    if (!m_scratch || m_scratch->width != width || m_scratch->height != height)
        m_scratch = makeI420(width, height);
    if (!m_scratch)
        return nullptr;
    const int result = libyuv::I420Scale(picture.data[0], picture.linesize[0], picture.data[1],
        picture.linesize[1], picture.data[2], picture.linesize[2], picture.width, picture.height,
        m_scratch->data[0], m_scratch->linesize[0], m_scratch->data[1], m_scratch->linesize[1],
        m_scratch->data[2], m_scratch->linesize[2], width, height, libyuv::kFilterBox);
    return result == 0 ? m_scratch.get() : nullptr;
}

} // namespace swplay
