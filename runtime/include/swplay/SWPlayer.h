#pragma once

#include "swplay/DataSource.h"

#include <memory>

class VideoDisplay;

// Decodes the pictures of a data source and hands them to a display. Called from one thread, the owner's.
class SWPlayer
{
public:
    SWPlayer();
    // Stops first.
    ~SWPlayer();
    SWPlayer(const SWPlayer &) = delete;
    SWPlayer &operator=(const SWPlayer &) = delete;

    // Unique within the process, from 1.
    unsigned getId() const;

    int setDataSource(const std::shared_ptr<DataSource> &dataSource);
    std::shared_ptr<DataSource> getDataSource() const;
    // Pictures of the data source no longer reach this player. Blocks until no callback is running.
    void detachDataSource();

    // The render target, or none. Not owned. Blocks until the previous one is no longer in use.
    void setDisplay(VideoDisplay *display);

    // Starts the data source's session. Returns 0, or -1 without a data source or before SWRuntime::init.
    int start();
    // Stops playing; the data source itself goes on until its own stop(). Blocks until no callback is
    // running.
    void stop();

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
