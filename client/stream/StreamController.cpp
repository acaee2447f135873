#include "stream/StreamController.h"

#include "stream/DataSourceListener.h"
#include "stream/MultimediaMgr.h"
#include "stream/VideoLevelTable.h"
#include "stream/VideoView.h"

#include <swplay/SWDataSource.h>
#include <swplay/SWPlayer.h>

#include <QDebug>
#include <QTimerEvent>

#include <mutex>
#include <vector>

namespace {

// The contract with the streaming SDK and the device.
constexpr int KeepAliveMs = 20 * 60 * 1000; // an unused session ends on the device's side after a while
constexpr int KeyDown = 1;
constexpr int KeyUp = 2;
constexpr int KeyClick = 3;
constexpr int KeepAliveKey = 0; // activity without a key
constexpr int BusinessType = 1;
constexpr int CastPaused = 0;
constexpr int CastThumbnail = 1;
constexpr int CastFull = 3;
constexpr int AutomaticLevel = 0;
constexpr int ThumbnailLevelIndex
    = 3; // of a session that becomes a tile; one that starts as a tile is smaller
constexpr int AudioFormat = 1;
constexpr int FrontCamera = 199;
constexpr int BackCamera = 212;
constexpr int BgraFormat = -1;
constexpr int FrameWidth = 720; // of the buffer that is painted, pixels
constexpr int FrameHeight = 1280;
// Codec 2, 432 x 768: what a session is taken to show before the device has told.
constexpr VideoLevel UnknownLevel = {2, 432, 768, 20, 15, 1024, 45, 3, 3, 0, 0};

void setExactLevel(SWDataSource &dataSource, const VideoLevel &level)
{
    dataSource.setVideoLevel(level.codec, 0, level.width, level.height, 0, level.bitRate, level.frameRate);
}

} // namespace

StreamController::StreamController(QObject *parent)
    : QObject(parent)
{ }

StreamController::~StreamController()
{
    stopStream();
}

void StreamController::setVideoView(const QPointer<VideoView> &view)
{
    m_videoView = view;
}

VideoView *StreamController::videoView() const
{
    return m_videoView;
}

void StreamController::setMultimediaForwarder(MultimediaForwarder *forwarder)
{
    m_forwarder = forwarder;
}

void StreamController::startStream(const stream::StreamingData &data, int mode)
{
    releasePlayer();
    m_player = std::make_shared<SWPlayer>();
    const std::shared_ptr<SWDataSource> dataSource = createDataSource(data);
    enterStartMode(*dataSource, mode);
    m_player->setDataSource(dataSource);
    connectDisplay();
    m_player->start();
    startKeepAliveTimer();
}

std::shared_ptr<SWDataSource> StreamController::createDataSource(const stream::StreamingData &data)
{
    auto *listener = new DataSourceListener(this);
    connect(listener, &DataSourceListener::sigSensorInput, this, &StreamController::onSensorInput);
    connect(listener, &DataSourceListener::sigPlayInfo, this, &StreamController::sigPlayInfo);

    auto dataSource = std::make_shared<SWDataSource>(m_player->getId(), listener);
    setDataSource(dataSource);
    dataSource->setLoginParams(data.controlIp.toUtf8().constData(), data.controlPort, data.userId,
        data.sessionId.toUtf8().constData(), data.padCode.toUtf8().constData(), 0);
    dataSource->setPlayParams("", -1, 0, 0, 0, 0, 0, 0, -1, -1, 3, 1, 0);
    dataSource->setBusinessType(BusinessType);
    auto levels = stream::videoLevelTable();
    dataSource->setVideoLevels(levels.data(), stream::VideoLevelCount);
    dataSource->screenCast(CastFull);
    return dataSource;
}

// A tile that starts as one asks for exactly the smallest level, unlike one that setStreamMode makes.
void StreamController::enterStartMode(SWDataSource &dataSource, int mode)
{
    m_mode = mode;
    switch (mode) {
    case stream::Full:
        dataSource.setVideoLevel(AutomaticLevel);
        break;
    case stream::Thumbnail:
        setExactLevel(dataSource, stream::videoLevelTable().back());
        break;
    default:
        dataSource.screenCast(CastPaused);
        break;
    }
}

void StreamController::connectDisplay()
{
    if (!m_videoView) {
        qWarning() << "a stream is started without a view: its pictures are not shown";
        m_player->setDisplay(nullptr);
        return;
    }
    m_displayedView = m_videoView;
    m_videoView->setDstFormat(BgraFormat, FrameWidth, FrameHeight, 0);
    m_player->setDisplay(m_videoView);
    // The player must not touch a view that is going; the connection is direct, as both live on this thread.
    connect(m_videoView, &VideoView::sigAboutToBeDestroyed, this, &StreamController::releaseDisplay,
        Qt::UniqueConnection);
}

void StreamController::releaseDisplay()
{
    if (m_player && sender() == m_displayedView)
        m_player->setDisplay(nullptr);
}

void StreamController::stopStream()
{
    stopForwarding();
    releasePlayer();
    if (const std::shared_ptr<SWDataSource> dataSource = replaceDataSource(nullptr))
        dataSource->stop();
}

// Whether or not this session has asked for the camera: the end of any session ends it for all.
void StreamController::stopForwarding()
{
    if (m_forwarder)
        m_forwarder->stop();
    else
        MultimediaMgr::stopInstance();
}

