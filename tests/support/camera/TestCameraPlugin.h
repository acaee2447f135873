#pragma once

#include <qmediaserviceproviderplugin.h>

// Offers one camera, the computer's default one for whoever loads this: it takes numbered pictures of 640 x
// 480 pixels. Counts in properties of the application object: "testCameraServices", how often it was opened,
// and "testCameraRequests", for how many pictures it was asked. Owned by Qt.
class TestCameraPlugin : public QMediaServiceProviderPlugin,
                         public QMediaServiceSupportedDevicesInterface,
                         public QMediaServiceDefaultDeviceInterface
{
    Q_OBJECT
    Q_INTERFACES(QMediaServiceSupportedDevicesInterface QMediaServiceDefaultDeviceInterface)
    Q_PLUGIN_METADATA(IID "org.qt-project.qt.mediaserviceproviderfactory/5.0" FILE "testcamera.json")

public:
    QMediaService *create(const QString &key) override;
    void release(QMediaService *service) override;

    QByteArray defaultDevice(const QByteArray &service) const override;
    QList<QByteArray> devices(const QByteArray &service) const override;
    QString deviceDescription(const QByteArray &service, const QByteArray &device) override;
};
