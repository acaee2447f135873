#include "ApiFixture.h"

#include <QJsonArray>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

using UserApiTest = ApiFixture;

TEST_F(UserApiTest, signingInGivesAnIdentity)
{
    const Reply reply = signIn("demo", "orvane-demo");
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.code(), 200);
    EXPECT_EQ(reply.message(), "success");
    EXPECT_EQ(reply.data().value("user_name").toString(), "Demo");
    EXPECT_EQ(reply.data().value("expires_in").toInt(), 2592000);
    EXPECT_GE(reply.data().value("access_token").toString().size(), 32);
    EXPECT_GE(reply.data().value("login_id").toString().size(), 16);
    EXPECT_EQ(get("/apiv1/device/list", signedIn()).code(), 200);
}

TEST_F(UserApiTest, everySignInHasATokenOfItsOwn)
{
    EXPECT_NE(signedIn().at("access-token"), signedIn().at("access-token"));
}

TEST_F(UserApiTest, wrongAccountAndWrongPasswordAreToldAlike)
{
    const Reply wrongPassword = signIn("demo", "orvane-Demo");
    const Reply wrongAccount = signIn("nobody", "orvane-demo");
    EXPECT_EQ(wrongPassword.status, 200);
    EXPECT_EQ(wrongPassword.code(), 403);
    EXPECT_FALSE(wrongPassword.message().empty());
    EXPECT_EQ(wrongAccount.body, wrongPassword.body);
}

TEST_F(UserApiTest, fieldsAreChecked)
{
    const char *bodies[] = {
        "",
        "{}",
        R"({"account":"demo"})",
        R"({"password":"orvane-demo"})",
        R"({"account":1,"password":"orvane-demo"})",
        R"({"account":"demo","password":["orvane-demo"]})",
        R"({"account":null,"password":"orvane-demo"})",
        R"({"account":"","password":"orvane-demo"})",
        R"({"account":"demo","password":""})",
        R"({"account":"de\u0000mo","password":"orvane-demo"})",
    };
    for (const char *body : bodies) {
        const Reply reply = postText("/apiv1/user/login", body);
        EXPECT_EQ(reply.status, 200) << body;
        EXPECT_EQ(reply.code(), 400) << body;
        EXPECT_THAT(
            reply.message(), testing::AnyOf(testing::HasSubstr("account"), testing::HasSubstr("password")));
    }
    const std::string longText(300, 'x');
    EXPECT_EQ(signIn(longText, "orvane-demo").code(), 400);
    EXPECT_EQ(signIn("demo", longText).code(), 400);
    EXPECT_EQ(signIn("demo", "orvane-demo").code(), 200); // none of them counted as a failure
}

TEST_F(UserApiTest, fiveFailuresWithinAMinuteBlockTheAccount)
{
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(signIn("demo", "wrong").code(), 403);
    EXPECT_EQ(signIn("demo", "wrong").code(), 429);
    const Reply right = signIn("demo", "orvane-demo");
    EXPECT_EQ(right.code(), 429);
    EXPECT_FALSE(right.message().empty());
    EXPECT_EQ(signIn("second", "orvane-second").code(), 200);

    m_time.advance(std::chrono::seconds(60));
    EXPECT_EQ(signIn("demo", "orvane-demo").code(), 429);
    m_time.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(signIn("demo", "orvane-demo").code(), 200);
}

TEST_F(UserApiTest, aSuccessForgetsTheFailures)
{
    for (int i = 0; i < 4; ++i)
        signIn("demo", "wrong");
    EXPECT_EQ(signIn("demo", "orvane-demo").code(), 200);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(signIn("demo", "wrong").code(), 403);
    EXPECT_EQ(signIn("demo", "orvane-demo").code(), 200);
}

