#pragma once

#include <QJsonObject>
#include <QPoint>
#include <QRect>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

class QImage;
class QPainter;

namespace orvane::cloud {

using TimePoint = std::chrono::steady_clock::time_point;

// One finger on the screen as an app sees it.
struct Pointer
{
    int id = 0; // the same from down to up
    QPoint position; // content coordinates, pixels
    float pressure = 1; // above 0, at most 1
    TimePoint time;
};

// A key that was pressed.
struct KeyPress
{
    int code = 0; // linux/input-event-codes.h
    bool shift = false;
    bool control = false;
};

// What an app may know about the device that it runs on.
struct SystemState
{
    QString deviceName;
    QString padCode;
    QString version; // of the device's software
    QSize portraitScreen; // pixels
    int rotation = 0; // quarter turns, 0 to 3
    int volume = 0; // 0 to loudest
    int loudest = 0;
};

// A full-screen app of a virtual device. It draws the whole screen; status and navigation bar are drawn over
// it and take the touches there. Used by the device's thread only, owned by Shell.
class App
{
public:
    // What an app may ask for.
    struct Host
    {
        std::function<void(const QRect &)> invalidate; // content coordinates
        std::function<void(const QString &)> copyText; // to the user's clipboard
        std::function<SystemState()> system;
        std::function<void(int rotation)> turnScreen; // calls resize() before it returns
        std::function<void(int direction)> stepVolume; // 1 or -1; calls systemChanged()
    };

    explicit App(Host host);
    App(const App &) = delete;
    App &operator=(const App &) = delete;
    virtual ~App();

    // The screen's size; before anything else and whenever the screen is turned. Everything is drawn anew
    // after it.
    void resize(QSize screen);

    virtual void draw(QPainter &painter, const QRect &clip) = 0;
    // Whether status and navigation bar need light signs.
    virtual bool isDark() const { return false; }
    // Members of the app's state for the admin API.
    virtual void describe(QJsonObject &state) const = 0;

    virtual void touchDown(const Pointer &pointer);
    virtual void touchMove(const Pointer &pointer);
    virtual void touchUp(const Pointer &pointer);
    // The finger no longer belongs to the app, as when the screen turns: nothing it pressed is triggered.
    virtual void touchCancel(int id);
    virtual void keyPressed(const KeyPress &key);
    // Printable text, with '\n', '\t', '\b' (Backspace) and 0x7f (Delete); no other control characters.
    virtual void textTyped(const QString &text);
    // What system() says is different now; only while the app is in front.
    virtual void systemChanged();

    // Whether the app moves by itself from the moment it comes to the front.
    virtual bool isAnimated() const { return false; }
    // Comes to the front, or leaves it. Only the app in front is ticked; an animated one gets resume as soon
    // as the time is known.
    virtual void resume(TimePoint now);
    virtual void pause();
    virtual std::optional<TimePoint> nextTick() const { return std::nullopt; }
    virtual void tick(TimePoint now);

    // How many pictures a second an app that plays a film shows of it, 1 to 25.
    virtual void setFilmRate(int picturesPerSecond);

    // The size in pixels in which the app wants the camera's pictures; none = it does not want the camera.
    // Looked at while the app is in front.
    virtual std::optional<QSize> wantedCamera() const { return std::nullopt; }
    // A picture of the camera, which the app wants: scaled to fit the screen, and its size as it came.
    virtual void cameraPicture(const QImage &picture, QSize nativeSize);

protected:
    // Called by resize.
    virtual void layout() { }
    QSize screen() const { return m_screen; }
    // Part of the screen between status and navigation bar.
    QRect body() const;
    void invalidate(const QRect &rect) { m_host.invalidate(rect); }
    void invalidateAll() { m_host.invalidate(QRect({}, m_screen)); }
    void copyText(const QString &text) { m_host.copyText(text); }
    SystemState system() const { return m_host.system(); }
    void turnScreen(int rotation) { m_host.turnScreen(rotation); }
    void stepVolume(int direction) { m_host.stepVolume(direction); }

private:
    const Host m_host;
    QSize m_screen;
};

} // namespace orvane::cloud
