#include "stream/VideoLevelTable.h"

namespace stream {

const std::array<VideoLevel, VideoLevelCount> &videoLevelTable()
{
    // Codec, width, height, frame rate, lowest frame rate, bit rate, quality, two reserved, highest and
    // lowest quality: in the order of VideoLevel.
    static const std::array<VideoLevel, VideoLevelCount> table = {{
        {2, 720, 1280, 25, 15, 6144, 100, 0, 0, 100, 50},
        {2, 720, 1280, 25, 15, 6144, 100, 0, 0, 100, 50},
        {2, 720, 1280, 25, 15, 4096, 100, 0, 0, 100, 50},
        {2, 576, 1024, 20, 10, 2048, 100, 0, 0, 100, 50},
        {2, 480, 848, 15, 15, 1024, 100, 0, 0, 100, 50},
        {2, 240, 424, 15, 15, 512, 100, 0, 0, 100, 50},
        {2, 144, 218, 5, 1, 256, 100, 0, 0, 100, 50},
    }};
    return table;
}

} // namespace stream
