// From a mouse press on the device window's view to the end of the paintEvent that draws what the press
// changed on the device: the Latency app flips the whole screen. Through the real gateway on loopback.

#include "DeviceSession.h"
#include "Floor.h"
#include "Report.h"
#include "Waiting.h"

#include "stream/FrameBufferLock.h"
#include "stream/StreamController.h"
#include "stream/VideoView.h"
#include "swplay/SWRuntime.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QTimer>

#include <cstdio>
#include <optional>

namespace {

constexpr int presses = 320;
constexpr int shortestPauseMs = 90;
constexpr int longestPauseMs = 350;
constexpr int pressTimeoutMs = 2000;
constexpr int clearDifference = 60; // of 255: more than coding noise, less than the flip

// The device window's view, with the moment at which a changed picture has been drawn.
class MeasuredView : public VideoView
{
public:
    // Waits for a picture whose middle differs from the one that is shown now.
    void expectFlip()
    {
        m_before = middle();
        m_paintedNs.reset();
        m_clock.start();
    }
    // Runs the event loop as the client does until the expected picture is drawn, and returns how long that
    // took. None after the time limit.
    std::optional<qint64> waitForFlip()
    {
        QTimer limit;
        limit.setSingleShot(true);
        limit.start(pressTimeoutMs);
        QEventLoop loop;
        while (!m_paintedNs && limit.isActive())
            loop.processEvents(QEventLoop::WaitForMoreEvents);
        return m_paintedNs;
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        // Read first: what is drawn next is this picture or a newer one.
        const bool flipped = m_clock.isValid() && differs(middle(), m_before);
        VideoView::paintEvent(event);
        if (flipped && !m_paintedNs)
            m_paintedNs = m_clock.nsecsElapsed();
    }

private:
    QRgb middle()
    {
        const FrameBufferLock frame(*this);
        const QImage image = frame.image();
        return image.isNull() ? 0 : image.pixel(image.width() / 2, image.height() / 2);
    }
    static bool differs(QRgb a, QRgb b)
    {
        return qAbs(qRed(a) - qRed(b)) > clearDifference || qAbs(qGreen(a) - qGreen(b)) > clearDifference
            || qAbs(qBlue(a) - qBlue(b)) > clearDifference;
    }

    QRgb m_before = 0;
    QElapsedTimer m_clock;
    std::optional<qint64> m_paintedNs;
};

void sendMouse(QWidget *view, QEvent::Type type)
{
    const QPointF centre = view->rect().center();
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(
        type, centre, view->mapToGlobal(centre.toPoint()), Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(view, &event);
}

std::vector<double> measure(MeasuredView *view)
{
    std::vector<double> milliseconds;
    QRandomGenerator random(20261121);
    for (int i = 0; i < presses; ++i) {
        QTest::qWait(random.bounded(shortestPauseMs, longestPauseMs));
        view->expectFlip();
        sendMouse(view, QEvent::MouseButtonPress);
        const std::optional<qint64> paintedNs = view->waitForFlip();
        if (!paintedNs)
            throw e2e::StepFailed(QStringLiteral("press %1 is not drawn").arg(i));
        milliseconds.push_back(static_cast<double>(*paintedNs) / 1e6);
        sendMouse(view, QEvent::MouseButtonRelease);
    }
    return milliseconds;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    try {
        bench::DeviceSession session;
        session.openApp(QStringLiteral("Latency"));
        SWRuntime::getInstance()->init(0, "");

        auto controller = std::make_shared<StreamController>();
        MeasuredView view;
        view.resize(bench::viewSize);
        view.setStreamController(controller);
        QObject::connect(&view, &VideoView::touchEvent, controller.get(), &StreamController::onTouchEvent);
        view.show();
        controller->setVideoView(&view);
        controller->startStream(session.streamingData(), stream::Full);
        e2e::waitUntil(QStringLiteral("the first picture"), [&] { return !view.picture().isNull(); });

        const std::vector<double> values = measure(&view);
        controller->stopStream();
        const double floor = bench::floorMs();
        const double median = bench::percentile(values, 0.5);
        const bool written = bench::writeReport(bench::outputFile(),
            {{QStringLiteral("median_ms"), median},
                {QStringLiteral("p95_ms"), bench::percentile(values, 0.95)},
                {QStringLiteral("p99_ms"), bench::percentile(values, 0.99)},
                {QStringLiteral("floor_ms"), floor}, {QStringLiteral("median_to_floor"), median / floor},
                {QStringLiteral("presses"), presses}});
        SWRuntime::getInstance()->deinit();
        return written ? 0 : 1;
    } catch (const e2e::StepFailed &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
