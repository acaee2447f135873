#include "device/VideoApp.h"

#include "device/Theme.h"
#include "device/VideoScene.h"

#include <QPainter>

#include <algorithm>
#include <limits>

namespace orvane::cloud {

void VideoApp::draw(QPainter &painter, const QRect &)
{
    VideoScene::forScreen(screen()).draw(painter, m_frame);
    QColor plate(theme::Night);
    plate.setAlpha(130);
    theme::drawPill(painter, QRectF(theme::Margin, theme::StatusBarHeight + 20, 240, 54), plate,
        QColor(theme::Paper), QStringLiteral("Frame %1").arg(m_frame));
}

void VideoApp::describe(QJsonObject &state) const
{
    state.insert(QStringLiteral("frame"), m_frame);
}

void VideoApp::resume(TimePoint now)
{
    m_frameTime = now;
}

void VideoApp::setFilmRate(int picturesPerSecond)
{
    constexpr int FilmRate = std::chrono::seconds(1) / FrameInterval;
    m_step = FilmRate / std::clamp(picturesPerSecond, 1, FilmRate);
}

void VideoApp::pause()
{
    m_frameTime.reset();
}

std::optional<TimePoint> VideoApp::nextTick() const
{
    return m_frameTime ? std::optional(*m_frameTime + shownFor()) : std::nullopt;
}

void VideoApp::tick(TimePoint now)
{
    if (!m_frameTime || now < *m_frameTime + shownFor()) {
        return;
    }
    const auto frames = (now - *m_frameTime) / FrameInterval;
    m_frame = static_cast<int>((m_frame + frames) % std::numeric_limits<int>::max());
    *m_frameTime += frames * FrameInterval;
    invalidateAll();
}

} // namespace orvane::cloud
