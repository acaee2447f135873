// How long a person waits: from the start of the client's process to its main window with the page loaded,
// from the page's navigation to its first painted content, from the opening of a device window to its first
// picture, and from the end of its stand-by to the next one.

#include "Client.h"
#include "DeviceSession.h"
#include "Report.h"
#include "Waiting.h"

#include "device/SingleController.h"
#include "device/StandbyTimer.h"
#include "stream/FrameBufferLock.h"
#include "stream/VideoView.h"
#include "swplay/SWRuntime.h"
#include "web/OvMainWindow.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"

#include <QApplication>
#include <QDateTime>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimerEvent>
#include <QWebEnginePage>

#include <cstdio>
#include <vector>

namespace {

constexpr int starts = 5;
constexpr int openings = 20;
constexpr int resumptions = 20;
constexpr int stillMs = 200; // longer than any picture of the moving screen takes
constexpr int pageLoads = 11; // the first is not counted: it fills the engine's caches

// The page's first call of the bridge stands in the log with its time.
double windowLoadedMs(const QString &apiBaseUrl)
{
    e2e::Client client(QCoreApplication::applicationDirPath() + QStringLiteral("/orvane"));
    client.setApiBaseUrl(apiBaseUrl);
    const QDateTime begin = QDateTime::currentDateTime();
    client.start();
    static const QRegularExpression firstCall(
        QStringLiteral("^(\\S+ \\S+) \\[DEBUG\\]: \\w+ called, params"), QRegularExpression::MultilineOption);
    QRegularExpressionMatch match;
    e2e::waitUntil(
        QStringLiteral("the page calls the client"),
        [&] {
            match = firstCall.match(client.log());
            return match.hasMatch();
        },
        60000);
    return static_cast<double>(
        begin.msecsTo(QDateTime::fromString(match.captured(1), QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"))));
}

// The page as the client loads it: its script has run and its first content is painted.
double pageInteractiveMs(OvWebContainer &container)
{
    QSignalSpy loaded(container.webView(), &QWebEngineView::loadFinished);
    container.load(OvMainWindow::frontEndUrl());
    double painted = 0;
    e2e::waitUntil(QStringLiteral("the page is painted"), [&] {
        if (loaded.isEmpty())
            return false;
        container.webView()->page()->runJavaScript(
            QStringLiteral(
                "(performance.getEntriesByName('first-contentful-paint')[0] || {}).startTime || 0"),
            [&painted](const QVariant &value) { painted = value.toDouble(); });
        return painted > 0;
    });
    return painted;
}

// Sees the end of every paintEvent of the view that drew a picture.
double firstPictureMs(const QString &serviceId)
{
    QElapsedTimer timer;
    timer.start();
    SingleController window(serviceId, QStringLiteral("bench"));
    auto *view = window.findChild<VideoView *>();
    window.show();
    window.applyDevice();
    QEventLoop loop;
    while (view->lockFrameBuffer() == nullptr) {
        loop.processEvents(QEventLoop::WaitForMoreEvents);
        if (timer.elapsed() > 10000)
            throw e2e::StepFailed(QStringLiteral("no picture in the device window"));
    }
    view->unlockFrameBuffer();
    view->repaint();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// Changes with the picture: a sum over some of its pixels. 0 while there is none.
quint64 fingerprint(VideoView &view)
{
    const FrameBufferLock frame(view);
    const QImage image = frame.image();
    quint64 sum = 0;
    for (int y = 0; y < image.height(); y += 16) {
        for (int x = 0; x < image.width(); x += 16)
            sum = sum * 31 + image.pixel(x, y);
    }
    return sum;
}

// The device's screen moves all the time; the count to stand-by is over at once.
std::vector<double> resumeMs(bench::DeviceSession &session)
{
    session.openApp(QStringLiteral("Video"));
    SingleController window(session.serviceId(), QStringLiteral("bench"));
    auto *view = window.findChild<VideoView *>();
    window.show();
    window.applyDevice();
    e2e::waitUntil(QStringLiteral("the first picture"), [view] { return fingerprint(*view) != 0; });

    std::vector<double> times;
    for (int i = 0; i < resumptions; ++i) {
        QTimerEvent over(window.findChild<StandbyTimer *>()->timerId());
        QCoreApplication::sendEvent(window.findChild<StandbyTimer *>(), &over);
        quint64 last = 0;
        e2e::waitUntil(QStringLiteral("the picture stands still"), [&] {
            const quint64 before = std::exchange(last, fingerprint(*view));
            QTest::qWait(stillMs);
            return last == before && fingerprint(*view) == last;
        });

        QElapsedTimer timer;
        timer.start();
        window.onResumeBtnClicked();
        QEventLoop loop;
        while (fingerprint(*view) == last) {
            loop.processEvents(QEventLoop::WaitForMoreEvents);
            if (timer.elapsed() > 10000)
                throw e2e::StepFailed(QStringLiteral("no picture after stand-by"));
        }
        view->repaint();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return times;
}

int run()
{
    bench::DeviceSession session;
    std::vector<double> loaded;
    for (int i = 0; i < starts; ++i)
        loaded.push_back(windowLoadedMs(session.service().apiBaseUrl()));

    std::vector<double> pages;
    {
        QWidget window;
        OvWebContainer container(&window);
        window.resize(320, 508);
        container.resize(window.size());
        window.show();
        for (int i = 0; i < pageLoads; ++i) {
            const double painted = pageInteractiveMs(container);
            if (i > 0)
                pages.push_back(painted);
        }
    }

    SWRuntime::getInstance()->init(0, "");
    std::vector<double> pictures;
    for (int i = 0; i < openings; ++i)
        pictures.push_back(firstPictureMs(session.serviceId()));
    const std::vector<double> resumed = resumeMs(session);
    SWRuntime::getInstance()->deinit();

    const bool written = bench::writeReport(bench::outputFile(),
        {{QStringLiteral("window_loaded_ms"), bench::percentile(loaded, 0.5)},
            {QStringLiteral("window_loaded_max_ms"), bench::percentile(loaded, 1)},
            {QStringLiteral("page_interactive_ms"), bench::percentile(pages, 0.5)},
            {QStringLiteral("page_interactive_max_ms"), bench::percentile(pages, 1)},
            {QStringLiteral("first_picture_ms"), bench::percentile(pictures, 0.5)},
            {QStringLiteral("first_picture_max_ms"), bench::percentile(pictures, 1)},
            {QStringLiteral("resume_ms"), bench::percentile(resumed, 0.5)},
            {QStringLiteral("resume_max_ms"), bench::percentile(resumed, 1)},
            {QStringLiteral("starts"), starts}, {QStringLiteral("openings"), openings},
            {QStringLiteral("resumptions"), resumptions}});
    return written ? 0 : 1;
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
