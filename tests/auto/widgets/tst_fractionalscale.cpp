#include "WidgetTestSupport.h"

#include "widgets/OvWindowBase.h"

#include <QApplication>
#include <QTest>

using namespace widgettest;

// The frameless window on a screen scaled by 125 %, where sizes and positions that come from the window
// system are off by roundings.
class TestFractionalScale : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void movedStepByStep();
    void sizedByOnePixel();
    void draggedPixelByPixel_data();
    void draggedPixelByPixel();
};

void TestFractionalScale::initTestCase()
{
    OvWindowBase window;
    QCOMPARE(window.devicePixelRatioF(), 1.25);
}

// Whatever the window system answers meanwhile, the window arrives where it was moved.
void TestFractionalScale::movedStepByStep()
{
    OvWindowBase window;
    window.setContentSize(QSize(401, 301));
    window.updateWindowSize();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (int step = 1; step <= 20; ++step) {
        window.move(101 + 7 * step, 51 + 3 * step);
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(window.pos(), QPoint(241, 111));
    QVERIFY(qAbs(window.width() - 421) <= 1);
    QVERIFY(qAbs(window.height() - 321) <= 1);
}

// A size that is asked for is given, however small the change.
void TestFractionalScale::sizedByOnePixel()
{
    OvWindowBase window;
    for (int width = 400; width < 410; ++width) {
        window.setContentSize(QSize(width, 300));
        window.updateWindowSize();
        QCOMPARE(window.size(), QSize(width + 20, 320));
    }
}

void TestFractionalScale::draggedPixelByPixel_data()
{
    QTest::addColumn<int>("gripX");
    QTest::addColumn<int>("step");
    QTest::newRow("left edge outwards") << 5 << -1;
    QTest::newRow("left edge inwards") << 5 << 1;
    QTest::newRow("right edge outwards") << 415 << 1;
    QTest::newRow("right edge inwards") << 415 << -1;
}

// The edge follows the pointer and the opposite one stays.
void TestFractionalScale::draggedPixelByPixel()
{
    QFETCH(int, gripX);
    QFETCH(int, step);
    OvWindowBase window;
    window.setContentSize(QSize(400, 300));
    window.updateWindowSize();
    window.move(200, 100);
    const QPoint start = window.pos() + QPoint(gripX, 150);
    hover(&window, start);
    press(&window, start);
    const bool isLeft = gripX < 200;
    for (int i = 1; i <= 40; ++i) {
        drag(&window, start + QPoint(i * step, 0));
        const int moved = i * step;
        QCOMPARE(window.geometry(),
            isLeft ? QRect(200 + moved, 100, 420 - moved, 320) : QRect(200, 100, 420 + moved, 320));
    }
}

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", "1.25");
    QApplication application(argc, argv);
    TestFractionalScale test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_fractionalscale.moc"
