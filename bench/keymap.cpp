// From a key of the keyboard to the touch at the device, through the display server, the client and the real
// gateway on loopback, beside a bare touch message over the same connection; and mouse-look with a mouse of a
// thousand reports a second.
//
//     bench-keymap [--output FILE] [--seconds N]     N: of mouse-look, a multiple of ten; 60

#include "DeviceSession.h"
#include "EventLoop.h"
#include "Hand.h"
#include "InputCollector.h"
#include "MouseLook.h"
#include "Report.h"
#include "Waiting.h"

#include "device/SingleController.h"
#include "keymap/KeyboardMapMgr.h"
#include "keymap/OvAuxiliaryClick.h"
#include "keymap/OvAuxiliaryCrosshair.h"
#include "stream/VideoView.h"
#include "swplay/SWRuntime.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRandomGenerator>

#include <cstdio>
#include <functional>
#include <linux/input-event-codes.h>

namespace {

constexpr int presses = 300;
constexpr int shortestPauseMs = 30;
constexpr int longestPauseMs = 90;
constexpr std::chrono::milliseconds heldTime(20);
constexpr std::chrono::seconds tapTimeLimit(10);
constexpr std::chrono::milliseconds settleTime(500); // for the last touch

// The device window with a click key on F and a crosshair on Q, both in the middle of the view.
class MappedWindow
{
public:
    explicit MappedWindow(const QString &serviceId);

