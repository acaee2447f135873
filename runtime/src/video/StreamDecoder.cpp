#include "video/StreamDecoder.h"

#include "Log.h"
#include "swplay/VideoDisplay.h"
#include "video/AnnexB.h"

#include <utility>

namespace swplay {

StreamDecoder::StreamDecoder(std::string name, DecodePool &pool, Clock clock)
    : m_name(std::move(name))
    , m_pool(pool)
    , m_clock(std::move(clock))
    , m_decoder(std::make_unique<H264Decoder>())
{ }

void StreamDecoder::setDisplay(VideoDisplay *display)
{
    bool wake = false;
    {
        std::unique_lock lock(m_mutex);
        if (m_closed || display == m_display)
            return;
        VideoDisplay *previous = std::exchange(m_display, display);
        m_redraw = display != nullptr;
        wake = becomeScheduled();
        m_left.wait(lock, [&] {
            return !previous || m_displayInUse != previous || m_worker == std::this_thread::get_id();
        });
    }
    if (wake)
        wakeWorker();
}

void StreamDecoder::close()
{
    std::unique_lock lock(m_mutex);
    m_closed = true;
    m_display = nullptr;
    m_feedback.reset();
    clearWaiting();
    if (m_serving && m_worker == std::this_thread::get_id())
        return;
    m_left.wait(lock, [this] { return !m_serving; });
    m_decoder.reset();
}

void StreamDecoder::setFeedback(std::weak_ptr<VideoFeedback> feedback)
{
    const std::lock_guard lock(m_mutex);
    if (!m_closed)
        m_feedback = std::move(feedback);
}

void StreamDecoder::accessUnit(AccessUnit unit)
{
    unit.keyFrame = unit.keyFrame && startsWithIdr(unit.data);
    std::string loss;
    FeedbackPtr feedback;
    bool wake = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_closed)
            return;
        admit(std::move(unit), loss);
        if (m_needKeyFrame)
            feedback = keyFrameRequest();
        wake = becomeScheduled();
    }
    report(loss, feedback);
    if (wake)
        wakeWorker();
}

// Queues a unit, or says in `loss` why decoding cannot go on with it.
void StreamDecoder::admit(AccessUnit unit, std::string &loss)
{
    const bool inOrder = unit.frameId == m_lastFrameId + 1;
    const std::size_t size = unit.data.size();
    m_lastFrameId = unit.frameId;
    if (unit.keyFrame && size <= MaxWaitingBytes) {
        clearWaiting(); // older pictures would only delay this one
        m_needKeyFrame = false;
        ++m_epoch;
    } else if (m_needKeyFrame) {
        return;
    } else if (!inOrder) {
        loss = "units before number " + std::to_string(unit.frameId) + " are missing";
    } else if (m_waiting.size() >= MaxWaitingUnits || m_waitingBytes + size > MaxWaitingBytes) {
        loss = "decoding has fallen behind";
    }
    if (!loss.empty())
        return loseStream();
    m_waitingBytes += size;
    m_waiting.push_back(std::move(unit));
}

void StreamDecoder::screenRotation(int rotation)
{
    bool wake = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_closed)
            return;
        m_rotation = rotation;
        wake = becomeScheduled();
    }
    if (wake)
        wakeWorker();
}

void StreamDecoder::streamReset()
{
    const std::lock_guard lock(m_mutex);
    loseStream();
    ++m_epoch;
    m_lastRequest.reset();
}

bool StreamDecoder::serve()
{
    Step step;
    if (!beginStep(step))
        return endStep();
    if (step.rotation
        && !withDisplay([&](VideoDisplay &display) { display.onScreenRotation(*step.rotation); }))
        keepRotation(*step.rotation);
    if (step.restart)
        m_decoder->restart();
    if (step.unit)
        decode(step);
    else if (const VideoFrame *last = step.redraw ? m_decoder->picture() : nullptr)
        show(*last);
    return endStep();
}

// Takes the work of one step. Returns false if there is none.
bool StreamDecoder::beginStep(Step &step)
{
    const std::lock_guard lock(m_mutex);
    m_serving = true;
    m_worker = std::this_thread::get_id();
    if (m_closed || !hasWork())
        return false;
    step.epoch = m_epoch;
    if (m_display) {
        step.rotation = std::exchange(m_rotation, std::nullopt);
        step.redraw = std::exchange(m_redraw, false);
    }
    if (!m_waiting.empty()) {
        step.unit = std::move(m_waiting.front());
        m_waiting.pop_front();
        m_waitingBytes -= step.unit->data.size();
        step.restart = std::exchange(m_restart, false);
    }
    return true;
}

