#include "web/OvMainWindowJsApi.h"

#include "device/SingleController.h"
#include "net/HttpHelper.h"
#include "web/CenterOnScreen.h"

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace {

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
{ }

OvMainWindowJsApi::~OvMainWindowJsApi()
{
    for (const QPointer<SingleController> &window : qAsConst(m_singleControllers)) {
        if (window)
            window->deleteLater();
    }
}

void OvMainWindowJsApi::openSingleControlWnd(const Context &context)
{
    onOpenSingleController(
        context.stringValue(QStringLiteral("serviceId")), context.stringValue(QStringLiteral("aliasName")));
}

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
    bringToFront(window);
    window->applyDevice();
}

void OvMainWindowJsApi::onCheckUnbindDevice()
{
    if (const auto *window = qobject_cast<SingleController *>(sender()))
        unbindDevice(window->serviceId());
}

// Nothing waits for the answer: the service ends the session by itself in the end.
void OvMainWindowJsApi::unbindDevice(const QString &serviceId)
{
    const QJsonObject body{{QStringLiteral("service_id"), serviceId},
        {QStringLiteral("action_type"), QStringLiteral("device_unbind")}};
    httpHelper()->post(HttpHelper::apiBaseUrl() + QStringLiteral("/apiv1/device/actionDevice"),
        QString::fromUtf8(QJsonDocument(body).toJson()), nullptr, nullptr);
}

HttpHelper *OvMainWindowJsApi::httpHelper()
{
    if (!m_httpHelper)
        m_httpHelper = new HttpHelper(this);
    return m_httpHelper;
}
