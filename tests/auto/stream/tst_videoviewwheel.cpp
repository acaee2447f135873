#include "VideoViewFixture.h"

#include <QTimer>

// Drags and pinches of the video view by the mouse wheel and touchpads.
class tst_VideoViewWheel : public VideoViewFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }
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
    void controlIsForgottenWithTheFocus();
};

void tst_VideoViewWheel::wheelDrag()
{
    wheel({180, 320}, {0, 120});
    waitForGesture();
    QCOMPARE(m_sent,
        (QStringList{"0: 360,512", "2: 360,544", "2: 360,576", "2: 360,608", "2: 360,640", "2: 360,672",
            "2: 360,704", "2: 360,736", "2: 360,768", "1: 360,768"}));
}

void tst_VideoViewWheel::wheelStepsEvery50Ms()
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
void tst_VideoViewWheel::wheelCentreIsTheGlobalPosition()
{
    QWheelEvent event(QPointF(0, 0), m_view->mapToGlobal({180, 320}), QPoint(), QPoint(0, 120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_view, &event);
    QCOMPARE(m_sent, QStringList("0: 360,512"));
}

void tst_VideoViewWheel::wheelPinch()
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

void tst_VideoViewWheel::wheelInLandscape()
{
    turn(ScreenOrientation::Landscape);
    QCOMPARE(m_view->size(), QSize(640, 360));
    wheel({160, 90}, {0, 120}); // the centre is (540, 320)
    waitForGesture();
    QCOMPARE(m_sent.first(), QStringLiteral("0: 668,320"));
    QCOMPARE(m_sent.at(1), QStringLiteral("2: 636,320"));
    QCOMPARE(m_sent.last(), QStringLiteral("1: 412,320"));
}

void tst_VideoViewWheel::wheelWithTouchpad()
{
    wheel({180, 320}, {0, 120}, {4, -6});
    waitForGesture();
    QCOMPARE(m_sent, (QStringList{"0: 356,646", "2: 364,634", "1: 364,634"}));
}

void tst_VideoViewWheel::wheelWhileGestureRuns()
{
    wheel({180, 320}, {0, 120});
    wheel({10, 10}, {0, -120});
    wheel({10, 10}, {0, -120});
    waitForGesture();
    QCOMPARE(m_sent.size(), 10);
    QCOMPARE(m_sent.last(), QStringLiteral("1: 360,768"));
}

void tst_VideoViewWheel::wheelCarriesHeldPoints()
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

void tst_VideoViewWheel::wheelIgnored_data()
{
    QTest::addColumn<int>("viewMode");
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<bool>("ignored");
    QTest::newRow("interactive") << 1 << QPoint(0, 120) << false;
    QTest::newRow("tile") << 2 << QPoint(0, 120) << true;
    QTest::newRow("end of a touchpad's scrolling") << 1 << QPoint() << true;
}

void tst_VideoViewWheel::wheelIgnored()
{
    QFETCH(int, viewMode);
    QFETCH(QPoint, angle);
    QFETCH(bool, ignored);
    m_view->setViewMode(viewMode);
    wheel({180, 320}, angle);
    QCOMPARE(m_sent.isEmpty(), ignored);
}

void tst_VideoViewWheel::gestureEndsWithTheSession()
{
    wheel({180, 320}, {0, 120});
    m_sent.clear();
    m_controller->stopStream();
    auto *timer = m_view->findChild<QTimer *>();
    QVERIFY(timer);
    QTRY_VERIFY(!timer->isActive());
    QCOMPARE(m_sent, QStringList());
}

void tst_VideoViewWheel::controlIsForgottenWithTheFocus()
{
    m_view->setFocus();
    QTest::keyPress(m_view, Qt::Key_Control);
    m_view->clearFocus();
    wheel({180, 320}, {0, 120});
    QCOMPARE(m_sent, QStringList("0: 360,512"));
}

QTEST_MAIN(tst_VideoViewWheel)

#include "tst_videoviewwheel.moc"
