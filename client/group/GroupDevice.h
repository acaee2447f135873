#pragma once

#include "stream/StreamingData.h"

#include <QDateTime>
#include <QJsonObject>
#include <QMap>
#include <QSize>
#include <QString>

namespace group {

// One device of a group: what the page hands over of it and, once the service has granted it, where and as
// whom to connect. Plain value.
struct GroupDevice
{
    QString serviceId;
    QString aliasName;
    QString payMode;
    QDateTime expireTime; // local time; invalid if the page gave none that can be read
    QString networkTime; // the service's time when the page learnt of the device, as its text
    QSize screenSize{720, 1280}; // pixels in portrait, until the stream tells the real one

    // The connection, by the service's answer to "device_apply"; until then, or where the answer lacks
    // something, these values.
    QString instanceCode; // the device's name at the streaming gateway
    qint32 userId = -1;
    QString sessionId;
    QString controlIp; // host name or IP address of the streaming gateway
    quint16 controlPort = 0; // its TCP port
};

// By service id, ascending: the first is the group's master.
using GroupDevices = QMap<QString, GroupDevice>;

// The devices in the member "children" of the page's group object. What is no object, or names no
// "service_id", is left out with a line in the log; a device that is named twice counts once, as named last.
GroupDevices groupDevicesOf(const QJsonObject &winData);

// What a session with the device needs to connect.
stream::StreamingData streamingDataOf(const GroupDevice &device);

} // namespace group
