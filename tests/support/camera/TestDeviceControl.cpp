#include "TestDeviceControl.h"

QString TestDeviceControl::deviceName(int) const
{
    return QStringLiteral("testcamera");
}

QString TestDeviceControl::deviceDescription(int) const
{
    return QStringLiteral("Camera of the tests");
}

void TestDeviceControl::setSelectedDevice(int)
{ }
