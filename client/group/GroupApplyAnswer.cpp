#include "group/GroupApplyAnswer.h"

#include "stream/ControlAddress.h"

#include <QDebug>

namespace group {

namespace {

GroupDevice connected(GroupDevice device, const QJsonValue &granted)
{
    const stream::ControlAddress address = stream::controlAddressOf(granted);
    device.instanceCode = granted[QStringLiteral("instanceCode")].toString();
    device.userId = granted[QStringLiteral("userId")].toInt(-1);
    device.sessionId = granted[QStringLiteral("sessionId")].toString();
    device.controlIp = address.ip;
    device.controlPort = address.port;
    return device;
}

} // namespace

QList<GroupDevice> connectedDevices(
    const QStringList &serviceIds, const GroupDevices &devices, const QJsonValue &data)
{
    QList<GroupDevice> result;
    for (const QString &serviceId : serviceIds) {
        GroupDevice device = devices.value(serviceId);
        device.serviceId = serviceId;
        if (!data[serviceId].isObject())
            qWarning().noquote() << "the service grants no session with the device" << serviceId;
        result.append(connected(device, data[serviceId]));
    }
    return result;
}

} // namespace group
