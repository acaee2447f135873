#include "ApiFixture.h"

#include "api/DemoData.h"

#include <QJsonArray>

#include <map>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

using Ids = std::vector<std::string>;

class DeviceGroupApiTest : public ApiFixture
{
protected:
    void SetUp() override
    {
        ApiFixture::SetUp();
        m_demo = signedIn();
        m_second = signedIn("second");
        m_demoId = m_data->users.find("demo")->id;
    }

    Reply actOnGroup(const QJsonObject &body) const { return actOnGroup(body, m_demo); }
    Reply actOnGroup(const QJsonObject &body, const Headers &headers) const
    {
        return post("/apiv1/device/actionCcGroup", body, headers);
    }
    static QJsonObject creation(const QString &name, const Ids &serviceIds)
    {
        QJsonArray ids;
        for (const std::string &serviceId : serviceIds)
            ids.append(QString::fromStdString(serviceId));
        return {{"action_type", "create"}, {"cc_group_name", name}, {"service_ids", ids}};
    }
    // Id of a group that must be created.
    QString create(const QString &name, const Ids &serviceIds) const
    {
        const Reply reply = actOnGroup(creation(name, serviceIds));
        EXPECT_EQ(reply.code(), 200) << reply.body;
        EXPECT_TRUE(reply.data().value("cc_group_id").isString());
        return reply.data().value("cc_group_id").toString();
    }
    QJsonArray list(const Headers &headers) const
    {
        const Reply reply = get("/apiv1/device/ccGroupList", headers);
        EXPECT_EQ(reply.code(), 200) << reply.body;
        EXPECT_TRUE(reply.data().value("groups").isArray());
        return reply.data().value("groups").toArray();
    }
    std::vector<std::string> names(const Headers &headers) const
    {
        std::vector<std::string> names;
        for (const QJsonValue group : list(headers))
            names.push_back(group.toObject().value("cc_group_name").toString().toStdString());
        return names;
    }
    QJsonObject group(const QString &id) const
    {
        for (const QJsonValue group : list(m_demo))
            if (group.toObject().value("cc_group_id").toString() == id)
                return group.toObject();
        return {};
    }
    static Ids members(const QJsonObject &group)
    {
        Ids ids;
        for (const QJsonValue id : group.value("service_ids").toArray())
            ids.push_back(id.toString().toStdString());
        return ids;
    }
    void restart()
    {
        stopService();
        startService(m_time.clocks());
    }

    Headers m_demo;
    Headers m_second;
    int m_demoId = -1;
};

TEST_F(DeviceGroupApiTest, aNewServiceHasTwoGroups)
{
    const QJsonArray groups = list(m_demo);
    ASSERT_EQ(groups.size(), 2);
    EXPECT_THAT(names(m_demo), testing::ElementsAre("Morning farm", "Guild raid"));
    EXPECT_THAT(
        members(groups.at(0).toObject()), testing::ElementsAre("100001", "100002", "100003", "100004"));
    EXPECT_THAT(
        members(groups.at(1).toObject()), testing::ElementsAre("100005", "100006", "100007", "100008"));
    EXPECT_TRUE(list(m_second).isEmpty());
}

TEST_F(DeviceGroupApiTest, whatIsCreatedIsListedLast)
{
    m_time.advance(std::chrono::hours(2));
    const QString id = create("Farm", {"100007", "100001"});
    const QJsonArray groups = list(m_demo);
    ASSERT_EQ(groups.size(), 3);
    const QJsonObject last = groups.at(2).toObject();
    EXPECT_EQ(last.value("cc_group_id").toString(), id);
    EXPECT_EQ(last.value("cc_group_name").toString(), "Farm");
    EXPECT_THAT(members(last), testing::ElementsAre("100007", "100001"));
    const QDateTime created
        = QDateTime::fromString(last.value("created_time").toString(), "yyyy-MM-dd hh:mm:ss");
    EXPECT_EQ(created.toSecsSinceEpoch(), 1795253400 + 7200);
}

TEST_F(DeviceGroupApiTest, groupsOutliveARestart)
{
    const QString kept = create("Kept", {"100003", "100002"});
    const QString renamed = create("Old", {"100001"});
    const QString removed = create("Removed", {"100001"});
    actOnGroup({{"action_type", "rename"}, {"cc_group_id", renamed}, {"cc_group_name", "New"}});
    actOnGroup({{"action_type", "delete"}, {"cc_group_id", removed}});
    const QJsonArray before = list(m_demo);
    m_time.advance(std::chrono::hours(1));
    restart();
    EXPECT_EQ(list(m_demo), before);
    EXPECT_THAT(names(m_demo), testing::ElementsAre("Morning farm", "Guild raid", "Kept", "New"));
    EXPECT_THAT(members(group(kept)), testing::ElementsAre("100003", "100002"));
    // An id is never given twice, so that an old page does not act on a new group.
    EXPECT_NE(create("Next", {"100001"}), removed);
}

