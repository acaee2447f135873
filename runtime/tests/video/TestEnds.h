#pragma once

#include "VideoSink.h"
#include "swplay/VideoDisplay.h"
#include "swplay/VideoFrame.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <vector>

// Lets a test wait for what another thread does, without sleeping.
class Signal
{
public:
    // Changes state under the lock and wakes the waiters.
    template <typename Change>
    void change(Change apply)
    {
        {
            const std::lock_guard lock(m_mutex);
            apply();
        }
        m_changed.notify_all();
    }
    // Waits until the condition, read under the lock, holds. False after 20 s.
    template <typename Condition>
    bool wait(Condition condition)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(20), condition);
    }
    // Whether the condition stays false for a moment. Correct code never makes it true, however slow it is.
    template <typename Condition>
    bool staysFalse(Condition condition)
    {
        std::unique_lock lock(m_mutex);
        return !m_changed.wait_for(lock, std::chrono::milliseconds(50), condition);
    }
    template <typename Read>
    auto read(Read value)
    {
        const std::lock_guard lock(m_mutex);
        return value();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
};

// The session's side of a sink.
class TestFeedback : public swplay::VideoFeedback
{
public:
    struct Decoded
    {
        std::uint64_t frameId;
        std::int64_t captureUs;
        std::chrono::steady_clock::time_point at;
    };

    void keyframeNeeded() override
    {
        m_signal.change([this] { ++m_requests; });
    }
    void pictureDecoded(
        std::uint64_t frameId, std::int64_t captureUs, std::chrono::steady_clock::time_point at) override
    {
        m_signal.change([&] { m_decoded.push_back({frameId, captureUs, at}); });
    }

    int requests()
    {
        return m_signal.read([this] { return m_requests; });
    }
    std::vector<Decoded> decoded()
    {
        return m_signal.read([this] { return m_decoded; });
    }
    bool waitForDecoded(std::uint64_t frameId)
    {
        return m_signal.wait([&] { return !m_decoded.empty() && m_decoded.back().frameId >= frameId; });
    }

private:
    Signal m_signal;
    int m_requests = 0;
    std::vector<Decoded> m_decoded;
};

// A display that writes down what it is told and can do something in its callbacks.
class TestDisplay : public VideoDisplay
{
public:
    struct Shown
    {
        std::uint64_t frameId;
        int width;
        int height;
    };

    void setLogId(const char *) override { }
    void onScreenRotation(int rotation) override
    {
        m_signal.change([&] { m_rotations.push_back(rotation); });
        if (duringRotation)
            duringRotation();
    }
    int render(VideoFrame *frame) override
    {
        m_signal.change([&] { m_shown.push_back({frame->frameId, frame->width, frame->height}); });
        if (duringRender)
            duringRender();
        return renderResult;
    }
    void onFrameArrival() override
    {
        m_signal.change([this] { ++m_arrivals; });
    }

    // Before use: what the callbacks do and render returns.
    std::function<void()> duringRotation;
    std::function<void()> duringRender;
    int renderResult = 0;

    std::vector<Shown> shown()
    {
        return m_signal.read([this] { return m_shown; });
    }
    std::vector<int> rotations()
    {
        return m_signal.read([this] { return m_rotations; });
    }
    int arrivals()
    {
        return m_signal.read([this] { return m_arrivals; });
    }
    bool waitForArrivals(int count)
    {
        return m_signal.wait([&] { return m_arrivals >= count; });
    }
    bool waitForRotation()
    {
        return m_signal.wait([this] { return !m_rotations.empty(); });
    }

private:
    Signal m_signal;
    std::vector<Shown> m_shown;
    std::vector<int> m_rotations;
    int m_arrivals = 0;
};
