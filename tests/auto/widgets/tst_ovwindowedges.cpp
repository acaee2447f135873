#include "WindowUnderTest.h"

#include <QEvent>
#include <QTest>
#include <QVBoxLayout>

using namespace widgettest;

// The edges of the frameless window: cursors over them and resizing by them.
class TestOvWindowEdges : public QObject
{
    Q_OBJECT

private slots:
    void cursors_data();
    void cursors();
    void lockedWindowHasNoCursors();
    void leaving();
    void enteringAChild();
    void resizing_data();
    void resizing();
    void leftEdgeWithoutMoving();
    void rightEdgeWithRatio();
    void leftEdgeStopsAtTheMinimum();
    void resizingEnds();
    void resizingGoesOnOutside();
    void lostRelease();
    void noResizeWithoutEdge();
};

void TestOvWindowEdges::cursors_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::newRow("left") << QPoint(10, 300) << Qt::SizeHorCursor;
    QTest::newRow("right") << QPoint(810, 300) << Qt::SizeHorCursor;
    QTest::newRow("top") << QPoint(400, 3) << Qt::SizeVerCursor;
    QTest::newRow("bottom") << QPoint(400, 619) << Qt::SizeVerCursor;
    QTest::newRow("top left") << QPoint(0, 0) << Qt::SizeFDiagCursor;
    QTest::newRow("bottom right") << QPoint(819, 619) << Qt::SizeFDiagCursor;
    QTest::newRow("top right") << QPoint(815, 5) << Qt::SizeBDiagCursor;
    QTest::newRow("bottom left") << QPoint(5, 615) << Qt::SizeBDiagCursor;
    QTest::newRow("middle") << QPoint(400, 300) << Qt::ArrowCursor;
}

void TestOvWindowEdges::cursors()
{
    QFETCH(QPoint, pointer);
    Window window;
    hover(&window, window.pos() + QPoint(400, 3));
    hover(&window, window.pos() + pointer);
    QTEST(window.cursor().shape(), "shape");
}

void TestOvWindowEdges::lockedWindowHasNoCursors()
{
    Window window;
    hover(&window, window.middleOfLeftEdge());
    QCOMPARE(window.cursor().shape(), Qt::SizeHorCursor);
    window.setResizeLocked(true);
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    for (const QPoint &pointer :
        {QPoint(0, 0), QPoint(5, 300), QPoint(815, 300), QPoint(400, 5), QPoint(815, 615)}) {
        pressAt(&window, window.pos() + pointer);
        QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
        drag(&window, window.pos() + pointer + QPoint(50, 50));
        release(&window, window.pos() + pointer + QPoint(50, 50));
    }
    QCOMPARE(window.geometry(), QRect(100, 200, 820, 620));
    window.setResizeLocked(false);
    hover(&window, window.middleOfLeftEdge());
    QCOMPARE(window.cursor().shape(), Qt::SizeHorCursor);
}

void TestOvWindowEdges::leaving()
{
    Window window;
    const QPoint edge = window.middleOfLeftEdge();
    hover(&window, edge);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&window, &leave);
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    press(&window, edge);
    drag(&window, edge + QPoint(-50, 0));
    QCOMPARE(window.geometry(), QRect(100, 200, 820, 620));
}

// The pointer went from the margin over the content, which may not tell where the pointer is.
void TestOvWindowEdges::enteringAChild()
{
    Window window;
    auto *content = new QWidget;
    window.mainLayout()->addWidget(content);
    const QPoint edge = window.middleOfLeftEdge();
    hover(&window, edge);
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(content, &enter);
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    press(&window, edge);
    drag(&window, edge + QPoint(-50, 0));
    QCOMPARE(window.geometry(), QRect(100, 200, 820, 620));

    hover(&window, window.middleOfLeftEdge());
    hover(window.titleBar(), window.pos() + QPoint(300, 30)); // the bar hands it on
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
}

void TestOvWindowEdges::resizing_data()
{
    QTest::addColumn<QPoint>("grip");
    QTest::addColumn<QRect>("geometry");
    // Each drag goes 20 to the right and 30 down.
    QTest::newRow("left") << QPoint(5, 300) << QRect(120, 200, 800, 620);
    QTest::newRow("right") << QPoint(815, 300) << QRect(100, 200, 840, 620);
    QTest::newRow("top") << QPoint(400, 5) << QRect(100, 230, 820, 590);
    QTest::newRow("bottom") << QPoint(400, 615) << QRect(100, 200, 820, 650);
    QTest::newRow("top left") << QPoint(5, 5) << QRect(120, 230, 800, 590);
    QTest::newRow("top right") << QPoint(815, 5) << QRect(100, 230, 840, 590);
    QTest::newRow("bottom left") << QPoint(5, 615) << QRect(120, 200, 800, 650);
    QTest::newRow("bottom right") << QPoint(815, 615) << QRect(100, 200, 840, 650);
}

