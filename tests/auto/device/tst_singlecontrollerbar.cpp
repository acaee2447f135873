// The device window's menu bar, its title bar and who has the keyboard.

#include "DeviceWindowFixture.h"

#include "device/MenuBar.h"
#include "device/MenuButton.h"
#include "device/QualityBox.h"
#include "widgets/OvBubble.h"
#include "widgets/OvMaskTipsDialog.h"
#include "widgets/OvToast.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QFileDialog>
#include <QFontMetrics>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>

using namespace devicetest;

class tst_SingleControllerBar : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void slotOrder();
    void keysOfTheDevice_data();
    void keysOfTheDevice();
    void everyButtonIsShown();
    void noBarWhileLoading();
    void screenshot_data();
    void screenshot();
    void qualities();
    void qualityLevels_data();
    void qualityLevels();
    void qualityHoldsForTheNextSession();
    void qualityFollowsTheLanguage();
    void wheelLeavesTheQualityAlone();
    void keyboardStaysWithTheVideo();
    void openListReleasesHeldKeys();
    void titleHasTheRoomThatIsThere();
    void bubbleGoesWhenTheBarMoves_data();
    void bubbleGoesWhenTheBarMoves();
    void closingClosesItsDialogs();
    void oneToastAtATime();

private:
    SingleController &window() const { return *m_fixture->window; }
    void click(int index) const
    {
        QTest::mouseClick(m_fixture->child<MenuBar>()->buttons().at(index), Qt::LeftButton);
    }
    QualityBox *quality() const { return m_fixture->child<QualityBox>(); }

    std::unique_ptr<Fixture> m_fixture;
};

void tst_SingleControllerBar::initTestCase()
{
    m_fixture = std::make_unique<Fixture>();
    QVERIFY(m_fixture->server.isListening());
}

void tst_SingleControllerBar::init()
{
    m_fixture->makeWindow();
}

void tst_SingleControllerBar::cleanup()
{
    m_fixture->window.reset();
}

void tst_SingleControllerBar::slotOrder()
{
    QStringList names;
    const QMetaObject &meta = SingleController::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names << QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(names,
        (QStringList{"onScreenRotateBtnClicked()", "onScreenRotation(ScreenOrientation)",
            "onResumeBtnClicked()", "onExitBtnClicked()", "onOperation()", "onPasteText()",
            "onPlayInfo(const char*)", "onMaximizeShortcutActivated()", "onKeyboardMapBtnClicked()",
            "onApplyKeyBindingBtnClicked()", "onTutorialBtnClicked()", "onUploadBtnClicked()",
            "onExitKeyBoardEditBtnClicked()", "onSaveAndCloseKeyboardEditor()",
            "onAuxiliaryClickBtnClicked()", "onAuxiliaryCrosshairClicked()", "onAuxiliaryWalkingClicked()",
            "onCreateAuxiliaryClickKey()", "onCreateAuxiliaryCrosshairKey()", "onCreateAuxiliaryWalkingKey()",
            "onShareConfig()"}));
}

void tst_SingleControllerBar::keysOfTheDevice_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("key");
    QTest::newRow("home page") << 0 << 172;
    QTest::newRow("volume up") << 1 << 115;
    QTest::newRow("volume down") << 2 << 114;
}

// One click of the button is one click of the key, not a press and a release.
void tst_SingleControllerBar::keysOfTheDevice()
{
    QFETCH(int, index);
    QFETCH(int, key);
    QVERIFY(m_fixture->open());
    click(index);
    QCOMPARE(takeCalls(), QStringList(QStringLiteral("SWDataSource::sendKeyEvent(3, %1)").arg(key)));
}

void tst_SingleControllerBar::everyButtonIsShown()
{
    QVERIFY(m_fixture->open());
    const auto &buttons = m_fixture->child<MenuBar>()->buttons();
    QCOMPARE(buttons.size(), 7);
    for (const MenuButton *button : buttons)
        QVERIFY(button->isVisible());
}

void tst_SingleControllerBar::noBarWhileLoading()
{
    window().show();
    QVERIFY(!m_fixture->child<MenuBar>()->isVisible());
    QVERIFY(m_fixture->open());
    QVERIFY(m_fixture->child<MenuBar>()->isVisible());
}

void tst_SingleControllerBar::screenshot_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QByteArray>("beginning");
    QTest::addColumn<bool>("landscape");
    QTest::newRow("png") << "png" << QByteArray("\x89PNG") << false;
    QTest::newRow("jpg") << "jpg" << QByteArray("\xff\xd8\xff") << false;
    QTest::newRow("jpeg") << "jpeg" << QByteArray("\xff\xd8\xff") << false;
    QTest::newRow("landscape") << "png" << QByteArray("\x89PNG") << true;
}

