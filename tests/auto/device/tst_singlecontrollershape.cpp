// How the device window turns, is maximised and is restored.

#include "DeviceWindowFixture.h"

#include "device/MenuBar.h"
#include "device/MenuButton.h"

#include <QLayout>
#include <QPushButton>
#include <QShortcut>

using namespace devicetest;

namespace {

const QSize Portrait(390, 640);
const QSize Landscape(650, 380);
const QSize Margins(20, 20);
const QRect Area(100, 50, 1600, 1000); // what the window may cover

// Two screens side by side.
const QRect LeftScreen(0, 0, 960, 1060);
const QRect RightScreen(960, 0, 960, 1000);

QRect twoScreens(const QPoint &pos)
{
    return pos.x() < 960 ? LeftScreen : RightScreen;
}

} // namespace

class tst_SingleControllerShape : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void rotateButton();
    void rotatingTwiceReturns();
    void remoteRotation();
    void sameOrientationChangesNothing();
    void resizedWindowTurns();
    void fingerIsLifted_data();
    void fingerIsLifted();
    void turnedWindowStaysOnTheScreen();
    void staysOnItsScreen_data();
    void staysOnItsScreen();
    void turnedAtTheOtherScreensEdge();
    void tooLargeWindowBecomesSmaller();
    void smallestSize();
    void maximizePortrait();
    void maximizeLandscape_data();
    void maximizeLandscape();
    void maximizeWays_data();
    void maximizeWays();
    void shortcutReachesNoDevice();
    void heldShortcutCountsOnce();
    void rotationWhileMaximized();
    void lateAnswersMoveNothing();
    void userMovesAPlacedWindow();
    void restoreAfterRotationSwaps();
    void restoreAfterTwoRotations();
    void draggedBarRestoresUnderThePointer();
    void maximizedWindowIsNotResized();
    void reopenedWindowIsUpright();
    void videoKeepsItsPlace();

private:
    SingleController &window() const { return *m_fixture->window; }
    ScreenOrientation orientation() const { return window().orientation(); }
    QRect body() const { return {window().pos() + QPoint(10, 10), window().contentSize()}; }
    QPushButton *barButton(const char *name) const
    {
        return window().titleBar()->findChild<QPushButton *>(QString::fromLatin1(name));
    }

    std::unique_ptr<Fixture> m_fixture;
};

void tst_SingleControllerShape::initTestCase()
{
    m_fixture = std::make_unique<Fixture>();
    QVERIFY(m_fixture->server.isListening());
}

void tst_SingleControllerShape::init()
{
    m_fixture->makeWindow();
    window().setAvailableGeometry([](const QPoint &) { return Area; });
    window().move(300, 200);
    QVERIFY(m_fixture->open());
}

void tst_SingleControllerShape::cleanup()
{
    m_fixture->window.reset();
}

void tst_SingleControllerShape::rotateButton()
{
    QCOMPARE(window().contentSize(), Portrait);
    QTest::mouseClick(m_fixture->child<MenuBar>()->buttons().at(4), Qt::LeftButton);
    QCOMPARE(orientation(), ScreenOrientation::Landscape);
    QCOMPARE(m_fixture->video()->orientation(), ScreenOrientation::Landscape);
    QCOMPARE(window().contentSize(), Landscape);
    QCOMPARE(window().size(), Landscape + Margins);
    QTRY_COMPARE(m_fixture->video()->size(), QSize(600, 340));
    QCOMPARE(takeCalls(), QStringList()); // the picture turns, not the device
}

void tst_SingleControllerShape::rotatingTwiceReturns()
{
    const QPoint pos = window().pos();
    window().onScreenRotateBtnClicked();
    window().onScreenRotateBtnClicked();
    QCOMPARE(orientation(), ScreenOrientation::Portrait);
    QCOMPARE(m_fixture->video()->orientation(), ScreenOrientation::Portrait);
    QCOMPARE(window().contentSize(), Portrait);
    QCOMPARE(window().size(), Portrait + Margins);
    QTRY_COMPARE(m_fixture->video()->size(), QSize(340, 600));
    QCOMPARE(window().pos(), pos);
}

