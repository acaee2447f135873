#include "device/SingleController.h"

#include "device/DeviceApplyAnswer.h"
#include "device/DeviceKeyMapping.h"
#include "device/DeviceTitle.h"
#include "device/EditingMenu.h"
#include "device/LoadingPage.h"
#include "device/MenuBar.h"
#include "device/QualityBox.h"
#include "device/StandbyWidget.h"
#include "keymap/KeyboardMapEditor.h"
#include "keymap/KeyboardMapMgr.h"
#include "net/HttpHelper.h"
#include "stream/StreamController.h"
#include "stream/VideoView.h"
#include "widgets/OvTitleBarBase.h"
#include "widgets/OvToast.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDebug>
#include <QDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace {

constexpr int SuccessCode = 200;

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr QRgb Body = qRgb(68, 68, 68); // as the bars: it shows through where pixels are shared
constexpr int ToastSeconds = 3;
} // namespace Look

constexpr int OrientationToggle = 3; // landscape to portrait and back, by exclusive or

} // namespace

SingleController::SingleController(const QString &serviceId, const QString &deviceName, QWidget *parent)
    : TurnableWindow(parent)
    , m_serviceId(serviceId)
    , m_deviceName(deviceName)
    , m_stream(std::make_shared<StreamController>())
    , m_keyboard(m_stream)
    , m_standbyTimer(new StandbyTimer(this))
{
    setBackgroundColor(QColor(Look::Body));
    setWindowTitle(m_deviceName);
    titleBar()->setButtonType(OvTitleBarBase::MinMaxCloseButtons);
    m_title = new DeviceTitle(titleBar());
    showTitle();
    createPages();
    connectStream();
    connectMenuBar();
    connectKeyMapping();
    connect(m_standbyTimer, &StandbyTimer::sigExpired, this, &SingleController::startStandby);
    connect(m_standbyPage, &StandbyWidget::sigResumeBtnClicked, this, &SingleController::onResumeBtnClicked);
    connect(m_standbyPage, &StandbyWidget::sigExitBtnClicked, this, &SingleController::onExitBtnClicked);

    disconnect(titleBar(), &OvTitleBarBase::btnCloseClicked, this, &OvWindowBase::onBtnCloseClicked);
    connect(titleBar(), &OvTitleBarBase::btnCloseClicked, this, &SingleController::closeByUser);

    auto *paste = new QShortcut(Qt::CTRL + Qt::Key_V, this);
    paste->setAutoRepeat(false);
    connect(paste, &QShortcut::activated, this, &SingleController::onPasteText);
}

SingleController::~SingleController()
{
    endStream();
}

// As much of the name as the bar has room for; the task bar has the whole.
void SingleController::showTitle()
{
    m_title->showName(m_deviceName, width() - (isMaximizedInProportion() ? 0 : 2 * shadowMargin()));
}

// The pages go into a layout that is in place: one without a window shows its first page as a window of its
// own.
void SingleController::createPages()
{
    m_pages = new QStackedLayout;
    mainLayout()->addLayout(m_pages, 1);
    m_loadingPage = new LoadingPage;
    m_videoPage = createVideoPage();
    m_pages->addWidget(m_loadingPage);
    m_pages->addWidget(m_videoPage);
}

QWidget *SingleController::createVideoPage()
{
    auto *page = new QWidget;
    m_videoView = new VideoView;
    m_videoView->setStreamController(m_stream);
    m_videoView->installEventFilter(this);
    m_menuBar = new MenuBar;
    m_keyMapping = new DeviceKeyMapping(m_videoView, this);
    auto *layout = new QHBoxLayout(page);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_videoView, 1);
    layout->addWidget(m_menuBar);
    layout->addWidget(m_keyMapping->editor());
    m_standbyPage = new StandbyWidget(page);
    m_standbyPage->hide();
    return page;
}

