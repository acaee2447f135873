#include "session/NetworkThread.h"

#include "session/Connection.h"
#include "session/Session.h"

#include <algorithm>
#include <chrono>

namespace swplay {

NetworkThread &NetworkThread::instance()
{
    static NetworkThread *const thread = new NetworkThread;
    return *thread;
}

void NetworkThread::start()
{
    const std::lock_guard control(m_controlMutex);
    if (m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_io.restart();
        m_work = std::make_unique<WorkGuard>(boost::asio::make_work_guard(m_io));
    }
    m_thread = std::thread([this] { run(); });
}

void NetworkThread::stop()
{
    const std::lock_guard control(m_controlMutex);
    if (!m_thread.joinable())
        return;
    std::vector<std::weak_ptr<Session>> sessions;
    std::unique_ptr<WorkGuard> work; // keeps the thread going until the step below
    {
        const std::lock_guard lock(m_mutex);
        sessions.swap(m_sessions);
        work = std::move(m_work);
    }
    for (const auto &weak : sessions) {
        if (const auto session = weak.lock())
            session->stop();
    }
    boost::asio::post(m_io, [this, sessions = std::move(sessions), work = std::move(work)] {
        for (const auto &weak : sessions) {
            if (const auto session = weak.lock())
                session->shutDown();
        }
        m_io.stop();
    });
    m_thread.join();
}

bool NetworkThread::isCurrent() const
{
    const std::lock_guard lock(m_mutex);
    return m_threadId == std::this_thread::get_id();
}

bool NetworkThread::add(const std::shared_ptr<Session> &session)
{
    const std::lock_guard lock(m_mutex);
    if (!m_work)
        return false;
    m_sessions.erase(std::remove_if(m_sessions.begin(), m_sessions.end(),
                         [](const std::weak_ptr<Session> &known) { return known.expired(); }),
        m_sessions.end());
    m_sessions.push_back(session);
    return true;
}

std::vector<std::shared_ptr<Session>> NetworkThread::sessions() const
{
    std::vector<std::shared_ptr<Session>> living;
    const std::lock_guard lock(m_mutex);
    living.reserve(m_sessions.size());
    for (const auto &weak : m_sessions) {
        if (auto session = weak.lock())
            living.push_back(std::move(session));
    }
    return living;
}

void NetworkThread::run()
{
    {
        const std::lock_guard lock(m_mutex);
        m_threadId = std::this_thread::get_id();
    }
    m_io.run(); // until stop
    // The closing handshakes end by themselves within their limit; only a name look-up may take longer.
    m_io.restart();
    m_io.run_for(ConnectionTimeouts().close + std::chrono::milliseconds(200));
    const std::lock_guard lock(m_mutex);
    m_threadId = std::thread::id();
}

} // namespace swplay
