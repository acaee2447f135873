#pragma once

#include <QtGlobal>

namespace e2e {

// What this process holds at one moment. Plain value.
struct Resources
{
    int threads = 0;
    int files = 0; // sockets among them
    int sockets = 0;
    qint64 residentKb = 0;
    qint64 heapKb = 0; // in use

    // Gives back what is only kept for later first. Throws StepFailed when the system does not tell.
    static Resources now();
    // Once threads, files and sockets are the same for a moment: what ends does so on its own threads.
    static Resources settled();
    // Once it is back at `before`, or after 45 s.
    static Resources backAt(const Resources &before);

    // No more threads, and as many files and sockets; an idle thread of a pool may have ended.
    bool isBackAt(const Resources &before) const;
};

} // namespace e2e
