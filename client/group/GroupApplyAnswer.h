#pragma once

#include "group/GroupDevice.h"

#include <QJsonValue>
#include <QList>
#include <QStringList>

namespace group {

// The devices of `serviceIds`, in that order, with the connections that the service grants: `data` is that of
// its answer to "device_apply" for many devices (docs/api.md), with a member for each. A device without a
// record among `devices` gets one with nothing but its id. What the answer lacks stays at the record's
// defaults, except that texts are empty.
QList<GroupDevice> connectedDevices(
    const QStringList &serviceIds, const GroupDevices &devices, const QJsonValue &data);

} // namespace group
