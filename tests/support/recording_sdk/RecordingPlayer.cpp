// The recording SDK's player.

#include "Recorder.h"

#include <swplay/SWPlayer.h>
#include <swplay/VideoDisplay.h>

#include <atomic>
#include <string>

struct SWPlayer::Impl
{
    unsigned id = 0;
    std::shared_ptr<DataSource> dataSource;
    VideoDisplay *display = nullptr;

    void forgetDisplay()
    {
        if (display && Recorder::instance().display() == display)
            Recorder::instance().setDisplay(nullptr);
        display = nullptr;
    }
};

SWPlayer::SWPlayer()
    : m_impl(std::make_unique<Impl>())
{
    static std::atomic<unsigned> lastId{0};
    m_impl->id = ++lastId;
    Recorder::instance().record("SWPlayer::SWPlayer");
}

SWPlayer::~SWPlayer()
{
    m_impl->forgetDisplay();
    Recorder::instance().record("SWPlayer::~SWPlayer");
}

unsigned SWPlayer::getId() const
{
    Recorder::instance().record("SWPlayer::getId");
    return m_impl->id;
}

int SWPlayer::setDataSource(const std::shared_ptr<DataSource> &dataSource)
{
    m_impl->dataSource = dataSource;
    Recorder::instance().record("SWPlayer::setDataSource", std::string(dataSource ? "dataSource" : "none"));
    return 0;
}

std::shared_ptr<DataSource> SWPlayer::getDataSource() const
{
    Recorder::instance().record("SWPlayer::getDataSource");
    return m_impl->dataSource;
}

void SWPlayer::detachDataSource()
{
    m_impl->dataSource.reset();
    Recorder::instance().record("SWPlayer::detachDataSource");
}

void SWPlayer::setDisplay(VideoDisplay *display)
{
    m_impl->forgetDisplay();
    m_impl->display = display;
    Recorder::instance().setDisplay(display);
    Recorder::instance().record("SWPlayer::setDisplay", std::string(display ? "display" : "none"));
}

int SWPlayer::start()
{
    Recorder::instance().record("SWPlayer::start");
    return 0;
}

void SWPlayer::stop()
{
    m_impl->forgetDisplay();
    Recorder::instance().record("SWPlayer::stop");
}
