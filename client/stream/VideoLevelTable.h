#pragma once

#include <swplay/VideoLevel.h>

#include <array>

namespace stream {

constexpr int VideoLevelCount = 7;

// The quality levels that this client asks for. Rows 1 to 5 are the user's choices from "720P HQ" to "240P";
// row 0 equals row 1 and is never asked for, since index 0 means automatic; row 6 is a group tile's. Any
// thread.
const std::array<VideoLevel, VideoLevelCount> &videoLevelTable();

} // namespace stream
