#pragma once

#include "gateway/ClientMessage.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>

namespace orvane::cloud {

// Guards one device, and lets the input for it overtake everything else that is done with it: input waits
// neither for the mutex nor behind pictures of other devices. If the device is being used when an input
// comes, whoever uses it carries the input out when he gives the mutex back.
//
// Owned by DeviceHost; any thread. To be used with std::lock_guard.
class DeviceMutex
{
public:
    struct Input
    {
        std::uint64_t connection = 0; // ConnectionId of the sender
        ClientMessage message;
        std::function<void()> done; // called once it has been carried out, with the mutex held
    };
    // Carries out one input; called with the mutex held.
    using Handler = std::function<void(const Input &)>;

    explicit DeviceMutex(Handler handler);

    // Waits for the mutex. Every input given before has been carried out when it returns.
    void lock();
    // Gives the mutex back and carries out what has been given meanwhile.
    void unlock();
    // Carries the input out, after all that were given before: at once, in this thread, or soon, in that of
    // whoever holds the mutex. Never waits for the mutex, and must not be called by its holder.
    void give(Input input);

private:
    bool isWaiting();
    void carryOut();
    void carryOutIfFree();

    const Handler m_handler;
    std::mutex m_mutex;
    std::mutex m_waitingMutex; // taken after m_mutex, never before it
    std::deque<Input> m_waiting; // m_waitingMutex
};

} // namespace orvane::cloud
