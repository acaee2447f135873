#include "TestCameraPlugin.h"

#include "TestCameraService.h"

namespace {

const QByteArray Device = QByteArrayLiteral("testcamera");

} // namespace

QMediaService *TestCameraPlugin::create(const QString &key)
{
    return key == QLatin1String(Q_MEDIASERVICE_CAMERA) ? new TestCameraService : nullptr;
}

void TestCameraPlugin::release(QMediaService *service)
{
    delete service;
}

QByteArray TestCameraPlugin::defaultDevice(const QByteArray &) const
{
    return Device;
}

QList<QByteArray> TestCameraPlugin::devices(const QByteArray &) const
{
    return {Device};
}

QString TestCameraPlugin::deviceDescription(const QByteArray &, const QByteArray &)
{
    return QStringLiteral("Camera of the tests");
}
