#include "ApiFixture.h"

#include "api/Router.h"

#include <random>
#include <stdexcept>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

using HttpServerTest = ApiFixture;

constexpr const char *loginRequestHead = "POST /apiv1/user/login HTTP/1.1\r\nHost: 127.0.0.1\r\n";

TEST_F(HttpServerTest, connectionsAreKept)
{
    TestClient client = this->client();
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(client.get("/apiv1/device/list").code(), 401);
    // Without waiting for the first reply.
    const std::string request = "GET /apiv1/device/list HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n";
    client.send(request + request);
    EXPECT_EQ(client.readReply().code(), 401);
    EXPECT_EQ(client.readReply().code(), 401);
}

TEST_F(HttpServerTest, connectionsEndWhenTheClientWantsThat)
{
    TestClient client = this->client();
    EXPECT_EQ(client.get("/apiv1/device/list", {{"Connection", "close"}}).code(), 401);
    EXPECT_EQ(client.readToEnd(), "");
    TestClient old = this->client();
    old.send("GET /apiv1/device/list HTTP/1.0\r\n\r\n");
    EXPECT_EQ(old.readReply().code(), 401);
    EXPECT_EQ(old.readToEnd(), "");
}

TEST_F(HttpServerTest, unknownPathsAndMethodsAreHttpErrors)
{
    for (const char *path : {"/", "/apiv1", "/apiv1/device/list/", "/apiv1/device/lists",
             "//apiv1/device/list", "/admin/devices//app", "*"}) {
        const Reply reply = get(path);
        EXPECT_EQ(reply.status, 404) << path;
        EXPECT_EQ(reply.code(), 404) << path;
        EXPECT_EQ(reply.field("Access-Control-Allow-Origin"), "*") << path;
    }
    const Reply wrongMethod = get("/apiv1/user/login");
    EXPECT_EQ(wrongMethod.status, 405);
    EXPECT_EQ(wrongMethod.field("Allow"), "POST, OPTIONS");
    EXPECT_EQ(client().request("DELETE", "/admin/devices/VM100001/app").status, 405);
    EXPECT_EQ(client().request("BREW", "/apiv1/user/login").status, 405);
}

TEST_F(HttpServerTest, bodiesThatAreNoJsonObjectAreHttpErrors)
{
    const std::string deep = std::string(100'000, '[') + std::string(100'000, ']');
    const std::string deepObject = R"({"account":)" + deep + "}";
    const std::string bodies[] = {"[]", "1", "null", "\"x\"", "{", "{\"account\":}", "not json", "{} {}",
        "{\"account\":\"\xff\xfe\"}", "{\"account\":\"\xc3\"}", std::string("\0", 1), deep, deepObject};
    for (const std::string &body : bodies) {
        const Reply reply = postText("/apiv1/user/login", body);
        EXPECT_EQ(reply.status, 400) << body.substr(0, 40);
        EXPECT_EQ(reply.code(), 400) << body.substr(0, 40);
        EXPECT_FALSE(reply.message().empty());
    }
}

TEST_F(HttpServerTest, bodiesUpToOneMebibyteAreRead)
{
    const std::string start = R"({"account":"nobody","password":")";
    const std::string end = "\"}";
    const std::size_t limit = 1024 * 1024;
    const std::string fits = start + std::string(limit - start.size() - end.size(), 'x') + end;
    EXPECT_EQ(postText("/apiv1/user/login", fits).code(), 400); // read, and the password found too long

    const Reply tooLarge = postText("/apiv1/user/login", fits + " ");
    EXPECT_EQ(tooLarge.status, 413);
    EXPECT_EQ(tooLarge.code(), 413);
}

TEST_F(HttpServerTest, aLargeBodyIsRefusedBeforeItIsSent)
{
    TestClient client = this->client();
    client.send(std::string(loginRequestHead) + "Content-Length: 99999999999\r\n\r\n");
    EXPECT_EQ(client.readReply().status, 413);
    client.shutdownSend();
    EXPECT_EQ(client.readToEnd(), "");
}

