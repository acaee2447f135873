#include "group/GroupDevice.h"

#include <QDebug>
#include <QJsonArray>

namespace group {

namespace {

const QLatin1String ExpireTimeFormat("yyyy-MM-dd hh:mm:ss");

// The page sends numbers or texts for what the service stores as text.
QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toVariant().toString();
}

GroupDevice groupDeviceOf(const QJsonObject &object)
{
    GroupDevice device;
    device.serviceId = text(object, "service_id");
    device.aliasName = text(object, "alias_name");
    device.payMode = text(object, "pay_mode");
    device.expireTime = QDateTime::fromString(text(object, "expire_time"), ExpireTimeFormat);
    device.networkTime = text(object, "network_time");
    return device;
}

} // namespace

GroupDevices groupDevicesOf(const QJsonObject &winData)
{
    GroupDevices devices;
    const QJsonArray children = winData.value(QLatin1String("children")).toArray();
    for (const QJsonValue &child : children) {
        const GroupDevice device = groupDeviceOf(child.toObject());
        if (device.serviceId.isEmpty()) {
            qWarning() << "a device of the group has no service id and is left out";
            continue;
        }
        devices.insert(device.serviceId, device);
    }
    return devices;
}

stream::StreamingData streamingDataOf(const GroupDevice &device)
{
    stream::StreamingData data;
    data.controlPort = device.controlPort;
    data.userId = device.userId;
    data.serviceId = device.serviceId;
    data.padCode = device.instanceCode;
    data.controlIp = device.controlIp;
    data.sessionId = device.sessionId;
    return data;
}

} // namespace group
