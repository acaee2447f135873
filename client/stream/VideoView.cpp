#include "stream/VideoView.h"

#include "stream/FrameBufferLock.h"
#include "stream/StreamController.h"
#include "stream/TouchPointSource.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QStandardPaths>
#include <QTransform>
#include <QWheelEvent>

#include <utility>

namespace {

constexpr std::chrono::milliseconds MoveInterval{50};
constexpr std::chrono::milliseconds GestureInterval{50};
constexpr int NoFinger = -1;
constexpr int BgraFormat = -1; // as the SDK numbers it

VideoView::MonotonicClock runningClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return std::chrono::milliseconds(timer.elapsed()); };
}

QString proposedPictureFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString name = VideoView::tr("Screen capture")
        + QDateTime::currentDateTime().toString(QStringLiteral(" yyyy-MM-dd hh-mm-ss"));
    return QDir(folder).filePath(name + QStringLiteral(".png"));
}

} // namespace

VideoView::VideoView(QWidget *parent)
    : QWidget(parent)
    , m_clock(runningClock())
{
    QPalette white = palette();
    white.setColor(QPalette::Window, Qt::white);
    setPalette(white);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setCursor(Qt::ArrowCursor); // not the resize cursor that the window shows at its edge
}

VideoView::~VideoView()
{
    emit sigAboutToBeDestroyed();
}

void VideoView::setOrientation(ScreenOrientation orientation)
{
    liftFinger();
    m_orientation = orientation;
    resize(height(), width());
    update();
    emit screenRotation(orientation);
}

void VideoView::setViewMode(int mode)
{
    m_viewMode = mode;
}

void VideoView::fitPicturesToView()
{
    m_fitsPictures = true;
    QSize pixels = size() * devicePixelRatioF();
    if (m_orientation != ScreenOrientation::Portrait)
        pixels.transpose(); // the picture is turned when it is painted
    if (!pixels.isEmpty())
        setDstFormat(BgraFormat, pixels.width(), pixels.height(), 0);
}

bool VideoView::event(QEvent *event)
{
    if (event->type() == QEvent::ScreenChangeInternal && m_fitsPictures)
        fitPicturesToView();
    return QWidget::event(event);
}

void VideoView::setStreamController(const std::weak_ptr<StreamController> &controller)
{
    m_streamController = controller;
}

void VideoView::setTouchPointSource(TouchPointSource *source)
{
    m_touchPoints = source;
}

void VideoView::setClock(MonotonicClock clock)
{
    m_clock = std::move(clock);
}

// ---- Pictures ----

void VideoView::onFrameArrival()
{
    {
        const std::lock_guard<std::mutex> lock(m_frameLock);
        m_arrivals.pictureHasCome = true;
        m_arrivals.pictureForgotten = false;
        if (!m_arrivals.visible || m_arrivals.updateQueued)
            return;
        m_arrivals.updateQueued = true;
    }
    QMetaObject::invokeMethod(this, "presentFrame", Qt::AutoConnection);
}

void VideoView::presentFrame()
{
    {
        const std::lock_guard<std::mutex> lock(m_frameLock);
        m_arrivals.updateQueued = false;
        if (m_arrivals.pictureForgotten)
            return;
    }
    update();
    tellFirstPicture();
}

void VideoView::tellFirstPicture()
{
    if (!std::exchange(m_hasPicture, true))
        emit sigFirstPicture();
}

void VideoView::forgetPicture()
{
    {
        const std::lock_guard<std::mutex> lock(m_frameLock);
        m_arrivals.pictureHasCome = false;
        m_arrivals.pictureForgotten = true;
    }
    m_hasPicture = false;
    update();
}

bool VideoView::isPictureForgotten()
{
    const std::lock_guard<std::mutex> lock(m_frameLock);
    return m_arrivals.pictureForgotten;
}

void VideoView::onScreenRotation(int rotation)
{
    {
        const std::lock_guard<std::mutex> lock(m_frameLock);
        m_arrivals.rotations.push_back(rotation);
        if (m_arrivals.rotations.size() > 1)
            return; // followRotations is already on its way
    }
    QMetaObject::invokeMethod(this, "followRotations", Qt::AutoConnection);
}