void tst_SingleControllerBar::screenshot()
{
    QFETCH(QString, suffix);
    QFETCH(QByteArray, beginning);
    QFETCH(bool, landscape);
    QVERIFY(m_fixture->open());
    showDevicePicture(*m_fixture->video());
    if (landscape)
        window().onScreenRotateBtnClicked();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture.") + suffix);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    click(3);
    auto *dialog = window().findChild<QFileDialog *>();
    QVERIFY(dialog);
    dialog->selectFile(path);
    QVERIFY(QMetaObject::invokeMethod(dialog, "accept"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.read(16).startsWith(beginning));
    const QImage saved(path);
    QCOMPARE(saved.size(), landscape ? QSize(1280, 720) : QSize(720, 1280));
    const QColor corner = saved.pixelColor(10, 10);
    const QColor expected = landscape ? QColor(Qt::green) : QColor(Qt::red);
    QVERIFY(qAbs(corner.red() - expected.red()) < 12 && qAbs(corner.green() - expected.green()) < 12
        && qAbs(corner.blue() - expected.blue()) < 12);
}

void tst_SingleControllerBar::qualities()
{
    QStringList texts;
    for (int i = 0; i < quality()->count(); ++i)
        texts << quality()->itemText(i);
    QCOMPARE(texts, (QStringList{"Auto", "720P HQ", "720P", "576P", "480P", "240P"}));
    QCOMPARE(quality()->currentIndex(), 0);
}

void tst_SingleControllerBar::qualityLevels_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("arguments");
    QTest::newRow("720P HQ") << 1 << "2, 0, 720, 1280, 0, 6144, 25";
    QTest::newRow("720P") << 2 << "2, 0, 720, 1280, 0, 4096, 25";
    QTest::newRow("576P") << 3 << "2, 0, 576, 1024, 0, 2048, 20";
    QTest::newRow("480P") << 4 << "2, 0, 480, 848, 0, 1024, 15";
    QTest::newRow("240P") << 5 << "2, 0, 240, 424, 0, 512, 15";
}

void tst_SingleControllerBar::qualityLevels()
{
    QFETCH(int, index);
    QFETCH(QString, arguments);
    QVERIFY(m_fixture->open());
    quality()->setCurrentIndex(index);
    QCOMPARE(takeCalls(), QStringList(QStringLiteral("SWDataSource::setVideoLevel(%1)").arg(arguments)));
    quality()->setCurrentIndex(0);
    QCOMPARE(takeCalls(), QStringList(QStringLiteral("SWDataSource::setVideoLevel(0)")));
}

// What the box shows is what the stream has.
void tst_SingleControllerBar::qualityHoldsForTheNextSession()
{
    quality()->setCurrentIndex(5);
    window().show();
    window().applyDevice();
    QTRY_VERIFY(m_fixture->video()->isVisible());
    const QStringList calls = takeCalls();
    const int start = calls.indexOf(QStringLiteral("SWPlayer::start()"));
    QVERIFY(start >= 0);
    QCOMPARE(calls.mid(start + 1),
        QStringList(QStringLiteral("SWDataSource::setVideoLevel(2, 0, 240, 424, 0, 512, 15)")));
}

