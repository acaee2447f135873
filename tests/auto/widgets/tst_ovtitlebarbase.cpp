#include "WidgetTestSupport.h"

#include "widgets/OvTitleBarBase.h"

#include <InputFocus.h>

#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

using namespace widgettest;

namespace {

// A window with nothing but the bar.
struct Window
{
    Window()
        : bar(new OvTitleBarBase(&widget))
    {
        auto *layout = new QVBoxLayout(&widget);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(bar);
        layout->addStretch();
        widget.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
        widget.setGeometry(200, 150, 600, 400);
    }
    void show()
    {
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
    }
    QPushButton *button(const char *name) const { return bar->findChild<QPushButton *>(QLatin1String(name)); }
    // Whether min, max, restore and close are shown, as in "1101".
    QString shownButtons() const
    {
        QString shown;
        for (const char *name : {"minButton", "maxButton", "restoreButton", "closeButton"})
            shown += button(name)->isHidden() ? '0' : '1';
        return shown;
    }

    QWidget widget;
    OvTitleBarBase *bar;
};

} // namespace

// The title bar of frameless windows.
class TestOvTitleBarBase : public QObject
{
    Q_OBJECT

private slots:
    void metaObject();
    void construction();
    void buttonTypes_data();
    void buttonTypes();
    void unknownButtonTypes();
    void clicks();
    void f11_data();
    void f11();
    void title_data();
    void title();
    void icon();
    void unreadableIcon();
    void buttonIcons();
    void normalGeometry();
    void dragging();
    void draggingOnlyWithTheLeftButton();
    void notDraggable();
    void lostRelease();
    void draggingFromMaximized_data();
    void draggingFromMaximized();
    void doubleClickDoesNothing();
    void painting();
};

void TestOvTitleBarBase::metaObject()
{
    const QMetaObject &meta = OvTitleBarBase::staticMetaObject;
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
        (QStringList{"btnMinClicked()", "btnMaxClicked()", "btnRestoreClicked()", "btnCloseClicked()",
            "sigMaximizeShortcutActivated()"}));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
        (QStringList{"onBtnMaxClicked()", "onBtnRestoreClicked()", "onMaximizeShortcutActivated()"}));
}