void VideoView::followRotations()
{
    std::vector<int> rotations;
    {
        const std::lock_guard<std::mutex> lock(m_frameLock);
        rotations.swap(m_arrivals.rotations);
    }
    for (const int rotation : rotations) {
        if (m_viewMode != stream::InteractiveView)
            return;
        liftFinger(); // it stays where it was on the screen, which is elsewhere on the device
        m_orientation = rotation % 2 != 0 ? ScreenOrientation::Landscape : ScreenOrientation::Portrait;
        update();
        emit screenRotation(m_orientation);
    }
}

void VideoView::showEvent(QShowEvent *event)
{
    bool pictureHasCome = false;
    {
        const std::lock_guard<std::mutex> lock(m_frameLock);
        m_arrivals.visible = true;
        pictureHasCome = m_arrivals.pictureHasCome;
    }
    QWidget::showEvent(event);
    if (pictureHasCome)
        tellFirstPicture(); // it came while the view was hidden
}

void VideoView::hideEvent(QHideEvent *event)
{
    {
        const std::lock_guard<std::mutex> lock(m_frameLock);
        m_arrivals.visible = false;
    }
    liftFinger();
    QWidget::hideEvent(event);
}

// The painter turns the picture, not a turned copy of it: nothing is copied on the way to the screen.
void VideoView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const FrameBufferLock frame(*this);
    const QImage image = isPictureForgotten() ? QImage() : frame.image();
    if (image.isNull()) {
        painter.fillRect(rect(), Qt::white);
        return;
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (m_orientation == ScreenOrientation::Portrait) {
        painter.drawImage(rect(), image);
        return;
    }
    painter.translate(0, height());
    painter.rotate(-90);
    painter.drawImage(QRect(0, 0, height(), width()), image);
}

QImage VideoView::picture()
{
    const FrameBufferLock frame(*this);
    const QImage image = isPictureForgotten() ? QImage() : frame.image();
    if (image.isNull() || m_orientation == ScreenOrientation::Portrait)
        return image.copy();
    return image.transformed(QTransform().rotate(-90));
}

// The picture is taken at the click: what the user saw is what is saved, however long the dialog is open. The
// dialogs belong to the window, so that they stay usable while the view is disabled, and end with the view.
void VideoView::onScreenCaptureBtnClicked()
{
    const QImage shown = picture();
    if (shown.isNull()) {
        qWarning() << "there is no picture yet to save";
        return;
    }
    auto *dialog
        = new QFileDialog(window(), tr("Save File"), proposedPictureFile(), tr("Image(*.jpg *.png)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("png"));
    connect(this, &QObject::destroyed, dialog, &QObject::deleteLater);
    connect(dialog, &QFileDialog::fileSelected, this,
        [this, shown](const QString &fileName) { savePicture(shown, fileName); });
    dialog->open();
}

void VideoView::savePicture(const QImage &picture, const QString &fileName)
{
    if (picture.save(fileName))
        return;
    qWarning().noquote() << "the picture could not be saved as" << QDir::toNativeSeparators(fileName);
    auto *box = new QMessageBox(QMessageBox::Warning, tr("Save File"), tr("The picture could not be saved."),
        QMessageBox::Ok, window());
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(this, &QObject::destroyed, box, &QObject::deleteLater);
    box->open();
}

// ---- Touches ----

void VideoView::setPosition(const QPointF &position)
{
    if (width() <= 0 || height() <= 0)
        return;
    const auto acrossView = static_cast<float>(position.x() / width());
    const auto downView = static_cast<float>(position.y() / height());
    if (m_orientation == ScreenOrientation::Portrait) {
        m_percentX = acrossView;
        m_percentY = downView;
    } else {
        m_percentX = 1.0F - downView;
        m_percentY = acrossView;
    }
}

std::optional<QSize> VideoView::remoteSize() const
{
    const std::shared_ptr<StreamController> controller = m_streamController.lock();
    if (!controller)
        return std::nullopt;
    const QSize remote = controller->videoResolution();
    return remote.isValid() ? std::make_optional(remote) : std::nullopt;
}

// All fingers but a gesture's: the auxiliary keys' first, the mouse last, (-1, -1) for none at all.
void VideoView::appendHeldPoints(QVector<int> &xs, QVector<int> &ys, const QSize &remote) const
{
    if (m_touchPoints)
        m_touchPoints->appendTouchPoints(xs, ys, remote);
    if (m_pressed) {
        xs.append(static_cast<int>(static_cast<float>(remote.width()) * m_percentX));
        ys.append(static_cast<int>(static_cast<float>(remote.height()) * m_percentY));
    }
    if (xs.isEmpty()) {
        xs.append(NoFinger);
        ys.append(NoFinger);
    }
}

// Sends nothing while there is no session.
void VideoView::sendTouch(int action)
{
    const std::optional<QSize> remote = remoteSize();
    if (!remote)
        return;
    QVector<int> xs;
    QVector<int> ys;
    appendHeldPoints(xs, ys, *remote);
    emit touchEvent(action, xs, ys);
}

// Other devices follow also while this one has no session.
void VideoView::sendMouse(int action)
{
    sendTouch(action);
    emit subControlTouchEvent(action, m_percentX, m_percentY);
}

void VideoView::mousePressEvent(QMouseEvent *event)
{
    if (m_inputDisabled || event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    setFocus(Qt::MouseFocusReason);
    m_pressed = true;
    setPosition(event->localPos());
    sendMouse(TouchDown);
    m_lastMove = m_clock();
}

void VideoView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed || m_inputDisabled) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    const std::chrono::milliseconds now = m_clock();
    if (now - m_lastMove < MoveInterval)
        return;
    m_lastMove = now;
    setPosition(event->localPos());
    sendMouse(TouchMove);
}

void VideoView::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_inputDisabled || event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    liftFinger();
}

