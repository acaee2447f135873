#include "group/GroupController.h"

#include "group/ExpiryQuestions.h"
#include "group/GroupApplyAnswer.h"
#include "group/MainController.h"
#include "group/SaveGroupDialog.h"
#include "group/SubControlPage.h"
#include "group/SubController.h"
#include "net/HttpHelper.h"
#include "stream/DeviceKey.h"
#include "stream/StreamController.h"
#include "stream/VideoView.h"
#include "widgets/FittedText.h"
#include "widgets/OvTitleBarBase.h"
#include "widgets/OvToast.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDebug>
#include <QFontMetrics>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QShortcut>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <chrono>

namespace {

// What the service expects.
namespace Contract {
constexpr int SuccessCode = 200;
const char BatchAction[] = "/apiv1/device/batchActionDevice";
const char GroupAction[] = "/apiv1/device/actionCcGroup";
} // namespace Contract

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr QSize Content(1240, 700);
constexpr QRgb Body = qRgb(51, 51, 51);
constexpr int TitlePixels = 14;
constexpr int TitleBarRest = 10 + 3 * 40 + 8; // of its width: left margin, caption buttons and a gap
constexpr int StripWidth = 80;
constexpr int StripSpacing = 7;
constexpr QMargins StripMargins(4, 15, 4, 4);
constexpr QSize ToolButton(72, 50);
constexpr int ToolIconExtent = 24;
constexpr int ToolPixels = 11;
constexpr int SmallestToolPixels = 8;
constexpr double MasterPart = 0.33; // of the content's width without the strip
constexpr int ToastSeconds = 3;
} // namespace Look

constexpr std::chrono::seconds LongestAnswer{30}; // that a closed window waits for

QJsonObject batchBody(const char *action, const QStringList &serviceIds)
{
    return {{QStringLiteral("service_ids"), QJsonArray::fromStringList(serviceIds)},
        {QStringLiteral("action_type"), QLatin1String(action)}};
}

QString jsonText(const QJsonObject &body)
{
    return QString::fromUtf8(QJsonDocument(body).toJson());
}

// Which key it is, whatever the layout makes of it; what does not come from a keyboard has no code of one.
int deviceKeyCodeOf(const QKeyEvent &event)
{
    return event.nativeScanCode() != 0 ? deviceKeyCodeOfScanCode(event.nativeScanCode())
                                       : deviceKeyCode(event.key());
}

} // namespace

GroupController::GroupController(QWidget *parent)
    : GroupWindow(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setBackgroundColor(QColor(Look::Body));
    createTitle();
    createContent();
    connectPanels();
    setTexts();
    setContentSize(Look::Content);
    setResizeLocked(true);
    GroupController::updateWindowSize();

    auto *paste = new QShortcut(Qt::CTRL + Qt::Key_V, this);
    paste->setAutoRepeat(false);
    connect(paste, &QShortcut::activated, this, &GroupController::onPasteText);
}

// Its children go while this is no group window any more: nothing of theirs may arrive then.
GroupController::~GroupController()
{
    m_mainController->videoView()->removeEventFilter(this);
    m_mainController->stopStream();
}

void GroupController::createTitle()
{
    titleBar()->setAttribute(Qt::WA_StyledBackground);
    titleBar()->setStyleSheet(QStringLiteral("OvTitleBarBase { border-bottom:1px solid #00FF00; }"));
}

void GroupController::createContent()
{
    m_mainController = new MainController(this);
    m_mainController->videoView()->installEventFilter(this);
    m_subControlPage = new SubControlPage(this);
    auto *content = new QHBoxLayout;
    content->setSpacing(0);
    content->setContentsMargins(0, 0, 0, 0);
    content->addWidget(createToolStrip());
    content->addWidget(m_mainController);
    content->addWidget(m_subControlPage, 1);
    mainLayout()->addLayout(content, 1);
    m_expiryQuestions
        = new ExpiryQuestions(this, [this](const group::ExpiryNotice &notice) { return noticeText(notice); });
}

