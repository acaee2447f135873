#include "swplay/SWDataSource.h"

#include "Log.h"
#include "session/Endpoint.h"
#include "session/Session.h"
#include "session/WireMessage.h"
#include "swplay/Keyboard.h"
#include "swplay/SWDataSourceListener.h"

#include <cstring>
#include <string>
#include <utility>
#include <vector>

using namespace swplay;

// Checks arguments and passes them on to the session, which does the work.
struct SWDataSource::Impl
{
    std::shared_ptr<Session> session;
};

namespace {

constexpr int OutOfRange = Session::Refused;
constexpr int KeyBits = 0xffff; // of the key argument; WithShift is the next bit

bool isSide(int pixels)
{
    return pixels > 0 && pixels <= WireLimits::SidePixels;
}

// A zero-terminated string of at most `most` bytes of UTF-8.
bool isText(const char *text, std::size_t most)
{
    return text && ::strnlen(text, most + 1) <= most && isUtf8(text);
}

} // namespace

SWDataSource::SWDataSource(unsigned id, SWDataSourceListener *listener)
    : m_impl(std::make_shared<Impl>())
{
    m_impl->session = std::make_shared<Session>(id, listener);
}

SWDataSource::~SWDataSource()
{
    m_impl->session->stop();
}

int SWDataSource::setLoginParams(const char *controlIp, unsigned short controlPort, int userId,
    const char *sessionId, const char *padCode, int /*reserved*/)
{
    const bool texts = isText(controlIp, WireLimits::IdBytes) && isText(sessionId, WireLimits::IdBytes)
        && isText(padCode, WireLimits::IdBytes) && sessionId[0] != '\0';
    const auto endpoint = texts ? parseEndpoint(controlIp, controlPort) : std::nullopt;
    if (!endpoint)
        return m_impl->session->setLogin(std::nullopt);
    return m_impl->session->setLogin(LoginParameters{*endpoint, userId, sessionId, padCode});
}

int SWDataSource::setPlayParams(const char *name, int p1, int p2, int p3, int p4, int p5, int p6, int p7,
    int p8, int p9, int p10, int p11, int p12)
{
    if (!isText(name, WireLimits::IdBytes))
        return OutOfRange;
    std::string line = std::string("Play parameters: \"") + name + '"';
    for (const int value : {p1, p2, p3, p4, p5, p6, p7, p8, p9, p10, p11, p12})
        line += ' ' + std::to_string(value);
    log(LogLevel::Debug, line);
    return 0;
}

int SWDataSource::setBusinessType(int type)
{
    return m_impl->session->setBusinessType(type);
}

int SWDataSource::setVideoLevels(VideoLevel *levels, int count)
{
    if (!levels || count < 1 || count > WireLimits::Levels)
        return OutOfRange;
    std::vector<VideoLevel> rows(levels, levels + count);
    for (const VideoLevel &row : rows) {
        if (!isSide(row.width) || !isSide(row.height))
            return OutOfRange;
    }
    return m_impl->session->setLevels(std::move(rows));
}

int SWDataSource::setVideoLevel(int index)
{
    return m_impl->session->chooseRow(index);
}

int SWDataSource::setVideoLevel(
    int codec, int reserved, int width, int height, int quality, int bitRate, int frameRate)
{
    if (!isSide(width) || !isSide(height) || bitRate < 1 || frameRate < 1
        || frameRate > WireLimits::FrameRate)
        return OutOfRange;
    VideoLevel level;
    level.codec = codec;
    level.width = width;
    level.height = height;
    level.frameRate = frameRate;
    level.bitRate = bitRate;
    level.quality = quality;
    level.reserved8 = reserved;
    return m_impl->session->chooseCustom(level);
}

int SWDataSource::getVideoLevelResult(VideoLevel *level)
{
    return level ? m_impl->session->levelResult(*level) : OutOfRange;
}

int SWDataSource::screenCast(int mode)
{
    if (mode != 0 && mode != 1 && mode != 3)
        return OutOfRange;
    return m_impl->session->setScreenCast(mode);
}

void SWDataSource::stop()
{
    m_impl->session->stop();
}

int SWDataSource::sendTouchEvent(int action, int count, int *xs, int *ys, float *pressures)
{
    if (action < 0 || action > 2 || count < 0 || count > WireLimits::Fingers || (count > 0 && (!xs || !ys)))
        return OutOfRange;
    return m_impl->session->sendTouch(touchMessage(action, count, xs, ys, pressures));
}

int SWDataSource::sendKeyEvent(int action, int key)
{
    const int code = key & KeyBits;
    if (action < 1 || action > 3 || key < 0 || key > (KeyBits | Keyboard::WithShift)
        || code > WireLimits::KeyCode)
        return OutOfRange;
    return m_impl->session->sendEvent(keyMessage(action, code, (key & Keyboard::WithShift) != 0));
}

int SWDataSource::sendInputString(const char *text, int length)
{
    if (length < 1 || !isText(text, WireLimits::TextBytes))
        return OutOfRange;
    return m_impl->session->sendEvent(textMessage(text));
}

int SWDataSource::sendPicture(const char *data, int size)
{
    if (!data || size < 1 || static_cast<std::size_t>(size) > WireLimits::PictureBytes)
        return OutOfRange;
    return m_impl->session->sendPicture(pictureMessage(std::string(data, static_cast<std::size_t>(size))));
}

int SWDataSource::sendAudio(int format, const char *data, int size)
{
    if (!data || size < 1 || static_cast<std::size_t>(size) > WireLimits::AudioBytes)
        return OutOfRange;
    return m_impl->session->sendAudio(
        audioMessage(format, std::string(data, static_cast<std::size_t>(size))));
}

void SWDataSource::attachSink(std::shared_ptr<VideoSink> sink)
{
    m_impl->session->attachSink(std::move(sink));
}

int SWDataSource::start()
{
    return m_impl->session->start();
}
