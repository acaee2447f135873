#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTest>

#include <functional>
#include <stdexcept>

namespace e2e {

// A step that did not come to pass; what() says what was waited for.
class StepFailed : public std::runtime_error
{
public:
    explicit StepFailed(const QString &what)
        : std::runtime_error(what.toStdString())
    { }
};

// Runs the event loop until the condition holds. Throws StepFailed after the time limit.
inline void waitUntil(const QString &what, const std::function<bool()> &condition, int timeoutMs = 15000)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > timeoutMs)
            throw StepFailed(QStringLiteral("%1: not after %2 ms").arg(what).arg(timeoutMs));
        QTest::qWait(20);
    }
}

// Runs a test's steps; one that fails fails the test with its text.
inline void steps(const std::function<void()> &body)
{
    try {
        body();
    } catch (const StepFailed &failure) {
        QTest::qFail(failure.what(), __FILE__, __LINE__);
    }
}

} // namespace e2e
