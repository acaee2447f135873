#include "Recorder.h"
#include "TestHttpServer.h"
#include "WebTestSupport.h"

#include "device/SingleController.h"
#include "device/StandbyWidget.h"
#include "net/HttpHelper.h"
#include "web/OvMainWindowJsApi.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QMetaMethod>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

using webtest::callText;
using webtest::evaluate;

// The main window's API: the session's identity, device windows, giving devices back. A real page holds the
// local storage; a local HTTP server receives the requests.
class TestOvMainWindowJsApi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void interfaceOrder();
    void loginParamsAreStored();
    void emptyLoginParamsComeFromLocalStorage();
    void emptyLoginParamsWithoutLocalStorage();
    void opensADeviceWindow();
    void secondOpenRestoresTheFirstWindow();
    void closeButtonGivesTheDeviceBack();
    void exitFromStandbyGivesTheDeviceBack();
    void closedWindowIsForgotten();
    void opensWithoutAServiceId_data();
    void opensWithoutAServiceId();
    void destructionClosesTheWindows();
    void standbyTimeComesFromLocalStorage_data();
    void standbyTimeComesFromLocalStorage();
    void standbyTimeReachesEveryOpenWindow();
    void logoutClosesTheWindows();
    void updateIsPassedOn_data();
    void updateIsPassedOn();

private:
    // Bodies of the requests with that action, oldest first.
    QList<QJsonObject> requests(const QString &action) const;
    void open(const QString &serviceId, const QString &name);

    QTemporaryDir m_dir;
    QScopedPointer<TestHttpServer> m_server;
    QScopedPointer<OvWebContainer> m_container;
    OvMainWindowJsApi *m_api = nullptr;
};

void TestOvMainWindowJsApi::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    // The API's root is chosen once for the process.
    m_server.reset(new TestHttpServer);
    qputenv("ORVANE_API_BASE_URL", m_server->baseUrl().toUtf8());
    QCOMPARE(HttpHelper::apiBaseUrl(), m_server->baseUrl());
    QFile page(m_dir.filePath(QStringLiteral("page.html")));
    QVERIFY(page.open(QIODevice::WriteOnly));
    page.write("<title>page</title>");
}

void TestOvMainWindowJsApi::init()
{
    m_server->setAnswer(R"({"code":409,"msg":"not now"})");
    m_container.reset(new OvWebContainer(nullptr));
    QSignalSpy loaded(m_container->webView(), &QWebEngineView::loadFinished);
    m_container->load(QStringLiteral("file:///") + m_dir.filePath(QStringLiteral("page.html")));
    QVERIFY(loaded.wait(20000));
    evaluate(m_container->webView()->page(), QStringLiteral("window.localStorage.clear()"));
    m_api = new OvMainWindowJsApi(m_container->webView());
    HttpHelper::setLoginParams({}, {});
}

void TestOvMainWindowJsApi::cleanup()
{
    m_container.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QList<QJsonObject> TestOvMainWindowJsApi::requests(const QString &action) const
{
    QList<QJsonObject> bodies;
    for (const TestHttpServer::Request &request : m_server->requests()) {
        const QJsonObject body = QJsonDocument::fromJson(request.body).object();
        if (request.path == "/apiv1/device/actionDevice"
            && body.value(QStringLiteral("action_type")).toString() == action)
            bodies << body;
    }
    return bodies;
}

void TestOvMainWindowJsApi::open(const QString &serviceId, const QString &name)
{
    m_api->callJsApi(callText(QStringLiteral("openSingleControlWnd"),
        {{QStringLiteral("serviceId"), serviceId}, {QStringLiteral("aliasName"), name}}));
}

void TestOvMainWindowJsApi::interfaceOrder()
{
    QStringList slotNames;
    const QMetaObject &meta = OvMainWindowJsApi::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Slot)
            slotNames << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(slotNames,
        (QStringList{QStringLiteral("onOpenSingleController(QString,QString)"),
            QStringLiteral("onOpenWebSingleController(web::StreamingData)"),
            QStringLiteral("onUpdateGroup()"), QStringLiteral("onCheckUnbindDevice()"),
            QStringLiteral("onCloseGroupControlWnd()")}));
}

