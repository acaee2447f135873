#pragma once

#include "stream/MultimediaForwarder.h"
#include "stream/StreamingData.h"

#include <swplay/Mutex.h>

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QVector>

#include <memory>

class SWDataSource;
class SWPlayer;
class VideoView;

namespace stream {

// The longest text that a session takes at once, in bytes of UTF-8.
constexpr int LongestText = 1024 * 1024;

// What video a session asks for.
enum StreamMode : int {
    Paused = 0, // none at all, the session stays
    Full = 1, // the user's quality, automatic at first
    Thumbnail = 2, // a group tile
};

} // namespace stream

// One live session with one remote device: connects, chooses the video quality, shows the pictures in a
// VideoView and passes input on. Lives on the GUI thread; owned by the window or tile that shows the device.
// The input slots and dataSource() and videoResolution() may be called from any thread while the controller
// lives; start, stop and mode changes belong to the GUI thread.
//
// Loss of the connection is the SDK's business: it reconnects by itself. No return value of the SDK is looked
// at; input given without a session does nothing.
class StreamController : public QObject
{
    Q_OBJECT

public:
    explicit StreamController(QObject *parent = nullptr);
    // Ends the session first.
    ~StreamController() override;

    // Where the pictures of the next session go. Not owned; may be destroyed at any time.
    void setVideoView(const QPointer<VideoView> &view);
    VideoView *videoView() const;

    // What is started and stopped when the device asks for the camera. Not owned. By default the computer's
    // camera, MultimediaMgr.
    void setMultimediaForwarder(MultimediaForwarder *forwarder);

    // Ends the present session, if any, and starts a new one in `mode`, a StreamMode.
    void startStream(const stream::StreamingData &data, int mode);
    void stopStream();
    // Does nothing without a session or when `mode` is already set.
    void setStreamMode(int mode);

    // The session's data source, or none. Whoever keeps it must let go of it before the controller is
    // destroyed.
    std::shared_ptr<SWDataSource> dataSource() const;
    void setDataSource(std::shared_ptr<SWDataSource> dataSource);

    // Size of the remote screen in portrait, in pixels: the space of touch coordinates. Invalid without a
    // session.
    QSize videoResolution() const;

signals:
    // About once a second: a JSON object in UTF-8, valid during the emission only; "delayTime" is in
    // milliseconds. Emitted on the GUI thread.
    void sigPlayInfo(const char *info);

public slots:
    // `action`: 0 down, 1 up, 2 move. The vectors hold every finger, in remote pixels, and are of equal size.
    void onTouchEvent(int action, QVector<int> &vecPosX, QVector<int> &vecPosY);
    // A key going down and up at once, as a Linux input key code.
    void onFunctionBtnClicked(int keyType);
    void onInputEvent(QString inputString);
    // `inputType` 199 and 212: the device wants the camera, or no longer (`state` 0). GUI thread.
    void onSensorInput(int inputType, int state, int width, int height);
    void onSendPicture(QByteArray ba);
    void onSendAudioData(QByteArray ba);
    // 0 = automatic, otherwise a row of the level table.
    void onVideoLevelChanged(int index);
    // Keys as codes of the SDK.
    void onKeyPressEvent(int key);
    void onKeyReleaseEvent(int key);
    // The user was active: the keep-alive interval begins anew.
    void onOperation();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    template <typename Call>
    void withDataSource(Call &&call);
    std::shared_ptr<SWDataSource> replaceDataSource(std::shared_ptr<SWDataSource> dataSource);
    std::shared_ptr<SWDataSource> createDataSource(const stream::StreamingData &data);
    void enterStartMode(SWDataSource &dataSource, int mode);
    void connectDisplay();
    void releaseDisplay();
    void stopForwarding();
    void releasePlayer();
    void startKeepAliveTimer();

    int m_timerId = -1; // the keep-alive timer that counts; the events of earlier ones are ignored
    int m_mode = stream::Full;
    mutable Mutex m_lock; // held during each call into the data source from a slot; guards m_dataSource
    std::shared_ptr<SWPlayer> m_player;
    std::shared_ptr<SWDataSource> m_dataSource;
    QPointer<VideoView> m_videoView;
    QPointer<VideoView> m_displayedView; // the one that the player draws into
    QPointer<MultimediaForwarder> m_forwarder; // none until it is set or the camera is asked for
};