void SingleController::connectStream()
{
    StreamController *stream = m_stream.get();
    connect(m_videoView, &VideoView::touchEvent, stream, &StreamController::onTouchEvent);
    connect(m_videoView, &VideoView::inputEvent, stream, &StreamController::onInputEvent);
    connect(m_videoView, &VideoView::touchEvent, this, &SingleController::onOperation);
    connect(m_videoView, &VideoView::inputEvent, this, &SingleController::onOperation);
    connect(m_videoView, &VideoView::screenRotation, this, &SingleController::onScreenRotation);
    connect(m_title->qualityBox(), qOverload<int>(&QComboBox::currentIndexChanged), stream,
        &StreamController::onVideoLevelChanged);
    connect(m_title->qualityBox(), qOverload<int>(&QComboBox::currentIndexChanged), this,
        &SingleController::onOperation);
    connect(stream, &StreamController::sigPlayInfo, this, &SingleController::onPlayInfo);
}

// Every use of the bar is an operation.
void SingleController::connectMenuBar()
{
    connect(m_menuBar, &MenuBar::functionBtnClicked, m_stream.get(), &StreamController::onFunctionBtnClicked);
    connect(m_menuBar, &MenuBar::screenCaptureBtnClicked, m_videoView, &VideoView::onScreenCaptureBtnClicked);
    connect(m_menuBar, &MenuBar::screenRotateBtnClicked, this, &SingleController::onScreenRotateBtnClicked);
    connect(m_menuBar, &MenuBar::functionBtnClicked, this, &SingleController::onOperation);
    connect(m_menuBar, &MenuBar::screenCaptureBtnClicked, this, &SingleController::onOperation);
    connect(m_menuBar, &MenuBar::screenRotateBtnClicked, this, &SingleController::onOperation);
}

bool SingleController::showsVideo() const
{
    return m_pages->currentWidget() == m_videoPage;
}

bool SingleController::isStandingBy() const
{
    return !m_standbyPage->isHidden();
}

// While the key mapping is edited, the keyboard is for binding keys.
bool SingleController::takesInput() const
{
    return showsVideo() && !isStandingBy() && !m_keyMapping->isEditing();
}

// ---- Applying for the device ----

void SingleController::applyDevice()
{
    qDebug().noquote() << "apply device request start";
    if (!m_httpHelper)
        m_httpHelper = new HttpHelper(this);
    const QJsonObject body{{QStringLiteral("service_id"), m_serviceId},
        {QStringLiteral("action_type"), QStringLiteral("device_apply")}};
    m_httpHelper->post(
        HttpHelper::apiBaseUrl() + QStringLiteral("/apiv1/device/actionDevice"),
        QString::fromUtf8(QJsonDocument(body).toJson()),
        [this](const ResponseData &response) {
            if (response.code == SuccessCode)
                onDeviceApplied(response.data);
            else
                onApplyRefused(response.code, response.msg);
        },
        [this](const QString &error) { onApplyFailed(error); });
}

void SingleController::onDeviceApplied(const QJsonValue &data)
{
    qDebug().noquote().nospace() << "single controller apply device success, response data ---> "
                                 << ResponseData::logText(data);
    m_streamingData = streamingDataOf(data, m_serviceId);
    liftEverything();
    m_stream->setVideoView(m_videoView);
    endStandby();
    showPortrait();
    m_stream->startStream(m_streamingData, stream::Full);
    applyQuality();
    m_pages->setCurrentWidget(m_videoPage);
    m_videoView->setFocus();
    onOperation();
}

void SingleController::onApplyRefused(int code, const QString &message)
{
    qWarning().noquote().nospace() << "single controller apply device failed, error code ---> " << code;
    showToast(HttpHelper::failureText(message));
}

void SingleController::onApplyFailed(const QString &error)
{
    qWarning().noquote().nospace() << "single controller apply device failed, error msg ---> " << error;
    showToast(HttpHelper::failureText());
}

// One at a time: the newest takes the place of the one before.
void SingleController::showToast(const QString &text)
{
    if (!m_toast || !m_toast->isVisible())
        m_toast = new OvToast(this);
    m_toast->show(text, Look::ToastSeconds);
}

