#pragma once

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>

#include <thread>
#include <vector>

namespace orvane::cloud {

// Threads for work that may take a while: drawing, encoding, looking sessions up. They give way to the thread
// that serves the connections, so that input is not held up by pictures.
class WorkerPool
{
public:
    using Executor = boost::asio::io_context::executor_type;

    // Starts the threads, at least one. Throws std::system_error when that is not possible.
    explicit WorkerPool(unsigned threads);
    ~WorkerPool(); // joins
    WorkerPool(const WorkerPool &) = delete;
    WorkerPool &operator=(const WorkerPool &) = delete;

    // Any thread; what is posted after join() is never run.
    Executor executor() { return m_context.get_executor(); }
    // Waits until everything that was posted has been done. For good.
    void join();

private:
    void run();

    boost::asio::io_context m_context;
    boost::asio::executor_work_guard<Executor> m_work;
    std::vector<std::thread> m_threads;
};

} // namespace orvane::cloud
