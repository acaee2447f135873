#pragma once

#include "device/AppCatalog.h"
#include "device/BootScreen.h"
#include "device/FingerTracker.h"
#include "device/Launcher.h"
#include "device/NavigationBar.h"
#include "device/RecentApps.h"
#include "device/Surface.h"
#include "device/VolumePanel.h"

#include <QDateTime>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace orvane::cloud {

// What runs on a device's screen: the app in front, the bars around it and what lies over it. Leads touches
// and keys to whoever they are for and draws everything. Thread-compatible, owned by the device.
class Shell
{
public:
    struct Setup
    {
        QString deviceName;
        int batteryPercent = 100; // shown in the status bar
        std::function<QDateTime()> wallClock;
        std::function<void(const QString &)> copyText;
        QString padCode;
        std::function<int()> rotation; // quarter turns, 0 to 3
        std::function<void(int)> turnScreen; // to so many quarter turns; calls resized()
    };

    // `surface` must outlive the shell.
    Shell(Surface &surface, Setup setup);

    // Carries out what is due. Before every input, too, so that input finds the present state.
    void advance(TimePoint now);
    std::optional<TimePoint> nextTick() const;

    // `position` of the event in content coordinates.
    void touch(const FingerEvent &event, TimePoint now);
    void cancelTouch(int id);
    // No app has fingers any more; those that are still on the screen are ignored until they leave it.
    void cancelTouches();
    void keyPressed(const KeyPress &key);
    // Text as App::textTyped takes it.
    void textTyped(const QString &text);

    // The size in which the app that is seen wants the camera's pictures; none = nobody wants the camera.
    std::optional<QSize> wantedCamera() const;
    // For the app that wants the camera; dropped when there is none.
    void cameraPicture(const QImage &picture, QSize nativeSize);

    // The surface has turned.
    void resized();
    void reboot(TimePoint now);
    bool isBooting() const { return m_boot.isActive(); }
    // Home or an installed app. False while starting.
    bool open(AppKind kind);
    // Pictures a second of an app that plays a film, 1 to 25.
    void setFilmRate(int picturesPerSecond);
    QJsonObject describe() const;

    void draw(QPainter &painter, const QRect &clip);

private:
    enum class Target {
        Nothing,
        FrontApp,
        Navigation,
        Recents,
    };

    App &front();
    const App &front() const;
    App *find(AppKind kind);
    App::Host hostFor(AppKind kind);
    SystemState systemState() const;
    void stepVolume(int direction);
    Target targetOf(const Pointer &pointer);
    void touchUp(Target target, const Pointer &pointer);
    void bringToFront(AppKind kind);
    void leaveFront();
    void goBack();
    void toggleRecents();
    void showRecents();
    void hideRecents();
    void choose(RecentApps::Choice choice);
    void closeAll();
    bool systemKey(int code);
    void readClock(TimePoint now);
    QRect statusBarArea() const;
    QImage pictureOf(App &app, QSize size) const;

    Surface &m_surface;
    const Setup m_setup;
    Launcher m_launcher;
    std::map<AppKind, std::unique_ptr<App>> m_apps; // open, without Home
    std::vector<AppKind> m_order; // of m_apps, last used first
    AppKind m_front = AppKind::Home;
    bool m_resumePending = false; // the front app does not know yet that it is in front
    int m_filmRate = 25; // pictures a second
    NavigationBar m_navigation;
    VolumePanel m_volume;
    RecentApps m_recents;
    BootScreen m_boot;
    std::map<int, Target> m_targets; // by finger
    QDateTime m_wallTime;
    std::optional<TimePoint> m_clockRead;
    TimePoint m_now; // of the last advance()
};

} // namespace orvane::cloud
