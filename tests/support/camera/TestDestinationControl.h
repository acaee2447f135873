#pragma once

#include <QCameraCaptureDestinationControl>

// Where the test camera's pictures go: a file unless the memory is asked for, as with real ones.
class TestDestinationControl : public QCameraCaptureDestinationControl
{
    Q_OBJECT

public:
    bool isCaptureDestinationSupported(QCameraImageCapture::CaptureDestinations destination) const override;
    QCameraImageCapture::CaptureDestinations captureDestination() const override { return m_destination; }
    void setCaptureDestination(QCameraImageCapture::CaptureDestinations destination) override;

private:
    QCameraImageCapture::CaptureDestinations m_destination = QCameraImageCapture::CaptureToFile;
};
