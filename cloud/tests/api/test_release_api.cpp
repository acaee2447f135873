// The release whose files the service has itself: publishing, describing, delivering, and the disturbances
// that tests ask for.

#include "ApiFixture.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>

#include <chrono>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

const QString installer = QStringLiteral("Orvane_Setup_1.3.0.exe");
constexpr const char *installerPath = "/release/Orvane_Setup_1.3.0.exe";

class ReleaseApiTest : public ApiFixture
{
protected:
    void SetUp() override
    {
        ApiFixture::SetUp();
        for (int i = 0; i < 200'000; ++i)
            m_bytes += static_cast<char>(i * 7 + i / 256);
    }
    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_source.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    Reply publish() const
    {
        return post("/admin/release",
            {{"version", "1.3.0"}, {"version_code", 1200}, {"notes", ""}, {"folder", m_source.path()}});
    }
    void publishInstaller() const
    {
        put(installer, m_bytes);
        const Reply reply = publish();
        ASSERT_EQ(reply.code(), 200) << reply.body;
    }
    void setFaults(const QJsonObject &faults) const
    {
        EXPECT_EQ(post("/admin/release/faults", faults).code(), 200);
    }
    QJsonObject requests() const
    {
        return get("/admin/release/requests").data().value("requests").toObject();
    }
    QJsonObject updateInfo() const
    {
        return get("/apiv1/client/update", signedIn()).data().value("pc_update_info").toObject();
    }

    QTemporaryDir m_source;
    QByteArray m_bytes;
};

TEST_F(ReleaseApiTest, anInstallerIsDescribedOfferedAndDelivered)
{
    publishInstaller();
    const std::string digest
        = QCryptographicHash::hash(m_bytes, QCryptographicHash::Sha512).toBase64().toStdString();
    EXPECT_EQ(get("/release/latest.yml").body,
        "version: \"1.3.0\"\n"
        "files:\n"
        "  - url: \"Orvane_Setup_1.3.0.exe\"\n"
        "    sha512: \""
            + digest
            + "\"\n"
              "    size: 200000\n"
              "path: \"Orvane_Setup_1.3.0.exe\"\n"
              "sha512: \""
            + digest
            + "\"\n"
              "releaseDate: \"2026-11-21T09:30:00.000Z\"\n");
    const Reply file = get(installerPath);
    EXPECT_EQ(file.status, 200);
    EXPECT_EQ(file.body, m_bytes.toStdString());
    EXPECT_EQ(file.field("Content-Length"), "200000");

    const QJsonObject info = updateInfo();
    EXPECT_EQ(info.value("file_info").toArray(),
        (QJsonArray{QJsonObject{{"file_name", installer}, {"size", 200000}}}));
    // The service as the client calls it.
    EXPECT_EQ(info.value("update_path").toString().toStdString(), "http://127.0.0.1/release");
}

TEST_F(ReleaseApiTest, anEmptyFileIsDeliveredAndTheConnectionGoesOn)
{
    put("empty.txt", {});
    publishInstaller();
    TestClient client = this->client();
    const Reply empty = client.get("/release/empty.txt");
    EXPECT_EQ(empty.status, 200);
    EXPECT_EQ(empty.field("Content-Length"), "0");
    EXPECT_EQ(client.get(installerPath).body, m_bytes.toStdString());
    EXPECT_EQ(client.get("/release/none").status, 404);
    EXPECT_EQ(client.get("/admin/release/requests").code(), 200);
}

TEST_F(ReleaseApiTest, aDescriptionThatIsThereStaysAsItIs)
{
    put("latest.yml", "::: [");
    publishInstaller();
    EXPECT_EQ(get("/release/latest.yml").body, "::: [");
}

TEST_F(ReleaseApiTest, requestsAreCountedByFile)
{
    publishInstaller();
    get(installerPath);
    get(installerPath);
    get("/release/other.exe");
    EXPECT_EQ(requests(), (QJsonObject{{installer, 2}, {"latest.yml", 0}}));
    publishInstaller();
    EXPECT_EQ(requests(), (QJsonObject{{installer, 0}, {"latest.yml", 0}}));
}

TEST_F(ReleaseApiTest, onlyFilesOfTheReleaseAreServed)
{
    publishInstaller();
    for (const char *path : {"/release/", "/release", "/release/..", "/release/%2E%2E%2Forvane-cloud.sqlite",
             "/release/../orvane-cloud.sqlite", "/release/other", "/release/%00"}) {
        EXPECT_EQ(get(path).status, 404) << path;
    }
}

TEST_F(ReleaseApiTest, foldersThatCannotBePublishedChangeNothing)
{
    EXPECT_EQ(publish().code(), 400); // empty
    put("readme.txt", "no installer");
    EXPECT_EQ(publish().code(), 400);
    publishInstaller();
    EXPECT_EQ(
        post("/admin/release", {{"version", "2"}, {"version_code", 2}, {"folder", "/does/not/exist"}}).code(),
        400);
    EXPECT_EQ(get(installerPath).status, 200);
    EXPECT_EQ(updateInfo().value("file_info").toArray().size(), 2);
}

TEST_F(ReleaseApiTest, theFilesOutliveARestartAndGoWithTheRelease)
{
    publishInstaller();
    stopService();
    startService(m_time.clocks());
    EXPECT_EQ(get(installerPath).body, m_bytes.toStdString());
    EXPECT_EQ(post("/admin/release", {{"version", ""}}).code(), 200);
    EXPECT_EQ(get(installerPath).status, 404);
}

TEST_F(ReleaseApiTest, theFormerReleaseIsBackWhenTheServiceEndedBetweenTwo)
{
    publishInstaller();
    stopService();
    ASSERT_TRUE(QDir(m_folder.path()).rename("release", "release.old"));
    startService(m_time.clocks());
    EXPECT_EQ(get(installerPath).body, m_bytes.toStdString());
}

TEST_F(ReleaseApiTest, nothingStaysOfTheReleaseBefore)
{
    publishInstaller();
    QFile::remove(m_source.filePath(installer));
    put("Orvane_Setup_1.4.0.exe", "another");
    EXPECT_EQ(publish().code(), 200);
    EXPECT_EQ(get(installerPath).status, 404);
    EXPECT_EQ(get("/release/Orvane_Setup_1.4.0.exe").body, "another");
    EXPECT_EQ(QDir(m_folder.path()).entryList({"release*"}, QDir::Dirs), QStringList("release"));
}

TEST_F(ReleaseApiTest, breaksOff)
{
    publishInstaller();
    setFaults({{"file", installer}, {"break_off_after", 70'001}});
    TestClient client = this->client();
    client.send(std::string("GET ") + installerPath + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
    const std::string received = client.readToEnd();
    const std::size_t body = received.find("\r\n\r\n") + 4;
    EXPECT_EQ(received.substr(body), m_bytes.left(70'001).toStdString());
    EXPECT_NE(received.find("Content-Length: 200000"), std::string::npos);
    EXPECT_FALSE(get("/release/latest.yml").body.empty()); // another file
    setFaults({});
    EXPECT_EQ(get(installerPath).body.size(), 200'000U);
}

TEST_F(ReleaseApiTest, corruptsOneByte)
{
    publishInstaller();
    setFaults({{"corrupt", true}});
    const std::string body = get(installerPath).body;
    ASSERT_EQ(body.size(), 200'000U);
    int different = 0;
    for (int i = 0; i < m_bytes.size(); ++i)
        different += body[static_cast<std::size_t>(i)] != m_bytes[i];
    EXPECT_EQ(different, 1);
    EXPECT_NE(body[100'000], m_bytes[100'000]);
}

TEST_F(ReleaseApiTest, throttlesAndStalls)
{
    publishInstaller();
    const auto secondsFor = [this](const QJsonObject &faults) {
        setFaults(faults);
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(get(installerPath).body, m_bytes.toStdString());
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    };
    EXPECT_GE(secondsFor({{"kbit_per_s", 4000}}), 0.35); // 0.4 s for all but the first and last piece
    EXPECT_GE(secondsFor({{"stall_after", 1000}, {"stall_ms", 300}}), 0.3);
    EXPECT_LT(secondsFor({{"file", "another"}, {"stall_after", 0}, {"stall_ms", 600'000}}), 60);
}

TEST_F(ReleaseApiTest, stoppingDoesNotWaitForAStalledDelivery)
{
    publishInstaller();
    setFaults({{"stall_after", 0}, {"stall_ms", 600'000}});
    TestClient client = this->client();
    client.send(std::string("GET ") + installerPath + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
    while (requests().value(installer).toInt() == 0) { }
    stopService();
    client.readToEnd();
}

TEST_F(ReleaseApiTest, faultsAreChecked)
{
    for (const QJsonObject &body : {QJsonObject{{"kbit_per_s", -1}}, QJsonObject{{"break_off_after", "x"}},
             QJsonObject{{"stall_after", 1}}, QJsonObject{{"corrupt", 1}}, QJsonObject{{"file", 1}}}) {
        EXPECT_EQ(post("/admin/release/faults", body).code(), 400);
    }
    EXPECT_EQ(
        client().request("POST", "/admin/release/faults", "{}", {{"Origin", "http://evil.example"}}).status,
        404);
}

} // namespace