// ---- Keyboard and clipboard ----

void SingleController::keyPressEvent(QKeyEvent *event)
{
    if (!takesInput()) {
        TurnableWindow::keyPressEvent(event);
        return;
    }
    onOperation();
    m_keyboard.press(*event);
}

void SingleController::keyReleaseEvent(QKeyEvent *event)
{
    if (!takesInput()) {
        TurnableWindow::keyReleaseEvent(event);
        return;
    }
    m_keyboard.release(*event);
}

// What is held: fingers of the mouse and of the auxiliary keys, and keys.
void SingleController::liftEverything()
{
    m_videoView->liftFinger();
    m_keyMapping->liftFingers();
    m_keyboard.releaseAll();
}

void SingleController::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        m_keyboard.releaseAll(); // their releases go to another window
    TurnableWindow::changeEvent(event);
}

bool SingleController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_videoView) {
        // A list that is open takes the keyboard without another window being active.
        if (event->type() == QEvent::FocusOut)
            m_keyboard.releaseAll();
        else if (event->type() == QEvent::Resize && isStandingBy())
            layOutStandbyPage();
    }
    return TurnableWindow::eventFilter(watched, event);
}

bool SingleController::focusNextPrevChild(bool next)
{
    return !takesInput() && TurnableWindow::focusNextPrevChild(next);
}

void SingleController::onPasteText()
{
    const QString text = QGuiApplication::clipboard()->text();
    if (text.isEmpty() || !takesInput())
        return;
    onOperation();
    if (text.toUtf8().size() > stream::LongestText) {
        qWarning() << "the clipboard's text is too long to paste, characters:" << text.size();
        showToast(tr("The text is too long to paste."));
        return;
    }
    m_stream->onInputEvent(text);
}

// ---- Stream ----

void SingleController::onPlayInfo(const char *info)
{
    const QJsonObject values = QJsonDocument::fromJson(info).object();
    const int delayMs = values.value(QStringLiteral("delayTime")).toInt(0);
    m_title->showDelay(delayMs);
}

void SingleController::applyQuality()
{
    if (m_title->qualityBox()->currentIndex() > 0) // a session begins with the automatic level by itself
        m_stream->onVideoLevelChanged(m_title->qualityBox()->currentIndex());
}

// ---- Stand-by ----

void SingleController::setStandbyTime(int minutes)
{
    m_standbyTimer->setMinutes(minutes);
    onOperation();
}

void SingleController::onOperation()
{
    if (showsVideo() && !isStandingBy())
        m_standbyTimer->restart();
}

// Nothing that is held reaches the device any more, so it comes up first.
void SingleController::startStandby()
{
    if (!showsVideo() || isStandingBy())
        return;
    liftEverything();
    m_standbyTimer->stop();
    m_stream->setStreamMode(stream::Paused);
    m_menuBar->setEnabled(false);
    m_keyMapping->editor()->setEnabled(false);
    m_videoView->setEnabled(false);
    layOutStandbyPage();
    m_standbyPage->show();
    m_standbyPage->raise();
}

void SingleController::layOutStandbyPage()
{
    m_standbyPage->setGeometry(m_videoView->geometry());
    m_standbyPage->setOrientation(orientation());
    m_standbyPage->updateLayout();
}

void SingleController::endStandby()
{
    m_standbyPage->hide();
    m_menuBar->setEnabled(true);
    m_keyMapping->editor()->setEnabled(true);
    m_videoView->setEnabled(true);
}

void SingleController::onResumeBtnClicked()
{
    if (!isStandingBy())
        return;
    endStandby();
    m_stream->setStreamMode(stream::Full);
    applyQuality();
    m_videoView->setFocus();
    onOperation();
}

void SingleController::onExitBtnClicked()
{
    closeByUser();
}

// ---- Shape ----

