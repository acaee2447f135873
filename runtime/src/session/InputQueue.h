#pragma once

#include "stream.pb.h"

#include <cstddef>
#include <deque>
#include <optional>

namespace swplay {

// The input that waits for the connection: touches, keys and text in order and without loss, the newest
// camera picture, and a little microphone data. A touch move takes the place of a move of as many fingers
// that waits as the last event; nothing else is merged. The queue is bounded: when the events of a connection
// that is stuck exceed it, it reports itself full, and the connection must be given up rather than an event
// be lost.
//
// Owned by a session and guarded by its mutex.
class InputQueue
{
public:
    static constexpr std::size_t MaxEvents = 4096;
    static constexpr std::size_t MaxEventBytes = 16u << 20;
    static constexpr std::size_t MaxAudioChunks = 8;

    // Adds a touch, key or text. Returns whether there was room.
    bool pushEvent(wire::StreamMessage message);
    // Takes the place of a picture that waits.
    void pushPicture(wire::StreamMessage message);
    // Drops the oldest data when MaxAudioChunks wait: old sound is of no use.
    void pushAudio(wire::StreamMessage message);

    std::optional<wire::StreamMessage> takeEvent();
    // Sound before pictures, which are larger.
    std::optional<wire::StreamMessage> takeAudioOrPicture();

    // An event found no room since the last clear.
    bool isOverfull() const { return m_overfull; }
    std::size_t eventCount() const { return m_events.size(); }
    void clear();

private:
    std::deque<wire::StreamMessage> m_events;
    std::size_t m_eventBytes = 0;
    std::deque<wire::StreamMessage> m_audio;
    std::optional<wire::StreamMessage> m_picture;
    bool m_overfull = false;
};

} // namespace swplay
