#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/frame.h>
}

#include <memory>

namespace swplay {

// Owners of libav objects; each frees what it holds.
struct AvDelete
{
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
};
using CodecContextPtr = std::unique_ptr<AVCodecContext, AvDelete>;
using FramePtr = std::unique_ptr<AVFrame, AvDelete>;
using PacketPtr = std::unique_ptr<AVPacket, AvDelete>;

// A picture that several threads read. Its planes are never written once it is shared.
using SharedFrame = std::shared_ptr<const AVFrame>;

} // namespace swplay
