#include "device/Shell.h"

#include "device/StatusBar.h"
#include "device/Theme.h"

#include <QPainter>

#include <linux/input-event-codes.h>

#include <algorithm>

namespace orvane::cloud {

namespace {

constexpr std::chrono::seconds ClockInterval{1}; // how often input or ticks look at the wall clock
const QString TimeFormat = QStringLiteral("HH:mm");

} // namespace

Shell::Shell(Surface &surface, Setup setup)
    : m_surface(surface)
    , m_setup(std::move(setup))
    , m_launcher(hostFor(AppKind::Home), m_setup.deviceName, [this](AppKind kind) { bringToFront(kind); })
    , m_wallTime(m_setup.wallClock())
{
    m_launcher.resize(m_surface.contentSize());
    m_launcher.setTime(m_wallTime);
    m_navigation.resize(m_surface.contentSize());
}

// --- Apps ---

App::Host Shell::hostFor(AppKind kind)
{
    App::Host host;
    host.invalidate = [this, kind](const QRect &rect) {
        if (kind == m_front && !m_recents.isShown() && !m_boot.isActive()) {
            m_surface.invalidate(rect);
        }
    };
    host.copyText = [this](const QString &text) { m_setup.copyText(text); };
    host.system = [this] { return systemState(); };
    host.turnScreen = [this](int rotation) { m_setup.turnScreen(rotation); };
    host.stepVolume = [this](int direction) { stepVolume(direction); };
    return host;
}

SystemState Shell::systemState() const
{
    SystemState state;
    state.deviceName = m_setup.deviceName;
    state.padCode = m_setup.padCode;
    state.version = QStringLiteral(ORVANE_VERSION);
    state.portraitScreen = m_surface.portraitSize();
    state.rotation = m_setup.rotation();
    state.volume = m_volume.level();
    state.loudest = VolumePanel::MaxLevel;
    return state;
}

void Shell::stepVolume(int direction)
{
    m_volume.step(direction, m_now);
    m_surface.invalidate(m_volume.area(m_surface.contentSize()));
    if (!m_recents.isShown()) {
        front().systemChanged();
    }
}

App *Shell::find(AppKind kind)
{
    if (kind == AppKind::Home) {
        return &m_launcher;
    }
    const auto app = m_apps.find(kind);
    return app == m_apps.end() ? nullptr : app->second.get();
}

App &Shell::front()
{
    const auto app = m_apps.find(m_front);
    return app == m_apps.end() ? m_launcher : *app->second;
}

const App &Shell::front() const
{
    const auto app = m_apps.find(m_front);
    return app == m_apps.end() ? static_cast<const App &>(m_launcher) : *app->second;
}

bool Shell::open(AppKind kind)
{
    if (m_boot.isActive()) {
        return false;
    }
    bringToFront(kind);
    return true;
}

void Shell::bringToFront(AppKind kind)
{
    if (kind == m_front && !m_recents.isShown()) {
        return;
    }
    cancelTouches();
    leaveFront();
    m_recents.hide();
    if (!find(kind)) {
        std::unique_ptr<App> app = makeApp(kind, hostFor(kind));
        app->resize(m_surface.contentSize());
        app->setFilmRate(m_filmRate);
        m_apps.emplace(kind, std::move(app));
    }
    m_front = kind;
    if (kind != AppKind::Home) {
        m_order.erase(std::remove(m_order.begin(), m_order.end(), kind), m_order.end());
        m_order.insert(m_order.begin(), kind);
    }
    m_resumePending = true;
    m_surface.invalidateAll();
}

void Shell::setFilmRate(int picturesPerSecond)
{
    m_filmRate = picturesPerSecond;
    for (const auto &[kind, app] : m_apps) {
        app->setFilmRate(picturesPerSecond);
    }
}

void Shell::leaveFront()
{
    front().pause();
    m_resumePending = false;
}

void Shell::closeAll()
{
    m_front = AppKind::Home;
    m_apps.clear();
    m_order.clear();
}

QJsonObject Shell::describe() const
{
    QJsonObject state;
    if (m_boot.isActive()) {
        state.insert(QStringLiteral("app"), QStringLiteral("Starting"));
        return state;
    }
    state.insert(QStringLiteral("app"), m_recents.isShown() ? QStringLiteral("Recents") : appName(m_front));
    state.insert(QStringLiteral("volume"), m_volume.level());
    if (!m_recents.isShown()) {
        front().describe(state);
    }
    return state;
}

// --- Time ---

void Shell::advance(TimePoint now)
{
    m_now = now;
    if (m_boot.isActive()) {
        if (m_boot.tick(now)) {
            m_surface.invalidate(m_boot.animatedArea(m_surface.contentSize()));
        }
        if (m_boot.isActive()) {
            return;
        }
        m_surface.invalidateAll(); // the launcher
    }
    if (m_resumePending && !m_recents.isShown()) {
        m_resumePending = false;
        front().resume(now);
    }
    if (m_volume.isVisible() && *m_volume.hideAt() <= now) {
        m_volume.hide();
        m_surface.invalidate(m_volume.area(m_surface.contentSize()));
    }
    if (!m_recents.isShown()) {
        front().tick(now);
    }
    readClock(now);
}

std::optional<TimePoint> Shell::nextTick() const
{
    if (m_boot.isActive()) {
        return m_boot.nextTick();
    }
    std::optional<TimePoint> next = m_volume.hideAt();
    if (m_recents.isShown()) {
        return next;
    }
    if (m_resumePending && front().isAnimated()) {
        return TimePoint();
    }
    const auto app = front().nextTick();
    return app && (!next || *app < *next) ? app : next;
}

void Shell::readClock(TimePoint now)
{
    if (m_clockRead && now - *m_clockRead < ClockInterval) {
        return;
    }
    m_clockRead = now;
    const QDateTime time = m_setup.wallClock();
    if (time.toString(TimeFormat) != m_wallTime.toString(TimeFormat) || time.date() != m_wallTime.date()) {
        m_wallTime = time;
        m_launcher.setTime(time);
        m_surface.invalidate(statusBarArea());
    }
}

// --- Touches ---

Shell::Target Shell::targetOf(const Pointer &pointer)
{
    if (m_boot.isActive()) {
        return Target::Nothing;
    }
    if (m_navigation.area().contains(pointer.position)) {
        return m_navigation.touchDown(pointer.id, pointer.position) ? Target::Navigation : Target::Nothing;
    }
    return m_recents.isShown() ? Target::Recents : Target::FrontApp;
}

void Shell::touch(const FingerEvent &event, TimePoint now)
{
    const Pointer pointer{event.id, event.position, event.pressure, now};
    if (event.phase == FingerEvent::Phase::Down) {
        const Target target = m_targets[event.id] = targetOf(pointer);
        if (target == Target::FrontApp) {
            front().touchDown(pointer);
        } else if (target == Target::Recents) {
            m_recents.touchDown(pointer);
            m_surface.invalidateAll();
        } else if (target == Target::Navigation) {
            m_surface.invalidate(m_navigation.area());
        }
        return;
    }
    const auto found = m_targets.find(event.id);
    if (found == m_targets.end()) {
        return; // came down before a restart
    }
    const Target target = found->second;
    if (event.phase == FingerEvent::Phase::Up) {
        m_targets.erase(found);
        touchUp(target, pointer);
    } else if (target == Target::FrontApp) {
        front().touchMove(pointer);
    }
}

void Shell::touchUp(Target target, const Pointer &pointer)
{
    switch (target) {
    case Target::FrontApp:
        front().touchUp(pointer);
        break;
    case Target::Recents:
        m_surface.invalidateAll();
        choose(m_recents.touchUp(pointer));
        break;
    case Target::Navigation:
        m_surface.invalidate(m_navigation.area());
        if (const auto button = m_navigation.touchUp(pointer.position)) {
            switch (*button) {
            case NavigationBar::Button::Back:
                goBack();
                break;
            case NavigationBar::Button::Home:
                bringToFront(AppKind::Home);
                break;
            case NavigationBar::Button::Recents:
                toggleRecents();
                break;
            }
        }
        break;
    case Target::Nothing:
        break;
    }
}

void Shell::cancelTouch(int id)
{
    const auto found = m_targets.find(id);
    if (found == m_targets.end()) {
        return;
    }
    const Target target = found->second;
    m_targets.erase(found);
    if (target == Target::FrontApp) {
        front().touchCancel(id);
    } else if (target == Target::Recents) {
        m_recents.touchCancel(id);
        m_surface.invalidateAll();
    } else if (target == Target::Navigation) {
        m_navigation.touchCancel();
        m_surface.invalidate(m_navigation.area());
    }
}

void Shell::cancelTouches()
{
    while (!m_targets.empty()) {
        cancelTouch(m_targets.begin()->first);
    }
}

// --- Keys and text ---

bool Shell::systemKey(int code)
{
    switch (code) {
    case KEY_HOMEPAGE:
        bringToFront(AppKind::Home);
        return true;
    case KEY_BACK:
        goBack();
        return true;
    case KEY_MENU:
        toggleRecents();
        return true;
    case KEY_VOLUMEUP:
    case KEY_VOLUMEDOWN:
        stepVolume(code == KEY_VOLUMEUP ? 1 : -1);
        return true;
    default:
        return false;
    }
}

void Shell::keyPressed(const KeyPress &key)
{
    if (m_boot.isActive() || systemKey(key.code) || m_recents.isShown()) {
        return;
    }
    front().keyPressed(key);
}

void Shell::textTyped(const QString &text)
{
    if (!m_boot.isActive() && !m_recents.isShown()) {
        front().textTyped(text);
    }
}

std::optional<QSize> Shell::wantedCamera() const
{
    return m_boot.isActive() || m_recents.isShown() ? std::nullopt : front().wantedCamera();
}

void Shell::cameraPicture(const QImage &picture, QSize nativeSize)
{
    if (wantedCamera()) {
        front().cameraPicture(picture, nativeSize);
    }
}

void Shell::goBack()
{
    if (m_recents.isShown()) {
        hideRecents();
    } else {
        bringToFront(AppKind::Home);
    }
}

// --- Recent apps ---

void Shell::toggleRecents()
{
    if (m_recents.isShown()) {
        hideRecents();
    } else {
        showRecents();
    }
}

void Shell::showRecents()
{
    cancelTouches();
    leaveFront();
    m_recents.show(m_order, m_surface.contentSize());
    m_surface.invalidateAll();
}

void Shell::hideRecents()
{
    cancelTouches();
    m_recents.hide();
    m_resumePending = true;
    m_surface.invalidateAll();
}

void Shell::choose(RecentApps::Choice choice)
{
    switch (choice) {
    case RecentApps::Choice::Open:
        bringToFront(m_recents.chosen());
        break;
    case RecentApps::Choice::CloseAll:
        closeAll();
        hideRecents();
        break;
    case RecentApps::Choice::Close:
        hideRecents();
        break;
    case RecentApps::Choice::Nothing:
        break;
    }
}

QImage Shell::pictureOf(App &app, QSize size) const
{
    const QSize screen = m_surface.contentSize();
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(static_cast<qreal>(size.width()) / screen.width(),
        static_cast<qreal>(size.height()) / screen.height());
    app.draw(painter, QRect({}, screen));
    return picture;
}

// --- Screen ---

void Shell::resized()
{
    cancelTouches();
    const QSize screen = m_surface.contentSize();
    m_launcher.resize(screen);
    for (const auto &[kind, app] : m_apps) {
        app->resize(screen);
    }
    m_navigation.resize(screen);
    if (m_recents.isShown()) {
        showRecents(); // with pictures in the new shape
    }
    m_surface.invalidateAll();
}

void Shell::reboot(TimePoint now)
{
    cancelTouches();
    leaveFront();
    m_recents.hide();
    m_volume.hide();
    closeAll();
    m_boot.start(now);
    m_surface.invalidateAll();
}

QRect Shell::statusBarArea() const
{
    return {0, 0, m_surface.contentSize().width(), theme::StatusBarHeight};
}

void Shell::draw(QPainter &painter, const QRect &clip)
{
    const QSize screen = m_surface.contentSize();
    if (m_boot.isActive()) {
        m_boot.draw(painter, screen, clip);
        return;
    }
    painter.save();
    if (m_recents.isShown()) {
        m_recents.draw(
            painter, screen, clip, [this](AppKind kind, QSize size) { return pictureOf(*find(kind), size); });
    } else {
        front().draw(painter, clip);
    }
    painter.restore();
    const bool dark = m_recents.isShown() || front().isDark();
    const QColor signs = dark ? QColor(theme::Paper) : QColor(theme::Ink);
    if (clip.intersects(statusBarArea())) {
        drawStatusBar(painter, screen, m_wallTime.toString(TimeFormat), m_setup.batteryPercent, signs);
    }
    if (clip.intersects(m_navigation.area())) {
        m_navigation.draw(painter, signs);
    }
    if (m_volume.isVisible() && clip.intersects(m_volume.area(screen))) {
        m_volume.draw(painter, screen);
    }
}

} // namespace orvane::cloud
