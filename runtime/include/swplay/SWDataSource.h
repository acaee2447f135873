#pragma once

#include "swplay/DataSource.h"
#include "swplay/VideoLevel.h"

class SWDataSourceListener;

// One session with one remote device: connection, video quality and input. Every operation may be called from
// any thread. Those that return int return 0, or a negative value when the arguments are out of range or the
// data source is stopped; input given while there is no connection is dropped and returns -2, except that
// video settings are remembered and sent after every login.
//
// Loss of the connection is repaired by the data source itself; a refused session is not tried again.
class SWDataSource : public DataSource
{
public:
    // `id`: SWPlayer::getId() of the player it serves. The listener may be none; it is not owned.
    SWDataSource(unsigned id, SWDataSourceListener *listener);
    ~SWDataSource() override;

    // Address and identity of the session; before start. `controlIp`: a host name or IP address, optionally
    // with the scheme "ws://" or "wss://" (plain = ws). Strings are UTF-8 and copied. `reserved`: 0.
    int setLoginParams(const char *controlIp, unsigned short controlPort, int userId, const char *sessionId,
        const char *padCode, int reserved);
    // Playback settings; before start. The values are kept for the log; this runtime decodes H.264 in
    // software and has no audio output, so none of them changes anything.
    int setPlayParams(const char *name, int p1, int p2, int p3, int p4, int p5, int p6, int p7, int p8,
        int p9, int p10, int p11, int p12);
    // Kind of business, told to the gateway at login; before start.
    int setBusinessType(int type);

    // The table that setVideoLevel(index) and automatic control choose from: 1 to 16 rows, copied.
    int setVideoLevels(VideoLevel *levels, int count);
    // 0 = automatic, otherwise a row of the table.
    int setVideoLevel(int index);
    // Exactly this level. Bit rate in kbit/s, `reserved` and `quality`: 0.
    int setVideoLevel(
        int codec, int reserved, int width, int height, int quality, int bitRate, int frameRate);
    // The level in effect, but with the width and height of the device's screen in portrait: the space of
    // sendTouchEvent's coordinates. Before the first login nothing is written and -1 is returned.
    int getVideoLevelResult(VideoLevel *level);

    int screenCast(int mode) override;
    void stop() override;

    // Every finger on the screen in pixels of the size that getVideoLevelResult last returned, `count` points
    // (0 to 10; more is out of range); a single (-1, -1) or no point = none. `action`: 0 down, 1 up, 2 move.
    // Moves that wait while the connection is slow are merged; downs and ups are not.
    int sendTouchEvent(int action, int count, int *xs, int *ys, float *pressures);
    // `action`: 1 down, 2 up, 3 click; `key`: what Keyboard::getKeyCode returns or a Linux input key code;
    // 0 only tells the device that the user is there.
    int sendKeyEvent(int action, int key);
    // Types text: zero-terminated UTF-8, read to its terminator. `length` is the caller's count of UTF-16
    // units with the terminator; it is at least 1 and is not otherwise used, since for non-ASCII text it is
    // less than the bytes there are. At most 1 MiB; longer text is out of range.
    int sendInputString(const char *text, int length);
    // One camera picture as a JPEG of `size` bytes, at most 4 MiB. Newest wins while the connection is slow.
    int sendPicture(const char *data, int size);
    // Microphone data of `size` bytes, at most 1 MiB. Dropped while the connection is slow.
    int sendAudio(int format, const char *data, int size);

    void attachSink(std::shared_ptr<swplay::VideoSink> sink) override;
    int start() override;

private:
    struct Impl;
    std::shared_ptr<Impl> m_impl;
};
