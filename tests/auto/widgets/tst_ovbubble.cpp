#include "widgets/OvBubble.h"

#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QScreen>
#include <QTest>

Q_DECLARE_METATYPE(QMargins)

namespace {

// A piece of content of a fixed size.
class Content : public QWidget
{
public:
    explicit Content(const QSize &size) { setFixedSize(size); }
};

constexpr QSize contentSize(60, 30);

OvBubble::ArrowDirection direction(int value)
{
    return static_cast<OvBubble::ArrowDirection>(value);
}

// The bubble's own picture, without its content.
QImage pictureOf(OvBubble *bubble)
{
    QImage image(bubble->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    bubble->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

bool isPainted(const QImage &image, const QPoint &pos)
{
    return image.pixelColor(pos).alpha() == 255;
}

} // namespace

// The speech bubble.
class TestOvBubble : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void directionsAreNumbered();
    void margins_data();
    void margins();
    void marginsFollowTheArrowSize();
    void ownsItsContent();
    void painting_data();
    void painting();
    void arrowPosition_data();
    void arrowPosition();
    void arrowOnSmallBubble();
    void withoutArrow();
    void pointsAt_data();
    void pointsAt();
    void takesTheContentsSize();
    void staysOnTheScreen_data();
    void staysOnTheScreen();
    void turnsRoundAtTheEdge_data();
    void turnsRoundAtTheEdge();
    void staysWhereNoSideHasRoom();
    void shapeWithoutCompositor();
};

void TestOvBubble::construction()
{
    const OvBubble bubble;
    QCOMPARE(bubble.windowFlags() & Qt::WindowType_Mask, Qt::ToolTip);
    QVERIFY(bubble.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(bubble.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(bubble.testAttribute(Qt::WA_ShowWithoutActivating));
    QCOMPARE(bubble.focusPolicy(), Qt::NoFocus);
    QCOMPARE(bubble.color(), QColor(48, 49, 51));
    QCOMPARE(bubble.arrowDirection(), OvBubble::ArrowDown);
    QCOMPARE(bubble.arrowSize(), 10);
    QCOMPARE(bubble.arrowHalfWidth(), 5);
    QVERIFY(!bubble.arrowPosition());
    QVERIFY(!bubble.contentWidget());
    QVERIFY(!bubble.isVisible());
}

void TestOvBubble::directionsAreNumbered()
{
    QCOMPARE(OvBubble::ArrowUp, direction(0));
    QCOMPARE(OvBubble::ArrowRight, direction(1));
    QCOMPARE(OvBubble::ArrowDown, direction(2));
    QCOMPARE(OvBubble::ArrowLeft, direction(3));
}

void TestOvBubble::margins_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QMargins>("expected");
    QTest::newRow("up") << 0 << QMargins(2, 12, 2, 2);
    QTest::newRow("right") << 1 << QMargins(2, 2, 12, 2);
    QTest::newRow("down") << 2 << QMargins(2, 2, 2, 12);
    QTest::newRow("left") << 3 << QMargins(12, 2, 2, 2);
}

void TestOvBubble::margins()
{
    QFETCH(int, side);
    QFETCH(QMargins, expected);
    OvBubble bubble;
    bubble.setContentWidget(new Content(contentSize));
    bubble.setArrowDirection(direction(side));
    QCOMPARE(bubble.layout()->contentsMargins(), expected);
    bubble.pointAt(QRect(500, 500, 10, 10));
    QCOMPARE(bubble.size(), contentSize.grownBy(expected));
    QCOMPARE(bubble.contentWidget()->geometry(), QRect(QPoint(expected.left(), expected.top()), contentSize));
}

void TestOvBubble::marginsFollowTheArrowSize()
{
    OvBubble bubble;
    bubble.setArrowSize(6, 4);
    QCOMPARE(bubble.layout()->contentsMargins(), QMargins(2, 2, 2, 8));
    bubble.setArrowSize(-6, -4);
    QCOMPARE(bubble.layout()->contentsMargins(), QMargins(2, 2, 2, 2));
    QCOMPARE(bubble.arrowSize(), 0);
    QCOMPARE(bubble.arrowHalfWidth(), 0);
}

void TestOvBubble::ownsItsContent()
{
    QPointer<QWidget> second;
    {
        OvBubble bubble;
        const QPointer<QWidget> first = new Content(contentSize);
        bubble.setContentWidget(first);
        bubble.setContentWidget(first); // again
        QVERIFY(first);
        QCOMPARE(bubble.contentWidget(), first.data());
        second = new Content(contentSize);
        bubble.setContentWidget(second);
        QVERIFY(!first);
        QCOMPARE(second->parentWidget(), &bubble);
    }
    QVERIFY(!second);
}

void TestOvBubble::painting_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QRect>("body"); // of a bubble of 80 x 50
    QTest::addColumn<QPoint>("tip"); // a pixel well within the arrow's outer half
    QTest::addColumn<QPoint>("besides"); // one at its side
    QTest::newRow("up") << 0 << QRect(0, 10, 80, 40) << QPoint(40, 5) << QPoint(48, 5);
    QTest::newRow("right") << 1 << QRect(0, 0, 70, 50) << QPoint(75, 25) << QPoint(75, 33);
    QTest::newRow("down") << 2 << QRect(0, 0, 80, 40) << QPoint(40, 45) << QPoint(48, 45);
    QTest::newRow("left") << 3 << QRect(10, 0, 70, 50) << QPoint(5, 25) << QPoint(5, 33);
}

void TestOvBubble::painting()
{
    QFETCH(int, side);
    QFETCH(QRect, body);
    QFETCH(QPoint, tip);
    QFETCH(QPoint, besides);
    OvBubble bubble;
    bubble.setArrowDirection(direction(side));
    bubble.setColor(QColor(10, 200, 30));
    const QMargins margins = bubble.layout()->contentsMargins();
    bubble.setContentWidget(new Content(QSize(80, 50).shrunkBy(margins)));
    bubble.pointAt(QRect(500, 500, 10, 10));
    QCOMPARE(bubble.size(), QSize(80, 50));
    const QImage image = pictureOf(&bubble);
    QCOMPARE(image.pixelColor(body.center()), QColor(10, 200, 30));
    QVERIFY(isPainted(image, QPoint(body.center().x(), body.top())));
    QVERIFY(isPainted(image, QPoint(body.center().x(), body.bottom())));
    QVERIFY(isPainted(image, QPoint(body.left(), body.center().y())));
    QVERIFY(isPainted(image, QPoint(body.right(), body.center().y())));
    QVERIFY(!isPainted(image, body.topLeft())); // round
    QVERIFY(!isPainted(image, body.bottomRight()));
    QCOMPARE(image.pixelColor(tip), QColor(10, 200, 30));
    QCOMPARE(image.pixelColor(besides).alpha(), 0);
}

void TestOvBubble::arrowPosition_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("tip");
    QTest::newRow("near the left") << 20 << 20;
    QTest::newRow("middle") << 50 << 50;
    QTest::newRow("not on the left corner") << 0 << 9;
    QTest::newRow("not on the right corner") << 100 << 91;
    QTest::newRow("beyond") << -700 << 9;
}

