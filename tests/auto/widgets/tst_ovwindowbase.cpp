#include "WindowUnderTest.h"

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

// Counts how often it is painted.
class PaintCounter : public QWidget
{
public:
    using QWidget::QWidget;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
};

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