void TestOvTitleBarBase::construction()
{
    Window window;
    OvTitleBarBase *bar = window.bar;
    QCOMPARE(bar->minimumHeight(), 40);
    QCOMPARE(bar->maximumHeight(), 40);
    QVERIFY(bar->windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(!bar->isWindow());
    QVERIFY(bar->hasMouseTracking());
    QCOMPARE(bar->focusPolicy(), Qt::NoFocus);
    QCOMPARE(bar->buttonType(), 3);
    QCOMPARE(bar->title(), QString());
    QCOMPARE(bar->normalGeometry().topLeft(), QPoint(0, 0));
    QVERIFY(!bar->normalGeometry().size().isValid());

    auto *layout = qobject_cast<QHBoxLayout *>(bar->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 0, 0, 0));
    QStringList order;
    for (int i = 0; i < layout->count(); ++i)
        order << (layout->itemAt(i)->widget() ? layout->itemAt(i)->widget()->objectName()
                                              : QStringLiteral("layout"));
    QCOMPARE(order,
        (QStringList{
            "iconLabel", "titleLabel", "layout", "minButton", "maxButton", "restoreButton", "closeButton"}));
    QCOMPARE(bar->buttonLayout()->spacing(), 0);
    QCOMPARE(bar->buttonLayout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(bar->buttonLayout()->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(bar->buttonLayout()->count(), 1);
    QVERIFY(bar->buttonLayout()->itemAt(0)->spacerItem());
    QCOMPARE(bar->findChild<QLabel *>(QStringLiteral("iconLabel"))->size(), QSize(0, 0));
    for (const char *name : {"minButton", "maxButton", "restoreButton", "closeButton"}) {
        QCOMPARE(window.button(name)->minimumSize(), QSize(40, 40));
        QCOMPARE(window.button(name)->maximumSize(), QSize(40, 40));
        QCOMPARE(window.button(name)->focusPolicy(), Qt::NoFocus);
        QVERIFY(window.button(name)->hasMouseTracking());
    }
}

void TestOvTitleBarBase::buttonTypes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("shown");
    QTest::newRow("none") << 0 << "0000";
    QTest::newRow("close") << 1 << "0001";
    QTest::newRow("min and close") << 2 << "1001";
    QTest::newRow("min, max and close") << 3 << "1101";
}

void TestOvTitleBarBase::buttonTypes()
{
    QFETCH(int, type);
    Window window;
    QCOMPARE(window.shownButtons(), QStringLiteral("1101"));
    window.bar->setButtonType(type);
    QCOMPARE(window.bar->buttonType(), type);
    QTEST(window.shownButtons(), "shown");
    window.bar->setButtonType(3);
    window.bar->onBtnMaxClicked();
    window.bar->setButtonType(type);
    QTEST(window.shownButtons(), "shown"); // also while maximised
}

void TestOvTitleBarBase::unknownButtonTypes()
{
    Window window;
    window.bar->setButtonType(2);
    for (const int type : {4, -1, 100}) {
        window.bar->setButtonType(type);
        QCOMPARE(window.bar->buttonType(), type);
        QCOMPARE(window.shownButtons(), QStringLiteral("1001"));
    }
}

void TestOvTitleBarBase::clicks()
{
    Window window;
    window.show();
    QSignalSpy min(window.bar, &OvTitleBarBase::btnMinClicked);
    QSignalSpy max(window.bar, &OvTitleBarBase::btnMaxClicked);
    QSignalSpy restore(window.bar, &OvTitleBarBase::btnRestoreClicked);
    QSignalSpy close(window.bar, &OvTitleBarBase::btnCloseClicked);
    const auto counts = [&] {
        return QVector<int>{min.count(), max.count(), restore.count(), close.count()};
    };

    QTest::mouseClick(window.button("minButton"), Qt::LeftButton);
    QCOMPARE(counts(), (QVector<int>{1, 0, 0, 0}));
    QTest::mouseClick(window.button("maxButton"), Qt::LeftButton);
    QCOMPARE(counts(), (QVector<int>{1, 1, 0, 0}));
    QCOMPARE(window.shownButtons(), QStringLiteral("1011"));
    QTest::mouseClick(window.button("restoreButton"), Qt::LeftButton);
    QCOMPARE(counts(), (QVector<int>{1, 1, 1, 0}));
    QCOMPARE(window.shownButtons(), QStringLiteral("1101"));
    QTest::mouseClick(window.button("closeButton"), Qt::LeftButton);
    QCOMPARE(counts(), (QVector<int>{1, 1, 1, 1}));
}

void TestOvTitleBarBase::f11_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("first");
    QTest::addColumn<QStringList>("second");
    const QStringList alone{"shortcut"};
    QTest::newRow("all buttons") << 3 << QStringList{"shortcut", "max"} << QStringList{"shortcut", "restore"};
    QTest::newRow("no max button") << 2 << alone << alone;
    QTest::newRow("close only") << 1 << alone << alone;
    QTest::newRow("no buttons") << 0 << alone << alone;
    QTest::newRow("unknown type") << 7 << alone << alone;
}

void TestOvTitleBarBase::f11()
{
    QFETCH(int, type);
    Window window;
    window.bar->setButtonType(type);
    const QString shownBefore = window.shownButtons();
    window.show();
    window.widget.activateWindow();
    QVERIFY(waitForInputFocus(window.widget));
    QStringList signalsSeen;
    connect(
        window.bar, &OvTitleBarBase::sigMaximizeShortcutActivated, this, [&] { signalsSeen << "shortcut"; });
    connect(window.bar, &OvTitleBarBase::btnMaxClicked, this, [&] { signalsSeen << "max"; });
    connect(window.bar, &OvTitleBarBase::btnRestoreClicked, this, [&] { signalsSeen << "restore"; });

    QTest::keyClick(&window.widget, Qt::Key_F11);
    QTEST(signalsSeen, "first");
    QCOMPARE(window.shownButtons(), type == 3 ? QStringLiteral("1011") : shownBefore);
    signalsSeen.clear();
    QTest::keyClick(&window.widget, Qt::Key_F11);
    QTEST(signalsSeen, "second");
    QCOMPARE(window.shownButtons(), shownBefore);
}

void TestOvTitleBarBase::title_data()
{
    QTest::addColumn<bool>("bold");
    QTest::addColumn<int>("weight");
    QTest::newRow("normal") << false << 50;
    QTest::newRow("bold") << true << 75;
}

