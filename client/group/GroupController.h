#pragma once

#include "group/GroupWindow.h"
#include "stream/HeldKeys.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>

class ExpiryQuestions;
class HttpHelper;
class MainController;
class OvToast;
class QJsonObject;
class QJsonValue;
class QToolButton;
class SaveGroupDialog;
class SubControlPage;
class SubController;
struct ResponseData;

namespace group {
struct ExpiryNotice;
} // namespace group

// The window of a group: a strip of tools, the master device, and the devices that follow it. It applies for
// all of them at the service at once, gives the first to the master panel and the others to the page of
// tiles, and passes on what is to reach all. The service's failures are logged; only that the group could not
// be applied for is shown as well. Giving the devices back is its opener's business
// (OvWindowBase::sigCloseBtnClicked), but for the ones that leave the group before.
//
// GUI thread; a top-level window without a parent that deletes itself when it is closed, though not before
// the service has answered what it was asked to save, to restart or to take back, or half a minute has
// passed.
class GroupController : public GroupWindow
{
    Q_OBJECT

public:
    explicit GroupController(QWidget *parent = nullptr);
    // Ends the sessions first.
    ~GroupController() override;

    void setDevices(const group::GroupDevices &devices) override;
    void setGroupName(const QString &name) override;
    QString groupName() const { return m_groupName; }
    void onDeviceExpireNotice(const QString &serviceId, const QString &deviceName, int minutes) override;
    void onDeviceExpired(const QString &serviceId, const QString &deviceName) override;
    void resumeDevice(const QString &serviceId) override;
    bool contains(const QString &serviceId) const override { return m_serviceIds.contains(serviceId); }
    QStringList serviceIds() const override { return m_serviceIds; }

    void updateWindowSize() override;

    MainController *mainController() const { return m_mainController; }
    SubControlPage *subControlPage() const { return m_subControlPage; }

public slots:
    // Asks for a name.
    void onSaveGroupBtnClicked();
    // Restarts every device of the group.
    void onRestartAllController();
    // The master and the tile's device change places.
    void onSetAsMainController(SubController *controller);
    // The device has left the group: gives it back to the service.
    void onRemoveController(const QString &serviceId);
    // Saves the group's devices under a name.
    void onSaveGroup(const QString &groupName);
    // Types the clipboard's text on every device.
    void onPasteText();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using DataCallback = std::function<void(const QJsonValue &data)>;
    using FailureCallback = std::function<void(const QString &message)>;

    void createTitle();
    void createContent();
    QWidget *createToolStrip();
    void connectPanels();
    HttpHelper &httpHelper();
    void countAnswer();
    void post(const char *path, const QJsonObject &body, const DataCallback &onSuccess,
        const FailureCallback &onFailure);
    void applyForDevices(const group::GroupDevices &devices);
    void stayUntilAnswered();
    void onDevicesApplied(const group::GroupDevices &devices, const QJsonValue &data);
    void onApplyFailed(const QString &logged, const QString &shown);
    void reassignMaster(const QString &expiredId);
    QString noticeText(const group::ExpiryNotice &notice) const;
    void releaseHeldKeys();
    void showToast(const QString &text);
    void showTitle();
    void setTexts();

    QStringList m_serviceIds; // the master first
    QString m_groupName;
    HeldKeys m_heldKeys;
    HttpHelper *m_applyHelper = nullptr; // child, of the newest devices; its end drops the request for them
    HttpHelper *m_httpHelper = nullptr; // child, made on first use; of all other requests
    int m_unanswered = 0; // requests of m_httpHelper
    int m_groupNumber = 0; // how often setDevices has been called
    bool m_leaving = false; // closed; is deleted with the last answer or when that takes too long
    QToolButton *m_saveButton = nullptr; // children
    MainController *m_mainController = nullptr;
    SubControlPage *m_subControlPage = nullptr;
    ExpiryQuestions *m_expiryQuestions = nullptr;
    SaveGroupDialog *m_saveGroupDialog = nullptr; // made on first use
    QPointer<OvToast> m_toast; // while one is shown
};