void TestOvBubble::arrowPosition()
{
    QFETCH(int, position);
    QFETCH(int, tip);
    OvBubble bubble;
    bubble.setContentWidget(new Content(QSize(96, 30)));
    bubble.pointAt(QRect(500, 500, 10, 10));
    bubble.setArrowPosition(position);
    QCOMPARE(*bubble.arrowPosition(), position);
    const QImage image = pictureOf(&bubble);
    const int row = image.height() - 5;
    QVERIFY(isPainted(image, QPoint(tip - 1, row)));
    QVERIFY(isPainted(image, QPoint(tip, row)));
    QCOMPARE(image.pixelColor(tip - 5, row).alpha(), 0);
    QCOMPARE(image.pixelColor(tip + 4, row).alpha(), 0);
    bubble.setArrowPosition({});
    QVERIFY(isPainted(pictureOf(&bubble), QPoint(50, row)));
}

// Where there is no straight piece, the arrow is in the middle.
void TestOvBubble::arrowOnSmallBubble()
{
    OvBubble bubble;
    bubble.setContentWidget(new Content(QSize(8, 8)));
    bubble.pointAt(QRect(500, 500, 10, 10));
    bubble.setArrowPosition(2);
    QVERIFY(isPainted(pictureOf(&bubble), QPoint(6, bubble.height() - 5)));
}

void TestOvBubble::withoutArrow()
{
    OvBubble bubble;
    bubble.setArrowSize(0, 5);
    bubble.setContentWidget(new Content(contentSize));
    bubble.pointAt(QRect(500, 500, 10, 10));
    QCOMPARE(bubble.size(), QSize(64, 34));
    QVERIFY(isPainted(pictureOf(&bubble), QPoint(32, 33)));
}

void TestOvBubble::pointsAt_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("up") << 0 << QRect(520 - 32, 440, 64, 44);
    QTest::newRow("right") << 1 << QRect(500 - 74, 420 - 17, 74, 34);
    QTest::newRow("down") << 2 << QRect(520 - 32, 400 - 44, 64, 44);
    QTest::newRow("left") << 3 << QRect(540, 420 - 17, 74, 34);
}

void TestOvBubble::pointsAt()
{
    QFETCH(int, side);
    OvBubble bubble;
    bubble.setArrowDirection(direction(side));
    bubble.setContentWidget(new Content(contentSize));
    bubble.pointAt(QRect(500, 400, 40, 40));
    QTEST(bubble.geometry(), "expected");
    bubble.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bubble));
    QTEST(bubble.geometry(), "expected");
}

