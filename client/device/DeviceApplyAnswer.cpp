#include "device/DeviceApplyAnswer.h"

#include "stream/ControlAddress.h"

stream::StreamingData streamingDataOf(const QJsonValue &data, const QString &serviceId)
{
    const QJsonValue result = data[QStringLiteral("resultInfo")];
    const stream::ControlAddress address = stream::controlAddressOf(result);

    stream::StreamingData streaming;
    streaming.controlPort = address.port;
    streaming.userId = result[QStringLiteral("userId")].toInt(-1);
    streaming.serviceId = serviceId;
    streaming.padCode = data[QStringLiteral("padCode")].toString();
    streaming.controlIp = address.ip;
    streaming.sessionId = result[QStringLiteral("sessionId")].toString();
    return streaming;
}
