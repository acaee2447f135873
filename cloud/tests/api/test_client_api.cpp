// What the service tells a client about itself, and the release that tests let it offer.

#include "ApiFixture.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

class ClientApiTest : public ApiFixture
{
protected:
    void SetUp() override
    {
        ApiFixture::SetUp();
        m_headers = signedIn();
    }

    static QJsonObject release(const QString &version = "1.3.0", int versionCode = 1200)
    {
        return {{"version", version}, {"version_code", versionCode}, {"notes", "Faster.\n\n\tCalmer."},
            {"update_path", "http://127.0.0.1:8180/release"},
            {"files",
                QJsonArray{QJsonObject{{"file_name", "Orvane_Setup_1.3.0.exe"}, {"size", 123}},
                    QJsonObject{{"file_name", "data.bin"}, {"size", 5'000'000'000.0}}}}};
    }
    static QJsonObject with(QJsonObject object, const QString &member, const QJsonValue &value)
    {
        object.insert(member, value);
        return object;
    }
    static QJsonObject without(QJsonObject object, const QString &member)
    {
        object.remove(member);
        return object;
    }
    Reply offer(const QJsonObject &release) const { return post("/admin/release", release); }
    // Answer to a client of this version code.
    QJsonObject update(const std::string &versionCode) const
    {
        Headers headers = m_headers;
        headers["pc-version"] = versionCode;
        const Reply reply = get("/apiv1/client/update", headers);
        EXPECT_EQ(reply.code(), 200) << reply.body;
        EXPECT_TRUE(reply.data().value("has_update").isBool()) << reply.body;
        return reply.data();
    }
    bool hasUpdate(const std::string &versionCode) const
    {
        return update(versionCode).value("has_update").toBool();
    }

    Headers m_headers;
};

TEST_F(ClientApiTest, theConfigNamesTheThresholdsOfWarnings)
{
    const Reply reply = get("/apiv1/client/config", m_headers);
    EXPECT_EQ(reply.code(), 200);
    EXPECT_EQ(reply.data().value("expire_notice_minutes").toArray(), (QJsonArray{30, 10, 5}));
    EXPECT_EQ(get("/apiv1/client/config").code(), 401);
}

TEST_F(ClientApiTest, aNewServiceHasNoUpdate)
{
    EXPECT_EQ(update("0"), (QJsonObject{{"has_update", false}}));
    EXPECT_EQ(get("/apiv1/client/update").code(), 401);
}

TEST_F(ClientApiTest, anOlderClientIsOfferedTheRelease)
{
    EXPECT_EQ(offer(release()).code(), 200);
    const QJsonObject data = update("1130");
    EXPECT_EQ(data.value("has_update").toBool(), true);
    EXPECT_EQ(data.value("version").toString(), "1.3.0");
    EXPECT_EQ(data.value("version_code").toString(), "1200");
    EXPECT_EQ(data.value("notes").toString(), "Faster.\n\n\tCalmer.");
    const QJsonObject info = data.value("pc_update_info").toObject();
    EXPECT_EQ(info.value("update_path").toString(), "http://127.0.0.1:8180/release");
    EXPECT_EQ(info.value("file_info").toArray(), release().value("files").toArray());
    EXPECT_EQ(data.keys().size(), 5);
    EXPECT_EQ(info.keys().size(), 2);
}

TEST_F(ClientApiTest, versionsAreComparedByNumber)
{
    offer(release("1.3.0", 1200));
    EXPECT_TRUE(hasUpdate("1199"));
    EXPECT_TRUE(hasUpdate("999"));
    EXPECT_FALSE(hasUpdate("1200"));
    EXPECT_FALSE(hasUpdate("1201"));
    EXPECT_FALSE(hasUpdate("01200"));
    EXPECT_FALSE(hasUpdate("99999999999999999999999"));
    for (const char *none : {"", "x", "1.2.5", "1300x", "-1300", "+1300", "0x1300", "1e9"})
        EXPECT_TRUE(hasUpdate(none)) << none;
    EXPECT_EQ(get("/apiv1/client/update", m_headers).data().value("has_update").toBool(), true);
}

TEST_F(ClientApiTest, theReleaseOutlivesARestart)
{
    offer(release());
    const QJsonObject before = update("0");
    stopService();
    startService(m_time.clocks());
    EXPECT_EQ(update("0"), before);
    EXPECT_EQ(offer({{"version", ""}}).code(), 200);
    stopService();
    startService(m_time.clocks());
    EXPECT_EQ(update("0"), (QJsonObject{{"has_update", false}}));
}

TEST_F(ClientApiTest, aReleaseReplacesTheOneBefore)
{
    offer(release("1.3.0", 1200));
    offer(with(without(release("1.2.9", 1190), "notes"), "files",
        QJsonArray{QJsonObject{{"file_name", "one.exe"}, {"size", 0}}}));
    const QJsonObject data = update("0");
    EXPECT_EQ(data.value("version_code").toString(), "1190");
    EXPECT_EQ(data.value("notes").toString("missing"), "");
    EXPECT_EQ(data.value("pc_update_info").toObject().value("file_info").toArray().size(), 1);
    EXPECT_FALSE(hasUpdate("1190"));
    // Nothing to withdraw is no mistake.
    EXPECT_EQ(offer({{"version", ""}}).code(), 200);
    EXPECT_EQ(offer({{"version", ""}}).code(), 200);
    EXPECT_FALSE(hasUpdate("0"));
}

TEST_F(ClientApiTest, releasesAreChecked)
{
    offer(release());
    const QJsonObject file{{"file_name", "a.exe"}, {"size", 1}};
    const auto files = [](const QJsonValue &value) { return with(release(), "files", value); };
    const std::pair<QJsonObject, const char *> bodies[] = {
        {{}, "version"},
        {without(release(), "version"), "version"},
        {with(release(), "version", QJsonValue::Null), "version"},
        {with(release(), "version", 1.3), "version"},
        {with(release(), "version", QString(129, '1')), "version"},
        {without(release(), "version_code"), "version_code"},
        {with(release(), "version_code", "1200"), "version_code"},
        {with(release(), "version_code", 0), "version_code"},
        {with(release(), "version_code", -1), "version_code"},
        {with(release(), "version_code", 1.5), "version_code"},
        {with(release(), "version_code", 1e10), "version_code"},
        {with(release(), "notes", 7), "notes"},
        {with(release(), "notes", QJsonValue::Null), "notes"},
        {with(release(), "notes", "bell \a"), "notes"},
        {with(release(), "notes", QString(65537, 'x')), "notes"},
        {without(release(), "update_path"), "update_path"},
        {with(release(), "update_path", ""), "update_path"},
        {with(release(), "update_path", QJsonArray{}), "update_path"},
        {with(release(), "update_path", QString(2049, 'x')), "update_path"},
        {without(release(), "files"), "files"},
        {files("a.exe"), "files"},
        {files(QJsonArray{}), "files"},
        {files(QJsonArray{"a.exe"}), "files"},
        {files(QJsonArray{file, QJsonValue::Null}), "files"},
        {files(QJsonArray{without(file, "file_name")}), "file_name"},
        {files(QJsonArray{with(file, "file_name", "")}), "file_name"},
        {files(QJsonArray{with(file, "file_name", 7)}), "file_name"},
        {files(QJsonArray{with(file, "file_name", QString(256, 'x'))}), "file_name"},
        {files(QJsonArray{without(file, "size")}), "size"},
        {files(QJsonArray{with(file, "size", "1")}), "size"},
        {files(QJsonArray{with(file, "size", -1)}), "size"},
        {files(QJsonArray{with(file, "size", 0.5)}), "size"},
    };
    const QJsonObject before = update("0");
    for (const auto &[body, field] : bodies) {
        const std::string text = QJsonDocument(body).toJson(QJsonDocument::Compact).left(300).toStdString();
        const Reply reply = offer(body);
        EXPECT_EQ(reply.status, 200) << text;
        EXPECT_EQ(reply.code(), 400) << text;
        EXPECT_THAT(reply.message(), testing::HasSubstr(field)) << text;
    }
    QJsonArray many;
    for (int i = 0; i < 101; ++i)
        many.append(file);
    EXPECT_EQ(offer(files(many)).code(), 400);
    EXPECT_EQ(update("0"), before); // what is refused changes nothing
    many.removeFirst();
    EXPECT_EQ(offer(files(many)).code(), 200);
}

TEST_F(ClientApiTest, onlyTestsOnThisMachineMakeReleases)
{
    EXPECT_EQ(
        client().request("POST", "/admin/release", "{}", {{"Origin", "http://evil.example"}}).status, 404);
    EXPECT_EQ(get("/admin/release").status, 405);
}

} // namespace