void TestOvMainWindowJsApi::loginParamsAreStored()
{
    evaluate(m_container->webView()->page(),
        QStringLiteral("window.localStorage.setItem('accessToken', 'stored')"));
    m_api->callJsApi(callText(QStringLiteral("setLoginParams"),
        {{QStringLiteral("access-token"), QStringLiteral("token-1")},
            {QStringLiteral("login-id"), QStringLiteral("login-1")}}));
    QCOMPARE(HttpHelper::accessToken(), QStringLiteral("token-1"));
    QCOMPARE(HttpHelper::loginId(), QStringLiteral("login-1"));
    // The page is not asked: what it has stored changes nothing.
    evaluate(m_container->webView()->page(), QStringLiteral("1"));
    QCOMPARE(HttpHelper::accessToken(), QStringLiteral("token-1"));
}

void TestOvMainWindowJsApi::emptyLoginParamsComeFromLocalStorage()
{
    QWebEnginePage *page = m_container->webView()->page();
    evaluate(page, QStringLiteral("window.localStorage.setItem('accessToken', 'stored-token')"));
    evaluate(page, QStringLiteral("window.localStorage.setItem('loginId', 'stored-login')"));
    const webtest::LogCapture log;
    m_api->callJsApi(callText(QStringLiteral("setLoginParams")));
    QTRY_COMPARE(HttpHelper::accessToken(), QStringLiteral("stored-token"));
    QTRY_COMPARE(HttpHelper::loginId(), QStringLiteral("stored-login"));
    QVERIFY(webtest::LogCapture::text().contains(
        QStringLiteral("get access-token from local storage, access-token ---> stored-token")));
}

void TestOvMainWindowJsApi::emptyLoginParamsWithoutLocalStorage()
{
    const webtest::LogCapture log;
    m_api->callJsApi(
        callText(QStringLiteral("setLoginParams"), {{QStringLiteral("login-id"), QJsonArray()}}));
    // Answers come in order: after this one the reads are done.
    evaluate(m_container->webView()->page(), QStringLiteral("1"));
    QVERIFY(HttpHelper::accessToken().isEmpty());
    QVERIFY(HttpHelper::loginId().isEmpty());
    QVERIFY(webtest::LogCapture::text().filter(QStringLiteral("from local storage")).isEmpty());
}

void TestOvMainWindowJsApi::opensADeviceWindow()
{
    const int before = requests(QStringLiteral("device_apply")).size();
    open(QStringLiteral("100001"), QStringLiteral("Aurora"));
    SingleController *window = m_api->singleController(QStringLiteral("100001"));
    QVERIFY(window);
    QVERIFY(window->isVisible());
    QCOMPARE(window->serviceId(), QStringLiteral("100001"));
    QCOMPARE(window->deviceName(), QStringLiteral("Aurora"));
    QVERIFY(!window->parent());
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(window->pos(),
        available.topLeft()
            + QPoint((available.width() - window->width()) / 2, (available.height() - window->height()) / 2));
    QTRY_COMPARE(requests(QStringLiteral("device_apply")).size(), before + 1);
    QCOMPARE(requests(QStringLiteral("device_apply")).last().value(QStringLiteral("service_id")).toString(),
        QStringLiteral("100001"));
}

void TestOvMainWindowJsApi::secondOpenRestoresTheFirstWindow()
{
    open(QStringLiteral("100001"), QStringLiteral("Aurora"));
    const int applied = requests(QStringLiteral("device_apply")).size();
    SingleController *window = m_api->singleController(QStringLiteral("100001"));
    QVERIFY(QTest::qWaitForWindowExposed(window));
    window->showMinimized();
    QTRY_VERIFY(window->isMinimized());

    open(QStringLiteral("100001"), QStringLiteral("Another name"));
    QCOMPARE(m_api->singleController(QStringLiteral("100001")), window);
    QTRY_VERIFY(!window->isMinimized());
    QVERIFY(window->isVisible());
    QVERIFY(requests(QStringLiteral("device_apply")).size() <= applied + 1);

    open(QStringLiteral("100002"), QStringLiteral("Breeze"));
    QVERIFY(m_api->singleController(QStringLiteral("100002")) != window);
}

