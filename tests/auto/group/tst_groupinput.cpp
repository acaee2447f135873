#include "GroupWindowFixture.h"

#include "group/FunctionBar.h"
#include "group/FunctionButton.h"

#include <swplay/Keyboard.h>

#include <InputFocus.h>

#include <QClipboard>
#include <QLineEdit>

using namespace grouptest;

namespace {

const QStringList Three = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};

// The keyboard's codes on X11: that of the evdev driver + 8.
constexpr quint32 ScanCodeA = 38;
constexpr quint32 ScanCodeShift = 50;

// The recording SDK's keyboard gives what it is asked for with 10000 on top.
QString keyCall(int action, quint32 scanCode)
{
    const int code = (Keyboard::NativeScanCode | static_cast<int>(scanCode)) + 10'000;
    return QStringLiteral("SWDataSource::sendKeyEvent(%1, %2)").arg(action).arg(code);
}

bool sendKey(QWidget *widget, QEvent::Type type, int key, quint32 scanCode, const QString &text = QString())
{
    QKeyEvent event(type, key, Qt::NoModifier, scanCode, 0, 0, text);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

} // namespace

// What reaches the devices of a group: the master at once, the others by the batch thread.
class TestGroupInput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void keysReachAll();
    void keysReachTheMasterWithoutTiles();
    void keysAreTheirPlaceOnTheKeyboard();
    void keysThatComeFromNoKeyboard();
    void keysArePassedOn();
    void heldKeysComeUpWithTheWindow();
    void heldKeysComeUpUnderADialog();
    void heldKeysComeUpBeforeAPromotion();
    void keysUnderADialog();
    void touchesReachAll();
    void functionButtonsReachAll();
    void typedTextReachesAll();
    void pasteReachesAll();
    void pasteByTheShortcut();
    void pasteOfNothing();
    void pasteThatIsTooLong();
    void nothingBeforeTheDevicesAreThere();

private:
    // Waits until so many devices have got it, and has seen that there are no more of them.
    bool reached(const QString &call, int devices);
    VideoView *video() const { return m_fixture->window->mainController()->videoView(); }

    std::unique_ptr<Fixture> m_fixture;
};

void TestGroupInput::initTestCase()
{
    m_fixture = std::make_unique<Fixture>();
}

void TestGroupInput::init()
{
    m_fixture->makeWindow();
    QVERIFY(m_fixture->open(Three));
    QVERIFY(video()->hasFocus());
}

void TestGroupInput::cleanup()
{
    m_fixture->endWindow();
}

// The thread replays in order: when a later text has reached all tiles, nothing earlier is missing.
bool TestGroupInput::reached(const QString &call, int devices)
{
    static int lastMark = 0;
    const QString mark = QStringLiteral("mark %1").arg(++lastMark);
    const int tiles = m_fixture->tiles().size();
    m_fixture->window->subControlPage()->onInputEvent(mark);
    const QString markCall
        = QStringLiteral("SWDataSource::sendInputString(\"%1\", %2)").arg(mark).arg(mark.size() + 1);
    if (!QTest::qWaitFor([&] { return countCalls(markCall) == tiles; }))
        return false;
    if (countCalls(call) != devices)
        qWarning().noquote() << call << "came" << countCalls(call) << "times";
    return countCalls(call) == devices;
}

void TestGroupInput::keysReachAll()
{
    sendKey(video(), QEvent::KeyPress, Qt::Key_A, ScanCodeA, QStringLiteral("a"));
    QCOMPARE(takeCalls(), QStringList{keyCall(1, ScanCodeA)}); // the master has it at once
    QVERIFY(reached(keyCall(1, ScanCodeA), 2));
    sendKey(video(), QEvent::KeyRelease, Qt::Key_A, ScanCodeA, QStringLiteral("a"));
    QVERIFY(reached(keyCall(2, ScanCodeA), 3));
}

