#include "stream/MultimediaMgr.h"

#include "stream/MultimediaWorker.h"

#include <QCamera>
#include <QCameraInfo>
#include <QCoreApplication>
#include <QDebug>
#include <QPointer>
#include <QThread>
#include <QTimer>

namespace {

constexpr int CaptureIntervalMs = 100;

QPointer<MultimediaMgr> currentInstance;

void destroyInstance()
{
    delete currentInstance.data();
}

} // namespace

MultimediaMgr &MultimediaMgr::instance()
{
    Q_ASSERT(qApp && QThread::currentThread() == qApp->thread());
    if (!currentInstance) {
        currentInstance = new MultimediaMgr;
        // Before the application object is gone: the camera's back end needs it.
        qAddPostRoutine(destroyInstance);
    }
    return *currentInstance;
}

void MultimediaMgr::stopInstance()
{
    if (currentInstance)
        currentInstance->stop();
}

MultimediaMgr::MultimediaMgr()
{
    startThread();
    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, &MultimediaMgr::onProcessVideoFrame);
    connect(m_timer, &QTimer::timeout, m_worker, &MultimediaWorker::onProcessAudioData);
    createCamera();
    connectWorker();
}

MultimediaMgr::~MultimediaMgr()
{
    m_timer->stop();
    m_camera->stop();
    m_thread->quit();
    m_thread->wait();
}

void MultimediaMgr::startThread()
{
    m_thread = new QThread(this);
    m_thread->setObjectName(QStringLiteral("camera"));
    m_worker = new MultimediaWorker;
    m_worker->moveToThread(m_thread);
    connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread->start(QThread::InheritPriority);
}

void MultimediaMgr::createCamera()
{
    m_camera = new QCamera(QCameraInfo::defaultCamera(), this);
    m_camera->setCaptureMode(QCamera::CaptureStillImage);
    m_imageCapture = new QCameraImageCapture(m_camera, m_camera);
    // A back end's own choice may be a file for every picture.
    if (m_imageCapture->isCaptureDestinationSupported(QCameraImageCapture::CaptureToBuffer))
        m_imageCapture->setCaptureDestination(QCameraImageCapture::CaptureToBuffer);
    connect(m_camera, &QCamera::errorOccurred, this, &MultimediaMgr::onCameraError);
    connect(m_imageCapture,
        QOverload<int, QCameraImageCapture::Error, const QString &>::of(&QCameraImageCapture::error), this,
        &MultimediaMgr::onCaptureError);
}

void MultimediaMgr::connectWorker()
{
    // What crosses to the worker goes through its event queue, and so needs a registered type.
    qRegisterMetaType<QVideoFrame>("QVideoFrame");
    connect(
        m_imageCapture, &QCameraImageCapture::imageCaptured, m_worker, &MultimediaWorker::onImageCaptured);
    connect(
        m_imageCapture, &QCameraImageCapture::imageAvailable, m_worker, &MultimediaWorker::onImageAvailable);
    connect(m_worker, &MultimediaWorker::sigSendPicture, this, &MultimediaMgr::sigSendPicture);
}

void MultimediaMgr::start()
{
    m_failureTold = false;
    if (!m_camera->isAvailable())
        tellFailure(QStringLiteral("this computer has none that can be used"));
    m_camera->start();
    m_timer->start(CaptureIntervalMs);
    if (!m_thread->isRunning())
        m_thread->start(QThread::InheritPriority);
    onProcessVideoFrame();
}

void MultimediaMgr::stop()
{
    m_camera->stop();
    m_timer->stop();
}

void MultimediaMgr::onProcessAudioData()
{ }

void MultimediaMgr::onProcessVideoFrame()
{
    if (m_camera->state() == QCamera::ActiveState)
        m_imageCapture->capture();
}

void MultimediaMgr::onCameraError()
{
    tellFailure(m_camera->errorString());
}

void MultimediaMgr::onCaptureError(int id, QCameraImageCapture::Error error, const QString &text)
{
    Q_UNUSED(id)
    // A camera that takes longer than the interval is not ready at some of the ticks.
    if (error != QCameraImageCapture::NotReadyError)
        tellFailure(text);
}

// Once after each start: a camera that fails does so at every tick.
void MultimediaMgr::tellFailure(const QString &what)
{
    if (m_failureTold)
        return;
    m_failureTold = true;
    qWarning().noquote() << "the camera cannot be forwarded:" << what;
}
