#include "ApiFixture.h"

#include <QDateTime>
#include <QJsonArray>

#include <set>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

class DeviceApiTest : public ApiFixture
{
protected:
    void SetUp() override
    {
        ApiFixture::SetUp();
        m_demo = signedIn();
        m_second = signedIn("second");
        m_demoId = m_data->users.find("demo")->id;
    }

    QJsonArray list(const Headers &headers) const
    {
        return get("/apiv1/device/list", headers).data().value("devices").toArray();
    }
    QJsonObject listed(const std::string &serviceId) const
    {
        for (const QJsonValue device : list(m_demo))
            if (device.toObject().value("service_id").toString().toStdString() == serviceId)
                return device.toObject();
        return {};
    }
    std::string pictureOf(const std::string &serviceId) const
    {
        return listed(serviceId).value("picture").toString().toStdString();
    }
    void expire(const std::string &padCode) { m_data->devices.setExpiresAt(padCode, m_data->clocks.wall()); }

    Headers m_demo;
    Headers m_second;
    int m_demoId = -1;
};

TEST_F(DeviceApiTest, theListDescribesTheUsersDevices)
{
    const QJsonArray devices = list(m_demo);
    ASSERT_EQ(devices.size(), 12);
    const QJsonObject first = devices.at(0).toObject();
    EXPECT_EQ(first.value("service_id").toString(), "100001");
    EXPECT_EQ(first.value("device_id").toString(), "VM100001");
    EXPECT_EQ(first.value("device_name").toString(), "VM100001");
    EXPECT_EQ(first.value("alias_name").toString(), "Aurora");
    EXPECT_EQ(first.value("node_type").toString(), "vm");
    EXPECT_EQ(first.value("state").toString(), "online");
    EXPECT_EQ(first.value("pay_mode").toString(), "month");

    const QString format = "yyyy-MM-dd hh:mm:ss";
    const QDateTime now = QDateTime::fromString(first.value("network_time").toString(), format);
    const QDateTime end = QDateTime::fromString(first.value("expire_time").toString(), format);
    EXPECT_EQ(now.toSecsSinceEpoch(), 1795253400);
    EXPECT_EQ(now.secsTo(end), first.value("remaining_seconds").toInt());
    EXPECT_EQ(first.value("remaining_seconds").toInt(), 92 * 86400);
}

TEST_F(DeviceApiTest, aDeviceKeepsItsUuid)
{
    // What SHA-1 makes of the service's namespace and the pad code: a page may have kept it.
    EXPECT_EQ(listed("100001").value("uuid").toString(), "7cf34ca8-d712-58bc-8771-1336d943555f");
    std::set<QString> uuids;
    for (const QJsonValue device : list(m_demo))
        uuids.insert(device.toObject().value("uuid").toString());
    EXPECT_EQ(uuids.size(), 12u);
}

TEST_F(DeviceApiTest, everySeededDeviceIsUsableAndHasANameOfItsOwn)
{
    std::set<QString> names;
    for (const QJsonValue device : list(m_demo)) {
        EXPECT_EQ(device.toObject().value("state").toString(), "online");
        EXPECT_GT(device.toObject().value("remaining_seconds").toInt(), 7 * 86400);
        names.insert(device.toObject().value("alias_name").toString());
    }
    EXPECT_EQ(names.size(), 12u);
}

TEST_F(DeviceApiTest, theListTellsTheState)
{
    FakeFleet::FakeDevice device;
    device.state = DeviceState::Booting;
    m_fleet->setDevice("VM100002", device);
    EXPECT_EQ(listed("100002").value("state").toString(), "restarting");
    expire("VM100002");
    EXPECT_EQ(listed("100002").value("state").toString(), "expired");
    EXPECT_EQ(listed("100002").value("remaining_seconds").toInt(-1), 0);
    EXPECT_EQ(listed("100002").value("picture").toString(), "");
    EXPECT_EQ(listed("100001").value("state").toString(), "online");
}

