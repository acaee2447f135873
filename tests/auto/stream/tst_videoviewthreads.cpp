// Pictures, rotations and stream information arrive on the SDK's threads while the GUI thread paints, hides,
// resizes and destroys the view. Meant for the thread and address sanitizers; without them it still must not
// hang or lose the last picture.

#include "stream/StreamController.h"
#include "stream/VideoView.h"

#include <Recorder.h>

#include <swplay/SWDataSourceListener.h>

#include <QCoreApplication>
#include <QImage>
#include <QTest>

#include <atomic>
#include <thread>

namespace {

constexpr int FrameWidth = 720;
constexpr int FrameHeight = 1280;

// A thread of the SDK that goes on until it is destroyed.
class SdkThread
{
public:
    template <typename Step>
    explicit SdkThread(Step step)
        : m_thread([this, step] {
            for (int i = 0; !m_done; ++i) {
                step(i);
                ++m_rounds;
            }
        })
    { }
    ~SdkThread()
    {
        m_done = true;
        m_thread.join();
    }
    int rounds() const { return m_rounds; }

private:
    std::atomic<bool> m_done{false};
    std::atomic<int> m_rounds{0};
    std::thread m_thread;
};

QImage filled(Qt::GlobalColor colour)
{
    QImage image(FrameWidth, FrameHeight, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

void show(VideoDisplay &display, const QImage &image)
{
    showPicture(display, reinterpret_cast<const std::uint32_t *>(image.constBits()), FrameWidth, FrameHeight);
}

// Remembers what it painted last.
class RememberingView : public VideoView
{
public:
    QColor lastPainted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        const QImage image = picture();
        lastPainted = image.isNull() ? QColor() : image.pixelColor(4, 4);
        VideoView::paintEvent(event);
    }
};

} // namespace

class tst_VideoViewThreads : public QObject
{
    Q_OBJECT

private slots:
    void paintHideResize();
    void lastPictureIsPainted();
    void sessionsComeAndGo();
};

void tst_VideoViewThreads::paintHideResize()
{
    VideoView view;
    view.setDstFormat(-1, FrameWidth, FrameHeight, 0);
    view.resize(340, 600);
    view.show();
    const QImage red = filled(Qt::red);
    const QImage blue = filled(Qt::blue);
    const SdkThread decoder([&](int i) { show(view, i % 2 != 0 ? red : blue); });
    const SdkThread network([&](int i) {
        view.onScreenRotation(i % 4);
        std::this_thread::yield();
    });
    for (int i = 0; i < 150 || decoder.rounds() < 150 || network.rounds() < 150; ++i) {
        QCoreApplication::processEvents();
        view.repaint();
        if (i % 5 == 0)
            view.resize(300 + i % 50, 500 + i % 70);
        if (i % 7 == 0)
            view.setVisible(!view.isVisible());
        if (i % 11 == 0)
            QVERIFY(view.picture().isNull() || view.picture().width() >= FrameWidth);
    }
}

// Whatever races with the painting, the last picture of all is shown in the end.
void tst_VideoViewThreads::lastPictureIsPainted()
{
    RememberingView view;
    view.setDstFormat(-1, FrameWidth, FrameHeight, 0);
    view.resize(340, 600);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QImage red = filled(Qt::red);
    const QImage blue = filled(Qt::blue);
    for (int round = 0; round < 20; ++round) {
        std::atomic<bool> finished{false};
        std::thread decoder([&] {
            for (int i = 0; i < 20; ++i)
                show(view, red);
            show(view, blue);
            finished = true;
        });
        while (!finished)
            QCoreApplication::processEvents();
        decoder.join();
        QTRY_COMPARE(view.lastPainted, QColor(Qt::blue));
    }
}

void tst_VideoViewThreads::sessionsComeAndGo()
{
    for (int round = 0; round < 20; ++round) {
        StreamController controller;
        auto view = std::make_unique<VideoView>();
        view->resize(340, 600);
        view->show();
        int infos = 0;
        connect(&controller, &StreamController::sigPlayInfo, this, [&infos](const char *) { ++infos; });
        controller.setVideoView(view.get());
        controller.startStream({}, 1);
        const QImage red = filled(Qt::red);
        VideoDisplay &display = *Recorder::instance().display();
        SWDataSourceListener &listener = *Recorder::instance().listener();
        {
            const SdkThread decoder([&](int) { show(display, red); });
            const SdkThread network([&](int i) {
                listener.onStreamInfo("{\"delayTime\": 1}");
                listener.onSensorRequest(1, i);
                std::this_thread::yield();
            });
            QTRY_VERIFY(decoder.rounds() > 2 && infos > 2);
            QCoreApplication::processEvents();
        }
        if (round % 2 != 0)
            controller.stopStream();
        view.reset();
    }
}

QTEST_MAIN(tst_VideoViewThreads)

#include "tst_videoviewthreads.moc"
