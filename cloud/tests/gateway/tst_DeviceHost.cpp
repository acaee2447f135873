// Who carries out what is given to one device: the thread that brings it, or a worker.
#include "gateway/DeviceHost.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <linux/input-event-codes.h>

using namespace orvane::cloud;
using namespace std::chrono_literals;

namespace {

constexpr auto Limit = 20s;
constexpr DeviceHost::ConnectionId Connection = 1;
// Breaking its lines takes Notes some milliseconds.
constexpr int LongNote = 9000;

// Counts what it is sent; a test may stop whoever calls it.
class FakeLink : public ClientLink
{
public:
    void sendControl(std::string /*message*/) override { ++controls; }
    void sendVideo(std::string /*message*/) override { }
    void accept(std::string /*loginResult*/) override
    {
        if (onAccept) {
            onAccept();
        }
        accepted.set_value();
    }
    void refuse(LoginCode /*code*/, const std::string & /*reason*/) override { }
    void end(EndCode /*code*/, const std::string & /*reason*/) override { }

    std::function<void()> onAccept;
    std::promise<void> accepted;
    std::atomic<int> controls{0};
};

class DeviceHostTest : public testing::Test
{
protected:
    void TearDown() override { workers.join(); }

    std::shared_ptr<FakeLink> join(const std::string &session, std::function<void()> onAccept = nullptr)
    {
        auto link = std::make_shared<FakeLink>();
        link->onAccept = std::move(onAccept);
        host->join({nextConnection++, session, link, std::make_shared<SessionCounters>()});
        return link;
    }
    static void waitFor(std::promise<void> &promise)
    {
        ASSERT_EQ(promise.get_future().wait_for(Limit), std::future_status::ready);
    }
    // Gives the message. The thread that has carried it out, once it has.
    std::future<std::thread::id> give(ClientMessage message) const
    {
        auto promise = std::make_shared<std::promise<std::thread::id>>();
        host->receive(
            Connection, std::move(message), [promise] { promise->set_value(std::this_thread::get_id()); });
        return promise->get_future();
    }
    static std::thread::id threadOf(std::future<std::thread::id> done)
    {
        if (done.wait_for(Limit) != std::future_status::ready) {
            ADD_FAILURE() << "never carried out";
            return {};
        }
        return done.get();
    }
    std::string note() const
    {
        const auto state = QJsonDocument::fromJson(QByteArray::fromStdString(host->appStateJson()));
        return state.object()["text"].toString().toStdString();
    }

    WorkerPool workers{1};
    std::shared_ptr<DeviceHost> host
        = std::make_shared<DeviceHost>("VM1", "One", QSize(720, 1280), workers.executor());
    DeviceHost::ConnectionId nextConnection = Connection;
    const std::thread::id here = std::this_thread::get_id();
};

client::Key key(int action, int code)
{
    return {action, code, false};
}

constexpr int Down = 1;
constexpr int Up = 2;

} // namespace

TEST_F(DeviceHostTest, QuickInputIsCarriedOutByWhoBringsIt)
{
    waitFor(join("abc")->accepted);
    host->openApp("Notes");
    // A worker may still be busy with the joining; later nobody uses the device, as nobody looks on.
    const auto deadline = std::chrono::steady_clock::now() + Limit;
    while (threadOf(give(key(Up, KEY_A))) != here) {
        ASSERT_LT(std::chrono::steady_clock::now(), deadline);
    }
}

// Nobody asks for anything that would carry it out by the way.
TEST_F(DeviceHostTest, LongTextIsCarriedOutByAWorker)
{
    waitFor(join("abc")->accepted);
    host->openApp("Notes");
    EXPECT_NE(threadOf(give(client::Text{std::string(LongNote, 'a')})), here);
}

TEST_F(DeviceHostTest, InputThatTookLongIsLeftToAWorkerTheNextTimeAndKeepsItsOrder)
{
    waitFor(join("abc")->accepted);
    host->openApp("Notes");
    threadOf(give(client::Text{std::string(LongNote, 'a')}));
    threadOf(give(key(Down, KEY_B))); // shows how long it takes
    threadOf(give(key(Up, KEY_B))); // quick, and says nothing about the next one that goes down
    for (const int code : {KEY_C, KEY_D, KEY_E}) {
        auto down = give(key(Down, code));
        auto up = give(key(Up, code));
        EXPECT_NE(threadOf(std::move(down)), here);
        threadOf(std::move(up));
    }
    EXPECT_EQ(note().substr(LongNote), "bcde");
}

TEST_F(DeviceHostTest, GivingSlowInputWaitsForNobody)
{
    waitFor(join("abc")->accepted);
    host->openApp("Notes");
    threadOf(give(client::Text{std::string(LongNote, 'a')}));
    threadOf(give(key(Down, KEY_B)));
    std::promise<void> isBusy;
    std::promise<void> mayGoOn;
    const auto link = join("abc2", [&] {
        isBusy.set_value();
        mayGoOn.get_future().wait();
    });
    waitFor(isBusy); // the only worker
    std::vector<std::future<std::thread::id>> given;
    given.push_back(give(key(Down, KEY_C)));
    given.push_back(give(key(Up, KEY_C)));
    given.push_back(give(key(Down, KEY_D)));
    for (const auto &done : given) {
        EXPECT_EQ(done.wait_for(0s), std::future_status::timeout);
    }
    mayGoOn.set_value();
    for (auto &done : given) {
        EXPECT_NE(threadOf(std::move(done)), here);
    }
    EXPECT_EQ(note().substr(LongNote), "bcd");
}

TEST_F(DeviceHostTest, SlowInputOfAConnectionThatIsCutIsCarriedOutBeforeItsKeysComeUp)
{
    waitFor(join("abc")->accepted);
    host->openApp("Notes");
    auto text = give(client::Text{std::string(LongNote, 'a')});
    auto down = give(key(Down, KEY_B));
    host->leave(Connection);
    threadOf(std::move(text));
    threadOf(std::move(down));
    waitFor(join("abc2")->accepted); // behind the leaving
    std::vector<std::string> types;
    for (const InputRecord &input : host->inputsSince(0)) {
        types.push_back(QJsonDocument::fromJson(QByteArray::fromStdString(input.json))
                            .object()["type"]
                            .toString()
                            .toStdString());
    }
    ASSERT_GE(types.size(), 2U);
    EXPECT_EQ(types[0], "text");
    EXPECT_EQ(types[1], "key");
    EXPECT_EQ(note().substr(LongNote), "b");
}

// However often a client makes the device say something before the viewers are told.
TEST_F(DeviceHostTest, OfManyEventsTheNewestIsTold)
{
    const auto watcher = join("abc");
    waitFor(watcher->accepted);
    host->openApp("Notes");
    threadOf(give(client::Text{"text"}));
    std::promise<void> isBusy;
    std::promise<void> mayGoOn;
    const auto other = join("abc2", [&] {
        isBusy.set_value();
        mayGoOn.get_future().wait();
    });
    waitFor(isBusy);
    const int before = watcher->controls;
    threadOf(give(key(Down, KEY_LEFTCTRL)));
    for (int i = 0; i < 500; ++i) {
        threadOf(give(key(Down, KEY_C)));
    }
    mayGoOn.set_value();
    workers.join();
    EXPECT_EQ(watcher->controls - before, 1);
}
