#include "gateway/SendWindow.h"

#include <algorithm>

namespace orvane::cloud {

using std::chrono::microseconds;

namespace {

constexpr std::size_t InitialWindowBytes = std::size_t(48) * 1024; // 0.4 s on a 1 Mbit/s link
constexpr std::size_t MinWindowBytes = std::size_t(4) * 1024;
constexpr std::size_t MaxWindowBytes = std::size_t(4) * 1024 * 1024;
constexpr std::chrono::milliseconds TargetDelay{120};
constexpr std::chrono::seconds PathDelayPeriod{15};
// A path's own delay may grow by so much; more is taken for queueing.
constexpr std::chrono::milliseconds MaxRouteChange{300};

} // namespace

SendWindow::SendWindow()
    : m_window(InitialWindowBytes)
{ }

bool SendWindow::isOpen() const
{
    return m_frames.empty() || m_bytes < m_window;
}

void SendWindow::sent(std::uint64_t frameId, std::size_t bytes, TimePoint now)
{
    m_bytes += bytes;
    m_frames.push_back({frameId, bytes, m_bytes, now});
}

std::optional<SendWindow::Ack> SendWindow::acknowledged(std::uint64_t frameId, TimePoint now)
{
    if (m_frames.empty() || frameId < m_frames.front().id || frameId > m_frames.back().id) {
        return std::nullopt;
    }
    Frame newest = m_frames.front();
    std::size_t ackedBytes = 0;
    while (!m_frames.empty() && m_frames.front().id <= frameId) {
        newest = m_frames.front();
        ackedBytes += newest.bytes;
        m_bytes -= newest.bytes;
        m_frames.pop_front();
    }
    const auto delay
        = std::max(microseconds(1), std::chrono::duration_cast<microseconds>(now - newest.sentAt));
    learnPathDelay(delay, now);
    Ack ack;
    ack.queueDelay = delay - pathDelay();
    ack.congested = ack.queueDelay > TargetDelay || (m_limited && ack.queueDelay >= TargetDelay / 2);
    resize(newest, delay, ackedBytes, now);
    if (ack.congested) {
        ack.kbitPerSec
            = static_cast<int>(newest.bytesUnderWay * 8000 / static_cast<std::size_t>(delay.count()));
    }
    return ack;
}

void SendWindow::resize(const Frame &frame, microseconds delay, std::size_t ackedBytes, TimePoint now)
{
    const microseconds queueDelay = delay - pathDelay();
    if (queueDelay > TargetDelay) {
        if (frame.sentAt < m_lastCut) {
            m_limited = false;
            return; // sent before the last cut: it cannot tell whether that was enough
        }
        const double kept = double((pathDelay() + TargetDelay).count()) / double(delay.count());
        const auto carried = static_cast<std::size_t>(double(frame.bytesUnderWay) * kept);
        m_window = std::clamp(std::min(m_window, carried), MinWindowBytes, MaxWindowBytes);
        m_lastCut = now;
    } else if (m_limited && queueDelay < TargetDelay / 2) {
        m_window = std::min(m_window + ackedBytes, MaxWindowBytes);
    }
    m_limited = false;
}

bool SendWindow::isCongested(TimePoint now) const
{
    return !m_frames.empty() && m_leastDelay && now - m_frames.front().sentAt > pathDelay() + TargetDelay;
}

microseconds SendWindow::pathDelay() const
{
    if (!m_leastDelay) {
        return microseconds(0);
    }
    microseconds recent = m_minDelay.value_or(*m_leastDelay);
    if (m_previousMinDelay) {
        recent = std::min(recent, *m_previousMinDelay);
    }
    return std::min(recent, *m_leastDelay + microseconds(MaxRouteChange));
}

void SendWindow::learnPathDelay(microseconds delay, TimePoint now)
{
    m_leastDelay = std::min(m_leastDelay.value_or(delay), delay);
    if (m_minDelay && now - m_periodStart >= PathDelayPeriod) {
        m_previousMinDelay = m_minDelay;
        m_minDelay.reset();
    }
    if (!m_minDelay) {
        m_periodStart = now;
        m_minDelay = delay;
    } else {
        m_minDelay = std::min(*m_minDelay, delay);
    }
}

} // namespace orvane::cloud
