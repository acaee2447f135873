#include "ApiFixture.h"

#include "api/KeyMapGuide.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <set>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

// A layout as the client writes it: a click key with a note in another script, walking, crosshair.
const QString layoutText = QString::fromUtf8(R"([
    {
        "edit": true,
        "editShow": "",
        "key": "Q",
        "remark": "Büchse, \"Feuer\" 火",
        "x": 12,
        "y": 345
    },
    {
        "edit": false,
        "editShow": "",
        "key": true,
        "remark": "",
        "x": 40,
        "y": 400
    },
    {
        "edit": true,
        "editShow": "",
        "isLockKey": true,
        "key": "Tab",
        "mouseDpi": 2.5,
        "remark": "",
        "x": 150,
        "y": 150
    }
]
)");

class KeyMapApiTest : public ApiFixture
{
protected:
    void SetUp() override
    {
        ApiFixture::SetUp();
        m_demo = signedIn();
        m_second = signedIn("second");
    }

    Reply actOn(const QString &mapId, const QString &action, QJsonObject more = {}) const
    {
        return actAs(m_demo, mapId, action, std::move(more));
    }
    Reply actAs(
        const Headers &headers, const QString &mapId, const QString &action, QJsonObject more = {}) const
    {
        more.insert("map_id", mapId);
        more.insert("action_type", action);
        return post("/apiv1/keyboard_map/actionMapConfig", more, headers);
    }
    Reply share(const Headers &headers, const QString &code) const
    {
        return post("/apiv1/keyboard_map/shareMapConfig", {{"map_id", code}}, headers);
    }
    // Id of a scheme that must be created.
    QString create(const Headers &headers, const QJsonObject &body = {}) const
    {
        return idOf(post("/apiv1/keyboard_map/createMapConfig", body, headers));
    }
    static QString idOf(const Reply &reply)
    {
        EXPECT_EQ(reply.code(), 200) << reply.body;
        EXPECT_TRUE(reply.data().value("map_id").isString());
        return reply.data().value("map_id").toString();
    }
    QJsonArray list(const Headers &headers) const
    {
        const Reply reply = get("/apiv1/keyboard_map/mapConfigList", headers);
        EXPECT_EQ(reply.code(), 200) << reply.body;
        EXPECT_TRUE(reply.envelope().value("data").isArray());
        return reply.envelope().value("data").toArray();
    }
    QJsonObject scheme(const Headers &headers, const QString &mapId) const
    {
        for (const QJsonValue scheme : list(headers))
            if (scheme.toObject().value("map_id").toString() == mapId)
                return scheme.toObject();
        return {};
    }
    std::vector<std::string> names(const Headers &headers) const
    {
        std::vector<std::string> names;
        for (const QJsonValue scheme : list(headers))
            names.push_back(scheme.toObject().value("map_name").toString().toStdString());
        return names;
    }
    static QString decoded(const QJsonObject &scheme)
    {
        return QString::fromUtf8(QByteArray::fromBase64(scheme.value("config").toString().toLatin1()));
    }
    // What the client's Save sends.
    static QJsonObject saving(const QString &config, bool landscape = true)
    {
        return {{"config", config}, {"key_transparency", 55}, {"key_size", 33}, {"show_key", true},
            {"show_key_desc", false}, {"screen_orientation", landscape}};
    }
    // A refused change leaves the scheme as it was.
    void expectRefused(const QString &mapId, const QJsonObject &change, const std::string &hint)
    {
        const QJsonObject before = scheme(m_demo, mapId);
        const Reply reply = actOn(mapId, "update", change);
        EXPECT_EQ(reply.code(), 400) << reply.body;
        EXPECT_THAT(reply.message(), testing::HasSubstr(hint));
        EXPECT_EQ(scheme(m_demo, mapId), before);
    }
    void restart()
    {
        stopService();
        startService(m_time.clocks());
    }

    Headers m_demo;
    Headers m_second;
};

