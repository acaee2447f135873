#pragma once

struct VideoFrame;

// A render target for SWPlayer. The player calls it from a decoding thread, one call at a time; nothing is
// called any more once SWPlayer::setDisplay(nullptr), SWPlayer::stop or the player's destructor has returned.
// The display is owned by the caller and must be taken from the player before it is destroyed.
class VideoDisplay
{
public:
    VideoDisplay() = default;
    VideoDisplay(const VideoDisplay &) = delete;
    VideoDisplay &operator=(const VideoDisplay &) = delete;
    virtual ~VideoDisplay();

    // A name for this display in the runtime's log, UTF-8, copied.
    virtual void setLogId(const char *logId) = 0;
    // The device's screen was turned: 0 to 3 quarter turns, odd = landscape. Called on a runtime thread.
    virtual void onScreenRotation(int rotation) = 0;
    // A decoded picture. Returns 0, or a negative value if the picture cannot be shown.
    virtual int render(VideoFrame *frame) = 0;
    // A new picture can be fetched. Called on a runtime thread after render.
    virtual void onFrameArrival() = 0;
};
