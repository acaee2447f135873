#include "device/StandbyTimer.h"

#include <QTimerEvent>

#include <limits>
#include <utility>

namespace {

constexpr int MsPerMinute = 60'000;
constexpr int LongestMinutes = std::numeric_limits<int>::max() / MsPerMinute;

} // namespace

StandbyTimer::StandbyTimer(QObject *parent)
    : QObject(parent)
{ }

void StandbyTimer::restart()
{
    const int before = std::exchange(m_timerId, NoTimer);
    if (m_minutes > 0)
        m_timerId = startTimer(qMin(m_minutes, LongestMinutes) * MsPerMinute, Qt::CoarseTimer);
    if (before != NoTimer)
        killTimer(before); // not earlier: its number would be given to the new one
}

void StandbyTimer::stop()
{
    if (m_timerId != NoTimer)
        killTimer(m_timerId);
    m_timerId = NoTimer;
}

void StandbyTimer::timerEvent(QTimerEvent *event)
{
    if (m_timerId == NoTimer || event->timerId() != m_timerId)
        return;
    stop();
    emit sigExpired();
}
