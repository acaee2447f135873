#pragma once

#include "web/OvJsApi.h"
#include "web/StreamingData.h"

#include <QHash>
#include <QJsonArray>
#include <QPointer>

#include <functional>

class GroupWindow;
class HttpHelper;
class SingleController;
class WebSingleController;

// What the front end in the main window can ask for besides OvJsApi's operations: the session's identity,
// device windows, the group window and updates. Keeps at most one device window and one web device window per
// service id and one group window in all, and gives devices back to the service when their windows are
// closed.
//
// GUI thread; child of the main window's web view.
class OvMainWindowJsApi : public OvJsApi
{
    Q_OBJECT

public:
    explicit OvMainWindowJsApi(QWebEngineView *webView);
    // Schedules every open window for deletion.
    ~OvMainWindowJsApi() override;

    // Makes the group window. Without it, groups cannot be opened.
    using GroupWindowFactory = std::function<GroupWindow *()>;
    void setGroupWindowFactory(GroupWindowFactory factory);

    // "serviceId", "aliasName": opens the device's window or brings it back.
    Q_INVOKABLE void openSingleControlWnd(const Context &context);
    // "access-token", "login-id": the identity of every later request. What is empty is read from the page's
    // local storage.
    Q_INVOKABLE void setLoginParams(const Context &context);
    // "winData": the group's "label" and its devices in "children". Nothing but a word to the page while a
    // group window is open.
    Q_INVOKABLE void openGroupControlWnd(const Context &context);
    // Closes every device window and the group window; then sigLogout.
    Q_INVOKABLE void logout(const Context &context);
    // "params": "service_id", "device_id", "expire_notice" (minutes), for the open group window.
    Q_INVOKABLE void showRenewWnd(const Context &context);
    // "params": "service_id", "device_id", for the open group window.
    Q_INVOKABLE void deviceExpiration(const Context &context);
    // "standbyTime": minutes, for every open device window.
    Q_INVOKABLE void setStandbyTime(const Context &context);
    // "pc_update_info": "update_path", "file_info"; sigUpdateNewVersion unless the path is empty.
    Q_INVOKABLE void updateNewVersion(const Context &context);

    // The device's open window, or none.
    SingleController *singleController(const QString &serviceId) const;
    WebSingleController *webSingleController(const QString &serviceId) const;
    GroupWindow *groupWindow() const;

public slots:
    void onOpenSingleController(const QString &serviceId, const QString &deviceName);
    // Called by the page itself, with a plain object.
    void onOpenWebSingleController(const web::StreamingData &data);
    // Has the page load its lists again.
    void onUpdateGroup();
    // Gives the sender's device back to the service, unless the group window goes on with it. The sender is a
    // SingleController.
    void onCheckUnbindDevice();
    // Gives the devices of the group back; another group can be opened then.
    void onCloseGroupControlWnd();

signals:
    void sigLogout();
    // `fileInfo`: the release's files, objects with "file_name".
    void sigUpdateNewVersion(const QString &updatePath, const QJsonArray &fileInfo);

private:
    void runInPage(const QString &script);
    void readLocalStorage(const QString &key, const std::function<void(const QVariant &)> &onValue);
    void applyStoredStandbyTime(SingleController *window);
    void unbindDevice(const QString &serviceId);
    HttpHelper *httpHelper();

    bool m_groupOpen = false;
    QHash<QString, QPointer<SingleController>> m_singleControllers; // by service id
    QHash<QString, QPointer<WebSingleController>> m_webSingleControllers; // by service id
    QPointer<GroupWindow> m_groupWindow;
    GroupWindowFactory m_makeGroupWindow;
    HttpHelper *m_httpHelper = nullptr; // child, made on first use
};