QWidget *GroupController::createToolStrip()
{
    auto *strip = new QFrame(this);
    strip->setObjectName(QStringLiteral("toolStrip"));
    strip->setFixedWidth(Look::StripWidth);
    strip->setStyleSheet(QStringLiteral(
        "QFrame#toolStrip { background: rgba(68, 68, 68, 1); border-bottom-left-radius: 8px;"
        " border-top: 1px solid rgba(89, 89, 89, 1); }"
        "QToolButton { color: white; background: transparent; border: none; border-radius: 4px; }"
        "QToolButton:hover { background: rgba(255, 255, 255, 36); }"
        "QToolButton:pressed { background: rgba(255, 255, 255, 20); }"));
    m_saveButton = new QToolButton(strip);
    m_saveButton->setObjectName(QStringLiteral("saveGroupButton"));
    m_saveButton->setIcon(QIcon(QStringLiteral(":/icon/svg/group-save.svg")));
    m_saveButton->setIconSize({Look::ToolIconExtent, Look::ToolIconExtent});
    m_saveButton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_saveButton->setFixedSize(Look::ToolButton);
    m_saveButton->setCursor(Qt::PointingHandCursor);
    m_saveButton->setFocusPolicy(Qt::NoFocus); // the keyboard stays with the devices
    auto *layout = new QVBoxLayout(strip);
    layout->setSpacing(Look::StripSpacing);
    layout->setContentsMargins(Look::StripMargins);
    layout->addWidget(m_saveButton);
    layout->addStretch();
    return strip;
}

void GroupController::connectPanels()
{
    const VideoView *video = m_mainController->videoView();
    connect(
        m_mainController, &MainController::restartBtnClicked, this, &GroupController::onRestartAllController);
    connect(
        video, &VideoView::subControlTouchEvent, m_subControlPage, &SubControlPage::onSubControlTouchEvent);
    connect(video, &VideoView::inputEvent, m_subControlPage, &SubControlPage::onInputEvent);
    connect(m_mainController, &MainController::functionBtnClicked, m_subControlPage,
        &SubControlPage::onFunctionBtnClicked);
    connect(m_subControlPage, &SubControlPage::setAsMainController, this,
        &GroupController::onSetAsMainController);
    connect(m_subControlPage, &SubControlPage::openSingleController, this,
        &GroupController::openSingleController);
    connect(m_subControlPage, &SubControlPage::removeController, this, &GroupController::onRemoveController);
    connect(m_saveButton, &QToolButton::clicked, this, &GroupController::onSaveGroupBtnClicked);
}

// ---- Requests ----

// A refusal by the service and a failure on the way to it are the same to all callers.
void GroupController::post(const char *path, const QJsonObject &body, const DataCallback &onSuccess,
    const FailureCallback &onFailure)
{
    ++m_unanswered;
    httpHelper().post(
        HttpHelper::apiBaseUrl() + QLatin1String(path), jsonText(body),
        [this, onSuccess, onFailure](const ResponseData &response) {
            countAnswer();
            if (response.code == Contract::SuccessCode)
                onSuccess(response.data);
            else
                onFailure(response.msg);
        },
        [this, onFailure](const QString &error) {
            countAnswer();
            onFailure(error);
        });
}

void GroupController::countAnswer()
{
    --m_unanswered;
    if (m_leaving && m_unanswered == 0)
        deleteLater();
}

HttpHelper &GroupController::httpHelper()
{
    if (!m_httpHelper)
        m_httpHelper = new HttpHelper(this);
    return *m_httpHelper;
}

// The grants for an earlier group would not fit this one.
void GroupController::setDevices(const group::GroupDevices &devices)
{
    ++m_groupNumber;
    m_serviceIds = devices.keys();
    if (!devices.isEmpty())
        m_mainController->showConnecting();
    applyForDevices(devices);
}

// What the service says is shown to the user; an error on the way to it is for the log.
void GroupController::applyForDevices(const group::GroupDevices &devices)
{
    delete m_applyHelper;
    m_applyHelper = new HttpHelper(this);
    m_applyHelper->post(
        HttpHelper::apiBaseUrl() + QLatin1String(Contract::BatchAction),
        jsonText(batchBody("device_apply", m_serviceIds)),
        [this, devices](const ResponseData &response) {
            if (response.code == Contract::SuccessCode)
                onDevicesApplied(devices, response.data);
            else
                onApplyFailed(response.msg, HttpHelper::failureText(response.msg));
        },
        [this](const QString &error) { onApplyFailed(error, HttpHelper::failureText()); });
}

// The message stays in the place of the picture when the toast has gone.
void GroupController::onApplyFailed(const QString &logged, const QString &shown)
{
    qWarning().noquote().nospace() << "batchActionDevice devcie_apply request failed!"
                                   << "\nresponse data --> " << logged;
    m_mainController->showFailure(shown);
    showToast(shown);
}

void GroupController::onDevicesApplied(const group::GroupDevices &devices, const QJsonValue &data)
{
    qDebug().noquote().nospace() << "batchActionDevice devcie_apply request success! "
                                 << ResponseData::logText(data);
    QList<group::GroupDevice> connected = group::connectedDevices(m_serviceIds, devices, data);
    if (connected.isEmpty())
        return;
    m_mainController->setDevice(connected.takeFirst());
    m_subControlPage->setDevices(connected);
}

