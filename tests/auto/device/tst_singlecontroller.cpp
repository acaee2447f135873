#include "DeviceWindowFixture.h"

#include "device/LoadingPage.h"
#include "widgets/OvToast.h"

#include <InputFocus.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

#include <swplay/SWDataSourceListener.h>

#include <thread>

using namespace devicetest;

class tst_SingleController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void newWindow();
    void noPartIsEverAWindow();
    void longNameIsCut();
    void applyRequest();
    void granted();
    void grantedWithoutAnything();
    void refused();
    void refusedWithoutAMessage();
    void transportError_data();
    void transportError();
    void refusedWindowMayBeAskedAgain();
    void answerAfterClosing();
    void destructionDuringTheRequest();
    void touchesReachTheDevice();
    void committedTextReachesTheDevice();
    void keys_data();
    void keys();
    void keysWhileLoading();
    void tabStaysOnTheVideo();
    void heldKeysComeUpWithTheActivation();
    void pasteShortcut();
    void pasteOfNothing();
    void pasteOfTooMuch();
    void playInfo_data();
    void playInfo();
    void playInfoFromTheSdk();
    void closingStopsTheStream();
    void destructionStopsTheStream();
    void reopenedWindow();

private:
    void open();
    void key(QEvent::Type type, int key, const QString &text, quint32 scanCode = 0);
    VideoView *video() const { return m_window->findChild<VideoView *>(); }
    bool showsVideo() const { return video()->isVisible(); }
    QLabel *delayLabel() const { return m_window->findChild<QLabel *>(QStringLiteral("delayLabel")); }

    std::unique_ptr<ApplyServer> m_server;
    std::unique_ptr<SingleController> m_window;
};

void tst_SingleController::initTestCase()
{
    // The client takes the address once: one server serves all tests.
    m_server = std::make_unique<ApplyServer>();
    QVERIFY(m_server->isListening());
    qputenv("ORVANE_API_BASE_URL", m_server->url().toUtf8());
}

void tst_SingleController::init()
{
    m_server->requestLines.clear();
    m_server->bodies.clear();
    m_server->setAnswer(GrantedAnswer);
    m_server->setDropping(false);
    m_window = std::make_unique<SingleController>(QStringLiteral("100001"), QStringLiteral("Aurora"));
    Recorder::instance().reset();
    Recorder::instance().setRemoteSize(720, 1280);
}

void tst_SingleController::cleanup()
{
    m_window.reset();
}

// Shows the window and waits for its video.
void tst_SingleController::open()
{
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(waitForInputFocus(*m_window));
    m_window->applyDevice();
    QTRY_VERIFY(showsVideo());
    QVERIFY(video()->hasFocus());
    takeCalls();
}

// A key as it comes from the display: to the widget with the focus.
void tst_SingleController::key(QEvent::Type type, int key, const QString &text, quint32 scanCode)
{
    QKeyEvent event(type, key, Qt::NoModifier, scanCode, 0, 0, text);
    QWidget *focus = QApplication::focusWidget();
    QApplication::sendEvent(focus ? focus : m_window.get(), &event);
}

void tst_SingleController::newWindow()
{
    m_window->show();
    QCOMPARE(m_window->serviceId(), QStringLiteral("100001"));
    QCOMPARE(m_window->deviceName(), QStringLiteral("Aurora"));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Aurora"));
    QCOMPARE(m_window->titleBar()->title(), QStringLiteral("Aurora"));
    QCOMPARE(m_window->contentSize(), QSize(390, 640));
    QCOMPARE(m_window->size(), QSize(410, 660));
    QVERIFY(m_window->findChild<LoadingPage *>()->isVisible());
    QVERIFY(!showsVideo());
    QCOMPARE(m_window->findChild<LoadingPage *>()->size(), QSize(390, 600));
}

// A part that is shown before it has its place would flash on the screen as a window of its own.
void tst_SingleController::noPartIsEverAWindow()
{
    struct Watch : QObject
    {
        int windows = 0;

        bool eventFilter(QObject *watched, QEvent *event) override
        {
            const auto *widget = qobject_cast<QWidget *>(watched);
            if (widget && event->type() == QEvent::Show && widget->isWindow())
                ++windows;
            return false;
        }
    } watch;
    qApp->installEventFilter(&watch);
    const SingleController window(QStringLiteral("service"), QStringLiteral("Phone"));
    QCOMPARE(watch.windows, 0);
}

