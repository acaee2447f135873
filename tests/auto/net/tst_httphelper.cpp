#include "TestHttpServer.h"

#include "net/HttpHelper.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QMetaMethod>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QProcess>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>

#include <cstdio>
#include <cstring>
#include <memory>

namespace {

const char printRootArgument[] = "--print-api-root";

// What the callbacks of a request were given.
struct Outcome
{
    QVector<ResponseData> successes;
    QStringList errors;

    int count() const { return successes.size() + errors.size(); }
    HttpHelper::SuccessCallback onSuccess()
    {
        return [this](const ResponseData &response) { successes << response; };
    }
    HttpHelper::ErrorCallback onError()
    {
        return [this](const QString &error) { errors << error; };
    }
};

} // namespace

// Requests to the service's HTTP API, against a server on this machine.
class TestHttpHelper : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void metaObject();
    void headersBeforeLogin();
    void headersAfterLogin();
    void sessionIsShared();
    void headerValuesCannotBreakOut();
    void sentRequestsKeepTheirHeaders();
    void postSendsUtf8();
    void envelope();
    void statusIsNotLookedAt();
    void redirectsAreNotFollowed();
    void errorStatus_data();
    void errorStatus();
    void noServer();
    void lostConnection();
    void unusableUrl();
    void callbacksMayBeEmpty();
    void replyIsDeleted();
    void oneAccessManager();
    void downloadProgress();
    void destroyedHelperNeverCallsBack();
    void callbackMayDestroyTheHelper_data();
    void callbackMayDestroyTheHelper();
    void apiBaseUrl_data();
    void apiBaseUrl();

private:
    using Headers = QVector<QPair<QByteArray, QByteArray>>;
    // The headers that the helper sets, in order.
    static Headers ownHeaders(const TestHttpServer::Request &request);
};

void TestHttpHelper::init()
{
    HttpHelper::setLoginParams(QString(), QString());
    HttpHelper::setLanguage(QString());
}

void TestHttpHelper::metaObject()
{
    const QMetaObject &meta = HttpHelper::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(methods,
        (QStringList{"sigDownloadProgress(qlonglong,qlonglong)", "sigDownloadSuccess()",
            "sigDownloadFailed(QString)"}));
}

TestHttpHelper::Headers TestHttpHelper::ownHeaders(const TestHttpServer::Request &request)
{
    const QByteArrayList names{"content-type", "access-token", "login-id", "lang", "terminal", "pc-version"};
    Headers own;
    for (const auto &header : request.headers) {
        if (names.contains(header.first.toLower()))
            own << qMakePair(header.first.toLower(), header.second);
    }
    return own;
}

void TestHttpHelper::headersBeforeLogin()
{
    TestHttpServer server;
    HttpHelper helper;
    Outcome outcome;
    helper.get(server.baseUrl() + "/apiv1/keyboard_map/guide", outcome.onSuccess(), outcome.onError());
    QTRY_COMPARE(outcome.successes.size(), 1);
    const TestHttpServer::Request request = server.requests().constFirst();
    QCOMPARE(request.method, QByteArray("GET"));
    QCOMPARE(request.path, QByteArray("/apiv1/keyboard_map/guide"));
    QCOMPARE(ownHeaders(request),
        (Headers{{"content-type", "application/json"}, {"access-token", ""}, {"login-id", ""}, {"lang", ""},
            {"terminal", "cluster_control"}, {"pc-version", "1130"}}));
}

void TestHttpHelper::headersAfterLogin()
{
    HttpHelper::setLoginParams(QStringLiteral("tok-\u00e9"), QStringLiteral("4711"));
    HttpHelper::setLanguage(QStringLiteral("cht"));
    TestHttpServer server;
    HttpHelper helper;
    Outcome outcome;
    helper.post(server.baseUrl() + "/apiv1/device/actionDevice", QStringLiteral("{}"), outcome.onSuccess(),
        outcome.onError());
    QTRY_COMPARE(outcome.successes.size(), 1);
    QCOMPARE(server.requests().constFirst().method, QByteArray("POST"));
    QCOMPARE(ownHeaders(server.requests().constFirst()),
        (Headers{{"content-type", "application/json"}, {"access-token", "tok-\xc3\xa9"}, {"login-id", "4711"},
            {"lang", "cht"}, {"terminal", "cluster_control"}, {"pc-version", "1130"}}));
}