void TestOvMainWindowJsApi::closeButtonGivesTheDeviceBack()
{
    open(QStringLiteral("100003"), QStringLiteral("Comet"));
    const int before = requests(QStringLiteral("device_unbind")).size();
    m_api->singleController(QStringLiteral("100003"))->onBtnCloseClicked();
    QTRY_COMPARE(requests(QStringLiteral("device_unbind")).size(), before + 1);
    QCOMPARE(requests(QStringLiteral("device_unbind")).last(),
        (QJsonObject{{QStringLiteral("service_id"), QStringLiteral("100003")},
            {QStringLiteral("action_type"), QStringLiteral("device_unbind")}}));
}

void TestOvMainWindowJsApi::exitFromStandbyGivesTheDeviceBack()
{
    open(QStringLiteral("100011"), QStringLiteral("Iris"));
    const QPointer<SingleController> window = m_api->singleController(QStringLiteral("100011"));
    const int before = requests(QStringLiteral("device_unbind")).size();
    emit window->findChild<StandbyWidget *>()->sigExitBtnClicked();
    QTRY_COMPARE(requests(QStringLiteral("device_unbind")).size(), before + 1);
    QCOMPARE(requests(QStringLiteral("device_unbind")).last().value(QStringLiteral("service_id")).toString(),
        QStringLiteral("100011"));
    QTRY_VERIFY(window.isNull());
}

void TestOvMainWindowJsApi::closedWindowIsForgotten()
{
    open(QStringLiteral("100004"), QStringLiteral("Dune"));
    const QPointer<SingleController> first = m_api->singleController(QStringLiteral("100004"));
    first->onBtnCloseClicked();
    QTRY_VERIFY(first.isNull());
    QCOMPARE(m_api->singleController(QStringLiteral("100004")), nullptr);
    open(QStringLiteral("100004"), QStringLiteral("Dune"));
    QVERIFY(m_api->singleController(QStringLiteral("100004")));
}

void TestOvMainWindowJsApi::opensWithoutAServiceId_data()
{
    QTest::addColumn<QString>("call");
    QTest::newRow("missing") << R"({"jsApiName":"openSingleControlWnd"})";
    QTest::newRow("wrong type") << R"({"jsApiName":"openSingleControlWnd","serviceId":["1"],"aliasName":{}})";
    QTest::newRow("empty") << R"({"jsApiName":"openSingleControlWnd","serviceId":"","aliasName":"x"})";
}

void TestOvMainWindowJsApi::opensWithoutAServiceId()
{
    QFETCH(QString, call);
    const auto windows = [] {
        int count = 0;
        for (const QWidget *widget : QApplication::topLevelWidgets())
            count += qobject_cast<const SingleController *>(widget) != nullptr;
        return count;
    };
    const int before = windows();
    m_api->callJsApi(call);
    QCOMPARE(windows(), before);
}

void TestOvMainWindowJsApi::destructionClosesTheWindows()
{
    open(QStringLiteral("100005"), QStringLiteral("Ember"));
    const QPointer<SingleController> window = m_api->singleController(QStringLiteral("100005"));
    m_container.reset();
    QTRY_VERIFY(window.isNull());
}

void TestOvMainWindowJsApi::standbyTimeComesFromLocalStorage_data()
{
    QTest::addColumn<QString>("stored"); // what the page runs first
    QTest::addColumn<int>("minutes");
    QTest::newRow("number") << "window.localStorage.setItem('standbyTime', '30')" << 30;
    QTest::newRow("none") << "1" << 5;
    QTest::newRow("no number") << "window.localStorage.setItem('standbyTime', 'soon')" << 5;
}

void TestOvMainWindowJsApi::standbyTimeComesFromLocalStorage()
{
    QFETCH(QString, stored);
    QWebEnginePage *page = m_container->webView()->page();
    evaluate(page, stored);
    open(QStringLiteral("100006"), QStringLiteral("Fjord"));
    evaluate(page, QStringLiteral("1")); // answers come in order
    QTEST(m_api->singleController(QStringLiteral("100006"))->standbyTime(), "minutes");
}

