#pragma once

#include <QObject>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace bench {

// How long an event has to wait until a thread's event loop gets to it: what a user's click waits for. A
// thread of its own posts one event after the other, each a few milliseconds after the one before was
// handled.
//
// Lives on the thread that is probed, and is started and stopped there.
class EventLoopProbe : public QObject
{
public:
    explicit EventLoopProbe(QObject *parent = nullptr);
    ~EventLoopProbe() override;

    void start();
    // The waits since start, in milliseconds.
    std::vector<double> stop();

protected:
    void customEvent(QEvent *event) override;

private:
    void run();

    std::thread m_thread;
    std::mutex m_mutex; // guards all below
    std::condition_variable m_changed;
    bool m_stopping = false;
    bool m_handled = false;
    std::chrono::steady_clock::time_point m_handledAt; // of the last event
    std::vector<double> m_waitsMs;
};

} // namespace bench
