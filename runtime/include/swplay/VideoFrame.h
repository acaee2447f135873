#pragma once

#include <cstdint>

struct AVFrame;

// One decoded picture on its way from the decoder to a display. The planes belong to the decoder and are
// valid only during VideoDisplay::render; a display that keeps the picture takes its own reference of
// `native` (av_frame_ref) where that is set, or copies the planes.
struct VideoFrame
{
    const std::uint8_t *planes[3] = {nullptr, nullptr, nullptr}; // I420: Y, U, V
    int strides[3] = {0, 0, 0}; // bytes per row of each plane
    int width = 0; // pixels
    int height = 0; // pixels
    bool fullRange = false; // true: 0 to 255 luma, false: 16 to 235
    std::int64_t captureUs = 0; // gateway clock, microseconds
    std::uint64_t frameId = 0;
    const AVFrame *native = nullptr; // the decoder's own frame, or none
};
