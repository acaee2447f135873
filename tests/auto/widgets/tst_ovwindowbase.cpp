#include "WidgetTestSupport.h"

#include "widgets/OvTitleBarBase.h"
#include "widgets/OvWindowBase.h"

#include <QEvent>
#include <QGuiApplication>
#include <QImage>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace widgettest;

namespace {

// The screen of the tests, less a task bar of 40 pixels at its lower end.
constexpr QRect availableArea(0, 0, 1920, 1040);

// A window of 820 x 620 at (100, 200) with a content of 800 x 600.
class Window : public OvWindowBase
{
public:
    Window()
    {
        setAvailableGeometry([](const QPoint &) { return availableArea; });
        setContentSize(QSize(800, 600));
        updateWindowSize();
        move(100, 200);
    }
    QPushButton *button(const char *name) const { return findChild<QPushButton *>(QLatin1String(name)); }
    QPoint middleOfLeftEdge() const { return pos() + QPoint(5, height() / 2); }
    QPoint middleOfRightEdge() const { return pos() + QPoint(width() - 5, height() / 2); }
    QPoint middle() const { return geometry().center(); }
};

// Counts how often it is painted.
class PaintCounter : public QWidget
{
public:
    using QWidget::QWidget;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
};

// Takes hold of what is under the pointer.
void pressAt(QWidget *window, const QPoint &globalPos)
{
    hover(window, globalPos);
    press(window, globalPos);
}

} // namespace

// The frameless window base.
class TestOvWindowBase : public QObject
{
    Q_OBJECT

private slots:
    void metaObject();
    void construction();
    void contentAndMargins();
    void minimumSizeHolds();
    void withoutContentSize();
    void shadowMargin();
    void fixedContentSize();
    void moveUpdatesTheSize();
    void movesAreFollowedTogether();
    void sizeUpdateRepaintsTheContent();
    void maximizeAndRestore();
    void maximizeTwice();
    void restoreWithoutMaximize();
    void maximizedOnTheScreen();
    void dragFromMaximized();
    void minimize();
    void closeButton();
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
    void titleBarDragMoves();
    void painting();
};

void TestOvWindowBase::metaObject()
{
    const QMetaObject &meta = OvWindowBase::staticMetaObject;
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList{"sigCloseBtnClicked()"});
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
        (QStringList{
            "onBtnMinClicked()", "onBtnMaxClicked()", "onBtnRestoreClicked()", "onBtnCloseClicked()"}));
}

