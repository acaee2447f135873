// The key mapping of a real device window under random events, against the real service: whatever happens in
// whatever order, no finger stays down on the device.

#include "KeymapRandomFixture.h"

#include "base/AppPaths.h"
#include "device/StandbyTimer.h"
#include "keymap/OvAuxiliaryKeyEditor.h"
#include "keymap/SchemeBox.h"
#include "swplay/SWRuntime.h"
#include "widgets/OvMaskTipsDialog.h"
#include "widgets/OvSlider.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QTimerEvent>
#include <QWheelEvent>

using e2e::StepFailed;
using e2e::waitUntil;

namespace {

constexpr int eventCount = 2000;
constexpr int eventsBetweenChecks = 50;
constexpr int traceLength = 25; // events that a failure tells
constexpr int firstKeyCode = 8; // of X, for code 0 of the kernel

struct KeyboardKey
{
    int key;
    const char *text;
    quint32 linuxCode; // linux/input-event-codes.h
};

// What the scheme binds, and two keys more.
constexpr KeyboardKey keyboardKeys[] = {{Qt::Key_W, "w", 17}, {Qt::Key_A, "a", 30}, {Qt::Key_S, "s", 31},
    {Qt::Key_D, "d", 32}, {Qt::Key_F, "f", 33}, {Qt::Key_Space, " ", 57}, {Qt::Key_R, "r", 19},
    {Qt::Key_Q, "q", 16}, {Qt::Key_Shift, "", 42}, {Qt::Key_E, "e", 18}};

// The seeds of the test: fixed ones, or that of the environment variable ORVANE_RANDOM_SEED, where "random"
// stands for one that nobody knows before.
QVector<quint32> seeds()
{
    const QString wanted = qEnvironmentVariable("ORVANE_RANDOM_SEED");
    if (wanted == QLatin1String("random"))
        return {QRandomGenerator::system()->generate()};
    if (!wanted.isEmpty())
        return {wanted.toUInt()};
    return {20261121, 7, 4242};
}

} // namespace

class TestKeymapRandom : public KeymapRandomFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void randomEvents_data();
    void randomEvents();

private:
    struct Event
    {
        const char *name;
        int weight;
        void (TestKeymapRandom::*happen)();
    };
    static const QVector<Event> &events();

    void happenAtRandom();
    int bounded(int limit) { return static_cast<int>(m_random.bounded(limit)); }
    bool coin() { return bounded(2) == 0; }

    void pressKey();
    void releaseKey();
    void repeatKey();
    void releaseKey(int index);
    int anyHeldKey();
    void sendKey(QEvent::Type type, int index, bool isAutoRepeat = false);
    void moveMouse();
    void pressMouse() { sendMouse(QEvent::MouseButtonPress); }
    void releaseMouse() { sendMouse(QEvent::MouseButtonRelease); }
    void sendMouse(QEvent::Type type);
    void turnWheel();
    void walkOn();
    void goOn() { QCoreApplication::processEvents(); }
    void focusView() { m_view->setFocus(); }
    void focusKey();
    void openPopup();
    void deactivate();
    void activateOther();
    void activate();
    void hideAndShow();
    void rotateView();
    void rotateDevice();
    void maximise() { m_window->onMaximizeShortcutActivated(); }
    void openEditor() { m_window->onKeyboardMapBtnClicked(); }
    void leaveEditor();
    void answerQuestion();
    void selectScheme();
    void addKey();
    void dragKey();
    void editNote();
    void moveSlider();
    void resetKeys();
    void saveScheme();
    void deleteKey();
    void applyLocalCopy() { m_window->onApplyKeyBindingBtnClicked(); }
    void restartStream();
    void cutConnection();
    void standBy();
    void resume() { m_window->onResumeBtnClicked(); }
    void closeAndOpen();
    void loseKeyboard();

    void comeToRest();

    std::unique_ptr<QWidget> m_other; // another window
    QRandomGenerator m_random;
    QStringList m_trace; // the last events
    QHash<int, quint32> m_held; // keys, by their index, and the codes that the keyboard gives them
    bool m_hasKeyboard = true; // the window
    QPoint m_mouse; // on the view
};

