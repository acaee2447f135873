// The program orvane-cloud as scripts and people start it: a process of its own with everything in it.

#include "../gateway/RawClient.h"
#include "TestClient.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

using namespace orvane::cloud::test;

namespace {

constexpr int timeoutMs = 30'000;

class ProgramTest : public testing::Test
{
protected:
    void TearDown() override
    {
        m_process.kill();
        m_process.waitForFinished(timeoutMs);
    }

    // Starts it and returns the object that it prints when it is ready.
    QJsonObject start(const QStringList &more = {})
    {
        m_process.start(ORVANE_CLOUD,
            QStringList{"--http-port", "0", "--gateway-port", "0", "--data", m_folder.filePath("new/data")}
                + more);
        while (!m_process.canReadLine() && m_process.waitForReadyRead(timeoutMs)) { }
        const QJsonObject ready = QJsonDocument::fromJson(m_process.readLine()).object();
        m_port = static_cast<std::uint16_t>(QUrl(ready.value("http").toString()).port(0));
        EXPECT_NE(m_port, 0) << m_process.readAllStandardError().toStdString();
        return ready;
    }
    // Runs it to its end and returns its exit code.
    int run(const QStringList &arguments)
    {
        m_process.start(ORVANE_CLOUD, arguments);
        EXPECT_TRUE(m_process.waitForFinished(timeoutMs));
        EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
        return m_process.exitCode();
    }
    Headers signIn()
    {
        const QJsonObject data
            = TestClient(m_port)
                  .post("/apiv1/user/login", {{"account", "demo"}, {"password", "orvane-demo"}})
                  .data();
        return {{"access-token", data.value("access_token").toString().toStdString()},
            {"login-id", data.value("login_id").toString().toStdString()}};
    }
    int listedDevices(const Headers &headers)
    {
        return TestClient(m_port).get("/apiv1/device/list", headers).data().value("devices").toArray().size();
    }
    int listedGroups(const Headers &headers)
    {
        return TestClient(m_port)
            .get("/apiv1/device/ccGroupList", headers)
            .data()
            .value("groups")
            .toArray()
            .size();
    }

