#include "gateway/WorkerPool.h"

#include "gateway/GatewayLog.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#ifdef __linux__
#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace orvane::cloud {

namespace {

// To this thread alone, although it is the process that POSIX says has a nice value: see setpriority(2).
void giveWay()
{
#ifdef __linux__
    constexpr int niceValue = 5;
    const sched_param parameters{};
    const auto warnUnless = [](bool succeeded) {
        if (!succeeded) {
            qCWarning(gatewayLog, "a worker cannot give way to the network: %s",
                std::generic_category().message(errno).c_str());
        }
    };
    warnUnless(::sched_setscheduler(0, SCHED_BATCH, &parameters) == 0);
    warnUnless(::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceValue) == 0);
#endif
}

} // namespace

WorkerPool::WorkerPool(unsigned threads)
    : m_work(boost::asio::make_work_guard(m_context))
{
    try {
        for (unsigned i = 0; i < std::max(1U, threads); ++i) {
            m_threads.emplace_back([this] { run(); });
        }
    } catch (...) {
        join();
        throw;
    }
}

WorkerPool::~WorkerPool()
{
    join();
}

void WorkerPool::join()
{
    m_work.reset();
    for (std::thread &thread : m_threads) {
        thread.join();
    }
    m_threads.clear();
}

void WorkerPool::run()
{
    giveWay();
    m_context.run();
}

} // namespace orvane::cloud
