#include "StreamClient.h"

#include "swplay/VideoFrame.h"

#include <QJsonDocument>

#include <algorithm>
#include <chrono>

namespace {
// The device window's table of levels.
VideoLevel levels[] = {
    {2, 720, 1280, 25, 15, 6144, 100, 0, 0, 100, 50},
    {2, 720, 1280, 25, 15, 6144, 100, 0, 0, 100, 50},
    {2, 720, 1280, 25, 15, 4096, 100, 0, 0, 100, 50},
    {2, 576, 1024, 20, 10, 2048, 100, 0, 0, 100, 50},
    {2, 480, 848, 15, 15, 1024, 100, 0, 0, 100, 50},
    {2, 240, 424, 15, 15, 512, 100, 0, 0, 100, 50},
    {2, 144, 218, 5, 1, 256, 100, 0, 0, 100, 50},
};
} // namespace

int StreamClient::Display::render(VideoFrame *frame)
{
    using namespace std::chrono;
    // The gateway stamps pictures with this machine's steady clock.
    const auto now = duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
    worstDelayMs = std::max(worstDelayMs.load(), static_cast<int>((now - frame->captureUs) / 1000));
    return VideoDisplayWinBase::render(frame);
}

void StreamClient::Display::onFrameArrival()
{
    const qint64 now = clock.elapsed();
    if (lastPictureMs >= 0)
        worstGapMs = std::max(worstGapMs.load(), static_cast<int>(now - lastPictureMs));
    ++pictures;
    lastPictureMs = now;
}

void StreamClient::Listener::onConnected()
{
    ++connects;
}

void StreamClient::Listener::onReconnecting(int)
{
    ++reconnecting;
    lastReconnectMs = clock.elapsed();
}

void StreamClient::Listener::onDisconnected(int reason)
{
    endReason = reason;
}

void StreamClient::Listener::onStreamInfo(const char *info)
{
    const std::lock_guard<std::mutex> guard(lock);
    infos << QJsonDocument::fromJson(info).object();
}

StreamClient::StreamClient(const Session &session)
    : m_listener(m_clock)
    , m_display(m_clock)
    , m_player(std::make_unique<SWPlayer>())
{
    m_clock.start();
    m_source = std::make_shared<SWDataSource>(m_player->getId(), &m_listener);
    m_source->setLoginParams(qUtf8Printable(session.ip), session.port, session.userId,
        qUtf8Printable(session.sessionId), qUtf8Printable(session.padCode), 0);
    m_source->setBusinessType(1);
    m_source->setVideoLevels(levels, static_cast<int>(std::size(levels)));
    m_source->screenCast(3);
    m_source->setVideoLevel(0);
    m_player->setDataSource(m_source);
    m_display.setDstFormat(-1, 720, 1280, 0);
    m_player->setDisplay(&m_display);
    m_player->start();
}

StreamClient::~StreamClient()
{
    m_player->detachDataSource();
    m_player->stop();
    m_source->stop();
}

QVector<QJsonObject> StreamClient::streamInfos() const
{
    const std::lock_guard<std::mutex> guard(m_listener.lock);
    return m_listener.infos;
}

void StreamClient::forgetWorst()
{
    m_display.worstDelayMs = 0;
    m_display.worstGapMs = 0;
}

int StreamClient::middleColour()
{
    const FrameBuffer *buffer = m_display.lockFrameBuffer();
    if (!buffer)
        return -1;
    constexpr int half = 8;
    int sum[3] = {0, 0, 0};
    for (int y = -half; y < half; ++y) {
        const std::uint8_t *row
            = buffer->data + (buffer->height / 2 + y) * buffer->stride + buffer->width / 2 * 4;
        for (int x = -half; x < half; ++x) {
            for (int channel = 0; channel < 3; ++channel)
                sum[channel] += row[x * 4 + channel];
        }
    }
    m_display.unlockFrameBuffer();
    constexpr int count = 4 * half * half;
    return (sum[2] / count) << 16 | (sum[1] / count) << 8 | sum[0] / count;
}
