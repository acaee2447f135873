#include "TestDestinationControl.h"

bool TestDestinationControl::isCaptureDestinationSupported(QCameraImageCapture::CaptureDestinations) const
{
    return true;
}

void TestDestinationControl::setCaptureDestination(QCameraImageCapture::CaptureDestinations destination)
{
    m_destination = destination;
    emit captureDestinationChanged(destination);
}
