#pragma once

namespace orvane::cloud {

// What the gateway needs to know to encode: the fields of a row of the client's level table that it acts on.
// Values are within the limits that ClientMessage checks.
struct Level
{
    int width = 720; // pixels, portrait, even
    int height = 1280; // pixels, portrait, even
    int frameRate = 25; // most frames per second that are not caused by input
    int minFrameRate = 15; // passed back to the client unchanged
    int bitRate = 6144; // kbit/s
    int codec = 2; // 2 = H.264
    int quality = 100; // passed back unchanged, as are the rest
    int reserved8 = 0;
    int reserved9 = 0;
    int maxQuality = 100;
    int minQuality = 50;

    bool operator==(const Level &other) const
    {
        return width == other.width && height == other.height && frameRate == other.frameRate
            && minFrameRate == other.minFrameRate && bitRate == other.bitRate && codec == other.codec
            && quality == other.quality && reserved8 == other.reserved8 && reserved9 == other.reserved9
            && maxQuality == other.maxQuality && minQuality == other.minQuality;
    }
    bool operator!=(const Level &other) const { return !(*this == other); }
};

// ScreenCast modes as they are acted on.
enum class CastMode { Paused = 0, Thumbnail = 1, Full = 3 };

} // namespace orvane::cloud
