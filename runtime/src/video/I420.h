#pragma once

#include "video/AvHandles.h"

namespace swplay {

// Whether the picture is planar 4:2:0 with 8 bits, full or limited range.
bool isI420(const AVFrame &frame);

// An I420 copy of a planar 8-bit picture of another chroma format (4:2:2, 4:4:4), with the same properties
// such as range and colour space. None for every other format, or without memory. Any thread.
FramePtr copyAsI420(const AVFrame &frame);

// An empty I420 picture of this size in pixels, or none without memory.
FramePtr makeI420(int width, int height);

} // namespace swplay
