#pragma once

#include <cstdint>

// One quality level of a video stream: eleven signed 32-bit integers in this order. The runtime passes
// every field to the gateway unchanged.
struct VideoLevel
{
    std::int32_t codec = 0; // 2 = H.264
    std::int32_t width = 0; // pixels, portrait
    std::int32_t height = 0; // pixels, portrait
    std::int32_t frameRate = 0; // most frames per second
    std::int32_t minFrameRate
        = 0; // frames per second below which automatic control lowers the bit rate instead
    std::int32_t bitRate = 0; // kbit/s
    std::int32_t quality = 0; // 0 to 100
    std::int32_t reserved8 = 0;
    std::int32_t reserved9 = 0;
    std::int32_t maxQuality = 0; // 0 to 100
    std::int32_t minQuality = 0; // 0 to 100
};
