#pragma once

#include <QCameraControl>

// The test camera's power switch. Like a real one it takes a moment to become active: until the event loop
// comes round.
class TestCameraControl : public QCameraControl
{
    Q_OBJECT

public:
    QCamera::State state() const override { return m_state; }
    void setState(QCamera::State state) override;
    QCamera::Status status() const override;
    QCamera::CaptureModes captureMode() const override { return m_mode; }
    void setCaptureMode(QCamera::CaptureModes mode) override;
    bool isCaptureModeSupported(QCamera::CaptureModes mode) const override;
    bool canChangeProperty(PropertyChangeType type, QCamera::Status status) const override;

private:
    void reach();

    QCamera::State m_wanted = QCamera::UnloadedState;
    QCamera::State m_state = QCamera::UnloadedState;
    QCamera::CaptureModes m_mode = QCamera::CaptureStillImage;
};
