#include "device/SingleController.h"

#include "device/DeviceApplyAnswer.h"
#include "device/LoadingPage.h"
#include "device/MenuBar.h"
#include "device/QualityBox.h"
#include "device/StandbyWidget.h"
#include "net/HttpHelper.h"
#include "stream/DeviceKey.h"
#include "stream/StreamController.h"
#include "stream/VideoView.h"
#include "widgets/OvTitleBarBase.h"
#include "widgets/OvToast.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDebug>
#include <QDialog>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace {

constexpr int SuccessCode = 200;

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr int TitlePixels = 14;
constexpr int TitleBarRest = 10 + 3 * 40; // of its width: the left margin and the caption buttons
constexpr int TitleGap = 8; // after the title
constexpr int DelayPixels = 12;
constexpr int DelayWidth = 64; // holds "9999ms"
constexpr int DelayMargin = 8;
constexpr QRgb TitleColour = qRgb(255, 255, 255);
constexpr QRgb Body = qRgb(68, 68, 68); // as the bars: it shows through where pixels are shared
constexpr int ToastSeconds = 3;
} // namespace Look

constexpr int OrientationToggle = 3; // landscape to portrait and back, by exclusive or

// Whether a key travels as a key and not as text: its text must be the character of its own code. The code is
// taken as a signed byte, so that letters outside ASCII, which a device keyboard has no key for, are text.
bool travelsAsKey(const QKeyEvent &event)
{
    const auto code = static_cast<signed char>(event.key() & 0xFF);
    return event.text() == QString(QChar(static_cast<ushort>(code)));
}

QString logText(const QJsonValue &data)
{
    const QJsonDocument document = QJsonDocument::fromVariant(data.toVariant());
    return document.isNull() ? data.toVariant().toString()
                             : QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

} // namespace

SingleController::SingleController(const QString &serviceId, const QString &deviceName, QWidget *parent)
    : TurnableWindow(parent)
    , m_serviceId(serviceId)
    , m_deviceName(deviceName)
    , m_stream(std::make_shared<StreamController>())
    , m_standbyTimer(new StandbyTimer(this))
{
    setBackgroundColor(QColor(Look::Body));
    createTitle();
    showTitle();
    createPages();
    connectStream();
    connectMenuBar();
    connect(m_standbyTimer, &StandbyTimer::sigExpired, this, &SingleController::startStandby);
    connect(m_standbyPage, &StandbyWidget::sigResumeBtnClicked, this, &SingleController::onResumeBtnClicked);
    connect(m_standbyPage, &StandbyWidget::sigExitBtnClicked, this, &SingleController::onExitBtnClicked);

    auto *paste = new QShortcut(Qt::CTRL + Qt::Key_V, this);
    paste->setAutoRepeat(false);
    connect(paste, &QShortcut::activated, this, &SingleController::onPasteText);
}

SingleController::~SingleController()
{
    endStream();
}

void SingleController::createTitle()
{
    setWindowTitle(m_deviceName);
    titleBar()->setButtonType(OvTitleBarBase::MinMaxCloseButtons);

    m_qualityBox = new QualityBox(titleBar());
    titleBar()->buttonLayout()->addWidget(m_qualityBox);
    m_delayLabel = new QLabel(titleBar());
    m_delayLabel->setObjectName(QStringLiteral("delayLabel"));
    m_delayLabel->setContentsMargins(0, 0, Look::DelayMargin, 0);
    m_delayLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_delayLabel->setMinimumWidth(Look::DelayWidth); // the bar keeps still while the figure changes
    m_delayLabel->setStyleSheet(QStringLiteral("color: #C0C4CC; font-size: %1px;").arg(Look::DelayPixels));
    titleBar()->buttonLayout()->addWidget(m_delayLabel);
}

// As much of the name as the bar has room for; the task bar has the whole.
void SingleController::showTitle()
{
    QFont font;
    font.setPixelSize(Look::TitlePixels);
    const int barWidth = width() - (isMaximizedInProportion() ? 0 : 2 * shadowMargin());
    const int room = barWidth - Look::TitleBarRest - Look::TitleGap - QualityBox::boxWidth
        - m_delayLabel->minimumWidth();
    titleBar()->setTitle(QFontMetrics(font).elidedText(m_deviceName, Qt::ElideRight, room), Look::TitlePixels,
        false, QColor(Look::TitleColour));
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
    m_menuBar->setKeyMappingShown(false);
    auto *layout = new QHBoxLayout(page);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_videoView, 1);
    layout->addWidget(m_menuBar);
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
    connect(m_qualityBox, qOverload<int>(&QComboBox::currentIndexChanged), stream,
        &StreamController::onVideoLevelChanged);
    connect(
        m_qualityBox, qOverload<int>(&QComboBox::currentIndexChanged), this, &SingleController::onOperation);
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

