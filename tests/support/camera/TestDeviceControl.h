#pragma once

#include <QVideoDeviceSelectorControl>

// The list of cameras that QCamera chooses from: the one there is.
class TestDeviceControl : public QVideoDeviceSelectorControl
{
    Q_OBJECT

public:
    int deviceCount() const override { return 1; }
    QString deviceName(int index) const override;
    QString deviceDescription(int index) const override;
    int defaultDevice() const override { return 0; }
    int selectedDevice() const override { return 0; }
    void setSelectedDevice(int index) override;
};