void TestHttpHelper::sessionIsShared()
{
    HttpHelper::setLoginParams(QStringLiteral("a"), QStringLiteral("b"));
    HttpHelper::setLanguage(QStringLiteral("en"));
    QCOMPARE(HttpHelper::accessToken(), QStringLiteral("a"));
    QCOMPARE(HttpHelper::loginId(), QStringLiteral("b"));
    QCOMPARE(HttpHelper::language(), QStringLiteral("en"));
    HttpHelper::setAccessToken(QStringLiteral("c"));
    HttpHelper::setLoginId(QStringLiteral("d"));
    QCOMPARE(HttpHelper::accessToken(), QStringLiteral("c"));
    QCOMPARE(HttpHelper::loginId(), QStringLiteral("d"));

    TestHttpServer server;
    HttpHelper first;
    HttpHelper second;
    Outcome outcome;
    first.get(server.baseUrl(), outcome.onSuccess(), nullptr);
    second.get(server.baseUrl(), outcome.onSuccess(), nullptr);
    QTRY_COMPARE(outcome.successes.size(), 2);
    for (const TestHttpServer::Request &request : server.requests())
        QCOMPARE(request.header("access-token"), QByteArray("c"));
}

void TestHttpHelper::headerValuesCannotBreakOut()
{
    HttpHelper::setAccessToken(QStringLiteral("x\r\nterminal: other"));
    TestHttpServer server;
    HttpHelper helper;
    Outcome outcome;
    QTest::ignoreMessage(
        QtWarningMsg, "control characters in the value of a request header, sent empty: access-token");
    helper.get(server.baseUrl(), outcome.onSuccess(), nullptr);
    QTRY_COMPARE(outcome.successes.size(), 1);
    QCOMPARE(server.requests().constFirst().header("access-token"), QByteArray(""));
    QCOMPARE(server.requests().constFirst().header("terminal"), QByteArray("cluster_control"));
}

void TestHttpHelper::sentRequestsKeepTheirHeaders()
{
    HttpHelper::setAccessToken(QStringLiteral("before"));
    TestHttpServer server;
    HttpHelper helper;
    Outcome outcome;
    helper.get(server.baseUrl(), outcome.onSuccess(), nullptr);
    HttpHelper::setAccessToken(QStringLiteral("after"));
    QTRY_COMPARE(outcome.successes.size(), 1);
    helper.get(server.baseUrl(), outcome.onSuccess(), nullptr);
    QTRY_COMPARE(outcome.successes.size(), 2);
    QCOMPARE(server.requests().at(0).header("access-token"), QByteArray("before"));
    QCOMPARE(server.requests().at(1).header("access-token"), QByteArray("after"));
}

void TestHttpHelper::postSendsUtf8()
{
    TestHttpServer server;
    HttpHelper helper;
    Outcome outcome;
    const QString body = QStringLiteral("{\n    \"name\": \"\u8bbe\u5907\"\n}\n");
    helper.post(server.baseUrl(), body, outcome.onSuccess(), outcome.onError());
    QTRY_COMPARE(outcome.successes.size(), 1);
    QCOMPARE(server.requests().constFirst().body,
        QByteArray("{\n    \"name\": \"\xe8\xae\xbe\xe5\xa4\x87\"\n}\n"));
}

void TestHttpHelper::envelope()
{
    TestHttpServer server;
    server.setAnswer("{\"code\": 200, \"msg\": \"\xe8\xae\xbe\", \"data\": {\"n\": 3}}");
    HttpHelper helper;
    Outcome outcome;
    helper.get(server.baseUrl(), outcome.onSuccess(), outcome.onError());
    QTRY_COMPARE(outcome.count(), 1);
    QCOMPARE(outcome.successes.size(), 1);
    const ResponseData response = outcome.successes.constFirst();
    QCOMPARE(response.code, 200);
    QCOMPARE(response.msg, QStringLiteral("\u8bbe"));
    QCOMPARE(response.data.toObject().value(QLatin1String("n")).toInt(), 3);

    server.setAnswer("<html>not JSON</html>");
    helper.get(server.baseUrl(), outcome.onSuccess(), outcome.onError());
    QTRY_COMPARE(outcome.successes.size(), 2);
    QCOMPARE(outcome.successes.constLast().code, 0);
}

void TestHttpHelper::statusIsNotLookedAt()
{
    TestHttpServer server;
    server.setAnswer(R"({"code": 200})", 202);
    HttpHelper helper;
    Outcome outcome;
    helper.get(server.baseUrl(), outcome.onSuccess(), outcome.onError());
    QTRY_COMPARE(outcome.count(), 1);
    QCOMPARE(outcome.successes.size(), 1);
    QCOMPARE(outcome.successes.constFirst().code, 200);
}