void TestOvMainWindowJsApi::standbyTimeReachesEveryOpenWindow()
{
    open(QStringLiteral("100007"), QStringLiteral("Glade"));
    open(QStringLiteral("100008"), QStringLiteral("Harbor"));
    evaluate(m_container->webView()->page(), QStringLiteral("1"));
    m_api->callJsApi(callText(QStringLiteral("setStandbyTime"), {{QStringLiteral("standbyTime"), 12}}));
    QCOMPARE(m_api->singleController(QStringLiteral("100007"))->standbyTime(), 12);
    QCOMPARE(m_api->singleController(QStringLiteral("100008"))->standbyTime(), 12);
}

void TestOvMainWindowJsApi::logoutClosesTheWindows()
{
    open(QStringLiteral("100009"), QStringLiteral("Iris"));
    open(QStringLiteral("100010"), QStringLiteral("Juniper"));
    const QPointer<SingleController> first = m_api->singleController(QStringLiteral("100009"));
    const QPointer<SingleController> second = m_api->singleController(QStringLiteral("100010"));
    bool visibleAtSignal = true;
    connect(m_api, &OvMainWindowJsApi::sigLogout, this,
        [&] { visibleAtSignal = (first && first->isVisible()) || (second && second->isVisible()); });
    QSignalSpy loggedOut(m_api, &OvMainWindowJsApi::sigLogout);
    m_api->callJsApi(callText(QStringLiteral("logout")));
    QCOMPARE(loggedOut.count(), 1);
    QVERIFY(!visibleAtSignal);
    QTRY_VERIFY(first.isNull() && second.isNull());
    m_api->callJsApi(callText(QStringLiteral("logout"))); // nothing is open
    QCOMPARE(loggedOut.count(), 2);
}

void TestOvMainWindowJsApi::updateIsPassedOn_data()
{
    QTest::addColumn<QString>("members");
    QTest::addColumn<QString>("path"); // empty: no signal
    QTest::addColumn<QString>("files");
    QTest::newRow("update")
        << R"("pc_update_info":{"update_path":"http://x/release","file_info":[{"file_name":"a.exe"}]})"
        << "http://x/release"
        << R"([{"file_name":"a.exe"}])";
    QTest::newRow("no files") << R"("pc_update_info":{"update_path":"http://x"})"
                              << "http://x"
                              << "[]";
    QTest::newRow("files of a wrong type")
        << R"("pc_update_info":{"update_path":"http://x","file_info":{"file_name":"a.exe"}})"
        << "http://x"
        << "[]";
    QTest::newRow("empty path") << R"("pc_update_info":{"update_path":"","file_info":[{}]})"
                                << ""
                                << "[]";
    QTest::newRow("path of a wrong type") << R"("pc_update_info":{"update_path":7})"
                                          << ""
                                          << "[]";
    QTest::newRow("wrong type") << R"("pc_update_info":"http://x")"
                                << ""
                                << "[]";
    QTest::newRow("missing") << R"("other":1)"
                             << ""
                             << "[]";
}

void TestOvMainWindowJsApi::updateIsPassedOn()
{
    QFETCH(QString, members);
    QFETCH(QString, path);
    QFETCH(QString, files);
    QSignalSpy update(m_api, &OvMainWindowJsApi::sigUpdateNewVersion);
    m_api->callJsApi(QStringLiteral(R"({"jsApiName":"updateNewVersion",%1})").arg(members));
    QCOMPARE(update.count(), path.isEmpty() ? 0 : 1);
    if (path.isEmpty())
        return;
    QCOMPARE(update.at(0).at(0).toString(), path);
    QCOMPARE(update.at(0).at(1).toJsonArray(), QJsonDocument::fromJson(files.toUtf8()).array());
}

QTEST_MAIN(TestOvMainWindowJsApi)
#include "tst_ovmainwindowjsapi.moc"
