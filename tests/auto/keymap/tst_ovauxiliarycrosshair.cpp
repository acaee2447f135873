#include "KeyMapFixture.h"

#include <QCursor>

#include <atomic>
#include <cstdlib>
#include <thread>

#include <xcb/xcb.h>

// The key that looks around. The pointer is the display's; its moves are sent by hand, and what the display
// sends besides comes when the pointer has been put back.
class TestOvAuxiliaryCrosshair : public KeyMapFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { tearDown(); }

    void togglesMouseLook();
    void releasesDoNothing();
    void repeatsToggle();
    void drags();
    void dragsInLandscape();
    void putsTheFingerDownAnewAtTheEdge();
    void movesOfThePointerBackDoNotCount();
    void keepsUpWithAFastMouse();
    void seesAMoveThatEndsWhereTheLastOneDid();
    void losesNothingOfAMouseThatMovesMeanwhile();
    void pullsThePointerBackIntoTheView();
    void firesWhileLooking();
    void countsFromTheNewPlaceAfterMoving();
    void isQuietWhileEdited();
    void sensitivity();

private:
    void moveBy(const QPoint &way, QEvent::Type type = QEvent::MouseMove);
    QPoint centre() const { return m_view->mapToGlobal(m_key->geometry().topLeft() + QPoint(15, 15)); }

    OvAuxiliaryCrosshair *m_key = nullptr;
    QPoint m_before; // where the pointer was
};

void TestOvAuxiliaryCrosshair::init()
{
    setUp();
    m_key = make<OvAuxiliaryCrosshair>("R");
    m_before = m_window->mapToGlobal(QPoint(500, 300));
    QCursor::setPos(m_before);
    QCOMPARE(QCursor::pos(), m_before);
}

void TestOvAuxiliaryCrosshair::moveBy(const QPoint &way, QEvent::Type type)
{
    QCursor::setPos(QCursor::pos() + way);
    if (type == QEvent::MouseMove) {
        mouse(m_view, type, m_view->mapFromGlobal(QCursor::pos()), Qt::NoButton);
    } else {
        QEvent event(type);
        QApplication::sendEvent(m_view, &event);
    }
}

void TestOvAuxiliaryCrosshair::togglesMouseLook()
{
    QCOMPARE(m_key->type(), 2);
    QVector<QPoint> pointers;
    connect(m_key, &OvAuxiliaryKey::sigAuxiliaryKeyAction, this,
        [&pointers](int) { pointers.append(QCursor::pos()); });
    QVERIFY(!m_view->hasMouseTracking());
    press(Qt::Key_R);
    QVERIFY(m_key->isPressed());
    QCOMPARE(QCursor::pos(), centre());
    QCOMPARE(m_view->cursor().shape(), Qt::BlankCursor);
    QVERIFY(m_view->hasMouseTracking());
    press(Qt::Key_R);
    QVERIFY(!m_key->isPressed());
    QCOMPARE(QCursor::pos(), m_before);
    QCOMPARE(m_view->cursor().shape(), Qt::ArrowCursor);
    QVERIFY(!m_view->hasMouseTracking());
    QCOMPARE(m_sent, (QStringList{"0: 360,640", "1: -1,-1"}));
    QCOMPARE(pointers, (QVector<QPoint>{centre(), centre()})); // put there before, taken back after
}

void TestOvAuxiliaryCrosshair::releasesDoNothing()
{
    press(Qt::Key_R);
    release(Qt::Key_R);
    QVERIFY(m_key->isPressed());
    QCOMPARE(m_sent, QStringList{"0: 360,640"});
}

void TestOvAuxiliaryCrosshair::repeatsToggle()
{
    press(Qt::Key_R);
    send(QEvent::KeyPress, Qt::Key_R, true);
    send(QEvent::KeyPress, Qt::Key_R, true);
    QCOMPARE(m_sent, (QStringList{"0: 360,640", "1: -1,-1", "0: 360,640"}));
}