    VideoView &view() { return *m_view; }
    double sensitivity() const { return m_manager->crosshairKey()->sensitivity(); }

private:
    SingleController m_window;
    VideoView *m_view; // of the window, like the next
    KeyboardMapMgr *m_manager;
};

MappedWindow::MappedWindow(const QString &serviceId)
    : m_window(serviceId, QStringLiteral("bench"))
    , m_view(m_window.findChild<VideoView *>())
    , m_manager(m_window.findChild<KeyboardMapMgr *>())
{
    m_window.show();
    m_window.applyDevice();
    e2e::waitUntil(QStringLiteral("the first picture"), [this] { return !m_view->picture().isNull(); });
    m_window.onCreateAuxiliaryClickKey();
    m_manager->lastClickKey()->setKeyText(QStringLiteral("F"));
    m_window.onCreateAuxiliaryCrosshairKey();
    m_manager->crosshairKey()->setKeyText(QStringLiteral("Q"));
    m_window.activateWindow();
    m_view->setFocus();
    e2e::waitUntil(QStringLiteral("the view has the keyboard"), [this] { return m_view->hasFocus(); });
}

// One way of putting a finger down and lifting it.
struct Finger
{
    const char *name; // for the failure's text
    std::function<qint64()> press; // returns when it began, as of Hand
    std::function<void()> release;
    VideoView *view; // that emits the touches
};

// Presses and releases once. Goes on when the view has emitted the touch, so that on a busy machine no press
// meets the one before.
qint64 tap(const Finger &finger)
{
    int emitted = 0;
    QObject counting; // for as long as the tap takes
    QObject::connect(finger.view, &VideoView::touchEvent, &counting, [&] { ++emitted; });
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(tapTimeLimit);
    const auto waitFor = [&](int count) {
        while (emitted < count && limit.isActive())
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        if (!limit.isActive())
            throw e2e::StepFailed(QStringLiteral("a key has no touch"));
    };
    const qint64 began = finger.press();
    waitFor(1);
    bench::runEventLoop(heldTime);
    finger.release();
    waitFor(2);
    return began;
}

// How long after each press the device has the touch, milliseconds.
std::vector<double> pressToTouchMs(bench::DeviceSession &session, const Finger &finger)
{
    bench::InputCollector collector(session.service(), session.streamingData().padCode);
    std::vector<qint64> began;
    QRandomGenerator random(20261121);
    for (int i = 0; i < presses; ++i) {
        bench::runEventLoop(std::chrono::milliseconds(random.bounded(shortestPauseMs, longestPauseMs)));
        began.push_back(tap(finger));
    }
    bench::runEventLoop(settleTime);

    std::vector<double> milliseconds;
    const std::vector<bench::ReceivedTouch> touches = collector.take();
    for (const bench::ReceivedTouch &touch : touches) {
        const std::size_t next = milliseconds.size();
        if (touch.action == 0 && next < began.size() && touch.timeNs >= began[next])
            milliseconds.push_back(static_cast<double>(touch.timeNs - began[next]) / 1e6);
    }
    if (milliseconds.size() != began.size())
        throw e2e::StepFailed(QStringLiteral("%1: of %2 presses the device got %3")
                                  .arg(QLatin1String(finger.name))
                                  .arg(began.size())
                                  .arg(milliseconds.size()));
    return milliseconds;
}

std::vector<double> realKeys(bench::DeviceSession &session, VideoView &view)
{
    bench::Hand hand;
    return pressToTouchMs(
        session, {"key_to_touch", [&] { return hand.press(KEY_F); }, [&] { hand.release(KEY_F); }, &view});
}

// From the toolkit's event on: without the display server.
std::vector<double> sentEvents(bench::DeviceSession &session, VideoView &view)
{
    const auto send = [&view](QEvent::Type type) {
        const qint64 time = bench::Hand::nowNs();
        QKeyEvent event(type, Qt::Key_F, Qt::NoModifier, QStringLiteral("f"));
        QCoreApplication::sendEvent(&view, &event);
        return time;
    };
    return pressToTouchMs(session,
        {"event_to_touch", [&] { return send(QEvent::KeyPress); }, [&] { send(QEvent::KeyRelease); }, &view});
}

// What the keys' touches cost at least: the same messages, given to the connection at once.
std::vector<double> bareTouches(bench::DeviceSession &session, VideoView &view)
{
    const auto send = [&view](int action, int x, int y) {
        const qint64 time = bench::Hand::nowNs();
        QVector<int> xs{x};
        QVector<int> ys{y};
        emit view.touchEvent(action, xs, ys);
        return time;
    };
    return pressToTouchMs(
        session, {"floor", [&] { return send(0, 360, 640); }, [&] { send(1, -1, -1); }, &view});
}

void addDelays(QJsonObject &figures, const QString &name, const std::vector<double> &milliseconds)
{
    figures.insert(name + QStringLiteral("_median_ms"), bench::percentile(milliseconds, 0.5));
    figures.insert(name + QStringLiteral("_p99_ms"), bench::percentile(milliseconds, 0.99));
}

int lookSeconds()
{
    const QStringList arguments = QCoreApplication::arguments();
    const int index = arguments.indexOf(QStringLiteral("--seconds"));
    const int seconds = index > 0 ? arguments.value(index + 1).toInt() : bench::MouseLook().seconds;
    return qMax(10, seconds / 10 * 10);
}

int run()
{
    bench::DeviceSession session;
    session.openApp(QStringLiteral("Arena"));
    SWRuntime::getInstance()->init(0, "");
    QJsonObject figures{{QStringLiteral("presses"), presses}};
    {
        MappedWindow mapped(session.serviceId());
        addDelays(figures, QStringLiteral("key_to_touch"), realKeys(session, mapped.view()));
        addDelays(figures, QStringLiteral("event_to_touch"), sentEvents(session, mapped.view()));
        addDelays(figures, QStringLiteral("floor"), bareTouches(session, mapped.view()));
        const QJsonObject look
            = bench::MouseLook{lookSeconds()}.measure(session, mapped.view(), mapped.sensitivity());
        for (auto it = look.begin(); it != look.end(); ++it)
            figures.insert(it.key(), it.value());
    }
    SWRuntime::getInstance()->deinit();
    return bench::writeReport(bench::outputFile(), figures) ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    try {
        return run();
    } catch (const e2e::StepFailed &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
