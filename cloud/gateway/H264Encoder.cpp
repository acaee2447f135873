#include "gateway/H264Encoder.h"

#include "gateway/GatewayLog.h"
#include "gateway/YuvPicture.h"

#include <x264.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <stdexcept>

namespace orvane::cloud {

namespace {

// Quality of a picture where the bit rate is enough (x264's constant rate factor).
constexpr float RateFactor = 22.0F;
// A single access unit takes at most what the bit rate gives in this time, so that none takes long to arrive.
constexpr int BurstMs = 110;

// x264's log: errors only; among the rest are notes about every picture that does not fit the rate.
void logErrors(void *, int level, const char *format, va_list arguments)
{
    if (level <= X264_LOG_ERROR) {
        std::array<char, 256> text{};
        std::vsnprintf(text.data(), text.size(), format, arguments);
        qCWarning(gatewayLog, "x264: %s", text.data());
    }
}

void setRateLimit(x264_param_t &param, const H264Encoder::Settings &settings)
{
    param.i_fps_num = static_cast<std::uint32_t>(settings.frameRate);
    param.i_fps_den = 1;
    param.rc.i_vbv_max_bitrate = settings.bitRate;
    // x264 wants room for one frame of the mean size at least.
    param.rc.i_vbv_buffer_size
        = std::max(settings.bitRate * BurstMs / 1000, settings.bitRate / settings.frameRate + 1);
    param.rc.f_vbv_buffer_init = 1.0F;
}

x264_param_t parametersFor(const H264Encoder::Settings &settings)
{
    x264_param_t param;
    if (x264_param_default_preset(&param, "ultrafast", "zerolatency") < 0) {
        throw std::runtime_error("x264 does not know the preset");
    }
    // What text on a screen gains from at little cost in time: without these it takes half as many bytes
    // again.
    param.b_cabac = 1;
    param.b_deblocking_filter = 1;
    param.rc.i_aq_mode = X264_AQ_VARIANCE;
    // x264 measures the likeness only if it may log at this level.
    param.i_log_level = X264_LOG_INFO;
    param.pf_log = logErrors;
    param.i_threads = 1; // many sessions share the worker pool; a single encode stays on one core
    param.b_sliced_threads = 0;
    param.i_width = settings.width;
    param.i_height = settings.height;
    param.i_csp = X264_CSP_I420;
    param.b_annexb = 1;
    param.b_repeat_headers = 1;
    param.b_vfr_input = 0;
    param.i_bframe = 0;
    param.i_keyint_max = X264_KEYINT_MAX_INFINITE; // key frames come on request only
    param.i_scenecut_threshold = 0;
    param.analyse.i_weighted_pred = 0;
    param.analyse.b_psnr = 1; // tells the viewer whether a still picture needs more
    param.vui.b_fullrange = 0;
    param.vui.i_colmatrix = 6; // BT.601, which is what YuvPicture holds
    param.rc.i_rc_method = X264_RC_CRF;
    param.rc.f_rf_constant = RateFactor;
    setRateLimit(param, settings);
    if (x264_param_apply_profile(&param, "main") < 0) {
        throw std::runtime_error("x264 does not know the profile");
    }
    return param;
}

} // namespace

void H264Encoder::Closer::operator()(x264_t *encoder) const
{
    x264_encoder_close(encoder);
}

H264Encoder::H264Encoder(const Settings &settings)
    : m_settings(settings)
{
    const bool plausible = settings.width > 0 && settings.height > 0 && settings.width % 2 == 0
        && settings.height % 2 == 0 && settings.frameRate > 0 && settings.bitRate > 0;
    if (plausible) {
        x264_param_t param = parametersFor(settings);
        m_encoder.reset(x264_encoder_open(&param));
        x264_param_cleanup(&param);
    }
    if (!m_encoder) {
        throw std::runtime_error("no H.264 encoder for " + std::to_string(settings.width) + "x"
            + std::to_string(settings.height) + " at " + std::to_string(settings.bitRate) + " kbit/s");
    }
}

H264Encoder::~H264Encoder() = default;

bool H264Encoder::setRates(int frameRate, int bitRate)
{
    Settings settings = m_settings;
    settings.frameRate = frameRate;
    settings.bitRate = bitRate;
    x264_param_t param;
    x264_encoder_parameters(m_encoder.get(), &param);
    setRateLimit(param, settings);
    if (x264_encoder_reconfig(m_encoder.get(), &param) < 0) {
        return false;
    }
    m_settings = settings;
    return true;
}

H264Encoder::AccessUnit H264Encoder::encode(const YuvPicture &picture, const Request &request)
{
    if (picture.width() != m_settings.width || picture.height() != m_settings.height) {
        throw std::runtime_error("the picture does not have the encoder's size");
    }
    x264_picture_t in;
    x264_picture_init(&in);
    in.img.i_csp = X264_CSP_I420;
    in.img.i_plane = 3;
    // x264 only reads the planes; its interface merely does not say so.
    in.img.plane[0] = const_cast<std::uint8_t *>(picture.y());
    in.img.plane[1] = const_cast<std::uint8_t *>(picture.u());
    in.img.plane[2] = const_cast<std::uint8_t *>(picture.v());
    in.img.i_stride[0] = picture.width();
    in.img.i_stride[1] = picture.chromaStride();
    in.img.i_stride[2] = picture.chromaStride();
    in.i_pts = m_nextPts++;
    in.i_type = request.keyFrame ? X264_TYPE_IDR : X264_TYPE_AUTO;
    in.i_qpplus1 = request.quantizer ? *request.quantizer + 1 : X264_QP_AUTO;
    x264_nal_t *nals = nullptr;
    int nalCount = 0;
    x264_picture_t out{};
    const int size = x264_encoder_encode(m_encoder.get(), &nals, &nalCount, &in, &out);
    if (size <= 0) {
        throw std::runtime_error("x264 did not encode a picture");
    }
    // The NAL units of one call lie one after the other in memory.
    AccessUnit unit;
    unit.data.assign(reinterpret_cast<const char *>(nals[0].p_payload), static_cast<std::size_t>(size));
    unit.keyFrame = out.b_keyframe != 0;
    unit.psnr = out.prop.f_psnr[0];
    return unit;
}

} // namespace orvane::cloud
