// The device window where the toolkit does not scale: on a screen of twice the usual density, lengths that
// are given in device-independent pixels are twice as many pixels.

#include "DeviceWindowFixture.h"

#include "device/StandbyWidget.h"

#include <QLayout>
#include <QScreen>

using namespace devicetest;

class tst_DeviceWindowDensity : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void standbySpacers_data();
    void standbySpacers();
    void maximizedLandscapeWidth();
};

void tst_DeviceWindowDensity::initTestCase()
{
    QCOMPARE(QGuiApplication::primaryScreen()->logicalDotsPerInch(), 192.0);
}

void tst_DeviceWindowDensity::standbySpacers_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::addColumn<QVector<int>>("heights");
    QTest::newRow("landscape") << ScreenOrientation::Landscape << QVector<int>{40, 64};
    QTest::newRow("portrait") << ScreenOrientation::Portrait << QVector<int>{240, 320};
}

void tst_DeviceWindowDensity::standbySpacers()
{
    QFETCH(ScreenOrientation, orientation);
    StandbyWidget page;
    page.setOrientation(orientation);
    page.updateLayout();
    QVector<int> heights;
    for (int i = 0; i < page.layout()->count(); ++i) {
        const QSpacerItem *spacer = page.layout()->itemAt(i)->spacerItem();
        if (spacer && spacer->sizeHint().height() > 0)
            heights.append(spacer->sizeHint().height());
    }
    QTEST(heights, "heights");
}

void tst_DeviceWindowDensity::maximizedLandscapeWidth()
{
    Fixture fixture;
    fixture.makeWindow();
    fixture.window->setAvailableGeometry([](const QPoint &) { return QRect(0, 0, 4000, 3000); });
    QVERIFY(fixture.open());
    fixture.window->onScreenRotateBtnClicked();
    fixture.window->onMaximizeShortcutActivated();
    QCOMPARE(fixture.window->contentSize().width(), 2600 - 20);
}

int main(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "192");
    qunsetenv("QT_SCALE_FACTOR");
    QApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QApplication application(argc, argv);
    tst_DeviceWindowDensity test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_devicewindowdensity.moc"