void TestOvWindowBase::construction()
{
    OvWindowBase window;
    QVERIFY(window.isWindow());
    QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(window.windowFlags() & Qt::WindowMinimizeButtonHint);
    QVERIFY(window.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(window.hasMouseTracking());
    QCOMPARE(window.shadowMargin(), 10);
    QCOMPARE(window.contentSize(), QSize(0, 0));
    QVERIFY(!window.isMaximizedToScreen());
    QCOMPARE(window.layout(), window.mainLayout());
    QCOMPARE(window.mainLayout()->spacing(), 0);
    QCOMPARE(window.mainLayout()->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(window.mainLayout()->count(), 1);
    QCOMPARE(window.mainLayout()->itemAt(0)->widget(), window.titleBar());
    QCOMPARE(window.titleBar()->parentWidget(), &window);
}

void TestOvWindowBase::contentAndMargins()
{
    Window window;
    QCOMPARE(window.size(), QSize(820, 620));
    QCOMPARE(window.contentSize(), QSize(800, 600));
    window.setContentSize(QSize(300, 488));
    window.updateWindowSize();
    QCOMPARE(window.size(), QSize(320, 508));
}

void TestOvWindowBase::minimumSizeHolds()
{
    Window window;
    window.setMinimumSize(1000, 720);
    window.setContentSize(QSize(100, 900));
    window.updateWindowSize();
    QCOMPARE(window.size(), QSize(1000, 920));
    window.setContentSize(QSize(1200, 100));
    window.updateWindowSize();
    QCOMPARE(window.size(), QSize(1220, 720));
}

void TestOvWindowBase::withoutContentSize()
{
    OvWindowBase window;
    window.setMinimumSize(50, 60);
    window.updateWindowSize();
    QCOMPARE(window.size(), QSize(50, 60));
}

void TestOvWindowBase::shadowMargin()
{
    Window window;
    window.setShadowMargin(0);
    QCOMPARE(window.shadowMargin(), 0);
    QCOMPARE(window.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    window.updateWindowSize();
    QCOMPARE(window.size(), QSize(800, 600));
    hover(&window, window.pos() + QPoint(0, 300));
    QCOMPARE(window.cursor().shape(), Qt::SizeHorCursor);
    hover(&window, window.pos() + QPoint(1, 300));
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
}

void TestOvWindowBase::fixedContentSize()
{
    Window window;
    window.setFixedContentSize(QSize(400, 300));
    QCOMPARE(window.size(), QSize(420, 320));
    hover(&window, window.middleOfLeftEdge());
    QCOMPARE(window.cursor().shape(), Qt::ArrowCursor);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.move(300, 300);
    QTRY_COMPARE(window.pos(), QPoint(300, 300));
    QCOMPARE(window.size(), QSize(420, 320));
}

void TestOvWindowBase::moveUpdatesTheSize()
{
    class Counting : public Window
    {
    public:
        void updateWindowSize() override
        {
            ++updates;
            Window::updateWindowSize();
        }
        int updates = 0;
    };
    Counting window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.setContentSize(QSize(500, 400));
    window.updates = 0;
    window.move(140, 250);
    QVERIFY(window.updates > 0);
    QCOMPARE(window.size(), QSize(520, 420));
}

// Also what lies deeper, such as a window of the content's own, and also when the size stays the same.
void TestOvWindowBase::sizeUpdateRepaintsTheContent()
{
    Window window;
    auto *content = new PaintCounter;
    window.mainLayout()->addWidget(content);
    auto *nested = new PaintCounter(content, Qt::Tool);
    nested->setGeometry(1000, 300, 50, 50);
    window.show();
    nested->show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(QTest::qWaitForWindowExposed(nested));
    // What the showing has queued is done once a further update has been painted.
    content->update();
    nested->update();
    const int contentPaints = content->paints;
    const int nestedPaints = nested->paints;
    QTRY_VERIFY(content->paints > contentPaints && nested->paints > nestedPaints);
    QCoreApplication::processEvents();
    content->paints = 0;
    nested->paints = 0;
    const QSize size = window.size();
    window.updateWindowSize();
    QTRY_VERIFY(content->paints > 0 && nested->paints > 0);
    QCOMPARE(window.size(), size);
}

void TestOvWindowBase::maximizeAndRestore()
{
    Window window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(window.button("maxButton"), Qt::LeftButton);
    QVERIFY(window.isMaximizedToScreen());
    QVERIFY(!window.isMaximized()); // never the platform's own state
    QCOMPARE(window.geometry(), QRect(-10, -10, 1940, 1060));
    QCOMPARE(window.contentSize(), QSize(1920, 1040));
    QCOMPARE(window.titleBar()->normalGeometry(), QRect(100, 200, 800, 600));
    QVERIFY(!window.button("restoreButton")->isHidden());

    window.layout()->setContentsMargins(0, 0, 0, 0); // as a subclass may, while it is maximised
    QTest::mouseClick(window.button("restoreButton"), Qt::LeftButton);
    QVERIFY(!window.isMaximizedToScreen());
    QCOMPARE(window.geometry(), QRect(100, 200, 820, 620));
    QCOMPARE(window.contentSize(), QSize(800, 600));
    QCOMPARE(window.layout()->contentsMargins(), QMargins(10, 10, 10, 10));
}

// A dragged window would otherwise repaint everything in it for every step.
void TestOvWindowBase::movesAreFollowedTogether()
{
    class CountingWindow : public Window
    {
    public:
        void updateWindowSize() override
        {
            ++updates;
            Window::updateWindowSize();
        }
        int updates = 0;
    };
    CountingWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(window.pos(), QPoint(100, 200));
    window.updates = 0;
    for (int x = 101; x <= 150; ++x)
        window.move(x, 200);
    QVERIFY2(window.updates <= 1, qPrintable(QString::number(window.updates)));
    const int soFar = window.updates;
    QTRY_COMPARE(window.updates, soFar + 1); // the last move is followed as well

    // What is more than a move does not wait.
    window.move(160, 200);
    window.setContentSize(QSize(500, 400));
    window.move(170, 200);
    QCOMPARE(window.size(), QSize(520, 420));
}

void TestOvWindowBase::maximizeTwice()
{
    Window window;
    window.onBtnMaxClicked();
    window.onBtnMaxClicked();
    QCOMPARE(window.geometry(), QRect(-10, -10, 1940, 1060));
    window.onBtnRestoreClicked();
    QCOMPARE(window.geometry(), QRect(100, 200, 820, 620));
}

void TestOvWindowBase::restoreWithoutMaximize()
{
    Window window;
    window.onBtnRestoreClicked();
    QCOMPARE(window.geometry(), QRect(100, 200, 820, 620));
    QCOMPARE(window.contentSize(), QSize(800, 600));
}

// With the real screen; also when the window's position lies beside it.
void TestOvWindowBase::maximizedOnTheScreen()
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QPoint &pos : {QPoint(100, 100), QPoint(-50, -30), QPoint(-5000, -5000)}) {
        OvWindowBase window;
        window.setContentSize(QSize(400, 300));
        window.updateWindowSize();
        window.move(pos);
        window.onBtnMaxClicked();
        QCOMPARE(window.geometry(), available.adjusted(-10, -10, 10, 10));
    }
}

void TestOvWindowBase::dragFromMaximized()
{
    Window window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.titleBar()->onBtnMaxClicked();
    QTRY_COMPARE(window.titleBar()->width(), 1920);
    const QPoint start(1700, 20);
    press(window.titleBar(), start);
    drag(window.titleBar(), start + QPoint(-7, 5));
    QVERIFY(!window.isMaximizedToScreen());
    QCOMPARE(window.geometry(), QRect(1920 - 800 - 7, 5, 820, 620));
    QVERIFY(!window.button("maxButton")->isHidden());
    QVERIFY(window.button("restoreButton")->isHidden());
}

void TestOvWindowBase::minimize()
{
    Window window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(window.button("minButton"), Qt::LeftButton);
    QVERIFY(window.isMinimized());
    window.showNormal();
    window.onBtnMinClicked();
    QVERIFY(window.isMinimized());
}

void TestOvWindowBase::closeButton()
{
    Window window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    bool wasVisible = false;
    QSignalSpy clicked(&window, &OvWindowBase::sigCloseBtnClicked);
    connect(&window, &OvWindowBase::sigCloseBtnClicked, this, [&] { wasVisible = window.isVisible(); });
    QTest::mouseClick(window.button("closeButton"), Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(wasVisible); // the signal comes before the close
    QVERIFY(!window.isVisible());
}

void TestOvWindowBase::cursors_data()
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

void TestOvWindowBase::cursors()
{
    QFETCH(QPoint, pointer);
    Window window;
    hover(&window, window.pos() + QPoint(400, 3));
    hover(&window, window.pos() + pointer);
    QTEST(window.cursor().shape(), "shape");
}

void TestOvWindowBase::lockedWindowHasNoCursors()
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

void TestOvWindowBase::leaving()
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
void TestOvWindowBase::enteringAChild()
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

void TestOvWindowBase::resizing_data()
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

void TestOvWindowBase::resizing()
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

void TestOvWindowBase::leftEdgeWithoutMoving()
{
    Window window;
    window.setMoveWithEdge(false);
    const QPoint start = window.middleOfLeftEdge();
    pressAt(&window, start);
    drag(&window, start + QPoint(-60, 0));
    QCOMPARE(window.geometry(), QRect(100, 200, 880, 620));
}

void TestOvWindowBase::rightEdgeWithRatio()
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

void TestOvWindowBase::leftEdgeStopsAtTheMinimum()
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

void TestOvWindowBase::resizingEnds()
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

void TestOvWindowBase::resizingGoesOnOutside()
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
void TestOvWindowBase::lostRelease()
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

void TestOvWindowBase::noResizeWithoutEdge()
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

void TestOvWindowBase::titleBarDragMoves()
{
    Window window;
    const QPoint start = window.pos() + QPoint(300, 30);
    press(window.titleBar(), start);
    drag(window.titleBar(), start + QPoint(15, -25));
    release(window.titleBar(), start + QPoint(15, -25));
    QCOMPARE(window.geometry(), QRect(115, 175, 820, 620));
}

void TestOvWindowBase::painting()
{
    Window window;
    window.setContentSize(QSize(200, 100));
    window.updateWindowSize();
    window.titleBar()->hide();
    const auto picture = [&window] {
        QImage image(window.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        window.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    };
    const QImage image = picture();
    QCOMPARE(image.pixel(0, 0), qRgba(0, 0, 0, 0)); // beyond the rounded margin
    QCOMPARE(image.pixel(5, 60), qRgba(0, 0, 0, 1));
    QCOMPARE(image.pixel(110, 5), qRgba(0, 0, 0, 1));
    QCOMPARE(image.pixel(215, 60), qRgba(0, 0, 0, 1));
    QCOMPARE(image.pixel(9, 60), qRgba(0, 0, 0, 1));
    QCOMPARE(image.pixel(10, 60), qRgba(245, 247, 250, 255));
    QCOMPARE(image.pixel(209, 60), qRgba(245, 247, 250, 255));
    QCOMPARE(image.pixel(210, 60), qRgba(0, 0, 0, 1));
    QCOMPARE(image.pixel(110, 109), qRgba(245, 247, 250, 255));
    QCOMPARE(image.pixel(10, 10), qRgba(0, 0, 0, 1)); // round corner of the body
    window.setBackgroundColor(Qt::red);
    QCOMPARE(picture().pixelColor(110, 60), QColor(Qt::red));
}

QTEST_MAIN(TestOvWindowBase)
#include "tst_ovwindowbase.moc"
