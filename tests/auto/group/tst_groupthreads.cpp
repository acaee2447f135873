// Everything that happens to a group at once: input is replayed on its tiles while they are removed,
// promoted, restarted, paused, turned away from and closed, with real sessions at a gateway. Meant for the
// thread and address sanitizers; without them it still must not crash, hang or lose the way to a tile.
//
// It takes five seconds, or as many as the environment variable ORVANE_STRESS_SECONDS says.

#include "GroupDevices.h"

#include "group/SubControlPage.h"
#include "group/SubController.h"
#include "stream/StreamController.h"

#include <TestGateway.h>

#include <swplay/SWRuntime.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <random>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int DefaultSeconds = 5;
constexpr int FewestTiles = 3;
constexpr int MostTiles = 55; // two pages

// A gateway that lets everybody in.
class OpenGateway
{
public:
    OpenGateway()
        : m_thread([this] { letIn(); })
    { }
    ~OpenGateway()
    {
        m_done = true;
        m_thread.join();
    }
    quint16 port() const { return m_gateway.port(); }
    int sessions() const { return m_sessions; }
    // The sessions that have come since the last call.
    std::vector<std::shared_ptr<TestPeer>> takePeers()
    {
        const std::lock_guard<std::mutex> lock(m_lock);
        return std::move(m_peers);
    }

private:
    void letIn()
    {
        while (!m_done) {
            const std::shared_ptr<TestPeer> peer = m_gateway.accept(50ms);
            if (!peer)
                continue;
            try {
                peer->signIn();
            } catch (const std::runtime_error &) {
                continue; // its tile was restarted before it had signed in
            }
            ++m_sessions;
            const std::lock_guard<std::mutex> lock(m_lock);
            m_peers.push_back(peer);
        }
    }

    TestGateway m_gateway;
    std::atomic<bool> m_done{false};
    std::atomic<int> m_sessions{0};
    std::mutex m_lock; // guards m_peers
    std::vector<std::shared_ptr<TestPeer>> m_peers;
    std::thread m_thread; // last: it uses the others
};

// Whether the session gets the text; skips all that comes before it.
bool getsText(TestPeer &peer, const std::string &text)
{
    while (const auto message = peer.next(swplay::wire::StreamMessage::kText)) {
        if (message->text().text() == text)
            return true;
    }
    return false;
}

} // namespace

class tst_GroupThreads : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void everythingAtOnce();

private:
    int random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }
    QList<group::GroupDevice> someDevices(int count);
    void open();
    void sendInput();
    void disturb();
    void promote();

    QTemporaryDir m_logs;
    std::unique_ptr<OpenGateway> m_gateway;
    std::unique_ptr<SubControlPage> m_page;
    std::minstd_rand m_random{7};
    group::GroupDevice m_master;
    int m_lastDevice = 0;
};

void tst_GroupThreads::initTestCase()
{
    QCOMPARE(SWRuntime::getInstance()->init(1, m_logs.path().toUtf8().constData()), 0);
    m_gateway = std::make_unique<OpenGateway>();
}

void tst_GroupThreads::cleanupTestCase()
{
    m_page.reset();
    SWRuntime::getInstance()->deinit();
    m_gateway.reset();
}

QList<group::GroupDevice> tst_GroupThreads::someDevices(int count)
{
    QList<group::GroupDevice> list;
    for (int i = 0; i < count; ++i) {
        group::GroupDevice device = grouptest::device(++m_lastDevice);
        device.controlIp = QStringLiteral("127.0.0.1");
        device.controlPort = m_gateway->port();
        list.append(device);
    }
    return list;
}

void tst_GroupThreads::open()
{
    m_page = std::make_unique<SubControlPage>();
    m_page->resize(m_page->minimumSize());
    m_page->show();
    m_master = someDevices(1).first();
    m_page->setDevices(someDevices(FewestTiles + random(MostTiles - FewestTiles)));
}

void tst_GroupThreads::sendInput()
{
    m_page->onSubControlTouchEvent(random(3), 0.5F, 0.25F);
    m_page->onKeyPressEvent(30);
    m_page->onKeyReleaseEvent(30);
    m_page->onFunctionBtnClicked(172);
    m_page->onInputEvent(QStringLiteral("text"));
}

// The tile and the master change places.
void tst_GroupThreads::promote()
{
    SubController *tile = m_page->controllerAt(random(m_page->controllerCount()));
    const group::GroupDevice promoted = tile->device();
    tile->setDevice(m_master);
    m_master = promoted;
}

void tst_GroupThreads::disturb()
{
    SubController *tile = m_page->controllerAt(random(m_page->controllerCount()));
    switch (random(40)) {
    case 0:
        open(); // ends the old one with its events waiting
        break;
    case 1:
        m_page->setDevices(someDevices(FewestTiles + random(10)));
        break;
    case 2:
    case 3:
        m_page->setVisible(!m_page->isVisible());
        break;
    case 4:
    case 5:
        m_page->onNextPageBtnClicked();
        break;
    case 6:
    case 7:
        m_page->onPrePageBtnClicked();
        break;
    case 8:
    case 9:
        if (m_page->controllerCount() > FewestTiles)
            emit tile->removeController(true);
        break;
    case 10:
        delete tile; // and not by the page
        m_page->setDevices(someDevices(FewestTiles));
        break;
    case 11:
    case 12:
        promote();
        break;
    case 13:
    case 14:
        m_page->restartDevice(tile->serviceId());
        break;
    default:
        break;
    }
}

void tst_GroupThreads::everythingAtOnce()
{
    bool given = false;
    const int asked = qEnvironmentVariableIntValue("ORVANE_STRESS_SECONDS", &given);
    const int seconds = given ? asked : DefaultSeconds;
    open();
    QElapsedTimer timer;
    timer.start();
    int rounds = 0;
    for (; !timer.hasExpired(seconds * 1000LL); ++rounds) {
        sendInput();
        disturb();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 2);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    qInfo("%d rounds, %d sessions", rounds, m_gateway->sessions());
    QVERIFY(rounds > 10);
    QVERIFY(m_gateway->sessions() > 10);

    // After all that, a fresh group gets what is typed.
    m_page->setDevices({});
    m_gateway->takePeers();
    m_page->setDevices(someDevices(FewestTiles));
    for (int i = 0; i < FewestTiles; ++i) {
        // Another size is told before the session has signed in.
        const StreamController *stream = m_page->controllerAt(i)->streamController();
        QTRY_COMPARE_WITH_TIMEOUT(stream->videoResolution(), QSize(720, 1280), 30'000);
    }
    m_page->onInputEvent(QStringLiteral("the end"));
    // A tile may know of its session before the gateway's thread has put the peer among the others.
    int reached = 0;
    const auto reachesAll = [&] {
        const std::vector<std::shared_ptr<TestPeer>> peers = m_gateway->takePeers();
        for (const std::shared_ptr<TestPeer> &peer : peers)
            reached += getsText(*peer, "the end") ? 1 : 0;
        return reached >= FewestTiles;
    };
    QTRY_VERIFY_WITH_TIMEOUT(reachesAll(), 30'000);
    QCOMPARE(reached, FewestTiles);
}

QTEST_MAIN(tst_GroupThreads)
#include "tst_groupthreads.moc"
