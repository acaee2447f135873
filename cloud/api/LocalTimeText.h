#pragma once

#include "api/Clocks.h"

#include <QDateTime>
#include <QString>

namespace orvane::cloud {

// A time as the API writes it: "yyyy-MM-dd hh:mm:ss" in the service's time zone. Any thread.
inline QString localTimeText(WallTime time)
{
    return QDateTime::fromMSecsSinceEpoch(time.time_since_epoch().count())
        .toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

} // namespace orvane::cloud