void GroupController::onRestartAllController()
{
    post(
        Contract::BatchAction, batchBody("reboot", m_serviceIds),
        [](const QJsonValue &) { qDebug().noquote() << "restart all controller success"; },
        [](const QString &message) {
            qWarning().noquote() << "restart all controller failed, error msg --->" << message;
        });
}

void GroupController::onSaveGroup(const QString &groupName)
{
    const QJsonObject body{{QStringLiteral("action_type"), QStringLiteral("create")},
        {QStringLiteral("cc_group_name"), groupName},
        {QStringLiteral("service_ids"), QJsonArray::fromStringList(m_serviceIds)}};
    post(
        Contract::GroupAction, body,
        [this, groupName, groupNumber = m_groupNumber](const QJsonValue &) {
            if (groupNumber == m_groupNumber)
                setGroupName(groupName);
            emit updateGroup();
            qDebug().noquote() << "save group success";
        },
        [](const QString &message) {
            qWarning().noquote() << "save group failed, error msg --->" << message;
        });
}

void GroupController::onRemoveController(const QString &serviceId)
{
    m_serviceIds.removeAll(serviceId);
    post(
        Contract::BatchAction, batchBody("device_unbind", {serviceId}),
        [](const QJsonValue &) { qDebug().noquote() << "unbind devices success!"; },
        [](const QString &message) { qWarning().noquote() << "unbind devices failed!" << message; });
}

// ---- Master and tiles ----

// Keys that are held are down on devices that are about to change places.
void GroupController::onSetAsMainController(SubController *controller)
{
    if (!controller)
        return;
    const int master = m_serviceIds.indexOf(m_mainController->serviceId());
    const int promoted = m_serviceIds.indexOf(controller->serviceId());
    if (master < 0 || promoted < 0)
        return;
    releaseHeldKeys();
    m_mainController->setMainController(controller);
    m_serviceIds.swapItemsAt(master, promoted);
}

void GroupController::resumeDevice(const QString &serviceId)
{
    if (!contains(serviceId))
        return;
    if (serviceId == m_mainController->serviceId())
        m_mainController->restartStream();
    else
        m_subControlPage->restartDevice(serviceId);
}

// The page lets the user renew; here the answer changes nothing.
void GroupController::onDeviceExpireNotice(const QString &serviceId, const QString &deviceName, int minutes)
{
    m_expiryQuestions->notify({serviceId, deviceName, minutes});
}

QString GroupController::noticeText(const group::ExpiryNotice &notice) const
{
    if (notice.serviceId.isEmpty())
        return {};
    QString question;
    if (notice.serviceId == m_mainController->serviceId()) {
        //: %1: name of the device, %2: number of minutes.
        question = tr("The main control device %1 will expire in %2 minutes, which will affect group control "
                      "operations. Do you want to renew?");
    } else if (m_subControlPage->findController(notice.serviceId)) {
        //: %1: name of the device, %2: number of minutes.
        question = tr("The controlled device %1 will expire in %2 minutes, which will affect group control "
                      "operations. Do you want to renew?");
    } else {
        return {};
    }
    return question.arg(notice.deviceName, QString::number(notice.minutes));
}

void GroupController::onDeviceExpired(const QString &serviceId, const QString &deviceName)
{
    if (serviceId.isEmpty())
        return;
    if (serviceId == m_mainController->serviceId()) {
        m_expiryQuestions->ask(tr("The master has expired for recycling, shall I reassign the "
                                  "master for you and start again?"),
            [this, serviceId] { reassignMaster(serviceId); });
    } else if (SubController *tile = m_subControlPage->findController(serviceId)) {
        //: %1: name of the device.
        showToast(tr("Expired device (%1) removed").arg(deviceName));
        emit tile->removeController(true);
    }
}

// The first tile's device becomes the master, and the expired one, in its tile then, leaves. While the
// question was open, another master may have taken the expired one's place; then only the expired one leaves.
void GroupController::reassignMaster(const QString &expiredId)
{
    if (expiredId == m_mainController->serviceId()) {
        if (SubController *first = m_subControlPage->controllerAt(0))
            emit first->setAsMainController();
    }
    if (SubController *expired = m_subControlPage->findController(expiredId))
        emit expired->removeController(true);
}

// ---- Input ----

void GroupController::keyPressEvent(QKeyEvent *event)
{
    if (const int code = deviceKeyCodeOf(*event)) {
        m_heldKeys.press(event->nativeScanCode(), code);
        m_mainController->onKeyPressEvent(code);
        m_subControlPage->onKeyPressEvent(code);
    }
    GroupWindow::keyPressEvent(event);
}

