#pragma once

#include "VideoSink.h"
#include "swplay/VideoFrame.h"
#include "video/AvHandles.h"

#include <array>
#include <string>

namespace swplay {

// Decodes one H.264 stream with libavcodec: whole access units in, and the picture of each out at once. One
// thread at a time; owned by its StreamDecoder.
class H264Decoder
{
public:
    // Longest side of a picture in pixels. Larger ones are not decoded, so that a stream cannot claim any
    // amount of memory.
    static constexpr int MaxSide = 4096;

    enum class Result {
        Picture, // picture() is the unit's
        NoPicture, // nothing wrong, but nothing to show
        Corrupt, // what follows depends on data that is missing: go on with a key frame
        Unsupported, // the picture cannot be shown: too large, or of an unknown format
        Failed, // there is no decoder
    };

    H264Decoder();

    // Takes the unit's data without copying it where the string has room for libavcodec's padding.
    Result decode(AccessUnit unit);
    // The last picture that was decoded without error, or none. Valid until the next call of decode. Always
    // I420 with `native` set.
    const VideoFrame *picture() const;
    // Why the last decode was not Picture or NoPicture. English, for the log.
    const std::string &problem() const { return m_problem; }
    // Forgets the stream; the next unit is a key frame. The last picture stays.
    void restart();
    // Whether the stream says that it reorders pictures, so that the picture of a unit may come out later.
    bool reorders() const;

private:
    // What a unit was, by its running number, to find it again when its picture comes out.
    struct Tag
    {
        std::int64_t number = -1;
        std::uint64_t frameId = 0;
        std::int64_t captureUs = 0;
    };

    bool open();
    bool fillPacket(AccessUnit &unit);
    Result receive();
    Result accept();
    Result fail(Result result, std::string problem);

    CodecContextPtr m_context;
    PacketPtr m_packet;
    FramePtr m_received; // what libavcodec hands out
    FramePtr m_shown; // the frame that m_picture points into
    VideoFrame m_picture;
    std::array<Tag, 32> m_tags; // more than the pictures that H.264 may hold back
    std::int64_t m_nextNumber = 0;
    std::string m_problem;
    bool m_openFailed = false;
};

} // namespace swplay
