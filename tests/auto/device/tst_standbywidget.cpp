#include "device/StandbyWidget.h"

#include <InputFocus.h>

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>
#include <QWheelEvent>

#include <memory>

Q_DECLARE_METATYPE(Qt::Key)

namespace {

// A language in which every text has a mark.
class MarkedTexts : public QTranslator
{
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QStringLiteral("«%1»").arg(QString::fromLatin1(text));
    }
    bool isEmpty() const override { return false; }
};

constexpr QSize PortraitVideo(340, 600);
constexpr QSize LandscapeVideo(600, 340);

} // namespace

class tst_StandbyWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void signalOrder();
    void texts();
    void languageChange();
    void layout_data();
    void layout();
    void laidOutAnew();
    void order();
    void smallVideo_data();
    void smallVideo();
    void buttons();
    void longButtonText();
    void colours();
    void titleIsBoldAndLarger();
    void keyboard_data();
    void keyboard();
    void pointerStaysHere();

private:
    QLabel *label(const char *name) const { return m_page->findChild<QLabel *>(QString::fromLatin1(name)); }
    QPushButton *button(const char *name) const
    {
        return m_page->findChild<QPushButton *>(QString::fromLatin1(name));
    }
    QList<QSpacerItem *> spacers() const;
    void layOut(ScreenOrientation orientation, const QSize &video) const;

    std::unique_ptr<QWidget> m_video;
    StandbyWidget *m_page = nullptr;
};

void tst_StandbyWidget::init()
{
    m_video = std::make_unique<QWidget>();
    m_page = new StandbyWidget(m_video.get());
    m_video->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_video.get()));
}

void tst_StandbyWidget::layOut(ScreenOrientation orientation, const QSize &video) const
{
    m_video->resize(video);
    m_page->resize(video);
    m_page->setOrientation(orientation);
    m_page->updateLayout();
}

// Those with a height of their own.
QList<QSpacerItem *> tst_StandbyWidget::spacers() const
{
    QList<QSpacerItem *> found;
    for (int i = 0; i < m_page->layout()->count(); ++i) {
        QSpacerItem *spacer = m_page->layout()->itemAt(i)->spacerItem();
        if (spacer && spacer->sizeHint().height() > 0)
            found.append(spacer);
    }
    return found;
}

void tst_StandbyWidget::signalOrder()
{
    QStringList names;
    const QMetaObject &meta = StandbyWidget::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            names << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(names, (QStringList{"sigResumeBtnClicked()", "sigExitBtnClicked()"}));
}

void tst_StandbyWidget::texts()
{
    QCOMPARE(label("titleText")->text(),
        QStringLiteral(
            "<p><font color='#FFFFFF' style='font-size: 16px' bold=true>"
            "<b>Not operating for a long time, has entered standby mode</b></font>"
            "<br style='line-height: 3px'><font color='#FFFFFF' style='font-size: 13px'>"
            "(standby mode can reduce traffic consumption, and applications within the device will "
            "continue to run)</font></p>"));
    QCOMPARE(label("leavingText")->text(),
        QStringLiteral("(After exiting the device, the application within the device will continue to run)"));
    QCOMPARE(button("resumeButton")->text(), QStringLiteral("Resume use"));
    QCOMPARE(button("exitButton")->text(), QStringLiteral("Exit device"));
}

void tst_StandbyWidget::languageChange()
{
    m_page->show();
    MarkedTexts marked;
    QCoreApplication::installTranslator(&marked);
    QTRY_COMPARE(button("resumeButton")->text(), QStringLiteral("«Resume use»"));
    QCOMPARE(button("exitButton")->text(), QStringLiteral("«Exit device»"));
    QVERIFY(label("titleText")
                ->text()
                .contains(QStringLiteral("«Not operating for a long time, has entered standby mode»")));
    QVERIFY(label("titleText")->text().contains(QStringLiteral("«(standby mode can reduce")));
    QVERIFY(label("leavingText")->text().startsWith(QStringLiteral("«(After exiting")));
    QCoreApplication::removeTranslator(&marked);
    QTRY_COMPARE(button("resumeButton")->text(), QStringLiteral("Resume use"));
}

void tst_StandbyWidget::layout_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::addColumn<QSize>("video");
    QTest::addColumn<int>("picture");
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::newRow("landscape") << ScreenOrientation::Landscape << LandscapeVideo << 93 << 20 << 32;
    QTest::newRow("portrait") << ScreenOrientation::Portrait << PortraitVideo << 70 << 120 << 160;
    QTest::newRow("any other") << static_cast<ScreenOrientation>(0) << LandscapeVideo << 93 << 20 << 32;
}

