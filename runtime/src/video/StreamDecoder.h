#pragma once

#include "VideoSink.h"
#include "video/DecodePool.h"
#include "video/H264Decoder.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

class VideoDisplay;

namespace swplay {

// One playing stream: takes access units from the session, has them decoded on the pool and gives the
// pictures to the display. When a unit is damaged, one is missing or decoding falls behind, everything up to
// the next key frame is skipped and a key frame is asked for. Made and closed by a SWPlayer; shared with the
// session and, for a step, with a decode worker.
class StreamDecoder final : public VideoSink,
                            public DecodeTask,
                            public std::enable_shared_from_this<StreamDecoder>
{
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    // What waits at most: about a third of a second of video, and the memory that it takes. A single unit
    // larger than the memory limit is treated as damaged.
    static constexpr std::size_t MaxWaitingUnits = 8;
    static constexpr std::size_t MaxWaitingBytes = std::size_t(16) * 1024 * 1024;
    // A key frame that was asked for and did not help is asked for again after this time.
    static constexpr std::chrono::milliseconds KeyFrameRetryInterval{1000};

    // `name`: for the log. `pool` outlives the stream. `clock`: any thread.
    StreamDecoder(std::string name, DecodePool &pool, Clock clock = &std::chrono::steady_clock::now);
    ~StreamDecoder() override = default;

    // --- The owner's thread.

    // Where pictures go, or none. The last picture is shown on a new display at once. Returns when the
    // previous display is no longer in use; from a callback of that display, at once.
    void setDisplay(VideoDisplay *display);
    // Ends the stream for good: later calls do nothing. Returns when no callback is running and nothing is
    // being decoded; from a callback of this stream, at once.
    void close();

    // --- VideoSink: the network thread. They only take the lock for a moment.

    void setFeedback(std::weak_ptr<VideoFeedback> feedback) override;
    void accessUnit(AccessUnit unit) override;
    void screenRotation(int rotation) override;
    void streamReset() override;

    // --- DecodeTask: a decode worker.

    bool serve() override;

private:
    using FeedbackPtr = std::shared_ptr<VideoFeedback>;

    // What one step of a worker does.
    struct Step
    {
        std::optional<AccessUnit> unit;
        std::optional<int> rotation;
        std::uint64_t epoch = 0;
        bool restart = false;
        bool redraw = false;
    };

    // With m_mutex held:
    void admit(AccessUnit unit, std::string &loss);
    void loseStream();
    FeedbackPtr keyFrameRequest();
    bool hasWork() const;
    bool becomeScheduled();
    void clearWaiting();

    // Without it:
    void wakeWorker();
    void report(const std::string &loss, const FeedbackPtr &feedback) const;
    bool beginStep(Step &step);
    bool endStep();
    void decode(Step &step);
    void pictureReady();
    void decodingFailed(std::uint64_t epoch, H264Decoder::Result result);
    void show(const VideoFrame &picture);
    void keepRotation(int rotation);
    template <typename Call>
    bool withDisplay(Call call);

    const std::string m_name;
    DecodePool &m_pool;
    const Clock m_clock;

    std::mutex m_mutex;
    std::condition_variable m_left; // a worker left a display, or a step
    // All m_mutex:
    std::deque<AccessUnit> m_waiting; // a key frame stands only at its front
    std::size_t m_waitingBytes = 0;
    bool m_needKeyFrame = true; // units are skipped up to a key frame
    bool m_restart = false; // the decoder starts anew with the next unit
    std::uint64_t m_epoch = 0; // counts key frames and resets: failures of an earlier epoch do not matter
    std::uint64_t m_lastFrameId = 0;
    std::optional<std::chrono::steady_clock::time_point> m_lastRequest;
    bool m_decodedSinceRequest = false;
    std::weak_ptr<VideoFeedback> m_feedback;
    std::optional<int> m_rotation; // not yet told to a display
    VideoDisplay *m_display = nullptr;
    bool m_redraw = false; // the display has not seen the last picture
    VideoDisplay *m_displayInUse = nullptr; // a callback of it is running
    bool m_serving = false;
    std::thread::id m_worker; // valid while m_serving
    bool m_scheduled = false; // in the pool's queue, or being served
    bool m_closed = false;

    // The worker that serves the stream; the owner after close:
    std::unique_ptr<H264Decoder> m_decoder;
    H264Decoder::Result m_lastResult = H264Decoder::Result::Picture;
};

} // namespace swplay