void tst_SingleControllerBar::qualityFollowsTheLanguage()
{
    class Automatic : public QTranslator
    {
    public:
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return QLatin1String(text) == QLatin1String("Auto") ? QStringLiteral("Automatisch") : QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QVERIFY(m_fixture->open());
    quality()->setCurrentIndex(3);
    takeCalls();
    QCoreApplication::installTranslator(&translator);
    QTRY_COMPARE(quality()->itemText(0), QStringLiteral("Automatisch"));
    QCOMPARE(quality()->currentIndex(), 3);
    QCOMPARE(takeCalls(), QStringList());
    QCoreApplication::removeTranslator(&translator);
}

void tst_SingleControllerBar::wheelLeavesTheQualityAlone()
{
    QVERIFY(m_fixture->open());
    quality()->setCurrentIndex(3);
    QWheelEvent event(QPointF(9, 9), quality()->mapToGlobal(QPoint(9, 9)), QPoint(), QPoint(0, -120),
        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(quality(), &event);
    QCOMPARE(quality()->currentIndex(), 3);
}

void tst_SingleControllerBar::keyboardStaysWithTheVideo()
{
    QVERIFY(m_fixture->open());
    for (int i = 0; i < 3; ++i) {
        click(i);
        QVERIFY(m_fixture->video()->hasFocus());
    }
    click(4);
    QVERIFY(m_fixture->video()->hasFocus());
    QTest::mouseClick(quality(), Qt::LeftButton);
    QTRY_VERIFY(quality()->view()->isVisible());
    quality()->setCurrentIndex(2);
    quality()->hidePopup();
    QTRY_COMPARE(QApplication::focusWidget(), m_fixture->video());
    takeCalls();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_1);
    QCOMPARE(takeCalls(), (QStringList{keyCall(1, Qt::Key_1), keyCall(2, Qt::Key_1)}));
}

// An open list takes the keyboard, and with it the key's release.
void tst_SingleControllerBar::openListReleasesHeldKeys()
{
    QVERIFY(m_fixture->open());
    QTest::keyPress(m_fixture->video(), Qt::Key_1);
    takeCalls();
    quality()->showPopup();
    QTRY_VERIFY(quality()->view()->isVisible());
    QCOMPARE(takeCalls(), QStringList(keyCall(2, Qt::Key_1)));
    quality()->hidePopup();
}

void tst_SingleControllerBar::titleHasTheRoomThatIsThere()
{
    const QString name(200, QLatin1Char('W'));
    m_fixture->window = std::make_unique<SingleController>(QStringLiteral("1"), name);
    QVERIFY(m_fixture->open());
    window().onPlayInfo(R"({"delayTime": 9999})");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const QString upright = window().titleBar()->title();
    const auto *title = window().titleBar()->findChild<QLabel *>(QStringLiteral("titleLabel"));
    const auto isWhole = [&] {
        return title->width() >= QFontMetrics(title->font()).horizontalAdvance(title->text())
            && title->geometry().right() < quality()->mapTo(window().titleBar(), QPoint(0, 0)).x();
    };
    QVERIFY(upright.size() > 3 && upright.endsWith(QChar(0x2026)));
    QTRY_VERIFY(isWhole());
    window().onScreenRotateBtnClicked();
    QTRY_VERIFY(window().titleBar()->title().size() > upright.size() + 10);
    QTRY_VERIFY(isWhole());
    window().onMaximizeShortcutActivated();
    QTRY_VERIFY(isWhole());
}

void tst_SingleControllerBar::bubbleGoesWhenTheBarMoves_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"maximised", "turned by the device", "moved"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

// By the keyboard or from the device's side, the pointer being where it was.
void tst_SingleControllerBar::bubbleGoesWhenTheBarMoves()
{
    QFETCH(QString, what);
    QVERIFY(m_fixture->open());
    auto *button = m_fixture->child<MenuBar>()->buttons().constFirst();
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(button, &enter);
    QVERIFY(button->bubble()->isVisible());
    if (what == QLatin1String("maximised"))
        window().onMaximizeShortcutActivated();
    else if (what == QLatin1String("moved"))
        window().move(window().pos() + QPoint(30, 0));
    else
        m_fixture->video()->onScreenRotation(1);
    QTRY_VERIFY(!button->bubble()->isVisible());
}

// A question of a window that is gone could not be answered sensibly.
void tst_SingleControllerBar::closingClosesItsDialogs()
{
    QVERIFY(m_fixture->open());
    showDevicePicture(*m_fixture->video());
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    click(3);
    const QPointer<QFileDialog> file = m_fixture->child<QFileDialog>();
    QVERIFY(file);
    window().close();
    QVERIFY(!file || !file->isVisible());
    QTRY_VERIFY(!file);

    QVERIFY(m_fixture->open());
    const QPointer<OvMaskTipsDialog> question = new OvMaskTipsDialog(&window());
    bool closed = false;
    QTimer::singleShot(0, question, [&] { closed = window().close(); });
    QCOMPARE(question->exec(), 0); // and does not wait for ever
    QVERIFY(closed);
    QVERIFY(!question);
}

// The newest: two would lie over one another.
void tst_SingleControllerBar::oneToastAtATime()
{
    QVERIFY(m_fixture->open());
    QGuiApplication::clipboard()->setText(QString(1024 * 1024 + 1, QLatin1Char('x')));
    for (int i = 0; i < 2; ++i) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("too long to paste"));
        window().onPasteText();
    }
    QCOMPARE(window().findChildren<OvToast *>().size(), 1);
    window().findChild<OvToast *>()->close();
    QTRY_VERIFY(!window().findChild<OvToast *>());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("too long to paste"));
    window().onPasteText();
    QVERIFY(window().findChild<OvToast *>()->isVisible());
}

QTEST_MAIN(tst_SingleControllerBar)

#include "tst_singlecontrollerbar.moc"