TEST_F(DeviceApiTest, usersSeeOnlyTheirOwnDevices)
{
    const QJsonArray devices = list(m_second);
    ASSERT_EQ(devices.size(), 2);
    EXPECT_EQ(devices.at(0).toObject().value("service_id").toString(), "900001");
    EXPECT_EQ(devices.at(1).toObject().value("service_id").toString(), "900002");
}

TEST_F(DeviceApiTest, applyingGrantsASession)
{
    const Reply reply = act(m_demo, "100001", "device_apply");
    EXPECT_EQ(reply.code(), 200);
    const QJsonObject data = reply.data();
    EXPECT_EQ(data.value("padCode").toString(), "VM100001");
    const QJsonObject result = data.value("resultInfo").toObject();
    EXPECT_TRUE(result.value("userId").isDouble());
    EXPECT_EQ(result.value("userId").toInt(-1), m_demoId);
    const QString session = result.value("sessionId").toString();
    EXPECT_GE(session.size(), 32);
    ASSERT_EQ(result.value("controlList").toArray().size(), 1);
    const QJsonArray infos
        = result.value("controlList").toArray().at(0).toObject().value("controlInfoList").toArray();
    ASSERT_EQ(infos.size(), 1);
    EXPECT_EQ(infos.at(0).toObject().value("controlIp").toString(), "127.0.0.1");
    EXPECT_TRUE(infos.at(0).toObject().value("controlPort").isDouble());
    EXPECT_EQ(infos.at(0).toObject().value("controlPort").toInt(), 8181);
    EXPECT_THAT(reply.body, testing::HasSubstr(R"("controlPort":8181)"));

    const std::string sessionId = session.toStdString();
    EXPECT_EQ(stateOf(sessionId, "VM100001", m_demoId), SessionState::Valid);
    EXPECT_EQ(stateOf(sessionId, "VM100002", m_demoId), SessionState::Unknown);
    EXPECT_EQ(stateOf(sessionId, "VM100001", m_demoId + 1), SessionState::Unknown);
    EXPECT_EQ(stateOf("", "VM100001", m_demoId), SessionState::Unknown);
}

TEST_F(DeviceApiTest, applyingAgainLeavesEarlierSessionsValid)
{
    const std::string first = apply(m_demo, "100001");
    const std::string second = apply(m_demo, "100001");
    EXPECT_NE(first, second);
    EXPECT_EQ(stateOf(first, "VM100001", m_demoId), SessionState::Valid);
    EXPECT_EQ(stateOf(second, "VM100001", m_demoId), SessionState::Valid);
    EXPECT_TRUE(m_fleet->endedSessions().empty());
}

TEST_F(DeviceApiTest, theOldestOfVeryManySessionsMakesWay)
{
    const int many = StreamSessionStore::maxSessionsPerUserAndDevice;
    const std::string first = apply(m_demo, "100001");
    const std::string elsewhere = apply(m_demo, "100002");
    for (int i = 1; i < many; ++i)
        apply(m_demo, "100001");
    EXPECT_EQ(stateOf(first, "VM100001", m_demoId), SessionState::Valid);
    apply(m_demo, "100001");
    EXPECT_EQ(stateOf(first, "VM100001", m_demoId), SessionState::Unknown);
    EXPECT_EQ(stateOf(elsewhere, "VM100002", m_demoId), SessionState::Valid);
    EXPECT_THAT(m_fleet->endedSessions(), testing::ElementsAre(FakeFleet::EndedSession{first, false}));
}

TEST_F(DeviceApiTest, unbindingEndsTheUsersSessionsWithTheDevice)
{
    const std::string one = apply(m_demo, "100001");
    const std::string two = apply(m_demo, "100001");
    const std::string other = apply(m_demo, "100002");
    const Reply reply = act(m_demo, "100001", "device_unbind");
    EXPECT_EQ(reply.code(), 200);
    EXPECT_TRUE(reply.envelope().value("data").isObject());
    EXPECT_THAT(m_fleet->endedSessions(),
        testing::UnorderedElementsAre(
            FakeFleet::EndedSession{one, false}, FakeFleet::EndedSession{two, false}));
    EXPECT_EQ(stateOf(one, "VM100001", m_demoId), SessionState::Unknown);
    EXPECT_EQ(stateOf(other, "VM100002", m_demoId), SessionState::Valid);
    // Nothing left to give back: still done.
    EXPECT_EQ(act(m_demo, "100001", "device_unbind").code(), 200);
}