void tst_SingleControllerShape::remoteRotation()
{
    m_fixture->video()->onScreenRotation(3);
    QTRY_COMPARE(orientation(), ScreenOrientation::Landscape);
    QCOMPARE(window().contentSize(), Landscape);
    QTRY_COMPARE(m_fixture->video()->size(), QSize(600, 340));
    m_fixture->video()->onScreenRotation(2);
    QTRY_COMPARE(orientation(), ScreenOrientation::Portrait);
    QCOMPARE(window().contentSize(), Portrait);
    QTRY_COMPARE(m_fixture->video()->size(), QSize(340, 600));
}

void tst_SingleControllerShape::sameOrientationChangesNothing()
{
    window().onScreenRotation(ScreenOrientation::Portrait);
    QCOMPARE(window().contentSize(), Portrait);
    window().onScreenRotation(ScreenOrientation::Landscape);
    window().onScreenRotation(ScreenOrientation::Landscape);
    QCOMPARE(window().contentSize(), Landscape);
}

// Its video turns as it is.
void tst_SingleControllerShape::resizedWindowTurns()
{
    window().setContentSize(QSize(470, 781));
    window().updateWindowSize();
    QTRY_COMPARE(m_fixture->video()->size(), QSize(420, 741));
    window().onScreenRotateBtnClicked();
    QCOMPARE(window().contentSize(), QSize(50 + 741, 40 + 420));
    QTRY_COMPARE(m_fixture->video()->size(), QSize(741, 420));
    window().onScreenRotateBtnClicked();
    QCOMPARE(window().contentSize(), QSize(470, 781));
}

void tst_SingleControllerShape::fingerIsLifted_data()
{
    QTest::addColumn<bool>("remote");
    QTest::newRow("by the device") << true;
    QTest::newRow("by the user") << false;
}

// Its place on the device changes: it comes up where it was.
void tst_SingleControllerShape::fingerIsLifted()
{
    QFETCH(bool, remote);
    VideoView *video = m_fixture->video();
    sendMouse(video, QEvent::MouseButtonPress, {85, 150});
    takeCalls();
    if (remote)
        video->onScreenRotation(1);
    else
        window().onScreenRotateBtnClicked();
    QTRY_COMPARE(orientation(), ScreenOrientation::Landscape);
    QCOMPARE(takeCalls(), QStringList(liftCall()));
    sendMouse(video, QEvent::MouseMove, {90, 150});
    sendMouse(video, QEvent::MouseButtonRelease, {90, 150});
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleControllerShape::turnedWindowStaysOnTheScreen()
{
    window().move(1300, 350);
    QTRY_COMPARE(window().pos(), QPoint(1300, 350));
    window().onScreenRotateBtnClicked();
    QTRY_COMPARE(body().topLeft(), QPoint(1700 - 650, 360));
    window().move(1000, 600);
    QTRY_COMPARE(window().pos(), QPoint(1000, 600));
    window().onScreenRotateBtnClicked();
    QTRY_COMPARE(body().topLeft(), QPoint(1010, 1050 - 640));
    QVERIFY(Area.contains(body()));
}

void tst_SingleControllerShape::staysOnItsScreen_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QRect>("screen");
    QTest::newRow("margin over the left edge") << QPoint(950, 100) << RightScreen;
    QTest::newRow("margin over the upper edge") << QPoint(1100, -10) << RightScreen;
    QTest::newRow("mostly on it") << QPoint(900, 100) << RightScreen;
    QTest::newRow("on the first") << QPoint(300, 100) << LeftScreen;
}

