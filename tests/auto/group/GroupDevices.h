#pragma once

#include "group/GroupDevice.h"

#include <QList>

namespace grouptest {

// A device as the service grants it: "100007" is "Device 7", VM100007 at the gateway.
inline group::GroupDevice device(int number)
{
    group::GroupDevice device;
    device.serviceId = QString::number(100000 + number);
    device.aliasName = QStringLiteral("Device %1").arg(number);
    device.instanceCode = QStringLiteral("VM%1").arg(100000 + number);
    device.userId = 17;
    device.sessionId = QStringLiteral("s-%1").arg(number);
    device.controlIp = QStringLiteral("10.1.2.3");
    device.controlPort = 8181;
    return device;
}

// Devices 1 to `count`.
inline QList<group::GroupDevice> devices(int count)
{
    QList<group::GroupDevice> list;
    for (int i = 1; i <= count; ++i)
        list.append(device(i));
    return list;
}

} // namespace grouptest
