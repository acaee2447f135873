#include "stream/ControlAddress.h"

#include <QDebug>

#include <limits>

namespace stream {

namespace {

quint16 portOf(const QJsonValue &value)
{
    const int port = value.toInt(0);
    if (port >= 0 && port <= std::numeric_limits<quint16>::max())
        return static_cast<quint16>(port);
    qWarning() << "the service names no valid port:" << port;
    return 0;
}

} // namespace

ControlAddress controlAddressOf(const QJsonValue &granted)
{
    const QJsonValue control = granted[QStringLiteral("controlList")][0];
    const QJsonValue address = control[QStringLiteral("controlInfoList")][0];
    return {address[QStringLiteral("controlIp")].toString(), portOf(address[QStringLiteral("controlPort")])};
}

} // namespace stream
