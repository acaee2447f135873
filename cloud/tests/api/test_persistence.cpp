#include "ApiFixture.h"

#include "api/DatabaseError.h"
#include "api/DemoData.h"
#include "api/Statement.h"
#include "api/Transaction.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

class PersistenceTest : public ApiFixture
{
protected:
    void restart()
    {
        stopService();
        startService(m_time.clocks());
    }
    QByteArray fileContents() const
    {
        QByteArray contents;
        for (const QFileInfo &info : QDir(m_folder.path()).entryInfoList(QDir::Files)) {
            QFile file(info.filePath());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            contents += file.readAll();
        }
        return contents;
    }
    std::string databasePath() const
    {
        return m_folder.filePath(QStringLiteral("orvane-cloud.sqlite")).toStdString();
    }
};

TEST_F(PersistenceTest, signInsAndSessionsOutliveARestart)
{
    const Headers headers = signedIn();
    const std::string session = apply(headers, "100001");
    const std::string givenBack = apply(headers, "100002");
    act(headers, "100002", "device_unbind");
    const int userId = m_data->users.find("demo")->id;
    restart();
    EXPECT_EQ(get("/apiv1/device/list", headers).code(), 200);
    EXPECT_EQ(stateOf(session, "VM100001", userId), SessionState::Valid);
    EXPECT_EQ(stateOf(givenBack, "VM100002", userId), SessionState::Unknown);
    act(headers, "100001", "device_unbind");
    EXPECT_THAT(m_fleet->endedSessions(), testing::ElementsAre(FakeFleet::EndedSession{session, false}));
}

TEST_F(PersistenceTest, aSignOutOutlivesARestart)
{
    const Headers headers = signedIn();
    post("/apiv1/user/logout", {}, headers);
    restart();
    EXPECT_EQ(get("/apiv1/device/list", headers).code(), 401);
}

TEST_F(PersistenceTest, aDeviceThatIsOverStaysOver)
{
    const Headers headers = signedIn();
    const std::string session = apply(headers, "100001");
    const int userId = m_data->users.find("demo")->id;
    postText("/admin/devices/VM100001/expire", "{}");
    restart();
    EXPECT_EQ(act(headers, "100001", "device_apply").code(), 410);
    EXPECT_EQ(stateOf(session, "VM100001", userId), SessionState::Expired);
}

TEST_F(PersistenceTest, secretsAreNotStoredPlainly)
{
    const Headers headers = signedIn();
    const QByteArray contents = fileContents();
    EXPECT_TRUE(contents.contains("pbkdf2-sha256$"));
    EXPECT_FALSE(contents.contains("orvane-demo"));
    EXPECT_FALSE(contents.contains("orvane-second"));
    EXPECT_FALSE(contents.contains(headers.at("access-token").c_str()));
}

TEST_F(PersistenceTest, theDatabaseIsPrivate)
{
    const QFile::Permissions others
        = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(QFile::permissions(QString::fromStdString(databasePath())) & others);
}

TEST_F(PersistenceTest, twoServicesDoNotShareADatabase)
{
    try {
        const ServiceData other(m_folder.path().toStdString());
        FAIL() << "opened twice";
    } catch (const DatabaseError &error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("in use"));
        EXPECT_THAT(error.what(), testing::HasSubstr(databasePath()));
    }
    EXPECT_EQ(get("/apiv1/device/list", signedIn()).code(), 200);
}

TEST_F(PersistenceTest, whatIsNoDatabaseIsLeftAlone)
{
    stopService();
    const QString path = QString::fromStdString(databasePath());
    const QByteArray foreign = QByteArray("this is somebody's diary\n").repeated(1000);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(foreign);
    file.close();
    EXPECT_THROW(Database{databasePath()}, DatabaseError);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), foreign);
}

TEST_F(PersistenceTest, aNewerDatabaseIsLeftAlone)
{
    stopService();
    {
        Database database(databasePath());
        const Database::Lock lock = database.lock();
        database.execute("PRAGMA user_version = 999");
    }
    try {
        const Database database(databasePath());
        FAIL() << "opened a newer database";
    } catch (const DatabaseError &error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("newer version"));
    }
}

TEST_F(PersistenceTest, aDatabaseOfTheFirstVersionIsBroughtUpToDate)
{
    const Headers headers = signedIn();
    const std::string session = apply(headers, "100001");
    const int userId = m_data->users.find("demo")->id;
    const std::vector<Device> devices = m_data->devices.all();
    {
        const Database::Lock lock = m_data->database.lock();
        for (const char *table : {"device_group_members", "device_groups", "seeded_groups", "release",
                 "release_files", "key_map_schemes", "seeded_key_map_schemes"})
            m_data->database.execute((std::string("DROP TABLE ") + table).c_str());
        m_data->database.execute("PRAGMA user_version = 1");
    }
    restart();
    EXPECT_EQ(stateOf(session, "VM100001", userId), SessionState::Valid);
    ASSERT_EQ(m_data->devices.all().size(), devices.size());
    EXPECT_EQ(m_data->devices.all().front().expiresAt, devices.front().expiresAt);
    const Reply groups = get("/apiv1/device/ccGroupList", headers);
    EXPECT_EQ(groups.data().value("groups").toArray().size(), 2);
    EXPECT_EQ(m_data->keyMaps.ofUser(userId).size(), 2u);
}

