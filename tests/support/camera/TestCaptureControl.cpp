#include "TestCaptureControl.h"

#include "NumberedPicture.h"
#include "TestCameraControl.h"
#include "TestDestinationControl.h"

#include <QCoreApplication>
#include <QVideoFrame>

namespace {

constexpr QSize PictureSize(640, 480);

} // namespace

TestCaptureControl::TestCaptureControl(
    const TestCameraControl &camera, const TestDestinationControl &destination)
    : m_camera(camera)
    , m_destination(destination)
{ }

bool TestCaptureControl::isReadyForCapture() const
{
    return m_camera.state() == QCamera::ActiveState;
}

QCameraImageCapture::DriveMode TestCaptureControl::driveMode() const
{
    return QCameraImageCapture::SingleImageCapture;
}

void TestCaptureControl::setDriveMode(QCameraImageCapture::DriveMode)
{ }

int TestCaptureControl::capture(const QString &fileName)
{
    const int id = ++m_lastId;
    qApp->setProperty("testCameraRequests", id);
    QMetaObject::invokeMethod(
        this, [this, id, fileName] { deliver(id, fileName); }, Qt::QueuedConnection);
    return id;
}

void TestCaptureControl::deliver(int id, const QString &fileName)
{
    if (!isReadyForCapture()) {
        emit error(id, QCameraImageCapture::NotReadyError, QStringLiteral("switched off meanwhile"));
        return;
    }
    const QImage picture = numberedpicture::make(id, PictureSize);
    emit imageExposed(id);
    emit imageCaptured(id, picture);
    if (m_destination.captureDestination() & QCameraImageCapture::CaptureToBuffer)
        emit imageAvailable(id, QVideoFrame(picture));
    if (m_destination.captureDestination() & QCameraImageCapture::CaptureToFile)
        emit imageSaved(id, fileName);
}