// The one that shows most of it, not the one that its transparent margin reaches.
void tst_SingleControllerShape::staysOnItsScreen()
{
    QFETCH(QPoint, pos);
    QFETCH(QRect, screen);
    window().setAvailableGeometry(twoScreens);
    window().move(pos);
    QTRY_COMPARE(window().pos(), pos);
    window().onMaximizeShortcutActivated();
    QTRY_COMPARE(window().height(), screen.height());
    QVERIFY(screen.contains(window().geometry()));
    window().onMaximizeShortcutActivated();
    QTRY_COMPARE(window().size(), Portrait + Margins);
    for (int i = 0; i < 3; ++i) {
        window().onScreenRotateBtnClicked();
        QTRY_VERIFY(screen.contains(body()));
    }
}

// It grows towards the other screen, and comes back.
void tst_SingleControllerShape::turnedAtTheOtherScreensEdge()
{
    window().setAvailableGeometry(twoScreens);
    window().move(550, 100);
    QTRY_COMPARE(window().pos(), QPoint(550, 100));
    window().onScreenRotateBtnClicked();
    QTRY_COMPARE(body().topLeft(), QPoint(960 - 650, 110));
}

void tst_SingleControllerShape::tooLargeWindowBecomesSmaller()
{
    window().onScreenRotateBtnClicked();
    window().setContentSize(QSize(1250, 720)); // upright it would be higher than the area
    window().updateWindowSize();
    window().onScreenRotateBtnClicked();
    QCOMPARE(window().contentSize().height(), 1000);
    QVERIFY(qAbs(window().contentSize().width() - 1000.0 * (50 + 680) / (40 + 1200)) < 2);
    QTRY_VERIFY(Area.contains(body()));
}

void tst_SingleControllerShape::smallestSize()
{
    QCOMPARE(window().minimumSize(), QSize(365, 599) + Margins);
    window().onScreenRotateBtnClicked();
    QCOMPARE(window().minimumSize(), QSize(609, 355) + Margins);
    const QWidget *quality = window().findChild<QWidget *>(QStringLiteral("delayLabel"));
    QVERIFY(quality->isVisible());
}

// Full height, in the window's proportions, without margins, in the middle.
void tst_SingleControllerShape::maximizePortrait()
{
    window().onMaximizeShortcutActivated();
    const int width = 1000 * 390 / 640;
    const QRect expected(Area.x() + (Area.width() - width) / 2, Area.y(), width, 1000);
    QTRY_COMPARE(window().geometry(), expected);
    QCOMPARE(window().contentSize(), expected.size() - Margins);
    QCOMPARE(window().layout()->contentsMargins(), QMargins());
    QVERIFY(barButton("restoreButton")->isVisible());
    QVERIFY(!barButton("maxButton")->isVisible());
    QTRY_COMPARE(m_fixture->video()->size(), QSize(width - 50, 960));

    window().onMaximizeShortcutActivated();
    QTRY_COMPARE(window().geometry(), QRect(QPoint(300, 200), Portrait + Margins));
    QCOMPARE(window().contentSize(), Portrait);
    QCOMPARE(window().layout()->contentsMargins(), QMargins(10, 10, 10, 10));
    QVERIFY(!barButton("restoreButton")->isVisible());
    QVERIFY(barButton("maxButton")->isVisible());
    QTRY_COMPARE(m_fixture->video()->size(), QSize(340, 600));
}

void tst_SingleControllerShape::maximizeLandscape_data()
{
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QSize>("expected");
    const double ratio = 650.0 / 380.0;
    QTest::newRow("wide screen") << Area << QSize(1300, static_cast<int>(1300 / ratio));
    QTest::newRow("narrower than 1300")
        << QRect(0, 0, 1200, 1000) << QSize(1200, static_cast<int>(1200 / ratio));
    QTest::newRow("low screen") << QRect(0, 0, 1600, 600) << QSize(static_cast<int>(600 * ratio), 600);
}

void tst_SingleControllerShape::maximizeLandscape()
{
    QFETCH(QRect, area);
    QFETCH(QSize, expected);
    window().onScreenRotateBtnClicked();
    window().setAvailableGeometry([area](const QPoint &) { return area; });
    window().onMaximizeShortcutActivated();
    QTRY_COMPARE(window().size(), expected);
    QCOMPARE(window().contentSize(), expected - Margins);
    QVERIFY(area.contains(window().geometry()));
}

