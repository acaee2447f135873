#include "MouseLook.h"

#include "DeviceSession.h"
#include "EventLoop.h"
#include "FastMouse.h"
#include "InputCollector.h"
#include "Report.h"
#include "Waiting.h"

#include "stream/VideoView.h"

#include <QTimer>

#include <chrono>
#include <cmath>
#include <linux/input-event-codes.h>

namespace bench {

namespace {

constexpr int sliceSeconds = 10;
constexpr qint64 sliceNs = sliceSeconds * qint64{1'000'000'000};
constexpr int deviceWidth = 720; // pixels
constexpr int middle = deviceWidth / 2; // where the finger goes down
constexpr double fingerShare = 0.25; // part of the mouse's way that the finger goes at a sensitivity of 1
constexpr std::chrono::milliseconds settleTime(500); // for what may be under way
constexpr int lateLimit = 20; // such times that the mouse may need longer

enum TouchAction { Down = 0, Up = 1, Move = 2 };

// CPU time of the client at the ends of the slices, without that of the measuring threads.
class CpuSlices
{
public:
    CpuSlices(const FastMouse &mouse, const InputCollector &collector)
        : m_mouse(mouse)
        , m_collector(collector)
    {
        m_marks.push_back(clientMs());
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { m_marks.push_back(clientMs()); });
        m_timer.start(sliceSeconds * 1000);
    }
    // Milliseconds of CPU for each second of a slice.
    double perSecond(std::size_t slice) const
    {
        return slice + 1 < m_marks.size() ? (m_marks[slice + 1] - m_marks[slice]) / sliceSeconds : 0;
    }
    std::size_t count() const { return m_marks.size() - 1; }

private:
    double clientMs() const { return processCpuMs() - m_mouse.cpuMs() - m_collector.cpuMs(); }

    const FastMouse &m_mouse;
    const InputCollector &m_collector;
    std::vector<double> m_marks;
    QTimer m_timer;
};

// How far the mouse has gone, in its pixels, by the touches that it caused: the finger's way since it went
// down, and those of the fingers before it.
class MouseWay
{
public:
    explicit MouseWay(double pixelsPerMove)
        : m_pixelsPerMove(pixelsPerMove)
    { }
    // `x`: of the finger, pixels of the device; of no meaning for Up.
    std::size_t follow(int action, int x)
    {
        if (action == Up)
            m_lifted = m_way;
        else if (action == Move) // places are cut to whole pixels, moves are longer than one
            m_way = m_lifted + static_cast<std::size_t>(std::ceil(qMax(0, x - middle) / m_pixelsPerMove));
        return m_way;
    }
    // The last finger has gone so far in fact: the device does not tell places beyond its edge.
    std::size_t correct(std::size_t way) { return m_lifted = m_way = way; }

private:
    const double m_pixelsPerMove; // of the device
    std::size_t m_lifted = 0;
    std::size_t m_way = 0;
};

// What the view emits during mouse-look.
class EmittedTouches
{
public:
    EmittedTouches(VideoView &view, double pixelsPerMove)
        : m_way(pixelsPerMove)
        , m_connection(QObject::connect(&view, &VideoView::touchEvent, &view,
              [this](int action, const QVector<int> &xs, const QVector<int> &) {
                  ++m_count;
                  const std::size_t way = m_way.follow(action, xs.at(0));
                  if (action == Up)
                      m_wayAtLifts.push_back(way);
              }))
    { }
    ~EmittedTouches() { QObject::disconnect(m_connection); }
    EmittedTouches(const EmittedTouches &) = delete;
    EmittedTouches &operator=(const EmittedTouches &) = delete;

