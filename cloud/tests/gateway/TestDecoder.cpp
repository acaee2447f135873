#include "TestDecoder.h"

#include <cmath>
#include <stdexcept>

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace orvane::cloud::test {

void TestDecoder::Free::operator()(AVCodecContext *context) const
{
    avcodec_free_context(&context);
}

void TestDecoder::Free::operator()(AVFrame *frame) const
{
    av_frame_free(&frame);
}

void TestDecoder::Free::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

TestDecoder::TestDecoder()
    : m_context(avcodec_alloc_context3(avcodec_find_decoder(AV_CODEC_ID_H264)))
    , m_frame(av_frame_alloc())
    , m_packet(av_packet_alloc())
{
    av_log_set_level(AV_LOG_QUIET);
    m_context->flags |= AV_CODEC_FLAG_LOW_DELAY;
    m_context->thread_count = 1;
    if (avcodec_open2(m_context.get(), nullptr, nullptr) < 0) {
        throw std::runtime_error("no H.264 decoder");
    }
}

TestDecoder::~TestDecoder() = default;

std::optional<TestDecoder::Luma> TestDecoder::decode(const std::string &accessUnit)
{
    if (av_new_packet(m_packet.get(), static_cast<int>(accessUnit.size())) < 0) {
        throw std::bad_alloc();
    }
    std::copy(accessUnit.begin(), accessUnit.end(), m_packet->data);
    const int sent = avcodec_send_packet(m_context.get(), m_packet.get());
    av_packet_unref(m_packet.get());
    if (sent < 0 || avcodec_receive_frame(m_context.get(), m_frame.get()) < 0) {
        return std::nullopt;
    }
    Luma luma;
    luma.width = m_frame->width;
    luma.height = m_frame->height;
    for (int row = 0; row < luma.height; ++row) {
        const std::uint8_t *samples = m_frame->data[0] + std::ptrdiff_t(row) * m_frame->linesize[0];
        luma.samples.insert(luma.samples.end(), samples, samples + luma.width);
    }
    return luma;
}

double psnr(const TestDecoder::Luma &decoded, const YuvPicture &original)
{
    if (decoded.width != original.width() || decoded.height != original.height()) {
        return 0;
    }
    double squares = 0;
    for (std::size_t i = 0; i < decoded.samples.size(); ++i) {
        const double difference = double(decoded.samples[i]) - double(original.y()[i]);
        squares += difference * difference;
    }
    const double mean = squares / double(decoded.samples.size());
    return mean <= 0 ? 100 : 10 * std::log10(255.0 * 255.0 / mean);
}

} // namespace orvane::cloud::test