TEST_F(DeviceApiTest, rebootingRestartsTheDeviceAndKeepsItsSessions)
{
    const std::string session = apply(m_demo, "100003");
    EXPECT_EQ(act(m_demo, "100003", "reboot").code(), 200);
    EXPECT_EQ(m_fleet->device("VM100003").reboots, 1);
    EXPECT_EQ(m_fleet->device("VM100001").reboots, 0);
    EXPECT_EQ(stateOf(session, "VM100003", m_demoId), SessionState::Valid);
    EXPECT_TRUE(m_fleet->endedSessions().empty());
}

TEST_F(DeviceApiTest, otherUsersDevicesDoNotExist)
{
    const std::string session = apply(m_demo, "100001");
    for (const char *action : {"device_apply", "device_unbind", "reboot"}) {
        EXPECT_EQ(act(m_second, "100001", action).code(), 404) << action;
        EXPECT_EQ(act(m_second, "777", action).body, act(m_second, "100001", action).body) << action;
        EXPECT_EQ(actOnMany(m_second, {"100001"}, action).code(), 404) << action;
    }
    EXPECT_EQ(stateOf(session, "VM100001", m_demoId), SessionState::Valid);
    EXPECT_EQ(m_fleet->device("VM100001").reboots, 0);
}

TEST_F(DeviceApiTest, aDeviceThatIsOverCanOnlyBeGivenBack)
{
    const std::string session = apply(m_demo, "100001");
    expire("VM100001");
    EXPECT_EQ(act(m_demo, "100001", "device_apply").code(), 410);
    EXPECT_EQ(act(m_demo, "100001", "reboot").code(), 410);
    EXPECT_EQ(stateOf(session, "VM100001", m_demoId), SessionState::Expired);
    EXPECT_EQ(act(m_demo, "100001", "device_unbind").code(), 200);
    EXPECT_EQ(stateOf(session, "VM100001", m_demoId), SessionState::Unknown);
}

TEST_F(DeviceApiTest, aDeviceThatDoesNotRunCannotBeUsedNow)
{
    m_fleet->removeDevice("VM100001");
    EXPECT_EQ(act(m_demo, "100001", "device_apply").code(), 409);
    EXPECT_EQ(act(m_demo, "100001", "reboot").code(), 409);
    EXPECT_EQ(pictureOf("100001"), "");
}

TEST_F(DeviceApiTest, batchApplyAnswersByServiceId)
{
    const Reply reply = actOnMany(m_demo, {"100003", "100001"}, "device_apply");
    EXPECT_EQ(reply.code(), 200);
    ASSERT_THAT(reply.data().keys(), testing::ElementsAre(QString("100001"), QString("100003")));
    for (const QString &id : reply.data().keys()) {
        const QJsonObject device = reply.data().value(id).toObject();
        const QString pad = "VM" + id;
        EXPECT_EQ(device.value("instanceCode").toString(), pad);
        EXPECT_EQ(device.value("userId").toInt(-1), m_demoId);
        const QJsonObject info = device.value("controlList")
                                     .toArray()
                                     .at(0)
                                     .toObject()
                                     .value("controlInfoList")
                                     .toArray()
                                     .at(0)
                                     .toObject();
        EXPECT_EQ(info.value("controlIp").toString(), "127.0.0.1");
        EXPECT_EQ(info.value("controlPort").toInt(), 8181);
        EXPECT_EQ(stateOf(device.value("sessionId").toString().toStdString(), pad.toStdString(), m_demoId),
            SessionState::Valid);
    }
}

TEST_F(DeviceApiTest, batchLeavesOutWhatCannotBeApplied)
{
    expire("VM100002");
    m_fleet->removeDevice("VM100004");
    const Reply reply = actOnMany(
        m_demo, {"100001", "100002", "777", "900001", "100001", "100004", "100003"}, "device_apply");
    EXPECT_EQ(reply.code(), 200);
    EXPECT_THAT(reply.data().keys(), testing::ElementsAre(QString("100001"), QString("100003")));
    EXPECT_EQ(actOnMany(m_demo, {"100002", "777"}, "device_apply").code(), 404);
}