void TestOvAuxiliaryCrosshair::drags()
{
    moveBy({10, 10});
    QCOMPARE(takeSent(), QStringList());
    QCursor::setPos(m_before);
    press(Qt::Key_R);
    takeSent();
    moveBy({34, 60}); // a tenth of the view each: 360 + 1.9 * 72 * 0.25, 640 + 128 * 1.9 * 0.25
    QCOMPARE(QCursor::pos(), centre());
    QCOMPARE(m_key->touchPoint({720, 1280}), QPointF(394.2, 700.8));
    moveBy({-68, 0});
    QCOMPARE(takeSent(), (QStringList{"2: 394,700", "2: 325,700"}));
    press(Qt::Key_R);
    press(Qt::Key_R);
    QCOMPARE(takeSent(), (QStringList{"1: -1,-1", "0: 360,640"})); // from the middle again
}

void TestOvAuxiliaryCrosshair::dragsInLandscape()
{
    turn(ScreenOrientation::Landscape);
    QCOMPARE(m_view->size(), QSize(600, 340));
    press(Qt::Key_R);
    takeSent();
    moveBy({30, 17}); // x: 360 - 1.9 * 36 * 0.25, y: 640 + 64 * 1.9 * 0.25
    QCOMPARE(m_key->touchPoint({720, 1280}), QPointF(342.9, 670.4));
    QCOMPARE(takeSent(), QStringList{"2: 342,670"});
}

void TestOvAuxiliaryCrosshair::putsTheFingerDownAnewAtTheEdge()
{
    m_key->setSensitivity(20);
    press(Qt::Key_R);
    takeSent();
    moveBy({17, 0}); // 360 + 20 * 36 * 0.25
    QCOMPARE(takeSent(), QStringList{"2: 540,640"});
    moveBy({34, 0});
    QCOMPARE(takeSent(), (QStringList{"2: 900,640", "1: -1,-1", "0: 360,640"}));
    QCOMPARE(m_key->touchPoint({720, 1280}), QPointF(360, 640));
    moveBy({0, -60}); // 640 - 20 * 128 * 0.25 is the edge itself
    QCOMPARE(takeSent(), QStringList{"2: 360,0"});
    moveBy({0, -6});
    QCOMPARE(takeSent(), (QStringList{"2: 360,-64", "1: -1,-1", "0: 360,640"}));
}

void TestOvAuxiliaryCrosshair::movesOfThePointerBackDoNotCount()
{
    press(Qt::Key_R);
    moveBy({10, 0});
    takeSent();
    for (int i = 0; i < 5; ++i)
        moveBy({0, 0});
    QCoreApplication::processEvents(); // and what the display has to tell
    QCOMPARE(m_sent, QStringList());
    QCOMPARE(QCursor::pos(), centre());
}

// A thousand moves a second are a thousand steps, none lost, none counted twice.
void TestOvAuxiliaryCrosshair::keepsUpWithAFastMouse()
{
    press(Qt::Key_R);
    takeSent();
    for (int i = 0; i < 1000; ++i)
        moveBy(i % 2 == 0 ? QPoint(1, 0) : QPoint(-1, 1));
    QCOMPARE(m_sent.size(), 1000);
    const QPointF end = m_key->touchPoint({720, 1280}); // 500 of 600 pixels down
    QCOMPARE(end, QPointF(360, 640 + 1280 * (500 / 600.0) * 1.9 * 0.25));
    QCOMPARE(m_sent.last(), QString("2: 360,%1").arg(static_cast<int>(end.y())));
    QCoreApplication::processEvents(); // what the display has to tell about all this
    QCOMPARE(m_sent.size(), 1000);
}

// The display tells of two moves to the same place, and Qt, unless it saw the pointer put back between them,
// of the first only.
void TestOvAuxiliaryCrosshair::seesAMoveThatEndsWhereTheLastOneDid()
{
    press(Qt::Key_R);
    for (int i = 0; i < 10; ++i) {
        const QPoint place = centre() + QPoint(i % 2 == 0 ? 34 : -34, 0);
        QMetaObject::Connection once;
        once = connect(m_key, &OvAuxiliaryKey::sigAuxiliaryKeyAction, this, [&once, place] {
            disconnect(once);
            QCursor::setPos(place);
        });
        takeSent();
        QCursor::setPos(place);
        QTRY_COMPARE(m_sent.size(), 2);
        QCOMPARE(m_sent.last(), i % 2 == 0 ? "2: 428,640" : "2: 360,640");
        QCOMPARE(QCursor::pos(), centre());
    }
}

