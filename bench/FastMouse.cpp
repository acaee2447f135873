#include "FastMouse.h"

#include "Report.h"

#include <chrono>

namespace bench {

namespace {
constexpr std::chrono::milliseconds interval(1);
}

FastMouse::FastMouse(int seconds)
    : m_count(static_cast<int>(std::chrono::seconds(seconds) / interval))
    , m_thread([this] { run(); })
{ }

FastMouse::~FastMouse()
{
    m_mustEnd = true;
    if (m_thread.joinable())
        m_thread.join();
}

const std::vector<qint64> &FastMouse::moves()
{
    if (m_thread.joinable())
        m_thread.join();
    return m_moves;
}

void FastMouse::run()
{
    m_moves.reserve(static_cast<std::size_t>(m_count));
    auto next = std::chrono::steady_clock::now();
    for (int i = 0; i < m_count && !m_mustEnd; ++i) {
        m_moves.push_back(m_hand.moveBy(1, 0));
        m_cpuMs = threadCpuMs();
        next += interval;
        std::this_thread::sleep_until(next);
    }
    m_hasEnded = true;
}

} // namespace bench