TEST_F(DeviceApiTest, aGroupOfThreeHundredIsAppliedForAndGivenBackInOneRequest)
{
    constexpr int count = 300;
    std::vector<Device> devices;
    std::vector<std::string> ids;
    for (int i = 0; i < count; ++i) {
        ids.push_back(std::to_string(500'000 + i));
        devices.push_back({ids.back(), "VM" + ids.back(), "Phone", m_demoId, "month",
            m_data->clocks.wall() + std::chrono::hours(1)});
        m_fleet->setDevice(devices.back().padCode, {});
    }
    m_data->devices.add(devices);

    const Reply reply = actOnMany(m_demo, ids, "device_apply");
    ASSERT_EQ(reply.code(), 200);
    ASSERT_EQ(reply.data().size(), count);
    std::set<std::string> sessions;
    for (const std::string &id : ids) {
        const QJsonObject device = reply.data().value(QString::fromStdString(id)).toObject();
        const std::string session = device.value("sessionId").toString().toStdString();
        EXPECT_EQ(stateOf(session, "VM" + id, m_demoId), SessionState::Valid) << id;
        sessions.insert(session);
    }
    EXPECT_EQ(sessions.size(), std::size_t{count});

    const std::string other = apply(m_demo, "100001");
    EXPECT_EQ(actOnMany(m_demo, ids, "device_unbind").code(), 200);
    std::set<std::string> ended;
    for (const FakeFleet::EndedSession &session : m_fleet->endedSessions())
        ended.insert(session.sessionId);
    EXPECT_EQ(ended, sessions);
    EXPECT_EQ(stateOf(*sessions.begin(), "VM" + ids.front(), m_demoId), SessionState::Unknown);
    EXPECT_EQ(stateOf(other, "VM100001", m_demoId), SessionState::Valid);
}

TEST_F(DeviceApiTest, batchRebootAndUnbind)
{
    const std::string one = apply(m_demo, "100001");
    const std::string two = apply(m_demo, "100002");
    expire("VM100002");
    EXPECT_EQ(actOnMany(m_demo, {"100001", "100002", "100001"}, "reboot").code(), 200);
    EXPECT_EQ(m_fleet->device("VM100001").reboots, 1);
    EXPECT_EQ(m_fleet->device("VM100002").reboots, 0);
    const Reply reply = actOnMany(m_demo, {"100001", "100002", "777"}, "device_unbind");
    EXPECT_EQ(reply.code(), 200);
    EXPECT_TRUE(reply.data().isEmpty());
    EXPECT_THAT(m_fleet->endedSessions(),
        testing::UnorderedElementsAre(
            FakeFleet::EndedSession{one, false}, FakeFleet::EndedSession{two, false}));
}

TEST_F(DeviceApiTest, badFieldsAreNamed)
{
    const std::pair<const char *, const char *> bodies[] = {
        {R"({"action_type":"reboot"})", "service_id"},
        {R"({"service_id":100001,"action_type":"reboot"})", "service_id"},
        {R"({"service_id":"","action_type":"reboot"})", "service_id"},
        {R"({"service_id":"100001"})", "action_type"},
        {R"({"service_id":"100001","action_type":"explode"})", "action_type"},
        {R"({"service_id":"100001","action_type":{}})", "action_type"},
    };
    for (const auto &[body, field] : bodies) {
        const Reply reply = postText("/apiv1/device/actionDevice", body, m_demo);
        EXPECT_EQ(reply.status, 200) << body;
        EXPECT_EQ(reply.code(), 400) << body;
        EXPECT_THAT(reply.message(), testing::HasSubstr(field)) << body;
    }
    const char *lists[] = {"null", "\"100001\"", "[]", "[1]", "[\"100001\",null]", "{}", "[[\"100001\"]]"};
    for (const char *ids : lists) {
        const std::string body = R"({"action_type":"reboot","service_ids":)" + std::string(ids) + "}";
        const Reply reply = postText("/apiv1/device/batchActionDevice", body, m_demo);
        EXPECT_EQ(reply.code(), 400) << body;
        EXPECT_THAT(reply.message(), testing::HasSubstr("service_ids")) << body;
    }
    EXPECT_EQ(m_fleet->device("VM100001").reboots, 0);
}

TEST_F(DeviceApiTest, atMostFiveHundredIds)
{
    std::vector<std::string> ids(500, "777");
    ids.back() = "100001";
    EXPECT_EQ(actOnMany(m_demo, ids, "reboot").code(), 200);
    ids.push_back("100002");
    EXPECT_EQ(actOnMany(m_demo, ids, "reboot").code(), 400);
    EXPECT_EQ(m_fleet->device("VM100002").reboots, 0);
}

TEST_F(DeviceApiTest, picturesNeedNoHeadersButAGenuineLink)
{
    const std::string link = pictureOf("100001");
    ASSERT_FALSE(link.empty());
    const Reply reply = get(link);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.field("Content-Type"), "image/png");
    EXPECT_EQ(reply.body, "\x89PNG of VM100001");
    ASSERT_EQ(m_fleet->pictureSides().size(), 1u);
    EXPECT_LE(m_fleet->pictureSides().front(), 480);

    std::string otherPad = link;
    otherPad.replace(otherPad.find("VM100001"), 8, "VM900001");
    std::string otherSignature = link;
    otherSignature.back() = otherSignature.back() == '0' ? '1' : '0';
    const std::string unsignedLink = link.substr(0, link.find("&t="));
    EXPECT_EQ(get(otherPad).code(), 404);
    EXPECT_EQ(get(otherSignature).code(), 404);
    EXPECT_EQ(get(unsignedLink).code(), 400);
    EXPECT_EQ(get("/apiv1/device/picture?pad=VM100001&v=-1&s=x&t=0").code(), 400);
    EXPECT_EQ(m_fleet->pictureSides().size(), 1u);
}

TEST_F(DeviceApiTest, pictureLinksChangeWithThePicture)
{
    const std::string before = pictureOf("100001");
    EXPECT_EQ(pictureOf("100001"), before);
    FakeFleet::FakeDevice device;
    device.screenVersion = 2;
    m_fleet->setDevice("VM100001", device);
    EXPECT_NE(pictureOf("100001"), before);
    EXPECT_EQ(get(before).status, 200); // a page may still be about to fetch it
}

TEST_F(DeviceApiTest, pictureLinksEndWithTheSignInAndTheDevicesTime)
{
    const std::string one = pictureOf("100001");
    const std::string two = pictureOf("100002");
    expire("VM100001");
    EXPECT_EQ(get(one).code(), 404);
    EXPECT_EQ(get(two).status, 200);
    post("/apiv1/user/logout", {}, m_demo);
    EXPECT_EQ(get(two).code(), 404);
}

TEST_F(DeviceApiTest, timeRunningOutEndsTheDevicesSessions)
{
    const std::string over = apply(m_demo, "100001");
    const std::string stays = apply(m_demo, "100002");
    m_data->devices.setExpiresAt("VM100001", m_data->clocks.wall() + std::chrono::hours(1));
    m_time.advance(std::chrono::hours(1) - std::chrono::milliseconds(1));
    m_api->expiryWatch().check();
    EXPECT_TRUE(m_fleet->endedSessions().empty());
    EXPECT_EQ(stateOf(over, "VM100001", m_demoId), SessionState::Valid);
    m_time.advance(std::chrono::milliseconds(1));
    m_api->expiryWatch().check();
    EXPECT_THAT(m_fleet->endedSessions(), testing::Contains(FakeFleet::EndedSession{over, true}));
    EXPECT_THAT(
        m_fleet->endedSessions(), testing::Not(testing::Contains(FakeFleet::EndedSession{stays, true})));
    EXPECT_EQ(stateOf(over, "VM100001", m_demoId), SessionState::Expired);
    EXPECT_EQ(act(m_demo, "100001", "device_apply").code(), 410);
}

} // namespace
