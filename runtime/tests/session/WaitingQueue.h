#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

// How long a test waits for what must happen. Long, so that a busy machine does not fail it.
constexpr std::chrono::seconds Patience{20};

// Hands values from the threads under test to the test. Any thread.
template <typename Value>
class WaitingQueue
{
public:
    void push(Value value)
    {
        const std::lock_guard lock(m_mutex);
        m_values.push_back(std::move(value));
        m_pushed.notify_all();
    }

    // The next value, or nothing if none comes in time or the queue is at its end.
    std::optional<Value> pop(std::chrono::milliseconds patience = Patience)
    {
        std::unique_lock lock(m_mutex);
        m_pushed.wait_for(lock, patience, [this] { return !m_values.empty() || m_ended; });
        if (m_values.empty())
            return std::nullopt;
        std::optional<Value> value(std::move(m_values.front()));
        m_values.pop_front();
        return value;
    }

    // Nothing more will be pushed.
    void end()
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
        m_pushed.notify_all();
    }

    bool isEmpty() const
    {
        const std::lock_guard lock(m_mutex);
        return m_values.empty();
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_pushed;
    std::deque<Value> m_values; // m_mutex
    bool m_ended = false; // m_mutex
};