void SingleController::onScreenRotateBtnClicked()
{
    m_videoView->setOrientation(
        static_cast<ScreenOrientation>(static_cast<int>(orientation()) ^ OrientationToggle));
}

void SingleController::onScreenRotation(ScreenOrientation orientation)
{
    if (orientation == this->orientation())
        return;
    m_keyMapping->followOrientation();
    turnTo(orientation);
    m_videoPage->layout()->update(); // the view may have turned itself within the same place
    if (isStandingBy())
        layOutStandbyPage();
}

// How a session begins.
void SingleController::showPortrait()
{
    if (orientation() != ScreenOrientation::Portrait)
        m_videoView->setOrientation(ScreenOrientation::Portrait);
}

void SingleController::onMaximizeShortcutActivated()
{
    toggleMaximized();
}

void SingleController::resizeEvent(QResizeEvent *event)
{
    TurnableWindow::resizeEvent(event);
    showTitle();
}

// ---- Key mapping ----

void SingleController::connectKeyMapping()
{
    const EditingMenu *menu = m_title->editingMenu();
    const KeyboardMapEditor *editor = m_keyMapping->editor();
    using Window = SingleController;
    using Editor = KeyboardMapEditor;
    connect(m_menuBar, &MenuBar::keyboardMapBtnClicked, this, &Window::onKeyboardMapBtnClicked);
    connect(m_menuBar, &MenuBar::applyKeyBindingBtnClicked, this, &Window::onApplyKeyBindingBtnClicked);
    connect(menu, &EditingMenu::tutorialBtnClicked, this, &Window::onTutorialBtnClicked);
    connect(menu, &EditingMenu::uploadBtnClicked, this, &Window::onUploadBtnClicked);
    connect(menu, &EditingMenu::exitBtnClicked, this, &Window::onExitKeyBoardEditBtnClicked);
    connect(editor, &Editor::sigSaveAndClose, this, &Window::onSaveAndCloseKeyboardEditor);
    connect(editor, &Editor::sigAuxiliaryClickBtnClicked, this, &Window::onAuxiliaryClickBtnClicked);
    connect(editor, &Editor::sigAuxiliaryCrosshairClicked, this, &Window::onAuxiliaryCrosshairClicked);
    connect(editor, &Editor::sigAuxiliaryWalkingClicked, this, &Window::onAuxiliaryWalkingClicked);
    connect(editor, &Editor::sigCreateAuxiliaryClickKey, this, &Window::onCreateAuxiliaryClickKey);
    connect(editor, &Editor::sigCreateAuxiliaryCrosshairKey, this, &Window::onCreateAuxiliaryCrosshairKey);
    connect(editor, &Editor::sigCreateAuxiliaryWalkingKey, this, &Window::onCreateAuxiliaryWalkingKey);
    connect(m_keyMapping, &DeviceKeyMapping::sigShareConfirmed, this, &Window::onShareConfig);
    connect(m_keyMapping, &DeviceKeyMapping::sigOperation, this, &Window::onOperation);
    connect(m_keyMapping, &DeviceKeyMapping::sigSaveWanted, this, [this] { leaveEditor(true); });
    connect(m_keyMapping, &DeviceKeyMapping::sigDiscardWanted, this, [this] { leaveEditor(false); });
    connect(m_keyMapping, &DeviceKeyMapping::sigStayWanted, this, [this] { m_closesAfterEditing = false; });
    connect(m_keyMapping->manager(), &KeyboardMapMgr::sigSaved, this, &Window::onSaved);
}

void SingleController::onKeyboardMapBtnClicked()
{
    if (!takesInput())
        return;
    m_keyboard.releaseAll();
    showEditor(true);
    onOperation();
}

// The keys end what they hold as the editing begins.
void SingleController::showEditor(bool shown)
{
    if (shown)
        m_keyMapping->beginEditing();
    else
        m_keyMapping->endEditing();
    m_videoView->setAttribute(Qt::WA_InputMethodEnabled, !shown);
    m_menuBar->setVisible(!shown);
    m_title->setEditing(shown);
    setEditingShape(shown);
    showTitle();
    if (isStandingBy())
        layOutStandbyPage();
    else
        m_videoView->setFocus();
}

