#include "widgets/Compositing.h"
#include "widgets/OvShadowEffect.h"

#include <QPainterPath>
#include <QTest>
#include <QWidget>

// Translucent windows where nobody composes: the tests' X server has no compositing manager.
class TestCompositing : public QObject
{
    Q_OBJECT

private slots:
    void isNotActive() { QVERIFY(!Compositing::isActive()); }
    void shapeIsCutOut();
    void noShadow();
};

void TestCompositing::shapeIsCutOut()
{
    QWidget window;
    window.resize(100, 50);
    QPainterPath shape;
    shape.addRoundedRect(QRect(0, 0, 100, 50), 8, 8);
    Compositing::setShape(&window, shape);
    QVERIFY(!window.mask().contains(QPoint(0, 0)));
    QVERIFY(!window.mask().contains(QPoint(99, 49)));
    QVERIFY(window.mask().contains(QPoint(50, 0)));
    QVERIFY(window.mask().contains(QPoint(50, 49)));
    QVERIFY(window.mask().contains(QPoint(99, 25)));
}

// It would be a black frame.
void TestCompositing::noShadow()
{
    QWidget window;
    window.resize(100, 50);
    const OvShadowEffect shadow(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(!shadow.isVisible());
}

QTEST_MAIN(TestCompositing)
#include "tst_compositing.moc"
