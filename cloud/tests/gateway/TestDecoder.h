#pragma once

#include "gateway/YuvPicture.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct AVCodecContext;
struct AVFrame;
struct AVPacket;

namespace orvane::cloud::test {

// Decodes what the gateway sent, the way a client does. Used by one thread; owned by the test.
class TestDecoder
{
public:
    struct Luma
    {
        int width = 0;
        int height = 0;
        std::vector<std::uint8_t> samples; // rows without padding
    };

    TestDecoder();
    ~TestDecoder();

    // The picture of one whole access unit; none when it cannot be decoded.
    std::optional<Luma> decode(const std::string &accessUnit);

private:
    struct Free
    {
        void operator()(AVCodecContext *context) const;
        void operator()(AVFrame *frame) const;
        void operator()(AVPacket *packet) const;
    };

    std::unique_ptr<AVCodecContext, Free> m_context;
    std::unique_ptr<AVFrame, Free> m_frame;
    std::unique_ptr<AVPacket, Free> m_packet;
};

// Peak signal-to-noise ratio of the luma, dB; higher is more alike, 100 = equal. 0 when the sizes differ.
double psnr(const TestDecoder::Luma &decoded, const YuvPicture &original);

} // namespace orvane::cloud::test