void tst_SingleControllerShape::maximizeWays_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("F11") << true;
    QTest::newRow("buttons") << false;
}

void tst_SingleControllerShape::maximizeWays()
{
    QFETCH(bool, byKey);
    const auto trigger = [&](const char *button) {
        if (byKey)
            QTest::keyClick(m_fixture->video(), Qt::Key_F11);
        else
            QTest::mouseClick(barButton(button), Qt::LeftButton);
    };
    trigger("maxButton");
    QVERIFY(window().isMaximizedInProportion());
    QTRY_COMPARE(window().height(), 1000);
    trigger("restoreButton");
    QVERIFY(!window().isMaximizedInProportion());
    QTRY_COMPARE(window().size(), Portrait + Margins);
    QVERIFY(m_fixture->video()->hasFocus());
}

// Only its release, which means nothing to a device on which the key is not down.
void tst_SingleControllerShape::shortcutReachesNoDevice()
{
    QTest::keyClick(m_fixture->video(), Qt::Key_F11);
    QCOMPARE(takeCalls(), QStringList(keyCall(2, Qt::Key_F11)));
}

void tst_SingleControllerShape::heldShortcutCountsOnce()
{
    const auto *shortcut = window().titleBar()->findChild<QShortcut *>();
    QVERIFY(shortcut);
    QCOMPARE(shortcut->key(), QKeySequence(Qt::Key_F11));
    QVERIFY(!shortcut->autoRepeat());
}

void tst_SingleControllerShape::rotationWhileMaximized()
{
    window().onMaximizeShortcutActivated();
    QTRY_COMPARE(window().height(), 1000);
    const QRect upright = window().geometry();
    window().onScreenRotateBtnClicked();
    QVERIFY(window().isMaximizedInProportion());
    const int height = static_cast<int>(1300 / (650.0 / 380.0));
    QTRY_COMPARE(window().geometry(), QRect(100 + 150, 50 + (1000 - height) / 2, 1300, height));
    QTRY_COMPARE(m_fixture->video()->size(), QSize(1250, height - 40));
    window().onScreenRotateBtnClicked();
    QTRY_COMPARE(window().geometry(), upright);
}

// The window system answers to the maximising when the window has been turned already: the answer has the old
// place.
void tst_SingleControllerShape::lateAnswersMoveNothing()
{
    window().onMaximizeShortcutActivated();
    const QPoint upright = window().pos();
    window().onScreenRotateBtnClicked();
    const QRect lying = window().geometry();
    QVERIFY(lying.topLeft() != upright);
    window().move(upright);
    QCOMPARE(window().geometry(), lying);
    window().onMaximizeShortcutActivated();
    const QPoint restored = window().pos();
    window().move(lying.topLeft());
    QCOMPARE(window().pos(), restored);
}

// Somebody who insists is let have their way, and who takes the window with the mouse at once.
void tst_SingleControllerShape::userMovesAPlacedWindow()
{
    window().onMaximizeShortcutActivated();
    const QPoint elsewhere = window().pos() + QPoint(50, 60);
    for (int i = 0; i < 10 && window().pos() != elsewhere; ++i)
        window().move(elsewhere);
    QCOMPARE(window().pos(), elsewhere);

    window().onMaximizeShortcutActivated();
    QTest::mousePress(&window(), Qt::LeftButton, {}, QPoint(100, 5));
    window().move(elsewhere);
    QCOMPARE(window().pos(), elsewhere);
    QTest::mouseRelease(&window(), Qt::LeftButton);
}

void tst_SingleControllerShape::restoreAfterRotationSwaps()
{
    window().onMaximizeShortcutActivated();
    window().onScreenRotateBtnClicked();
    window().onMaximizeShortcutActivated();
    QCOMPARE(window().contentSize(), Portrait.transposed());
    QTRY_COMPARE(window().geometry(), QRect(QPoint(300, 200), Portrait.transposed() + Margins));
    QCOMPARE(orientation(), ScreenOrientation::Landscape);
}