// The pointer goes on while it is looked at and put back: another program moves it for real.
void TestOvAuxiliaryCrosshair::losesNothingOfAMouseThatMovesMeanwhile()
{
    constexpr int pairs = 500; // of moves, to the right by a pixel in all
    m_key->setSensitivity(1);
    const qint16 there = 7;
    const qint16 back = -6;
    press(Qt::Key_R);
    std::atomic<bool> hasEnded{false};
    std::thread mouse([&] {
        xcb_connection_t *display = xcb_connect(nullptr, nullptr);
        const auto moveBy = [display](qint16 way) {
            xcb_warp_pointer(display, XCB_NONE, XCB_NONE, 0, 0, 0, 0, way, 0);
            std::free(xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr));
        };
        for (int i = 0; i < pairs; ++i) {
            moveBy(there);
            moveBy(back);
        }
        xcb_disconnect(display);
        hasEnded = true;
    });
    while (!hasEnded)
        QCoreApplication::processEvents();
    mouse.join();
    const double pixel = 720.0 / 340 * 0.25; // of the view, on the device
    QTRY_COMPARE(m_key->touchPoint({720, 1280}), QPointF(360 + pairs * pixel, 640));
}

void TestOvAuxiliaryCrosshair::pullsThePointerBackIntoTheView()
{
    press(Qt::Key_R);
    takeSent();
    moveBy({200, 0}, QEvent::Leave); // over the view's edge before a move was seen
    QCOMPARE(QCursor::pos(), centre());
    QCOMPARE(takeSent(), QStringList{"2: 561,640"});
}

// The mouse's own finger does not stop the look.
void TestOvAuxiliaryCrosshair::firesWhileLooking()
{
    press(Qt::Key_R);
    mouse(m_view, QEvent::MouseButtonPress, {170, 300});
    QCOMPARE(takeSent(), (QStringList{"0: 360,640", "0: 360,640 360,640"}));
    QCursor::setPos(QCursor::pos() + QPoint(34, 0));
    mouse(m_view, QEvent::MouseMove, {204, 300});
    QCOMPARE(takeSent(), QStringList{"2: 394,640 360,640"});
    mouse(m_view, QEvent::MouseButtonRelease, {170, 300});
    QCOMPARE(takeSent(), QStringList{"1: 394,640"});
}

void TestOvAuxiliaryCrosshair::countsFromTheNewPlaceAfterMoving()
{
    press(Qt::Key_R);
    takeSent();
    m_view->move(30, 50);
    moveBy({34, 0});
    QCOMPARE(takeSent(), QStringList{"2: 394,640"});
    QCOMPARE(QCursor::pos(), centre());
    moveBy({-34, 0});
    QCOMPARE(takeSent(), QStringList{"2: 360,640"});
}

void TestOvAuxiliaryCrosshair::isQuietWhileEdited()
{
    m_manager->setRecording(true);
    press(Qt::Key_R);
    moveBy({10, 0});
    QVERIFY(!m_key->isPressed());
    QCOMPARE(m_sent, QStringList());
}

void TestOvAuxiliaryCrosshair::sensitivity()
{
    QCOMPARE(m_key->sensitivity(), 1.9);
    m_key->setSensitivity(2.4);
    QCOMPARE(m_key->sensitivity(), 2.4);
    m_key->setSensitivity(0);
    QCOMPARE(m_key->sensitivity(), 1.0);
    m_key->setSensitivity(1e300);
    QCOMPARE(m_key->sensitivity(), 20.0);
    m_key->setSensitivity(qQNaN());
    QCOMPARE(m_key->sensitivity(), 1.9);
}

QTEST_MAIN(TestOvAuxiliaryCrosshair)
#include "tst_ovauxiliarycrosshair.moc"
