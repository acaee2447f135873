#include "video/DecodePool.h"

#include "Log.h"

#include <algorithm>
#include <system_error>

#if defined(__linux__)
#include <pthread.h>
#endif

namespace swplay {

namespace {

void nameThisThread()
{
#if defined(__linux__)
    pthread_setname_np(pthread_self(), "swplay-decode");
#endif
}

} // namespace

DecodePool &DecodePool::instance()
{
    // Never destroyed: a worker may still be running when static objects go, if nobody ended the runtime.
    static DecodePool *const pool = new DecodePool;
    return *pool;
}

DecodePool::~DecodePool()
{
    stop();
}

void DecodePool::start()
{
    const std::lock_guard control(m_controlMutex);
    if (!m_threads.empty())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_running = true;
    }
    const unsigned count = std::clamp(std::thread::hardware_concurrency(), 1U, MaxThreads);
    m_threads.reserve(count);
    try {
        while (m_threads.size() < count)
            m_threads.emplace_back([this] { work(); });
    } catch (const std::system_error &error) {
        log(LogLevel::Error,
            "Only " + std::to_string(m_threads.size()) + " decode threads could be started: " + error.what());
    }
}

void DecodePool::stop()
{
    const std::lock_guard control(m_controlMutex);
    {
        const std::lock_guard lock(m_mutex);
        m_running = false;
    }
    m_wake.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
    m_threads.clear();
}

bool DecodePool::isRunning() const
{
    const std::lock_guard lock(m_mutex);
    return m_running;
}

void DecodePool::post(const std::shared_ptr<DecodeTask> &task)
{
    {
        const std::lock_guard lock(m_mutex);
        m_tasks.push_back(task);
    }
    m_wake.notify_one();
}

void DecodePool::work()
{
    nameThisThread();
    std::shared_ptr<DecodeTask> task;
    while (takeTask(task)) {
        if (task->serve()) {
            // Nobody is woken for it: this worker takes the next task itself.
            const std::lock_guard lock(m_mutex);
            m_tasks.push_back(task);
        }
        task.reset();
    }
}

// Waits for a task that still exists. Returns false when the pool stops.
bool DecodePool::takeTask(std::shared_ptr<DecodeTask> &task)
{
    std::unique_lock lock(m_mutex);
    while (!task) {
        m_wake.wait(lock, [this] { return !m_running || !m_tasks.empty(); });
        if (!m_running)
            return false;
        task = m_tasks.front().lock();
        m_tasks.pop_front();
    }
    return true;
}

void startDecodePool()
{
    DecodePool::instance().start();
}

void stopDecodePool()
{
    DecodePool::instance().stop();
}

} // namespace swplay
