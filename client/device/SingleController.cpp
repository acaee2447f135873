#include "device/SingleController.h"

#include "device/DeviceApplyAnswer.h"
#include "device/LoadingPage.h"
#include "net/HttpHelper.h"
#include "stream/DeviceKey.h"
#include "stream/StreamController.h"
#include "stream/VideoView.h"
#include "widgets/OvTitleBarBase.h"
#include "widgets/OvToast.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDebug>
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
constexpr QSize Video(340, 600);
constexpr int TitleBarHeight = 40;
constexpr QSize Content(Video.width(), Video.height() + TitleBarHeight);
constexpr QSize Smallest(Content.width() / 2, Content.height() / 2);
constexpr int TitlePixels = 14;
constexpr int TitleWidth = 160; // at most; a longer name is cut
constexpr int DelayPixels = 12;
constexpr int DelayWidth = 64; // holds "9999ms"
constexpr int DelayMargin = 8;
constexpr QRgb TitleColour = qRgb(255, 255, 255);
constexpr int ToastSeconds = 3;
} // namespace Look

// What the streaming SDK takes as one text, in bytes of UTF-8.
constexpr int LongestPaste = 1024 * 1024;

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
    : OvWindowBase(parent)
    , m_serviceId(serviceId)
    , m_deviceName(deviceName)
    , m_stream(std::make_shared<StreamController>())
{
    createTitle();
    createPages();
    connectStream();

    auto *paste = new QShortcut(Qt::CTRL + Qt::Key_V, this);
    paste->setAutoRepeat(false);
    connect(paste, &QShortcut::activated, this, &SingleController::onPasteText);

    const QSize margins(2 * shadowMargin(), 2 * shadowMargin());
    setMinimumSize(Look::Smallest + margins);
    setAspectRatio(static_cast<double>(Look::Content.width()) / Look::Content.height());
    setContentSize(Look::Content);
    updateWindowSize();
}

SingleController::~SingleController()
{
    endStream();
}

// A cut name in the bar, the whole name in the task bar.
void SingleController::createTitle()
{
    setWindowTitle(m_deviceName);
    QFont font;
    font.setPixelSize(Look::TitlePixels);
    titleBar()->setTitle(QFontMetrics(font).elidedText(m_deviceName, Qt::ElideRight, Look::TitleWidth),
        Look::TitlePixels, false, QColor(Look::TitleColour));
    titleBar()->setButtonType(OvTitleBarBase::MinCloseButtons);

    m_delayLabel = new QLabel(titleBar());
    m_delayLabel->setObjectName(QStringLiteral("delayLabel"));
    m_delayLabel->setContentsMargins(0, 0, Look::DelayMargin, 0);
    m_delayLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_delayLabel->setMinimumWidth(Look::DelayWidth); // the bar keeps still while the figure changes
    m_delayLabel->setStyleSheet(QStringLiteral("color: #C0C4CC; font-size: %1px;").arg(Look::DelayPixels));
    titleBar()->buttonLayout()->addWidget(m_delayLabel);
}

void SingleController::createPages()
{
    m_pages = new QStackedLayout;
    m_loadingPage = new LoadingPage;
    m_videoView = new VideoView;
    m_videoView->setStreamController(m_stream);
    m_pages->addWidget(m_loadingPage);
    m_pages->addWidget(m_videoView);
    mainLayout()->addLayout(m_pages, 1);
}

void SingleController::connectStream()
{
    StreamController *stream = m_stream.get();
    connect(m_videoView, &VideoView::touchEvent, stream, &StreamController::onTouchEvent);
    connect(m_videoView, &VideoView::inputEvent, stream, &StreamController::onInputEvent);
    connect(stream, &StreamController::sigPlayInfo, this, &SingleController::onPlayInfo);
}

bool SingleController::showsVideo() const
{
    return m_pages->currentWidget() == m_videoView;
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
    m_stream->startStream(m_streamingData, stream::Full);
    m_pages->setCurrentWidget(m_videoView);
    m_videoView->setFocus();
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

void SingleController::showToast(const QString &text)
{
    (new OvToast(this))->show(text, Look::ToastSeconds);
}

// ---- Keyboard and clipboard
// -----------------------------------------------------------------------------------

void SingleController::keyPressEvent(QKeyEvent *event)
{
    if (!showsVideo()) {
        OvWindowBase::keyPressEvent(event);
        return;
    }
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
    if (!showsVideo()) {
        OvWindowBase::keyReleaseEvent(event);
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
    OvWindowBase::changeEvent(event);
}

bool SingleController::focusNextPrevChild(bool next)
{
    return !showsVideo() && OvWindowBase::focusNextPrevChild(next);
}

void SingleController::onPasteText()
{
    const QString text = QGuiApplication::clipboard()->text();
    if (text.isEmpty())
        return;
    if (text.toUtf8().size() > LongestPaste) {
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

// A close by the window manager means the same to the owner as the close button.
void SingleController::closeEvent(QCloseEvent *event)
{
    if (event->spontaneous())
        emit sigCloseBtnClicked();
    endStream();
    OvWindowBase::closeEvent(event);
}

// Back to the loading page, so that a window which is shown again has nothing old in it.
void SingleController::endStream()
{
    delete m_httpHelper; // its answer must not start a stream in a closed window
    m_httpHelper = nullptr;
    releaseHeldKeys();
    m_stream->stopStream();
    m_pages->setCurrentWidget(m_loadingPage);
    m_delayLabel->clear();
}
