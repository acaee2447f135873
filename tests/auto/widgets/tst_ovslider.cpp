#include "widgets/OvBubble.h"
#include "widgets/OvSlider.h"

#include <QEnterEvent>
#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>

namespace {

// A shown slider, with the pointer's coming and going in the hands of the test.
class Slider : public OvSlider
{
public:
    explicit Slider(Qt::Orientation orientation = Qt::Horizontal)
        : OvSlider(orientation)
    {
        setWindowFlag(Qt::FramelessWindowHint);
        setRange(0, 1000);
        setGeometry(orientation == Qt::Horizontal ? QRect(400, 300, 300, 40) : QRect(400, 300, 40, 300));
    }
    bool appear()
    {
        show();
        return QTest::qWaitForWindowExposed(this);
    }
    void enter()
    {
        QEnterEvent event(QPointF(5, 5), QPointF(5, 5), QPointF(mapToGlobal(QPoint(5, 5))));
        QCoreApplication::sendEvent(this, &event);
    }
    void leave()
    {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(this, &event);
    }
    OvBubble *bubble() const { return findChild<OvBubble *>(); }
    QString shownValue() const { return qobject_cast<QLabel *>(bubble()->contentWidget())->text(); }
    // In screen coordinates.
    QRect handleRect() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        const QRect rect = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
        return rect.translated(mapToGlobal(QPoint(0, 0)));
    }
};

} // namespace

// The slider with its value in a bubble.
class TestOvSlider : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void bubbleWhileThePointerIsOnIt();
    void bubbleIsAboveTheHandle_data();
    void bubbleIsAboveTheHandle();
    void bubbleFollowsTheValue();
    void bubbleFollowsTheRange();
    void slotSetsTextAndPosition();
    void bubbleGoesWithTheSlider();
    void pressTakesNoFocus();
    void handleLooks();
};

void TestOvSlider::construction()
{
    const OvSlider slider;
    QCOMPARE(slider.orientation(), Qt::Horizontal);
    QCOMPARE(slider.focusPolicy(), Qt::NoFocus);
    const auto *bubble = slider.findChild<OvBubble *>();
    QVERIFY(bubble);
    QCOMPARE(bubble->color(), QColor(48, 49, 51));
    QCOMPARE(bubble->arrowDirection(), OvBubble::ArrowDown);
    auto *label = qobject_cast<QLabel *>(bubble->contentWidget());
    QVERIFY(label);
    label->ensurePolished();
    QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::white));
    QVERIFY(!bubble->isVisible());
}

void TestOvSlider::bubbleWhileThePointerIsOnIt()
{
    Slider slider;
    slider.setValue(421);
    QVERIFY(slider.appear());
    slider.leave(); // wherever the display's own pointer is
    QVERIFY(!slider.bubble()->isVisible());
    slider.enter();
    QVERIFY(slider.bubble()->isVisible());
    QCOMPARE(slider.shownValue(), QStringLiteral("421"));
    slider.leave();
    QVERIFY(!slider.bubble()->isVisible());
}

void TestOvSlider::bubbleIsAboveTheHandle_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("value");
    QTest::newRow("left end") << Qt::Horizontal << 0;
    QTest::newRow("middle") << Qt::Horizontal << 500;
    QTest::newRow("right end") << Qt::Horizontal << 1000;
    QTest::newRow("upright, low") << Qt::Vertical << 100;
    QTest::newRow("upright, high") << Qt::Vertical << 900;
}

void TestOvSlider::bubbleIsAboveTheHandle()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, value);
    Slider slider(orientation);
    slider.setValue(value);
    QVERIFY(slider.appear());
    slider.enter();
    const QRect handle = slider.handleRect();
    const QRect bubble = slider.bubble()->geometry();
    QCOMPARE(bubble.y() + bubble.height(), handle.y());
    QCOMPARE(bubble.x() + bubble.width() / 2, handle.x() + handle.width() / 2);
}

void TestOvSlider::bubbleFollowsTheValue()
{
    Slider slider;
    slider.setValue(5);
    QVERIFY(slider.appear());
    slider.enter();
    const QRect before = slider.bubble()->geometry();
    slider.setValue(800);
    QCOMPARE(slider.shownValue(), QStringLiteral("800"));
    const QRect after = slider.bubble()->geometry();
    QVERIFY(after.x() > before.x() + 150);
    QVERIFY(after.width() > before.width()); // room for more digits
    const QRect handle = slider.handleRect();
    QCOMPARE(after.x() + after.width() / 2, handle.x() + handle.width() / 2);
}

void TestOvSlider::bubbleFollowsTheRange()
{
    Slider slider;
    slider.setValue(500);
    QVERIFY(slider.appear());
    slider.enter();
    slider.setRange(0, 500);
    const QRect handle = slider.handleRect();
    const QRect bubble = slider.bubble()->geometry();
    QCOMPARE(bubble.x() + bubble.width() / 2, handle.x() + handle.width() / 2);
}

void TestOvSlider::slotSetsTextAndPosition()
{
    Slider slider;
    QVERIFY(slider.metaObject()->indexOfSlot("onValueChanged(int)") >= 0);
    QVERIFY(slider.appear());
    slider.onValueChanged(33);
    QCOMPARE(slider.shownValue(), QStringLiteral("33"));
}

void TestOvSlider::bubbleGoesWithTheSlider()
{
    Slider slider;
    QVERIFY(slider.appear());
    slider.enter();
    slider.hide();
    QVERIFY(!slider.bubble()->isVisible());
}

void TestOvSlider::pressTakesNoFocus()
{
    Slider slider;
    QVERIFY(slider.appear());
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(250, 20));
    QVERIFY(!slider.hasFocus());
}

// White, with a border of 2 pixels around a width of 12.
void TestOvSlider::handleLooks()
{
    Slider slider;
    slider.setValue(500);
    QVERIFY(slider.appear());
    const QImage image = slider.grab().toImage();
    const QRect handle = slider.handleRect().translated(-slider.mapToGlobal(QPoint(0, 0)));
    QCOMPARE(handle.width(), 12 + 2 * 2);
    QCOMPARE(handle.height(), 16);
    const int y = handle.center().y();
    QCOMPARE(image.pixelColor(handle.center()), QColor(Qt::white));
    for (const int x : {handle.left(), handle.left() + 1, handle.right() - 1, handle.right()})
        QCOMPARE(image.pixelColor(x, y), QColor(0x07, 0xCC, 0xFB));
    QCOMPARE(image.pixelColor(handle.left() + 3, y), QColor(Qt::white));
    QCOMPARE(image.pixelColor(20, y), QColor(0x07, 0xCC, 0xFB)); // what is reached
    QCOMPARE(image.pixelColor(280, y), QColor(0xE5, 0xE7, 0xED)); // what is not
}

QTEST_MAIN(TestOvSlider)
#include "tst_ovslider.moc"
