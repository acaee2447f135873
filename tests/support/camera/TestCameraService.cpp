#include "TestCameraService.h"

#include <QCoreApplication>

TestCameraService::TestCameraService()
    : QMediaService(nullptr)
    , m_capture(m_camera, m_destination)
{
    qApp->setProperty("testCameraServices", qApp->property("testCameraServices").toInt() + 1);
}

QMediaControl *TestCameraService::requestControl(const char *name)
{
    if (qstrcmp(name, QCameraControl_iid) == 0)
        return &m_camera;
    if (qstrcmp(name, QCameraImageCaptureControl_iid) == 0)
        return &m_capture;
    if (qstrcmp(name, QCameraCaptureDestinationControl_iid) == 0)
        return &m_destination;
    if (qstrcmp(name, QVideoDeviceSelectorControl_iid) == 0)
        return &m_devices;
    return nullptr;
}

void TestCameraService::releaseControl(QMediaControl *)
{ }
