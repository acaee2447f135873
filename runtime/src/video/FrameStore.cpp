#include "video/FrameStore.h"

#include "Log.h"

#include <utility>

namespace swplay {

bool FrameStore::setSize(int width, int height)
{
    if (width < 1 || height < 1 || width > MaxSide || height > MaxSide)
        return false;
    const std::lock_guard lock(m_mutex);
    if (width == m_width && height == m_height)
        return true;
    m_width = width;
    m_height = height;
    m_frontReady = false;
    m_backReady = false;
    m_unconverted = m_picture != nullptr;
    return true;
}

bool FrameStore::put(SharedFrame picture)
{
    Job job;
    {
        const std::lock_guard lock(m_mutex);
        if (m_width == 0)
            return false;
        std::swap(m_picture, picture); // the older one is released outside the lock
        m_unconverted = true;
        if (!m_fetched || m_converting)
            return true;
        job = beginConversion();
    }
    const bool done = convert(job);
    const std::lock_guard lock(m_mutex);
    endConversion(job, done);
    return true;
}

const FrameBuffer *FrameStore::lock()
{
    Job job; // releases its picture after the lock
    std::unique_lock lock(m_mutex);
    // Once more only if the size was changed meanwhile.
    while (
        m_locks == 0 && m_unconverted && !m_converting && (job.width != m_width || job.height != m_height)) {
        job = beginConversion();
        lock.unlock();
        const bool done = convert(job);
        lock.lock();
        endConversion(job, done);
    }
    if (m_locks == 0 && m_backReady)
        swapBuffers();
    if (!m_frontReady && m_locks == 0)
        return nullptr;
    ++m_locks;
    m_fetched = true;
    return &m_buffers[m_front].view;
}

void FrameStore::unlock()
{
    const std::lock_guard lock(m_mutex);
    if (m_locks > 0)
        --m_locks;
}

std::uint64_t FrameStore::conversions() const
{
    const std::lock_guard lock(m_mutex);
    return m_conversions;
}

// Under the lock: takes the newest picture and the back buffer.
FrameStore::Job FrameStore::beginConversion()
{
    m_converting = true;
    m_unconverted = false;
    m_backReady = false;
    return {m_picture, &m_buffers[1 - m_front], m_width, m_height};
}

// Without the lock.
bool FrameStore::convert(const Job &job)
{
    return resize(*job.target, job.width, job.height) && m_converter.convert(*job.picture, job.target->view);
}

// Under the lock.
void FrameStore::endConversion(const Job &job, bool done)
{
    m_converting = false;
    if (!done || job.width != m_width || job.height != m_height)
        return;
    ++m_conversions;
    m_fetched = false;
    m_backReady = true;
    if (m_locks == 0)
        swapBuffers();
}

// Under the lock, while nobody holds the front buffer.
void FrameStore::swapBuffers()
{
    m_front = 1 - m_front;
    m_backReady = false;
    m_frontReady = true;
}

bool FrameStore::resize(Buffer &buffer, int width, int height)
{
    if (buffer.bytes && buffer.view.width == width && buffer.view.height == height)
        return true;
    buffer = {};
    const std::size_t stride = (std::size_t(width) * 4 + Alignment - 1) / Alignment * Alignment;
    buffer.bytes.reset(static_cast<std::uint8_t *>(
        ::operator new(stride *height, std::align_val_t(Alignment), std::nothrow)));
    if (!buffer.bytes) {
        log(LogLevel::Error,
            "No memory for a picture of " + std::to_string(width) + " x " + std::to_string(height));
        return false;
    }
    buffer.view = {buffer.bytes.get(), width, height, static_cast<int>(stride)};
    return true;
}

} // namespace swplay