// The answer that names another place is the answer.
void TestHttpHelper::redirectsAreNotFollowed()
{
    TestHttpServer server;
    server.setAnswer(R"({"code": 200, "msg": "elsewhere"})", 302);
    server.setAnswerHeaders("Location: " + server.baseUrl().toUtf8() + "/elsewhere\r\n");
    HttpHelper helper;
    Outcome outcome;
    helper.get(server.baseUrl() + "/here", outcome.onSuccess(), outcome.onError());
    QTRY_COMPARE(outcome.count(), 1);
    QCOMPARE(outcome.successes.size(), 1);
    QCOMPARE(outcome.successes.constFirst().code, 200);
    QCOMPARE(outcome.successes.constFirst().msg, QStringLiteral("elsewhere"));
    QCOMPARE(server.requests().size(), 1);
    QCOMPARE(server.requests().constFirst().path, QByteArray("/here"));
}

void TestHttpHelper::errorStatus_data()
{
    QTest::addColumn<int>("status");
    for (const int status : {400, 401, 403, 404, 409, 418, 500, 502, 503})
        QTest::addRow("%d", status) << status;
}

void TestHttpHelper::errorStatus()
{
    QFETCH(int, status);
    TestHttpServer server;
    server.setAnswer(R"({"code": 200, "msg": "not parsed"})", status);
    HttpHelper helper;
    Outcome outcome;
    QString errorText;
    QNetworkReply *reply = nullptr;
    const auto onError = [&](const QString &error) {
        outcome.errors << error;
        errorText = reply->errorString();
    };
    reply = helper.post(server.baseUrl() + "/x", QStringLiteral("{}"), outcome.onSuccess(), onError);
    QTRY_COMPARE(outcome.count(), 1);
    QCOMPARE(outcome.errors, QStringList{errorText});
    QVERIFY(!errorText.isEmpty());
}

void TestHttpHelper::noServer()
{
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const QString url = QStringLiteral("http://127.0.0.1:%1/x").arg(closed.serverPort());
    closed.close();
    HttpHelper helper;
    Outcome outcome;
    helper.get(url, outcome.onSuccess(), outcome.onError());
    QTRY_COMPARE(outcome.count(), 1);
    QCOMPARE(outcome.errors.size(), 1);
}

void TestHttpHelper::lostConnection()
{
    TestHttpServer server;
    server.hold();
    connect(&server, &TestHttpServer::requestReceived, &server, &TestHttpServer::dropWaiting,
        Qt::QueuedConnection);
    HttpHelper helper;
    Outcome outcome;
    helper.post(server.baseUrl(), QStringLiteral("{}"), outcome.onSuccess(), outcome.onError());
    QTRY_COMPARE(outcome.count(), 1);
    QCOMPARE(outcome.errors.size(), 1);
}

void TestHttpHelper::unusableUrl()
{
    HttpHelper helper;
    Outcome outcome;
    helper.get(QStringLiteral("nonsense://x"), outcome.onSuccess(), outcome.onError());
    helper.post(QString(), QString(), outcome.onSuccess(), outcome.onError());
    QTRY_COMPARE(outcome.errors.size(), 2);
    QVERIFY(outcome.successes.isEmpty());
}

void TestHttpHelper::callbacksMayBeEmpty()
{
    TestHttpServer server;
    HttpHelper helper;
    Outcome outcome;
    QSignalSpy succeeded(helper.get(server.baseUrl(), nullptr, outcome.onError()), &QNetworkReply::finished);
    QVERIFY(succeeded.wait());
    server.setAnswer("{}", 500);
    QSignalSpy failed(helper.get(server.baseUrl(), outcome.onSuccess(), nullptr), &QNetworkReply::finished);
    QVERIFY(failed.wait());
    QCOMPARE(outcome.count(), 0);
}

void TestHttpHelper::replyIsDeleted()
{
    TestHttpServer server;
    HttpHelper helper;
    const QPointer<QNetworkReply> good = helper.get(server.baseUrl(), nullptr, nullptr);
    QTRY_VERIFY(!good);
    server.setAnswer("{}", 404);
    const QPointer<QNetworkReply> bad = helper.get(server.baseUrl(), nullptr, nullptr);
    QTRY_VERIFY(!bad);
}

void TestHttpHelper::oneAccessManager()
{
    TestHttpServer server;
    QObject owner;
    auto *helper = new HttpHelper(&owner);
    QCOMPARE(helper->parent(), &owner);
    QVERIFY(helper->findChildren<QNetworkAccessManager *>().isEmpty());
    Outcome outcome;
    helper->get(server.baseUrl(), outcome.onSuccess(), nullptr);
    helper->post(server.baseUrl(), QStringLiteral("{}"), outcome.onSuccess(), nullptr);
    QTRY_COMPARE(outcome.successes.size(), 2);
    QCOMPARE(helper->findChildren<QNetworkAccessManager *>().size(), 1);
}

