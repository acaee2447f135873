#pragma once

#include "gateway/ClientMessage.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>

namespace orvane::cloud {

// Guards one device, and lets the input for it overtake everything else that is done with it: input waits
// neither for the mutex nor behind pictures of other devices. If the device is being used when an input
// comes, whoever uses it carries the input out when he gives the mutex back. Input that takes long is left to
// a thread that has the time. Whoever carries it out, input keeps its order.
//
// Owned by DeviceHost; any thread. To be used with std::lock_guard.
class DeviceMutex
{
public:
    struct Input
    {
        std::uint64_t connection = 0; // ConnectionId of the sender
        ClientMessage message;
        std::function<void()> done; // called once it has been carried out
        bool isSlow = false; // is not to be carried out by the thread that gives it
    };
    // Carries out one input; returns whether that took long. It and `done` are called with the mutex held,
    // and must not throw.
    using Handler = std::function<bool(const Input &)>;
    // Sees to it that a thread with time locks the mutex soon. Called by any thread, without a lock.
    using Helper = std::function<void()>;

    DeviceMutex(Handler handler, Helper helper);

    // Waits for the mutex. Every input given before has been carried out when it returns.
    void lock();
    // Gives the mutex back and carries out what has been given meanwhile; what comes during that is for the
    // helper.
    void unlock();
    // Carries the input out, after all that were given before: at once, in this thread, or soon, in another.
    // What waits behind one that took long is left to another. Never waits for the mutex, and must not be
    // called by its holder.
    void give(Input input);

private:
    std::size_t waitingInputs(bool clearsHelp = false);
    bool isNextQuick();
    std::optional<Input> takeNext(bool evenSlow);
    void carryOut(std::size_t count) noexcept;
    bool carryOutQuick() noexcept;
    void callHelper();

    const Handler m_handler;
    const Helper m_helper;
    std::mutex m_mutex;
    std::mutex m_waitingMutex; // taken after m_mutex, never before it
    std::deque<Input> m_waiting; // m_waitingMutex
    bool m_isHelpComing = false; // m_waitingMutex; the helper was called and nobody has locked since
};

} // namespace orvane::cloud
