#include "RecordedCalls.h"

#include "stream/StreamController.h"
#include "stream/TouchPointSource.h"
#include "stream/VideoView.h"

#include <swplay/SWDataSource.h>

#include <QApplication>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <thread>

namespace {

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

} // namespace

// The view under test is 360 x 640 in portrait, half of the remote screen's 720 x 1280.
class tst_VideoView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void signalAndSlotOrder();
    void initialState();
    void clickSendsOnePointAndThenNone();
    void otherDevicesFollowWithoutASession();
    void positions_data();
    void positions();
    void coordinatesAreTruncated();
    void movesAreSpaced();
    void moveWithoutPress();
    void otherButtonsDoNothing();
    void releaseCarriesTheLastPosition();
    void doubleClickIsTwoTouches();
    void auxiliaryKeysComeFirst();
    void auxiliaryKeyActions();
    void touchPointSourceMayGo();
    void nothingIsSentWithoutSession();
    void recordingDisablesTheMouse();
    void recordingLiftsTheFinger();
    void losingFocusLiftsTheFinger();
    void hidingLiftsTheFinger();
    void wheelDrag();
    void wheelStepsEvery50Ms();
    void wheelCentreIsTheGlobalPosition();
    void wheelPinch();
    void wheelInLandscape();
    void wheelWithTouchpad();
    void wheelWhileGestureRuns();
    void wheelCarriesHeldPoints();
    void wheelIgnored_data();
    void wheelIgnored();
    void gestureEndsWithTheSession();
    void remoteRotation_data();
    void remoteRotation();
    void remoteRotationOfATile();
    void everyRemoteRotationIsTold();
    void setOrientation();
    void controlIsForgottenWithTheFocus();
    void pressGoesStraightToTheSession();

private:
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

void tst_VideoView::init()
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
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void tst_VideoView::cleanup()
{
    delete m_window;
    m_controller.reset();
}

void tst_VideoView::turn(ScreenOrientation orientation)
{
    if (m_view->orientation() != orientation)
        m_view->setOrientation(orientation);
}

// Straight to the view: the pointer of the display stays out of it.
void tst_VideoView::mouse(
    QEvent::Type type, const QPoint &position, Qt::MouseButton button, Qt::MouseButtons held)
{
    QMouseEvent event(type, position, m_view->mapToGlobal(position), button, held, Qt::NoModifier);
    QApplication::sendEvent(m_view, &event);
}

