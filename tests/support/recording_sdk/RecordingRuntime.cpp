// The recording SDK's runtime, lock and keyboard.

#include "Recorder.h"

#include <swplay/Keyboard.h>
#include <swplay/Mutex.h>
#include <swplay/SWRuntime.h>

#include <mutex>

SWRuntime::SWRuntime() = default;

SWRuntime *SWRuntime::getInstance()
{
    static SWRuntime runtime;
    return &runtime;
}

int SWRuntime::init(int logLevel, const char *logDir)
{
    Recorder::instance().record("SWRuntime::init", logLevel, logDir);
    return 0;
}

void SWRuntime::deinit()
{
    Recorder::instance().record("SWRuntime::deinit");
}

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
    Recorder::instance().lockTaken();
}

void Mutex::unlock()
{
    Recorder::instance().lockReleased();
    m_impl->mutex.unlock();
}

Keyboard *Keyboard::GetInstance()
{
    static Keyboard keyboard;
    return &keyboard;
}

// No table: the code is the key with 10000 on top, so that tests see that it was translated.
int Keyboard::getKeyCode(int key) const
{
    return key + 10000;
}
