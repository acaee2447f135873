#pragma once

#include "VideoSink.h"
#include "WaitingQueue.h"

#include <memory>
#include <mutex>
#include <string>

// Writes down what a session hands to its player, one line per call.
class RecordingSink : public swplay::VideoSink
{
public:
    std::string next() { return m_events.pop().value_or(""); }
    WaitingQueue<swplay::AccessUnit> units;

    std::shared_ptr<swplay::VideoFeedback> feedback() const
    {
        const std::lock_guard lock(m_mutex);
        return m_feedback.lock();
    }

    void setFeedback(std::weak_ptr<swplay::VideoFeedback> feedback) override
    {
        const bool given = !feedback.expired();
        {
            const std::lock_guard lock(m_mutex);
            m_feedback = std::move(feedback);
        }
        m_events.push(given ? "feedback" : "no feedback");
    }
    void accessUnit(swplay::AccessUnit unit) override
    {
        m_events.push("unit " + std::to_string(unit.frameId));
        units.push(std::move(unit));
    }
    void screenRotation(int rotation) override { m_events.push("rotation " + std::to_string(rotation)); }
    void streamReset() override { m_events.push("reset"); }

private:
    WaitingQueue<std::string> m_events;
    mutable std::mutex m_mutex;
    std::weak_ptr<swplay::VideoFeedback> m_feedback; // m_mutex
};