// The release carries the last position that was sent, not that of the release.
void VideoView::liftFinger()
{
    if (!m_pressed)
        return;
    m_pressed = false;
    sendMouse(TouchUp);
}

void VideoView::focusOutEvent(QFocusEvent *event)
{
    // The releases may go elsewhere now.
    m_ctrlHeld = false;
    liftFinger();
    QWidget::focusOutEvent(event);
}

void VideoView::onAuxiliaryKeyAction(int action)
{
    sendTouch(action);
}

void VideoView::onRecordingStatusChanged(bool isRecording)
{
    if (isRecording)
        liftFinger(); // the release will be ignored
    m_inputDisabled = isRecording;
}

// ---- Wheel ----

void VideoView::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (m_inputDisabled || m_viewMode != stream::InteractiveView)
        return;
    if (m_gestureTimer && m_gestureTimer->isActive())
        return;
    const std::optional<QSize> remote = remoteSize();
    if (!remote)
        return;
    const QPoint position = event->globalPosition().toPoint() - mapToGlobal(QPoint(0, 0));
    const QPoint centre = WheelGesture::centre(position, size(), *remote, m_orientation);
    const QPoint distance = WheelGesture::distance(event->pixelDelta(), event->angleDelta(), *remote);
    m_gesture = m_ctrlHeld ? WheelGesture::pinch(centre, distance, *remote)
                           : WheelGesture::drag(centre, distance, *remote, m_orientation);
    if (m_gesture.atTarget())
        return; // it would be a tap
    if (!m_gestureTimer) {
        m_gestureTimer = new QTimer(this);
        m_gestureTimer->setTimerType(Qt::PreciseTimer);
        connect(m_gestureTimer, &QTimer::timeout, this, &VideoView::stepGesture);
    }
    if (sendGesture(TouchDown))
        m_gestureTimer->start(GestureInterval);
}

bool VideoView::sendGesture(int action)
{
    const std::optional<QSize> remote = remoteSize();
    if (!remote)
        return false;
    QVector<int> xs;
    QVector<int> ys;
    m_gesture.appendPoints(xs, ys);
    appendHeldPoints(xs, ys, *remote);
    emit touchEvent(action, xs, ys);
    return true;
}

void VideoView::stepGesture()
{
    const bool ended = m_gesture.atTarget();
    if (!ended)
        m_gesture.advance();
    if (!sendGesture(ended ? TouchUp : TouchMove) || ended)
        m_gestureTimer->stop();
}

// ---- Keys and text ----

void VideoView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Control)
        m_ctrlHeld = true;
    QWidget::keyPressEvent(event); // on to the window, which sends keys
}

void VideoView::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Control)
        m_ctrlHeld = false;
    QWidget::keyReleaseEvent(event);
}

bool VideoView::focusNextPrevChild(bool)
{
    return false;
}

void VideoView::inputMethodEvent(QInputMethodEvent *event)
{
    if (!event->commitString().isEmpty())
        emit inputEvent(event->commitString());
    QWidget::inputMethodEvent(event);
}
