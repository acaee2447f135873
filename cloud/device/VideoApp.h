#pragma once

#include "device/App.h"

namespace orvane::cloud {

// A film of 25 frames per second over the whole screen, with its frame number. Plays while it is in front and
// keeps its speed when ticks are late or fewer frames are to be shown, by leaving frames out.
class VideoApp : public App
{
public:
    static constexpr std::chrono::milliseconds FrameInterval{40};

    using App::App;

    void draw(QPainter &painter, const QRect &clip) override;
    bool isDark() const override { return true; }
    void describe(QJsonObject &state) const override;
    bool isAnimated() const override { return true; }
    void resume(TimePoint now) override;
    void pause() override;
    std::optional<TimePoint> nextTick() const override;
    void tick(TimePoint now) override;
    void setFilmRate(int picturesPerSecond) override;

private:
    std::chrono::milliseconds shownFor() const { return m_step * FrameInterval; }

    int m_step = 1; // every so many frames one is shown
    int m_frame = 0; // shown
    std::optional<TimePoint> m_frameTime; // when m_frame was due; none while paused
};

} // namespace orvane::cloud