void tst_StandbyWidget::layout()
{
    QFETCH(ScreenOrientation, orientation);
    QFETCH(QSize, video);
    QFETCH(int, picture);
    layOut(orientation, video);
    QCOMPARE(label("picture")->size(), QSize(picture, picture));
    const QPixmap image = label("picture")->pixmap(Qt::ReturnByValue);
    QCOMPARE(image.size(), QSize(picture, picture) * m_page->devicePixelRatioF());
    QCOMPARE(spacers().size(), 2);
    QTEST(spacers().constFirst()->sizeHint().height(), "upper");
    QTEST(spacers().constLast()->sizeHint().height(), "lower");
    QCOMPARE(label("titleText")->width(), video.width());
    QCOMPARE(label("leavingText")->width(), video.width());
    for (const char *name : {"picture", "titleText", "leavingText"}) {
        QVERIFY(label(name)->alignment() & Qt::AlignHCenter);
        QVERIFY(qAbs(label(name)->geometry().center().x() - video.width() / 2) <= 1);
    }
}

void tst_StandbyWidget::laidOutAnew()
{
    layOut(ScreenOrientation::Portrait, PortraitVideo);
    layOut(ScreenOrientation::Landscape, LandscapeVideo);
    layOut(ScreenOrientation::Portrait, PortraitVideo);
    QCOMPARE(label("picture")->size(), QSize(70, 70));
    QCOMPARE(spacers().constFirst()->sizeHint().height(), 120);
    QCOMPARE(label("titleText")->width(), 340);
}

// Below one another, and in the product's own sizes whole with their spacers.
void tst_StandbyWidget::order()
{
    for (const auto orientation : {ScreenOrientation::Portrait, ScreenOrientation::Landscape}) {
        const bool isPortrait = orientation == ScreenOrientation::Portrait;
        layOut(orientation, isPortrait ? PortraitVideo : LandscapeVideo);
        QVERIFY(label("picture")->y() >= (isPortrait ? 100 : 20));
        QVERIFY(label("titleText")->y() >= label("picture")->geometry().bottom());
        QVERIFY(button("resumeButton")->y() >= label("titleText")->geometry().bottom());
        QVERIFY(button("exitButton")->y() >= button("resumeButton")->y());
        QVERIFY(!button("exitButton")->geometry().intersects(button("resumeButton")->geometry()));
        QVERIFY(label("leavingText")->y() >= button("exitButton")->geometry().bottom());
        QVERIFY(label("leavingText")->geometry().bottom() < m_page->height() - 20);
    }
}

void tst_StandbyWidget::smallVideo_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QSize>("video");
    QTest::newRow("portrait") << 2 << QSize(295, 520);
    QTest::newRow("landscape") << 1 << QSize(520, 295);
}

// In the smallest window the spacers give way, not the texts.
void tst_StandbyWidget::smallVideo()
{
    QFETCH(int, orientation);
    QFETCH(QSize, video);
    layOut(static_cast<ScreenOrientation>(orientation), video);
    for (const char *name : {"titleText", "leavingText"}) {
        QVERIFY(m_page->rect().contains(label(name)->geometry()));
        QVERIFY(label(name)->height() >= label(name)->heightForWidth(video.width()));
    }
    QVERIFY(m_page->rect().contains(label("picture")->geometry()));
}

void tst_StandbyWidget::buttons()
{
    m_page->show();
    QSignalSpy resume(m_page, &StandbyWidget::sigResumeBtnClicked);
    QSignalSpy exit(m_page, &StandbyWidget::sigExitBtnClicked);
    for (const char *name : {"resumeButton", "exitButton"}) {
        QCOMPARE(button(name)->size(), QSize(135, 32));
        QCOMPARE(button(name)->font().pixelSize(), 14);
    }
    QTest::mouseClick(button("resumeButton"), Qt::LeftButton);
    QCOMPARE(resume.size(), 1);
    QCOMPARE(exit.size(), 0);
    QTest::mouseClick(button("exitButton"), Qt::LeftButton);
    QCOMPARE(resume.size(), 1);
    QCOMPARE(exit.size(), 1);
}

