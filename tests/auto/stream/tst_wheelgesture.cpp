#include "stream/WheelGesture.h"

#include <QTest>

#include <cmath>

namespace {

constexpr QSize Remote(720, 1280); // a notch is 128 pixels, a step 32

using Points = QVector<QPoint>;

Points pointsOf(const WheelGesture &gesture)
{
    QVector<int> xs;
    QVector<int> ys;
    gesture.appendPoints(xs, ys);
    Points points;
    for (int i = 0; i < xs.size(); ++i)
        points.append(QPoint(xs.at(i), ys.at(i)));
    return points;
}

// The moving finger's way, its start included.
Points wayOf(WheelGesture gesture)
{
    Points way = {pointsOf(gesture).last()};
    while (!gesture.atTarget() && way.size() < 10'000) {
        gesture.advance();
        way.append(pointsOf(gesture).last());
    }
    return way;
}

} // namespace

class tst_WheelGesture : public QObject
{
    Q_OBJECT

private slots:
    void distance_data();
    void distance();
    void centre_data();
    void centre();
    void dragInPortrait();
    void dragInLandscape();
    void pinchApart();
    void pinchTogether();
    void pinchOfOddDistance_data();
    void pinchOfOddDistance();
    void lastPixelsAreJumped();
    void eachAxisJumpsOnItsOwn();
    void stepsMayOvershoot();
    void everyScreenReachesTheTarget_data();
    void everyScreenReachesTheTarget();
};

void tst_WheelGesture::distance_data()
{
    QTest::addColumn<QPoint>("pixels");
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<QSize>("remote");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("a notch up") << QPoint() << QPoint(0, 120) << Remote << QPoint(0, 128);
    QTest::newRow("a notch down") << QPoint() << QPoint(0, -120) << Remote << QPoint(0, -128);
    QTest::newRow("sideways") << QPoint() << QPoint(-120, 240) << Remote << QPoint(-128, 256);
    QTest::newRow("a part of a notch") << QPoint() << QPoint(0, 15) << Remote << QPoint(0, 16);
    QTest::newRow("touchpad") << QPoint(3, -7) << QPoint(0, 120) << Remote << QPoint(3, -7);
    // 768 high: a step is 19 (19.2), a notch 76; 76 x 15 / 120 = 9.5.
    QTest::newRow("a half goes up") << QPoint() << QPoint(0, 15) << QSize(432, 768) << QPoint(0, 10);
    QTest::newRow("a negative half goes up")
        << QPoint() << QPoint(0, -15) << QSize(432, 768) << QPoint(0, -9);
    QTest::newRow("nothing") << QPoint() << QPoint() << Remote << QPoint();
}

void tst_WheelGesture::distance()
{
    QFETCH(QPoint, pixels);
    QFETCH(QPoint, angle);
    QFETCH(QSize, remote);
    QTEST(WheelGesture::distance(pixels, angle, remote), "expected");
}

void tst_WheelGesture::centre_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QSize>("view");
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::addColumn<QPoint>("expected");
    const auto portrait = ScreenOrientation::Portrait;
    const auto landscape = ScreenOrientation::Landscape;
    QTest::newRow("portrait") << QPoint(100, 200) << QSize(360, 640) << portrait << QPoint(200, 400);
    QTest::newRow("portrait, truncated") << QPoint(1, 1) << QSize(341, 601) << portrait << QPoint(2, 2);
    QTest::newRow("landscape, top left") << QPoint(0, 0) << QSize(640, 360) << landscape << QPoint(720, 0);
    QTest::newRow("landscape") << QPoint(200, 100) << QSize(640, 360) << landscape << QPoint(520, 400);
    // 720 - trunc(720 x 1 / 341) = 720 - 2
    QTest::newRow("landscape, truncated") << QPoint(1, 1) << QSize(601, 341) << landscape << QPoint(718, 2);
    QTest::newRow("no view") << QPoint(1, 1) << QSize(0, 0) << portrait << QPoint(360, 640);
}

void tst_WheelGesture::centre()
{
    QFETCH(QPoint, position);
    QFETCH(QSize, view);
    QFETCH(ScreenOrientation, orientation);
    QTEST(WheelGesture::centre(position, view, Remote, orientation), "expected");
}

