#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace swplay {

// Something a decode worker does in small steps. Owned by whoever made it; the pool keeps no owning
// reference of a task that waits.
class DecodeTask
{
public:
    virtual ~DecodeTask() = default;
    // One step, on a worker thread. Returns whether there is more to do; the task then waits for its next
    // turn behind the others.
    virtual bool serve() = 0;
};

// The decoding threads of the process, shared by all streams. Tasks take turns step by step, so that a busy
// stream cannot starve the others. A task must not be posted again before its last step returned false, which
// is what keeps every task on at most one worker.
//
// Any thread may call any method, except that start and stop must not be called from a worker. A pool must be
// stopped before it is destroyed.
class DecodePool
{
public:
    // Most threads a pool has; fewer on machines with fewer cores. Decoding one 720 x 1280 stream at 25
    // pictures per second takes a small part of one core.
    static constexpr unsigned MaxThreads = 4;

    // The pool of the process; never destroyed.
    static DecodePool &instance();

    DecodePool() = default;
    DecodePool(const DecodePool &) = delete;
    DecodePool &operator=(const DecodePool &) = delete;
    ~DecodePool();

    // Starts the threads. Does nothing while the pool runs.
    void start();
    // Ends the threads after the steps that are under way. Tasks that wait are served after the next start.
    void stop();
    bool isRunning() const;

    // Puts a task into the queue.
    void post(const std::shared_ptr<DecodeTask> &task);

private:
    void work();
    bool takeTask(std::shared_ptr<DecodeTask> &task);

    std::mutex m_controlMutex; // serialises start and stop
    std::vector<std::thread> m_threads; // m_controlMutex

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::weak_ptr<DecodeTask>> m_tasks; // m_mutex
    bool m_running = false; // m_mutex
};

// The process's pool, for the start and end of the runtime. Not from a worker thread.
void startDecodePool();
void stopDecodePool();

} // namespace swplay