void TestOvTitleBarBase::title()
{
    QFETCH(bool, bold);
    Window window;
    window.bar->setTitle(QStringLiteral("<b>My phone</b>"), 14, bold, QColor(1, 2, 3));
    QCOMPARE(window.bar->title(), QStringLiteral("<b>My phone</b>"));
    const auto *label = window.bar->findChild<QLabel *>(QStringLiteral("titleLabel"));
    QCOMPARE(label->text(), QStringLiteral("<b>My phone</b>"));
    QCOMPARE(label->textFormat(), Qt::PlainText); // a device's name comes from its user
    QCOMPARE(label->font().pixelSize(), 14);
    QTEST(label->font().weight(), "weight");
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(label->palette().color(group, QPalette::WindowText), QColor(1, 2, 3));
}

void TestOvTitleBarBase::icon()
{
    QTemporaryDir dir;
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(dir.filePath(QStringLiteral("icon.png"))));
    Window window;
    window.bar->setIcon(dir.filePath(QStringLiteral("icon.png")), QSize(24, 20));
    auto *label = window.bar->findChild<QLabel *>(QStringLiteral("iconLabel"));
    QCOMPARE(label->minimumSize(), QSize(24, 20));
    QCOMPARE(label->maximumSize(), QSize(24, 20));
    const QPixmap shown = label->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.size() / shown.devicePixelRatio(), QSize(24, 20));
    QCOMPARE(shown.toImage().pixelColor(12, 10), QColor(Qt::red));
}

void TestOvTitleBarBase::unreadableIcon()
{
    Window window;
    QTest::ignoreMessage(QtWarningMsg, "the title bar icon could not be read: :/no/such/icon.svg");
    window.bar->setIcon(QStringLiteral(":/no/such/icon.svg"), QSize(24, 24));
    QCOMPARE(window.bar->findChild<QLabel *>(QStringLiteral("iconLabel"))->maximumSize(), QSize(0, 0));
}

void TestOvTitleBarBase::buttonIcons()
{
    Window window;
    const QVector<QPair<const char *, QString>> icons{{"minButton", ":/icon/svg/min.svg"},
        {"maxButton", ":/icon/svg/max.svg"}, {"restoreButton", ":/icon/svg/restore.svg"},
        {"closeButton", ":/icon/svg/close.svg"}};
    QVector<QImage> pictures;
    for (const auto &icon : icons) {
        const QImage shown = window.button(icon.first)->icon().pixmap(16, 16).toImage();
        QVERIFY2(!shown.isNull(), icon.first);
        QCOMPARE(shown, QIcon(icon.second).pixmap(16, 16).toImage());
        QVERIFY2(!pictures.contains(shown), icon.first);
        pictures << shown;
    }
    const QIcon appIcon(QStringLiteral(":/icon/orvane.ico"));
    for (const int extent : {16, 24, 32, 48, 64, 128, 256})
        QVERIFY(appIcon.availableSizes().contains(QSize(extent, extent)));
}

void TestOvTitleBarBase::normalGeometry()
{
    Window window;
    window.bar->setNormalGeometry(QPoint(-5, 30), QSize(800, 600));
    QCOMPARE(window.bar->normalGeometry(), QRect(-5, 30, 800, 600));
}

void TestOvTitleBarBase::dragging()
{
    Window window;
    const QPoint start = window.widget.pos() + QPoint(100, 20);
    press(window.bar, start);
    drag(window.bar, start + QPoint(30, -10));
    QCOMPARE(window.widget.pos(), QPoint(230, 140));
    drag(window.bar, start + QPoint(25, 5));
    QCOMPARE(window.widget.pos(), QPoint(225, 155));
    release(window.bar, start + QPoint(25, 5));
    drag(window.bar, start + QPoint(100, 100));
    QCOMPARE(window.widget.pos(), QPoint(225, 155));
    QCOMPARE(window.widget.size(), QSize(600, 400));
}

void TestOvTitleBarBase::draggingOnlyWithTheLeftButton()
{
    Window window;
    const QPoint start = window.widget.pos() + QPoint(100, 20);
    sendMouse(window.bar, QEvent::MouseButtonPress, start, Qt::RightButton, Qt::RightButton);
    sendMouse(window.bar, QEvent::MouseMove, start + QPoint(50, 50), Qt::NoButton, Qt::RightButton);
    QCOMPARE(window.widget.pos(), QPoint(200, 150));
}