void TestGroupInput::keysReachTheMasterWithoutTiles()
{
    m_fixture->endWindow();
    m_fixture->makeWindow();
    QVERIFY(m_fixture->open({QStringLiteral("a")}));
    sendKey(video(), QEvent::KeyPress, Qt::Key_A, ScanCodeA);
    sendKey(video(), QEvent::KeyRelease, Qt::Key_A, ScanCodeA);
    QCOMPARE(takeCalls(), (QStringList{keyCall(1, ScanCodeA), keyCall(2, ScanCodeA)}));
}

// A French keyboard writes "q" with it; and Shift changes the character, but not the key.
void TestGroupInput::keysAreTheirPlaceOnTheKeyboard()
{
    sendKey(video(), QEvent::KeyPress, Qt::Key_Shift, ScanCodeShift);
    sendKey(video(), QEvent::KeyPress, Qt::Key_Q, ScanCodeA, QStringLiteral("Q"));
    sendKey(video(), QEvent::KeyRelease, Qt::Key_Shift, ScanCodeShift);
    sendKey(video(), QEvent::KeyRelease, Qt::Key_Q, ScanCodeA, QStringLiteral("q"));
    QVERIFY(reached(keyCall(1, ScanCodeShift), 3));
    QVERIFY(reached(keyCall(1, ScanCodeA), 3));
    QVERIFY(reached(keyCall(2, ScanCodeShift), 3));
    QVERIFY(reached(keyCall(2, ScanCodeA), 3));
}

void TestGroupInput::keysThatComeFromNoKeyboard()
{
    sendKey(video(), QEvent::KeyPress, Qt::Key_A, 0, QStringLiteral("a"));
    QVERIFY(reached(QStringLiteral("SWDataSource::sendKeyEvent(1, %1)").arg(int(Qt::Key_A) + 10'000), 3));
}

// What is above the window in the order of events may still use them.
void TestGroupInput::keysArePassedOn()
{
    QVERIFY(!sendKey(m_fixture->window, QEvent::KeyPress, Qt::Key_A, ScanCodeA));
    QVERIFY(!sendKey(m_fixture->window, QEvent::KeyRelease, Qt::Key_A, ScanCodeA));
    QVERIFY(reached(keyCall(2, ScanCodeA), 3));
}

void TestGroupInput::heldKeysComeUpWithTheWindow()
{
    sendKey(video(), QEvent::KeyPress, Qt::Key_A, ScanCodeA);
    sendKey(video(), QEvent::KeyPress, Qt::Key_Shift, ScanCodeShift);
    sendKey(video(), QEvent::KeyRelease, Qt::Key_Shift, ScanCodeShift);
    QLineEdit other;
    other.show();
    other.activateWindow();
    QVERIFY(waitForInputFocus(other));
    QVERIFY(reached(keyCall(2, ScanCodeA), 3));
    QVERIFY(reached(keyCall(2, ScanCodeShift), 3)); // only once
}

void TestGroupInput::heldKeysComeUpUnderADialog()
{
    sendKey(video(), QEvent::KeyPress, Qt::Key_A, ScanCodeA);
    m_fixture->window->onDeviceExpireNotice(QStringLiteral("a"), QStringLiteral("A"), 5);
    QVERIFY(reached(keyCall(2, ScanCodeA), 3));
}

void TestGroupInput::heldKeysComeUpBeforeAPromotion()
{
    sendKey(video(), QEvent::KeyPress, Qt::Key_A, ScanCodeA);
    takeCalls();
    m_fixture->window->onSetAsMainController(m_fixture->tile(0));
    const QStringList calls = takeCalls();
    QCOMPARE(calls.first(), keyCall(2, ScanCodeA)); // on the master before it changes
    sendKey(video(), QEvent::KeyRelease, Qt::Key_A, ScanCodeA);
    QVERIFY(reached(keyCall(1, ScanCodeA), 2)); // on the tiles, in the order in which they happened
}

void TestGroupInput::keysUnderADialog()
{
    m_fixture->window->onSaveGroupBtnClicked();
    takeCalls();
    sendKey(QApplication::focusWidget(), QEvent::KeyPress, Qt::Key_A, ScanCodeA, QStringLiteral("a"));
    sendKey(QApplication::focusWidget(), QEvent::KeyPress, Qt::Key_F5, 71);
    QVERIFY(reached(QStringLiteral("SWDataSource::sendKeyEvent"), 0));
}

void TestGroupInput::touchesReachAll()
{
    const QPoint middle(video()->width() / 2, video()->height() / 2);
    QTest::mousePress(video(), Qt::LeftButton, Qt::NoModifier, middle);
    QTest::mouseRelease(video(), Qt::LeftButton, Qt::NoModifier, middle);
    QVERIFY(reached(QStringLiteral("SWDataSource::sendTouchEvent(0, 1, [358], [640], [0])"), 3)); // 173 / 347
    QVERIFY(reached(QStringLiteral("SWDataSource::sendTouchEvent(1, 1, [-1], [-1], [0])"), 3));
}

void TestGroupInput::functionButtonsReachAll()
{
    QTest::mouseClick(m_fixture->child<FunctionBar>()->buttons().at(4), Qt::LeftButton);
    QVERIFY(reached(QStringLiteral("SWDataSource::sendKeyEvent(3, 172)"), 3));
}

// An input method's text, that is.
void TestGroupInput::typedTextReachesAll()
{
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("\xE4\xBD\xA0"));
    QApplication::sendEvent(video(), &event);
    QVERIFY(reached(QString::fromUtf8("SWDataSource::sendInputString(\"\xE4\xBD\xA0\", 2)"), 3));
}

void TestGroupInput::pasteReachesAll()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("from the clipboard"));
    m_fixture->window->onPasteText();
    QVERIFY(reached(QStringLiteral("SWDataSource::sendInputString(\"from the clipboard\", 19)"), 3));
}

