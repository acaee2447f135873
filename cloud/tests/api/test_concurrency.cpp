// Many clients at once; most useful under the thread and address sanitizers.

#include "ApiFixture.h"

#include <QJsonArray>

#include <atomic>
#include <thread>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

class ConcurrencyTest : public ApiFixture
{
protected:
    void SetUp() override { startService({}); } // real clocks
};

void runSideBySide(int count, const std::function<void(int)> &work)
{
    std::vector<std::thread> threads;
    threads.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        threads.emplace_back(work, i);
    for (std::thread &thread : threads)
        thread.join();
}

TEST_F(ConcurrencyTest, clientsDoNotDisturbEachOther)
{
    constexpr int clients = 8;
    constexpr int rounds = 15;
    const int userId = m_data->users.find("demo")->id;
    const Headers headers = signedIn();
    std::atomic<int> wrong{0};
    const auto expect = [&wrong](bool condition) { wrong += condition ? 0 : 1; };
    runSideBySide(clients, [&](int number) {
        // A device of its own per client; everything else is shared.
        const QString id = QString::number(100001 + number);
        const std::string pad = "VM" + id.toStdString();
        TestClient client = this->client();
        for (int round = 0; round < rounds; ++round) {
            const Reply applied = client.post("/apiv1/device/batchActionDevice",
                {{"service_ids", QJsonArray{id}}, {"action_type", "device_apply"}}, headers);
            const std::string session
                = applied.data().value(id).toObject().value("sessionId").toString().toStdString();
            expect(stateOf(session, pad, userId) == SessionState::Valid);
            expect(client.get("/apiv1/device/list", headers).data().value("devices").toArray().size() == 12);
            expect(client.get("/admin/devices").code() == 200);
            expect(client
                       .post("/apiv1/device/actionDevice",
                           {{"service_id", id}, {"action_type", "device_unbind"}}, headers)
                       .code()
                == 200);
            expect(stateOf(session, pad, userId) == SessionState::Unknown);
        }
    });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(m_fleet->endedSessions().size(), static_cast<std::size_t>(clients * rounds));
}

TEST_F(ConcurrencyTest, guessesSideBySideAreLimited)
{
    std::atomic<int> wrongPassword{0};
    std::atomic<int> tooMany{0};
    runSideBySide(12, [&](int) {
        const int code = signIn("demo", "guess").code();
        wrongPassword += code == 403 ? 1 : 0;
        tooMany += code == 429 ? 1 : 0;
    });
    EXPECT_EQ(wrongPassword, 5);
    EXPECT_EQ(tooMany, 7);
}

TEST_F(ConcurrencyTest, signInsOfOneAccountSideBySideSucceed)
{
    std::atomic<int> succeeded{0};
    runSideBySide(8, [&](int) { succeeded += signIn("demo", "orvane-demo").code() == 200 ? 1 : 0; });
    EXPECT_EQ(succeeded, 8);
}

TEST_F(ConcurrencyTest, theWatchEndsSessionsByItself)
{
    const std::string session = apply(signedIn(), "100001");
    // Before the watch thread's first sleep is over it must notice a time that ends sooner.
    stopService();
    {
        ServiceData data(m_folder.path().toStdString());
        data.devices.setExpiresAt("VM100001", data.clocks.wall() + std::chrono::milliseconds(300));
    }
    startService({});
    ASSERT_TRUE(m_fleet->waitForEndedSessions(1));
    EXPECT_THAT(m_fleet->endedSessions(), testing::Contains(FakeFleet::EndedSession{session, true}));
}

TEST_F(ConcurrencyTest, stoppingWhileClientsCallIsClean)
{
    std::atomic<bool> stopping{false};
    const std::uint16_t port = m_api->port();
    std::atomic<int> served{0};
    std::thread stopper([&] {
        while (served < 50)
            std::this_thread::yield();
        stopping = true;
        m_api->stop();
    });
    runSideBySide(4, [&](int) {
        try {
            while (true) {
                TestClient client(port);
                for (int i = 0; i < 5; ++i) {
                    client.get("/apiv1/device/list");
                    ++served;
                }
            }
        } catch (const boost::system::system_error &) {
            EXPECT_TRUE(stopping);
        }
    });
    stopper.join();
    EXPECT_GE(served, 50);
}

} // namespace
