#include "ApiFixture.h"

#include <QJsonArray>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

using AdminApiTest = ApiFixture;

TEST_F(AdminApiTest, devicesListsThemAll)
{
    FakeFleet::FakeDevice device;
    device.app = "Paint";
    device.state = DeviceState::Booting;
    m_fleet->setDevice("VM100001", device);
    const QJsonArray devices = get("/admin/devices").data().value("devices").toArray();
    ASSERT_EQ(devices.size(), 14);
    const QJsonObject first = devices.at(0).toObject();
    EXPECT_EQ(first.value("pad_code").toString(), "VM100001");
    EXPECT_EQ(first.value("service_id").toString(), "100001");
    EXPECT_EQ(first.value("alias_name").toString(), "Aurora");
    EXPECT_EQ(first.value("state").toString(), "restarting");
    EXPECT_EQ(first.value("app").toString(), "Paint");
    EXPECT_EQ(devices.at(1).toObject().value("app").toString(), "Home");
}

TEST_F(AdminApiTest, inputAnswersWhatIsNewer)
{
    FakeFleet::FakeDevice device;
    device.inputs = {{1, 1000, "s1", R"({"type":"touch","action":0,"points":[[1,2]]})"},
        {2, 2000, "s1", R"({"type":"key","action":1,"code":30,"shift":true})"}};
    m_fleet->setDevice("VM100001", device);
    const QJsonArray all = get("/admin/devices/VM100001/input").data().value("events").toArray();
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all.at(0).toObject().value("event").toObject().value("type").toString(), "touch");
    const QJsonArray newer = get("/admin/devices/VM100001/input?since=1").data().value("events").toArray();
    ASSERT_EQ(newer.size(), 1);
    const QJsonObject event = newer.at(0).toObject();
    EXPECT_EQ(event.value("sequence").toInt(), 2);
    EXPECT_EQ(event.value("time_us").toInt(), 2000);
    EXPECT_EQ(event.value("session_id").toString(), "s1");
    EXPECT_EQ(event.value("event").toObject().value("code").toInt(), 30);
    EXPECT_EQ(event.value("event").toObject().value("shift").toBool(), true);
    for (const char *since : {"x", "-1", "1.5", "", "99999999999999999999"})
        EXPECT_EQ(get(std::string("/admin/devices/VM100001/input?since=") + since).code(), 400) << since;
}

TEST_F(AdminApiTest, appShowsAndChangesWhatIsInFront)
{
    EXPECT_EQ(get("/admin/devices/VM100001/app").data().value("fingers").toInt(), 2);
    EXPECT_EQ(postText("/admin/devices/VM100001/app", R"({"app":"Paint"})").code(), 200);
    EXPECT_EQ(get("/admin/devices/VM100001/app").data().value("app").toString(), "Paint");
    EXPECT_EQ(postText("/admin/devices/VM100001/app", R"({"app":"Nothing"})").code(), 400);
    EXPECT_EQ(postText("/admin/devices/VM100001/app", R"({"app":7})").code(), 400);
    EXPECT_EQ(m_fleet->device("VM100001").app, "Paint");
}

TEST_F(AdminApiTest, screenIsAPictureOfTheWantedSize)
{
    const Reply reply = get("/admin/devices/VM100001/screen?max_side=320");
    EXPECT_EQ(reply.field("Content-Type"), "image/png");
    EXPECT_EQ(reply.body, "\x89PNG of VM100001");
    get("/admin/devices/VM100001/screen");
    EXPECT_THAT(m_fleet->pictureSides(), testing::ElementsAre(320, 1280));
    for (const char *side : {"0", "1281", "-5", "big"})
        EXPECT_EQ(get(std::string("/admin/devices/VM100001/screen?max_side=") + side).code(), 400) << side;
}

TEST_F(AdminApiTest, rotateAndCamera)
{
    EXPECT_EQ(postText("/admin/devices/VM100001/rotate", R"({"rotation":3})").code(), 200);
    EXPECT_EQ(m_fleet->device("VM100001").rotation, 3);
    for (const char *rotation : {"-1", "4", "1.5", "\"1\"", "true", "null", "1e300"})
        EXPECT_EQ(postText("/admin/devices/VM100001/rotate", R"({"rotation":)" + std::string(rotation) + "}")
                      .code(),
            400)
            << rotation;
    EXPECT_EQ(m_fleet->device("VM100001").rotation, 3);
    EXPECT_EQ(postText("/admin/devices/VM100001/camera", R"({"on":true})").code(), 200);
    EXPECT_TRUE(m_fleet->device("VM100001").camera);
    EXPECT_EQ(postText("/admin/devices/VM100001/camera", R"({"on":1})").code(), 400);
    EXPECT_EQ(postText("/admin/devices/VM100001/camera", R"({"on":false})").code(), 200);
    EXPECT_FALSE(m_fleet->device("VM100001").camera);
}