void TestKeymapRandom::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    startService();
    SWRuntime::getInstance()->init(0, "");
    m_other = std::make_unique<QWidget>();
    m_other->setWindowTitle(QStringLiteral("Other"));
    m_other->setGeometry(1400, 100, 200, 200);
    m_other->show();
}

void TestKeymapRandom::cleanupTestCase()
{
    m_other.reset();
    SWRuntime::getInstance()->deinit();
    m_service.reset();
}

void TestKeymapRandom::init()
{
    m_trace.clear();
    m_held.clear();
    m_hasKeyboard = true;
    QFile::remove(AppPaths::settingsFile());
}

void TestKeymapRandom::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning().noquote() << "the last events:" << m_trace.join(QStringLiteral(", "));
    m_window.reset();
}

// ---- Events ----

const QVector<TestKeymapRandom::Event> &TestKeymapRandom::events()
{
    using T = TestKeymapRandom;
    static const QVector<Event> all{{"press key", 220, &T::pressKey},
        {"release key", 180, qOverload<>(&T::releaseKey)}, {"repeat key", 40, &T::repeatKey},
        {"move mouse", 80, &T::moveMouse}, {"press mouse", 30, &T::pressMouse},
        {"release mouse", 30, &T::releaseMouse}, {"wheel", 8, &T::turnWheel}, {"walk on", 60, &T::walkOn},
        {"go on", 60, &T::goOn}, {"focus view", 60, &T::focusView}, {"focus key", 10, &T::focusKey},
        {"popup", 6, &T::openPopup}, {"deactivate", 8, &T::deactivate},
        {"activate other", 6, &T::activateOther}, {"activate", 60, &T::activate},
        {"hide and show", 6, &T::hideAndShow}, {"rotate view", 12, &T::rotateView},
        {"rotate device", 6, &T::rotateDevice}, {"maximise", 5, &T::maximise},
        {"open editor", 10, &T::openEditor}, {"leave editor", 50, &T::leaveEditor},
        {"answer", 50, &T::answerQuestion}, {"select scheme", 8, &T::selectScheme},
        {"add key", 24, &T::addKey}, {"drag key", 12, &T::dragKey}, {"note", 6, &T::editNote},
        {"slider", 6, &T::moveSlider}, {"reset", 2, &T::resetKeys}, {"save", 4, &T::saveScheme},
        {"delete key", 5, &T::deleteKey}, {"local copy", 12, &T::applyLocalCopy},
        {"restart stream", 4, &T::restartStream}, {"cut", 4, &T::cutConnection}, {"stand by", 5, &T::standBy},
        {"resume", 40, &T::resume}, {"close and open", 2, &T::closeAndOpen}};
    return all;
}

void TestKeymapRandom::happenAtRandom()
{
    int total = 0;
    for (const Event &event : events())
        total += event.weight;
    int chosen = bounded(total);
    for (const Event &event : events()) {
        chosen -= event.weight;
        if (chosen >= 0)
            continue;
        m_trace.append(QString::fromLatin1(event.name));
        if (m_trace.size() > traceLength)
            m_trace.removeFirst();
        (this->*event.happen)();
        return;
    }
}

void TestKeymapRandom::pressKey()
{
    const int index = bounded(std::size(keyboardKeys));
    if (m_held.contains(index))
        return;
    // Some window systems do not tell the keyboard's own code.
    m_held.insert(index, coin() ? keyboardKeys[index].linuxCode + firstKeyCode : 0);
    sendKey(QEvent::KeyPress, index);
}

void TestKeymapRandom::releaseKey()
{
    if (!m_held.isEmpty())
        releaseKey(anyHeldKey());
}