TEST_F(DeviceGroupApiTest, deletedSeedGroupsStayDeleted)
{
    for (const QJsonValue group : list(m_demo))
        EXPECT_EQ(actOnGroup({{"action_type", "delete"},
                                 {"cc_group_id", group.toObject().value("cc_group_id").toString()}})
                      .code(),
            200);
    EXPECT_TRUE(list(m_demo).isEmpty());
    restart();
    EXPECT_TRUE(list(m_demo).isEmpty());
}

TEST_F(DeviceGroupApiTest, renamingKeepsPlaceAndDevices)
{
    const QJsonObject first = list(m_demo).at(0).toObject();
    const QString id = first.value("cc_group_id").toString();
    const Reply reply
        = actOnGroup({{"action_type", "rename"}, {"cc_group_id", id}, {"cc_group_name", "  Evening  "}});
    EXPECT_EQ(reply.code(), 200);
    EXPECT_TRUE(reply.data().isEmpty());
    QJsonObject expected = first;
    expected.insert("cc_group_name", "Evening");
    EXPECT_EQ(list(m_demo).at(0).toObject(), expected);
}

TEST_F(DeviceGroupApiTest, twoGroupsMayHaveTheSameName)
{
    EXPECT_NE(create("Farm", {"100001"}), create("Farm", {"100001"}));
    EXPECT_THAT(names(m_demo), testing::ElementsAre("Morning farm", "Guild raid", "Farm", "Farm"));
}

TEST_F(DeviceGroupApiTest, otherUsersGroupsDoNotExist)
{
    const QString id = create("Mine", {"100001"});
    EXPECT_TRUE(list(m_second).isEmpty());
    EXPECT_EQ(actOnGroup({{"action_type", "delete"}, {"cc_group_id", id}}, m_second).code(), 404);
    EXPECT_EQ(
        actOnGroup({{"action_type", "rename"}, {"cc_group_id", id}, {"cc_group_name", "Yours"}}, m_second)
            .code(),
        404);
    EXPECT_EQ(group(id).value("cc_group_name").toString(), "Mine");
    EXPECT_EQ(actOnGroup(creation("Theirs", {"100001"}), m_second).code(), 404);
    EXPECT_EQ(actOnGroup(creation("Theirs", {"900001"}), m_second).code(), 200);
    EXPECT_THAT(names(m_second), testing::ElementsAre("Theirs"));
    EXPECT_EQ(list(m_demo).size(), 3);
}

TEST_F(DeviceGroupApiTest, unknownAndRepeatedDevicesAreLeftOut)
{
    const QString id = create("Farm", {"100005", "777", "900001", "100002", "100005", "100002", "100001"});
    EXPECT_THAT(members(group(id)), testing::ElementsAre("100005", "100002", "100001"));
    EXPECT_EQ(actOnGroup(creation("None", {"777", "900001"})).code(), 404);
    EXPECT_EQ(list(m_demo).size(), 3);
}

TEST_F(DeviceGroupApiTest, removedDevicesLeaveTheirGroups)
{
    const QString id = create("Last", {"100012"});
    const QString mixed = create("Mixed", {"100012", "100001", "100011"});
    prepareDemoData(*m_data, 10);
    EXPECT_TRUE(members(group(id)).empty());
    EXPECT_EQ(group(id).value("cc_group_name").toString(), "Last");
    EXPECT_THAT(members(group(mixed)), testing::ElementsAre("100001"));
    EXPECT_EQ(list(m_demo).size(), 4);
}

TEST_F(DeviceGroupApiTest, expiredDevicesStayInTheirGroups)
{
    const QString id = create("Farm", {"100001"});
    postText("/admin/devices/VM100001/expire", "{}");
    EXPECT_THAT(members(group(id)), testing::ElementsAre("100001"));
    EXPECT_EQ(actOnGroup(creation("Expired", {"100001"})).code(), 200);
}

TEST_F(DeviceGroupApiTest, namesHaveUpToFiftyCharacters)
{
    const QString astral = QString::fromUtf8("\xF0\x9F\x98\x80"); // two UTF-16 units, four bytes
    const QString fifty = astral.repeated(50);
    const QString id = create(fifty, {"100001"});
    EXPECT_EQ(group(id).value("cc_group_name").toString(), fifty);
    const QString padded = create(" \t" + QString(50, 'x') + "\n ", {"100001"});
    EXPECT_EQ(group(padded).value("cc_group_name").toString(), QString(50, 'x'));
    const QString quoted = create("Robert'); DROP TABLE users;--\"\\", {"100001"});
    EXPECT_EQ(group(quoted).value("cc_group_name").toString(), "Robert'); DROP TABLE users;--\"\\");

    for (const QString &name : {QString(), QString("   "), QString(" \n\t"), QString(51, 'x'),
             astral.repeated(51), QString("a\nb"), QString("a\tb"), QString("a") + QChar(0) + "b"}) {
        for (const QJsonObject &body : {creation(name, {"100001"}),
                 QJsonObject{{"action_type", "rename"}, {"cc_group_id", id}, {"cc_group_name", name}}}) {
            const Reply reply = actOnGroup(body);
            EXPECT_EQ(reply.code(), 400) << name.toStdString();
            EXPECT_THAT(reply.message(), testing::HasSubstr("cc_group_name"));
        }
    }
    EXPECT_EQ(list(m_demo).size(), 5);
}

