// The thread that replays the master's input on the tiles: order, what is ignored, and that nobody waits for
// it.

#include "GroupTiles.h"

#include "group/BatchProcessThread.h"
#include "group/TileInput.h"

#include <QTest>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

using namespace grouptest;
using group::InputEvent;

namespace {

// Holds the thread that replays input inside a call into the SDK until it is released.
class Gate
{
public:
    // At the next call that contains `text`.
    explicit Gate(std::string text)
    {
        Recorder::instance().setObserver([state = m_state, text = std::move(text)](const std::string &call) {
            if (call.find(text) == std::string::npos)
                return;
            std::unique_lock<std::mutex> lock(state->lock);
            state->reached = true;
            state->changed.wait(lock, [&state] { return state->open; });
        });
    }
    ~Gate() { open(); }
    bool isReached() const
    {
        const std::lock_guard<std::mutex> lock(m_state->lock);
        return m_state->reached;
    }
    void open()
    {
        {
            const std::lock_guard<std::mutex> lock(m_state->lock);
            m_state->open = true;
        }
        m_state->changed.notify_all();
    }

private:
    // Shared with the observer, which stays until the end of the test.
    struct State
    {
        std::mutex lock;
        std::condition_variable changed;
        bool reached = false;
        bool open = false;
    };
    const std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace

class tst_BatchProcessThread : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void whatAnEventLeavesOut();
    void replaysInOrder();
    void keepsTheOrderOfTheTiles();
    void ignoresWhatItDoesNotKnow();
    void dropsEventsWithoutTiles();
    void skipsRemovedTiles();
    void skipsDestroyedTiles();
    void removalDeletesTheTile();
    void removalDuringAReplaySkipsTheRest();
    void nobodyWaitsForAReplay();
    void takesAllEventsWithoutAPause();
    void endsWithEventsWaiting();

private:
    SubController *addTile(int number);
    void setTiles(const std::vector<SubController *> &tiles) const;
    void start(int tiles);

