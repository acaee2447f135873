#include "swplay/SWPlayer.h"

#include "Log.h"
#include "swplay/DataSource.h"
#include "video/DecodePool.h"
#include "video/StreamDecoder.h"

#include <atomic>
#include <string>
#include <utility>

using swplay::DecodePool;
using swplay::StreamDecoder;

namespace {

unsigned nextId()
{
    static std::atomic<unsigned> lastId{0};
    return ++lastId;
}

} // namespace

// All fields: the owner's thread.
struct SWPlayer::Impl
{
    const unsigned id = nextId();
    std::shared_ptr<DataSource> dataSource;
    VideoDisplay *display = nullptr;
    std::shared_ptr<StreamDecoder> stream; // while playing

    void endStream();
};

// Cuts the way from the data source to the display.
void SWPlayer::Impl::endStream()
{
    if (!stream)
        return;
    dataSource->attachSink(nullptr);
    stream->close();
    stream.reset();
}

SWPlayer::SWPlayer()
    : m_impl(std::make_unique<Impl>())
{ }

SWPlayer::~SWPlayer()
{
    stop();
}

unsigned SWPlayer::getId() const
{
    return m_impl->id;
}

int SWPlayer::setDataSource(const std::shared_ptr<DataSource> &dataSource)
{
    if (dataSource == m_impl->dataSource)
        return 0;
    m_impl->endStream();
    m_impl->dataSource = dataSource;
    return 0;
}

std::shared_ptr<DataSource> SWPlayer::getDataSource() const
{
    return m_impl->dataSource;
}

void SWPlayer::detachDataSource()
{
    setDataSource(nullptr);
}

void SWPlayer::setDisplay(VideoDisplay *display)
{
    m_impl->display = display;
    if (m_impl->stream)
        m_impl->stream->setDisplay(display);
}

int SWPlayer::start()
{
    DecodePool &pool = DecodePool::instance();
    const std::string name = "Player " + std::to_string(m_impl->id);
    if (!m_impl->dataSource || !pool.isRunning()) {
        swplay::log(swplay::LogLevel::Error,
            name + ": cannot start "
                + (m_impl->dataSource ? "before SWRuntime::init" : "without a data source"));
        return -1;
    }
    if (m_impl->stream)
        return 0;
    m_impl->stream = std::make_shared<StreamDecoder>(name, pool);
    m_impl->stream->setDisplay(m_impl->display);
    m_impl->dataSource->attachSink(m_impl->stream);
    const int result = m_impl->dataSource->start();
    if (result != 0)
        m_impl->endStream();
    return result;
}

void SWPlayer::stop()
{
    m_impl->endStream();
}
