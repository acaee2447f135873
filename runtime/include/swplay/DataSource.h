#pragma once

#include <memory>

namespace swplay {
class VideoSink;
}

// Where a player gets its pictures from. Shared between the player and the code that sends input.
class DataSource
{
public:
    DataSource() = default;
    DataSource(const DataSource &) = delete;
    DataSource &operator=(const DataSource &) = delete;
    virtual ~DataSource();

    // What video is wanted: 0 none, 1 thumbnail, 3 full. Any thread. Returns 0, or -1 for another value.
    virtual int screenCast(int mode) = 0;
    // Ends the session for good. Blocks until no callback is running any more. Not from a callback.
    virtual void stop() = 0;

    // For the player: where decoded pictures go (none = nowhere), and the start of the session.
    virtual void attachSink(std::shared_ptr<swplay::VideoSink> sink) = 0;
    virtual int start() = 0;
};
