// The device window's stand-by: when it begins, what it stops, and how it ends.

#include "DeviceWindowFixture.h"

#include "device/LoadingPage.h"
#include "device/MenuBar.h"
#include "device/MenuButton.h"
#include "device/QualityBox.h"
#include "device/StandbyTimer.h"
#include "device/StandbyWidget.h"

#include <QAbstractEventDispatcher>
#include <QClipboard>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>

using namespace devicetest;

namespace {

const QStringList PauseCalls = {QStringLiteral("SWDataSource::screenCast(0)")};
const QStringList ResumeCalls
    = {QStringLiteral("SWDataSource::setVideoLevel(0)"), QStringLiteral("SWDataSource::screenCast(3)")};

} // namespace

class tst_SingleControllerStandby : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void countBeginsWithTheVideo();
    void expiryPausesTheStream();
    void staleTimerIsIgnored();
    void minutesZeroNeverStandBy();
    void changedMinutesCountFromNow();
    void operations_data();
    void operations();
    void resume();
    void resumeKeepsTheQuality();
    void exitIsTheCloseButton();
    void fingerIsLifted();
    void heldKeysComeUp();
    void nothingReachesThePausedDevice();
    void pageCoversTheVideo_data();
    void pageCoversTheVideo();
    void pageFollowsTheWindow();
    void firstPictureAfterResume();
    void closedWindowIsQuiet();
    void reopenedWindowIsNotStandingBy();
    void expiryWhileLoading();
    void openDialogStaysUsable();
    void failedSaveStaysAnswerable();
    void openListChoosesForAfterwards();
    void minimizedWindow();
    void languageWhileStandingBy();

private:
    SingleController &window() const { return *m_fixture->window; }
    StandbyTimer *timer() const { return m_fixture->child<StandbyTimer>(); }
    StandbyWidget *page() const { return m_fixture->child<StandbyWidget>(); }
    void fire(int id) const;
    void standBy() const;
    int runningTimers() const
    {
        return QAbstractEventDispatcher::instance()->registeredTimers(timer()).size();
    }

    std::unique_ptr<Fixture> m_fixture;
};

void tst_SingleControllerStandby::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_fixture = std::make_unique<Fixture>();
    QVERIFY(m_fixture->server.isListening());
}

void tst_SingleControllerStandby::init()
{
    m_fixture->makeWindow();
}

void tst_SingleControllerStandby::cleanup()
{
    m_fixture->window.reset();
}

// The event of a timer as it comes when its time is over.
void tst_SingleControllerStandby::fire(int id) const
{
    QTimerEvent event(id);
    QCoreApplication::sendEvent(timer(), &event);
}

void tst_SingleControllerStandby::standBy() const
{
    fire(timer()->timerId());
    QVERIFY(page()->isVisible());
    takeCalls();
}

// A user who does nothing from the start is away as well.
void tst_SingleControllerStandby::countBeginsWithTheVideo()
{
    QCOMPARE(window().standbyTime(), 5);
    window().show();
    QCOMPARE(timer()->timerId(), -1);
    QVERIFY(m_fixture->open());
    QVERIFY(timer()->timerId() != -1);
}

void tst_SingleControllerStandby::expiryPausesTheStream()
{
    QVERIFY(m_fixture->open());
    QVERIFY(!page()->isVisible());
    fire(timer()->timerId());
    QVERIFY(page()->isVisible());
    QCOMPARE(takeCalls(), PauseCalls);
    QCOMPARE(timer()->timerId(), -1);
    QVERIFY(m_fixture->video()->isVisible());
}

void tst_SingleControllerStandby::staleTimerIsIgnored()
{
    QVERIFY(m_fixture->open());
    const int first = timer()->timerId();
    window().onOperation();
    const int second = timer()->timerId();
    QVERIFY(first != second);
    fire(first);
    QVERIFY(!page()->isVisible());
    QCOMPARE(takeCalls(), QStringList());
    fire(second);
    QVERIFY(page()->isVisible());
}