void StreamController::releasePlayer()
{
    if (!m_player)
        return;
    if (const std::shared_ptr<DataSource> dataSource = m_player->getDataSource())
        dataSource->screenCast(CastPaused);
    m_player->detachDataSource();
    m_player->stop();
    m_player.reset();
}

void StreamController::setStreamMode(int mode)
{
    const std::shared_ptr<SWDataSource> dataSource = this->dataSource();
    if (mode == m_mode || !dataSource)
        return;
    m_mode = mode;
    switch (mode) {
    case stream::Paused:
        dataSource->screenCast(CastPaused);
        break;
    case stream::Full:
        dataSource->setVideoLevel(AutomaticLevel);
        dataSource->screenCast(CastFull);
        break;
    case stream::Thumbnail:
        dataSource->setVideoLevel(ThumbnailLevelIndex);
        dataSource->screenCast(CastThumbnail);
        break;
    default:
        qWarning() << "no such stream mode:" << mode;
        break;
    }
}

std::shared_ptr<SWDataSource> StreamController::dataSource() const
{
    const std::lock_guard<Mutex> lock(m_lock);
    return m_dataSource;
}

void StreamController::setDataSource(std::shared_ptr<SWDataSource> dataSource)
{
    replaceDataSource(std::move(dataSource));
}

// The old one is returned, so that it goes outside the lock: its end may take a while.
std::shared_ptr<SWDataSource> StreamController::replaceDataSource(std::shared_ptr<SWDataSource> dataSource)
{
    const std::lock_guard<Mutex> lock(m_lock);
    m_dataSource.swap(dataSource);
    return dataSource;
}

QSize StreamController::videoResolution() const
{
    const std::shared_ptr<SWDataSource> dataSource = this->dataSource();
    if (!dataSource)
        return {};
    VideoLevel level = UnknownLevel;
    dataSource->getVideoLevelResult(&level);
    return {level.width, level.height};
}

template <typename Call>
void StreamController::withDataSource(Call &&call)
{
    const std::lock_guard<Mutex> lock(m_lock);
    if (m_dataSource)
        call(*m_dataSource);
}

void StreamController::onTouchEvent(int action, QVector<int> &vecPosX, QVector<int> &vecPosY)
{
    std::vector<float> pressures(static_cast<std::size_t>(vecPosX.size()), 0.0F);
    withDataSource([&](SWDataSource &dataSource) {
        dataSource.sendTouchEvent(action, vecPosX.size(), vecPosX.data(), vecPosY.data(), pressures.data());
    });
}

void StreamController::onFunctionBtnClicked(int keyType)
{
    withDataSource([&](SWDataSource &dataSource) { dataSource.sendKeyEvent(KeyClick, keyType); });
}

// The length counts UTF-16 units and the terminator, not UTF-8 bytes: that is how the SDK wants it.
void StreamController::onInputEvent(QString inputString)
{
    const QByteArray utf8 = inputString.toUtf8();
    withDataSource([&](SWDataSource &dataSource) {
        dataSource.sendInputString(utf8.constData(), inputString.length() + 1);
    });
}

void StreamController::onSensorInput(int inputType, int state, int width, int height)
{
    Q_UNUSED(width)
    Q_UNUSED(height)
    if (inputType != FrontCamera && inputType != BackCamera)
        return;
    if (!dataSource())
        return; // asked for by a session that has ended meanwhile
    if (!m_forwarder)
        m_forwarder = &MultimediaMgr::instance();
    connect(m_forwarder, &MultimediaForwarder::sigSendPicture, this, &StreamController::onSendPicture,
        Qt::UniqueConnection);
    connect(m_forwarder, &MultimediaForwarder::sigSendAudioData, this, &StreamController::onSendAudioData,
        Qt::UniqueConnection);
    if (state != 0)
        m_forwarder->start();
    else
        m_forwarder->stop();
}

void StreamController::onSendPicture(QByteArray ba)
{
    withDataSource([&](SWDataSource &dataSource) { dataSource.sendPicture(ba.constData(), ba.size()); });
}

void StreamController::onSendAudioData(QByteArray ba)
{
    withDataSource(
        [&](SWDataSource &dataSource) { dataSource.sendAudio(AudioFormat, ba.constData(), ba.size()); });
}

void StreamController::onVideoLevelChanged(int index)
{
    if (index < 0 || index >= stream::VideoLevelCount) {
        qWarning() << "no such video level:" << index;
        return;
    }
    withDataSource([&](SWDataSource &dataSource) {
        if (index == AutomaticLevel)
            dataSource.setVideoLevel(AutomaticLevel);
        else
            setExactLevel(dataSource, stream::videoLevelTable().at(static_cast<std::size_t>(index)));
    });
}

void StreamController::onKeyPressEvent(int key)
{
    withDataSource([&](SWDataSource &dataSource) { dataSource.sendKeyEvent(KeyDown, key); });
}

void StreamController::onKeyReleaseEvent(int key)
{
    withDataSource([&](SWDataSource &dataSource) { dataSource.sendKeyEvent(KeyUp, key); });
}

void StreamController::onOperation()
{
    startKeepAliveTimer();
}

// Earlier timers are left running: their events no longer count.
void StreamController::startKeepAliveTimer()
{
    m_timerId = startTimer(KeepAliveMs, Qt::CoarseTimer);
}

void StreamController::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId)
        return;
    withDataSource([](SWDataSource &dataSource) { dataSource.sendKeyEvent(KeyClick, KeepAliveKey); });
    startKeepAliveTimer();
}
