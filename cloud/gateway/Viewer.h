#pragma once

#include "gateway/ClientLink.h"
#include "gateway/ClientMessage.h"
#include "gateway/FramePacer.h"
#include "gateway/H264Encoder.h"
#include "gateway/QualityControl.h"
#include "gateway/SendWindow.h"
#include "gateway/SessionCounters.h"
#include "gateway/YuvPicture.h"

#include <QSize>

#include <functional>
#include <memory>
#include <optional>

namespace orvane::cloud {

// The video of one session: decides when a picture is encoded for it, at which level, and sends it. A picture
// is encoded only at the moment when it may go out, so that nothing ever waits in a queue and the newest
// always wins; the last picture of a series of changes always goes out, and once more in better quality if it
// was coarse.
//
// Owned by DeviceHost; used on its strand only. Time is passed in.
class Viewer
{
public:
    // Gives the device's present picture in a size; called at most once per pump().
    using PictureSource = std::function<const YuvPicture &(QSize)>;

    Viewer(
        std::string sessionId, std::shared_ptr<ClientLink> link, std::shared_ptr<SessionCounters> counters);

    const std::string &sessionId() const { return m_sessionId; }
    ClientLink &link() { return *m_link; }

    // The client's wishes. Each takes effect with the next pump().
    void setLevels(const client::VideoLevels &levels);
    void choose(const client::ChooseRow &choice);
    void choose(const client::ChooseCustom &choice);
    void setCastMode(CastMode mode);
    void requestKeyFrame(TimePoint now);
    void acknowledge(std::uint64_t frameId, TimePoint now);
    // Round trip of a ping.
    void learnPathDelay(std::chrono::microseconds delay, TimePoint now)
    {
        m_window.learnPathDelay(delay, now);
    }

    // Whether pictures are wanted at all.
    bool isWatching() const { return m_selection.castMode() != CastMode::Paused; }
    // Whether its level is one to operate the device with, so that the effect of input is to show at once.
    bool isOperating() const { return isWatching() && !m_pacer.isForOnlookers(); }
    // The size of the pictures that are wanted; none while paused.
    std::optional<QSize> pictureSize() const;
    // The device's screen has a new picture.
    void screenChanged(FrameCause cause);

    // Announces the level in effect if it changed, and encodes and sends a picture if one is due.
    void pump(TimePoint now, const PictureSource &source);
    // When pump() is to be called again if nothing else happens; none = not needed.
    std::optional<TimePoint> nextPump(TimePoint now) const;
    // The earliest time at which a picture that the device shows of its own accord may go out.
    TimePoint nextAnimationTime(TimePoint now) const
    {
        return m_pacer.nextFrameTime(FrameCause::Animation, now);
    }

private:
    void resetAutomatic();
    void observeQuality(TimePoint now, bool congested);
    void applyLevel();
    bool wantsFrame() const { return m_changed || m_keyFrameWanted || !m_encoder; }
    bool isRefinementDue(TimePoint now) const;
    bool needsRefinement() const;
    TimePoint refinementTime() const;
    bool evaluatesQuality() const;
    void sendFrame(TimePoint now, const PictureSource &source, bool refinement);
    H264Encoder::AccessUnit encode(const PictureSource &source, bool refinement);
    void damageIfAsked(std::string &accessUnit);

    const std::string m_sessionId;
    const std::shared_ptr<ClientLink> m_link;
    const std::shared_ptr<SessionCounters> m_counters;

    LevelSelection m_selection;
    QualityControl m_quality;
    std::optional<LevelSelection::Effective> m_announced;
    int m_knownKbitPerSec = 0;
    TimePoint m_rateKnownAt{};
    TimePoint m_evaluatedAt{};

    SendWindow m_window;
    FramePacer m_pacer;
    std::unique_ptr<H264Encoder> m_encoder; // none while paused and before the first picture
    std::uint64_t m_lastFrameId = 0;
    std::uint64_t m_lastKeyFrameId = 0;
    TimePoint m_lastKeyFrameAt{};
    TimePoint m_lastFrameAt{};

    bool m_changed = false;
    FrameCause m_cause = FrameCause::Animation; // the most urgent of what m_changed stands for
    bool m_keyFrameWanted = false;
    double m_psnr = 0; // of the last picture
    bool m_settled = false; // the last refinement brought next to nothing
    int m_refinements = 0; // since the last change
    std::uint64_t m_ackedFrameId = 0;
};

} // namespace orvane::cloud
