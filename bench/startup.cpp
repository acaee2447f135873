// How long a person waits: from the start of the client's process to its main window with the page loaded,
// from the page's navigation to its first painted content, and from the opening of a device window to its
// first picture.

#include "Client.h"
#include "DeviceSession.h"
#include "Report.h"
#include "Waiting.h"

#include "device/SingleController.h"
#include "stream/VideoView.h"
#include "swplay/SWRuntime.h"
#include "web/OvMainWindow.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"

#include <QApplication>
#include <QDateTime>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QWebEnginePage>

#include <cstdio>
#include <vector>

namespace {

constexpr int starts = 5;
constexpr int openings = 20;
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
    SWRuntime::getInstance()->deinit();

    const bool written = bench::writeReport(bench::outputFile(),
        {{QStringLiteral("window_loaded_ms"), bench::percentile(loaded, 0.5)},
            {QStringLiteral("window_loaded_max_ms"), bench::percentile(loaded, 1)},
            {QStringLiteral("page_interactive_ms"), bench::percentile(pages, 0.5)},
            {QStringLiteral("page_interactive_max_ms"), bench::percentile(pages, 1)},
            {QStringLiteral("first_picture_ms"), bench::percentile(pictures, 0.5)},
            {QStringLiteral("first_picture_max_ms"), bench::percentile(pictures, 1)},
            {QStringLiteral("starts"), starts}, {QStringLiteral("openings"), openings}});
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