void TestOvTitleBarBase::notDraggable()
{
    Window window;
    window.bar->setDraggable(false);
    const QPoint start = window.widget.pos() + QPoint(100, 20);
    press(window.bar, start);
    drag(window.bar, start + QPoint(50, 50));
    release(window.bar, start + QPoint(50, 50));
    QCOMPARE(window.widget.pos(), QPoint(200, 150));
    window.bar->setDraggable(true);
    press(window.bar, start);
    window.bar->setDraggable(false); // in the middle of a drag
    drag(window.bar, start + QPoint(50, 50));
    QCOMPARE(window.widget.pos(), QPoint(200, 150));
}

// The release went elsewhere: the window does not cling to the pointer.
void TestOvTitleBarBase::lostRelease()
{
    Window window;
    const QPoint start = window.widget.pos() + QPoint(100, 20);
    press(window.bar, start);
    hover(window.bar, start + QPoint(10, 10));
    QCOMPARE(window.widget.pos(), QPoint(200, 150));
    drag(window.bar, start + QPoint(20, 20));
    QCOMPARE(window.widget.pos(), QPoint(200, 150));
}

void TestOvTitleBarBase::draggingFromMaximized_data()
{
    QTest::addColumn<int>("pointerX");
    QTest::addColumn<QPoint>("restoredPos");
    QTest::newRow("left half") << 100 << QPoint(0, 0);
    QTest::newRow("middle") << 300 << QPoint(0, 0);
    QTest::newRow("right half") << 301 << QPoint(600 - 250, 0);
}

void TestOvTitleBarBase::draggingFromMaximized()
{
    QFETCH(int, pointerX);
    QFETCH(QPoint, restoredPos);
    Window window;
    window.show();
    window.bar->setNormalGeometry(QPoint(77, 88), QSize(250, 200));
    window.bar->onBtnMaxClicked();
    QSignalSpy restored(window.bar, &OvTitleBarBase::btnRestoreClicked);
    connect(window.bar, &OvTitleBarBase::btnRestoreClicked, this, [&] {
        QCOMPARE(window.bar->normalGeometry(), QRect(restoredPos, QSize(250, 200)));
        QCOMPARE(window.shownButtons(), QStringLiteral("1101"));
        window.widget.move(window.bar->normalGeometry().topLeft());
    });

    const QPoint start = window.bar->mapToGlobal(QPoint(pointerX - 3, 20)); // what counts is the first move
    press(window.bar, start);
    QCOMPARE(restored.count(), 0);
    drag(window.bar, start + QPoint(3, 4));
    QCOMPARE(restored.count(), 1);
    QCOMPARE(window.widget.pos(), restoredPos + QPoint(3, 4));
    drag(window.bar, start + QPoint(13, 14));
    QCOMPARE(restored.count(), 1);
    QCOMPARE(window.widget.pos(), restoredPos + QPoint(13, 14));
}

void TestOvTitleBarBase::doubleClickDoesNothing()
{
    Window window;
    QSignalSpy max(window.bar, &OvTitleBarBase::btnMaxClicked);
    const QPoint start = window.widget.pos() + QPoint(100, 20);
    press(window.bar, start);
    release(window.bar, start);
    sendMouse(window.bar, QEvent::MouseButtonDblClick, start, Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(max.count(), 0);
    QCOMPARE(window.shownButtons(), QStringLiteral("1101"));
    drag(window.bar, start + QPoint(50, 50));
    QCOMPARE(window.widget.geometry(), QRect(200, 150, 600, 400));
}

void TestOvTitleBarBase::painting()
{
    OvTitleBarBase bar;
    bar.setButtonType(OvTitleBarBase::NoButtons);
    bar.resize(200, 40);
    const auto picture = [&bar] {
        QImage image(bar.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        bar.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    };
    const QImage image = picture();
    QCOMPARE(image.pixelColor(100, 20), QColor(68, 68, 68));
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0); // round above
    QCOMPARE(image.pixelColor(199, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(8, 0), QColor(68, 68, 68));
    QCOMPARE(image.pixelColor(0, 39), QColor(68, 68, 68)); // square below
    QCOMPARE(image.pixelColor(199, 39), QColor(68, 68, 68));
    bar.setBackgroundColor(Qt::blue);
    QCOMPARE(picture().pixelColor(100, 20), QColor(Qt::blue));
}

QTEST_MAIN(TestOvTitleBarBase)
#include "tst_ovtitlebarbase.moc"
