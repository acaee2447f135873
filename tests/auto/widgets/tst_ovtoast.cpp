#include "widgets/OvToast.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QPropertyAnimation>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

// Reaches into a toast to let its time pass.
struct Parts
{
    explicit Parts(OvToast *toast)
        : label(toast->findChild<QLabel *>())
        , fadeIn(toast->findChild<QPropertyAnimation *>(QStringLiteral("fadeIn")))
        , fadeOut(toast->findChild<QPropertyAnimation *>(QStringLiteral("fadeOut")))
        , stay(toast->findChild<QTimer *>())
    { }
    void finish(QPropertyAnimation *fade) const { fade->setCurrentTime(fade->totalDuration()); }
    void elapse() const { stay->start(0); }

    QLabel *label;
    QPropertyAnimation *fadeIn;
    QPropertyAnimation *fadeOut;
    QTimer *stay;
};

QFontMetrics toastMetrics(const QLabel *label)
{
    QFont font = label->font();
    font.setPixelSize(14);
    return QFontMetrics(font);
}

} // namespace

// The fading message.
class TestOvToast : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void construction();
    void lifetime();
    void times_data();
    void times();
    void showAgain();
    void shortText();
    void longTextWraps();
    void longWordWraps_data();
    void longWordWraps();
    void plainText();
    void position();
    void positionOverChild();
    void withoutParent();
    void staysOnTheScreen_data();
    void staysOnTheScreen();
    void shapeWithoutCompositor();
    void goesWithItsParent();
    void painting();

private:
    QWidget m_parent;
};

void TestOvToast::initTestCase()
{
    m_parent.setWindowFlag(Qt::FramelessWindowHint);
    m_parent.setGeometry(300, 200, 801, 600);
    m_parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_parent));
    QTRY_COMPARE(m_parent.pos(), QPoint(300, 200));
}