void TestKeymapRandom::releaseKey(int index)
{
    sendKey(QEvent::KeyRelease, index);
    m_held.remove(index);
}

int TestKeymapRandom::anyHeldKey()
{
    QList<int> held = m_held.keys();
    std::sort(held.begin(), held.end()); // a seed means the same each time
    return held.at(bounded(held.size()));
}

// As the window system repeats a key that is held: up and down.
void TestKeymapRandom::repeatKey()
{
    if (m_held.isEmpty())
        return;
    const int index = anyHeldKey();
    sendKey(QEvent::KeyRelease, index, true);
    sendKey(QEvent::KeyPress, index, true);
}

// To whatever has the keyboard; elsewhere nobody notices.
void TestKeymapRandom::sendKey(QEvent::Type type, int index, bool isAutoRepeat)
{
    const auto *question = m_window->findChild<OvMaskTipsDialog *>();
    if (!m_hasKeyboard || !m_window->isVisible() || (question && question->isVisible()))
        return;
    const KeyboardKey &key = keyboardKeys[index];
    m_trace.last() += QStringLiteral(" '%1'").arg(QLatin1String(key.text));
    QKeyEvent event(type, key.key, Qt::NoModifier, m_held.value(index), 0, 0, QString::fromLatin1(key.text),
        isAutoRepeat);
    QWidget *target = m_window->focusWidget() ? m_window->focusWidget() : m_view;
    QApplication::sendEvent(target, &event);
}

// Moves the pointer itself as well, as mouse-look reads it.
void TestKeymapRandom::moveMouse()
{
    QCursor::setPos(QCursor::pos() + QPoint(bounded(81) - 40, bounded(81) - 40));
    m_mouse = QPoint(m_view->width() / 4 + bounded(m_view->width() / 2),
        m_view->height() / 4 + bounded(m_view->height() / 2)); // not on the device's own bars
    sendMouse(QEvent::MouseMove);
}

void TestKeymapRandom::sendMouse(QEvent::Type type)
{
    if (!m_window->isVisible() || !m_view->isEnabled())
        return; // it does not reach the view
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held
        = type == QEvent::MouseButtonRelease ? Qt::MouseButtons(Qt::NoButton) : Qt::LeftButton;
    QMouseEvent event(type, m_mouse, m_view->mapToGlobal(m_mouse), button, held, Qt::NoModifier);
    QApplication::sendEvent(m_view, &event);
}

void TestKeymapRandom::turnWheel()
{
    if (!m_window->isVisible() || !m_view->isEnabled())
        return;
    QWheelEvent event(m_mouse, m_view->mapToGlobal(m_mouse), {}, {0, coin() ? 120 : -120}, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_view, &event);
    if (isGestureUnderWay())
        m_lastSent = unknownFingers;
}

// A step of the walking finger, if it has a way to go.
void TestKeymapRandom::walkOn()
{
    OvAuxiliaryWalking *walking = m_manager->walkingKey();
    if (!walking || !walking->isPressed() || walking->offset() == walking->target())
        return;
    QSignalSpy steps(walking, &OvAuxiliaryKey::sigAuxiliaryKeyAction);
    steps.wait();
}

void TestKeymapRandom::focusKey()
{
    const QVector<OvAuxiliaryKey *> keys = m_manager->keys();
    if (!keys.isEmpty())
        keys.at(bounded(keys.size()))->setFocus(Qt::MouseFocusReason);
}

void TestKeymapRandom::openPopup()
{
    QMenu menu(m_window.get());
    menu.addAction(QStringLiteral("x"));
    menu.popup(m_window->geometry().center());
    QCoreApplication::processEvents();
}

void TestKeymapRandom::deactivate()
{
    m_hasKeyboard = false;
    QEvent event(QEvent::WindowDeactivate);
    QApplication::sendEvent(m_window.get(), &event);
}

