#include "device/StandbyTimer.h"

#include <QTimerEvent>

#include <limits>

namespace {

constexpr int MsPerMinute = 60'000;
constexpr int LongestMinutes = std::numeric_limits<int>::max() / MsPerMinute;

} // namespace

StandbyTimer::StandbyTimer(QObject *parent)
    : QObject(parent)
{ }

void StandbyTimer::restart()
{
    m_timerId = NoTimer;
    if (m_minutes <= 0)
        return;
    m_timerId = startTimer(qMin(m_minutes, LongestMinutes) * MsPerMinute, Qt::CoarseTimer);
    m_running.insert(m_timerId);
}

void StandbyTimer::stop()
{
    m_timerId = NoTimer;
    for (const int id : qAsConst(m_running))
        killTimer(id);
    m_running.clear();
}

void StandbyTimer::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId || m_timerId == NoTimer) {
        if (m_running.remove(event->timerId()))
            killTimer(event->timerId());
        return;
    }
    stop();
    emit sigExpired();
}