void TestHttpHelper::downloadProgress()
{
    TestHttpServer server;
    const QByteArray body(100000, ' ');
    server.setAnswer(body);
    HttpHelper helper;
    QSignalSpy progress(&helper, &HttpHelper::sigDownloadProgress);
    QSignalSpy success(&helper, &HttpHelper::sigDownloadSuccess);
    QSignalSpy failure(&helper, &HttpHelper::sigDownloadFailed);
    Outcome outcome;
    helper.post(server.baseUrl(), QStringLiteral("{}"), outcome.onSuccess(), nullptr);
    QTRY_COMPARE(outcome.successes.size(), 1);
    QCOMPARE(progress.count(), 0);

    helper.get(server.baseUrl(), outcome.onSuccess(), nullptr);
    QTRY_COMPARE(outcome.successes.size(), 2);
    QVERIFY(progress.count() > 0);
    QCOMPARE(progress.constLast(), (QVariantList{qint64(body.size()), qint64(body.size())}));

    server.setAnswer("{}", 500);
    helper.get(server.baseUrl(), nullptr, outcome.onError());
    QTRY_COMPARE(outcome.errors.size(), 1);
    QCOMPARE(success.count(), 0);
    QCOMPARE(failure.count(), 0);
}

void TestHttpHelper::destroyedHelperNeverCallsBack()
{
    TestHttpServer server;
    server.hold();
    Outcome dropped;
    auto owner = std::make_unique<QObject>();
    auto *helper = new HttpHelper(owner.get());
    const QPointer<QNetworkReply> reply
        = helper->get(server.baseUrl(), dropped.onSuccess(), dropped.onError());
    QSignalSpy received(&server, &TestHttpServer::requestReceived);
    QVERIFY(received.wait());
    owner.reset();
    QVERIFY(!reply);
    QCOMPARE(dropped.count(), 0);
    server.release();

    // Whatever was on its way has arrived once a later request is through.
    HttpHelper other;
    Outcome later;
    other.get(server.baseUrl(), later.onSuccess(), later.onError());
    QTRY_COMPARE(later.successes.size(), 1);
    QCOMPARE(dropped.count(), 0);
}

void TestHttpHelper::callbackMayDestroyTheHelper_data()
{
    QTest::addColumn<int>("status");
    QTest::newRow("success") << 200;
    QTest::newRow("error") << 500;
}

void TestHttpHelper::callbackMayDestroyTheHelper()
{
    QFETCH(int, status);
    TestHttpServer server;
    server.setAnswer("{}", status);
    auto helper = std::make_unique<HttpHelper>();
    const QPointer<QNetworkReply> reply = helper->get(
        server.baseUrl(), [&](const ResponseData &) { helper.reset(); },
        [&](const QString &) { helper.reset(); });
    QTRY_VERIFY(!helper);
    QTRY_VERIFY(!reply);
}

void TestHttpHelper::apiBaseUrl_data()
{
    QTest::addColumn<QString>("override");
    QTest::addColumn<QString>("root");
    QTest::addColumn<bool>("warns");
    const QString built = QStringLiteral(ORVANE_API_BASE_URL);
    QTest::newRow("build setting") << QString() << built << false;
    QTest::newRow("loopback") << "http://127.0.0.1:9"
                              << "http://127.0.0.1:9" << false;
    QTest::newRow("https") << "https://api.example.test/r"
                           << "https://api.example.test/r" << false;
    QTest::newRow("refused") << "http://api.example.test" << built << true;
}

// The root is chosen once per process, so each case has a process of its own.
void TestHttpHelper::apiBaseUrl()
{
    QFETCH(QString, override);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("ORVANE_API_BASE_URL"));
    if (!override.isEmpty())
        environment.insert(QStringLiteral("ORVANE_API_BASE_URL"), override);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(printRootArgument)});
    QVERIFY(process.waitForFinished());
    QTEST(QString::fromUtf8(process.readAllStandardOutput()), "root");
    QTEST(process.readAllStandardError().contains("ORVANE_API_BASE_URL is ignored"), "warns");
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 2 && std::strcmp(argv[1], printRootArgument) == 0) {
        std::fputs(HttpHelper::apiBaseUrl().toUtf8().constData(), stdout);
        return 0;
    }
    TestHttpHelper test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_httphelper.moc"