void tst_SingleControllerShape::restoreAfterTwoRotations()
{
    window().onMaximizeShortcutActivated();
    window().onScreenRotateBtnClicked();
    window().onScreenRotateBtnClicked();
    window().onMaximizeShortcutActivated();
    QTRY_COMPARE(window().geometry(), QRect(QPoint(300, 200), Portrait + Margins));
}

void tst_SingleControllerShape::draggedBarRestoresUnderThePointer()
{
    window().onMaximizeShortcutActivated();
    QTRY_COMPARE(window().height(), 1000);
    OvTitleBarBase *bar = window().titleBar();
    for (const int x : {40, bar->width() - 40}) {
        if (!window().isMaximizedInProportion())
            window().onMaximizeShortcutActivated();
        QTRY_COMPARE(window().height(), 1000);
        QCoreApplication::processEvents();
        const QPoint pointer = bar->mapToGlobal(QPoint(x, 20));
        sendMouse(bar, QEvent::MouseButtonPress, {x, 20});
        QMouseEvent move(QEvent::MouseMove, QPoint(x, 20), pointer + QPoint(0, 3), Qt::NoButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
        sendMouse(bar, QEvent::MouseButtonRelease, {x, 20});
        QVERIFY(!window().isMaximizedInProportion());
        QCOMPARE(window().size(), Portrait + Margins);
        const QRect barArea(window().pos() + QPoint(10, 10), QSize(390, 40));
        QVERIFY(barArea.contains(pointer + QPoint(0, 3)));
    }
}

void tst_SingleControllerShape::maximizedWindowIsNotResized()
{
    window().onMaximizeShortcutActivated();
    QTRY_COMPARE(window().height(), 1000);
    const QSize size = window().size();
    QMouseEvent hover(
        QEvent::MouseMove, QPoint(2, 500), window().mapToGlobal(QPoint(2, 500)), Qt::NoButton, {}, {});
    QApplication::sendEvent(&window(), &hover);
    QCOMPARE(window().cursor().shape(), Qt::ArrowCursor);
    sendMouse(&window(), QEvent::MouseButtonPress, {2, 500});
    QMouseEvent move(QEvent::MouseMove, QPoint(60, 500), window().mapToGlobal(QPoint(60, 500)), Qt::NoButton,
        Qt::LeftButton, {});
    QApplication::sendEvent(&window(), &move);
    QCOMPARE(window().size(), size);
}

void tst_SingleControllerShape::reopenedWindowIsUpright()
{
    window().onScreenRotateBtnClicked();
    window().close();
    QCOMPARE(orientation(), ScreenOrientation::Portrait);
    QVERIFY(m_fixture->open());
    QCOMPARE(window().contentSize(), Portrait);
    QTRY_COMPARE(m_fixture->video()->size(), QSize(340, 600));
    QCOMPARE(m_fixture->video()->orientation(), ScreenOrientation::Portrait);
    // And follows its new session.
    m_fixture->video()->onScreenRotation(1);
    QTRY_COMPARE(window().contentSize(), Landscape);
}

// The bar stands at the right of the video, both below the title.
void tst_SingleControllerShape::videoKeepsItsPlace()
{
    const auto *bar = m_fixture->child<MenuBar>();
    for (int i = 0; i < 2; ++i) {
        const QSize content = window().contentSize();
        QTRY_COMPARE(m_fixture->video()->mapTo(&window(), QPoint(0, 0)), QPoint(10, 50));
        QTRY_COMPARE(bar->mapTo(&window(), QPoint(0, 0)), QPoint(10 + content.width() - 50, 50));
        QCOMPARE(bar->size(), QSize(50, content.height() - 40));
        window().onScreenRotateBtnClicked();
    }
}

QTEST_MAIN(tst_SingleControllerShape)

#include "tst_singlecontrollershape.moc"
