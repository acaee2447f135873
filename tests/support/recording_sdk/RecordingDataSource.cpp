// The recording SDK's data source and listener.

#include "Recorder.h"

#include <swplay/SWDataSource.h>
#include <swplay/SWDataSourceListener.h>

#include <string>

DataSource::~DataSource() = default;

SWDataSourceListener::SWDataSourceListener() = default;
SWDataSourceListener::~SWDataSourceListener() = default;
void SWDataSourceListener::onConnected()
{ }
void SWDataSourceListener::onDisconnected(int)
{ }
void SWDataSourceListener::onReconnecting(int)
{ }
void SWDataSourceListener::onScreenRotation(int)
{ }
void SWDataSourceListener::onSensorRequest(int, int, int, int)
{ }
void SWDataSourceListener::onSensorRequest(int, int)
{ }
void SWDataSourceListener::onStreamInfo(const char *)
{ }
void SWDataSourceListener::onCopyFromRemote(const char *, int)
{ }
void SWDataSourceListener::onRecvKeyboardType(int)
{ }
void SWDataSourceListener::onControlGrant(int)
{ }

struct SWDataSource::Impl
{
    SWDataSourceListener *listener = nullptr;
};

namespace {

template <typename... Args>
int record(const char *name, const Args &...args)
{
    Recorder::instance().record(name, args...);
    return 0;
}

std::string levelText(const VideoLevel &level)
{
    const std::int32_t fields[]
        = {level.codec, level.width, level.height, level.frameRate, level.minFrameRate, level.bitRate,
            level.quality, level.reserved8, level.reserved9, level.maxQuality, level.minQuality};
    return arrayText(fields, static_cast<int>(std::size(fields)));
}

} // namespace

SWDataSource::SWDataSource(unsigned id, SWDataSourceListener *listener)
    : m_impl(std::make_shared<Impl>())
{
    m_impl->listener = listener;
    Recorder::instance().setListener(listener);
    record("SWDataSource::SWDataSource", id, std::string(listener ? "listener" : "none"));
}

SWDataSource::~SWDataSource()
{
    if (Recorder::instance().listener() == m_impl->listener)
        Recorder::instance().setListener(nullptr);
    record("SWDataSource::~SWDataSource");
}

int SWDataSource::setLoginParams(const char *controlIp, unsigned short controlPort, int userId,
    const char *sessionId, const char *padCode, int reserved)
{
    return record(
        "SWDataSource::setLoginParams", controlIp, controlPort, userId, sessionId, padCode, reserved);
}

int SWDataSource::setPlayParams(const char *name, int p1, int p2, int p3, int p4, int p5, int p6, int p7,
    int p8, int p9, int p10, int p11, int p12)
{
    return record("SWDataSource::setPlayParams", name, p1, p2, p3, p4, p5, p6, p7, p8, p9, p10, p11, p12);
}

int SWDataSource::setBusinessType(int type)
{
    return record("SWDataSource::setBusinessType", type);
}

int SWDataSource::setVideoLevels(VideoLevel *levels, int count)
{
    std::string rows;
    for (int i = 0; i < count; ++i)
        rows += (i > 0 ? ", " : "") + levelText(levels[i]);
    return record("SWDataSource::setVideoLevels", rows, count);
}

int SWDataSource::setVideoLevel(int index)
{
    return record("SWDataSource::setVideoLevel", index);
}

int SWDataSource::setVideoLevel(
    int codec, int reserved, int width, int height, int quality, int bitRate, int frameRate)
{
    return record("SWDataSource::setVideoLevel", codec, reserved, width, height, quality, bitRate, frameRate);
}

int SWDataSource::getVideoLevelResult(VideoLevel *level)
{
    record("SWDataSource::getVideoLevelResult", levelText(*level));
    const auto size = Recorder::instance().remoteSize();
    if (!size)
        return -1;
    level->width = size->first;
    level->height = size->second;
    return 0;
}

int SWDataSource::screenCast(int mode)
{
    return record("SWDataSource::screenCast", mode);
}

void SWDataSource::stop()
{
    record("SWDataSource::stop");
}

int SWDataSource::sendTouchEvent(int action, int count, int *xs, int *ys, float *pressures)
{
    return record("SWDataSource::sendTouchEvent", action, count, arrayText(xs, count), arrayText(ys, count),
        arrayText(pressures, count));
}

int SWDataSource::sendKeyEvent(int action, int key)
{
    return record("SWDataSource::sendKeyEvent", action, key);
}

int SWDataSource::sendInputString(const char *text, int length)
{
    return record("SWDataSource::sendInputString", text, length);
}

int SWDataSource::sendPicture(const char *data, int size)
{
    // Whole, as a picture has NUL bytes.
    return record(
        "SWDataSource::sendPicture", '"' + std::string(data, static_cast<std::size_t>(size)) + '"', size);
}

int SWDataSource::sendAudio(int format, const char *data, int size)
{
    return record(
        "SWDataSource::sendAudio", format, std::string(data, static_cast<std::size_t>(size)).c_str(), size);
}

void SWDataSource::attachSink(std::shared_ptr<swplay::VideoSink>)
{
    record("SWDataSource::attachSink");
}

int SWDataSource::start()
{
    return record("SWDataSource::start");
}