TEST_F(HttpServerTest, aChunkedBodyIsLimitedToo)
{
    TestClient client = this->client();
    client.send(std::string(loginRequestHead) + "Transfer-Encoding: chunked\r\n\r\n");
    const std::string chunk = "10000\r\n" + std::string(0x10000, ' ') + "\r\n";
    for (int i = 0; i < 17; ++i)
        client.send(chunk);
    EXPECT_EQ(client.readReply().status, 413);

    TestClient small = this->client();
    small.send(std::string(loginRequestHead) + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n0\r\n\r\n");
    EXPECT_EQ(small.readReply().code(), 400);
}

TEST_F(HttpServerTest, aClientThatAsksMaySendItsBody)
{
    TestClient client = this->client();
    client.send(std::string(loginRequestHead) + "Expect: 100-continue\r\nContent-Length: 2\r\n\r\n");
    EXPECT_EQ(client.readReply().status, 100);
    client.send("{}");
    EXPECT_EQ(client.readReply().code(), 400);
}

TEST_F(HttpServerTest, whatIsNoHttpIsRefused)
{
    const std::string requests[] = {"hello\r\n\r\n", "GET / HTTP/9.9\r\n\r\n", "GET /\r\n\r\n",
        "GET / HTTP/1.1\r\nbad header\r\n\r\n", "POST / HTTP/1.1\r\nContent-Length: -1\r\n\r\n",
        "POST / HTTP/1.1\r\nContent-Length: 1\r\nContent-Length: 2\r\n\r\nxx",
        std::string("\0\0\0\0\r\n\r\n", 8),
        "\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03 this is a TLS greeting\r\n\r\n"};
    for (const std::string &request : requests) {
        TestClient client = this->client();
        client.send(request);
        EXPECT_EQ(client.readReply().status, 400) << request;
        client.shutdownSend();
        EXPECT_EQ(client.readToEnd(), "") << request;
    }
    TestClient longHeader = this->client();
    longHeader.send("GET / HTTP/1.1\r\nX: " + std::string(20'000, 'x') + "\r\n\r\n");
    EXPECT_EQ(longHeader.readReply().status, 431);
    EXPECT_EQ(get("/apiv1/device/list").code(), 401);
}

TEST_F(HttpServerTest, clientsThatVanishAreNoProblem)
{
    for (const char *part : {"", "GET", "GET /apiv1/device/list HTTP/1.1\r\nHo",
             "POST /apiv1/user/login HTTP/1.1\r\n"
             "Content-Length: 10\r\n\r\n{}"}) {
        TestClient client = this->client();
        client.send(part);
        client.shutdownSend();
        EXPECT_EQ(client.readToEnd(), "") << part;
    }
    EXPECT_EQ(get("/apiv1/device/list").code(), 401);
}

TEST_F(HttpServerTest, randomlyDamagedRequestsNeverStopTheService)
{
    std::mt19937 random(20261121);
    const std::string body = R"({"account":"nobody","password":1,"service_ids":["1","2"]})";
    const std::string request = std::string(loginRequestHead)
        + "Content-Length: " + std::to_string(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
    for (int i = 0; i < 500; ++i) {
        std::string damaged = request;
        for (unsigned n = random() % 8 + 1; n > 0; --n)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        damaged.resize(damaged.size() - random() % 20);
        TestClient client = this->client();
        client.send(damaged);
        client.shutdownSend();
        client.readToEnd();
    }
    EXPECT_EQ(get("/apiv1/device/list").code(), 401);
}

TEST_F(HttpServerTest, pagesMayCallFromAnyOrigin)
{
    const Reply preflight = client().request("OPTIONS", "/apiv1/device/actionDevice", "",
        {{"Origin", "null"}, {"Access-Control-Request-Method", "POST"},
            {"Access-Control-Request-Headers", "access-token, login-id, content-type"}});
    EXPECT_EQ(preflight.status, 204);
    EXPECT_EQ(preflight.body, "");
    const Reply reply = postText("/apiv1/user/login", "{}", {{"Origin", "null"}});
    for (const Reply &each : {preflight, reply}) {
        EXPECT_EQ(each.field("Access-Control-Allow-Origin"), "*");
        EXPECT_THAT(each.field("Access-Control-Allow-Methods"), testing::HasSubstr("POST"));
        for (const char *header :
            {"access-token", "login-id", "lang", "terminal", "pc-version", "content-type"})
            EXPECT_THAT(each.field("Access-Control-Allow-Headers"), testing::HasSubstr(header));
    }
    EXPECT_EQ(client().request("OPTIONS", "/apiv1/nothing").status, 404);
}

TEST_F(HttpServerTest, preflightRequestsKeepTheConnection)
{
    TestClient client = this->client();
    EXPECT_EQ(client.request("OPTIONS", "/apiv1/user/login").status, 204);
    EXPECT_EQ(client.get("/apiv1/device/list").code(), 401);
}

TEST_F(HttpServerTest, answersAreNotCached)
{
    const Reply reply = get("/apiv1/device/list");
    EXPECT_EQ(reply.field("Cache-Control"), "no-store");
    EXPECT_EQ(reply.field("Content-Type"), "application/json; charset=utf-8");
}

TEST_F(HttpServerTest, aTakenPortIsReported)
{
    HttpServerOptions options;
    options.port = m_api->port();
    ApiService other(*m_data, *m_fleet, options);
    try {
        other.start();
        FAIL() << "two servers on one port";
    } catch (const std::runtime_error &error) {
        EXPECT_THAT(error.what(), testing::HasSubstr(std::to_string(m_api->port())));
    }
}

class ImpatientServerTest : public ApiFixture
{
protected:
    void SetUp() override
    {
        m_httpOptions.idleTimeout = std::chrono::milliseconds(50);
        m_httpOptions.bodyTimeout = std::chrono::milliseconds(50);
        m_httpOptions.maxConnections = 2;
        ApiFixture::SetUp();
    }
};

TEST_F(ImpatientServerTest, silentAndSlowClientsAreSentAway)
{
    TestClient silent = client();
    EXPECT_EQ(silent.readToEnd(), "");
    TestClient slowHeader = client();
    slowHeader.send("GET /apiv1/device/list HTTP/1.1\r\n");
    EXPECT_EQ(slowHeader.readToEnd(), "");
    TestClient slowBody = client();
    slowBody.send(std::string(loginRequestHead) + "Content-Length: 10\r\n\r\n{");
    EXPECT_EQ(slowBody.readToEnd(), "");
}

class CrowdedServerTest : public ApiFixture
{
protected:
    void SetUp() override
    {
        m_httpOptions.maxConnections = 2;
        ApiFixture::SetUp();
    }
};

TEST_F(CrowdedServerTest, oneConnectionTooManyIsClosed)
{
    auto first = std::make_unique<TestClient>(m_api->port());
    TestClient second = client();
    EXPECT_EQ(first->get("/apiv1/device/list").code(), 401);
    EXPECT_EQ(second.get("/apiv1/device/list").code(), 401);
    EXPECT_EQ(client().readToEnd(), "");
    EXPECT_EQ(second.get("/apiv1/device/list").code(), 401);

    // A place that is given up can be taken again.
    EXPECT_EQ(first->get("/apiv1/device/list", {{"Connection", "close"}}).code(), 401);
    first.reset();
    const auto served = [this] {
        try {
            return get("/apiv1/device/list").code() == 401;
        } catch (const boost::system::system_error &) {
            return false; // the first connection's end has not been noticed yet
        }
    };
    bool taken = false;
    for (int attempt = 0; attempt < 1000 && !taken; ++attempt)
        taken = served();
    EXPECT_TRUE(taken);
}

TEST(RouterTest, anUnexpectedFailureBecomesAServiceFault)
{
    QTemporaryDir folder;
    ServiceData data(folder.path().toStdString());
    Router router(data.signIns);
    router.add(Router::Verb::get, "/fails", Access::Everybody,
        [](const ApiCall &) -> ApiAnswer { throw std::runtime_error("the secret reason"); });
    HttpRequest request;
    request.message.method(boost::beast::http::verb::get);
    request.message.target("/fails");
    const HttpResponse response = router.handle(request).message;
    EXPECT_EQ(response.result_int(), 200u);
    EXPECT_THAT(response.body(), testing::HasSubstr(R"("code":500)"));
    EXPECT_THAT(response.body(), testing::Not(testing::HasSubstr("secret")));
}

TEST(RouterTest, testRoutesAreForThisMachineOnly)
{
    QTemporaryDir folder;
    ServiceData data(folder.path().toStdString());
    Router router(data.signIns);
    router.add(Router::Verb::get, "/admin/x", Access::Tests, [](const ApiCall &) { return ApiAnswer{}; });
    HttpRequest request;
    request.message.method(boost::beast::http::verb::get);
    request.message.target("/admin/x");
    request.message.set(boost::beast::http::field::host, "127.0.0.1");
    EXPECT_EQ(router.handle(request).message.result_int(), 404u);
    request.fromLoopback = true;
    EXPECT_EQ(router.handle(request).message.result_int(), 200u);
}

} // namespace
