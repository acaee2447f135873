#include "VideoViewFixture.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <thread>

// The video view: touches by the mouse and the auxiliary keys, and the remote screen's rotation.
class tst_VideoView : public VideoViewFixture
{
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }
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
    void remoteRotation_data();
    void remoteRotation();
    void remoteRotationOfATile();
    void everyRemoteRotationIsTold();
    void setOrientation();
    void pressGoesStraightToTheSession();
};

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