TEST_F(KeyMapApiTest, theDemoAccountHasTwoSchemesForTheGame)
{
    const QJsonArray schemes = list(m_demo);
    EXPECT_THAT(names(m_demo), testing::ElementsAre("Arena", "Arena, landscape"));
    EXPECT_TRUE(list(m_second).isEmpty());
    for (int i = 0; i < schemes.size(); ++i) {
        const QJsonObject scheme = schemes.at(i).toObject();
        EXPECT_EQ(scheme.value("screen_orientation"), QJsonValue(i == 0 ? 2 : 1));
        EXPECT_EQ(scheme.value("show_key"), QJsonValue(1));
        EXPECT_EQ(scheme.value("show_key_desc"), QJsonValue(1));
        EXPECT_EQ(scheme.value("key_transparency"), QJsonValue(80));
        EXPECT_EQ(scheme.value("key_size"), QJsonValue(30));
        const QJsonArray keys = QJsonDocument::fromJson(decoded(scheme).toUtf8()).array();
        ASSERT_EQ(keys.size(), 5);
        EXPECT_EQ(keys.at(3).toObject().value("key"), QJsonValue(true));
        EXPECT_EQ(keys.at(3).toObject().value("edit"), QJsonValue(false));
        EXPECT_EQ(keys.at(4).toObject().value("isLockKey"), QJsonValue(true));
        EXPECT_EQ(keys.at(4).toObject().value("mouseDpi"), QJsonValue(1.9));
    }
}

TEST_F(KeyMapApiTest, aNewSchemeIsEmptyAndListedLast)
{
    const QString id = create(m_demo);
    const QJsonObject created = list(m_demo).last().toObject();
    EXPECT_EQ(created.value("map_id").toString(), id);
    EXPECT_EQ(created.value("map_name").toString(), "Scheme 1");
    EXPECT_EQ(decoded(created), "[]");
    EXPECT_EQ(created.value("screen_orientation"), QJsonValue(2));
    EXPECT_GT(created.value("key_transparency").toInt(), 0) << "its keys would not be seen";
    create(m_demo);
    actOn(id, "delete");
    create(m_demo);
    EXPECT_THAT(names(m_demo), testing::ElementsAre("Arena", "Arena, landscape", "Scheme 2", "Scheme 1"));
}

TEST_F(KeyMapApiTest, aSchemeMayBeCreatedWithItsContent)
{
    QJsonObject body = saving(layoutText);
    body.insert("map_name", "  Ranked  ");
    const QJsonObject created = scheme(m_demo, create(m_demo, body));
    EXPECT_EQ(created.value("map_name").toString(), "Ranked");
    EXPECT_EQ(decoded(created), layoutText);
    EXPECT_EQ(created.value("key_size"), QJsonValue(33));
}

TEST_F(KeyMapApiTest, whatIsSavedComesBackByteForByte)
{
    const QString id = create(m_demo);
    ASSERT_EQ(actOn(id, "update", saving(layoutText)).code(), 200);
    QJsonObject saved = scheme(m_demo, id);
    EXPECT_EQ(decoded(saved), layoutText);
    // Booleans are sent, numbers are read.
    EXPECT_EQ(saved.value("screen_orientation"), QJsonValue(1));
    EXPECT_EQ(saved.value("show_key"), QJsonValue(1));
    EXPECT_EQ(saved.value("show_key_desc"), QJsonValue(0));
    EXPECT_EQ(saved.value("key_transparency"), QJsonValue(55));
    EXPECT_EQ(saved.value("key_size"), QJsonValue(33));
    EXPECT_EQ(saved.value("map_name").toString(), "Scheme 1");

    const QString empty = "[\n]\n";
    ASSERT_EQ(actOn(id, "update", saving(empty, false)).code(), 200);
    saved = scheme(m_demo, id);
    EXPECT_EQ(decoded(saved), empty);
    EXPECT_EQ(saved.value("screen_orientation"), QJsonValue(2));
}

TEST_F(KeyMapApiTest, renamingChangesNothingElse)
{
    const QString id = create(m_demo, saving(layoutText));
    QJsonObject expected = scheme(m_demo, id);
    EXPECT_EQ(actOn(id, "update", {{"map_name", QString::fromUtf8(" Für Anna ☕ ")}}).code(), 200);
    expected["map_name"] = QString::fromUtf8("Für Anna ☕");
    EXPECT_EQ(scheme(m_demo, id), expected);
}

TEST_F(KeyMapApiTest, aCopyIsAsGoodAsTheOriginal)
{
    const QString id = create(m_demo, saving(layoutText));
    const QString copyId = idOf(actOn(id, "copy"));
    EXPECT_NE(copyId, id);
    QJsonObject expected = scheme(m_demo, id);
    expected["map_id"] = copyId;
    expected["map_name"] = "Scheme 1 copy";
    EXPECT_EQ(scheme(m_demo, copyId), expected);
    EXPECT_EQ(list(m_demo).last().toObject(), expected);
    // It lives its own life.
    actOn(id, "delete");
    EXPECT_EQ(scheme(m_demo, copyId), expected);
    EXPECT_TRUE(scheme(m_demo, id).isEmpty());
}

