#pragma once

#include "web/OvJsApi.h"

#include <QHash>
#include <QPointer>

class HttpHelper;
class SingleController;

// What the front end in the main window can ask for besides OvJsApi's operations: the session's identity and
// device windows. Keeps at most one device window per service id, and gives a device back to the service when
// its window is closed.
//
// GUI thread; child of the main window's web view.
class OvMainWindowJsApi : public OvJsApi
{
    Q_OBJECT

public:
    explicit OvMainWindowJsApi(QWebEngineView *webView);
    // Schedules every open device window for deletion.
    ~OvMainWindowJsApi() override;

    // "serviceId", "aliasName": opens the device's window or brings it back.
    Q_INVOKABLE void openSingleControlWnd(const Context &context);
    // "access-token", "login-id": the identity of every later request. What is empty is read from the page's
    // local storage.
    Q_INVOKABLE void setLoginParams(const Context &context);

    // The device's open window, or none.
    SingleController *singleController(const QString &serviceId) const;

public slots:
    void onOpenSingleController(const QString &serviceId, const QString &deviceName);
    // Gives the sender's device back to the service. The sender is a SingleController.
    void onCheckUnbindDevice();

private:
    void readLocalStorage(const QString &key, const std::function<void(const QVariant &)> &onValue);
    void unbindDevice(const QString &serviceId);
    HttpHelper *httpHelper();

    QHash<QString, QPointer<SingleController>> m_singleControllers; // by service id
    HttpHelper *m_httpHelper = nullptr; // child, made on first use
};