void TestKeymapRandom::activateOther()
{
    m_hasKeyboard = false;
    m_other->activateWindow();
    QCoreApplication::processEvents();
}

void TestKeymapRandom::activate()
{
    m_hasKeyboard = true;
    m_window->activateWindow();
    m_view->setFocus();
    QCoreApplication::processEvents();
}

void TestKeymapRandom::hideAndShow()
{
    if (coin()) {
        m_window->hide();
        if (coin())
            QCoreApplication::processEvents();
        m_window->show();
    } else {
        m_window->showMinimized();
        if (coin())
            QCoreApplication::processEvents();
        m_window->showNormal();
    }
}

void TestKeymapRandom::rotateView()
{
    if (m_view->isEnabled())
        m_window->onScreenRotateBtnClicked();
}

void TestKeymapRandom::rotateDevice()
{
    m_service->rotate(m_pad, bounded(4));
}

void TestKeymapRandom::leaveEditor()
{
    m_window->onExitKeyBoardEditBtnClicked();
}

void TestKeymapRandom::answerQuestion()
{
    auto *question = m_window->findChild<OvMaskTipsDialog *>();
    if (!question || !question->isVisible())
        return;
    const QList<QPushButton *> buttons = question->findChildren<QPushButton *>();
    buttons.at(bounded(buttons.size()))->click();
}

// Also the last row, which is none, and while fingers are down.
void TestKeymapRandom::selectScheme()
{
    auto *box = m_editor->findChild<SchemeBox *>();
    if (box->count() > 0)
        box->setCurrentIndex(bounded(4) == 0 ? box->count() - 1 : bounded(box->count()));
}

void TestKeymapRandom::addKey()
{
    switch (bounded(4)) {
    case 0:
        m_window->onAuxiliaryWalkingClicked();
        break;
    case 1:
        m_window->onAuxiliaryCrosshairClicked();
        break;
    default:
        m_window->onAuxiliaryClickBtnClicked();
        break;
    }
}

void TestKeymapRandom::dragKey()
{
    const QVector<OvAuxiliaryKey *> keys = m_manager->keys();
    if (keys.isEmpty())
        return;
    OvAuxiliaryKey *key = keys.at(bounded(keys.size()));
    const auto send = [key](QEvent::Type type, const QPoint &place) {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons held
            = type == QEvent::MouseButtonRelease ? Qt::MouseButtons(Qt::NoButton) : Qt::LeftButton;
        QMouseEvent event(type, place, key->mapToGlobal(place), button, held, Qt::NoModifier);
        QApplication::sendEvent(key, &event);
    };
    send(QEvent::MouseButtonPress, {5, 5});
    for (int i = 0; i < 3; ++i)
        send(QEvent::MouseMove, {bounded(200) - 100, bounded(200) - 100});
    if (bounded(8) != 0) // else it is let go somewhere else
        send(QEvent::MouseButtonRelease, {5, 5});
}

void TestKeymapRandom::editNote()
{
    const QVector<OvAuxiliaryKey *> keys = m_manager->keys();
    if (keys.isEmpty() || !m_manager->isRecording())
        return;
    OvAuxiliaryKey *key = keys.at(bounded(keys.size()));
    if (!key->noteEditor()->isVisible()) {
        key->onNoteBtnClicked();
        return;
    }
    key->noteEditor()->findChild<QLineEdit *>()->setText(QString(bounded(12), QLatin1Char('n')));
    if (coin())
        key->noteEditor()->onConfirmBtnClicked();
    else
        key->noteEditor()->onCancelBtnClicked();
}

void TestKeymapRandom::moveSlider()
{
    const QList<OvSlider *> sliders = m_editor->findChildren<OvSlider *>();
    OvSlider *slider = sliders.at(bounded(sliders.size()));
    slider->setValue(slider->minimum() + bounded(slider->maximum() - slider->minimum() + 1));
}