TEST_F(AdminApiTest, filmSetsThePicturesASecond)
{
    const auto set = [this](const std::string &rate) {
        return postText("/admin/devices/VM100001/film", R"({"pictures_per_second":)" + rate + "}").code();
    };
    EXPECT_EQ(set("5"), 200);
    EXPECT_EQ(m_fleet->device("VM100001").filmRate, 5);
    for (const char *rate : {"0", "26", "2.5", "\"5\"", "null"})
        EXPECT_EQ(set(rate), 400) << rate;
    EXPECT_EQ(m_fleet->device("VM100001").filmRate, 5);
    EXPECT_EQ(postText("/admin/devices/VM777/film", R"({"pictures_per_second":5})").code(), 404);
}

TEST_F(AdminApiTest, expireEndsTheDevicesTimeAtOnce)
{
    const Headers headers = signedIn();
    const std::string session = apply(headers, "100001");
    EXPECT_EQ(postText("/admin/devices/VM100001/expire", "{}").code(), 200);
    // Not only soon: when the answer is there, the sessions have been ended.
    EXPECT_THAT(m_fleet->endedSessions(), testing::Contains(FakeFleet::EndedSession{session, true}));
    EXPECT_EQ(act(headers, "100001", "device_apply").code(), 410);
    EXPECT_EQ(act(headers, "100002", "device_apply").code(), 200);
}

