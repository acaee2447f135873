#pragma once

#include "Hand.h"

#include <atomic>
#include <thread>
#include <vector>

namespace bench {

// A mouse that reports a thousand times a second: a thread of its own moves it by one pixel to the right
// every millisecond for as long as the object lives, at most for the time it is made for. A report that comes
// late because the machine is busy is made up for at once, as by a mouse whose reports wait in a queue.
//
// Made and destroyed by one thread.
class FastMouse
{
public:
    // Begins to move. Throws e2e::StepFailed as Hand does.
    explicit FastMouse(int seconds);
    ~FastMouse();
    FastMouse(const FastMouse &) = delete;
    FastMouse &operator=(const FastMouse &) = delete;

    // When each move went out, nanoseconds as of Hand. Waits for the last one.
    const std::vector<qint64> &moves();
    bool hasEnded() const { return m_hasEnded; }
    // CPU time of its thread so far, milliseconds; it is not the client's. Any thread.
    double cpuMs() const { return m_cpuMs; }

private:
    void run();

    Hand m_hand;
    const int m_count; // of moves
    std::vector<qint64> m_moves; // the thread's until it has ended
    std::atomic<double> m_cpuMs{0};
    std::atomic<bool> m_hasEnded{false};
    std::atomic<bool> m_mustEnd{false};
    std::thread m_thread; // the last member: it uses the others
};

} // namespace bench
