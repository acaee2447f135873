#pragma once

#include <QString>
#include <QtGlobal>

namespace stream {

// Where and as whom to connect to one device. Plain value; filled from the service's answer to
// "device_apply". Missing parts stay at these defaults and are handed to the SDK as they are, which then
// refuses the session.
struct StreamingData
{
    quint16 controlPort = 0; // TCP port of the streaming gateway
    qint32 userId = -1;
    QString serviceId;
    QString padCode;
    QString controlIp; // host name or IP address of the streaming gateway
    QString sessionId;
};

} // namespace stream
