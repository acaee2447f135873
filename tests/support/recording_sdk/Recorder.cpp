#include "Recorder.h"

namespace {

thread_local int locksHeld = 0;

}

Recorder &Recorder::instance()
{
    static Recorder recorder;
    return recorder;
}

void Recorder::reset()
{
    const std::lock_guard<std::mutex> lock(m_lock);
    m_calls.clear();
    m_remoteSize.reset();
}

std::vector<std::string> Recorder::calls() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    std::vector<std::string> texts;
    for (const Call &call : m_calls)
        texts.push_back(call.text);
    return texts;
}

std::vector<std::string> Recorder::takeCalls()
{
    const std::lock_guard<std::mutex> lock(m_lock);
    std::vector<std::string> texts;
    for (Call &call : m_calls)
        texts.push_back(std::move(call.text));
    m_calls.clear();
    return texts;
}

std::vector<std::string> Recorder::callsUnderLock() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    std::vector<std::string> texts;
    for (const Call &call : m_calls) {
        if (call.underLock)
            texts.push_back(call.text);
    }
    return texts;
}

void Recorder::setRemoteSize(int width, int height)
{
    const std::lock_guard<std::mutex> lock(m_lock);
    m_remoteSize = {width, height};
}

std::optional<std::pair<int, int>> Recorder::remoteSize() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_remoteSize;
}

SWDataSourceListener *Recorder::listener() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_listener;
}

VideoDisplay *Recorder::display() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_display;
}

void Recorder::setListener(SWDataSourceListener *listener)
{
    const std::lock_guard<std::mutex> lock(m_lock);
    m_listener = listener;
}

void Recorder::setDisplay(VideoDisplay *display)
{
    const std::lock_guard<std::mutex> lock(m_lock);
    m_display = display;
}

void Recorder::lockTaken()
{
    ++locksHeld;
}

void Recorder::lockReleased()
{
    --locksHeld;
}

void Recorder::setObserver(std::function<void(const std::string &)> observer)
{
    const std::lock_guard<std::mutex> lock(m_lock);
    m_observer = std::move(observer);
}

void Recorder::add(std::string text)
{
    std::function<void(const std::string &)> observer;
    {
        const std::lock_guard<std::mutex> lock(m_lock);
        m_calls.push_back({text, locksHeld > 0});
        observer = m_observer;
    }
    if (observer)
        observer(text);
}
