#include "EventLoopProbe.h"

#include <QCoreApplication>
#include <QEvent>

#include <chrono>

namespace bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds Pause{4}; // between two events

} // namespace

EventLoopProbe::EventLoopProbe(QObject *parent)
    : QObject(parent)
{ }

EventLoopProbe::~EventLoopProbe()
{
    stop();
}

void EventLoopProbe::start()
{
    m_stopping = false;
    m_waitsMs.clear();
    m_thread = std::thread([this] { run(); });
}

std::vector<double> EventLoopProbe::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
    return m_waitsMs;
}

void EventLoopProbe::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_stopping) {
        m_handled = false;
        const Clock::time_point begin = Clock::now();
        QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        m_changed.wait(lock, [this] { return m_handled || m_stopping; });
        if (m_handled) {
            const std::chrono::duration<double, std::milli> wait = m_handledAt - begin;
            m_waitsMs.push_back(wait.count());
        }
        m_changed.wait_for(lock, Pause, [this] { return m_stopping; });
    }
}

void EventLoopProbe::customEvent(QEvent *)
{
    {
        const std::lock_guard lock(m_mutex);
        m_handled = true;
        m_handledAt = Clock::now();
    }
    m_changed.notify_all();
}

} // namespace bench
