#include "swplay/Mutex.h"

#include <mutex>

struct Mutex::Impl
{
    std::mutex mutex;
};

Mutex::Mutex()
    : m_impl(std::make_unique<Impl>())
{ }

Mutex::~Mutex() = default;

void Mutex::lock()
{
    m_impl->mutex.lock();
}

void Mutex::unlock()
{
    m_impl->mutex.unlock();
}
