#pragma once

#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace bench {

// Runs the event loop as the client does, for so long: events are handled when they come, without the naps of
// the test library's waits.
inline void runEventLoop(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace bench
