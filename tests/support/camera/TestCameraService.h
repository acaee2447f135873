#pragma once

#include "TestCameraControl.h"
#include "TestCaptureControl.h"
#include "TestDestinationControl.h"
#include "TestDeviceControl.h"

#include <QMediaService>

// What QCamera works the test camera through. Owned by the plugin's user until it is released.
class TestCameraService : public QMediaService
{
    Q_OBJECT

public:
    TestCameraService();

    QMediaControl *requestControl(const char *name) override;
    void releaseControl(QMediaControl *control) override;

private:
    TestCameraControl m_camera;
    TestDestinationControl m_destination;
    TestCaptureControl m_capture;
    TestDeviceControl m_devices;
};
