#pragma once

#include "gateway/GatewayFleet.h"

#include "Bytes.h"
#include "RawClient.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <atomic>
#include <functional>
#include <stdexcept>
#include <thread>
#include <utility>

namespace orvane::cloud::test {

// Knows session "old", whose device is expired, and the sessions of user 7 that begin with "abc". Any thread.
class Sessions : public SessionStore
{
public:
    SessionState check(const StreamSession &session) override
    {
        const SessionState state = lookUp(session);
        // From here on the gateway works with what has been looked up, whatever happens meanwhile.
        if (const auto event = std::exchange(afterLookUp, nullptr)) {
            event();
        }
        return state;
    }

    // What becomes of the known sessions; SessionState::Valid while they are good.
    std::atomic<SessionState> known{SessionState::Valid};
    std::atomic<bool> broken{false}; // looking up fails
    // Happens once, while a session's check is under way. Set before the client's login.
    std::function<void()> afterLookUp;

private:
    SessionState lookUp(const StreamSession &session) const
    {
        if (broken) {
            throw std::runtime_error("out of order");
        }
        if (session.sessionId == "old") {
            return SessionState::Expired;
        }
        const bool isKnown = session.userId == 7 && session.sessionId.compare(0, 3, "abc") == 0;
        return isKnown ? known.load() : SessionState::Unknown;
    }
};

// Session "abc" of user 7 with device VM1.
inline const std::string LoginBytes = hex("0A 10 08 01 10 07 1A 03 61 62 63 22 03 56 4D 31 28 01");
// The same for session "abc2".
inline const std::string SecondLoginBytes = hex("0A 11 08 01 10 07 1A 04 61 62 63 32 22 03 56 4D 31 28 01");
// One row of 720 x 1280 at 6144 kbit/s.
inline const std::string LevelsBytes
    = hex("12 17 0A 15 08 02 10 D0 05 18 80 0A 20 19 28 0F 30 80 30 38 64 50 64 58 32");
inline const std::string FullBytes = hex("22 02 08 03");
// One finger at (360, 640) of 720 x 1280.
inline const std::string DownBytes
    = hex("3A 16 08 00 12 02 D0 05 1A 02 80 0A 22 04 00 00 00 3F 28 D0 05 30 80 0A");
inline const std::string UpBytes = hex("3A 02 08 01");

// A gateway with the devices VM1 and VM2, and clients for it.
class GatewayFleetTest : public testing::Test
{
protected:
    void start(ConnectionTimes times = {})
    {
        GatewayFleet::Options options;
        options.port = 0;
        options.devices = {{"VM1", "One"}, {"VM2", "Two"}};
        options.times = times;
        fleet = std::make_unique<GatewayFleet>(options, sessions);
        ASSERT_TRUE(fleet->start()) << fleet->errorText();
    }

    std::unique_ptr<RawClient> connect(const std::string &path = "/stream")
    {
        return std::make_unique<RawClient>(fleet->controlPort(), path);
    }

    std::unique_ptr<RawClient> signIn(const std::string &login = LoginBytes)
    {
        auto client = connect();
        EXPECT_TRUE(client->send(login));
        const auto result = client->receive();
        EXPECT_TRUE(result && result->has_login_result() && result->login_result().code() == 0);
        return client;
    }

    std::unique_ptr<RawClient> watch(const std::string &login = LoginBytes)
    {
        auto client = signIn(login);
        EXPECT_TRUE(client->send(LevelsBytes));
        EXPECT_TRUE(client->send(FullBytes));
        return client;
    }

    // The farewell, and that the connection ends after it.
    static void expectEnd(RawClient &client, swplay::wire::SessionEnd::Code code, const std::string &reason)
    {
        const auto end = client.receiveUntil([](const auto &m) { return m.has_session_end(); });
        ASSERT_TRUE(end);
        EXPECT_EQ(end->session_end().code(), code);
        EXPECT_EQ(end->session_end().reason(), reason);
        EXPECT_FALSE(client.receiveBytes());
        EXPECT_TRUE(client.waitForEnd());
    }

    // Waits for something that another thread brings about.
    static bool eventually(const std::function<bool()> &condition)
    {
        const auto deadline = std::chrono::steady_clock::now() + RawClient::Limit;
        while (!condition()) {
            if (std::chrono::steady_clock::now() > deadline) {
                return false;
            }
            std::this_thread::yield();
        }
        return true;
    }

    QJsonObject app() const
    {
        return QJsonDocument::fromJson(QByteArray::fromStdString(fleet->appStateJson("VM1"))).object();
    }

    Sessions sessions;
    std::unique_ptr<GatewayFleet> fleet;
};

} // namespace orvane::cloud::test
