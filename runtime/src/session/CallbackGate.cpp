#include "session/CallbackGate.h"

namespace swplay {

void CallbackGate::close()
{
    std::unique_lock lock(m_mutex);
    m_closed = true;
    m_left.wait(
        lock, [this] { return m_runner == std::thread::id() || m_runner == std::this_thread::get_id(); });
}

bool CallbackGate::enter()
{
    const std::lock_guard lock(m_mutex);
    if (m_closed)
        return false;
    m_runner = std::this_thread::get_id();
    return true;
}

void CallbackGate::leave()
{
    // Notified under the lock: whoever waits may destroy the gate as soon as the lock is free.
    const std::lock_guard lock(m_mutex);
    m_runner = std::thread::id();
    m_left.notify_all();
}

} // namespace swplay
