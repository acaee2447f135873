#include "TestHttpServer.h"
#include "WebTestSupport.h"

#include "device/SingleController.h"
#include "group/GroupWindow.h"
#include "net/HttpHelper.h"
#include "web/OvMainWindowJsApi.h"
#include "web/OvWebContainer.h"
#include "web/OvWebView.h"

#include <QJsonArray>
#include <QPointer>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>

using webtest::callText;
using webtest::evaluate;

namespace {

// A group window that writes down what it is told.
class RecordingGroupWindow : public GroupWindow
{
public:
    explicit RecordingGroupWindow(QStringList *log)
        : m_log(log)
    {
        setAttribute(Qt::WA_DeleteOnClose);
    }
    ~RecordingGroupWindow() override { *m_log << QStringLiteral("deleted"); }

    void setDevices(const group::GroupDevices &devices) override
    {
        m_devices = devices;
        *m_log << QStringLiteral("devices ") + QStringList(devices.keys()).join(QLatin1Char(','));
    }
    void setGroupName(const QString &name) override { *m_log << QStringLiteral("name ") + name; }
    void onDeviceExpireNotice(const QString &serviceId, const QString &deviceName, int minutes) override
    {
        *m_log << QStringLiteral("notice %1 %2 %3").arg(serviceId, deviceName).arg(minutes);
    }
    void onDeviceExpired(const QString &serviceId, const QString &deviceName) override
    {
        *m_log << QStringLiteral("expired %1 %2").arg(serviceId, deviceName);
    }
    void resumeDevice(const QString &serviceId) override { *m_log << QStringLiteral("resume ") + serviceId; }
    bool contains(const QString &serviceId) const override { return m_devices.contains(serviceId); }
    QStringList serviceIds() const override { return m_devices.keys(); }

    const group::GroupDevices &devices() const { return m_devices; }

private:
    QStringList *m_log;
    group::GroupDevices m_devices;
};

QJsonObject child(const QString &serviceId)
{
    return {{QStringLiteral("service_id"), serviceId},
        {QStringLiteral("alias_name"), QStringLiteral("Device %1").arg(serviceId)},
        {QStringLiteral("pay_mode"), QStringLiteral("month")},
        {QStringLiteral("expire_time"), QStringLiteral("2027-01-31 12:34:56")},
        {QStringLiteral("network_time"), QStringLiteral("2026-11-21 09:30:00")}};
}

} // namespace

// The page's group operations: the window, its records, and what single windows owe to an open group.
class TestGroupOperations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void opensAGroup();
    void groupWithoutALabelIsTemporary();
    void secondOpenOnlyTellsThePage();
    void groupWithoutAWindow();
    void childrenThatAreNoDevices();
    void groupCanBeOpenedAgainAfterItsClose();
    void expiryReachesTheGroup();
    void expiryWithoutAGroup();
    void expiryAfterTheClose();
    void closedSingleWindowOfTheGroupIsNotGivenBack();
    void closedSingleWindowOutsideTheGroupIsGivenBack();
    void savedGroupsAreLoadedAgain();
    void deviceOfTheGroupOpensInAWindow();
    void logoutClosesTheGroup();

private:
    void openGroup(const QStringList &serviceIds, const QString &label = QStringLiteral("Farm"));
    // What the page was told about groups, oldest first.
    QString pageCalls();
    QList<QJsonObject> bodies(const QByteArray &path) const;

    QTemporaryDir m_dir;
    QScopedPointer<TestHttpServer> m_server;
    QScopedPointer<OvWebContainer> m_container;
    OvMainWindowJsApi *m_api = nullptr;
    QStringList m_log;
    QPointer<RecordingGroupWindow> m_window;
};

void TestGroupOperations::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    m_server.reset(new TestHttpServer);
    qputenv("ORVANE_API_BASE_URL", m_server->baseUrl().toUtf8());
    QFile page(m_dir.filePath(QStringLiteral("page.html")));
    QVERIFY(page.open(QIODevice::WriteOnly));
    page.write("<title>page</title><script>window.calls = [];"
               "window.clusterOpened = state => window.calls.push(state);"
               "window.getList = (...args) => window.calls.push('list' + args.length);</script>");
}

void TestGroupOperations::init()
{
    m_server->setAnswer(R"({"code":200,"msg":"success","data":{}})");
    m_container.reset(new OvWebContainer(nullptr));
    QSignalSpy loaded(m_container->webView(), &QWebEngineView::loadFinished);
    m_container->load(QStringLiteral("file:///") + m_dir.filePath(QStringLiteral("page.html")));
    QVERIFY(loaded.wait(20000));
    m_log.clear();
    m_api = new OvMainWindowJsApi(m_container->webView());
    m_api->setGroupWindowFactory([this] {
        m_window = new RecordingGroupWindow(&m_log);
        return m_window.data();
    });
}