TEST_F(KeyMapApiTest, theNameOfACopyFits)
{
    const QString longest = QString::fromUtf8("🎮").repeated(50);
    const QString id = create(m_demo, {{"map_name", longest}});
    EXPECT_EQ(scheme(m_demo, id).value("map_name").toString(), longest);
    const QString copy = scheme(m_demo, idOf(actOn(id, "copy"))).value("map_name").toString();
    EXPECT_EQ(copy, QString::fromUtf8("🎮").repeated(45) + " copy");
}

TEST_F(KeyMapApiTest, twoUsersShareByCode)
{
    const QString code = create(m_demo, saving(layoutText));
    EXPECT_EQ(code.size(), 10);
    actOn(code, "update", {{"map_name", "Best of all"}});
    const QString own = idOf(share(m_second, code));
    EXPECT_NE(own, code);
    QJsonObject expected = scheme(m_demo, code);
    expected["map_id"] = own;
    EXPECT_EQ(scheme(m_second, own), expected);

    // The copy is the second user's; the original stays the first one's.
    EXPECT_EQ(actAs(m_second, own, "update", {{"map_name", "Mine"}}).code(), 200);
    EXPECT_EQ(actAs(m_second, own, "update", saving("[]")).code(), 200);
    EXPECT_EQ(decoded(scheme(m_demo, code)), layoutText);
    actOn(code, "update", {{"map_name", "Better"}});
    EXPECT_THAT(names(m_second), testing::ElementsAre("Mine"));
    // And once more, as it is now.
    share(m_second, code);
    EXPECT_THAT(names(m_second), testing::ElementsAre("Mine", "Better"));
    // With the original gone, the copies stay and can be shared on.
    actOn(code, "delete");
    EXPECT_EQ(share(m_second, code).code(), 404);
    EXPECT_EQ(share(m_demo, own).code(), 200);
    EXPECT_THAT(names(m_demo), testing::Contains("Mine"));
}

TEST_F(KeyMapApiTest, aCodeIsTakenAsItIsTyped)
{
    const QString code = create(m_demo);
    EXPECT_EQ(share(m_second, "  " + code.toLower() + " ").code(), 200);
    EXPECT_EQ(list(m_second).size(), 1);
}

TEST_F(KeyMapApiTest, sharingAnOwnSchemeMakesNoSecondOne)
{
    const QString id = create(m_demo);
    const QJsonArray before = list(m_demo);
    EXPECT_EQ(idOf(share(m_demo, id)), id);
    EXPECT_EQ(list(m_demo), before);
}

TEST_F(KeyMapApiTest, unknownAndMissingCodes)
{
    for (const char *code : {"NOSUCHCODE", "1", "' OR 1=1 --", "☕"}) {
        const Reply reply = share(m_second, QString::fromUtf8(code));
        EXPECT_EQ(reply.code(), 404) << code;
        EXPECT_EQ(reply.message(), "There is no scheme with this sharing code.");
    }
    EXPECT_EQ(share(m_second, "").message(), "Please enter a sharing code.");
    EXPECT_EQ(share(m_second, "  ").code(), 400);
    EXPECT_EQ(share(m_second, QString(200, 'A')).code(), 400);
    EXPECT_EQ(post("/apiv1/keyboard_map/shareMapConfig", {}, m_second).code(), 400);
    EXPECT_EQ(post("/apiv1/keyboard_map/shareMapConfig", {{"map_id", 7}}, m_second).code(), 400);
    EXPECT_TRUE(list(m_second).isEmpty());
}

TEST_F(KeyMapApiTest, nobodyActsOnSomebodyElsesScheme)
{
    const QString id = create(m_demo, saving(layoutText));
    const QJsonArray before = list(m_demo);
    for (const char *action : {"update", "copy", "delete"}) {
        const Reply reply = actAs(m_second, id, action, {{"map_name", "Stolen"}});
        EXPECT_EQ(reply.code(), 404) << action;
        EXPECT_EQ(reply.message(), "You have no such scheme.");
    }
    EXPECT_EQ(list(m_demo), before);
    EXPECT_TRUE(list(m_second).isEmpty());
}