void tst_SingleController::longNameIsCut()
{
    const QString name(200, QLatin1Char('W'));
    SingleController window(QStringLiteral("1"), name);
    window.show();
    QCOMPARE(window.windowTitle(), name);
    QCOMPARE(window.size(), QSize(410, 660));
    QVERIFY(window.titleBar()->title().endsWith(QChar(0x2026)));
}

void tst_SingleController::applyRequest()
{
    QTest::ignoreMessage(QtDebugMsg, "apply device request start");
    m_window->applyDevice();
    QTRY_COMPARE(m_server->bodies.size(), 1);
    QCOMPARE(m_server->requestLines.first(), QByteArray("POST /apiv1/device/actionDevice HTTP/1.1"));
    QCOMPARE(
        m_server->bodies.first(), (QJsonObject{{"service_id", "100001"}, {"action_type", "device_apply"}}));
}

void tst_SingleController::granted()
{
    QTest::ignoreMessage(QtDebugMsg,
        "single controller apply device success, response data ---> {\"padCode\":\"VM100001\","
        "\"resultInfo\":{\"controlList\":[{\"controlInfoList\":[{\"controlIp\":\"10.1.2.3\","
        "\"controlPort\":8181}]}],\"sessionId\":\"s-42\",\"userId\":17}}");
    m_window->show();
    m_window->applyDevice();
    QTRY_VERIFY(showsVideo());
    QVERIFY(!m_window->findChild<LoadingPage *>()->isVisible());
    QCOMPARE(video()->size(), QSize(340, 600));
    QCOMPARE(m_window->streamingData().sessionId, QStringLiteral("s-42"));
    QCOMPARE(m_window->streamingData().serviceId, QStringLiteral("100001"));
    const QStringList calls = takeCalls();
    QVERIFY(calls.contains(
        QStringLiteral("SWDataSource::setLoginParams(\"10.1.2.3\", 8181, 17, \"s-42\", \"VM100001\", 0)")));
    QVERIFY(calls.contains(QStringLiteral("SWDataSource::setVideoLevel(0)"))); // the full view
    QVERIFY(calls.contains(QStringLiteral("SWPlayer::setDisplay(display)")));
    QCOMPARE(calls.last(), QStringLiteral("SWPlayer::start()"));
    QCOMPARE(Recorder::instance().display(), static_cast<VideoDisplay *>(video()));
}

void tst_SingleController::grantedWithoutAnything()
{
    m_server->setAnswer(R"({"code": 200})");
    m_window->show();
    m_window->applyDevice();
    QTRY_VERIFY(showsVideo());
    QVERIFY(takeCalls().contains(QStringLiteral("SWDataSource::setLoginParams(\"\", 0, -1, \"\", \"\", 0)")));
}