    std::unique_ptr<QWidget> m_parent;
    std::unique_ptr<BatchProcessThread> m_thread;
    std::vector<SubController *> m_tiles;
};

void tst_BatchProcessThread::init()
{
    Recorder::instance().reset();
    Recorder::instance().setRemoteSize(720, 1280);
    m_parent = std::make_unique<QWidget>();
    m_thread = std::make_unique<BatchProcessThread>();
}

void tst_BatchProcessThread::cleanup()
{
    m_thread.reset();
    Recorder::instance().setObserver({});
    m_tiles.clear();
    m_parent.reset();
}

SubController *tst_BatchProcessThread::addTile(int number)
{
    auto *tile = new SubController(m_parent.get());
    tile->setDevice(device(number));
    m_tiles.push_back(tile);
    return tile;
}

void tst_BatchProcessThread::setTiles(const std::vector<SubController *> &tiles) const
{
    BatchProcessThread::Controllers list;
    for (SubController *tile : tiles)
        list.append(tile);
    m_thread->setControllers(list);
}

void tst_BatchProcessThread::start(int tiles)
{
    for (int i = 1; i <= tiles; ++i)
        addTile(i);
    setTiles(m_tiles);
    m_thread->start();
    takeCalls();
}

void tst_BatchProcessThread::whatAnEventLeavesOut()
{
    const InputEvent none;
    QCOMPARE(none.code, -1);
    QCOMPARE(none.keyState, 0);
    QCOMPARE(none.percentX, -1.0F);
    QCOMPARE(none.percentY, -1.0F);
    QVERIFY(none.text.isEmpty());
    const InputEvent key = InputEvent::key(30, InputEvent::KeyRelease);
    QCOMPARE(key.type, 1);
    QCOMPARE(key.code, 30);
    QCOMPARE(key.keyState, 2);
    QCOMPARE(key.percentX, -1.0F);
    QCOMPARE(key.percentY, -1.0F);
    QVERIFY(key.text.isEmpty());
    QCOMPARE(int(InputEvent::FunctionButton), 0);
    QCOMPARE(int(InputEvent::KeyPress), 1);
    const InputEvent text = InputEvent::typed(QStringLiteral("hello"));
    QCOMPARE(text.type, 2);
    QCOMPARE(text.code, -1);
    QCOMPARE(text.keyState, 0);
    QCOMPARE(text.percentX, -1.0F);
    QCOMPARE(text.percentY, -1.0F);
    QCOMPARE(text.text, QStringLiteral("hello"));
    const InputEvent touch = InputEvent::touch(2, 0.5F, 0.25F);
    QCOMPARE(touch.type, 0);
    QCOMPARE(touch.code, 2);
    QCOMPARE(touch.keyState, 0);
    QCOMPARE(touch.percentX, 0.5F);
    QCOMPARE(touch.percentY, 0.25F);
    QVERIFY(touch.text.isEmpty());
}

void tst_BatchProcessThread::replaysInOrder()
{
    start(1);
    m_thread->addEvent(InputEvent::touch(0, 0.5F, 0.25F));
    m_thread->addEvent(InputEvent::touch(2, 1.0F, 1.0F));
    m_thread->addEvent(InputEvent::touch(1, 0.5F, 0.25F));
    m_thread->addEvent(InputEvent::key(172, InputEvent::FunctionButton));
    m_thread->addEvent(InputEvent::key(30, InputEvent::KeyPress));
    m_thread->addEvent(InputEvent::key(30, InputEvent::KeyRelease));
    m_thread->addEvent(InputEvent::typed(QStringLiteral("group")));
    const QStringList expected{touchCall(0, 360, 320), touchCall(2, 720, 1280), touchCall(1, -1, -1),
        keyCall(3, 172), keyCall(1, 30), keyCall(2, 30), textCall(QStringLiteral("group"))};
    QTRY_COMPARE(sentInput().size(), expected.size());
    QCOMPARE(sentInput(), expected);
}

// One event goes to every tile before the next one goes to any.
void tst_BatchProcessThread::keepsTheOrderOfTheTiles()
{
    start(3);
    for (int key = 1; key <= 4; ++key)
        m_thread->addEvent(InputEvent::key(key, InputEvent::FunctionButton));
    QStringList expected;
    for (int key = 1; key <= 4; ++key)
        expected += QStringList{keyCall(3, key), keyCall(3, key), keyCall(3, key)};
    QTRY_COMPARE(sentInput().size(), 12);
    QCOMPARE(sentInput(), expected);
}

void tst_BatchProcessThread::ignoresWhatItDoesNotKnow()
{
    start(1);
    InputEvent unknownType = InputEvent::key(1, InputEvent::KeyPress);
    unknownType.type = 3;
    m_thread->addEvent(unknownType);
    unknownType.type = -1;
    m_thread->addEvent(unknownType);
    InputEvent unknownState = InputEvent::key(2, InputEvent::KeyPress);
    unknownState.keyState = 3;
    m_thread->addEvent(unknownState);
    m_thread->addEvent(InputEvent::key(3, InputEvent::KeyPress));
    QTRY_COMPARE(sentInput(), QStringList{keyCall(1, 3)});
}

void tst_BatchProcessThread::dropsEventsWithoutTiles()
{
    m_thread->addEvent(InputEvent::key(1, InputEvent::KeyPress));
    m_thread->addEvent(InputEvent::key(2, InputEvent::KeyPress));
    QCOMPARE(m_thread->waitingEvents(), 2);
    m_thread->start();
    QTRY_COMPARE(m_thread->waitingEvents(), 0);
    setTiles({addTile(1)});
    takeCalls();
    m_thread->addEvent(InputEvent::key(3, InputEvent::KeyPress));
    QTRY_COMPARE(sentInput(), QStringList{keyCall(1, 3)});
}

void tst_BatchProcessThread::skipsRemovedTiles()
{
    for (int i = 1; i <= 3; ++i)
        addTile(i);
    setTiles(m_tiles);
    takeCalls();
    m_thread->addEvent(InputEvent::key(1, InputEvent::KeyPress));
    m_thread->addEvent(InputEvent::key(2, InputEvent::KeyPress));
    m_thread->removeController(m_tiles.at(1)); // both events are waiting
    m_thread->start();
    QTRY_COMPARE(sentInput().size(), 4);
    m_thread->addEvent(InputEvent::key(3, InputEvent::KeyPress));
    QTRY_COMPARE(sentInput().size(), 6);
    QCOMPARE(sentInput(),
        (QStringList{
            keyCall(1, 1), keyCall(1, 1), keyCall(1, 2), keyCall(1, 2), keyCall(1, 3), keyCall(1, 3)}));
}

// Their entries stay in the list: only the tiles themselves are gone.
void tst_BatchProcessThread::skipsDestroyedTiles()
{
    start(3);
    delete m_tiles.at(0);
    takeCalls();
    m_thread->addEvent(InputEvent::key(1, InputEvent::KeyPress));
    m_thread->addEvent(InputEvent::key(2, InputEvent::KeyPress));
    QTRY_COMPARE(sentInput().size(), 4);
}

void tst_BatchProcessThread::removalDeletesTheTile()
{
    start(2);
    const QPointer<SubController> known = m_tiles.at(0);
    const QPointer<SubController> unknown = addTile(3);
    m_thread->removeController(known);
    m_thread->removeController(unknown);
    m_thread->removeController(nullptr);
    QVERIFY(known && unknown); // by the event loop
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!known && !unknown);
}

