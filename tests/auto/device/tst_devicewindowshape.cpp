#include "device/DeviceWindowShape.h"

#include <QTest>

class tst_DeviceWindowShape : public QObject
{
    Q_OBJECT

private slots:
    void contentSizes();
    void turned_data();
    void turned();
    void maximized_data();
    void maximized();
    void fitted_data();
    void fitted();
    void positionWithin_data();
    void positionWithin();
};

void tst_DeviceWindowShape::contentSizes()
{
    using namespace DeviceWindowShape;
    QCOMPARE(contentSize(ScreenOrientation::Portrait), QSize(390, 640));
    QCOMPARE(contentSize(ScreenOrientation::Landscape), QSize(650, 380));
    for (const auto orientation : {ScreenOrientation::Portrait, ScreenOrientation::Landscape}) {
        const double ratio = aspectRatio(contentSize(orientation));
        QVERIFY(qAbs(ratio - aspectRatio(smallestContentSize(orientation))) < 0.01);
    }
    QCOMPARE(DeviceWindowShape::turned(smallestContentSize(ScreenOrientation::Portrait)),
        smallestContentSize(ScreenOrientation::Landscape));
}

void tst_DeviceWindowShape::turned_data()
{
    QTest::addColumn<QSize>("content");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("portrait") << QSize(390, 640) << QSize(650, 380);
    QTest::newRow("landscape") << QSize(650, 380) << QSize(390, 640);
    QTest::newRow("larger") << QSize(590, 968) << QSize(978, 580);
}

// The menu bar keeps its 50 pixels, the title bar its 40; the rest changes places.
void tst_DeviceWindowShape::turned()
{
    QFETCH(QSize, content);
    QTEST(DeviceWindowShape::turned(content), "expected");
    QCOMPARE(DeviceWindowShape::turned(DeviceWindowShape::turned(content)), content);
}

void tst_DeviceWindowShape::maximized_data()
{
    QTest::addColumn<QRect>("area");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QRect>("expected");
    const QRect screen(0, 40, 1920, 1000);
    QTest::newRow("full height") << screen << 0.6 << 0 << QRect(660, 40, 600, 1000);
    QTest::newRow("full width") << screen << 2.0 << 0 << QRect(0, 60, 1920, 960);
    QTest::newRow("exactly") << screen << 1.92 << 0 << screen;
    QTest::newRow("limited") << screen << 1.7 << 1300 << QRect(310, 158, 1300, 764);
    QTest::newRow("below the limit") << QRect(0, 0, 1200, 700) << 2.0 << 1300 << QRect(0, 50, 1200, 600);
    QTest::newRow("narrow screen") << QRect(100, 0, 600, 2000) << 0.6 << 0 << QRect(100, 500, 600, 1000);
    QTest::newRow("limited full width")
        << QRect(0, 0, 2600, 1000) << 2.6 << 1300 << QRect(650, 250, 1300, 500);
}

void tst_DeviceWindowShape::maximized()
{
    QFETCH(QRect, area);
    QFETCH(double, ratio);
    QFETCH(int, limit);
    QTEST(DeviceWindowShape::maximized(area, ratio, limit), "expected");
}

void tst_DeviceWindowShape::fitted_data()
{
    QTest::addColumn<QSize>("content");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("fits") << QSize(650, 380) << QSize(650, 380);
    QTest::newRow("all of it") << QSize(1920, 1000) << QSize(1920, 1000);
    QTest::newRow("too high") << QSize(800, 1250) << QSize(640, 1000);
    QTest::newRow("too wide") << QSize(3840, 1000) << QSize(1920, 500);
}

void tst_DeviceWindowShape::fitted()
{
    QFETCH(QSize, content);
    QTEST(DeviceWindowShape::fitted(content, QSize(1920, 1000)), "expected");
}

void tst_DeviceWindowShape::positionWithin_data()
{
    QTest::addColumn<QRect>("body");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("within") << QRect(200, 100, 650, 380) << QPoint(200, 100);
    QTest::newRow("right") << QRect(1500, 100, 650, 380) << QPoint(1270, 100);
    QTest::newRow("below") << QRect(200, 900, 650, 380) << QPoint(200, 660);
    QTest::newRow("left and above") << QRect(-30, 10, 650, 380) << QPoint(0, 40);
    QTest::newRow("larger") << QRect(50, 60, 2000, 1100) << QPoint(0, 40);
}

void tst_DeviceWindowShape::positionWithin()
{
    QFETCH(QRect, body);
    QTEST(DeviceWindowShape::positionWithin(QRect(0, 40, 1920, 1000), body), "expected");
}

QTEST_APPLESS_MAIN(tst_DeviceWindowShape)

#include "tst_devicewindowshape.moc"
