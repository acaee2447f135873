#include "widgets/EdgeResize.h"

#include <QTest>

using namespace EdgeResize;

// The geometry of resizing by the margin. The window of the tests stands at (100, 200) and is 820 x 620 with
// a margin of 10.
class TestEdgeResize : public QObject
{
    Q_OBJECT

private slots:
    void edges_data();
    void edges();
    void smallWindow();
    void cursors_data();
    void cursors();
    void step_data();
    void step();
    void followsAgainAfterTheMinimum();
    void stopsAtTheMaximum();
    void absurdRatios();

private:
    static Rules rules(int edges);
};

void TestEdgeResize::edges_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<int>("edges");
    QTest::newRow("top left corner") << QPoint(0, 0) << 5;
    QTest::newRow("top left corner, inner end") << QPoint(10, 10) << 5;
    QTest::newRow("left") << QPoint(0, 300) << 1;
    QTest::newRow("left, inner end") << QPoint(10, 300) << 1;
    QTest::newRow("beside the left edge") << QPoint(11, 300) << 0;
    QTest::newRow("right, inner end") << QPoint(810, 300) << 2;
    QTest::newRow("right, outer end") << QPoint(820, 300) << 2;
    QTest::newRow("beside the right edge") << QPoint(809, 300) << 0;
    QTest::newRow("top") << QPoint(400, 10) << 4;
    QTest::newRow("below the top edge") << QPoint(400, 11) << 0;
    QTest::newRow("bottom, inner end") << QPoint(400, 610) << 8;
    QTest::newRow("bottom, outer end") << QPoint(400, 620) << 8;
    QTest::newRow("above the bottom edge") << QPoint(400, 609) << 0;
    QTest::newRow("top right corner") << QPoint(815, 5) << 6;
    QTest::newRow("bottom left corner") << QPoint(5, 615) << 9;
    QTest::newRow("bottom right corner") << QPoint(815, 615) << 10;
    QTest::newRow("middle") << QPoint(400, 300) << 0;
    QTest::newRow("outside, left") << QPoint(-1, 300) << 0;
    QTest::newRow("outside, right") << QPoint(821, 300) << 0;
    QTest::newRow("outside, above") << QPoint(400, -1) << 0;
    QTest::newRow("outside, below") << QPoint(400, 621) << 0;
}

void TestEdgeResize::edges()
{
    QFETCH(QPoint, pointer);
    QTEST(edgesAt(pointer, QSize(820, 620), 10), "edges");
}

void TestEdgeResize::smallWindow()
{
    QCOMPARE(edgesAt(QPoint(8, 8), QSize(16, 16), 10), LeftEdge | TopEdge);
    QCOMPARE(edgesAt(QPoint(12, 12), QSize(16, 16), 10), RightEdge | BottomEdge);
}

void TestEdgeResize::cursors_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::newRow("none") << 0 << Qt::ArrowCursor;
    QTest::newRow("left") << 1 << Qt::SizeHorCursor;
    QTest::newRow("right") << 2 << Qt::SizeHorCursor;
    QTest::newRow("top") << 4 << Qt::SizeVerCursor;
    QTest::newRow("bottom") << 8 << Qt::SizeVerCursor;
    QTest::newRow("top left") << 5 << Qt::SizeFDiagCursor;
    QTest::newRow("bottom right") << 10 << Qt::SizeFDiagCursor;
    QTest::newRow("top right") << 6 << Qt::SizeBDiagCursor;
    QTest::newRow("bottom left") << 9 << Qt::SizeBDiagCursor;
}

void TestEdgeResize::cursors()
{
    QFETCH(int, edges);
    QTEST(cursorFor(edges), "shape");
}

Rules TestEdgeResize::rules(int edges)
{
    Rules rules;
    rules.edges = edges;
    rules.margins = QSize(20, 20);
    rules.minimumWindowSize = QSize(320, 220);
    rules.maximumWindowSize = QSize(16777215, 16777215);
    return rules;
}

