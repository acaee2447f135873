#pragma once

#include <QCameraImageCaptureControl>

class TestCameraControl;
class TestDestinationControl;

// Takes the test camera's pictures, numbered from 1 upwards.
class TestCaptureControl : public QCameraImageCaptureControl
{
    Q_OBJECT

public:
    // Both must outlive it.
    TestCaptureControl(const TestCameraControl &camera, const TestDestinationControl &destination);

    bool isReadyForCapture() const override;
    QCameraImageCapture::DriveMode driveMode() const override;
    void setDriveMode(QCameraImageCapture::DriveMode mode) override;
    int capture(const QString &fileName) override;
    void cancelCapture() override { }

private:
    void deliver(int id, const QString &fileName);

    const TestCameraControl &m_camera;
    const TestDestinationControl &m_destination;
    int m_lastId = 0;
};