TEST_F(KeyMapApiTest, actionsWithoutAScheme)
{
    const QJsonArray before = list(m_demo);
    for (const char *action : {"update", "copy", "delete"}) {
        // No scheme is in use at the client.
        const Reply none = actOn("", action, saving("[]"));
        EXPECT_EQ(none.code(), 400);
        EXPECT_EQ(none.message(), "Please choose a scheme first.");
        EXPECT_EQ(actOn("NOSUCHCODE", action).code(), 404);
    }
    const QString id = before.first().toObject().value("map_id").toString();
    EXPECT_EQ(actOn(id, "").code(), 400);
    EXPECT_EQ(actOn(id, "rename").code(), 400);
    EXPECT_EQ(post("/apiv1/keyboard_map/actionMapConfig", {{"map_id", id}}, m_demo).code(), 400);
    EXPECT_EQ(post("/apiv1/keyboard_map/actionMapConfig", {{"action_type", "delete"}}, m_demo).code(), 400);
    EXPECT_EQ(list(m_demo), before);
    EXPECT_EQ(actOn(id, "update").code(), 200) << "nothing to change";
    EXPECT_EQ(list(m_demo), before);
}

TEST_F(KeyMapApiTest, badNamesAreRefused)
{
    const QString id = create(m_demo);
    for (const QJsonValue &name : {QJsonValue(""), QJsonValue("  "), QJsonValue(QString(51, 'x')),
             QJsonValue("two\nlines"), QJsonValue(7), QJsonValue()})
        expectRefused(id, {{"map_name", name}}, "The name must have 1 to 50 characters");
    EXPECT_EQ(post("/apiv1/keyboard_map/createMapConfig", {{"map_name", ""}}, m_demo).code(), 400);
    EXPECT_EQ(list(m_demo).size(), 3);
}

TEST_F(KeyMapApiTest, badLayoutsAreRefused)
{
    const QString id = create(m_demo, saving(layoutText));
    for (const char *config :
        {"", "no JSON", "{}", "[", "null", "[1]", "[[]]", "[{}]", R"([{"key":"Q","x":1}])",
            R"([{"key":"Q","x":1,"y":"2"}])", R"([{"key":false,"x":1,"y":2}])", R"([{"key":7,"x":1,"y":2}])",
            R"([{"key":"Q","x":1,"y":1e300}])", R"([{"key":"Q","x":1,"y":2,"remark":7}])",
            R"([{"key":"Q","x":1,"y":2,"isLockKey":"yes"}])", R"([{"key":"Q","x":1,"y":2,"mouseDpi":0}])"})
        expectRefused(id, {{"config", config}}, "config");
    expectRefused(id, {{"config", 7}}, "config");
    expectRefused(id, {{"config", QJsonArray()}}, "config");
    expectRefused(id, {{"config", R"([{"key":"A","x":1,"y":2},{"key":"B","x":1}])"}}, "Key 2");
    // Nothing of a request is carried out when part of it is wrong.
    QJsonObject change = saving("[]");
    change.insert("key_size", 41);
    expectRefused(id, change, "key_size");
}

TEST_F(KeyMapApiTest, oversizedLayoutsAreRefused)
{
    const QString id = create(m_demo);
    const auto layout = [](int keys, int remarkLength) {
        QJsonArray array;
        for (int i = 0; i < keys; ++i)
            array.append(QJsonObject{
                {"key", "Q"}, {"x", i}, {"y", i}, {"remark", QString(remarkLength, QChar(0x706B))}});
        return QString::fromUtf8(QJsonDocument(array).toJson());
    };
    EXPECT_EQ(actOn(id, "update", {{"config", layout(200, 100)}}).code(), 200);
    expectRefused(id, {{"config", layout(201, 0)}}, "up to 200");
    expectRefused(id, {{"config", layout(200, 500)}}, "too large");
    expectRefused(id, {{"config", layout(1, 501)}}, "Key 1");
    const std::string huge = R"({"map_id":"X","action_type":"update","config":")"
        + std::string(std::size_t{1024} * 1024, '1') + "\"}";
    EXPECT_EQ(postText("/apiv1/keyboard_map/actionMapConfig", huge, m_demo).status, 413);
}

