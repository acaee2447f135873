#include "web/OvMainWindowJsApi.h"

#include "device/SingleController.h"
#include "device/StandbyTimer.h"
#include "group/GroupWindow.h"
#include "net/HttpHelper.h"
#include "web/WebSingleController.h"
#include "web/WindowPlacement.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace {

// Texts and values that the page and the service rely on.
namespace Contract {
const QLatin1String deviceAction("/apiv1/device/actionDevice");
const QLatin1String batchDeviceAction("/apiv1/device/batchActionDevice");
const QLatin1String unbind("device_unbind");
const QLatin1String groupOpened("window.clusterOpened(1)");
const QLatin1String groupClosed("window.clusterOpened(0)");
const QLatin1String loadLists("window.getList");
const QLatin1String devicePage("qrc:/html/orvane/index.html#/deviceWin/");
} // namespace Contract

// A member that is an object, read as the call itself is.
Context inner(const Context &context, const char *key)
{
    return Context(context.object().value(QLatin1String(key)).toObject());
}

template <typename Window>
void deleteAll(const QHash<QString, QPointer<Window>> &windows)
{
    for (const QPointer<Window> &window : windows) {
        if (window)
            window->deleteLater();
    }
}

template <typename Window>
void closeAll(const QHash<QString, QPointer<Window>> &windows)
{
    const QList<QPointer<Window>> open = windows.values(); // closing changes what is open
    for (const QPointer<Window> &window : open) {
        if (window)
            window->close();
    }
}

void bringToFront(QWidget *window)
{
    window->show();
    window->activateWindow();
    if (window->isMinimized())
        window->showNormal();
    centerOnScreen(window);
}

} // namespace

OvMainWindowJsApi::OvMainWindowJsApi(QWebEngineView *webView)
    : OvJsApi(webView)
{
    web::registerStreamingData();
}

OvMainWindowJsApi::~OvMainWindowJsApi()
{
    deleteAll(m_singleControllers);
    deleteAll(m_webSingleControllers);
    if (m_groupWindow)
        m_groupWindow->deleteLater();
}

void OvMainWindowJsApi::setGroupWindowFactory(GroupWindowFactory factory)
{
    m_makeGroupWindow = std::move(factory);
}

void OvMainWindowJsApi::runInPage(const QString &script)
{
    if (webView())
        webView()->page()->runJavaScript(script);
}

// ---- The session's identity ----

void OvMainWindowJsApi::setLoginParams(const Context &context)
{
    HttpHelper::setLoginParams(
        context.stringValue(QStringLiteral("access-token")), context.stringValue(QStringLiteral("login-id")));
    if (HttpHelper::accessToken().isEmpty()) {
        readLocalStorage(QStringLiteral("accessToken"), [](const QVariant &token) {
            HttpHelper::setAccessToken(token.toString());
            qDebug().noquote().nospace()
                << "get access-token from local storage, access-token ---> " << HttpHelper::accessToken();
        });
    }
    if (HttpHelper::loginId().isEmpty()) {
        readLocalStorage(QStringLiteral("loginId"),
            [](const QVariant &loginId) { HttpHelper::setLoginId(loginId.toString()); });
    }
}

// Hands over the page's stored value unless the page has none.
void OvMainWindowJsApi::readLocalStorage(
    const QString &key, const std::function<void(const QVariant &)> &onValue)
{
    if (!webView())
        return;
    webView()->page()->runJavaScript(QStringLiteral("window.localStorage.getItem('%1')").arg(key),
        [self = QPointer<OvMainWindowJsApi>(this), onValue](const QVariant &value) {
            if (self && value.isValid() && !value.isNull())
                onValue(value);
        });
}

// Closed windows end their streams; that their devices are free again is for the service, which ends what
// the session holds.
void OvMainWindowJsApi::logout(const Context &)
{
    if (GroupWindow *group = groupWindow()) {
        onCloseGroupControlWnd();
        group->close();
    }
    closeAll(m_singleControllers);
    closeAll(m_webSingleControllers);
    emit sigLogout();
}

// ---- Windows of single devices ----

void OvMainWindowJsApi::openSingleControlWnd(const Context &context)
{
    onOpenSingleController(
        context.stringValue(QStringLiteral("serviceId")), context.stringValue(QStringLiteral("aliasName")));
}

SingleController *OvMainWindowJsApi::singleController(const QString &serviceId) const
{
    return m_singleControllers.value(serviceId);
}

void OvMainWindowJsApi::onOpenSingleController(const QString &serviceId, const QString &deviceName)
{
    if (serviceId.isEmpty()) {
        qWarning() << "a device window was asked for without a service id";
        return;
    }
    if (SingleController *open = singleController(serviceId)) {
        bringToFront(open);
        return;
    }
    auto *window = new SingleController(serviceId, deviceName);
    window->setAttribute(Qt::WA_DeleteOnClose);
    m_singleControllers.insert(serviceId, window);
    connect(window, &OvWindowBase::sigCloseBtnClicked, this, &OvMainWindowJsApi::onCheckUnbindDevice,
        Qt::DirectConnection);
    applyStoredStandbyTime(window);
    bringToFront(window);
    window->applyDevice();
}