bool StreamDecoder::endStep()
{
    bool more = false;
    {
        const std::lock_guard lock(m_mutex);
        m_serving = false;
        m_worker = {};
        more = m_scheduled = !m_closed && hasWork();
    }
    m_left.notify_all();
    return more;
}

void StreamDecoder::decode(Step &step)
{
    using Result = H264Decoder::Result;
    const bool keyFrame = step.unit->keyFrame;
    Result result = m_decoder->decode(std::move(*step.unit));
    const bool swallowed = result == Result::NoPicture && keyFrame && !m_decoder->reorders();
    if (swallowed)
        result = Result::Corrupt;
    if (result == Result::Picture)
        pictureReady();
    else if (result != Result::NoPicture)
        decodingFailed(step.epoch, result);
    m_lastResult = result;
}

void StreamDecoder::pictureReady()
{
    const auto decodedAt = m_clock();
    const VideoFrame &picture = *m_decoder->picture();
    FeedbackPtr feedback;
    {
        const std::lock_guard lock(m_mutex);
        m_decodedSinceRequest = true;
        feedback = m_feedback.lock();
    }
    show(picture);
    if (feedback)
        feedback->pictureDecoded(picture.frameId, picture.captureUs, decodedAt);
}

void StreamDecoder::decodingFailed(std::uint64_t epoch, H264Decoder::Result result)
{
    if (result != H264Decoder::Result::Corrupt) {
        // A key frame would not help. Said once, not for every picture.
        if (result != m_lastResult)
            log(LogLevel::Error, m_name + ": cannot show the stream: " + m_decoder->problem());
        return;
    }
    FeedbackPtr feedback;
    {
        const std::lock_guard lock(m_mutex);
        m_restart = true;
        if (m_closed || epoch != m_epoch)
            return; // a key frame is waiting already, or the unit was of an earlier connection
        loseStream();
        feedback = keyFrameRequest();
    }
    const std::string &problem = m_decoder->problem();
    report("a unit is damaged (" + (problem.empty() ? "a key frame without a picture" : problem) + ")",
        feedback);
}

void StreamDecoder::show(const VideoFrame &picture)
{
    withDisplay([&](VideoDisplay &display) {
        VideoFrame frame = picture;
        if (display.render(&frame) >= 0)
            display.onFrameArrival();
    });
}

// The display went away before it could be told: the next one will be, unless there is a newer rotation.
void StreamDecoder::keepRotation(int rotation)
{
    const std::lock_guard lock(m_mutex);
    if (!m_rotation)
        m_rotation = rotation;
}

// Calls into the display without holding the lock. Returns false if there is none.
template <typename Call>
bool StreamDecoder::withDisplay(Call call)
{
    VideoDisplay *display = nullptr;
    {
        const std::lock_guard lock(m_mutex);
        display = m_display;
        m_displayInUse = display;
    }
    if (!display)
        return false;
    call(*display);
    {
        const std::lock_guard lock(m_mutex);
        m_displayInUse = nullptr;
    }
    m_left.notify_all();
    return true;
}

// Everything up to the next key frame is useless.
void StreamDecoder::loseStream()
{
    clearWaiting();
    m_needKeyFrame = true;
    m_restart = true;
}

// Whom to ask for a key frame, or none if that was done lately without a picture since.
StreamDecoder::FeedbackPtr StreamDecoder::keyFrameRequest()
{
    const auto now = m_clock();
    if (m_lastRequest && !m_decodedSinceRequest && now - *m_lastRequest < KeyFrameRetryInterval)
        return nullptr;
    FeedbackPtr feedback = m_feedback.lock();
    if (feedback) {
        m_lastRequest = now;
        m_decodedSinceRequest = false;
    }
    return feedback;
}

bool StreamDecoder::hasWork() const
{
    return !m_waiting.empty() || (m_display && (m_rotation || m_redraw));
}

// Whether the caller must put the stream into the pool's queue.
bool StreamDecoder::becomeScheduled()
{
    if (m_scheduled || !hasWork())
        return false;
    m_scheduled = true;
    return true;
}

void StreamDecoder::clearWaiting()
{
    m_waiting.clear();
    m_waitingBytes = 0;
}

void StreamDecoder::wakeWorker()
{
    m_pool.post(shared_from_this());
}

void StreamDecoder::report(const std::string &loss, const FeedbackPtr &feedback) const
{
    if (!loss.empty())
        log(LogLevel::Info, m_name + ": " + loss + "; going on with the next key frame");
    if (feedback)
        feedback->keyframeNeeded();
}

} // namespace swplay
