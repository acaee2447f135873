#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

struct x264_t;

namespace orvane::cloud {

class YuvPicture;

// One H.264 encoder for one viewer, set up for the lowest delay: every picture that goes in comes out at once
// as one access unit. Owns its x264 instance. Used by one thread at a time (the strand of its device).
class H264Encoder
{
public:
    struct Settings
    {
        int width = 0; // pixels, even
        int height = 0; // pixels, even
        int frameRate = 0; // frames per second that the bit rate is meant for
        int bitRate = 0; // kbit/s, the most; a still or simple picture takes less
    };

    // One access unit in Annex B form, with parameter sets before a key frame.
    struct AccessUnit
    {
        std::string data;
        bool keyFrame = false;
        double psnr = 0; // likeness of the brightness to the original, dB; the higher the sharper
    };

    // What a single picture is to become.
    struct Request
    {
        bool keyFrame = false;
        std::optional<int> quantizer; // none = as the bit rate allows
    };

    // Throws std::runtime_error when the settings cannot be used.
    explicit H264Encoder(const Settings &settings);
    ~H264Encoder();
    H264Encoder(const H264Encoder &) = delete;
    H264Encoder &operator=(const H264Encoder &) = delete;

    const Settings &settings() const { return m_settings; }
    // Changes the rates without a new start of the stream. False when x264 refuses: make a new encoder.
    bool setRates(int frameRate, int bitRate);

    // `picture` has the size of the settings. Throws std::runtime_error when x264 fails.
    AccessUnit encode(const YuvPicture &picture, const Request &request);

private:
    struct Closer
    {
        void operator()(x264_t *encoder) const;
    };

    Settings m_settings;
    std::unique_ptr<x264_t, Closer> m_encoder;
    std::int64_t m_nextPts = 0;
};

} // namespace orvane::cloud