void TestOvToast::construction()
{
    OvToast toast(&m_parent);
    QCOMPARE(toast.windowFlags() & Qt::WindowType_Mask, Qt::ToolTip);
    QVERIFY(toast.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(toast.windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(toast.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(toast.testAttribute(Qt::WA_DeleteOnClose));
    const Parts parts(&toast);
    QVERIFY(parts.label->wordWrap());
    QCOMPARE(parts.label->maximumWidth(), 450);
    QCOMPARE(parts.label->alignment(), Qt::AlignCenter);
    QCOMPARE(parts.label->font().pixelSize(), 14);
    QVERIFY(!toast.isVisible());
}

// 1 s of fading in, the time asked for, 1 s of fading out, and it is gone.
void TestOvToast::lifetime()
{
    const QPointer<OvToast> toast = new OvToast(&m_parent);
    toast->show(QStringLiteral("map config request failed!"), 3);
    const Parts parts(toast);
    QVERIFY(toast->isVisible());
    QCOMPARE(parts.fadeIn->state(), QAbstractAnimation::Running);
    QCOMPARE(parts.fadeIn->propertyName(), QByteArray("windowOpacity"));
    QCOMPARE(parts.fadeIn->duration(), 1000);
    QCOMPARE(parts.fadeIn->startValue().toDouble(), 0.0);
    QCOMPARE(parts.fadeIn->endValue().toDouble(), 1.0);
    QVERIFY(toast->windowOpacity() < 1.0);
    QVERIFY(!parts.stay->isActive());

    parts.finish(parts.fadeIn);
    QCOMPARE(toast->windowOpacity(), 1.0);
    QVERIFY(parts.stay->isActive());
    QVERIFY(parts.stay->isSingleShot());
    QCOMPARE(parts.stay->interval(), 3000);
    QCOMPARE(parts.fadeOut->state(), QAbstractAnimation::Stopped);

    parts.elapse();
    QTRY_COMPARE(parts.fadeOut->state(), QAbstractAnimation::Running);
    QVERIFY(toast->isVisible());
    QCOMPARE(parts.fadeOut->propertyName(), QByteArray("windowOpacity"));
    QCOMPARE(parts.fadeOut->duration(), 1000);
    QCOMPARE(parts.fadeOut->startValue().toDouble(), 1.0);
    QCOMPARE(parts.fadeOut->endValue().toDouble(), 0.0);

    parts.finish(parts.fadeOut);
    QVERIFY(!toast || !toast->isVisible());
    QTRY_VERIFY(!toast);
}

void TestOvToast::times_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("1") << 1 << 1000;
    QTest::newRow("5") << 5 << 5000;
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("negative") << -4 << 0;
    QTest::newRow("far beyond") << 2147483647 << 2147483000;
}

void TestOvToast::times()
{
    QFETCH(int, seconds);
    OvToast toast(&m_parent);
    toast.show(QStringLiteral("text"), seconds);
    QTEST(Parts(&toast).stay->interval(), "milliseconds");
}

void TestOvToast::showAgain()
{
    const QPointer<OvToast> toast = new OvToast(&m_parent);
    toast->show(QStringLiteral("first"), 3);
    const Parts parts(toast);
    parts.finish(parts.fadeIn);
    parts.elapse();
    QTRY_COMPARE(parts.fadeOut->state(), QAbstractAnimation::Running);
    toast->show(QStringLiteral("second, longer text"), 2);
    QCOMPARE(toast->text(), QStringLiteral("second, longer text"));
    QCOMPARE(parts.fadeOut->state(), QAbstractAnimation::Stopped);
    QCOMPARE(parts.fadeIn->state(), QAbstractAnimation::Running);
    QVERIFY(!parts.stay->isActive());
    QVERIFY(toast && toast->isVisible());
    parts.finish(parts.fadeIn);
    QCOMPARE(parts.stay->interval(), 2000);
    delete toast;
}

void TestOvToast::shortText()
{
    OvToast toast(&m_parent);
    const QString text = QStringLiteral("Network error");
    toast.show(text, 1);
    const Parts parts(&toast);
    QCOMPARE(parts.label->text(), text);
    QCOMPARE(toast.text(), text);
    const QRect textRect
        = toastMetrics(parts.label).boundingRect(QRect(0, 0, 450, 10000), Qt::TextWordWrap, text);
    QCOMPARE(toast.size(), textRect.size() + QSize(12, 8));
    QVERIFY(toast.height() < 2 * toastMetrics(parts.label).lineSpacing());
}

void TestOvToast::longTextWraps()
{
    OvToast toast(&m_parent);
    toast.show(QStringLiteral("one line"), 1);
    const int oneLine = toast.height();
    QString text;
    while (toastMetrics(Parts(&toast).label).horizontalAdvance(text) < 1000)
        text += QStringLiteral("several words ");
    toast.show(text, 1);
    QVERIFY(toast.width() <= 450 + 12);
    QVERIFY(toast.width() > 300);
    QVERIFY(toast.height() >= 2 * oneLine);
    QCOMPARE(Parts(&toast).label->text(), text);
}

void TestOvToast::longWordWraps_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("address") << QString("https://example.test/a" + QString("b").repeated(200));
    QTest::newRow("among words") << QString("see " + QString("W").repeated(200) + " there");
    QTest::newRow("Chinese") << QStringLiteral("\u8bbe\u5907").repeated(60);
    QTest::newRow("outside the basic plane") << QString::fromUtf8("\xf0\x9d\x94\xb8").repeated(100);
}

void TestOvToast::longWordWraps()
{
    QFETCH(QString, text);
    OvToast toast(&m_parent);
    toast.show(text, 1);
    const Parts parts(&toast);
    QVERIFY(toast.width() <= 450 + 12);
    QVERIFY(toast.height() >= 2 * toastMetrics(parts.label).height());
    QVERIFY(parts.label->heightForWidth(parts.label->width()) <= toast.height()); // nothing is cut off
    QString shown = parts.label->text();
    QCOMPARE(shown.remove(QChar(0x200B)), text);
}

void TestOvToast::plainText()
{
    OvToast toast(&m_parent);
    toast.show(QStringLiteral("<b>bold?</b>"), 1);
    QCOMPARE(Parts(&toast).label->textFormat(), Qt::PlainText);
}

void TestOvToast::position()
{
    OvToast toast(&m_parent);
    toast.show(QStringLiteral("Network error"), 1);
    QCOMPARE(toast.pos(), QPoint(300 + (801 - toast.width()) / 2, 200 + 50));
}

void TestOvToast::positionOverChild()
{
    QWidget child(&m_parent);
    child.setGeometry(100, 30, 400, 300);
    OvToast toast(&child);
    toast.show(QStringLiteral("Network error"), 1);
    QCOMPARE(toast.pos(), QPoint(400 + (400 - toast.width()) / 2, 230 + 50));
}

void TestOvToast::withoutParent()
{
    OvToast toast;
    toast.show(QStringLiteral("Network error"), 1);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(toast.pos(), QPoint(screen.x() + (screen.width() - toast.width()) / 2, screen.y() + 50));
}

void TestOvToast::staysOnTheScreen_data()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::addColumn<QPoint>("parentPos");
    QTest::newRow("left edge") << QPoint(screen.left() - 380, 200);
    QTest::newRow("right edge") << QPoint(screen.right() - 30, 200);
    QTest::newRow("upper edge") << QPoint(300, screen.top() - 400);
    QTest::newRow("lower edge") << QPoint(300, screen.bottom() - 55);
}

// Although the window hangs over its edge.
void TestOvToast::staysOnTheScreen()
{
    QFETCH(QPoint, parentPos);
    QWidget parent;
    parent.setGeometry(QRect(parentPos, QSize(400, 300)));
    OvToast toast(&parent);
    toast.show(QStringLiteral("Network error"), 1);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(screen.contains(toast.geometry()));
}

// The tests' window system cannot compose: nothing black may stand in the corners.
void TestOvToast::shapeWithoutCompositor()
{
    OvToast toast(&m_parent);
    toast.show(QStringLiteral("Network error"), 1);
    QVERIFY(!toast.mask().contains(QPoint(0, 0)));
    QVERIFY(toast.mask().contains(QPoint(4, 4)));
    const QPoint lastPixel = toast.rect().bottomRight();
    toast.show(QStringLiteral("Network error, and some more of it"), 1);
    QVERIFY(toast.mask().contains(lastPixel));
    QVERIFY(!toast.mask().contains(toast.rect().bottomRight()));
}

void TestOvToast::goesWithItsParent()
{
    auto *parent = new QWidget;
    const QPointer<OvToast> toast = new OvToast(parent);
    toast->show(QStringLiteral("Network error"), 3);
    delete parent;
    QVERIFY(!toast);
}

void TestOvToast::painting()
{
    OvToast toast(&m_parent);
    toast.show(QStringLiteral("Network error"), 1);
    QImage image(toast.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    toast.clearMask(); // as where the window system composes
    toast.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(toast.width() / 2, 1).alpha(), 230);
    int brightest = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            brightest = qMax(brightest, qGray(image.pixel(x, y)));
    }
    QVERIFY(brightest > 200); // light text on the dark ground
}

QTEST_MAIN(TestOvToast)
#include "tst_ovtoast.moc"
