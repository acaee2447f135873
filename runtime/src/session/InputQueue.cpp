#include "session/InputQueue.h"

#include <utility>

namespace swplay {

namespace {

constexpr int TouchMove = 2; // Touch.action

bool isMove(const wire::StreamMessage &message)
{
    return message.has_touch() && message.touch().action() == TouchMove;
}

// A move tells the whole state of the screen, so that a later one of the same fingers makes it unnecessary.
bool replaces(const wire::StreamMessage &later, const wire::StreamMessage &earlier)
{
    return isMove(later) && isMove(earlier) && later.touch().x_size() == earlier.touch().x_size()
        && later.touch().reference_width() == earlier.touch().reference_width()
        && later.touch().reference_height() == earlier.touch().reference_height();
}

} // namespace

bool InputQueue::pushEvent(wire::StreamMessage message)
{
    const std::size_t bytes = message.ByteSizeLong();
    if (!m_events.empty() && replaces(message, m_events.back())) {
        m_eventBytes += bytes - m_events.back().ByteSizeLong();
        m_events.back() = std::move(message);
        return true;
    }
    if (m_events.size() >= MaxEvents || m_eventBytes + bytes > MaxEventBytes) {
        m_overfull = true;
        return false;
    }
    m_eventBytes += bytes;
    m_events.push_back(std::move(message));
    return true;
}

void InputQueue::pushPicture(wire::StreamMessage message)
{
    m_picture = std::move(message);
}

void InputQueue::pushAudio(wire::StreamMessage message)
{
    if (m_audio.size() >= MaxAudioChunks)
        m_audio.pop_front();
    m_audio.push_back(std::move(message));
}

std::optional<wire::StreamMessage> InputQueue::takeEvent()
{
    if (m_events.empty())
        return std::nullopt;
    std::optional<wire::StreamMessage> message(std::move(m_events.front()));
    m_events.pop_front();
    m_eventBytes -= message->ByteSizeLong();
    return message;
}

std::optional<wire::StreamMessage> InputQueue::takeAudioOrPicture()
{
    if (!m_audio.empty()) {
        std::optional<wire::StreamMessage> message(std::move(m_audio.front()));
        m_audio.pop_front();
        return message;
    }
    return std::exchange(m_picture, std::nullopt);
}

void InputQueue::clear()
{
    m_events.clear();
    m_eventBytes = 0;
    m_audio.clear();
    m_picture.reset();
    m_overfull = false;
}

} // namespace swplay