void TestGroupInput::pasteByTheShortcut()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("short"));
    QTest::keyClick(m_fixture->window->windowHandle(), Qt::Key_V, Qt::ControlModifier);
    QVERIFY(reached(QStringLiteral("SWDataSource::sendInputString(\"short\", 6)"), 3));
}

void TestGroupInput::pasteOfNothing()
{
    QGuiApplication::clipboard()->clear();
    m_fixture->window->onPasteText();
    QVERIFY(reached(QStringLiteral("SWDataSource::sendInputString(\"\""), 0));
}

void TestGroupInput::pasteThatIsTooLong()
{
    QGuiApplication::clipboard()->setText(QString(1024 * 1024, QLatin1Char('x')));
    m_fixture->window->onPasteText();
    QVERIFY(reached(QStringLiteral("SWDataSource::sendInputString(\"xxx"), 3));
    takeCalls();
    QGuiApplication::clipboard()->setText(QString(1024 * 1024 + 1, QLatin1Char('x')));
    QTest::ignoreMessage(QtWarningMsg, "the clipboard's text is too long to paste, characters: 1048577");
    m_fixture->window->onPasteText();
    QCOMPARE(m_fixture->toasts(), QStringList{QStringLiteral("The text is too long to paste.")});
    QVERIFY(reached(QStringLiteral("SWDataSource::sendInputString(\"xxx"), 0));
}

void TestGroupInput::nothingBeforeTheDevicesAreThere()
{
    m_fixture->endWindow();
    m_fixture->makeWindow();
    m_fixture->window->show();
    sendKey(m_fixture->window, QEvent::KeyPress, Qt::Key_A, ScanCodeA);
    QGuiApplication::clipboard()->setText(QStringLiteral("x"));
    m_fixture->window->onPasteText();
    QTest::mouseClick(m_fixture->child<FunctionBar>()->buttons().first(), Qt::LeftButton);
    QCOMPARE(takeCalls().filter(QStringLiteral("SWDataSource::")), QStringList());
}

QTEST_MAIN(TestGroupInput)
#include "tst_groupinput.moc"