void GroupController::keyReleaseEvent(QKeyEvent *event)
{
    if (const int code = deviceKeyCodeOf(*event)) {
        m_heldKeys.release(event->nativeScanCode(), code);
        m_mainController->onKeyReleaseEvent(code);
        m_subControlPage->onKeyReleaseEvent(code);
    }
    GroupWindow::keyReleaseEvent(event);
}

void GroupController::releaseHeldKeys()
{
    const QVector<int> codes = m_heldKeys.releaseAll();
    for (const int code : codes) {
        m_mainController->onKeyReleaseEvent(code);
        m_subControlPage->onKeyReleaseEvent(code);
    }
}

void GroupController::onPasteText()
{
    const QString text = QGuiApplication::clipboard()->text();
    if (text.isEmpty())
        return;
    if (text.toUtf8().size() > stream::LongestText) {
        qWarning() << "the clipboard's text is too long to paste, characters:" << text.size();
        showToast(tr("The text is too long to paste."));
        return;
    }
    m_mainController->onPasteText(text);
    m_subControlPage->onInputEvent(text);
}

// The releases of held keys go to another window then, or to a dialog over this one.
void GroupController::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        releaseHeldKeys();
    else if (event->type() == QEvent::LanguageChange)
        setTexts();
    GroupWindow::changeEvent(event);
}

bool GroupController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && watched == m_mainController->videoView())
        releaseHeldKeys();
    return GroupWindow::eventFilter(watched, event);
}

// ---- Dialogs and messages ----

void GroupController::onSaveGroupBtnClicked()
{
    if (!m_saveGroupDialog) {
        m_saveGroupDialog = new SaveGroupDialog(this);
        connect(m_saveGroupDialog, &SaveGroupDialog::saveGroup, this, &GroupController::onSaveGroup);
    }
    m_saveGroupDialog->coverParent();
    m_saveGroupDialog->show();
    m_saveGroupDialog->raise();
}

// One at a time: the newest takes the place of the one before.
void GroupController::showToast(const QString &text)
{
    if (!m_toast || !m_toast->isVisible())
        m_toast = new OvToast(this);
    m_toast->show(text, Look::ToastSeconds);
}

// ---- Look ----

void GroupController::setGroupName(const QString &name)
{
    m_groupName = name;
    setWindowTitle(name);
    showTitle();
}

// As much of the name as the bar has room for; the task bar has the whole.
void GroupController::showTitle()
{
    QFont font;
    font.setPixelSize(Look::TitlePixels);
    font.setBold(true);
    const int room = contentSize().width() - Look::TitleBarRest;
    titleBar()->setTitle(
        QFontMetrics(font).elidedText(m_groupName, Qt::ElideRight, room), Look::TitlePixels, true, Qt::white);
}

void GroupController::setTexts()
{
    m_saveButton->setText(tr("Save group"));
    m_saveButton->setFont(FittedText::onOneLine(m_saveButton->font(), m_saveButton->text(),
        Look::ToolButton.width(), Look::ToolPixels, Look::SmallestToolPixels));
}

// The page takes the rest of the width.
void GroupController::updateWindowSize()
{
    const QSize content = contentSize();
    const auto masterWidth = static_cast<int>((content.width() - Look::StripWidth) * Look::MasterPart);
    m_mainController->setFixedSize(qMax(0, masterWidth), qMax(0, content.height() - titleBar()->height()));
    GroupWindow::updateWindowSize();
}

void GroupController::resizeEvent(QResizeEvent *event)
{
    GroupWindow::resizeEvent(event);
    showTitle();
}

// A close by the window manager means the same to the owner as the close button.
void GroupController::closeEvent(QCloseEvent *event)
{
    if (event->spontaneous())
        emit sigCloseBtnClicked();
    delete m_applyHelper; // its answer must not start anything in a closed window
    m_applyHelper = nullptr;
    releaseHeldKeys();
    m_mainController->stopStream();
    if (m_toast)
        m_toast->close();
    if (m_unanswered > 0)
        stayUntilAnswered();
    GroupWindow::closeEvent(event);
}

// A group that is being saved or a device that is being given back would be lost with the request. No session
// lasts that long, and a service that never answers is not waited for.
void GroupController::stayUntilAnswered()
{
    m_leaving = true;
    setAttribute(Qt::WA_DeleteOnClose, false);
    auto *limit = new QTimer(this);
    limit->setObjectName(QStringLiteral("answerLimit"));
    connect(limit, &QTimer::timeout, this, &QObject::deleteLater);
    limit->start(LongestAnswer);
    if (m_subControlPage->controllerCount() > 0)
        m_subControlPage->setDevices({});
}
