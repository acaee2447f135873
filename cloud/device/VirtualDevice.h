#pragma once

#include "core/DeviceFleet.h"

#include <QDateTime>
#include <QImage>
#include <QRect>
#include <QSize>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvane::cloud {

// One finger of a touch frame.
struct TouchPoint
{
    int x = 0; // pixels of the portrait screen; (-1, -1) = no finger, other values outside go to the edge
    int y = 0;
    float pressure = 0; // 0 to 1; 0 or anything else = not known
};

// A virtual Android device: a screen that is drawn only where something changed and only when its picture is
// asked for, with multi-touch, keys, text and rotation, a launcher and a few apps.
//
// Thread-compatible: any thread may call it, but never two at once. It has no timers and no clock of its own:
// every time point comes from the caller, and the earliest one it wants to be ticked at is nextTick(). Times
// must not go backwards. Needs a QGuiApplication in the process (any platform). Owned by the caller.
//
// A session is one client. Each has its own fingers and keys, so that several may work the device at once.
class VirtualDevice
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    using WallClock = std::function<QDateTime()>;

    // `padCode`: the device's code; `name`: shown on its home screen; both UTF-8. `wallClock`: date and time
    // for the status bar and the home screen, read whenever the device is awake anyway. `screen`: its size in
    // portrait, pixels, even; apps are made for a width of 720 or more and at least 16:9.
    VirtualDevice(std::string padCode, const std::string &name,
        WallClock wallClock = &QDateTime::currentDateTime, QSize screen = {720, 1280});
    ~VirtualDevice();
    VirtualDevice(const VirtualDevice &) = delete;
    VirtualDevice &operator=(const VirtualDevice &) = delete;

    // The portrait screen: the space of touch coordinates and of frame(), whatever the rotation.
    QSize screenSize() const;
    // Quarter turns, 0 to 3; odd = landscape.
    int rotation() const;
    // Turns the screen; other values than 0 to 3 are refused with a log line. Apps lose their fingers.
    void setRotation(int rotation);

    // Every finger of the session that is on the screen (at most 10; more are ignored); none, or only points
    // (-1, -1) = no finger. `action`: 0 down, 1 up, 2 move.
    void touch(
        const std::string &sessionKey, int action, const std::vector<TouchPoint> &points, TimePoint time);
    // `action`: 1 down, 2 up, 3 click; `code`: linux/input-event-codes.h, 0 = activity without a key;
    // `shift`: the character needs Shift.
    void key(const std::string &sessionKey, int action, int code, bool shift, TimePoint time);
    // Types UTF-8 text. "\r", "\n" or "\r\n" = Enter, "\b" = Backspace, 0x7f = Delete, "\t" = tab; other
    // control characters are ignored.
    void text(const std::string &sessionKey, const std::string &utf8, TimePoint time);
    // One camera picture as a JPEG; one that is no JPEG, damaged or too large is logged and not shown.
    void picture(const std::string &sessionKey, const std::string &jpeg, TimePoint time);
    // Microphone data; `format` as on the wire.
    void audio(const std::string &sessionKey, int format, const std::string &data, TimePoint time);
    // Lifts the session's fingers and keys. An unknown session is none.
    void sessionGone(const std::string &sessionKey, TimePoint time);

    // The screen, always portrait, Format_RGB32. Landscape content is turned into it so that it is upright
    // after turning the frame by -90 degrees: of a screen 720 wide, content (x, y) is at frame (719 - y, x).
    // Draws what has changed first. The reference stays valid, the pixels change with the next call.
    const QImage &frame();
    // Gives back the memory of frame(), which a device needs from the first call of it on.
    void releaseFrame();
    // The same picture drawn anew at the size of the image (Format_RGB32), without frame(). A small image
    // costs a fraction of drawing and scaling the screen.
    void drawScaled(QImage &image);
    // Bounding rectangle, in frame coordinates, of what changed since the last call; empty = nothing. Draws.
    QRect takeDirty();
    // Counts up whenever the picture is about to change; equal values mean an equal picture. Does not draw.
    std::uint64_t pictureVersion() const;

    // When the device wants to be ticked next; none while nothing moves. Times in the past = at once.
    std::optional<TimePoint> nextTick() const;
    // Moves on whatever is due at `now`; may be late or early.
    void tick(TimePoint now);

    // Boot screen for about two seconds, then the launcher; apps are closed, fingers and keys lifted.
    void reboot(TimePoint time);
    bool isBooting() const;
    // Brings "Home" or an app to the front. False when there is no such app or the device is starting.
    bool openApp(const std::string &name);
    // How many pictures a second the Video app shows of its film, which has 25; 1 to 25, rounded to an even
    // step.
    void setFilmRate(int picturesPerSecond);
    // What the app in front shows, as a JSON object in UTF-8; docs/api.md lists the members.
    std::string appStateJson() const;
    // Asks the clients for the camera, or no longer, whatever the app in front wants.
    void requestCamera(bool on);
    // What the clients were asked for last: the size of the camera's pictures in pixels, 0 x 0 = any; none =
    // the camera is not wanted.
    std::optional<QSize> wantedCamera() const;

    // Input that was received after `sequence`, oldest first; bounded to the newest.
    std::vector<InputRecord> inputsSince(std::uint64_t sequence) const;

    // The sensor that is asked for when the camera is wanted.
    static constexpr int CameraInput = 212;

    // What the device has to tell its clients. Called from within the calls above, on their thread; must not
    // call back into the device. Any may be empty.
    std::function<void(int inputType, int state, int width, int height)>
        onSensorRequest; // `state` 0: no longer
    std::function<void(const std::string &utf8)> onClipboard; // the user copied text on the device
    std::function<void(int rotation)> onRotation; // 0 to 3, after a change

private:
    void followCamera();
    void askForCamera(std::optional<QSize> size);

    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace orvane::cloud
