#include "group/MainController.h"

#include "group/FunctionBar.h"
#include "group/SubController.h"
#include "stream/StreamController.h"
#include "stream/VideoView.h"

#include <QFontMetrics>
#include <QLabel>
#include <QResizeEvent>

namespace {

// Sizes in device-independent pixels.
namespace Look {
constexpr QSize SmallestPanel(390, 660);
constexpr QSize SmallestContainer(355, 625);
constexpr int MarginsX = 35; // beside the video, both together
constexpr double LandscapeHeight = 0.568; // of the width
constexpr int StatusPixels = 13;
constexpr int StatusMargin = 16; // around a message of several lines
constexpr int NamePixels = 12;
constexpr int NameTop = 4; // from the upper edge of the video
constexpr int NamePaddingX = 10;
constexpr int NamePaddingY = 3;
constexpr int NameRoom = 80; // of the video's width that the name leaves free
} // namespace Look

} // namespace

MainController::MainController(QWidget *parent)
    : QWidget(parent)
    , m_stream(std::make_shared<StreamController>())
    , m_videoContainer(new QWidget(this))
    , m_videoView(new VideoView(m_videoContainer))
    , m_nameLabel(new QLabel(m_videoContainer))
    , m_statusLabel(new QLabel(m_videoContainer))
    , m_bar(new FunctionBar(this))
{
    setMinimumSize(Look::SmallestPanel);
    createVideo();
    connectStream();
}

MainController::~MainController()
{
    m_stream->stopStream();
}

VideoView *MainController::videoView() const
{
    return m_videoView;
}

// The name lies over the picture, where a device has its status bar, and lets the mouse through.
void MainController::createVideo()
{
    m_videoContainer->setObjectName(QStringLiteral("videoContainer"));
    m_videoContainer->setMinimumSize(Look::SmallestContainer);
    m_videoView->setStreamController(m_stream);
    m_nameLabel->setObjectName(QStringLiteral("nameLabel"));
    m_nameLabel->setTextFormat(Qt::PlainText);
    m_nameLabel->setAlignment(Qt::AlignCenter);
    m_nameLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_nameLabel->setStyleSheet(QStringLiteral(
        "QLabel { background: rgba(0, 0, 0, 0.45); color: white; border-radius: 4px; font-size: %1px;"
        " padding: %2px %3px; }")
                                   .arg(Look::NamePixels)
                                   .arg(Look::NamePaddingY)
                                   .arg(Look::NamePaddingX));
    m_nameLabel->hide();
    m_statusLabel->setObjectName(QStringLiteral("statusLabel"));
    m_statusLabel->setAlignment(Qt::AlignCenter);
    m_statusLabel->setTextFormat(Qt::PlainText);
    m_statusLabel->setWordWrap(true);
    m_statusLabel->setMargin(Look::StatusMargin);
    m_statusLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_statusLabel->setStyleSheet(
        QStringLiteral("QLabel { color: #333333; font-size: %1px; }").arg(Look::StatusPixels));
    m_statusLabel->hide();
    setTexts();
}

void MainController::setTexts()
{
    //: State of the master device of a group whose picture is on its way.
    m_statusLabel->setText(m_failure.isEmpty() ? tr("Connecting") : m_failure);
}

void MainController::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

void MainController::connectStream()
{
    StreamController *stream = m_stream.get();
    connect(m_videoView, &VideoView::touchEvent, stream, &StreamController::onTouchEvent);
    connect(m_videoView, &VideoView::inputEvent, stream, &StreamController::onInputEvent);
    connect(m_videoView, &VideoView::screenRotation, this, &MainController::onScreenRotation,
        Qt::DirectConnection);
    connect(m_videoView, &VideoView::sigFirstPicture, m_statusLabel, &QWidget::hide);
    connect(this, &MainController::functionBtnClicked, stream, &StreamController::onFunctionBtnClicked);
    connect(m_bar, &FunctionBar::functionBtnClicked, this, &MainController::functionBtnClicked);
    connect(m_bar, &FunctionBar::restartBtnClicked, this, &MainController::restartBtnClicked);
}

// ---- The device ----