void tst_SingleController::refused()
{
    m_server->setAnswer(R"({"code": 410, "msg": "the time is over", "data": {}})");
    QTest::ignoreMessage(QtWarningMsg, "single controller apply device failed, error code ---> 410");
    m_window->show();
    m_window->applyDevice();
    QTRY_VERIFY(m_window->findChild<OvToast *>());
    QCOMPARE(m_window->findChild<OvToast *>()->text(), QStringLiteral("the time is over"));
    QVERIFY(m_window->isVisible());
    QVERIFY(m_window->findChild<LoadingPage *>()->isVisible());
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleController::refusedWithoutAMessage()
{
    m_server->setAnswer("{}");
    QTest::ignoreMessage(QtWarningMsg, "single controller apply device failed, error code ---> 0");
    m_window->show();
    m_window->applyDevice();
    QTRY_VERIFY(m_window->findChild<OvToast *>());
    QCOMPARE(m_window->findChild<OvToast *>()->text(),
        QStringLiteral("The request failed. Please try again later."));
}

void tst_SingleController::transportError_data()
{
    QTest::addColumn<bool>("dropped");
    QTest::newRow("connection lost") << true;
    QTest::newRow("HTTP error") << false;
}

void tst_SingleController::transportError()
{
    QFETCH(bool, dropped);
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression("^single controller apply device failed, error msg ---> .+"));
    m_server->setAnswer(GrantedAnswer, "500 Internal Server Error");
    m_server->setDropping(dropped);
    m_window->show();
    m_window->applyDevice();
    QTRY_VERIFY(m_window->findChild<OvToast *>());
    QCOMPARE(m_window->findChild<OvToast *>()->text(),
        QStringLiteral("The request failed. Please try again later."));
    QVERIFY(m_window->findChild<LoadingPage *>()->isVisible());
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleController::refusedWindowMayBeAskedAgain()
{
    m_server->setAnswer(R"({"code": 409, "msg": "restarting"})");
    m_window->show();
    m_window->applyDevice();
    QTRY_VERIFY(m_window->findChild<OvToast *>());
    m_server->setAnswer(GrantedAnswer);
    m_window->applyDevice();
    QTRY_VERIFY(showsVideo());
}

void tst_SingleController::answerAfterClosing()
{
    m_server->setAnswer(GrantedAnswer, QByteArray());
    m_window->show();
    m_window->applyDevice();
    QTRY_COMPARE(m_server->bodies.size(), 1);
    m_window->close();
    m_server->answerNow();
    QCoreApplication::processEvents();
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleController::destructionDuringTheRequest()
{
    m_server->setAnswer(GrantedAnswer, QByteArray());
    m_window->applyDevice();
    QTRY_COMPARE(m_server->bodies.size(), 1);
    m_window.reset();
    m_server->answerNow();
    QCoreApplication::processEvents();
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleController::touchesReachTheDevice()
{
    open();
    const QPoint position(85, 150);
    QMouseEvent press(QEvent::MouseButtonPress, position, video()->mapToGlobal(position), Qt::LeftButton,
        Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(video(), &press);
    QCOMPARE(takeCalls().last(), QStringLiteral("SWDataSource::sendTouchEvent(0, 1, [180], [320], [0])"));
}

void tst_SingleController::committedTextReachesTheDevice()
{
    open();
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("\u4f60\u597d"));
    QApplication::sendEvent(video(), &event);
    QCOMPARE(takeCalls(), QStringList(textCall(QStringLiteral("\u4f60\u597d"))));
}

void tst_SingleController::keys_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pressCall");
    const auto asText = [](const char *name, int code, const QString &text) {
        QTest::newRow(name) << code << text << textCall(text);
    };
    const auto asKey = [](const char *name, int code, const QString &text) {
        QTest::newRow(name) << code << text << keyCall(1, code);
    };
    asText("a", Qt::Key_A, "a");
    asKey("A", Qt::Key_A, "A");
    asKey("1", Qt::Key_1, "1");
    asKey("!", Qt::Key_Exclam, "!");
    asKey("space", Qt::Key_Space, " ");
    asText("enter", Qt::Key_Return, "\r");
    asText("backspace", Qt::Key_Backspace, "\b");
    asText("escape", Qt::Key_Escape, "\x1b");
    asText("tab", Qt::Key_Tab, "\t");
    asText("arrow", Qt::Key_Left, QString());
    asText("shift", Qt::Key_Shift, QString());
    asText("control with a letter", Qt::Key_C, "\x03");
    asText("small letter outside ASCII", Qt::Key_Eacute, QStringLiteral("\u00e9"));
    asText("capital letter outside ASCII", Qt::Key_Eacute, QStringLiteral("\u00c9"));
    asText("two characters", Qt::Key_A, "AA");
}

void tst_SingleController::keys()
{
    QFETCH(int, code);
    QFETCH(QString, text);
    QFETCH(QString, pressCall);
    open();
    key(QEvent::KeyPress, code, text);
    QCOMPARE(takeCalls(), QStringList(pressCall));
    key(QEvent::KeyRelease, code, text);
    QCOMPARE(takeCalls(), QStringList(keyCall(2, code)));
}

void tst_SingleController::keysWhileLoading()
{
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(waitForInputFocus(*m_window));
    key(QEvent::KeyPress, Qt::Key_1, "1");
    key(QEvent::KeyRelease, Qt::Key_1, "1");
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleController::tabStaysOnTheVideo()
{
    open();
    for (const int code : {Qt::Key_Tab, Qt::Key_Backtab}) {
        key(QEvent::KeyPress, code, "\t");
        QCOMPARE(takeCalls(), QStringList(textCall("\t")));
        QVERIFY(video()->hasFocus());
    }
}

void tst_SingleController::heldKeysComeUpWithTheActivation()
{
    open();
    key(QEvent::KeyPress, Qt::Key_1, "1", 10);
    key(QEvent::KeyPress, Qt::Key_A, "A", 38);
    key(QEvent::KeyPress, Qt::Key_2, "2", 11);
    key(QEvent::KeyRelease, Qt::Key_2, "2", 11);
    takeCalls();
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QVERIFY(waitForInputFocus(other));
    QCOMPARE(takeCalls(), (QStringList{keyCall(2, Qt::Key_1), keyCall(2, Qt::Key_A)}));
}

// The shortcut's keys are not typed as well.
void tst_SingleController::pasteShortcut()
{
    open();
    QGuiApplication::clipboard()->setText(QStringLiteral("h\u00e9llo\n2"));
    QTest::keyPress(video(), Qt::Key_V, Qt::ControlModifier);
    // The Control key comes first, as a text without characters.
    QCOMPARE(takeCalls(), (QStringList{textCall(QString()), textCall(QStringLiteral("h\u00e9llo\n2"))}));
}

void tst_SingleController::pasteOfNothing()
{
    open();
    QGuiApplication::clipboard()->clear();
    m_window->onPasteText();
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SingleController::pasteOfTooMuch()
{
    open();
    QGuiApplication::clipboard()->setText(QString(1024 * 1024, QLatin1Char('x')));
    m_window->onPasteText();
    QCOMPARE(takeCalls().size(), 1);
    QGuiApplication::clipboard()->setText(QString(512 * 1024 + 1, QChar(0xe9)));
    QTest::ignoreMessage(QtWarningMsg, "the clipboard's text is too long to paste, characters: 524289");
    m_window->onPasteText();
    QCOMPARE(takeCalls(), QStringList());
    QVERIFY(m_window->findChild<OvToast *>());
}

void tst_SingleController::playInfo_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QString>("label");
    QTest::newRow("delay") << QByteArray(R"({"delayTime": 42, "level": 2})") << "42ms";
    QTest::newRow("missing") << QByteArray("{}") << "0ms";
    QTest::newRow("text") << QByteArray(R"({"delayTime": "42"})") << "0ms";
    QTest::newRow("garbage") << QByteArray("no JSON") << "0ms";
    QTest::newRow("nothing") << QByteArray("") << "0ms";
}

void tst_SingleController::playInfo()
{
    QFETCH(QByteArray, info);
    QFETCH(QString, label);
    m_window->onPlayInfo(info.constData());
    QCOMPARE(delayLabel()->text(), label);
}

void tst_SingleController::playInfoFromTheSdk()
{
    open();
    std::thread sdk([] { Recorder::instance().listener()->onStreamInfo(R"({"delayTime": 17})"); });
    sdk.join();
    QTRY_COMPARE(delayLabel()->text(), QStringLiteral("17ms"));
    QVERIFY(delayLabel()->isVisible());
    m_window->onPlayInfo(R"({"delayTime": 9999})");
    QVERIFY(delayLabel()->width() >= delayLabel()->sizeHint().width());
}

void tst_SingleController::closingStopsTheStream()
{
    open();
    key(QEvent::KeyPress, Qt::Key_1, "1");
    takeCalls();
    m_window->onBtnCloseClicked();
    QCOMPARE(takeCalls(),
        (QStringList{keyCall(2, Qt::Key_1), "SWPlayer::getDataSource()", "SWDataSource::screenCast(0)",
            "SWPlayer::detachDataSource()", "SWPlayer::stop()", "SWPlayer::~SWPlayer()",
            "SWDataSource::stop()", "SWDataSource::~SWDataSource()"}));
    QVERIFY(!m_window->isVisible());
}

void tst_SingleController::destructionStopsTheStream()
{
    open();
    m_window.reset();
    QVERIFY(takeCalls().contains(QStringLiteral("SWDataSource::stop()")));
    QVERIFY(!Recorder::instance().display());
}

void tst_SingleController::reopenedWindow()
{
    open();
    m_window->onPlayInfo(R"({"delayTime": 42})");
    m_window->close();
    m_window->show();
    QVERIFY(m_window->findChild<LoadingPage *>()->isVisible());
    QCOMPARE(delayLabel()->text(), QString());
    m_window->applyDevice();
    QTRY_VERIFY(showsVideo());
}

QTEST_MAIN(tst_SingleController)

#include "tst_singlecontroller.moc"