TEST_F(UserApiTest, requestsWithoutAValidIdentityAreRefused)
{
    const Headers valid = signedIn();
    const Headers other = signedIn();
    const Headers refused[] = {
        {},
        {{"access-token", ""}, {"login-id", ""}},
        {{"access-token", valid.at("access-token")}},
        {{"login-id", valid.at("login-id")}},
        {{"access-token", valid.at("access-token")}, {"login-id", other.at("login-id")}},
        {{"access-token", "x" + valid.at("access-token")}, {"login-id", valid.at("login-id")}},
    };
    for (const Headers &headers : refused) {
        EXPECT_EQ(get("/apiv1/device/list", headers).code(), 401);
        EXPECT_EQ(act(headers, "100001", "device_apply").code(), 401);
        EXPECT_EQ(actOnMany(headers, {"100001"}, "device_apply").code(), 401);
        EXPECT_EQ(post("/apiv1/user/logout", {}, headers).code(), 401);
    }
    EXPECT_EQ(get("/apiv1/device/list", valid).code(), 200);
}

TEST_F(UserApiTest, aSignInIsGoodForThirtyDays)
{
    const Headers headers = signedIn();
    m_time.advance(std::chrono::hours(24 * 30) - std::chrono::milliseconds(1));
    EXPECT_EQ(get("/apiv1/device/list", headers).code(), 200);
    m_time.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(get("/apiv1/device/list", headers).code(), 401);
}

TEST_F(UserApiTest, signingOutEndsTheSignInAndItsStreams)
{
    const Headers headers = signedIn();
    const Headers elsewhere = signedIn();
    const std::string first = apply(headers, "100001");
    const std::string second = apply(headers, "100002");
    const std::string stays = apply(elsewhere, "100001");

    const Reply reply = client().request("POST", "/apiv1/user/logout", "", headers);
    EXPECT_EQ(reply.code(), 200);
    EXPECT_EQ(get("/apiv1/device/list", headers).code(), 401);
    EXPECT_THAT(m_fleet->endedSessions(),
        testing::UnorderedElementsAre(
            FakeFleet::EndedSession{first, false}, FakeFleet::EndedSession{second, false}));
    const int userId = m_data->users.find("demo")->id;
    EXPECT_EQ(stateOf(first, "VM100001", userId), SessionState::Unknown);
    EXPECT_EQ(stateOf(stays, "VM100001", userId), SessionState::Valid);
    EXPECT_EQ(get("/apiv1/device/list", elsewhere).code(), 200);
}

TEST_F(UserApiTest, theEndOfASignInEndsItsStreams)
{
    const Headers headers = signedIn();
    const std::string session = apply(headers, "100001");
    const int userId = m_data->users.find("demo")->id;
    m_time.advance(std::chrono::hours(24 * 30));
    EXPECT_EQ(stateOf(session, "VM100001", userId), SessionState::Unknown);
    m_api->expiryWatch().check();
    EXPECT_THAT(m_fleet->endedSessions(), testing::Contains(FakeFleet::EndedSession{session, false}));
}

TEST_F(UserApiTest, theSessionTellsWhoAndForHowLong)
{
    const Headers headers = signedIn("second");
    m_time.advance(std::chrono::hours(24));
    const Reply reply = get("/apiv1/user/session", headers);
    EXPECT_EQ(reply.code(), 200);
    EXPECT_EQ(reply.data().value("user_name").toString(), "Second");
    EXPECT_EQ(reply.data().value("login_id").toString().toStdString(), headers.at("login-id"));
    EXPECT_EQ(reply.data().value("expires_in").toInt(), 29 * 86400);
    EXPECT_EQ(reply.body.find(headers.at("access-token")), std::string::npos);

    m_time.advance(std::chrono::hours(29 * 24) - std::chrono::milliseconds(1));
    EXPECT_EQ(get("/apiv1/user/session", headers).data().value("expires_in").toInt(-1), 0);
    m_time.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(get("/apiv1/user/session", headers).code(), 401);
}

TEST_F(UserApiTest, withoutASignInThereIsNoSession)
{
    const Headers headers = signedIn();
    EXPECT_EQ(get("/apiv1/user/session").code(), 401);
    EXPECT_EQ(get("/apiv1/user/session",
                  {{"access-token", headers.at("access-token")}, {"login-id", "0123456789abcdef01234567"}})
                  .code(),
        401);
    EXPECT_EQ(get("/apiv1/user/session", headers).code(), 200);
    post("/apiv1/user/logout", {}, headers);
    EXPECT_EQ(get("/apiv1/user/session", headers).code(), 401);
}

} // namespace
