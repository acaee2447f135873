#pragma once

#include "swplay/VideoDisplayWinBase.h"
#include "video/AvHandles.h"

namespace swplay {

// Turns a decoded I420 picture into BGRA pixels of a given size, scaling where the sizes differ. Reads range
// and colour matrix from the picture (unmarked = BT.601, limited range). Keeps its scratch picture between
// calls. One thread at a time; owned by a FrameStore.
class PictureConverter
{
public:
    // Fills the whole of `target`, alpha 255. Returns whether it did; otherwise its content is undefined and
    // the reason is in the log.
    bool convert(const AVFrame &picture, const FrameBuffer &target);

private:
    const AVFrame *scaled(const AVFrame &picture, int width, int height);

    FramePtr m_scratch; // the picture in the target's size
};

} // namespace swplay