TEST_F(AdminApiTest, remainingSetsTheEndOfTheDevicesTime)
{
    const Headers headers = signedIn();
    const std::string session = apply(headers, "100001");
    const auto listed = [&] {
        return get("/apiv1/device/list", headers).data().value("devices").toArray().at(0).toObject();
    };
    EXPECT_EQ(postText("/admin/devices/VM100001/remaining", R"({"seconds":400})").code(), 200);
    EXPECT_EQ(listed().value("remaining_seconds").toInt(), 400);
    EXPECT_EQ(listed().value("state").toString(), "online");
    EXPECT_TRUE(m_fleet->endedSessions().empty());

    m_time.advance(std::chrono::milliseconds(399'001));
    EXPECT_EQ(listed().value("remaining_seconds").toInt(), 0);
    EXPECT_EQ(listed().value("state").toString(), "online");
    // More time than was left: nothing ends at the old moment.
    EXPECT_EQ(postText("/admin/devices/VM100001/remaining", R"({"seconds":1000000000})").code(), 200);
    m_time.advance(std::chrono::seconds(10));
    EXPECT_EQ(act(headers, "100001", "device_apply").code(), 200);
    EXPECT_TRUE(m_fleet->endedSessions().empty());

    EXPECT_EQ(postText("/admin/devices/VM100001/remaining", R"({"seconds":0})").code(), 200);
    EXPECT_THAT(m_fleet->endedSessions(), testing::Contains(FakeFleet::EndedSession{session, true}));
    EXPECT_EQ(listed().value("state").toString(), "expired");
    // Prolonged: the session that was never given back is good again.
    EXPECT_EQ(postText("/admin/devices/VM100001/remaining", R"({"seconds":60})").code(), 200);
    EXPECT_EQ(listed().value("state").toString(), "online");
    EXPECT_EQ(stateOf(session, "VM100001", m_data->users.find("demo")->id), SessionState::Valid);
}

TEST_F(AdminApiTest, theEndOfTimeIsNoticedThoughNobodyAsks)
{
    const std::string session = apply(signedIn(), "100001");
    const std::string stays = apply(signedIn(), "100002");
    EXPECT_EQ(postText("/admin/devices/VM100001/remaining", R"({"seconds":400})").code(), 200);
    m_time.advance(std::chrono::seconds(400));
    ASSERT_TRUE(m_fleet->waitForEndedSessions(1));
    EXPECT_THAT(m_fleet->endedSessions(), testing::ElementsAre(FakeFleet::EndedSession{session, true}));

    // The watch is not done after the first one.
    EXPECT_EQ(postText("/admin/devices/VM100002/remaining", R"({"seconds":5})").code(), 200);
    m_time.advance(std::chrono::seconds(5));
    ASSERT_TRUE(m_fleet->waitForEndedSessions(2));
    EXPECT_THAT(m_fleet->endedSessions(),
        testing::ElementsAre(FakeFleet::EndedSession{session, true}, FakeFleet::EndedSession{stays, true}));
}

TEST_F(AdminApiTest, remainingFieldsAreChecked)
{
    for (const char *seconds : {"-1", "1000000001", "1.5", "\"400\"", "true", "null", "[]", "{}", "1e300"}) {
        const Reply reply
            = postText("/admin/devices/VM100001/remaining", R"({"seconds":)" + std::string(seconds) + "}");
        EXPECT_EQ(reply.code(), 400) << seconds;
        EXPECT_THAT(reply.message(), testing::HasSubstr("seconds")) << seconds;
    }
    EXPECT_EQ(postText("/admin/devices/VM100001/remaining", "{}").code(), 400);
    EXPECT_EQ(m_data->devices.findByPadCode("VM100001")->expiresAt - m_data->clocks.wall(),
        std::chrono::hours(24 * 92));
}

TEST_F(AdminApiTest, connectionsAreDisturbed)
{
    EXPECT_EQ(postText("/admin/connections/cut", "{}").data().value("connections").toInt(), 3);
    EXPECT_EQ(postText("/admin/connections/cut", R"({"pad":""})").code(), 200);
    EXPECT_EQ(postText("/admin/connections/stall", R"({"pad":"VM100002","ms":6000})")
                  .data()
                  .value("connections")
                  .toInt(),
        2);
    EXPECT_EQ(
        postText("/admin/connections/bandwidth", R"({"pad":"VM100002","kbit_per_s":1000})").code(), 200);
    EXPECT_EQ(postText("/admin/connections/bandwidth", R"({"kbit_per_s":0})").code(), 200);
    EXPECT_EQ(postText("/admin/connections/corrupt", R"({"pad":"VM100001","count":3})").code(), 200);
    EXPECT_THAT(m_fleet->calls(),
        testing::ElementsAre("cut ''", "cut ''", "stall 'VM100002' 6000", "bandwidth 'VM100002' 1000",
            "bandwidth '' 0", "corrupt 'VM100001' 3"));

    EXPECT_EQ(postText("/admin/connections/cut", R"({"pad":7})").code(), 400);
    EXPECT_EQ(postText("/admin/connections/cut", R"({"pad":"VM1"})").code(), 404);
    EXPECT_EQ(postText("/admin/connections/stall", R"({"pad":"VM100002"})").code(), 400);
    EXPECT_EQ(postText("/admin/connections/stall", R"({"ms":-1})").code(), 400);
    EXPECT_EQ(postText("/admin/connections/bandwidth", R"({"kbit_per_s":-1})").code(), 400);
    EXPECT_EQ(postText("/admin/connections/corrupt", R"({"count":0})").code(), 400);
    EXPECT_EQ(m_fleet->calls().size(), 6u);
}

TEST_F(AdminApiTest, statsDescribeTheSessions)
{
    m_fleet->setStats({{"s1", "VM100001", 123456789012, 25, 2, 3, true, 1}});
    const QJsonArray sessions = get("/admin/stats").data().value("sessions").toArray();
    ASSERT_EQ(sessions.size(), 1);
    const QJsonObject session = sessions.at(0).toObject();
    EXPECT_EQ(session.value("session_id").toString(), "s1");
    EXPECT_EQ(session.value("pad_code").toString(), "VM100001");
    EXPECT_EQ(session.value("bytes_sent").toDouble(), 123456789012.0);
    EXPECT_EQ(session.value("frames_sent").toInt(), 25);
    EXPECT_EQ(session.value("frames_dropped").toInt(), 2);
    EXPECT_EQ(session.value("level_row").toInt(), 3);
    EXPECT_EQ(session.value("automatic").toBool(), true);
    EXPECT_EQ(session.value("cast_mode").toInt(), 1);
}

TEST_F(AdminApiTest, unknownDevicesAreNotFound)
{
    for (const char *what : {"input", "app", "screen"})
        EXPECT_EQ(get(std::string("/admin/devices/VM1/") + what).code(), 404) << what;
    for (const char *what : {"app", "rotate", "camera", "expire", "remaining"})
        EXPECT_EQ(postText(std::string("/admin/devices/VM1/") + what, "{}").code(), 404) << what;
    EXPECT_EQ(get("/admin/devices/%00%ff/app").code(), 404);
}

TEST_F(AdminApiTest, webPagesAreKeptOut)
{
    EXPECT_EQ(get("/admin/devices", {{"Origin", "http://evil.example"}}).status, 404);
    EXPECT_EQ(get("/admin/devices", {{"Origin", "null"}}).status, 404);
    EXPECT_EQ(
        client().request("OPTIONS", "/admin/connections/cut", "", {{"Origin", "http://evil.example"}}).status,
        404);
    EXPECT_EQ(get("/admin/devices", {{"Host", "evil.example:8180"}}).status, 404);
    for (const char *host : {"localhost:8180", "127.0.0.1:8180", "127.0.0.1", "[::1]:8180", "[::1]"})
        EXPECT_EQ(get("/admin/devices", {{"Host", host}}).status, 200) << host;
}

} // namespace
