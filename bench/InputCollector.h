#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <thread>
#include <vector>

namespace e2e {
class Service;
}

namespace bench {

// One touch frame that a device received.
struct ReceivedTouch
{
    qint64 timeNs; // when the device took it, as of Hand
    int action; // 0 down, 1 up, 2 move
    std::vector<int> xs; // of every finger, pixels of the device
};

// Keeps the touches that a device receives, which the service remembers only for a while: a thread of its own
// fetches them every few seconds and reads them at the end, so that little of its work falls into what is
// measured meanwhile.
//
// Made and destroyed by one thread.
class InputCollector
{
public:
    // Begins with what the device receives from now on.
    InputCollector(const e2e::Service &service, const QString &pad);
    ~InputCollector();
    InputCollector(const InputCollector &) = delete;
    InputCollector &operator=(const InputCollector &) = delete;

    // Ends it, and gives everything that was received until now, oldest first. Throws e2e::StepFailed when
    // the service did not answer.
    std::vector<ReceivedTouch> take();
    // CPU time of its thread so far, milliseconds; it is not the client's. Any thread.
    double cpuMs() const { return m_cpuMs; }

private:
    void run();
    void fetch();

    const QString m_host;
    const quint16 m_port;
    const QString m_path; // up to the sequence number
    qint64 m_last = 0; // sequence number; the thread's, as the next one, until it has ended
    std::vector<QByteArray> m_answers;
    std::atomic<double> m_cpuMs{0};
    std::atomic<bool> m_mustEnd{false};
    std::atomic<bool> m_hasFailed{false};
    std::thread m_thread; // the last member: it uses the others
};

} // namespace bench
