#include "video/DecodePool.h"
#include "TestEnds.h"

#include <gtest/gtest.h>

#include <atomic>
#include <limits>
#include <set>
#include <thread>
#include <vector>

using swplay::DecodePool;
using swplay::DecodeTask;

namespace {

// Counts its steps, and whether two workers were ever in it at once.
class CountingTask : public DecodeTask
{
public:
    CountingTask(Signal &signal, int steps)
        : m_signal(signal)
        , m_left(steps)
    { }
    bool serve() override
    {
        if (m_inside.exchange(true))
            overlapped = true;
        const int left = --m_left;
        m_inside = false;
        m_signal.change([&] {
            ++served;
            workers.insert(std::this_thread::get_id());
        });
        return left > 0;
    }

    int served = 0; // the signal's lock, like workers
    std::set<std::thread::id> workers;
    std::atomic<bool> overlapped{false};

private:
    Signal &m_signal;
    int m_left; // one worker at a time
    std::atomic<bool> m_inside{false};
};

} // namespace

class DecodePoolTest : public testing::Test
{
protected:
    void TearDown() override { m_pool.stop(); }
    Signal m_signal;
    DecodePool m_pool;
};

TEST_F(DecodePoolTest, ServesATaskUntilItHasNoMoreToDo)
{
    m_pool.start();
    const auto task = std::make_shared<CountingTask>(m_signal, 1000);
    m_pool.post(task);
    EXPECT_TRUE(m_signal.wait([&] { return task->served == 1000; }));
    EXPECT_FALSE(task->overlapped);
}

TEST_F(DecodePoolTest, TasksTakeTurns)
{
    // One for every worker there may be, and none is ever done.
    std::vector<std::shared_ptr<CountingTask>> busy;
    while (busy.size() < DecodePool::MaxThreads)
        m_pool.post(
            busy.emplace_back(std::make_shared<CountingTask>(m_signal, std::numeric_limits<int>::max())));
    const auto small = std::make_shared<CountingTask>(m_signal, 1);
    m_pool.post(small);
    m_pool.start();
    EXPECT_TRUE(m_signal.wait([&] { return small->served == 1; }));
    m_pool.stop();
    for (const auto &task : busy)
        EXPECT_FALSE(task->overlapped);
}

TEST_F(DecodePoolTest, HasFewThreads)
{
    m_pool.start();
    m_pool.start();
    std::vector<std::shared_ptr<CountingTask>> tasks;
    for (int i = 0; i < 50; ++i)
        m_pool.post(tasks.emplace_back(std::make_shared<CountingTask>(m_signal, 200)));
    std::set<std::thread::id> workers;
    for (const auto &task : tasks) {
        EXPECT_TRUE(m_signal.wait([&] { return task->served == 200; }));
        workers.insert(task->workers.begin(), task->workers.end());
        EXPECT_FALSE(task->overlapped);
    }
    EXPECT_LE(workers.size(), DecodePool::MaxThreads);
    EXPECT_EQ(workers.count(std::this_thread::get_id()), 0U);
}

TEST_F(DecodePoolTest, TasksWaitWhileItIsStopped)
{
    const auto task = std::make_shared<CountingTask>(m_signal, 3);
    EXPECT_FALSE(m_pool.isRunning());
    m_pool.stop();
    m_pool.post(task);
    EXPECT_EQ(task->served, 0);
    m_pool.start();
    EXPECT_TRUE(m_pool.isRunning());
    EXPECT_TRUE(m_signal.wait([&] { return task->served == 3; }));
    m_pool.stop();
    m_pool.stop();
    EXPECT_FALSE(m_pool.isRunning());
}

TEST_F(DecodePoolTest, DoesNotKeepTasksAlive)
{
    auto gone = std::make_shared<CountingTask>(m_signal, 1);
    const std::weak_ptr<CountingTask> watch = gone;
    m_pool.post(gone);
    gone.reset();
    EXPECT_TRUE(watch.expired());
    const auto next = std::make_shared<CountingTask>(m_signal, 1);
    m_pool.post(next);
    m_pool.start();
    EXPECT_TRUE(m_signal.wait([&] { return next->served == 1; }));
}
