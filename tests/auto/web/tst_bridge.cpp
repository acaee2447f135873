#include "Recorder.h"
#include "TestHttpServer.h"
#include "WebTestSupport.h"

#include "app/TranslateManager.h"
#include "device/SingleController.h"
#include "group/GroupWindow.h"
#include "net/HttpHelper.h"
#include "web/OvMainWindow.h"
#include "web/OvMainWindowJsApi.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"
#include "web/WebSingleController.h"

#include <QDesktopServices>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QJsonArray>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

using webtest::evaluate;

namespace {

class SilentGroupWindow : public GroupWindow
{
public:
    SilentGroupWindow() { setAttribute(Qt::WA_DeleteOnClose); }
    void setDevices(const group::GroupDevices &devices) override { ids = devices.keys(); }
    void setGroupName(const QString &groupName) override { name = groupName; }
    void onDeviceExpireNotice(const QString &serviceId, const QString &, int minutes) override
    {
        told << QStringLiteral("%1 in %2").arg(serviceId).arg(minutes);
    }
    void onDeviceExpired(const QString &serviceId, const QString &) override { told << serviceId; }
    void resumeDevice(const QString &) override { }
    bool contains(const QString &serviceId) const override { return ids.contains(serviceId); }
    QStringList serviceIds() const override { return ids; }

    QStringList ids;
    QString name;
    QStringList told;
};

// Receives what the system's browser would open.
class UrlReceiver : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> urls;

public slots:
    void open(const QUrl &url) { urls << url; }
};

// Resident memory of this process, KiB.
qint64 residentKiB()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = file.readAll();
    const int at = text.indexOf("VmRSS:");
    return text.mid(at + 6, text.indexOf("kB", at) - at - 6).trimmed().toLongLong();
}

} // namespace

// Every operation that the page can ask for, called by a page in the main window over the web channel.
class TestBridge : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void appInfo();
    void windowOperations();
    void language();
    void openUrl();
    void processes();
    void log();
    void loginParams();
    void deviceWindow();
    void webDeviceWindow();
    void groupWindow();
    void update();
    void logout();
    void closeWindow();
    void nonsense_data();
    void nonsense();
    void floodOfCalls();

private:
    QWebEnginePage *page() const { return m_window->webContainer()->webView()->page(); }
    // Calls the bridge from the page with a JavaScript object.
    void call(const QString &object) const;
    QVariant answer() const { return evaluate(page(), QStringLiteral("JSON.stringify(window.answers)")); }

    QTemporaryDir m_dir;
    QScopedPointer<TestHttpServer> m_server;
    QScopedPointer<OvMainWindow> m_window;
};

void TestBridge::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    m_server.reset(new TestHttpServer);
    qputenv("ORVANE_API_BASE_URL", m_server->baseUrl().toUtf8());
    QFile file(m_dir.filePath(QStringLiteral("page.html")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"(<title>page</title><script src="qrc:///qtwebchannel/qwebchannel.js"></script><script>
window.answers = [];
window.answer = result => window.answers.push(result);
window.clusterOpened = () => {};
new QWebChannel(qt.webChannelTransport, channel => { window.clientApi = channel.objects.clientApi; });
</script>)");
}

void TestBridge::init()
{
    m_server->setAnswer(R"({"code":409,"msg":"not now"})");
    m_window.reset(new OvMainWindow);
    m_window->show();
    OvWebContainer *container = m_window->webContainer();
    QSignalSpy loaded(container->webView(), &QWebEngineView::loadFinished);
    container->load(QUrl::fromLocalFile(m_dir.filePath(QStringLiteral("page.html"))).toString());
    QTRY_VERIFY_WITH_TIMEOUT(
        evaluate(page(), QStringLiteral("document.title === 'page' && !!window.clientApi")).toBool(), 20000);
    evaluate(page(), QStringLiteral("window.localStorage.clear()"));
    HttpHelper::setLoginParams({}, {});
}

