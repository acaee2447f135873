#pragma once

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>

#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace swplay {

class Session;

// The one network thread of the process: it runs every session's connection and timers, and their callbacks.
// Everything called "network thread" in the comments of this folder runs here, so that sessions need no lock
// among their own steps.
//
// Any thread may call any method, except that start and stop must not be called from the network thread.
class NetworkThread
{
public:
    // The process's thread; never destroyed, since sessions may outlive the end of the program's main part.
    static NetworkThread &instance();

    NetworkThread(const NetworkThread &) = delete;
    NetworkThread &operator=(const NetworkThread &) = delete;

    // Does nothing while the thread runs.
    void start();
    // Ends all sessions, with closing handshakes as far as their peers answer in time, and the thread.
    void stop();
    bool isCurrent() const;

    // Takes a session that starts into the list of those to end with the thread. Returns whether the thread
    // runs.
    bool add(const std::shared_ptr<Session> &session);
    // Those that were added and still live.
    std::vector<std::shared_ptr<Session>> sessions() const;

    // Runs `work` on the network thread as soon as possible; drops it when the thread does not run.
    template <typename Work>
    void post(Work &&work)
    {
        const std::lock_guard lock(m_mutex);
        if (m_work)
            boost::asio::post(m_io, std::forward<Work>(work));
    }

    boost::asio::io_context &io() { return m_io; }

private:
    using WorkGuard = boost::asio::executor_work_guard<boost::asio::io_context::executor_type>;

    NetworkThread() = default;
    ~NetworkThread() = default;
    void run();

    boost::asio::io_context m_io{1};
    std::mutex m_controlMutex; // serialises start and stop
    std::thread m_thread; // m_controlMutex

    mutable std::mutex m_mutex;
    std::unique_ptr<WorkGuard> m_work; // m_mutex; set while the thread runs
    std::thread::id m_threadId; // m_mutex
    std::vector<std::weak_ptr<Session>> m_sessions; // m_mutex
};

} // namespace swplay
