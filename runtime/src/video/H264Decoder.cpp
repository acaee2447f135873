#include "video/H264Decoder.h"

#include "video/AvLog.h"
#include "video/I420.h"

#include <utility>

namespace swplay {

namespace {

void deleteUnitData(void *opaque, std::uint8_t *)
{
    delete static_cast<std::string *>(opaque);
}

std::string sizeText(int width, int height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

} // namespace

H264Decoder::H264Decoder()
    : m_packet(av_packet_alloc())
    , m_received(av_frame_alloc())
    , m_shown(av_frame_alloc())
{ }

bool H264Decoder::open()
{
    if (m_context)
        return true;
    if (m_openFailed)
        return false;
    m_openFailed = true;
    redirectAvLog();
    const AVCodec *codec = avcodec_find_decoder(AV_CODEC_ID_H264);
    if (!codec || !m_packet || !m_received || !m_shown)
        return false;
    CodecContextPtr context(avcodec_alloc_context3(codec));
    if (!context)
        return false;
    context->thread_count = 1;
    context->flags |= AV_CODEC_FLAG_LOW_DELAY;
    context->max_pixels = std::int64_t(MaxSide) * MaxSide;
    if (avcodec_open2(context.get(), codec, nullptr) < 0)
        return false;
    m_context = std::move(context);
    m_openFailed = false;
    return true;
}

H264Decoder::Result H264Decoder::decode(AccessUnit unit)
{
    m_problem.clear();
    if (unit.keyFrame && reorders())
        restart();
    if (!open())
        return fail(Result::Failed, "there is no H.264 decoder");
    // To libavcodec an empty packet is the end of the stream.
    if (unit.data.empty())
        return fail(Result::Corrupt, "empty access unit");
    if (!fillPacket(unit))
        return fail(Result::Corrupt, "no memory for an access unit");
    const int sent = avcodec_send_packet(m_context.get(), m_packet.get());
    av_packet_unref(m_packet.get());
    const Result result = receive();
    if (sent < 0)
        return fail(Result::Corrupt, avErrorText(sent));
    return result;
}

// Makes m_packet own the unit's data.
bool H264Decoder::fillPacket(AccessUnit &unit)
{
    const std::size_t size = unit.data.size();
    auto data = std::make_unique<std::string>(std::move(unit.data));
    data->resize(size + AV_INPUT_BUFFER_PADDING_SIZE); // the padding is zero, as it must be
    auto *bytes = reinterpret_cast<std::uint8_t *>(data->data());
    AVBufferRef *buffer = av_buffer_create(bytes, data->size(), &deleteUnitData, data.get(), 0);
    if (!buffer)
        return false;
    static_cast<void>(data.release()); // now the buffer's
    m_packet->buf = buffer;
    m_packet->data = bytes;
    m_packet->size = static_cast<int>(size);
    m_packet->pts = m_nextNumber;
    m_packet->flags = unit.keyFrame ? AV_PKT_FLAG_KEY : 0;
    m_tags[m_nextNumber % m_tags.size()] = {m_nextNumber, unit.frameId, unit.captureUs};
    ++m_nextNumber;
    return true;
}

// Takes every picture that is ready; the newest stays.
H264Decoder::Result H264Decoder::receive()
{
    Result result = Result::NoPicture;
    int received = 0;
    while ((received = avcodec_receive_frame(m_context.get(), m_received.get())) == 0) {
        const Result accepted = accept();
        if (result == Result::NoPicture || accepted != Result::Picture)
            result = accepted;
    }
    if (received == AVERROR(EAGAIN))
        return result;
    return fail(Result::Corrupt, avErrorText(received));
}

// Makes the received frame the picture, if it can be shown.
H264Decoder::Result H264Decoder::accept()
{
    AVFrame &frame = *m_received;
    if (frame.decode_error_flags != 0 || (frame.flags & AV_FRAME_FLAG_CORRUPT) != 0)
        return fail(Result::Corrupt, "damaged or missing slices");
    if (frame.width < 1 || frame.height < 1 || frame.width > MaxSide || frame.height > MaxSide)
        return fail(Result::Unsupported, "a picture of " + sizeText(frame.width, frame.height));
    if (!isI420(frame)) {
        FramePtr copy = copyAsI420(frame);
        if (!copy)
            return fail(Result::Unsupported, "a picture of pixel format " + std::to_string(frame.format));
        m_received = std::move(copy);
    }
    std::swap(m_received, m_shown);
    const AVFrame &shown = *m_shown;
    m_picture = {};
    for (int plane = 0; plane < 3; ++plane) {
        m_picture.planes[plane] = shown.data[plane];
        m_picture.strides[plane] = shown.linesize[plane];
    }
    m_picture.width = shown.width;
    m_picture.height = shown.height;
    m_picture.fullRange = shown.format == AV_PIX_FMT_YUVJ420P || shown.color_range == AVCOL_RANGE_JPEG;
    m_picture.native = m_shown.get();
    const Tag &tag = m_tags[static_cast<std::size_t>(shown.pts) % m_tags.size()];
    if (tag.number == shown.pts) {
        m_picture.frameId = tag.frameId;
        m_picture.captureUs = tag.captureUs;
    }
    return Result::Picture;
}

const VideoFrame *H264Decoder::picture() const
{
    return m_picture.native ? &m_picture : nullptr;
}

void H264Decoder::restart()
{
    // Flushing keeps the longest output delay that a (perhaps damaged) stream ever claimed.
    if (reorders())
        m_context.reset();
    else if (m_context)
        avcodec_flush_buffers(m_context.get());
}

bool H264Decoder::reorders() const
{
    return m_context && m_context->has_b_frames > 0;
}

H264Decoder::Result H264Decoder::fail(Result result, std::string problem)
{
    m_problem = std::move(problem);
    return result;
}

} // namespace swplay