void TestBridge::cleanup()
{
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestBridge::call(const QString &object) const
{
    evaluate(page(), QStringLiteral("window.clientApi.callJsApi(JSON.stringify(%1))").arg(object));
}

void TestBridge::appInfo()
{
    call(QStringLiteral("{jsApiName: 'getAppInfo', callback: 'window.answer'}"));
    QTRY_COMPARE(answer().toString(), QStringLiteral(R"([{"appVersion":"1.2.5"}])"));
}

void TestBridge::windowOperations()
{
    call(QStringLiteral("{jsApiName: 'setWindowSize', width: 1100, height: 750}"));
    QTRY_COMPARE(m_window->size(), QSize(1120, 770));
    const QPoint before = m_window->pos();
    call(QStringLiteral("{jsApiName: 'moveWindow', x: 7, y: -3}"));
    QTRY_COMPARE(m_window->pos(), before + QPoint(7, -3));
    const QRect normal = m_window->geometry();
    call(QStringLiteral("{jsApiName: 'maximizeWindow'}"));
    QTRY_COMPARE(
        m_window->geometry(), QGuiApplication::primaryScreen()->availableGeometry().adjusted(-3, -3, 3, 3));
    call(QStringLiteral("{jsApiName: 'restoreWindow'}"));
    QTRY_COMPARE(m_window->geometry(), normal);
    call(QStringLiteral("{jsApiName: 'minimizeWindow'}"));
    QTRY_VERIFY(m_window->isMinimized());
}

void TestBridge::language()
{
    call(QStringLiteral("{jsApiName: 'setLanguage', lang: 'ind'}"));
    QTRY_COMPARE(HttpHelper::language(), QStringLiteral("ind"));
    // The service sees it with the next request.
    call(QStringLiteral("{jsApiName: 'openSingleControlWnd', serviceId: '1', aliasName: 'One'}"));
    QTRY_VERIFY(
        !m_server->requests().isEmpty() && m_server->requests().last().header("lang") == QByteArray("ind"));
}

void TestBridge::openUrl()
{
    UrlReceiver receiver;
    QDesktopServices::setUrlHandler(QStringLiteral("orvanetest"), &receiver, "open");
    call(QStringLiteral("{jsApiName: 'openUrl', url: 'orvanetest://renew?x=1'}"));
    QTRY_COMPARE(receiver.urls, QList<QUrl>{QUrl(QStringLiteral("orvanetest://renew?x=1"))});
    call(QStringLiteral("{jsApiName: 'openInnerBrowser', url: 'orvanetest://renew'}"));
    QCOMPARE(receiver.urls.count(), 1);
    QDesktopServices::unsetUrlHandler(QStringLiteral("orvanetest"));
}

void TestBridge::processes()
{
    call(QStringLiteral("{jsApiName: 'execProcess', command: '/bin/echo', params: 'one  two', "
                        "callback: 'window.answer'}"));
    QTRY_COMPARE(evaluate(page(), QStringLiteral("window.answers[0] && window.answers[0].msg")).toString(),
        QStringLiteral("one two\n"));
    QCOMPARE(evaluate(page(), QStringLiteral("window.answers[0].code")).toInt(), 0);
    call(QStringLiteral("{jsApiName: 'execProcess', command: '/bin/sleep', params: '600', "
                        "callback: 'window.answer'}"));
    call(QStringLiteral("{jsApiName: 'stopExecProcess'}"));
    QTRY_COMPARE(evaluate(page(), QStringLiteral("window.answers[1] && window.answers[1].msg")).toString(),
        QStringLiteral("Crashed"));
}

void TestBridge::log()
{
    const webtest::LogCapture capture;
    call(QStringLiteral("{jsApiName: 'writeLog', log: 'from the page'}"));
    QTRY_VERIFY(webtest::LogCapture::text().contains(QStringLiteral("webLog ---> from the page")));
}

void TestBridge::loginParams()
{
    call(QStringLiteral("{jsApiName: 'setLoginParams', 'access-token': 'token', 'login-id': 'login'}"));
    QTRY_COMPARE(HttpHelper::accessToken(), QStringLiteral("token"));
    QCOMPARE(HttpHelper::loginId(), QStringLiteral("login"));
    evaluate(page(), QStringLiteral("window.localStorage.setItem('accessToken', 'stored')"));
    call(QStringLiteral("{jsApiName: 'setLoginParams', 'access-token': '', 'login-id': 'login'}"));
    QTRY_COMPARE(HttpHelper::accessToken(), QStringLiteral("stored"));
}

void TestBridge::deviceWindow()
{
    call(QStringLiteral("{jsApiName: 'openSingleControlWnd', serviceId: '100001', aliasName: 'Aurora'}"));
    QTRY_VERIFY(m_window->jsApi()->singleController(QStringLiteral("100001")));
    const QPointer<SingleController> window = m_window->jsApi()->singleController(QStringLiteral("100001"));
    QVERIFY(window->isVisible());
    call(QStringLiteral("{jsApiName: 'setStandbyTime', standbyTime: 9}"));
    QTRY_COMPARE(window->standbyTime(), 9);
}

void TestBridge::webDeviceWindow()
{
    evaluate(page(),
        QStringLiteral("window.clientApi.onOpenWebSingleController({serviceId: '100002', aliasName: 'B'})"));
    QTRY_VERIFY(m_window->jsApi()->webSingleController(QStringLiteral("100002")));
}

void TestBridge::groupWindow()
{
    QPointer<SilentGroupWindow> group;
    m_window->jsApi()->setGroupWindowFactory([&group] {
        group = new SilentGroupWindow;
        return group.data();
    });
    call(QStringLiteral("{jsApiName: 'openGroupControlWnd', winData: {label: 'Farm', children: "
                        "[{service_id: '2'}, {service_id: '1'}]}}"));
    QTRY_VERIFY(group);
    QCOMPARE(group->ids, (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
    QCOMPARE(group->name, QStringLiteral("Farm"));
    call(QStringLiteral(
        "{jsApiName: 'showRenewWnd', params: {service_id: '1', device_id: 'VM1', expire_notice: 30}}"));
    call(QStringLiteral("{jsApiName: 'deviceExpiration', params: {service_id: '2', device_id: 'VM2'}}"));
    QTRY_COMPARE(group->told, (QStringList{QStringLiteral("1 in 30"), QStringLiteral("2")}));
}

void TestBridge::update()
{
    QSignalSpy update(m_window->jsApi(), &OvMainWindowJsApi::sigUpdateNewVersion);
    call(
        QStringLiteral("{jsApiName: 'updateNewVersion', pc_update_info: {update_path: 'http://x', file_info: "
                       "[{file_name: 'a.exe'}]}}"));
    QTRY_COMPARE(update.count(), 1);
    QCOMPARE(update.at(0).at(0).toString(), QStringLiteral("http://x"));
}

void TestBridge::logout()
{
    call(QStringLiteral("{jsApiName: 'setWindowSize', width: 1100, height: 750}"));
    QTRY_COMPARE(m_window->size(), QSize(1120, 770));
    call(QStringLiteral("{jsApiName: 'logout'}"));
    QTRY_COMPARE(m_window->size(), QSize(320, 508));
    QTRY_COMPARE(page()->url(), QUrl(OvMainWindow::frontEndUrl()));
}

void TestBridge::closeWindow()
{
    const QPointer<OvWebContainer> container = m_window->webContainer();
    call(QStringLiteral("{jsApiName: 'closeWindow'}"));
    QTRY_VERIFY(!m_window->isVisible());
    QTRY_VERIFY(container.isNull());
}

void TestBridge::nonsense_data()
{
    QTest::addColumn<QString>("argument"); // of callJsApi, in JavaScript
    QTest::newRow("unknown name") << "'{\"jsApiName\":\"formatDisk\"}'";
    QTest::newRow("name of a slot with other arguments") << "'{\"jsApiName\":\"callJsApi\"}'";
    QTest::newRow("name of a signal") << "'{\"jsApiName\":\"sigLogout\"}'";
    QTest::newRow("name of another slot") << "'{\"jsApiName\":\"deleteLater\"}'";
    QTest::newRow("name with a signature") << "'{\"jsApiName\":\"logout(const Context&)\"}'";
    QTest::newRow("empty name") << "'{\"jsApiName\":\"\"}'";
    QTest::newRow("name of a wrong type") << "'{\"jsApiName\":[\"logout\"]}'";
    QTest::newRow("no name") << "'{}'";
    QTest::newRow("malformed") << "'{\"jsApiName\":\"logout\"'";
    QTest::newRow("no object") << "'[\"logout\"]'";
    QTest::newRow("empty") << "''";
    QTest::newRow("move of a wrong type") << "'{\"jsApiName\":\"moveWindow\",\"x\":\"far\",\"y\":{}}'";
    QTest::newRow("move without members") << "'{\"jsApiName\":\"moveWindow\"}'";
    QTest::newRow("huge move") << "'{\"jsApiName\":\"moveWindow\",\"x\":1e300,\"y\":-1e300}'";
    QTest::newRow("window without an id") << "'{\"jsApiName\":\"openSingleControlWnd\",\"aliasName\":\"x\"}'";
    QTest::newRow("update without information") << "'{\"jsApiName\":\"updateNewVersion\"}'";
    QTest::newRow("expiry without a group") << "'{\"jsApiName\":\"deviceExpiration\",\"params\":7}'";
    QTest::newRow("warning without a group") << "'{\"jsApiName\":\"showRenewWnd\"}'";
    QTest::newRow("stop without a program") << "'{\"jsApiName\":\"stopExecProcess\",\"command\":7}'";
    QTest::newRow("no text") << "{jsApiName: 'logout'}";
    QTest::newRow("null") << "null";
    QTest::newRow("number") << "7";
    QTest::newRow("nothing") << "";
    QTest::newRow("two arguments") << "'{}', 7";
    QTest::newRow("deep") << "'['.repeat(5000)";
    QTest::newRow("large") << "'x'.repeat(3000000)";
}

// Nothing changes, and the next call works.
void TestBridge::nonsense()
{
    QFETCH(QString, argument);
    QSignalSpy loggedOut(m_window->jsApi(), &OvMainWindowJsApi::sigLogout);
    const QRect before = m_window->geometry();
    const QString identity = HttpHelper::accessToken() + HttpHelper::loginId() + HttpHelper::language();
    const int windows = QApplication::topLevelWidgets().count();
    evaluate(page(), QStringLiteral("window.clientApi.callJsApi(%1); 1").arg(argument));
    call(QStringLiteral("{jsApiName: 'getAppInfo', callback: 'window.answer'}"));
    QTRY_COMPARE(answer().toString(), QStringLiteral(R"([{"appVersion":"1.2.5"}])"));
    QCOMPARE(loggedOut.count(), 0);
    QCOMPARE(m_window->geometry(), before);
    QVERIFY(m_window->isVisible());
    QCOMPARE(HttpHelper::accessToken() + HttpHelper::loginId() + HttpHelper::language(), identity);
    QCOMPARE(QApplication::topLevelWidgets().count(), windows);
}

// A thousand calls a second, moves among them, as a page does it that logs while it is dragged.
void TestBridge::floodOfCalls()
{
    constexpr int seconds = 10;
    constexpr int warmUp = 2;
    call(QStringLiteral("{jsApiName: 'setWindowSize', width: 1000, height: 720}"));
    QTRY_COMPARE(m_window->size(), QSize(1020, 740));
    const QPoint before = m_window->pos();
    // Ten calls every 10 ms; the moves lead back and forth.
    evaluate(page(),
        QStringLiteral(R"(
window.sent = 0;
window.answers = [];
window.flood = setInterval(() => {
    const due = Math.min(%1, Math.floor((performance.now() - window.began)));
    while (window.sent < due) {
        const odd = window.sent % 2;
        const text = odd ? JSON.stringify({jsApiName: 'moveWindow', x: window.sent % 4 === 1 ? 1 : -1, y: 0})
            : JSON.stringify({jsApiName: 'writeLog', log: 'line ' + window.sent});
        window.clientApi.callJsApi(text);
        ++window.sent;
    }
    if (window.sent >= %1) {
        clearInterval(window.flood);
        window.clientApi.callJsApi(JSON.stringify({jsApiName: 'getAppInfo', callback: 'window.answer'}));
    }
}, 10);
window.began = performance.now();
1)")
            .arg(1000 * (seconds + warmUp)));
    qint64 largestGapMs = 0;
    qint64 memoryAfterWarmUp = 0;
    QElapsedTimer sinceTick;
    QElapsedTimer total;
    QTimer ticker;
    ticker.setTimerType(Qt::PreciseTimer);
    connect(&ticker, &QTimer::timeout, this, [&] {
        largestGapMs = qMax(largestGapMs, sinceTick.restart());
        if (memoryAfterWarmUp == 0 && total.elapsed() > 1000 * warmUp) {
            memoryAfterWarmUp = residentKiB();
            largestGapMs = 0;
        }
    });
    sinceTick.start();
    total.start();
    ticker.start(1);
    // Not QEventLoop::exec: it returns at once after the window of an earlier test has ended the program.
    bool answered = false;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        page()->runJavaScript(QStringLiteral("window.answers.length"),
            [&answered](const QVariant &count) { answered = answered || count.toInt() > 0; });
    });
    poll.start(250);
    while (!answered && total.elapsed() < 60000)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    poll.stop();
    ticker.stop();
    const qint64 grownKiB = residentKiB() - memoryAfterWarmUp;
    qInfo("%d calls in %.1f s, largest gap of the event loop %d ms, memory grown by %d KiB",
        evaluate(page(), QStringLiteral("window.sent")).toInt(), double(total.elapsed()) / 1000,
        static_cast<int>(largestGapMs), static_cast<int>(grownKiB));
    QCOMPARE(evaluate(page(), QStringLiteral("window.sent")).toInt(), 1000 * (seconds + warmUp));
    QTRY_COMPARE(m_window->pos(), before);
    // Not a limit on the machine's speed, but far from it if every call repaints the window.
    QVERIFY2(largestGapMs < 1000, qPrintable(QString::number(largestGapMs)));
    QVERIFY2(grownKiB < 8 * 1024, qPrintable(QString::number(grownKiB)));
}

QTEST_MAIN(TestBridge)
#include "tst_bridge.moc"