// A text that has changed a moment ago counts.
void TestOvBubble::takesTheContentsSize()
{
    OvBubble bubble;
    auto *label = new QLabel(QStringLiteral("1"));
    bubble.setContentWidget(label);
    bubble.pointAt(QRect(500, 400, 40, 40));
    bubble.show();
    const int before = bubble.width();
    label->setText(QStringLiteral("a much longer text"));
    bubble.pointAt(QRect(500, 400, 40, 40));
    QVERIFY(bubble.width() > before);
    QCOMPARE(bubble.width(), label->sizeHint().width() + 4);
    QCOMPARE(bubble.x(), 520 - bubble.width() / 2);
    label->setText(QStringLiteral("1"));
    bubble.pointAt(QRect(500, 400, 40, 40));
    QCOMPARE(bubble.width(), before);
}

void TestOvBubble::staysOnTheScreen_data()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::addColumn<int>("side");
    QTest::addColumn<QRect>("target");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<int>("tip"); // along the side
    QTest::newRow("left edge") << 2 << QRect(4, 400, 20, 20) << QPoint(0, 356) << 14;
    QTest::newRow("right edge") << 2 << QRect(screen.right() - 19, 400, 20, 20)
                                << QPoint(screen.right() - 63, 356) << 54;
    QTest::newRow("upper edge") << 1 << QRect(500, 0, 20, 20) << QPoint(426, 0) << 10;
    QTest::newRow("lower edge") << 3 << QRect(500, screen.bottom() - 19, 20, 20)
                                << QPoint(520, screen.bottom() - 33) << 24;
}

void TestOvBubble::staysOnTheScreen()
{
    QFETCH(int, side);
    QFETCH(QRect, target);
    QFETCH(int, tip);
    OvBubble bubble;
    bubble.setArrowDirection(direction(side));
    bubble.setContentWidget(new Content(contentSize));
    bubble.pointAt(target);
    QTEST(bubble.pos(), "pos");
    QCOMPARE(bubble.shownArrowDirection(), direction(side));
    const QImage image = pictureOf(&bubble);
    QVERIFY(isPainted(image,
        side == 2       ? QPoint(tip, image.height() - 5)
            : side == 1 ? QPoint(image.width() - 5, tip)
                        : QPoint(4, tip)));
}

void TestOvBubble::turnsRoundAtTheEdge_data()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::addColumn<int>("side");
    QTest::addColumn<QRect>("target");
    QTest::addColumn<int>("shown");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("above a slider at the upper edge")
        << 2 << QRect(500, 10, 20, 20) << 0 << QRect(478, 30, 64, 44);
    QTest::newRow("left of a button at the left edge")
        << 1 << QRect(5, 400, 40, 40) << 3 << QRect(45, 403, 74, 34);
    QTest::newRow("below at the lower edge") << 0 << QRect(500, screen.bottom() - 29, 20, 20) << 2
                                             << QRect(478, screen.bottom() - 29 - 44, 64, 44);
    QTest::newRow("right of it at the right edge")
        << 3 << QRect(screen.right() - 49, 400, 40, 40) << 1 << QRect(screen.right() - 49 - 74, 403, 74, 34);
}

void TestOvBubble::turnsRoundAtTheEdge()
{
    QFETCH(int, side);
    QFETCH(QRect, target);
    QFETCH(int, shown);
    OvBubble bubble;
    bubble.setArrowDirection(direction(side));
    bubble.setContentWidget(new Content(contentSize));
    bubble.pointAt(target);
    QCOMPARE(bubble.shownArrowDirection(), direction(shown));
    QCOMPARE(bubble.arrowDirection(), direction(side));
    QTEST(bubble.geometry(), "expected");
    bubble.pointAt(QRect(700, 500, 40, 40)); // with room again
    QCOMPARE(bubble.shownArrowDirection(), direction(side));
}

void TestOvBubble::staysWhereNoSideHasRoom()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    OvBubble bubble;
    bubble.setContentWidget(new Content(contentSize));
    bubble.pointAt(screen);
    QCOMPARE(bubble.shownArrowDirection(), OvBubble::ArrowDown);
    QVERIFY(screen.contains(bubble.geometry()));
}

// The tests' window system cannot compose: nothing black may stand beside the arrow.
void TestOvBubble::shapeWithoutCompositor()
{
    OvBubble bubble;
    bubble.setContentWidget(new Content(contentSize));
    bubble.pointAt(QRect(500, 400, 40, 40));
    QVERIFY(bubble.mask().isEmpty());
    bubble.show();
    QVERIFY(bubble.mask().contains(QPoint(32, 17)));
    QVERIFY(bubble.mask().contains(QPoint(32, 40)));
    QVERIFY(!bubble.mask().contains(QPoint(10, 40)));
    bubble.setArrowPosition(10);
    QVERIFY(bubble.mask().contains(QPoint(10, 40)));
    QVERIFY(!bubble.mask().contains(QPoint(32, 40)));
    bubble.setArrowDirection(OvBubble::ArrowUp);
    QVERIFY(!bubble.mask().contains(QPoint(32, 5)));
    QVERIFY(bubble.mask().contains(QPoint(10, 5)));
}

QTEST_MAIN(TestOvBubble)
#include "tst_ovbubble.moc"
