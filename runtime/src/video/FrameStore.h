#pragma once

#include "swplay/VideoDisplayWinBase.h"
#include "video/AvHandles.h"
#include "video/PictureConverter.h"

#include <array>
#include <cstdint>
#include <memory>
#include <mutex>
#include <new>

namespace swplay {

// One slot for the newest picture of a display, and its front and back buffer of BGRA pixels. A picture is
// converted when it arrives if the one converted before was fetched, otherwise when it is fetched itself.
// Conversion runs outside the lock, into the back buffer only; the buffers change places only while the front
// one is not locked. Owned by a VideoDisplayWinBase. All methods from any thread.
class FrameStore
{
public:
    static constexpr int MaxSide = 8192; // of the buffers, pixels

    // Size of the buffers in pixels. The newest picture is converted anew at the next lock if it changed.
    // Returns false, changing nothing, for a side that is not 1 to MaxSide.
    bool setSize(int width, int height);
    // A newer picture; it replaces one that still waits. Returns false, keeping nothing, without a size.
    bool put(SharedFrame picture);

    // The newest picture that is converted, converting where necessary but never waiting for a conversion
    // that is under way: then it is the one before, or none. Locks may be nested.
    const FrameBuffer *lock();
    void unlock();

    // How many pictures were converted so far.
    std::uint64_t conversions() const;

private:
    static constexpr std::size_t Alignment = 64; // of the buffers and their rows, bytes

    struct AlignedDelete
    {
        void operator()(std::uint8_t *bytes) const { ::operator delete(bytes, std::align_val_t(Alignment)); }
    };
    struct Buffer
    {
        std::unique_ptr<std::uint8_t, AlignedDelete> bytes;
        FrameBuffer view;
    };
    struct Job
    {
        SharedFrame picture;
        Buffer *target = nullptr;
        int width = 0;
        int height = 0;
    };

    Job beginConversion();
    bool convert(const Job &job);
    void endConversion(const Job &job, bool done);
    void swapBuffers();
    static bool resize(Buffer &buffer, int width, int height);

    mutable std::mutex m_mutex;
    int m_width = 0; // m_mutex
    int m_height = 0; // m_mutex
    SharedFrame m_picture; // m_mutex; the newest
    bool m_unconverted = false; // m_mutex; m_picture is newer than what the buffers hold
    bool m_converting = false; // m_mutex; who set it owns the back buffer and the converter
    bool m_backReady = false; // m_mutex; the back buffer is newer than the front one
    bool m_frontReady = false; // m_mutex; the front buffer holds a picture of the current size
    bool m_fetched = false; // m_mutex; the last converted picture was fetched
    int m_locks = 0; // m_mutex; of the front buffer
    int m_front = 0; // m_mutex; index into m_buffers
    std::uint64_t m_conversions = 0; // m_mutex
    std::array<Buffer, 2> m_buffers; // back: m_converting; front: not written
    PictureConverter m_converter; // m_converting
};

} // namespace swplay