void tst_StandbyWidget::longButtonText()
{
    class LongTexts : public QTranslator
    {
    public:
        QString translate(const char *, const char *, const char *, int) const override
        {
            return QStringLiteral("Nutzung jetzt fortsetzen");
        }
        bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    QTRY_COMPARE(button("resumeButton")->text(), QStringLiteral("Nutzung jetzt fortsetzen"));
    QCOMPARE(button("resumeButton")->size(), QSize(135, 32));
    const QFont font = button("resumeButton")->font();
    QVERIFY(font.pixelSize() < 14);
    QVERIFY(QFontMetrics(font).horizontalAdvance(button("resumeButton")->text()) <= 135 - 2);
    QCoreApplication::removeTranslator(&translator);
}

void tst_StandbyWidget::colours()
{
    button("resumeButton")->setText(QString());
    button("exitButton")->setText(QString());
    const QImage resume = button("resumeButton")->grab().toImage();
    const auto isNear = [](const QColor &a, const QColor &b) {
        return qAbs(a.red() - b.red()) < 12 && qAbs(a.green() - b.green()) < 12
            && qAbs(a.blue() - b.blue()) < 12;
    };
    QVERIFY(isNear(resume.pixelColor(5, 4), QColor(247, 70, 70)));
    QVERIFY(isNear(resume.pixelColor(129, 27), QColor(255, 154, 122)));
    QCOMPARE(resume.pixelColor(67, 0), QColor(Qt::white)); // border
    QVERIFY(resume.pixelColor(67, 1) != QColor(Qt::white)); // of one pixel
    QVERIFY(isNear(resume.pixelColor(129, 4), QColor(251, 115, 98))); // from corner to corner
    for (const QPoint &outside : {QPoint(0, 0), QPoint(0, 1)}) // round, with a radius of 4
        QVERIFY(resume.pixelColor(outside) != QColor(Qt::white));
    QCOMPARE(resume.pixelColor(0, 5), QColor(Qt::white));
    const QImage exit = button("exitButton")->grab().toImage();
    QCOMPARE(exit.pixelColor(67, 16), QColor(Qt::black));
    QCOMPARE(exit.pixelColor(67, 0), QColor(Qt::white));
    QCOMPARE(exit.pixelColor(0, 16), QColor(Qt::white));

    for (const char *name : {"resumeButton", "exitButton"})
        QCOMPARE(button(name)->palette().color(QPalette::ButtonText), QColor(Qt::white));
    for (const char *name : {"titleText", "leavingText"})
        QCOMPARE(label(name)->palette().color(QPalette::WindowText), QColor(Qt::white));

    // What lies below is seen, and darker.
    QPalette white;
    white.setColor(QPalette::Window, Qt::white);
    m_video->setPalette(white);
    layOut(ScreenOrientation::Portrait, PortraitVideo);
    m_page->show();
    const QColor below = m_video->grab().toImage().pixelColor(3, 3);
    QVERIFY(below.lightness() > 40 && below.lightness() < 80);
}

void tst_StandbyWidget::titleIsBoldAndLarger()
{
    QPalette black;
    black.setColor(QPalette::Window, Qt::black);
    m_video->setPalette(black);
    layOut(ScreenOrientation::Landscape, {1200, 340});
    m_page->show();
    QFont title = label("titleText")->font();
    title.setPixelSize(16);
    title.setBold(true);
    const QString text = QStringLiteral("Not operating for a long time, has entered standby mode");
    const int wanted = QFontMetrics(title).horizontalAdvance(text);
    // The white pixels of the first line.
    const QImage image = m_video->grab(label("titleText")->geometry()).toImage();
    int left = image.width();
    int right = 0;
    for (int y = 0; y < image.height() / 2 - 3; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).lightness() > 200) {
                left = qMin(left, x);
                right = qMax(right, x);
            }
        }
    }
    QVERIFY2(
        qAbs(right - left - wanted) <= 4, qPrintable(QStringLiteral("%1 %2").arg(right - left).arg(wanted)));
}

void tst_StandbyWidget::keyboard_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void tst_StandbyWidget::keyboard()
{
    QFETCH(Qt::Key, key);
    QApplication::setActiveWindow(m_video.get());
    QVERIFY(waitForInputFocus(*m_video));
    m_page->show();
    QVERIFY(button("resumeButton")->hasFocus());
    QSignalSpy resume(m_page, &StandbyWidget::sigResumeBtnClicked);
    QTest::keyClick(button("resumeButton"), key);
    QCOMPARE(resume.size(), 1);
}

void tst_StandbyWidget::pointerStaysHere()
{
    m_page->show();
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(3, 3), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    press.ignore();
    QApplication::sendEvent(m_page, &press);
    QVERIFY(press.isAccepted());
    QWheelEvent wheel(QPointF(3, 3), QPointF(3, 3), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    wheel.ignore();
    QApplication::sendEvent(m_page, &wheel);
    QVERIFY(wheel.isAccepted());
}

QTEST_MAIN(tst_StandbyWidget)

#include "tst_standbywidget.moc"
