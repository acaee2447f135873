#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace swplay {

// Lets callbacks to a listener through, one at a time, until it is closed for good. No lock is held while a
// callback runs, so a callback may use the data source freely.
//
// Owned by a session. run: network thread; close: any thread.
class CallbackGate
{
public:
    // Runs `call` unless the gate is closed. Returns whether it ran.
    template <typename Call>
    bool run(Call &&call)
    {
        if (!enter())
            return false;
        const Leaver leaver{*this};
        std::forward<Call>(call)();
        return true;
    }

    // Closes the gate and waits until a running callback has returned. Called from within that callback,
    // which is not allowed to callers, it does not wait for itself.
    void close();

private:
    struct Leaver
    {
        CallbackGate &gate;
        ~Leaver() { gate.leave(); }
    };
    bool enter();
    void leave();

    std::mutex m_mutex;
    std::condition_variable m_left;
    std::thread::id m_runner; // m_mutex; of the running callback, or none
    bool m_closed = false; // m_mutex
};

} // namespace swplay