TEST_F(DeviceGroupApiTest, badFieldsAreNamed)
{
    const std::pair<const char *, const char *> bodies[] = {
        {"", "action_type"},
        {"{}", "action_type"},
        {R"({"action_type":"explode"})", "action_type"},
        {R"({"action_type":7})", "action_type"},
        {R"({"action_type":"create","service_ids":["100001"]})", "cc_group_name"},
        {R"({"action_type":"create","cc_group_name":null,"service_ids":["100001"]})", "cc_group_name"},
        {R"({"action_type":"create","cc_group_name":7,"service_ids":["100001"]})", "cc_group_name"},
        {R"({"action_type":"create","cc_group_name":["x"],"service_ids":["100001"]})", "cc_group_name"},
        {R"({"action_type":"create","cc_group_name":"x"})", "service_ids"},
        {R"({"action_type":"create","cc_group_name":"x","service_ids":[]})", "service_ids"},
        {R"({"action_type":"create","cc_group_name":"x","service_ids":"100001"})", "service_ids"},
        {R"({"action_type":"create","cc_group_name":"x","service_ids":{"0":"100001"}})", "service_ids"},
        {R"({"action_type":"create","cc_group_name":"x","service_ids":[100001]})", "service_ids"},
        {R"({"action_type":"create","cc_group_name":"x","service_ids":["100001",null]})", "service_ids"},
        {R"({"action_type":"create","cc_group_name":"x","service_ids":["100001",""]})", "service_ids"},
        {R"({"action_type":"rename","cc_group_name":"x"})", "cc_group_id"},
        {R"({"action_type":"rename","cc_group_id":1,"cc_group_name":"x"})", "cc_group_id"},
        {R"({"action_type":"rename","cc_group_id":"1"})", "cc_group_name"},
        {R"({"action_type":"delete"})", "cc_group_id"},
        {R"({"action_type":"delete","cc_group_id":1})", "cc_group_id"},
        {R"({"action_type":"delete","cc_group_id":""})", "cc_group_id"},
        {R"({"action_type":"delete","cc_group_id":["1"]})", "cc_group_id"},
    };
    const QJsonArray before = list(m_demo);
    for (const auto &[body, field] : bodies) {
        const Reply reply = postText("/apiv1/device/actionCcGroup", body, m_demo);
        EXPECT_EQ(reply.status, 200) << body;
        EXPECT_EQ(reply.code(), 400) << body;
        EXPECT_THAT(reply.message(), testing::HasSubstr(field)) << body;
    }
    EXPECT_EQ(list(m_demo), before);
}

TEST_F(DeviceGroupApiTest, unknownGroupsAreNotFound)
{
    for (const char *id : {"999", "0", "-1", "x", "1.0", "01", " 1", "99999999999999999999"}) {
        EXPECT_EQ(actOnGroup({{"action_type", "delete"}, {"cc_group_id", id}}).code(), 404) << id;
        EXPECT_EQ(
            actOnGroup({{"action_type", "rename"}, {"cc_group_id", id}, {"cc_group_name", "x"}}).code(), 404)
            << id;
    }
    const QString id = create("Gone", {"100001"});
    EXPECT_EQ(actOnGroup({{"action_type", "delete"}, {"cc_group_id", id}}).code(), 200);
    EXPECT_EQ(actOnGroup({{"action_type", "delete"}, {"cc_group_id", id}}).code(), 404);
    EXPECT_THAT(names(m_demo), testing::ElementsAre("Morning farm", "Guild raid"));
}

TEST_F(DeviceGroupApiTest, atMostFiveHundredIds)
{
    Ids ids(500, "777");
    ids.back() = "100001";
    EXPECT_EQ(actOnGroup(creation("Many", ids)).code(), 200);
    ids.push_back("100002");
    EXPECT_EQ(actOnGroup(creation("Too many", ids)).code(), 400);
}

TEST_F(DeviceGroupApiTest, atMostTwoHundredGroupsPerUser)
{
    for (int i = list(m_demo).size(); i < DeviceGroupStore::maxGroupsPerUser - 1; ++i)
        m_data->groups.create(m_demoId, "Group", {"100001"});
    const QString last = create("Last", {"100001"});
    EXPECT_EQ(list(m_demo).size(), 200);
    EXPECT_EQ(actOnGroup(creation("One more", {"100001"})).code(), 409);
    EXPECT_EQ(list(m_demo).size(), 200);
    EXPECT_EQ(actOnGroup(creation("Theirs", {"900001"}), m_second).code(), 200);
    actOnGroup({{"action_type", "delete"}, {"cc_group_id", last}});
    create("Instead", {"100001"});
}

TEST_F(DeviceGroupApiTest, groupsNeedASignIn)
{
    EXPECT_EQ(get("/apiv1/device/ccGroupList").code(), 401);
    EXPECT_EQ(actOnGroup(creation("Farm", {"100001"}), {}).code(), 401);
    EXPECT_EQ(list(m_demo).size(), 2);
}

} // namespace