void TestKeymapRandom::resetKeys()
{
    if (m_manager->isRecording())
        m_editor->onResetBtnClicked();
}

void TestKeymapRandom::saveScheme()
{
    if (m_manager->isRecording())
        m_editor->onSaveBtnClicked();
}

// Its button is only shown while keys are edited, but a scheme may go at any time.
void TestKeymapRandom::deleteKey()
{
    const QVector<OvAuxiliaryKey *> keys = m_manager->keys();
    if (!keys.isEmpty())
        keys.at(bounded(keys.size()))->findChild<QPushButton *>(QStringLiteral("deleteButton"))->click();
}

// The answer of the service starts it, whatever happens until then.
void TestKeymapRandom::restartStream()
{
    m_window->applyDevice();
}

void TestKeymapRandom::cutConnection()
{
    m_service->admin(
        QStringLiteral("POST"), QStringLiteral("/admin/connections/cut"), {{QStringLiteral("pad"), m_pad}});
}

// The time without input is over at once.
void TestKeymapRandom::standBy()
{
    auto *timer = m_window->findChild<StandbyTimer *>();
    m_window->setStandbyTime(1);
    QTimerEvent over(timer->timerId());
    QApplication::sendEvent(timer, &over);
    m_window->setStandbyTime(0);
}

void TestKeymapRandom::closeAndOpen()
{
    m_window->close();
    if (pressedFingers() != 0)
        throw StepFailed(QStringLiteral("a finger outlived the end of the window"));
    m_window->show();
    m_window->applyDevice();
    waitUntil(QStringLiteral("the video after opening again"), [this] { return m_view->isVisible(); });
}

// ---- Checks ----

// Something that takes the keyboard away.
void TestKeymapRandom::loseKeyboard()
{
    switch (bounded(6)) {
    case 0:
        deactivate();
        break;
    case 1:
        m_window->hide();
        m_window->show();
        break;
    case 2:
        m_view->clearFocus();
        deactivate();
        break;
    case 3:
        standBy();
        deactivate();
        break;
    case 4:
        openEditor();
        deactivate();
        break;
    default:
        activateOther();
        deactivate();
        break;
    }
}

void TestKeymapRandom::comeToRest()
{
    resume();
    leaveEditor();
    answerQuestion();
    activate();
    while (!m_held.isEmpty())
        releaseKey(anyHeldKey());
    if (m_manager->crosshairKey() && m_manager->crosshairKey()->isPressed())
        loseKeyboard();
}

void TestKeymapRandom::randomEvents_data()
{
    QTest::addColumn<quint32>("seed");
    const QVector<quint32> all = seeds();
    for (const quint32 seed : all)
        QTest::addRow("%u", seed) << seed;
}

void TestKeymapRandom::randomEvents()
{
    QFETCH(quint32, seed);
    qInfo() << "seed" << seed << "(ORVANE_RANDOM_SEED sets another one)";
    m_random.seed(seed);
    e2e::steps([this] {
        openWindow();
        applyScheme();
        for (int i = 1; i <= eventCount; ++i) {
            happenAtRandom();
            checkSentTouches();
            if (i % eventsBetweenChecks != 0)
                continue;
            loseKeyboard();
            checkNothingIsHeld(QStringLiteral("after event %1").arg(i));
            comeToRest();
            if (m_manager->keys().size() < 3)
                applyScheme();
        }
        comeToRest();
        m_view->liftFinger();
        checkNothingIsHeld(QStringLiteral("at the end"));
        qInfo() << "fingers that went down and came up on the device:" << m_fingers->downs()
                << m_fingers->lifts();
        QCOMPARE(m_fingers->downs(), m_fingers->lifts());
        QVERIFY(m_fingers->downs() > 100);
        m_window->close();
    });
}

QTEST_MAIN(TestKeymapRandom)
#include "tst_keymaprandom.moc"