void tst_BatchProcessThread::removalDuringAReplaySkipsTheRest()
{
    start(3);
    Gate gate("sendKeyEvent");
    m_thread->addEvent(InputEvent::key(1, InputEvent::KeyPress));
    QTRY_VERIFY(gate.isReached()); // in the first tile's call
    m_thread->removeController(m_tiles.at(1));
    gate.open();
    m_thread->addEvent(InputEvent::key(2, InputEvent::KeyPress));
    QTRY_COMPARE(sentInput().size(), 4);
    QCOMPARE(sentInput(), (QStringList{keyCall(1, 1), keyCall(1, 1), keyCall(1, 2), keyCall(1, 2)}));
}

// The test would hang here, were it to wait.
void tst_BatchProcessThread::nobodyWaitsForAReplay()
{
    start(3);
    Gate gate("sendKeyEvent(1, 1)");
    m_thread->addEvent(InputEvent::key(1, InputEvent::KeyPress));
    QTRY_VERIFY(gate.isReached());
    for (int i = 0; i < 1000; ++i)
        m_thread->addEvent(InputEvent::key(2, InputEvent::KeyPress));
    QCOMPARE(m_thread->waitingEvents(), 1000);
    m_thread->removeController(m_tiles.at(2));
    setTiles({m_tiles.at(0)});
    gate.open();
    // The first event went to the list that was there when it was taken, but for the tile that was removed.
    QTRY_COMPARE(sentInput().size(), 2 + 1000);
}

// At ten events a second these would take more than a minute and a half.
void tst_BatchProcessThread::takesAllEventsWithoutAPause()
{
    start(1);
    for (int i = 0; i < 1000; ++i)
        m_thread->addEvent(InputEvent::key(i, InputEvent::KeyPress));
    QTRY_COMPARE(sentInput().size(), 1000);
}

void tst_BatchProcessThread::endsWithEventsWaiting()
{
    start(1);
    Gate gate("sendKeyEvent(1, 1)");
    m_thread->addEvent(InputEvent::key(1, InputEvent::KeyPress));
    QTRY_VERIFY(gate.isReached());
    for (int i = 0; i < 100; ++i)
        m_thread->addEvent(InputEvent::key(2, InputEvent::KeyPress));
    gate.open();
    m_thread.reset(); // returns, whatever is waiting
    const int sent = sentInput().size();
    QVERIFY(sent >= 1 && sent <= 101);
}

QTEST_MAIN(tst_BatchProcessThread)
#include "tst_batchprocessthread.moc"