void tst_VideoView::press(const QPoint &position)
{
    mouse(QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

void tst_VideoView::move(const QPoint &position)
{
    mouse(QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
}

void tst_VideoView::release(const QPoint &position)
{
    mouse(QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

void tst_VideoView::click(const QPoint &position)
{
    press(position);
    release(position);
}

void tst_VideoView::wheel(const QPoint &position, const QPoint &angle, const QPoint &pixels)
{
    QWheelEvent event(position, m_view->mapToGlobal(position), pixels, angle, Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_view, &event);
}

void tst_VideoView::waitForGesture()
{
    QTRY_VERIFY(!m_sent.isEmpty() && m_sent.last().startsWith("1:"));
}

void tst_VideoView::signalAndSlotOrder()
{
    const QMetaObject &meta = VideoView::staticMetaObject;
    const char *const signatures[]
        = {"touchEvent(int,QVector<int>&,QVector<int>&)", "subControlTouchEvent(int,float,float)",
            "functionBtnClicked(int)", "screenRotation(ScreenOrientation)", "inputEvent(QString)"};
    int index = meta.methodOffset();
    for (const char *signature : signatures)
        QCOMPARE(meta.method(index++).methodSignature(), QByteArray(signature));
    QStringList slotSignatures;
    for (index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        if (meta.method(index).methodType() == QMetaMethod::Slot)
            slotSignatures.append(QString::fromLatin1(meta.method(index).methodSignature()));
    }
    QCOMPARE(slotSignatures,
        (QStringList{
            "onScreenCaptureBtnClicked()", "onAuxiliaryKeyAction(int)", "onRecordingStatusChanged(bool)"}));
}

void tst_VideoView::initialState()
{
    VideoView view;
    QCOMPARE(view.orientation(), ScreenOrientation::Portrait);
    QCOMPARE(view.focusPolicy(), Qt::StrongFocus);
    QVERIFY(view.testAttribute(Qt::WA_InputMethodEnabled));
    QCOMPARE(view.palette().color(QPalette::Window), QColor(Qt::white));
    QCOMPARE(static_cast<int>(ScreenOrientation::Landscape), 1);
    QCOMPARE(static_cast<int>(ScreenOrientation::Portrait), 2);
}

void tst_VideoView::clickSendsOnePointAndThenNone()
{
    click({90, 320});
    QCOMPARE(m_sent, (QStringList{"0: 180,640", "sub 0: 0.25,0.5", "1: -1,-1", "sub 1: 0.25,0.5"}));
    QVERIFY(m_view->hasFocus());
}

void tst_VideoView::otherDevicesFollowWithoutASession()
{
    m_view->setStreamController({});
    click({90, 320});
    QCOMPARE(m_sent, (QStringList{"sub 0: 0.25,0.5", "sub 1: 0.25,0.5"}));
}

void tst_VideoView::positions_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("portrait, top left")
        << ScreenOrientation::Portrait << QPoint(0, 0) << QStringList{"0: 0,0", "sub 0: 0,0"};
    QTest::newRow("portrait, right") << ScreenOrientation::Portrait << QPoint(270, 0)
                                     << QStringList{"0: 540,0", "sub 0: 0.75,0"};
    QTest::newRow("landscape, top left")
        << ScreenOrientation::Landscape << QPoint(0, 0) << QStringList{"0: 720,0", "sub 0: 1,0"};
    QTest::newRow("landscape, right")
        << ScreenOrientation::Landscape << QPoint(480, 0) << QStringList{"0: 720,960", "sub 0: 1,0.75"};
    QTest::newRow("landscape, down") << ScreenOrientation::Landscape << QPoint(0, 270)
                                     << QStringList{"0: 180,0", "sub 0: 0.25,0"};
}

void tst_VideoView::positions()
{
    QFETCH(ScreenOrientation, orientation);
    QFETCH(QPoint, position);
    turn(orientation);
    press(position);
    QTEST(m_sent, "sent");
}

void tst_VideoView::coordinatesAreTruncated()
{
    m_view->resize(700, 700);
    press({1, 1}); // 1.0286 and 1.8286
    QCOMPARE(m_sent.first(), QStringLiteral("0: 1,1"));
}

void tst_VideoView::movesAreSpaced()
{
    press({0, 0});
    m_sent.clear();
    m_now += std::chrono::milliseconds(49);
    move({90, 160});
    QCOMPARE(m_sent, QStringList());
    m_now += std::chrono::milliseconds(1); // 50 after the press
    move({180, 160});
    QCOMPARE(m_sent, (QStringList{"2: 360,320", "sub 2: 0.5,0.25"}));
    m_sent.clear();
    m_now += std::chrono::milliseconds(49);
    move({270, 160});
    QCOMPARE(m_sent, QStringList());
    m_now += std::chrono::milliseconds(1);
    move({90, 480});
    QCOMPARE(m_sent, (QStringList{"2: 180,960", "sub 2: 0.25,0.75"}));
}

void tst_VideoView::moveWithoutPress()
{
    m_now += std::chrono::hours(1);
    move({90, 160});
    QCOMPARE(m_sent, QStringList());
}

void tst_VideoView::otherButtonsDoNothing()
{
    QTest::mouseClick(m_view, Qt::RightButton, Qt::NoModifier, {90, 160});
    QTest::mouseClick(m_view, Qt::MiddleButton, Qt::NoModifier, {90, 160});
    QCOMPARE(m_sent, QStringList());
    press({0, 0});
    m_sent.clear();
    QTest::mouseClick(m_view, Qt::RightButton, Qt::NoModifier, {90, 160});
    QCOMPARE(m_sent, QStringList());
}

void tst_VideoView::releaseCarriesTheLastPosition()
{
    press({90, 160});
    m_sent.clear();
    release({300, 600});
    QCOMPARE(m_sent, (QStringList{"1: -1,-1", "sub 1: 0.25,0.25"}));
}

void tst_VideoView::doubleClickIsTwoTouches()
{
    click({90, 160});
    mouse(QEvent::MouseButtonDblClick, {90, 160}, Qt::LeftButton, Qt::LeftButton);
    release({90, 160});
    const QStringList touch = {"0: 180,320", "sub 0: 0.25,0.25", "1: -1,-1", "sub 1: 0.25,0.25"};
    QCOMPARE(m_sent, touch + touch);
}

void tst_VideoView::auxiliaryKeysComeFirst()
{
    HeldKeys keys;
    keys.points = {{11, 12}, {21, 22}};
    m_view->setTouchPointSource(&keys);
    click({90, 160});
    QCOMPARE(m_sent,
        (QStringList{"0: 11,12 21,22 180,320", "sub 0: 0.25,0.25", "1: 11,12 21,22", "sub 1: 0.25,0.25"}));
    QCOMPARE(keys.askedFor, QSize(720, 1280));
}

void tst_VideoView::auxiliaryKeyActions()
{
    HeldKeys keys;
    m_view->setTouchPointSource(&keys);
    keys.points = {{11, 12}};
    m_view->onAuxiliaryKeyAction(0);
    press({90, 160});
    keys.points = {{13, 14}};
    m_view->onAuxiliaryKeyAction(2);
    keys.points.clear();
    m_view->onAuxiliaryKeyAction(1);
    release({90, 160});
    m_view->onAuxiliaryKeyAction(1);
    QCOMPARE(m_sent,
        (QStringList{"0: 11,12", "0: 11,12 180,320", "sub 0: 0.25,0.25", "2: 13,14 180,320", "1: 180,320",
            "1: -1,-1", "sub 1: 0.25,0.25", "1: -1,-1"}));
}

void tst_VideoView::touchPointSourceMayGo()
{
    {
        HeldKeys keys;
        keys.points = {{11, 12}};
        m_view->setTouchPointSource(&keys);
    }
    m_view->onAuxiliaryKeyAction(0);
    QCOMPARE(m_sent, QStringList("0: -1,-1"));
}

void tst_VideoView::nothingIsSentWithoutSession()
{
    disconnect(m_view, &VideoView::subControlTouchEvent, nullptr, nullptr); // for the others, see above
    m_controller->stopStream();
    click({90, 160});
    m_controller.reset();
    click({90, 160});
    m_view->onAuxiliaryKeyAction(0);
    wheel({90, 160}, {0, 120});
    QCOMPARE(m_sent, QStringList());
}

void tst_VideoView::recordingDisablesTheMouse()
{
    m_view->onRecordingStatusChanged(true);
    click({90, 160});
    wheel({90, 160}, {0, 120});
    QCOMPARE(m_sent, QStringList());
    m_view->onRecordingStatusChanged(false);
    click({90, 160});
    QCOMPARE(m_sent.size(), 4);
}

void tst_VideoView::recordingLiftsTheFinger()
{
    press({90, 160});
    m_sent.clear();
    m_view->onRecordingStatusChanged(true);
    QCOMPARE(m_sent, (QStringList{"1: -1,-1", "sub 1: 0.25,0.25"}));
    m_sent.clear();
    m_now += std::chrono::hours(1);
    move({91, 161});
    release({90, 160});
    QCOMPARE(m_sent, QStringList());
}

void tst_VideoView::losingFocusLiftsTheFinger()
{
    press({90, 160});
    m_sent.clear();
    m_view->clearFocus();
    QCOMPARE(m_sent, (QStringList{"1: -1,-1", "sub 1: 0.25,0.25"}));
    m_sent.clear();
    release({90, 160});
    QCOMPARE(m_sent, QStringList());
}

void tst_VideoView::hidingLiftsTheFinger()
{
    press({90, 160});
    m_sent.clear();
    m_window->hide();
    QCOMPARE(m_sent, (QStringList{"1: -1,-1", "sub 1: 0.25,0.25"}));
}

void tst_VideoView::wheelDrag()
{
    wheel({180, 320}, {0, 120});
    waitForGesture();
    QCOMPARE(m_sent,
        (QStringList{"0: 360,512", "2: 360,544", "2: 360,576", "2: 360,608", "2: 360,640", "2: 360,672",
            "2: 360,704", "2: 360,736", "2: 360,768", "1: 360,768"}));
}

void tst_VideoView::wheelStepsEvery50Ms()
{
    QVERIFY(!m_view->findChild<QTimer *>());
    wheel({180, 320}, {0, 120});
    const auto *timer = m_view->findChild<QTimer *>();
    QVERIFY(timer);
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 50);
    QVERIFY(!timer->isSingleShot());
}

// Not the position within the view that the event carries as well.
void tst_VideoView::wheelCentreIsTheGlobalPosition()
{
    QWheelEvent event(QPointF(0, 0), m_view->mapToGlobal({180, 320}), QPoint(), QPoint(0, 120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_view, &event);
    QCOMPARE(m_sent, QStringList("0: 360,512"));
}

void tst_VideoView::wheelPinch()
{
    QTest::keyPress(m_view, Qt::Key_Control);
    wheel({180, 320}, {0, 120});
    waitForGesture();
    QCOMPARE(m_sent,
        (QStringList{
            "0: 360,576 360,704", "2: 360,544 360,736", "2: 360,512 360,768", "1: 360,512 360,768"}));
    m_sent.clear();
    QTest::keyRelease(m_view, Qt::Key_Control);
    wheel({180, 320}, {0, 120});
    QCOMPARE(m_sent, QStringList("0: 360,512"));
}

void tst_VideoView::wheelInLandscape()
{
    turn(ScreenOrientation::Landscape);
    QCOMPARE(m_view->size(), QSize(640, 360));
    wheel({160, 90}, {0, 120}); // the centre is (540, 320)
    waitForGesture();
    QCOMPARE(m_sent.first(), QStringLiteral("0: 668,320"));
    QCOMPARE(m_sent.at(1), QStringLiteral("2: 636,320"));
    QCOMPARE(m_sent.last(), QStringLiteral("1: 412,320"));
}

void tst_VideoView::wheelWithTouchpad()
{
    wheel({180, 320}, {0, 120}, {4, -6});
    waitForGesture();
    QCOMPARE(m_sent, (QStringList{"0: 356,646", "2: 364,634", "1: 364,634"}));
}

void tst_VideoView::wheelWhileGestureRuns()
{
    wheel({180, 320}, {0, 120});
    wheel({10, 10}, {0, -120});
    wheel({10, 10}, {0, -120});
    waitForGesture();
    QCOMPARE(m_sent.size(), 10);
    QCOMPARE(m_sent.last(), QStringLiteral("1: 360,768"));
}

void tst_VideoView::wheelCarriesHeldPoints()
{
    HeldKeys keys;
    keys.points = {{11, 12}};
    m_view->setTouchPointSource(&keys);
    press({0, 0});
    m_sent.clear();
    wheel({180, 320}, {0, 30}); // 32 up and 32 down: 64 to go
    waitForGesture();
    QCOMPARE(m_sent,
        (QStringList{
            "0: 360,608 11,12 0,0", "2: 360,640 11,12 0,0", "2: 360,672 11,12 0,0", "1: 360,672 11,12 0,0"}));
}

void tst_VideoView::wheelIgnored_data()
{
    QTest::addColumn<int>("viewMode");
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<bool>("ignored");
    QTest::newRow("interactive") << 1 << QPoint(0, 120) << false;
    QTest::newRow("tile") << 2 << QPoint(0, 120) << true;
    QTest::newRow("end of a touchpad's scrolling") << 1 << QPoint() << true;
}

void tst_VideoView::wheelIgnored()
{
    QFETCH(int, viewMode);
    QFETCH(QPoint, angle);
    QFETCH(bool, ignored);
    m_view->setViewMode(viewMode);
    wheel({180, 320}, angle);
    QCOMPARE(m_sent.isEmpty(), ignored);
}

void tst_VideoView::gestureEndsWithTheSession()
{
    wheel({180, 320}, {0, 120});
    m_sent.clear();
    m_controller->stopStream();
    auto *timer = m_view->findChild<QTimer *>();
    QVERIFY(timer);
    QTRY_VERIFY(!timer->isActive());
    QCOMPARE(m_sent, QStringList());
}

void tst_VideoView::remoteRotation_data()
{
    QTest::addColumn<int>("rotation");
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::newRow("0") << 0 << ScreenOrientation::Portrait;
    QTest::newRow("1") << 1 << ScreenOrientation::Landscape;
    QTest::newRow("2") << 2 << ScreenOrientation::Portrait;
    QTest::newRow("3") << 3 << ScreenOrientation::Landscape;
}

void tst_VideoView::remoteRotation()
{
    QFETCH(int, rotation);
    QFETCH(ScreenOrientation, orientation);
    m_view->setOrientation(orientation == ScreenOrientation::Portrait ? ScreenOrientation::Landscape
                                                                      : ScreenOrientation::Portrait);
    const QSize before = m_view->size();
    QSignalSpy rotations(m_view, &VideoView::screenRotation);
    std::thread sdk([this, rotation] { static_cast<VideoDisplay *>(m_view)->onScreenRotation(rotation); });
    sdk.join();
    QCOMPARE(rotations.count(), 0); // not on the SDK's thread
    QTRY_COMPARE(rotations.count(), 1);
    QCOMPARE(rotations.first().first().value<ScreenOrientation>(), orientation);
    QCOMPARE(m_view->orientation(), orientation);
    QCOMPARE(m_view->size(), before); // the window's business
}

void tst_VideoView::remoteRotationOfATile()
{
    m_view->setViewMode(2);
    QSignalSpy rotations(m_view, &VideoView::screenRotation);
    m_view->onScreenRotation(1);
    QCoreApplication::processEvents();
    QCOMPARE(rotations.count(), 0);
    QCOMPARE(m_view->orientation(), ScreenOrientation::Portrait);
}

void tst_VideoView::everyRemoteRotationIsTold()
{
    QList<ScreenOrientation> told;
    connect(m_view, &VideoView::screenRotation, this,
        [&told](ScreenOrientation orientation) { told.append(orientation); });
    std::thread sdk([this] {
        for (const int rotation : {1, 0, 3})
            m_view->onScreenRotation(rotation);
    });
    sdk.join();
    QTRY_COMPARE(told.size(), 3);
    QCOMPARE(told,
        (QList<ScreenOrientation>{
            ScreenOrientation::Landscape, ScreenOrientation::Portrait, ScreenOrientation::Landscape}));
}

void tst_VideoView::setOrientation()
{
    QSignalSpy rotations(m_view, &VideoView::screenRotation);
    m_view->setOrientation(ScreenOrientation::Landscape);
    QCOMPARE(m_view->size(), QSize(640, 360));
    QCOMPARE(rotations.takeFirst().first().value<ScreenOrientation>(), ScreenOrientation::Landscape);
    m_view->setOrientation(ScreenOrientation::Portrait);
    QCOMPARE(m_view->size(), QSize(360, 640));
    QCOMPARE(rotations.takeFirst().first().value<ScreenOrientation>(), ScreenOrientation::Portrait);
}

void tst_VideoView::controlIsForgottenWithTheFocus()
{
    m_view->setFocus();
    QTest::keyPress(m_view, Qt::Key_Control);
    m_view->clearFocus();
    wheel({180, 320}, {0, 120});
    QCOMPARE(m_sent, QStringList("0: 360,512"));
}

// Wired as a window wires it, a press is in the SDK's hands when the mouse event returns.
void tst_VideoView::pressGoesStraightToTheSession()
{
    connect(m_view, &VideoView::touchEvent, m_controller.get(), &StreamController::onTouchEvent);
    takeCalls();
    press({90, 160});
    QCOMPARE(takeCalls().last(), QStringLiteral("SWDataSource::sendTouchEvent(0, 1, [180], [320], [0])"));
}

QTEST_MAIN(tst_VideoView)

#include "tst_videoview.moc"