// The page answers later; until then the window has its own default.
void OvMainWindowJsApi::applyStoredStandbyTime(SingleController *window)
{
    readLocalStorage(
        QStringLiteral("standbyTime"), [guarded = QPointer<SingleController>(window)](const QVariant &value) {
            bool isNumber = false;
            const int minutes = value.toInt(&isNumber);
            if (guarded)
                guarded->setStandbyTime(isNumber ? minutes : StandbyTimer::defaultMinutes);
        });
}

void OvMainWindowJsApi::setStandbyTime(const Context &context)
{
    const int minutes = context.intValue(QStringLiteral("standbyTime"));
    for (const QPointer<SingleController> &window : qAsConst(m_singleControllers)) {
        if (window)
            window->setStandbyTime(minutes);
    }
}

WebSingleController *OvMainWindowJsApi::webSingleController(const QString &serviceId) const
{
    return m_webSingleControllers.value(serviceId);
}

void OvMainWindowJsApi::onOpenWebSingleController(const web::StreamingData &data)
{
    qDebug().noquote() << "onOpenWebSingleController called, serviceId --->" << data.serviceId;
    if (data.serviceId.isEmpty()) {
        qWarning() << "a web device window was asked for without a service id";
        return;
    }
    WebSingleController *window = webSingleController(data.serviceId);
    if (!window) {
        window = new WebSingleController;
        window->load(data.pageUrl(Contract::devicePage));
        m_webSingleControllers.insert(data.serviceId, window);
    }
    bringToFront(window);
}

void OvMainWindowJsApi::onCheckUnbindDevice()
{
    const auto *window = qobject_cast<SingleController *>(sender());
    if (!window)
        return;
    const QString serviceId = window->serviceId();
    if (!m_groupWindow || !m_groupWindow->contains(serviceId))
        unbindDevice(serviceId);
    if (m_groupWindow)
        m_groupWindow->resumeDevice(serviceId);
}

// Nothing waits for the answer: the service ends the session by itself in the end.
void OvMainWindowJsApi::unbindDevice(const QString &serviceId)
{
    const QJsonObject body{
        {QStringLiteral("service_id"), serviceId}, {QStringLiteral("action_type"), Contract::unbind}};
    httpHelper()->post(HttpHelper::apiBaseUrl() + Contract::deviceAction,
        QString::fromUtf8(QJsonDocument(body).toJson()), nullptr, nullptr);
}

// ---- The group window ----

GroupWindow *OvMainWindowJsApi::groupWindow() const
{
    return m_groupWindow;
}

void OvMainWindowJsApi::openGroupControlWnd(const Context &context)
{
    runInPage(Contract::groupOpened);
    if (m_groupOpen)
        return;
    if (!m_makeGroupWindow) {
        qWarning() << "a group cannot be opened: there is no group window";
        runInPage(Contract::groupClosed);
        return;
    }
    m_groupOpen = true;
    const QJsonObject winData = inner(context, "winData").object();
    GroupWindow *window = m_makeGroupWindow();
    m_groupWindow = window;
    connect(window, &GroupWindow::openSingleController, this, &OvMainWindowJsApi::onOpenSingleController);
    connect(window, &GroupWindow::updateGroup, this, &OvMainWindowJsApi::onUpdateGroup);
    connect(window, &OvWindowBase::sigCloseBtnClicked, this, &OvMainWindowJsApi::onCloseGroupControlWnd);
    window->setDevices(group::groupDevicesOf(winData));
    const QString label = winData.value(QLatin1String("label")).toString();
    window->setGroupName(label.isEmpty() ? tr("Temporary grouping") : label);
    bringToFront(window);
}

void OvMainWindowJsApi::onUpdateGroup()
{
    publishResult(Contract::loadLists, QString());
}

void OvMainWindowJsApi::onCloseGroupControlWnd()
{
    runInPage(Contract::groupClosed);
    m_groupOpen = false;
    if (!m_groupWindow)
        return;
    const QJsonObject body{
        {QStringLiteral("service_ids"), QJsonArray::fromStringList(m_groupWindow->serviceIds())},
        {QStringLiteral("action_type"), Contract::unbind}};
    httpHelper()->post(HttpHelper::apiBaseUrl() + Contract::batchDeviceAction,
        QString::fromUtf8(QJsonDocument(body).toJson()), nullptr, nullptr);
    m_groupWindow.clear(); // it may wait for an answer of the service before it goes
}

void OvMainWindowJsApi::showRenewWnd(const Context &context)
{
    const Context params = inner(context, "params");
    if (m_groupWindow)
        m_groupWindow->onDeviceExpireNotice(params.stringValue(QStringLiteral("service_id")),
            params.stringValue(QStringLiteral("device_id")),
            params.intValue(QStringLiteral("expire_notice")));
}

void OvMainWindowJsApi::deviceExpiration(const Context &context)
{
    const Context params = inner(context, "params");
    if (m_groupWindow)
        m_groupWindow->onDeviceExpired(params.stringValue(QStringLiteral("service_id")),
            params.stringValue(QStringLiteral("device_id")));
}

// ---- Updates ----

void OvMainWindowJsApi::updateNewVersion(const Context &context)
{
    const QJsonObject info = inner(context, "pc_update_info").object();
    const QString updatePath = info.value(QLatin1String("update_path")).toString();
    if (!updatePath.isEmpty())
        emit sigUpdateNewVersion(updatePath, info.value(QLatin1String("file_info")).toArray());
}

HttpHelper *OvMainWindowJsApi::httpHelper()
{
    if (!m_httpHelper)
        m_httpHelper = new HttpHelper(this);
    return m_httpHelper;
}
