#include "widgets/OvShadowEffect.h"

#include <QGraphicsDropShadowEffect>
#include <QImage>
#include <QLayout>
#include <QPointer>
#include <QTest>

// The shadow around a widget, where the window system composes.
class TestOvShadowEffect : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void surroundsItsParent();
    void followsItsParent();
    void followsTheWindowOfItsParent();
    void followsToAnotherWindow();
    void painting();
    void goesWithItsParent();
};

void TestOvShadowEffect::construction()
{
    QWidget parent(nullptr, Qt::FramelessWindowHint);
    parent.resize(200, 100);
    const OvShadowEffect shadow(&parent);
    QVERIFY(shadow.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(shadow.windowFlags() & Qt::WindowTransparentForInput);
    QVERIFY(shadow.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(shadow.testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(shadow.focusPolicy(), Qt::NoFocus);
    QCOMPARE(shadow.size(), QSize(208, 108));
    QCOMPARE(shadow.layout()->contentsMargins(), QMargins(4, 4, 4, 4));
    const QWidget *inner = shadow.layout()->itemAt(0)->widget();
    QCOMPARE(inner->geometry(), QRect(4, 4, 200, 100));
    const auto *effect = qobject_cast<QGraphicsDropShadowEffect *>(inner->graphicsEffect());
    QVERIFY(effect);
    QCOMPARE(effect->blurRadius(), 8.0);
}

void TestOvShadowEffect::surroundsItsParent()
{
    QWidget parent(nullptr, Qt::FramelessWindowHint);
    parent.setGeometry(300, 200, 200, 100);
    const OvShadowEffect shadow(&parent);
    QVERIFY(!shadow.isVisible());
    parent.show();
    QVERIFY(shadow.isVisible());
    QCOMPARE(shadow.geometry(), QRect(296, 196, 208, 108));
}

void TestOvShadowEffect::followsItsParent()
{
    QWidget parent(nullptr, Qt::FramelessWindowHint);
    parent.setGeometry(300, 200, 200, 100);
    const OvShadowEffect shadow(&parent);
    parent.show();
    parent.move(50, 60);
    QCOMPARE(shadow.geometry(), QRect(46, 56, 208, 108));
    parent.resize(20, 30);
    QCOMPARE(shadow.geometry(), QRect(46, 56, 28, 38));
    QCOMPARE(shadow.layout()->itemAt(0)->widget()->geometry(), QRect(4, 4, 20, 30));
    parent.hide();
    QVERIFY(!shadow.isVisible());
    parent.show();
    QVERIFY(shadow.isVisible());
}

void TestOvShadowEffect::followsTheWindowOfItsParent()
{
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.setGeometry(300, 200, 400, 300);
    auto *panel = new QWidget(&window);
    QWidget parent(panel);
    panel->setGeometry(20, 30, 200, 200);
    parent.setGeometry(5, 5, 100, 50);
    const OvShadowEffect shadow(&parent);
    window.show();
    QCOMPARE(shadow.geometry(), QRect(321, 231, 108, 58));
    window.move(400, 100);
    QCOMPARE(shadow.geometry(), QRect(421, 131, 108, 58));
    panel->move(30, 30);
    QCOMPARE(shadow.geometry(), QRect(431, 131, 108, 58));
    panel->hide();
    QVERIFY(!shadow.isVisible());
    panel->show();
    window.showMinimized();
    QVERIFY(!shadow.isVisible());
    window.showNormal();
    QVERIFY(shadow.isVisible());
}

void TestOvShadowEffect::followsToAnotherWindow()
{
    QWidget first(nullptr, Qt::FramelessWindowHint);
    first.setGeometry(300, 200, 400, 300);
    QWidget second(nullptr, Qt::FramelessWindowHint);
    second.setGeometry(100, 100, 400, 300);
    auto *parent = new QWidget(&first);
    parent->setGeometry(10, 10, 50, 50);
    const QPointer<OvShadowEffect> shadow = new OvShadowEffect(parent);
    second.show();
    parent->setParent(&second);
    parent->show();
    QCOMPARE(shadow->pos(), QPoint(106, 106));
    second.move(200, 100);
    QCOMPARE(shadow->pos(), QPoint(206, 106));
}

// Darker towards the parent, and open over it.
void TestOvShadowEffect::painting()
{
    QWidget parent(nullptr, Qt::FramelessWindowHint);
    parent.setGeometry(300, 200, 200, 100);
    OvShadowEffect shadow(&parent);
    parent.show();
    const QRegion mask = shadow.mask();
    QVERIFY(!mask.contains(QPoint(4, 4)));
    QVERIFY(!mask.contains(QPoint(203, 103)));
    QVERIFY(mask.contains(QPoint(3, 50)));
    QVERIFY(mask.contains(QPoint(204, 50)));
    QImage image(shadow.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    shadow.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    const int outer = image.pixelColor(0, 50).alpha();
    const int inner = image.pixelColor(3, 50).alpha();
    QVERIFY(inner > outer);
    QVERIFY(inner > 20);
    QVERIFY(inner < 128);
}

void TestOvShadowEffect::goesWithItsParent()
{
    auto *parent = new QWidget;
    const QPointer<OvShadowEffect> shadow = new OvShadowEffect(parent);
    parent->show();
    delete parent;
    QVERIFY(!shadow);
}

QTEST_MAIN(TestOvShadowEffect)
#include "tst_ovshadoweffect.moc"
