#pragma once

#include <memory>

// A plain, non-recursive lock; usable with std::lock_guard.
class Mutex
{
public:
    Mutex();
    ~Mutex();
    Mutex(const Mutex &) = delete;
    Mutex &operator=(const Mutex &) = delete;

    void lock();
    void unlock();

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
