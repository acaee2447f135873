#include "TestEncoder.h"

#include <cstddef>
#include <stdexcept>

extern "C" {
#include <x264.h>
}

struct TestEncoder::Impl
{
    x264_param_t parameters{};
    x264_t *encoder = nullptr;
    Chroma chroma = Chroma::C420;
    std::uint64_t lastId = 0;
};

namespace {

struct Layout
{
    int csp;
    const char *profile;
    int columns; // how many colour samples stand for one of 4:2:0, in each direction
    int rows;
};

Layout layoutOf(TestEncoder::Chroma chroma)
{
    switch (chroma) {
    case TestEncoder::Chroma::C422:
        return {X264_CSP_I422, "high422", 1, 2};
    case TestEncoder::Chroma::C444:
        return {X264_CSP_I444, "high444", 2, 2};
    default:
        return {X264_CSP_I420, "high", 1, 1};
    }
}

// Repeats every sample of a 4:2:0 colour plane.
std::vector<std::uint8_t> spread(const std::vector<std::uint8_t> &plane, int width, int columns, int rows)
{
    const int height = static_cast<int>(plane.size()) / width;
    std::vector<std::uint8_t> result(plane.size() * columns * rows);
    for (int y = 0; y < height * rows; ++y)
        for (int x = 0; x < width * columns; ++x)
            result[std::size_t(y) * width * columns + x] = plane[std::size_t(y / rows) * width + x / columns];
    return result;
}

} // namespace

TestEncoder::TestEncoder(int width, int height, Chroma chroma, bool fullRange)
    : m_impl(std::make_unique<Impl>())
{
    x264_param_t &p = m_impl->parameters;
    const Layout layout = layoutOf(chroma);
    m_impl->chroma = chroma;
    x264_param_default_preset(&p, "veryfast", "zerolatency");
    p.i_log_level = X264_LOG_NONE;
    p.i_threads = 1;
    p.i_csp = layout.csp;
    p.i_width = width;
    p.i_height = height;
    p.i_keyint_max = X264_KEYINT_MAX_INFINITE;
    p.i_scenecut_threshold = 0;
    p.b_annexb = 1;
    p.b_repeat_headers = 1;
    p.b_vfr_input = 0;
    p.rc.i_rc_method = X264_RC_CQP;
    p.rc.i_qp_constant = 14;
    p.vui.b_fullrange = fullRange ? 1 : 0;
    if (x264_param_apply_profile(&p, layout.profile) < 0 || !(m_impl->encoder = x264_encoder_open(&p)))
        throw std::runtime_error("x264 does not open");
}

TestEncoder::~TestEncoder()
{
    x264_encoder_close(m_impl->encoder);
}

swplay::AccessUnit TestEncoder::encode(const TestPicture &picture, bool keyFrame)
{
    const Layout layout = layoutOf(m_impl->chroma);
    std::vector<std::uint8_t> planes[3] = {picture.planes[0]};
    x264_picture_t in;
    x264_picture_init(&in);
    in.i_type = keyFrame ? X264_TYPE_IDR : X264_TYPE_P;
    in.i_pts = static_cast<std::int64_t>(m_impl->lastId);
    in.img.i_csp = layout.csp;
    in.img.i_plane = 3;
    for (int plane = 0; plane < 3; ++plane) {
        if (plane > 0)
            planes[plane]
                = spread(picture.planes[plane], picture.strides[plane], layout.columns, layout.rows);
        in.img.plane[plane] = planes[plane].data();
        in.img.i_stride[plane] = picture.strides[plane] * (plane > 0 ? layout.columns : 1);
    }
    x264_nal_t *nals = nullptr;
    int count = 0;
    x264_picture_t out;
    const int size = x264_encoder_encode(m_impl->encoder, &nals, &count, &in, &out);
    if (size <= 0)
        throw std::runtime_error("x264 does not encode");
    swplay::AccessUnit unit;
    unit.frameId = ++m_impl->lastId;
    unit.captureUs = static_cast<std::int64_t>(unit.frameId) * 40000;
    unit.keyFrame = keyFrame;
    unit.width = picture.width;
    unit.height = picture.height;
    unit.data.assign(reinterpret_cast<const char *>(nals[0].p_payload), static_cast<std::size_t>(size));
    return unit;
}

swplay::AccessUnit TestEncoder::next(bool keyFrame)
{
    const int phase = static_cast<int>(m_impl->lastId) + 1;
    return encode(
        TestPicture::gradient(m_impl->parameters.i_width, m_impl->parameters.i_height, phase), keyFrame);
}