    QTemporaryDir m_folder;
    QProcess m_process;
    std::uint16_t m_port = 0;
};

TEST_F(ProgramTest, reportsItsAddressesAndServes)
{
    const QJsonObject ready = start({"--devices", "3"});
    EXPECT_THAT(ready.value("http").toString().toStdString(), testing::StartsWith("http://127.0.0.1:"));
    EXPECT_THAT(ready.value("gateway").toString().toStdString(), testing::StartsWith("ws://127.0.0.1:"));
    EXPECT_EQ(ready.value("data").toString(), m_folder.filePath("new/data"));
    const Headers headers = signIn();
    EXPECT_EQ(listedDevices(headers), 3);

    const QJsonObject applied = TestClient(m_port)
                                    .post("/apiv1/device/actionDevice",
                                        {{"service_id", "100001"}, {"action_type", "device_apply"}}, headers)
                                    .data();
    const QJsonObject control
        = applied.value("resultInfo").toObject().value("controlList").toArray().at(0).toObject();
    const QJsonObject info = control.value("controlInfoList").toArray().at(0).toObject();
    EXPECT_EQ(info.value("controlPort").toInt(), QUrl(ready.value("gateway").toString()).port());
    const QJsonArray devices
        = TestClient(m_port).get("/apiv1/device/list", headers).data().value("devices").toArray();
    const std::string picture = devices.at(0).toObject().value("picture").toString().toStdString();
    EXPECT_THAT(TestClient(m_port).get(picture).body, testing::StartsWith("\x89PNG"));
}

TEST_F(ProgramTest, signalsEndItCleanly)
{
    for (const int signal : {SIGTERM, SIGINT}) {
        start();
        TestClient idle(m_port);
        idle.get("/admin/devices");
        ::kill(static_cast<pid_t>(m_process.processId()), signal);
        ASSERT_TRUE(m_process.waitForFinished(timeoutMs));
        EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(m_process.exitCode(), 0);
        EXPECT_EQ(idle.readToEnd(), "");
    }
}

TEST_F(ProgramTest, aKilledServiceStartsAgainWithAllItKnew)
{
    start();
    const Headers headers = signIn();
    TestClient(m_port).post("/apiv1/device/actionCcGroup",
        {{"action_type", "create"}, {"cc_group_name", "Farm"}, {"service_ids", QJsonArray{"100001"}}},
        headers);
    m_process.kill();
    m_process.waitForFinished(timeoutMs);
    start();
    EXPECT_EQ(listedDevices(headers), 12);
    EXPECT_EQ(listedGroups(headers), 3);
}

TEST_F(ProgramTest, aStreamEndsWithTheDevicesTimeThoughNobodyAsks)
{
    const int gatewayPort = QUrl(start().value("gateway").toString()).port(0);
    const Headers headers = signIn();
    const QJsonObject session = TestClient(m_port)
                                    .post("/apiv1/device/actionDevice",
                                        {{"service_id", "100001"}, {"action_type", "device_apply"}}, headers)
                                    .data()
                                    .value("resultInfo")
                                    .toObject();
    RawClient stream(static_cast<std::uint16_t>(gatewayPort));
    RawClient::Message login;
    login.mutable_login()->set_protocol_version(1);
    login.mutable_login()->set_user_id(session.value("userId").toInt());
    login.mutable_login()->set_session_id(session.value("sessionId").toString().toStdString());
    login.mutable_login()->set_pad_code("VM100001");
    ASSERT_TRUE(stream.send(login.SerializeAsString()));
    const auto accepted = stream.receive();
    ASSERT_TRUE(accepted && accepted->has_login_result() && accepted->login_result().code() == 0);

    const Reply set = TestClient(m_port).post("/admin/devices/VM100001/remaining", {{"seconds", 1}});
    EXPECT_EQ(set.code(), 200);
    const auto end = stream.receiveUntil([](const auto &message) { return message.has_session_end(); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->session_end().code(), swplay::wire::SessionEnd::EXPIRED);
    const QJsonArray devices
        = TestClient(m_port).get("/apiv1/device/list", headers).data().value("devices").toArray();
    EXPECT_EQ(devices.at(0).toObject().value("state").toString(), "expired");
    EXPECT_EQ(devices.at(1).toObject().value("state").toString(), "online");
}

TEST_F(ProgramTest, devicesTakeTheScreensInTurn)
{
    const QJsonObject ready = start({"--devices", "3", "--screens", "720x1280,1080x1920"});
    const auto gatewayPort = static_cast<std::uint16_t>(QUrl(ready.value("gateway").toString()).port(0));
    const Headers headers = signIn();
    const auto screenOf = [&](const QString &id) {
        const QJsonObject session = TestClient(m_port)
                                        .post("/apiv1/device/actionDevice",
                                            {{"service_id", id}, {"action_type", "device_apply"}}, headers)
                                        .data()
                                        .value("resultInfo")
                                        .toObject();
        RawClient stream(gatewayPort);
        RawClient::Message login;
        login.mutable_login()->set_protocol_version(1);
        login.mutable_login()->set_user_id(session.value("userId").toInt());
        login.mutable_login()->set_session_id(session.value("sessionId").toString().toStdString());
        login.mutable_login()->set_pad_code("VM" + id.toStdString());
        EXPECT_TRUE(stream.send(login.SerializeAsString()));
        const auto accepted = stream.receive();
        EXPECT_TRUE(accepted && accepted->has_login_result());
        return accepted
            ? std::pair(accepted->login_result().screen_width(), accepted->login_result().screen_height())
            : std::pair(0U, 0U);
    };
    EXPECT_EQ(screenOf("100001"), std::pair(720U, 1280U));
    EXPECT_EQ(screenOf("100002"), std::pair(1080U, 1920U));
    EXPECT_EQ(screenOf("100003"), std::pair(720U, 1280U));
}

TEST_F(ProgramTest, badInputIsRefusedAndTheServiceGoesOn)
{
    start();
    const Headers headers = signIn();
    const std::string groups = "/apiv1/device/actionCcGroup";
    const std::string remaining = "/admin/devices/VM100001/remaining";
    const std::string release = "/admin/release";
    const std::string longName(51, 'x');
    const struct
    {
        std::string target;
        std::string body;
        int code;
    } rows[] = {
        {groups, "", 400},
        {groups, "[]", 400},
        {groups, R"({"action_type":true})", 400},
        {groups, R"({"action_type":"create","service_ids":["100001"]})", 400},
        {groups, R"({"action_type":"create","cc_group_name":"Farm"})", 400},
        {groups, R"({"action_type":"create","cc_group_name":7,"service_ids":["100001"]})", 400},
        {groups, R"({"action_type":"create","cc_group_name":"Farm","service_ids":"100001"})", 400},
        {groups, R"({"action_type":"create","cc_group_name":"Farm","service_ids":[100001]})", 400},
        {groups, R"({"action_type":"create","service_ids":["100001"],"cc_group_name":")" + longName + "\"}",
            400},
        {groups, R"({"action_type":"create","cc_group_name":"Farm","service_ids":["777","900001"]})", 404},
        {groups, R"({"action_type":"rename","cc_group_id":"1"})", 400},
        {groups, R"({"action_type":"rename","cc_group_id":1,"cc_group_name":"Farm"})", 400},
        {groups, R"({"action_type":"rename","cc_group_id":"1","cc_group_name":")" + longName + "\"}", 400},
        {groups, R"({"action_type":"rename","cc_group_id":"777","cc_group_name":"Farm"})", 404},
        {groups, R"({"action_type":"delete"})", 400},
        {groups, R"({"action_type":"delete","cc_group_id":{}})", 400},
        {groups, R"({"action_type":"delete","cc_group_id":"777"})", 404},
        {remaining, "{}", 400},
        {remaining, R"({"seconds":"400"})", 400},
        {remaining, R"({"seconds":-1})", 400},
        {"/admin/devices/VM777/remaining", R"({"seconds":400})", 404},
        {release, "{}", 400},
        {release, R"({"version":130})", 400},
        {release, R"({"version":"1.3.0","version_code":"1200"})", 400},
        {release, R"({"version":"1.3.0","version_code":1200,"update_path":"x","files":[{"size":1}]})", 400},
    };
    for (const auto &row : rows) {
        const Headers identity = row.target == groups ? headers : Headers();
        const Reply reply = TestClient(m_port).request("POST", row.target, row.body, identity);
        EXPECT_EQ(reply.code(), row.code) << row.target << ' ' << row.body;
        EXPECT_FALSE(reply.message().empty()) << row.target << ' ' << row.body;
    }
    for (const char *target : {"/apiv1/user/session", "/apiv1/client/config", "/apiv1/client/update",
             "/apiv1/device/ccGroupList"}) {
        EXPECT_EQ(TestClient(m_port).get(target).code(), 401) << target;
        EXPECT_EQ(TestClient(m_port).get(target, headers).code(), 200) << target;
        EXPECT_EQ(TestClient(m_port).request("POST", target, "{}", headers).code(), 405) << target;
    }
    EXPECT_EQ(listedGroups(headers), 2);
    EXPECT_EQ(listedDevices(headers), 12);
}

TEST_F(ProgramTest, whatPreventsTheStartIsSaid)
{
    EXPECT_EQ(run({"--http-port", "many"}), 2);
    EXPECT_THAT(m_process.readAllStandardError().toStdString(), testing::HasSubstr("--http-port"));
    EXPECT_EQ(run({"--data", "/proc/nowhere"}), 1);
    EXPECT_THAT(m_process.readAllStandardError().toStdString(), testing::HasSubstr("/proc/nowhere"));
    EXPECT_EQ(run({"--help"}), 0);
    EXPECT_THAT(m_process.readAllStandardOutput().toStdString(), testing::HasSubstr("--gateway-port"));

    start();
    QProcess second;
    second.start(ORVANE_CLOUD,
        {"--http-port", QString::number(m_port), "--gateway-port", "0", "--data",
            m_folder.filePath("other")});
    ASSERT_TRUE(second.waitForFinished(timeoutMs));
    EXPECT_EQ(second.exitCode(), 1);
    EXPECT_THAT(
        second.readAllStandardError().toStdString(), testing::HasSubstr("port " + std::to_string(m_port)));
    EXPECT_EQ(second.readAllStandardOutput(), "");
}

} // namespace