void SingleController::onSaveAndCloseKeyboardEditor()
{
    if (m_keyMapping->isEditing())
        showEditor(false);
}

void SingleController::onExitKeyBoardEditBtnClicked()
{
    if (!m_keyMapping->isEditing())
        return;
    m_closesAfterEditing = false;
    if (m_keyMapping->hasUnsavedEdits())
        m_keyMapping->askToSave();
    else
        showEditor(false);
}

// Discarding needs the editor's shape, in which schemes are laid out.
void SingleController::leaveEditor(bool save)
{
    if (save) {
        m_keyMapping->save();
        return;
    }
    m_keyMapping->discardChanges();
    showEditor(false);
    if (m_closesAfterEditing)
        closeByUser();
}

// A window that is to be closed waits until its layout is stored, and stays when that fails.
void SingleController::onSaved(bool isStored)
{
    if (m_closesAfterEditing && isStored)
        closeByUser();
    m_closesAfterEditing = false;
}

void SingleController::closeByUser()
{
    m_closesAfterEditing = m_keyMapping->hasUnsavedEdits();
    if (m_closesAfterEditing)
        m_keyMapping->askToSave();
    else
        onBtnCloseClicked();
}

void SingleController::onApplyKeyBindingBtnClicked()
{
    if (!takesInput())
        return;
    m_keyMapping->applyLocalCopy();
    onOperation();
}

void SingleController::onTutorialBtnClicked()
{
    m_keyMapping->openGuide();
}

void SingleController::onUploadBtnClicked()
{
    m_keyMapping->openShareDialog(m_title->editingMenu()->uploadButton());
}

void SingleController::onShareConfig()
{
    m_keyMapping->importShared();
}

void SingleController::onAuxiliaryClickBtnClicked()
{
    m_keyMapping->addKey(keymap::ClickKey);
}

void SingleController::onAuxiliaryCrosshairClicked()
{
    m_keyMapping->addKey(keymap::CrosshairKey);
}

void SingleController::onAuxiliaryWalkingClicked()
{
    m_keyMapping->addKey(keymap::WalkingKey);
}

void SingleController::onCreateAuxiliaryClickKey()
{
    m_keyMapping->createKey(keymap::ClickKey);
}

void SingleController::onCreateAuxiliaryCrosshairKey()
{
    m_keyMapping->createKey(keymap::CrosshairKey);
}

void SingleController::onCreateAuxiliaryWalkingKey()
{
    m_keyMapping->createKey(keymap::WalkingKey);
}

// ---- End ----

// A close by the window manager means the same to the owner as the close button.
void SingleController::closeEvent(QCloseEvent *event)
{
    if (event->spontaneous() && m_keyMapping->hasUnsavedEdits()) {
        event->ignore();
        closeByUser();
        return;
    }
    if (event->spontaneous())
        emit sigCloseBtnClicked();
    m_keyMapping->abandon();
    if (m_keyMapping->isEditing())
        showEditor(false);
    endStream();
    closeQuestions();
    showPortrait();
    TurnableWindow::closeEvent(event);
}

// Dialogs and messages are windows or wait for an answer; hiding their window alone does not end them.
void SingleController::closeQuestions()
{
    const auto dialogs = findChildren<QDialog *>();
    for (QDialog *dialog : dialogs) {
        if (dialog->isVisible())
            dialog->reject();
    }
    if (m_toast)
        m_toast->close();
}

// Back to the loading page, so that a window which is shown again has nothing old in it.
void SingleController::endStream()
{
    delete m_httpHelper; // its answer must not start a stream in a closed window
    m_httpHelper = nullptr;
    liftEverything();
    m_stream->stopStream();
    endStandby();
    m_pages->setCurrentWidget(m_loadingPage);
    m_standbyTimer->stop();
    m_title->clearDelay();
}