// A finger that is down belongs to the device before, and so do the picture and its turn.
void MainController::setDevice(const group::GroupDevice &device)
{
    const bool isOther = device.serviceId != m_device.serviceId;
    if (m_videoView)
        m_videoView->liftFinger();
    m_device = device;
    showName();
    if (isOther)
        forgetPicture();
    startStream();
    if (m_videoView)
        m_videoView->setFocus();
}

void MainController::showConnecting()
{
    m_failure.clear();
    if (m_device.serviceId.isEmpty())
        showStatus();
}

void MainController::showFailure(const QString &message)
{
    if (!m_device.serviceId.isEmpty())
        return;
    m_failure = message;
    showStatus();
}

void MainController::showStatus()
{
    setTexts();
    m_statusLabel->show();
    m_statusLabel->raise();
}

void MainController::forgetPicture()
{
    m_stream->stopStream();
    m_failure.clear();
    showStatus();
    if (!m_videoView)
        return;
    m_videoView->forgetPicture();
    if (m_orientation != ScreenOrientation::Portrait)
        m_videoView->setOrientation(ScreenOrientation::Portrait); // how a session begins
}

void MainController::startStream()
{
    m_stream->setVideoView(m_videoView);
    m_stream->startStream(group::streamingDataOf(m_device), stream::Full);
    if (m_videoView)
        m_videoView->fitPicturesToView();
}

// The tile connects to the old master first, and this panel leaves it then: in the same step and with the
// same session id.
void MainController::setMainController(SubController *controller)
{
    if (!controller || m_device.serviceId.isEmpty())
        return;
    const group::GroupDevice promoted = controller->device();
    controller->setDevice(m_device);
    setDevice(promoted);
}

void MainController::restartStream()
{
    if (!m_device.serviceId.isEmpty())
        setDevice(group::GroupDevice(m_device));
}

void MainController::stopStream()
{
    if (m_videoView)
        m_videoView->liftFinger();
    m_stream->stopStream();
}

void MainController::onPasteText(const QString &text)
{
    m_stream->onInputEvent(text);
}

void MainController::onKeyPressEvent(int key)
{
    m_stream->onKeyPressEvent(key);
}

void MainController::onKeyReleaseEvent(int key)
{
    m_stream->onKeyReleaseEvent(key);
}

// ---- Layout ----

void MainController::onScreenRotation(ScreenOrientation orientation)
{
    if (orientation == m_orientation)
        return;
    m_orientation = orientation;
    layOutVideo();
}

void MainController::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layOutVideo();
}

QSize MainController::videoSize() const
{
    const int videoWidth = qMax(0, width() - Look::MarginsX);
    const int videoHeight = m_orientation == ScreenOrientation::Portrait
        ? qMax(0, height() - FunctionBar::barHeight)
        : static_cast<int>(videoWidth * Look::LandscapeHeight);
    return {videoWidth, videoHeight};
}

// By hand: the bar keeps its place also where the container's least height leaves it a pixel too few.
void MainController::layOutVideo()
{
    const int containerHeight = height() - FunctionBar::barHeight;
    m_videoContainer->setGeometry(0, 0, width(), containerHeight);
    m_bar->setGeometry(0, containerHeight, width(), FunctionBar::barHeight);
    m_bar->raise();
    if (m_videoView) {
        const QSize size = videoSize();
        m_videoView->setFixedSize(size);
        m_videoView->fitPicturesToView();
        m_videoView->move((width() - size.width()) / 2, (containerHeight - size.height()) / 2);
        m_statusLabel->setGeometry(m_videoView->geometry());
    }
    showName();
}

void MainController::showName()
{
    m_nameLabel->setVisible(!m_device.aliasName.isEmpty());
    QFont font = m_nameLabel->font();
    font.setPixelSize(Look::NamePixels);
    const int room = qMax(0, width() - Look::MarginsX - Look::NameRoom);
    m_nameLabel->setText(QFontMetrics(font).elidedText(m_device.aliasName, Qt::ElideRight, room));
    m_nameLabel->adjustSize();
    const int videoTop = m_videoView ? m_videoView->y() : 0;
    const int above = videoTop - m_nameLabel->height() - Look::NameTop; // where a lying picture leaves room
    m_nameLabel->move((width() - m_nameLabel->width()) / 2, above >= 0 ? above : videoTop + Look::NameTop);
    m_nameLabel->raise();
}