void TestGroupOperations::cleanup()
{
    m_container.reset();
    delete m_window;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestGroupOperations::openGroup(const QStringList &serviceIds, const QString &label)
{
    QJsonArray children;
    for (const QString &id : serviceIds)
        children.append(child(id));
    m_api->callJsApi(callText(QStringLiteral("openGroupControlWnd"),
        {{QStringLiteral("winData"),
            QJsonObject{{QStringLiteral("label"), label}, {QStringLiteral("children"), children}}}}));
}

QString TestGroupOperations::pageCalls()
{
    return evaluate(m_container->webView()->page(), QStringLiteral("window.calls.join()")).toString();
}

QList<QJsonObject> TestGroupOperations::bodies(const QByteArray &path) const
{
    QList<QJsonObject> found;
    for (const TestHttpServer::Request &request : m_server->requests()) {
        if (request.path == path)
            found << QJsonDocument::fromJson(request.body).object();
    }
    return found;
}

void TestGroupOperations::opensAGroup()
{
    openGroup({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("c")});
    QCOMPARE(m_log, (QStringList{QStringLiteral("devices a,b,c"), QStringLiteral("name Farm")}));
    QCOMPARE(pageCalls(), QStringLiteral("1"));
    QVERIFY(m_window->isVisible());
    QVERIFY(!m_window->parent());
    const group::GroupDevice device = m_window->devices().value(QStringLiteral("b"));
    QCOMPARE(device.serviceId, QStringLiteral("b"));
    QCOMPARE(device.aliasName, QStringLiteral("Device b"));
    QCOMPARE(device.payMode, QStringLiteral("month"));
    QCOMPARE(device.expireTime, QDateTime({2027, 1, 31}, {12, 34, 56}));
    QCOMPARE(device.networkTime, QStringLiteral("2026-11-21 09:30:00"));
    QCOMPARE(device.screenSize, QSize(720, 1280));
}

void TestGroupOperations::groupWithoutALabelIsTemporary()
{
    openGroup({QStringLiteral("a")}, QString());
    QCOMPARE(m_log.last(), QStringLiteral("name Temporary grouping"));
}

void TestGroupOperations::secondOpenOnlyTellsThePage()
{
    openGroup({QStringLiteral("a")});
    const QPointer<RecordingGroupWindow> first = m_window;
    openGroup({QStringLiteral("b")});
    QCOMPARE(m_window, first);
    QCOMPARE(m_log, (QStringList{QStringLiteral("devices a"), QStringLiteral("name Farm")}));
    QCOMPARE(pageCalls(), QStringLiteral("1,1"));
}

// The page must not go on believing that a group is open.
void TestGroupOperations::groupWithoutAWindow()
{
    m_api->setGroupWindowFactory({});
    openGroup({QStringLiteral("a")});
    QCOMPARE(pageCalls(), QStringLiteral("1,0"));
}

void TestGroupOperations::childrenThatAreNoDevices()
{
    m_api->callJsApi(QStringLiteral(
        R"({"jsApiName":"openGroupControlWnd","winData":{"label":7,"children":[
            1, "x", null, [], {"alias_name":"no id"}, {"service_id":100001,"expire_time":"soon"}]}})"));
    QCOMPARE(
        m_log, (QStringList{QStringLiteral("devices 100001"), QStringLiteral("name Temporary grouping")}));
    QVERIFY(!m_window->devices().first().expireTime.isValid());
}

void TestGroupOperations::groupCanBeOpenedAgainAfterItsClose()
{
    openGroup({QStringLiteral("b"), QStringLiteral("a")});
    const int before = bodies("/apiv1/device/batchActionDevice").size();
    m_window->onBtnCloseClicked();
    QTRY_COMPARE(bodies("/apiv1/device/batchActionDevice").size(), before + 1);
    QCOMPARE(bodies("/apiv1/device/batchActionDevice").last(),
        (QJsonObject{{QStringLiteral("service_ids"), QJsonArray{QStringLiteral("a"), QStringLiteral("b")}},
            {QStringLiteral("action_type"), QStringLiteral("device_unbind")}}));
    QCOMPARE(pageCalls(), QStringLiteral("1,0"));
    openGroup({QStringLiteral("d")});
    QCOMPARE(pageCalls(), QStringLiteral("1,0,1"));
    QVERIFY(m_window && m_window->isVisible());
    QCOMPARE(m_window->serviceIds(), QStringList{QStringLiteral("d")});
}

