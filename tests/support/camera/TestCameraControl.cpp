#include "TestCameraControl.h"

void TestCameraControl::setState(QCamera::State state)
{
    m_wanted = state;
    if (state == QCamera::ActiveState)
        QMetaObject::invokeMethod(this, &TestCameraControl::reach, Qt::QueuedConnection);
    else
        reach();
}

void TestCameraControl::reach()
{
    if (m_state == m_wanted)
        return;
    m_state = m_wanted;
    emit stateChanged(m_state);
    emit statusChanged(status());
}

QCamera::Status TestCameraControl::status() const
{
    switch (m_state) {
    case QCamera::ActiveState:
        return QCamera::ActiveStatus;
    case QCamera::LoadedState:
        return QCamera::LoadedStatus;
    case QCamera::UnloadedState:
        break;
    }
    return QCamera::UnloadedStatus;
}

void TestCameraControl::setCaptureMode(QCamera::CaptureModes mode)
{
    m_mode = mode;
    emit captureModeChanged(mode);
}

bool TestCameraControl::isCaptureModeSupported(QCamera::CaptureModes mode) const
{
    return mode == QCamera::CaptureStillImage;
}

bool TestCameraControl::canChangeProperty(PropertyChangeType, QCamera::Status) const
{
    return true;
}