bool SingleController::takesInput() const
{
    return showsVideo() && !isStandingBy();
}

// ---- Applying for the device
// ----------------------------------------------------------------------------------

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
                                 << logText(data);
    m_streamingData = streamingDataOf(data, m_serviceId);
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
    showToast(message);
}

void SingleController::onApplyFailed(const QString &error)
{
    qWarning().noquote().nospace() << "single controller apply device failed, error msg ---> " << error;
    showToast(error);
}

// One at a time: the newest takes the place of the one before.
void SingleController::showToast(const QString &text)
{
    if (!m_toast || !m_toast->isVisible())
        m_toast = new OvToast(this);
    m_toast->show(text, Look::ToastSeconds);
}

// ---- Keyboard and clipboard
// -----------------------------------------------------------------------------------

void SingleController::keyPressEvent(QKeyEvent *event)
{
    if (!takesInput()) {
        TurnableWindow::keyPressEvent(event);
        return;
    }
    onOperation();
    if (travelsAsKey(*event)) {
        const int code = deviceKeyCode(event->key());
        m_heldKeys.press(event->nativeScanCode(), code);
        m_stream->onKeyPressEvent(code);
    } else {
        m_stream->onInputEvent(event->text());
    }
}

// Also after a press that went as text: the device ignores keys that are not down.
void SingleController::keyReleaseEvent(QKeyEvent *event)
{
    if (!takesInput()) {
        TurnableWindow::keyReleaseEvent(event);
        return;
    }
    const int code = deviceKeyCode(event->key());
    m_stream->onKeyReleaseEvent(code);
    const QVector<int> others = m_heldKeys.release(event->nativeScanCode(), code);
    for (const int other : others)
        m_stream->onKeyReleaseEvent(other);
}

void SingleController::releaseHeldKeys()
{
    const QVector<int> codes = m_heldKeys.releaseAll();
    for (const int code : codes)
        m_stream->onKeyReleaseEvent(code);
}

void SingleController::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        releaseHeldKeys(); // their releases go to another window
    TurnableWindow::changeEvent(event);
}

bool SingleController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_videoView) {
        if (event->type() == QEvent::FocusOut)
            releaseHeldKeys(); // a list that is open takes the keyboard without another window being active
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

// ---- Stream
// ---------------------------------------------------------------------------------------------------

void SingleController::onPlayInfo(const char *info)
{
    const QJsonObject values = QJsonDocument::fromJson(info).object();
    const int delayMs = values.value(QStringLiteral("delayTime")).toInt(0);
    m_delayLabel->setText(QStringLiteral("%1ms").arg(delayMs));
}

void SingleController::applyQuality()
{
    if (m_qualityBox->currentIndex() > 0) // a session begins with the automatic level by itself
        m_stream->onVideoLevelChanged(m_qualityBox->currentIndex());
}

// ---- Stand-by
// -------------------------------------------------------------------------------------------------

void SingleController::setStandbyTime(int minutes)
{
    m_standbyTimer->setMinutes(minutes);
    onOperation();
}

void SingleController::onOperation()
{
    if (takesInput())
        m_standbyTimer->restart();
}

// Nothing that is held reaches the device any more, so it comes up first.
void SingleController::startStandby()
{
    if (!takesInput())
        return;
    m_videoView->liftFinger();
    releaseHeldKeys();
    m_standbyTimer->stop();
    m_stream->setStreamMode(stream::Paused);
    m_menuBar->setEnabled(false);
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
    onBtnCloseClicked();
}

// ---- Shape
// ----------------------------------------------------------------------------------------------------

void SingleController::onScreenRotateBtnClicked()
{
    m_videoView->setOrientation(
        static_cast<ScreenOrientation>(static_cast<int>(orientation()) ^ OrientationToggle));
}

void SingleController::onScreenRotation(ScreenOrientation orientation)
{
    if (orientation == this->orientation())
        return;
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

// ---- End
// ------------------------------------------------------------------------------------------------------

// A close by the window manager means the same to the owner as the close button.
void SingleController::closeEvent(QCloseEvent *event)
{
    if (event->spontaneous())
        emit sigCloseBtnClicked();
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
    m_videoView->liftFinger();
    releaseHeldKeys();
    m_stream->stopStream();
    endStandby();
    m_pages->setCurrentWidget(m_loadingPage);
    m_standbyTimer->stop();
    m_delayLabel->clear();
}