void TestGroupOperations::expiryReachesTheGroup()
{
    openGroup({QStringLiteral("a")});
    m_api->callJsApi(QStringLiteral(
        R"({"jsApiName":"showRenewWnd","params":{"service_id":"a","device_id":"VM1","expire_notice":30}})"));
    m_api->callJsApi(QStringLiteral(
        R"({"jsApiName":"showRenewWnd","params":{"service_id":"a","device_id":"VM1","expire_notice":"5"}})"));
    m_api->callJsApi(
        QStringLiteral(R"({"jsApiName":"deviceExpiration","params":{"service_id":"a","device_id":"VM1"}})"));
    QCOMPARE(m_log.mid(2),
        (QStringList{QStringLiteral("notice a VM1 30"), QStringLiteral("notice a VM1 5"),
            QStringLiteral("expired a VM1")}));
}

void TestGroupOperations::expiryWithoutAGroup()
{
    m_api->callJsApi(QStringLiteral(R"({"jsApiName":"showRenewWnd","params":{"service_id":"a"}})"));
    m_api->callJsApi(QStringLiteral(R"({"jsApiName":"deviceExpiration"})"));
    QVERIFY(m_log.isEmpty());
}

// The window may still be there, waiting for an answer of the service.
void TestGroupOperations::expiryAfterTheClose()
{
    openGroup({QStringLiteral("a")});
    m_window->onBtnCloseClicked();
    QVERIFY(m_window);
    m_log.clear();
    m_api->callJsApi(QStringLiteral(R"({"jsApiName":"showRenewWnd","params":{"service_id":"a"}})"));
    m_api->callJsApi(QStringLiteral(R"({"jsApiName":"deviceExpiration","params":{"service_id":"a"}})"));
    QVERIFY(m_log.isEmpty());
}

void TestGroupOperations::closedSingleWindowOfTheGroupIsNotGivenBack()
{
    openGroup({QStringLiteral("a"), QStringLiteral("b")});
    m_api->onOpenSingleController(QStringLiteral("a"), QStringLiteral("A"));
    const auto unbinds = [this] {
        int count = 0;
        for (const QJsonObject &body : bodies("/apiv1/device/actionDevice"))
            count += body.value(QStringLiteral("action_type")) == QStringLiteral("device_unbind");
        return count;
    };
    const int before = unbinds();
    m_api->singleController(QStringLiteral("a"))->onBtnCloseClicked();
    QCOMPARE(m_log.last(), QStringLiteral("resume a"));
    // A request that was sent would be there before a later one.
    m_api->onOpenSingleController(QStringLiteral("z"), QStringLiteral("Z"));
    const QPointer<SingleController> outside = m_api->singleController(QStringLiteral("z"));
    outside->onBtnCloseClicked();
    QTRY_COMPARE(unbinds(), before + 1);
    QCOMPARE(bodies("/apiv1/device/actionDevice").last().value(QStringLiteral("service_id")).toString(),
        QStringLiteral("z"));
}

void TestGroupOperations::closedSingleWindowOutsideTheGroupIsGivenBack()
{
    openGroup({QStringLiteral("a")});
    m_api->onOpenSingleController(QStringLiteral("x"), QStringLiteral("X"));
    const int before = bodies("/apiv1/device/actionDevice").size();
    m_api->singleController(QStringLiteral("x"))->onBtnCloseClicked();
    const auto isGivenBack = [&] {
        const auto sent = bodies("/apiv1/device/actionDevice").mid(before);
        return std::any_of(sent.begin(), sent.end(), [](const QJsonObject &body) {
            return body.value(QStringLiteral("action_type")) == QStringLiteral("device_unbind")
                && body.value(QStringLiteral("service_id")) == QStringLiteral("x");
        });
    };
    QTRY_VERIFY(isGivenBack());
    QCOMPARE(m_log.last(), QStringLiteral("resume x")); // the group knows what is its own
}

void TestGroupOperations::savedGroupsAreLoadedAgain()
{
    openGroup({QStringLiteral("a")});
    emit m_window->updateGroup();
    QCOMPARE(pageCalls(), QStringLiteral("1,list0"));
}

void TestGroupOperations::deviceOfTheGroupOpensInAWindow()
{
    openGroup({QStringLiteral("a")});
    emit m_window->openSingleController(QStringLiteral("a"), QStringLiteral("Aurora"));
    QVERIFY(m_api->singleController(QStringLiteral("a")));
    QCOMPARE(m_api->singleController(QStringLiteral("a"))->deviceName(), QStringLiteral("Aurora"));
}

void TestGroupOperations::logoutClosesTheGroup()
{
    openGroup({QStringLiteral("a")});
    m_api->callJsApi(callText(QStringLiteral("logout")));
    QTRY_VERIFY(m_window.isNull());
    QCOMPARE(pageCalls(), QStringLiteral("1,0"));
    openGroup({QStringLiteral("b")}); // the next user's
    QVERIFY(m_window && m_window->isVisible());
}

QTEST_MAIN(TestGroupOperations)
#include "tst_groupoperations.moc"
