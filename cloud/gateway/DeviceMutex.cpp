#include "gateway/DeviceMutex.h"

#include <utility>

namespace orvane::cloud {

DeviceMutex::DeviceMutex(Handler handler)
    : m_handler(std::move(handler))
{ }

void DeviceMutex::lock()
{
    m_mutex.lock();
    carryOut();
}

void DeviceMutex::unlock()
{
    m_mutex.unlock();
    carryOutIfFree();
}

void DeviceMutex::give(Input input)
{
    {
        const std::lock_guard lock(m_waitingMutex);
        m_waiting.push_back(std::move(input));
    }
    carryOutIfFree();
}

bool DeviceMutex::isWaiting()
{
    const std::lock_guard lock(m_waitingMutex);
    return !m_waiting.empty();
}

// With the mutex held. One by one, so that nothing given meanwhile overtakes what was taken.
void DeviceMutex::carryOut()
{
    for (;;) {
        Input input;
        {
            const std::lock_guard lock(m_waitingMutex);
            if (m_waiting.empty()) {
                return;
            }
            input = std::move(m_waiting.front());
            m_waiting.pop_front();
        }
        m_handler(input);
        input.done();
    }
}

// A holder who is in the way looks again after he has given the mutex back: an input that found it taken was
// waiting by then.
void DeviceMutex::carryOutIfFree()
{
    while (isWaiting() && m_mutex.try_lock()) {
        carryOut();
        m_mutex.unlock();
    }
}

} // namespace orvane::cloud