    int count() const { return m_count; }
    // How far the mouse had gone when each finger was lifted.
    const std::vector<std::size_t> &wayAtLifts() const { return m_wayAtLifts; }

private:
    MouseWay m_way;
    int m_count = 0;
    std::vector<std::size_t> m_wayAtLifts;
    QMetaObject::Connection m_connection;
};

// The delays of all moves of the mouse until the device knew them, by slices; milliseconds.
struct Delays
{
    std::vector<std::vector<double>> slices;
    std::vector<int> touches; // that arrived in each slice
    std::size_t arrived = 0; // moves
};

Delays delaysOf(const std::vector<qint64> &moves, const std::vector<ReceivedTouch> &touches,
    const EmittedTouches &emitted, double pixelsPerMove)
{
    Delays delays;
    MouseWay device(pixelsPerMove);
    std::size_t lifts = 0;
    const auto sliceOf
        = [&](qint64 time) { return static_cast<std::size_t>((time - moves.front()) / sliceNs); };
    delays.slices.resize(sliceOf(moves.back()) + 1);
    delays.touches.resize(delays.slices.size());
    for (const ReceivedTouch &touch : touches) {
        std::size_t way = device.follow(touch.action, touch.xs.empty() ? -1 : touch.xs.front());
        if (touch.action == Up && lifts < emitted.wayAtLifts().size())
            way = device.correct(emitted.wayAtLifts()[lifts++]);
        for (; delays.arrived < qMin(way, moves.size()); ++delays.arrived) {
            const qint64 moved = moves[delays.arrived];
            delays.slices[sliceOf(moved)].push_back(static_cast<double>(touch.timeNs - moved) / 1e6);
        }
        if (touch.timeNs >= moves.front() && sliceOf(touch.timeNs) < delays.touches.size())
            ++delays.touches[sliceOf(touch.timeNs)];
    }
    return delays;
}

void toggleLook(Hand &hand, VideoView &view, Qt::CursorShape expected)
{
    hand.press(KEY_Q);
    hand.release(KEY_Q);
    e2e::waitUntil(
        QStringLiteral("mouse-look is switched"), [&] { return view.cursor().shape() == expected; });
}

} // namespace

QJsonObject MouseLook::measure(DeviceSession &session, VideoView &view, double sensitivity) const
{
    const double pixelsPerMove = deviceWidth * sensitivity * fingerShare / view.width();
    Hand hand;
    toggleLook(hand, view, Qt::BlankCursor);
    runEventLoop(settleTime);

    const EmittedTouches emitted(view, pixelsPerMove);
    InputCollector collector(session.service(), session.streamingData().padCode);
    FastMouse mouse(seconds);
    const CpuSlices cpu(mouse, collector);
    const auto slices = static_cast<std::size_t>(seconds / sliceSeconds);
    runEventLoop(std::chrono::seconds(seconds));
    for (int i = 0; i < lateLimit && (!mouse.hasEnded() || cpu.count() < slices); ++i)
        runEventLoop(settleTime); // a busy machine is late
    if (!mouse.hasEnded() || cpu.count() < slices)
        throw e2e::StepFailed(QStringLiteral("the mouse did not get through its moves in time"));
    runEventLoop(settleTime);
    const std::vector<qint64> &moves = mouse.moves();
    const std::vector<ReceivedTouch> touches = collector.take();
    toggleLook(hand, view, Qt::ArrowCursor);

    const Delays delays = delaysOf(moves, touches, emitted, pixelsPerMove);
    if (delays.arrived != moves.size())
        throw e2e::StepFailed(QStringLiteral("of %1 pixels that the mouse went, %2 arrived")
                                  .arg(moves.size())
                                  .arg(delays.arrived));
    QJsonObject figures{{QStringLiteral("look_moves"), static_cast<qint64>(moves.size())},
        {QStringLiteral("look_touches_emitted"), emitted.count()},
        {QStringLiteral("look_touches_received"), static_cast<qint64>(touches.size())}};
    for (std::size_t i = 0; i < slices; ++i) {
        const QString name = QStringLiteral("look_%1s_").arg((i + 1) * sliceSeconds);
        figures.insert(name + QStringLiteral("cpu_ms_per_s"), cpu.perSecond(i));
        figures.insert(name + QStringLiteral("delay_median_ms"), percentile(delays.slices.at(i), 0.5));
        figures.insert(name + QStringLiteral("delay_p99_ms"), percentile(delays.slices.at(i), 0.99));
        figures.insert(name + QStringLiteral("touches_per_s"), delays.touches.at(i) / double{sliceSeconds});
    }
    return figures;
}

} // namespace bench