void TestEdgeResize::step_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<bool>("moveWithEdge");
    QTest::addColumn<QPoint>("delta");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QSize>("content");
    const QPoint stays(100, 200);

    QTest::newRow("left") << 1 << -1.0 << true << QPoint(-30, 7) << QPoint(70, 200) << QSize(830, 600);
    QTest::newRow("left, not moving") << 1 << -1.0 << false << QPoint(-30, 7) << stays << QSize(830, 600);
    QTest::newRow("left, ratio") << 1 << 2.0 << true << QPoint(-31, 7) << QPoint(69, 200) << QSize(831, 415);
    QTest::newRow("left, below the minimum")
        << 1 << -1.0 << true << QPoint(600, 0) << QPoint(600, 200) << QSize(200, 600);
    QTest::newRow("right") << 2 << -1.0 << true << QPoint(30, 7) << stays << QSize(830, 600);
    QTest::newRow("right, ratio 0.5") << 2 << 0.5 << true << QPoint(100, 0) << stays << QSize(900, 1800);
    QTest::newRow("right, ratio 0 is free") << 2 << 0.0 << true << QPoint(30, 7) << stays << QSize(830, 600);
    QTest::newRow("top") << 4 << -1.0 << true << QPoint(9, 50) << QPoint(100, 250) << QSize(800, 550);
    QTest::newRow("top, not moving") << 4 << -1.0 << false << QPoint(9, 50) << stays << QSize(800, 550);
    QTest::newRow("top, ratio") << 4 << 0.75 << true << QPoint(9, -1) << QPoint(100, 199) << QSize(450, 601);
    QTest::newRow("top, below the minimum")
        << 4 << -1.0 << true << QPoint(0, 500) << QPoint(100, 600) << QSize(800, 100);
    QTest::newRow("bottom") << 8 << -1.0 << true << QPoint(9, 50) << stays << QSize(800, 650);
    QTest::newRow("bottom, ratio") << 8 << 1.5 << true << QPoint(9, 1) << stays << QSize(901, 601);
    QTest::newRow("top left") << 5 << -1.0 << true << QPoint(10, 20) << QPoint(110, 220) << QSize(790, 580);
    QTest::newRow("top left, not moving") << 5 << -1.0 << false << QPoint(10, 20) << stays << QSize(790, 580);
    QTest::newRow("top right") << 6 << -1.0 << true << QPoint(10, 20) << QPoint(100, 220) << QSize(810, 580);
    QTest::newRow("bottom left") << 9 << -1.0 << true << QPoint(10, 20) << QPoint(110, 200)
                                 << QSize(790, 620);
    QTest::newRow("bottom right") << 10 << -1.0 << true << QPoint(10, 20) << stays << QSize(810, 620);
    QTest::newRow("top left, ratio") << 5 << 2.0 << true << QPoint(-10, 99) << stays << QSize(810, 405);
    QTest::newRow("top right, ratio") << 6 << 2.0 << true << QPoint(10, 99) << stays << QSize(810, 405);
    QTest::newRow("bottom left, ratio") << 9 << 2.0 << true << QPoint(-10, 99) << stays << QSize(810, 405);
    QTest::newRow("bottom right, ratio") << 10 << 2.0 << true << QPoint(10, 99) << stays << QSize(810, 405);
    QTest::newRow("no edge") << 0 << 2.0 << true << QPoint(10, 20) << stays << QSize(800, 600);
}

void TestEdgeResize::step()
{
    QFETCH(int, edges);
    QFETCH(double, ratio);
    QFETCH(bool, moveWithEdge);
    QFETCH(QPoint, delta);
    Rules r = rules(edges);
    r.aspectRatio = ratio;
    r.moveWithEdge = moveWithEdge;
    const Step result = resizeStep(r, QRect(100, 200, 820, 620), QSize(800, 600), delta);
    QTEST(result.windowPos, "pos");
    QTEST(result.contentSize, "content");
}

// The pointer went past the minimum and comes back: the edge waits for it.
void TestEdgeResize::followsAgainAfterTheMinimum()
{
    const Rules r = rules(LeftEdge);
    const Step past = resizeStep(r, QRect(100, 200, 820, 620), QSize(800, 600), QPoint(550, 0));
    QCOMPARE(past.windowPos, QPoint(600, 200));
    QCOMPARE(past.contentSize, QSize(250, 600));
    const Step back = resizeStep(r, QRect(600, 200, 320, 620), past.contentSize, QPoint(-40, 0));
    QCOMPARE(back.windowPos, QPoint(600, 200));
    QCOMPARE(back.contentSize, QSize(290, 600));
    const Step further = resizeStep(r, QRect(600, 200, 320, 620), back.contentSize, QPoint(-30, 0));
    QCOMPARE(further.windowPos, QPoint(580, 200));
    QCOMPARE(further.contentSize, QSize(320, 600));
}

void TestEdgeResize::stopsAtTheMaximum()
{
    Rules r = rules(LeftEdge | TopEdge);
    r.maximumWindowSize = QSize(900, 700);
    const Step result = resizeStep(r, QRect(100, 200, 820, 620), QSize(800, 600), QPoint(-500, -500));
    QCOMPARE(result.windowPos, QPoint(20, 120)); // the lower right corner stays
}

void TestEdgeResize::absurdRatios()
{
    Rules r = rules(RightEdge);
    r.aspectRatio = 1e-300;
    QCOMPARE(
        resizeStep(r, QRect(0, 0, 820, 620), QSize(800, 600), QPoint(1, 0)).contentSize.height(), 16777215);
    r.edges = BottomEdge;
    r.aspectRatio = 1e300;
    QCOMPARE(
        resizeStep(r, QRect(0, 0, 820, 620), QSize(800, 600), QPoint(0, 1)).contentSize.width(), 16777215);
}

QTEST_GUILESS_MAIN(TestEdgeResize)
#include "tst_edgeresize.moc"