void tst_WheelGesture::dragInPortrait()
{
    const auto gesture = WheelGesture::drag({300, 600}, {0, 128}, Remote, ScreenOrientation::Portrait);
    QCOMPARE(wayOf(gesture),
        (Points{{300, 472}, {300, 504}, {300, 536}, {300, 568}, {300, 600}, {300, 632}, {300, 664},
            {300, 696}, {300, 728}}));
    QCOMPARE(pointsOf(gesture).size(), 1);
}

void tst_WheelGesture::dragInLandscape()
{
    const Points way
        = wayOf(WheelGesture::drag({300, 600}, {64, -128}, Remote, ScreenOrientation::Landscape));
    QCOMPARE(way.first(), QPoint(172, 664));
    QCOMPARE(way.at(1), QPoint(204, 632));
    QCOMPARE(way.last(), QPoint(428, 536));
    QCOMPARE(way.size(), 9);
}

void tst_WheelGesture::pinchApart()
{
    auto gesture = WheelGesture::pinch({300, 600}, {0, 128}, Remote);
    QCOMPARE(pointsOf(gesture), (Points{{300, 536}, {300, 664}}));
    gesture.advance();
    QCOMPARE(pointsOf(gesture), (Points{{300, 504}, {300, 696}}));
    gesture.advance();
    QCOMPARE(pointsOf(gesture), (Points{{300, 472}, {300, 728}}));
    QVERIFY(gesture.atTarget());
}

void tst_WheelGesture::pinchTogether()
{
    auto gesture = WheelGesture::pinch({300, 600}, {0, -128}, Remote);
    QCOMPARE(pointsOf(gesture), (Points{{300, 728}, {300, 472}}));
    gesture.advance();
    QCOMPARE(pointsOf(gesture), (Points{{300, 696}, {300, 504}}));
    gesture.advance();
    QCOMPARE(pointsOf(gesture), (Points{{300, 664}, {300, 536}}));
    QVERIFY(gesture.atTarget());
}

void tst_WheelGesture::pinchOfOddDistance_data()
{
    QTest::addColumn<int>("dy");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::newRow("1: apart") << 1 << 600 << 601;
    QTest::newRow("0: together") << 0 << 600 << 600;
    QTest::newRow("-1: together") << -1 << 599 << 600;
    QTest::newRow("-7: halved toward zero") << -7 << 593 << 597;
}

void tst_WheelGesture::pinchOfOddDistance()
{
    QFETCH(int, dy);
    const Points way = wayOf(WheelGesture::pinch({300, 600}, {50, dy}, Remote));
    QTEST(way.first().y(), "start");
    QTEST(way.last().y(), "end");
    QCOMPARE(way.first().x(), 300);
    QCOMPARE(way.last().x(), 300);
}

void tst_WheelGesture::lastPixelsAreJumped()
{
    // 56 to go: a step of 32, then the 24 that are left at once.
    const Points way = wayOf(WheelGesture::drag({0, 100}, {0, 28}, Remote, ScreenOrientation::Portrait));
    QCOMPARE(way, (Points{{0, 72}, {0, 104}, {0, 128}}));
}

void tst_WheelGesture::eachAxisJumpsOnItsOwn()
{
    const Points way = wayOf(WheelGesture::drag({0, 100}, {12, 50}, Remote, ScreenOrientation::Portrait));
    QCOMPARE(way, (Points{{-12, 50}, {12, 82}, {12, 114}, {12, 146}, {12, 150}}));
}

void tst_WheelGesture::stepsMayOvershoot()
{
    // 26 to go is not near enough to jump: a whole step of 32, then back.
    const Points way = wayOf(WheelGesture::drag({0, 100}, {0, 13}, Remote, ScreenOrientation::Portrait));
    QCOMPARE(way, (Points{{0, 87}, {0, 119}, {0, 113}}));
}

void tst_WheelGesture::everyScreenReachesTheTarget_data()
{
    QTest::addColumn<int>("height");
    for (const int height : {1, 20, 39, 40, 1280, 2000, 2400, 4000, 8192})
        QTest::addRow("%d", height) << height;
}

void tst_WheelGesture::everyScreenReachesTheTarget()
{
    QFETCH(int, height);
    for (int dy = -400; dy <= 400; ++dy) {
        const auto gesture
            = WheelGesture::drag({0, 0}, {0, dy}, QSize(720, height), ScreenOrientation::Portrait);
        const Points way = wayOf(gesture);
        QCOMPARE(way.last(), QPoint(0, dy));
        QVERIFY(way.size() <= 900);
    }
}

QTEST_APPLESS_MAIN(tst_WheelGesture)

#include "tst_wheelgesture.moc"