void TestOvWindowEdges::resizing()
{
    QFETCH(QPoint, grip);
    QFETCH(QRect, geometry);
    Window window;
    const QPoint start = window.pos() + grip;
    pressAt(&window, start);
    drag(&window, start + QPoint(-40, 10));
    drag(&window, start + QPoint(20, 30));
    QCOMPARE(window.geometry(), geometry);
    QCOMPARE(window.contentSize(), geometry.size() - QSize(20, 20));
    release(&window, start + QPoint(20, 30));
    QCOMPARE(window.geometry(), geometry);
}

void TestOvWindowEdges::leftEdgeWithoutMoving()
{
    Window window;
    window.setMoveWithEdge(false);
    const QPoint start = window.middleOfLeftEdge();
    pressAt(&window, start);
    drag(&window, start + QPoint(-60, 0));
    QCOMPARE(window.geometry(), QRect(100, 200, 880, 620));
}

void TestOvWindowEdges::rightEdgeWithRatio()
{
    Window window;
    window.setContentSize(QSize(300, 600));
    window.updateWindowSize();
    window.setAspectRatio(0.5);
    const QPoint start = window.middleOfRightEdge();
    pressAt(&window, start);
    drag(&window, start + QPoint(100, 17));
    QCOMPARE(window.contentSize(), QSize(400, 800)); // higher by 200
    QCOMPARE(window.geometry(), QRect(100, 200, 420, 820));
    window.setAspectRatio(-1);
    drag(&window, start + QPoint(110, 17));
    QCOMPARE(window.contentSize(), QSize(410, 800));
}

void TestOvWindowEdges::leftEdgeStopsAtTheMinimum()
{
    Window window;
    window.setMinimumSize(520, 420);
    const QPoint start = window.middleOfLeftEdge();
    pressAt(&window, start);
    drag(&window, start + QPoint(290, 0));
    QCOMPARE(window.geometry(), QRect(390, 200, 530, 620));
    drag(&window, start + QPoint(1200, 0)); // far past the right edge
    QCOMPARE(window.geometry(), QRect(400, 200, 520, 620));
    drag(&window, start + QPoint(310, 0)); // not yet back at the edge
    QCOMPARE(window.geometry(), QRect(400, 200, 520, 620));
    drag(&window, start + QPoint(200, 0));
    QCOMPARE(window.geometry(), QRect(300, 200, 620, 620));
}

void TestOvWindowEdges::resizingEnds()
{
    Window window;
    const QPoint start = window.middleOfRightEdge();
    pressAt(&window, start);
    drag(&window, start + QPoint(40, 0));
    release(&window, start + QPoint(40, 0));
    drag(&window, start + QPoint(90, 0));
    QCOMPARE(window.size(), QSize(860, 620));
    press(&window, start); // the edge has to be found anew
    drag(&window, start + QPoint(90, 0));
    QCOMPARE(window.size(), QSize(860, 620));
}

void TestOvWindowEdges::resizingGoesOnOutside()
{
    Window window;
    window.setMoveWithEdge(false);
    const QPoint start = window.middleOfLeftEdge();
    pressAt(&window, start);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&window, &leave);
    drag(&window, start + QPoint(-60, 0));
    QCOMPARE(window.size(), QSize(880, 620));
}

// The release went elsewhere, after a drag that left the content smaller than the window can be.
void TestOvWindowEdges::lostRelease()
{
    Window window;
    window.setMinimumSize(520, 420);
    const QPoint start = window.pos() + QPoint(815, 615);
    pressAt(&window, start);
    drag(&window, start + QPoint(-700, -700));
    QCOMPARE(window.geometry(), QRect(100, 200, 520, 420));
    hover(&window, window.middle());
    QCOMPARE(window.contentSize(), QSize(520, 420));
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    drag(&window, start);
    QCOMPARE(window.geometry(), QRect(100, 200, 520, 420));
}

void TestOvWindowEdges::noResizeWithoutEdge()
{
    Window window;
    pressAt(&window, window.middle());
    drag(&window, window.middle() + QPoint(30, 30));
    QCOMPARE(window.geometry(), QRect(100, 200, 820, 620));
    const QPoint edge = window.middleOfLeftEdge();
    hover(&window, edge);
    sendMouse(&window, QEvent::MouseButtonPress, edge, Qt::RightButton, Qt::RightButton);
    drag(&window, edge + QPoint(-30, 0));
    QCOMPARE(window.geometry(), QRect(100, 200, 820, 620));
}

QTEST_MAIN(TestOvWindowEdges)
#include "tst_ovwindowedges.moc"
