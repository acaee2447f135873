#pragma once

#include "core/DeviceFleet.h"

#include <QString>

namespace orvane::cloud {

// A device's state as the API names it. `over`: its time is over. Any thread.
inline QString deviceStateName(bool over, DeviceState state)
{
    if (over)
        return QStringLiteral("expired");
    return state == DeviceState::Booting ? QStringLiteral("restarting") : QStringLiteral("online");
}

} // namespace orvane::cloud
