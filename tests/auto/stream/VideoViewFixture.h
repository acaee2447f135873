#pragma once

#include "RecordedCalls.h"

#include "stream/StreamController.h"
#include "stream/TouchPointSource.h"
#include "stream/VideoView.h"

#include <swplay/SWDataSource.h>

#include <InputFocus.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

// The keys that are held, as the key mapping would give them.
class HeldKeys : public TouchPointSource
{
public:
    void appendTouchPoints(QVector<int> &xs, QVector<int> &ys, const QSize &remote) override
    {
        askedFor = remote;
        for (const QPoint &point : points) {
            xs.append(point.x());
            ys.append(point.y());
        }
    }

    QVector<QPoint> points;
    QSize askedFor;
};

// What the tests of the video view share: a view of 360 x 640 in portrait, half of the remote screen's 720 x
// 1280, in a window, with a session whose calls are recorded, and the events that are sent to it.
class VideoViewFixture : public QObject
{
protected:
    void setUp();
    void tearDown();
    void turn(ScreenOrientation orientation);
    void mouse(QEvent::Type type, const QPoint &position, Qt::MouseButton button, Qt::MouseButtons held);
    void press(const QPoint &position);
    void move(const QPoint &position);
    void release(const QPoint &position);
    void click(const QPoint &position);
    void wheel(const QPoint &position, const QPoint &angle, const QPoint &pixels = {});
    void waitForGesture();

    QWidget *m_window = nullptr;
    VideoView *m_view = nullptr;
    std::shared_ptr<StreamController> m_controller;
    std::chrono::milliseconds m_now{1000};
    QStringList m_sent; // touchEvent and subControlTouchEvent, in their order
};

inline void VideoViewFixture::setUp()
{
    Recorder::instance().reset();
    Recorder::instance().setRemoteSize(720, 1280);
    m_controller = std::make_shared<StreamController>();
    m_controller->setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    m_window = new QWidget;
    m_window->resize(800, 800);
    m_view = new VideoView(m_window);
    m_view->setGeometry(20, 30, 360, 640);
    m_view->setStreamController(m_controller);
    m_now = std::chrono::milliseconds(1000);
    m_view->setClock([this] { return m_now; });
    m_sent.clear();
    connect(m_view, &VideoView::touchEvent, this, [this](int action, QVector<int> &xs, QVector<int> &ys) {
        QStringList points;
        for (int i = 0; i < xs.size(); ++i)
            points.append(QStringLiteral("%1,%2").arg(xs.at(i)).arg(ys.at(i)));
        QCOMPARE(xs.size(), ys.size());
        m_sent.append(QStringLiteral("%1: %2").arg(action).arg(points.join(' ')));
    });
    connect(m_view, &VideoView::subControlTouchEvent, this, [this](int action, float x, float y) {
        m_sent.append(QStringLiteral("sub %1: %2,%3").arg(action).arg(x).arg(y));
    });
    m_window->show();
    QApplication::setActiveWindow(m_window);
    QVERIFY(waitForInputFocus(*m_window));
}

inline void VideoViewFixture::tearDown()
{
    delete m_window;
    m_controller.reset();
}

inline void VideoViewFixture::turn(ScreenOrientation orientation)
{
    if (m_view->orientation() != orientation)
        m_view->setOrientation(orientation);
}

// Straight to the view: the pointer of the display stays out of it.
inline void VideoViewFixture::mouse(
    QEvent::Type type, const QPoint &position, Qt::MouseButton button, Qt::MouseButtons held)
{
    QMouseEvent event(type, position, m_view->mapToGlobal(position), button, held, Qt::NoModifier);
    QApplication::sendEvent(m_view, &event);
}

inline void VideoViewFixture::press(const QPoint &position)
{
    mouse(QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

inline void VideoViewFixture::move(const QPoint &position)
{
    mouse(QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
}

inline void VideoViewFixture::release(const QPoint &position)
{
    mouse(QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

inline void VideoViewFixture::click(const QPoint &position)
{
    press(position);
    release(position);
}

inline void VideoViewFixture::wheel(const QPoint &position, const QPoint &angle, const QPoint &pixels)
{
    QWheelEvent event(position, m_view->mapToGlobal(position), pixels, angle, Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_view, &event);
}

inline void VideoViewFixture::waitForGesture()
{
    QTRY_VERIFY(!m_sent.isEmpty() && m_sent.last().startsWith("1:"));
}