void tst_SingleControllerStandby::minutesZeroNeverStandBy()
{
    QVERIFY(m_fixture->open());
    const int first = timer()->timerId();
    for (const int minutes : {0, -1}) {
        window().setStandbyTime(minutes);
        QCOMPARE(timer()->timerId(), -1);
        window().onOperation();
        QCOMPARE(timer()->timerId(), -1);
    }
    fire(first);
    QVERIFY(!page()->isVisible());
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleControllerStandby::changedMinutesCountFromNow()
{
    window().setStandbyTime(9); // before there is anything to pause
    QCOMPARE(timer()->timerId(), -1);
    QVERIFY(m_fixture->open());
    QCOMPARE(
        QAbstractEventDispatcher::instance()->registeredTimers(timer()).constFirst().interval, 9 * 60'000);
    const int first = timer()->timerId();
    window().setStandbyTime(1);
    QCOMPARE(window().standbyTime(), 1);
    QVERIFY(timer()->timerId() != -1 && timer()->timerId() != first);
    window().setStandbyTime(0);
    window().setStandbyTime(3);
    QVERIFY(timer()->timerId() != -1);
}

void tst_SingleControllerStandby::operations_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"touch", "text", "key", "paste", "home", "rotate", "quality", "wheel"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

// Whatever the user does with the device, and only that.
void tst_SingleControllerStandby::operations()
{
    QFETCH(QString, what);
    QVERIFY(m_fixture->open());
    const int before = timer()->timerId();
    VideoView *video = m_fixture->video();
    const auto click = [this](int index) {
        QTest::mouseClick(m_fixture->child<MenuBar>()->buttons().at(index), Qt::LeftButton);
    };
    window().onPlayInfo(R"({"delayTime": 3})");
    QCOMPARE(timer()->timerId(), before);
    if (what == QLatin1String("touch")) {
        sendMouse(video, QEvent::MouseButtonPress, {5, 5});
    } else if (what == QLatin1String("text")) {
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("\u4f60"));
        QApplication::sendEvent(video, &event);
    } else if (what == QLatin1String("key")) {
        QTest::keyPress(video, Qt::Key_1);
    } else if (what == QLatin1String("paste")) {
        QGuiApplication::clipboard()->setText(QStringLiteral("text"));
        window().onPasteText();
    } else if (what == QLatin1String("home")) {
        click(0);
    } else if (what == QLatin1String("rotate")) {
        click(4);
    } else if (what == QLatin1String("quality")) {
        m_fixture->child<QualityBox>()->setCurrentIndex(3);
    } else {
        QWheelEvent event(QPointF(9, 9), video->mapToGlobal(QPoint(9, 9)), QPoint(), QPoint(0, 120),
            Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(video, &event);
    }
    QVERIFY(timer()->timerId() != before);
    QVERIFY(timer()->timerId() != -1);
}

void tst_SingleControllerStandby::resume()
{
    QVERIFY(m_fixture->open());
    standBy();
    QTest::mouseClick(page()->findChild<QPushButton *>(QStringLiteral("resumeButton")), Qt::LeftButton);
    QVERIFY(!page()->isVisible());
    QCOMPARE(takeCalls(), ResumeCalls);
    QVERIFY(m_fixture->video()->hasFocus());
    QVERIFY(timer()->timerId() != -1);
    QTest::mouseClick(m_fixture->child<MenuBar>()->buttons().first(), Qt::LeftButton);
    QCOMPARE(takeCalls(), QStringList(QStringLiteral("SWDataSource::sendKeyEvent(3, 172)")));
    // Without a stand-by there is nothing to resume.
    window().onResumeBtnClicked();
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleControllerStandby::resumeKeepsTheQuality()
{
    QVERIFY(m_fixture->open());
    m_fixture->child<QualityBox>()->setCurrentIndex(4);
    const QString level = QStringLiteral("SWDataSource::setVideoLevel(2, 0, 480, 848, 0, 1024, 15)");
    QCOMPARE(takeCalls(), QStringList(level));
    standBy();
    window().onResumeBtnClicked();
    QCOMPARE(takeCalls(), ResumeCalls + QStringList(level));
}

// So that the owner gives the device back.
void tst_SingleControllerStandby::exitIsTheCloseButton()
{
    QVERIFY(m_fixture->open());
    QSignalSpy closeClicked(&window(), &OvWindowBase::sigCloseBtnClicked);
    standBy();
    QTest::mouseClick(page()->findChild<QPushButton *>(QStringLiteral("exitButton")), Qt::LeftButton);
    QCOMPARE(closeClicked.size(), 1);
    QVERIFY(!window().isVisible());
    QVERIFY(takeCalls().contains(QStringLiteral("SWDataSource::stop()")));
}

// A press that lasts until the stand-by is over for the device; the late release means nothing.
void tst_SingleControllerStandby::fingerIsLifted()
{
    QVERIFY(m_fixture->open());
    sendMouse(m_fixture->video(), QEvent::MouseButtonPress, {85, 150});
    takeCalls();
    fire(timer()->timerId());
    QVERIFY(page()->isVisible());
    QCOMPARE(takeCalls(), QStringList(liftCall()) + PauseCalls);
    QCOMPARE(timer()->timerId(), -1); // the lifted finger is no operation
    sendMouse(m_fixture->video(), QEvent::MouseMove, {90, 150});
    sendMouse(m_fixture->video(), QEvent::MouseButtonRelease, {90, 150});
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleControllerStandby::heldKeysComeUp()
{
    QVERIFY(m_fixture->open());
    QTest::keyPress(m_fixture->video(), Qt::Key_1);
    takeCalls();
    fire(timer()->timerId());
    QVERIFY(page()->isVisible());
    QCOMPARE(takeCalls(), QStringList(keyCall(2, Qt::Key_1)) + PauseCalls);
}

void tst_SingleControllerStandby::nothingReachesThePausedDevice()
{
    QVERIFY(m_fixture->open());
    standBy();
    QWidget *focus = QApplication::focusWidget();
    QCOMPARE(focus, page()->findChild<QPushButton *>(QStringLiteral("resumeButton")));
    QTest::keyClick(focus, Qt::Key_1);
    QTest::keyClick(focus, Qt::Key_A);
    QGuiApplication::clipboard()->setText(QStringLiteral("text"));
    window().onPasteText();
    QTest::keyClick(focus, Qt::Key_V, Qt::ControlModifier);
    QTest::mouseClick(m_fixture->child<MenuBar>()->buttons().first(), Qt::LeftButton);
    QTest::mouseClick(page(), Qt::LeftButton, Qt::NoModifier, {3, 3});
    QVERIFY(!m_fixture->video()->isEnabled());
    QVERIFY(page()->isVisible());
    window().onOperation();
    QCOMPARE(timer()->timerId(), -1);
    QCOMPARE(takeCalls(), QStringList());
    // The keyboard reaches both choices, and nothing else.
    QTest::keyClick(focus, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), page()->findChild<QPushButton *>(QStringLiteral("exitButton")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), focus);
}

void tst_SingleControllerStandby::pageCoversTheVideo_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::newRow("portrait") << ScreenOrientation::Portrait;
    QTest::newRow("landscape") << ScreenOrientation::Landscape;
}

// Above everything, also above pictures that come late.
void tst_SingleControllerStandby::pageCoversTheVideo()
{
    QFETCH(ScreenOrientation, orientation);
    QVERIFY(m_fixture->open());
    window().onScreenRotation(orientation);
    VideoView *video = m_fixture->video();
    standBy();
    QTRY_COMPARE(page()->mapToGlobal(QPoint(0, 0)), video->mapToGlobal(QPoint(0, 0)));
    QCOMPARE(page()->size(), video->size());
    QCOMPARE(page()->orientation(), orientation);
    showDevicePicture(*video);
    QCoreApplication::processEvents();
    // The window may still be told of its new shape: its button is compared with itself, not with one before.
    const auto button = page()->findChild<QPushButton *>(QStringLiteral("exitButton"));
    const double ratio = window().devicePixelRatioF();
    const QRect inside = button->rect().adjusted(4, 4, -4, -4);
    const auto part = [ratio](const QPixmap &picture, const QRect &area) {
        return picture.toImage().copy(QRect(area.topLeft() * ratio, area.size() * ratio));
    };
    QTRY_COMPARE(part(window().grab(), inside.translated(button->mapTo(&window(), QPoint()))),
        part(button->grab(), inside));
}

void tst_SingleControllerStandby::pageFollowsTheWindow()
{
    QVERIFY(m_fixture->open());
    standBy();
    window().onMaximizeShortcutActivated();
    QTRY_COMPARE(page()->geometry(), m_fixture->video()->geometry());
    QVERIFY(page()->height() > 700);
    m_fixture->video()->onScreenRotation(1); // the device turned before the pause was over
    QTRY_COMPARE(page()->orientation(), ScreenOrientation::Landscape);
    QTRY_COMPARE(page()->geometry(), m_fixture->video()->geometry());
    QVERIFY(page()->width() > page()->height());
    QVERIFY(page()->isVisible());
}

void tst_SingleControllerStandby::firstPictureAfterResume()
{
    QVERIFY(m_fixture->open());
    standBy();
    window().onResumeBtnClicked();
    showDevicePicture(*m_fixture->video());
    QCoreApplication::processEvents();
    const QPoint corner = m_fixture->video()->mapTo(&window(), QPoint(3, 3));
    const QImage image = window().grab().toImage();
    QCOMPARE(image.pixelColor(corner * image.devicePixelRatio()), QColor(Qt::red));
}

void tst_SingleControllerStandby::closedWindowIsQuiet()
{
    QVERIFY(m_fixture->open());
    const int id = timer()->timerId();
    sendMouse(m_fixture->video(), QEvent::MouseButtonPress, {85, 150});
    window().close();
    QCOMPARE(timer()->timerId(), -1);
    QCOMPARE(runningTimers(), 0);
    takeCalls();
    fire(id);
    window().onOperation();
    window().setStandbyTime(2);
    window().onResumeBtnClicked();
    emit timer()->sigExpired();
    QVERIFY(page()->isHidden());
    QCOMPARE(runningTimers(), 0);
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleControllerStandby::reopenedWindowIsNotStandingBy()
{
    QVERIFY(m_fixture->open());
    standBy();
    window().close();
    QVERIFY(m_fixture->open());
    QVERIFY(!page()->isVisible());
    QVERIFY(m_fixture->video()->isEnabled());
    QVERIFY(m_fixture->child<MenuBar>()->isEnabled());
    QVERIFY(timer()->timerId() != -1);
}

void tst_SingleControllerStandby::expiryWhileLoading()
{
    window().show();
    window().onOperation();
    QCOMPARE(timer()->timerId(), -1);
    emit timer()->sigExpired();
    QVERIFY(page()->isHidden());
    QVERIFY(m_fixture->child<LoadingPage>()->isVisible());
}

// Nothing else in the window can be used until it is answered.
void tst_SingleControllerStandby::openDialogStaysUsable()
{
    QVERIFY(m_fixture->open());
    showDevicePicture(*m_fixture->video());
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture.png"));
    QTest::mouseClick(m_fixture->child<MenuBar>()->buttons().at(3), Qt::LeftButton);
    auto *dialog = m_fixture->child<QFileDialog>();
    QVERIFY(dialog);
    QTRY_VERIFY(dialog->isVisible());
    standBy();
    QVERIFY(dialog->isEnabled());
    dialog->selectFile(path);
    QVERIFY(QMetaObject::invokeMethod(dialog, "accept"));
    QVERIFY(QFile::exists(path));
    QTRY_VERIFY(page()->findChild<QPushButton *>(QStringLiteral("resumeButton"))->hasFocus());
    window().onResumeBtnClicked();
    QCOMPARE(takeCalls(), ResumeCalls);
}

void tst_SingleControllerStandby::failedSaveStaysAnswerable()
{
    QVERIFY(m_fixture->open());
    showDevicePicture(*m_fixture->video());
    QTest::mouseClick(m_fixture->child<MenuBar>()->buttons().at(3), Qt::LeftButton);
    const QTemporaryDir folder;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^the picture could not be saved as .*"));
    emit m_fixture->child<QFileDialog>()->fileSelected(folder.filePath(QStringLiteral("none/picture.png")));
    QPointer<QMessageBox> box = m_fixture->child<QMessageBox>();
    QVERIFY(box);
    standBy();
    QVERIFY(box->isEnabled());
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    QTRY_VERIFY(!box);
}

// A list that was open already: the paused stream takes the level, and keeps it.
void tst_SingleControllerStandby::openListChoosesForAfterwards()
{
    QVERIFY(m_fixture->open());
    m_fixture->child<QualityBox>()->showPopup();
    standBy();
    m_fixture->child<QualityBox>()->setCurrentIndex(5);
    m_fixture->child<QualityBox>()->hidePopup();
    QVERIFY(page()->isVisible());
    QCOMPARE(timer()->timerId(), -1);
    takeCalls();
    window().onResumeBtnClicked();
    QCOMPARE(takeCalls(),
        ResumeCalls + QStringList(QStringLiteral("SWDataSource::setVideoLevel(2, 0, 240, 424, 0, 512, 15)")));
}

void tst_SingleControllerStandby::minimizedWindow()
{
    QVERIFY(m_fixture->open());
    window().showMinimized();
    QTRY_VERIFY(window().isMinimized());
    takeCalls();
    fire(timer()->timerId());
    QCOMPARE(takeCalls(), PauseCalls);
    m_fixture->video()->onScreenRotation(1);
    QTRY_COMPARE(page()->orientation(), ScreenOrientation::Landscape);
    window().showNormal();
    QTRY_VERIFY(!window().isMinimized());
    QTRY_VERIFY(page()->isVisible());
    QTRY_COMPARE(page()->geometry(), m_fixture->video()->geometry());
    QTRY_COMPARE(window().size(), QSize(670, 400));
    window().onResumeBtnClicked();
    QCOMPARE(takeCalls(), ResumeCalls);
}

void tst_SingleControllerStandby::languageWhileStandingBy()
{
    class LongTexts : public QTranslator
    {
    public:
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return QString::fromLatin1(text) + QStringLiteral(" and some more words");
        }
        bool isEmpty() const override { return false; }
    } translator;
    QVERIFY(m_fixture->open());
    standBy();
    QCoreApplication::installTranslator(&translator);
    const auto *text = page()->findChild<QLabel *>(QStringLiteral("leavingText"));
    QTRY_VERIFY(text->text().endsWith(QStringLiteral("some more words")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCOMPARE(text->width(), page()->width());
    QVERIFY(text->height() >= text->heightForWidth(text->width()));
    QVERIFY(page()->rect().contains(text->geometry()));
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
}

QTEST_MAIN(tst_SingleControllerStandby)

#include "tst_singlecontrollerstandby.moc"
