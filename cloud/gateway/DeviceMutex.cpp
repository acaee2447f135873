#include "gateway/DeviceMutex.h"

#include <utility>

namespace orvane::cloud {

DeviceMutex::DeviceMutex(Handler handler, Helper helper)
    : m_handler(std::move(handler))
    , m_helper(std::move(helper))
{ }

void DeviceMutex::lock()
{
    m_mutex.lock();
    carryOut(waitingInputs(true));
}

// An input that found the mutex taken was waiting before it was given back here.
void DeviceMutex::unlock()
{
    m_mutex.unlock();
    if (waitingInputs() == 0 || !m_mutex.try_lock()) {
        return; // if somebody else has it, he looks as well
    }
    carryOut(waitingInputs());
    m_mutex.unlock();
    if (waitingInputs() > 0) {
        callHelper();
    }
}

void DeviceMutex::give(Input input)
{
    const bool isSlow = input.isSlow;
    {
        const std::lock_guard lock(m_waitingMutex);
        m_waiting.push_back(std::move(input));
    }
    if (isSlow) {
        return callHelper();
    }
    // What waits behind a slow one is carried out by whoever carries that out.
    while (isNextQuick() && m_mutex.try_lock()) {
        const bool wasQuick = carryOutQuick();
        m_mutex.unlock();
        if (!wasQuick) {
            if (waitingInputs() > 0) {
                callHelper();
            }
            return;
        }
    }
}

std::size_t DeviceMutex::waitingInputs(bool clearsHelp)
{
    const std::lock_guard lock(m_waitingMutex);
    m_isHelpComing = m_isHelpComing && !clearsHelp;
    return m_waiting.size();
}

bool DeviceMutex::isNextQuick()
{
    const std::lock_guard lock(m_waitingMutex);
    return !m_waiting.empty() && !m_waiting.front().isSlow;
}

std::optional<DeviceMutex::Input> DeviceMutex::takeNext(bool evenSlow)
{
    const std::lock_guard lock(m_waitingMutex);
    if (m_waiting.empty() || (m_waiting.front().isSlow && !evenSlow)) {
        return std::nullopt;
    }
    Input input = std::move(m_waiting.front());
    m_waiting.pop_front();
    return input;
}

// With the mutex held. No more than waited when it began: a flood must not keep its holder for good.
void DeviceMutex::carryOut(std::size_t count) noexcept
{
    for (; count > 0; --count) {
        const auto input = takeNext(true);
        if (!input) {
            return;
        }
        m_handler(*input);
        input->done();
    }
}

// With the mutex held, in a thread that has no time: false when one took long after all.
bool DeviceMutex::carryOutQuick() noexcept
{
    while (const auto input = takeNext(false)) {
        const bool tookLong = m_handler(*input);
        input->done();
        if (tookLong) {
            return false;
        }
    }
    return true;
}

void DeviceMutex::callHelper()
{
    {
        const std::lock_guard lock(m_waitingMutex);
        if (std::exchange(m_isHelpComing, true)) {
            return;
        }
    }
    m_helper();
}

} // namespace orvane::cloud