TEST_F(PersistenceTest, aDatabaseWithoutKeyMapsGetsThem)
{
    const Headers headers = signedIn();
    const int userId = m_data->users.find("demo")->id;
    const std::vector<DeviceGroup> groups = m_data->groups.ofUser(userId);
    m_data->groups.rename(userId, groups.front().id, "Renamed");
    {
        const Database::Lock lock = m_data->database.lock();
        m_data->database.execute("DROP TABLE key_map_schemes");
        m_data->database.execute("DROP TABLE seeded_key_map_schemes");
        m_data->database.execute("PRAGMA user_version = 3");
    }
    restart();
    const std::vector<KeyMapScheme> schemes = m_data->keyMaps.ofUser(userId);
    ASSERT_EQ(schemes.size(), 2u);
    EXPECT_EQ(schemes.front().name, "Arena");
    EXPECT_EQ(m_data->groups.ofUser(userId).front().name, "Renamed");
    EXPECT_EQ(get("/apiv1/device/list", headers).code(), 200);
}

TEST_F(PersistenceTest, groupsAreSeededOfTheDevicesThatThereAre)
{
    const QTemporaryDir folder;
    ServiceData data(folder.path().toStdString(), m_time.clocks());
    prepareDemoData(data, 3);
    const std::vector<DeviceGroup> groups = data.groups.ofUser(data.users.find("demo")->id);
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_THAT(groups.front().serviceIds, testing::ElementsAre("100001", "100002", "100003"));
}

TEST_F(PersistenceTest, anUnusableFolderIsReported)
{
    EXPECT_THROW(ServiceData{"/proc/nowhere"}, DatabaseError);
    EXPECT_THROW(ServiceData{databasePath()}, DatabaseError); // a file
}

TEST_F(PersistenceTest, whatIsNotCommittedIsRolledBack)
{
    stopService();
    Database database(databasePath());
    DeviceStore devices(database);
    const std::vector<Device> before = devices.all();
    Device device = before.front();
    device.serviceId = "500000";
    // The second one exists already.
    EXPECT_THROW(devices.add({device, before.front()}), DatabaseError);
    EXPECT_EQ(devices.all().size(), before.size());
    {
        Transaction transaction(database);
        database.execute("DELETE FROM devices");
    }
    EXPECT_EQ(devices.all().size(), before.size());
}

TEST_F(PersistenceTest, aSecondStartChangesNothing)
{
    const std::vector<Device> before = m_data->devices.all();
    m_time.advance(std::chrono::hours(1000));
    restart();
    const std::vector<Device> after = m_data->devices.all();
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        EXPECT_EQ(after[i].serviceId, before[i].serviceId);
        EXPECT_EQ(after[i].expiresAt, before[i].expiresAt);
    }
}

TEST_F(PersistenceTest, theNumberOfDevicesCanBeChosen)
{
    const int userId = m_data->users.find("demo")->id;
    const Headers headers = signedIn();
    const std::string kept = apply(headers, "100001");
    const std::string lost = apply(headers, "100012");
    prepareDemoData(*m_data, 300);
    std::vector<Device> devices = m_data->devices.ofUser(userId);
    ASSERT_EQ(devices.size(), 300u);
    EXPECT_EQ(devices.front().aliasName, "Aurora");
    EXPECT_EQ(devices.back().serviceId, "100300");
    EXPECT_EQ(devices.back().padCode, "VM100300");
    EXPECT_EQ(devices.back().aliasName, "Phone 300");
    prepareDemoData(*m_data, 3);
    devices = m_data->devices.ofUser(userId);
    ASSERT_EQ(devices.size(), 3u);
    EXPECT_EQ(devices.back().serviceId, "100003");
    EXPECT_EQ(stateOf(kept, "VM100001", userId), SessionState::Valid);
    EXPECT_EQ(stateOf(lost, "VM100012", userId), SessionState::Unknown);
    prepareDemoData(*m_data, std::nullopt);
    EXPECT_EQ(m_data->devices.ofUser(userId).size(), 3u);
    EXPECT_EQ(m_data->devices.all().size(), 5u);
}

TEST_F(PersistenceTest, ABrokenTableIsAServiceFaultNotACrash)
{
    const Headers headers = signedIn();
    {
        const Database::Lock lock = m_data->database.lock();
        m_data->database.execute("ALTER TABLE devices RENAME TO elsewhere");
    }
    const Reply reply = get("/apiv1/device/list", headers);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.code(), 500);
    EXPECT_EQ(stateOf("x", "VM100001", 1), SessionState::Unknown);
    {
        const Database::Lock lock = m_data->database.lock();
        m_data->database.execute("ALTER TABLE elsewhere RENAME TO devices");
    }
    EXPECT_EQ(get("/apiv1/device/list", headers).code(), 200);
}

} // namespace