TEST_F(KeyMapApiTest, badSettingsAreRefused)
{
    const QString id = create(m_demo);
    for (const int value : {-1, 101})
        expectRefused(id, {{"key_transparency", value}}, "key_transparency");
    for (const int value : {19, 41})
        expectRefused(id, {{"key_size", value}}, "key_size");
    expectRefused(id, {{"key_size", "30"}}, "key_size");
    for (const char *name : {"show_key", "show_key_desc", "screen_orientation"})
        expectRefused(id, {{QString::fromLatin1(name), 1}}, name);
    for (const int value : {0, 100})
        EXPECT_EQ(actOn(id, "update", {{"key_transparency", value}}).code(), 200);
    for (const int value : {20, 40})
        EXPECT_EQ(actOn(id, "update", {{"key_size", value}}).code(), 200);
}

TEST_F(KeyMapApiTest, thereIsALimitOfSchemes)
{
    QString last;
    for (int i = 2; i < KeyMapStore::maxSchemesPerUser; ++i)
        last = create(m_demo);
    const QString foreign = create(m_second);
    for (const Reply &reply : {post("/apiv1/keyboard_map/createMapConfig", {}, m_demo), actOn(last, "copy"),
             share(m_demo, foreign)}) {
        EXPECT_EQ(reply.code(), 409);
        EXPECT_THAT(reply.message(), testing::HasSubstr("200 schemes already"));
    }
    EXPECT_EQ(list(m_demo).size(), 200);
    actOn(last, "delete");
    EXPECT_EQ(share(m_demo, foreign).code(), 200);
}

TEST_F(KeyMapApiTest, schemesOutliveARestart)
{
    const QString kept = create(m_demo, saving(layoutText));
    idOf(share(m_second, kept));
    const QString seeded = list(m_demo).first().toObject().value("map_id").toString();
    actOn(seeded, "delete");
    const QJsonArray demoBefore = list(m_demo);
    const QJsonArray secondBefore = list(m_second);
    restart();
    EXPECT_EQ(list(m_demo), demoBefore) << "what was deleted stays deleted";
    EXPECT_EQ(list(m_second), secondBefore);
    EXPECT_EQ(share(m_second, kept).code(), 200) << "codes stay good";
}

TEST_F(KeyMapApiTest, codesAreEasyToReadAndDiffer)
{
    std::set<QString> codes;
    for (int i = 0; i < 50; ++i)
        codes.insert(create(m_second));
    EXPECT_EQ(codes.size(), 50u);
    for (const QString &code : codes)
        EXPECT_THAT(code.toStdString(), testing::MatchesRegex("[2-9A-HJ-NP-Z]+"));
}

TEST_F(KeyMapApiTest, theGuideHasPagesWithPictures)
{
    const Reply reply = get("/apiv1/keyboard_map/guide", m_demo);
    EXPECT_EQ(reply.code(), 200);
    EXPECT_EQ(reply.data().value("title").toString(), "Key mapping");
    const QJsonArray pages = reply.data().value("pages").toArray();
    ASSERT_GE(pages.size(), 4);
    std::set<QString> pictures;
    for (const QJsonValue entry : pages) {
        const QJsonObject page = entry.toObject();
        EXPECT_FALSE(page.value("title").toString().isEmpty());
        EXPECT_GT(page.value("text").toString().size(), 40);
        const QString picture = page.value("picture").toString();
        const QString prefix = "data:image/svg+xml;base64,";
        ASSERT_TRUE(picture.startsWith(prefix));
        const QByteArray svg = QByteArray::fromBase64(picture.mid(prefix.size()).toLatin1());
        EXPECT_TRUE(svg.startsWith("<svg ") && svg.endsWith("</svg>\n"));
        pictures.insert(picture);
    }
    EXPECT_EQ(static_cast<int>(pictures.size()), pages.size());
}

TEST_F(KeyMapApiTest, onlyForWhoIsSignedIn)
{
    for (const char *path : {"mapConfigList", "guide"}) {
        EXPECT_EQ(get(std::string("/apiv1/keyboard_map/") + path).code(), 401) << path;
        EXPECT_EQ(post(std::string("/apiv1/keyboard_map/") + path, {}, m_demo).status, 405) << path;
    }
    for (const char *path : {"createMapConfig", "actionMapConfig", "shareMapConfig"}) {
        EXPECT_EQ(post(std::string("/apiv1/keyboard_map/") + path, {}).code(), 401) << path;
        EXPECT_EQ(get(std::string("/apiv1/keyboard_map/") + path, m_demo).status, 405) << path;
        EXPECT_EQ(postText(std::string("/apiv1/keyboard_map/") + path, "[]", m_demo).status, 400) << path;
    }
    EXPECT_EQ(list(m_demo).size(), 2);
}

} // namespace
